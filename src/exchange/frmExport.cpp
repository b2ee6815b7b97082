#include "exchange/frmExport.h"

#include <QListWidget>

#include <array>
#include <numeric>

#include "exchange/frmExport_geheugen.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/kopieren.h"
#include "platform/scherm/schuifblad.h"
#include "printing/printtabel.h"

namespace plexoran {
namespace {

/// Before the numbers of the groups in the list of who.
constexpr int Gekozenen = -1;
constexpr int AlleGroepen = 0;

struct Soort {
    const char16_t* sleutel; ///< by which it is remembered
    const char16_t* naam;
    const char16_t* filter; ///< of the dialog that asks for the file
    const char16_t* uitgang;
    const char16_t* uitleg;
    Uitvoerbytes (*maak)(const Uitvoer&, const Voortgang&);
};

constexpr auto Csvuitleg =
    u"Een tekst die een rekenblad voor een formule zou houden, zoals +31 6..., krijgt een "
    "apostrof ervoor.";

constexpr auto Kaartuitleg =
    u"Voor het adresboek van een telefoon of mailprogramma. De naam staat er altijd op; de "
    "volgorde van de kolommen telt niet.";

constexpr std::array Soorten{
    Soort{u"xlsx", u"Rekenblad (XLSX)", u"Rekenbladen (*.xlsx)", u"xlsx",
          u"Alles staat er als tekst in, dus telefoonnummers en nullen vooraan blijven zoals ze "
          u"zijn.",
          MaakXlsx},
    Soort{u"csv", u"CSV-bestand (UTF-8)", u"CSV-bestanden (*.csv)", u"csv", Csvuitleg,
          [](const Uitvoer& uitvoer, const Voortgang& voortgang) {
              return MaakCsv(uitvoer, Tekenset::Utf8, voortgang);
          }},
    Soort{u"csv1252", u"CSV-bestand (Windows-1252)", u"CSV-bestanden (*.csv)", u"csv", Csvuitleg,
          [](const Uitvoer& uitvoer, const Voortgang& voortgang) {
              return MaakCsv(uitvoer, Tekenset::Windows1252, voortgang);
          }},
    Soort{u"vcard4", u"Adreskaarten (vCard 4.0)", u"Adreskaarten (*.vcf)", u"vcf", Kaartuitleg,
          [](const Uitvoer& uitvoer, const Voortgang& voortgang) {
              return MaakVcards(uitvoer, Kaartversie::Vier, voortgang);
          }},
    Soort{u"vcard3", u"Adreskaarten (vCard 3.0)", u"Adreskaarten (*.vcf)", u"vcf", Kaartuitleg,
          [](const Uitvoer& uitvoer, const Voortgang& voortgang) {
              return MaakVcards(uitvoer, Kaartversie::Drie, voortgang);
          }},
};

} // namespace

frmExport::frmExport(Administratie& administratie, Tekstblik groepscode, QWidget* ouder,
                     std::vector<int> gekozen)
    : QDialog(ouder), administratie_(administratie), gekozen_(std::move(gekozen))
{
    Bouw();
    if (!gekozen_.empty())
        cmbWie->addItem(Aantal(gekozen_.size(), u"gekozen speler"_s, u"gekozen spelers"_s),
                        Gekozenen);
    cmbWie->addItem(u"Alle groepen"_s, AlleGroepen);
    for (int groep = 1; groep <= AantalGroepen; ++groep)
        cmbWie->addItem(NaarQString(administratie.groepen.Toontekst(groep)), groep);
    cmbWie->setCurrentIndex(
        cmbWie->findData(gekozen_.empty() ? Groepnummer(groepscode) : Gekozenen));
    VulKolommen();
    connect(cmbWie, &QComboBox::currentIndexChanged, this, &frmExport::KiesWie);
    connect(cmbSubgroep, &QComboBox::currentIndexChanged, this, &frmExport::KiesSubgroep);
    connect(cmbSoort, &QComboBox::currentIndexChanged, this, &frmExport::PasAan);
    connect(lstKolommen, &QListWidget::itemChanged, this, &frmExport::PasAan);
    KiesWie();
}

/// Controls are made in the order in which the Tab key goes through them.
void frmExport::Bouw()
{
    setObjectName(u"frmExport"_s);
    setWindowTitle(u"Spelers exporteren"_s);
    auto* lblWie = MaakLabel(u"lblWie"_s, u"Wie:"_s, this);
    cmbWie = MaakKeus(u"cmbWie"_s, lblWie, this);
    auto* lblSubgroep = MaakLabel(u"lblSubgroep"_s, u"Subgroep:"_s, this);
    cmbSubgroep = MaakKeus(u"cmbSubgroep"_s, lblSubgroep, this);
    lblAantal = MaakLabel(u"lblAantal"_s, QString(), this);
    auto* kolommen = BouwKolommen();
    auto* lblSoort = MaakLabel(u"lblSoort"_s, u"Bestand:"_s, this);
    cmbSoort = MaakKeus(u"cmbSoort"_s, lblSoort, this);
    for (const Soort& soort : Soorten)
        cmbSoort->addItem(QString::fromUtf16(soort.naam), QString::fromUtf16(soort.sleutel));
    lblUitleg = MaakUitleg(u"lblUitleg"_s, QString(), this);
    cmdOK = MaakKnop(u"cmdOK"_s, u"Exporteren..."_s, u'E', this, &frmExport::Exporteer);
    cmdOK->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    Onderelkaar({Naastelkaar({lblWie, {cmbWie, 3}, lblSubgroep, {cmbSubgroep, 2}}),
                 lblAantal,
                 {kolommen, 1},
                 Naastelkaar({lblSoort, {cmbSoort, 1}}),
                 lblUitleg,
                 Knoppenrij({cmdOK, cmdAnnuleren})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(8400, 7800));
}

QGroupBox* frmExport::BouwKolommen()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Welke kolommen, in welke volgorde"_s, this);
    lstKolommen = new QListWidget(Frame1);
    Noem(lstKolommen, u"lstKolommen"_s, u"Kolommen"_s);
    lstKolommen->setDragDropMode(QAbstractItemView::InternalMove);
    LaatKopieren(lstKolommen);
    auto* cmdOmhoog = MaakKnop(u"cmdOmhoog"_s, u"Omhoog"_s, u'h', this, [this] { Verzet(-1); });
    auto* cmdOmlaag = MaakKnop(u"cmdOmlaag"_s, u"Omlaag"_s, u'l', this, [this] { Verzet(1); });
    auto* cmdAlles = MaakKnop(u"cmdAlles"_s, u"Alles"_s, u'A', this, [this] { VinkAlle(true); });
    auto* cmdNiets = MaakKnop(u"cmdNiets"_s, u"Niets"_s, u'N', this, [this] { VinkAlle(false); });
    Naastelkaar({{lstKolommen, 1}, Onderelkaar({cmdOmhoog, cmdOmlaag, cmdAlles, cmdNiets, 1})},
                Frame1);
    return Frame1;
}

/// As the user had them last.
void frmExport::VulKolommen()
{
    const auto [kolommen, soort] = LeesExportkeuze(administratie_.vensterIni);
    for (const int kolom : kolommen) {
        const int nummer = std::abs(kolom);
        Tekst naam(Kolomnamen[Index(static_cast<Kolom>(nummer))]);
        if (nummer == static_cast<int>(Kolom::NBBgr))
            naam.append(" of ").append(Subgroepnaam); // as most groups call it
        auto* regel = new QListWidgetItem(NaarQString(naam), lstKolommen);
        regel->setData(Qt::UserRole, nummer);
        regel->setCheckState(kolom > 0 ? Qt::Checked : Qt::Unchecked);
    }
    lstKolommen->setCurrentRow(0);
    cmbSoort->setCurrentIndex(std::max(0, cmbSoort->findData(soort)));
}

void frmExport::KiesWie()
{
    std::vector<Tekst> keuzes = Printsubgroepen(administratie_.spelers.tabel, RijenVan({}));
    keuzes.insert(keuzes.begin(), "Alle subgroepen");
    VulKeus(*cmbSubgroep, keuzes);
    KiesSubgroep();
}

/// Those who are chosen above, in table order or as they were chosen.
std::vector<int> frmExport::RijenVan(const std::vector<Tekst>& subgroepen) const
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const int wie = cmbWie->currentData().toInt();
    Printopdracht opdracht{.subgroepen = subgroepen};
    if (wie > AlleGroepen)
        opdracht.groepscode = Groepscode(wie);
    else
        opdracht.rijen = gekozen_;
    if (wie == AlleGroepen) {
        opdracht.rijen->resize(static_cast<std::size_t>(tabel.Rijen()));
        std::iota(opdracht.rijen->begin(), opdracht.rijen->end(), 1);
    }
    return MaakPrinttabel(tabel, opdracht).rijen;
}

