// What assistive programs see of a `Tabelvlak`: a table with a header and cells, which come into
// being when they are asked for, and the chosen lines as its selection.
#include <QAccessibleWidget>

#include "platform/scherm/tabelvlak.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

/// A cell by its place: line by line, the header first.
class Celspreker : public QAccessibleInterface, public QAccessibleTableCellInterface {
  public:
    Celspreker(Tabelvlak& vlak, int plaats) : vlak_(vlak), plaats_(plaats) {}

    [[nodiscard]] int Plaats() const { return plaats_; }

    // A thing on the screen
    [[nodiscard]] bool isValid() const override { return Regel() <= vlak_.Regels(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(&vlak_);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text soort) const override
    {
        if (soort != QAccessible::Name || !isValid())
            return {};
        const QString tekst = vlak_.Celtekst(Regel(), columnIndex());
        return IsKop() && tekst.isEmpty() ? u"Kolom %1"_s.arg(columnIndex() + 1) : tekst;
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override
    {
        const QRect plek = vlak_.Plek(Regel(), columnIndex());
        return {vlak_.mapToGlobal(plek.topLeft()), plek.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return IsKop() ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State stand;
        stand.readOnly = true;
        stand.invalid = !isValid();
        stand.offscreen = !vlak_.rect().intersects(vlak_.Plek(Regel(), columnIndex()));
        stand.selectable = stand.focusable = !IsKop();
        stand.selected = isSelected();
        stand.focused = !IsKop() && Regel() == vlak_.Regel() && vlak_.hasFocus();
        return stand;
    }
    void* interface_cast(QAccessible::InterfaceType soort) override
    {
        const bool alsCel = soort == QAccessible::TableCellInterface && !IsKop();
        return alsCel ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
    }

    // A cell of a table
    [[nodiscard]] bool isSelected() const override { return vlak_.IsGekozen(Regel()); }
    [[nodiscard]] int columnIndex() const override { return plaats_ % vlak_.Kolommen(); }
    [[nodiscard]] int rowIndex() const override { return Regel() - 1; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        return {parent()->child(columnIndex())};
    }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

  private:
    [[nodiscard]] int Regel() const { return plaats_ / vlak_.Kolommen(); }
    [[nodiscard]] bool IsKop() const { return Regel() == 0; }

    Tabelvlak& vlak_;
    int plaats_;
};

class Tabelspreker : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit Tabelspreker(Tabelvlak& vlak)
        : QAccessibleWidget(&vlak, QAccessible::Table), vlak_(vlak)
    {}

    void* interface_cast(QAccessible::InterfaceType soort) override
    {
        return soort == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                    : QAccessibleWidget::interface_cast(soort);
    }

    // The cells are its children, the header's first.
    [[nodiscard]] int childCount() const override
    {
        return (vlak_.Regels() + 1) * vlak_.Kolommen();
    }
    [[nodiscard]] QAccessibleInterface* child(int plaats) const override
    {
        if (plaats < 0 || plaats >= childCount())
            return nullptr;
        if (const QAccessible::Id cel = cellen_.value(plaats))
            return QAccessible::accessibleInterface(cel);
        auto* cel = new Celspreker(vlak_, plaats);
        cellen_.insert(plaats, QAccessible::registerAccessibleInterface(cel));
        return cel;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint plek = vlak_.mapFromGlobal(QPoint(x, y));
        const int regel = plek.y() < vlak_.Koponder() ? 0 : vlak_.RegelOp(plek.y());
        for (int kolom = 0; kolom < vlak_.Kolommen(); ++kolom) {
            if (vlak_.rect().contains(plek) && vlak_.Plek(regel, kolom).contains(plek))
                return child(regel * vlak_.Kolommen() + kolom);
        }
        return nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* kind) const override
    {
        const auto* cel = dynamic_cast<const Celspreker*>(kind);
        return cel == nullptr ? -1 : cel->Plaats();
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        return vlak_.hasFocus() && vlak_.Regel() > 0 ? cellAt(vlak_.Regel() - 1, 0) : nullptr;
    }

    // A table, of which rows count from 0 without the header
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int rij, int kolom) const override
    {
        const bool bestaat = rij >= 0 && kolom >= 0 && kolom < vlak_.Kolommen();
        return bestaat ? child((rij + 1) * vlak_.Kolommen() + kolom) : nullptr;
    }
    [[nodiscard]] int rowCount() const override { return vlak_.Regels(); }
    [[nodiscard]] int columnCount() const override { return vlak_.Kolommen(); }
    [[nodiscard]] QString rowDescription(int) const override { return {}; }
    [[nodiscard]] QString columnDescription(int kolom) const override
    {
        QAccessibleInterface* kop = child(kolom);
        return kolom < vlak_.Kolommen() && kop != nullptr ? kop->text(QAccessible::Name)
                                                          : QString();
    }
    [[nodiscard]] int selectedRowCount() const override
    {
        return static_cast<int>(vlak_.Gekozen().size());
    }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedCellCount() const override
    {
        return selectedRowCount() * vlak_.Kolommen();
    }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override
    {
        QList<int> rijen;
        for (const int regel : vlak_.Gekozen())
            rijen << regel - 1;
        return rijen;
    }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> cellen;
        for (const int regel : vlak_.Gekozen()) {
            for (int kolom = 0; kolom < vlak_.Kolommen(); ++kolom)
                cellen << cellAt(regel - 1, kolom);
        }
        return cellen;
    }
    [[nodiscard]] bool isColumnSelected(int) const override { return false; }
    [[nodiscard]] bool isRowSelected(int rij) const override
    {
        return rij >= 0 && vlak_.IsGekozen(rij + 1);
    }
    bool selectRow(int rij) override
    {
        if (rij < 0 || rij >= vlak_.Regels())
            return false;
        vlak_.KiesRegel(rij + 1);
        return true;
    }
    bool unselectRow(int rij) override
    {
        if (!isRowSelected(rij))
            return false;
        std::vector<int> rest = vlak_.Gekozen();
        std::erase(rest, rij + 1);
        vlak_.Kies(rest.empty() ? 0 : rest.front(), rest);
        return true;
    }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

  protected:
    ~Tabelspreker() override
    {
        for (const QAccessible::Id cel : cellen_)
            QAccessible::deleteAccessibleInterface(cel);
    }

  private:
    Tabelvlak& vlak_;
    mutable QHash<int, QAccessible::Id> cellen_; ///< those that were asked for
};

QAccessibleInterface* MaakSpreker(const QString& /*soort*/, QObject* object)
{
    auto* vlak = qobject_cast<Tabelvlak*>(object);
    return vlak == nullptr ? nullptr : new Tabelspreker(*vlak);
}

} // namespace

void Tabelvlak::LaatSpreken()
{
    QAccessible::installFactory(MaakSpreker); // which Qt does once
}

void Tabelvlak::MeldKeus()
{
    const auto meld = [this](QAccessible::Event soort) {
        QAccessibleEvent gebeurtenis(this, soort);
        if (regel_ > 0)
            gebeurtenis.setChild(regel_ * Kolommen());
        QAccessible::updateAccessibility(&gebeurtenis);
    };
    meld(IsMeer() ? QAccessible::SelectionWithin : QAccessible::Selection);
    if (hasFocus())
        meld(QAccessible::Focus);
}

void Tabelvlak::MeldAndereRegels()
{
    Beschrijf();
    QAccessibleTableModelChangeEvent gebeurtenis(this,
                                                 QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&gebeurtenis);
}

} // namespace plexoran
