#include "dialogs/frmVeld.h"

#include "dialogs/ingave.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

struct Werktekst {
    QString titel;
    QString knop;
    QString uitleg;
    QString gedaan;
};

Werktekst TekstVan(Gekozenwerk werk, const Tekst& importgroep)
{
    switch (werk) {
    case Gekozenwerk::Verplaatsen:
        return {u"Gekozen spelers verplaatsen"_s, u"Verplaats"_s,
                u"Spelers van '%1' kunnen niet worden verplaatst."_s.arg(NaarQString(importgroep)),
                u"%1 verplaatst naar %2"_s};
    case Gekozenwerk::Kopieren:
        return {u"Gekozen spelers kopiëren"_s, u"Kopieer"_s,
                u"Wie al in die groep staat, staat er daarna 2 keer in."_s,
                u"%1 gekopieerd naar %2"_s};
    case Gekozenwerk::Wijzigen:
        break;
    }
    return {u"Een veld van de gekozen spelers wijzigen"_s, u"Wijzig"_s,
            u"NBB-nummers veranderen alleen bij spelers van '%1'."_s.arg(NaarQString(importgroep)),
            u"%1 gewijzigd in '%2'"_s};
}

} // namespace

frmVeld::frmVeld(const Administratie& administratie, std::vector<int> rijen,
                 const std::array<Tekstblik, AantalKolommen>& kolomnamen, Gekozenwerk werk,
                 QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), rijen_(std::move(rijen)), werk_(werk)
{
    setObjectName(u"frmVeld"_s);
    const Werktekst tekst = TekstVan(werk, administratie.mappen.DFIMPG);
    setWindowTitle(tekst.titel);
    const bool wijzigt = werk == Gekozenwerk::Wijzigen;
    auto* lblVeld = MaakLabel(u"lblVeld"_s, u"Veld:"_s, this);
    cmbVeld = MaakKeus(u"cmbVeld"_s, lblVeld, this);
    for (int veld = EersteIngaveveld; veld <= AantalKolommen; ++veld) {
        const Tekstblik naam = kolomnamen[Index(static_cast<Kolom>(veld))];
        if (!naam.empty())
            cmbVeld->addItem(NaarQString(naam), veld);
    }
    cmbVeld->setCurrentIndex(cmbVeld->findData(static_cast<int>(Kolom::NBBgr)));
    auto* lblWaarde =
        MaakLabel(u"lblWaarde"_s, wijzigt ? u"Nieuwe waarde:"_s : u"Naar groep:"_s, this);
    cmbGroep = MaakKeus(u"cmbGroep"_s, lblWaarde, this);
    VulKeus(*cmbGroep, administratie.groepen.Toonteksten());
    txtWaarde = new Tekstvak(this);
    Noem(txtWaarde, u"txtWaarde"_s);
    if (wijzigt)
        lblWaarde->setBuddy(txtWaarde);
    chkLeeg = MaakVink(u"chkLeeg"_s, u"Veld leegmaken"_s, u'l', this);
    for (QWidget* deel : std::initializer_list<QWidget*>{lblVeld, cmbVeld, txtWaarde, chkLeeg})
        deel->setVisible(wijzigt);
    cmbGroep->setVisible(!wijzigt);
    lblAantal = MaakLabel(u"lblAantal"_s, QString(), this);
    lstVeld = new Regellijst(QListView::NoSelection, u"lstVeld"_s, u"Wat er verandert"_s, this);
    lblAantal->setBuddy(lstVeld);
    cmdOK = MaakKnop(u"cmdOK"_s, tekst.knop, tekst.knop.front().unicode(), this, &QDialog::accept);
    cmdOK->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &QDialog::reject);
    lblUitleg = MaakUitleg(u"lblUitleg"_s, tekst.uitleg, this);
    Onderelkaar({Naastelkaar({lblVeld, {cmbVeld, 1}}),
                 Naastelkaar({lblWaarde, {txtWaarde, 1}, chkLeeg, {cmbGroep, 1}}),
                 lblAantal,
                 {lstVeld, 1},
                 lblUitleg,
                 Knoppenrij({cmdAnnuleren, cmdOK})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(7500, 6900));

    connect(cmbVeld, &QComboBox::currentIndexChanged, this, &frmVeld::KiesVeld);
    connect(cmbGroep, &QComboBox::currentIndexChanged, this, &frmVeld::Toon);
    connect(txtWaarde, &QLineEdit::textChanged, this, &frmVeld::Toon);
    connect(chkLeeg, &QCheckBox::toggled, this, &frmVeld::Toon);
    KiesVeld();
}

