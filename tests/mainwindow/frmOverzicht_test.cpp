// The club at a glance, on the sample club.
#include "mainwindow/frmOverzicht.h"

#include <QAccessible>
#include <QPlainTextEdit>
#include <QProxyStyle>

#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"

using namespace plexoran;

namespace {

class frmOverzichtTest : public Dialoogproef<frmOverzicht, Suitestand> {
  protected:
    void Open()
    {
        LeesRegister();
        administratie.groepen = LeesGroepen(echteSchijf, administratie.mappen);
        Toon(administratie);
    }
    [[nodiscard]] QTreeWidget* Lijst() const { return Deel<QTreeWidget>("lstOverzicht"); }
    [[nodiscard]] QTreeWidgetItem* Regel(const char* tekst) const
    {
        const auto regels =
            Lijst()->findItems(QString::fromUtf8(tekst), Qt::MatchExactly | Qt::MatchRecursive);
        if (regels.empty())
            throw std::runtime_error(std::string("geen regel ") + tekst);
        return regels.front();
    }
    [[nodiscard]] std::string Aantal(const char* tekst) const
    {
        return Regel(tekst)->text(1).toStdString();
    }
    void KlikOp(const char* tekst, int kolom) const
    {
        Lijst()->scrollToItem(Regel(tekst));
        const QRect cel = Lijst()->visualRect(Lijst()->model()->index(
            Regel(tekst)->parent() == nullptr ? Lijst()->indexOfTopLevelItem(Regel(tekst))
                                              : Regel(tekst)->parent()->indexOfChild(Regel(tekst)),
            kolom,
            Regel(tekst)->parent() == nullptr ? QModelIndex()
                                              : Lijst()->indexFromItem(Regel(tekst)->parent())));
        Klik(Lijst()->viewport(), cel.center());
    }
    /// Until the line is the current one.
    void GaNaar(const char* tekst) const
    {
        for (int keer = 0; keer < 200 && Lijst()->currentItem() != Regel(tekst); ++keer)
            QTest::keyClick(Lijst(), Qt::Key_Down);
        ASSERT_EQ(Regel(tekst), Lijst()->currentItem());
    }
    void VerwachtGekozen(const char* tekst, std::size_t aantal) const
    {
        EXPECT_EQ(QDialog::Accepted, venster->result());
        EXPECT_FALSE(venster->isVisible());
        EXPECT_EQ(tekst, venster->Gekozen().tekst);
        EXPECT_EQ(aantal, venster->Gekozen().rijen.size());
    }
    /// How many dots of a line are the colour of a bar.
    [[nodiscard]] int Balklengte(const char* tekst) const
    {
        const QRect cel = Lijst()->visualItemRect(Regel(tekst));
        const QImage beeld = Lijst()->viewport()->grab().toImage();
        const QRgb kleur = Lijst()->palette().color(QPalette::Highlight).rgb();
        int lengte = 0;
        for (int x = 0; x < Lijst()->viewport()->width(); ++x) {
            const double maal = beeld.devicePixelRatio();
            lengte += beeld.pixel(int(x * maal), int(cel.center().y() * maal)) == kleur ? 1 : 0;
        }
        return lengte;
    }
};

} // namespace

TEST_F(frmOverzichtTest, TeltDeVoorbeeldclub)
{
    Open();
    VerwachtTeksten(
        "Overzicht",
        {{"Label1", "Klik op een regel, of druk op Enter, om te zien om wie het gaat."}},
        {{"cmdPrint", "Print"}, {"cmdEinde", "Terug"}});
    const std::vector<std::pair<const char*, const char*>> moet{
        {"Alle spelers", "148"},
        {"Gr01-Clubleden", "50"},
        {"Gr05-Bondsleden", "36"},
        {"DONDERDAG", "5"},
        {"Gr08-Introducés", "10"},
        {"Man", "70"},
        {"Vrouw", "76"},
        {"Niet ingevuld", "2"},
        {"Met e-mail", "108"},
        {"Zonder e-mail", "40"},
        {"Met NBB-nummer", "36"},
        {"Zonder NBB-nummer", "112"},
        {"Groepen", ""},
        {"Zwevende namen in zittingen", "26"},
        {"Vermoedelijk dubbele spelers", "16"}};
    for (const auto& [tekst, aantal] : moet)
        EXPECT_EQ(aantal, Aantal(tekst)) << tekst;
    EXPECT_EQ(Regel("Gr05-Bondsleden"), Regel("DONDERDAG")->parent());
    KlikOp("Vermoedelijk dubbele spelers", 1);
    VerwachtGekozen("Vermoedelijk dubbele spelers", 16);
}

TEST_F(frmOverzichtTest, DeBalkIsZoLangAlsHetGetal)
{
    Open();
    const int helft = Balklengte("Zonder subgroep"); // not the chosen line, whose bar is lighter
    const int vijftig = Balklengte("Gr01-Clubleden");
    EXPECT_GT(vijftig, 40);
    EXPECT_NEAR(vijftig / 2.0, Balklengte("Gr02-Donderdagmiddag"), 1);
    EXPECT_LT(helft, vijftig);
    EXPECT_EQ(0, Balklengte("Groepen"));
}

