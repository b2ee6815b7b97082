// The manual in the program, and the key that opens it at the chapter of the window in front.
#pragma once

#include <QDialog>
#include <QHash>
#include <QTextBrowser>
#include <QTreeWidget>

#include "platform/schijf/schijf.h"

class QLabel;
class QLineEdit;

namespace plexoran {

/// Stands beside the windows, open as long as the user likes.
class frmHandleiding : public QDialog {
    Q_OBJECT

  public:
    frmHandleiding(Schijf& schijf, QWidget* ouder);

    /// Its heading as it reads or as a link writes it; nothing happens where there is none.
    void ToonHoofdstuk(const QString& kop);
    /// That of this window.
    void ToonVenster(const QString& naam) { ToonHoofdstuk(hoofdstukken_.value(naam)); }

  private:
    void Bouw();
    void Lees();
    void Zoek();
    void ToonTreffer(qsizetype stap);
    void Print();

    Schijf& schijf_;
    QHash<QString, QString> hoofdstukken_; ///< by the name of a window
    QTreeWidget* lstHoofdstukken;
    QLineEdit* txtZoekTekst;
    QLabel* lblGevonden;
    QTextBrowser* txtHandleiding;
    qsizetype treffer_ = 0;
};

/// Listens in every window: Shift+F1, and F1 where that is nothing else, opens the manual.
class Hulptoets : public QObject {
    Q_OBJECT

  public:
    Hulptoets(Schijf& schijf, QWidget* hoofdvenster);

    /// At the chapter of this window. One that lets no other be used gets the manual as its own.
    void ToonHandleiding(const QWidget& voor);

  protected:
    bool eventFilter(QObject* wie, QEvent* gebeurtenis) override;

  private:
    Schijf& schijf_;
};

} // namespace plexoran
