#include "register/geschiedenis.h"

#include <random>
#include <set>

#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

const Mappen mappen = [] {
    Mappen uit = Proefmappen();
    uit.ZITMAP = "C:\\club\\Zittingen";
    uit.RVDMAP = "C:\\club";
    return uit;
}();
constexpr const char* geschiedenismap = "C:\\club\\Spelers\\Geschiedenis";
constexpr const char* lijst = "C:\\club\\Zittingen\\Maandag\\Spelers.txt";

struct GeschiedenisTest : testing::Test {
    GeschiedenisTest()
    {
        schijf.Zet(spelerbestand, vijfSpelers);
        schijf.Zet(lijst, "N01An Bos-100005\r\nN02los\nzonder eind");
        schijf.ZetMap("C:\\club\\Beheer");
        Lees(schijf, spelers);
        Start();
    }

    /// The program starts anew.
    void Start(const Tekst& computer = "PC van An")
    {
        geschiedenis.emplace(schijf);
        geschiedenis->Open(mappen, computer, "an");
    }

    void Bewaar(const Tekst& wat)
    {
        const Noteer noteer(*geschiedenis, wat);
        ASSERT_TRUE(SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen));
        Lees(schijf, spelers);
    }

    void Verwijder(const std::vector<int>& rijen, const Tekst& wat)
    {
        spelers.tabel.VerwijderRijen(rijen);
        Bewaar(wat);
    }

    /// Undoes or repeats what the program itself would.
    Menging Draai(Handelingsoort soort)
    {
        const auto handeling = geschiedenis->Laatste(soort);
        EXPECT_TRUE(handeling);
        if (!handeling)
            return {};
        Menging menging = DraaiSpelersTerug(spelers, handeling->wijzigingen.front(), soort);
        spelers.tabel = menging.tabel;
        spelers.HKEY = menging.HKEY;
        const Noteer noteer(*geschiedenis, "terug", soort, handeling->id);
        EXPECT_TRUE(SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen));
        noteer.Leg();
        Lees(schijf, spelers);
        return menging;
    }

    [[nodiscard]] Tekst LaatsteNaam(Handelingsoort soort) const
    {
        const auto handeling = geschiedenis->Laatste(soort);
        return handeling ? handeling->wat : "geen";
    }

    /// The one history file.
    [[nodiscard]] Tekst Tekstbestand()
    {
        const auto namen = schijf.Bestanden(geschiedenismap).value_or(std::vector<Tekst>());
        EXPECT_EQ(1U, namen.size());
        return namen.empty() ? "" : schijf.LeesBestand(Samen(geschiedenismap, namen[0])).value();
    }

    /// The text with "TIJD" where the time stood, and without the sums.
    static Tekst ZonderTijd(Tekst tekst)
    {
        for (auto plek = tekst.find("einde "); plek != Tekst::npos; plek = tekst.find("einde "))
            tekst.erase(plek + 5, tekst.find('\r', plek) - plek - 5);
        for (auto plek = tekst.find("tijd 2"); plek != Tekst::npos; plek = tekst.find("tijd 2"))
            tekst.replace(plek, 24, "TIJD");
        return tekst;
    }

    GeheugenSchijf schijf;
    Register spelers;
    std::optional<Geschiedenis> geschiedenis;
};

std::vector<Tekst> Rijen(const Spelertabel& tabel)
{
    std::vector<Tekst> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        uit.push_back(tabel.Inhoud(rij));
    return uit;
}

} // namespace

