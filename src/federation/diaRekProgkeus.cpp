#include "federation/diaRekProgkeus.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

diaRekProgkeus::diaRekProgkeus(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(u"diaRekProgkeus"_s);
    setWindowTitle(u"Maak een keus"_s);
    auto* Label1 = new QLabel(u"Op deze computer zijn 2 Rekenprogramma's aangetroffen."_s, this);
    Noem(Label1, u"Label1"_s);
    auto* Label2 = new QLabel(u"Maak een keus"_s, this);
    Noem(Label2, u"Label2"_s);

    auto* Frame1 = new QGroupBox(this);
    Noem(Frame1, u"Frame1"_s, u"Rekenprogramma"_s);
    Option1 = MaakOptie(u"Option1"_s, u"NBB-Rekenprogamma"_s, u'N', Frame1);
    Option2 = MaakOptie(u"Option2"_s, u"Bridge-It"_s, u'B', Frame1);
    cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this);
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
