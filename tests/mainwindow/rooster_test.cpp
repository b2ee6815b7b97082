// The grid at work: selecting by mouse and keys, scrolling, column widths, what is drawn.
#include <QAccessible>

#include <cmath>

#include "mainwindow/vensterproef.h"
#include "platform/scherm/schildervlak.h"

using namespace plexoran;

namespace {

class RoosterTest : public HoofdvensterTest {
  protected:
    void KlikOpHoogte(double mm) const { Klik(Vlak(), {40, static_cast<int>(std::ceil(Y(mm)))}); }

    /// The guide lines lie on the boundaries of a line, over the whole drawn width.
    void VerwachtLijnenOm(int regel) const
    {
        for (const auto& [naam, mm] :
             {std::pair("Line1", (regel - 1) * 4.4 + 5), std::pair("Line2", regel * 4.4 + 5)}) {
            const QWidget* lijn = Deel(naam);
            EXPECT_TRUE(lijn->isVisible()) << naam;
            EXPECT_NEAR(Y(mm), lijn->y() + lijn->height() / 2.0, 1.0) << naam;
            EXPECT_LE(lijn->height(), 3) << naam;
            EXPECT_EQ(-Balk("HScroll1")->value(), lijn->x()) << naam;
            EXPECT_NEAR(Tekenbreedte(), lijn->width(), 1.0) << naam;
        }
    }
    [[nodiscard]] int Tekenbreedte() const
    {
        const QPushButton* laatste = Header(18);
        return laatste->x() + laatste->width();
    }
    /// Whether the whole line can be seen, below the header.
    [[nodiscard]] bool InBeeld(int regel) const
    {
        const double boven = Y((regel - 1) * 4.4 + 5);
        const double onder = Y(regel * 4.4 + 5);
        return boven >= Deel("P9")->height() - 1 && onder <= Vlak()->height() + 1;
    }

    void Wiel(QPoint hoek) const { DraaiWiel(Vlak(), hoek); }

    [[nodiscard]] QImage Beeld() const
    {
        Deel("cmdEinde")->setFocus(); // without the frame of the focus
        QApplication::processEvents();
        QImage beeld(Vlak()->size(), QImage::Format_RGB32); // a pixel is one also on a fine screen
        Vlak()->render(&beeld);
        return beeld;
    }
};

int Donkere(const QImage& beeld, QRect deel)
{
    int aantal = 0;
    deel = deel.intersected(beeld.rect());
    for (int y = deel.top(); y <= deel.bottom(); ++y)
        for (int x = deel.left(); x <= deel.right(); ++x)
            aantal += beeld.pixelColor(x, y).lightness() < 120;
    return aantal;
}

} // namespace

// ---- Selecting by mouse -----------------------------------------------------------------------

TEST_F(RoosterTest, EenKlikKiestDeRegelOpDieHoogte)
{
    KiesGroep(3); // nine lines
    for (const auto& [mm, regel] : {std::pair(7.0, 1),
                                    {10.0, 2},
                                    {5 + 9 * 4.4 - 1, 9},
                                    {5 + 9 * 4.4 + 1, 0},
                                    {9.0, 1},
                                    {4.0, 0},
                                    {0.7, 0}}) { // the last is nearly a whole line above the first
        SCOPED_TRACE(mm);
        KlikOpHoogte(mm);
        EXPECT_EQ(regel, GekozenRegel());
        EXPECT_EQ(regel > 0, Deel("Line1")->isVisible());
        EXPECT_EQ(regel > 0, Deel("Line2")->isVisible());
        if (regel > 0)
            VerwachtLijnenOm(regel);
    }
    KiesRegel(2);
    QTest::mouseClick(Vlak(), Qt::RightButton, {}, OpRegel(5));
    EXPECT_EQ(2, GekozenRegel());
}

TEST_F(RoosterTest, NaSchuivenKiestEenKlikDeRegelDieErStaatEnDeLijnenSchuivenMee)
{
    Balk("VScroll1")->setValue(100);
    KiesRegel(9);
    EXPECT_EQ(9, GekozenRegel());
    VerwachtLijnenOm(9);
    Vink("chkKolBr")->click(); // columns as wide as their texts
    EXPECT_EQ(9, GekozenRegel());
    Balk("VScroll1")->setValue(57);
    Balk("HScroll1")->setValue(31);
    ASSERT_EQ(31, Balk("HScroll1")->value());
    VerwachtLijnenOm(9);
}

