#include "mainwindow/frmToetsen.h"

#include <QMenu>

#include "platform/scherm/boom.h"

namespace plexoran {
namespace {

/// A caption as it is read.
QString Kaal(QString tekst)
{
    return tekst.replace(u"&&"_s, u"\1"_s).remove(u'&').replace(u'\1', u'&').trimmed();
}

QString Toetsen(const QAction& actie)
{
    return QKeySequence::listToString(actie.shortcuts(), QKeySequence::NativeText);
}

} // namespace

frmToetsen::frmToetsen(QWidget& hoofdvenster) : QDialog(&hoofdvenster)
{
    setObjectName(u"frmToetsen"_s);
    setWindowTitle(u"Toetsen"_s);
    auto* lstToetsen = MaakBoom(u"lstToetsen"_s, u"Toetsen en wat ze doen"_s,
                                {u"Toetsen"_s, u"Opdracht"_s, u"Waar"_s}, this);
    lstToetsen->setRootIsDecorated(false);
    for (const QAction* actie : hoofdvenster.findChildren<QAction*>()) {
        const auto* menu = qobject_cast<QMenu*>(actie->parent());
        if (menu != nullptr && !actie->shortcut().isEmpty())
            new QTreeWidgetItem(lstToetsen,
                                {Toetsen(*actie), Kaal(actie->text()), Kaal(menu->title())});
    }
    for (const auto* knop : hoofdvenster.findChildren<QAbstractButton*>()) {
        const QKeySequence toets = QKeySequence::mnemonic(knop->text());
        if (!toets.isEmpty())
            new QTreeWidgetItem(lstToetsen, {toets.toString(QKeySequence::NativeText),
                                             Kaal(knop->text()), u"Knop"_s});
    }
    for (int kolom = 0; kolom < lstToetsen->columnCount(); ++kolom)
        lstToetsen->resizeColumnToContents(kolom);
    lstToetsen->setCurrentItem(lstToetsen->topLevelItem(0));
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::accept);
    cmdSluiten->setDefault(true);
    Onderelkaar({{lstToetsen, 1}, Knoppenrij({cmdSluiten})}, this);
    PasInScherm(this, Maten().Twips(9000, 9000));
    lstToetsen->setFocus();
}

} // namespace plexoran
