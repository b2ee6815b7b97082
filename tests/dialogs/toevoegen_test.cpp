#include "dialogs/toevoegen.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

constexpr std::int32_t hoogste = std::numeric_limits<std::int32_t>::max();

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

    static Pad In(const Tekst& zitting, const Tekst& bestand)
    {
        return "C:\\RVD\\Zittingen\\" + zitting + "\\" + bestand;
    }
    void ZetClub(Tekst naam) { schijf.Zet(clubnaam, std::move(naam)); }

    GeheugenSchijf schijf;
    Mappen mappen;
    const Pad clubnaam = "C:\\RVD\\Puntenboek\\Rev_Clubnaam.txt";
    const Pad lijst = In("a_Rev", "Spelers.txt");
    const Pad zusterlijst = "C:\\RVD\\Puntenboek\\Club_a_Rev\\Spelers.txt";
    const Pad koppelverslag = In("a_Rev", "Koppelverslag.txt");
};

} // namespace

// ---------------------------------------------------------------- sessions and the sibling folder

TEST_F(Toevoegen, AlleenMappenOpRev)
{
    EXPECT_EQ(Teksten{}, RevZittingen(schijf, mappen).value());
    for (const char* naam : {"b_Rev", "A_REV", "c_Rev2", "Rev", "_Rev"})
        schijf.ZetMap(Tekst("C:\\RVD\\Zittingen\\") + naam);
    schijf.Zet("C:\\RVD\\Zittingen\\d_Rev", "een bestand");
    EXPECT_EQ((Teksten{"_Rev", "A_REV", "b_Rev"}), RevZittingen(schijf, mappen).value());
    mappen.RVDMAP.clear();
    schijf.ZetMap("\\Zittingen\\b_Rev");
    EXPECT_EQ(Teksten{}, RevZittingen(schijf, mappen).value());
}

TEST_F(Toevoegen, DeClubnaamIsDeEersteRegel)
{
    EXPECT_EQ("", LeesClubnaam(schijf, mappen).value());
    for (const auto& [inhoud, naam] :
         {std::pair("  Caf\xE9, de Zeven  \r\nmeer\r\n", "Caf\xE9, de Zeven"), std::pair("", ""),
          std::pair("\r\nClub\r\n", "")}) {
        ZetClub(inhoud);
        EXPECT_EQ(naam, LeesClubnaam(schijf, mappen).value());
    }
}

TEST_F(Toevoegen, DeSpelerslijstKomtUitDeZustermap)
{
    const auto haal = [this](const char* zitting) {
        schijf.Zet(lijst, "oud");
        EXPECT_TRUE(HaalSpelerslijst(schijf, mappen, zitting));
        return schijf.Inhoud(lijst);
    };
    schijf.Zet(zusterlijst, "N01 An Bos - Bo Cos\r\n");
    EXPECT_EQ("oud", haal("a_Rev")) << "geen clubnaam";
    ZetClub("Club");
    EXPECT_EQ("N01 An Bos - Bo Cos\r\n", haal("a_Rev"));
    // A folder in other capitals bears the same name.
    EXPECT_EQ("N01 An Bos - Bo Cos\r\n", haal("a_REV"));
    ZetClub("Andere");
    EXPECT_EQ("oud", haal("a_Rev")) << "geen zustermap";
}

TEST_F(Toevoegen, EenKopieDieMisluktLaatDeLijstHeel)
{
    ZetClub("Club");
    schijf.Zet(zusterlijst, "nieuw");
    schijf.Zet(lijst, "oud");
    schijf.ZetAlleenLezen(lijst);
    EXPECT_FALSE(HaalSpelerslijst(schijf, mappen, "a_Rev"));
    EXPECT_EQ("oud", schijf.Inhoud(lijst));
}

// ---------------------------------------------------------------- the names