/// Every field begins without a change.
void frmVeld::KiesVeld()
{
    const bool wijzigt = werk_ == Gekozenwerk::Wijzigen;
    opdracht_.veld = wijzigt ? static_cast<Kolom>(cmbVeld->currentData().toInt()) : Kolom::Groep;
    txtWaarde->ZetToetsregel([veld = opdracht_.veld](char teken, std::size_t lengte) {
        return TypTeken(veld, teken, lengte);
    });
    txtWaarde->ZetTekst({});
    chkLeeg->setChecked(false);
    chkLeeg->setEnabled(opdracht_.veld != Kolom::Achternaam);
    lblUitleg->setVisible(!wijzigt || opdracht_.veld == Kolom::NBBnr);
    Toon();
}

void frmVeld::Toon()
{
    const bool leeg = chkLeeg->isChecked();
    txtWaarde->setEnabled(!leeg);
    Tekst waarde = Groepscode(cmbGroep->currentIndex() + 1);
    if (werk_ == Gekozenwerk::Wijzigen)
        waarde = leeg ? Tekst() : txtWaarde->GeefTekst();
    opdracht_ = MaakVeldopdracht(administratie_.spelers.tabel, rijen_, opdracht_.veld, waarde,
                                 administratie_.mappen.DFIMPG);
    if (IsBlanco(waarde) && !leeg) // not typed yet
        opdracht_.rijen.clear();
    if (werk_ == Gekozenwerk::Kopieren)
        opdracht_.rijen = rijen_;
    lblAantal->setText(u"Van de %1 gekozen spelers veranderen er %2:"_s.arg(rijen_.size())
                           .arg(opdracht_.rijen.size()));
    lstVeld->Vul(static_cast<int>(opdracht_.rijen.size()),
                 [this](int plaats) { return Regel(plaats); });
    cmdOK->setEnabled(!opdracht_.rijen.empty());
}

Tekst frmVeld::Regel(int plaats) const
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const int rij = opdracht_.rijen[static_cast<std::size_t>(plaats)];
    const auto toon = [](Tekstblik tekst) { return IsBlanco(tekst) ? "(leeg)" : Tekst(tekst); };
    return VolleNaam(tabel, rij) + ": " + toon(tabel.Cel(rij, opdracht_.veld)) + " -> " +
           toon(opdracht_.nieuw);
}

bool frmVeld::VoerUit(Register& spelers) const
{
    if (werk_ != Gekozenwerk::Kopieren) {
        plexoran::VoerUit(spelers.tabel, opdracht_);
        return true;
    }
    return KopieerRijen(spelers, opdracht_.rijen, opdracht_.nieuw);
}

Tekst frmVeld::Wat() const
{
    const bool wijzigt = werk_ == Gekozenwerk::Wijzigen;
    const QString wie = Aantal(opdracht_.rijen.size(), u"speler"_s, u"spelers"_s);
    const QString van = wijzigt ? cmbVeld->currentText() + u" van "_s + wie : wie;
    return NaarTekst(opdracht_.nieuw.empty() ? van + u" leeggemaakt"_s
                                             : TekstVan(werk_, {}).gedaan.arg(
                                                   van, wijzigt ? NaarQString(opdracht_.nieuw)
                                                                : cmbGroep->currentText()));
}

} // namespace plexoran
