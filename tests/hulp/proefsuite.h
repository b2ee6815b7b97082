// A copy of the sample suite in a folder of its own, as its user would have it.
#pragma once

#include <map>

#include "platform/bronnen/instellingenwinkel.h"
#include "platform/schijf/tijdelijkeMap.h"

namespace plexoran {

class Proefsuite : public TijdelijkeMap {
  public:
    /// With every folder that its "Mappen.ini" names.
    Proefsuite();

    [[nodiscard]] Pad MappenIni() const { return Samen(AlsPad(), "Mappen.ini"); }
    [[nodiscard]] bool Bestaat(const std::filesystem::path& naam) const
    {
        return std::filesystem::exists(Weg() / naam);
    }
    void Verwijder(const std::filesystem::path& naam) const
    {
        std::filesystem::remove_all(Weg() / naam);
    }
    /// The names in a folder, sorted; none when it is missing.
    [[nodiscard]] std::vector<std::string> Namen(const std::filesystem::path& map) const;

    [[nodiscard]] std::string Spelers() const { return Inhoud("Spelers/RVDspelers.txt"); }
    [[nodiscard]] std::string Groepen() const { return Inhoud("Spelers/RVDGroepen.txt"); }
    [[nodiscard]] std::string Instellingen() const { return Inhoud("Admin/Plexo.ini"); }
};

/// The per-user settings of other programs, in memory; empty: no scoring program is installed.
class Proefwinkel {
  public:
    void Zet(const Tekst& toepassing, const Tekst& sleutel, const Tekst& waarde)
    {
        waarden_[toepassing + "\\Options\\" + sleutel] = waarde;
    }
    std::optional<Tekst> operator()(Tekstblik toepassing, Tekstblik sectie,
                                    Tekstblik sleutel) const;

  private:
    std::map<Tekst, Tekst> waarden_;
};

} // namespace plexoran
