// A list of lines of which one or any number can be chosen. The choice is Qt's own selection, so
// that assistive programs know it.
//
// Where any number can be chosen, a click or the space bar chooses a line or lets it go; dragging
// and Shift do the same for many, Ctrl+A chooses all. Where they are chosen as a file manager does,
// a click chooses one line alone, and Ctrl and Shift others besides. Typing goes to the next line
// that begins with what was typed, or whose name does, without regard to case or accent.
//
// What follows sixty spaces in a line belongs to it but is not shown.
//
// The lines are asked for when they are painted, and the choice is set and read in ranges, so that
// a list of a hundred thousand opens and chooses all without a wait.
#pragma once

#include <QElapsedTimer>
#include <QListView>

#include <functional>
#include <utility>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

class Regellijst : public QListView {
    Q_OBJECT

  public:
    /// `hoeveel` can be chosen: `SingleSelection`, `MultiSelection` or `ExtendedSelection`. A line
    /// that is too long scrolls in the first and is shortened in the others.
    Regellijst(SelectionMode hoeveel, const QString& naam, const QString& gesproken,
               QWidget* ouder);

    /// Where the name begins in a line without a tab, behind which it begins otherwise.
    void ZetNaamVanaf(std::size_t plek) { naamVanaf_ = plek; }

    /// Begin and length of the parts of a line that stand out.
    using Merken = std::vector<std::pair<std::size_t, std::size_t>>;
    void ZetMerken(std::function<Merken(int plaats)> merken);

    enum class Plek { Begin, Behouden };
    /// Fills the list anew; nothing is chosen. With `Behouden` the lines on the screen stay where
    /// they are, and so does the line from which the arrow keys go on.
    void Vul(int aantal, std::function<Tekst(int plaats)> regel, Plek plek = Plek::Begin);
    [[nodiscard]] int Aantal() const { return model()->rowCount(); }
    [[nodiscard]] Tekst Regel(int plaats) const { return regel_(plaats); }
    /// Whether a line can be seen whole.
    [[nodiscard]] bool Past(const QString& regel) const;

    [[nodiscard]] bool IetsGekozen() const { return selectionModel()->hasSelection(); }
    /// The chosen line of a list with one; -1 when none is.
    [[nodiscard]] int Gekozen() const;
    /// In list order.
    [[nodiscard]] std::vector<int> GekozenPlaatsen() const;

    /// Adds lines to the choice.
    void Kies(const std::vector<int>& plaatsen);
    void selectAll() override;
    /// Makes a line the current one and shows it; where one can be chosen, it is.
    void ZetHuidige(int plaats);

    void keyboardSearch(const QString& toets) override;
    /// Asks a few lines only and takes what the window leaves.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void keuzeVeranderd();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* gebeurtenis) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& plaats, const QEvent* gebeurtenis) const override;

  private:
    [[nodiscard]] QVariant Zegt(int plaats, int rol) const;
    [[nodiscard]] int Breedste() const;
    [[nodiscard]] QString Kopieertekst() const;
    [[nodiscard]] int Zoek(Tekstblik getypt, int vanaf) const;

    std::size_t naamVanaf_ = 0;
    std::function<Tekst(int)> regel_;
    Tekst getypt_;
    QElapsedTimer sindsToets_;
};

} // namespace plexoran
