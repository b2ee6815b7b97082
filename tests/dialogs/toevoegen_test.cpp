#include "dialogs/toevoegen.h"

#include <limits>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

Teksten Regels(const Sessiespelers& spelers)
{
    Teksten uit;
    for (const Sessiespeler& speler : spelers.spelers)
        uit.push_back(Toevoegregel(speler));
    return uit;
}

Teksten RegelsUit(Tekstblik inhoud)
{
    return Regels(SessiespelersUit(inhoud));
}

class Toevoegen : public testing::Test {
  protected:
    Toevoegen() { mappen.RVDMAP = "C:\\RVD"; }

    GeheugenSchijf schijf;
    Mappen mappen;
};

} // namespace

// ---------------------------------------------------------------- sessions and the sibling folder

TEST_F(Toevoegen, AlleenMappenOpRev)
{
    schijf.ZetMap("C:\\RVD\\Zittingen\\b_Rev");
    schijf.ZetMap("C:\\RVD\\Zittingen\\A_REV");
    schijf.ZetMap("C:\\RVD\\Zittingen\\c_Rev2");
    schijf.ZetMap("C:\\RVD\\Zittingen\\Rev");
    schijf.ZetMap("C:\\RVD\\Zittingen\\_Rev");
    schijf.Zet("C:\\RVD\\Zittingen\\d_Rev", "een bestand");
    EXPECT_EQ((Teksten{"_Rev", "A_REV", "b_Rev"}), RevZittingen(schijf, mappen).value());
}

TEST_F(Toevoegen, ZonderMapZijnErGeenZittingen)
{
    EXPECT_EQ(Teksten{}, RevZittingen(schijf, mappen).value());
    mappen.RVDMAP.clear();
    schijf.ZetMap("\\Zittingen\\b_Rev");
    EXPECT_EQ(Teksten{}, RevZittingen(schijf, mappen).value());
}

TEST_F(Toevoegen, DeClubnaamIsDeEersteRegel)
{
    EXPECT_EQ("", LeesClubnaam(schijf, mappen).value());
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "  Caf\xE9, de Zeven  \r\nmeer\r\n");
    EXPECT_EQ("Caf\xE9, de Zeven", LeesClubnaam(schijf, mappen).value());
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "");
    EXPECT_EQ("", LeesClubnaam(schijf, mappen).value());
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "\r\nClub\r\n");
    EXPECT_EQ("", LeesClubnaam(schijf, mappen).value());
}

TEST_F(Toevoegen, DeSpelerslijstKomtUitDeZustermap)
{
    const Pad eigen = "C:\\RVD\\Zittingen\\Zomer 1_Rev\\Spelers.txt";
    schijf.Zet(eigen, "oud");
    schijf.Zet("C:\\RVD\\Puntenboek\\Club_Zomer 1_Rev\\Spelers.txt", "N01 An Bos - Bo Cos\r\n");
    ASSERT_TRUE(HaalSpelerslijst(schijf, mappen, "Zomer 1_Rev"));
    EXPECT_EQ("oud", schijf.Inhoud(eigen)); // no club name
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "Club");
    ASSERT_TRUE(HaalSpelerslijst(schijf, mappen, "Zomer 1_Rev"));
    EXPECT_EQ("N01 An Bos - Bo Cos\r\n", schijf.Inhoud(eigen));
    // A folder in other capitals bears the same name.
    schijf.Zet(eigen, "oud");
    ASSERT_TRUE(HaalSpelerslijst(schijf, mappen, "Zomer 1_REV"));
    EXPECT_EQ("N01 An Bos - Bo Cos\r\n", schijf.Inhoud(eigen));
}

TEST_F(Toevoegen, ZonderZustermapBlijftDeLijst)
{
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "Club");
    schijf.Zet("C:\\RVD\\Zittingen\\a_Rev\\Spelers.txt", "oud");
    ASSERT_TRUE(HaalSpelerslijst(schijf, mappen, "a_Rev"));
    EXPECT_EQ("oud", schijf.Inhoud("C:\\RVD\\Zittingen\\a_Rev\\Spelers.txt"));
}

