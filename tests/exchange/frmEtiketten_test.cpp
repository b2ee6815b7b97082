#include "exchange/frmEtiketten.h"

#include "exchange/etiketproef.h"
#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

constexpr double Naast = 0.2; // millimetre on paper

const Tekst eigenVel = "KOLOMMEN=1\r\nRIJEN=2\r\nBREED=100\r\nHOOG=50\r\nLINKS=10\r\n"
                       "BOVEN=20\r\nSTAPOPZIJ=0\r\nSTAPOMLAAG=60\r\n";

class frmEtikettenTest : public Dialoogproef<frmEtiketten, Mapstand> {
  protected:
    frmEtikettenTest()
    {
        administratie.etikettenIni = Samen(map.AlsPad(), "etiketten.ini");
        administratie.groepen.ZetNaam(1, "Clubleden");
        administratie.spelers.tabel =
            MaakBewoners({{"Jan", "", "Zee", "Lindelaan3", "0411AB", "Wielerdam"},
                          {"Anna", "de", "Vries", "Lindelaan3", "0411AB", "Wielerdam"},
                          {"Bo", "", "Bok", "Brink2", "0410ZZ", "Ede"},
                          {"Co", "", "Cox"}});
    }

    void Open()
    {
        venster.reset();
        Toon(administratie, AlleRijnummers(administratie.spelers.tabel));
    }
    void Kies(const char* keus, int plaats) const { KiesUit(Deel<QComboBox>(keus), plaats); }
    [[nodiscard]] QDoubleSpinBox* Getal(const char* naam) const
    {
        return Deel<QDoubleSpinBox>(naam);
    }
    /// The sheet beside the choices, in reading order.
    [[nodiscard]] std::string Voorbeeld() const
    {
        return BladInBeeld(*Deel<QWidget>("picP1"), map.Weg() / "beeld.pdf").Tekst();
    }
    /// The pages that come out.
    std::vector<Pdfblad> Print()
    {
        const auto bestand = map.Weg() / "etiketten.pdf";
        std::filesystem::remove(bestand);
        wachter.Bedien([](QDialog& bladen) {
            EXPECT_EQ("frmAfdrukken", bladen.objectName().toStdString());
            Druk(bladen, "cmdPrinten");
            bladen.reject();
        });
        VerwachtPdf(wachter, bestand);
        Opdracht("cmdOK");
        return LeesPdf(bestand);
    }
    [[nodiscard]] std::string Bestand() const { return map.Inhoud("etiketten.ini"); }
};

} // namespace

TEST_F(frmEtikettenTest, DeOpschriftenEnDeTabvolgorde)
{
    Open();
    VerwachtTeksten("Etiketten en naamkaartjes",
                    {{"lblSoort", "Maak:"},
                     {"lblOnderschrift", "Kleine regel:"},
                     {"lblVolgorde", "Op volgorde van:"},
                     {"lblVel", "Op vellen van:"},
                     {"lblEerste", "Eerste vrije etiket:"},
                     {"lblAantal", "2 etiketten op 1 vel. Zonder adres en dus niet erbij: 1. "
                                   "Ingekort: 0."}},
                    {{"chkFamilie", "Als 'Fam. Bos-de Vries'"},
                     {"chkKader", "Lijnen printen, om te proberen op gewoon papier"},
                     {"cmdOK", "Printen..."},
                     {"cmdAnnuleren", "Terug"}},
                    {{"Frame1", "Het vel, in millimeters"}});
    EXPECT_EQ((std::vector<std::string>{"2 x 7 (99,1 x 38,1 mm)", "3 x 7 (63,5 x 38,1 mm)",
                                        "3 x 8 (70 x 37 mm)", "2 x 4 (99,1 x 67,7 mm)",
                                        "4 x 10 (48,5 x 25,4 mm)", "eigen maat"}),
              Keuzes(Deel<QComboBox>("cmbVel")));
    EXPECT_EQ(
        (std::vector<std::string>{"Een etiket per adres", "Een etiket per speler", "Naamkaartjes"}),
        Keuzes(Deel<QComboBox>("cmbSoort")));
    Deel<QWidget>("cmbSoort")->setFocus();
    EXPECT_EQ("chkFamilie cmbVolgorde cmbVel spnEerste chkKader lstAandacht picP0 cmdOK "
              "cmdAnnuleren cmbSoort ",
              MetTab(10));
}

