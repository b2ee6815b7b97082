// The bar in which is typed whom to find, and the list of who answers.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "mainwindow/zoeken.h"
#include "platform/scherm/regellijst.h"
#include "register/administratie.h"

namespace plexoran {

class Zoekbalk : public QWidget {
    Q_OBJECT

  public:
    Zoekbalk(const Administratie& administratie, QWidget* ouder);

    /// `lstZoek`, which has its place elsewhere in the window.
    [[nodiscard]] Regellijst* Lijst() const { return lstZoek; }
    [[nodiscard]] bool IsOpen() const { return !woorden_.empty(); }
    /// The table rows of the chosen lines, in list order.
    [[nodiscard]] std::vector<int> Gekozen() const;
    /// The table row of the current line; 0 without.
    [[nodiscard]] int Huidige() const;

    void GaErheen();
    void Leeg() { txtZoek->clear(); }
    /// The table may be another one.
    void Ververs();

  signals:
    void opengegaan(bool open);
    void aangeklikt(int rij);
    void gevraagd(int rij, bool ctrl); ///< with Enter

  protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

  private:
    void Zoek();
    void VulLijst(Regellijst::Plek plek);
    [[nodiscard]] Zoekregel Regel(int plaats) const;
    [[nodiscard]] bool Verwerk(const QObject* waar, QKeyEvent& toets);

    const Administratie& administratie_;
    Zoekwoorden woorden_;
    std::vector<int> rijen_;
    QLineEdit* txtZoek;
    QLabel* lblZoek; ///< how many answer
    Regellijst* lstZoek;
};

} // namespace plexoran
