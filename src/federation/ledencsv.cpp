#include "federation/ledencsv.h"

#include <algorithm>
#include <array>

#include "federation/tussenbestand.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr std::size_t AantalKolommen = 12;

/// Which column each field of an import line comes from, and whether its box is ticked.
struct Herkomst {
    std::size_t kolom = 0;
    bool gekozen = true;
};
using Herkomsten = std::array<Herkomst, AantalImportvelden>;

Herkomsten HerkomstenVan(const Importkeuzes& keuzes)
{
    return {{{2, true},
             {4, true},
             {5, true},
             {6, keuzes.naw},
             {7, keuzes.naw},
             {8, keuzes.naw},
             {9, keuzes.tel},
             {10, keuzes.email},
             {11, keuzes.naw},
             {1, keuzes.mv},
             {0, true}}};
}

std::size_t NodigeKolommen(const Herkomsten& herkomsten)
{
    std::size_t nodig = 0;
    for (const auto& [kolom, gekozen] : herkomsten)
        nodig = std::max(nodig, gekozen ? kolom + 1 : 0);
    return nodig;
}

struct Kolommen {
    std::array<Tekstblik, AantalKolommen> teksten;
    std::size_t aantal = 0; ///< of those in use
};

Kolommen Splits(Tekstblik regel)
{
    Kolommen uit;
    while (uit.aantal < AantalKolommen) {
        const auto eind = regel.find(';');
        uit.teksten[uit.aantal++] = regel.substr(0, eind);
        if (eind == Tekstblik::npos)
            break;
        regel.remove_prefix(eind + 1);
    }
    uit.teksten[0] = ZonderVoorloop(uit.teksten[0]);
    return uit;
}

void MaakImportregel(Tekst& uit, const Kolommen& kolommen, const Herkomsten& herkomsten)
{
    uit.clear();
    for (const auto& [kolom, gekozen] : herkomsten) {
        if (gekozen)
            uit += kolommen.teksten[kolom];
        uit += ',';
    }
    uit.pop_back();
}

} // namespace

Uitkomst<Ledenlezing> LeesLedencsv(Tekstblik tekst, const Importkeuzes& keuzes,
                                   const Voortgang& voortgang)
{
    if (tekst.find('\0') != Tekstblik::npos)
        return tl::unexpected(Fout{Foutsoort::Beschadigd, {}, 0, "dit is geen tekstbestand"});
    constexpr int elkeZoveel = 4096;
    const Herkomsten herkomsten = HerkomstenVan(keuzes);
    const std::size_t nodig = NodigeKolommen(herkomsten);
    Ledenlezing uit;
    uit.lstN1.Reserveer(static_cast<std::size_t>(std::count(tekst.begin(), tekst.end(), '\n')) + 1,
                        tekst.size());
    Tekst importregel;
    int nummer = 0;
    for (const Tekstblik regel : Regels(tekst)) {
        if (++nummer % elkeZoveel == 0 && voortgang)
            voortgang(static_cast<std::size_t>(regel.data() - tekst.data()), tekst.size());
        if (IsBlanco(regel))
            continue;
        if (regel.find('=') != Tekstblik::npos) {
            uit.metIsTeken.VoegToe(regel);
            continue;
        }
        const Kolommen kolommen = Splits(regel);
        if (kolommen.aantal < nodig) {
            uit.teKorteRegel = nummer;
            break;
        }
        MaakImportregel(importregel, kolommen, herkomsten);
        uit.lstN1.VoegToe(importregel);
    }
    return uit;
}

} // namespace plexoran
