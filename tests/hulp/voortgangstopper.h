// Stops long work as its user does: by a click on the button of the progress window.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "hulp/venstergrepen.h"
#include "platform/scherm/frmVoortgang.h"

namespace plexoran {

/// As long as it lives the progress window comes at once and shows every step. It clicks when so
/// many steps were shown; with 0 it only counts them.
class Voortgangstopper : public QObject {
  public:
    explicit Voortgangstopper(int naStappen) : naStappen_(naStappen)
    {
        frmVoortgang::totInBeeld = 0;
        qApp->installEventFilter(this);
    }
    ~Voortgangstopper() override { frmVoortgang::totInBeeld = totInBeeld_; }
    Voortgangstopper(const Voortgangstopper&) = delete;
    Voortgangstopper& operator=(const Voortgangstopper&) = delete;
    Voortgangstopper(Voortgangstopper&&) = delete;
    Voortgangstopper& operator=(Voortgangstopper&&) = delete;

    [[nodiscard]] int Stappen() const { return stappen_; }

    bool eventFilter(QObject* object, QEvent* gebeurtenis) override
    {
        if (auto* venster = qobject_cast<frmVoortgang*>(object);
            venster != nullptr && gebeurtenis->type() == QEvent::Show) {
            auto* balk = Vind<QProgressBar>(*venster, "balk");
            connect(balk, &QProgressBar::valueChanged, this, [=, this] { Stap(*venster); });
            Stap(*venster);
        }
        return false;
    }

  private:
    void Stap(frmVoortgang& venster)
    {
        if (++stappen_ != naStappen_)
            return;
        auto* knop = Vind<QPushButton>(venster, "cmdStop");
        QTimer::singleShot(0, knop, [knop] { QTest::mouseClick(knop, Qt::LeftButton); });
    }

    int totInBeeld_ = frmVoortgang::totInBeeld;
    int naStappen_;
    int stappen_ = 0;
};

} // namespace plexoran
