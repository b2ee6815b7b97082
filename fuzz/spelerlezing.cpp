// Any text as a player file: read as the plain reader does, and what was read survives writing and
// reading again; nothing is lost unsaid.
#include "eis.h"
#include "register/gewoneLezer.h"
#include "register/spelerbestand.h"

using namespace plexoran;

namespace {

void EisGelijkAanGewoon(const Spelerlezing& lezing, const gewoon::Lezing& gewone)
{
    Eis(lezing.tabel.has_value() == gewone.tabel, "een tabel of geen");
    Eis(lezing.HKEY == gewone.HKEY, "HKEY");
    Eis(lezing.fout.has_value() == (gewone.foutregel > 0), "een fout of geen");
    if (lezing.fout) {
        Eis(lezing.fout->regel == gewone.foutregel, "regel van de fout");
        Eis(lezing.velden == gewone.foutvelden, "velden van de fout");
        Eis(lezing.verliest, "een fout vraagt een kopie");
    }
    if (!lezing.tabel)
        return;
    Eis(lezing.zonderAchternaam == gewone.zonderAchternaam, "spelers zonder achternaam");
    Eis(lezing.tabel->Rijen() == static_cast<int>(gewone.rijen.size()), "aantal rijen");
    for (int rij = 1; rij <= lezing.tabel->Rijen(); ++rij) {
        const auto& velden = gewone.rijen[static_cast<std::size_t>(rij - 1)];
        for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
            Eis(lezing.tabel->Cel(rij, static_cast<Kolom>(kolom)) ==
                    velden[static_cast<std::size_t>(kolom - 1)],
                "cel");
    }
}

/// Every row with a key comes back, in order, under its position as number.
void EisTerug(const Spelertabel& voor, const Spelertabel& na)
{
    int over = 0;
    for (int rij = 1; rij <= voor.Rijen(); ++rij) {
        if (voor.Cel(rij, Kolom::Key).empty())
            continue;
        Eis(++over <= na.Rijen(), "een rij verdween");
        Rijvelden velden = voor.Velden(rij);
        velden[0] = std::to_string(rij);
        Eis(na.Velden(over) == velden, "een rij kwam anders terug");
    }
    Eis(over == na.Rijen(), "er kwam een rij bij");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    Spelerlezing lezing = SpelersUit(inhoud);
    const gewoon::Lezing gewone = gewoon::Lees(inhoud);
    EisGelijkAanGewoon(lezing, gewone);
    if (!lezing.tabel)
        return 0;

    Register spelers;
    spelers.HKEY = lezing.HKEY.value_or(Sleutelbasis);
    spelers.tabel = std::move(*lezing.tabel);
    const Tekst tekst = SpelersTekst(spelers);
    Eis(lezing.verliest == gewoon::Verliest(gewone, inhoud, tekst), "verliest");

    const Spelerlezing terug = SpelersUit(tekst);
    Eis(terug.tabel && !terug.fout && !terug.verliest, "het eigen bestand wordt heel gelezen");
    Eis(terug.HKEY == spelers.HKEY, "HKEY terug");
    EisTerug(spelers.tabel, *terug.tabel);
    return 0;
}
