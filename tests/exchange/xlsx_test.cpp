// Players as a sheet: what stands in the file, and what another program reads of it.
#include <cstdlib>
#include <filesystem>
#include <regex>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

#include "exchange/uitvoerproef.h"
#include "platform/bronnen/zip.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "platform/tekst/codepagina.h"

using namespace plexoran;

namespace {

/// A part of the file.
Tekst Deel(Tekstblik xlsx, const Pad& naam)
{
    const auto delen = Uitgepakt(xlsx).value();
    for (const Zipdeel& deel : delen) {
        if (deel.naam == naam)
            return deel.inhoud;
    }
    return "ontbreekt";
}

Tekst Blad(const std::vector<Cellen>& spelers, const std::vector<Kolom>& kolommen)
{
    const Uitvoerproef proef{MaakSpelers(spelers)};
    return Deel(MaakXlsx(proef.Van(kolommen)).value().value(), "xl\\worksheets\\sheet1.xml");
}

/// Between two texts.
Tekst Tussen(const Tekst& tekst, const Tekst& van, const Tekst& tot)
{
    const auto begin = tekst.find(van) + van.size();
    return tekst.substr(begin, tekst.find(tot, begin) - begin);
}

/// Without the numbers of the styles, which the library gives out as it likes.
Tekst ZonderStijl(const Tekst& blad)
{
    static const std::regex stijl(" s(tyle)?=\"[0-9]+\"");
    return std::regex_replace(blad, stijl, "");
}

/// A surname as it stands in the file.
Tekst Cel(const Tekst& tekst)
{
    return Tussen(ZonderStijl(Blad({{{Kolom::Achternaam, tekst}}}, {Kolom::Achternaam})),
                  R"(<c r="A2" t="inlineStr"><is>)", "</is>");
}

std::vector<Kolom> AlleKolommen()
{
    std::vector<Kolom> uit;
    for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
        uit.push_back(static_cast<Kolom>(kolom));
    return uit;
}

const std::vector<Cellen> Lastig{
    {{Kolom::Key, "000123"}, {Kolom::Telef, "+31 6 12345678"}, {Kolom::Achternaam, "=1+1"}},
    {{Kolom::Key, "000124"}, {Kolom::Telef, "0612345678"}, {Kolom::Achternaam, "d'Angelo & <Bos>"}},
    {{Kolom::Key, "1E5"}, {Kolom::Telef, "1-2-2024"}, {Kolom::Achternaam, "Ren\xE9 \x80;\"x\""}},
    {{Kolom::Key, "TRUE"}, {Kolom::Telef, "'06"}, {Kolom::Achternaam, " @ rand "}},
    {{Kolom::Key, "http://x.nl"}, {Kolom::Telef, "1,5"}, {Kolom::Achternaam, "_x0041_"}}};

} // namespace

TEST(Xlsx, AllesStaatErAlsTekstIn)
{
    EXPECT_EQ(R"(<row r="1"><c r="A1" t="inlineStr"><is><t>Telef</t></is></c>)"
              R"(<c r="B1" t="inlineStr"><is><t>Achternaam</t></is></c></row>)"
              R"(<row r="2"><c r="A2" t="inlineStr"><is><t>0612345678</t></is></c>)"
              R"(<c r="B2" t="inlineStr"><is><t>=1+1</t></is></c></row>)"
              R"(<row r="3"><c r="A3"/><c r="B3" t="inlineStr"><is><t>Bos</t></is></c></row>)",
              Tussen(ZonderStijl(Blad({{{Kolom::Achternaam, "=1+1"}, {Kolom::Telef, "0612345678"}},
                                       {{Kolom::Achternaam, "Bos"}}},
                                      {Kolom::Telef, Kolom::Achternaam})),
                     "<sheetData>", "</sheetData>"));
}

