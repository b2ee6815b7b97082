#include "printing/printblad.h"

#include <set>

#include "hulp/vlakvanger.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

constexpr double Naast = 1e-4; // what single precision leaves

/// The list of all players with surname and first name, drawn on a surface that keeps it.
class BladtekenenTest : public testing::Test {
  protected:
    void Maak(Spelertabel nieuw, std::vector<Kolom> kolommen, float schaal = 1)
    {
        tabel = std::move(nieuw);
        Printtabel print = MaakPrinttabel(
            tabel, {.groepscode = "Gr01-", .subgroepen = {}, .kolommen = std::move(kolommen)});
        Bladindeling indeling = BerekenKolommen(print, schaal, meter);
        lijst.emplace(Printlijst{.tabel = std::move(print),
                                 .indeling = std::move(indeling),
                                 .groeptekst = "Gr01-Clubleden",
                                 .subgroepkop = "Subgroep(en): A + B",
                                 .datum = "21-11-2026",
                                 .programma = "Ravendeck.exe"});
    }
    const Vlakvanger& Teken(int blad)
    {
        vlak = Vlakvanger();
        TekenBlad(vlak, *lijst, blad);
        return vlak;
    }
    [[nodiscard]] Vlakvanger::Geschreven Deel(const Tekst& tekst) const { return vlak.Deel(tekst); }

    Vastemeter meter;
    Spelertabel tabel;
    std::optional<Printlijst> lijst;
    Vlakvanger vlak;
};

} // namespace

TEST_F(BladtekenenTest, AlleTekstenVanBovenEnZonderSubgroepenGeenSubgroepregel)
{
    Maak(MaakPrintspelers(2, "Bos"), {Kolom::Voornaam, Kolom::Achternaam});
    EXPECT_EQ(
        (std::vector<Tekst>{"Spelerinformatie", "Groep:  Gr01-Clubleden", "Subgroep(en): A + B",
                            "RegNr", "Voornaam", "Achternaam", "1", "v1", "Bos", "2", "v2", "Bos",
                            "Ravendeck.exe", "21-11-2026", "Blad 1 van 1"}),
        Teken(1).Teksten());
    Maak(MaakPrintspelers(1), {Kolom::Achternaam});
    lijst->subgroepkop.clear();
    EXPECT_EQ("RegNr", Teken(1).Teksten().at(2));
}

TEST_F(BladtekenenTest, LettersEnPlaatsen)
{
    Maak(MaakPrintspelers(2, "Bos"), {Kolom::Voornaam, Kolom::Achternaam});
    Teken(1);
    const auto kop = Deel("Spelerinformatie");
    EXPECT_EQ((Letter{.type = Lettertype::Arial, .punten = 14}), kop.letter);
    EXPECT_EQ(15, kop.x);
    EXPECT_EQ(15, kop.y);
    EXPECT_EQ((Letter{.punten = 10}), Deel("Groep:  Gr01-Clubleden").letter);
    // Column titles in bold, at x(c) + p.
    const double begin1 = 1.6 + 6.25;
    const double begin2 = begin1 + 1.6 + 10;
    for (const auto& [titel, x] : {std::pair<const char*, double>("RegNr", 15.8),
                                   {"Voornaam", 15.8 + begin1},
                                   {"Achternaam", 15.8 + begin2}}) {
        EXPECT_EQ((Letter{.punten = 10, .vet = true}), Deel(titel).letter) << titel;
        EXPECT_NEAR(x, Deel(titel).x, Naast) << titel;
        EXPECT_NEAR(15 + 15 + 0.25, Deel(titel).y, Naast); // 4 mm of letter in a row of 4.5
    }
    EXPECT_EQ((Letter{.punten = 10}), Deel("v2").letter);
    EXPECT_NEAR(15.8, Deel("2").x, Naast);
    EXPECT_NEAR(15.8 + begin1, Deel("v2").x, Naast);
    EXPECT_NEAR(30 + 4.5 + 0.25, Deel("v1").y, Naast);
    EXPECT_NEAR(30 + 4.5 + 4.5 + 0.25, Deel("v2").y, Naast);
}

/// A list too wide to stand beside the margin: all of it moves to the left.
TEST_F(BladtekenenTest, EenBredeLijstStaatInHetMiddenMetZijnKop)
{
    // RegNr 7.85 and the surname 1.6 + 190: 199.45, which leaves 5.275 on either side.
    Maak(MaakPrintspelers(1, Tekst(190, 'x')), {Kolom::Achternaam});
    lijst->subgroepkop = Tekst(300, 'y');
    Teken(1);
    EXPECT_NEAR(5.275, Deel("Spelerinformatie").x, Naast);
    EXPECT_NEAR(5.275, Deel("Groep:  Gr01-Clubleden").x, Naast);
    EXPECT_NEAR(5.275 + 0.8, Deel("RegNr").x, Naast);
    EXPECT_NEAR(5.275 + 0.8, Deel("1").x, Naast);
    EXPECT_NEAR(5.275 + 7.85 + 0.8, Deel("Achternaam").x, Naast);
    EXPECT_NEAR(5.275 + 7.85 + 0.8, Deel(Tekst(190, 'x')).x, Naast);
    const auto& kop = vlak.teksten.at(2);
    const double eind = kop.x + meter.Breedte(kop.letter, kop.tekst);
    EXPECT_NEAR(5.275, kop.x, Naast);
    EXPECT_TRUE(kop.tekst.ends_with("yyy..."));
    EXPECT_LE(eind, 195.0);
    EXPECT_GT(eind, 193.0);
    double links = 210;
    double rechts = 0;
    for (const auto& lijn : vlak.lijnen) {
        links = std::min({links, lijn.x1, lijn.x2});
        rechts = std::max({rechts, lijn.x1, lijn.x2});
    }
    EXPECT_NEAR(5.275, links, Naast);
    EXPECT_NEAR(210 - 5.275, rechts, Naast);
}

