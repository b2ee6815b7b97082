// All keys, by where they work: those of the main window read off its menus and buttons, so that
// the list is as they are, and those of lists and windows.
#pragma once

#include <QDialog>

namespace plexoran {

class frmToetsen : public QDialog {
    Q_OBJECT

  public:
    explicit frmToetsen(QWidget& hoofdvenster);
};

} // namespace plexoran
