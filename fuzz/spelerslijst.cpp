// Any bytes as a list of players: it is refused or its rows are whole, cells read back when they
// are written between quotes, the totals of the preview add up, and what it does is what it showed.
#include "eis.h"
#include "exchange/lijstimport.h"

using namespace plexoran;

namespace {

/// The same list with every cell between quotes.
Tekst Aangehaald(const Spelerslijst& lijst)
{
    Tekst uit;
    for (std::size_t rij = 0; rij < lijst.Rijen(); ++rij) {
        for (std::size_t kolom = 0; kolom < lijst.Cellen(rij); ++kolom) {
            uit += kolom == 0 ? "\"" : ";\"";
            for (const char teken : lijst.Cel(rij, kolom))
                uit.append(teken == '"' ? "\"\"" : Tekst(1, teken));
            uit += '"';
        }
        uit += "\r\n";
    }
    return uit;
}

void EisGelijk(const Spelerslijst& een, const Spelerslijst& ander)
{
    Eis(een.Rijen() == ander.Rijen(), "evenveel rijen");
    for (std::size_t rij = 0; rij < een.Rijen(); ++rij) {
        Eis(een.Cellen(rij) == ander.Cellen(rij), "evenveel cellen");
        for (std::size_t kolom = 0; kolom < een.Cellen(rij); ++kolom)
            Eis(een.Cel(rij, kolom) == ander.Cel(rij, kolom), "dezelfde cel");
    }
}

void Importeer(const Spelerslijst& lijst, Herkenning herkenning)
{
    Spelerlezing lezing =
        SpelersUit("HKEY=100042\r\n"
                   "1,100001,Gr02-,An,de,Bos,0,a@b,Weg 1,0101AA,Ede,NL,V,d,e,f,A,12345\r\n"
                   "2,100002,Gr07-,Eva,,Fuik,,,,,,,,,,,B,222\r\n");
    Register spelers;
    spelers.tabel = std::move(*lezing.tabel);
    spelers.HKEY = 100042;
    const bool kop = HeeftKop(lijst);
    Lijstkeuze keuze = RaadVelden(lijst, kop);
    Eis(KeuzeUit(Keuzetekst(keuze), lijst.Kolommen()) == keuze, "de keuze leest terug");
    keuze.herkenning = herkenning;
    const auto voorbeeld = Lijstvoorbeeld::Maak(
        spelers.tabel, lijst, {.groep = "Gr02-", .subgroep = "A", .keuze = keuze, .kop = kop});
    std::size_t samen = 0;
    for (int soort = 0; soort < 4; ++soort)
        samen += voorbeeld->Aantal(static_cast<Voorbeeldsoort>(soort));
    Eis(samen == lijst.Rijen() - (kop ? 1 : 0), "elke regel telt een keer");
    const std::size_t nieuw = voorbeeld->Aantal(Voorbeeldsoort::Nieuw) - voorbeeld->RegelsUit();
    const bool verandert = voorbeeld->VerandertIets();
    const auto telling = voorbeeld->VoerUit(spelers);
    Eis(telling && telling->nieuw == nieuw, "wie nieuw is, komt erbij");
    Eis(spelers.tabel.Rijen() == 2 + static_cast<int>(nieuw), "niemand verdwijnt");
    Eis(verandert || telling->nieuw == 0, "wat niet verandert, blijft");
    for (int rij = 1; rij <= spelers.tabel.Rijen(); ++rij)
        Eis(!spelers.tabel.Cel(rij, Kolom::Achternaam).empty(), "iedereen heeft een achternaam");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const auto tekst = Lijsttekstvan(AlsTekst(data, lengte));
    if (!tekst)
        return 0;
    const auto lijst = LeesSpelerslijst(tekst->tekst, HerkenVorm(tekst->tekst));
    if (!lijst)
        return 0;
    EisGelijk(*lijst, LeesSpelerslijst(Aangehaald(*lijst), {}).value());
    for (const auto herkenning : {Herkenning::Key, Herkenning::NBBnr, Herkenning::Naam})
        Importeer(*lijst, herkenning);
    return 0;
}
