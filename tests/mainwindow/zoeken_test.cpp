// Finding players by what is typed, on literal texts.
#include "mainwindow/zoeken.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace plexoran;

namespace {

/// A player with a key and these cells.
Rijvelden Speler(const Tekst& key, const std::vector<Celtekst>& cellen)
{
    Rijvelden velden;
    velden[Index(Kolom::Key)] = key;
    velden[Index(Kolom::Groep)] = "Gr01-";
    for (const auto& [kolom, tekst] : cellen)
        velden[Index(kolom)] = tekst;
    return velden;
}

/// One of whom every field is another word.
const Rijvelden Vol{"901",       "100007",           "Gr02-",      "Jan",       "van der", "Mei",
                    "06-12 345", "mei@post.example", "Laan 8 bis", "4321 AB",   "Ede",     "Belgia",
                    "M",         "voorzitter",       "invaller",   "overleden", "A-LIJN",  "77001"};

std::vector<int> Zoek(const std::vector<Rijvelden>& spelers, Tekstblik getypt)
{
    Spelertabel tabel;
    for (const Rijvelden& speler : spelers)
        tabel.VoegToe(speler);
    return ZoekSpelers(tabel, ZoekwoordenUit(getypt));
}

bool Antwoordt(Tekstblik getypt, const Rijvelden& speler = Vol)
{
    return !Zoek({speler}, getypt).empty();
}

/// His line, what answers between brackets.
Tekst Regel(Tekstblik getypt, const Rijvelden& speler = Vol, bool kort = false)
{
    Spelertabel tabel;
    tabel.VoegToe(speler);
    Groepen groepen;
    groepen.ZetNaam(2, "Donderdag");
    auto [tekst, merken] = MaakZoekregel(tabel, groepen, 1, ZoekwoordenUit(getypt), kort);
    for (auto merk = merken.rbegin(); merk != merken.rend(); ++merk) {
        tekst.insert(merk->first + merk->second, "]");
        tekst.insert(merk->first, "[");
    }
    return tekst;
}

} // namespace

TEST(ZoekSpelers, ElkGenoemdVeldAntwoordtOokOpEenDeelMiddenin)
{
    for (const char* deel :
         {"ja", "der", "ei", "345", "post.ex", "aan", "21", "ed", "rled", "-lij", "7700", "00007"})
        EXPECT_TRUE(Antwoordt(deel)) << deel;
    // What one does not look for people by.
    for (const char* deel : {"901", "gr02", "belgia", "voorz", "invall"})
        EXPECT_FALSE(Antwoordt(deel)) << deel;
}

TEST(ZoekSpelers, WoordenInElkeVolgordeMaarAllemaal)
{
    EXPECT_TRUE(Antwoordt("jan mei"));
    EXPECT_TRUE(Antwoordt("mei jan"));
    EXPECT_TRUE(Antwoordt("  ede   mei,jan "));
    EXPECT_FALSE(Antwoordt("jan mei zoek"));
    EXPECT_FALSE(Antwoordt("janmei")); // no word runs on in the next cell
    EXPECT_FALSE(Antwoordt(""));
    EXPECT_FALSE(Antwoordt(" , "));
}

TEST(ZoekSpelers, HoofdletterEnAccentTellenNiet)
{
    const Rijvelden zoe = Speler("1", {{Kolom::Voornaam, "Zo\xEB"},
                                       {Kolom::Achternaam, "\xC6gir-Stra\xDF"
                                                           "e"}});
    for (const char* getypt : {"zoe", "ZO\xCB", "aegir", "\xE6gir", "STRASSE",
                               "stra\xDF"
                               "e"})
        EXPECT_TRUE(Antwoordt(getypt, zoe)) << getypt;
    EXPECT_FALSE(Antwoordt("zo\xEB_", zoe));
}

TEST(ZoekSpelers, VanEenTelefoonnummerTellenDeCijfers)
{
    for (const char* getypt : {"0612345", "612", "06-12", "06-1 345", "(06)123", "12345"})
        EXPECT_TRUE(Antwoordt(getypt)) << getypt;
    EXPECT_FALSE(Antwoordt("06127"));
    EXPECT_FALSE(Antwoordt("0612a"));
    EXPECT_FALSE(Antwoordt("77-001")); // a federation number is none
    EXPECT_FALSE(Antwoordt("-+"));
}

