#include "dialogs/diaVerplaats.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "dialogs/keuslijst.h"
#include "dialogs/verplaatsen.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {

diaVerplaats::diaVerplaats(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    VulKeus(*cmbGrnamen, administratie_.groepen.Toonteksten());
    VulKeuslijst();
}

void diaVerplaats::Bouw()
{
    setObjectName(QStringLiteral("diaVerplaats"));
    setWindowTitle(QStringLiteral("Verplaats speler(s) naar een andere groep"));
    auto* Frame1 = new QGroupBox(this);
    Noem(Frame1, QStringLiteral("Frame1"));
    auto* Label1 =
        MaakLabel(QStringLiteral("Label1"), QStringLiteral("Selecteer de spelers(s) "), Frame1);
    auto* Label2 = MaakLabel(QStringLiteral("Label2"),
                             QStringLiteral("Verplaats hen naar de volgende groep:"), Frame1);
    auto* Label3 =
        MaakLabel(QStringLiteral("Label3"),
                  QStringLiteral("Spelers van 'Gr05-' kunnen niet worden verplaatst. "), Frame1);
    auto* Label4 = MaakLabel(
        QStringLiteral("Label4"),
        QStringLiteral("Spelers mogen wel naar groep 'Gr05-' worden verplaatst."), Frame1);
    lstKeus = new Meerkeuzelijst(Frame1);
    Noem(lstKeus, QStringLiteral("lstKeus"), QStringLiteral("Spelers"));
    cmbGrnamen = new QComboBox(Frame1);
    Noem(cmbGrnamen, QStringLiteral("cmbGrnamen"), QStringLiteral("Naar groep"));
    cmdSelAll =
        MaakKnop(QStringLiteral("cmdSelAll"), QStringLiteral("Selecteer alles"), u'S', Frame1);
    cmdSelNone =
        MaakKnop(QStringLiteral("cmdSelNone"), QStringLiteral("Selecteer niets"), u'n', Frame1);
    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("Verplaats"), u'V', this);
    cmdAnnuleren =
        MaakKnop(QStringLiteral("cmdAnnuleren"), QStringLiteral("Annuleren"), u'A', this);

    auto* binnen = new QVBoxLayout(Frame1);
    binnen->addWidget(Label1);
    binnen->addWidget(lstKeus, 1);
    binnen->addLayout(Knoppenrij({cmdSelAll, cmdSelNone}));
    for (QWidget* deel : std::initializer_list<QWidget*>{Label2, cmbGrnamen, Label3, Label4})
        binnen->addWidget(deel);
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Frame1, 1);
    lagen->addLayout(Knoppenrij({cmdAnnuleren, cmdOK}));
    const Maten maten;
    resize(maten.Twips(6900), maten.Twips(8100));
    cmdOK->setEnabled(false);
    cmdOK->setDefault(true);
    ZetTabvolgorde({lstKeus, cmdSelAll, cmdSelNone, cmbGrnamen, cmdAnnuleren, cmdOK});
    lstKeus->setFocus();

    connect(lstKeus, &Meerkeuzelijst::keuzeVeranderd, this,
            [this] { cmdOK->setEnabled(lstKeus->IetsGekozen()); });
    connect(cmdSelAll, &QPushButton::clicked, lstKeus, [this] { lstKeus->KiesAlles(true); });
    connect(cmdSelNone, &QPushButton::clicked, lstKeus, [this] { lstKeus->KiesAlles(false); });
    connect(cmdOK, &QPushButton::clicked, this, &diaVerplaats::Verplaats);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &QDialog::reject);
}

void diaVerplaats::VulKeuslijst()
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    rijen_ = VerplaatsbareRijen(tabel, administratie_.mappen.DFIMPG);
    lstKeus->Vul(static_cast<int>(rijen_.size()), [this](int plaats) {
        return NaarQString(
            Verplaatsregel(administratie_.spelers.tabel, rijen_[static_cast<std::size_t>(plaats)]));
    });
    lstKeus->ZetHuidige(0);
}

void diaVerplaats::Verplaats()
{
    Spelertabel& tabel = administratie_.spelers.tabel;
    std::vector<Tekst> keys;
    for (const int plaats : lstKeus->GekozenPlaatsen())
        keys.emplace_back(KeyVan(Verplaatsregel(tabel, rijen_[static_cast<std::size_t>(plaats)])));
    VerplaatsSpelers(tabel, keys, Groepscode(cmbGrnamen->currentIndex() + 1));
    ingaveGeannuleerd_ = false;
    accept();
}

} // namespace plexoran
