#include "printing/printblad.h"

#include "hulp/vlakvanger.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

/// Texts as wide as a test says.
class Proefmeter : public Lettermeter {
  public:
    using Regel = std::function<double(const Letter&, Tekstblik)>;
    explicit Proefmeter(Regel regel) : regel_(std::move(regel)) {}
    [[nodiscard]] double Breedte(const Letter& letter, Tekstblik tekst) const override
    {
        return regel_(letter, tekst);
    }
    [[nodiscard]] double Hoogte(const Letter& /*letter*/) const override { return 4; }

  private:
    Regel regel_;
};

Bladindeling Indeling(const Spelertabel& tabel, std::vector<Kolom> kolommen, float schaal = 1)
{
    const Vastemeter meter; // a millimetre a character, bold 1.25
    return BerekenKolommen(
        MaakPrinttabel(tabel,
                       {.groepscode = "Gr01-", .subgroepen = {}, .kolommen = std::move(kolommen)}),
        schaal, meter);
}

/// One column, wide enough for this print width: "RegNr" and the surname, five and ten characters,
/// and 0.8 of padding on either side of both. Every character is as wide, in both weights.
Bladindeling MetPrintbreedte(double breedte, float schaal = 1)
{
    const Spelertabel tabel = MaakPrintspelers(1, Tekst(10, 'x'));
    const double teken = (breedte / static_cast<double>(schaal) - 3.2) / 15;
    return BerekenKolommen(
        AlleenNaam(tabel), schaal, Proefmeter([&](const Letter& letter, Tekstblik tekst) {
            return static_cast<double>(tekst.size()) * teken * letter.punten / 10;
        }));
}

} // namespace

TEST(Schaalmaten, AllesGroeitMetDeSchaal)
{
    for (const float schaal : {1.0F, 0.8F}) {
        const Schaalmaten maten{schaal};
        EXPECT_EQ(schaal, maten.schaal);
        EXPECT_EQ(schaal * 10, maten.punten);
        EXPECT_EQ(schaal * 14, maten.titelpunten);
        EXPECT_EQ(schaal * 0.8F, maten.celmarge);
        EXPECT_EQ(schaal * 15, maten.kophoogte);
        EXPECT_EQ(schaal * 4.5F, maten.titelhoogte);
        EXPECT_EQ(schaal * 4.5F, maten.rijhoogte);
    }
}

TEST(Papier, MatenEnMargesPerStand)
{
    for (const auto& [stand, breed, hoog, bovenmarge] :
         {std::tuple(Papierstand::Staand, 210, 297, 15), {Papierstand::Liggend, 297, 210, 10}}) {
        const Papier papier{stand};
        EXPECT_EQ(breed, papier.breed);
        EXPECT_EQ(hoog, papier.hoog);
        EXPECT_EQ(15, papier.zijmarge);
        EXPECT_EQ(bovenmarge, papier.bovenmarge);
    }
}

TEST(Bladindeling, EenKolomIsZoBreedAlsZijnBreedsteTekst)
{
    // The first names are "v1" to "v3", narrower than their title; the surname is wider.
    const auto indeling =
        Indeling(MaakPrintspelers(3, Tekst(20, 'x')), {Kolom::Voornaam, Kolom::Achternaam});
    ASSERT_EQ(4U, indeling.begin.size());
    EXPECT_EQ(0, indeling.begin[0]);
    EXPECT_FLOAT_EQ(1.6F + 6.25F, indeling.begin[1]);             // "RegNr" in bold
    EXPECT_FLOAT_EQ(1.6F + 6.25F + 1.6F + 10, indeling.begin[2]); // "Voornaam" in bold
    EXPECT_FLOAT_EQ(indeling.begin[2] + 1.6F + 20, indeling.begin[3]);
    EXPECT_EQ(indeling.begin[3], indeling.Printbreedte());
    EXPECT_EQ(15, indeling.links);
    EXPECT_EQ(3, indeling.kolommen);
    // A text wider than 80 mm is not cut: its column takes the width.
    const auto lang = Indeling(MaakPrintspelers(1, Tekst(120, 'x')), {Kolom::Achternaam});
    EXPECT_FLOAT_EQ(7.85F + 1.6F + 120, lang.Printbreedte());
}

TEST(Bladindeling, TweehonderdtienBlijftStaandMeerGaatLiggen)
{
    EXPECT_EQ(Papierstand::Staand, MetPrintbreedte(209.9).papier.stand);
    EXPECT_EQ(Papierstand::Liggend, MetPrintbreedte(210.1).papier.stand);
    EXPECT_FALSE(MetPrintbreedte(210.1).TeBreed());
    EXPECT_FALSE(MetPrintbreedte(296.9).TeBreed());
    EXPECT_TRUE(MetPrintbreedte(297.1).TeBreed());
}

