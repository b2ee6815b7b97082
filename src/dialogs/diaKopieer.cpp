#include "dialogs/diaKopieer.h"

#include <QGridLayout>

#include "platform/scherm/berichten.h"
#include "platform/scherm/schuifblad.h"
#include "register/waardenlijst.h"

namespace plexoran {

diaKopieer::diaKopieer(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"diaKopieer"_s);
    setWindowTitle(u"Kopieer speler(s) naar een andere groep"_s);
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Spelers kopiëren"_s, this);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"Kopieer"_s, u'K', this, &QDialog::accept);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &QDialog::reject);
    keus_ = new Spelerkeus(administratie_.spelers.tabel, cmdOK, Frame1);
    for (QPushButton* knop : {keus_->cmdSelAll, keus_->cmdSelNone})
        connect(knop, &QPushButton::clicked, this, [this] { keus_->lstKeus->ZetHuidige(0); });
    BouwKader(Frame1);

    Onderelkaar({{Frame1, 1}, Knoppenrij({cmdAnnuleren, cmdOK})}, this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(7500, 8700));
    ZetTabvolgorde({cmbUitGroep, cmbNBBgr, keus_->lstKeus, keus_->cmdSelAll, keus_->cmdSelNone,
                    cmbGrnamen, chkNBBgrOok, chkNBBnrOok, cmdAnnuleren, cmdOK});
    cmdOK->setDefault(true);
    cmbUitGroep->setFocus();
    KiesBron();
}

void diaKopieer::BouwKader(QGroupBox* kader)
{
    auto* Label2 = MaakLabel(u"Label2"_s, u"Kopieer hen naar groep:"_s, kader);
    Label3 = MaakLabel(u"Label3"_s, QString(), kader);
    auto* Label4 = MaakLabel(u"Label4"_s, u"Uit spelergroep:"_s, kader);
    cmbGrnamen = MaakKeus(u"cmbGrnamen"_s, Label2, kader);
    cmbNBBgr = MaakKeus(u"cmbNBBgr"_s, Label3, kader);
    cmbUitGroep = MaakKeus(u"cmbUitGroep"_s, Label4, kader);
    for (QComboBox* groepen : {cmbGrnamen, cmbUitGroep})
        VulKeus(*groepen, administratie_.groepen.Toonteksten());
    // Also when what is shown is picked again.
    connect(cmbUitGroep, &QComboBox::activated, this, &diaKopieer::KiesBron);
    connect(cmbNBBgr, &QComboBox::activated, this, &diaKopieer::KiesWaarde);
    chkNBBgrOok = MaakVink(u"chkNBBgrOok"_s, QString(), 0, kader);
    chkNBBgrOok->setChecked(true);
    // This one may be shown or hidden, but is never ticked: copies get no federation number.
    chkNBBnrOok = MaakVink(u"chkNBBnrOok"_s, u"NBBnummer ook kopieren"_s, 0, kader);
    chkNBBnrOok->setEnabled(false);

    auto* vakken = new QGridLayout(kader);
    vakken->addWidget(Label4, 0, 0);
    vakken->addWidget(cmbUitGroep, 0, 1);
    vakken->addWidget(Label3, 1, 0);
    vakken->addWidget(cmbNBBgr, 1, 1);
    vakken->addWidget(keus_, 2, 0, 1, 2);
    vakken->addWidget(Label2, 3, 0);
    vakken->addWidget(cmbGrnamen, 3, 1);
    vakken->addWidget(chkNBBgrOok, 4, 0, 1, 2);
    vakken->addWidget(chkNBBnrOok, 5, 0, 1, 2);
    vakken->setRowStretch(2, 1);
    vakken->setColumnStretch(1, 1);
}

void diaKopieer::KiesBron()
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    std::vector<int> rijen = RijenVanGroep(tabel, Broncode());
    Waardenlijst waarden;
    for (const int rij : rijen) {
        const Tekstblik waarde = tabel.Cel(rij, Kolom::NBBgr);
        waarden.Voeg(IsBlanco(waarde) ? "geen" : Tekst(waarde));
    }
    VulKeus(*cmbNBBgr, waarden.Waarden());
    keus_->VulKeuslijst(std::move(rijen), Kopieerregel);
    if (keus_->lstKeus->Aantal() > 0)
        keus_->lstKeus->Kies({0});

    const bool importgroep = Broncode() == administratie_.mappen.DFIMPG;
    chkNBBgrOok->setText(importgroep ? u"NBBgroep ook kopieren"_s
                                     : u"Subgroeptekst ook mee kopieren"_s);
    chkNBBnrOok->setVisible(importgroep);
    Label3->setText(importgroep ? u"Selecteer de spelers van 'NBBgroep':"_s
                                : u"Selecteer de spelers van 'Subgroep':"_s);
}

/// A plain search in the whole line, names included; what was chosen already stays.
void diaKopieer::KiesWaarde()
{
    const Tekst gezocht = Hoofdletters(NaarTekst(cmbNBBgr->currentText()));
    Regellijst& lijst = *keus_->lstKeus;
    std::vector<int> gevonden;
    for (int plek = 0; plek < lijst.Aantal(); ++plek) {
        if (Hoofdletters(lijst.Regel(plek)).find(gezocht) != Tekst::npos)
            gevonden.push_back(plek);
    }
    lijst.Kies(gevonden);
    lijst.ZetHuidige(0);
}

void diaKopieer::accept()
{
    const QString bron = cmbUitGroep->currentText();
    const QString doel = cmbGrnamen->currentText();
    const QString vraag =
        u"U gaat spelers kopiëren van groep '%1' naar groep '%2'.\r\n\r\nPas op: Reeds bestaande "
        "spelers in '%2' zullen er daarna 2 keer in staan en zult u handmatig moeten verwijderen!"_s
            .arg(bron, doel);
    if (!Vraag(this, vraag))
        return;
    const Kopieeropdracht opdracht{.keys = keus_->GekozenKeys(),
                                   .naarGroep = Groepscode(cmbGrnamen->currentIndex() + 1),
                                   .metNBBgr = chkNBBgrOok->isChecked()};
    if (!KopieerSpelers(administratie_.spelers, opdracht)) {
        MeldSleutelsOp(this, u"Er is niets gekopieerd"_s,
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
        return;
    }
    administratie_.geschiedenis.Noem(NaarTekst(u"%1 gekopieerd naar %2"_s.arg(
        Aantal(opdracht.keys.size(), u"speler"_s, u"spelers"_s), doel)));
    Meld(this, QMessageBox::Information,
         u"Er zijn %1 spelers gekopieerd."_s.arg(opdracht.keys.size()));
    QDialog::accept();
}

} // namespace plexoran
