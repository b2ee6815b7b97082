#include "register/spelerbestand.h"

#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

const Tekst an = "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";

/// Columns 4 to 18 filled with their numbers, the first three with what must not be used.
Rijvelden Ingave()
{
    Rijvelden velden{"nr", "key", "Gr49-Vreemd"};
    for (std::size_t i = 3; i < velden.size(); ++i)
        velden[i] = "v" + std::to_string(i + 1);
    return velden;
}

/// The register of five players, read from the disk.
class Spelersproef : public testing::Test {
  protected:
    /// What the file holds then.
    Tekst BewaarEnLees()
    {
        EXPECT_TRUE(Bewaar(schijf_, spelers_));
        EXPECT_FALSE(Lees(schijf_, spelers_).fout);
        return schijf_.Inhoud(spelerbestand).value_or("weg");
    }

    GeheugenSchijf schijf_;
    Register spelers_ = Gelezen(schijf_, vijfSpelers);
};

using LeesSpelersTest = Spelersproef;
using SchrijfSpelersTest = Spelersproef;
using VoegSpelerToeTest = Spelersproef;
using WijzigSpelerTest = Spelersproef;

} // namespace

TEST(MaakSpelerbestand, MapEnBestandWordenGemaakt)
{
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\club");
    Register spelers;
    ASSERT_TRUE(MaakSpelerbestand(schijf, Proefmappen(), spelers).gemaakt);
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
    EXPECT_FALSE(Lees(schijf, spelers).fout);
    EXPECT_EQ(spelers.tabel.Rijen(), 0);
}

TEST(MaakSpelerbestand, TerugzettenZonderHetBlancoBegin)
{
    const Tekst speler = ",100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";
    const std::vector<std::pair<Tekst, Tekst>> gevallen{
        {"\r\n" + vijfSpelers, vijfSpelers},
        {"  \n \r\r\n" + vijfSpelers, vijfSpelers},
        {" ,\r\n,," + vijfSpelers, vijfSpelers},
        // Without a number in its first field the line would have a field too few.
        {speler, "1" + speler},
        {"\r\n  " + speler + "\r\n" + vijfSpelers, "1" + speler + "\r\n" + vijfSpelers}};
    for (const auto& [oud, terug] : gevallen) {
        GeheugenSchijf schijf;
        schijf.Zet(spelerbestand, oud);
        Register spelers;
        const Aanmaak aanmaak = MaakSpelerbestand(schijf, Proefmappen(), spelers);
        EXPECT_EQ(schijf.Inhoud(aanmaak.kopie), oud);
        ASSERT_TRUE(ZetTerug(schijf, spelersmap, spelerbestand, aanmaak));
        EXPECT_EQ(schijf.Inhoud(spelerbestand), terug);
        EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{oud});
        const auto verslag = Lees(schijf, spelers);
        EXPECT_FALSE(verslag.fout);
        EXPECT_GT(spelers.tabel.Rijen(), 0);
        EXPECT_FALSE(MaakSpelerbestand(schijf, Proefmappen(), spelers).inhoud.size());
    }
}

TEST(MaakSpelerbestand, TerugzettenOverWatEenAnderIntussenSchreefGeeftDaarEerstEenKopieVan)
{
    GeheugenSchijf schijf;
    schijf.Zet(spelerbestand, "\r\n" + vijfSpelers);
    Register spelers;
    const Aanmaak aanmaak = MaakSpelerbestand(schijf, Proefmappen(), spelers);
    schijf.Zet(spelerbestand, "van een ander");
    ASSERT_TRUE(ZetTerug(schijf, spelersmap, spelerbestand, aanmaak));
    EXPECT_EQ(schijf.Inhoud(spelerbestand), vijfSpelers);
    const auto kopieen = Kopieen(schijf);
    EXPECT_EQ(std::count(kopieen.begin(), kopieen.end(), "van een ander"), 1);
}