TEST_F(Toevoegen, TweeNamenPerPaar)
{
    const Teksten stil{"STIL,,ZIT,N04", "STIL,,ZIT,N04"};
    for (const auto& [inhoud, regels] : std::vector<std::pair<const char*, Teksten>>{
             {"N01 Ria Hupsekee - Gijs van der Weg\r\n\r\n  \r\nO02 An Bos-Bo Cos",
              {"Ria,,Hupsekee,N01", "Gijs,van der,Weg,N01", "An,,Bos,O02", "Bo,,Cos,O02"}},
             {"N01 An Bos - Bo Cos,\"N02 Cy Dos - Di Eik\"",
              {"An,,Bos,N01", "Bo,,Cos,N01", "Cy,,Dos,N02", "Di,,Eik,N02"}},
             // A name without blanks is all surname.
             {"N01 Bos - Jan   van   Cos", {",,Bos,N01", "Jan,van,Cos,N01"}},
             {"N04 STILZIT", stil},
             {"N04 Jan Bos - Stilzit", stil},
             {"N04 STIL ZIT - STIL ZIT", stil},
             // Without a dash the second one is nobody.
             {"N01 Jan Bos\r\nN02", {"Jan,,Bos,N01", ",,,N01", ",,,N02", ",,,N02"}},
             // A comma between quotes becomes an underscore.
             {"\"N01 Jan Bos,sr - An Cos\"", {"Jan,,Bos_sr,N01", "An,,Cos,N01"}}})
        EXPECT_EQ(regels, RegelsUit(inhoud));
}

/// Meant: only the first item tells whether the names carry keys, words of six digits; they go
/// everywhere.
TEST_F(Toevoegen, OudeKeysVallenWeg)
{
    for (const auto& [inhoud, metKeys, regels] :
         std::vector<std::tuple<const char*, bool, Teksten>>{
             {"N01 100201 Wim de Leeuw - Toon Bos 100202\r\n",
              true,
              {"Wim,de,Leeuw,N01", "Toon,,Bos,N01"}},
             {"N01 100201 - 100202 Bos 100203", true, {",,,N01", ",,Bos,N01"}},
             {"N01 10020 Wim 1002011 - Jan 100201 Bos\r\n",
              false,
              {"10020,Wim,1002011,N01", "Jan,100201,Bos,N01"}},
             {",N01 An Bos - Bo Cos\r\nN02 100201 Cy Dos - Di Eik\r\n",
              false,
              {"An,,Bos,N01", "Bo,,Cos,N01", "Cy,,Dos,N02", "Di,,Eik,N02"}}}) {
        const auto spelers = SessiespelersUit(inhoud);
        EXPECT_EQ(metKeys, spelers.metKeys) << inhoud;
        EXPECT_EQ(regels, Regels(spelers));
    }
}

TEST_F(Toevoegen, ZonderLijstZijnErGeenNamen)
{
    schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
    EXPECT_EQ(Teksten{}, Regels(LeesSessieSpelers(schijf, mappen, "a_Rev").value()));
    schijf.Zet(lijst, "N01 An Bos - Bo Cos");
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
    for (const auto& [keys, verslag] : std::vector<std::pair<Teksten, const char*>>{
             {{"100007", "100003"}, "N01 100008 - 100009\r\n"},
             {{}, "N01 100001 - 100002\r\n"},
             {{"12"}, "N01 100001 - 100002\r\n"}}) {
        Register spelers;
        for (const Tekst& key : keys)
            spelers.tabel.VoegToe({"1", key, "Gr01-", "", "", "Aal"});
        EXPECT_EQ(verslag, VoegSpelersToe(spelers, namen));
    }
}

TEST_F(Toevoegen, ZonderSleutelsGenoegVerandertErNiets)
{
    Register spelers;
    spelers.HKEY = hoogste - 1;
    const auto namen = SessiespelersUit("N01 An Bos - Bo Cos").spelers;
    EXPECT_EQ(std::nullopt, VoegSpelersToe(spelers, namen));
    EXPECT_EQ(0, spelers.tabel.Rijen());
    EXPECT_EQ(hoogste - 1, spelers.HKEY);
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
    schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
    Koppelverslag nieuw(schijf, mappen, "a_Rev", "N01 1 - 2\r\n");
    ASSERT_TRUE(nieuw.ZetTerug()); // nothing was written yet
    EXPECT_FALSE(nieuw.Staat());
    for (const bool vroeger : {false, true}) {
        if (vroeger)
            schijf.Zet(koppelverslag, "van vroeger");
        ASSERT_TRUE(nieuw.Schrijf());
        ASSERT_TRUE(nieuw.Schrijf());
        EXPECT_TRUE(nieuw.Staat());
        EXPECT_EQ("N01 1 - 2\r\n", schijf.Inhoud(koppelverslag));
        for (int keer = 1; keer <= 2; ++keer) {
            ASSERT_TRUE(nieuw.ZetTerug());
            EXPECT_FALSE(nieuw.Staat());
            EXPECT_EQ(vroeger ? std::optional<Tekst>("van vroeger") : std::nullopt,
                      schijf.Inhoud(koppelverslag));
        }
    }
}

