#include "mainwindow/weergave.h"

#include <ctime>
#include <random>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

Mappen MetWoorden(const Tekst& woorden)
{
    Mappen mappen;
    mappen.DFIMPG = "Gr05-";
    mappen.ODKEYS = woorden;
    return mappen;
}

Spelertabel Tabel(std::initializer_list<Tekst> groepen)
{
    Spelertabel tabel;
    for (const Tekst& groep : groepen) {
        Rijvelden velden;
        velden[Index(Kolom::Groep)] = groep;
        tabel.VoegToe(velden);
    }
    return tabel;
}

constexpr auto Ongemoeid = Zichtbaarheid::Ongemoeid;
constexpr auto Tonen = Zichtbaarheid::Tonen;
constexpr auto Verbergen = Zichtbaarheid::Verbergen;

/// Every character 1 mm wide, "W" 3 mm, "i" and "." half a millimetre.
Tekstmeter Proefmeter()
{
    Tekstmeter meter;
    meter.opschuiving.fill(1000);
    meter.opschuiving['W'] = 3000;
    meter.opschuiving['i'] = 500;
    meter.opschuiving['.'] = 500;
    return meter;
}

Rijvelden Rij(const Tekst& achternaam, const Tekst& plaats = {})
{
    Rijvelden velden;
    velden[Index(Kolom::Achternaam)] = achternaam;
    velden[Index(Kolom::Plaats)] = plaats;
    return velden;
}

constexpr std::size_t achternaam = Index(Kolom::Achternaam);
constexpr std::size_t woonplaats = Index(Kolom::Plaats);

} // namespace

TEST(BouwWeergave, NeemtDeRijenVanDeGroepInTabelvolgorde)
{
    const Spelertabel tabel = Tabel({"Gr02-", "Gr01-", "Gr02-", "Gr20-", "Gr02-"});
    EXPECT_EQ((Weergave{1, 3, 5}), BouwWeergave(tabel, "Gr02-"));
    EXPECT_EQ((Weergave{2}), BouwWeergave(tabel, "Gr01-"));
    EXPECT_EQ(Weergave{}, BouwWeergave(tabel, "Gr03-"));
    EXPECT_EQ(Weergave{}, BouwWeergave(Spelertabel(), "Gr01-"));
}

TEST(BouwWeergave, VergelijktDeCodeLetterVoorLetter)
{
    const Spelertabel tabel = Tabel({"gr02-", "Gr02", " Gr02", ""});
    EXPECT_EQ(Weergave{}, BouwWeergave(tabel, "Gr02-"));
}

TEST(BeeldVan, AlleenDeLaatsteTweeKolommenHetenInDeImportgroepAnders)
{
    Namenrij namen{"Nr",    "Key",   "Groep", "Voornaam", "Tusv",   "Achternaam",
                   "Telef", "Email", "Adres", "Postc",    "Plaats", "Land",
                   "M/V",   "Div1",  "Div2",  "Status",   "NBBgr",  "NBBnr"};
    EXPECT_EQ(namen, BeeldVan(MetWoorden(""), "Gr05-").kolomnamen);
    namen[16] = "Subgr";
    namen[17] = "";
    EXPECT_EQ(namen, BeeldVan(MetWoorden(""), "Gr06-").kolomnamen);
}

TEST(BeeldVan, WelkeGroepDeImportgroepIsStaatInDeMappen)
{
    Mappen mappen = MetWoorden("");
    mappen.DFIMPG = "Gr12-";
    EXPECT_TRUE(BeeldVan(mappen, "Gr12-").importgroep);
    EXPECT_FALSE(BeeldVan(mappen, "Gr05-").importgroep);
    mappen.DFIMPG = "";
    EXPECT_FALSE(BeeldVan(mappen, "Gr05-").importgroep);
}

