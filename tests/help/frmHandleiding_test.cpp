#include "help/frmHandleiding.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>

#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "vensters/kleuren.h"

using namespace plexoran;

namespace {

class frmHandleidingTest : public Dialoogproef<frmHandleiding, Mapstand> {
  protected:
    ~frmHandleidingTest() override { QApplication::setPalette(Licht()); }
    void SetUp() override { Open(); }
    void Open()
    {
        venster = std::make_unique<frmHandleiding>(schijf, &hoofd);
        ToonHet();
    }
    [[nodiscard]] QTextBrowser* Tekst() const { return Deel<QTextBrowser>("txtHandleiding"); }
    [[nodiscard]] QTreeWidget* Lijst() const { return Deel<QTreeWidget>("lstHoofdstukken"); }
    [[nodiscard]] std::string Gekozen() const
    {
        return Lijst()->currentItem() == nullptr ? ""
                                                 : Lijst()->currentItem()->text(0).toStdString();
    }
    /// The heading or line at the top of what is shown.
    [[nodiscard]] std::string Bovenaan() const
    {
        return Tekst()->cursorForPosition(QPoint(8, 12)).block().text().toStdString();
    }
    void Druk(Qt::Key toets, Qt::KeyboardModifiers bij = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), toets, bij);
        QApplication::processEvents();
    }
    /// The first picture as it is drawn: where it comes from, and how wide.
    [[nodiscard]] std::pair<QImage, int> Plaat() const
    {
        for (QTextBlock blok = Tekst()->document()->begin(); blok.isValid(); blok = blok.next()) {
            for (auto deel = blok.begin(); !deel.atEnd(); ++deel) {
                const QTextImageFormat vorm = deel.fragment().charFormat().toImageFormat();
                if (!vorm.isValid() || !vorm.name().endsWith(u"frmLedenAdmin.png"_s))
                    continue;
                const auto plaat = Tekst()
                                       ->document()
                                       ->resource(QTextDocument::ImageResource, QUrl(vorm.name()))
                                       .value<QImage>();
                return {plaat, plaat.deviceIndependentSize().toSize().width()};
            }
        }
        return {};
    }
};

} // namespace

TEST_F(frmHandleidingTest, DeHoofdstukkenStaanLinksEnDeLetterlijkeTekstRechts)
{
    VerwachtTeksten("Handleiding van Plexoran", {{"lblZoekTekst", "&Zoek:"}},
                    {{"cmdVorige", "Vorige"},
                     {"cmdVolgende", "Volgende"},
                     {"cmdAfdrukken", "Afdrukken..."},
                     {"cmdSluiten", "Sluiten"}});
    EXPECT_FALSE(venster->isModal());
    EXPECT_GT(Lijst()->topLevelItemCount(), 15);
    QTreeWidgetItem* veilig = Lijst()->findItems(u"Veilig werken"_s, Qt::MatchExactly).value(0);
    ASSERT_NE(nullptr, veilig);
    EXPECT_EQ("Ongedaan maken", veilig->child(0)->text(0).toStdString());
    Lijst()->setCurrentItem(veilig->child(0));
    QApplication::processEvents();
    EXPECT_EQ("Ongedaan maken", Bovenaan());
    EXPECT_TRUE(Tekst()->toPlainText().contains(u"Alles wat u wijzigt, kunt u ongedaan maken"_s));
}

TEST_F(frmHandleidingTest, DeLijstZegtWelkHoofdstukHetIs)
{
    venster->ToonHoofdstuk(u"Geschiedenis"_s);
    EXPECT_EQ("Geschiedenis", Bovenaan());
    EXPECT_EQ("Geschiedenis", Gekozen());
    const int hier = Tekst()->verticalScrollBar()->value();
    venster->ToonHoofdstuk(u"Dit hoofdstuk is er niet"_s);
    EXPECT_EQ(hier, Tekst()->verticalScrollBar()->value());
}

TEST_F(frmHandleidingTest, ElkeVerwijzingGaatNaarHaarHoofdstuk)
{
    int aantal = 0;
    for (QTextBlock blok = Tekst()->document()->begin(); blok.isValid(); blok = blok.next()) {
        for (auto deel = blok.begin(); !deel.atEnd(); ++deel) {
            const QTextCharFormat vorm = deel.fragment().charFormat();
            if (!vorm.isAnchor())
                continue;
            ++aantal;
            venster->ToonHoofdstuk(u"Handleiding van Plexoran"_s);
            emit Tekst()->anchorClicked(QUrl(vorm.anchorHref()));
            EXPECT_GT(Tekst()->verticalScrollBar()->value(), 0) << vorm.anchorHref().toStdString();
            EXPECT_FALSE(vorm.hasProperty(QTextFormat::ForegroundBrush))
                << "blauw is niet leesbaar";
            EXPECT_TRUE(vorm.fontUnderline());
        }
    }
    EXPECT_GT(aantal, 3);
}