TEST_F(Toevoegen, EenKopieDieMisluktLaatDeLijstHeel)
{
    const Pad eigen = "C:\\RVD\\Zittingen\\a_Rev\\Spelers.txt";
    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "Club");
    schijf.Zet("C:\\RVD\\Puntenboek\\Club_a_Rev\\Spelers.txt", "nieuw");
    schijf.Zet(eigen, "oud");
    schijf.ZetAlleenLezen(eigen);
    EXPECT_FALSE(HaalSpelerslijst(schijf, mappen, "a_Rev"));
    EXPECT_EQ("oud", schijf.Inhoud(eigen));
}

// ---------------------------------------------------------------- the names

TEST_F(Toevoegen, TweeNamenPerPaar)
{
    EXPECT_EQ(RegelsUit("N01 Ria Hupsekee - Gijs van der Weg\r\n\r\n  \r\nO02 An Bos-Bo Cos"),
              (Teksten{"Ria,,Hupsekee,N01", "Gijs,van der,Weg,N01", "An,,Bos,O02", "Bo,,Cos,O02"}));
    EXPECT_EQ(RegelsUit("N01 An Bos - Bo Cos,\"N02 Cy Dos - Di Eik\""),
              (Teksten{"An,,Bos,N01", "Bo,,Cos,N01", "Cy,,Dos,N02", "Di,,Eik,N02"}));
}

TEST_F(Toevoegen, EenNaamZonderSpatiesIsHelemaalAchternaam)
{
    EXPECT_EQ(RegelsUit("N01 Bos - Jan   van   Cos"), (Teksten{",,Bos,N01", "Jan,van,Cos,N01"}));
}

TEST_F(Toevoegen, StilzittersWordenTweeKeerStilZit)
{
    const Teksten stil{"STIL,,ZIT,N04", "STIL,,ZIT,N04"};
    EXPECT_EQ(RegelsUit("N04 STILZIT"), stil);
    EXPECT_EQ(RegelsUit("N04 Jan Bos - Stilzit"), stil);
    EXPECT_EQ(RegelsUit("N04 STIL ZIT - STIL ZIT"), stil);
}

TEST_F(Toevoegen, ZonderStreepjeIsDeTweedeNiemand)
{
    EXPECT_EQ(RegelsUit("N01 Jan Bos\r\nN02"),
              (Teksten{"Jan,,Bos,N01", ",,,N01", ",,,N02", ",,,N02"}));
}

TEST_F(Toevoegen, EenKommaTussenAanhalingstekensWordtEenStreepje)
{
    EXPECT_EQ(RegelsUit("\"N01 Jan Bos,sr - An Cos\""),
              (Teksten{"Jan,,Bos_sr,N01", "An,,Cos,N01"}));
}

TEST_F(Toevoegen, OudeKeysVallenWeg)
{
    const auto voor = SessiespelersUit("N01 100201 Wim de Leeuw - Toon Bos 100202\r\n");
    EXPECT_TRUE(voor.metKeys);
    EXPECT_EQ(Regels(voor), (Teksten{"Wim,de,Leeuw,N01", "Toon,,Bos,N01"}));
    const auto alleen = SessiespelersUit("N01 100201 - 100202 Bos 100203");
    EXPECT_TRUE(alleen.metKeys);
    EXPECT_EQ(Regels(alleen), (Teksten{",,,N01", ",,Bos,N01"}));
}

TEST_F(Toevoegen, AlleenWoordenVanZesCijfersZijnKeys)
{
    const auto spelers = SessiespelersUit("N01 10020 Wim 1002011 - Jan 100201 Bos\r\n");
    EXPECT_FALSE(spelers.metKeys);
    EXPECT_EQ(Regels(spelers), (Teksten{"10020,Wim,1002011,N01", "Jan,100201,Bos,N01"}));
}

/// Meant: only the first item tells whether the names carry keys; they go everywhere.
TEST_F(Toevoegen, HetEersteItemTeltVoorDeMelding)
{
    const auto spelers = SessiespelersUit(",N01 An Bos - Bo Cos\r\nN02 100201 Cy Dos - Di Eik\r\n");
    EXPECT_FALSE(spelers.metKeys);
    EXPECT_EQ(Regels(spelers),
              (Teksten{"An,,Bos,N01", "Bo,,Cos,N01", "Cy,,Dos,N02", "Di,,Eik,N02"}));
}

