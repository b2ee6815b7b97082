#include "exchange/spelerslijst.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Rijen = std::vector<std::vector<Tekst>>;

Rijen RijenVan(const Spelerslijst& lijst)
{
    Rijen uit;
    for (std::size_t rij = 0; rij < lijst.Rijen(); ++rij) {
        uit.emplace_back();
        for (std::size_t kolom = 0; kolom < lijst.Cellen(rij); ++kolom)
            uit.back().emplace_back(lijst.Cel(rij, kolom));
    }
    return uit;
}

/// As the window reads a file: everything found out.
Lijstuitkomst<Spelerslijst> Lees(Tekstblik bytes)
{
    return Lijsttekstvan(bytes).and_then([](const Lijsttekst& tekst) {
        return LeesSpelerslijst(tekst.tekst, HerkenVorm(tekst.tekst));
    });
}

Rijen RijenUit(Tekstblik bytes)
{
    const auto lijst = Lees(bytes);
    return lijst ? RijenVan(*lijst) : Rijen{{"fout"}};
}

/// What is wrong, by its place among the objections, and where.
std::pair<Lijstbezwaar, int> FoutVan(const Lijstuitkomst<Spelerslijst>& lijst)
{
    return lijst ? std::pair(Lijstbezwaar::Gestopt, -1)
                 : std::pair(lijst.error().bezwaar, lijst.error().regel);
}

Tekst AlsUtf16(Tekstblik tekst, bool groot)
{
    Tekst uit = groot ? "\xFE\xFF" : "\xFF\xFE";
    for (const char teken : tekst)
        uit += groot ? Tekst{'\0', teken} : Tekst{teken, '\0'};
    return uit;
}

} // namespace

TEST(Spelerslijst, VindtElkScheidingsteken)
{
    const Rijen verwacht{{"Naam", "Plaats"}, {"Jan Bos", "Ede"}, {"Eva Fuik", "Goes"}};
    EXPECT_EQ(verwacht, RijenUit("Naam;Plaats\r\nJan Bos;Ede\r\nEva Fuik;Goes\r\n"));
    EXPECT_EQ(verwacht, RijenUit("Naam,Plaats\r\nJan Bos,Ede\r\nEva Fuik,Goes\r\n"));
    EXPECT_EQ(verwacht, RijenUit("Naam\tPlaats\r\nJan Bos\tEde\r\nEva Fuik\tGoes\r\n"));
    EXPECT_EQ(verwacht, RijenUit("Naam|Plaats\r\nJan Bos|Ede\r\nEva Fuik|Goes\r\n"));
}

TEST(Spelerslijst, KommasInNamenZijnGeenScheiding)
{
    EXPECT_EQ((Rijen{{"Naam", "Tel", "Plaats"}, {"Bos, Jan", "1", "Ede"}, {"Fuik, Eva", "2", ""}}),
              RijenUit("Naam;Tel;Plaats\nBos, Jan;1;Ede\nFuik, Eva;2;\n"));
    EXPECT_EQ((Rijen{{"Naam"}, {"Bos, Jan"}, {"Fuik, Eva"}}),
              RijenUit("Naam\nBos, Jan\nFuik, Eva\n"));
}

TEST(Spelerslijst, ScheidtOpHetTekenWaarOverDeRijenHetEensZijn)
{
    EXPECT_EQ(
        (Rijen{{"Naam", "Adres, postcode, plaats"}, {"Jan Bos", "Ede"}, {"Eva Fuik", "Goes"}}),
        RijenUit("Naam;Adres, postcode, plaats\nJan Bos;Ede\nEva Fuik;Goes\n"));
}

TEST(Spelerslijst, LeestElkRegeleindeEnDeLaatsteRegelZonder)
{
    const Rijen verwacht{{"a", "b"}, {"c", "d"}};
    for (const char* tekst :
         {"a;b\r\nc;d\r\n", "a;b\nc;d\n", "a;b\rc;d\r", "a;b\r\nc;d", "a;b\n\n;\nc;d"})
        EXPECT_EQ(verwacht, RijenUit(tekst)) << tekst;
    EXPECT_EQ("\r\n", HerkenVorm("a;b\r\nc").regeleinde);
    EXPECT_EQ("\n", HerkenVorm("a;b\nc\n").regeleinde);
    EXPECT_EQ("\r", HerkenVorm("a;b\rc\r").regeleinde);
    EXPECT_EQ("", HerkenVorm("a;b\r\nc\nd").regeleinde);
    EXPECT_EQ((Rijen{{"a\rb"}, {"c"}}),
              RijenVan(LeesSpelerslijst("a\rb\nc", {.regeleinde = "\n"}).value()));
}

TEST(Spelerslijst, HaaltAanhalingenWeg)
{
    EXPECT_EQ((Rijen{{"a;b", "zei \"ja\"", ""}, {"een\r\ntwee", "x y", "z"}}),
              RijenUit("\"a;b\";\"zei \"\"ja\"\"\";\"\"\r\n\"een\r\ntwee\";\"x\" y;z"));
    EXPECT_EQ((Rijen{{"a,b", "c"}, {"'t Gooi", "d"}}), RijenUit("'a,b','c'\n'''t Gooi','d'\n"));
    EXPECT_EQ((Rijen{{"\"a", "b"}}),
              RijenVan(LeesSpelerslijst("\"a;b", {.scheiding = ';', .aanhaling = '\0'}).value()));
    EXPECT_EQ((Rijen{{"5\" buis", "b"}}), RijenUit("5\" buis;b\n"));
}

