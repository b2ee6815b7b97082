#include "platform/scherm/inrichting.h"

#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPrintDialog>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTranslator>

#include <set>

#include "hulp/printdialoog.h"
#include "platform/scherm/printer.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"

using namespace plexoran;

namespace {

/// Asked when no other translator has a word: keeps what stays English.
class Luisteraar : public QTranslator {
  public:
    Luisteraar()
    {
        // The translator that was installed first is asked last.
        const auto anderen = qApp->findChildren<QTranslator*>();
        for (QTranslator* ander : anderen)
            QCoreApplication::removeTranslator(ander);
        QCoreApplication::installTranslator(this);
        for (QTranslator* ander : anderen)
            QCoreApplication::installTranslator(ander);
        gehoord_.clear();
    }
    ~Luisteraar() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(Luisteraar)

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* waar, const char* bron, const char* /*toelichting*/,
                      int /*aantal*/) const override
    {
        const std::string woord = std::string(waar) + ": " + bron;
        if (woord != "QShortcut: Control") // looked for when keys are read; never on the screen
            gehoord_.insert(woord);
        return {};
    }
    [[nodiscard]] const std::set<std::string>& Gehoord() const { return gehoord_; }

  private:
    mutable std::set<std::string> gehoord_;
};

/// Opens the menu of the right mouse button, and closes it.
void OpenMenu(QWidget& deel)
{
    QTimer::singleShot(0, &deel, [] {
        if (auto* menu = QApplication::activePopupWidget())
            menu->close();
    });
    QContextMenuEvent vraag(QContextMenuEvent::Mouse, {2, 2}, deel.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&deel, &vraag);
    QApplication::processEvents();
}

class NederlandsTest : public testing::Test {
  protected:
    NederlandsTest() { hoofd.show(); }
    ~NederlandsTest() override
    {
        EXPECT_EQ(std::set<std::string>(), luisteraar.Gehoord()) << "staat er in het Engels";
    }

    /// A box of Qt's own, which is sent away.
    void VerwachtVraag(const QString& tekst)
    {
        wachter.LaatBeslissen([this, tekst](const QMessageBox& bericht) {
            EXPECT_EQ(tekst.toStdString(), bericht.text().toStdString());
            ++vragen;
            return Berichtwachter::Escape;
        });
    }

    int vragen = 0;
    QWidget hoofd;
    Berichtwachter wachter;
    TijdelijkeMap map;
    EchteSchijf schijf;
    Luisteraar luisteraar;
};

} // namespace

/// All its tabs, whether they are in view or not, and what it opens.
TEST_F(NederlandsTest, DePrintdialoog)
{
    map.Zet("lijst.pdf", "van gisteren");
    wachter.Bedien([this](QDialog& dialoog) {
        KiesPdf(dialoog, map.Weg() / "lijst.pdf");
        VouwUit(dialoog);
        const auto* duplex = Vind<QGroupBox>(dialoog, "duplex");
        EXPECT_EQ("Dubbelzijdig afdrukken", duplex->title().toStdString());
        QStringList keuzes;
        for (const QRadioButton* keus : duplex->findChildren<QRadioButton*>())
            keuzes << keus->text();
        EXPECT_EQ("Uit,Lange zijde,Korte zijde", keuzes.join(u',').toStdString());
        wachter.Bedien([](QDialog& eigenschappen) {
            EXPECT_EQ("Paginagrootte:",
                      Vind<QLabel>(eigenschappen, "pageSizeLabel")->text().toStdString());
            eigenschappen.reject();
        });
        Vind<QPushButton>(dialoog, "properties")->click();
        OpenMenu(*Vind<QLineEdit>(dialoog, "filename"));
        OpenMenu(*Vind<QSpinBox>(dialoog, "copies"));
        VerwachtVraag(Vind<QLineEdit>(dialoog, "filename")->text() +
                      u" bestaat al.\nWilt u het overschrijven?"_s);
        DrukPrintdialoog(dialoog, QDialogButtonBox::AcceptRole);
        dialoog.reject();
    });
    (void)KiesPrinter(
        schijf,
        {.titel = u"Proef"_s, .stand = Papierstand::Staand, .bladInBeeld = [] { return 1; }},
        &hoofd);
    EXPECT_EQ(1, vragen);
}

TEST_F(NederlandsTest, DeBestandsdialoog)
{
    map.Zet("lijst.pdf", "van gisteren");
    QFileDialog kiezer(&hoofd, u"Kiezen"_s, QString::fromStdString(map.Weg().string()));
    for (const auto& [soort, naam, tekst] :
         {std::tuple(QFileDialog::AcceptOpen, u"weg"_s,
                     u"weg\nBestand niet gevonden.\nVerifieer op juiste bestandsnaam."_s),
          {QFileDialog::AcceptSave, u"lijst.pdf"_s,
           u"lijst.pdf bestaat al.\nWilt u het vervangen?"_s}}) {
        const bool open = soort == QFileDialog::AcceptOpen;
        kiezer.setAcceptMode(soort);
        kiezer.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
        kiezer.show();
        QApplication::processEvents();
        auto* vak = Vind<QLineEdit>(kiezer, "fileNameEdit");
        OpenMenu(*vak);
        OpenMenu(*Vind<QWidget>(kiezer, "listView"));
        vak->setText(naam);
        VerwachtVraag(tekst);
        QMetaObject::invokeMethod(&kiezer, "accept");
    }
    EXPECT_EQ(2, vragen);
}

TEST_F(NederlandsTest, DeSchuifbalk)
{
    QScrollBar balk(Qt::Horizontal, &hoofd);
    balk.setRange(1, 4);
    balk.show();
    OpenMenu(balk);
}

/// The program and the packages have one icon.
TEST(Inrichting, HetPictogramIsErInElkeMaat)
{
    const QList<QSize> maten = QApplication::windowIcon().availableSizes();
    for (const int maat : {16, 32, 64, 128, 256})
        EXPECT_TRUE(maten.contains(QSize(maat, maat))) << maat;
}