TEST_F(RoosterTest, EenKlikOpDeHeaderVerbergtDeLijnenEnLaatDeKeusEnDeFocus)
{
    KiesRegel(4);
    Vlak()->setFocus();
    Klik(Header(6), {5, 5});
    EXPECT_TRUE(Vlak()->hasFocus());
    EXPECT_EQ(18, Deel("P2")->findChildren<QPushButton*>().size());
    EXPECT_FALSE(Deel("Line1")->isVisible());
    EXPECT_FALSE(Deel("Line2")->isVisible());
    EXPECT_EQ(4, GekozenRegel());
    Opdracht("cmdWijzig", [](QDialog& ingave) {
        EXPECT_EQ("Regelnummer 4", Vind<QLabel>(ingave, "Label1")->text().toStdString());
        Druk(ingave, "cmdAnnuleren");
    });
}

// ---- Keys -------------------------------------------------------------------------------------

TEST_F(RoosterTest, DeToetsenKiezenEenRegel)
{
    for (const auto& [toets, regel] : {std::pair(Qt::Key_Down, 1),
                                       {Qt::Key_Down, 2},
                                       {Qt::Key_Up, 1},
                                       {Qt::Key_Up, 1},
                                       {Qt::Key_End, 50},
                                       {Qt::Key_Down, 50},
                                       {Qt::Key_Home, 1}}) {
        Toets(toets);
        EXPECT_EQ(regel, GekozenRegel());
        EXPECT_TRUE(InBeeld(regel));
    }
    EXPECT_EQ(0, Balk("VScroll1")->value());
    VerwachtLijnenOm(1);
    KiesGroep(4); // empty
    for (const Qt::Key toets :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_PageUp})
        Toets(toets);
    EXPECT_EQ(0, GekozenRegel());
    Klik(Vlak(), {40, 60});
    EXPECT_EQ(0, GekozenRegel());
}

TEST_F(RoosterTest, ElkeStapOmlaagBlijftInBeeldEnOmhoogOok)
{
    for (const int stap : {1, -1}) {
        for (int i = 1; i < 50; ++i) {
            Toets(stap > 0 ? Qt::Key_Down : Qt::Key_Up);
            const int regel = stap > 0 ? i : 50 - i;
            ASSERT_EQ(regel, GekozenRegel());
            ASSERT_TRUE(InBeeld(regel)) << regel;
        }
        Toets(Qt::Key_End);
    }
}

TEST_F(RoosterTest, PageDownEnPageUpGaanEenSchermVerder)
{
    KiesRegel(1);
    Toets(Qt::Key_PageDown);
    const int stap = GekozenRegel() - 1;
    EXPECT_GT(stap, 3);
    EXPECT_LE(stap * 4.4 * Maten().PixelsPerMm(), Vlak()->height());
    EXPECT_TRUE(InBeeld(1 + stap));
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(1 + 2 * stap, GekozenRegel());
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(1 + stap, GekozenRegel());
    for (int i = 0; i < 20; ++i)
        Toets(Qt::Key_PageDown);
    EXPECT_EQ(50, GekozenRegel());
    for (int i = 0; i < 20; ++i)
        Toets(Qt::Key_PageUp);
    EXPECT_EQ(1, GekozenRegel());
    EXPECT_TRUE(InBeeld(1));
}

TEST_F(RoosterTest, HetRoosterSpreektZijnRegel)
{
    EXPECT_EQ("Geen regel gekozen", Vlak()->accessibleDescription().toStdString());
    KiesRegel(1);
    EXPECT_TRUE(Vlak()->accessibleDescription().startsWith(
        u"Regel 1, Nr 1, Key 100001, Groep Gr01-, Voornaam Willem, Tusv van der, Achternaam "
        "Horst, "_s))
        << Vlak()->accessibleDescription().toStdString();
    EXPECT_FALSE(Vlak()->accessibleName().isEmpty());
}