TEST(Spelerslijst, KentDeTekensetten)
{
    EXPECT_EQ((Rijen{{"Zo\xEB", "\x80"}}), RijenUit("Zo\xC3\xAB;\xE2\x82\xAC"));
    EXPECT_EQ((Rijen{{"Zo\xEB", "x"}}), RijenUit("\xEF\xBB\xBFZo\xC3\xAB;x"));
    EXPECT_EQ((Rijen{{"Zo\xEB", "x"}}), RijenUit("Zo\xEB;x"));
    EXPECT_EQ((Rijen{{"Zo\xEB", "x"}}), RijenUit(AlsUtf16("Zo\xEB;x", true)));
    EXPECT_EQ((Rijen{{"Zo\xEB", "x"}}), RijenUit(AlsUtf16("Zo\xEB;x", false)));
    EXPECT_EQ(Lijsttekenset::Utf8, Lijsttekstvan("Zo\xC3\xAB")->tekenset);
    EXPECT_EQ(Lijsttekenset::Utf16, Lijsttekstvan("\xFE\xFF")->tekenset);
    EXPECT_EQ(Lijsttekenset::Windows1252, Lijsttekstvan("Jan")->tekenset);
    EXPECT_EQ("Zo\xC3\xAB", Lijsttekstvan("Zo\xC3\xAB", Lijsttekenset::Windows1252)->tekst);
}

TEST(Spelerslijst, TeltWatHetSpelerbestandNietKent)
{
    // An o with two accents on line 2, a Chinese character on line 3.
    const auto tekst = Lijsttekstvan("Naam\r\nErd\xC5\x91s\r\nLi \xE6\x9D\x8E\r\n");
    ASSERT_TRUE(tekst.has_value());
    EXPECT_EQ("Naam\r\nErdos\r\nLi \r\n", tekst->tekst);
    EXPECT_EQ(2U, tekst->vervangen);
    EXPECT_EQ(2, tekst->regel);
    EXPECT_EQ(u"\u0151", tekst->eerste->teken);
    EXPECT_EQ("o", tekst->eerste->door);
}

TEST(Spelerslijst, NoemtDeRegelDieNietInDeTekensetIs)
{
    const auto fout = [](Lijstbezwaar bezwaar, int regel) { return std::pair(bezwaar, regel); };
    EXPECT_EQ(fout(Lijstbezwaar::Lijsttekenset, 3), FoutVan(Lees("\xEF\xBB\xBF"
                                                                 "a\nb\nZo\xEB\n")));
    EXPECT_EQ(fout(Lijstbezwaar::Lijsttekenset, 2),
              FoutVan(Lees("Zo\xC3\xAB\nRen\xE9\nCh\xC3\xA9\n")));
    EXPECT_EQ(fout(Lijstbezwaar::GeenTekst, 0), FoutVan(Lees(Tekst("GIF89a\0\0;x", 11))));
    EXPECT_EQ(fout(Lijstbezwaar::Leeg, 0), FoutVan(Lees("")));
    EXPECT_EQ(fout(Lijstbezwaar::Leeg, 0), FoutVan(Lees("\r\n ; \r\n")));
}

TEST(Spelerslijst, NoemtDeRegelWaarEenAanhalingOpenBlijft)
{
    EXPECT_EQ(std::pair(Lijstbezwaar::Aanhaling, 3),
              FoutVan(Lees("a;b\r\nc;d\r\ne;\"f\r\ng;h\r\n")));
    EXPECT_EQ(std::pair(Lijstbezwaar::Aanhaling, 4),
              FoutVan(Lees("a;b\r\n\"c\r\nc\";d\r\ne;\"f\r\ng;h\r\n")));
    // On the second line of its row.
    EXPECT_EQ(std::pair(Lijstbezwaar::Aanhaling, 3), FoutVan(Lees("a;b\r\n\"c\r\nc\";\"d\r\n")));
}

TEST(Spelerslijst, NoemtDeRegelsZoalsEenTekstprogrammaZeTelt)
{
    const auto lijst = Lees("a;b\r\n\r\n\"c\r\nc\";d\r\ne;f\r\n").value();
    ASSERT_EQ(3U, lijst.Rijen());
    EXPECT_EQ(1, lijst.Regel(0));
    EXPECT_EQ(3, lijst.Regel(1));
    EXPECT_EQ(5, lijst.Regel(2));
}

TEST(Spelerslijst, WeigertEenLijstVanTeVeelKolommenOfRegels)
{
    EXPECT_EQ(200U, Lees(Tekst(199, ';') + "x")->Kolommen());
    EXPECT_EQ(std::pair(Lijstbezwaar::TeBreed, 2), FoutVan(Lees("a\n" + Tekst(10'000, ';') + "x")));
    Tekst lang;
    for (std::size_t i = 0; i <= MeesteLijstrijen; ++i)
        lang += "x\n";
    EXPECT_EQ(std::pair(Lijstbezwaar::TeLang, 0), FoutVan(Lees(lang)));
}

TEST(Spelerslijst, KanTussentijdsStoppen)
{
    Tekst lang;
    for (int i = 0; i < 10'000; ++i)
        lang += "x;y\n";
    int keren = 0;
    const auto lijst = LeesSpelerslijst(lang, {}, [&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_LT(gedaan, geheel);
        return ++keren < 2;
    });
    EXPECT_EQ(std::pair(Lijstbezwaar::Gestopt, 0), FoutVan(lijst));
    EXPECT_EQ(2, keren);
}
