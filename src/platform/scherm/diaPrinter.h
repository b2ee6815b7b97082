// The choice of a printer on a system whose own print dialog has no PDF file among the printers.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "platform/scherm/printer.h"

namespace plexoran {

class diaPrinter : public QDialog {
    Q_OBJECT

  public:
    /// Lists the printers and behind them a PDF file.
    diaPrinter(const Printvraag& vraag, const Printeraanbod& aanbod, QWidget* ouder);

    /// The printer that was chosen; empty for a PDF file.
    [[nodiscard]] QString Printernaam() const;
    /// Where the PDF file goes, by the name that the user gave.
    [[nodiscard]] const QString& Pdfbestand() const { return pdfbestand_; }
    /// The pages for a PDF file; those of a printer are asked by the system.
    [[nodiscard]] Bladkeus Keus() const;

    /// For a PDF file the user first says where; without an answer the dialog stays.
    void accept() override;

  private:
    void VulPrinters(const Printeraanbod& aanbod);
    QGroupBox* BouwBladen(const Printvraag& vraag);
    void ToonPrinter();
    [[nodiscard]] QString VraagBestand();

    QString titel_;
    QString pdfbestand_;
    QComboBox* cmbPrinter;
    QRadioButton* optAlle;
    QRadioButton* optHuidig;
    QRadioButton* optReeks;
    QSpinBox* numVan;
    QSpinBox* numTot;
    QGroupBox* Frame1;
    QPushButton* cmdOK;
};

} // namespace plexoran
