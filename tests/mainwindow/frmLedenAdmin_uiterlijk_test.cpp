// Places, sizes and nothing cut off, from the smallest window up and with larger fonts.
#include <QStyle>
#include <QStyleOptionButton>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

/// Room inside a button for its caption.
int Tekstruimte(const QPushButton* knop)
{
    QStyleOptionButton optie;
    optie.initFrom(knop);
    optie.text = knop->text();
    return knop->style()->subElementRect(QStyle::SE_PushButtonContents, &optie, knop).width();
}

bool IsHeader(const QWidget* deel)
{
    return deel->objectName().startsWith(u"cmd_"_s);
}

class UiterlijkTest : public Hoofdvensterproef {
  protected:
    ~UiterlijkTest() override
    {
        venster.reset();
        QApplication::setFont(letter_);
    }

    template <class T> std::vector<T*> Zichtbaar() const
    {
        std::vector<T*> delen;
        for (T* deel : venster->findChildren<T*>()) {
            if (deel->isVisible() && !deel->objectName().isEmpty())
                delen.push_back(deel);
        }
        return delen;
    }

    [[nodiscard]] QRect Plek(const QWidget* deel) const
    {
        return {deel->mapTo(venster.get(), QPoint()), deel->size()};
    }

    void VerwachtNietsAfgeknipt() const
    {
        for (const QPushButton* knop : Zichtbaar<QPushButton>()) {
            const std::string naam = knop->objectName().toStdString();
            const QFontMetrics maten(knop->font());
            EXPECT_LE(maten.size(Qt::TextShowMnemonic, knop->text()).width(), Tekstruimte(knop))
                << naam << ": " << knop->text().toStdString();
            EXPECT_LE(maten.height(), knop->height()) << naam;
        }
        for (const QLabel* label : Zichtbaar<QLabel>()) {
            const std::string naam = label->objectName().toStdString();
            const QRect vak = label->contentsRect();
            const QRect nodig =
                QFontMetrics(label->font())
                    .boundingRect(QRect(0, 0, vak.width(), 9999),
                                  label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
            EXPECT_LE(nodig.width(), vak.width()) << naam;
            EXPECT_LE(nodig.height(), vak.height()) << naam;
        }
        for (const QCheckBox* vink : Zichtbaar<QCheckBox>())
            EXPECT_LE(vink->sizeHint().width(), vink->width()) << vink->objectName().toStdString();
        for (const QComboBox* keus : Zichtbaar<QComboBox>())
            EXPECT_LE(keus->minimumSizeHint().height(), keus->height())
                << keus->objectName().toStdString();
    }

    /// Controls lie inside the window and not over each other.
    void VerwachtNetjesNaastElkaar() const
    {
        std::vector<QWidget*> delen;
        for (QWidget* deel : Zichtbaar<QWidget>()) {
            const bool bediening = qobject_cast<QPushButton*>(deel) != nullptr ||
                                   qobject_cast<QLabel*>(deel) != nullptr ||
                                   qobject_cast<QCheckBox*>(deel) != nullptr ||
                                   qobject_cast<QComboBox*>(deel) != nullptr ||
                                   deel->objectName() == "picP0";
            if (bediening && !IsHeader(deel) &&
                !deel->parentWidget()->inherits("QComboBoxPrivateContainer"))
                delen.push_back(deel);
        }
        ASSERT_GT(delen.size(), 20U);
        for (std::size_t i = 0; i < delen.size(); ++i) {
            const std::string naam = delen[i]->objectName().toStdString();
            EXPECT_TRUE(venster->rect().contains(Plek(delen[i]))) << naam;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(Plek(delen[i]).intersects(Plek(delen[j])))
                    << naam << " en " << delen[j]->objectName().toStdString();
        }
    }

  private:
    QFont letter_ = QApplication::font();
};

} // namespace

TEST_F(UiterlijkTest, DePlaatsenBovenaan)
{
    Start();
    const Maten maten;
    ASSERT_EQ(100, maten.Twips(1500)) << "de letter van de tests is de standaard";
    const int onderMenu = venster->centralWidget()->y();
    EXPECT_EQ(QPoint(maten.Twips(7000), onderMenu + maten.Twips(200)),
              Plek(Label("Label1")).topLeft());
    EXPECT_EQ(QPoint(maten.Twips(7000), onderMenu + maten.Twips(500)),
              Plek(Keus("cmbGr")).topLeft());
    const QRect namen = Plek(Knop("cmdMaakGrNamen"));
    EXPECT_EQ(onderMenu + maten.Twips(400), namen.top());
    EXPECT_EQ(Plek(Keus("cmbGr")).right() + 1 + maten.Twips(200), namen.left());
    EXPECT_EQ(namen.left(), Plek(Vink("chkKolBr")).left());
}

