#include "exchange/frmLijstImport.h"

#include <QFileDialog>

#include <algorithm>

#include "federation/frmVoorbeeld.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/boom.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/schuifblad.h"
#include "platform/schijf/programma.h"
#include "platform/schijf/systeempad.h"

namespace plexoran {
namespace {

constexpr int Proefrijen = 3; ///< of which a column shows its cells
// In the order in which they can be picked.
constexpr Tekstblik Scheidingen = ";,\t|";
constexpr Tekstblik Aanhalingen("\"'\0", 3);
const std::vector<Tekst> Regeleinden{"", "\r\n", "\n", "\r"};

QString Veldtekst(Kolom veld)
{
    if (veld == GeenVeld)
        return u"(niet gebruiken)"_s;
    if (veld == HeleNaam)
        return u"Naam (in één kolom)"_s;
    return NaarQString(veld == Kolom::NBBgr ? Subgroepnaam : Kolomnamen[Index(veld)]);
}

/// A drop-down behind its label, at the end of that row.
QComboBox* Keus(QBoxLayout* rij, const QString& naam, const QString& opschrift, char16_t letter,
                const QStringList& teksten, QWidget* ouder)
{
    auto* label = MaakLabel(u"lbl"_s + naam, MetSneltoets(opschrift, letter), ouder);
    QComboBox* keus = MaakKeus(u"cmb"_s + naam, label, ouder);
    keus->addItems(teksten);
    rij->addWidget(label);
    rij->addWidget(keus, 1);
    return keus;
}

QString Fouttekst(const Lijstfout& fout)
{
    switch (fout.bezwaar) {
    case Lijstbezwaar::GeenTekst:
        return u"Dit is geen lijst: er staan tekens in die in geen tekst voorkomen."_s;
    case Lijstbezwaar::Lijsttekenset:
        return u"Regel %1 is niet in deze tekenset geschreven. Kies een andere, of sla de lijst "
               "opnieuw op."_s.arg(fout.regel);
    case Lijstbezwaar::Aanhaling:
        return u"Op regel %1 begint een aanhaling die nergens eindigt. Verbeter die regel, of kies "
               "bij Aanhaling: geen."_s.arg(fout.regel);
    case Lijstbezwaar::TeBreed:
        return u"Regel %1 heeft meer dan %2 kolommen. Kies een ander scheidingsteken of een andere "
               "lijst."_s.arg(fout.regel)
                   .arg(MeesteLijstkolommen);
    case Lijstbezwaar::TeLang:
        return u"De lijst heeft meer dan %1 regels."_s.arg(MeesteLijstrijen);
    case Lijstbezwaar::Leeg:
        return u"Er staan geen spelers in deze lijst."_s;
    case Lijstbezwaar::Gestopt:
        break;
    }
    return u"Het lezen is gestopt."_s;
}

QString Vervangtekst(const Lijsttekst& tekst)
{
    const auto& [teken, door] = *tekst.eerste;
    return u" %1 die het spelerbestand niet kent: op regel %2 %3."_s
        .arg(Aantal(tekst.vervangen, u"teken"_s, u"tekens"_s))
        .arg(tekst.regel)
        .arg(door.empty() ? u"is '%1' weggelaten"_s.arg(QString::fromStdU16String(teken))
                          : u"staat in plaats van '%1' nu '%2'"_s.arg(
                                QString::fromStdU16String(teken), NaarQString(door)));
}

} // namespace

frmLijstImport::frmLijstImport(Administratie& administratie, Tekstblik groep, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"frmLijstImport"_s);
    setWindowTitle(u"Spelers uit een lijst"_s);
    if (!administratie.vensterIni.empty())
        geheugen_.emplace(
            QString::fromStdU16String(Systeempad(administratie.vensterIni).u16string()),
            QSettings::IniFormat);
    Bouw();
    Verbind();
    for (const Tekst& tekst : administratie.groepen.Toonteksten()) {
        if (CodeUit(tekst) != administratie.mappen.DFIMPG)
            cmbGroep->addItem(NaarQString(tekst));
        if (CodeUit(tekst) == groep && groep != administratie.mappen.DFIMPG)
            cmbGroep->setCurrentIndex(cmbGroep->count() - 1);
    }
    ToonMelding();
}

