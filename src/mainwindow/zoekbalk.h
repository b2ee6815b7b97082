// The bar in which is typed whom to find, and the list of who answers.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include <set>

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
    [[nodiscard]] bool IsOpen() const { return !woorden_.empty() || !wie_.empty(); }
    /// The table rows of the chosen lines, in list order.
    [[nodiscard]] std::vector<int> Gekozen() const;
    /// The table row of the current line; 0 without.
    [[nodiscard]] int Huidige() const;

    void GaErheen();
    /// Shows these players, whose caption tells who they are, until something is typed.
    void Toon(const std::vector<int>& rijen, const QString& opschrift);
    void Leeg();
    /// The table may be another one.
    void Ververs();

  signals:
    void opengegaan(bool open);
    void aangeklikt(int rij);
    void gevraagd(int rij, bool wijzigen); ///< with Enter, or to change him
    void verwijderGevraagd();
    void verlaten(); ///< by Escape, with nothing to search for

  protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

  private:
    void Zoek();
    void VulAnders(bool was);
    void VulLijst(Regellijst::Plek plek);
    [[nodiscard]] Zoekregel Regel(int plaats) const;
    [[nodiscard]] Tekst Wie(int rij) const;
    [[nodiscard]] bool Verwerk(const QObject* waar, QKeyEvent& toets);

    const Administratie& administratie_;
    Zoekwoorden woorden_;
    std::set<Tekst> wie_; ///< are shown without words
    QString opschrift_;
    std::vector<int> rijen_;
    Tekst huidige_; ///< and the chosen ones, to find them in a table that changed
    std::set<Tekst> gekozen_;
    QLineEdit* txtZoek;
    QLabel* lblZoek; ///< how many answer
    Regellijst* lstZoek;
};

} // namespace plexoran
