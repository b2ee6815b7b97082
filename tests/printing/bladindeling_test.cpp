#include "printing/printblad.h"

#include <cmath>

#include <gtest/gtest.h>

#include "hulp/vlakvanger.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

/// Every character is so many millimetres wide at ten points, in both weights.
class Proefmeter : public Lettermeter {
  public:
    explicit Proefmeter(double teken) : teken_(teken) {}
    [[nodiscard]] double Breedte(const Letter& letter, Tekstblik tekst) const override
    {
        return static_cast<double>(tekst.size()) * teken_ * letter.punten / 10;
    }
    [[nodiscard]] double Hoogte(const Letter& /*letter*/) const override { return 4; }

  private:
    double teken_;
};

Bladindeling Indeling(const Spelertabel& tabel, std::vector<Kolom> kolommen, float schaal = 1)
{
    const Vastemeter meter; // a millimetre a character, bold 1.25
    return BerekenKolommen(
        MaakPrinttabel(tabel,
                       {.groepscode = "Gr01-", .subgroepen = {}, .kolommen = std::move(kolommen)}),
        schaal, meter);
}

/// One column, wide enough for this print width: "RegNr" takes 6.25 and both slots 1.6 of padding.
Bladindeling MetPrintbreedte(double breedte)
{
    const Spelertabel tabel = MaakPrintspelers(1, Tekst(10, 'x'));
    const double teken = (breedte - 3.2) / 15; // five characters of "RegNr", ten of "Achternaam"
    return BerekenKolommen(AlleenNaam(tabel), 1, Proefmeter(teken));
}

int RijenBij(double breedte, float schaal)
{
    const Spelertabel tabel = MaakPrintspelers(1, Tekst(10, 'x'));
    const double s = static_cast<double>(schaal);
    return BerekenKolommen(AlleenNaam(tabel), schaal, Proefmeter((breedte / s - 3.2) / 15))
        .rijenPerBlad;
}

int BladenBij(int rijen)
{
    return Indeling(MaakPrintspelers(rijen), {Kolom::Achternaam}).bladen;
}

} // namespace

TEST(Schaalmaten, AllesGroeitMetDeSchaal)
{
    const Schaalmaten een(1);
    EXPECT_EQ(1, een.schaal);
    EXPECT_EQ(10, een.punten);
    EXPECT_EQ(14, een.titelpunten);
    EXPECT_EQ(0.8F, een.celmarge);
    EXPECT_EQ(15, een.kophoogte);
    EXPECT_EQ(4.5F, een.titelhoogte);
    EXPECT_EQ(4.5F, een.rijhoogte);
    const Schaalmaten klein(0.8F);
    EXPECT_EQ(0.8F, klein.schaal);
    EXPECT_EQ(0.8F * 10, klein.punten);
    EXPECT_EQ(0.8F * 14, klein.titelpunten);
    EXPECT_EQ(0.8F * 0.8F, klein.celmarge);
    EXPECT_EQ(0.8F * 15, klein.kophoogte);
    EXPECT_EQ(0.8F * 4.5F, klein.titelhoogte);
    EXPECT_EQ(0.8F * 4.5F, klein.rijhoogte);
}

TEST(Papier, MatenEnMargesPerStand)
{
    const Papier staand(Papierstand::Staand);
    EXPECT_EQ(210, staand.breed);
    EXPECT_EQ(297, staand.hoog);
    EXPECT_EQ(15, staand.zijmarge);
    EXPECT_EQ(15, staand.bovenmarge);
    const Papier liggend(Papierstand::Liggend);
    EXPECT_EQ(297, liggend.breed);
    EXPECT_EQ(210, liggend.hoog);
    EXPECT_EQ(15, liggend.zijmarge);
    EXPECT_EQ(10, liggend.bovenmarge);
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
}