TEST(Regelverschil, NoemtWatGingEnKwamMetDeBurenErvan)
{
    const Tekst voor = "HKEY=3\r\n1,a\r\n2,b\r\n3,c\r\n4,d\r\n5,e\r\n";
    EXPECT_EQ("", Regelverschil(voor, voor, false));
    EXPECT_EQ(" 2,b\r\n-3,c\r\n+3,x\r\n 4,d\r\n",
              Regelverschil(voor, "HKEY=3\r\n1,a\r\n2,b\r\n3,x\r\n4,d\r\n5,e\r\n", false));
    // The numbers of the rows behind it are others then.
    EXPECT_EQ(" 1,a\r\n-2,b\r\n 3,c\r\n",
              Regelverschil(voor, "HKEY=3\r\n1,a\r\n2,c\r\n3,d\r\n4,e\r\n", false));
    EXPECT_EQ("-HKEY=3\r\n+HKEY=4\r\n 1,a\r\n 5,e\r\n+6,f\r\n",
              Regelverschil(voor, "HKEY=4\r\n1,a\r\n2,b\r\n3,c\r\n4,d\r\n5,e\r\n6,f\r\n", false));
    EXPECT_EQ("-a\r\n b\r\n+a\r\n", Regelverschil("a\r\nb\r\n", "b\r\na\r\n", true))
        << "verplaatst";
    EXPECT_EQ(" a\r\n-b\n\\\n+b\r\n", Regelverschil("a\r\nb", "a\r\nb\r\n", true));
    EXPECT_EQ("+a\n\\\n", Regelverschil("", "a", true));
}

TEST_F(GeschiedenisTest, StaatAlsTekstInEenBestandPerStart)
{
    spelers.tabel.ZetCel(2, Kolom::Voornaam, "Beatrix");
    Bewaar("Bea gewijzigd\r\nhandeling 9");
    Verwijder({1}, "An verwijderd");
    EXPECT_EQ("handeling 1\r\nTIJD\r\ncomputer PC van An\r\ngebruiker an\r\n"
              "wat Bea gewijzigd  handeling 9\r\nbestand SPEMAP\\RVDspelers.txt\r\n"
              " 1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
              "-2,100005,Gr01-,Bea,de,Cock,,,,,,,V,,,,A-lijn,\r\n"
              "+2,100005,Gr01-,Beatrix,de,Cock,,,,,,,V,,,,A-lijn,\r\n"
              " 3,100003,Gr02-,Cor,van der,Dam,,,,,,,M,,,overl,,\r\n"
              "einde\r\n"
              "handeling 2\r\nTIJD\r\ncomputer PC van An\r\ngebruiker an\r\nwat An verwijderd\r\n"
              "bestand SPEMAP\\RVDspelers.txt\r\n"
              " HKEY=100042\r\n"
              "-1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
              " 2,100005,Gr01-,Beatrix,de,Cock,,,,,,,V,,,,A-lijn,\r\n"
              "einde\r\n",
              ZonderTijd(Tekstbestand()));
    const auto namen = schijf.Bestanden(geschiedenismap).value();
    EXPECT_EQ(" PC_van_An.txt", namen[0].substr(17));
}

TEST_F(GeschiedenisTest, NietsDatVerandertIsGeenHandeling)
{
    Bewaar("niets");
    ASSERT_TRUE(VervangOngewijzigd(schijf, instellingenbestand, "OPTIND=4\r\nLOSTGR=1\r\n",
                                   schijf.Inhoud(instellingenbestand)));
    ASSERT_TRUE(SchrijfHeel(schijf, "C:\\club\\Zittingen\\lijst.pdf", "%PDF"));
    ASSERT_TRUE(SchrijfHeel(schijf, "C:\\club\\tussen.csv", "1,2", Houdbaarheid::Vluchtig));
    EXPECT_FALSE(schijf.Bestanden(geschiedenismap));
}