TEST(MaakSpelerbestand, OnleesbaarBlijftStaan)
{
    GeheugenSchijf binnen;
    binnen.Zet(spelerbestand, vijfSpelers);
    FalendeSchijf schijf(binnen);
    schijf.FaalBij(2); // after the folder, the reading
    Register spelers;
    EXPECT_EQ(SoortVan(MaakSpelerbestand(schijf, Proefmappen(), spelers).gemaakt),
              Foutsoort::Geweigerd);
    EXPECT_EQ(binnen.Inhoud(spelerbestand), vijfSpelers);
}

TEST_F(LeesSpelersTest, VijfSpelers)
{
    EXPECT_EQ(spelers_.tabel.Rijen(), 5);
    EXPECT_EQ(spelers_.HKEY, 100042);
    EXPECT_EQ(spelers_.gelezen, schijf_.Inhoud(spelerbestand));
    EXPECT_FALSE(spelers_.kopieNodig);
    EXPECT_EQ(SpelersTekst(spelers_), vijfSpelers);
}

TEST_F(LeesSpelersTest, ZonderSleutelregelBlijftDeSleutel)
{
    spelers_ = Gelezen(schijf_, an);
    EXPECT_EQ(spelers_.HKEY, 0);
    spelers_.HKEY = 100777;
    const auto zonder = Lees(schijf_, spelers_);
    EXPECT_EQ(spelers_.HKEY, 100777);
    EXPECT_TRUE(zonder.zonderSleutelregel);
    EXPECT_TRUE(zonder.tabelVervangen);
    EXPECT_FALSE(zonder.AllesGelezen());
    const auto lees = [&](Tekstblik inhoud) {
        schijf_.Zet(spelerbestand, inhoud);
        return Lees(schijf_, spelers_);
    };
    EXPECT_TRUE(lees("").AllesGelezen());
    EXPECT_TRUE(lees(vijfSpelers).AllesGelezen());
    EXPECT_FALSE(lees("1,2,3").tabelVervangen);
    const auto zonderNaam = lees("HKEY=100003\r\n1,100001,Gr01-,An,,,,,,,,,,,,,,\r\n");
    EXPECT_FALSE(zonderNaam.fout);
    EXPECT_EQ(zonderNaam.zonderAchternaam, std::vector<int>{2});
}

TEST_F(LeesSpelersTest, FoutInDeEersteGangLaatDeTabelZoalsHijWas)
{
    schijf_.Zet(spelerbestand, "HKEY=100050\r\n1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n1,2,3\r\n");
    const auto verslag = Lees(schijf_, spelers_);
    ASSERT_TRUE(verslag.fout);
    EXPECT_EQ(verslag.fout->soort, Foutsoort::Beschadigd);
    EXPECT_EQ(verslag.fout->bestand, "C:\\club\\Spelers\\RVDspelers.txt");
    EXPECT_EQ(verslag.fout->regel, 3);
    EXPECT_EQ(verslag.velden, 3);
    EXPECT_EQ(spelers_.tabel.Rijen(), 5);
    EXPECT_EQ(spelers_.HKEY, 100050);
    EXPECT_TRUE(spelers_.kopieNodig);

    Register nieuw;
    EXPECT_TRUE(Lees(schijf_, nieuw).fout);
    EXPECT_EQ(nieuw.tabel.Rijen(), 0);
}

TEST_F(LeesSpelersTest, FoutInDeTweedeGangHoudtDeRijenErvoor)
{
    schijf_.Zet(spelerbestand, "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n2,100002,Gr01-,B,,C,,\r\n");
    const auto verslag = Lees(schijf_, spelers_);
    ASSERT_TRUE(verslag.fout);
    EXPECT_EQ(verslag.fout->regel, 2);
    EXPECT_EQ(verslag.velden, 8);
    EXPECT_EQ(spelers_.tabel.Rijen(), 1);
    EXPECT_TRUE(spelers_.kopieNodig);
}

