#include "federation/samenvoegen.h"

#include <limits>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

namespace plexoran {
namespace {

using Teksten = std::vector<Tekst>;

constexpr auto Kop = "HKEY=100042\r\n";

/// Two members and a namesake of the first in another group.
Register DrieSpelers()
{
    return Lees(Tekst(Kop) +
                "1,100001,Gr05-,An,de,Bos,0,a@b,Weg 1,0101AA,Ede,NL,V,d1,d2,overl,OUD,12345\r\n"
                "2,100002,Gr01-,An,de,Bos,0,a@b,Weg 1,0101AA,Ede,NL,V,d1,d2,,A-LIJN,67890\r\n"
                "3,100003,Gr05-,Cor,,Dam,,,,,,,,,,,OUD,222\r\n");
}

class Samenvoegen : public testing::Test {
  protected:
    Samenvoeging Voeg(Teksten regels, const Tekst& subgroep = "Club")
    {
        auto uitkomst = VoegLedenSamen(spelers, {"Gr05-", subgroep, std::move(regels)});
        EXPECT_TRUE(uitkomst.has_value());
        return uitkomst.value_or(Samenvoeging());
    }

    Register spelers = DrieSpelers();
};

TEST_F(Samenvoegen, VerverstDeRijMetHetNummerEnHoudtDeRest)
{
    const Samenvoeging uitkomst = Voeg({"Anna,van,Bosch,Laan 2,0202BB,Rhenen,011,x@y,hs,M,12345"});
    EXPECT_EQ(1U, uitkomst.AantalVerververst);
    EXPECT_EQ(0U, uitkomst.AantalNieuw);
    EXPECT_EQ("", uitkomst.ZonderNBBnr);
    EXPECT_TRUE(uitkomst.overgeslagen.empty());
    EXPECT_EQ(Tekst(Kop) +
                  "1,100001,Gr05-,Anna,van,Bosch,011,x@y,Laan "
                  "2,0202BB,Rhenen,hs,M,d1,d2,overl,CLUB,12345\r\n"
                  "2,100002,Gr01-,An,de,Bos,0,a@b,Weg 1,0101AA,Ede,NL,V,d1,d2,,A-LIJN,67890\r\n"
                  "3,100003,Gr05-,Cor,,Dam,,,,,,,,,,,OUD,222\r\n",
              SpelersTekst(spelers));
}

TEST_F(Samenvoegen, VoegtEenNieuwLidAchteraanToe)
{
    const Samenvoeging uitkomst = Voeg({"Eva,,Fuik,Pad 3,0303CC,Ede,022,e@f,bg,V,77"}, "Caf\xE9");
    EXPECT_EQ(0U, uitkomst.AantalVerververst);
    EXPECT_EQ(1U, uitkomst.AantalNieuw);
    EXPECT_EQ(100043, spelers.HKEY);
    ASSERT_EQ(4, spelers.tabel.Rijen());
    EXPECT_EQ((Rijvelden{"4", "100043", "Gr05-", "Eva", "", "Fuik", "022", "e@f", "Pad 3", "0303CC",
                         "Ede", "bg", "V", "", "", "", "CAF\xC9", "77"}),
              spelers.tabel.Velden(4));
}

/// Meant: the refresh replaces, it does not fill gaps.
TEST_F(Samenvoegen, EenLeegVeldMaaktDeCelLeegEnVerversenHoudtSpaties)
{
    (void)Voeg({"An,,Bos,,,,,,,,12345"});
    EXPECT_EQ((Rijvelden{"1", "100001", "Gr05-", "An", "", "Bos", "", "", "", "", "", "", "", "d1",
                         "d2", "overl", "CLUB", "12345"}),
              spelers.tabel.Velden(1));
    // Meant: refreshed fields are stored as they stand, those of a new player are trimmed.
    (void)Voeg({" An , de , Bos , W , P , S , T , E , L , V , 12345 ",
                " Eva , de , Fuik , W , P , S , T , E , L , V , 77 "});
    EXPECT_EQ((Rijvelden{"1", "100001", "Gr05-", " An ", " de ", " Bos ", " T ", " E ", " W ",
                         " P ", " S ", " L ", " V ", "d1", "d2", "overl", "CLUB", "12345"}),
              spelers.tabel.Velden(1));
    EXPECT_EQ((Rijvelden{"4", "100043", "Gr05-", "Eva", "de", "Fuik", "T", "E", "W", "P", "S", "L",
                         "V", "", "", "", "CLUB", "77"}),
              spelers.tabel.Velden(4));
}

TEST_F(Samenvoegen, ZonderNummerWordtHetLidGenoemdEnNietIngevoerd)
{
    const Samenvoeging uitkomst =
        Voeg({"Eva,,Fuik,,,,,,,V,", "Bo,,Ek,,,,,,,,  ", "An,,Bos,,,,,,,,12345"});
    EXPECT_EQ("Eva,,Fuik,,,,,,,V,\r\nBo,,Ek,,,,,,,,  \r\n", uitkomst.ZonderNBBnr);
    EXPECT_EQ(1U, uitkomst.AantalVerververst);
    EXPECT_EQ(3, spelers.tabel.Rijen());
}

/// Meant: players of other groups are never looked at, so a member can stand in two groups.
TEST_F(Samenvoegen, EenNummerInEenAndereGroepTeltNiet)
{
    const Tekst oud = SpelersTekst(spelers);
    EXPECT_EQ(0U, Voeg({}).AantalNieuw);
    EXPECT_EQ(oud, SpelersTekst(spelers));
    EXPECT_EQ(1U, Voeg({"An,de,Bos,,,,,,,,67890"}).AantalNieuw);
    EXPECT_EQ("A-LIJN", spelers.tabel.Cel(2, Kolom::NBBgr));
    EXPECT_EQ("Gr05-", spelers.tabel.Cel(4, Kolom::Groep));
}

TEST_F(Samenvoegen, InEenLegeTabelEnBijEenRijZonderNummer)
{
    spelers = {};
    // A comma in the name of the member file does not break the row.
    EXPECT_EQ(1U, Voeg({"Eva,,Fuik,,,,,,,,77"}, "a,b").AantalNieuw);
    EXPECT_EQ("100001", spelers.tabel.Cel(1, Kolom::Key));
    EXPECT_EQ(100001, spelers.HKEY);
    EXPECT_EQ("A_B", spelers.tabel.Cel(1, Kolom::NBBgr));
    EXPECT_EQ("77", spelers.tabel.Cel(1, Kolom::NBBnr));
    // Meant: a row without a number adds a lone "-" to the index, and is never the one refreshed.
    spelers = Lees(Tekst(Kop) + "1,100001,Gr05-,,,X,,,,,,,,,,,,\r\n");
    EXPECT_EQ((Teksten{"Bo,,Ek,,,,,,,,-"}), Voeg({"Bo,,Ek,,,,,,,,-"}).overgeslagen);
    EXPECT_EQ("X", spelers.tabel.Cel(1, Kolom::Achternaam));
}

/// Meant: a number that equals only after formatting is neither refreshed nor added.
TEST_F(Samenvoegen, EenAndersGeschrevenNummerValtErtussenuit)
{
    const auto oud = AlleRijen(spelers.tabel);
    const Samenvoeging uitkomst = Voeg({"An,,Bos,,,,,,,,012345"});
    EXPECT_EQ(0U, uitkomst.AantalVerververst + uitkomst.AantalNieuw);
    EXPECT_EQ((Teksten{"An,,Bos,,,,,,,,012345"}), uitkomst.overgeslagen);
    EXPECT_EQ(oud, AlleRijen(spelers.tabel));
}

TEST_F(Samenvoegen, WatTeLangIsOmNummersTeZijnVerandertNiets)
{
    Teksten regels{"An,,Bos,,,,,,,,12345"};
    for (int i = 0; i < 17; ++i)
        regels.push_back("Bo,,Ek,,,,,,,," + Tekst(std::size_t{1} << 20U, 'x'));
    const auto uitkomst = VoegLedenSamen(spelers, {"Gr05-", "Club", regels});
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(Samenvoegfout::TeGroot, uitkomst.error());
    EXPECT_EQ(SpelersTekst(DrieSpelers()), SpelersTekst(spelers));
}

/// Meant: a number of nine or more digits hides the numbers within its digits.
TEST_F(Samenvoegen, EenLangNummerVerbergtEenAnder)
{
    const Samenvoeging uitkomst =
        Voeg({"Een,,Lang,,,,,,,,9123456780", "Een,,Kort,,,,,,,,12345678"});
    EXPECT_EQ(1U, uitkomst.AantalNieuw);
    EXPECT_EQ((Teksten{"Een,,Kort,,,,,,,,12345678"}), uitkomst.overgeslagen);
    // The same when it came with an earlier file.
    EXPECT_EQ((Teksten{"Een,,Kort,,,,,,,,23456780"}),
              Voeg({"Een,,Kort,,,,,,,,23456780"}).overgeslagen);
}

TEST_F(Samenvoegen, TweemaalHetzelfdeNieuweNummerAlleenHetEerste)
{
    const Samenvoeging uitkomst = Voeg({"Eva,,Een,,,,,,,,77", "Eva,,Twee,,,,,,,,77"});
    EXPECT_EQ(1U, uitkomst.AantalNieuw);
    EXPECT_EQ((Teksten{"Eva,,Twee,,,,,,,,77"}), uitkomst.overgeslagen);
    EXPECT_EQ(4, spelers.tabel.Rijen());
    EXPECT_EQ("Een", spelers.tabel.Cel(4, Kolom::Achternaam));
    EXPECT_EQ(100043, spelers.HKEY); // no key was spent on the second
    // A known number is refreshed twice: the last one stays.
    EXPECT_EQ(2U, Voeg({"Eva,,Een,,,,,,,,12345", "Eva,,Twee,,,,,,,,12345"}).AantalVerververst);
    EXPECT_EQ("Twee", spelers.tabel.Cel(1, Kolom::Achternaam));
}

TEST_F(Samenvoegen, DeEersteRijVanDeGroepDieLetterlijkGelijkIs)
{
    spelers = {};
    spelers.tabel = MaakTabel({{.groep = "Gr01-", .achternaam = "Ander", .nbbnr = "5"},
                               {.groep = "Gr05-", .achternaam = "Nul", .nbbnr = "005"},
                               {.groep = "Gr05-", .achternaam = "Een", .nbbnr = "5"},
                               {.groep = "Gr05-", .achternaam = "Twee", .nbbnr = "5"}});
    EXPECT_EQ(1U, Voeg({"Bo,,Nieuw,,,,,,,,5"}).AantalVerververst);
    int rij = 0;
    for (const char* naam : {"Ander", "Nul", "Nieuw", "Twee"})
        EXPECT_EQ(naam, spelers.tabel.Cel(++rij, Kolom::Achternaam));
}

TEST_F(Samenvoegen, TweemaalHetzelfdeBestandVerverstDeTweedeKeerIedereen)
{
    const Teksten regels{"Eva,,Fuik,,,,,,,,77", "An,,Bos,,,,,,,,12345", "Bo,,Ek,,,,,,,,gast"};
    EXPECT_EQ(2U, Voeg(regels).AantalNieuw);
    const Samenvoeging tweede = Voeg(regels);
    EXPECT_EQ(3U, tweede.AantalVerververst);
    EXPECT_EQ(0U, tweede.AantalNieuw);
    // From another member file a player keeps the key.
    EXPECT_EQ(3U, Voeg(regels, "Cursus").AantalVerververst);
    EXPECT_EQ("100043", spelers.tabel.Cel(4, Kolom::Key));
    EXPECT_EQ("CURSUS", spelers.tabel.Cel(4, Kolom::NBBgr));
    EXPECT_EQ(5, spelers.tabel.Rijen());
}

/// Meant: a comma inside a field of the source shifts the fields behind it.
TEST_F(Samenvoegen, EenKommaInEenVeldSchuiftDeVeldenOp)
{
    // The street is "Weg 1, bis": the sex comes where the number was.
    (void)Voeg({"Eva,,Fuik,Weg 1, bis,0303CC,Ede,022,e@f,bg,V,77"});
    ASSERT_EQ(4, spelers.tabel.Rijen());
    EXPECT_EQ((Rijvelden{"4", "100043", "Gr05-", "Eva", "", "Fuik", "Ede", "022", "Weg 1", "bis",
                         "0303CC", "e@f", "bg", "", "", "", "CLUB", "V"}),
              spelers.tabel.Velden(4));
}

TEST_F(Samenvoegen, ZonderSleutelsGenoegVerandertErNiets)
{
    spelers.HKEY = std::numeric_limits<std::int32_t>::max() - 1;
    const Tekst oud = SpelersTekst(spelers);
    const Samenvoegopdracht opdracht{
        "Gr05-", "Club", {"An,,X,,,,,,,,12345", "Bo,,Een,,,,,,,,71", "Bo,,Twee,,,,,,,,72"}};
    const auto uitkomst = VoegLedenSamen(spelers, opdracht);
    ASSERT_FALSE(uitkomst.has_value());
    EXPECT_EQ(Samenvoegfout::GeenSleutels, uitkomst.error());
    EXPECT_EQ(oud, SpelersTekst(spelers));
    // One key is enough for one: a line that is left out needs none.
    EXPECT_EQ(1U, Voeg({"Bo,,Een,,,,,,,,71", "Bo,,Twee,,,,,,,,71"}).AantalNieuw);
}

TEST_F(Samenvoegen, StoppenOpElkMomentVerandertNiets)
{
    Teksten regels;
    for (int i = 0; i < 5000; ++i)
        regels.push_back("V" + std::to_string(i) + ",,A,,,,,,,," + std::to_string(12345 + i));
    int meldingen = 0;
    Register heel = DrieSpelers();
    const auto uitkomst = VoegLedenSamen(heel, {"Gr05-", "Club", regels},
                                         [&](std::size_t gedaan, std::size_t geheel) {
                                             EXPECT_LE(gedaan, geheel);
                                             EXPECT_EQ(10000U, geheel);
                                             ++meldingen;
                                             return true;
                                         });
    ASSERT_TRUE(uitkomst.has_value());
    EXPECT_EQ(5000U, uitkomst->AantalVerververst + uitkomst->AantalNieuw);
    ASSERT_GE(meldingen, 3);
    for (int stop = 1; stop <= meldingen; ++stop) {
        int teller = 0;
        const auto gestopt =
            VoegLedenSamen(spelers, {"Gr05-", "Club", regels},
                           [&](std::size_t, std::size_t) { return ++teller < stop; });
        ASSERT_FALSE(gestopt.has_value());
        EXPECT_EQ(Samenvoegfout::Gestopt, gestopt.error());
        EXPECT_EQ(SpelersTekst(DrieSpelers()), SpelersTekst(spelers));
    }
}

// ---------------------------------------------------------------- the index

TEST(OpgemaaktNBBnr, CijfersTotAchtAndereTekstZoalsZeIs)
{
    for (const auto& [nummer, opgemaakt] : std::vector<std::pair<Tekst, Tekst>>{
             {"12345", "00012345"},
             {"012345", "00012345"},
             {"12345678", "12345678"},
             {"123456789", "123456789"},
             {" 12345 ", "00012345"},
             {"0", "00000000"},
             {"", ""},
             {"12a45", "12a45"},
             {"12-45", "12-45"},
             {"-12345", "-12345"},
         })
        EXPECT_EQ(opgemaakt, OpgemaaktNBBnr(nummer));
}

/// Asks for each text after all numbers were put in.
std::vector<bool> Antwoorden(const std::vector<Tekst>& nummers, const std::vector<Tekst>& vragen)
{
    NBBnrIndex index({vragen.begin(), vragen.end()});
    for (const Tekst& nummer : nummers)
        index.Voeg(nummer);
    std::vector<bool> antwoorden;
    for (std::size_t vraag = 0; vraag < vragen.size(); ++vraag)
        antwoorden.push_back(index.Bevat(vraag));
    return antwoorden;
}

TEST(NBBnrIndex, VindtWatErgensInDeTekstStaat)
{
    using Rij = std::vector<bool>;
    const Tekst lang(65, '7'); // longer than any number is
    for (const auto& [nummers, vragen, antwoorden] :
         std::vector<std::tuple<std::vector<Tekst>, std::vector<Tekst>, Rij>>{
             {{"00012345", "00067890"},
              {"00012345", "00067890", "00012346", "12345000"},
              {true, true, false, false}},
             {{}, {"00012345", ""}, {false, true}},
             // Meant: a number of nine or more digits hides every number within its digits.
             {{"1234567890"},
              {"12345678", "23456789", "34567890", "123456789", "45678900"},
              {true, true, true, true, false}},
             // Across the "-", if the question has one.
             {{"00012345", "00067890", "7-8"},
              {"5-0", "12345-00067890-7", "0-7-8", "0-8", "-00012345"},
              {true, true, true, false, true}},
             // Short and strange texts, and the same question twice.
             {{"gast12", "00012345"},
              {"gast", "st1", "gast12", "12g", "00012345", "00012345"},
              {true, true, true, false, true, true}},
             {{"", ""}, {"--", "---"}, {true, false}},
             {{Tekst(9, '\0')}, {Tekst(8, '\0'), Tekst(9, '\0')}, {true, true}},
             {{lang + "8"},
              {lang, lang + "9", lang + "8", Tekst(64, '7')},
              {true, false, true, true}}})
        EXPECT_EQ(antwoorden, Antwoorden(nummers, vragen)) << testing::PrintToString(nummers);
}

/// The index in the plain way: one text, searched from its beginning every time.
TEST(NBBnrIndex, AntwoordtAlsDeAaneengeregenTekst)
{
    std::mt19937 toeval(20);
    const std::vector<Tekst> alfabetten{"01", "0123456789", "01-", "1a-", "-", "0a\xE9"};
    std::size_t gevonden = 0;
    std::size_t gemist = 0;
    for (int keer = 0; keer < 6000; ++keer) {
        const Tekst& alfabet = alfabetten[Gooi(toeval, alfabetten.size())];
        const auto tekst = [&] {
            // Half of them of the usual length, so that all ways of asking come up.
            Tekst uit(Gooi(toeval, 2) == 0 ? 8 : Gooi(toeval, 13), ' ');
            for (char& teken : uit)
                teken = alfabet[Gooi(toeval, alfabet.size())];
            return uit;
        };
        std::vector<Tekst> vragen(Gooi(toeval, 8));
        for (Tekst& vraag : vragen)
            vraag = tekst();
        NBBnrIndex index({vragen.begin(), vragen.end()});
        Tekst plat;
        for (std::size_t stap = Gooi(toeval, 10); stap > 0; --stap) {
            const Tekst nummer = tekst();
            index.Voeg(nummer);
            plat += "-" + OpgemaaktNBBnr(nummer);
            for (std::size_t i = 0; i < vragen.size(); ++i) {
                const bool staatEr = plat.find(OpgemaaktNBBnr(vragen[i])) != Tekst::npos;
                ASSERT_EQ(staatEr, index.Bevat(i)) << plat << " ? " << vragen[i];
                ++(staatEr ? gevonden : gemist);
            }
        }
    }
    EXPECT_GT(gevonden, 10000U);
    EXPECT_GT(gemist, 10000U);
}

} // namespace
} // namespace plexoran