TEST_F(GeschiedenisTest, EenAnderBestandStaatErHeelInTotOpDeByte)
{
    const Tekst oud = schijf.Inhoud(lijst).value();
    const Tekst nieuw = "N01100001-100005\r\nN02los\nzonder eind";
    {
        const Noteer noteer(*geschiedenis, "Bezig");
        ASSERT_TRUE(VervangOngewijzigd(schijf, lijst, nieuw, oud));
        ASSERT_TRUE(VervangOngewijzigd(schijf, "C:\\club\\Zittingen\\Maandag\\Nieuw.txt", "a", {}));
        geschiedenis->Noem("An Bos gekoppeld in Maandag (1 zitting)");
        geschiedenis->VoorVervanging(lijst, std::nullopt);
    }
    const auto handeling = geschiedenis->Laatste(Handelingsoort::Ongedaan);
    ASSERT_TRUE(handeling);
    EXPECT_EQ("An Bos gekoppeld in Maandag (1 zitting)", handeling->wat);
    ASSERT_EQ(3U, handeling->wijzigingen.size());
    const Wijziging& eerste = handeling->wijzigingen[0];
    EXPECT_EQ("ZITMAP\\Maandag\\Spelers.txt", eerste.plaats);
    EXPECT_EQ(lijst, eerste.PadIn(mappen));
    EXPECT_EQ(oud, eerste.voor);
    EXPECT_EQ(nieuw, eerste.na);
    EXPECT_EQ(std::nullopt, handeling->wijzigingen[1].voor);
    EXPECT_EQ("a", handeling->wijzigingen[1].na);
    EXPECT_EQ(nieuw, handeling->wijzigingen[2].voor);
    EXPECT_EQ(std::nullopt, handeling->wijzigingen[2].na);
}

TEST_F(GeschiedenisTest, EenAfgescheurdEindTeltNietMee)
{
    Verwijder({2}, "een");
    Verwijder({2}, "twee");
    const Tekst heel = Tekstbestand();
    const auto eerste = heel.find("handeling 2");
    for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
        const auto handelingen = HandelingenUit(heel.substr(0, lengte), "x.txt");
        const std::size_t verwacht = lengte == heel.size() ? 2 : lengte >= eerste ? 1 : 0;
        ASSERT_EQ(verwacht, handelingen.size()) << heel.substr(0, lengte);
        if (!handelingen.empty()) {
            EXPECT_EQ("x.txt 1", handelingen[0].id);
        }
    }
}

/// A disk may have kept the end of what was written when the power failed, and not the middle.
TEST_F(GeschiedenisTest, WatNietKloptMetZijnSomTeltNietMee)
{
    Verwijder({2}, "een");
    Verwijder({2}, "twee");
    Tekst tekst = Tekstbestand();
    ASSERT_EQ(2U, HandelingenUit(tekst, "x.txt").size());
    const auto plek = tekst.find("An,,Bos");
    tekst.replace(plek, 2, 2, '\0');
    const auto handelingen = HandelingenUit(tekst, "x.txt");
    ASSERT_EQ(1U, handelingen.size());
    EXPECT_EQ("twee", handelingen[0].wat);
}

TEST_F(GeschiedenisTest, WieVerwijderdIsKomtTerugMetZijnSleutelOpZijnPlaats)
{
    const auto was = Rijen(spelers.tabel);
    for (const std::vector<int>& rijen :
         {std::vector{1}, {3}, {5}, {1, 2}, {2, 4}, {4, 5}, {1, 3, 5}, {2, 3, 4, 5}}) {
        Verwijder(rijen, "weg");
        ASSERT_EQ(was.size() - rijen.size(), Rijen(spelers.tabel).size());
        EXPECT_TRUE(Draai(Handelingsoort::Ongedaan).botsingen.empty());
        EXPECT_EQ(was, Rijen(spelers.tabel));
        EXPECT_EQ(vijfSpelers, schijf.Inhoud(spelerbestand));
    }
}

TEST_F(GeschiedenisTest, EenSleutelDieWasUitgegevenBlijftDat)
{
    ASSERT_TRUE(VoegSpelerToe(spelers, "Gr01-", {}));
    spelers.tabel.ZetCel(6, Kolom::Achternaam, "Nieuw");
    Bewaar("Nieuw toegevoegd");
    Draai(Handelingsoort::Ongedaan);
    EXPECT_EQ(5, spelers.tabel.Rijen());
    EXPECT_EQ(100043, spelers.HKEY);
    Draai(Handelingsoort::Opnieuw);
    EXPECT_EQ("100043", spelers.tabel.Cel(6, Kolom::Key));
    EXPECT_EQ("Nieuw", spelers.tabel.Cel(6, Kolom::Achternaam));
}

