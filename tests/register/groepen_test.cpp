#include "register/groepen.h"

#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

/// The file of 50 groups without names.
Tekst VijftigCodes()
{
    Tekst tekst;
    for (int nummer = 1; nummer <= 50; ++nummer)
        tekst += (nummer < 10 ? "Gr0" : "Gr") + std::to_string(nummer) + "-\r\n";
    return tekst;
}

} // namespace

TEST(Groepscode, TweeCijfers)
{
    EXPECT_EQ(Groepscode(1), "Gr01-");
    EXPECT_EQ(Groepscode(9), "Gr09-");
    EXPECT_EQ(Groepscode(10), "Gr10-");
    EXPECT_EQ(Groepscode(50), "Gr50-");
    // Of a text that begins with one: its first five characters.
    EXPECT_EQ(CodeUit("Gr02-Clubleden"), "Gr02-");
    EXPECT_EQ(CodeUit("Gr02"), "Gr02");
    EXPECT_EQ(CodeUit(""), "");
}

TEST(Groepen, ToontekstIsCodeEnNaamAaneen)
{
    Groepen groepen;
    groepen.ZetNaam(2, "Clubleden");
    EXPECT_EQ(groepen.Toontekst(2), "Gr02-Clubleden");
    EXPECT_EQ(groepen.Toontekst(50), "Gr50-");
    groepen.ZetNaam(1, "a,b\r\nc"); // a comma and a line end cannot stand in a name
    EXPECT_EQ(groepen.Naam(1), "a_b  c");
}

TEST(GroepenUit, NamenOpVolgorde)
{
    const std::pair<Tekst, std::vector<Tekst>> gevallen[] = {
        {"Gr01-Clubleden\r\nGr02-\r\nGr03-Jeugd\r\n", {"Clubleden", "", "Jeugd", ""}},
        // Meant: the place counts, the digits in the file are not looked at.
        {"Gr01-a\r\nGr02-b\r\nGr07-Junioren\r\n", {"a", "b", "Junioren", "", "", "", ""}},
        {"Gr01-a,Gr02-b,,iets\rGr03-c\n\n,Gr04-d", {"a", "b", "c", "d", ""}},
        {"GR01-a\r\ngr02-b\r\n Gr03-c\r\nXGr04-d\r\nGr05-e\r\n", {"e", ""}},
        // An item that is cut short is a group without a name.
        {"Gr\r\nGr02\r\nGr03-\r\nGr04-d\r\n", {"", "", "", "d"}},
        {"Gr01- a \t\r\n", {" a \t"}},
        {"Gr01-\x81\x8D\xE9\r\n", {"\x81\x8D\xE9"}}};
    for (const auto& [tekst, namen] : gevallen) {
        const Groepen groepen = GroepenUit(tekst);
        for (std::size_t i = 0; i < namen.size(); ++i)
            EXPECT_EQ(groepen.Naam(static_cast<int>(i) + 1), namen[i]) << tekst;
        EXPECT_EQ(groepen.Naam(50), "");
    }
}

TEST(GroepenUit, NaDeVijftigsteNietMeer)
{
    Tekst tekst;
    for (int nummer = 1; nummer <= 52; ++nummer)
        tekst += "Gr00-naam" + std::to_string(nummer) + "\r\n";
    const Groepen groepen = GroepenUit(tekst);
    EXPECT_EQ(groepen.Naam(1), "naam1");
    EXPECT_EQ(groepen.Naam(50), "naam50");
}

TEST(GroepenTekst, VijftigRegels)
{
    EXPECT_EQ(GroepenTekst(Groepen()), VijftigCodes());
    Groepen groepen;
    groepen.ZetNaam(1, "Clubleden");
    groepen.ZetNaam(50, "\x9D");
    Tekst verwacht = VijftigCodes();
    verwacht.insert(verwacht.size() - 2, "\x9D");
    verwacht.insert(5, "Clubleden");
    EXPECT_EQ(GroepenTekst(groepen), verwacht);
}

