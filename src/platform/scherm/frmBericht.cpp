#include "platform/scherm/frmBericht.h"

#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/leesvak.h"

namespace plexoran {

frmBericht::frmBericht(const QString& tekst, const QString& titel, const QPixmap& icoon,
                       QWidget* ouder)
    : QDialog(ouder)
{
    setObjectName(QStringLiteral("frmBericht"));
    setWindowTitle(titel);
    auto* txtBericht = MaakLeesvak(QStringLiteral("txtBericht"), titel, tekst, this);
    txtBericht->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("OK"), u'O', this);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* lagen = new QVBoxLayout(this);
    auto* boven = new QHBoxLayout;
    if (!icoon.isNull()) {
        QLabel* lblIcoon = MaakLabel(QStringLiteral("lblIcoon"), QString(), this);
        lblIcoon->setPixmap(icoon);
        boven->addWidget(lblIcoon, 0, Qt::AlignTop);
    }
    boven->addWidget(txtBericht);
    lagen->addLayout(boven);
    lagen->addLayout(Knoppenrij({cmdOK}));
    const Maten maten;
    PasInScherm(this, {maten.Twips(10800), maten.Twips(8100)});
}

} // namespace plexoran