TEST_F(GeschiedenisTest, WieInParenStaatGaatNietWegDoorOngedaanMaken)
{
    for (const char* naam : {"Nieuw", "Nieuwer"}) {
        ASSERT_TRUE(VoegSpelerToe(spelers, "Gr01-", {}));
        spelers.tabel.ZetCel(spelers.tabel.Rijen(), Kolom::Achternaam, naam);
    }
    Bewaar("Twee toegevoegd");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr01-.txt", "100001-100043#");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\oud.bak", "100001-100044#");
    const auto handeling = geschiedenis->Laatste(Handelingsoort::Ongedaan).value();
    const auto draai = [&](const Paarplaatsen& blijven) {
        return DraaiSpelersTerug(spelers, handeling.wijzigingen[0], Handelingsoort::Ongedaan,
                                 blijven)
            .tabel;
    };
    EXPECT_EQ(5, draai({}).Rijen());
    const auto inParen = ZonderSpelerInParen(schijf, mappen, spelers.tabel, draai({}));
    EXPECT_EQ((Paarplaatsen{{"100043", "Gr01-.txt"}}), inParen);
    const Spelertabel uit = draai(inParen);
    EXPECT_EQ(6, uit.Rijen());
    EXPECT_EQ(spelers.tabel.Inhoud(6), uit.Inhoud(6));
}

TEST_F(GeschiedenisTest, WatSindsdienIsGewijzigdBlijftEnWordtGenoemd)
{
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Anna");
    spelers.tabel.ZetCel(2, Kolom::Voornaam, "Beatrix");
    Bewaar("Twee gewijzigd");
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Annie"); // the same field
    spelers.tabel.ZetCel(2, Kolom::Telef, "06-2");     // another one
    spelers.tabel.ZetCel(4, Kolom::Telef, "06-4");
    const auto handeling = geschiedenis->Laatste(Handelingsoort::Ongedaan);
    ASSERT_TRUE(handeling);
    const Menging menging =
        DraaiSpelersTerug(spelers, handeling->wijzigingen[0], Handelingsoort::Ongedaan);
    ASSERT_EQ(1U, menging.botsingen.size());
    EXPECT_EQ("100001", menging.botsingen[0].key);
    EXPECT_EQ("An", menging.botsingen[0].links.value()[Index(Kolom::Voornaam)]);
    EXPECT_EQ("Annie", menging.tabel.Cel(1, Kolom::Voornaam));
    EXPECT_EQ("Bea", menging.tabel.Cel(2, Kolom::Voornaam));
    EXPECT_EQ("06-2", menging.tabel.Cel(2, Kolom::Telef));
    EXPECT_EQ("06-4", menging.tabel.Cel(4, Kolom::Telef));
}

TEST_F(GeschiedenisTest, OngedaanEnOpnieuwGaanAchterElkaarTerugEnVooruitOokNaEenHerstart)
{
    for (const char* naam : {"een", "twee", "drie"})
        Verwijder({1}, naam);
    Start("andere");
    EXPECT_EQ("geen", LaatsteNaam(Handelingsoort::Ongedaan));
    Start();
    EXPECT_EQ("geen", LaatsteNaam(Handelingsoort::Opnieuw));
    EXPECT_EQ("drie", LaatsteNaam(Handelingsoort::Ongedaan));
    Draai(Handelingsoort::Ongedaan);
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Ongedaan));
    EXPECT_EQ("drie", LaatsteNaam(Handelingsoort::Opnieuw));
    Draai(Handelingsoort::Ongedaan);
    Start();
    EXPECT_EQ("een", LaatsteNaam(Handelingsoort::Ongedaan));
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Opnieuw));
    Draai(Handelingsoort::Opnieuw);
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Ongedaan));
    EXPECT_EQ("drie", LaatsteNaam(Handelingsoort::Opnieuw));
    Verwijder({1}, "vier");
    EXPECT_EQ("geen", LaatsteNaam(Handelingsoort::Opnieuw));
    EXPECT_EQ("vier", LaatsteNaam(Handelingsoort::Ongedaan));
    Draai(Handelingsoort::Ongedaan);
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Ongedaan));
}