void frmExport::KiesSubgroep()
{
    std::vector<Tekst> subgroepen;
    if (cmbSubgroep->currentIndex() > 0)
        subgroepen.push_back(NaarTekst(cmbSubgroep->currentText()));
    rijen_ = RijenVan(subgroepen);
    lblAantal->setText(Aantal(rijen_.size(), u"speler"_s, u"spelers"_s));
    PasAan();
}

void frmExport::PasAan()
{
    lblUitleg->setText(
        QString::fromUtf16(Soorten.at(static_cast<std::size_t>(cmbSoort->currentIndex())).uitleg));
    cmdOK->setEnabled(!rijen_.empty() && !GekozenKolommen().empty());
}

void frmExport::Verzet(int stap)
{
    const int van = lstKolommen->currentRow();
    const int naar = van + stap;
    if (van < 0 || naar < 0 || naar >= lstKolommen->count())
        return;
    lstKolommen->insertItem(naar, lstKolommen->takeItem(van));
    lstKolommen->setCurrentRow(naar);
}

void frmExport::VinkAlle(bool aan)
{
    for (int i = 0; i < lstKolommen->count(); ++i)
        lstKolommen->item(i)->setCheckState(aan ? Qt::Checked : Qt::Unchecked);
}

std::vector<Kolom> frmExport::GekozenKolommen() const
{
    std::vector<Kolom> uit;
    for (int i = 0; i < lstKolommen->count(); ++i) {
        const QListWidgetItem& regel = *lstKolommen->item(i);
        if (regel.checkState() == Qt::Checked)
            uit.push_back(static_cast<Kolom>(regel.data(Qt::UserRole).toInt()));
    }
    return uit;
}

