// The special add of players from a scored session. For experts only, as its labels say.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <optional>

#include "dialogs/toevoegen.h"
#include "register/administratie.h"

class QGroupBox;

namespace plexoran {

/// Puts the link file back; false when that failed, which it told.
[[nodiscard]] bool ZetTerugOfMeld(Koppelverslag& verslag, QWidget* ouder);

class diaToevoegen : public QDialog {
    Q_OBJECT

  public:
    diaToevoegen(Administratie& administratie, QWidget* ouder);

    /// The link file that goes with players that were added and kept, which is to accept this
    /// window. Their save decides whether it stands.
    [[nodiscard]] Koppelverslag NeemVerslag() { return std::move(vorige_.value().verslag); }

    /// "Annuleren", Escape and the close box: table, `HKEY` and link file become what they were.
    void reject() override;

  private:
    void BouwKader(QGroupBox* Frame1);
    void VulZittingen();
    void KiesZitting();
    void LeesNamen();
    void VoegToe();
    void MeldLeesfout(const QString& wat, const Fout& fout);
    [[nodiscard]] Tekst Zitting() const;

    /// What adding replaced, kept until the user has decided.
    struct Vorige {
        Register spelers;
        Koppelverslag verslag;
    };

    Administratie& administratie_;
    std::vector<Tekst> zittingen_;
    std::vector<Sessiespeler> namen_;
    std::optional<Vorige> vorige_;
    std::string gemeld_; ///< the file of the last message about fetching a player list

    QComboBox* Combo1;
    QPushButton* cmdLeesSpelers;
    QListWidget* lstN2;
    QLabel* Label4;
    QPushButton* cmdStart;
    QPushButton* OKButton;
};

} // namespace plexoran
