#include "dialogs/diaGrNamen.h"

#include <QScrollBar>

#include "hulp/dialoogproef.h"

using namespace plexoran;

namespace {

const QString kommas = u"Komma's worden veranderd in Underscores. (_)"_s;

struct Groepstand {
    Groepen groepen;
};

class diaGrNamenTest : public Dialoogproef<diaGrNamen, Groepstand> {
  protected:
    diaGrNamenTest()
    {
        groepen.ZetNaam(1, "Clubleden");
        groepen.ZetNaam(8, "Introduc\xE9s");
        groepen.ZetNaam(50, " laatste ");
    }

    void Open() { Toon(groepen); }
    void SetUp() override { Open(); }

    [[nodiscard]] Tekstvak* Vak(int nummer) const
    {
        return Deel<Tekstvak>("txt1_" + std::to_string(nummer));
    }
    [[nodiscard]] QScrollBar* Balk() const { return Deel<QScrollBar>("VScroll1"); }
    void TypIn(int nummer, const QString& tekst) const
    {
        Schrijf(*venster, ("txt1_" + std::to_string(nummer)).c_str(), tekst);
    }
    void KlikOK() const { Klik(Deel<QPushButton>("cmdOK")); }
    [[nodiscard]] bool InBeeld(const QWidget* vak) const
    {
        const auto* P0 = Deel<QWidget>("P0");
        return P0->rect().contains({vak->mapTo(P0, QPoint()), vak->size()});
    }
};

} // namespace

TEST_F(diaGrNamenTest, DeTeksten)
{
    VerwachtTeksten("Groepsnamen ingeven/wijzigen",
                    {{"Label2", "Geef eventueel een herkenbare tekst aan de groep."},
                     {"Label1", "U bent vrij in de toe te voegen tekst."},
                     {"Label3", "'Gr01-' enz, blijft een vast voorvoegsel"}},
                    {{"cmdOK", "OK"}, {"cmdAnnuleren", "Annuleren"}});
    const auto* Frame2 = Deel<QWidget>("Frame2");
    for (const char* naam : {"Label1", "Label2", "Label3"}) {
        const auto* label = Deel<QLabel>(naam);
        EXPECT_EQ(Frame2, label->parentWidget());
        EXPECT_LE(label->sizeHint().width(), label->width()) << naam;
        EXPECT_LE(label->sizeHint().height(), label->height()) << naam;
    }
}

TEST_F(diaGrNamenTest, VijftigRijenMetHunOpschriftEnNaam)
{
    const auto* P1 = Deel<QWidget>("P1");
    for (int nummer = 1; nummer <= 50; ++nummer) {
        const std::string cijfers = (nummer < 10 ? "0" : "") + std::to_string(nummer);
        const auto* label = Deel<QLabel>("lbl1_" + std::to_string(nummer));
        EXPECT_EQ("Groep " + cijfers + ": ", label->text().toStdString());
        EXPECT_LE(label->sizeHint().width(), label->width());
        EXPECT_EQ(P1, Vak(nummer)->parentWidget());
        EXPECT_TRUE(P1->rect().contains(Vak(nummer)->geometry())) << nummer;
        EXPECT_EQ(groepen.Naam(nummer), Vak(nummer)->GeefTekst());
    }
    EXPECT_EQ("Introducés", Vak(8)->text().toStdString());
    EXPECT_EQ(nullptr, venster->findChild<QWidget*>(u"txt1_51"_s));
}

TEST_F(diaGrNamenTest, DeRijenSchuivenInHunVenster)
{
    const auto* P0 = Deel<QWidget>("P0");
    const auto* P1 = Deel<QWidget>("P1");
    EXPECT_EQ(QPoint(qRound(100 / 15.0), qRound(700 / 15.0)), P0->pos());
    EXPECT_EQ(0, Balk()->minimum());
    EXPECT_EQ(0, Balk()->value());
    EXPECT_EQ(P1->height() - P0->height(), Balk()->maximum());
    EXPECT_TRUE(Balk()->isEnabled());
    Balk()->setValue(123);
    EXPECT_EQ(QPoint(0, -123), P1->pos());
    Balk()->setValue(Balk()->maximum());
    EXPECT_TRUE(InBeeld(Vak(50)));
    venster->resize(venster->width(), 5000);
    QApplication::processEvents();
    EXPECT_EQ(0, Balk()->maximum());
    EXPECT_FALSE(Balk()->isEnabled());
}

