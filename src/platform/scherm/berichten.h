// Message boxes: real QMessageBoxes with exactly the text, title, icon and buttons that the caller
// names. Unless he words them the buttons read OK and Annuleren on every system.
#pragma once

#include <QMessageBox>

#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

inline const QString Programmatitel = u"Plexoran"_s;

/// Shows a window, which waits for the user, not the other way round: whatever work goes on behind
/// it, the busy cursor is put off until there is an answer.
int LaatAntwoorden(QDialog& venster);

/// Shows a text with an OK button.
void Meld(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst,
          const QString& titel = Programmatitel);

/// Shows a text that may grow with what it tells of: one that is too long for a box of this screen
/// scrolls in a window of its own, `frmBericht`.
void MeldLijst(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst);

/// Shows a text that can be copied; one that is long, or too wide for the screen, in a window of
/// its own, `frmBericht`, in which it scrolls.
void MeldVerslag(QWidget* ouder, const QString& tekst, const QString& titel,
                 QMessageBox::Icon icoon = QMessageBox::NoIcon);

/// OK and Annuleren; true for OK. Escape and the close box count as Annuleren. `toelichting` stands
/// below the text.
[[nodiscard]] bool Vraag(QWidget* ouder, const QString& tekst,
                         const QString& titel = Programmatitel,
                         const QString& toelichting = QString());

/// Answers worded by the caller; returns the place of the one that was picked. The last one is the
/// harmless one: Escape and the close box pick it. Enter picks that at `voorkeur`.
[[nodiscard]] int Kies(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst,
                       const QStringList& antwoorden, int voorkeur = 0);

/// Where a new file is to come, by the dialog of the system; nothing when that is called off. Files
/// of this kind, "Tekstbestanden (*.txt)", end in `uitgang`.
[[nodiscard]] std::optional<Pad> VraagOpslagplaats(QWidget* ouder, const QString& vraag,
                                                   const QString& soort, const QString& uitgang,
                                                   const QString& naam);

/// A path as the system writes it.
[[nodiscard]] inline QString Toonpad(Schijf& schijf, const Pad& pad)
{
    return QString::fromStdString(schijf.Toonpad(pad));
}

/// Which file and line, and the system's own words, as the closing lines of a message.
[[nodiscard]] QString Bijzonderheden(const Fout& fout);

/// Says what happened, whether the data is safe and what to do; the details of the error follow.
void MeldFout(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const Fout& fout);

/// Whether a save put the new file in place. Where only its last step failed, so that the file may
/// not survive a loss of power, the user is told.
[[nodiscard]] bool StaatEr(QWidget* ouder, const Uitkomst<void>& opslag);

/// `wat` did not happen, because no key is left; the error names where the highest key stands.
void MeldSleutelsOp(QWidget* ouder, const QString& wat, const Fout& plaats);

/// "1 speler", "2 spelers".
[[nodiscard]] QString Aantal(std::size_t aantal, const QString& een, const QString& meer);

/// As many names as a line holds.
[[nodiscard]] QString Namen(const std::vector<Tekst>& namen);

/// What came of saving a file that another program had changed.
struct Mengbericht {
    QString een; ///< what its items are called
    QString meer;
    std::vector<Tekst> overgenomen; ///< items that are the other program's doing
    std::vector<Tekst> botsingen;   ///< items that both changed: the other's stand in the file
    std::string onze;               ///< and the copy that holds ours
    std::string andere;             ///< the copy of what could not be brought together with ours
};
/// Nothing where the other program had a hand in nothing.
void MeldMenging(QWidget* ouder, const Mengbericht& samen);

/// Tells which names the disk left out of its lists of this folder, each once.
void MeldOvergeslagen(QWidget* ouder, Schijf& schijf, const Pad& map);

/// A report that is too long for a message box: it scrolls and can be copied.
class frmBericht : public QDialog {
    Q_OBJECT

  public:
    /// `icoon` is null for none.
    frmBericht(const QString& tekst, const QString& titel, const QPixmap& icoon, QWidget* ouder);
};

} // namespace plexoran
