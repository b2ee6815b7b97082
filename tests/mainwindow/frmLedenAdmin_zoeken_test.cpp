// Finding anyone, in the real window by mouse and keys, on the sample suite.
#include <QElapsedTimer>
#include <QPainter>
#include <QTreeWidget>

#include "mainwindow/vensterproef.h"
#include "platform/scherm/regellijst.h"

using namespace plexoran;

namespace {

class Zoekproef : public Hoofdvensterproef {
  protected:
    [[nodiscard]] QLineEdit* Vak() const { return Vind<QLineEdit>(*venster, "txtZoek"); }
    [[nodiscard]] Regellijst* Lijst() const { return Vind<Regellijst>(*venster, "lstZoek"); }
    void Zoek(const QString& tekst) const { Schrijf(*venster, "txtZoek", tekst); }
    [[nodiscard]] std::string Gevonden() const { return Label("lblZoek")->text().toStdString(); }
    /// The names in the list.
    [[nodiscard]] std::vector<std::string> Namen() const
    {
        std::vector<std::string> namen;
        for (const std::string& regel : Lijstregels(*venster, "lstZoek"))
            namen.push_back(regel.substr(0, regel.find(',')));
        return namen;
    }
    void InVak(Qt::Key toets, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::keyClick(Vak(), toets, bij);
    }
    void InLijst(Qt::Key toets, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::keyClick(Lijst(), toets, bij);
    }
    [[nodiscard]] std::string Gekozene() const
    {
        return Vlak()
            ->accessibleDescription()
            .section(u"Achternaam "_s, 1)
            .section(u',', 0, 0)
            .toStdString();
    }
    [[nodiscard]] bool IsInBeeld() const
    {
        return Deel("Line1")->isVisible() && Deel("Line1")->y() >= Deel("P9")->height() - 2 &&
               Deel("Line2")->y() <= Vlak()->height();
    }
};

class ZoekTest : public Zoekproef {
  protected:
    ZoekTest() { Start(); }
};

using Regels_t = std::vector<std::string>;

} // namespace

TEST_F(ZoekTest, EenMenuopdrachtGaatOverWieInDeLijstGekozenIs)
{
    QTest::keyClick(Vlak(), Qt::Key_Home);
    Zoek(u"oudewortel"_s);
    Lijst()->setFocus();
    InLijst(Qt::Key_Down);
    const std::string wie = Namen()[1];
    for (const bool toets : {false, true}) {
        wachter.Bedien([&](QDialog& ingave) {
            EXPECT_EQ("Mieke", Vind<QLineEdit>(ingave, "txt1_4")->text().toStdString()) << wie;
            ingave.reject();
        });
        if (toets)
            InLijst(Qt::Key_F2);
        else
            venster->findChild<QAction*>(u"actWijzig"_s)->trigger();
        wachter.Klaar();
        venster->activateWindow();
        Lijst()->setFocus();
    }
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s,
                      .antwoord = u"Annuleren"_s,
                      .titel = u"Verwijderen"_s,
                      .alleenBegin = true});
    InLijst(Qt::Key_Delete);
    wachter.Klaar();
}

TEST_F(ZoekTest, DeleteAchterDeLaatsteLetterVraagtOfWieGevondenIsWegMag)
{
    Zoek(u"theo oudewortel"_s);
    auto* vak = Vind<QLineEdit>(*venster, "txtZoek");
    vak->setFocus();
    vak->setCursorPosition(3);
    QTest::keyClick(vak, Qt::Key_Delete);
    EXPECT_EQ("the oudewortel", vak->text().toStdString());
    vak->setText(u"theo oudewortel"_s);
    vak->selectAll();
    QTest::keyClick(vak, Qt::Key_Delete);
    EXPECT_EQ("", vak->text().toStdString());
    QTest::keyClick(vak, Qt::Key_Delete); // nobody was looked for
    vak->setText(u"theo oudewortel"_s);
    vak->setCursorPosition(15);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s,
                      .antwoord = u"Annuleren"_s,
                      .titel = u"Verwijderen"_s,
                      .alleenBegin = true});
    QTest::keyClick(vak, Qt::Key_Delete);
    wachter.Klaar();
}