/// The controls are made in the order in which Tab goes through them.
void frmLijstImport::Bouw()
{
    auto* cmdBestand =
        MaakKnop(u"cmdBestand"_s, u"Kies bestand..."_s, u'K', this, &frmLijstImport::KiesBestand);
    lblBestand = new Kortlabel(u"Kies een lijst, zoals een rekenblad die als CSV opslaat."_s, this);
    Noem(lblBestand, u"lblBestand"_s);
    auto* vorm = new QHBoxLayout;
    cmbTekenset = Keus(vorm, u"Tekenset"_s, u"Tekenset:"_s, u'T',
                       {u"UTF-8"_s, u"UTF-16"_s, u"Windows"_s}, this);
    cmbScheiding = Keus(vorm, u"Scheiding"_s, u"Scheiding:"_s, u'S',
                        {u"puntkomma"_s, u"komma"_s, u"tab"_s, u"streep |"_s}, this);
    cmbAanhaling = Keus(vorm, u"Aanhaling"_s, u"Aanhaling:"_s, u'A',
                        {u"dubbel \""_s, u"enkel '"_s, u"geen"_s}, this);
    cmbRegeleinde = Keus(vorm, u"Regeleinde"_s, u"Regeleinde:"_s, u'R',
                         {u"alle"_s, u"CR LF"_s, u"LF"_s, u"CR"_s}, this);
    chkKop = MaakVink(u"chkKop"_s, u"De eerste regel noemt de kolommen"_s, u'e', this);
    lstKolommen =
        MaakBoom(u"lstKolommen"_s, u"De kolommen van de lijst"_s,
                 {u"Kolom"_s, u"Veld"_s, u"Eerste speler"_s, u"Tweede"_s, u"Derde"_s}, this);
    lstKolommen->setRootIsDecorated(false);
    auto* veldrij = new QHBoxLayout;
    cmbVeld = Keus(veldrij, u"Veld"_s, u"Veld van de gekozen kolom:"_s, u'V', {}, this);
    for (int veld = 0; veld <= static_cast<int>(HeleNaam); ++veld) {
        const auto kolom = static_cast<Kolom>(veld);
        if (kolom != Kolom::Nr && kolom != Kolom::Groep)
            cmbVeld->addItem(Veldtekst(kolom), veld);
    }
    cmbHerken = Keus(veldrij, u"Herken"_s, u"Herken een speler aan:"_s, u'H',
                     {u"zijn sleutel, in alle groepen"_s, u"zijn NBB-nummer, in die groep"_s,
                      u"zijn naam en postcode, in die groep"_s},
                     this);
    auto* groeprij = new QHBoxLayout;
    cmbGroep = Keus(groeprij, u"Groep"_s, u"Nieuwe spelers naar groep:"_s, u'g', {}, this);
    auto* lblSubgroep = MaakLabel(u"lblSubgroep"_s, MetSneltoets(u"Subgroep:"_s, u'u'), this);
    txtSubgroep = new Tekstvak(this);
    Noem(txtSubgroep, u"txtSubgroep"_s);
    lblSubgroep->setBuddy(txtSubgroep);
    groeprij->addWidget(lblSubgroep);
    groeprij->addWidget(txtSubgroep, 1);
    lblMelding = MaakUitleg(u"lblMelding"_s, QString(), this);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'n', this, &QDialog::reject);
    cmdBekijk =
        MaakKnop(u"cmdBekijk"_s, u"Bekijk vooraf..."_s, u'B', this, &frmLijstImport::Bekijk);
    cmdBekijk->setDefault(true);
    Onderelkaar({Naastelkaar({cmdBestand, {lblBestand, 1}}),
                 vorm,
                 chkKop,
                 {lstKolommen, 1},
                 veldrij,
                 groeprij,
                 lblMelding,
                 Knoppenrij({cmdAnnuleren, cmdBekijk})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(12900, 7800));
}

/// What the user does; what the program picks itself tells nobody.
void frmLijstImport::Verbind()
{
    connect(cmbTekenset, &QComboBox::activated, this,
            [this](int set) { Decodeer(static_cast<Lijsttekenset>(set)); });
    for (const QComboBox* keus : {cmbScheiding, cmbAanhaling, cmbRegeleinde})
        connect(keus, &QComboBox::activated, this, &frmLijstImport::Lees);
    connect(chkKop, &QCheckBox::clicked, this, &frmLijstImport::RaadKeuze);
    connect(lstKolommen, &QTreeWidget::currentItemChanged, this, &frmLijstImport::ToonVeld);
    connect(cmbVeld, &QComboBox::activated, this, &frmLijstImport::KiesVeld);
    connect(cmbHerken, &QComboBox::activated, this, [this](int keus) {
        keuze_.herkenning = static_cast<Herkenning>(keus);
        ToonMelding();
    });
}

