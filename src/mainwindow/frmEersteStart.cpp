#include "mainwindow/frmEersteStart.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QStandardPaths>

#include <algorithm>

#include "platform/bronnen/instellingenwinkel.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"
#include "platform/schijf/programma.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace plexoran {
namespace {

/// The sample club, which the program carries with it.
std::vector<Zipdeel> Oefendelen()
{
    const QDir wortel(u":/voorbeeld"_s);
    std::vector<Zipdeel> delen;
    for (QDirIterator plek(wortel.path(), QDir::Files, QDirIterator::Subdirectories);
         plek.hasNext();) {
        QFile bestand(plek.next());
        if (!bestand.fileName().endsWith(u".sjabloon"_s) && bestand.open(QIODevice::ReadOnly))
            delen.push_back(
                {NaarTekst(wortel.relativeFilePath(bestand.fileName()).replace(u'/', u'\\')),
                 bestand.readAll().toStdString()});
    }
    return delen;
}

} // namespace

Pad EersteBruikbare(const QStringList& mappen)
{
    for (const QString& map : mappen) {
        if (ExactNaarCodepagina(map.toStdU16String()) &&
            (!QFileInfo::exists(map) || QFileInfo(map).isWritable()))
            return VolledigPad(map.toStdString());
    }
    return VolledigPad(mappen.front().toStdString());
}

Startomgeving HuidigeOmgeving()
{
    const Pad documenten = EersteBruikbare(
        {QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
         qEnvironmentVariable("PUBLIC", QDir::homePath()) + u"/Documents"_s, QDir::rootPath()});
    const Pad programma = Programmamap();
    Startomgeving uit{.ini = Gebruikersbestand("suite.ini"),
                      .documenten = documenten,
                      .zoekplaatsen = {{programma, 1},
                                       {programma.substr(0, programma.rfind('\\')), 1},
                                       {documenten, 2},
                                       {VolledigPad(QDir::homePath().toStdString()), 2}}};
#ifdef _WIN32
    for (const QFileInfo& station : QDir::drives()) {
        // One of the network that is away would hold up the search.
        const UINT soort = ::GetDriveTypeW(station.filePath().toStdWString().c_str());
        if (soort == DRIVE_FIXED || soort == DRIVE_REMOVABLE)
            uit.zoekplaatsen.push_back({NaarTekst(station.filePath().left(2)), 1});
    }
#endif
    return uit;
}

frmEersteStart::frmEersteStart(Schijf& schijf, const Startomgeving& omgeving, QWidget* ouder,
                               const Pad& open)
    : QDialog(ouder), schijf_(schijf), omgeving_(omgeving), map_(omgeving.documenten)
{
    constexpr int hoogstens = 2000; // milliseconds of searching
    Bouw(open.empty() ? u"Stoppen"_s : u"Annuleren"_s);
    QElapsedTimer sinds;
    sinds.start();
    for (const Pad& pad :
         ZoekSuites(schijf, omgeving.zoekplaatsen, [&] { return sinds.elapsed() < hoogstens; }))
        VoegSuiteToe(pad);
    if (!open.empty() && std::ranges::find(suites_, open) == suites_.end())
        VoegSuiteToe(open);
    const auto plek = std::ranges::find(suites_, open) - suites_.begin();
    lstSuites->setCurrentRow(open.empty() ? 0 : static_cast<int>(plek));
    auto* keus = suites_.empty() ? optNieuw : optBestaand;
    keus->setChecked(true);
    keus->setFocus();
    ToonKeus();
}

