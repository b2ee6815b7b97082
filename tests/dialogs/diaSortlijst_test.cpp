#include "dialogs/diaSortlijst.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QScreen>
#include <QToolTip>

#include <cmath>
#include <set>

#include "hulp/dialoogproef.h"
#include "hulp/tekstvanger.h"
#include "platform/scherm/maten.h"

using namespace plexoran;

namespace {

constexpr auto opKey = Sorteersoort::Key;
constexpr auto opNummer = Sorteersoort::NBBnr;
constexpr auto opGroep = Sorteersoort::NBBgroep;

struct Sorteerstand {
    std::vector<Tekst> regels;
    int vragen = 0;  ///< for a line of a long list
    int laatste = 0; ///< that was asked for
};

class diaSortlijstTest : public Dialoogproef<diaSortlijst, Sorteerstand> {
  protected:
    diaSortlijstTest() { hoofd.resize(1000, 700); }

    void Open(Sorteersoort soort, bool importgroep, std::vector<Tekst> nieuw)
    {
        regels = std::move(nieuw);
        Toon(Sorteerbeeld{.soort = soort,
                          .importgroep = importgroep,
                          .regels = static_cast<int>(regels.size()),
                          .regel = [this](int regel) -> Tekstblik {
                              return regels[static_cast<std::size_t>(regel)];
                          }});
    }
    void OpenVeel(int aantal)
    {
        Toon(Sorteerbeeld{
            .soort = opKey, .importgroep = false, .regels = aantal, .regel = [this](int regel) {
                ++vragen;
                laatste = std::max(laatste, regel);
                return Tekstblik("100001,An,van der,Bos,A-lijn,12345678");
            }});
    }

    /// The tool tip of the first line at a place in widths of the letter A.
    [[nodiscard]] std::string Wenk(double breedtenA) const
    {
        const QPoint plek(qRound(breedtenA * A()),
                          qRound(1.5 * QFontMetrics(P1()->font()).height()) + 6);
        QHelpEvent vraag(QEvent::ToolTip, plek, P1()->mapToGlobal(plek));
        qApp->notify(P1(), &vraag);
        return QToolTip::text().toStdString();
    }
    [[nodiscard]] Tabelvlak* P1() const { return Deel<Tabelvlak>("P1"); }
    [[nodiscard]] QScrollBar* Balk() const { return Deel<QScrollBar>("VScroll1"); }
    [[nodiscard]] QScrollBar* Zijbalk() const { return Deel<QScrollBar>("HScroll1"); }
    void Schilder()
    {
        vanger = std::make_unique<Tekstvanger>(P1()->size());
        P1()->render(vanger.get(), {}, {}, QWidget::RenderFlags());
    }
    [[nodiscard]] std::vector<std::string> Geschilderd()
    {
        Schilder();
        std::vector<std::string> teksten;
        for (const Getekend& deel : vanger->Teksten())
            teksten.push_back(deel.tekst);
        return teksten;
    }
    [[nodiscard]] Getekend Stuk(const std::string& tekst) const
    {
        for (const Getekend& deel : vanger->Teksten()) {
            if (deel.tekst == tekst)
                return deel;
        }
        ADD_FAILURE() << "niet geschilderd: " << tekst;
        return {};
    }
    /// The width of the letter "A" on the surface.
    [[nodiscard]] double A() const { return QFontMetrics(P1()->font()).horizontalAdvance(u'A'); }

    std::unique_ptr<Tekstvanger> vanger;
};

const std::vector<Tekst> tweeRegels{"100001,An,,Bos,DINSDAG,12345",
                                    "100007,Zo\xEB,van der,Dam,MAANDAG,99999999"};

} // namespace

TEST(Sorteerkolommen, RandenPerSoort)
{
    EXPECT_EQ((Sorteerranden{1, 14.5F, 34.5F, 46.5F, 73.5F, 88.5F, 104.5F}), ZetKolommen(opKey));
    EXPECT_EQ((Sorteerranden{1, 13, 33, 45, 72, 87, 105}), ZetKolommen(opNummer));
    EXPECT_EQ((Sorteerranden{1, 13, 33, 45, 72, 89, 105}), ZetKolommen(opGroep));
}