TEST_F(Toevoegen, ZonderLijstZijnErGeenNamen)
{
    schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
    EXPECT_EQ(Teksten{}, Regels(LeesSessieSpelers(schijf, mappen, "a_Rev").value()));
    schijf.Zet("C:\\RVD\\Zittingen\\a_Rev\\Spelers.txt", "N01 An Bos - Bo Cos");
    EXPECT_EQ(2U, LeesSessieSpelers(schijf, mappen, "a_Rev")->spelers.size());
    FalendeSchijf falend(schijf);
    falend.FaalBij(1);
    EXPECT_FALSE(LeesSessieSpelers(falend, mappen, "a_Rev"));
}

// ---------------------------------------------------------------- adding

TEST_F(Toevoegen, NieuweSpelersInGr08EnHetVerslag)
{
    Register spelers;
    spelers.HKEY = 100042;
    spelers.tabel = MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "", ""}});
    const auto voor = AlleRijen(spelers.tabel);
    const auto namen =
        SessiespelersUit("N01 Ria Hupsekee - Gijs van der Weg\r\nO02 AFW - Bos\r\n").spelers;
    EXPECT_EQ("N01 100043 - 100044\r\nO02 0 - 100045\r\n", VoegSpelersToe(spelers, namen));
    EXPECT_EQ(100045, spelers.HKEY);
    const auto na = AlleRijen(spelers.tabel);
    ASSERT_EQ(4U, na.size());
    EXPECT_EQ(voor[0], na[0]);
    Rijvelden weg{"3", "100044", "Gr08-", "Gijs", "van der", "Weg"};
    EXPECT_EQ(weg, na[2]);
    Rijvelden bos{"4", "100045", "Gr08-", "", "", "Bos"};
    EXPECT_EQ(bos, na[3]);
}

TEST_F(Toevoegen, WieNiemandIsWordtNooitSpeler)
{
    for (const char* naam :
         {"AFW", "Afwezig", "AFW Bos", "Afw. de Bos", "Afwezig Bos", "STIL ZIT", "100201", ""})
        EXPECT_TRUE(IsNiemand(SessiespelersUit(Tekst("N01 ") + naam + " - x").spelers[0])) << naam;
    EXPECT_TRUE(IsNiemand(SessiespelersUit("N01 stilzit").spelers[0]));
    // Meant: the test for absence minds capitals, and looks at a surname only when it stands alone.
    for (const char* naam : {"AFWEZIG", "afw", "Jan Afwezig", "STIL de Zit", "stil zit", "STIL"})
        EXPECT_FALSE(IsNiemand(SessiespelersUit(Tekst("N01 ") + naam + " - x").spelers[0])) << naam;
}

TEST_F(Toevoegen, AlleenNiemandenGeeftNullen)
{
    Register spelers;
    spelers.HKEY = 100042;
    const auto namen = SessiespelersUit("N01 STILZIT\r\nN02 AFW - Afwezig\r\n").spelers;
    EXPECT_EQ("N01 0 - 0\r\nN02 0 - 0\r\n", VoegSpelersToe(spelers, namen));
    EXPECT_EQ(100042, spelers.HKEY);
    EXPECT_EQ(0, spelers.tabel.Rijen());
    EXPECT_EQ("", VoegSpelersToe(spelers, {}));
}

TEST_F(Toevoegen, ZonderHKEYTeltDeHoogsteKeyVanDeTabel)
{
    const auto namen = SessiespelersUit("N01 An Bos - Bo Cos").spelers;
    Register spelers;
    spelers.tabel = MaakTabel(
        {{"100007", "Gr01-", "", "", "Aal", "", ""}, {"100003", "Gr01-", "", "", "Bal", "", ""}});
    EXPECT_EQ("N01 100008 - 100009\r\n", VoegSpelersToe(spelers, namen));
    Register leeg;
    EXPECT_EQ("N01 100001 - 100002\r\n", VoegSpelersToe(leeg, namen));
    Register laag;
    laag.tabel = MaakTabel({{"12", "Gr01-", "", "", "Aal", "", ""}});
    EXPECT_EQ("N01 100001 - 100002\r\n", VoegSpelersToe(laag, namen));
}

TEST_F(Toevoegen, ZonderSleutelsGenoegVerandertErNiets)
{
    Register spelers;
    spelers.HKEY = std::numeric_limits<std::int32_t>::max() - 1;
    const auto namen = SessiespelersUit("N01 An Bos - Bo Cos").spelers;
    EXPECT_EQ(std::nullopt, VoegSpelersToe(spelers, namen));
    EXPECT_EQ(0, spelers.tabel.Rijen());
    EXPECT_EQ(std::numeric_limits<std::int32_t>::max() - 1, spelers.HKEY);
    // Who is nobody needs no key.
    EXPECT_EQ("N01 2147483647 - 0\r\n",
              VoegSpelersToe(spelers, SessiespelersUit("N01 An Bos - AFW").spelers));
    Register zonderHKEY;
    zonderHKEY.tabel = MaakTabel({{"2147483646", "Gr01-", "", "", "Aal", "", ""}});
    EXPECT_EQ(std::nullopt, VoegSpelersToe(zonderHKEY, namen));
    EXPECT_EQ(0, zonderHKEY.HKEY);
}

