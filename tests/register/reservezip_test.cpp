#include "register/reservezip.h"

#include <set>

#include "hulp/fouten.h"
#include "register/registerhulp.h"
#include "register/reservekopie.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr const char* kopiemap = "C:\\club\\Spelers\\Reservekopie";

/// A club with every kind of file that a backup takes along, and some that it does not.
void Vul(GeheugenSchijf& schijf)
{
    schijf.Zet(spelerbestand, vijfSpelers);
    schijf.Zet(groepenbestand, "Gr01-Leden\r\n");
    schijf.Zet(instellingenbestand, "OPTIND=4\r\n");
    schijf.Zet("C:\\club\\Spelers\\RVDparen.txt", "100001-100005#");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr01-D\xEDnsdag.TXT", "100001-100003#");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr01-.txt", "");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr01-.txt.~plexoran12", "half");
    schijf.Zet("C:\\club\\Spelers\\notities.txt", "van de gebruiker");
}

const std::vector<Zipdeel> alles{
    {"RVDspelers.txt", vijfSpelers},    {"RVDGroepen.txt", "Gr01-Leden\r\n"},
    {"RVDparen.txt", "100001-100005#"}, {"Plexo.ini", "OPTIND=4\r\n"},
    {"Parenmap\\Gr01-.txt", ""},        {"Parenmap\\Gr01-D\xEDnsdag.TXT", "100001-100003#"}};

std::vector<Tekst> Kopienaamlijst(Schijf& schijf)
{
    auto namen = schijf.Bestanden(kopiemap).value_or(std::vector<Tekst>());
    std::sort(namen.begin(), namen.end());
    return namen;
}

Tekst Naam(const Pad& pad)
{
    return pad.substr(pad.rfind('\\') + 1);
}

} // namespace

TEST(Reservezip, HoudtAllesWatDeGebruikerInvoert)
{
    GeheugenSchijf schijf;
    Vul(schijf);
    const Pad pad = MaakReservezip(schijf, Proefmappen(), "voor import").value();
    const auto kopie = KopienaamUit(Naam(pad)).value();
    EXPECT_EQ(kopie.reden, "voor import");
    EXPECT_EQ(LeesReserve(schijf, Proefmappen(), kopie).value(), alles);
    const auto reserves = Reserves(schijf, Proefmappen()).value();
    ASSERT_EQ(reserves.size(), 1U);
    EXPECT_EQ(reserves.front().kopie.naam, Naam(pad));
    EXPECT_EQ(reserves.front().spelers, 5);
    EXPECT_EQ(schijf.Inhoud(spelerbestand), vijfSpelers);
}

TEST(Reservezip, WatErNietIsHoeftNietMee)
{
    GeheugenSchijf schijf;
    schijf.Zet(spelerbestand, "onleesbaar, maar wel bewaard");
    Mappen mappen = Proefmappen();
    mappen.ADMMAP.clear();
    const auto kopie =
        KopienaamUit(Naam(MaakReservezip(schijf, mappen, "dagelijks").value())).value();
    EXPECT_EQ(LeesReserve(schijf, mappen, kopie).value(),
              (std::vector<Zipdeel>{{"RVDspelers.txt", "onleesbaar, maar wel bewaard"}}));
    EXPECT_EQ(Reserves(schijf, mappen).value().front().spelers, 0);
}

TEST(Reservezip, VervangtNooitEenAndere)
{
    GeheugenSchijf schijf;
    Vul(schijf);
    std::set<Pad> paden;
    for (int i = 0; i < 5; ++i)
        paden.insert(MaakReservezip(schijf, Proefmappen(), "voor import").value());
    EXPECT_EQ(paden.size(), 5U);
    EXPECT_EQ(Reserves(schijf, Proefmappen()).value().size(), 5U);
}

TEST(Reservezip, DeLijstKentDeNieuwsteEerstEnOokKopieenVanHetRegister)
{
    GeheugenSchijf schijf;
    schijf.Zet(Samen(kopiemap, "2026-03-01 100000 voor koppelen.zip"),
               ZipVan({{"RVDspelers.txt", ""}}, "spelers=12").value());
    schijf.Zet(Samen(kopiemap, "2026-03-02 100000 voor import.zip"), "kapot");
    schijf.Zet(Samen(kopiemap, "RVDspelers 2026-03-03 100000.txt"), vijfSpelers);
    schijf.Zet(Samen(kopiemap, "RVDGroepen 2026-03-04 100000.txt"), "Gr01-Oud\r\n");
    schijf.Zet(Samen(kopiemap, "2026-03-05 100000 van een ander.zip"), ZipVan({}, "").value_or(""));
    const auto reserves = Reserves(schijf, Proefmappen()).value();
    ASSERT_EQ(reserves.size(), 4U);
    EXPECT_EQ(reserves[0].spelers, std::nullopt);
    EXPECT_EQ(reserves[1].kopie.bestand, "RVDspelers");
    EXPECT_EQ(reserves[1].spelers, 5);
    EXPECT_EQ(reserves[2].kopie.reden, "voor import");
    EXPECT_EQ(reserves[2].spelers, std::nullopt);
    EXPECT_EQ(reserves[3].spelers, 12);
    EXPECT_EQ(LeesReserve(schijf, Proefmappen(), reserves[1].kopie).value(),
              (std::vector<Zipdeel>{{"RVDspelers.txt", vijfSpelers}}));
    const Fout fout = FoutVan(LeesReserve(schijf, Proefmappen(), reserves[2].kopie));
    EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
    EXPECT_EQ(fout.bestand, Samen(kopiemap, "2026-03-02 100000 voor import.zip"));
    GeheugenSchijf leeg;
    EXPECT_TRUE(Reserves(leeg, Proefmappen()).value().empty());
}

