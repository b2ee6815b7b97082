#include "dialogs/diaVerplaats.h"

#include "platform/scherm/berichten.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

diaVerplaats::diaVerplaats(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"diaVerplaats"_s);
    setWindowTitle(u"Verplaats speler(s) naar een andere groep"_s);
    auto* Frame1 = MaakKader(u"Frame1"_s, QString(), this);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"Verplaats"_s, u'V', this, &QDialog::accept);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &QDialog::reject);
    auto* Label2 = MaakLabel(u"Label2"_s, u"Verplaats hen naar de volgende groep:"_s, Frame1);
    cmbGrnamen = MaakKeus(u"cmbGrnamen"_s, Label2, Frame1);
    VulKeus(*cmbGrnamen, administratie.groepen.Toonteksten());
    const Spelertabel& tabel = administratie.spelers.tabel;
    keus_ = new Spelerkeus(tabel, cmdOK, Frame1);
    keus_->VulKeuslijst(VerplaatsbareRijen(tabel, administratie.mappen.DFIMPG), Verplaatsregel);

    auto* Label3 =
        MaakLabel(u"Label3"_s, u"Spelers van 'Gr05-' kunnen niet worden verplaatst. "_s, Frame1);
    auto* Label4 = MaakLabel(u"Label4"_s,
                             u"Spelers mogen wel naar groep 'Gr05-' worden verplaatst."_s, Frame1);
    Onderelkaar({keus_, Label2, cmbGrnamen, Label3, Label4}, Frame1)->setStretch(0, 1);
    Onderelkaar({{Frame1, 1}, Knoppenrij({cmdAnnuleren, cmdOK})}, this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(6900, 8100));
    cmdOK->setDefault(true);
    ZetTabvolgorde(
        {keus_->lstKeus, keus_->cmdSelAll, keus_->cmdSelNone, cmbGrnamen, cmdAnnuleren, cmdOK});
    keus_->lstKeus->setFocus();
}

void diaVerplaats::accept()
{
    const auto keys = keus_->GekozenKeys();
    VerplaatsSpelers(administratie_.spelers.tabel, keys,
                     Groepscode(cmbGrnamen->currentIndex() + 1));
    administratie_.geschiedenis.Noem(NaarTekst(u"%1 verplaatst naar %2"_s.arg(
        Aantal(keys.size(), u"speler"_s, u"spelers"_s), cmbGrnamen->currentText())));
    QDialog::accept();
}

} // namespace plexoran