TEST_F(LeesSpelersTest, OntbrekendOfOnleesbaarLaatDeTabelZoalsHijWas)
{
    FalendeSchijf schijf(schijf_);
    schijf.FaalBij(1);
    const auto verslag = Lees(schijf, spelers_);
    ASSERT_TRUE(verslag.fout);
    EXPECT_EQ(verslag.fout->soort, Foutsoort::Geweigerd);
    EXPECT_EQ(spelers_.tabel.Rijen(), 5);
    EXPECT_EQ(spelers_.HKEY, 100042);
    EXPECT_TRUE(verslag.NietGeopend());
    // What is known of the file stays too: when it is still the same, it may be replaced.
    EXPECT_FALSE(spelers_.kopieNodig);
    EXPECT_EQ(spelers_.gelezen, schijf_.Inhoud(spelerbestand));
    ASSERT_TRUE(schijf_.Verwijder(spelerbestand));
    const auto weg = Lees(schijf_, spelers_);
    ASSERT_TRUE(weg.fout);
    EXPECT_EQ(weg.fout->soort, Foutsoort::Ontbreekt);
    EXPECT_EQ(spelers_.tabel.Rijen(), 5);
}

TEST_F(SchrijfSpelersTest, OnbewerkteVeldenKomenOpDeByteTerug)
{
    const Tekst vreemd = "HKEY=100003\r\n"
                         "1, 100001 ,Gr01-, An\x81\x8D,\x8F\x90\x9D,\xC9\tx , , ,,,,,,,,,, \r\n"
                         "2,abc,XYZ,,,\x1A,,,,,,,,,,,,\x7F\r\n";
    spelers_ = Gelezen(schijf_, vreemd);
    EXPECT_EQ(BewaarEnLees(), vreemd);
    EXPECT_TRUE(Kopieen(schijf_).empty());
}

TEST_F(SchrijfSpelersTest, NummersWordenDePlaatsen)
{
    spelers_ = Gelezen(schijf_, "HKEY=100003\r\n"
                                "7,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n"
                                ",100002,Gr01-,Bea,,Cock,,,,,,,,,,,,\r\n"
                                "x,100003,Gr01-,Cor,,Dam,,,,,,,,,,,,\r\n");
    EXPECT_EQ(BewaarEnLees(), "HKEY=100003\r\n"
                              "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n"
                              "2,100002,Gr01-,Bea,,Cock,,,,,,,,,,,,\r\n"
                              "3,100003,Gr01-,Cor,,Dam,,,,,,,,,,,,\r\n");
}

TEST_F(SchrijfSpelersTest, OvergeslagenRijenLatenEenGatInDeNummers)
{
    // Meant: the numbers close up only at the next save.
    spelers_.tabel.ZetCel(2, Kolom::Key, "");
    spelers_.tabel.ZetCel(3, Kolom::Key, "");
    const Tekst metGat = "HKEY=100042\r\n"
                         "1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
                         "4,100004,Gr05-,Dirk,,Eik,,,,,,,M,,,,NBB1,12345678\r\n"
                         "5,100042,Gr50-,Els,,Fuik,06-1,e@f.example,Pad 1,1234 AB,Ede,NL,V,"
                         "een,twee,,,\r\n";
    EXPECT_EQ(BewaarEnLees(), metGat);
    EXPECT_EQ(spelers_.tabel.Rijen(), 3);
    EXPECT_EQ(spelers_.tabel.Cel(2, Kolom::Nr), "4");
    const Tekst dicht = BewaarEnLees();
    EXPECT_NE(dicht.find("\r\n2,100004,"), Tekst::npos);
    EXPECT_NE(dicht.find("\r\n3,100042,"), Tekst::npos);
}