TEST_F(Toevoegen, HetKoppelverslagVervangtEnKomtTerug)
{
    const Pad pad = "C:\\RVD\\Zittingen\\a_Rev\\Koppelverslag.txt";
    schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
    Koppelverslag nieuw(schijf, mappen, "a_Rev", "N01 1 - 2\r\n");
    ASSERT_TRUE(nieuw.ZetTerug()); // nothing was written yet
    EXPECT_FALSE(nieuw.Staat());
    for (const bool vroeger : {false, true}) {
        if (vroeger)
            schijf.Zet(pad, "van vroeger");
        ASSERT_TRUE(nieuw.Schrijf());
        ASSERT_TRUE(nieuw.Schrijf());
        EXPECT_TRUE(nieuw.Staat());
        EXPECT_EQ("N01 1 - 2\r\n", schijf.Inhoud(pad));
        for (int keer = 1; keer <= 2; ++keer) {
            ASSERT_TRUE(nieuw.ZetTerug());
            EXPECT_FALSE(nieuw.Staat());
            EXPECT_EQ(vroeger ? std::optional<Tekst>("van vroeger") : std::nullopt,
                      schijf.Inhoud(pad));
        }
    }
}

TEST_F(Toevoegen, TerugzettenDatMisluktKanOpnieuw)
{
    const Pad pad = "C:\\RVD\\Zittingen\\a_Rev\\Koppelverslag.txt";
    for (const bool vroeger : {false, true}) {
        schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
        if (vroeger)
            schijf.Zet(pad, "van vroeger");
        FalendeSchijf falend(schijf);
        Koppelverslag verslag(falend, mappen, "a_Rev", "N01 1 - 2\r\n");
        ASSERT_TRUE(verslag.Schrijf());
        falend.FaalVanaf(1);
        EXPECT_FALSE(verslag.ZetTerug());
        EXPECT_TRUE(verslag.Staat());
        falend.FaalNiet();
        ASSERT_TRUE(verslag.ZetTerug());
        EXPECT_EQ(vroeger, schijf.Inhoud(pad).has_value());
    }
}

TEST_F(Toevoegen, VerslagenMetSleutelsDieNogUitgegevenWorden)
{
    const auto zet = [&](const Tekst& zitting, const Tekst& verslag) {
        schijf.Zet("C:\\RVD\\Zittingen\\" + zitting + "\\Koppelverslag.txt", verslag);
    };
    zet("heel_Rev", "N01 100043 - 100044\r\nO02 0 - 100045\r\n");
    zet("eerste_Rev", "N01 100046 - 0\r\n");
    zet("tweede_Rev", "N01 100043 - 0\r\nO02 0 - 1100001\r\n");
    zet("anders_Rev", "999999\r\n20250101 om 123456\r\n - \r\nN01 Jan 999999 - x\r\n");
    zet("geen", "N01 100046 - 0\r\n");
    schijf.ZetMap("C:\\RVD\\Zittingen\\leeg_Rev");
    EXPECT_EQ((std::vector<Pad>{"C:\\RVD\\Zittingen\\eerste_Rev\\Koppelverslag.txt",
                                "C:\\RVD\\Zittingen\\tweede_Rev\\Koppelverslag.txt"}),
              VerslagenMetLosseSleutels(schijf, mappen, 100045));
    EXPECT_EQ(1U, VerslagenMetLosseSleutels(schijf, mappen, 100046).size());
    EXPECT_EQ(0U, VerslagenMetLosseSleutels(schijf, mappen, 1100001).size());
    const Pad groot = "C:\\RVD\\Zittingen\\Groot_Rev\\Koppelverslag.txt";
    schijf.Zet(groot, "N01 1100002 - 0\r\n" + Tekst(std::size_t{64} << 20U, ','));
    EXPECT_EQ(0U, VerslagenMetLosseSleutels(schijf, mappen, 1100001).size()) << "te groot";
}

