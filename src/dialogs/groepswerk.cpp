#include "dialogs/groepswerk.h"

#include "dialogs/ingave.h"
#include "register/spelertabel.h"
#include "register/waardenlijst.h"

namespace plexoran {
namespace {

/// Group code, tab, surname, three spaces, first name, space, particle.
Tekst Naamdeel(const Spelertabel& tabel, int rij)
{
    const auto cel = [&](Kolom kolom) { return Tekst(tabel.Cel(rij, kolom)); };
    return cel(Kolom::Groep) + '\t' + cel(Kolom::Achternaam) + "   " + cel(Kolom::Voornaam) + ' ' +
           cel(Kolom::Tusv);
}

/// What stands behind the visible part of a line.
Tekst Keydeel(const Spelertabel& tabel, int rij)
{
    return Tekst(60, ' ').append(tabel.Cel(rij, Kolom::Key));
}

/// The rows of the group, or those outside it.
std::vector<int> Rijen(const Spelertabel& tabel, Tekstblik groepscode, bool erin)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if ((tabel.Cel(rij, Kolom::Groep) == groepscode) == erin)
            rijen.push_back(rij);
    }
    return rijen;
}

} // namespace

std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep)
{
    return Rijen(tabel, importgroep, false);
}

Tekst Verplaatsregel(const Spelertabel& tabel, int rij)
{
    return Naamdeel(tabel, rij) + Keydeel(tabel, rij);
}

std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode)
{
    return Rijen(tabel, groepscode, true);
}

Tekst Kopieerregel(const Spelertabel& tabel, int rij)
{
    const Tekst subgroep(tabel.Cel(rij, Kolom::NBBgr));
    return Naamdeel(tabel, rij) + (IsBlanco(subgroep) ? "(geen)" : "  (" + subgroep + ')') +
           Keydeel(tabel, rij);
}

Tekst Regelkey(const Spelertabel& tabel, int rij)
{
    const Tekst deel = Keydeel(tabel, rij);
    return deel.substr(deel.size() - 6);
}

void VerplaatsSpelers(Spelertabel& tabel, const std::vector<Tekst>& keys, Tekstblik groepscode)
{
    const Sleutelwijzer wijzer(tabel);
    for (const Tekst& key : keys) {
        if (const int rij = wijzer.Rij(key); rij != 0)
            tabel.ZetCel(rij, Kolom::Groep, groepscode);
    }
}

bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht)
{
    const Sleutelwijzer wijzer(spelers.tabel);
    std::vector<int> rijen;
    for (const Tekst& key : opdracht.keys)
        rijen.push_back(wijzer.Rij(key));
    return KopieerRijen(spelers, rijen, opdracht.naarGroep, opdracht.metNBBgr);
}

bool KopieerRijen(Register& spelers, const std::vector<int>& rijen, Tekstblik naarGroep,
                  bool metNBBgr)
{
    if (!ZijnErSleutels(spelers, rijen.size()))
        return false;
    std::vector<Celtekst> anders{{Kolom::Key, {}}, {Kolom::Groep, naarGroep}};
    if (!metNBBgr)
        anders.push_back({Kolom::NBBgr, {}});
    anders.push_back({Kolom::NBBnr, {}});
    for (const int bron : rijen) {
        const Tekst nieuweKey = std::to_string(NieuweSleutel(spelers).value());
        anders.front().tekst = nieuweKey;
        if (bron == 0)
            spelers.tabel.VoegToe({"", nieuweKey, Tekst(naarGroep)});
        else
            spelers.tabel.VoegKopieToe(bron, anders);
    }
    return true;
}

Veldopdracht MaakVeldopdracht(const Spelertabel& tabel, const std::vector<int>& rijen, Kolom veld,
                              Tekstblik waarde, Tekstblik importgroep)
{
    Veldopdracht uit{veld, VerlaatVeld(veld, waarde).tekst, {}};
    if (veld == Kolom::Achternaam && IsBlanco(uit.nieuw))
        return uit;
    for (const int rij : rijen) {
        const bool isLid = tabel.Cel(rij, Kolom::Groep) == importgroep;
        const bool mag = veld == Kolom::NBBnr ? isLid : veld != Kolom::Groep || !isLid;
        if (mag && tabel.Cel(rij, veld) != uit.nieuw)
            uit.rijen.push_back(rij);
    }
    return uit;
}

void VoerUit(Spelertabel& tabel, const Veldopdracht& opdracht)
{
    for (const int rij : opdracht.rijen)
        tabel.ZetCel(rij, opdracht.veld, opdracht.nieuw);
}

std::vector<Tekst> SubgroepenVan(const Spelertabel& tabel, Tekstblik groepscode)
{
    Waardenlijst subgroepen;
    for (const int rij : RijenVanGroep(tabel, groepscode)) {
        const Tekstblik waarde = ZonderSpaties(tabel.Cel(rij, Kolom::NBBgr));
        subgroepen.Voeg(waarde.empty() ? "geen" : Tekst(waarde));
    }
    return subgroepen.Waarden();
}

std::vector<int> RijenVanSubgroep(const Spelertabel& tabel, Tekstblik groepscode,
                                  Tekstblik subgroep)
{
    const bool geen = Hoofdletters(subgroep) == "GEEN";
    std::vector<int> rijen = RijenVanGroep(tabel, groepscode);
    std::erase_if(rijen, [&](int rij) {
        const Tekstblik waarde = tabel.Cel(rij, Kolom::NBBgr);
        return waarde != subgroep && !(geen && waarde.empty());
    });
    return rijen;
}

} // namespace plexoran