TEST_F(diaSortlijstTest, DeTekstenPerSoortEnHetVetteVeld)
{
    for (const auto& [soort, titel, vet] :
         {std::tuple(opKey, "Spelers gesorteerd op 'RVD-key'.", "100001"),
          std::tuple(opNummer, "Spelers gesorteerd op 'NBB-nummer'.", "12345"),
          std::tuple(opGroep, "Spelers gesorteerd op 'NBB-groep en Naam'.", "DINSDAG")}) {
        Open(soort, true, tweeRegels);
        VerwachtTeksten("Gesorteerde spelerlijst", {{"Label1", titel}}, {{"cmdOK", "Terug"}});
        Schilder();
        for (const char* kop : {"Key", "Voornaam", "Tus", "Achternaam", "NBBgroep", "NBBnr"})
            EXPECT_TRUE(Stuk(kop).vet) << kop;
        for (const char* veld : {"100001", "An", "Bos", "DINSDAG", "12345"})
            EXPECT_EQ(std::string(vet) == veld, Stuk(veld).vet) << veld;
    }
}

/// Meant: outside the import group only the two last headers change, not the data.
TEST_F(diaSortlijstTest, SchildertKopEnRegelsInHunVolgorde)
{
    for (const bool importgroep : {true, false}) {
        Open(opNummer, importgroep, tweeRegels);
        EXPECT_EQ((std::vector<std::string>{
                      "Key", "Voornaam", "Tus", "Achternaam", importgroep ? "NBBgroep" : "Subgroep",
                      importgroep ? "NBBnr" : "-----", "100001", "An", "Bos", "DINSDAG", "12345",
                      "100007", "Zoë", "van der", "Dam", "MAANDAG", "99999999"}),
                  Geschilderd());
    }
}

TEST_F(diaSortlijstTest, DeVeldenStaanOpHunPlaats)
{
    for (const Sorteersoort soort : {opKey, opNummer, opGroep}) {
        Open(soort, true, tweeRegels);
        venster->resize(venster->property(Standaardmaat).toSize());
        const Sorteerranden t = ZetKolommen(soort);
        EXPECT_GE(P1()->width(), t.back() * static_cast<float>(A()));
        EXPECT_TRUE(P1()->hasFocus());
        EXPECT_EQ(Deel<QWidget>("P0")->width(), P1()->width());
        EXPECT_FALSE(Zijbalk()->isVisible());
        Schilder();
        for (const auto& [tekst, rand] :
             {std::pair("Key", t[0]), std::pair("Achternaam", t[3]), std::pair("NBBnr", t[5]),
              std::pair("100001", t[0] + 1), std::pair("An", t[1] + 1),
              std::pair("van der", t[2] + 1), std::pair("Bos", t[3] + 1),
              std::pair("DINSDAG", t[4] + 1)})
            EXPECT_NEAR(std::round(static_cast<double>(rand) * A()), Stuk(tekst).x, 0.5) << tekst;
        for (const char* nummer : {"12345", "99999999"})
            EXPECT_NEAR(std::round(static_cast<double>(t[5] + 15) * A()),
                        Stuk(nummer).x + Stuk(nummer).breed, 1.5)
                << nummer;
        EXPECT_LT(Stuk("Key").y, Stuk("100001").y);
        EXPECT_LT(Stuk("100001").y, Stuk("100007").y);
        EXPECT_EQ(Stuk("100001").y, Stuk("12345").y);
    }
}

TEST_F(diaSortlijstTest, EenTeLangeTekstEindigtInPuntjesEnHeeftEenWenk)
{
    const std::string lang = "Maximiliaan Frederik Hendrik Alexander";
    const std::string nummer = "123456789012345678901234567890";
    Open(opKey, true, {"100001," + lang + ",van,Bos,A," + nummer});
    const auto teksten = Geschilderd();
    ASSERT_EQ(12U, teksten.size());
    EXPECT_EQ("van", teksten[8]);
    const QFontMetrics maten(P1()->font());
    for (const auto& [heel, kort, links, rechts] :
         {std::tuple(lang, teksten[7], 14.5, 34.5), std::tuple(nummer, teksten[11], 88.5, 104.5)}) {
        EXPECT_TRUE(heel.starts_with(kort.substr(0, 8)) && kort.ends_with("...")) << kort;
        const double begin = Stuk(kort).x;
        EXPECT_GE(begin, links * A());
        EXPECT_LE(begin + maten.horizontalAdvance(QString::fromStdString(kort)), rechts * A());
    }

    EXPECT_EQ("", Wenk(36)); // "van" fits
    EXPECT_EQ(lang, Wenk(20));
    EXPECT_EQ(nummer, Wenk(95));
}

