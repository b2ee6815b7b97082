// Any text as a pair file, over a group whose players come from the same text: the tokens are those
// that a plain reading finds, no player is in two pairs, every stored pair stays in the list, and
// what is saved comes back.
#include <algorithm>
#include <vector>

#include "eis.h"
#include "pairs/paren.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

/// As it is told: the last line, cut at every "#", pieces of thirteen characters.
Paartekens GewoneTekens(const Tekst& inhoud)
{
    Tekst regel;
    Tekst laatste;
    for (std::size_t i = 0; i < inhoud.size(); ++i) {
        const bool paar = inhoud[i] == '\r' && i + 1 < inhoud.size() && inhoud[i + 1] == '\n';
        if (inhoud[i] == '\r' || inhoud[i] == '\n') {
            laatste = regel;
            regel.clear();
            i += paar ? 1 : 0;
        } else {
            regel += inhoud[i];
        }
    }
    const bool open = !inhoud.empty() && inhoud.back() != '\r' && inhoud.back() != '\n';
    Tekst rest = open ? regel : laatste;
    rest += '#';
    Paartekens tekens;
    for (auto hekje = rest.find('#'); hekje != Tekst::npos; hekje = rest.find('#')) {
        if (hekje == 13)
            tekens.push_back(rest.substr(0, hekje));
        rest.erase(0, hekje + 1);
    }
    return tekens;
}

/// Players whose names and keys are pieces of the text.
Spelertabel TabelUit(const Tekst& inhoud)
{
    Spelertabel tabel;
    for (std::size_t i = 0; i + 12 <= inhoud.size() && tabel.Rijen() < 40; i += 12) {
        Rijvelden velden;
        velden[Index(Kolom::Key)] = inhoud.substr(i, 6);
        velden[Index(Kolom::Groep)] = "Gr01-";
        velden[Index(Kolom::Achternaam)] = inhoud.substr(i + 6, 5);
        velden[Index(Kolom::Voornaam)] = inhoud.substr(i / 2, 7);
        tabel.VoegToe(velden);
    }
    return tabel;
}

/// Whether the line can be taken apart into the token that it was made from.
bool IsGewoon(const Tekst& paar)
{
    return paar.find_first_of(" +") == Tekst::npos;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    const Paartekens tekens = PaartekensUit(inhoud);
    Eis(tekens == GewoneTekens(inhoud), "de gewone lezing");

    const Spelertabel tabel = TabelUit(inhoud);
    Paren paren;
    Eis(paren.LaadSubgroep(tabel, "Gr01-", "Gr01-", {}).empty(), "zonder paren niemand los");
    const std::size_t spelers = paren.Lalle().size();
    Eis(spelers == static_cast<std::size_t>(tabel.Rijen()), "elke speler beschikbaar");
    const Tekst losse = paren.LaadSubgroep(tabel, "Gr01-", "Gr01-", tekens);
    Eis(paren.L3().size() == tekens.size(), "elk paar staat in de lijst");
    Eis(paren.Lalle().size() <= spelers, "er komen geen spelers bij");
    Eis(losse.empty() == (paren.Lalle().size() + 2 * tekens.size() == spelers),
        "wie niet los is komt uit de lijst");
    (void)ParenCSVTekst(paren.L3(), tabel, ParenCSV::TweeKolommen);

    Mappen mappen;
    mappen.SPEMAP = "C:\\Spelers";
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\Spelers\\Parenmap");
    schijf.Zet(*Parenbestand(mappen, "Gr01-"), inhoud);
    const auto gelezen = LeesParenbestand(schijf, mappen, "Gr01-");
    Eis(gelezen && PaartekensUit(gelezen->value_or("")) == tekens, "van de schijf hetzelfde");
    Eis(BewaarParen(schijf, mappen, "Gr01-", paren.L3(), gelezen).gelukt.has_value(),
        "het opslaan");
    Paartekens moet = tekens;
    Paartekens is = PaartekensUit(schijf.Inhoud(*Parenbestand(mappen, "Gr01-")).value_or(""));
    for (Tekst& paar : moet)
        paar[6] = '-';
    std::sort(moet.begin(), moet.end());
    std::sort(is.begin(), is.end());
    if (std::all_of(tekens.begin(), tekens.end(), IsGewoon))
        Eis(is == moet, "opgeslagen en weer gelezen");
    if (tekens.empty())
        Eis(schijf.Inhoud(*Parenbestand(mappen, "Gr01-")) == inhoud, "zonder paren ongemoeid");

    while (!paren.L3().empty())
        paren.Ontbind(static_cast<int>(paren.L3().size()) / 2);
    Eis(paren.Lalle().size() >= spelers, "na het ontbinden is iedereen terug");
    if (paren.Lalle().size() > 1)
        Eis(paren.MaakPaar(0, 1) == 0, "een paar maken");
    return 0;
}
