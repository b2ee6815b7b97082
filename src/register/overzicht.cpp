#include "register/overzicht.h"

#include <algorithm>
#include <unordered_map>

namespace plexoran {
namespace {

using Rijen = std::vector<int>;

struct Groepsrijen {
    Rijen rijen;
    std::unordered_map<Tekstblik, Rijen> subgroepen; ///< views into the table
};

/// Whether a column is filled.
struct Vulling {
    Kolom kolom;
    const char* wat;
    Rijen met{};
    Rijen zonder{};
};

class Overzicht {
  public:
    void Kop(const char* tekst) { regels_.push_back({.diepte = 0, .tekst = tekst}); }
    void Regel(int diepte, Tekst tekst, Rijen rijen)
    {
        const auto aantal = rijen.size();
        regels_.push_back({diepte, std::move(tekst), aantal, std::move(rijen)});
    }
    void Groep(Tekst naam, Groepsrijen& groep)
    {
        Regel(1, std::move(naam), std::move(groep.rijen));
        std::vector<Tekst> namen;
        for (const auto& deel : groep.subgroepen) {
            if (!deel.first.empty())
                namen.emplace_back(deel.first);
        }
        if (namen.empty())
            return;
        Sorteer(namen);
        for (const Tekst& subgroep : namen)
            Regel(2, subgroep, std::move(groep.subgroepen[subgroep]));
        if (groep.subgroepen.contains({}))
            Regel(2, "Zonder subgroep", std::move(groep.subgroepen[{}]));
    }
    std::vector<Overzichtregel> Neem() { return std::move(regels_); }

  private:
    std::vector<Overzichtregel> regels_;
};

} // namespace

std::vector<Overzichtregel> MaakOverzicht(const Spelertabel& tabel, const Groepen& groepen)
{
    Rijen alle;
    std::unordered_map<Tekstblik, Groepsrijen> perGroep;
    Rijen mannen;
    Rijen vrouwen;
    Rijen anderen;
    std::array vullingen{Vulling{Kolom::Email, "e-mail"}, Vulling{Kolom::Telef, "telefoon"},
                         Vulling{Kolom::NBBnr, "NBB-nummer"}};
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        alle.push_back(rij);
        Groepsrijen& groep = perGroep[tabel.Cel(rij, Kolom::Groep)];
        groep.rijen.push_back(rij);
        groep.subgroepen[ZonderSpaties(tabel.Cel(rij, Kolom::NBBgr))].push_back(rij);
        const Tekstblik geslacht = tabel.Cel(rij, Kolom::MV);
        (geslacht == "M" ? mannen : geslacht == "V" ? vrouwen : anderen).push_back(rij);
        for (Vulling& vulling : vullingen)
            (IsBlanco(tabel.Cel(rij, vulling.kolom)) ? vulling.zonder : vulling.met).push_back(rij);
    }
    Overzicht uit;
    uit.Regel(0, "Alle spelers", std::move(alle));
    uit.Kop("Groepen");
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer) {
        const auto groep = perGroep.find(Groepscode(nummer));
        if (groep == perGroep.end())
            continue;
        uit.Groep(groepen.Toontekst(nummer), groep->second);
        perGroep.erase(groep);
    }
    Groepsrijen zonder;
    for (auto& [code, groep] : perGroep)
        zonder.rijen.insert(zonder.rijen.end(), groep.rijen.begin(), groep.rijen.end());
    std::ranges::sort(zonder.rijen);
    if (!zonder.rijen.empty())
        uit.Groep("Van een groep die niet bestaat", zonder);
    uit.Kop("Man of vrouw");
    uit.Regel(1, "Man", std::move(mannen));
    uit.Regel(1, "Vrouw", std::move(vrouwen));
    uit.Regel(1, "Niet ingevuld", std::move(anderen));
    uit.Kop("Gegevens");
    for (Vulling& vulling : vullingen) {
        uit.Regel(1, Tekst("Met ") + vulling.wat, std::move(vulling.met));
        uit.Regel(1, Tekst("Zonder ") + vulling.wat, std::move(vulling.zonder));
    }
    return uit.Neem();
}

} // namespace plexoran