void frmEersteStart::Bouw(const QString& weg)
{
    setObjectName(u"frmEersteStart"_s);
    setWindowTitle(u"Administratie kiezen"_s);
    auto* Label1 =
        MaakUitleg(u"Label1"_s,
                   u"Plexoran werkt met een administratie: een map met de spelers van uw "
                   "club en een bestand 'Mappen.ini'. Hoe wilt u beginnen?"_s,
                   this);
    optBestaand = MaakOptie(u"optBestaand"_s, u"Een bestaande suite kiezen"_s, u'b', this);
    lstSuites = new QListWidget(this);
    Noem(lstSuites, u"lstSuites"_s, u"Gevonden administraties"_s);
    LaatKopieren(lstSuites);
    lstSuites->setTextElideMode(Qt::ElideMiddle);
    lstSuites->setMinimumHeight(3 * fontMetrics().lineSpacing());
    cmdBladeren =
        MaakKnop(u"cmdBladeren"_s, u"Bladeren..."_s, u'd', this, &frmEersteStart::ZoekSuite);
    optNieuw = MaakOptie(u"optNieuw"_s, u"Een nieuwe administratie maken"_s, u'n', this);
    auto* lblClub = MaakLabel(u"lblClub"_s, u"Naam van de &club:"_s, this);
    txtClub = new Tekstvak(this);
    Noem(txtClub, u"txtClub"_s);
    lblClub->setBuddy(txtClub);
    auto* lblPlaats = MaakLabel(u"lblPlaats"_s, u"Komt in de ma&p:"_s, this);
    txtPlaats = new QLineEdit(this);
    Noem(txtPlaats, u"txtPlaats"_s);
    txtPlaats->setReadOnly(true);
    lblPlaats->setBuddy(txtPlaats);
    cmdMap = MaakKnop(u"cmdMap"_s, u"Andere map..."_s, u'A', this, &frmEersteStart::KiesMap);
    optOefenen = MaakOptie(u"optOefenen"_s, u"Eerst oefenen"_s, u'o', this);
    auto* lblOefenen = MaakLabel(u"lblOefenen"_s,
                                 u"Met verzonnen spelers, in de map 'Plexoran oefenclub' bij uw "
                                 "documenten."_s,
                                 this);
    auto* cmdVerder = MaakKnop(u"cmdVerder"_s, u"Verder"_s, u'V', this, &QDialog::accept);
    cmdVerder->setDefault(true);
    auto* cmdStoppen =
        MaakKnop(u"cmdStoppen"_s, weg, weg.contains(u'u') ? u'u' : u'S', this, &QDialog::reject);
    for (auto* optie : {optBestaand, optNieuw, optOefenen})
        connect(optie, &QRadioButton::clicked, this, &frmEersteStart::ToonKeus);
    connect(txtClub, &QLineEdit::textChanged, this, &frmEersteStart::ToonKeus);
    connect(lstSuites, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    auto* vakken = new QGridLayout;
    vakken->addWidget(lblClub, 0, 0);
    vakken->addWidget(txtClub, 0, 1, 1, 2);
    vakken->addWidget(lblPlaats, 1, 0);
    vakken->addWidget(txtPlaats, 1, 1);
    vakken->addWidget(cmdMap, 1, 2);
    constexpr Wit inspringing{24};
    Onderelkaar({Label1,
                 optBestaand,
                 {Naastelkaar({inspringing, {lstSuites, 1}, Onderelkaar({cmdBladeren, 1})}), 1},
                 optNieuw,
                 Naastelkaar({inspringing, {vakken, 1}}),
                 optOefenen,
                 Naastelkaar({inspringing, {lblOefenen, 1}}),
                 Knoppenrij({cmdVerder, cmdStoppen})},
                this);
    PasInScherm(this, Maten().Twips(9600, 6000));
}

/// What belongs to the chosen option takes the keys.
void frmEersteStart::ToonKeus()
{
    for (QWidget* deel : std::initializer_list<QWidget*>{lstSuites, cmdBladeren})
        deel->setEnabled(optBestaand->isChecked());
    for (QWidget* deel : std::initializer_list<QWidget*>{txtClub, txtPlaats, cmdMap})
        deel->setEnabled(optNieuw->isChecked());
    txtPlaats->setText(Toonpad(schijf_, NieuweMap()));
}

void frmEersteStart::VoegSuiteToe(const Pad& pad)
{
    suites_.push_back(pad);
    const QString tekst = Toonpad(schijf_, pad);
    auto* regel = new QListWidgetItem(tekst, lstSuites);
    regel->setToolTip(Wenk(tekst));
    lstSuites->setCurrentItem(regel);
}

/// Empty when the user changed his mind, or was told that the suite cannot write such a name.
Pad frmEersteStart::GekozenIn(QFileDialog& kiezer)
{
    Noem(&kiezer, u"CommonDialog1"_s);
    kiezer.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (kiezer.exec() != QDialog::Accepted || kiezer.selectedFiles().isEmpty())
        return {};
    const QString pad = QDir::toNativeSeparators(kiezer.selectedFiles().constFirst());
    if (ExactNaarCodepagina(pad.toStdU16String()))
        return VolledigPad(pad.toStdString());
    Meld(
        this, QMessageBox::Warning,
        u"In deze naam staan tekens die de programma's van de suite niet kennen (Windows-1252). Er "
        "is niets veranderd. Kies een andere map.\n\n"_s +
            pad);
    return {};
}

void frmEersteStart::ZoekSuite()
{
    QFileDialog CommonDialog1(this, u"Kies het bestand 'Mappen.ini' van de administratie"_s);
    CommonDialog1.setFileMode(QFileDialog::ExistingFile);
    CommonDialog1.setNameFilter(u"Mappen.ini (*.ini)"_s);
    if (const Pad pad = GekozenIn(CommonDialog1); !pad.empty())
        VoegSuiteToe(pad);
}

void frmEersteStart::KiesMap()
{
    QFileDialog CommonDialog1(this, u"Kies waar de map van de administratie komt"_s);
    CommonDialog1.setFileMode(QFileDialog::Directory);
    CommonDialog1.setOption(QFileDialog::ShowDirsOnly);
    if (const Pad pad = GekozenIn(CommonDialog1); !pad.empty())
        map_ = pad;
    ToonKeus();
}

Pad frmEersteStart::NieuweMap() const
{
    return Samen(map_, ZonderSpaties(txtClub->GeefTekst()));
}

void frmEersteStart::MeldFoutIn(const Fout& fout)
{
    MeldFout(this, QMessageBox::Warning,
             u"Deze plaats kan niet worden bekeken. Er is niets veranderd. Kijk of u er mag lezen, "
             "of kies een andere map."_s,
             fout);
}

std::optional<Pad> frmEersteStart::Gelezen(const Pad& pad)
{
    const auto mappen = LeesMappenIni(schijf_, pad);
    if (mappen)
        return pad;
    MeldFout(this, QMessageBox::Warning,
             u"Met dit bestand kan Plexoran niet beginnen: het is niet te lezen, of er staat geen "
             "map achter SPEMAP=. Er is niets veranderd. Kies een ander."_s,
             mappen.error());
    return std::nullopt;
}

std::optional<Pad> frmEersteStart::KiesBestaande()
{
    if (lstSuites->currentRow() >= 0)
        return Gelezen(suites_[static_cast<std::size_t>(lstSuites->currentRow())]);
    Meld(this, QMessageBox::Information,
         u"Kies een administratie uit de lijst, of zoek met Bladeren het bestand 'Mappen.ini'. "
         "Er is nog niets veranderd."_s);
    return std::nullopt;
}

std::optional<Pad> frmEersteStart::MaakNieuwe()
{
    const Tekst club(ZonderSpaties(txtClub->GeefTekst()));
    const Pad map = NieuweMap();
    if (const std::string bezwaar = Naambezwaar(club, map); !bezwaar.empty()) {
        Meld(this, QMessageBox::Warning,
             QString::fromStdString(bezwaar) + u" Er is nog niets gemaakt."_s);
        txtClub->setFocus();
        return std::nullopt;
    }
    for (const Pad& waar : {map, map_}) {
        const auto bestaand = ZoekBestaand(schijf_, waar);
        if (!bestaand) {
            MeldFoutIn(bestaand.error());
            return std::nullopt;
        }
        const bool heel = !bestaand->mappenIni.empty();
        if (!heel && bestaand->spelersmap.empty())
            continue;
        if (Kies(this, QMessageBox::Question,
                 u"In deze map staat al %1. Dat wordt niet overschreven. Wilt u ermee verder?\n\n"
                 "Map: %2"_s.arg(heel ? u"een administratie"_s : u"een spelerbestand"_s,
                                 Toonpad(schijf_, waar)),
                 {u"Ermee verder"_s, u"Annuleren"_s}) != 0)
            return std::nullopt;
        return heel ? Gelezen(bestaand->mappenIni) : Maak(waar, {}, bestaand->spelersmap);
    }
    return Maak(map, NieuweDelen(club), Samen(map, "Spelers"));
}

std::optional<Pad> frmEersteStart::Oefen()
{
    const auto delen = Oefendelen();
    const auto plaats = ZoekOefenplaats(schijf_, omgeving_.documenten, delen);
    if (!plaats) {
        MeldFoutIn(plaats.error());
        return std::nullopt;
    }
    const auto& [bestaand, vrij] = *plaats;
    const int antwoord =
        bestaand.empty() ? 1
                         : Kies(this, QMessageBox::Question,
                                u"Er is al een oefenclub. Wilt u daarmee verder, of met een nieuwe "
                                "beginnen?\n\nMap: "_s +
                                    Toonpad(schijf_, bestaand),
                                {u"Verder oefenen"_s, u"Nieuwe oefenclub"_s, u"Annuleren"_s});
    if (antwoord == 0)
        return Gelezen(Samen(bestaand, "Mappen.ini"));
    return antwoord == 1 ? Maak(vrij, delen, Samen(vrij, "Spelers")) : std::nullopt;
}

std::optional<Pad> frmEersteStart::Maak(const Pad& map, const std::vector<Zipdeel>& delen,
                                        const Pad& spelersmap)
{
    const auto gemaakt = MaakAdministratie(schijf_, map, delen, spelersmap);
    if (gemaakt)
        return *gemaakt;
    QString gebleven;
    for (const std::string& pad : gemaakt.error().gebleven)
        gebleven += u"\nGebleven: "_s + QString::fromStdString(pad);
    MeldFout(this, QMessageBox::Critical,
             u"De administratie kon niet worden gemaakt. %1 Kijk of u in die map mag schrijven en "
             "of er nog ruimte is, of kies een andere map.%2"_s.arg(
                 gebleven.isEmpty() ? u"Er is niets van blijven staan."_s
                                    : u"Wat hieronder staat, is gebleven en kan weg."_s,
                 gebleven.isEmpty() ? gebleven : u'\n' + gebleven),
             gemaakt.error().fout);
    return std::nullopt;
}

void frmEersteStart::accept()
{
    const auto gekozen = optBestaand->isChecked() ? KiesBestaande()
                         : optNieuw->isChecked()  ? MaakNieuwe()
                                                  : Oefen();
    if (!gekozen)
        return;
    mappenIni_ = *gekozen;
    const auto onthouden = OnthoudMappenIni(schijf_, omgeving_.ini, mappenIni_);
    if (!StaatEr(this, onthouden))
        MeldFout(this, QMessageBox::Warning,
                 u"Welke administratie u koos, kan niet worden onthouden: de volgende keer vraagt "
                 "Plexoran het weer. U kunt gewoon verder. Kijk of u in uw eigen map voor "
                 "instellingen mag schrijven."_s,
                 onthouden.error());
    QDialog::accept();
}

} // namespace plexoran
