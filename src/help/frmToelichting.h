// Explains the register as a whole, and prints the explanation.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

namespace plexoran {

class frmToelichting : public QDialog {
    Q_OBJECT

  public:
    explicit frmToelichting(QWidget* hoofdvenster);

  private:
    void Bouw();
    void Print();

    QPlainTextEdit* Text1 = nullptr;
    QPushButton* cmdPrintToel = nullptr;
    QPushButton* cmdEinde = nullptr;
};

} // namespace plexoran