/// Also when that stands in the file of a program that was started before the entry was made.
TEST_F(GeschiedenisTest, WatEldersOngedaanIsWordtHierNietNogEensOngedaan)
{
    for (const char* naam : {"een", "twee"})
        Verwijder({1}, naam);
    const Tekst twee = geschiedenis->Laatste(Handelingsoort::Ongedaan).value().id;
    Tekst elders;
    const auto draai = [&](const Tekst& soort) {
        elders += "handeling 1\r\ntijd " + Tijdtekst("yyyy-MM-dd HH:mm:ss", Nu() + 5'000'000'000) +
                  "\r\ncomputer PC van Bea\r\ngebruiker bea\r\n" + soort + " " + twee + "\r\n";
        schijf.Zet(Samen(geschiedenismap, "2020-01-01 120000 PC_van_Bea.txt"), elders);
    };
    draai("ongedaan");
    EXPECT_EQ("een", LaatsteNaam(Handelingsoort::Ongedaan));
    EXPECT_EQ("geen", LaatsteNaam(Handelingsoort::Opnieuw)) << "that is for who undid it";
    draai("opnieuw");
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Ongedaan));
    elders.clear();
    draai("niets");
    Draai(Handelingsoort::Ongedaan);
    EXPECT_EQ("twee", LaatsteNaam(Handelingsoort::Opnieuw));
    draai("opnieuw");
    EXPECT_EQ("geen", LaatsteNaam(Handelingsoort::Opnieuw));
}

TEST_F(GeschiedenisTest, WatMislukteHeetBijHetVolgende)
{
    {
        const Noteer noteer(*geschiedenis, "An gewijzigd");
        geschiedenis->StelUit();
    }
    Verwijder({2}, "Bea verwijderd");
    EXPECT_EQ("An gewijzigd; Bea verwijderd", LaatsteNaam(Handelingsoort::Ongedaan));
    Verwijder({2}, "Cor verwijderd");
    EXPECT_EQ("Cor verwijderd", LaatsteNaam(Handelingsoort::Ongedaan));
}

TEST_F(GeschiedenisTest, WatNietGeschrevenKanWordenHoudtHetOpslaanNietTegen)
{
    int stappen = 0;
    int gemeld = 0;
    for (int stap = 1; stap <= 40; ++stap) {
        GeheugenSchijf vers;
        FalendeSchijf falend(vers);
        vers.Zet(spelerbestand, vijfSpelers);
        geschiedenis.emplace(falend);
        geschiedenis->Open(mappen, "PC", "an");
        Lees(falend, spelers);
        spelers.tabel.ZetCel(1, Kolom::Voornaam, "Stap");
        int fouten = 0;
        falend.Vooraf([&](const Pad& pad) {
            return pad.find("Geschiedenis") == Pad::npos || ++fouten != stap;
        });
        {
            const Noteer noteer(*geschiedenis, "wat");
            ASSERT_TRUE(SchrijfSpelers(falend, mappen, spelers, Overschrijven::AlleenEigen));
        }
        falend.Vooraf({});
        EXPECT_EQ(SpelersTekst(spelers), vers.Inhoud(spelerbestand));
        geschiedenis->NeemFout() ? ++gemeld : 0;
        geschiedenis.reset();
        if (fouten < stap)
            break;
        stappen = stap;
    }
    EXPECT_GE(gemeld, 5);
    EXPECT_GE(stappen, 5);
    EXPECT_LT(stappen, 40);
}

