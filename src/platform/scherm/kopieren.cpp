#include "platform/scherm/kopieren.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

#include "platform/scherm/tabelvlak.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

void LaatKopieren(QWidget* lijst, const std::function<QString()>& tekst)
{
    auto* kopieer = new QAction(u"Regel &kopiëren"_s, lijst);
    kopieer->setObjectName(u"actRegelKopieren"_s);
    kopieer->setShortcut(QKeySequence::Copy);
    kopieer->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(kopieer, &QAction::triggered, lijst,
                     [tekst] { QGuiApplication::clipboard()->setText(tekst()); });
    lijst->addAction(kopieer);
    lijst->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void LaatKopieren(QAbstractItemView* lijst)
{
    LaatKopieren(lijst, [lijst] {
        QStringList cellen;
        for (QModelIndex cel = lijst->currentIndex().siblingAtColumn(0); cel.isValid();
             cel = cel.siblingAtColumn(cel.column() + 1))
            cellen << cel.data().toString();
        return cellen.join(u'\t');
    });
}

void LaatKopieren(Tabelvlak* lijst)
{
    LaatKopieren(lijst, [lijst] {
        QStringList cellen;
        for (int kolom = 0; lijst->Regel() > 0 && kolom < lijst->Kolommen(); ++kolom)
            cellen << lijst->Celtekst(lijst->Regel(), kolom);
        return cellen.join(u'\t');
    });
}

} // namespace plexoran