/// Meant: with ODNBB28 the import button stays as the group before left it, and ODNBB4SP counts
/// alone where both stand. A word counts as part of a text too, and not in small letters.
TEST(BeeldVan, DeWoordenTonenOfVerbergenTweeKnoppen)
{
    struct Geval {
        const char* woorden;
        const char* groep;
        Zichtbaarheid importeren;
        Zichtbaarheid gatenlijst;
    };
    for (const Geval& geval :
         {Geval{"", "Gr05-", Tonen, Ongemoeid}, Geval{"ANDERS", "Gr01-", Verbergen, Ongemoeid},
          Geval{"ODNBB4SP", "Gr05-", Verbergen, Ongemoeid},
          Geval{"ODNBB4SP", "Gr01-", Verbergen, Ongemoeid},
          Geval{"ODNBB28", "Gr05-", Ongemoeid, Verbergen},
          Geval{"ODNBB28", "Gr01-", Ongemoeid, Verbergen},
          Geval{"ODNBB28,ODNBB4SP", "Gr05-", Verbergen, Ongemoeid},
          Geval{"xODNBB28y", "Gr01-", Ongemoeid, Verbergen},
          Geval{"odnbb28", "Gr01-", Verbergen, Ongemoeid},
          Geval{"odnbb4sp", "Gr05-", Tonen, Ongemoeid}}) {
        SCOPED_TRACE(std::string(geval.woorden) + " in " + geval.groep);
        const Groepsbeeld beeld = BeeldVan(MetWoorden(geval.woorden), geval.groep);
        EXPECT_EQ(geval.importeren, beeld.cmdHaalNBBnamen);
        EXPECT_EQ(geval.gatenlijst, beeld.cmdToonGatenlijst);
    }
}

// ---- Lines ------------------------------------------------------------------------------------

TEST(Regelgrenzen, LiggenOmDeVierenveertigTiendeVanafVijf)
{
    EXPECT_DOUBLE_EQ(5.0, BovenkantVan(1));
    EXPECT_DOUBLE_EQ(9.4, BovenkantVan(2));
    EXPECT_DOUBLE_EQ(5 + 6 * 4.4, BovenkantVan(7));
    EXPECT_DOUBLE_EQ(5 + 120 * 4.4, BovenkantVan(121));
}

// ---- Columns ----------------------------------------------------------------------------------

TEST(MeetCellen, NeemtPerKolomDeBreedsteVanDeGetoondeRijen)
{
    Spelertabel tabel;
    tabel.VoegToe(Rij("Jansen", "Breda"));
    tabel.VoegToe(Rij("Wit", "Oss"));
    tabel.VoegToe(Rij("een heel lange achternaam", "Den Haag"));
    const Kolommaten maten = MeetCellen(tabel, std::vector{1, 2}, Proefmeter());
    EXPECT_EQ(6000, maten[achternaam]); // "Jansen"; "Wit" is 3000 + 500 + 1000
    EXPECT_EQ(5000, maten[woonplaats]);
    EXPECT_EQ(0, maten[Index(Kolom::Telef)]);
    EXPECT_EQ(0, MeetCellen(tabel, {}, Proefmeter())[achternaam]);
}

