// The check of the whole administration: what was found, by kind, with where it is and what to do
// about it. The list can be printed and saved.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "controle/controle.h"
#include "platform/scherm/boom.h"
#include "register/administratie.h"

namespace plexoran {

/// A session as a line names it, without the positions in it.
[[nodiscard]] QString Zittingnaam(const Zittingplek& plek);

class frmControle : public QDialog {
    Q_OBJECT

  public:
    /// Reads the whole suite, which may take a while and can be stopped.
    frmControle(Administratie& administratie, QWidget* ouder);

    /// Whether the register is to be saved: the highest key issued was raised.
    [[nodiscard]] bool IetsGewijzigd() const { return administratie_.spelers.HKEY != oudeHKEY_; }

  private:
    void Bouw();
    void VulLijst();
    void ToonRaad();
    void Herstel();
    void SlaOp();
    void Print();
    [[nodiscard]] bool IsHersteld(const Vondst& vondst) const
    {
        return vondst.soort == Vondstsoort::BovenHKEY && IetsGewijzigd();
    }
    [[nodiscard]] QString Samenvatting() const;
    [[nodiscard]] QString Verslag() const;

    Administratie& administratie_;
    Controleuitslag uitslag_;
    std::int32_t oudeHKEY_;

    QLabel* lblUitslag = nullptr;
    QTreeWidget* lstVondsten = nullptr;
    QPlainTextEdit* txtRaad = nullptr;
    QPushButton* cmdHerstel = nullptr;
};

} // namespace plexoran
