// The first start: a suite that is there already, a new administration, or a club to practise with.
// What was chosen is remembered for this user.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QRadioButton>

#include "platform/scherm/tekstvak.h"
#include "register/eerstestart.h"

class QFileDialog;

namespace plexoran {

/// Of this user on this computer.
[[nodiscard]] Startomgeving HuidigeOmgeving();

/// The first of these folders whose name the suite can write and in which this user may write, or
/// else the first.
[[nodiscard]] Pad EersteBruikbare(const QStringList& mappen);

class frmEersteStart : public QDialog {
    Q_OBJECT

  public:
    /// `open` is the "Mappen.ini" to start with, so far.
    frmEersteStart(Schijf& schijf, const Startomgeving& omgeving, QWidget* ouder,
                   const Pad& open = {});

    /// The one to start with, once the window was accepted.
    [[nodiscard]] const Pad& MappenIni() const { return mappenIni_; }

    void accept() override;

  private:
    void Bouw(const QString& weg);
    void ToonKeus();
    void ZoekSuite();
    void KiesMap();
    [[nodiscard]] Pad GekozenIn(QFileDialog& kiezer);
    void VoegSuiteToe(const Pad& pad);
    [[nodiscard]] Pad NieuweMap() const;

    // Each gives the "Mappen.ini" to start with, or nothing when the user was told why not.
    [[nodiscard]] std::optional<Pad> KiesBestaande();
    [[nodiscard]] std::optional<Pad> MaakNieuwe();
    [[nodiscard]] std::optional<Pad> Oefen();
    [[nodiscard]] std::optional<Pad> Gelezen(const Pad& pad);
    [[nodiscard]] std::optional<Pad> Maak(const Pad& map, const std::vector<Zipdeel>& delen,
                                          const Pad& spelersmap);
    void MeldFoutIn(const Fout& fout);

    Schijf& schijf_;
    const Startomgeving& omgeving_;
    std::vector<Pad> suites_; ///< of the lines of lstSuites
    Pad map_;                 ///< in which the new administration comes
    Pad mappenIni_;

    QRadioButton* optBestaand;
    QListWidget* lstSuites;
    QPushButton* cmdBladeren;
    QRadioButton* optNieuw;
    Tekstvak* txtClub;
    QLineEdit* txtPlaats;
    QPushButton* cmdMap;
    QRadioButton* optOefenen;
};

} // namespace plexoran