TEST(Reservezip, DuntUitEnRaaktNietsAndersAan)
{
    GeheugenSchijf schijf;
    Vul(schijf);
    for (int i = 10; i < 40; ++i)
        schijf.Zet(Samen(kopiemap, "2001-01-01 1200" + std::to_string(i) + " dagelijks.zip"), "x");
    schijf.Zet(Samen(kopiemap, "RVDspelers 2001-01-01 120000.txt"), "oud");
    schijf.Zet(Samen(kopiemap, "van de gebruiker 2001-01-01 120000.txt"), "blijft");
    schijf.Zet(Samen(kopiemap, "archief.zip"), "blijft");
    const Tekst nieuw = Naam(MaakReservezip(schijf, Proefmappen(), "dagelijks").value());
    const auto namen = Kopienaamlijst(schijf);
    EXPECT_EQ(namen.size(), 22U);
    EXPECT_EQ(namen[0], "2001-01-01 120021 dagelijks.zip");
    EXPECT_EQ(namen[18], "2001-01-01 120039 dagelijks.zip");
    EXPECT_EQ(namen[19], nieuw);
    EXPECT_EQ(namen[20], "archief.zip");
    EXPECT_EQ(namen[21], "van de gebruiker 2001-01-01 120000.txt");
}

TEST(Reservezip, BijElkeStapDieMisluktIsErGeenReserveEnBlijftAllesStaan)
{
    GeheugenSchijf tellend;
    Vul(tellend);
    FalendeSchijf teller(tellend);
    teller.FaalNiet();
    ASSERT_TRUE(MaakReservezip(teller, Proefmappen(), "voor import"));
    const int stappen = teller.Aantal();
    ASSERT_GE(stappen, 18);
    int mislukt = 0;
    for (int stap = 1; stap <= stappen; ++stap) {
        for (const bool blijvend : {false, true}) {
            SCOPED_TRACE(std::to_string(stap) + (blijvend ? " en verder" : ""));
            GeheugenSchijf binnen;
            Vul(binnen);
            FalendeSchijf schijf(binnen);
            blijvend ? schijf.FaalVanaf(stap) : schijf.FaalBij(stap);
            const auto gemaakt = MaakReservezip(schijf, Proefmappen(), "voor import");
            mislukt += gemaakt ? 0 : 1;
            EXPECT_EQ(binnen.Inhoud(spelerbestand), vijfSpelers);
            if (!gemaakt) {
                EXPECT_NE(gemaakt.error().systeem, "");
            }
            const auto reserves = Reserves(binnen, Proefmappen()).value();
            if (gemaakt || !blijvend) {
                EXPECT_EQ(reserves.size(), gemaakt ? 1U : 0U);
            }
            for (const Reserve& reserve : reserves) // never half a one
                EXPECT_EQ(LeesReserve(binnen, Proefmappen(), reserve.kopie).value(), alles);
        }
    }
    EXPECT_GE(mislukt, 2 * (stappen - 1)) << "all but the thinning";
}

TEST(Reservezip, WatAndersTerugkomtTeltNiet)
{
    struct Vergeetachtig : GeheugenSchijf {
        Uitkomst<Tekst> LeesBestand(const Pad& pad) override
        {
            auto inhoud = GeheugenSchijf::LeesBestand(pad);
            if (inhoud && pad.ends_with(".zip"))
                *inhoud = ander ? ZipVan({{"RVDspelers.txt", "anders"}}, "").value()
                                : inhoud->substr(0, inhoud->size() / 2);
            return inhoud;
        }
        bool ander = false;
    } schijf;
    Vul(schijf);
    for (const bool ander : {false, true}) {
        schijf.ander = ander;
        const Fout fout = FoutVan(MaakReservezip(schijf, Proefmappen(), "voor import"));
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
        EXPECT_TRUE(fout.bestand.starts_with(kopiemap)) << fout.bestand;
        EXPECT_EQ(Kopienaamlijst(schijf), std::vector<Tekst>());
    }
}