TEST(MaakKolommen, VolgensTekstenIsDeBreedsteTekstPlusVierMarges)
{
    Kolommaten cellen{};
    Kolommaten headers{};
    cellen[0] = 12'345;
    cellen[1] = 20'000;
    headers.fill(90'000);
    const Kolomranden randen = MaakKolommen(cellen, headers, Breedteregel::VolgensTeksten);
    EXPECT_DOUBLE_EQ(0, randen[0]);
    EXPECT_NEAR(12.345 + 4 * rooster::Celmarge, randen[1], 1e-9);
    EXPECT_NEAR(20 + 4 * rooster::Celmarge, randen[2] - randen[1], 1e-9);
}

TEST(MaakKolommen, VolgensHeaderIsDeHeaderPlusTweeMarges)
{
    Kolommaten cellen{};
    Kolommaten headers{};
    cellen.fill(90'000);
    headers[0] = 12'345;
    headers[17] = 20'000;
    const Kolomranden randen = MaakKolommen(cellen, headers, Breedteregel::VolgensHeader);
    EXPECT_NEAR(12.345 + 2 * rooster::Celmarge, randen[1], 1e-9);
    EXPECT_NEAR(20 + 2 * rooster::Celmarge, randen[18] - randen[17], 1e-9);
}

TEST(MaakKolommen, NooitSmallerDanTien)
{
    Kolommaten cellen{};
    Kolommaten headers{};
    cellen[4] = 5'900;
    cellen[5] = 6'100;
    headers[4] = 7'900;
    headers[5] = 8'100;
    for (const auto regel : {Breedteregel::VolgensTeksten, Breedteregel::VolgensHeader}) {
        const Kolomranden randen = MaakKolommen(cellen, headers, regel);
        EXPECT_DOUBLE_EQ(40, randen[4]);
        EXPECT_DOUBLE_EQ(50, randen[5]) << "9,9 wordt 10";
        EXPECT_NEAR(60.1, randen[6], 1e-9) << "10,1 blijft 10,1";
    }
}

// ---- Fitting a text ---------------------------------------------------------------------------

namespace {

/// The rule as it is told: dots behind a text that is too wide, then, as long as it is too wide and
/// has at least four characters, its last four cut and the dots put back.
Tekst PasTekstStapVoorStap(Tekst tekst, double kolombreedte, const Tekstmeter& meter)
{
    const double ruimte = kolombreedte - 2 * rooster::Celmarge - 0.6;
    const auto teBreed = [&] { return static_cast<double>(meter.Breedte(tekst)) > ruimte * 1000; };
    if (!teBreed())
        return tekst;
    tekst += "...";
    while (tekst.size() >= 4 && teBreed()) {
        tekst.erase(tekst.size() - 4);
        tekst += "...";
    }
    return tekst;
}

} // namespace

TEST(PasTekst, WatPastBlijftHeel)
{
    // 10 - 2 margins - 0.6 leaves 7.4 mm.
    EXPECT_EQ("", PasTekst("", 10, Proefmeter()));
    EXPECT_EQ("Jan", PasTekst("Jan", 10, Proefmeter()));
    EXPECT_EQ("Jansens", PasTekst("Jansens", 10, Proefmeter()));
}

TEST(PasTekst, WatTeBreedIsWordtIngekortEnEindigtOpPuntjes)
{
    EXPECT_EQ("Janss...", PasTekst("Janssens", 10, Proefmeter()));
    EXPECT_EQ("Jansen...", PasTekst("Jansen van der Meer", 10.2, Proefmeter()));
    EXPECT_EQ("Jan...", PasTekst("JanWW", 10, Proefmeter()));
}

TEST(PasTekst, EenTekstDiePreciesZoBreedIsAlsDeRuimtePast)
{
    const Tekstmeter meter = Proefmeter();
    const double ruimte = 8; // mm
    const double breedte = ruimte + 2 * rooster::Celmarge + rooster::Speling;
    EXPECT_EQ("Jansen B", PasTekst("Jansen B", breedte + 1e-6, meter));
    EXPECT_EQ("Jansen...", PasTekst("Jansen B", breedte - 1e-3, meter));
}

TEST(PasTekst, NietsDanDePuntjesAlsErGeenLetterBijKan)
{
    EXPECT_EQ("...", PasTekst("WWWW", 5, Proefmeter()));
    EXPECT_EQ("...", PasTekst("W", 4, Proefmeter())) << "ook als de puntjes zelf niet passen";
}

TEST(PasTekst, IsGelijkAanHetStapVoorStapInkorten)
{
    std::mt19937 toeval(20260301);
    const auto tot = [&](unsigned grens) { return static_cast<unsigned>(toeval() % grens); };
    int ingekort = 0;
    for (int i = 0; i < 20'000; ++i) {
        Tekstmeter meter;
        for (auto& stap : meter.opschuiving)
            stap = static_cast<std::int32_t>(tot(20) == 0 ? 0 : 200 + tot(3000));
        Tekst tekst;
        for (unsigned lengte = tot(40); lengte > 0; --lengte)
            tekst += static_cast<char>(tot(4) == 0 ? '.' : tot(256));
        const double breedte = 10 + tot(40'000) / 1000.0 + 0.00037;
        const Tekst verwacht = PasTekstStapVoorStap(tekst, breedte, meter);
        ASSERT_EQ(verwacht, PasTekst(tekst, breedte, meter))
            << "tekst " << testing::PrintToString(tekst) << " in " << breedte;
        ingekort += verwacht != tekst;
    }
    EXPECT_GT(ingekort, 5'000);
    EXPECT_LT(ingekort, 19'000);
}

TEST(PasTekst, IsSnelOpEenHeelLangeTekst)
{
    const Tekst lang(64 * 1024, 'n');
    const std::clock_t begin = std::clock(); // of the processor: a machine may be busy
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(lang.substr(0, 11) + "...", PasTekst(lang, 15.7, Proefmeter()));
        // Wide enough for nearly all of it, so that nearly every character has to be looked at.
        ASSERT_EQ(lang.substr(0, 59'999) + "...", PasTekst(lang, 60'003.6, Proefmeter()));
    }
    // Measuring the whole text anew for every character would take minutes.
    EXPECT_LT((std::clock() - begin) / CLOCKS_PER_SEC, 5);
}
