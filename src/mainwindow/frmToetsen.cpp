#include "mainwindow/frmToetsen.h"

#include <QMenu>

#include <array>

#include "platform/scherm/boom.h"

namespace plexoran {
namespace {

using Toets = std::array<QStringView, 3>; // where it works, what it is, what it does

/// Those that are no command of a menu, by the place where they work.
constexpr std::array<QStringView, 9> Plaatsen{
    u"In de spelers",         u"Bij het zoeken",   u"In elke lijst",
    u"In elk venster",        u"Bij de paren",     u"In het afdrukvoorbeeld",
    u"Bij een import vooraf", u"In het overzicht", u"In de handleiding"};
constexpr std::array Overige{
    Toets{Plaatsen[0], u"↑, ↓, Page Up, Page Down, Home, End", u"Naar een andere regel"},
    Toets{Plaatsen[0], u"←, →", u"De kolommen verschuiven"},
    Toets{Plaatsen[0], u"Enter of F2", u"De gekozen speler wijzigen"},
    Toets{Plaatsen[0], u"Delete", u"De gekozen spelers verwijderen, na een vraag"},
    Toets{Plaatsen[0], u"Shift met ↑, ↓ enz.", u"Alle spelers tot daar kiezen"},
    Toets{Plaatsen[0], u"Ctrl met ↑, ↓ enz.",
          u"Naar een andere regel; wie gekozen zijn, blijft zo"},
    Toets{Plaatsen[0], u"Ctrl+spatie", u"Deze speler erbij kiezen, of weer niet"},
    Toets{Plaatsen[0], u"Ctrl+A", u"Alle spelers kiezen"},
    Toets{Plaatsen[1], u"↓", u"Naar wie gevonden is"},
    Toets{Plaatsen[1], u"Shift met ↑ of ↓, Ctrl+spatie, Ctrl+A", u"Meer gevonden spelers kiezen"},
    Toets{Plaatsen[1], u"Enter", u"Naar de gevonden speler"},
    Toets{Plaatsen[1], u"Ctrl+Enter of F2", u"De gevonden speler wijzigen"},
    Toets{Plaatsen[1], u"Delete", u"De gekozen gevonden spelers verwijderen, na een vraag"},
    Toets{Plaatsen[1], u"Letters of ↑ in de lijst", u"Terug naar het zoekvak"},
    Toets{Plaatsen[1], u"Escape", u"Terug naar waar u was"},
    Toets{Plaatsen[2], u"Ctrl+C", u"De regel kopiëren"},
    Toets{Plaatsen[2], u"Menutoets of Shift+F10", u"Wat er met de regel kan"},
    Toets{Plaatsen[2], u"Spatie", u"Het vinkje zetten of weghalen, of de regel erbij kiezen"},
    Toets{Plaatsen[2], u"→, ←", u"Een regel met een pijltje ervoor open- of dichtvouwen"},
    Toets{Plaatsen[2], u"Letters", u"Naar de regel die zo begint"},
    Toets{Plaatsen[3], u"Tab, Shift+Tab", u"Naar het volgende of het vorige vak"},
    Toets{Plaatsen[3], u"Alt met een letter",
          u"De knop of het vak waarin die letter onderstreept is"},
    Toets{Plaatsen[3], u"Enter", u"De knop met een lijn eromheen, en anders de gewone"},
    Toets{Plaatsen[3], u"Escape", u"Sluiten zonder iets op te slaan"},
    Toets{Plaatsen[3], u"Shift+F1, en F1 in de meeste vensters",
          u"De handleiding, bij het hoofdstuk van het venster"},
    Toets{Plaatsen[3], u"F10", u"De menu's, in het hoofdvenster"},
    Toets{Plaatsen[4], u"Enter", u"Een paar maken van de twee gekozen spelers"},
    Toets{Plaatsen[4], u"Delete", u"Het gekozen paar ontbinden"},
    Toets{Plaatsen[4], u"F1", u"De uitleg over paren"},
    Toets{Plaatsen[5], u"Page Up, Page Down", u"Het vorige of het volgende blad"},
    Toets{Plaatsen[5], u"Home, End", u"Het eerste of het laatste blad"},
    Toets{Plaatsen[5], u"↑, ↓, ←, →", u"Het blad verschuiven"},
    Toets{Plaatsen[5], u"Ctrl++, Ctrl+-, Ctrl+0", u"Groter, kleiner, weer op 100 %"},
    Toets{Plaatsen[6], u"Ctrl+1 tot en met Ctrl+4",
          u"De regels sorteren op die kolom, of andersom"},
    Toets{Plaatsen[7], u"Enter", u"Tonen om wie het gaat"},
    Toets{Plaatsen[8], u"Ctrl+F", u"In de handleiding zoeken"},
    Toets{Plaatsen[8], u"Ctrl++, Ctrl+-, Ctrl+0", u"Grotere of kleinere letters, weer gewone"}};

/// Below the heading of where it works.
void VoegToe(QTreeWidget& lijst, const QString& waar, const QString& toetsen, const QString& wat)
{
    const auto koppen = lijst.findItems(waar, Qt::MatchExactly);
    auto* kop = koppen.isEmpty() ? new QTreeWidgetItem(&lijst, {waar}) : koppen.constFirst();
    new Boomregel(kop, {toetsen, wat});
}

} // namespace

frmToetsen::frmToetsen(QWidget& hoofdvenster) : QDialog(&hoofdvenster)
{
    setObjectName(u"frmToetsen"_s);
    setWindowTitle(u"Toetsen"_s);
    auto* lstToetsen = MaakBoom(u"lstToetsen"_s, u"Toetsen en wat ze doen"_s,
                                {u"Toetsen"_s, u"Wat ze doen"_s}, this);
    for (const QAction* actie : hoofdvenster.findChildren<QAction*>()) {
        const auto* menu = qobject_cast<QMenu*>(actie->parent());
        if (menu != nullptr && !actie->shortcut().isEmpty())
            VoegToe(*lstToetsen, u"Menu "_s + menu->menuAction()->iconText(),
                    QKeySequence::listToString(actie->shortcuts(), QKeySequence::NativeText),
                    actie->iconText());
    }
    for (const auto* knop : hoofdvenster.findChildren<QAbstractButton*>()) {
        const QKeySequence toets = QKeySequence::mnemonic(knop->text());
        if (!toets.isEmpty())
            VoegToe(*lstToetsen, u"Knoppen van het hoofdvenster"_s,
                    toets.toString(QKeySequence::NativeText), QAction(knop->text()).iconText());
    }
    for (const auto& [waar, toetsen, wat] : Overige)
        VoegToe(*lstToetsen, waar.toString(), toetsen.toString(), wat.toString());
    lstToetsen->expandAll();
    lstToetsen->resizeColumnToContents(0);
    lstToetsen->setCurrentItem(lstToetsen->topLevelItem(0));
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::accept);
    cmdSluiten->setDefault(true);
    Onderelkaar({{lstToetsen, 1}, Knoppenrij({cmdSluiten})}, this);
    PasInScherm(this, Maten().Twips(10500, 9000));
    lstToetsen->setFocus();
}

} // namespace plexoran
