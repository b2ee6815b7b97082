// How far long work is. The window comes after half a second, so that short work shows nothing;
// while it stands there the program goes on painting but takes no other command.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include "platform/schijf/fout.h"

namespace plexoran {

class frmVoortgang : public QProgressDialog {
    Q_OBJECT

  public:
    /// Milliseconds until the window comes; a test lets it come sooner.
    static inline int totInBeeld = 500;

    /// `stop` is the caption of the button with which the user may stop the work, its mnemonic
    /// marked; empty where stopping is not safe.
    frmVoortgang(const QString& tekst, const QString& stop, QWidget* ouder);

    /// What is done of the whole, 0 where the whole is not known. False once the user wants to
    /// stop.
    /// Screen readers hear the text, each quarter of the work, and its end.
    bool Meld(std::size_t gedaan, std::size_t geheel);
    ~frmVoortgang() override { hide(); }
    [[nodiscard]] bool Gestopt() const { return gestopt_; }
    /// The same for a rule; the window must outlive it.
    [[nodiscard]] Voortgang AlsVoortgang() { return std::bind_front(&frmVoortgang::Meld, this); }

    /// Escape and the close box ask the work to stop. The window stays until it has come to its
    /// end: without it the windows behind it would take commands in the middle of the work.
    void reject() override { emit canceled(); }

  protected:
    void hideEvent(QHideEvent* gebeurtenis) override;

  private:
    QElapsedTimer sinds_;
    bool gestopt_ = false;
    int kwart_ = -1; ///< that was spoken
};

} // namespace plexoran
