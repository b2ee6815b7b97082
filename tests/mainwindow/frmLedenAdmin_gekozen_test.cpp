// Several players chosen, in the grid and in the list of who was found, and what is done with all.
#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "hulp/printdialoog.h"
#include "mainwindow/vensterproef.h"
#include "platform/scherm/regellijst.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

using Regels_t = std::vector<std::string>;

class GekozenTest : public HoofdvensterTest {
  protected:
    void Klik(int regel, Qt::KeyboardModifiers bij) const
    {
        QTest::mouseClick(Vlak(), Qt::LeftButton, bij, OpRegel(regel));
    }
    /// The chosen lines as assistive programs hear them.
    [[nodiscard]] std::vector<int> Gekozen() const
    {
        const auto* tabel = QAccessible::queryAccessibleInterface(Vlak())->tableInterface();
        std::vector<int> regels;
        for (const int rij : tabel->selectedRows())
            regels.push_back(rij + 1);
        return regels;
    }
    [[nodiscard]] QAction* Actie(const char* naam) const
    {
        return venster->findChild<QAction*>(QString::fromLatin1(naam));
    }
    void Doe(const char* actie)
    {
        Actie(actie)->trigger();
        wachter.Klaar();
    }
    /// The same for one that opens `frmVeld`.
    void Doe(const char* actie, std::function<void(QDialog&)> stappen)
    {
        wachter.Bedien(std::move(stappen));
        Doe(actie);
    }
    void Zoek(const QString& tekst) const { Schrijf(*venster, "txtZoek", tekst); }
    [[nodiscard]] Regellijst* Lijst() const { return Vind<Regellijst>(*venster, "lstZoek"); }
    [[nodiscard]] std::string Melding() const { return Label("lblMelding")->text().toStdString(); }
    /// By one undoing; keys that were issued stay so.
    void VerwachtOngedaanIn(const std::string& oud)
    {
        const auto spelers = [](const std::string& bestand) {
            return bestand.substr(bestand.find('\n'));
        };
        ASSERT_NE(spelers(oud), spelers(suite.Spelers()));
        Vlak()->setFocus();
        DrukMetCtrl(Qt::Key_Z);
        EXPECT_EQ(spelers(oud), spelers(suite.Spelers()));
    }
    [[nodiscard]] int Reserves() const
    {
        int aantal = 0;
        for (const std::string& naam : suite.Namen("Spelers/Reservekopie"))
            aantal += naam.find("voor verwijderen") != std::string::npos;
        return aantal;
    }
};

/// The line of the player file with this key.
std::string Regel(const std::string& bestand, const std::string& key)
{
    const auto plek = bestand.find("," + key + ",");
    const auto begin = bestand.rfind('\n', plek) + 1;
    return bestand.substr(begin, bestand.find('\r', begin) - begin);
}

} // namespace

// ---- Choosing in the grid -----------------------------------------------------------------------

TEST_F(GekozenTest, ShiftEnCtrlMetDeMuisKiezenMeerRegels)
{
    KiesRegel(3);
    EXPECT_EQ(std::vector{3}, Gekozen());
    Klik(6, Qt::ShiftModifier);
    EXPECT_EQ((std::vector{3, 4, 5, 6}), Gekozen());
    EXPECT_EQ(6, GekozenRegel()); // the guide lines are around that
    Klik(2, Qt::ShiftModifier);
    EXPECT_EQ((std::vector{2, 3}), Gekozen());
    Klik(8, Qt::ControlModifier);
    EXPECT_EQ((std::vector{2, 3, 8}), Gekozen());
    Klik(3, Qt::ControlModifier);
    EXPECT_EQ((std::vector{2, 8}), Gekozen());
    EXPECT_EQ(3, GekozenRegel());
    EXPECT_TRUE(Vlak()->accessibleDescription().endsWith(u", gekozen regels: 2"_s));
    KiesRegel(5);
    EXPECT_EQ(std::vector{5}, Gekozen());
    EXPECT_FALSE(Vlak()->accessibleDescription().contains(u"gekozen"_s));
}

