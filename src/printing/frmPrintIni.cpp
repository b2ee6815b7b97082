#include "printing/frmPrintIni.h"

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"
#include "printing/frmAfdrukken.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

constexpr int KleinsteSchaal = 7; // tenths
constexpr int GrootsteSchaal = 13;
constexpr int GewoneSchaal = 3; // its place in the list
constexpr int AantalPrintkolommen = AantalKolommen - static_cast<int>(EerstePrintkolom) + 1;

Kolom PrintkolomOp(int plaats)
{
    return static_cast<Kolom>(static_cast<int>(EerstePrintkolom) + plaats);
}

} // namespace

frmPrintIni::frmPrintIni(Administratie& administratie, Tekst groeptekst,
                         const std::array<Tekstblik, AantalKolommen>& kolomnamen, QWidget* ouder,
                         const QLocale& getallen, std::optional<std::vector<int>> rijen)
    : QDialog(ouder), administratie_(administratie), groeptekst_(std::move(groeptekst)),
      kolomnamen_(kolomnamen), getallen_(getallen), rijen_(std::move(rijen)),
      subgroepen_(rijen_ ? Printsubgroepen(administratie.spelers.tabel, *rijen_)
                         : Printsubgroepen(administratie.spelers.tabel, CodeUit(groeptekst_)))
{
    Bouw();
    connect(lstKeus, &Regellijst::keuzeVeranderd, this, &frmPrintIni::PasAan);
    connect(lstNBBgr, &Regellijst::keuzeVeranderd, this, &frmPrintIni::ToonBreedte);
    connect(cmbSchaal, &QComboBox::currentIndexChanged, this, &frmPrintIni::ToonBreedte);
    PasAan();
    lstKeus->setFocus();
}

/// Controls are made in the order in which the Tab key goes through them.
void frmPrintIni::Bouw()
{
    setObjectName(u"frmPrintIni"_s);
    setWindowTitle(u"Printen van ledenlijsten per groep"_s);
    auto* Label3 = new Kortlabel(NaarQString(groeptekst_), this);
    Noem(Label3, u"Label3"_s);
    Label3->setTextFormat(Qt::PlainText);
    MaakVet(Label3);
    // A long name must not push the window's other parts away.
    Label3->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Label3->setToolTip(Wenk(Label3->text()));

    auto* groep = Naastelkaar({MaakLabel(u"Label2"_s, u"Gekozen Groep:"_s, this), {Label3, 1}});
    auto* midden = Naastelkaar({{BouwKolommen(), 1}, Wit{maten_.Twips(200)}, {BouwRechts(), 1}});
    auto* cmdEtiketten = MaakKnop(u"cmdEtiketten"_s, u"Etiketten..."_s, u'E', this, [this] {
        if (IsSubgroepGekozen())
            emit etikettenGevraagd(MaakPrinttabel(administratie_.spelers.tabel, Opdracht()).rijen);
    });
    cmdEtiketten->setEnabled(!subgroepen_.empty());
    cmdOK = MaakKnop(u"cmdOK"_s, u"Printen..."_s, u'P', this, &frmPrintIni::Print);
    cmdOK->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    const Wit wit{maten_.Twips(100)};
    Onderelkaar({groep, wit, {midden, 1}, wit, Knoppenrij({cmdEtiketten, cmdOK, cmdAnnuleren})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, {maten_.Twips(9600), maten_.Twips(7200)});
}

QGroupBox* frmPrintIni::BouwKolommen()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Welke kolommen te printen"_s, this);
    QLabel* Label1 = MaakLabel(u"Label1"_s, u"Te printen Rubrieken (kolommen)"_s, this);
    lstKeus = new Regellijst(QListView::MultiSelection, u"lstKeus"_s, Label1->text(), this);
    Label1->setBuddy(lstKeus);
    lstKeus->Vul(AantalPrintkolommen, [this](int plaats) {
        const Kolom kolom = PrintkolomOp(plaats);
        const Tekstblik naam = kolomnamen_[Index(kolom)];
        // Outside the import group the last column has no name.
        return naam.empty() ? "(kolom " + std::to_string(static_cast<int>(kolom)) + ")"
                            : Tekst(naam);
    });
    lstKeus->Kies({0, 1, 2, 3, 4, 5, 6, 7}); // `Voornaam` to `Plaats`
    auto* cmdSelAll = MaakKnop(u"cmdSelAll"_s, u"Selecteer alles"_s, u'a', this,
                               [this] { lstKeus->selectAll(); });
    auto* cmdSelNone = MaakKnop(u"cmdSelNone"_s, u"Selecteer niets"_s, u'n', this,
                                [this] { lstKeus->clearSelection(); });
    auto* cmdTelefoonlijst = MaakKnop(u"cmdTelefoonlijst"_s, u"Telefoonlijst van iedereen"_s, u'l',
                                      this, &frmPrintIni::KiesTelefoonlijst);
    cmdTelefoonlijst->setEnabled(!subgroepen_.empty());
    lblBreedte = MaakLabel(u"lblBreedte"_s, QString(), this);
    lblBreedte->setWordWrap(true);
    Onderelkaar(
        {Label1, {lstKeus, 1}, Naastelkaar({cmdSelAll, cmdSelNone}), cmdTelefoonlijst, lblBreedte},
        Frame1);
    return Frame1;
}