TEST(Xlsx, ElkTekenKomtOver)
{
    EXPECT_EQ("<t>Ren\xC3\xA9 \xE2\x82\xAC</t>", Cel("Ren\xE9 \x80"));
    EXPECT_EQ("<t>&lt;b&gt; &amp; \"x\"</t>", Cel("<b> & \"x\""));
    EXPECT_EQ("<t xml:space=\"preserve\"> Bos </t>", Cel(" Bos "));
    EXPECT_EQ("<t>a_x0001_b</t>", Cel("a\x01"
                                      "b"));
    EXPECT_EQ("<t>a_x0000_b</t>", Cel(Tekst("a\0b", 3)));
}

TEST(Xlsx, EenTekstDieEenTekencodeLijktBlijftWatZeIs)
{
    EXPECT_EQ("<t>_x005F_x0041_</t>", Cel("_x0041_"));
    EXPECT_EQ("<t>a_x005F_x00e9_x005F_x0042_</t>", Cel("a_x00e9_x0042_"));
    EXPECT_EQ("<t>_x004_</t>", Cel("_x004_"));
    EXPECT_EQ("<t>_x00g1_</t>", Cel("_x00g1_"));
    EXPECT_EQ("<t>_x0041</t>", Cel("_x0041"));
}

TEST(Xlsx, DeKopStaatVastMetFiltersEnPassendeBreedten)
{
    const Tekst blad =
        ZonderStijl(Blad({{{Kolom::Land, Tekst(20, 'x')}, {Kolom::Adres, Tekst(200, 'x')}}, {}},
                         {Kolom::Land, Kolom::Adres, Kolom::Achternaam}));
    EXPECT_EQ(R"( ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>)",
              Tussen(blad, "<pane", "<selection"));
    EXPECT_EQ("A1:C3", Tussen(blad, "<autoFilter ref=\"", "\""));
    EXPECT_EQ(R"(<col min="1" max="1" width="21.7109375" customWidth="1"/>)"
              R"(<col min="2" max="2" width="60.7109375" customWidth="1"/>)"
              R"(<col min="3" max="3" width="13.7109375" customWidth="1"/>)",
              Tussen(blad, "<cols>", "</cols>"));
}

TEST(Xlsx, DeKopIsVetEnAllesIsVanDeSoortTekst)
{
    const Uitvoerproef proef{MaakSpelers({{{Kolom::Land, "NL"}}})};
    const Tekst xlsx = MaakXlsx(proef.Van({Kolom::Land})).value().value();
    const Tekst blad = Deel(xlsx, "xl\\worksheets\\sheet1.xml");
    const auto stijl = [&](const Tekst& van) {
        Tekst stijlen = Tussen(Deel(xlsx, "xl\\styles.xml"), "<cellXfs", "</cellXfs>");
        for (int i = std::stoi(Tussen(blad, van, "\"")); i >= 0; --i)
            stijlen.erase(0, stijlen.find("<xf ") + 4);
        return Tussen(stijlen, "numFmtId=\"", "\"") + ' ' + Tussen(stijlen, "fontId=\"", "\"");
    };
    EXPECT_EQ("49 1", stijl("<c r=\"A1\" s=\"")); // 49 is "@"
    EXPECT_EQ("49 0", stijl("<c r=\"A2\" s=\""));
    EXPECT_EQ("49 0", stijl(" style=\"")); // what is typed below
    EXPECT_EQ("<font><b/>", Tussen(Deel(xlsx, "xl\\styles.xml"), "</font>", "<sz"));
    EXPECT_EQ(R"(<sheet name="Spelers" sheetId="1" r:id="rId1"/>)",
              Tussen(Deel(xlsx, "xl\\workbook.xml"), "<sheets>", "</sheets>"));
}

