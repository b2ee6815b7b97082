// How far long work is. The window comes after half a second, so that short work shows nothing;
// while it stands there the program goes on painting but takes no other command.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/scherm/voortgangsbalk.h"
#include "platform/voortgang.h"

namespace plexoran {

/// The property of the application by which a test lets the window come sooner, after so many
/// milliseconds.
inline constexpr auto VoortgangNa = "voortgangNa";

class frmVoortgang : public QWidget {
    Q_OBJECT

  public:
    /// `stop` is the caption of the button with which the user may stop the work, its mnemonic
    /// marked; empty where stopping is not safe.
    frmVoortgang(const QString& tekst, const QString& stop, QWidget* ouder);

    void ZetTekst(const QString& tekst);
    /// What is done of the whole, 0 where the whole is not known. False once the user wants to
    /// stop.
    bool Meld(std::size_t gedaan, std::size_t geheel);
    [[nodiscard]] bool Gestopt() const { return gestopt_; }
    /// The same for a rule; the window must outlive it.
    [[nodiscard]] Voortgang AlsVoortgang();

  protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Stop();

    QLabel* lblTekst;
    Voortgangsbalk* balk;
    QPushButton* cmdStop = nullptr; ///< none where stopping is not safe
    qint64 totInBeeld_;             ///< milliseconds
    bool gestopt_ = false;
};

} // namespace plexoran
