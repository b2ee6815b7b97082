// Works the progress window while the work goes on, such as stopping it by a click on its button.
#pragma once

#include <QEvent>
#include <QProgressBar>
#include <QTimer>

#include <functional>

#include "hulp/venstergrepen.h"
#include "platform/scherm/frmVoortgang.h"

namespace plexoran {

/// As long as it lives the progress window comes at once and shows every step. When so many steps
/// were shown, it does something with the window once; with 0 it only counts them.
class Voortgangstopper : public QObject {
  public:
    using Ingreep = std::function<void(frmVoortgang&)>;

    explicit Voortgangstopper(
        int naStappen, Ingreep doe = [](frmVoortgang& venster) { Druk(venster, "cmdStop"); })
        : naStappen_(naStappen), doe_(std::move(doe))
    {
        frmVoortgang::totInBeeld = 0;
        qApp->installEventFilter(this);
    }
    ~Voortgangstopper() override { frmVoortgang::totInBeeld = totInBeeld_; }
    Q_DISABLE_COPY_MOVE(Voortgangstopper)

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
        if (++stappen_ == naStappen_)
            QTimer::singleShot(0, &venster, [this, &venster] { doe_(venster); });
    }

    int totInBeeld_ = frmVoortgang::totInBeeld;
    int naStappen_;
    Ingreep doe_;
    int stappen_ = 0;
};

} // namespace plexoran