TEST(IsGroepenbestand, AlleenWieNietsVerliest)
{
    for (const Tekst& goed : {Tekst(), VijftigCodes(), Tekst("Gr01-a,Gr02-b\n\nGr03-")})
        EXPECT_TRUE(IsGroepenbestand(goed)) << goed;
    for (const Tekst& fout :
         {VijftigCodes() + "Gr51-te veel\r\n", Tekst("Gr01-Club, dinsdag\r\n"), Tekst("Gr01\r\n"),
          Tekst("Grote clubleden\r\n"), Tekst("Gr1--a\r\n"), Tekst("; namen\r\nGr01-a\r\n")})
        EXPECT_FALSE(IsGroepenbestand(fout)) << fout;
}

TEST(LeesGroepen, OntbrekendOfOnleesbaarIsZonderNamen)
{
    GeheugenSchijf binnen;
    EXPECT_EQ(LeesGroepen(binnen, Proefmappen()).Naam(1), "");
    binnen.Zet(groepenbestand, "Gr01-a\r\n");
    EXPECT_EQ(LeesGroepen(binnen, Proefmappen()).Naam(1), "a");
    FalendeSchijf schijf(binnen);
    schijf.FaalBij(1);
    EXPECT_EQ(LeesGroepen(schijf, Proefmappen()).Naam(1), "");
}

TEST(SchrijfGroepen, PreciesDeTekst)
{
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, VijftigCodes());
    Groepen groepen = LeesGroepen(schijf, Proefmappen());
    groepen.ZetNaam(3, "Jeugd \x8D");
    ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt);
    Tekst verwacht = VijftigCodes();
    verwacht.insert(2 * 7 + 5, "Jeugd \x8D");
    EXPECT_EQ(schijf.Inhoud(groepenbestand), verwacht);
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{groepenbestand});
}

TEST(SchrijfGroepen, OnzinWordtEerstGekopieerd)
{
    for (const Tekst& onzin : {Tekst("Gr01-Club, dinsdag\r\n"), VijftigCodes() + "Gr51-te veel\r\n",
                               Tekst("\0\x81", 2)}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, onzin);
        Groepen groepen = LeesGroepen(schijf, Proefmappen());
        groepen.ZetNaam(1, "Clubleden");
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt);
        EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(groepen));
        EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{onzin});
        groepen.ZetNaam(1, "Leden");
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt);
        EXPECT_EQ(Kopieen(schijf).size(), 1U);
    }
}

/// Read once from a disk that failed just then.
TEST(SchrijfGroepen, WatErStondMaarNietGelezenWerdWordtEerstGekopieerd)
{
    const Tekst ander = "Gr01-Clubleden\r\nGr02-Jeugd\r\n";
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, ander);
    Groepen groepen;
    groepen.ZetNaam(3, "Nieuw");
    ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt);
    EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(groepen));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{ander});
}

TEST(SchrijfGroepen, DeNamenVanEenAnderProgrammaKomenMee)
{
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, VijftigCodes());
    Groepen groepen = LeesGroepen(schijf, Proefmappen());
    Groepen daar = groepen;
    daar.ZetNaam(2, "Jeugd");
    schijf.Zet(groepenbestand, GroepenTekst(daar));
    groepen.ZetNaam(3, "Nieuw");
    const Bewaring bewaard = SchrijfGroepen(schijf, Proefmappen(), groepen);
    ASSERT_TRUE(bewaard.gelukt);
    daar.ZetNaam(3, "Nieuw");
    EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(daar));
    EXPECT_EQ(groepen.Toonteksten(), daar.Toonteksten());
    EXPECT_EQ(bewaard.overgenomen, std::vector<Tekst>{"Gr02-Jeugd"});
    EXPECT_EQ(bewaard.botsingen, std::vector<Tekst>());
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{groepenbestand}) << "geen kopie";
    // It is ours now: the next save changes what it changes.
    groepen.ZetNaam(2, "Kinderen");
    EXPECT_EQ(SchrijfGroepen(schijf, Proefmappen(), groepen).botsingen, std::vector<Tekst>());
    EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(groepen));
}

TEST(SchrijfGroepen, VanEenNaamDieBeideGavenBlijftDeAndereEnKomtDeOnzeInEenKopie)
{
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, VijftigCodes());
    Groepen groepen = LeesGroepen(schijf, Proefmappen());
    Groepen daar = groepen;
    daar.ZetNaam(2, "Daar");
    schijf.Zet(groepenbestand, GroepenTekst(daar));
    groepen.ZetNaam(2, "Hier");
    const Tekst ons = GroepenTekst(groepen);
    const Bewaring bewaard = SchrijfGroepen(schijf, Proefmappen(), groepen);
    ASSERT_TRUE(bewaard.gelukt);
    EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(daar));
    EXPECT_EQ(groepen.Naam(2), "Daar");
    EXPECT_EQ(bewaard.botsingen, std::vector<Tekst>{"Gr02-Hier"});
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{ons});
    EXPECT_EQ(schijf.Inhoud(bewaard.onze), ons);
}