/// A text wider than 80 mm is not cut: its column takes the width.
TEST(Bladindeling, EenLangeTekstKrijgtZijnBreedte)
{
    const auto indeling = Indeling(MaakPrintspelers(1, Tekst(120, 'x')), {Kolom::Achternaam});
    EXPECT_FLOAT_EQ(7.85F + 1.6F + 120, indeling.Printbreedte());
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
    class Precies : public Lettermeter {
      public:
        explicit Precies(float breed) : breed_(breed) {}
        [[nodiscard]] double Breedte(const Letter& /*letter*/, Tekstblik tekst) const override
        {
            const float p = 0.8F;
            return tekst == "RegNr" ? 0.0 : static_cast<double>(breed_ - (p + p) - (p + p));
        }
        [[nodiscard]] double Hoogte(const Letter& /*letter*/) const override { return 4; }

      private:
        float breed_;
    };
    const Spelertabel tabel = MaakPrintspelers(1);
    for (const auto& [breed, stand] :
         {std::pair(210.0F, Papierstand::Staand), {297.0F, Papierstand::Liggend}}) {
        const auto indeling = BerekenKolommen(AlleenNaam(tabel), 1, Precies(breed));
        ASSERT_EQ(breed, indeling.Printbreedte());
        EXPECT_EQ(stand, indeling.papier.stand);
        EXPECT_FALSE(indeling.TeBreed());
        EXPECT_EQ(2, indeling.kolommen);
        EXPECT_EQ(0, indeling.links);
    }
}

TEST(Bladindeling, RijenPerBlad)
{
    EXPECT_EQ(55, RijenBij(100, 1)); // (267 - 15 - 4.5) / 4.5
    EXPECT_EQ(37, RijenBij(250, 1)); // (190 - 19.5) / 4.5
    EXPECT_EQ(80, RijenBij(100, 0.7F));
    EXPECT_EQ(69, RijenBij(100, 0.8F));
    EXPECT_EQ(61, RijenBij(100, 0.9F));
    EXPECT_EQ(49, RijenBij(100, 1.1F));
    EXPECT_EQ(45, RijenBij(100, 1.2F));
    EXPECT_EQ(41, RijenBij(100, 1.3F));
    EXPECT_EQ(55, RijenBij(250, 0.7F));
    EXPECT_EQ(28, RijenBij(250, 1.3F));
}

/// An exact multiple adds an empty page all the same. That is meant.
TEST(Bladindeling, EenVolBladKrijgtErNogEen)
{
    EXPECT_EQ(1, BladenBij(0));
    EXPECT_EQ(1, BladenBij(1));
    EXPECT_EQ(1, BladenBij(54));
    EXPECT_EQ(2, BladenBij(55));
    EXPECT_EQ(2, BladenBij(56));
    EXPECT_EQ(3, BladenBij(110));
    EXPECT_EQ(37, BladenBij(2000));
}

TEST(Bladindeling, DertigBladenZijnTeTonenHetTotaalBlijftWaar)
{
    const auto indeling = Indeling(MaakPrintspelers(2000), {Kolom::Achternaam});
    EXPECT_EQ(37, indeling.bladen);
    EXPECT_EQ(30, indeling.ToonbareBladen());
    EXPECT_EQ(2, Indeling(MaakPrintspelers(55), {Kolom::Achternaam}).ToonbareBladen());
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
}

/// One column that is wider than any sheet leaves the number of the row.
TEST(Bladindeling, EenReuzenkolomBlijftWeg)
{
    const auto indeling = Indeling(MaakPrintspelers(1, Tekst(400, 'x')), {Kolom::Achternaam});
    EXPECT_TRUE(indeling.TeBreed());
    EXPECT_EQ(1, indeling.kolommen);
}

TEST(Bladindeling, WatNaastDeLinkerMargeInDeRechterRandZouKomenStaatInHetMidden)
{
    const auto links = [](double breedte) {
        return static_cast<double>(MetPrintbreedte(breedte).links);
    };
    EXPECT_EQ(15, links(100));
    EXPECT_EQ(15, links(189.9));
    EXPECT_NEAR(9.9, links(190.2), 0.01);
    EXPECT_NEAR(7.4, links(195.2), 0.01);
    EXPECT_NEAR(5, links(200), 0.01);
    EXPECT_NEAR(2.5, links(205), 0.01);
    EXPECT_NEAR(0.05, links(209.9), 0.01);
    EXPECT_EQ(15, links(276.9)); // landscape
    EXPECT_NEAR(9.9, links(277.2), 0.01);
    EXPECT_NEAR(3.5, links(290), 0.01);
}