TEST(Xlsx, EenTeLangeTekstGaatNietStilVerloren)
{
    EXPECT_EQ(32'767U + 7, Cel(Tekst(32'767, 'x')).size());
    const Uitvoerproef proef{MaakSpelers({{}, {{Kolom::Adres, Tekst(32'768, 'x')}}})};
    const auto uitkomst = MaakXlsx(proef.Van({Kolom::Adres}));
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(Foutsoort::Beschadigd, uitkomst.error().soort);
    EXPECT_EQ(2, uitkomst.error().regel);
}

TEST(Xlsx, HetIsTeStoppen)
{
    const Uitvoerproef proef{MaakSpelers(std::vector<Cellen>(1500))};
    EXPECT_EQ(std::nullopt, MaakXlsx(proef.Van({Kolom::Key}), StoptMeteen()).value());
}

#ifndef _WIN32
class XlsxKlad : public testing::Test {
  protected:
    XlsxKlad() { setenv("TMPDIR", map.Weg().c_str(), 1); }
    ~XlsxKlad() override { unsetenv("TMPDIR"); }

    TijdelijkeMap map;
};

TEST_F(XlsxKlad, ErBlijftNietsAchter)
{
    const Uitvoerproef proef{MaakSpelers({{{Kolom::Land, "NL"}}})};
    EXPECT_TRUE(MaakXlsx(proef.Van({Kolom::Land})).value().has_value());
    EXPECT_TRUE(std::filesystem::is_empty(map.Weg()));
    setenv("TMPDIR", (map.Weg() / "weg").c_str(), 1);
    const auto uitkomst = MaakXlsx(proef.Van({Kolom::Land}));
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(Foutsoort::Geweigerd, uitkomst.error().soort);
    EXPECT_FALSE(uitkomst.error().systeem.empty());
}

/// As where the disk is full: files cannot grow any further.
TEST_F(XlsxKlad, EenVolleSchijfGeeftGeenHalfBestand)
{
    const Uitvoerproef proef{
        MaakSpelers(std::vector<Cellen>(20'000, {{Kolom::Achternaam, Tekst(40, 'x')}}))};
    rlimit oud{};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &oud));
    const auto seinwerk = std::signal(SIGXFSZ, SIG_IGN);
    for (const rlim_t bytes : {10'000U, 1'000'000U, 2'000'000U}) {
        rlimit krap = oud;
        krap.rlim_cur = bytes; // the rows alone need more
        setrlimit(RLIMIT_FSIZE, &krap);
        const auto uitkomst = MaakXlsx(proef.Van({Kolom::Achternaam}));
        setrlimit(RLIMIT_FSIZE, &oud);
        EXPECT_FALSE(uitkomst) << bytes;
    }
    std::signal(SIGXFSZ, seinwerk);
    EXPECT_TRUE(MaakXlsx(proef.Van({Kolom::Achternaam})).has_value());
}
#endif

/// The cells as another program reads them, each as it would show it.
TEST(Xlsx, EenAnderRekenbladLeestElkeCelTerug)
{
    if (std::system("command -v soffice >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "LibreOffice is er niet (soffice): niet teruggelezen";
    const TijdelijkeMap map;
    const Uitvoerproef proef{MaakSpelers(Lastig)};
    const auto kolommen = AlleKolommen();
    map.Zet("spelers.xlsx", MaakXlsx(proef.Van(kolommen)).value().value());
    // 59 ";", 34 quotes, 76 UTF-8; then: quote every text, no formulas, as shown
    const std::string opdracht = "cd '" + map.Weg().string() +
                                 "' && HOME=\"$PWD\" soffice '-env:UserInstallation=file://" +
                                 map.Weg().string() +
                                 "/profiel' --headless --convert-to 'csv:Text - txt - csv "
                                 "(StarCalc):59,34,76,1,,0,true,true' "
                                 "spelers.xlsx >uit.log 2>&1";
    ASSERT_EQ(0, std::system(opdracht.c_str())) << map.Inhoud("uit.log");
    Tekst verwacht;
    const auto cel = [&](Tekstblik tekst) {
        verwacht += '"';
        for (const char teken : tekst)
            verwacht.append(teken == '"' ? 2 : 1, teken);
        verwacht += '"';
    };
    for (int rij = 0; rij <= proef.tabel.Rijen(); ++rij) {
        for (const Kolom kolom : kolommen) {
            const Tekstblik tekst =
                rij == 0 ? Kolomnamen[Index(kolom)] : proef.tabel.Cel(rij, kolom);
            if (!tekst.empty())
                cel(tekst);
            verwacht += kolom == Kolom::NBBnr ? '\n' : ';';
        }
    }
    EXPECT_EQ(NaarUtf8(verwacht), map.Inhoud("spelers.csv"));
}