void frmLijstImport::KiesBestand()
{
    QFileDialog kiezer(this, u"Kies de lijst met spelers"_s);
    Noem(&kiezer, u"CommonDialog1"_s);
    kiezer.setFileMode(QFileDialog::ExistingFile);
    kiezer.setNameFilters({u"Lijsten (*.csv *.txt *.tsv)"_s, u"Alle bestanden (*)"_s});
    if (kiezer.exec() == QDialog::Accepted)
        Open(VolledigPad(kiezer.selectedFiles().constFirst().toStdString()));
}

void frmLijstImport::Open(const Pad& bestand)
{
    auto bytes = LeesBegrensd(administratie_.schijf, bestand);
    if (!bytes) {
        MeldFout(
            this, QMessageBox::Warning,
            u"Deze lijst kan niet worden gelezen. Er is niets veranderd. Kies een andere lijst."_s,
            bytes.error());
        return;
    }
    bytes_ = std::move(*bytes);
    naam_ = NaarQString(bestand.substr(bestand.rfind('\\') + 1));
    lblBestand->Toon(Toonpad(administratie_.schijf, bestand));
    Decodeer({});
    lstKolommen->setFocus();
}

/// In another character set other signs may be separators and quotes.
void frmLijstImport::Decodeer(std::optional<Lijsttekenset> tekenset)
{
    tekst_ = Lijsttekstvan(bytes_, tekenset);
    if (tekst_ || tekst_.error().bezwaar == Lijstbezwaar::Lijsttekenset)
        cmbTekenset->setCurrentIndex(static_cast<int>(
            tekst_ ? tekst_->tekenset : Lijsttekenset::Utf8)); // no other refuses a line
    if (tekst_) {
        const Lijstvorm vorm = HerkenVorm(tekst_->tekst);
        cmbScheiding->setCurrentIndex(static_cast<int>(Scheidingen.find(vorm.scheiding)));
        cmbAanhaling->setCurrentIndex(static_cast<int>(Aanhalingen.find(vorm.aanhaling)));
        cmbRegeleinde->setCurrentIndex(static_cast<int>(
            std::ranges::find(Regeleinden, vorm.regeleinde) - Regeleinden.begin()));
    }
    Lees();
}

void frmLijstImport::Lees()
{
    const auto plek = [](const QComboBox* keus) {
        return static_cast<std::size_t>(keus->currentIndex());
    };
    const Lijstvorm vorm{.regeleinde = Regeleinden.at(plek(cmbRegeleinde)),
                         .scheiding = Scheidingen.at(plek(cmbScheiding)),
                         .aanhaling = Aanhalingen.at(plek(cmbAanhaling))};
    frmVoortgang voortgang(u"'%1' wordt gelezen ..."_s.arg(naam_), u"&Stoppen"_s, this);
    lijst_ = tekst_.and_then([&](const Lijsttekst& tekst) {
        return LeesSpelerslijst(tekst.tekst, vorm, voortgang.AlsVoortgang());
    });
    chkKop->setChecked(lijst_ && HeeftKop(*lijst_));
    RaadKeuze();
}

/// The fields as they were for such a list, or else by guess.
void frmLijstImport::RaadKeuze()
{
    keuze_ = {};
    if (lijst_) {
        const QString soort =
            u"Lijsten/"_s + NaarQString(Lijstkoppen(*lijst_, chkKop->isChecked()));
        const QString eerder = geheugen_ ? geheugen_->value(soort).toString() : QString();
        keuze_ = KeuzeUit(NaarTekst(eerder), lijst_->Kolommen())
                     .value_or(RaadVelden(*lijst_, chkKop->isChecked()));
    }
    cmbHerken->setCurrentIndex(static_cast<int>(keuze_.herkenning));
    ToonKolommen();
}

void frmLijstImport::ToonKolommen()
{
    const QSignalBlocker stil(lstKolommen);
    lstKolommen->clear();
    const int kop = chkKop->isChecked() ? 1 : 0;
    for (std::size_t kolom = 0; kolom < keuze_.velden.size(); ++kolom) {
        QStringList cellen{u"kolom %1"_s.arg(kolom + 1), Veldtekst(keuze_.velden[kolom])};
        for (int rij = 0; rij < std::min(kop + Proefrijen, static_cast<int>(lijst_->Rijen()));
             ++rij) {
            const QString cel =
                NaarQString(lijst_->Cel(static_cast<std::size_t>(rij), kolom)).simplified();
            if (rij < kop)
                cellen.front() = cel;
            else
                cellen << cel;
        }
        lstKolommen->addTopLevelItem(new Boomregel(cellen));
    }
    for (int kolom = 0; kolom < lstKolommen->columnCount(); ++kolom)
        lstKolommen->setColumnWidth(kolom, Maten().Twips(2400));
    lstKolommen->setCurrentItem(lstKolommen->topLevelItem(0));
    ToonVeld();
    ToonMelding();
}

