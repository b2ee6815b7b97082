#include "platform/scherm/diaPrinter.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>

#include <gtest/gtest.h>

#include "hulp/berichtwachter.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/venstergrepen.h"
#include "platform/echteSchijf.h"
#include "platform/tijdelijkeMap.h"

using namespace plexoran;

namespace {

const Printvraag Ledenlijst{.titel = QStringLiteral("Ledenlijst Gr01"),
                            .stand = Papierstand::Staand,
                            .bladen = 9,
                            .voorstel = Bladkeus::Soort::Huidig};

class diaPrinterTest : public testing::Test {
  protected:
    std::optional<Printer> Kies(const Printeraanbod& aanbod, const Printvraag& vraag = Ledenlijst)
    {
        hoofd.show();
        auto keus = KiesPrinter(schijf, vraag, aanbod, &hoofd);
        wachter.Klaar();
        return keus;
    }
    void VerwachtKeuze(const std::function<void(QDialog&)>& stappen)
    {
        wachter.Bedien([stappen](QDialog& dialoog) {
            EXPECT_EQ("diaPrinter", dialoog.objectName().toStdString());
            EXPECT_EQ("Printen", dialoog.windowTitle().toStdString());
            stappen(dialoog);
        });
    }
    void VerwachtBestand(const std::string& naam)
    {
        const QString pad = QString::fromStdString((map.Weg() / naam).string());
        wachter.Bedien([pad](QDialog& dialoog) {
            auto& kiezer = dynamic_cast<QFileDialog&>(dialoog);
            EXPECT_EQ("Opslaan als PDF-bestand", kiezer.windowTitle().toStdString());
            auto* vak = Vind<QLineEdit>(kiezer, "fileNameEdit");
            EXPECT_EQ("Ledenlijst Gr01.pdf", vak->text().toStdString());
            vak->setText(pad);
            QMetaObject::invokeMethod(&kiezer, "accept");
        });
    }
    void VerwachtSysteem()
    {
        wachter.Bedien([](QDialog& dialoog) {
            EXPECT_NE(nullptr, qobject_cast<QPrintDialog*>(&dialoog));
            DrukPrintdialoog(dialoog, QDialogButtonBox::RejectRole);
        });
    }
    static std::vector<std::string> Printers(const QDialog& dialoog)
    {
        const auto* keus = Vind<QComboBox>(dialoog, "cmbPrinter");
        std::vector<std::string> namen;
        for (int i = 0; i < keus->count(); ++i)
            namen.push_back(keus->itemText(i).toStdString());
        return namen;
    }
    static void Ok(const QDialog& dialoog) { Vind<QPushButton>(dialoog, "cmdOK")->click(); }
    static void Annuleer(const QDialog& dialoog)
    {
        Vind<QPushButton>(dialoog, "cmdAnnuleren")->click();
    }
    static std::string Opschrift(const QDialog& dialoog)
    {
        return Vind<QPushButton>(dialoog, "cmdOK")->text().remove(QLatin1Char('&')).toStdString();
    }

    TijdelijkeMap map;
    EchteSchijf schijf;
    QWidget hoofd;
    Berichtwachter wachter;
};

} // namespace

TEST_F(diaPrinterTest, ZonderPrinterBlijftEenPdfbestand)
{
    VerwachtKeuze([](QDialog& dialoog) {
        EXPECT_EQ((std::vector<std::string>{"Opslaan als PDF-bestand"}), Printers(dialoog));
        EXPECT_EQ("Opslaan...", Opschrift(dialoog));
        EXPECT_EQ(
            "Alle bladen (9)",
            Vind<QRadioButton>(dialoog, "optAlle")->text().remove(QLatin1Char('&')).toStdString());
        EXPECT_TRUE(Vind<QRadioButton>(dialoog, "optHuidig")->isChecked());
        Ok(dialoog);
    });
    VerwachtBestand("lijst.pdf");
    const auto printer = Kies({});
    ASSERT_TRUE(printer);
    EXPECT_EQ((std::vector<int>{4}), printer->Keus().Bladen(9, 4));

    auto taak = printer->Begin(Papierstand::Staand, Ledenlijst.titel);
    ASSERT_TRUE(taak);
    (*taak)->Vlak().Schrijf(20, 30, {}, "Jansen");
    ASSERT_TRUE((*taak)->Eind());
    const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("Jansen", bladen[0].Tekst());
}

TEST_F(diaPrinterTest, DeNaamKrijgtZijnAchtervoegsel)
{
    VerwachtKeuze(&diaPrinterTest::Ok);
    VerwachtBestand("zonder");
    const auto printer = Kies({});
    ASSERT_TRUE(printer);
    auto taak = printer->Begin(Papierstand::Staand, Ledenlijst.titel);
    ASSERT_TRUE(taak);
    ASSERT_TRUE((*taak)->Eind());
    EXPECT_TRUE(std::filesystem::exists(map.Weg() / "zonder.pdf"));
}