TEST_F(BladtekenenTest, DeVoetStaatInDeOnderMarge)
{
    for (const int breed : {10, 220}) {
        Maak(MaakPrintspelers(1, Tekst(static_cast<std::size_t>(breed), 'x')), {Kolom::Achternaam});
        Teken(1);
        const Papier& papier = lijst->indeling.papier;
        const double hoog = static_cast<double>(papier.hoog);
        for (const char* tekst : {"Ravendeck.exe", "21-11-2026", "Blad 1 van 1"}) {
            EXPECT_GT(Deel(tekst).y, hoog - static_cast<double>(papier.bovenmarge)) << tekst;
            EXPECT_LT(Deel(tekst).y + meter.Hoogte(Deel(tekst).letter), hoog - 4) << tekst;
            EXPECT_EQ((Letter{.type = Lettertype::Arial, .punten = 7}), Deel(tekst).letter);
        }
        EXPECT_EQ(15, Deel("Ravendeck.exe").x);
        // Ten characters of 0.7 mm, in the middle of the sheet.
        EXPECT_NEAR(static_cast<double>(papier.breed) / 2 - 3.5, Deel("21-11-2026").x, Naast);
        const auto blad = Deel("Blad 1 van 1");
        EXPECT_NEAR(static_cast<double>(papier.breed) - 15,
                    blad.x + meter.Breedte(blad.letter, blad.tekst), Naast);
    }
}

TEST_F(BladtekenenTest, GrijzeLijnenOmElkVak)
{
    Maak(MaakPrintspelers(3, "Bos"), {Kolom::Achternaam});
    Teken(1);
    std::multiset<double> liggend;
    std::multiset<double> staand;
    const double rechts = 15 + static_cast<double>(lijst->indeling.Printbreedte());
    for (const auto& lijn : vlak.lijnen) {
        EXPECT_EQ((Kleur{100, 100, 100}), lijn.kleur);
        EXPECT_EQ(0.1, lijn.dikte);
        if (lijn.y1 == lijn.y2) {
            liggend.insert(lijn.y1);
            EXPECT_NEAR(15, lijn.x1, Naast);
            EXPECT_NEAR(rechts, lijn.x2, Naast);
        } else {
            staand.insert(lijn.x1);
            EXPECT_NEAR(30, lijn.y1, Naast);
            EXPECT_NEAR(30 + 4 * 4.5, lijn.y2, Naast);
        }
    }
    EXPECT_EQ(5U, liggend.size()); // above and below the titles, and below each row
    EXPECT_EQ(3U, staand.size());
    EXPECT_NEAR(15 + 7.85, *std::next(staand.begin()), Naast);
}

TEST_F(BladtekenenTest, ElkBladZijnEigenRijenEnNaEenVolBladEenLeeg)
{
    Maak(MaakPrintspelers(56), {Kolom::Voornaam});
    Teken(1);
    EXPECT_EQ("1", Deel("1").tekst);
    EXPECT_NEAR(34.5 + 54 * 4.5 + 0.25, Deel("v55").y, 0.001);
    EXPECT_LT(Deel("v55").y, 282);
    const auto eerste = vlak.Teksten();
    EXPECT_EQ(0, std::count(eerste.begin(), eerste.end(), "v56"));
    Teken(2);
    EXPECT_NEAR(34.75, Deel("v56").y, Naast);
    EXPECT_NEAR(34.75, Deel("56").y, Naast); // rows are numbered through
    EXPECT_EQ(3U + 2 + 2 + 3, vlak.teksten.size());
    (void)Deel("Blad 2 van 2");
    // 55 rows fill a page; the second one is there, without rows.
    Maak(MaakPrintspelers(55), {Kolom::Voornaam});
    Teken(2);
    EXPECT_EQ(3U + 2 + 3, vlak.teksten.size());
    (void)Deel("RegNr");
    (void)Deel("Blad 2 van 2");
}

TEST_F(BladtekenenTest, WatNietPastWordtNietGetekend)
{
    Maak(MaakPrintspelers(1, Tekst(250, 'x')), {Kolom::Voornaam, Kolom::Achternaam, Kolom::Telef,
                                                Kolom::Adres, Kolom::Postc, Kolom::Plaats});
    Teken(1);
    const auto teksten = vlak.Teksten();
    EXPECT_EQ(1, std::count(teksten.begin(), teksten.end(), "Postc"));
    EXPECT_EQ(0, std::count(teksten.begin(), teksten.end(), "Plaats"));
    EXPECT_EQ(0, std::count(teksten.begin(), teksten.end(), "Ede 100001"));
    for (const auto& lijn : vlak.lijnen)
        EXPECT_LE(std::max(lijn.x1, lijn.x2), 297.0);
}

TEST_F(BladtekenenTest, AllesOpSchaal)
{
    Maak(MaakPrintspelers(2), {Kolom::Voornaam}, 0.8F);
    Teken(1);
    EXPECT_NEAR(11.2, Deel("Spelerinformatie").letter.punten, Naast);
    EXPECT_NEAR(15 + 0.8 * 6, Deel("Groep:  Gr01-Clubleden").y, Naast);
    EXPECT_NEAR(15 + 0.8 * 10.4, Deel("Subgroep(en): A + B").y, Naast);
    EXPECT_NEAR(8, Deel("v2").letter.punten, Naast);
    EXPECT_NEAR(15 + 0.8 * (0.8 + 7.85), Deel("v2").x, Naast);
    EXPECT_NEAR(15 + 0.8 * (15 + 4.5 + 4.5 + 0.25), Deel("v2").y, Naast);
}