TEST_F(diaGrNamenTest, MetTabKomtElkVakInBeeld)
{
    std::vector<std::string> namen;
    for (int nummer = 1; nummer <= 50; ++nummer)
        namen.push_back("txt1_" + std::to_string(nummer));
    namen.insert(namen.end(), {"cmdAnnuleren", "cmdOK", "txt1_1"});
    Vak(1)->setFocus();
    const auto ga = [&](Qt::Key toets, const std::string& naam) {
        QTest::keyClick(QApplication::focusWidget(), toets);
        ASSERT_TRUE(Deel<QWidget>(naam)->hasFocus()) << naam;
        ASSERT_TRUE(!naam.starts_with("txt1") || InBeeld(Deel<QWidget>(naam))) << naam;
    };
    for (std::size_t i = 1; i < namen.size(); ++i)
        ASSERT_NO_FATAL_FAILURE(ga(Qt::Key_Tab, namen[i]));
    for (std::size_t i = namen.size() - 1; i-- > 0;)
        ASSERT_NO_FATAL_FAILURE(ga(Qt::Key_Backtab, namen[i]));
}

TEST_F(diaGrNamenTest, HetWielSchuiftEnDoetAanHetEindNiets)
{
    DraaiWiel(Deel<QWidget>("P1"), {0, -120});
    EXPECT_GT(Balk()->value(), 0);
    for (int i = 0; i < 100; ++i)
        DraaiWiel(Deel<QWidget>("P1"), {0, -120});
    EXPECT_EQ(Balk()->maximum(), Balk()->value());
    DraaiWiel(Balk(), {0, -120});
    EXPECT_EQ(Balk()->maximum(), Balk()->value());
}

TEST_F(diaGrNamenTest, OKBewaartDeTekstenZonderSpatiesEromheenEnElkeByte)
{
    TypIn(2, u"  Avond & café "_s);
    TypIn(3, u"     "_s);
    KlikOK();
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(QDialog::Accepted, venster->result());
    EXPECT_EQ("Clubleden", groepen.Naam(1));
    EXPECT_EQ("Avond & caf\xE9", groepen.Naam(2));
    EXPECT_EQ("", groepen.Naam(3));
    EXPECT_EQ("Introduc\xE9s", groepen.Naam(8));
    EXPECT_EQ("laatste", groepen.Naam(50));
    groepen.ZetNaam(4, "\x81\x8D\x01");
    Open();
    TypIn(5, u"x"_s);
    KlikOK();
    EXPECT_EQ("\x81\x8D\x01", groepen.Naam(4));
    EXPECT_EQ("x", groepen.Naam(5));
}

TEST_F(diaGrNamenTest, AnnulerenEscapeEnHetSluitvakLatenDeNamenStaan)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        TypIn(1, u"Anders"_s);
        Sluit(weg, "cmdAnnuleren");
        EXPECT_EQ(QDialog::Rejected, venster->result());
        EXPECT_EQ("Clubleden", groepen.Naam(1));
        EXPECT_EQ(" laatste ", groepen.Naam(50));
    }
}

TEST_F(diaGrNamenTest, EenKommaWordtEenUnderscoreBijHetVerlatenEnBijOK)
{
    const auto klikOK = [this] { KlikOK(); };
    const auto enter = [this] { QTest::keyClick(Vak(2), Qt::Key_Return); };
    const auto tab = [this] { QTest::keyClick(Vak(2), Qt::Key_Tab); };
    for (const std::function<void()>& weg :
         std::initializer_list<std::function<void()>>{klikOK, enter, tab}) {
        Open();
        TypIn(2, u"a,b,c"_s);
        wachter.Informatie(kommas);
        weg();
        QApplication::processEvents();
        wachter.Klaar();
        EXPECT_EQ("a_b_c", Vak(2)->text().toStdString());
        EXPECT_EQ(venster->isVisible() ? "" : "a_b_c", groepen.Naam(2));
        groepen.ZetNaam(2, "");
    }
    EXPECT_TRUE(venster->isVisible()); // Tab only leaves
}