TEST(ZoekSpelers, EenPostcodeOokZonderSpatie)
{
    EXPECT_TRUE(Antwoordt("4321ab"));
    EXPECT_TRUE(Antwoordt("4321 ab"));
    EXPECT_FALSE(Antwoordt("laan8")); // elsewhere a blank is one
}

TEST(ZoekSpelers, EersteDeAchternamenDanDeVoornamenDanDeRest)
{
    const auto met = [](const char* voornaam, const char* achternaam, const char* plaats) {
        return Speler("1", {{Kolom::Voornaam, voornaam},
                            {Kolom::Achternaam, achternaam},
                            {Kolom::Plaats, plaats}});
    };
    const std::vector<Rijvelden> spelers{
        met("Ada", "Vos", "Bosch"),  // 1: elsewhere
        met("Bosco", "Vos", ""),     // 2: first name
        met("Ada", "B\xF6s", ""),    // 3: surname
        met("Ada", "Ter Bos", ""),   // 4: within the surname
        met("Bos", "Bosman", "Bos"), // 5: surname
        met("Bo", "Vos", ""),        // not at all
        met("Bos", "Vos", "Ede"),    // 7: first name
    };
    EXPECT_EQ((std::vector{3, 5, 2, 7, 1, 4}), Zoek(spelers, "bos"));
    EXPECT_EQ((std::vector{1, 2, 7}), Zoek(spelers, "bos vos")); // by either word
}

TEST(MaakZoekregel, DeHeleSpelerMetWatAntwoordt)
{
    EXPECT_EQ("Jan van der Mei, Gr02-Donderdag, A-LIJN, 06-12 345, mei@post.example, Laan 8 bis, "
              "4321 AB, Ede, 77001, 100007, overleden",
              Regel(""));
    EXPECT_EQ("Jan van der [Mei], Gr02-Donderdag, A-LIJN, 06-12 345, [mei]@post.example, Laan 8 "
              "bis, 4321 AB, Ede, 77001, 100007, overleden",
              Regel("MEI"));
}

TEST(MaakZoekregel, HetMerkStaatOpDeTekensZoalsZeErStaan)
{
    EXPECT_TRUE(Regel("0612").find(" [06-12] 345,") != Tekst::npos) << Regel("0612");
    EXPECT_TRUE(Regel("06-1").find(" [06-1]2 345,") != Tekst::npos) << Regel("06-1");
    EXPECT_TRUE(Regel("21a").find(" 43[21 A]B,") != Tekst::npos) << Regel("21a");
    const Rijvelden ae = Speler("1", {{Kolom::Achternaam, "\xC6\xEB"}});
    EXPECT_EQ("[\xC6]\xEB, Gr01-, 1", Regel("a", ae));
    EXPECT_EQ("[\xC6\xEB], Gr01-, 1", Regel("ee", ae));
    // Two that touch are one.
    EXPECT_EQ("[\xC6\xEB], Gr01-, 1", Regel("ae e", ae));
}

TEST(MaakZoekregel, EenGroepDieNietBestaatStaatErMetHaarCode)
{
    Rijvelden kwijt = Speler("1", {{Kolom::Achternaam, "Bos"}});
    kwijt[Index(Kolom::Groep)] = "Gr77-";
    EXPECT_EQ("Bos, Gr77-, 1", Regel("", kwijt));
}

TEST(MaakZoekregel, InEenKorteRegelStaatWatAntwoordtVooraanEnVanLangeTekstenDeBuurt)
{
    EXPECT_EQ("Jan van der Mei, Gr02-Donderdag, [Ede], overl[ede]n, A-LIJN, 06-12 345, "
              "mei@post.example, Laan 8 bis, 4321 AB, 77001, 100007",
              Regel("ede", Vol, true));
    const Rijvelden lang =
        Speler("1", {{Kolom::Achternaam, Tekst(40, 'a') + "zoek" + Tekst(40, 'b')},
                     {Kolom::Adres, Tekst(40, 'c')}});
    EXPECT_EQ("...aaaaaaaa[zoek]bbbbbbbb..., Gr01-, " + Tekst(30, 'c') + "..., 1",
              Regel("zoek", lang, true));
    EXPECT_EQ(Tekst(40, 'a') + "[zoek]" + Tekst(40, 'b') + ", Gr01-, " + Tekst(40, 'c') + ", 1",
              Regel("zoek", lang));
}
