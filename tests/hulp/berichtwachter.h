// Watches the modal windows of a test: every message box and dialog that shows must be the next one
// that the test expects, and is answered at once. One that was not expected is closed harmlessly
// and fails the test; one that did not come fails it at the end; nothing ever hangs.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <optional>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {

/// An expected message box. The whole text is compared, or its beginning where the rest is the
/// system's own words.
struct Bericht {
    QString tekst;
    QString antwoord = u"OK"_s; ///< the caption of the button that is pressed
    QMessageBox::Icon icoon = QMessageBox::Information;
    QString titel = u"Plexoran"_s;
    QStringList knoppen{}; ///< all of them, left to right; not looked at when empty
    bool alleenBegin = false;
    QString toelichting{}; ///< below the text
};

class Berichtwachter : public QObject {
  public:
    /// Answers instead of a caption: the Escape key, or the close box of the window.
    static inline const QString Escape = u"<Escape>"_s;
    static inline const QString Sluitvak = u"<sluitvak>"_s;

    Berichtwachter();
    /// Fails the test when something expected did not come.
    ~Berichtwachter() override;

    /// Boxes and dialogs must come in the order in which they were announced.
    void Verwacht(Bericht bericht);
    void Informatie(const QString& tekst);
    void Waarschuwing(const QString& tekst);
    /// A box of which the file and the words of the system may follow.
    void Begin(const QString& tekst, QMessageBox::Icon icoon = QMessageBox::Warning,
               const QString& antwoord = u"OK"_s)
    {
        Verwacht({.tekst = tekst, .antwoord = antwoord, .icoon = icoon, .alleenBegin = true});
    }
    /// `wat` did not happen, because no key is left after that on the first line of the file.
    void SleutelsOp(const QString& wat, const std::string& spelerbestand);

    /// The next modal dialog that is no message box is handed to `stappen`, which must close it.
    /// Boxes that come while it is open are announced after it.
    void Bedien(std::function<void(QDialog&)> stappen);

    /// From now on every message box is answered with the caption that this gives for it: for runs
    /// of which nobody can say which boxes come in what order.
    void LaatBeslissen(std::function<QString(const QMessageBox&)> beslis)
    {
        beslis_ = std::move(beslis);
    }

    /// Fails when something expected did not come, and forgets it.
    void Klaar();

    /// Only for the test of this class.
    void ZetGeduld(int milliseconden) { geduld_ = milliseconden; }

    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

  private:
    struct Verwachting {
        std::optional<Bericht> bericht;
        std::function<void(QDialog&)> stappen;
    };

    void Verschenen(QDialog& dialoog);
    void Behandel(QMessageBox& venster);
    void BehandelDialoog(QDialog& dialoog);
    void Vergelijk(const QMessageBox& venster, const Bericht& bericht);
    void Beantwoord(QMessageBox& venster, const QString& antwoord);
    void SluitOnschuldig(QMessageBox& venster);
    void Waak();

    std::deque<Verwachting> verwacht_;
    std::function<QString(const QMessageBox&)> beslis_;
    QTimer wekker_;
    QPointer<QWidget> bewaakt_; ///< the modal or popup widget that is open
    QElapsedTimer sinds_;
    int geduld_ = 5000; ///< milliseconds that one modal widget may stay open
};

} // namespace plexoran
