// The windows that explain.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>

#include <functional>

#include "platform/scherm/printer.h"

namespace plexoran {

/// Explains the register as a whole, and prints the explanation.
class frmToelichting : public QDialog {
    Q_OBJECT

  public:
    using Printerkeus = std::function<Uitkomst<Printer>()>;

    /// Prints on the printer that `printer` gives.
    explicit frmToelichting(QWidget* hoofdvenster, Printerkeus printer = StandaardPrinter);

  private:
    [[nodiscard]] Uitkomst<void> Print() const;

    Printerkeus printer_;
    QPlainTextEdit* Text1;
};

/// Explains pairs, groups and subgroups.
class frmUitleg : public QDialog {
    Q_OBJECT

  public:
    explicit frmUitleg(QWidget* ouder);
};

} // namespace plexoran
