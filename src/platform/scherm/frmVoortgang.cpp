#include "platform/scherm/frmVoortgang.h"

#include <QApplication>
#include <QProgressBar>

#include <limits>
#include <utility>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

frmVoortgang::frmVoortgang(const QString& tekst, const QString& stop, QWidget* ouder)
    : QProgressDialog(QString(), QString(), 0, 0, ouder) // else Escape stands for two buttons
{
    setObjectName(u"frmVoortgang"_s);
    setWindowTitle(u"Plexoran"_s);
    setWindowModality(Qt::ApplicationModal);
    setAutoReset(false);
    // By its own timer it would come over a box that is shown during the work.
    setMinimumDuration(std::numeric_limits<int>::max());
    reset(); // stops the timer that runs already
    disconnect(this, &QProgressDialog::canceled, nullptr, nullptr); // which hides it at once
    setLabel(MaakUitleg(u"lblTekst"_s, tekst, this));
    auto* balk = new QProgressBar(this);
    Noem(balk, u"balk"_s, u"Voortgang"_s);
    setBar(balk);
    if (!stop.isEmpty()) {
        auto* knop = new QPushButton(stop, this);
        Noem(knop, u"cmdStop"_s);
        setCancelButton(knop);
        connect(this, &QProgressDialog::canceled, this, [this, knop] {
            gestopt_ = true;
            knop->setEnabled(false);
        });
    }
    const Maten maten;
    setMinimumWidth(maten.Twips(5400));
    setMaximumWidth(maten.Twips(9900)); // however long the name of a file is
    sinds_.start();
}

void frmVoortgang::hideEvent(QHideEvent* gebeurtenis)
{
    QProgressDialog::hideEvent(gebeurtenis);
    Spreek(findChild<QLabel*>(u"lblTekst"_s),
           labelText() + (gestopt_ ? u" Gestopt"_s : u" Klaar"_s));
}

bool frmVoortgang::Meld(std::size_t gedaan, std::size_t geheel)
{
    constexpr int delen = 1000; // of the bar; counts may exceed what it can hold
    if (sinds_.elapsed() >= totInBeeld) {
        setMaximum(geheel == 0 ? 0 : delen);
        setValue(geheel == 0 ? 0 : static_cast<int>(delen * gedaan / geheel));
        show();
        if (const int kwart = 4 * value() / delen; std::exchange(kwart_, kwart) != kwart)
            Spreek(findChild<QLabel*>(u"lblTekst"_s),
                   kwart <= 0 ? labelText() : u"%1 %2 %"_s.arg(labelText()).arg(25 * kwart));
        QApplication::processEvents();
    }
    return !gestopt_;
}

} // namespace plexoran
