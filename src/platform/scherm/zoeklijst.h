// A list of lines of which one can be chosen. Each line begins with a key of fixed length; typing
// jumps to the line whose name, behind that key, begins with what was typed, without regard to case
// or accent. Digits jump to a key.
//
// The lines are asked for when they are painted, so that a list of thousands fills without a wait.
#pragma once

#include <QElapsedTimer>
#include <QListView>

#include <functional>

#include "platform/tekst.h"
#include "platform/tekstmeter.h"

namespace plexoran {

class Zoeklijst : public QListView {
    Q_OBJECT

  public:
    /// The name begins at `naamVanaf` in every line. `letter` is one without kerning.
    Zoeklijst(std::size_t naamVanaf, const QFont& letter, QWidget* ouder);

    enum class Plek { Begin, Behouden };
    /// Fills the list anew; nothing is chosen. With `Behouden` the lines on the screen stay where
    /// they are, and so does the line from which the arrow keys go on.
    void Vul(int aantal, std::function<Tekst(int)> regel, Plek plek);
    [[nodiscard]] int Aantal() const { return aantal_; }
    [[nodiscard]] Tekst Regel(int plaats) const { return regel_(plaats); }

    /// -1 when none is.
    [[nodiscard]] int Gekozen() const;
    void KiesNiets();
    /// Makes a line the one from which the arrow keys go on; it is not chosen and nothing scrolls.
    void ZetHuidige(int plaats);

    void keyboardSearch(const QString& toets) override;

  signals:
    void keuzeVeranderd();
    void enterGedrukt();
    void deleteGedrukt();

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    [[nodiscard]] int Zoek(Tekstblik getypt, int vanaf) const;

    std::size_t naamVanaf_;
    Tekstmeter meter_;
    int aantal_ = 0;
    std::function<Tekst(int)> regel_;
    Tekst getypt_;
    QElapsedTimer sindsToets_;
};

} // namespace plexoran