QLayout* frmPrintIni::BouwRechts()
{
    QLabel* Label6 = MaakLabel(u"Label6"_s, u"Print alleen deze Subgroep(en):"_s, this);
    lstNBBgr = new Regellijst(QListView::MultiSelection, u"lstNBBgr"_s, Label6->text(), this);
    Label6->setBuddy(lstNBBgr);
    lstNBBgr->Vul(static_cast<int>(subgroepen_.size()),
                  [this](int plaats) { return subgroepen_[static_cast<std::size_t>(plaats)]; });
    lstNBBgr->setEnabled(!subgroepen_.empty());
    QLabel* Label7 = MaakLabel(u"Label7"_s, u"Deze groep is leeg"_s, this);
    MaakVet(Label7);
    Label7->setVisible(subgroepen_.empty());
    QLabel* Label5 = MaakLabel(u"Label5"_s, u"Kies de schaal:"_s, this);
    cmbSchaal = MaakKeus(u"cmbSchaal"_s, Label5, this);
    cmbSchaal->setMinimumContentsLength(4);
    for (int tiende = KleinsteSchaal; tiende <= GrootsteSchaal; ++tiende)
        cmbSchaal->addItem(getallen_.toString(tiende / 10.0));
    cmbSchaal->setCurrentIndex(GewoneSchaal);
    cmdPassend = MaakKnop(u"cmdPassend"_s, QString(), 0, this,
                          [this] { cmbSchaal->setCurrentIndex(passend_); });

    return Onderelkaar({Label6,
                        {lstNBBgr, 1},
                        Label7,
                        Wit{maten_.Twips(200)},
                        MaakLabel(u"Label4"_s, u"Printuitvoer verkleinen of vergroten:"_s, this),
                        Naastelkaar({Label5, cmbSchaal, cmdPassend, 0})});
}

/// The list that clubs print most, in one go.
void frmPrintIni::KiesTelefoonlijst()
{
    lstKeus->clearSelection();
    lstKeus->Kies({0, 1, 2, 3}); // `Voornaam` to `Telef`
    lstNBBgr->selectAll();
    cmdOK->setFocus();
}

void frmPrintIni::PasAan()
{
    cmdOK->setEnabled(lstKeus->IetsGekozen() && !subgroepen_.empty());
    ToonBreedte();
}

/// Of the players that the chosen subgroups have, or all of the group while none is chosen.
void frmPrintIni::ToonBreedte()
{
    const Printtabel tabel = MaakPrinttabel(administratie_.spelers.tabel, Opdracht());
    const auto bij = [&](int plaats) { return BerekenKolommen(tabel, Schaal(plaats), kast_); };
    passend_ = cmbSchaal->count() - 1;
    while (passend_ >= 0 && bij(passend_).TeBreed())
        --passend_;
    const Bladindeling indeling = bij(cmbSchaal->currentIndex());
    QString tekst = u"Samen %1 mm breed: "_s.arg(indeling.Millimeters());
    if (indeling.TeBreed())
        tekst += u"te breed voor A4-liggend (297 mm)."_s;
    else if (indeling.papier.stand == Papierstand::Liggend)
        tekst += u"past op A4-liggend (297 mm)."_s;
    else
        tekst += u"past op A4-staand (210 mm)."_s;
    lblBreedte->setText(cmdOK->isEnabled() ? tekst : QString());
    cmdPassend->setText(
        passend_ < 0
            ? u"Geen schaal past"_s
            : MetSneltoets(u"Grootste die past: %1"_s.arg(cmbSchaal->itemText(passend_)), u'G'));
    cmdPassend->setEnabled(cmdOK->isEnabled() && passend_ >= 0 &&
                           passend_ != cmbSchaal->currentIndex());
}

float frmPrintIni::Schaal(int plaats) const
{
    return getallen_.toFloat(cmbSchaal->itemText(plaats));
}

Printopdracht frmPrintIni::Opdracht() const
{
    Printopdracht opdracht{.groepscode = Tekst(CodeUit(groeptekst_)),
                           .subgroepen = {},
                           .kolommen = {},
                           .kolomnamen = kolomnamen_,
                           .rijen = rijen_};
    for (const int plaats : lstNBBgr->GekozenPlaatsen())
        opdracht.subgroepen.push_back(subgroepen_[static_cast<std::size_t>(plaats)]);
    for (const int plaats : lstKeus->GekozenPlaatsen())
        opdracht.kolommen.push_back(PrintkolomOp(plaats));
    return opdracht;
}

/// Says so when none is.
bool frmPrintIni::IsSubgroepGekozen()
{
    const bool gekozen = lstNBBgr->Aantal() == 0 || lstNBBgr->IetsGekozen();
    if (!gekozen)
        Meld(this, QMessageBox::Warning, u"U moet nog een subgroep kiezen."_s);
    return gekozen;
}

void frmPrintIni::Print()
{
    if (!lstKeus->IetsGekozen()) {
        // Any column will do; the text is meant as it stands.
        Meld(this, QMessageBox::Warning, u"U moet minimaal de rubriek 'Achternaam' selecteren."_s);
        return;
    }
    if (!IsSubgroepGekozen())
        return;
    const Printopdracht opdracht = Opdracht();
    frmAfdrukken venster(administratie_,
                         {.tabel = MaakPrinttabel(administratie_.spelers.tabel, opdracht),
                          .groeptekst = groeptekst_,
                          .subgroepkop = Subgroepkop(opdracht.subgroepen),
                          .schaal = Schaal(cmbSchaal->currentIndex())},
                         this);
    venster.exec();
}

} // namespace plexoran
