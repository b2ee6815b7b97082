#include "platform/scherm/frmVoortgang.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

constexpr qint64 TotInBeeld = 500; // milliseconds

qint64 WachtVoorBeeld()
{
    const QVariant anders = qApp->property(VoortgangNa);
    return anders.isValid() ? anders.toLongLong() : TotInBeeld;
}

} // namespace

frmVoortgang::frmVoortgang(const QString& tekst, const QString& stop, QWidget* ouder)
    : QWidget(ouder, Qt::Dialog), lblTekst(MaakLabel(QStringLiteral("lblTekst"), tekst, this)),
      balk(new Voortgangsbalk(QStringLiteral("balk"), this)), totInBeeld_(WachtVoorBeeld())
{
    setObjectName(QStringLiteral("frmVoortgang"));
    setWindowTitle(QStringLiteral("Plexoran"));
    setWindowModality(Qt::ApplicationModal);
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(lblTekst);
    lagen->addWidget(balk);
    if (!stop.isEmpty()) {
        cmdStop = new QPushButton(stop, this);
        Noem(cmdStop, QStringLiteral("cmdStop"));
        connect(cmdStop, &QPushButton::clicked, this, &frmVoortgang::Stop);
        lagen->addLayout(Knoppenrij({cmdStop}));
    }
    const Maten maten;
    setMinimumWidth(maten.Twips(5400));
}

void frmVoortgang::ZetTekst(const QString& tekst)
{
    lblTekst->setText(tekst);
}

bool frmVoortgang::Meld(std::size_t gedaan, std::size_t geheel)
{
    if (balk->Duur() >= totInBeeld_ && balk->Zet(gedaan, geheel, !isVisible())) {
        show();
        QApplication::processEvents();
    }
    return !gestopt_;
}

Voortgang frmVoortgang::AlsVoortgang()
{
    return [this](std::size_t gedaan, std::size_t geheel) { return Meld(gedaan, geheel); };
}

void frmVoortgang::Stop()
{
    if (cmdStop == nullptr)
        return;
    gestopt_ = true;
    cmdStop->setEnabled(false);
}

/// The window stays until the work has come to its end: without it the windows behind it would take
/// commands in the middle of the work.
void frmVoortgang::closeEvent(QCloseEvent* gebeurtenis)
{
    Stop();
    gebeurtenis->ignore();
}

void frmVoortgang::keyPressEvent(QKeyEvent* gebeurtenis)
{
    if (gebeurtenis->key() == Qt::Key_Escape)
        Stop();
    else
        QWidget::keyPressEvent(gebeurtenis);
}

} // namespace plexoran
