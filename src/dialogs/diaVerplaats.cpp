#include "dialogs/diaVerplaats.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "dialogs/keuslijst.h"
#include "dialogs/verplaatsen.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

diaVerplaats::diaVerplaats(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    VulKeus(*cmbGrnamen, administratie_.groepen.Toonteksten());
    const Spelertabel& tabel = administratie_.spelers.tabel;
    keus_->Vul(VerplaatsbareRijen(tabel, administratie_.mappen.DFIMPG),
               [&tabel](int rij) { return Verplaatsregel(tabel, rij); });
}

void diaVerplaats::Bouw()
{
    setObjectName(QStringLiteral("diaVerplaats"));
    setWindowTitle(QStringLiteral("Verplaats speler(s) naar een andere groep"));
    auto* Frame1 = new QGroupBox(this);
    Noem(Frame1, QStringLiteral("Frame1"));
    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("Verplaats"), u'V', this);
    cmdAnnuleren =
        MaakKnop(QStringLiteral("cmdAnnuleren"), QStringLiteral("Annuleren"), u'A', this);
    keus_ = new Spelerkeus(cmdOK, Frame1);
    const auto label = [&](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, Frame1);
    };
    auto* Label2 =
        label(QStringLiteral("Label2"), QStringLiteral("Verplaats hen naar de volgende groep:"));
    cmbGrnamen = MaakKeus(QStringLiteral("cmbGrnamen"), Label2, Frame1);

    auto* binnen = new QVBoxLayout(Frame1);
    binnen->addWidget(keus_, 1);
    binnen->addWidget(Label2);
    binnen->addWidget(cmbGrnamen);
    binnen->addWidget(label(QStringLiteral("Label3"),
                            QStringLiteral("Spelers van 'Gr05-' kunnen niet worden verplaatst. ")));
    binnen->addWidget(
        label(QStringLiteral("Label4"),
              QStringLiteral("Spelers mogen wel naar groep 'Gr05-' worden verplaatst.")));
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

    connect(cmdOK, &QPushButton::clicked, this, &diaVerplaats::Verplaats);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &QDialog::reject);
}

void diaVerplaats::Verplaats()
{
    VerplaatsSpelers(administratie_.spelers.tabel, keus_->GekozenKeys(),
                     Groepscode(cmbGrnamen->currentIndex() + 1));
    ingaveGeannuleerd_ = false;
    accept();
}

} // namespace plexoran
