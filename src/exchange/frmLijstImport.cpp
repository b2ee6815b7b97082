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

constexpr std::size_t Proefrijen = 3; ///< of which a column shows its cells

QString Veldtekst(Kolom veld)
{
    if (veld == GeenVeld)
        return u"(niet gebruiken)"_s;
    if (veld == HeleNaam)
        return u"Naam (in een kolom)"_s;
    return NaarQString(veld == Kolom::NBBgr ? Subgroepnaam : Kolomnamen[Index(veld)]);
}

/// NUL for none.
char Teken(const QComboBox& keus)
{
    return keus.currentData().toString().leftJustified(1, QChar(0)).front().toLatin1();
}

QString Fouttekst(const Lijstfout& fout)
{
    switch (fout.bezwaar) {
    case Lijstbezwaar::GeenTekst:
        return u"Dit is geen lijst: er staan tekens in die in geen tekst voorkomen."_s;
    case Lijstbezwaar::Tekenset:
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
    for (const Tekst& tekst : administratie.groepen.Toonteksten()) {
        if (CodeUit(tekst) != administratie.mappen.DFIMPG)
            cmbGroep->addItem(NaarQString(tekst));
        if (CodeUit(tekst) == groep && groep != administratie.mappen.DFIMPG)
            cmbGroep->setCurrentIndex(cmbGroep->count() - 1);
    }
    ToonMelding();
}

QLayout* frmLijstImport::BouwVorm()
{
    auto* rij = new QHBoxLayout;
    const auto keus = [&](const QString& naam, const QString& opschrift,
                          const QList<std::pair<QString, QVariant>>& teksten) {
        auto* label =
            MaakLabel(u"lbl"_s + naam, MetSneltoets(opschrift, opschrift.front().unicode()), this);
        QComboBox* keuze = MaakKeus(u"cmb"_s + naam, label, this);
        for (const auto& [tekst, waarde] : teksten)
            keuze->addItem(tekst, waarde);
        rij->addWidget(label);
        rij->addWidget(keuze, 1);
        return keuze;
    };
    cmbTekenset =
        keus(u"Tekenset"_s, u"Tekenset:"_s, {{u"UTF-8"_s, 0}, {u"UTF-16"_s, 1}, {u"Windows"_s, 2}});
    cmbScheiding = keus(u"Scheiding"_s, u"Scheiding:"_s,
                        {{u"puntkomma"_s, u";"_s},
                         {u"komma"_s, u","_s},
                         {u"tab"_s, u"\t"_s},
                         {u"streep |"_s, u"|"_s}});
    cmbAanhaling =
        keus(u"Aanhaling"_s, u"Aanhaling:"_s,
             {{u"dubbel \""_s, u"\""_s}, {u"enkel '"_s, u"'"_s}, {u"geen"_s, QString()}});
    cmbRegeleinde = keus(
        u"Regeleinde"_s, u"Regeleinde:"_s,
        {{u"alle"_s, QString()}, {u"CR LF"_s, u"\r\n"_s}, {u"LF"_s, u"\n"_s}, {u"CR"_s, u"\r"_s}});
    connect(cmbTekenset, &QComboBox::activated, this, [this](int set) {
        Decodeer(static_cast<Tekenset>(set));
        Lees();
    });
    for (const QComboBox* anders : {cmbScheiding, cmbAanhaling, cmbRegeleinde})
        connect(anders, &QComboBox::activated, this, &frmLijstImport::Lees);
    return rij;
}

/// The controls are made in the order in which Tab goes through them.
void frmLijstImport::Bouw()
{
    auto* cmdBestand =
        MaakKnop(u"cmdBestand"_s, u"Kies bestand..."_s, u'K', this, &frmLijstImport::KiesBestand);
    lblBestand = new Kortlabel(u"Kies een lijst, zoals een rekenblad die als CSV bewaart."_s, this);
    Noem(lblBestand, u"lblBestand"_s);
    QLayout* vorm = BouwVorm();
    chkKop = MaakVink(u"chkKop"_s, u"De eerste regel noemt de kolommen"_s, u'e', this);
    lstKolommen =
        MaakBoom(u"lstKolommen"_s, u"De kolommen van de lijst"_s,
                 {u"Kolom"_s, u"Veld"_s, u"Eerste speler"_s, u"Tweede"_s, u"Derde"_s}, this);
    lstKolommen->setRootIsDecorated(false);
    auto* lblVeld =
        MaakLabel(u"lblVeld"_s, MetSneltoets(u"Veld van de gekozen kolom:"_s, u'V'), this);
    cmbVeld = MaakKeus(u"cmbVeld"_s, lblVeld, this);
    for (int veld = 0; veld <= static_cast<int>(HeleNaam); ++veld) {
        const auto kolom = static_cast<Kolom>(veld);
        if (kolom != Kolom::Nr && kolom != Kolom::Groep)
            cmbVeld->addItem(Veldtekst(kolom), veld);
    }
    auto* lblGroep =
        MaakLabel(u"lblGroep"_s, MetSneltoets(u"Nieuwe spelers naar groep:"_s, u'g'), this);
    cmbGroep = MaakKeus(u"cmbGroep"_s, lblGroep, this);
    auto* lblSubgroep = MaakLabel(u"lblSubgroep"_s, MetSneltoets(u"Subgroep:"_s, u'u'), this);
    txtSubgroep = new Tekstvak(this);
    Noem(txtSubgroep, u"txtSubgroep"_s);
    lblSubgroep->setBuddy(txtSubgroep);
    auto* lblHerken =
        MaakLabel(u"lblHerken"_s, MetSneltoets(u"Herken een speler aan:"_s, u'H'), this);
    cmbHerken = MaakKeus(u"cmbHerken"_s, lblHerken, this);
    cmbHerken->addItems({u"zijn key, in alle groepen"_s, u"zijn NBB-nummer, in die groep"_s,
                         u"zijn naam en postcode, in die groep"_s});
    lblMelding = MaakUitleg(u"lblMelding"_s, QString(), this);
    cmdBekijk =
        MaakKnop(u"cmdBekijk"_s, u"Bekijk vooraf..."_s, u'B', this, &frmLijstImport::Bekijk);
    cmdBekijk->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'n', this, &QDialog::reject);
    connect(chkKop, &QCheckBox::clicked, this, &frmLijstImport::RaadKeuze);
    connect(lstKolommen, &QTreeWidget::currentItemChanged, this, &frmLijstImport::ToonVeld);
    connect(cmbVeld, &QComboBox::activated, this, &frmLijstImport::KiesVeld);
    connect(cmbHerken, &QComboBox::activated, this, [this](int keus) {
        keuze_.herkenning = static_cast<Herkenning>(keus);
        ToonMelding();
    });
    Onderelkaar({Naastelkaar({cmdBestand, {lblBestand, 1}}),
                 vorm,
                 chkKop,
                 {lstKolommen, 1},
                 Naastelkaar({lblVeld, {cmbVeld, 1}, lblHerken, {cmbHerken, 1}}),
                 Naastelkaar({lblGroep, {cmbGroep, 1}, lblSubgroep, {txtSubgroep, 1}}),
                 lblMelding,
                 Knoppenrij({cmdAnnuleren, cmdBekijk})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(12900, 7800));
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
    if (tekst_) {
        const Lijstvorm vorm = HerkenVorm(tekst_->tekst);
        cmbScheiding->setCurrentIndex(
            cmbScheiding->findData(QString(QChar::fromLatin1(vorm.scheiding))));
        cmbAanhaling->setCurrentIndex(
            cmbAanhaling->findData(QString(QChar::fromLatin1(vorm.aanhaling))));
        cmbRegeleinde->setCurrentIndex(cmbRegeleinde->findData(NaarQString(vorm.regeleinde)));
    }
    Lees();
    lstKolommen->setFocus();
}

void frmLijstImport::Decodeer(std::optional<Tekenset> tekenset)
{
    tekst_ = Lijsttekstvan(bytes_, tekenset);
    if (tekst_)
        cmbTekenset->setCurrentIndex(static_cast<int>(tekst_->tekenset));
}

void frmLijstImport::Lees()
{
    if (!tekst_)
        lijst_ = tl::unexpected(tekst_.error());
    else
        lijst_ = LeesSpelerslijst(
            tekst_->tekst,
            {.regeleinde = NaarTekst(cmbRegeleinde->currentData().toString()),
             .scheiding = Teken(*cmbScheiding),
             .aanhaling = Teken(*cmbAanhaling)},
            frmVoortgang(u"'%1' wordt gelezen ..."_s.arg(naam_), u"&Stoppen"_s, this)
                .AlsVoortgang());
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
    const std::size_t kop = chkKop->isChecked() ? 1 : 0;
    for (std::size_t kolom = 0; kolom < keuze_.velden.size(); ++kolom) {
        const auto cel = [&](std::size_t rij) {
            return rij < lijst_->Rijen() ? NaarQString(lijst_->Cel(rij, kolom)).simplified()
                                         : QString();
        };
        QStringList cellen{kop > 0 ? cel(0) : u"kolom %1"_s.arg(kolom + 1),
                           Veldtekst(keuze_.velden[kolom])};
        for (std::size_t rij = kop; rij < kop + Proefrijen; ++rij)
            cellen << cel(rij);
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
        return u"Kies eerst in welke kolom de key staat."_s;
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
    administratie_.geschiedenis.Noem(
        NaarTekst(u"%1 geïmporteerd: %2 nieuw, %3 gewijzigd"_s.arg(naam_)
                      .arg(telling->nieuw)
                      .arg(telling->gewijzigd)));
    accept();
}

} // namespace plexoran
