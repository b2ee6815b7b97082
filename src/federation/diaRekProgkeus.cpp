#include "federation/diaRekProgkeus.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

diaRekProgkeus::diaRekProgkeus(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(QStringLiteral("diaRekProgkeus"));
    setWindowTitle(QStringLiteral("Maak een keus"));
    auto* Label1 =
        new QLabel(QStringLiteral("Op deze computer zijn 2 Rekenprogramma's aangetroffen."), this);
    Noem(Label1, QStringLiteral("Label1"));
    auto* Label2 = new QLabel(QStringLiteral("Maak een keus"), this);
    Noem(Label2, QStringLiteral("Label2"));

    auto* Frame1 = new QGroupBox(this);
    Noem(Frame1, QStringLiteral("Frame1"), QStringLiteral("Rekenprogramma"));
    Option1 =
        MaakOptie(QStringLiteral("Option1"), QStringLiteral("NBB-Rekenprogamma"), u'N', Frame1);
    Option2 = MaakOptie(QStringLiteral("Option2"), QStringLiteral("Bridge-It"), u'B', Frame1);
    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("OK"), u'O', this);
    cmdOK->setDefault(true);
    cmdOK->setEnabled(false);

    auto* keuzes = new QVBoxLayout(Frame1);
    keuzes->addWidget(Option1);
    keuzes->addWidget(Option2);
    auto* lagen = new QVBoxLayout(this);
    for (QWidget* deel : std::initializer_list<QWidget*>{Label1, Label2, Frame1})
        lagen->addWidget(deel);
    lagen->addWidget(cmdOK, 0, Qt::AlignRight);
    lagen->setSizeConstraint(QLayout::SetFixedSize);

    connect(Option1, &QRadioButton::clicked, this, [this] { Kies(Programma::NBBR); });
    connect(Option2, &QRadioButton::clicked, this, [this] { Kies(Programma::BridgeIt); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void diaRekProgkeus::Kies(Programma programma)
{
    antwoord_ = programma;
    cmdOK->setEnabled(true);
}

} // namespace plexoran
