#include "platform/scherm/frmBericht.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

frmBericht::frmBericht(const QString& tekst, const QString& titel, QWidget* ouder) : QDialog(ouder)
{
    setObjectName(QStringLiteral("frmBericht"));
    setWindowTitle(titel);
    auto* txtBericht = new QPlainTextEdit(tekst, this);
    Noem(txtBericht, QStringLiteral("txtBericht"), titel);
    txtBericht->setReadOnly(true);
    txtBericht->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtBericht->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("OK"), u'O', this);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(txtBericht);
    lagen->addLayout(Knoppenrij({cmdOK}));
    const Maten maten;
    PasInScherm(this, {maten.Twips(10800), maten.Twips(8100)});
}

} // namespace plexoran
