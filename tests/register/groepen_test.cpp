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
}

TEST(CodeUit, DeEersteVijfTekens)
{
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
}

TEST(Groepen, KommaEnRegeleindeKunnenNietInEenNaam)
{
    Groepen groepen;
    groepen.ZetNaam(1, "a,b\r\nc");
    EXPECT_EQ(groepen.Naam(1), "a_b  c");
}

TEST(GroepenUit, NamenOpVolgorde)
{
    const Groepen groepen = GroepenUit("Gr01-Clubleden\r\nGr02-\r\nGr03-Jeugd\r\n");
    EXPECT_EQ(groepen.Naam(1), "Clubleden");
    EXPECT_EQ(groepen.Naam(2), "");
    EXPECT_EQ(groepen.Naam(3), "Jeugd");
    EXPECT_EQ(groepen.Naam(4), "");
    EXPECT_EQ(groepen.Naam(50), "");
}

TEST(GroepenUit, DePlaatsTeltNietHetNummer)
{
    // Meant: the digits in the file are not looked at.
    const Groepen groepen = GroepenUit("Gr01-a\r\nGr02-b\r\nGr07-Junioren\r\n");
    EXPECT_EQ(groepen.Naam(3), "Junioren");
    EXPECT_EQ(groepen.Naam(7), "");
}

TEST(GroepenUit, ItemsEindigenOokBijEenKomma)
{
    const Groepen groepen = GroepenUit("Gr01-a,Gr02-b,,iets\rGr03-c\n\n,Gr04-d");
    EXPECT_EQ(groepen.Naam(1), "a");
    EXPECT_EQ(groepen.Naam(2), "b");
    EXPECT_EQ(groepen.Naam(3), "c");
    EXPECT_EQ(groepen.Naam(4), "d");
}

TEST(GroepenUit, AlleenItemsDieMetGrBeginnen)
{
    const Groepen groepen = GroepenUit("GR01-a\r\ngr02-b\r\n Gr03-c\r\nXGr04-d\r\nGr05-e\r\n");
    EXPECT_EQ(groepen.Naam(1), "e");
    EXPECT_EQ(groepen.Naam(2), "");
}

TEST(GroepenUit, KortItemIsEenGroepZonderNaam)
{
    const Groepen groepen = GroepenUit("Gr\r\nGr02\r\nGr03-\r\nGr04-d\r\n");
    EXPECT_EQ(groepen.Naam(1), "");
    EXPECT_EQ(groepen.Naam(2), "");
    EXPECT_EQ(groepen.Naam(4), "d");
}

TEST(GroepenUit, NaamWordtNietBijgesneden)
{
    EXPECT_EQ(GroepenUit("Gr01- a \t\r\n").Naam(1), " a \t");
    EXPECT_EQ(GroepenUit("Gr01-\x81\x8D\xE9\r\n").Naam(1), "\x81\x8D\xE9");
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
    EXPECT_TRUE(IsGroepenbestand(""));
    EXPECT_TRUE(IsGroepenbestand(VijftigCodes()));
    EXPECT_TRUE(IsGroepenbestand("Gr01-a,Gr02-b\n\nGr03-"));
    EXPECT_FALSE(IsGroepenbestand(VijftigCodes() + "Gr51-te veel\r\n"));
    EXPECT_FALSE(IsGroepenbestand("Gr01-Club, dinsdag\r\n"));
    EXPECT_FALSE(IsGroepenbestand("Gr01\r\n"));
    EXPECT_FALSE(IsGroepenbestand("Grote clubleden\r\n"));
    EXPECT_FALSE(IsGroepenbestand("Gr1--a\r\n"));
    EXPECT_FALSE(IsGroepenbestand("; namen\r\nGr01-a\r\n"));
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
    ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen));
    Tekst verwacht = VijftigCodes();
    verwacht.insert(2 * 7 + 5, "Jeugd \x8D");
    EXPECT_EQ(schijf.Inhoud(groepenbestand), verwacht);
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{groepenbestand});
}

