// Explains the register as a whole, and prints the explanation.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

#include <functional>

#include "platform/scherm/printer.h"

namespace plexoran {

class frmToelichting : public QDialog {
    Q_OBJECT

  public:
    using Printerkeus = std::function<Uitkomst<Printer>()>;

    /// Prints on the printer that `printer` gives.
    explicit frmToelichting(QWidget* hoofdvenster, Printerkeus printer = StandaardPrinter);

  private:
    void Bouw();
    void Print();
    [[nodiscard]] Uitkomst<void> PrintTekst() const;

    Printerkeus printer_;
    QPlainTextEdit* Text1 = nullptr;
    QPushButton* cmdPrintToel = nullptr;
    QPushButton* cmdEinde = nullptr;
};

} // namespace plexoran
