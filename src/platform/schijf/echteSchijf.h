// The disk of this computer. Names are looked up as platform/schijf/systeempad.h tells.
#pragma once

#include <filesystem>
#include <set>

#include "platform/schijf/schijf.h"

namespace plexoran {

class EchteSchijf : public Schijf {
  public:
    [[nodiscard]] Uitkomst<Padsoort> Soort(const Pad& pad) override;
    /// Refused for what is not a regular file; a pipe or device is not waited for.
    [[nodiscard]] Uitkomst<Tekst> LeesBestand(const Pad& pad) override;
    [[nodiscard]] Uitkomst<Tekst> LeesBegrensd(const Pad& pad) override;
    /// Part by part: the file may be large, and nothing of it is needed.
    [[nodiscard]] Uitkomst<bool> Houdt(const Pad& pad, Tekstblik inhoud) override;
    [[nodiscard]] Uitkomst<Stempel> NeemStempel(const Pad& pad) override;
    /// Regular files and links to them.
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Bestanden(const Pad& map) override;
    /// Folders and links to them.
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Mappen(const Pad& map) override;

    [[nodiscard]] std::vector<std::string> NeemOvergeslagen(const Pad& map) override;

    [[nodiscard]] Uitkomst<void> MaakMap(const Pad& map) override;
    [[nodiscard]] Uitkomst<Pad> Doel(const Pad& pad) override;
    [[nodiscard]] Uitkomst<std::unique_ptr<Schrijver>> MaakNieuw(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> NeemRechtenOver(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Verwijder(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> VerwijderMap(const Pad& map) override;
    [[nodiscard]] Uitkomst<void> SyncMapVan(const Pad& pad) override;

    [[nodiscard]] std::string Toonpad(const Pad& pad) const override;

  private:
    std::set<std::filesystem::path> overgeslagen_; ///< all so far
    std::set<std::filesystem::path> gemeld_;       ///< those of them that were handed out
};

} // namespace plexoran
