// The input as a history file, of which what is whole is undone and done again; and two texts,
// parted by a null byte, as a file before a command and after it: what is written of them reads
// back the same, and undoing it gives back the players of before.
#include <algorithm>
#include <set>

#include "eis.h"
#include "register/geschiedenis.h"
#include "spelers.h"

using namespace plexoran;

namespace {

constexpr Tekstblik spelersplaats = "SPEMAP\\RVDspelers.txt";

/// An entry with one file, as it is written and read back.
Wijziging Heen(Tekstblik plaats, Tekstblik voor, Tekstblik na, bool alles)
{
    const Tekst tekst = "handeling 1\r\nwat\r\nbestand " + Tekst(plaats) + "\r\n" +
                        Regelverschil(voor, na, alles) + "einde\r\n";
    auto uit = HandelingenUit(tekst, "a.txt");
    Eis(uit.size() == 1 && uit[0].wijzigingen.size() == 1, "een handeling met een bestand");
    // Torn off anywhere in its last line, there is none.
    const auto af = HandelingenUit(Tekstblik(tekst).substr(0, tekst.size() - 1), "a.txt");
    Eis(af.empty(), "een afgebroken handeling telt niet");
    return std::move(uit[0].wijzigingen[0]);
}

/// Whether the keys tell all players apart.
bool IsWijzer(const Spelertabel& tabel)
{
    std::set<Tekstblik> keys;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const Tekstblik key = tabel.Cel(rij, Kolom::Key);
        if (!AlsGetal(key, 1) || !keys.insert(key).second)
            return false;
    }
    return true;
}

void DraaiSpelers(const Tekst& eerst, const Tekst& daarna)
{
    const Register voor = RegisterVan(eerst);
    const Register na = RegisterVan(daarna);
    const Wijziging wijziging = Heen(spelersplaats, SpelersTekst(voor), SpelersTekst(na), false);
    const Menging terug = DraaiSpelersTerug(na, wijziging, Handelingsoort::Ongedaan);
    const Menging opnieuw = DraaiSpelersTerug(voor, wijziging, Handelingsoort::Opnieuw);
    if (!IsWijzer(voor.tabel) || !IsWijzer(na.tabel))
        return;
    Eis(terug.botsingen.empty() && Tel(terug.tabel) == Tel(voor.tabel), "ongedaan maken");
    Eis(opnieuw.botsingen.empty() && Tel(opnieuw.tabel) == Tel(na.tabel), "opnieuw doen");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst alles = AlsTekst(data, lengte);
    for (const Handeling& handeling : HandelingenUit(alles, "a.txt")) {
        for (const Wijziging& wijziging : handeling.wijzigingen) {
            static_cast<void>(SpelersIn(wijziging));
            static_cast<void>(
                DraaiSpelersTerug(RegisterVan(wijziging.na), wijziging, Handelingsoort::Ongedaan));
            static_cast<void>(
                DraaiSpelersTerug(RegisterVan(wijziging.voor), wijziging, Handelingsoort::Opnieuw));
        }
    }
    const auto scheiding = std::min(alles.find('\0'), alles.size());
    const Tekst voor = alles.substr(0, scheiding);
    const Tekst na = scheiding < alles.size() ? alles.substr(scheiding + 1) : Tekst();
    const Wijziging heel = Heen("SPEMAP\\RVDGroepen.txt", voor, na, true);
    Eis(heel.voor == voor && heel.na == na, "heen en terug");
    DraaiSpelers(voor, na);
    return 0;
}
