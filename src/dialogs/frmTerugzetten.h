// Putting back a backup: the list of what there is, and per player and field what differs now. It
// only chooses; the window that opened it puts back and saves.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "platform/scherm/boom.h"
#include "register/administratie.h"
#include "register/herstel.h"
#include "register/reservezip.h"
#include "register/tweedeplaats.h"

namespace plexoran {

/// That the second place has been away for long; empty when it has not.
[[nodiscard]] QString Tweedeplaatsregel(const Administratie& administratie);

class frmTerugzetten : public QDialog {
    Q_OBJECT

  public:
    frmTerugzetten(Administratie& administratie, QWidget* ouder);

    [[nodiscard]] bool IetsGekozen() const { return !Keys().empty(); }
    /// The register with the chosen players as they were, once the window was accepted.
    [[nodiscard]] Menging Hersteld() const;
    /// The files with group names and pairs, when these were chosen too.
    [[nodiscard]] std::vector<Zipdeel> OokBestanden() const;

  private:
    void Bouw();
    void LeesLijst();
    void KiesReserve();
    void LeesReservekopie(const Kopienaam& kopie);
    void ToonVerschillen();
    void ToonVelden(QTreeWidgetItem* speler) const;
    void ToonKnoppen();
    void KiesAlle();
    [[nodiscard]] std::set<Tekst> Keys() const { return Aangevinkt(*lstVerschillen, 0); }

    void KiesTweedePlaats();
    void ZetTweedePlaats(const Pad& map);
    void ToonTweedePlaats();

    Administratie& administratie_;
    std::vector<Reserve> reserves_;        ///< of the lines of lstReserves
    std::vector<Zipdeel> delen_;           ///< of the chosen one
    Spelerlezing toen_;                    ///< its players
    std::vector<Rijverschil> verschillen_; ///< of the lines of lstVerschillen

    QTreeWidget* lstReserves;
    QLabel* Label2;
    QTreeWidget* lstVerschillen;
    QCheckBox* chkOokGroepen;
    QLabel* lblTweedePlaats;
    QPushButton* cmdAlles;
    QPushButton* cmdTerugzetten;
};

} // namespace plexoran
