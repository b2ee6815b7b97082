// A report that is too long for a message box: it scrolls and can be copied.
#pragma once

#include <QDialog>

namespace plexoran {

class frmBericht : public QDialog {
    Q_OBJECT

  public:
    /// `icoon` is null for none.
    frmBericht(const QString& tekst, const QString& titel, const QPixmap& icoon, QWidget* ouder);
};

} // namespace plexoran
