// A scratch suite on the real disk, gone afterwards.
#pragma once

#include <filesystem>

#include "register/mappen.h"

namespace plexoran {

class Proefsuite {
  public:
    /// In the system's folder for temporary files, which TMPDIR names; syncing is only worth
    /// measuring where that is a real disk. Ends the program when it cannot be made.
    explicit Proefsuite(const Tekst& spelers);
    Proefsuite(const Proefsuite&) = delete;
    Proefsuite& operator=(const Proefsuite&) = delete;
    ~Proefsuite();

    [[nodiscard]] const Mappen& Instellingen() const { return mappen_; }
    [[nodiscard]] Pad MappenIni() const;
    /// The system's path of a file in the players folder.
    [[nodiscard]] std::filesystem::path Spelerpad(const char* naam) const;

  private:
    std::filesystem::path map_;
    Mappen mappen_;
};

} // namespace plexoran