TEST(SchrijfGroepen, OnzinWordtEerstGekopieerd)
{
    for (const Tekst& onzin :
         {Tekst("dit is iets anders\r\n"), Tekst("Gr01-Club, dinsdag\r\n"),
          Tekst("Grote clubleden\r\n"), VijftigCodes() + "Gr51-te veel\r\n", Tekst("\0\x81", 2)}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, onzin);
        Groepen groepen = LeesGroepen(schijf, Proefmappen());
        groepen.ZetNaam(1, "Clubleden");
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen));
        EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(groepen));
        EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{onzin});
        groepen.ZetNaam(1, "Leden");
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen));
        EXPECT_EQ(Kopieen(schijf).size(), 1U);
    }
}

TEST(SchrijfGroepen, WatErStondMaarNietGelezenWerdWordtEerstGekopieerd)
{
    // Read once from a disk that failed just then, or changed by another program since.
    const Tekst ander = "Gr01-Clubleden\r\nGr02-Jeugd\r\n";
    for (const bool gelezen : {false, true}) {
        GeheugenSchijf schijf;
        Groepen groepen;
        if (gelezen) {
            schijf.Zet(groepenbestand, "Gr01-Clubleden\r\n");
            groepen = LeesGroepen(schijf, Proefmappen());
        }
        schijf.Zet(groepenbestand, ander);
        groepen.ZetNaam(3, "Nieuw");
        ASSERT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen));
        EXPECT_EQ(schijf.Inhoud(groepenbestand), GroepenTekst(groepen));
        EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{ander});
    }
}

TEST(MaakGroepenbestand, OntbrekendWordtGemaakt)
{
    GeheugenSchijf schijf;
    schijf.ZetMap(spelersmap);
    ASSERT_TRUE(MaakGroepenbestand(schijf, Proefmappen()).gemaakt);
    EXPECT_EQ(schijf.Inhoud(groepenbestand), VijftigCodes());
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{groepenbestand});
}

TEST(MaakGroepenbestand, LeegWordtOpnieuwGemaaktZonderKopie)
{
    for (const Tekst leeg : {"", "\r\n", "   ", "  \r\n\r\n \n"}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, leeg);
        ASSERT_TRUE(MaakGroepenbestand(schijf, Proefmappen()).gemaakt);
        EXPECT_EQ(schijf.Inhoud(groepenbestand), VijftigCodes());
        EXPECT_TRUE(Kopieen(schijf).empty());
    }
}

TEST(MaakGroepenbestand, EersteItemBlancoWordtOpnieuwGemaaktMetKopie)
{
    // Meant: one blank first item and the names behind it are made anew; the copy keeps them.
    for (const Tekst half : {"\r\nGr01-a\r\n", "  ,Gr01-a\r\n", ",\r\n", " \nx"}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, half);
        ASSERT_TRUE(MaakGroepenbestand(schijf, Proefmappen()).gemaakt);
        EXPECT_EQ(schijf.Inhoud(groepenbestand), VijftigCodes());
        EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{half});
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

TEST(MaakGroepenbestand, AndersBlijftHetZoalsHetIs)
{
    for (const Tekst goed : {"x", "Gr01-a\r\n", "\t\r\n", "onzin\r\n\r\n"}) {
        GeheugenSchijf schijf;
        schijf.Zet(groepenbestand, goed);
        const auto voor = schijf.NeemStempel(groepenbestand);
        ASSERT_TRUE(MaakGroepenbestand(schijf, Proefmappen()).gemaakt);
        EXPECT_EQ(schijf.Inhoud(groepenbestand), goed);
        EXPECT_EQ(schijf.NeemStempel(groepenbestand), *voor);
        EXPECT_TRUE(Kopieen(schijf).empty());
    }
}

TEST(MaakGroepenbestand, ZonderMapEenFout)
{
    GeheugenSchijf schijf;
    const auto uitkomst = MaakGroepenbestand(schijf, Proefmappen()).gemaakt;
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Ontbreekt);
}