TEST_F(frmEtikettenTest, HetVelInBeeldVolgtDeKeuzes)
{
    Open();
    EXPECT_EQ("Bo Bok Jan Zee en Anna de Vries Brink2 Lindelaan3 0410ZZ Ede 0411AB Wielerdam",
              Voorbeeld());
    Klik(Deel<QCheckBox>("chkFamilie"));
    EXPECT_EQ("Bo Bok Fam. Zee-de Vries Brink2 Lindelaan3 0410ZZ Ede 0411AB Wielerdam",
              Voorbeeld());
    Kies("cmbSoort", 1);
    EXPECT_FALSE(Deel<QCheckBox>("chkFamilie")->isVisible());
    Kies("cmbVolgorde", 1);
    EXPECT_EQ("Bo Bok Anna de Vries Brink2 Lindelaan3 0410ZZ Ede 0411AB Wielerdam Jan Zee "
              "Lindelaan3 0411AB Wielerdam",
              Voorbeeld());
    EXPECT_EQ("3 etiketten op 1 vel. Zonder adres en dus niet erbij: 1. Ingekort: 0.",
              Label("lblAantal"));
}

TEST_F(frmEtikettenTest, NaamkaartjesHebbenDeNaamVanDeGroep)
{
    Open();
    EXPECT_FALSE(Deel<QWidget>("txtOnderschrift")->isVisible());
    EXPECT_EQ("Clubleden", Vak("txtOnderschrift"));
    Kies("cmbSoort", 2);
    Kies("cmbVolgorde", 1);
    EXPECT_TRUE(Deel<QWidget>("lblOnderschrift")->isVisible());
    EXPECT_EQ("4 etiketten op 1 vel. Zonder adres en dus niet erbij: 0. Ingekort: 0.",
              Label("lblAantal"));
    EXPECT_EQ("Bo Co Bok Cox Clubleden Clubleden Anna Jan de Vries Zee Clubleden Clubleden",
              Voorbeeld());
    Schrijf(*venster, "txtOnderschrift", u"Rietkraag"_s);
    EXPECT_EQ("Bo Co Bok Cox Rietkraag Rietkraag Anna Jan de Vries Zee Rietkraag Rietkraag",
              Voorbeeld());
    administratie.spelers.tabel.ZetCel(2, Kolom::Groep, "Gr02-");
    Open();
    EXPECT_EQ("", Vak("txtOnderschrift")) << "ze zijn van meer dan een groep";
}

TEST_F(frmEtikettenTest, WieErNietOpKomtOfWordtIngekortStaatVooraf)
{
    administratie.spelers.tabel.ZetCel(3, Kolom::Achternaam, Tekst(90, 'x'));
    Open();
    EXPECT_EQ((std::vector<std::string>{"Geen adres: Co Cox", "Ingekort: Bo " + Tekst(90, 'x')}),
              Regels("lstAandacht"));
    EXPECT_EQ("2 etiketten op 1 vel. Zonder adres en dus niet erbij: 1. Ingekort: 1.",
              Label("lblAantal"));
    Kies("cmbSoort", 2);
    EXPECT_EQ((std::vector<std::string>{"Ingekort: Bo " + Tekst(90, 'x')}), Regels("lstAandacht"));
}

