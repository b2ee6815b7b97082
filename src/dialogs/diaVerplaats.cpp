#include "dialogs/diaVerplaats.h"

#include "platform/scherm/schuifblad.h"

namespace plexoran {

diaVerplaats::diaVerplaats(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), tabel_(administratie.spelers.tabel)
{
    setObjectName(u"diaVerplaats"_s);
    setWindowTitle(u"Verplaats speler(s) naar een andere groep"_s);
    auto* Frame1 = MaakKader(u"Frame1"_s, QString(), this);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"Verplaats"_s, u'V', this, &QDialog::accept);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &QDialog::reject);
    const auto label = [&](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, Frame1);
    };
    auto* Label2 = label(u"Label2"_s, u"Verplaats hen naar de volgende groep:"_s);
    cmbGrnamen = MaakKeus(u"cmbGrnamen"_s, Label2, Frame1);
    VulKeus(*cmbGrnamen, administratie.groepen.Toonteksten());
    keus_ = new Spelerkeus(tabel_, cmdOK, Frame1);
    keus_->VulKeuslijst(VerplaatsbareRijen(tabel_, administratie.mappen.DFIMPG), Verplaatsregel);

    auto* binnen = new QVBoxLayout(Frame1);
    binnen->addWidget(keus_, 1);
    binnen->addWidget(Label2);
    binnen->addWidget(cmbGrnamen);
    binnen->addWidget(label(u"Label3"_s, u"Spelers van 'Gr05-' kunnen niet worden verplaatst. "_s));
    binnen->addWidget(
        label(u"Label4"_s, u"Spelers mogen wel naar groep 'Gr05-' worden verplaatst."_s));
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Frame1, 1);
    lagen->addLayout(Knoppenrij({cmdAnnuleren, cmdOK}));
    const Maten maten;
    ZetOpSchuifblad(this);
    PasInScherm(this, {maten.Twips(6900), maten.Twips(8100)});
    cmdOK->setDefault(true);
    ZetTabvolgorde(
        {keus_->lstKeus, keus_->cmdSelAll, keus_->cmdSelNone, cmbGrnamen, cmdAnnuleren, cmdOK});
    keus_->lstKeus->setFocus();
}

void diaVerplaats::accept()
{
    VerplaatsSpelers(tabel_, keus_->GekozenKeys(), Groepscode(cmbGrnamen->currentIndex() + 1));
    QDialog::accept();
}

} // namespace plexoran