TEST_F(GeschiedenisTest, NaEenFoutGaatHetVerderInEenAnderBestand)
{
    FalendeSchijf falend(schijf, FalendeSchijf::Telt::AlleenSchrijven);
    geschiedenis.emplace(falend);
    geschiedenis->Open(mappen, "PC van An", "an");
    Lees(falend, spelers);
    for (const bool faalt : {false, true, false, false}) {
        falend.Vooraf(
            [&](const Pad& pad) { return !faalt || pad.find("Geschiedenis") == Pad::npos; });
        spelers.tabel.VerwijderRijen(std::vector{1});
        const Noteer noteer(*geschiedenis, faalt ? "stuk" : "goed");
        ASSERT_TRUE(SchrijfSpelers(falend, mappen, spelers, Overschrijven::AlleenEigen));
        EXPECT_EQ(faalt, geschiedenis->NeemFout().has_value());
    }
    std::set<Tekst> ids;
    LoopTerug(schijf, mappen, [&](Handeling& handeling) {
        EXPECT_EQ("goed", handeling.wat);
        EXPECT_TRUE(ids.insert(handeling.id).second) << handeling.id;
        return true;
    });
    EXPECT_EQ(3U, ids.size());
}

TEST_F(GeschiedenisTest, WatOudIsOfTeGrootGaatWegEnVreemdeBestandenBlijven)
{
    const auto pad = [](const Tekst& naam) { return Samen(geschiedenismap, naam); };
    schijf.Zet(pad("2020-01-01 120000 PC.txt"), "oud");
    schijf.Zet(pad(Tijdtekst("yyyy") + "-01-01 000000 A.txt"), Tekst(std::size_t{150} << 20U, 'x'));
    schijf.Zet(pad(Tijdtekst("yyyy") + "-01-01 000001 B.txt"), Tekst(std::size_t{100} << 20U, 'x'));
    schijf.Zet(pad("1 aantekening.doc"), "van mij");
    schijf.Zet(pad("aantekening.txt"), "van mij");
    Verwijder({1}, "weg");
    auto namen = schijf.Bestanden(geschiedenismap).value();
    std::sort(namen.begin(), namen.end());
    ASSERT_EQ(4U, namen.size());
    EXPECT_EQ("1 aantekening.doc", namen[0]);
    EXPECT_EQ(Tijdtekst("yyyy") + "-01-01 000001 B.txt", namen[1]);
    EXPECT_EQ("aantekening.txt", namen[3]);
}

TEST_F(GeschiedenisTest, EenAnderBestandKomtTotOpDeByteTerugAlsNiemandEraanKwam)
{
    const Tekst oud = schijf.Inhoud(lijst).value();
    const Pad nieuw = "C:\\club\\Zittingen\\Maandag\\Nieuw.txt";
    {
        const Noteer noteer(*geschiedenis, "gekoppeld");
        ASSERT_TRUE(VervangOngewijzigd(schijf, lijst, "anders", oud));
        ASSERT_TRUE(VervangOngewijzigd(schijf, nieuw, "erbij", {}));
    }
    const auto handeling = geschiedenis->Laatste(Handelingsoort::Ongedaan).value();
    const auto draai = [&](Handelingsoort soort) {
        std::vector<Tekst> rest;
        for (const Wijziging& wijziging : handeling.wijzigingen) {
            const auto gedaan = DraaiBestandTerug(schijf, mappen, wijziging, soort);
            EXPECT_TRUE(gedaan);
            if (gedaan)
                rest.insert(rest.end(), gedaan->begin(), gedaan->end());
        }
        return rest;
    };
    EXPECT_EQ(std::vector<Tekst>(), draai(Handelingsoort::Ongedaan));
    EXPECT_EQ(oud, schijf.Inhoud(lijst));
    EXPECT_EQ(std::nullopt, schijf.Inhoud(nieuw));
    EXPECT_EQ(std::vector<Tekst>(), draai(Handelingsoort::Ongedaan)) << "het is al zo";
    EXPECT_EQ(std::vector<Tekst>(), draai(Handelingsoort::Opnieuw));
    EXPECT_EQ("anders", schijf.Inhoud(lijst));
    EXPECT_EQ("erbij", schijf.Inhoud(nieuw));
    schijf.Zet(nieuw, "van een ander");
    EXPECT_EQ(std::vector<Tekst>{"Maandag\\Nieuw.txt"}, draai(Handelingsoort::Ongedaan));
    EXPECT_EQ(oud, schijf.Inhoud(lijst));
    EXPECT_EQ("van een ander", schijf.Inhoud(nieuw));
    schijf.ZetAlleenLezen("C:\\club\\Zittingen\\Maandag");
    EXPECT_FALSE(
        DraaiBestandTerug(schijf, mappen, handeling.wijzigingen[0], Handelingsoort::Opnieuw));
    EXPECT_EQ(oud, schijf.Inhoud(lijst));
}

