// Trees of lines in columns.
#pragma once

#include <QHeaderView>
#include <QTreeWidget>

#include <set>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"

namespace plexoran {

/// A line of a tree: what a column has no room for can be read in its tool tip.
class Boomregel : public QTreeWidgetItem {
  public:
    using QTreeWidgetItem::QTreeWidgetItem;

    [[nodiscard]] QVariant data(int kolom, int rol) const override
    {
        return rol == Qt::ToolTipRole ? Wenk(text(kolom)) : QTreeWidgetItem::data(kolom, rol);
    }
};

/// In which the key of a line is kept, in its first column.
inline constexpr int Sleutelrol = Qt::UserRole;

[[nodiscard]] inline QTreeWidget* MaakBoom(const QString& naam, const QString& gesproken,
                                           const QStringList& koppen, QWidget* ouder)
{
    auto* boom = new QTreeWidget(ouder);
    Noem(boom, naam, gesproken);
    boom->setHeaderLabels(koppen);
    boom->setUniformRowHeights(true);
    LaatKopieren(boom);
    return boom;
}

/// Ticks the box in that column of all outermost lines.
inline void VinkAlle(const QTreeWidget& boom, int kolom)
{
    for (int i = 0; i < boom.topLevelItemCount(); ++i)
        boom.topLevelItem(i)->setCheckState(kolom, Qt::Checked);
}

/// The keys of the outermost lines that are ticked there.
[[nodiscard]] inline std::set<Tekst> Aangevinkt(const QTreeWidget& boom, int kolom)
{
    std::set<Tekst> uit;
    for (int i = 0; i < boom.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& regel = *boom.topLevelItem(i);
        if (regel.checkState(kolom) == Qt::Checked)
            uit.insert(NaarTekst(regel.data(0, Sleutelrol).toString()));
    }
    return uit;
}

} // namespace plexoran
