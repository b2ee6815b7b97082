// Explains pairs, groups and subgroups.
#pragma once

#include <QDialog>

namespace plexoran {

class frmUitleg : public QDialog {
    Q_OBJECT

  public:
    explicit frmUitleg(QWidget* ouder);
};

} // namespace plexoran