TEST_F(frmOverzichtTest, EenKlikOpEenRegelEnEnterKiezenDeSpelers)
{
    Open();
    KlikOp("Zonder e-mail", 0);
    VerwachtGekozen("Zonder e-mail", 40);
    Open();
    KlikOp("Gr05-Bondsleden", 1);
    VerwachtGekozen("Gr05-Bondsleden", 36);
    for (const int rij : venster->Gekozen().rijen)
        EXPECT_EQ("Gr05-", administratie.spelers.tabel.Cel(rij, Kolom::Groep));
    Open();
    KlikOp("DONDERDAG", 1);
    VerwachtGekozen("DONDERDAG", 5);
    EXPECT_EQ("Gr05-Bondsleden, DONDERDAG", venster->Opschrift().toStdString());
    Open();
    GaNaar("Zonder e-mail");
    QTest::keyClick(Lijst(), Qt::Key_Return);
    VerwachtGekozen("Zonder e-mail", 40);
}

TEST_F(frmOverzichtTest, EenKopEnEenNulKiezenNiets)
{
    suite.Zet("Spelers/RVDspelers.txt", "HKEY=100000\r\n");
    Open();
    for (const char* tekst : {"Groepen", "Man"}) {
        GaNaar(tekst);
        QTest::keyClick(Lijst(), Qt::Key_Return);
        EXPECT_TRUE(venster->isVisible()) << tekst;
    }
    EXPECT_EQ("0", Aantal("Alle spelers"));
    wachter.Klaar();
}

TEST_F(frmOverzichtTest, ZwevendeNamenWordenGenoemd)
{
    Open();
    QString namen;
    wachter.Bedien([&](QDialog& bericht) {
        EXPECT_EQ("Zwevende namen in zittingen", bericht.windowTitle());
        namen = bericht.findChild<QPlainTextEdit*>()->toPlainText();
        bericht.reject();
    });
    KlikOp("Zwevende namen in zittingen", 1);
    wachter.Klaar();
    EXPECT_EQ(26, namen.count(u'\n')) << namen.toStdString();
    EXPECT_TRUE(namen.contains(u"Sven Nijboersma\n"_s));
    EXPECT_TRUE(venster->isVisible());
}

/// Also where the desktop takes a click for what elsewhere is a double click.
TEST_F(frmOverzichtTest, EenKlikDoetEenmaalWatErMoet)
{
    class Klikstijl : public QProxyStyle {
      public:
        using QProxyStyle::QProxyStyle;
        int styleHint(StyleHint gewoonte, const QStyleOption* optie, const QWidget* widget,
                      QStyleHintReturn* uitslag) const override
        {
            return gewoonte == SH_ItemView_ActivateItemOnSingleClick
                       ? 1
                       : QProxyStyle::styleHint(gewoonte, optie, widget, uitslag);
        }
    } stijl;
    Open();
    Lijst()->setStyle(&stijl);
    for (const int kolom : {0, 1}) {
        wachter.Bedien([](QDialog& bericht) { bericht.reject(); });
        KlikOp("Zwevende namen in zittingen", kolom);
        wachter.Klaar();
    }
    int gekozen = 0;
    QObject::connect(venster.get(), &QDialog::accepted, [&] { ++gekozen; });
    KlikOp("Man", 1);
    EXPECT_EQ(1, gekozen);
}

TEST_F(frmOverzichtTest, EenSchermlezerHoortEenTabel)
{
    Open();
    QAccessibleInterface* lijst = QAccessible::queryAccessibleInterface(Lijst());
    ASSERT_NE(nullptr, lijst->tableInterface());
    EXPECT_EQ("Aantal", lijst->tableInterface()->columnDescription(1).toStdString());
    EXPECT_EQ("148", lijst->tableInterface()->cellAt(0, 1)->text(QAccessible::Name).toStdString());
    EXPECT_EQ("Alle spelers",
              lijst->tableInterface()->cellAt(0, 0)->text(QAccessible::Name).toStdString());
}

TEST_F(frmOverzichtTest, GaatOpEenBladNaarEenPdf)
{
    Open();
    VerwachtPdf(wachter, suite.Weg() / "overzicht.pdf");
    Opdracht("cmdPrint");
    const auto bladen = LeesPdf(suite.Weg() / "overzicht.pdf");
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("Gr01-Clubleden 50", bladen[0].Regel(bladen[0].Woord("Gr01-Clubleden").boven));
    EXPECT_TRUE(bladen[0].Tekst().starts_with("Overzicht, "));
}

TEST_F(frmOverzichtTest, Sluiten)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        Sluit(weg, "cmdEinde");
        EXPECT_EQ(QDialog::Rejected, venster->result());
    }
}
