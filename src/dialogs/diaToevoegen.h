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

    /// Whether players were added and kept, so that there is something to save.
    [[nodiscard]] bool ToegevoegdEnBewaard() const { return bewaard_; }
    /// The link file that goes with them. Their save decides whether it stands.
    [[nodiscard]] Koppelverslag NeemVerslag() { return std::move(vorige_.value().verslag); }

    /// "Annuleren", Escape and the close box: table, `HKEY` and link file become what they were.
    void reject() override;

  protected:
    void showEvent(QShowEvent* gebeurtenis) override;

  private:
    void MaakDelen(QGroupBox* Frame1);
    void Bouw();
    void Verbind();
    void VulZittingen();
    void KiesZitting();
    void LeesNamen();
    void VoegToe();
    void Bewaar();
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
    bool geladen_ = false;
    bool bewaard_ = false;

    QLabel* Label1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QPushButton* cmdLeesSpelers = nullptr;
    QListWidget* lstN2 = nullptr;
    QLabel* Label4 = nullptr;
    QPushButton* cmdStart = nullptr;
    QPushButton* OKButton = nullptr;
    QPushButton* cmdAnnuleren = nullptr;
};

} // namespace plexoran
