// Mail to players: their addresses to the mail program, or to the clipboard.
#pragma once

#include <QDialog>

#include "exchange/mailadressen.h"
#include "register/administratie.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;

namespace plexoran {

class frmMail : public QDialog {
    Q_OBJECT

  public:
    /// To the players in these rows.
    frmMail(const Administratie& administratie, const std::vector<int>& rijen, QWidget* ouder);

  private:
    [[nodiscard]] QGroupBox* BouwMail();
    [[nodiscard]] QGroupBox* BouwKlembord();
    void MaakMails();
    void OpenMail();
    void Toon(const QString& gedaan);

    Mailadressen wie_;
    std::vector<Mail> mails_;
    std::size_t volgende_ = 0; ///< of the mails

    QComboBox* cmbPortie = nullptr;
    QPushButton* cmdMail = nullptr;
    QComboBox* cmbTeken = nullptr;
    QPushButton* cmdKopieer = nullptr;
    QLabel* lblGedaan = nullptr;
};

} // namespace plexoran