TEST_F(RoosterTest, HetRoosterIsEenTabelVoorWieNietKijkt)
{
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(Vlak());
    ASSERT_EQ(QAccessible::Table, vlak->role());
    QAccessibleTableInterface* tabel = vlak->tableInterface();
    ASSERT_NE(nullptr, tabel);
    EXPECT_EQ(50, tabel->rowCount());
    EXPECT_EQ(18, tabel->columnCount());
    EXPECT_EQ(51 * 18, vlak->childCount());
    EXPECT_EQ("Achternaam", tabel->columnDescription(5).toStdString());
    EXPECT_EQ("Kolom 18", tabel->columnDescription(17).toStdString()) << "zonder naam";
    QAccessibleInterface* cel = tabel->cellAt(2, 5);
    EXPECT_EQ("Kuipersma", cel->text(QAccessible::Name).toStdString());
    EXPECT_EQ(cel, tabel->cellAt(2, 5));
    EXPECT_EQ(cel, vlak->child(vlak->indexOfChild(cel)));
    EXPECT_EQ(QAccessible::Cell, cel->role());
    EXPECT_EQ(2, cel->tableCellInterface()->rowIndex());
    EXPECT_EQ(5, cel->tableCellInterface()->columnIndex());
    QAccessibleInterface* kop = cel->tableCellInterface()->columnHeaderCells().value(0);
    EXPECT_EQ("Achternaam", kop->text(QAccessible::Name).toStdString());
    EXPECT_EQ(QAccessible::ColumnHeader, kop->role());
    // Where it lies on the screen
    const QPoint plek = Vlak()->mapToGlobal(QPoint(Header(6)->x() + 5, OpRegel(3).y()));
    EXPECT_TRUE(cel->rect().contains(plek));
    EXPECT_EQ(cel, vlak->childAt(plek.x(), plek.y()));
    const QPoint opKop = Header(6)->mapToGlobal(QPoint(5, 5));
    EXPECT_EQ(kop, vlak->childAt(opKop.x(), opKop.y()));
    EXPECT_EQ(nullptr, tabel->cellAt(50, 0));
    EXPECT_EQ(nullptr, tabel->cellAt(-1, 0));
    EXPECT_EQ(nullptr, tabel->cellAt(0, 18));
    KiesGroep(4);
    EXPECT_EQ(0, tabel->rowCount());
    EXPECT_FALSE(cel->isValid());
    EXPECT_EQ("", cel->text(QAccessible::Name).toStdString());
}

TEST_F(RoosterTest, DeKeusVanHetRoosterIsDieVanDeTabel)
{
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(Vlak());
    QAccessibleTableInterface* tabel = vlak->tableInterface();
    ASSERT_NE(nullptr, tabel);
    EXPECT_TRUE(tabel->selectedRows().isEmpty());
    EXPECT_EQ(nullptr, vlak->focusChild());
    KiesRegel(3);
    Vlak()->setFocus();
    EXPECT_EQ(QList<int>{2}, tabel->selectedRows());
    EXPECT_EQ(18, tabel->selectedCells().size());
    EXPECT_EQ(tabel->cellAt(2, 0), vlak->focusChild());
    EXPECT_TRUE(tabel->cellAt(2, 5)->state().selected);
    EXPECT_FALSE(tabel->cellAt(3, 5)->state().selected);
    EXPECT_TRUE(tabel->selectRow(48));
    EXPECT_EQ(49, GekozenRegel());
    EXPECT_TRUE(InBeeld(49));
    EXPECT_FALSE(tabel->cellAt(48, 0)->state().offscreen);
    EXPECT_TRUE(tabel->cellAt(0, 0)->state().offscreen);
    EXPECT_FALSE(tabel->selectRow(50));
    EXPECT_TRUE(tabel->unselectRow(48));
    EXPECT_EQ(0, GekozenRegel());
}

// ---- Scrolling --------------------------------------------------------------------------------

TEST_F(RoosterTest, DeBalkenReikenTotHetEindVanDeRegelsEnDeKolommen)
{
    EXPECT_EQ(0, Balk("HScroll1")->maximum()) << "met smalle kolommen past alles";
    Vink("chkKolBr")->click();
    const QScrollBar* op = Balk("VScroll1");
    const QScrollBar* opzij = Balk("HScroll1");
    EXPECT_EQ(0, op->minimum());
    EXPECT_NEAR((5 + 50 * 4.4) * Maten().PixelsPerMm() - Vlak()->height(), op->maximum(), 2.0);
    EXPECT_NEAR(Tekenbreedte() - Vlak()->width(), opzij->maximum(), 2.0);
    EXPECT_EQ(Maten().Twips(280), op->width());
    EXPECT_EQ(Maten().Twips(280), opzij->height());
    KiesGroep(3);
    EXPECT_EQ(0, op->maximum()) << "negen regels passen";
}

