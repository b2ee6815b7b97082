// The menus of the main window by mouse and keys: every command is there, does what its button
// does, and says why it is off.
#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTreeWidget>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

class MenuTest : public HoofdvensterTest {
  protected:
    [[nodiscard]] QAction* Actie(const QString& naam) const
    {
        auto* actie = venster->findChild<QAction*>(naam);
        if (actie == nullptr)
            throw std::runtime_error("geen " + naam.toStdString());
        return actie;
    }
    [[nodiscard]] std::string Reden(const QString& naam) const
    {
        EXPECT_EQ(Actie(naam)->statusTip().isEmpty(), Actie(naam)->isEnabled());
        return Actie(naam)->statusTip().toStdString();
    }
    [[nodiscard]] std::string Status() const
    {
        return venster->statusBar()->currentMessage().toStdString();
    }
    void Druk(const char* toetsen) const
    {
        venster->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
        const QKeyCombination toets = QKeySequence(QString::fromLatin1(toetsen))[0];
        QTest::keyClick(QApplication::focusWidget(), toets.key(), toets.keyboardModifiers());
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(MenuTest, ElkeKnopStaatInHetMenuMetZijnToets)
{
    for (const auto& [actie, knop, toetsen] : std::initializer_list<std::array<const char*, 3>>{
             {"actNieuw", "cmdAanm", "Ctrl+N"},
             {"actWijzig", "cmdWijzig", "F2; Return; Enter"},
             {"actVerwijder", "cmdVerwijder", "Del"},
             {"actVerplaats", "cmdVerplaats", "Ctrl+M"},
             {"actKopieerNaar", "cmdKopieer", "Ctrl+K"},
             {"actSpToevoegen", "cmdSpToevoegen", "Ctrl+R"},
             {"actParenOnderhoud", "cmdParenOnderhoud", "Ctrl+U"},
             {"actEinde", "cmdEinde", "Ctrl+Q"},
             {"actGroepsnamen", "cmdMaakGrNamen", "Ctrl+Shift+G"},
             {"actPrint", "cmdPrint", "Ctrl+P"},
             {"actVerwijderVT", "cmdVerwijderVT", "Ctrl+Del"},
             {"actVerwGroep", "cmdVerwGroep", "Ctrl+Shift+Del"},
             {"actImporteer", "cmdHaalNBBnamen", "Ctrl+I"},
             {"actKoppel", "cmdKoppel", "Ctrl+L"},
             {"actSortlijst1", "cmdSortlijst1", "Ctrl+1"},
             {"actSortlijst2", "cmdSortlijst2", "Ctrl+2"},
             {"actSortlijst3", "cmdSortlijst3", "Ctrl+3"},
             {"actToonAlle", "chkToonAlle", "Ctrl+4"},
             {"actDubbeleNamen", "cmdZoekDubbeleNamen", "Ctrl+D"},
             {"actGatenlijst", "cmdToonGatenlijst", "Ctrl+T"},
             {"actKolBr", "chkKolBr", "Ctrl+B"},
             {"actToelichting", "cmdToelichting", "F1"}}) {
        SCOPED_TRACE(actie);
        QAction* deze = Actie(QString::fromLatin1(actie));
        EXPECT_EQ(toetsen, QKeySequence::listToString(deze->shortcuts()).toStdString());
        auto* bij = Vind<QAbstractButton>(*venster, knop);
        bool gedrukt = false;
        const auto los = QObject::connect(bij, &QAbstractButton::pressed, [&, bij] {
            gedrukt = true;
            bij->blockSignals(true); // what it does is kept from happening
        });
        KiesGroep(5);
        KiesRegel(1);
        bij->show();
        emit Vind<QMenu>(*venster, "mnuSpeler")->aboutToShow();
        ASSERT_TRUE(deze->isEnabled());
        deze->trigger();
        bij->blockSignals(false);
        QObject::disconnect(los);
        EXPECT_TRUE(gedrukt);
    }
}

TEST_F(MenuTest, AlleActiesHetenActEnGeenTweeHebbenDezelfdeToets)
{
    std::set<QString> namen;
    std::map<QString, QString> toetsen;
    for (const QMenu* menu : venster->findChildren<QMenu*>()) {
        for (const QAction* actie : menu->actions()) {
            if (actie->isSeparator() || actie->menu() != nullptr)
                continue;
            EXPECT_TRUE(actie->objectName().startsWith(u"act"_s)) << actie->text().toStdString();
            EXPECT_TRUE(namen.insert(actie->objectName()).second)
                << actie->objectName().toStdString();
            EXPECT_FALSE(actie->text().isEmpty()) << actie->objectName().toStdString();
            for (const QKeySequence& toets : actie->shortcuts())
                EXPECT_TRUE(toetsen.emplace(toets.toString(), actie->objectName()).second)
                    << toets.toString().toStdString() << " van "
                    << actie->objectName().toStdString() << " en "
                    << toetsen[toets.toString()].toStdString();
        }
    }
    EXPECT_GT(namen.size(), 70U);
    EXPECT_GT(toetsen.size(), 50U);
}

TEST_F(MenuTest, ElkeActieHeeftEenToetsEnDieVanEenKolomEenLetter)
{
    std::map<QString, QStringList> letters; // by the menu
    for (const QMenu* menu : venster->findChildren<QMenu*>()) {
        for (const QAction* actie : menu->actions()) {
            const QString naam = actie->objectName();
            const QKeySequence letter = QKeySequence::mnemonic(actie->text());
            if (naam.startsWith(u"actKolom_"_s) || naam.startsWith(u"actVolgorde_"_s)) {
                EXPECT_FALSE(letter.isEmpty()) << actie->text().toStdString();
                EXPECT_FALSE(letters[menu->objectName()].contains(letter.toString()))
                    << actie->text().toStdString();
                letters[menu->objectName()] << letter.toString();
            } else if (actie->menu() == nullptr && !actie->isSeparator()) {
                EXPECT_FALSE(actie->shortcut().isEmpty()) << naam.toStdString();
            }
        }
    }
    EXPECT_EQ(18, letters[u"mnuKolommen"_s].size());
    EXPECT_EQ(19, letters[u"mnuVolgorde"_s].size());
    KiesGroep(5); // by the same letters where the last columns have other names
    EXPECT_EQ("Kolom NBBg&r", Actie(u"actKolom_17"_s)->text().toStdString());
    EXPECT_EQ("Op N&BBnr", Actie(u"actVolgorde_18"_s)->text().toStdString());
}

TEST_F(MenuTest, DeKnopDieNietsDoetZegtDatInHetMenu)
{
    EXPECT_EQ("Deze knop doet niets in Plexoran", Reden(u"actMaakScripts"_s));
    EXPECT_EQ("MaakScripts ...", Actie(u"actMaakScripts"_s)->text().remove(u'&').toStdString());
    Druk("Ctrl+J");
    EXPECT_EQ("Deze knop doet niets in Plexoran", Status());
}

TEST_F(MenuTest, EenOpdrachtDieNietKanIsGrijsEnZegtWaarom)
{
    EXPECT_EQ("Kies eerst een regel", Reden(u"actWijzig"_s));
    EXPECT_EQ("Kies eerst een regel", Reden(u"actVerwijder"_s));
    EXPECT_EQ("Kies eerst een regel", Reden(u"actKopieer"_s));
    EXPECT_EQ("Alleen in de importgroep Gr05-", Reden(u"actSortlijst2"_s));
    EXPECT_EQ("Alleen in de importgroep Gr05-", Reden(u"actVolgorde_18"_s));
    EXPECT_EQ("", Reden(u"actParenOnderhoud"_s));
    EXPECT_EQ("", Reden(u"actVerwijderVT"_s));
    Knop("cmdParenOnderhoud")->hide(); // as without NEWPAGR
    KiesRegel(1);
    EXPECT_EQ("", Reden(u"actWijzig"_s));
    EXPECT_EQ("", Reden(u"actKopieer"_s));
    EXPECT_EQ("Uitgezet in 'Mappen.ini'", Reden(u"actParenOnderhoud"_s));
    KiesGroep(4); // empty
    EXPECT_EQ("Deze groep heeft geen spelers", Reden(u"actWijzig"_s));
    EXPECT_EQ("Deze groep heeft geen spelers", Reden(u"actVerwijderVT"_s));
    KiesGroep(5);
    EXPECT_EQ("", Reden(u"actSortlijst2"_s));
}

TEST_F(MenuTest, RegelsVanTotKanAlleenAlsTeZienIsWelke)
{
    EXPECT_EQ("", Reden(u"actVerwijderVT"_s));
    Druk("F9");
    EXPECT_EQ("De regels kiest u bij de knoppen: F9, of Escape bij het zoeken",
              Reden(u"actVerwijderVT"_s));
    Druk("F9");
    EXPECT_EQ("", Reden(u"actVerwijderVT"_s));
    Schrijf(*venster, "txtZoek", u"jan"_s);
    EXPECT_NE("", Reden(u"actVerwijderVT"_s));
}

TEST_F(MenuTest, DeOpdrachtenVanDeImportgroepGaanErZelfHeen)
{
    for (const auto& [actie, dialoog] : {std::pair(u"actImporteer"_s, "frmImportNBB"),
                                         std::pair(u"actKoppel"_s, "frmKoppelNBBnr")}) {
        KiesGroep(1);
        EXPECT_EQ("", Reden(actie));
        wachter.Bedien([naam = dialoog](QDialog& open) {
            EXPECT_EQ(naam, open.objectName().toStdString());
            open.reject();
        });
        Actie(actie)->trigger();
        wachter.Klaar();
        EXPECT_EQ(5, GetoondeGroep());
    }
    KiesGroep(1);
    administratie.mappen.ODKEYS = "ODNBB4SP";
    KiesGroep(2);
    EXPECT_EQ("Uitgezet in 'Mappen.ini'", Reden(u"actImporteer"_s));
    administratie.mappen.ODKEYS.clear();
    administratie.mappen.DFIMPG = "Gr5";
    KiesGroep(1);
    EXPECT_EQ("Uitgezet in 'Mappen.ini'", Reden(u"actKoppel"_s));
}

TEST_F(MenuTest, WieOpEenGrijzeRegelStaatLeestOnderaanWaarom)
{
    Druk("F10");
    auto* speler = Vind<QMenu>(*venster, "mnuSpeler");
    ASSERT_TRUE(speler->isVisible());
    QTest::keyClick(speler, Qt::Key_Down);
    while (speler->activeAction() != Actie(u"actWijzig"_s) && speler->isVisible())
        QTest::keyClick(speler, Qt::Key_Down);
    EXPECT_EQ("Kies eerst een regel", Status());
    QTest::keyClick(speler, Qt::Key_Return); // does nothing
    QTest::keyClick(speler, Qt::Key_Escape);
    QTest::keyClick(venster->menuBar(), Qt::Key_Escape);
    EXPECT_FALSE(speler->isVisible());
    EXPECT_EQ("", Status());
}

TEST_F(MenuTest, OokDeMuisKrijgtTeLezenWaarom)
{
    const QAction* titel = Vind<QMenu>(*venster, "mnuLijsten")->menuAction();
    QTest::mouseClick(venster->menuBar(), Qt::LeftButton, {},
                      venster->menuBar()->actionGeometry(const_cast<QAction*>(titel)).center());
    auto* menu = Vind<QMenu>(*venster, "mnuLijsten");
    ASSERT_TRUE(menu->isVisible());
    QTest::mouseMove(menu, menu->actionGeometry(Actie(u"actSortlijst1"_s)).center());
    QTest::mouseMove(menu, menu->actionGeometry(Actie(u"actSortlijst2"_s)).center());
    QApplication::processEvents();
    EXPECT_EQ("Alleen in de importgroep Gr05-", Status());
    menu->close();
}

TEST_F(MenuTest, DeToetsVanEenGrijzeOpdrachtZegtWaaromEnDoetNiets)
{
    Druk("Ctrl+2");
    EXPECT_EQ("Alleen in de importgroep Gr05-", Status());
    KiesGroep(4);
    Druk("Ctrl+Del");
    EXPECT_EQ("Deze groep heeft geen spelers", Status());
    wachter.Klaar();
}

TEST_F(MenuTest, ToetsenDoenWatDeKnopDoet)
{
    for (const auto& [toets, dialoog] : {std::pair("Ctrl+M", "diaVerplaats"),
                                         {"Ctrl+K", "diaKopieer"},
                                         {"Ctrl+Shift+Del", "frmVerwSubgroep"},
                                         {"Ctrl+1", "diaSortlijst"},
                                         {"Ctrl+Shift+G", "diaGrNamen"},
                                         {"Ctrl+P", "frmPrintIni"},
                                         {"F1", "frmToelichting"},
                                         {"Ctrl+Shift+C", "frmControle"},
                                         {"Ctrl+Shift+O", "frmOverzicht"},
                                         {"Ctrl+Shift+D", "frmDubbelen"},
                                         {"Ctrl+?", "frmToetsen"},
                                         {"Ctrl+Shift+?", "frmToetsen"},
                                         {"Ctrl+Shift+/", "frmToetsen"}}) {
        SCOPED_TRACE(toets);
        wachter.Bedien([dialoog = dialoog](QDialog& open) {
            EXPECT_EQ(dialoog, open.objectName().toStdString());
            open.reject();
        });
        Druk(toets);
        wachter.Klaar();
    }
    Druk("Ctrl+G");
    EXPECT_TRUE(Keus("cmbGr")->hasFocus());
    Druk("F6");
    EXPECT_TRUE(Vlak()->hasFocus());
    EXPECT_FALSE(Vink("chkToonAlle")->isChecked());
    Druk("Ctrl+4");
    EXPECT_TRUE(Vink("chkToonAlle")->isChecked());
}

TEST_F(MenuTest, CtrlCKopieertDeSpelerZoalsEenRekenbladHemNeemt)
{
    KiesRegel(1);
    Druk("Ctrl+C");
    EXPECT_EQ("1\t100001\tGr01-\tWillem\tvan der\tHorst",
              QGuiApplication::clipboard()->text().section(u'\t', 0, 5).toStdString());
    EXPECT_EQ(16, QGuiApplication::clipboard()->text().count(u'\t')) << "zonder naam geen kolom";
    Actie(u"actKolom_2"_s)->trigger();
    Actie(u"actKopieer"_s)->trigger();
    EXPECT_EQ("1\tGr01-\tWillem",
              QGuiApplication::clipboard()->text().section(u'\t', 0, 2).toStdString());
}

TEST_F(MenuTest, HetRoosterHeeftEenMenuMetWatEenRegelAangaat)
{
    QStringList namen;
    for (const QAction* actie : Vlak()->actions())
        namen << actie->objectName();
    for (const char* naam : {"actWijzig", "actVerwijder", "actKopieer"})
        EXPECT_TRUE(namen.contains(QLatin1String(naam))) << naam;
}

TEST_F(MenuTest, DeToetsenlijstStaatVolEnIsVanDeActiesZelf)
{
    Actie(u"actPassend"_s)->setShortcut(QKeySequence(u"Ctrl+Alt+J"_s));
    wachter.Bedien([](QDialog& open) {
        const auto* lijst = Vind<QTreeWidget>(open, "lstToetsen");
        std::map<std::string, std::string> regels;
        std::vector<std::string> plaatsen;
        for (int i = 0; i < lijst->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* kop = lijst->topLevelItem(i);
            plaatsen.push_back(kop->text(0).toStdString());
            EXPECT_TRUE(kop->isExpanded());
            for (int j = 0; j < kop->childCount(); ++j)
                regels[kop->text(0).toStdString() + ": " + kop->child(j)->text(0).toStdString()] =
                    kop->child(j)->text(1).toStdString();
        }
        EXPECT_EQ((std::vector<std::string>{
                      "Menu Speler", "Menu Bewerken", "Menu Groep", "Menu Lijsten", "Menu Beeld",
                      "Menu Extra", "Menu Help", "Menu Gekozen spelers",
                      "Knoppen van het hoofdvenster", "In de spelers", "Bij het zoeken",
                      "In elke lijst", "In elk venster", "Bij de paren", "In het afdrukvoorbeeld",
                      "Bij een import vooraf", "In het overzicht", "In de handleiding"}),
                  plaatsen);
        EXPECT_EQ("Kolommen passend", regels["Menu Beeld: Ctrl+Alt+J"]);
        EXPECT_EQ("Nieuwe Speler toevoegen", regels["Menu Speler: Ctrl+N"]);
        EXPECT_EQ("Ongedaan maken", regels["Menu Bewerken: Ctrl+Z"]);
        EXPECT_EQ("Knoppen onder de spelers", regels["Menu Beeld: F9"]);
        EXPECT_EQ("Spelergroepsnaam aanvullen", regels["Knoppen van het hoofdvenster: Alt+S"]);
        EXPECT_EQ("De gekozen speler wijzigen", regels["In de spelers: Enter of F2"]);
        EXPECT_EQ("De gevonden speler wijzigen", regels["Bij het zoeken: Ctrl+Enter of F2"]);
        EXPECT_EQ("Groter, kleiner, weer op 100 %",
                  regels["In het afdrukvoorbeeld: Ctrl++, Ctrl+-, Ctrl+0"]);
        EXPECT_GT(regels.size(), 50U);
        QTest::keyClick(&open, Qt::Key_Escape);
    });
    Druk("Ctrl+?");
    wachter.Klaar();
}

/// What the list of keys says of the players and of who was found; the other keys are tried with
/// the windows in which they work.
TEST_F(MenuTest, DeToetsenDoenWatDeLijstZegt)
{
    const auto opent = [this](const char* toets, const char* naam) {
        wachter.Bedien([naam](QDialog& open) {
            EXPECT_EQ(naam, open.objectName().toStdString());
            QTest::keyClick(&open, Qt::Key_Escape);
        });
        Druk(toets);
        wachter.Klaar();
    };
    const auto gekozen = [this] { return Label("lblGekozen")->text().toStdString(); };
    Druk("F6");
    for (const auto& [toets, regel] : std::vector<std::pair<const char*, int>>{
             {"End", 50}, {"Home", 1}, {"Down", 2}, {"Up", 1}, {"Ctrl+Down", 2}}) {
        Druk(toets);
        EXPECT_EQ(regel, GekozenRegel()) << toets;
    }
    Druk("Ctrl+Space");
    EXPECT_EQ("2 gekozen", gekozen());
    Druk("Shift+Down");
    EXPECT_EQ("2 gekozen", gekozen());
    Druk("Ctrl+A");
    EXPECT_EQ("50 gekozen", gekozen());
    Druk("Home");
    for (const char* toets : {"Return", "Enter", "F2"})
        opent(toets, "diaIngave");
    Druk("/");
    EXPECT_EQ("txtZoek", QApplication::focusWidget()->objectName().toStdString());
    Typ(QApplication::focusWidget(), u"jan"_s);
    QApplication::processEvents();
    Druk("Down");
    EXPECT_EQ("lstZoek", QApplication::focusWidget()->objectName().toStdString());
    for (const char* toets : {"F2", "Ctrl+Return"}) {
        opent(toets, "diaIngave");
        Vind<QWidget>(*venster, "lstZoek")->setFocus();
    }
    Druk("Home");
    Druk("Up");
    EXPECT_EQ("txtZoek", QApplication::focusWidget()->objectName().toStdString());
    Druk("Escape");
    EXPECT_TRUE(Vlak()->hasFocus());
    EXPECT_EQ("", Vind<QLineEdit>(*venster, "txtZoek")->text().toStdString());
    Druk("F10");
    EXPECT_NE(nullptr, venster->menuBar()->activeAction());
}

TEST_F(MenuTest, OnderaanStaatDeSpelerEnWatCtrlZZouTerugdraaien)
{
    EXPECT_EQ("Geen speler gekozen", Label("lblSpeler")->text().toStdString());
    EXPECT_EQ("0 gekozen", Label("lblGekozen")->text().toStdString());
    EXPECT_EQ("Niets ongedaan te maken", Label("lblOngedaan")->text().toStdString());
    EXPECT_EQ("Opgeslagen", Label("lblOpgeslagen")->text().toStdString());
    VoegToe(u"Nieuweling"_s);
    EXPECT_EQ("Ctrl+Z: Nieuweling toegevoegd", Label("lblOngedaan")->text().toStdString());
    const auto naastElkaar = [this] {
        QApplication::processEvents();
        int rechts = 0;
        for (const char* deel : {"lblSpeler", "lblOngedaan", "lblMelding", "lblGekozen",
                                 "lblOpgeslagen", "lblAdministratie"}) {
            EXPECT_LE(rechts, Label(deel)->x()) << deel;
            rechts = Label(deel)->geometry().right() + 1;
        }
        EXPECT_LE(rechts, venster->width());
    };
    naastElkaar();
    KiesRegel(1);
    naastElkaar();
    EXPECT_EQ("1 gekozen", Label("lblGekozen")->text().toStdString());
    EXPECT_TRUE(Label("lblSpeler")->text().startsWith(u"Willem van der Horst, "_s))
        << Label("lblSpeler")->text().toStdString();
    EXPECT_EQ(Label("lblSpeler")->text(), Label("lblSpeler")->toolTip());
    EXPECT_GE(Label("lblMelding")->width(), Label("lblMelding")->sizeHint().width());
    Label("lblMelding")->hide();          // in time
    for (const int breed : {1024, 910}) { // the second on a small screen at 150 %
        venster->resize(breed, 480);
        QApplication::processEvents();
        EXPECT_EQ(breed, venster->width());
        EXPECT_GE(Label("lblSpeler")->width(), Label("lblSpeler")->sizeHint().width());
    }
    venster->setWindowModified(true);
    EXPECT_EQ("Niet opgeslagen", Label("lblOpgeslagen")->text().toStdString());
    venster->setWindowModified(false);
    DrukMetCtrl(Qt::Key_Z);
    EXPECT_EQ("Niets ongedaan te maken", Label("lblOngedaan")->text().toStdString());
}

namespace {

/// What screen readers were told aloud.
QStringList gesproken;

} // namespace

#ifndef Q_OS_WIN
/// In the place of Qt's own, which tells nobody off screen.
void QAccessible::updateAccessibility(QAccessibleEvent* gebeurtenis)
{
    if (gebeurtenis->type() == QAccessible::Alert)
        gesproken << gebeurtenis->accessibleInterface()->text(QAccessible::Name);
}
#endif

TEST_F(MenuTest, WatGedaanIsStaatOnderaanEnWordtGesproken)
{
#ifdef Q_OS_WIN
    GTEST_SKIP();
#endif
    gesproken.clear();
    const auto gemeld = [this](const char* tekst) {
        EXPECT_EQ(tekst, Label("lblMelding")->text().toStdString());
        EXPECT_TRUE(Label("lblMelding")->isVisible());
        EXPECT_TRUE(gesproken.contains(QString::fromUtf8(tekst))) << tekst;
    };
    EXPECT_FALSE(Label("lblMelding")->isVisible());
    VoegToe(u"Nieuweling"_s);
    gemeld("Nieuweling toegevoegd");
    KiesRegel(1);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_6", u"Horstman"_s);
        ::plexoran::Druk(ingave, "cmdOK");
    });
    Opdracht("cmdWijzig");
    gemeld("Willem van der Horstman gewijzigd");
    DrukMetCtrl(Qt::Key_Z);
    gemeld("Ongedaan gemaakt: Willem van der Horstman gewijzigd");
    DrukMetCtrl(Qt::Key_Y);
    gemeld("Opnieuw gedaan: Willem van der Horstman gewijzigd");
    KiesRegel(2);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Informatie(u"De regel is verwijderd."_s);
    Opdracht("cmdVerwijder");
    gemeld("Ineke van der Horst-Blaauw verwijderd");
    KiesRegel(1);
    Druk("Ctrl+C");
    gemeld("1 speler als tekst gekopieerd");
    Opdracht("cmdMaakGrNamen", [](QDialog& namen) { namen.accept(); });
    gemeld("Groepsnamen gewijzigd");
    Schrijf(*venster, "txtZoek", u"oudewortel"_s);
    EXPECT_TRUE(gesproken.contains(u"4 gevonden"_s));
    Schrijf(*venster, "txtZoek", u"oudewortel qq"_s);
    EXPECT_EQ("niets gevonden", gesproken.last().toStdString());
    Druk("Ctrl+2");
    EXPECT_EQ("Alleen in de importgroep Gr05-", gesproken.last().toStdString());
}

TEST_F(MenuTest, OnderaanStaatWelkeAdministratieOpenIs)
{
    const QLabel* wie = Label("lblAdministratie");
    EXPECT_EQ(suite.Weg().filename().string(), wie->text().toStdString());
    EXPECT_EQ((suite.Weg() / "Mappen.ini").string(), wie->toolTip().toStdString());
    EXPECT_EQ("Administratie: " + suite.Weg().filename().string(),
              wie->accessibleName().toStdString());
    EXPECT_TRUE(wie->isVisible());
}