TEST_F(diaSortlijstTest, OokEenVetteTekstDieNetTeLangIsHeeftEenWenk)
{
    int ingekort = 0;
    for (std::size_t letters = 4; letters < 60; ++letters) {
        const std::string groep(letters, 'k'); // wider when bold, unlike G
        Open(opGroep, true, {"100001,An,,Bos," + groep + ",7"});
        if (!Geschilderd().at(9).ends_with("...")) // nothing is drawn in the empty cell
            continue;
        ++ingekort;
        const Sorteerranden randen = ZetKolommen(opGroep);
        EXPECT_EQ(groep, Wenk(static_cast<double>(randen[4] + randen[5]) / 2)) << letters;
    }
    EXPECT_GT(ingekort, 5);
}

TEST_F(diaSortlijstTest, EenRegelMetTeWeinigOfLegeVelden)
{
    Open(opKey, true, {"", ",,,,,", "7,An"});
    const auto teksten = Geschilderd();
    EXPECT_EQ((std::vector<std::string>{"7", "An"}),
              std::vector<std::string>(teksten.begin() + 6, teksten.end()));
    Open(opKey, true, {});
    EXPECT_EQ(6U, Geschilderd().size()) << "een lege lijst is alleen de kop";
    EXPECT_FALSE(Balk()->isEnabled());
}

/// At the column starts, in widths of the letter A, from under the header to below the last line.
TEST_F(diaSortlijstTest, DeRoosterlijnenStaanOpDeRandenInHunGrijs)
{
    for (const Sorteersoort soort : {opKey, opNummer, opGroep}) {
        Open(soort, true, tweeRegels);
        Schilder();
        const Sorteerranden bij = ZetKolommen(soort);
        std::vector<QLineF> staand;
        std::set<double> liggend;
        for (const QLineF& lijn : vanger->Lijnen()) {
            if (lijn.x1() == lijn.x2()) {
                staand.push_back(lijn);
                continue;
            }
            liggend.insert(lijn.y1());
            EXPECT_NEAR(bij.front() * A(), lijn.x1(), 0.5);
            EXPECT_NEAR(bij.back() * A(), lijn.x2(), 0.5);
        }
        ASSERT_EQ(bij.size(), staand.size());
        for (std::size_t i = 0; i < bij.size(); ++i) {
            EXPECT_NEAR(bij.at(i) * A(), staand[i].x1(), 0.5) << i;
            EXPECT_EQ(*liggend.begin(), staand[i].y1());
            EXPECT_EQ(*liggend.rbegin(), staand[i].y2());
        }
        // Under the header, between the lines and below the last one.
        ASSERT_EQ(3U, liggend.size());
        const std::vector<double> hoogten(liggend.begin(), liggend.end());
        EXPECT_GT(hoogten[0], Stuk("Key").y);
        EXPECT_LT(hoogten[0], Stuk("100001").y);
        EXPECT_GT(hoogten[1], Stuk("100001").y);
        EXPECT_LT(hoogten[1], Stuk("100007").y);
        EXPECT_GT(hoogten[2], Stuk("100007").y);
        const QImage beeld = P1()->grab().toImage();
        const double schaal = beeld.devicePixelRatio();
        EXPECT_EQ(QColor(160, 160, 160), beeld.pixelColor(static_cast<int>(20 * A() * schaal),
                                                          static_cast<int>(hoogten[0] * schaal)));
    }
}