TEST_F(RoosterTest, HetVlakIsZoBreedAlsHetKaderMinRandEnBalk)
{
    const QWidget* kader = Deel("picP0");
    EXPECT_NEAR(kader->width() - Maten().Twips(220) - Maten().Twips(280), Vlak()->width(), 1);
    EXPECT_EQ(QPoint(Maten().Twips(100), Maten().Twips(1000)),
              kader->mapTo(venster->centralWidget(), QPoint()));
    venster->resize(1300, 800);
    QApplication::processEvents();
    EXPECT_NEAR(kader->width() - Maten().Twips(220) - Maten().Twips(280), Vlak()->width(), 1);
}

TEST_F(RoosterTest, DeHeaderSchuiftOpzijMeeEnNietOmlaag)
{
    Vink("chkKolBr")->click();
    const int links = Header(6)->mapTo(venster.get(), QPoint()).x();
    const int boven = Header(6)->mapTo(venster.get(), QPoint()).y();
    Balk("HScroll1")->setValue(40);
    Balk("VScroll1")->setValue(40);
    EXPECT_EQ(links - 40, Header(6)->mapTo(venster.get(), QPoint()).x());
    EXPECT_EQ(boven, Header(6)->mapTo(venster.get(), QPoint()).y());
}

TEST_F(RoosterTest, HetWielSchuiftDeRegelsEnDoetAanHetEindVanZijnBereikNiets)
{
    Vink("chkKolBr")->click();
    Wiel({0, -120});
    EXPECT_GT(Balk("VScroll1")->value(), 0);
    EXPECT_EQ(0, Balk("HScroll1")->value());
    for (int i = 0; i < 5; ++i)
        Wiel({0, 120});
    EXPECT_EQ(0, Balk("VScroll1")->value());
    Wiel({-120, 0});
    EXPECT_GT(Balk("HScroll1")->value(), 0);
    EXPECT_EQ(0, Balk("VScroll1")->value());
    for (int i = 0; i < 100; ++i)
        Wiel({0, -120});
    EXPECT_EQ(Balk("VScroll1")->maximum(), Balk("VScroll1")->value());
    for (int i = 0; i < 5; ++i) {
        Wiel({0, -120});
        DraaiWiel(Balk("VScroll1"), {0, -120});
        DraaiWiel(Balk("HScroll1"), {-120, 0});
    }
    EXPECT_EQ(Balk("VScroll1")->maximum(), Balk("VScroll1")->value());
    KiesGroep(4); // nothing to scroll at all
    Wiel({0, -120});
    EXPECT_EQ(0, Balk("VScroll1")->value());
}

TEST_F(RoosterTest, NaEenWijzigingBlijftHetBeeldStaanEnEenAndereGroepBegintBoven)
{
    Toets(Qt::Key_End);
    const int waarde = Balk("VScroll1")->value();
    wachter.Bedien([](QDialog& ingave) { Druk(ingave, "cmdOK"); });
    Toets(Qt::Key_Return);
    wachter.Klaar();
    EXPECT_EQ(waarde, Balk("VScroll1")->value());
    Toets(Qt::Key_Up); // the arrows go on where the selection was
    EXPECT_EQ(50, GekozenRegel());
    Balk("VScroll1")->setValue(300);
    KiesGroep(2);
    EXPECT_EQ(0, Balk("VScroll1")->value());
}

// ---- Column widths ----------------------------------------------------------------------------

TEST_F(RoosterTest, DeKolommenVolgenHunNaamOfZonderVinkjeHunTeksten)
{
    const double perMm = Maten().PixelsPerMm();
    const Tekstmeter meter = Roostermeter(Header(1)->font().pixelSize(), perMm);
    const Spelertabel& tabel = administratie.spelers.tabel;
    const auto verwacht = [&](bool volgensHeader) {
        int links = 0;
        for (int i = 1; i <= 18; ++i) {
            const QPushButton* header = Header(i);
            std::int64_t breedst = volgensHeader ? meter.Breedte(header->text().toStdString()) : 0;
            for (int rij = 1; rij <= tabel.Rijen() && !volgensHeader; ++rij)
                if (tabel.Cel(rij, Kolom::Groep) == "Gr01-")
                    breedst =
                        std::max(breedst, meter.Breedte(tabel.Cel(rij, static_cast<Kolom>(i))));
            const double mm = static_cast<double>(breedst) / 1000 + (volgensHeader ? 2 : 4);
            EXPECT_NEAR(std::max(10.0, mm) * perMm, header->width(), 1.0) << i;
            EXPECT_EQ(links, header->x()) << i;
            EXPECT_EQ(Deel("P2")->height(), header->height());
            links += header->width();
        }
    };
    verwacht(true);
    const int smal = Header(8)->width();
    QTest::mouseClick(Vink("chkKolBr"), Qt::LeftButton, {}, {8, Vink("chkKolBr")->height() / 2});
    ASSERT_FALSE(Vink("chkKolBr")->isChecked());
    verwacht(false);
    EXPECT_GT(Header(8)->width(), smal); // e-mail
    Vink("chkKolBr")->click();
    verwacht(true);
}