/// Every text on paper where the sheet says, to 0.2 mm.
TEST_F(frmEtikettenTest, InDePdfStaatElkeTekstOpZijnPlaats)
{
    const Letterkast kast;
    const double regel = kast.Hoogte({.punten = 11});
    Open();
    for (std::size_t vel = 0; vel < Etiketvellen.size(); ++vel) {
        const Etiketmaat& maat = Etiketvellen[vel];
        Kies("cmbVel", static_cast<int>(vel));
        Getal("spnEerste")->setValue(maat.kolommen); // the last one of the first row
        const auto bladen = Print();
        ASSERT_EQ(1U, bladen.size());
        EXPECT_NEAR(210, bladen[0].breed, Naast);
        EXPECT_NEAR(297, bladen[0].hoog, Naast);
        const bool randloos = vel == 2;
        const double witX = randloos ? 5 : 2.5;
        const double midden = maat.boven + (randloos ? 4.5 + 28.0 / 2 : maat.hoog / 2);
        const double x = maat.links + (maat.kolommen - 1) * maat.stapOpzij + witX;
        const auto verwacht = [&](const char* woord, double links, double boven) {
            EXPECT_NEAR(links, bladen[0].Woord(woord).links, Naast) << woord << ' ' << vel;
            EXPECT_NEAR(boven, bladen[0].Woord(woord).boven, Naast) << woord << ' ' << vel;
        };
        verwacht("Bo", x, midden - 1.5 * regel);
        verwacht("Brink2", x, midden - 0.5 * regel);
        verwacht("0410ZZ", x, midden + 0.5 * regel);
        verwacht("Lindelaan3", maat.links + witX, midden + maat.stapOmlaag - 0.5 * regel);
        verwacht("0411AB", maat.links + witX, midden + maat.stapOmlaag + 0.5 * regel);
    }
}

TEST_F(frmEtikettenTest, DeLijnenWordenAlleenOpVerzoekGeprint)
{
    Open();
    const auto zwart = [&] {
        static_cast<void>(Print());
        const QImage beeld = Pdfbeeld(map.Weg() / "etiketten.pdf", 10);
        // Along the top of the third label of the first row, which holds no text.
        int aantal = 0;
        for (int x = 1100; x < 2000; ++x)
            aantal += qGray(beeld.pixel(x, 152)) < 200 || qGray(beeld.pixel(x, 151)) < 200 ? 1 : 0;
        return aantal;
    };
    EXPECT_EQ(0, zwart());
    Klik(Deel<QCheckBox>("chkKader"));
    EXPECT_LT(800, zwart());
}

TEST_F(frmEtikettenTest, HetEersteVrijeEtiketSchuiftAllesOp)
{
    Open();
    Kies("cmbVel", 3);
    EXPECT_EQ(8, Getal("spnEerste")->maximum());
    Getal("spnEerste")->setValue(8);
    EXPECT_EQ("2 etiketten op 2 vellen. Zonder adres en dus niet erbij: 1. Ingekort: 0.",
              Label("lblAantal"));
    EXPECT_EQ("Bo Bok Brink2 0410ZZ Ede", Voorbeeld());
    const auto bladen = Print();
    ASSERT_EQ(2U, bladen.size());
    EXPECT_EQ("Jan Zee en Anna de Vries Lindelaan3 0411AB Wielerdam", bladen[1].Tekst());
    Kies("cmbVel", 0);
    EXPECT_EQ(14, Getal("spnEerste")->maximum());
}

/// More sheets than the lists of players may have.
TEST_F(frmEtikettenTest, AlleVellenKomenErUit)
{
    std::vector<Bewoner> bewoners;
    for (int i = 1; i <= 250; ++i)
        bewoners.push_back(
            {"v" + std::to_string(i), "", "Bos", "Brink " + std::to_string(i), "0411 AB", "Ede"});
    administratie.spelers.tabel = MaakBewoners(bewoners);
    Open();
    Kies("cmbVel", 3);
    const auto bladen = Print();
    ASSERT_EQ(32U, bladen.size());
    EXPECT_NO_THROW(static_cast<void>(bladen[31].Woord("Bos")));
}

TEST_F(frmEtikettenTest, DeMatenVanEenGewoonVelStaanVast)
{
    Open();
    Kies("cmbVel", 1);
    EXPECT_EQ(63.5, Getal("spnBreedte")->value());
    EXPECT_EQ("15,15", Getal("spnBovenmarge")->text().toStdString());
    EXPECT_EQ(66, Getal("spnStapopzij")->value());
    EXPECT_FALSE(Getal("spnBreedte")->isEnabled());
    Kies("cmbVel", 5);
    EXPECT_TRUE(Getal("spnBreedte")->isEnabled());
    EXPECT_EQ(36, Getal("spnHoogte")->value());
}

