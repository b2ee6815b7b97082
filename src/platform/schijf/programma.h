// The running program and other programs.
#pragma once

#include <filesystem>

#include "platform/schijf/schijf.h"

namespace plexoran {

/// The folder of the running executable.
[[nodiscard]] Pad Programmamap();

/// The names that this computer and its user bear; empty when the system tells none.
[[nodiscard]] Tekst Computernaam();
[[nodiscard]] Tekst Gebruikersnaam();

/// A path as the user gave it, on the command line or in a file dialog, made independent of the
/// working folder.
[[nodiscard]] Pad VolledigPad(const std::string& utf8);

/// Makes a folder the process's working folder. One that is missing changes nothing.
void ZetWerkmap(const Pad& map);

/// Starts another program in a window of its own and does not wait for it. `Ontbreekt` when there
/// is no such file.
[[nodiscard]] Uitkomst<void> StartProgramma(Schijf& schijf, const Pad& pad);

/// The file by which the starts of this user on this computer find each other. The system itself
/// tells the place: two starts meet whatever their environments say.
[[nodiscard]] std::filesystem::path Slotbestand();

/// Held by the one instance of the program that a user may run. It is the system's own lock on a
/// file, which ends with the process, however that ends; what the file holds means nothing.
class Exemplaarslot {
  public:
    explicit Exemplaarslot(std::filesystem::path bestand) : bestand_(std::move(bestand)) {}
    Exemplaarslot(const Exemplaarslot&) = delete;
    Exemplaarslot& operator=(const Exemplaarslot&) = delete;
    ~Exemplaarslot();

    /// Whether no other instance holds it; true when this one does. Where no lock can be kept at
    /// all (a full disk, a folder in its place) the program may start: refusing it would be the
    /// greater harm.
    [[nodiscard]] bool Neem();
    /// Asks the instance that holds it to come to the front.
    void Roep() const;
    /// Whether another one asked so since the last time.
    [[nodiscard]] bool IsGeroepen();

  private:
    std::filesystem::path bestand_;
    int greep_ = -1;
    std::filesystem::file_time_type gezien_{};
};

} // namespace plexoran