/// The keys that scroll do nothing then, wherever the focus is.
TEST_F(diaSortlijstTest, EenKorteLijstHeeftDeSchuifbalkUit)
{
    OpenVeel(200);
    EXPECT_TRUE(Balk()->isEnabled());
    EXPECT_EQ(0, Balk()->value());
    venster->resize(venster->width(), 10'000);
    QApplication::processEvents();
    EXPECT_FALSE(Balk()->isEnabled());
    Open(opKey, true, tweeRegels);
    EXPECT_FALSE(Balk()->isEnabled());
    EXPECT_EQ(0, Balk()->minimum());
    EXPECT_EQ(0, Balk()->maximum());
    for (QWidget* vlak : {Deel<QWidget>("P1"), Deel<QWidget>("cmdOK")}) {
        for (const Qt::Key toets : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                    Qt::Key_Home, Qt::Key_End}) {
            QTest::keyClick(vlak, toets);
            EXPECT_EQ(0, Balk()->value());
        }
    }
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(diaSortlijstTest, DeDelenStaanOpHunPlaats)
{
    const QRect vrij = hoofd.screen()->availableGeometry();
    hoofd.move(vrij.bottomRight());
    OpenVeel(200);
    EXPECT_TRUE(vrij.contains(QRect(venster->pos(), venster->size())));
    const Maten maten;
    venster->resize(venster->property(Standaardmaat).toSize());
    QApplication::processEvents();
    EXPECT_EQ(maten.Twips(6930), venster->height());
    const QRect titel = Deel<QLabel>("Label1")->geometry();
    const auto* Frame2 = Deel<QFrame>("Frame2");
    const QRect kader = Frame2->geometry();
    const QRect knop = Deel<QPushButton>("cmdOK")->geometry();
    EXPECT_EQ(maten.Twips(100), titel.left());
    EXPECT_EQ(titel.left(), kader.left());
    EXPECT_EQ(titel.width(), kader.width());
    EXPECT_LT(titel.bottom(), kader.top());
    EXPECT_LT(kader.bottom(), knop.top());
    EXPECT_EQ(kader.right(), knop.right());
    const QRect P0 = Deel<QWidget>("P0")->geometry();
    EXPECT_EQ(Frame2->contentsRect(), P0.united(Balk()->geometry()));
    EXPECT_EQ(P0.right() + 1, Balk()->x());
    EXPECT_EQ(P0.height(), Balk()->height());
    // As far as it takes to bring the end of the list to the foot of the viewport.
    EXPECT_EQ(P1()->Boven(201) + 2 - P0.height(), Balk()->maximum());
}

TEST_F(diaSortlijstTest, OpEenSmalSchermSchuivenDeKolommenOpzij)
{
    OpenVeel(200);
    venster->resize(500, 400);
    QApplication::processEvents();
    EXPECT_TRUE(Zijbalk()->isVisible());
    EXPECT_EQ(Deel<QWidget>("P0")->geometry().bottom() + 1, Zijbalk()->geometry().top());
    EXPECT_EQ(Balk()->height(), P1()->height());
    QTest::keyClick(P1(), Qt::Key_Right);
    const int stap = Zijbalk()->value();
    EXPECT_GT(stap, 0);
    QTest::keyClick(P1(), Qt::Key_Left);
    EXPECT_EQ(0, Zijbalk()->value());
    DraaiWiel(P1(), {-120, 0});
    EXPECT_GT(Zijbalk()->value(), 0);
    EXPECT_EQ(0, Balk()->value());
    Zijbalk()->setValue(Zijbalk()->maximum());
    Schilder();
    const Getekend nummer = Stuk("12345678");
    EXPECT_LT(nummer.x + nummer.breed, P1()->width());
    EXPECT_LT(Stuk("Key").x, 0);
    Balk()->setValue(Balk()->maximum());
    Schilder();
    EXPECT_LT(Stuk("12345678").y, P1()->height());
}

TEST_F(diaSortlijstTest, SchuiftMetBalkToetsenEnWiel)
{
    OpenVeel(200);
    const auto toets = [&](Qt::Key welke) { QTest::keyClick(P1(), welke); };
    toets(Qt::Key_Down);
    const int stap = Balk()->value();
    EXPECT_GT(stap, 0);
    toets(Qt::Key_Up);
    EXPECT_EQ(0, Balk()->value());
    toets(Qt::Key_PageDown);
    EXPECT_GT(Balk()->value(), 5 * stap);
    toets(Qt::Key_End);
    EXPECT_EQ(Balk()->maximum(), Balk()->value());
    toets(Qt::Key_PageUp);
    EXPECT_LT(Balk()->value(), Balk()->maximum());
    toets(Qt::Key_Home);
    EXPECT_EQ(0, Balk()->value());
    DraaiWiel(P1(), {0, -120});
    EXPECT_GT(Balk()->value(), 0);
}

TEST_F(diaSortlijstTest, OnderaanStaatDeLaatsteRegelHeelInBeeld)
{
    std::vector<Tekst> veel;
    for (int i = 0; i < 200; ++i)
        veel.push_back(std::to_string(i) + "e,An,,Bos,,");
    Open(opKey, true, veel);
    // The line that the lower edge cuts is painted too.
    Schilder();
    EXPECT_GT(vanger->Teksten().back().y + Balk()->singleStep(),
              P1()->height() + QFontMetrics(P1()->font()).ascent());
    Balk()->setValue(Balk()->maximum());
    Schilder();
    EXPECT_LT(Stuk("199e").y, P1()->height());
    EXPECT_GT(Stuk("199e").y, P1()->height() / 2.0);
    EXPECT_LT(Stuk("Key").y, 0); // the header scrolls along
}

/// Of a large list only the lines that are seen are asked for, and only the cells that somebody
/// asks for come into being.
TEST_F(diaSortlijstTest, IsEenTabelVoorWieNietKijkt)
{
    OpenVeel(100'000);
    Balk()->setValue(Balk()->maximum());
    QApplication::processEvents();
    EXPECT_LT(vragen, 500);
    EXPECT_EQ(99'999, laatste);
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(P1());
    ASSERT_EQ(QAccessible::Table, vlak->role());
    QAccessibleTableInterface* tabel = vlak->tableInterface();
    EXPECT_EQ(100'000, tabel->rowCount());
    EXPECT_EQ(6, tabel->columnCount());
    vragen = 0;
    for (int rij = 0; rij < tabel->rowCount(); rij += 100)
        ASSERT_EQ("van der", tabel->cellAt(rij, 2)->text(QAccessible::Name).toStdString());
    EXPECT_EQ(1000, vragen);
    EXPECT_EQ("Subgroep", tabel->columnDescription(4).toStdString());
    EXPECT_EQ("12345678", tabel->cellAt(7, 5)->text(QAccessible::Name).toStdString());
    EXPECT_EQ("Regel 1, Key 100001, Voornaam An, Tus van der, Achternaam Bos, Subgroep A-lijn, "
              "----- 12345678",
              P1()->accessibleDescription().toStdString());
}

/// The chosen line goes along with what the keys scroll, and stays in sight.
TEST_F(diaSortlijstTest, DeToetsenKiezenEenRegel)
{
    OpenVeel(200);
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(P1());
    ASSERT_NE(nullptr, vlak->tableInterface());
    const auto gekozen = [&] { return vlak->tableInterface()->selectedRows().value(0, -1); };
    const auto inBeeld = [&] { return P1()->rect().contains(P1()->Plek(gekozen() + 1, 0)); };
    EXPECT_EQ(0, gekozen());
    for (int i = 1; i < 200; ++i) {
        QTest::keyClick(P1(), Qt::Key_Down);
        ASSERT_EQ(i, gekozen());
        ASSERT_TRUE(inBeeld()) << i;
    }
    QTest::keyClick(P1(), Qt::Key_Down);
    EXPECT_EQ(199, gekozen());
    QTest::keyClick(P1(), Qt::Key_PageUp);
    EXPECT_LT(gekozen(), 195);
    EXPECT_TRUE(inBeeld());
    QTest::keyClick(P1(), Qt::Key_Home);
    EXPECT_EQ(0, gekozen());
    EXPECT_TRUE(inBeeld());
    QTest::mouseClick(P1(), Qt::LeftButton, {}, P1()->Plek(4, 3).center());
    EXPECT_EQ(3, gekozen());
    EXPECT_EQ(0, Balk()->value());
    // Where it was, after the bar was dragged away
    Balk()->setValue(Balk()->maximum());
    QTest::keyClick(P1(), Qt::Key_Down);
    EXPECT_EQ(4, gekozen());
    EXPECT_TRUE(inBeeld());
}

TEST_F(diaSortlijstTest, DeGekozenRegelHeeftEenKader)
{
    OpenVeel(200);
    const QRect plek = P1()->Plek(2, 0);
    for (const bool gekozen : {false, true}) {
        if (gekozen)
            QTest::mouseClick(P1(), Qt::LeftButton, {}, plek.center());
        QImage beeld(P1()->size(), QImage::Format_RGB32);
        P1()->render(&beeld);
        EXPECT_EQ(gekozen, P1()->palette().color(QPalette::Highlight) ==
                               beeld.pixelColor(plek.left() + 4, plek.top()));
    }
}

TEST_F(diaSortlijstTest, TerugEnterEnEscapeSluiten)
{
    for (int weg = 0; weg <= Sluitwegen; ++weg) {
        Open(opKey, true, tweeRegels);
        if (weg < Sluitwegen)
            Sluit(weg, "cmdOK");
        else
            QTest::keyClick(P1(), Qt::Key_Return);
        EXPECT_FALSE(venster->isVisible()) << weg;
    }
}
