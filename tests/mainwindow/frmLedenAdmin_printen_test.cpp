// Printing a list of the sample suite, from the command of the main window to the file.
#include <QDialog>
#include <QLabel>
#include <QRadioButton>

#include <gtest/gtest.h>

#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "mainwindow/vensterproef.h"
#include "platform/scherm/regellijst.h"
#include "platform/schijf/klok.h"

using namespace plexoran;

namespace {

class PrintenTest : public Hoofdvensterproef {
  protected:
    /// Works the set-up with `keuzes`, then the preview with `voorbeeld`.
    void Print(const std::function<void(QDialog&)>& keuzes,
               const std::function<void(QDialog&)>& voorbeeld)
    {
        wachter.Bedien([&](QDialog& keuze) {
            keuzes(keuze);
            Druk(keuze, "cmdOK");
            Druk(keuze, "cmdAnnuleren");
        });
        wachter.Bedien([&](QDialog& blad) {
            voorbeeld(blad);
            Druk(blad, "cmdAnnuleren");
        });
        VerwachtPdf(wachter, Bestand(), [](QDialog& dialoog) {
            Vind<QRadioButton>(dialoog, "printAll")->setChecked(true);
        });
        Opdracht("cmdPrint");
    }
    [[nodiscard]] std::filesystem::path Bestand() const { return suite.Weg() / "lijst.pdf"; }
};

} // namespace

TEST_F(PrintenTest, EenLijstVanDeGetoondeGroep)
{
    ASSERT_NO_FATAL_FAILURE(Start());
    KiesGroep(3);
    const std::string voor = suite.Spelers();
    ASSERT_TRUE(Knop("cmdPrint")->isEnabled());
    std::string groep;
    Print(
        [&](QDialog& keuze) {
            groep = Vind<QLabel>(keuze, "Label3")->text().toStdString();
            EXPECT_EQ("(kolom 18)", Vind<Regellijst>(keuze, "lstKeus")->Regel(14));
            Vind<Regellijst>(keuze, "lstNBBgr")->selectAll();
        },
        [](QDialog& blad) { Druk(blad, "cmdPrinten"); });
    EXPECT_EQ(Keus("cmbGr")->currentText().toStdString(), groep);
    const auto bladen = LeesPdf(Bestand());
    ASSERT_FALSE(bladen.empty());
    EXPECT_NE(std::string::npos, bladen[0].Tekst().find("Spelerinformatie Groep: " + groep));
    for (const char* titel : {"RegNr", "Voornaam", "Tusv", "Achternaam", "Telef", "Email", "Adres"})
        EXPECT_EQ(titel, bladen[0].Woord(titel).tekst);
    EXPECT_EQ("9", bladen[0].Woord("9").tekst); // nine players
    EXPECT_NE(std::string::npos, bladen[0].Tekst().find("Ravendeck.exe"));
    EXPECT_EQ(voor, suite.Spelers());
}

TEST_F(PrintenTest, AlleenDeGekozenSubgroep)
{
    ASSERT_NO_FATAL_FAILURE(Start());
    KiesGroep(1);
    Print(
        [](QDialog& keuze) {
            auto* subgroepen = Vind<Regellijst>(keuze, "lstNBBgr");
            ASSERT_EQ("B-LIJN", subgroepen->Regel(1));
            subgroepen->Kies({1});
        },
        [](QDialog& blad) { Druk(blad, "cmdPrinten"); });
    const auto bladen = LeesPdf(Bestand());
    ASSERT_EQ(1U, bladen.size());
    EXPECT_NE(std::string::npos, bladen[0].Tekst().find("Subgroep(en): B-LIJN RegNr"));
    EXPECT_NE(std::string::npos, bladen[0].Tekst().find("Stoffelsen"));  // of B-LIJN
    EXPECT_EQ(std::string::npos, bladen[0].Tekst().find("Wolthuizen"));  // of A-LIJN
    EXPECT_EQ(std::string::npos, bladen[0].Tekst().find("Eikelenboom")); // of C-LIJN
}

TEST_F(PrintenTest, MeerSubgroepenStaanInDeKopZoalsInDeLijst)
{
    ASSERT_NO_FATAL_FAILURE(Start());
    KiesGroep(1);
    const Tekst voor = Dagtekening();
    Print(
        [](QDialog& keuze) {
            auto* subgroepen = Vind<Regellijst>(keuze, "lstNBBgr");
            for (const int plaats : {2, 0})
                subgroepen->Kies({plaats});
            Druk(keuze, "cmdSelNone");
            Vind<Regellijst>(keuze, "lstKeus")->Kies({2});
        },
        [](QDialog& blad) { Druk(blad, "cmdPrinten"); });
    const auto bladen = LeesPdf(Bestand());
    ASSERT_FALSE(bladen.empty());
    const std::string tekst = bladen[0].Tekst();
    EXPECT_NE(std::string::npos, tekst.find("Subgroep(en): A-LIJN + C-LIJN RegNr"));
    EXPECT_NE(std::string::npos, tekst.find("Wolthuizen"));
    EXPECT_NE(std::string::npos, tekst.find("Eikelenboom"));
    EXPECT_EQ(std::string::npos, tekst.find("Stoffelsen"));
    EXPECT_TRUE(tekst.find(voor) != std::string::npos ||
                tekst.find(Dagtekening()) != std::string::npos);
}

TEST_F(PrintenTest, InDeImportgroepMetNummer)
{
    ASSERT_NO_FATAL_FAILURE(Start());
    KiesGroep(5);
    Print(
        [&](QDialog& keuze) {
            auto* kolommen = Vind<Regellijst>(keuze, "lstKeus");
            EXPECT_EQ("NBBnr", kolommen->Regel(14));
            Druk(keuze, "cmdSelNone");
            kolommen->Kies({2});
            kolommen->Kies({14});
            Vind<Regellijst>(keuze, "lstNBBgr")->selectAll();
        },
        [](QDialog& blad) {
            EXPECT_EQ("Printformaat: A4-staand",
                      Vind<QLabel>(blad, "Label2")->text().toStdString());
            Druk(blad, "cmdPrinten");
        });
    const auto bladen = LeesPdf(Bestand());
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("RegNr Achternaam NBBnr", bladen[0].Regel(bladen[0].Woord("RegNr").boven));
    EXPECT_EQ("36", bladen[0].Woord("36").tekst);
}

TEST_F(PrintenTest, EenLegeGroepHeeftNietsTePrinten)
{
    ASSERT_NO_FATAL_FAILURE(Start());
    KiesGroep(50);
    wachter.Bedien([](QDialog& keuze) {
        EXPECT_TRUE(Vind<QLabel>(keuze, "Label7")->isVisible());
        EXPECT_FALSE(Vind<QPushButton>(keuze, "cmdOK")->isEnabled());
        keuze.reject();
    });
    Opdracht("cmdPrint");
}
