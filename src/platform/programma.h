// The running program and other programs.
#pragma once

#include <memory>

#include "platform/schijf.h"

namespace plexoran {

/// The folder of the running executable.
[[nodiscard]] Pad Programmamap();

/// A path as the user gave it, on the command line or in a file dialog, made independent of the
/// working folder.
[[nodiscard]] Pad VolledigPad(const std::string& utf8);

/// Makes a folder the process's working folder. One that is missing changes nothing.
void ZetWerkmap(const Pad& map);

/// Starts another program in a window of its own and does not wait for it. `Ontbreekt` when there
/// is no such file.
[[nodiscard]] Uitkomst<void> StartProgramma(Schijf& schijf, const Pad& pad);

/// Held by the one instance of the program that a user may run. The system gives it up when the
/// process ends, however it ends.
class Exemplaarslot {
  public:
    Exemplaarslot();
    Exemplaarslot(const Exemplaarslot&) = delete;
    Exemplaarslot& operator=(const Exemplaarslot&) = delete;
    ~Exemplaarslot();

    /// Whether no other instance of this user holds it; true when this one does. Where no lock can
    /// be kept at all (a full disk, a missing folder) the program may start: refusing it would be
    /// the greater harm.
    [[nodiscard]] bool Neem();

  private:
    struct Binnenkant;
    std::unique_ptr<Binnenkant> binnenkant_;
};

} // namespace plexoran