TEST_F(ZoekTest, WieInDeLijstGekozenIsBlijftHetAlsErEenAnderVoorKomt)
{
    Zoek(u"oudewortel"_s);
    InLijst(Qt::Key_Down);
    const std::string wie = Namen()[1];
    Spelertabel& tabel = administratie.spelers.tabel;
    Rijvelden eerder = tabel.Velden(1);
    eerder[Index(Kolom::Achternaam)] = "Oudewortel-Aap";
    WijzigSpeler(administratie.spelers, 1, eerder);
    venster->ToonGroep();
    EXPECT_EQ(5U, Namen().size());
    EXPECT_EQ(wie, Namen()[static_cast<std::size_t>(Lijst()->currentIndex().row())]);
    EXPECT_EQ(2, Lijst()->currentIndex().row());
    EXPECT_EQ((std::vector<int>{2}), Lijst()->GekozenPlaatsen());
}

TEST_F(ZoekTest, WieAchterEenBalkVanHetOverzichtStaatKomtInDeLijst)
{
    Zoek(u"oudewortel"_s);
    wachter.Bedien([](QDialog& overzicht) {
        auto* lijst = overzicht.findChild<QTreeWidget*>(u"lstOverzicht"_s);
        lijst->setCurrentItem(
            lijst->findItems(u"DONDERDAG"_s, Qt::MatchExactly | Qt::MatchRecursive).constFirst());
        QTest::keyClick(lijst, Qt::Key_Return);
    });
    venster->findChild<QAction*>(u"actOverzicht"_s)->trigger();
    wachter.Klaar();
    venster->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    EXPECT_EQ("Gr05-Bondsleden, DONDERDAG: 5 gevonden", Gevonden());
    EXPECT_EQ(5U, Namen().size());
    EXPECT_TRUE(Lijst()->hasFocus());
    EXPECT_EQ(u""_s, Vak()->text());
    InLijst(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ("5 gekozen", Label("lblGekozen")->text().toStdString());
    Zoek(u"jansen"_s);
    EXPECT_TRUE(Gevonden().ends_with(" gevonden") && !Gevonden().starts_with("Gr05"));
    InVak(Qt::Key_Escape);
    EXPECT_FALSE(Lijst()->isVisible());
}

TEST_F(ZoekTest, DeLijstKomtInDePlaatsVanDeOpdrachtenEnVerderVerspringtNiets)
{
    EXPECT_TRUE(Deel("picZoek")->isVisible());
    EXPECT_FALSE(Lijst()->isVisible());
    EXPECT_TRUE(Knop("cmdAanm")->isVisible());
    EXPECT_EQ("", Gevonden());
    const QRect rooster = Deel("picP0")->geometry();
    const QRect balk = Deel("picZoek")->geometry();
    const QSize maat = venster->size();
    Zoek(u"oudewortel"_s);
    EXPECT_TRUE(Lijst()->isVisible());
    EXPECT_FALSE(Knop("cmdAanm")->isVisible());
    EXPECT_FALSE(Knop("cmdEinde")->isVisible());
    EXPECT_GE(Lijst()->mapTo(venster.get(), QPoint()).y(),
              Deel("picP0")->mapTo(venster.get(), QPoint()).y() + rooster.height());
    EXPECT_EQ("4 gevonden", Gevonden());
    EXPECT_EQ((Regels_t{"Theo Oudewortel", "Mieke Oudewortel-Quist", "Theo Oudewortel",
                        "Mieke Oudewortel-Quist"}),
              Namen());
    Zoek(u"oudewortel qq"_s);
    EXPECT_EQ("niets gevonden", Gevonden());
    EXPECT_TRUE(Lijst()->isVisible());
    Zoek({});
    EXPECT_FALSE(Lijst()->isVisible());
    EXPECT_TRUE(Knop("cmdAanm")->isVisible());
    EXPECT_EQ(rooster, Deel("picP0")->geometry());
    EXPECT_EQ(balk, Deel("picZoek")->geometry());
    EXPECT_EQ(maat, venster->size());
}

TEST_F(ZoekTest, CtrlFEnSchuineStreepGaanErheenMaarNietUitEenTekstvak)
{
    DrukMetCtrl(Qt::Key_F);
    EXPECT_TRUE(Vak()->hasFocus());
    Vlak()->setFocus();
    QTest::keyClick(Vlak(), Qt::Key_Slash);
    EXPECT_TRUE(Vak()->hasFocus());
    EXPECT_EQ("", Vak()->text().toStdString());
    InVak(Qt::Key_Slash);
    EXPECT_EQ("/", Vak()->text().toStdString());
    Vlak()->setFocus();
    DrukMetCtrl(Qt::Key_F); // what was typed is replaced by what is typed next
    InVak(Qt::Key_Q);
    EXPECT_EQ("q", Vak()->text().toStdString());
}

TEST_F(ZoekTest, EnterGaatNaarDeSpelerInZijnGroepEnEscapeGaatTerug)
{
    KiesRegel(3);
    Balk("VScroll1")->setValue(120);
    Zoek(u"ypeslot klaas"_s);
    EXPECT_EQ("1 gevonden", Gevonden());
    EXPECT_EQ(1, GetoondeGroep());
    InVak(Qt::Key_Return);
    EXPECT_EQ(2, GetoondeGroep());
    EXPECT_EQ("Ypeslot", Gekozene());
    EXPECT_TRUE(IsInBeeld());
    EXPECT_TRUE(Vlak()->hasFocus());
    EXPECT_TRUE(Lijst()->isVisible()); // until one is done
    Toets(Qt::Key_Escape);
    EXPECT_EQ(1, GetoondeGroep());
    EXPECT_EQ("Kuipersma", Gekozene());
    EXPECT_EQ(120, Balk("VScroll1")->value());
    EXPECT_EQ("", Vak()->text().toStdString());
    EXPECT_FALSE(Lijst()->isVisible());
    EXPECT_TRUE(Vlak()->hasFocus());
}

TEST_F(ZoekTest, EscapeBrengtOokWieNietsGekozenHadTerug)
{
    Zoek(u"ypeslot"_s);
    InVak(Qt::Key_Return);
    Vak()->setFocus();
    InVak(Qt::Key_Escape);
    EXPECT_EQ(1, GetoondeGroep());
    EXPECT_EQ(0, GekozenRegel());
    EXPECT_EQ("", Vak()->text().toStdString());
}

TEST_F(ZoekTest, EenKlikGaatErheenEnDeLijstHoudtDeToetsen)
{
    Zoek(u"jan"_s);
    const Regels_t namen = Namen();
    const auto plaats = std::find(namen.begin(), namen.end(), "Jan Verstegh");
    ASSERT_NE(namen.end(), plaats);
    KlikRegel(*venster, "lstZoek", static_cast<int>(plaats - namen.begin()));
    EXPECT_EQ(2, GetoondeGroep());
    EXPECT_EQ("Verstegh", Gekozene());
    EXPECT_TRUE(IsInBeeld());
    EXPECT_TRUE(Lijst()->hasFocus());
    EXPECT_EQ(std::vector{static_cast<int>(plaats - namen.begin())}, Lijst()->GekozenPlaatsen());
    // With Ctrl or Shift one chooses, and stays where one is.
    const QPoint plek = Lijst()->visualRect(Lijst()->model()->index(0, 0)).center();
    QTest::mouseClick(Lijst()->viewport(), Qt::LeftButton, Qt::ControlModifier, plek);
    EXPECT_EQ("Verstegh", Gekozene());
    EXPECT_EQ(2U, Lijst()->GekozenPlaatsen().size());
}

TEST_F(ZoekTest, PijlOmlaagGaatDeLijstInEnTypenGaatTerugNaarHetVak)
{
    Zoek(u"kuip"_s);
    InVak(Qt::Key_Down);
    EXPECT_TRUE(Lijst()->hasFocus());
    InLijst(Qt::Key_Down);
    EXPECT_EQ(std::vector{1}, Lijst()->GekozenPlaatsen());
    InLijst(Qt::Key_Return);
    EXPECT_EQ("Kuipersma-Hol", Gekozene());
    Lijst()->setFocus();
    InLijst(Qt::Key_E);
    EXPECT_TRUE(Vak()->hasFocus());
    EXPECT_EQ("kuipe", Vak()->text().toStdString());
    InVak(Qt::Key_Down);
    InLijst(Qt::Key_Backspace);
    EXPECT_TRUE(Vak()->hasFocus());
    EXPECT_EQ("kuip", Vak()->text().toStdString());
    InVak(Qt::Key_Down);
    InLijst(Qt::Key_Up);
    EXPECT_TRUE(Vak()->hasFocus());
    EXPECT_EQ("kuip", Vak()->text().toStdString());
}

TEST_F(ZoekTest, CtrlEnterWijzigtDeSpelerEnDeLijstVolgt)
{
    Zoek(u"ypeslot klaas"_s);
    wachter.Bedien([](QDialog& ingave) {
        EXPECT_EQ("diaIngave", ingave.objectName().toStdString());
        EXPECT_EQ("Ypeslot", Vind<QLineEdit>(ingave, "txt1_6")->text().toStdString());
        EXPECT_EQ("Gr02-Donderdagmiddag", Vind<QLineEdit>(ingave, "txt1_3")->text().toStdString());
        Schrijf(ingave, "txt1_4", u"Klaas-Nico"_s);
        Druk(ingave, "cmdOK");
    });
    InVak(Qt::Key_Return, Qt::ControlModifier);
    wachter.Klaar();
    EXPECT_NE(std::string::npos, suite.Spelers().find(",Gr02-,Klaas-Nico,,Ypeslot,"));
    EXPECT_EQ(Regels_t{"Klaas-Nico Ypeslot"}, Namen());
    EXPECT_EQ("1 gevonden", Gevonden());
}

TEST_F(ZoekTest, NaOngedaanMakenEnWijzigingVanBuitenIsHetAntwoordBij)
{
    Zoek(u"pelikaan"_s);
    EXPECT_EQ("niets gevonden", Gevonden());
    std::string tekst = suite.Spelers();
    const std::string was = ",Klaas,,Ypeslot,";
    suite.Zet("Spelers/RVDspelers.txt",
              tekst.replace(tekst.find(was), was.size(), ",Klaas,,Pelikaan,"));
    venster->VolgBestanden();
    EXPECT_EQ("1 gevonden", Gevonden());
    EXPECT_EQ(Regels_t{"Klaas Pelikaan"}, Namen());
    InVak(Qt::Key_Return);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_6", u"Meeuw"_s);
        Druk(ingave, "cmdOK");
    });
    Toets(Qt::Key_Return);
    wachter.Klaar();
    EXPECT_EQ("niets gevonden", Gevonden());
    DrukMetCtrl(Qt::Key_Z);
    EXPECT_EQ("1 gevonden", Gevonden());
}