TEST_F(SchrijfSpelersTest, TweeEnDrieVanVijfVerwijderd)
{
    spelers_.tabel.VerwijderRijen(std::vector<int>{2, 3});
    EXPECT_EQ(BewaarEnLees(),
              "HKEY=100042\r\n"
              "1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
              "2,100004,Gr05-,Dirk,,Eik,,,,,,,M,,,,NBB1,12345678\r\n"
              "3,100042,Gr50-,Els,,Fuik,06-1,e@f.example,Pad 1,1234 AB,Ede,NL,V,een,twee,,,\r\n");
}

TEST_F(SchrijfSpelersTest, LegeTabelLaatHetBestand)
{
    // Meant: a register is never written without players.
    spelers_.tabel.VerwijderRijen(std::vector<int>{1, 2, 3, 4, 5});
    const auto voor = schijf_.NeemStempel(spelerbestand);
    EXPECT_TRUE(Bewaar(schijf_, spelers_));
    EXPECT_EQ(schijf_.Inhoud(spelerbestand), vijfSpelers);
    EXPECT_EQ(schijf_.NeemStempel(spelerbestand), *voor);
}

TEST_F(SchrijfSpelersTest, SleutelOnderDeBasisWordtDeBasis)
{
    spelers_ = Gelezen(schijf_, an);
    ASSERT_EQ(spelers_.HKEY, 0);
    EXPECT_EQ(BewaarEnLees(), "HKEY=100000\r\n" + an);
    EXPECT_EQ(spelers_.HKEY, 100000);
}

TEST_F(SchrijfSpelersTest, AnderRegeleindeWordtCrLf)
{
    spelers_ = Gelezen(schijf_, "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\n\nHKEY=100001");
    EXPECT_EQ(BewaarEnLees(), "HKEY=100001\r\n" + an);
    ASSERT_TRUE(schijf_.Verwijder(spelerbestand)); // a file that disappeared comes back
    EXPECT_EQ(BewaarEnLees(), "HKEY=100001\r\n" + an);
}

TEST(NieuweSleutel, VanafDeBasisOfNaDeHoogste)
{
    Register spelers;
    EXPECT_EQ(NieuweSleutel(spelers), 100001);
    EXPECT_EQ(NieuweSleutel(spelers), 100002);
    EXPECT_EQ(spelers.HKEY, 100002);
    spelers.HKEY = 100041;
    EXPECT_EQ(NieuweSleutel(spelers), 100042);
}

TEST(NieuweSleutel, Op)
{
    constexpr auto hoogste = std::numeric_limits<std::int32_t>::max();
    Register spelers;
    spelers.HKEY = hoogste - 1;
    EXPECT_EQ(NieuweSleutel(spelers), hoogste);
    EXPECT_FALSE(NieuweSleutel(spelers));
    EXPECT_EQ(spelers.HKEY, hoogste);
    EXPECT_FALSE(VoegSpelerToe(spelers, "Gr01-", Ingave()));
    EXPECT_EQ(spelers.tabel.Rijen(), 0);
    EXPECT_EQ(spelers.HKEY, hoogste);
}

TEST(RegelVanHKEY, IsDeLaatsteSleutelregel)
{
    GeheugenSchijf schijf;
    Mappen mappen;
    mappen.SPEMAP = "C:\\club";
    EXPECT_EQ(RegelVanHKEY(schijf, mappen).regel, 0);
    schijf.Zet("C:\\club\\RVDspelers.txt", "HKEY=1\r\n\r\nHKEY=2\r\nhkey=3\r\n");
    EXPECT_EQ(RegelVanHKEY(schijf, mappen).regel, 3);
    EXPECT_EQ(RegelVanHKEY(schijf, mappen).bestand, "C:\\club\\RVDspelers.txt");
}

