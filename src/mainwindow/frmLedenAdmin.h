// The main window: one group of the register in a grid, and every command of the program.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>

#include <functional>
#include <optional>
#include <set>
#include <span>

#include "dialogs/frmVeld.h"
#include "dialogs/ingave.h"
#include "federation/frmImportNBB.h"
#include "mainwindow/bestandswacht.h"
#include "mainwindow/frmLedenAdmin_opslag.h"
#include "mainwindow/lijsten.h"
#include "mainwindow/rooster.h"
#include "mainwindow/venstergeheugen.h"
#include "mainwindow/zoekbalk.h"
#include "platform/scherm/maten.h"
#include "register/aanwezigheid.h"
#include "register/herstel.h"

class QLayout;
class QMenu;
class QShortcut;
class QStackedLayout;

namespace plexoran {

class Kortlabel;
class frmPrintIni;

class frmLedenAdmin : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmLedenAdmin(Administratie& administratie, QWidget* ouder = nullptr);

    /// Starts up and shows the group of last time. Nothing when the program can go on, else the
    /// exit status with which it ends at once. `eersteExemplaar` tells whether no other instance of
    /// the program runs.
    [[nodiscard]] std::optional<int> Laad(const Pad& mappenIni,
                                          std::function<bool()> eersteExemplaar);

    /// Whether the user closed it to go on with another administration.
    [[nodiscard]] bool MoetOpnieuw() const { return moetOpnieuw_; }
    /// Over the windows of other programs, also when it was made small.
    void KomNaarVoren();

    /// Shows the selected group anew, after a choice or a change.
    void ToonGroep();
    /// Shows what other programs made of the files since, the selection and the place kept.
    void VolgBestanden();

  protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;
    void changeEvent(QEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    // Building (frmLedenAdmin_bouw.cpp)
    void Bouw();
    QWidget* BouwBovenkant();
    QWidget* BouwOnderblad();
    QWidget* BouwOpdrachten();
    QLayout* BouwSpelerkolom();
    QLayout* BouwVerwijderkolom();
    QLayout* BouwLijstkolom();
    QLayout* BouwBondkolom();
    QLayout* BouwOnderkant();

    // The menus, the line below, and how the user wants to see it (frmLedenAdmin_menu.cpp)
    struct Opdracht;
    struct Menupunt {
        QAction* actie;
        const Opdracht* opdracht;
        QAbstractButton* knop;
    };
    [[nodiscard]] static std::span<const Opdracht> Opdrachten();
    void BouwMenu();
    void VoegOpdrachtToe(QMenu* menu, const Opdracht& opdracht);
    void BouwKolommenu(QMenu* menu);
    void ToonKopmenu(int kolom, QPoint plek);
    void WerkOpdrachtenBij();
    [[nodiscard]] std::vector<int> GekozenRijen() const;
    void Sorteer(int kolom);
    void ToonKolom(std::size_t kolom, bool tonen);
    void KiesKolommen(const Kolomkeuzes& keuzes);
    void VerdeelKolommen();
    void HerstelBreedten();
    void HerstelKolommen();
    void ToonKnoppen(bool tonen);
    void NaarGroep();
    void NaarRooster();
    void NaarZoeken();
    void KopieerGekozen();
    void ToonToetsen();
    void BouwStatus();
    void ToonGekozene();
    void ToonOpgeslagen();
    void ToonOngedaan();
    void ToonAdministratie();
    void ToonMelding(const QString& tekst = {});
    void ToonStatus(const QString& tekst);

    [[nodiscard]] bool IsEersteExemplaar();
    [[nodiscard]] bool MagErbij();
    void ZetOpKijken();
    [[nodiscard]] bool MagWijzigen();
    [[nodiscard]] bool VolgGroepsnamen();
    void ToonTweedePlaats();
    void KiesGroep(int plaats);
    void KiesSpeler(const Tekst& key);
    [[nodiscard]] Tekst GekozenKey() const;
    [[nodiscard]] int GekozenRij() const;
    [[nodiscard]] Tekst Groeptekst() const;
    void BewaarInstellingen();

    // What was done, and undoing it (frmLedenAdmin_geschiedenis.cpp)
    void BouwTerugmenu(QMenu* menu);
    void Draai(Handelingsoort soort);
    void DraaiTerug(const Handeling& handeling, Handelingsoort soort);
    void DraaiSpelers(const Wijziging& wijziging, Handelingsoort soort, QStringList& rest);
    [[nodiscard]] bool DraaiBestand(const Wijziging& wijziging, Handelingsoort soort,
                                    QStringList& rest);
    void ToonGeschiedenis(const Tekst& key, const QString& van = {});
    void ToonSpeler();
    void MeldGeschiedenisfout();

    // Finding, and what is done with all that are chosen (frmLedenAdmin_gekozen.cpp)
    /// What of the grid one comes back to; players are known by their keys.
    struct Roosterplek {
        int groep = 0;
        Tekst huidige{};
        std::set<Tekst> gekozen{};
        int hoogte = 0;
    };
    [[nodiscard]] Roosterplek NeemPlek() const;
    void ZetPlek(Roosterplek plek);
    void BouwGekozenmenu();
    void OpenZoeken(bool open);
    bool GaNaar(int rij);
    [[nodiscard]] bool KiestInLijst() const;
    [[nodiscard]] std::vector<int> TeDoenRijen();
    [[nodiscard]] Namenrij NamenVan(const std::vector<int>& rijen) const;
    [[nodiscard]] bool BrengInRooster();
    void DoeGekozen(Gekozenwerk werk);
    template <Gekozenwerk werk> void DoeGekozen() { DoeGekozen(werk); }
    void PrintGekozen();
    void Exporteer();
    void ExporteerGekozen();
    void OpenExport(std::vector<int> rijen);
    void Mail();
    void MailGekozen();
    void EtikettenGekozen();
    void MaakPaarGekozen();
    void VerwijderGekozen();

    // Commands (frmLedenAdmin_opdrachten.cpp)
    void VoegToe();
    void Wijzig();
    bool ToonIngave(Ingave& ingave);
    void VerwijderRij();
    void VerwijderVanTot();
    void Verwijder(const std::vector<int>& rijen, const QString& regels, const Tekst& wie,
                   const QString& klaar);
    void WijzigGroepsnamen();
    std::optional<Bewaring> BewaarGroepen(const Groepen& oud);
    void Verplaats();
    void Kopieer();
    void VerwijderGroep();
    bool SlaOpEnToon(const QString& klaar = QString());
    bool SlaOpEnKies(const std::vector<Rijverschil>& verschillen, Tekst gekozen);
    [[nodiscard]] bool IsAllesOpgeslagen();
    [[nodiscard]] bool IsRegelGekozen();
    [[nodiscard]] int RijOp(int regel) const;

    // Those that open a window of their own (frmLedenAdmin_vensters.cpp)
    void ToonSorteerlijst(Sorteersoort soort);
    void ToonDubbeleNamen();
    void HaalNBBnamen();
    void VoegSessiespelersToe();
    void ImporteerLijst();
    void KoppelZwevenden();
    void OnderhoudParen();
    void OpenParen(const Tekst& groeptekst, const std::vector<int>& rijen);
    void Controleer();
    void ToonOverzicht();
    void KiesAdministratie();
    void ZoekDubbelen();
    void ZetTerug();
    void ToonToelichting();
    void ToonHandleiding();
    void Print();
    void OpenPrintkeuze(frmPrintIni& venster);
    void StartGatenlijst();

    Administratie& administratie_;
    Spelersopslag opslag_;
    Bestandswacht wacht_;
    Maten maten_;
    Importgeheugen importgeheugen_;
    std::function<bool()> eersteExemplaar_;
    std::optional<Aanwezigheid> aanwezigheid_;
    Venstergeheugen geheugen_;
    std::vector<Menupunt> opdrachten_;
    std::array<QAction*, AantalKolommen + 1> volgorden_{}; ///< element 0 is table order
    std::array<QAction*, AantalKolommen + 1> kolommen_{};
    std::optional<Kolom> volgorde_; ///< by which the lines are sorted; else table order
    QTimer hartslag_{this};
    bool alleenKijken_ = false;
    bool moetOpnieuw_ = false;
    bool instellingenfoutGemeld_ = false; ///< told once, not at every change of group

    QTimer meldtijd_;     ///< how long a message stays
    Kortlabel* lblSpeler; ///< these six at the foot
    Kortlabel* lblOngedaan;
    Kortlabel* lblMelding; ///< for what asks no answer
    QLabel* lblGekozen;
    QLabel* lblOpgeslagen;
    Kortlabel* lblAdministratie;
    QAction* actKnoppen;
    Rooster* picP0;
    QWidget* knoppen_; ///< all that stands under the grid, or who was found
    Zoekbalk* picZoek;
    QStackedLayout* onderblad_; ///< the commands, or who was found
    QShortcut* terug_;          ///< to where one was when the finding began
    Roosterplek vanwaar_{};
    bool inRooster_ = true;      ///< had the keys last, not who was found
    QMenu* mnuGekozen = nullptr; ///< what can be done with all that are chosen
    QLabel* Label3;
    QComboBox* cmbGr;
    QCheckBox* chkKolBr;
    QCheckBox* chkToonAlle;
    QComboBox* cmbVerwVan;
    QComboBox* cmbVerwTot;
    QStringListModel* regelnummers_; ///< 1 to as many as the grid has lines
    QPushButton* cmdWijzig;
    QPushButton* cmdVerwijder;
    QPushButton* cmdVerwijderVT;
    QPushButton* cmdSortlijst2;
    QPushButton* cmdSortlijst3;
    QPushButton* cmdHaalNBBnamen;
    QPushButton* cmdKoppel;
    QPushButton* cmdToonGatenlijst;
    QPushButton* cmdParenOnderhoud;
    QPushButton* cmdPrint;
};

} // namespace plexoran