TEST_F(GeschiedenisTest, VanWatVeranderdeStaanOudEnNieuwNaastElkaar)
{
    spelers.tabel.ZetCel(2, Kolom::Voornaam, "Beatrix");
    spelers.tabel.VerwijderRijen(std::vector{4});
    Bewaar("van alles");
    const auto handeling = geschiedenis->Laatste(Handelingsoort::Ongedaan).value();
    EXPECT_EQ(handeling.wijzigingen[0].plaats,
              LeesHandeling(schijf, mappen, handeling.id).value().wijzigingen[0].plaats);
    const auto verschillen = SpelersIn(handeling.wijzigingen[0]);
    ASSERT_EQ(2U, verschillen.size());
    EXPECT_EQ("Dirk Eik (100004)", Aanduiding(verschillen[0]));
    EXPECT_FALSE(verschillen[0].rechts);
    EXPECT_EQ("Bea", verschillen[1].links.value()[Index(Kolom::Voornaam)]);
    EXPECT_EQ("Beatrix", verschillen[1].rechts.value()[Index(Kolom::Voornaam)]);
}

/// Whatever a command did to the register, undone it is what it was, and done again what it became.
TEST(Geschiedenis, WillekeurigeWijzigingenGaanHeenEnTerug)
{
    std::mt19937 toeval(7);
    const auto keuze = [&](int aantal) {
        return static_cast<int>(toeval() % static_cast<unsigned>(aantal));
    };
    for (int ronde = 0; ronde < 3000; ++ronde) {
        Register voor;
        voor.HKEY = Sleutelbasis;
        for (int aantal = 1 + keuze(8); aantal > 0; --aantal) {
            Rijvelden velden;
            velden[Index(Kolom::Achternaam)] = Tekst(1, static_cast<char>('A' + keuze(4)));
            ASSERT_TRUE(VoegSpelerToe(voor, "Gr01-", velden));
        }
        Register na = voor;
        for (int aantal = keuze(5); aantal > 0; --aantal) {
            const int rij = 1 + keuze(std::max(1, na.tabel.Rijen()));
            if (na.tabel.Rijen() > 1 && keuze(2) == 0)
                na.tabel.VerwijderRijen(std::vector{rij});
            else if (keuze(2) == 0)
                na.tabel.ZetCel(rij, Kolom::Telef, std::to_string(keuze(3)));
            else {
                Rijvelden velden;
                velden[Index(Kolom::Achternaam)] = "N";
                ASSERT_TRUE(VoegSpelerToe(na, "Gr02-", velden));
            }
        }
        const Tekst verschil = Regelverschil(SpelersTekst(voor), SpelersTekst(na), false);
        const Tekst bestand =
            "handeling 1\r\nbestand SPEMAP\\RVDspelers.txt\r\n" + verschil + "einde\r\n";
        const auto handelingen = HandelingenUit(bestand, "x");
        ASSERT_EQ(1U, handelingen.size());
        const Wijziging& wijziging = handelingen[0].wijzigingen.at(0);
        ASSERT_EQ(Rijen(voor.tabel),
                  Rijen(DraaiSpelersTerug(na, wijziging, Handelingsoort::Ongedaan).tabel))
            << verschil;
        ASSERT_EQ(Rijen(na.tabel),
                  Rijen(DraaiSpelersTerug(voor, wijziging, Handelingsoort::Opnieuw).tabel))
            << verschil;
    }
}
