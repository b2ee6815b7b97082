// Every command of the program in the menus, with its keys, and why it is off.
#include <QActionGroup>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>

#include "help/frmHandleiding.h"
#include "mainwindow/frmLedenAdmin.h"
#include "mainwindow/frmToetsen.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

/// By which the columns are picked in their menus, whatever the group calls them.
constexpr char16_t Kolomletters[] = u"NKGVuAfEdcPLM12SrB";

QAction* MaakActie(QMenu* menu, const QString& naam, const QString& tekst)
{
    auto* actie = menu->addAction(tekst);
    actie->setObjectName(naam);
    return actie;
}

} // namespace

/// A menu (`mnu`), a line in one (nameless) or an entry, which presses a button, does something
/// itself or was made elsewhere. Without a text it has that of its button.
struct frmLedenAdmin::Opdracht {
    const char* naam = "";
    const char16_t* tekst = u"";
    const char* toetsen = "";
    const char* knop = "";
    Eisen eisen{};
    void (frmLedenAdmin::*doe)() = nullptr;
};

/// The letters of the buttons leave no others for the titles than x.
std::span<const frmLedenAdmin::Opdracht> frmLedenAdmin::Opdrachten()
{
    using Venster = frmLedenAdmin;
    static constexpr Eisen Geen{};
    static constexpr Eisen Wijzigt{.wijzigt = true};
    static constexpr Eisen Regel{.wijzigt = true, .regels = true, .regel = true};
    static constexpr Eisen Bond{.wijzigt = true, .importgroep = true, .gaatErheen = true};
    static constexpr Eisen Keus{.wijzigt = true, .regel = true};
    static constexpr Eisen LeesKeus{.regel = true};
    static constexpr std::array alle{
        Opdracht{"mnuSpeler", u"Speler"},
        Opdracht{"actNieuw", u"", "Ctrl+N", "cmdAanm", Wijzigt},
        Opdracht{"actWijzig", u"", "F2; Return; Enter", "cmdWijzig", Regel},
        Opdracht{"actVerwijder", u"", "Del", "cmdVerwijder", Regel},
        Opdracht{"actVerplaats", u"", "Ctrl+M", "cmdVerplaats", Wijzigt},
        Opdracht{"actKopieerNaar", u"", "Ctrl+K", "cmdKopieer", Wijzigt},
        Opdracht{},
        Opdracht{"actSpToevoegen", u"", "Ctrl+R", "cmdSpToevoegen", Wijzigt},
        Opdracht{"actParenOnderhoud", u"", "Ctrl+U", "cmdParenOnderhoud", Wijzigt},
        Opdracht{},
        Opdracht{"actEinde", u"", "Ctrl+Q", "cmdEinde"},
        Opdracht{"mnuBewerken", u"Bewerken"},
        Opdracht{"actOngedaan", u"", "", "", Wijzigt},
        Opdracht{"actOpnieuw", u"", "", "", Wijzigt},
        Opdracht{},
        Opdracht{"actKopieer", u"&Kopiëren", "Ctrl+C", "", LeesKeus, &Venster::KopieerGekozen},
        Opdracht{"actZoek", u"&Zoek een speler", "Ctrl+F; /", "", Geen, &Venster::NaarZoeken},
        Opdracht{"mnuGroep", u"Groep"},
        Opdracht{"actKiesGroep", u"&Kies spelergroep", "Ctrl+G", "", Geen, &Venster::NaarGroep},
        Opdracht{"actGroepsnamen", u"", "Ctrl+Shift+G", "cmdMaakGrNamen", Wijzigt},
        Opdracht{"actPrint", u"&Print deze groep...", "Ctrl+P", "cmdPrint"},
        Opdracht{"actExporteer", u"E&xporteren...", "F7", "", Geen, &Venster::Exporteer},
        Opdracht{
            "actMail", u"E-&mail aan deze spelers...", "F8", "", {.regels = true}, &Venster::Mail},
        Opdracht{},
        Opdracht{"actVerwijderVT",
                 u"Ver&wijder regels van/tot...",
                 "Ctrl+Del",
                 "cmdVerwijderVT",
                 {.wijzigt = true, .regels = true, .keuzelijsten = true}},
        Opdracht{"actVerwGroep", u"", "Ctrl+Shift+Del", "cmdVerwGroep", Wijzigt},
        Opdracht{},
        Opdracht{"actImporteer", u"", "Ctrl+I", "cmdHaalNBBnamen", Bond},
        Opdracht{"actKoppel", u"", "Ctrl+L", "cmdKoppel", Bond},
        Opdracht{"mnuLijsten", u"Lijsten"},
        Opdracht{"actSortlijst1", u"Sorteerlijst op &Key", "Ctrl+1", "cmdSortlijst1"},
        Opdracht{"actSortlijst2",
                 u"Sorteerlijst op &NBB-nr",
                 "Ctrl+2",
                 "cmdSortlijst2",
                 {.importgroep = true}},
        Opdracht{"actSortlijst3", u"Sorteerlijst op NBB- of &subgroep", "Ctrl+3", "cmdSortlijst3"},
        Opdracht{"actToonAlle", u"Sorteerlijst van &alle groepen", "Ctrl+4", "chkToonAlle"},
        Opdracht{},
        Opdracht{"actDubbeleNamen", u"", "Ctrl+D", "cmdZoekDubbeleNamen"},
        Opdracht{"actGatenlijst", u"", "Ctrl+T", "cmdToonGatenlijst"},
        Opdracht{"mnuBeeld", u"Beeld"},
        Opdracht{"actRooster", u"&Naar de spelers", "F6", "", Geen, &Venster::NaarRooster},
        Opdracht{"actKolBr", u"", "Ctrl+B", "chkKolBr"},
        Opdracht{"actPassend", u"Kolommen &passend", "Ctrl+E", "", Geen, &Venster::VerdeelKolommen},
        Opdracht{"actHerstel", u"Kolommen &herstellen", "Ctrl+Shift+E", "", Geen,
                 &Venster::HerstelKolommen},
        Opdracht{},
        Opdracht{"mnuExtra", u"E&xtra"},
        Opdracht{"actControle", u"&Controle van de administratie...", "Ctrl+Shift+C", "", Geen,
                 &Venster::Controleer},
        Opdracht{"actDubbelen", u"&Dubbele spelers...", "Ctrl+Shift+D", "", Wijzigt,
                 &Venster::ZoekDubbelen},
        Opdracht{"actLijstImport", u"Spelers uit een &lijst...", "Ctrl+Shift+I", "", Wijzigt,
                 &Venster::ImporteerLijst},
        Opdracht{"actTerugzetten", u"&Reservekopie terugzetten...", "Ctrl+Shift+R", "", Wijzigt,
                 &Venster::ZetTerug},
        Opdracht{"actOverzicht", u"&Overzicht...", "Ctrl+Shift+O", "", Geen,
                 &Venster::ToonOverzicht},
        Opdracht{"actAdministratie", u"&Andere administratie...", "Ctrl+Shift+A", "", Geen,
                 &Venster::KiesAdministratie},
        Opdracht{},
        Opdracht{"actMaakScripts", u"", "Ctrl+J", "cmdMaakScripts", {.nooit = true}},
        Opdracht{"mnuHelp", u"Help"},
        Opdracht{"actToelichting", u"", "F1", "cmdToelichting"},
        Opdracht{"actHandleiding", u"&Handleiding...", "Shift+F1", "", Geen,
                 &Venster::ToonHandleiding},
        Opdracht{"actToetsen", u"Toet&sen...", "Ctrl+?", "", Geen, &Venster::ToonToetsen},
        Opdracht{"mnuGekozen", u"Gekozen spelers"},
        Opdracht{"actWijzigGekozen", u"&Wijzigen...", "Ctrl+Return; Ctrl+Enter", "", Keus,
                 &Venster::Wijzig},
        Opdracht{"actVeldGekozen", u"&Een veld wijzigen...", "Shift+F2", "", Keus,
                 &Venster::DoeGekozen<Gekozenwerk::Wijzigen>},
        Opdracht{"actVerplaatsGekozen", u"Ver&plaatsen...", "Ctrl+Shift+M", "", Keus,
                 &Venster::DoeGekozen<Gekozenwerk::Verplaatsen>},
        Opdracht{"actKopieerGekozen", u"&Kopiëren...", "Ctrl+Shift+K", "", Keus,
                 &Venster::DoeGekozen<Gekozenwerk::Kopieren>},
        Opdracht{"actPaarGekozen", u"Samen een p&aar...", "Ctrl+Shift+U", "cmdParenOnderhoud", Keus,
                 &Venster::MaakPaarGekozen},
        Opdracht{"actPrintGekozen", u"P&rinten...", "Ctrl+Shift+P", "", LeesKeus,
                 &Venster::PrintGekozen},
        Opdracht{"actExporteerGekozen", u"E&xporteren...", "Shift+F7", "", LeesKeus,
                 &Venster::ExporteerGekozen},
        Opdracht{"actMailGekozen", u"E-&mail aan deze spelers...", "Shift+F8", "", LeesKeus,
                 &Venster::MailGekozen},
        Opdracht{"actEtikettenGekozen", u"Et&iketten...", "Ctrl+Shift+L", "", LeesKeus,
                 &Venster::EtikettenGekozen},
        Opdracht{"actVerwijderGekozen", u"&Verwijderen...", "Shift+Del", "", Keus,
                 &Venster::VerwijderGekozen},
        Opdracht{},
        Opdracht{"actTekstGekozen", u"Als &tekst kopiëren", "Ctrl+Ins", "", LeesKeus,
                 &Venster::KopieerGekozen},
        Opdracht{"actGeschiedenisGekozen", u"&Geschiedenis van deze speler...", "Ctrl+Shift+H", "",
                 LeesKeus, &Venster::ToonSpeler},
    };
    return alle;
}