void frmExport::Onthoud() const
{
    Exportkeuze keuze{.soort = cmbSoort->currentData().toString()};
    for (int i = 0; i < lstKolommen->count(); ++i) {
        const QListWidgetItem& regel = *lstKolommen->item(i);
        const int kolom = regel.data(Qt::UserRole).toInt();
        keuze.kolommen << (regel.checkState() == Qt::Checked ? kolom : -kolom);
    }
    BewaarExportkeuze(administratie_.vensterIni, keuze);
}

/// The window stays when the work was stopped or failed, so that it can be tried again.
void frmExport::Exporteer()
{
    const Soort& soort = Soorten.at(static_cast<std::size_t>(cmbSoort->currentIndex()));
    const bool groep = cmbWie->currentData().toInt() > AlleGroepen;
    const QString naam = groep ? cmbWie->currentText() : u"Spelers"_s;
    const auto pad = VraagOpslagplaats(this, windowTitle(), QString::fromUtf16(soort.filter),
                                       QString::fromUtf16(soort.uitgang),
                                       QString::fromStdString(AlsBestandsnaam(NaarTekst(naam))));
    if (!pad)
        return;
    frmVoortgang voortgang(u"De spelers worden geëxporteerd ..."_s, u"&Stoppen"_s, this);
    const Uitvoerbytes bytes = soort.maak({.tabel = administratie_.spelers.tabel,
                                           .groepen = administratie_.groepen,
                                           .rijen = rijen_,
                                           .kolommen = GekozenKolommen()},
                                          voortgang.AlsVoortgang());
    voortgang.hide();
    if (bytes && !*bytes)
        return;
    const auto opslag =
        bytes ? SchrijfHeel(administratie_.schijf, *pad, **bytes) : Uitkomst<void>(Mislukt(bytes));
    if (!StaatEr(this, opslag)) {
        MeldMislukt(opslag.error());
        return;
    }
    Onthoud();
    gedaan_ =
        u"%1 geëxporteerd naar %2"_s.arg(lblAantal->text(), Toonpad(administratie_.schijf, *pad));
    accept();
}

void frmExport::MeldMislukt(const Fout& fout)
{
    if (fout.soort == Foutsoort::Beschadigd)
        Meld(this, QMessageBox::Warning,
             u"Er is geen rekenblad gemaakt: %1 heeft een tekst van meer dan 32.767 tekens, en die "
             "past er niet in. Kies een CSV-bestand."_s.arg(
                 NaarQString(VolleNaam(administratie_.spelers.tabel, fout.regel))));
    else
        MeldFout(
            this, QMessageBox::Warning,
            u"Er is niets geëxporteerd. Een bestand dat er al stond, is nog heel. Kies een map "
            "waarin u mag schrijven en waar nog ruimte is."_s,
            fout);
}

} // namespace plexoran