TEST_F(GekozenTest, DeToetsenKiezenMeerRegels)
{
    KiesRegel(3);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ((std::vector{3, 4, 5}), Gekozen());
    Toets(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ((std::vector{1, 2, 3}), Gekozen());
    Toets(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(48U, Gekozen().size());
    Toets(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_LT(Gekozen().size(), 48U);
    Toets(Qt::Key_Home);
    EXPECT_EQ(std::vector{1}, Gekozen());
    Toets(Qt::Key_Down, Qt::ControlModifier);
    Toets(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(std::vector{1}, Gekozen());
    EXPECT_EQ(3, GekozenRegel());
    Toets(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ((std::vector{1, 3}), Gekozen());
    Toets(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(std::vector{1}, Gekozen());
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(50U, Gekozen().size());
    EXPECT_EQ(3, GekozenRegel());
    Toets(Qt::Key_Down);
    EXPECT_EQ(std::vector{4}, Gekozen());
}

TEST_F(GekozenTest, MeerRegelsZijnTeZienEnEenZoalsAltijd)
{
    const auto vol = [this](int regel) {
        const QImage beeld = Vlak()->grab().toImage();
        return beeld.pixelColor(OpRegel(regel) + QPoint(0, -4)) ==
               Vlak()->palette().color(QPalette::Highlight);
    };
    KiesRegel(3);
    EXPECT_FALSE(vol(3));
    Klik(5, Qt::ControlModifier);
    EXPECT_TRUE(vol(3));
    EXPECT_FALSE(vol(4));
    EXPECT_TRUE(vol(5));
}

TEST_F(GekozenTest, HulpprogrammasZienElkeGekozenRegel)
{
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(Vlak());
    QAccessibleTableInterface* tabel = vlak->tableInterface();
    KiesRegel(3);
    Klik(5, Qt::ControlModifier);
    EXPECT_EQ(2, tabel->selectedRowCount());
    EXPECT_EQ(36, tabel->selectedCellCount());
    EXPECT_EQ(36, tabel->selectedCells().size());
    EXPECT_TRUE(tabel->isRowSelected(2));
    EXPECT_FALSE(tabel->isRowSelected(3));
    EXPECT_TRUE(tabel->cellAt(2, 5)->state().selected);
    EXPECT_FALSE(tabel->cellAt(2, 5)->state().focused);
    EXPECT_TRUE(tabel->cellAt(4, 5)->state().focused);
    EXPECT_TRUE(tabel->unselectRow(4));
    EXPECT_EQ(std::vector{3}, Gekozen());
}

TEST_F(GekozenTest, DeKeusBlijftAlsEenAnderProgrammaOpslaat)
{
    KiesRegel(3);
    Klik(5, Qt::ControlModifier);
    std::string tekst = suite.Spelers();
    const auto begin = tekst.find("2,100002");
    suite.Zet("Spelers/RVDspelers.txt", tekst.erase(begin, tekst.find("3,100003") - begin));
    venster->VolgBestanden();
    EXPECT_EQ((std::vector{2, 4}), Gekozen());
    EXPECT_EQ(4, GekozenRegel());
}

// ---- The menu -----------------------------------------------------------------------------------

TEST_F(GekozenTest, HetMenuKomtBijDeRegelOnderDeMuisEnHoudtEenKeusWaarinDieZit)
{
    auto* menu = Vind<QMenu>(*venster, "mnuGekozen");
    QStringList namen;
    for (const QAction* actie : menu->actions()) {
        if (!actie->isSeparator())
            namen << actie->objectName();
    }
    EXPECT_EQ(
        "actWijzigGekozen actVeldGekozen actVerplaatsGekozen actKopieerGekozen actPaarGekozen "
        "actPrintGekozen actExporteerGekozen actMailGekozen actEtikettenGekozen "
        "actVerwijderGekozen actTekstGekozen actGeschiedenisGekozen",
        namen.join(u' ').toStdString());
    const auto vraagMenu = [&](int regel) {
        QContextMenuEvent vraag(QContextMenuEvent::Mouse, OpRegel(regel),
                                Vlak()->mapToGlobal(OpRegel(regel)));
        QApplication::sendEvent(Vlak(), &vraag);
        EXPECT_TRUE(menu->isVisible());
        menu->close();
    };
    vraagMenu(4);
    EXPECT_EQ(std::vector{4}, Gekozen());
    Klik(6, Qt::ShiftModifier);
    vraagMenu(5);
    EXPECT_EQ((std::vector{4, 5, 6}), Gekozen());
    vraagMenu(9);
    EXPECT_EQ(std::vector{9}, Gekozen());
}

TEST_F(GekozenTest, ZonderKeusIsAllesGrijsEnZegtWaarom)
{
    const std::string oud = suite.Spelers();
    const auto reden = [this](const QString& moet) {
        for (const QAction* actie : Vind<QMenu>(*venster, "mnuGekozen")->actions()) {
            if (!actie->isSeparator()) {
                EXPECT_EQ(moet, actie->statusTip()) << actie->objectName().toStdString();
                EXPECT_EQ(moet.isEmpty(), actie->isEnabled());
            }
        }
    };
    reden(u"Kies eerst een regel"_s);
    Vlak()->setFocus();
    Toets(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier); // is told, and does nothing
    EXPECT_EQ("Kies eerst een regel", venster->statusBar()->currentMessage().toStdString());
    KiesRegel(3);
    reden({});
    Zoek(u"zonderling niemand"_s); // it goes to who was found now: nobody
    reden(u"Kies eerst een regel"_s);
    Vlak()->setFocus();
    reden({});
    EXPECT_EQ("1 gekozen", Label("lblGekozen")->text().toStdString());
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(GekozenTest, EenMenuMetDeToetsenGaatOverWieErVoorAanDeBeurtWas)
{
    Zoek(u"oudewortel"_s);
    Lijst()->setFocus();
    KiesRegel(3);
    EXPECT_EQ("1 gekozen", Label("lblGekozen")->text().toStdString());
    venster->menuBar()->setFocus(Qt::MenuBarFocusReason);
    Doe("actTekstGekozen");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(u"3\t100003\t"_s));
}

// ---- The commands -------------------------------------------------------------------------------

TEST_F(GekozenTest, VerplaatsenIsEenVraagEnEenHandeling)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    Klik(5, Qt::ControlModifier);
    Doe("actVerplaatsGekozen", [](QDialog& veld) {
        EXPECT_EQ("Gekozen spelers verplaatsen", veld.windowTitle().toStdString());
        EXPECT_FALSE(Vind<QPushButton>(veld, "cmdOK")->isEnabled()); // they are in the first group
        EXPECT_FALSE(Vind<QWidget>(veld, "cmbVeld")->isVisible());
        KiesUit(Vind<QComboBox>(veld, "cmbGroep"), 6);
        EXPECT_EQ("Van de 2 gekozen spelers veranderen er 2:",
                  Vind<QLabel>(veld, "lblAantal")->text().toStdString());
        EXPECT_EQ((Regels_t{"Johan Kuipersma: Gr01- -> Gr07-",
                            "Gerrit Jan ten Broekhoven: Gr01- -> Gr07-"}),
                  Lijstregels(veld, "lstVeld"));
        Druk(veld, "cmdOK");
    });
    EXPECT_EQ("2 spelers verplaatst naar Gr07-Zomerdrive", Melding());
    EXPECT_EQ("Aantal regels: 48", Aantal());
    EXPECT_TRUE(Regel(suite.Spelers(), "100003").find(",Gr07-,Johan") != std::string::npos);
    KiesGroep(7);
    EXPECT_EQ("Aantal regels: 2", Aantal());
    VerwachtOngedaanIn(oud);
}

TEST_F(GekozenTest, WieLidIsVanDeBondWordtNietVerplaatst)
{
    Zoek(u"theo oudewortel"_s); // a club member and a member of the federation
    Lijst()->setFocus();
    Lijst()->selectAll();
    Doe("actVerplaatsGekozen", [](QDialog& veld) {
        KiesUit(Vind<QComboBox>(veld, "cmbGroep"), 6);
        EXPECT_EQ("Van de 2 gekozen spelers veranderen er 1:",
                  Vind<QLabel>(veld, "lblAantal")->text().toStdString());
        EXPECT_EQ("Spelers van 'Gr05-' kunnen niet worden verplaatst.",
                  Vind<QLabel>(veld, "lblUitleg")->text().toStdString());
        Druk(veld, "cmdAnnuleren");
    });
}

TEST_F(GekozenTest, KopierenUitDeLijstGeeftIederEenNieuweSleutelInEenHandeling)
{
    const std::string oud = suite.Spelers();
    Zoek(u"ypeslot"_s);
    QTest::keyClick(Vind<QLineEdit>(*venster, "txtZoek"), Qt::Key_Down);
    QTest::keyClick(Lijst(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ((std::vector{0, 1}), Lijst()->GekozenPlaatsen());
    Doe("actKopieerGekozen", [](QDialog& veld) {
        EXPECT_EQ("Gekozen spelers kopiëren", veld.windowTitle().toStdString());
        KiesUit(Vind<QComboBox>(veld, "cmbGroep"), 3);
        Druk(veld, "cmdOK");
    });
    EXPECT_EQ("2 spelers gekopieerd naar Gr04-Viertallen", Melding());
    EXPECT_EQ("149,100172,Gr04-,Klaas,,Ypeslot,06-00000268,k.ypeslot@brievenbus.example,Het Hoogt "
              "44,0411 KK,Wielerdam,,M,,,,A-LIJN,",
              Regel(suite.Spelers(), "100172"));
    EXPECT_TRUE(Regel(suite.Spelers(), "100173").find(",Gr04-,Femmie") != std::string::npos);
    VerwachtOngedaanIn(oud);
}

TEST_F(GekozenTest, EenVeldWijzigenToontEerstOudEnNieuw)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    Klik(5, Qt::ShiftModifier);
    Doe("actVeldGekozen", [](QDialog& veld) {
        // As the grid calls it; nothing changes before anything was typed.
        EXPECT_EQ("Subgr", Vind<QComboBox>(veld, "cmbVeld")->currentText().toStdString());
        EXPECT_EQ("", Vind<QLineEdit>(veld, "txtWaarde")->text().toStdString());
        EXPECT_EQ(Regels_t{}, Lijstregels(veld, "lstVeld"));
        EXPECT_FALSE(Vind<QPushButton>(veld, "cmdOK")->isEnabled());
        EXPECT_FALSE(Vind<QLabel>(veld, "lblUitleg")->isVisible());
        Schrijf(veld, "txtWaarde", u"d-lijn"_s);
        EXPECT_EQ("Van de 3 gekozen spelers veranderen er 3:",
                  Vind<QLabel>(veld, "lblAantal")->text().toStdString());
        EXPECT_EQ("Johan Kuipersma: A-LIJN -> D-LIJN", Lijstregels(veld, "lstVeld").front());
        QTest::keyClick(Vind<QLineEdit>(veld, "txtWaarde"), Qt::Key_Return);
    });
    EXPECT_EQ("Subgr van 3 spelers gewijzigd in 'D-LIJN'", Melding());
    for (const char* key : {"100003", "100004", "100005"})
        EXPECT_TRUE(Regel(suite.Spelers(), key).ends_with(",D-LIJN,")) << key;
    EXPECT_EQ((std::vector{3, 4, 5}), Gekozen()); // for what comes next
    VerwachtOngedaanIn(oud);
}

TEST_F(GekozenTest, EenVeldDatNietMagVerandertNiet)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    Klik(4, Qt::ShiftModifier);
    Doe("actVeldGekozen", [](QDialog& veld) {
        auto* cmbVeld = Vind<QComboBox>(veld, "cmbVeld");
        KiesUit(cmbVeld, cmbVeld->findText(u"Achternaam"_s));
        Schrijf(veld, "txtWaarde", {});
        EXPECT_FALSE(Vind<QPushButton>(veld, "cmdOK")->isEnabled());
        Schrijf(veld, "txtWaarde", u"  "_s);
        EXPECT_FALSE(Vind<QPushButton>(veld, "cmdOK")->isEnabled());
        EXPECT_FALSE(Vind<QCheckBox>(veld, "chkLeeg")->isEnabled());
        EXPECT_EQ(-1, cmbVeld->findText(u"NBBnr"_s)); // no federation members
        QTest::keyClick(&veld, Qt::Key_Escape);
    });
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(GekozenTest, HetNBBnummerHeeftEenUitlegDieAndereVeldenNietHebben)
{
    Zoek(u"theo oudewortel"_s); // a club member and a member of the federation
    Lijst()->setFocus();
    Lijst()->selectAll();
    Doe("actVeldGekozen", [](QDialog& veld) {
        auto* cmbVeld = Vind<QComboBox>(veld, "cmbVeld");
        EXPECT_EQ("NBBgr", cmbVeld->currentText().toStdString());
        const auto* lblUitleg = Vind<QLabel>(veld, "lblUitleg");
        EXPECT_FALSE(lblUitleg->isVisible());
        KiesUit(cmbVeld, cmbVeld->findText(u"NBBnr"_s));
        EXPECT_EQ("NBB-nummers veranderen alleen bij spelers van 'Gr05-'.",
                  lblUitleg->text().toStdString());
        EXPECT_TRUE(lblUitleg->isVisible());
        Schrijf(veld, "txtWaarde", u"12x3"_s);
        EXPECT_EQ("123", Vind<QLineEdit>(veld, "txtWaarde")->text().toStdString());
        EXPECT_EQ("Van de 2 gekozen spelers veranderen er 1:",
                  Vind<QLabel>(veld, "lblAantal")->text().toStdString());
        KiesUit(cmbVeld, cmbVeld->findText(u"Telef"_s));
        EXPECT_FALSE(lblUitleg->isVisible());
        EXPECT_EQ("", Vind<QLineEdit>(veld, "txtWaarde")->text().toStdString());
        QTest::keyClick(&veld, Qt::Key_Escape);
    });
}

TEST_F(GekozenTest, LeegmakenMoetMenZeggen)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    Klik(4, Qt::ShiftModifier);
    Doe("actVeldGekozen", [](QDialog& veld) {
        auto* cmbVeld = Vind<QComboBox>(veld, "cmbVeld");
        KiesUit(cmbVeld, cmbVeld->findText(u"Telef"_s));
        Schrijf(veld, "txtWaarde", u"1"_s);
        Schrijf(veld, "txtWaarde", {});
        EXPECT_FALSE(Vind<QPushButton>(veld, "cmdOK")->isEnabled());
        Vind<QCheckBox>(veld, "chkLeeg")->click();
        EXPECT_FALSE(Vind<QLineEdit>(veld, "txtWaarde")->isEnabled());
        EXPECT_EQ("Johan Kuipersma: 06-00000111 -> (leeg)", Lijstregels(veld, "lstVeld").front());
        Druk(veld, "cmdOK");
    });
    EXPECT_EQ("Telef van 2 spelers leeggemaakt", Melding());
    EXPECT_TRUE(Regel(suite.Spelers(), "100003").find(",Kuipersma,,johan") != std::string::npos);
    VerwachtOngedaanIn(oud);
}

TEST_F(GekozenTest, KopierenIsVanDeGekozenRegelsOokZonderOfMetEenDubbeleSleutel)
{
    HerstartMet("HKEY=100171\r\n"
                "1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
                "2,100001,Gr01-,Bo,,Cos,,,,,,,M,,,,,\r\n"
                "3,,Gr01-,Cy,,Dos,,,,,,,M,,,,,\r\n");
    KiesRegel(2);
    Klik(3, Qt::ShiftModifier);
    Doe("actKopieerGekozen", [](QDialog& veld) {
        KiesUit(Vind<QComboBox>(veld, "cmbGroep"), 3);
        Druk(veld, "cmdOK");
    });
    EXPECT_EQ("4,100172,Gr04-,Bo,,Cos,,,,,,,M,,,,,", Regel(suite.Spelers(), "100172"));
    EXPECT_EQ("5,100173,Gr04-,Cy,,Dos,,,,,,,M,,,,,", Regel(suite.Spelers(), "100173"));
}

TEST_F(GekozenTest, VerwijderenVraagtEenKeerMetDeNamenEnMaaktEerstEenReservekopie)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    Klik(5, Qt::ControlModifier);
    const auto vraag = [this](const QString& antwoord) {
        wachter.Verwacht(
            {.tekst = u"\t\tLET OP!"_s,
             .antwoord = antwoord,
             .titel = u"Verwijderen"_s,
             .alleenBegin = true,
             .toelichting = u"2 spelers:\nJohan Kuipersma\nGerrit Jan ten Broekhoven"_s});
    };
    vraag(u"Annuleren"_s);
    Toets(Qt::Key_Delete);
    wachter.Klaar();
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ(0, Reserves());
    vraag(u"OK"_s);
    Doe("actVerwijderGekozen");
    EXPECT_EQ("2 spelers verwijderd", Melding());
    EXPECT_EQ("Aantal regels: 48", Aantal());
    EXPECT_EQ(std::string::npos, suite.Spelers().find(",100003,"));
    EXPECT_EQ(std::string::npos, suite.Spelers().find(",100005,"));
    EXPECT_EQ(1, Reserves());
    VerwachtOngedaanIn(oud);
}

TEST_F(GekozenTest, VerwijderenUitDeLijstOverGroepenHeen)
{
    const std::string oud = suite.Spelers();
    Zoek(u"theo oudewortel"_s);
    Lijst()->setFocus();
    QTest::keyClick(Lijst(), Qt::Key_A, Qt::ControlModifier);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    Doe("actVerwijderGekozen");
    EXPECT_EQ(std::string::npos, suite.Spelers().find(",Theo,,Oudewortel,"));
    EXPECT_EQ("niets gevonden", Label("lblZoek")->text().toStdString());
    VerwachtOngedaanIn(oud);
    EXPECT_EQ("2 gevonden", Label("lblZoek")->text().toStdString());
}

TEST_F(GekozenTest, TweeGekozenSpelersWordenSamenEenPaar)
{
    suite.Zet("Spelers/Parenmap/Gr01-A-LIJN.txt", "");
    const Spelertabel& tabel = administratie.spelers.tabel;
    const auto rijOp = [&](int regel) {
        return dynamic_cast<Roostervlak&>(*Vlak()).Rijen()[static_cast<std::size_t>(regel) - 1];
    };
    int tweede = 2; // of the same subgroup as the first
    while (tabel.Cel(rijOp(tweede), Kolom::NBBgr) != tabel.Cel(rijOp(1), Kolom::NBBgr))
        ++tweede;
    Klik(1, {});
    Klik(tweede, Qt::ControlModifier);
    Doe("actPaarGekozen", [&](QDialog& paren) {
        const auto regel = [&](const char* lijst) {
            return Lijstregels(
                paren, lijst)[static_cast<std::size_t>(Vind<Regellijst>(paren, lijst)->Gekozen())];
        };
        EXPECT_EQ("frmParenOnderhoud", paren.objectName().toStdString());
        EXPECT_TRUE(regel("L1").starts_with(tabel.Cel(rijOp(1), Kolom::Key)));
        EXPECT_TRUE(regel("L2").starts_with(tabel.Cel(rijOp(tweede), Kolom::Key)));
        EXPECT_TRUE(Vind<QPushButton>(paren, "cmdOKE")->hasFocus());
        Druk(paren, "cmdOKE");
        EXPECT_EQ(1, Vind<Regellijst>(paren, "L3")->Aantal());
        EXPECT_TRUE(Vind<Regellijst>(paren, "L1")->hasFocus());
        Druk(paren, "cmdAnnu");
    });
    int anders = 1; // of another subgroup
    while (tabel.Cel(rijOp(anders), Kolom::NBBgr) == tabel.Cel(rijOp(1), Kolom::NBBgr))
        ++anders;
    for (const int ander : {0, anders}) { // one player, two who do not belong together
        Klik(1, {});
        if (ander > 0)
            Klik(ander, Qt::ControlModifier);
        wachter.Verwacht({.tekst = u"Een paar bestaat uit twee spelers van dezelfde groep en "
                                   "subgroep. Er is niets veranderd. Kies er twee met Ctrl en de "
                                   "muis, of met Shift en de pijltjes."_s});
        Doe("actPaarGekozen");
    }
}

TEST_F(GekozenTest, PrintenIsVanDeGekozenSpelersAlleen)
{
    Zoek(u"oudewortel"_s);
    Lijst()->setFocus();
    Lijst()->selectAll();
    Doe("actPrintGekozen", [](QDialog& keuze) {
        EXPECT_EQ("frmPrintIni", keuze.objectName().toStdString());
        EXPECT_EQ("4 gekozen spelers", Vind<QLabel>(keuze, "Label3")->text().toStdString());
        EXPECT_EQ((Regels_t{"A-LIJN", "MAANDAG"}), Lijstregels(keuze, "lstNBBgr"));
        Druk(keuze, "cmdAnnuleren");
    });
}

TEST_F(GekozenTest, EtikettenVanDeGekozenEnVanDeGekozenSubgroepen)
{
    const auto aantal = [&](const char* tekst) {
        wachter.Bedien([tekst](QDialog& etiketten) {
            EXPECT_EQ("frmEtiketten", etiketten.objectName().toStdString());
            const std::string staat = Vind<QLabel>(etiketten, "lblAantal")->text().toStdString();
            EXPECT_EQ(0U, staat.find(tekst)) << staat;
            Druk(etiketten, "cmdAnnuleren");
        });
    };
    Zoek(u"van der horst"_s); // two at one address
    Lijst()->setFocus();
    Lijst()->Kies({0, 1});
    aantal("1 etiket op 1 vel.");
    Doe("actEtikettenGekozen");

    Lijst()->selectAll();
    wachter.Bedien([](QDialog& keuze) {
        Vind<Regellijst>(keuze, "lstNBBgr")->selectAll();
        Druk(keuze, "cmdEtiketten");
        EXPECT_TRUE(keuze.isVisible());
        keuze.reject();
    });
    aantal("1 etiket op 1 vel.");
    Doe("actPrintGekozen");

    Zoek({});
    KiesGroep(1);
    wachter.Bedien([](QDialog& keuze) {
        Vind<Regellijst>(keuze, "lstNBBgr")->Kies({0});
        Druk(keuze, "cmdEtiketten");
        keuze.reject();
    });
    aantal("16 etiketten op 2 vellen."); // of the A-LIJN, 19 players
    Opdracht("cmdPrint");
}

TEST_F(GekozenTest, PrintenHoudtDeVolgordeDieTeZienIs)
{
    Actie("actVolgorde_4")->trigger(); // by first name
    const auto* rooster = static_cast<const Roostervlak*>(Vlak());
    QStringList moet;
    for (int regel = 1; regel <= 4; ++regel)
        moet << rooster->Celtekst(regel, 3);
    KiesRegel(1);
    Klik(4, Qt::ShiftModifier);
    for (const char* actie : {"actPrintGekozen", "actPrint"}) {
        wachter.Bedien([](QDialog& keuze) {
            Druk(keuze, "cmdSelNone"); // with the surname it would be by that
            Vind<Regellijst>(keuze, "lstKeus")->Kies({0});
            Vind<Regellijst>(keuze, "lstNBBgr")->selectAll();
            Druk(keuze, "cmdOK");
            keuze.reject();
        });
        QStringList geprint;
        wachter.Bedien([&](QDialog& blad) {
            const auto bestand = suite.Weg() / "blad.pdf";
            for (const Pdfwoord& woord :
                 BladInBeeld(*Vind<QWidget>(blad, "picP1"), bestand).woorden) {
                if (const QString tekst = QString::fromStdString(woord.tekst); moet.contains(tekst))
                    geprint << tekst;
            }
            blad.reject();
        });
        Doe(actie);
        EXPECT_EQ(moet.join(u' ').toStdString(), geprint.mid(0, 4).join(u' ').toStdString());
    }
}

TEST_F(GekozenTest, ExporterenGaatOverDeGevondenSpelersOfDeGroep)
{
    const auto bestand = QString::fromStdString((suite.Weg() / "uit.csv").string());
    Zoek(u"oudewortel"_s);
    Lijst()->setFocus();
    Lijst()->selectAll();
    Doe("actExporteerGekozen", [&](QDialog& keuze) {
        EXPECT_EQ("frmExport", keuze.objectName().toStdString());
        EXPECT_EQ("4 gekozen spelers",
                  Vind<QComboBox>(keuze, "cmbWie")->currentText().toStdString());
        KiesUit(Vind<QComboBox>(keuze, "cmbSoort"), 1);
        wachter.Bedien([&](QDialog& vraag) {
            Vind<QLineEdit>(vraag, "fileNameEdit")->setText(bestand);
            vraag.accept();
        });
        Druk(keuze, "cmdOK");
    });
    EXPECT_EQ("4 spelers geëxporteerd naar " + bestand.toStdString(), Melding());
    EXPECT_EQ(5U, RegelsVan(suite.Inhoud("uit.csv")).size());
    KiesGroep(5);
    Doe("actExporteer", [](QDialog& keuze) {
        EXPECT_EQ(5, Vind<QComboBox>(keuze, "cmbWie")->currentIndex());
        keuze.reject();
    });
}

TEST_F(GekozenTest, MailenGaatOverDeGevondenSpelersOfDeGroep)
{
    Zoek(u"oudewortel"_s);
    Lijst()->setFocus();
    Lijst()->selectAll();
    const auto spelers = [](const QDialog& mail) {
        EXPECT_EQ("frmMail", mail.objectName().toStdString());
        return Vind<QLabel>(mail, "lblAantal")
                   ->text()
                   .section(u" van "_s, 1)
                   .section(u' ', 0, 0)
                   .toInt() +
               Vind<QLabel>(mail, "lblZonder")->text().section(u": "_s, 1).toInt();
    };
    Doe("actMailGekozen", [&](QDialog& mail) {
        EXPECT_EQ(4, spelers(mail));
        mail.reject();
    });
    KiesGroep(5);
    Doe("actMail", [&](QDialog& mail) {
        EXPECT_EQ(static_cast<const Roostervlak*>(Vlak())->Regels(), spelers(mail));
        mail.reject();
    });
}

TEST_F(GekozenTest, CtrlCInDeLijstGeeftDeKolommenZoalsHetRooster)
{
    Zoek(u"ypeslot"_s);
    Lijst()->setFocus();
    QTest::keyClick(Lijst(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(Lijst(), Qt::Key_C, Qt::ControlModifier);
    const QStringList regels = QGuiApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(2, regels.size());
    EXPECT_EQ("Klaas\t\tYpeslot", regels.front().section(u'\t', 3, 5).toStdString());
    EXPECT_EQ("Femmie", regels.back().section(u'\t', 3, 3).toStdString());
    EXPECT_EQ("2 spelers als tekst gekopieerd", Melding());
}

TEST_F(GekozenTest, KopierenUitDeLijstKanOokBijEenLegeGroep)
{
    KiesGroep(4);
    EXPECT_EQ("Kies eerst een regel", Actie("actKopieer")->statusTip().toStdString());
    Zoek(u"ypeslot"_s);
    Lijst()->setFocus();
    Actie("actKopieer")->trigger();
    EXPECT_EQ("1 speler als tekst gekopieerd", Melding());
}

TEST_F(GekozenTest, WijzigEnGeschiedenisZijnVanWieInDeLijstAanDeBeurtIs)
{
    Zoek(u"ypeslot"_s);
    Lijst()->setFocus();
    QTest::keyClick(Lijst(), Qt::Key_Down);
    Doe("actWijzigGekozen", [](QDialog& ingave) {
        EXPECT_EQ("Femmie", Vind<QLineEdit>(ingave, "txt1_4")->text().toStdString());
        Druk(ingave, "cmdAnnuleren");
    });
    Lijst()->setFocus();
    QTest::keyClick(Lijst(), Qt::Key_Up);
    Doe("actGeschiedenisGekozen", [](QDialog& geschiedenis) {
        EXPECT_EQ("Geschiedenis van Klaas Ypeslot", geschiedenis.windowTitle().toStdString());
        geschiedenis.reject();
    });
}