TEST_F(ZoekTest, CtrlZInHetVakGaatOverDeSpelersEnEscapeUitHetLegeVakNaarHetRooster)
{
    const std::string oud = suite.Spelers();
    Zoek(u"theo oudewortel"_s);
    Vak()->setFocus();
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    InVak(Qt::Key_Delete);
    wachter.Klaar();
    ASSERT_NE(oud, suite.Spelers());
    venster->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    Vak()->setFocus();
    QTest::keyClick(Vak(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("theo oudewortel", Vak()->text().toStdString());
    QTest::keyClick(Vak(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_NE(oud, suite.Spelers());
    Vak()->clear();
    QTest::keyClick(Vak(), Qt::Key_Escape);
    EXPECT_TRUE(Vlak()->hasFocus());
}

TEST_F(ZoekTest, WieInEenGroepStaatDieNietBestaatWordtGevondenMaarNietGetoond)
{
    std::string tekst = suite.Spelers();
    tekst.replace(tekst.find("Gr02-,Klaas"), 5, "Gr77-");
    HerstartMet(tekst);
    Zoek(u"ypeslot klaas"_s);
    EXPECT_EQ("1 gevonden", Gevonden());
    wachter.Waarschuwing(
        u"Klaas Ypeslot staat in groep 'Gr77-', die niet bestaat, en is daarom niet te tonen. Er "
        "is niets veranderd. Met 'Controle van de administratie' is dat te herstellen."_s);
    InVak(Qt::Key_Return, Qt::ControlModifier);
    wachter.Klaar();
    EXPECT_EQ(1, GetoondeGroep());
}

TEST_F(ZoekTest, WatAntwoordtIsGemarkeerdOokGekozenInHetDonkerEnInEenSmalVenster)
{
    const auto geel = [this](int plaats) {
        const QImage beeld = Lijst()->viewport()->grab().toImage();
        const QRect deel = Lijst()->visualRect(Lijst()->model()->index(plaats, 0));
        int punten = 0;
        for (int y = deel.top(); y <= deel.bottom(); ++y) {
            for (int x = deel.left(); x <= std::min(deel.right(), beeld.width() - 1); ++x)
                punten += beeld.pixelColor(x, y) == QColor(255, 224, 102);
        }
        return punten;
    };
    Zoek(u"overl"_s); // the last part of a line
    for (const bool donker : {false, true}) {
        QPalette palet = venster->palette();
        palet.setColor(QPalette::Base, donker ? Qt::black : Qt::white);
        palet.setColor(QPalette::Text, donker ? Qt::white : Qt::black);
        Lijst()->setPalette(palet);
        EXPECT_GT(geel(0), 50) << donker; // chosen
        EXPECT_GT(geel(1), 50) << donker;
    }
    Zoek(u"zevenentwintig"_s); // in the middle of a long address
    EXPECT_EQ("1 gevonden", Gevonden());
    EXPECT_GT(geel(0), 50);
}

TEST_F(Zoekproef, BijHonderdduizendSpelersAntwoordtElkeToetsOpTijd)
{
#ifdef __OPTIMIZE__
    constexpr int spelers = 100'000;
    constexpr qint64 grens = 50;
#else
    constexpr int spelers = 10'000; // the code as it is written, for finding faults
    constexpr qint64 grens = 500;
#endif
    std::string tekst = "HKEY=200000\r\n";
    for (int i = 1; i <= spelers; ++i) {
        const std::string nr = std::to_string(i);
        tekst += nr + "," + std::to_string(100'000 + i) + ",Gr" + (i % 50 < 9 ? "0" : "") +
                 std::to_string(i % 50 + 1) + "-,Zo\xEB,van der,Achternaam" + nr + ",06-" +
                 std::to_string(10'000'000 + i) + ",post" + nr + "@voorbeeld.example,Straat " + nr +
                 ",1234 AB,Plaats,,V,,,,A-LIJN,\r\n";
    }
    suite.Zet("Spelers/RVDspelers.txt", tekst);
    Start();
    Vak()->setFocus();
    // The quickest of some times: the machine does more than this.
    std::map<std::string, qint64> besteTijd;
    for (int keer = 0; keer < 5; ++keer) {
        Vak()->clear();
        QApplication::processEvents();
        for (const QChar toets : u"e rnaam77 06-1"_s) {
            const std::string getypt = QString(Vak()->text() + toets).toStdString();
            QElapsedTimer klok;
            klok.start();
            Typ(Vak(), toets);
            Lijst()->viewport()->repaint();
            QApplication::processEvents();
            const qint64 tijd = klok.elapsed();
            const auto [plek, nieuw] = besteTijd.emplace(getypt, tijd);
            plek->second = std::min(plek->second, tijd);
        }
        // 77, 770 to 779, ...
        EXPECT_EQ(spelers == 10'000 ? "111 gevonden" : "1111 gevonden", Gevonden());
    }
    for (const auto& [getypt, tijd] : besteTijd)
        EXPECT_LE(tijd, grens) << getypt;
}