TEST_F(frmEtikettenTest, HetEigenVelWordtBewaard)
{
    Open();
    Kies("cmbVel", 5);
    for (const auto& [vak, waarde] : {std::pair<const char*, double>{"spnKolommen", 1},
                                      {"spnRijen", 2},
                                      {"spnBreedte", 100},
                                      {"spnHoogte", 50},
                                      {"spnLinkermarge", 10},
                                      {"spnBovenmarge", 20},
                                      {"spnStapopzij", 0},
                                      {"spnStapomlaag", 60}})
        Getal(vak)->setValue(waarde);
    Klik(Knop("cmdAnnuleren"));
    EXPECT_EQ(eigenVel, Bestand());
    Open();
    Kies("cmbVel", 0);
    Kies("cmbVel", 5);
    EXPECT_EQ(60, Getal("spnStapomlaag")->value());
    EXPECT_EQ(2, Getal("spnEerste")->maximum());
    const auto woord = Print().at(0).Woord("Jan");
    EXPECT_NEAR(12.5, woord.links, Naast);
    EXPECT_NEAR(20 + 60 + 25 - 1.5 * Letterkast().Hoogte({.punten = 11}), woord.boven, Naast);
}

TEST_F(frmEtikettenTest, WatNietPastWordtGezegdEnNietBewaard)
{
    map.Zet("etiketten.ini", eigenVel);
    Open();
    Kies("cmbVel", 5);
    Getal("spnBreedte")->setValue(200.01);
    EXPECT_EQ("Zo past het niet: het vel is groter dan A4 (210 x 297 mm), de etiketten liggen "
              "over elkaar, of ze zijn te klein.",
              Label("lblAantal"));
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    EXPECT_EQ("", Voorbeeld());
    Getal("spnBreedte")->setValue(200);
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    Getal("spnBreedte")->setValue(210);
    QTest::keyClick(venster.get(), Qt::Key_Escape);
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(eigenVel, Bestand());
}

TEST_F(frmEtikettenTest, EenBeschadigdBestandGeeftDeStandaardmaten)
{
    const Tekst kapot = "KOLOMMEN=1\r\nRIJEN=nul\r\n";
    map.Zet("etiketten.ini", kapot);
    wachter.Begin(u"Uw eigen etiketvel kan niet worden gelezen. De standaardmaten staan klaar; het "
                  "bestand blijft zoals het is tot u een nieuw eigen vel instelt."_s);
    Open();
    wachter.Klaar();
    Kies("cmbVel", 5);
    EXPECT_EQ(3, Getal("spnKolommen")->value());
    EXPECT_EQ(36, Getal("spnHoogte")->value());
    venster->close();
    EXPECT_EQ(kapot, Bestand()) << "niets gekozen, dus niets vervangen";
}

TEST_F(frmEtikettenTest, EenVolleSchijfWordtGezegd)
{
    Open();
    Kies("cmbVel", 5);
    Getal("spnRijen")->setValue(7);
    schijf.FaalBij(1);
    wachter.Begin(
        u"Uw eigen etiketvel is niet opgeslagen. De spelers zijn niet veranderd. Stel het "
        "vel de volgende keer opnieuw in."_s);
    Klik(Knop("cmdAnnuleren"));
    wachter.Klaar();
    EXPECT_FALSE(venster->isVisible());
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "etiketten.ini"));
}

TEST_F(frmEtikettenTest, ZonderEnigAdresValtErNietsTePrinten)
{
    administratie.spelers.tabel = MaakBewoners({{"Co", "", "Cox"}});
    Open();
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    EXPECT_EQ("0 etiketten op 1 vel. Zonder adres en dus niet erbij: 1. Ingekort: 0.",
              Label("lblAantal"));
    Kies("cmbSoort", 2);
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
}

TEST_F(frmEtikettenTest, TerugEnEscapeSluiten)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        Sluit(weg, "cmdAnnuleren");
        EXPECT_FALSE(std::filesystem::exists(map.Weg() / "etiketten.ini"));
    }
}