/// Between the last look and the renaming, more than once.
TEST(SchrijfGroepen, WatErTijdensHetOpslaanVerandertKomtOokMee)
{
    GeheugenSchijf binnen;
    binnen.Zet(groepenbestand, VijftigCodes());
    FalendeSchijf schijf(binnen);
    Groepen groepen = LeesGroepen(schijf, Proefmappen());
    Groepen daar = groepen;
    int keer = 0;
    schijf.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0") && keer < 3) {
            daar.ZetNaam(++keer, "Daar");
            binnen.Zet(groepenbestand, GroepenTekst(daar));
        }
        return true;
    });
    groepen.ZetNaam(9, "Hier");
    const Bewaring bewaard = SchrijfGroepen(schijf, Proefmappen(), groepen);
    ASSERT_TRUE(bewaard.gelukt);
    daar.ZetNaam(9, "Hier");
    EXPECT_EQ(binnen.Inhoud(groepenbestand), GroepenTekst(daar));
    EXPECT_EQ(bewaard.overgenomen, (std::vector<Tekst>{"Gr01-Daar", "Gr02-Daar", "Gr03-Daar"}));
    // One who never stops is not waited for.
    schijf.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0")) {
            daar.ZetNaam(1, std::to_string(++keer));
            binnen.Zet(groepenbestand, GroepenTekst(daar));
        }
        return true;
    });
    groepen.ZetNaam(9, "Weer hier");
    EXPECT_EQ(SoortVan(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt),
              Foutsoort::Gewijzigd);
    EXPECT_EQ(binnen.Inhoud(groepenbestand), GroepenTekst(daar));
}

/// Half a file has lost no names: they stay, and so does what stands there.
TEST(SchrijfGroepen, EenBestandDatIsAfgebrokenKostGeenNamen)
{
    Groepen groepen;
    groepen.ZetNaam(50, "Laatste");
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, GroepenTekst(groepen));
    groepen = LeesGroepen(schijf, Proefmappen());
    EXPECT_EQ(groepen.aantal, 50);
    for (const Tekst half : {"Gr01-Daar\r\nGr02-", "Gr01-Daar\r\nGr0", "", "\r\n"}) {
        schijf.Zet(groepenbestand, half);
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt) << half;
        EXPECT_EQ(groepen.Naam(50), "Laatste") << "niets gewijzigd: " << half;
        groepen.ZetNaam(3, "Hier " + std::to_string(half.size()));
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt) << half;
        EXPECT_EQ(groepen.Naam(1), "Daar") << half;
        EXPECT_EQ(groepen.Naam(50), "Laatste") << half;
        EXPECT_EQ(LeesGroepen(schijf, Proefmappen()).Toonteksten(), groepen.Toonteksten()) << half;
    }
}

TEST(MaakGroepenbestand, TerugzettenZonderHetBlancoBegin)
{
    for (const Tekst oud : {"\r\nGr01-a\r\nGr02-b", " , \r\n,Gr01-a\r\nGr02-b"}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, oud);
        const Aanmaak aanmaak = MaakGroepenbestand(schijf, Proefmappen());
        EXPECT_EQ(schijf.Inhoud(aanmaak.kopie), oud);
        ASSERT_TRUE(ZetTerug(schijf, spelersmap, groepenbestand, aanmaak));
        EXPECT_EQ(schijf.Inhoud(groepenbestand), "Gr01-a\r\nGr02-b");
    }
    GeheugenSchijf schijf;
    schijf.Zet(groepenbestand, ",\r\n"); // nothing to put back
    EXPECT_EQ(MaakGroepenbestand(schijf, Proefmappen()).inhoud, "");
}

TEST(MaakGroepenbestand, ZonderMapEenFout)
{
    GeheugenSchijf schijf;
    EXPECT_EQ(SoortVan(MaakGroepenbestand(schijf, Proefmappen()).gemaakt), Foutsoort::Ontbreekt);
}
