// A list of lines of which any number can be chosen. A click or the space bar chooses a line or
// lets it go; dragging and Shift do the same for many; Ctrl+A chooses all.
// Typing goes to the next line that begins with what was typed, or whose part behind the tab does,
// without regard to case or accent.
//
// What follows sixty spaces in a line belongs to it but is not shown.
//
// The lines are asked for when they are painted and the choice is one bit a line, so that a list of
// a hundred thousand opens and chooses all without a wait.
#pragma once

#include <QListView>

#include <functional>
#include <vector>

namespace plexoran {

class Meerkeuzelijst : public QListView {
    Q_OBJECT

  public:
    explicit Meerkeuzelijst(QWidget* ouder = nullptr);

    /// Fills the list anew; nothing is chosen.
    void Vul(int aantal, std::function<QString(int)> regel);
    [[nodiscard]] int Aantal() const { return static_cast<int>(gekozen_.size()); }
    [[nodiscard]] QString Regel(int plaats) const;

    [[nodiscard]] bool Gekozen(int plaats) const
    {
        return gekozen_[static_cast<std::size_t>(plaats)];
    }
    [[nodiscard]] bool IetsGekozen() const { return aantalGekozen_ > 0; }
    [[nodiscard]] std::vector<int> GekozenPlaatsen() const;

    void Kies(int plaats, bool aan);
    void KiesAlles(bool aan);
    /// Adds the lines that answer to the choice; nothing is let go.
    void KiesOok(const std::function<bool(int)>& hoort);
    /// Makes a line the current one and shows it.
    void ZetHuidige(int plaats);

  signals:
    void keuzeVeranderd();

  protected:
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void mouseMoveEvent(QMouseEvent* gebeurtenis) override;
    void mouseDoubleClickEvent(QMouseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    [[nodiscard]] QVariant Zegt(int plaats, int rol) const;
    void Zet(int plaats, bool aan);
    void KiesTot(int plaats, bool aan);
    void Gewijzigd();

    std::vector<bool> gekozen_;
    int aantalGekozen_ = 0;
    bool sleept_ = false;     ///< the button went down on a line
    bool slepenKiest_ = true; ///< what dragging does with the lines it passes
    std::function<QString(int)> regel_;
};

} // namespace plexoran