TEST_F(UiterlijkTest, NietsIsAfgekniptInHetKleinsteVensterEnInEenGroot)
{
    Start(1024, 700);
    EXPECT_EQ(QSize(1024, 700), venster->size());
    EXPECT_LE(venster->minimumSizeHint().width(), 1024);
    EXPECT_LE(venster->minimumSizeHint().height(), 700);
    EXPECT_TRUE(Vlak()->hasFocus()) << "en niet een knop";
    for (const QSize maat : {QSize(1024, 700), QSize(1800, 1100)}) {
        venster->resize(maat);
        for (const int groep : {1, 4, 5, 9}) {
            SCOPED_TRACE(groep);
            KiesGroep(groep);
            QApplication::processEvents();
            VerwachtNietsAfgeknipt();
            VerwachtNetjesNaastElkaar();
        }
    }
    EXPECT_GT(Vlak()->width(), 1700);
    EXPECT_GT(Vlak()->height(), 600);
}

TEST_F(UiterlijkTest, NietsIsAfgekniptMetGrotereLetters)
{
    for (const double punten : {11.0, 13.5, 18.0}) {
        SCOPED_TRACE(punten);
        QFont groot = QApplication::font();
        groot.setPointSizeF(punten);
        QApplication::setFont(groot);
        Start(1, 1);
        KiesGroep(5);
        QApplication::processEvents();
        // As small as it may be without scrolling.
        venster->resize(Vind<QScrollArea>(*venster, "schuifblad")->widget()->minimumSizeHint() +
                        QSize(0, venster->height() - venster->centralWidget()->height() +
                                     Deel("picZoek")->height()));
        QApplication::processEvents();
        VerwachtNietsAfgeknipt();
        VerwachtNetjesNaastElkaar();
    }
}

TEST_F(UiterlijkTest, VanEenHeelLangeGroepsnaamStaatHetBeginErEnHetVensterWordtNietBreder)
{
    const std::string naam = "Gr01-" + std::string(3000, 'x');
    suite.Zet("Spelers/RVDGroepen.txt", naam + "\r\n");
    Start(1024, 700);
    EXPECT_EQ(1024, venster->width());
    EXPECT_LE(venster->minimumSizeHint().width(), 1024);

    const std::string opKnop = GetekendOp(Knop("cmdPrint"));
    EXPECT_TRUE(opKnop.starts_with("Print deze groep: Gr01-xxx")) << opKnop;
    EXPECT_EQ("Print deze groep: " + naam + " ...", Opschrift(Knop("cmdPrint")));
    const std::string opKeus = GetekendOp(Keus("cmbGr"));
    EXPECT_TRUE(opKeus.starts_with("Gr01-xxx")) << opKeus;
    EXPECT_TRUE(opKeus.ends_with("x...")) << opKeus;
    EXPECT_EQ(naam, Keus("cmbGr")->toolTip().toStdString());
}

TEST_F(UiterlijkTest, TabGaatLangsElkeOpdrachtZoalsHetOogLeest)
{
    suite.Zet("Mappen.ini", suite.Inhoud("Mappen.ini") + "NEWPAGR=1\r\n");
    Start(1024, 700);
    KiesGroep(5); // shows every button
    QApplication::processEvents();
    Keus("cmbGr")->setFocus();
    QStringList bereikt;
    do {
        bereikt << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (!Keus("cmbGr")->hasFocus() && bereikt.size() < 60);
    EXPECT_EQ("cmbGr chkKolBr cmdMaakGrNamen P1 cmdAanm cmdWijzig cmdVerplaats cmdKopieer "
              "cmdVerwijder cmbVerwVan cmbVerwTot cmdVerwijderVT cmdVerwGroep cmdSortlijst1 "
              "cmdSortlijst2 cmdSortlijst3 chkToonAlle cmdZoekDubbeleNamen cmdHaalNBBnamen "
              "cmdKoppel cmdToonGatenlijst cmdSpToevoegen cmdParenOnderhoud cmdPrint "
              "cmdToelichting cmdMaakScripts cmdEinde txtZoek",
              bereikt.join(u' ').toStdString());
}
