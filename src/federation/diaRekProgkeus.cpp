#include "federation/diaRekProgkeus.h"

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

diaRekProgkeus::diaRekProgkeus(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(u"diaRekProgkeus"_s);
    setWindowTitle(u"Maak een keus"_s);
    auto* Frame1 = MaakKader(u"Frame1"_s, QString(), this, u"Rekenprogramma"_s);
    auto* Option1 = MaakOptie(u"Option1"_s, u"NBB-Rekenprogamma"_s, u'N', Frame1);
    auto* Option2 = MaakOptie(u"Option2"_s, u"Bridge-It"_s, u'B', Frame1);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this, &QDialog::accept);
    cmdOK->setDefault(true);
    cmdOK->setEnabled(false);

    auto* keuzes = new QVBoxLayout(Frame1);
    for (const auto& [optie, programma] :
         {std::pair{Option1, Programma::NBBR}, std::pair{Option2, Programma::BridgeIt}}) {
        keuzes->addWidget(optie);
        connect(optie, &QRadioButton::clicked, this, [this, cmdOK, programma = programma] {
            antwoord_ = programma;
            cmdOK->setEnabled(true);
        });
    }
    auto* Label1 =
        MaakLabel(u"Label1"_s, u"Op deze computer zijn 2 Rekenprogramma's aangetroffen."_s, this);
    auto* lagen =
        Onderelkaar({Label1, MaakLabel(u"Label2"_s, u"Maak een keus"_s, this), Frame1}, this);
    lagen->addWidget(cmdOK, 0, Qt::AlignRight);
    lagen->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace plexoran