TEST_F(Toevoegen, HetVerslagRuimtOpWatEenAfgebrokenSchrijvenLiet)
{
    const Tekst map = "C:\\RVD\\Zittingen\\a_Rev\\";
    const Tekst oud = map + "Spelers.txt.~plexoran12";
    const Tekst net = map + "Spelers.txt.~plexoran13";
    for (const Tekst& pad : {oud, net})
        schijf.Zet(pad, "half");
    schijf.ZetTijd(oud, 1);
    schijf.ZetTijd(net, std::numeric_limits<std::int64_t>::max());
    ASSERT_TRUE(Koppelverslag(schijf, mappen, "a_Rev", "N01 1 - 2\r\n").Schrijf());
    EXPECT_EQ(std::nullopt, schijf.Inhoud(oud));
    EXPECT_EQ("half", schijf.Inhoud(net));
}

TEST_F(Toevoegen, EenVerslagDatNietTeLezenWasWordtNooitVerwijderd)
{
    const Pad pad = "C:\\RVD\\Zittingen\\a_Rev\\Koppelverslag.txt";
    schijf.Zet(pad, "van vroeger");
    FalendeSchijf falend(schijf);
    Koppelverslag verslag(falend, mappen, "a_Rev", "nieuw");
    falend.FaalBij(1);
    EXPECT_FALSE(verslag.Schrijf());
    falend.FaalNiet();
    ASSERT_TRUE(verslag.ZetTerug());
    EXPECT_EQ("van vroeger", schijf.Inhoud(pad));
}

// ---------------------------------------------------------------- size, and names of folders

TEST_F(Toevoegen, EenLijstDieTeGrootIsWordtGeweigerd)
{
    const Pad eigen = "C:\\RVD\\Zittingen\\Zomer_Rev\\Spelers.txt";
    const Pad vanZuster = "C:\\RVD\\Puntenboek\\Club_Zomer_Rev\\Spelers.txt";
    const Tekst teGroot((std::size_t{64} << 20U) + 1, ',');
    schijf.Zet(eigen, teGroot);
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB",
              LeesSessieSpelers(schijf, mappen, "Zomer_Rev").error().systeem);
    Tekst namen;
    for (std::size_t i = 0; i <= MeesteNamen / 2; ++i)
        namen += "N01 a-b,";
    schijf.Zet(eigen, namen);
    const auto teVeel = LeesSessieSpelers(schijf, mappen, "Zomer_Rev");
    ASSERT_FALSE(teVeel);
    EXPECT_EQ(TeVeelNamen, teVeel.error().systeem);
    EXPECT_EQ(eigen, teVeel.error().bestand);
    EXPECT_LE(SessiespelersUit(namen + namen).spelers.size(), MeesteNamen + 2);

    schijf.Zet("C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt", "Club");
    schijf.Zet(vanZuster, teGroot);
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB",
              HaalSpelerslijst(schijf, mappen, "Zomer_Rev").error().systeem);
    EXPECT_EQ(namen, schijf.Inhoud(eigen));
}

TEST_F(Toevoegen, EenClubnaamDieGeenMapKanZijnWordtGeweigerd)
{
    const Pad clubnaam = "C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt";
    const Pad eigen = "C:\\RVD\\Zittingen\\Zomer_Rev\\Spelers.txt";
    schijf.Zet("C:\\RVD\\Elders_Zomer_Rev\\Spelers.txt", "N01 An Bos - Bo Cos\r\n");
    schijf.Zet("C:\\RVD\\Puntenboek\\A\\B_Zomer_Rev\\Spelers.txt", "N01 An Bos - Bo Cos\r\n");
    schijf.Zet(eigen, "eigen");
    for (const char* naam : {"..\\Elders", "A/B", "C:\\Elders"}) {
        schijf.Zet(clubnaam, naam);
        const auto gehaald = HaalSpelerslijst(schijf, mappen, "Zomer_Rev");
        ASSERT_FALSE(gehaald) << naam;
        EXPECT_EQ(Foutsoort::Beschadigd, gehaald.error().soort);
        EXPECT_EQ(clubnaam, gehaald.error().bestand);
        EXPECT_EQ("'" + Tekst(naam) +
                      "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                      "'\\', 'C:' of '..' staan",
                  gehaald.error().systeem);
        EXPECT_EQ("eigen", schijf.Inhoud(eigen));
    }
}