TEST_F(Toevoegen, TerugzettenDatMisluktKanOpnieuw)
{
    for (const bool vroeger : {false, true}) {
        schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
        if (vroeger)
            schijf.Zet(koppelverslag, "van vroeger");
        FalendeSchijf falend(schijf);
        Koppelverslag verslag(falend, mappen, "a_Rev", "N01 1 - 2\r\n");
        ASSERT_TRUE(verslag.Schrijf());
        falend.FaalVanaf(1);
        EXPECT_FALSE(verslag.ZetTerug());
        EXPECT_TRUE(verslag.Staat());
        falend.FaalNiet();
        ASSERT_TRUE(verslag.ZetTerug());
        EXPECT_EQ(vroeger, schijf.Inhoud(koppelverslag).has_value());
    }
}

TEST_F(Toevoegen, VerslagenMetSleutelsDieNogUitgegevenWorden)
{
    const auto zet = [&](const Tekst& zitting, const Tekst& verslag) {
        schijf.Zet(In(zitting, "Koppelverslag.txt"), verslag);
    };
    zet("heel_Rev", "N01 100043 - 100044\r\nO02 0 - 100045\r\n");
    zet("eerste_Rev", "N01 100046 - 0\r\n");
    zet("tweede_Rev", "N01 100043 - 0\r\nO02 0 - 1100001\r\n");
    zet("anders_Rev", "999999\r\n20250101 om 123456\r\n - \r\nN01 Jan 999999 - x\r\n");
    zet("geen", "N01 100046 - 0\r\n");
    schijf.ZetMap("C:\\RVD\\Zittingen\\leeg_Rev");
    EXPECT_EQ((std::vector<Pad>{In("eerste_Rev", "Koppelverslag.txt"),
                                In("tweede_Rev", "Koppelverslag.txt")}),
              VerslagenMetLosseSleutels(schijf, mappen, 100045));
    EXPECT_EQ(1U, VerslagenMetLosseSleutels(schijf, mappen, 100046).size());
    EXPECT_EQ(0U, VerslagenMetLosseSleutels(schijf, mappen, 1100001).size());
    zet("Groot_Rev", "N01 1100002 - 0\r\n" + Tekst(std::size_t{64} << 20U, ','));
    EXPECT_EQ(0U, VerslagenMetLosseSleutels(schijf, mappen, 1100001).size()) << "te groot";
}

TEST_F(Toevoegen, HetVerslagRuimtOpWatEenAfgebrokenSchrijvenLiet)
{
    const Pad oud = lijst + ".~plexoran12";
    const Pad net = lijst + ".~plexoran13";
    for (const Pad& half : {oud, net})
        schijf.Zet(half, "half");
    schijf.ZetTijd(oud, 1);
    schijf.ZetTijd(net, std::numeric_limits<std::int64_t>::max());
    ASSERT_TRUE(Koppelverslag(schijf, mappen, "a_Rev", "N01 1 - 2\r\n").Schrijf());
    EXPECT_EQ(std::nullopt, schijf.Inhoud(oud));
    EXPECT_EQ("half", schijf.Inhoud(net));
}

TEST_F(Toevoegen, EenLijstDieTijdensHetOphalenVerandertBlijft)
{
    ZetClub("Club");
    schijf.Zet(zusterlijst, "N01 An Bos - Bo Cos\r\n");
    schijf.Zet(lijst, "eigen");
    FalendeSchijf falend(schijf);
    falend.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0"))
            schijf.Zet(lijst, "van daar");
        return true;
    });
    EXPECT_EQ(Foutsoort::Gewijzigd, HaalSpelerslijst(falend, mappen, "a_Rev").error().soort);
    EXPECT_EQ("van daar", schijf.Inhoud(lijst));
}

