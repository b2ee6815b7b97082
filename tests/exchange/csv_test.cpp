// Players as a text with separators.
#include "exchange/uitvoerproef.h"

using namespace plexoran;

namespace {

Tekst Csv(const std::vector<Cellen>& spelers, const std::vector<Kolom>& kolommen,
          Tekenset tekenset = Tekenset::Windows1252)
{
    const Uitvoerproef proef{MaakSpelers(spelers)};
    return MaakCsv(proef.Van(kolommen), tekenset).value().value();
}

/// What a surname becomes, without the line of the header and the line end.
Tekst Cel(const Tekst& tekst)
{
    const Tekst csv = Csv({{{Kolom::Achternaam, tekst}}}, {Kolom::Achternaam, Kolom::Land});
    return csv.substr(17, csv.size() - 20);
}

/// How a reader takes the apostrophe off again (docs/bestanden.md).
Tekst ZonderApostrof(const Tekst& tekst)
{
    const auto plek = tekst.find_first_not_of('\'');
    const bool bewaakt =
        plek != Tekst::npos && plek > 0 && Tekst("=+-@\t\r").find(tekst[plek]) != Tekst::npos;
    return bewaakt ? tekst.substr(1) : tekst;
}

} // namespace

TEST(Csv, DeKolommenInHunVolgordeMetEenKop)
{
    EXPECT_EQ("Telef;Achternaam\r\n"
              "010-1234567;Bos\r\n"
              ";de Vries\r\n",
              Csv({{{Kolom::Achternaam, "Bos"}, {Kolom::Telef, "010-1234567"}},
                   {{Kolom::Achternaam, "de Vries"}}},
                  {Kolom::Telef, Kolom::Achternaam}));
}

TEST(Csv, DeSpelersInHunVolgorde)
{
    const Uitvoerproef proef{
        MaakSpelers({{{Kolom::Key, "1"}}, {{Kolom::Key, "2"}}, {{Kolom::Key, "3"}}})};
    Uitvoer uitvoer = proef.Van({Kolom::Key});
    uitvoer.rijen = {3, 1};
    EXPECT_EQ("Key\r\n3\r\n1\r\n", MaakCsv(uitvoer, Tekenset::Windows1252).value().value());
}

TEST(Csv, Utf8HeeftEenMerkVooraan)
{
    const std::vector<Cellen> spelers{{{Kolom::Achternaam, "Ren\xE9 \x80"}}};
    EXPECT_EQ("\xEF\xBB\xBF"
              "Achternaam\r\nRen\xC3\xA9 \xE2\x82\xAC\r\n",
              Csv(spelers, {Kolom::Achternaam}, Tekenset::Utf8));
    EXPECT_EQ("Achternaam\r\nRen\xE9 \x80\r\n", Csv(spelers, {Kolom::Achternaam}));
}

TEST(Csv, AanhalingstekensWaarDatMoet)
{
    EXPECT_EQ("Bos", Cel("Bos"));
    EXPECT_EQ("\"Bos;Vis\"", Cel("Bos;Vis"));
    EXPECT_EQ("\"\"\"de\"\" Bos\"", Cel("\"de\" Bos"));
    EXPECT_EQ(" Bos ", Cel(" Bos "));
    EXPECT_EQ("", Cel(""));
    EXPECT_EQ("Land\r\n\"\"\r\nNL\r\n", Csv({{}, {{Kolom::Land, "NL"}}}, {Kolom::Land}))
        << "een lege regel zou wegvallen";
}

TEST(Csv, EenTekstDieEenFormuleLijktKrijgtEenApostrof)
{
    EXPECT_EQ("'=1+1", Cel("=1+1"));
    EXPECT_EQ("'+31 6 12345678", Cel("+31 6 12345678"));
    EXPECT_EQ("'-", Cel("-"));
    EXPECT_EQ("'@club", Cel("@club"));
    EXPECT_EQ("'\tBos", Cel("\tBos"));
    EXPECT_EQ("\"'=HYPERLINK(\"\"x\"\";1)\"", Cel("=HYPERLINK(\"x\";1)"));
    EXPECT_EQ("06-12345678", Cel("06-12345678"));
    EXPECT_EQ("a=b", Cel("a=b"));
    EXPECT_EQ("'s-Gravenhage", Cel("'s-Gravenhage"));
}

TEST(Csv, DeApostrofIsErWeerAfTeHalen)
{
    EXPECT_EQ("''=1", Cel("'=1")); // else it would come back without its own
    for (const char* tekst : {"=1", "'=1", "''+31", "+31 6", "'s-Gravenhage", "'", "''", "", "Bos",
                              "-", "'-", "'a=b", "@", "\t'"})
        EXPECT_EQ(tekst, ZonderApostrof(Cel(tekst))) << tekst;
}

/// A line is copied as it stands where that will do, and made cell by cell elsewhere.
TEST(Csv, ElkeVolgordeVanKolommenGeeftDezelfdeCellen)
{
    std::vector<Cellen> spelers;
    for (const Tekst tekst : {"Bos", "=1", "Ren\xE9", "a;b", "'t", "'=", ""}) {
        spelers.emplace_back();
        for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
            spelers.back().emplace_back(static_cast<Kolom>(kolom), "x");
        spelers.back()[3].second = tekst;
        spelers.back()[2].second = "Gr01-Clubleden";
    }
    const Tekst cellen[] = {"Bos", "'=1", "Ren\xC3\xA9", "\"a;b\"", "'t", "''=", ""};
    Tekst verwacht = "\xEF\xBB\xBF"
                     "Key;Groep;Voornaam;Tusv\r\n";
    Tekst omgekeerd = "\xEF\xBB\xBF"
                      "Tusv;Voornaam;Groep\r\n";
    for (const Tekst& cel : cellen) {
        verwacht += "x;Gr01-;" + cel + ";x\r\n";
        omgekeerd += "x;" + cel + ";Gr01-\r\n";
    }
    EXPECT_EQ(verwacht, Csv(spelers, {Kolom::Key, Kolom::Groep, Kolom::Voornaam, Kolom::Tusv},
                            Tekenset::Utf8));
    EXPECT_EQ(omgekeerd,
              Csv(spelers, {Kolom::Tusv, Kolom::Voornaam, Kolom::Groep}, Tekenset::Utf8));
}

TEST(Csv, VeelSpelersKomenHeelOver)
{
    std::vector<Cellen> spelers(5000, {{Kolom::Achternaam, Tekst(40, '\xE9')}});
    Tekst verwacht = "\xEF\xBB\xBF"
                     "Achternaam\r\n";
    for (std::size_t i = 0; i < spelers.size(); ++i) {
        for (int teken = 0; teken < 40; ++teken)
            verwacht += "\xC3\xA9";
        verwacht += "\r\n";
    }
    EXPECT_TRUE(verwacht == Csv(spelers, {Kolom::Achternaam}, Tekenset::Utf8));
}

TEST(Csv, HetIsTeStoppen)
{
    const Uitvoerproef proef{MaakSpelers(std::vector<Cellen>(1500))};
    EXPECT_EQ(std::nullopt,
              MaakCsv(proef.Van({Kolom::Key}), Tekenset::Utf8, StoptMeteen()).value());
}