void frmLedenAdmin::BouwMenu()
{
    QMenu* menu = nullptr;
    for (const Opdracht& opdracht : Opdrachten()) {
        const QString naam = QString::fromLatin1(opdracht.naam);
        if (naam.startsWith(u"mnu"_s)) {
            menu = new QMenu(QString::fromUtf16(opdracht.tekst), this);
            menu->setObjectName(naam);
            if (naam == u"mnuGekozen"_s)
                mnuGekozen = menu;
            else
                menuBar()->addMenu(menu);
            connect(menu, &QMenu::aboutToShow, this, &frmLedenAdmin::WerkOpdrachtenBij);
            connect(menu, &QMenu::aboutToHide, this, &frmLedenAdmin::WerkOpdrachtenBij);
            if (naam == u"mnuBewerken"_s)
                BouwTerugmenu(menu);
        } else if (naam.isEmpty())
            menu->addSeparator();
        else
            VoegOpdrachtToe(menu, opdracht);
    }
    BouwKolommenu(findChild<QMenu*>(u"mnuBeeld"_s));
    for (QAction* actie : findChildren<QAction*>())
        connect(actie, &QAction::hovered, this, [=, this] { ToonStatus(actie->statusTip()); });
    new Hulptoets(administratie_.schijf, this);
    auto* openen = new QShortcut(Qt::Key_F10, this);
    connect(openen, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
}

/// The keys of what is done to the chosen line are those of the grid, which has a menu of it too;
/// those of what is done to all that are chosen work in the list of who was found as well.
void frmLedenAdmin::VoegOpdrachtToe(QMenu* menu, const Opdracht& opdracht)
{
    const QString naam = QString::fromLatin1(opdracht.naam);
    auto* knop = findChild<QAbstractButton*>(QString::fromLatin1(opdracht.knop));
    auto* actie = findChild<QAction*>(naam);
    if (actie == nullptr) {
        actie = MaakActie(menu, naam, QString::fromUtf16(opdracht.tekst));
        if (*opdracht.toetsen != 0)
            actie->setShortcuts(
                QKeySequence::listFromString(QString::fromLatin1(opdracht.toetsen)));
        actie->setCheckable(knop != nullptr && knop->isCheckable());
        if (opdracht.doe != nullptr)
            connect(actie, &QAction::triggered, this, opdracht.doe);
        else
            connect(actie, &QAction::triggered, this, [=, this, eisen = opdracht.eisen] {
                if (eisen.gaatErheen && knop->isHidden())
                    KiesGroep(Groepnummer(administratie_.mappen.DFIMPG) - 1);
                knop->click();
            });
    }
    opdrachten_.push_back({actie, &opdracht, knop});
    if (!opdracht.eisen.regel || menu == mnuGekozen)
        return;
    actie->setShortcutContext(Qt::WidgetShortcut);
    picP0->Vlak()->addAction(actie);
}

void frmLedenAdmin::BouwKolommenu(QMenu* menu)
{
    auto* mnuKolommen = menu->addMenu(u"&Kolommen tonen"_s);
    mnuKolommen->setObjectName(u"mnuKolommen"_s);
    auto* mnuVolgorde = menu->addMenu(u"&Volgorde"_s);
    mnuVolgorde->setObjectName(u"mnuVolgorde"_s);
    auto* groep = new QActionGroup(this);
    for (int kolom = 0; kolom <= AantalKolommen; ++kolom) {
        const auto plek = static_cast<std::size_t>(kolom);
        volgorden_[plek] = MaakActie(mnuVolgorde, u"actVolgorde_%1"_s.arg(kolom), {});
        volgorden_[plek]->setCheckable(true);
        groep->addAction(volgorden_[plek]);
        connect(volgorden_[plek], &QAction::triggered, this, [=, this] { Sorteer(kolom); });
        if (kolom == 0)
            continue;
        kolommen_[plek] = MaakActie(mnuKolommen, u"actKolom_%1"_s.arg(kolom), {});
        kolommen_[plek]->setCheckable(true);
        connect(kolommen_[plek], &QAction::triggered, this,
                [=, this](bool aan) { ToonKolom(plek - 1, aan); });
    }
    volgorden_[0]->setText(u"&Tabelvolgorde"_s);
    actKnoppen = MaakActie(menu, u"actKnoppen"_s, u"Kn&oppen onder de spelers"_s);
    actKnoppen->setShortcut(Qt::Key_F9);
    actKnoppen->setCheckable(true);
    actKnoppen->setChecked(true);
    connect(actKnoppen, &QAction::toggled, this, &frmLedenAdmin::ToonKnoppen);
    connect(picP0, &Rooster::kopmenuGevraagd, this, &frmLedenAdmin::ToonKopmenu);
    connect(picP0, &Rooster::gekozen, this, &frmLedenAdmin::KiesKolommen);
}

/// Of a header: what can be done with its column, and with all.
void frmLedenAdmin::ToonKopmenu(int kolom, QPoint plek)
{
    const auto plaats = static_cast<std::size_t>(kolom);
    auto* menu = new QMenu(this);
    menu->setObjectName(u"mnuKop"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (kolom > 0)
        menu->addActions({volgorden_[plaats], kolommen_[plaats]});
    menu->addActions({volgorden_[0], findChild<QAction*>(u"actPassend"_s),
                      findChild<QAction*>(u"actHerstel"_s)});
    menu->addMenu(findChild<QMenu*>(u"mnuKolommen"_s));
    menu->popup(plek);
}

/// What can be done now, and of the rest why not.
void frmLedenAdmin::WerkOpdrachtenBij()
{
    const Tekst& importcode = administratie_.mappen.DFIMPG;
    const bool kanErheen = Groepnummer(importcode) > 0;
    const bool haalt = BeeldVan(administratie_.mappen, importcode).cmdHaalNBBnamen.value_or(false);
    Opdrachtstand stand{.alleenKijken = alleenKijken_,
                        .regels = picP0->Vlak()->Regels(),
                        .gekozen = static_cast<int>(GekozenRijen().size()),
                        .importgroep = CodeUit(Groeptekst()) == importcode,
                        .importcode = importcode,
                        .keuzelijsten = cmbVerwVan->isVisibleTo(this)};
    const auto zet = [&](QAction* actie, const Eisen& eisen) {
        const QString reden = NaarQString(WaaromNiet(eisen, stand));
        actie->setEnabled(reden.isEmpty());
        actie->setStatusTip(reden);
    };
    for (const auto& [actie, opdracht, knop] : opdrachten_) {
        const bool komtErheen =
            opdracht->eisen.gaatErheen && kanErheen && (knop != cmdHaalNBBnamen || haalt);
        stand.knopVerborgen = knop != nullptr && knop->isHidden() && !komtErheen;
        zet(actie, opdracht->eisen);
        if (knop == nullptr)
            continue;
        actie->setChecked(knop->isChecked());
        if (*opdracht->tekst == 0)
            actie->setText(knop->text());
    }
    volgorden_[volgorde_ ? static_cast<std::size_t>(*volgorde_) : 0]->setChecked(true);
    for (std::size_t i = 0; i < AantalKolommen; ++i) {
        const QString hier = picP0->Vlak()->Celtekst(0, static_cast<int>(i));
        const QString naam = hier.isEmpty() ? NaarQString(Kolomnamen[i]) : hier;
        const QString metLetter = MetSneltoets(naam, Kolomletters[i]);
        volgorden_[i + 1]->setText(u"Op "_s + metLetter);
        kolommen_[i + 1]->setText(u"Kolom "_s + metLetter);
        kolommen_[i + 1]->setChecked(!picP0->Vlak()->Keuzes()[i].verborgen);
        stand.knopVerborgen = hier.isEmpty();
        for (QAction* actie : {volgorden_[i + 1], kolommen_[i + 1]})
            zet(actie, {.importgroep = true});
    }
}

/// The key of a command that is off has no other effect than that its user is told why.
void frmLedenAdmin::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const QKeySequence toets(gebeurtenis->keyCombination());
    // As keyboards may give Ctrl+?. Were these its shortcuts too, one press would be all of them.
    if (toets == QKeySequence(u"Ctrl+Shift+/"_s) || toets == QKeySequence(u"Ctrl+Shift+?"_s))
        ToonToetsen();
    for (const auto& [actie, opdracht, knop] : opdrachten_) {
        if (actie->isEnabled() || !actie->shortcuts().contains(toets))
            continue;
        ToonStatus(actie->statusTip());
        if (opdracht->eisen.wijzigt)
            static_cast<void>(MagWijzigen());
        return;
    }
    QMainWindow::keyPressEvent(gebeurtenis);
}

void frmLedenAdmin::ToonHandleiding()
{
    findChild<Hulptoets*>()->ToonHandleiding(*this);
}

void frmLedenAdmin::ToonToetsen()
{
    frmToetsen(*this).exec();
}

} // namespace plexoran