/// What another program writes while ours is written, is what comes back.
TEST_F(Toevoegen, WatErTijdensHetSchrijvenKomtKomtTerug)
{
    schijf.Zet(koppelverslag, "van vroeger");
    FalendeSchijf falend(schijf);
    Koppelverslag verslag(falend, mappen, "a_Rev", "N01 1 - 2\r\n");
    int keer = 0;
    falend.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0") && keer < 2)
            schijf.Zet(koppelverslag, "van daar " + std::to_string(++keer));
        return true;
    });
    ASSERT_TRUE(verslag.Schrijf());
    EXPECT_EQ("N01 1 - 2\r\n", schijf.Inhoud(koppelverslag));
    ASSERT_TRUE(verslag.ZetTerug());
    EXPECT_EQ("van daar 2", schijf.Inhoud(koppelverslag));
}

TEST_F(Toevoegen, WatEenAnderOverHetVerslagSchreefWordtNietTeruggezet)
{
    for (const bool vroeger : {false, true}) {
        schijf.ZetMap("C:\\RVD\\Zittingen\\a_Rev");
        if (vroeger)
            schijf.Zet(koppelverslag, "van vroeger");
        Koppelverslag verslag(schijf, mappen, "a_Rev", "N01 1 - 2\r\n");
        ASSERT_TRUE(verslag.Schrijf());
        schijf.Zet(koppelverslag, "van daar");
        const auto terug = verslag.ZetTerug();
        ASSERT_FALSE(terug);
        EXPECT_EQ(Foutsoort::Gewijzigd, terug.error().soort);
        EXPECT_EQ("van daar", schijf.Inhoud(koppelverslag));
    }
}

TEST_F(Toevoegen, EenVerslagDatNietTeLezenWasWordtNooitVerwijderd)
{
    schijf.Zet(koppelverslag, "van vroeger");
    FalendeSchijf falend(schijf);
    Koppelverslag verslag(falend, mappen, "a_Rev", "nieuw");
    falend.FaalBij(1);
    EXPECT_FALSE(verslag.Schrijf());
    falend.FaalNiet();
    ASSERT_TRUE(verslag.ZetTerug());
    EXPECT_EQ("van vroeger", schijf.Inhoud(koppelverslag));
}

// ---------------------------------------------------------------- size, and names of folders

TEST_F(Toevoegen, EenLijstDieTeGrootIsWordtGeweigerd)
{
    const Tekst teGroot((std::size_t{64} << 20U) + 1, ',');
    schijf.Zet(lijst, teGroot);
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB",
              LeesSessieSpelers(schijf, mappen, "a_Rev").error().systeem);
    Tekst namen;
    for (std::size_t i = 0; i <= MeesteNamen / 2; ++i)
        namen += "N01 a-b,";
    schijf.Zet(lijst, namen);
    const auto teVeel = LeesSessieSpelers(schijf, mappen, "a_Rev");
    ASSERT_FALSE(teVeel);
    EXPECT_EQ(TeVeelNamen, teVeel.error().systeem);
    EXPECT_EQ(lijst, teVeel.error().bestand);
    EXPECT_LE(SessiespelersUit(namen + namen).spelers.size(), MeesteNamen + 2);

    ZetClub("Club");
    schijf.Zet(zusterlijst, teGroot);
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB",
              HaalSpelerslijst(schijf, mappen, "a_Rev").error().systeem);
    EXPECT_EQ(namen, schijf.Inhoud(lijst));
}

TEST_F(Toevoegen, EenClubnaamDieGeenMapKanZijnWordtGeweigerd)
{
    schijf.Zet("C:\\RVD\\Elders_a_Rev\\Spelers.txt", "N01 An Bos - Bo Cos\r\n");
    schijf.Zet("C:\\RVD\\Puntenboek\\A\\B_a_Rev\\Spelers.txt", "N01 An Bos - Bo Cos\r\n");
    schijf.Zet(lijst, "eigen");
    for (const char* naam : {"..\\Elders", "A/B", "C:\\Elders"}) {
        ZetClub(naam);
        const auto gehaald = HaalSpelerslijst(schijf, mappen, "a_Rev");
        ASSERT_FALSE(gehaald) << naam;
        EXPECT_EQ(Foutsoort::Beschadigd, gehaald.error().soort);
        EXPECT_EQ(clubnaam, gehaald.error().bestand);
        EXPECT_EQ("'" + Tekst(naam) +
                      "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                      "'\\', 'C:' of '..' staan",
                  gehaald.error().systeem);
        EXPECT_EQ("eigen", schijf.Inhoud(lijst));
    }
}