void frmLijstImport::ToonVeld()
{
    const int kolom = lstKolommen->currentIndex().row();
    cmbVeld->setEnabled(kolom >= 0);
    cmbVeld->setCurrentIndex(kolom < 0 ? 0
                                       : cmbVeld->findData(static_cast<int>(
                                             keuze_.velden[static_cast<std::size_t>(kolom)])));
}

/// A field comes from one column: another one that had it is left out now.
void frmLijstImport::KiesVeld()
{
    const auto veld = static_cast<Kolom>(cmbVeld->currentData().toInt());
    const int gekozen = lstKolommen->currentIndex().row();
    for (std::size_t kolom = 0; kolom < keuze_.velden.size(); ++kolom) {
        Kolom& nu = keuze_.velden[kolom];
        nu = static_cast<int>(kolom) == gekozen ? veld : nu == veld ? GeenVeld : nu;
        lstKolommen->topLevelItem(static_cast<int>(kolom))->setText(1, Veldtekst(nu));
    }
    ToonMelding();
}

/// Why the list cannot be looked at; empty when it can.
QString frmLijstImport::Bezwaar() const
{
    const auto heeft = [&](Kolom veld) {
        return std::ranges::find(keuze_.velden, veld) != keuze_.velden.end();
    };
    if (bytes_.empty() && naam_.isEmpty())
        return u"Er is nog geen lijst gekozen."_s;
    if (!lijst_ || lijst_->Rijen() == (chkKop->isChecked() ? 1 : 0))
        return Fouttekst(lijst_ ? Lijstfout{Lijstbezwaar::Leeg} : lijst_.error());
    if (keuze_.herkenning == Herkenning::Key && !heeft(Kolom::Key))
        return u"Kies eerst in welke kolom de sleutel (Key) staat."_s;
    if (keuze_.herkenning == Herkenning::NBBnr && !heeft(Kolom::NBBnr))
        return u"Kies eerst in welke kolom het NBB-nummer staat."_s;
    if (keuze_.herkenning == Herkenning::Naam && !heeft(HeleNaam) && !heeft(Kolom::Achternaam))
        return u"Kies eerst in welke kolom de naam of de achternaam staat."_s;
    return {};
}

void frmLijstImport::ToonMelding()
{
    const QString bezwaar = Bezwaar();
    cmdBekijk->setEnabled(bezwaar.isEmpty());
    if (!bezwaar.isEmpty())
        lblMelding->setText(bezwaar);
    else
        lblMelding->setText(
            Aantal(lijst_->Rijen() - (chkKop->isChecked() ? 1 : 0), u"regel"_s, u"regels"_s) +
            u" gelezen."_s + (tekst_->eerste ? Vervangtekst(*tekst_) : QString()));
}

void frmLijstImport::Bekijk()
{
    const bool kop = chkKop->isChecked();
    auto voorbeeld = Lijstvoorbeeld::Maak(
        administratie_.spelers.tabel, *lijst_,
        {.groep = Groep(), .subgroep = txtSubgroep->GeefTekst(), .keuze = keuze_, .kop = kop},
        frmVoortgang(u"'%1' wordt bekeken ..."_s.arg(naam_), u"&Stoppen"_s, this).AlsVoortgang());
    if (!voorbeeld)
        return;
    if (geheugen_)
        geheugen_->setValue(u"Lijsten/"_s + NaarQString(Lijstkoppen(*lijst_, kop)),
                            NaarQString(Keuzetekst(keuze_)));
    frmVoorbeeld venster(*voorbeeld, naam_, this);
    if (LaatAntwoorden(venster) != QDialog::Accepted)
        return;
    if (!voorbeeld->VerandertIets()) {
        Meld(this, QMessageBox::Information, frmVoorbeeld::Nietstekst());
        return;
    }
    const auto telling = voorbeeld->VoerUit(administratie_.spelers);
    if (!telling) {
        MeldSleutelsOp(this, u"Er is niets geïmporteerd"_s,
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
        return;
    }
    administratie_.geschiedenis.Noem(NaarTekst(u"%1 geïmporteerd: %2 nieuw, %3 gewijzigd"_s.arg(
        naam_, QString::number(telling->nieuw), QString::number(telling->gewijzigd))));
    accept();
}

} // namespace plexoran