TEST(ZijnErSleutels, TotDeHoogste)
{
    constexpr auto hoogste = std::numeric_limits<std::int32_t>::max();
    Register spelers;
    spelers.HKEY = hoogste - 2;
    EXPECT_TRUE(ZijnErSleutels(spelers, 0));
    EXPECT_TRUE(ZijnErSleutels(spelers, 2));
    EXPECT_FALSE(ZijnErSleutels(spelers, 3));
    spelers.HKEY = 0; // the first key follows the base
    EXPECT_TRUE(ZijnErSleutels(spelers, static_cast<std::size_t>(hoogste - 100000)));
    EXPECT_FALSE(ZijnErSleutels(spelers, static_cast<std::size_t>(hoogste - 99999)));
    spelers.HKEY = -5;
    EXPECT_TRUE(ZijnErSleutels(spelers, 1));
}

TEST_F(VoegSpelerToeTest, AchteraanMetNieuweSleutel)
{
    ASSERT_TRUE(VoegSpelerToe(spelers_, "Gr02-Clubleden", Ingave()));
    const Tekst rij = "6,100043,Gr02-,v4,v5,v6,v7,v8,v9,v10,v11,v12,v13,v14,v15,v16,v17,v18\r\n";
    Tekst verwacht = vijfSpelers + rij;
    verwacht.replace(0, 13, "HKEY=100043\r\n");
    EXPECT_EQ(SpelersTekst(spelers_), verwacht);
    EXPECT_EQ(spelers_.tabel.Cel(6, Kolom::Nr), "6");
    EXPECT_EQ(BewaarEnLees(), verwacht);
    spelers_ = Gelezen(schijf_, "HKEY=99\r\n"); // below the base
    ASSERT_TRUE(VoegSpelerToe(spelers_, "Gr01-", Ingave()));
    EXPECT_EQ(spelers_.tabel.Cel(1, Kolom::Key), "100001");
}

TEST_F(VoegSpelerToeTest, VeldenZonderBuitensteSpaties)
{
    Rijvelden velden = Ingave();
    velden[Index(Kolom::Voornaam)] = "  An Marie ";
    velden[Index(Kolom::Tusv)] = "   ";
    velden[Index(Kolom::Adres)] = " \tPad 1, boven";
    ASSERT_TRUE(VoegSpelerToe(spelers_, "Gr01-", velden));
    EXPECT_EQ(spelers_.tabel.Cel(6, Kolom::Voornaam), "An Marie");
    EXPECT_EQ(spelers_.tabel.Cel(6, Kolom::Tusv), "");
    EXPECT_EQ(spelers_.tabel.Cel(6, Kolom::Adres), "\tPad 1_ boven");
}

TEST_F(VoegSpelerToeTest, SleutelKomtNietTerugNaVerwijderen)
{
    ASSERT_TRUE(VoegSpelerToe(spelers_, "Gr01-", Ingave()));
    BewaarEnLees();
    spelers_.tabel.VerwijderRijen(std::vector<int>{6});
    BewaarEnLees();
    ASSERT_TRUE(VoegSpelerToe(spelers_, "Gr01-", Ingave()));
    EXPECT_EQ(spelers_.tabel.Cel(6, Kolom::Key), "100044");
}

TEST_F(WijzigSpelerTest, AllesBehalveNummerEnSleutel)
{
    Rijvelden velden = Ingave();
    velden[Index(Kolom::Voornaam)] = "  An "; // stored as handed over
    velden[Index(Kolom::Land)] = "";
    WijzigSpeler(spelers_, 4, velden);
    Tekst verwacht = vijfSpelers;
    const Tekst oud = "4,100004,Gr05-,Dirk,,Eik,,,,,,,M,,,,NBB1,12345678";
    verwacht.replace(verwacht.find(oud), oud.size(),
                     "4,100004,Gr49-,  An ,v5,v6,v7,v8,v9,v10,v11,,v13,v14,v15,v16,v17,v18");
    EXPECT_EQ(BewaarEnLees(), verwacht);
    EXPECT_EQ(spelers_.HKEY, 100042);
}