TEST_F(diaPrinterTest, AlleBladenOfEenReeks)
{
    VerwachtKeuze([](QDialog& dialoog) {
        EXPECT_FALSE(Vind<QSpinBox>(dialoog, "numVan")->isEnabled());
        Vind<QRadioButton>(dialoog, "optAlle")->click();
        Ok(dialoog);
    });
    VerwachtBestand("lijst.pdf");
    auto printer = Kies({});
    ASSERT_TRUE(printer);
    EXPECT_EQ((std::vector<int>{1, 2, 3}), printer->Keus().Bladen(3, 2));

    VerwachtKeuze([](QDialog& dialoog) {
        auto* van = Vind<QSpinBox>(dialoog, "numVan");
        auto* tot = Vind<QSpinBox>(dialoog, "numTot");
        Vind<QRadioButton>(dialoog, "optReeks")->click();
        EXPECT_TRUE(van->isEnabled());
        EXPECT_EQ(1, van->value());
        EXPECT_EQ(9, van->maximum());
        EXPECT_EQ(9, tot->value());
        tot->setValue(5);
        van->setValue(7); // the end cannot stand before the start
        EXPECT_EQ(7, tot->value());
        tot->setValue(8);
        Ok(dialoog);
    });
    VerwachtBestand("lijst.pdf");
    printer = Kies({});
    ASSERT_TRUE(printer);
    EXPECT_EQ((std::vector<int>{7, 8}), printer->Keus().Bladen(9, 2));
}

TEST_F(diaPrinterTest, ZonderBladInBeeldZijnAlleBladenHetVoorstel)
{
    VerwachtKeuze([](QDialog& dialoog) {
        EXPECT_FALSE(Vind<QRadioButton>(dialoog, "optHuidig")->isVisible());
        EXPECT_TRUE(Vind<QRadioButton>(dialoog, "optAlle")->isChecked());
        Ok(dialoog);
    });
    VerwachtBestand("lijst.pdf");
    const auto printer = Kies({}, {.titel = Ledenlijst.titel,
                                   .stand = Papierstand::Staand,
                                   .bladen = 2,
                                   .voorstel = Bladkeus::Soort::Alle});
    ASSERT_TRUE(printer);
    EXPECT_EQ((std::vector<int>{1, 2}), printer->Keus().Bladen(2, 1));
}

/// The system asks the pages for a printer itself.
TEST_F(diaPrinterTest, VoorEenPrinterVolgtHetVensterVanHetSysteem)
{
    VerwachtKeuze([](QDialog& dialoog) {
        EXPECT_EQ((std::vector<std::string>{"Kantoor", "Zolder", "Opslaan als PDF-bestand"}),
                  Printers(dialoog));
        auto* keus = Vind<QComboBox>(dialoog, "cmbPrinter");
        const auto* bladen = Vind<QGroupBox>(dialoog, "Frame1");
        EXPECT_EQ("Zolder", keus->currentText().toStdString());
        EXPECT_EQ("Verder...", Opschrift(dialoog));
        EXPECT_FALSE(bladen->isEnabled());
        EXPECT_EQ("Welke bladen: dat vraagt de printer hierna", bladen->title().toStdString());
        keus->setCurrentIndex(2);
        EXPECT_EQ("Opslaan...", Opschrift(dialoog));
        EXPECT_TRUE(bladen->isEnabled());
        EXPECT_EQ("Welke bladen", bladen->title().toStdString());
        keus->setCurrentIndex(0);
        Ok(dialoog);
    });
    VerwachtSysteem();
    EXPECT_FALSE(Kies({.printers = {QStringLiteral("Kantoor"), QStringLiteral("Zolder")},
                       .standaard = QStringLiteral("Zolder")}));
}

TEST_F(diaPrinterTest, MaaktEenPrinterZelfPdfDanAlleenHetVensterVanHetSysteem)
{
    VerwachtSysteem();
    EXPECT_FALSE(
        Kies({.printers = {QStringLiteral("Kantoor"), QStringLiteral("Microsoft Print to PDF")},
              .standaard = QStringLiteral("Kantoor")}));
    VerwachtSysteem();
    EXPECT_FALSE(Kies({.pdfInDialoog = true}));
}

/// Thinking better of the file is not thinking better of printing.
TEST_F(diaPrinterTest, ZonderBestandBlijftDeKeuzeStaan)
{
    VerwachtKeuze([](QDialog& dialoog) {
        Ok(dialoog);
        EXPECT_TRUE(dialoog.isVisible());
        Annuleer(dialoog);
    });
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    EXPECT_FALSE(Kies({}));
    EXPECT_TRUE(std::filesystem::is_empty(map.Weg()));
}

TEST_F(diaPrinterTest, EnterGaatVerderEnEscapeSluit)
{
    VerwachtKeuze([](QDialog& dialoog) {
        QTest::keyClick(Vind<QRadioButton>(dialoog, "optAlle"), Qt::Key_Return);
    });
    VerwachtBestand("lijst.pdf");
    EXPECT_TRUE(Kies({}));
    VerwachtKeuze([](QDialog& dialoog) { QTest::keyClick(&dialoog, Qt::Key_Escape); });
    EXPECT_FALSE(Kies({}));
}
