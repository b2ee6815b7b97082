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

constexpr std::optional<bool> Ongemoeid;
constexpr std::optional<bool> Tonen = true;
constexpr std::optional<bool> Verbergen = false;

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
        std::optional<bool> importeren;
        bool verbergGatenlijst;
    };
    for (const Geval& geval :
         {Geval{"", "Gr05-", Tonen, false}, Geval{"ANDERS", "Gr01-", Verbergen, false},
          Geval{"ODNBB4SP", "Gr05-", Verbergen, false},
          Geval{"ODNBB4SP", "Gr01-", Verbergen, false}, Geval{"ODNBB28", "Gr05-", Ongemoeid, true},
          Geval{"ODNBB28", "Gr01-", Ongemoeid, true},
          Geval{"ODNBB28,ODNBB4SP", "Gr05-", Verbergen, false},
          Geval{"xODNBB28y", "Gr01-", Ongemoeid, true}, Geval{"odnbb28", "Gr01-", Verbergen, false},
          Geval{"odnbb4sp", "Gr05-", Tonen, false}}) {
        SCOPED_TRACE(std::string(geval.woorden) + " in " + geval.groep);
        const Groepsbeeld beeld = BeeldVan(MetWoorden(geval.woorden), geval.groep);
        EXPECT_EQ(geval.importeren, beeld.cmdHaalNBBnamen);
        EXPECT_EQ(geval.verbergGatenlijst, beeld.verbergGatenlijst);
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

TEST(MaakKolommen, TekstOfHeaderMetZijnMargesMaarNooitSmallerDanTien)
{
    Kolommaten andere;
    andere.fill(90'000);
    for (const auto& [regel, marges] :
         {std::pair(Breedteregel::VolgensTeksten, 4), {Breedteregel::VolgensHeader, 2}}) {
        Kolommaten maten{};
        maten[0] = 12'345;
        maten[4] = 9'900 - marges * 1000;
        maten[17] = 10'100 - marges * 1000;
        const Kolomranden randen = regel == Breedteregel::VolgensTeksten
                                       ? MaakKolommen(maten, andere, regel)
                                       : MaakKolommen(andere, maten, regel);
        EXPECT_DOUBLE_EQ(0, randen[0]);
        EXPECT_NEAR(12.345 + marges * rooster::Celmarge, randen[1], 1e-9);
        EXPECT_NEAR(10, randen[5] - randen[4], 1e-9) << "9,9 wordt 10";
        EXPECT_NEAR(10.1, randen[18] - randen[17], 1e-9) << "10,1 blijft 10,1";
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

TEST(PasTekst, WatTeBreedIsEindigtOpPuntjes)
{
    struct Geval {
        const char* tekst;
        double kolombreedte; // of which 2.6 mm stay free
        const char* moet;
    };
    for (const Geval& geval :
         {Geval{"", 10, ""}, Geval{"Jan", 10, "Jan"}, Geval{"Jansens", 10, "Jansens"},
          Geval{"Janssens", 10, "Janss..."}, Geval{"Jansen van der Meer", 10.2, "Jansen..."},
          Geval{"JanWW", 10, "Jan..."},
          // as wide as the room, to a hair
          Geval{"Jansen B", 10.6 + 1e-6, "Jansen B"}, Geval{"Jansen B", 10.6 - 1e-3, "Jansen..."},
          // also where the dots themselves do not fit
          Geval{"WWWW", 5, "..."}, Geval{"W", 4, "..."}})
        EXPECT_EQ(geval.moet, PasTekst(geval.tekst, geval.kolombreedte, Proefmeter()))
            << geval.tekst << " in " << geval.kolombreedte;
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

// ---- What the user chose of the columns -------------------------------------------------------

namespace {

Kolomkeuzes AlleVerborgenBehalve(std::initializer_list<Kolom> getoond)
{
    Kolomkeuzes keuzes;
    keuzes.fill({.breedte = 0, .verborgen = true});
    for (const Kolom kolom : getoond)
        keuzes[Index(kolom)].verborgen = false;
    return keuzes;
}

/// Millimetres of the texts in a column that would be cut off.
double Weg(const std::vector<double>& teksten, double breedte)
{
    double weg = 0;
    for (const double tekst : teksten)
        weg += std::max(0.0, tekst + 2.601 - breedte);
    return weg;
}

} // namespace

TEST(MetKeuzes, EenEigenBreedteGaatVoorEnEenVerborgenKolomHeeftGeen)
{
    Kolomranden gesteld{};
    for (std::size_t i = 1; i < gesteld.size(); ++i)
        gesteld[i] = 10.0 * static_cast<double>(i);
    EXPECT_EQ(gesteld, MetKeuzes(gesteld, {}));
    Kolomkeuzes keuzes{};
    keuzes[1].breedte = 25;
    keuzes[2] = {.breedte = 30, .verborgen = true};
    const Kolomranden randen = MetKeuzes(gesteld, keuzes);
    EXPECT_DOUBLE_EQ(10, randen[1]);
    EXPECT_DOUBLE_EQ(35, randen[2]);
    EXPECT_DOUBLE_EQ(35, randen[3]);
    EXPECT_DOUBLE_EQ(45, randen[4]);
}

TEST(PassendeBreedte, DeTekstBlijftErHeelIn)
{
    for (const Tekst& tekst : {Tekst("Jansen"), Tekst("WiWiWi"), Tekst(300, 'i')})
        EXPECT_EQ(tekst,
                  PasTekst(tekst, PassendeBreedte(Proefmeter().Breedte(tekst)), Proefmeter()));
    EXPECT_DOUBLE_EQ(4, PassendeBreedte(0));
}

TEST(VerdeelRuimte, IsErGenoegDanBlijftAllesHeelEnDeeltElkeKolomInDeRest)
{
    Spelertabel tabel;
    tabel.VoegToe(Rij("Jansen", "Breda"));
    const Kolomkeuzes uit =
        VerdeelRuimte(40, tabel, std::vector{1}, Kolomnamen,
                      AlleVerborgenBehalve({Kolom::Achternaam, Kolom::Plaats}), Proefmeter());
    // "Achternaam" asks 12.6 and "Plaats" 8.6 mm.
    EXPECT_NEAR(12.6 + (40 - 21.2) / 2, uit[achternaam].breedte, 0.01);
    EXPECT_NEAR(8.6 + (40 - 21.2) / 2, uit[woonplaats].breedte, 0.01);
    EXPECT_DOUBLE_EQ(0, uit[0].breedte);
    EXPECT_TRUE(uit[0].verborgen);
}

TEST(VerdeelRuimte, EenLangeTekstKrijgtMinderDanVeleKorte)
{
    Spelertabel tabel;
    for (int i = 0; i < 5; ++i)
        tabel.VoegToe(Rij("Horsting", i == 0 ? "Hoogmade-Koudekerk" : "Oss"));
    const Kolomkeuzes uit =
        VerdeelRuimte(24, tabel, std::vector{1, 2, 3, 4, 5}, Kolomnamen,
                      AlleVerborgenBehalve({Kolom::Achternaam, Kolom::Plaats}), Proefmeter());
    EXPECT_GE(uit[achternaam].breedte, 10.6);
    EXPECT_LT(uit[woonplaats].breedte, 20.6);
    EXPECT_NEAR(24, uit[achternaam].breedte + uit[woonplaats].breedte, 1e-9);
}

/// Against every way to share the room in steps of a tenth.
TEST(VerdeelRuimte, NergensGaatMinderAf)
{
    std::mt19937 toeval(20261122);
    const auto tot = [&](unsigned grens) { return static_cast<unsigned>(toeval() % grens); };
    for (int keer = 0; keer < 200; ++keer) {
        Spelertabel tabel;
        std::vector<int> rijen;
        std::vector<double> namen{10};
        std::vector<double> plaatsen{6};
        for (unsigned i = 1 + tot(6); i > 0; --i) {
            namen.push_back(tot(30));
            plaatsen.push_back(tot(30));
            tabel.VoegToe(Rij(Tekst(static_cast<std::size_t>(namen.back()), 'a'),
                              Tekst(static_cast<std::size_t>(plaatsen.back()), 'a')));
            rijen.push_back(tabel.Rijen());
        }
        const double ruimte = 8 + tot(60);
        const Kolomkeuzes uit =
            VerdeelRuimte(ruimte, tabel, rijen, Kolomnamen,
                          AlleVerborgenBehalve({Kolom::Achternaam, Kolom::Plaats}), Proefmeter());
        const double weg =
            Weg(namen, uit[achternaam].breedte) + Weg(plaatsen, uit[woonplaats].breedte);
        for (double links = 4; links <= ruimte - 4; links += 0.1)
            ASSERT_LE(weg, Weg(namen, links) + Weg(plaatsen, ruimte - links) + 1e-6)
                << ruimte << " bij " << links;
    }
}

TEST(VerdeelRuimte, ZonderRuimteHoudtElkeKolomZijnMinste)
{
    Spelertabel tabel;
    tabel.VoegToe(Rij("Jansen", "Breda"));
    for (const auto& [breedte, verborgen] :
         VerdeelRuimte(3, tabel, std::vector{1}, Kolomnamen, {}, Proefmeter()))
        EXPECT_DOUBLE_EQ(4, breedte);
}

// ---- The order of the lines -------------------------------------------------------------------

TEST(Gesorteerd, GetallenNaarWaardeEnTekstenNaarDeTekstvolgorde)
{
    Spelertabel tabel;
    const auto voegToe = [&](const Tekst& key, const Tekst& naam, const Tekst& bondsnummer) {
        Rijvelden velden = Rij(naam);
        velden[Index(Kolom::Nr)] = std::to_string(12 - tabel.Rijen());
        velden[Index(Kolom::Key)] = key;
        velden[Index(Kolom::NBBnr)] = bondsnummer;
        tabel.VoegToe(velden);
    };
    voegToe("100020", "de Wit", "1000");
    voegToe("100003", "\xC9lan", "999");
    voegToe("100100", "elan", "");
    voegToe("100004", "Aa", "12x");
    const Weergave rijen{1, 2, 3, 4};
    EXPECT_EQ((Weergave{4, 3, 2, 1}), Gesorteerd(tabel, rijen, Kolom::Nr));
    EXPECT_EQ((Weergave{2, 4, 1, 3}), Gesorteerd(tabel, rijen, Kolom::Key));
    EXPECT_EQ((Weergave{3, 2, 1, 4}), Gesorteerd(tabel, rijen, Kolom::NBBnr));
    EXPECT_EQ((Weergave{4, 1, 3, 2}), Gesorteerd(tabel, rijen, Kolom::Achternaam));
    EXPECT_EQ(rijen, Gesorteerd(tabel, rijen, Kolom::Plaats)) << "wat gelijk is, blijft staan";
    EXPECT_EQ((Weergave{4, 2}), Gesorteerd(tabel, {4, 2}, Kolom::Plaats));
}

TEST(Kopieertekst, IsEenRegelPerSpelerMetTabsTussenWatGetoondWordt)
{
    Spelertabel tabel;
    tabel.VoegToe(Rij("Jansen", "Den\tHaag"));
    tabel.VoegToe(Rij("Wit", "Oss"));
    const Kolomkeuzes keuzes =
        AlleVerborgenBehalve({Kolom::Achternaam, Kolom::Plaats, Kolom::NBBnr});
    Namenrij namen = Kolomnamen;
    EXPECT_EQ("Jansen\tDen Haag\t\nWit\tOss\t",
              Kopieertekst(tabel, std::vector{1, 2}, namen, keuzes));
    namen[17] = "";
    EXPECT_EQ("Wit\tOss\nJansen\tDen Haag", Kopieertekst(tabel, std::vector{2, 1}, namen, keuzes));
    EXPECT_EQ("", Kopieertekst(tabel, {}, namen, keuzes));
}

TEST(SpelerVoluit, ZegtNaamTelefoonMailEnAdres)
{
    Spelertabel tabel;
    Rijvelden velden = Rij("Horst", "Breda");
    velden[Index(Kolom::Voornaam)] = "Willem";
    velden[Index(Kolom::Tusv)] = "van der";
    tabel.VoegToe(velden);
    EXPECT_EQ("Willem van der Horst, Breda", SpelerVoluit(tabel, 1));
    velden[Index(Kolom::Telef)] = "06-1";
    velden[Index(Kolom::Email)] = "w@x.nl";
    velden[Index(Kolom::Adres)] = "Dam 1";
    velden[Index(Kolom::Postc)] = "1234 AB";
    tabel.VoegToe(velden);
    EXPECT_EQ("Willem van der Horst, 06-1, w@x.nl, Dam 1, 1234 AB  Breda", SpelerVoluit(tabel, 2));
}

TEST(WaaromNiet, NoemtWatErHetEerstAanOntbreekt)
{
    const Eisen regel{.wijzigt = true, .regels = true, .regel = true};
    const Opdrachtstand gewoon{.regels = 3, .gekozen = 1, .importcode = "Gr05-"};
    EXPECT_EQ("", WaaromNiet(regel, gewoon));
    EXPECT_EQ("", WaaromNiet({}, {.alleenKijken = true}));
    Opdrachtstand stand = gewoon;
    stand.gekozen = 0;
    EXPECT_EQ("Kies eerst een regel", WaaromNiet(regel, stand));
    stand.regels = 0;
    EXPECT_EQ("Deze groep heeft geen spelers", WaaromNiet(regel, stand));
    stand.knopVerborgen = true;
    EXPECT_EQ("Uitgezet in 'Mappen.ini'", WaaromNiet(regel, stand));
    EXPECT_EQ("Alleen in de importgroep Gr05-", WaaromNiet({.importgroep = true}, stand));
    stand.importgroep = true;
    EXPECT_EQ("Uitgezet in 'Mappen.ini'", WaaromNiet({.importgroep = true}, stand));
    stand.alleenKijken = true;
    EXPECT_EQ("U kijkt alleen", WaaromNiet(regel, stand));
}