TEST_F(frmHandleidingTest, ZoekenGaatRondEnTelt)
{
    Druk(Qt::Key_F, Qt::ControlModifier);
    auto* zoek = Deel<QLineEdit>("txtZoekTekst");
    ASSERT_TRUE(zoek->hasFocus());
    zoek->setText(u"fluitketel"_s);
    EXPECT_EQ("Niet gevonden", Label("lblGevonden"));
    zoek->setText(u"HKEY="_s);
    const auto aantal = Tekst()->toPlainText().count(u"HKEY="_s);
    ASSERT_GT(aantal, 2);
    const auto hoeveelste = [&](qsizetype i) {
        return QString::number(i).toStdString() + " van " + std::to_string(aantal);
    };
    EXPECT_EQ(hoeveelste(1), Label("lblGevonden"));
    EXPECT_EQ("HKEY=", Tekst()->textCursor().selectedText().toStdString());
    EXPECT_EQ(aantal, Tekst()->extraSelections().size());
    const int eerste = Tekst()->textCursor().position();
    Druk(Qt::Key_Return);
    EXPECT_EQ(hoeveelste(2), Label("lblGevonden"));
    EXPECT_GT(Tekst()->textCursor().position(), eerste);
    Klik(Knop("cmdVorige"));
    EXPECT_EQ(eerste, Tekst()->textCursor().position());
    Klik(Knop("cmdVorige"));
    EXPECT_EQ(hoeveelste(aantal), Label("lblGevonden"));
    Klik(Knop("cmdVolgende"));
    EXPECT_EQ(hoeveelste(1), Label("lblGevonden"));
    zoek->clear();
    EXPECT_EQ("", Label("lblGevonden"));
    EXPECT_TRUE(Tekst()->extraSelections().isEmpty());
}

TEST_F(frmHandleidingTest, DeLettersGroeienEnKrimpen)
{
    const double gewoon = Tekst()->font().pointSizeF();
    Druk(Qt::Key_Plus, Qt::ControlModifier);
    Druk(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(gewoon + 2, Tekst()->font().pointSizeF());
    Druk(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(gewoon + 1, Tekst()->font().pointSizeF());
    Druk(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(gewoon, Tekst()->font().pointSizeF());
}

TEST_F(frmHandleidingTest, HijSluitOpDrieManieren)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        venster->show();
        Sluit(weg, "cmdSluiten");
    }
}

TEST_F(frmHandleidingTest, EenAfbeeldingPastInHetVensterEnIsDonkerBijEenDonkerThema)
{
    const auto [licht, breed] = Plaat();
    ASSERT_FALSE(licht.isNull());
    const auto is = [](QImage plaat, const QString& bestand) {
        plaat.setDevicePixelRatio(1);
        return plaat == QImage(u":/docs/afbeeldingen/"_s + bestand)
                            .scaledToWidth(plaat.width(), Qt::SmoothTransformation);
    };
    EXPECT_TRUE(is(licht, u"frmLedenAdmin.png"_s));
    EXPECT_LE(breed, Tekst()->viewport()->width());
    EXPECT_EQ(0, Tekst()->horizontalScrollBar()->maximum());
    QApplication::setPalette(Donker());
    Open();
    EXPECT_TRUE(is(Plaat().first, u"frmLedenAdmin_donker.png"_s));
}

/// In black on white whatever the theme, every line of it, and nothing beside the paper.
TEST_F(frmHandleidingTest, DeHeleHandleidingKomtOpPapier)
{
    QApplication::setPalette(Donker());
    VerwachtPdf(wachter, map.Weg() / "handleiding.pdf");
    Opdracht("cmdAfdrukken");
    const auto bladen = LeesPdf(map.Weg() / "handleiding.pdf");
    ASSERT_GT(bladen.size(), 10U);
    std::string alles;
    for (const auto& blad : bladen) {
        alles += blad.Tekst() + ' ';
        for (const Pdfwoord& woord : blad.woorden) {
            EXPECT_GE(woord.links, 14.9) << woord.tekst;
            EXPECT_LE(woord.rechts, 195.1) << woord.tekst;
        }
    }
    for (const char* woorden :
         {"Handleiding van Plexoran", "Ongedaan maken", "Met het toetsenbord"})
        EXPECT_NE(std::string::npos, alles.find(woorden)) << woorden;
}

// ---------------------------------------------------------------- the key

/// Beside a window the manual is the main window's; a window that must be answered gets its own.
TEST(Hulptoets, DeHandleidingIsTeGebruikenNaastElkVenster)
{
    Mapstand stand;
    QWidget hoofd;
    new Hulptoets(stand.schijf, &hoofd); // goes with it
    hoofd.setObjectName(u"frmKoppelNBBnr"_s);
    hoofd.show();
    QTest::keyClick(&hoofd, Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(nullptr, hoofd.findChild<frmHandleiding*>());
    QTest::keyClick(&hoofd, Qt::Key_F1);
    QPointer<frmHandleiding> eerste = hoofd.findChild<frmHandleiding*>();
    ASSERT_NE(nullptr, eerste);
    EXPECT_TRUE(eerste->isVisible());
    EXPECT_EQ("Zwevende spelers koppelen",
              Vind<QTreeWidget>(*eerste, "lstHoofdstukken")->currentItem()->text(0).toStdString());
    QTest::keyClick(&hoofd, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(1, hoofd.findChildren<frmHandleiding*>().size());
    bool gezien = false;
    QMessageBox vraag(QMessageBox::Question, u"Plexoran"_s, u"Verwijderen?"_s, QMessageBox::Ok,
                      &hoofd);
    QTimer::singleShot(0, &vraag, [&] {
        const auto sluit = qScopeGuard([&] { vraag.reject(); }); // also when the test fails
        QTest::keyClick(&vraag, Qt::Key_F1);
        const auto* bij = vraag.findChild<frmHandleiding*>();
        ASSERT_NE(nullptr, bij);
        EXPECT_NE(bij, eerste);
        EXPECT_EQ("Wat betekent deze melding?",
                  Vind<QTreeWidget>(*bij, "lstHoofdstukken")->currentItem()->text(0).toStdString());
        gezien = true;
    });
    vraag.exec();
    EXPECT_TRUE(gezien);
    eerste->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(nullptr, eerste);
}
