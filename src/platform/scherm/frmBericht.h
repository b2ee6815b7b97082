// A report that is too long for a message box: it scrolls and can be copied.
#pragma once

#include <QDialog>

namespace plexoran {

class frmBericht : public QDialog {
    Q_OBJECT

  public:
    frmBericht(const QString& tekst, const QString& titel, QWidget* ouder);
};

} // namespace plexoran