/// The print width is compared in single precision with the whole sheet, which it may fill.
TEST(Bladindeling, PreciesZoBreedAlsHetVelPast)
{
    const Spelertabel tabel = MaakPrintspelers(1);
    for (const auto& [breed, stand] :
         {std::pair(210.0F, Papierstand::Staand), {297.0F, Papierstand::Liggend}}) {
        const Proefmeter meter([breed = breed](const Letter& /*letter*/, Tekstblik tekst) {
            const float p = 0.8F;
            return tekst == "RegNr" ? 0.0 : static_cast<double>(breed - (p + p) - (p + p));
        });
        const auto indeling = BerekenKolommen(AlleenNaam(tabel), 1, meter);
        ASSERT_EQ(breed, indeling.Printbreedte());
        EXPECT_EQ(stand, indeling.papier.stand);
        EXPECT_FALSE(indeling.TeBreed());
        EXPECT_EQ(2, indeling.kolommen);
        EXPECT_EQ(0, indeling.links);
    }
}

TEST(Bladindeling, RijenPerBlad)
{
    for (const auto& [breedte, schaal, rijen] : {std::tuple(100, 1.0F, 55), // 247.5 / 4.5
                                                 {250, 1.0F, 37},           // (190 - 19.5) / 4.5
                                                 {100, 0.7F, 80},
                                                 {100, 0.8F, 69},
                                                 {100, 0.9F, 61},
                                                 {100, 1.1F, 49},
                                                 {100, 1.2F, 45},
                                                 {100, 1.3F, 41},
                                                 {250, 0.7F, 55},
                                                 {250, 1.3F, 28}})
        EXPECT_EQ(rijen, MetPrintbreedte(breedte, schaal).rijenPerBlad) << breedte << " " << schaal;
}

/// An exact multiple adds an empty page all the same. That is meant. Thirty pages are shown at
/// most; the total stays true.
TEST(Bladindeling, EenVolBladKrijgtErNogEen)
{
    for (const auto& [rijen, bladen, toonbaar] : {std::tuple(0, 1, 1),
                                                  {1, 1, 1},
                                                  {54, 1, 1},
                                                  {55, 2, 2},
                                                  {56, 2, 2},
                                                  {110, 3, 3},
                                                  {2000, 37, 30}}) {
        const auto indeling = Indeling(MaakPrintspelers(rijen), {Kolom::Achternaam});
        EXPECT_EQ(bladen, indeling.bladen) << rijen;
        EXPECT_EQ(toonbaar, indeling.ToonbareBladen()) << rijen;
    }
}

TEST(Bladindeling, DeRijenVanEenBlad)
{
    const auto indeling = Indeling(MaakPrintspelers(56), {Kolom::Achternaam});
    EXPECT_EQ(1, indeling.EersteRij(1));
    EXPECT_EQ(55, indeling.LaatsteRij(1, 56));
    EXPECT_EQ(56, indeling.EersteRij(2));
    EXPECT_EQ(56, indeling.LaatsteRij(2, 56));
    EXPECT_GT(indeling.EersteRij(2), indeling.LaatsteRij(2, 55)); // an empty page
}

/// At 0.8 everything is 0.8 times as large, which may put a list upright again.
TEST(Bladindeling, KleinerKanVanLiggendStaandMaken)
{
    const Spelertabel tabel = MaakPrintspelers(1, Tekst(220, 'x'));
    const auto gewoon = Indeling(tabel, {Kolom::Achternaam});
    const auto klein = Indeling(tabel, {Kolom::Achternaam}, 0.8F);
    EXPECT_EQ(Papierstand::Liggend, gewoon.papier.stand);
    EXPECT_EQ(Papierstand::Staand, klein.papier.stand);
    EXPECT_NEAR(0.8 * static_cast<double>(gewoon.Printbreedte()),
                static_cast<double>(klein.Printbreedte()), 0.001);
}

TEST(Bladindeling, WatNietOpHetLiggendeVelPastBlijftWeg)
{
    // RegNr 7.85, Voornaam 11.6, Achternaam 251.6, three of 7.85: 294.6. Plaats, 11.6, is too much.
    const Spelertabel tabel = MaakPrintspelers(1, Tekst(250, 'x'));
    const auto indeling = Indeling(tabel, {Kolom::Voornaam, Kolom::Achternaam, Kolom::Telef,
                                           Kolom::Adres, Kolom::Postc, Kolom::Plaats, Kolom::MV});
    EXPECT_TRUE(indeling.TeBreed());
    EXPECT_EQ(6, indeling.kolommen);
    EXPECT_NEAR(294.6, static_cast<double>(indeling.begin[6]), 0.01);
    // One column that is wider than any sheet leaves the number of the row.
    const auto reus = Indeling(MaakPrintspelers(1, Tekst(400, 'x')), {Kolom::Achternaam});
    EXPECT_TRUE(reus.TeBreed());
    EXPECT_EQ(1, reus.kolommen);
}

TEST(Bladindeling, WatNaastDeLinkerMargeInDeRechterRandZouKomenStaatInHetMidden)
{
    for (const auto& [breedte, links] : {std::pair(100.0, 15.0),
                                         {189.9, 15.0},
                                         {190.2, 9.9},
                                         {195.2, 7.4},
                                         {200.0, 5.0},
                                         {205.0, 2.5},
                                         {209.9, 0.05},
                                         {276.9, 15.0}, // landscape
                                         {277.2, 9.9},
                                         {290.0, 3.5}})
        EXPECT_NEAR(links, static_cast<double>(MetPrintbreedte(breedte).links), 0.01) << breedte;
}