TEST_F(RoosterTest, EenLegeGroepLaatDeBreedtenStaan)
{
    const auto breedten = [this] {
        std::vector<int> uit;
        for (int i = 1; i <= 18; ++i)
            uit.push_back(Header(i)->width());
        return uit;
    };
    Vink("chkKolBr")->click();
    const auto gevuld = breedten();
    KiesGroep(4);
    EXPECT_EQ("Aantal regels: 0", Aantal());
    EXPECT_EQ(gevuld, breedten());
    Vink("chkKolBr")->click();
    EXPECT_NE(gevuld, breedten());
    Vink("chkKolBr")->click();
    EXPECT_EQ(gevuld, breedten());
}

TEST_F(RoosterTest, EenNaamDieNietOpZijnHeaderPastWordtIngekort)
{
    HerstartMet("HKEY=100001\r\n1,100001,Gr01-,,,B,,,,,,,,,,,,\r\n");
    EXPECT_EQ("Achternaam", GetekendOp(Header(6)));
    Vink("chkKolBr")->click();
    const std::string kort = GetekendOp(Header(6));
    EXPECT_TRUE(kort.starts_with("Ac")) << kort;
    EXPECT_TRUE(kort.ends_with("...")) << kort;
    EXPECT_EQ("Achternaam", Header(6)->text().toStdString());
    EXPECT_EQ("Achternaam", Header(6)->toolTip().toStdString());
    EXPECT_EQ("Achternaam", Header(6)->accessibleName().toStdString());
}

// ---- What is drawn ----------------------------------------------------------------------------

TEST_F(RoosterTest, TekentBandLijnenEnTeksten)
{
    KiesGroep(3);
    const QImage beeld = Beeld();
    const int x = Header(3)->x() + Header(3)->width(); // boundary between Groep and Voornaam
    const int y = qRound(Y(9.4));                      // boundary between the lines 1 and 2
    EXPECT_EQ(QColor(235, 235, 235), beeld.pixelColor(x - 3, y + 3));
    EXPECT_EQ(QColor(Qt::white), beeld.pixelColor(Header(15)->x() + 8, y + 8)) << "naast de band";
    EXPECT_EQ(QColor(200, 200, 200), beeld.pixelColor(x, y + 5));
    EXPECT_EQ(QColor(200, 200, 200), beeld.pixelColor(x + 12, y));
    EXPECT_EQ(QColor(Qt::white), beeld.pixelColor(x + 12, qRound(Y(5 + 9 * 4.4)) + 9))
        << "onder de laatste regel";
    EXPECT_GT(Donkere(beeld, QRect(Header(6)->x(), y, Header(6)->width(), 16)), 10)
        << "de achternaam van regel 2";
}

TEST_F(RoosterTest, EenTeLangeTekstBlijftInZijnCel)
{
    HerstartMet("HKEY=100001\r\n1,100001,Gr01-,,,WWWWWWWWWWWWWWWWWWWWWWWWWW,,,,,,,,,,,,\r\n");
    const QImage beeld = Beeld();
    const int y = qRound(Y(5)) + 2;
    const QPushButton* header = Header(6);
    const int marge = static_cast<int>(Maten().PixelsPerMm());
    EXPECT_GT(Donkere(beeld, {header->x(), y, header->width(), 13}), 20);
    EXPECT_EQ(0, Donkere(beeld, {header->x() + header->width() - marge, y, marge, 13}));
    EXPECT_EQ(0, Donkere(beeld, {Header(7)->x() + 1, y, Header(7)->width() - 2, 13}));
}

TEST_F(RoosterTest, EenGewijzigdeNaamStaatErMeteen)
{
    const QImage voor = Beeld();
    KiesRegel(2);
    VerwachtIngave(u"WWWWWW"_s);
    Opdracht("cmdWijzig");
    const QRect cel(Header(6)->x(), qRound(Y(9.4)) + 1, Header(6)->width(), 14);
    EXPECT_NE(voor.copy(cel), Beeld().copy(cel));
}
