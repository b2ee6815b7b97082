// Where the members come from: the database, or the exports in a folder.
#include <QFileDialog>
#include <QGuiApplication>

#include "federation/diaControleNBB.h"
#include "federation/frmImportNBB.h"
#include "federation/ledendatabase.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/schijf/programma.h"
#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

QString Knoptekst(Ledenbron bron)
{
    switch (bron) {
    case Ledenbron::XmlNbb3:
        return u"Kies een map en selecteer 'n 'XML'-bestand"_s;
    case Ledenbron::XmlNbb4:
        return u"Kies een map en wijs een XML-bestand aan"_s;
    default:
        return u"Kies een map en selecteer een 'CSV'-bestand"_s;
    }
}

QString Lijsttekst(Ledenbron bron)
{
    switch (bron) {
    case Ledenbron::Csv:
        return u"CSV-Ledenbestanden: "_s;
    case Ledenbron::XmlNbb3:
        return u"XML-Ledenbestanden uit NBBR-3: "_s;
    case Ledenbron::XmlNbb4:
        return u"XML-Ledenbestanden uit NBBR-4: "_s;
    case Ledenbron::Database:
        break;
    }
    return u"Ledenbestanden:"_s;
}

/// Files whose name ends in ".csv" or ".xml", capitals or not.
bool IsVanSoort(Tekstblik naam, Ledenbron bron)
{
    constexpr std::size_t lengte = 4;
    const Tekstblik einde = bron == Ledenbron::Csv ? ".CSV" : ".XML";
    return naam.size() >= lengte && Hoofdletters(naam.substr(naam.size() - lengte)) == einde;
}

/// In text order.
std::vector<Tekst> VanSoort(const std::vector<Tekst>& namen, Ledenbron bron)
{
    std::vector<Tekst> gevonden;
    std::copy_if(namen.begin(), namen.end(), std::back_inserter(gevonden),
                 [bron](const Tekst& naam) { return IsVanSoort(naam, bron); });
    Sorteer(gevonden);
    return gevonden;
}

QString Lijstfouttekst(const Fout& fout)
{
    const QString waarom =
        fout.soort == Foutsoort::Ontbreekt ? u"is niet gevonden"_s : u"kan niet worden gelezen"_s;
    return u"Fout bij het lezen van de ledenbestanden!\r\nDe database met de ledenbestanden %1; "
           "er is niets geïmporteerd. Kies zo nodig een geëxporteerd ledenbestand."_s.arg(waarom);
}

/// Lets a long path break behind each folder.
QString Breekbaar(QString pad)
{
    return pad.replace(u'\\', u"\\\u200B"_s);
}

/// The busy cursor for as long as this lives.
class Wachtcursor {
  public:
    Wachtcursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Wachtcursor(const Wachtcursor&) = delete;
    Wachtcursor& operator=(const Wachtcursor&) = delete;
    ~Wachtcursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace

/// The database is offered when a scoring program was found; what was chosen last is chosen again,
/// but for the database, which takes time to read.
void frmImportNBB::ToonAanbod()
{
    const Rekenprogramma& gevonden = administratie_.rekenprogramma;
    Option1->setVisible(gevonden.NBBRaanwezig || gevonden.BRITaanwezig);
    cmdKiesExportMap->setEnabled(false);
    MaakBruikbaar(false);
    lblExportMap->setText(u"Kies links eerst waar de spelers vandaan komen."_s);
    if (!geheugen_.bron || *geheugen_.bron == Ledenbron::Database)
        return;
    const std::map<Ledenbron, QRadioButton*> opties{
        {Ledenbron::Csv, Option2}, {Ledenbron::XmlNbb3, Option3}, {Ledenbron::XmlNbb4, Option4}};
    QRadioButton* optie = opties.at(*geheugen_.bron);
    optie->setChecked(true);
    optie->setFocus();
    KiesBron(*geheugen_.bron);
}

void frmImportNBB::MaakBruikbaar(bool bruikbaar)
{
    cmdControleNBBnrs->setEnabled(bruikbaar);
    cmdImporteer->setEnabled(bruikbaar);
}

/// The text above the list, with the letter that leads to the list.
void frmImportNBB::ToonLijsttekst(const QString& tekst)
{
    Label3->setText(MetSneltoets(tekst, u'b'));
}

void frmImportNBB::VulLijst(std::vector<Tekst> namen)
{
    namen_ = std::move(namen);
    lstNBBbest->Vul(static_cast<int>(namen_.size()),
                    [this](int plaats) { return namen_[static_cast<std::size_t>(plaats)]; });
}

void frmImportNBB::KiesBron(Ledenbron bron)
{
    bron_ = bron;
    geheugen_.bron = bron;
    VulLijst({});
    lblExportMap->setToolTip({});
    if (bron == Ledenbron::Database) {
        KiesDatabase();
        return;
    }
    cmdKiesExportMap->setText(MetSneltoets(Knoptekst(bron), u'K'));
    cmdKiesExportMap->setEnabled(true);
    map_.clear();
    MaakBruikbaar(false);
    lblExportMap->setText(u"Er is nog geen map gekozen."_s);
    ToonLijsttekst(Lijsttekst(bron));
    if (const Pad map = Beginmap(); !map.empty())
        ToonMap(map, {});
}

/// The folder chosen last for this source, else that of the federation exports, if it is there.
Pad frmImportNBB::Beginmap() const
{
    const auto eerder = geheugen_.mappen.find(bron_.value_or(Ledenbron::Csv));
    Pad map = eerder != geheugen_.mappen.end()       ? eerder->second
              : administratie_.mappen.WINMAP.empty() ? Pad()
                                                     : administratie_.mappen.Ledenmap();
    if (map.empty() || administratie_.schijf.Soort(map) != Padsoort::Map)
        return {};
    return map;
}

void frmImportNBB::KiesDatabase()
{
    cmdKiesExportMap->setEnabled(false);
    MaakBruikbaar(true);
    ToonLijsttekst(Lijsttekst(Ledenbron::Database));
    const Tekst& code = administratie_.rekenprogramma.ProgrammaCode;
    lblExportMap->setText(code == "BRIT"   ? u"Ledenbestanden direct uit BridgeIt:"_s
                          : code == "NBBR" ? u"Ledenbestanden direct uit NBBR-2.8:"_s
                                           : QString());
    if (LedenDatabase_.empty()) {
        Meld(this, QMessageBox::Warning,
             u"Fout bij het lezen van de ledenbestanden!\r\nBij de start van Plexoran was niet "
             "bekend waar de database van het rekenprogramma staat; er is niets geïmporteerd. "
             "Start Plexoran opnieuw en kies dan het rekenprogramma, of kies een geëxporteerd "
             "ledenbestand."_s);
        return;
    }
    const Wachtcursor wacht;
    auto namen = HaalLedenbestanden(
        LedenDatabase_,
        // It is over within seconds, and cannot be stopped.
        frmVoortgang(u"De ledenbestanden worden opgehaald ..."_s, {}, this).AlsVoortgang(),
        grenzen_);
    if (!namen)
        MeldFout(this, QMessageBox::Warning, Lijstfouttekst(namen.error()), namen.error());
    else if (namen->empty())
        Meld(this, QMessageBox::Information,
             u"In de database van het rekenprogramma staat geen enkel ledenbestand. Er is niets "
             "gewijzigd. Maak in het rekenprogramma een ledenbestand, of kies een geëxporteerd "
             "ledenbestand."_s);
    else
        VulLijst(std::move(*namen));
}

/// One file is pointed at; the folder it stands in is the chosen one.
void frmImportNBB::KiesExportMap()
{
    const bool csv = bron_ == Ledenbron::Csv;
    QFileDialog CommonDialog1(this, u"Kies 1 bestand uit de gekozen map"_s);
    Noem(&CommonDialog1, u"CommonDialog1"_s);
    CommonDialog1.setFileMode(QFileDialog::ExistingFile);
    CommonDialog1.setNameFilter(csv ? u"CSV-bestanden (*.csv)"_s : u"XML-bestanden (*.xml)"_s);
    if (!map_.empty())
        CommonDialog1.setDirectory(QString::fromStdString(administratie_.schijf.Toonpad(map_)));
    if (CommonDialog1.exec() != QDialog::Accepted || CommonDialog1.selectedFiles().isEmpty())
        return;
    const QString aangewezen = CommonDialog1.selectedFiles().first();
    if (aangewezen.contains(u'\\')) { // Qt writes "/" between folders, on Windows too
        Meld(this, QMessageBox::Warning,
             u"Dit bestand kan niet worden gelezen: in zijn naam of die van zijn map mag geen '\\' "
             "staan. Er is niets gewijzigd. Geef het bestand of de map een andere "
             "naam.\n\nBestand: "_s +
                 aangewezen);
        return;
    }
    const Pad bestand = VolledigPad(aangewezen.toStdString());
    const auto naam = bestand.find_last_of("\\/");
    if (naam == Pad::npos)
        return;
    const Tekst gekozen = bestand.substr(naam + 1);
    if (!ToonMap(bestand.substr(0, naam), gekozen))
        return;
    lstNBBbest->setFocus();
    MeldNietVanSoort(gekozen);
}

/// Without a word another file would stand chosen than the one that was pointed at.
void frmImportNBB::MeldNietVanSoort(const Tekst& gekozen)
{
    if (std::find(namen_.begin(), namen_.end(), gekozen) != namen_.end())
        return;
    const QString soort = bron_ == Ledenbron::XmlNbb3   ? u"XML-ledenbestand uit NBBR-3"_s
                          : bron_ == Ledenbron::XmlNbb4 ? u"XML-ledenbestand uit NBBR-4"_s
                                                        : u"CSV-ledenbestand"_s;
    Meld(this, QMessageBox::Information,
         u"'%1' is geen %2 en staat dus niet in de lijst. Er is niets geïmporteerd. Kies een ander "
         "bestand, of kies eerst links waar dit bestand vandaan komt."_s.arg(NaarQString(gekozen),
                                                                             soort));
}

/// Lists the folder. False when it cannot be listed, which leaves everything as it was, or not
/// every file in it was looked at.
bool frmImportNBB::ToonMap(const Pad& map, Tekstblik gekozen)
{
    const Wachtcursor wacht;
    const auto bestanden = administratie_.schijf.Bestanden(map);
    if (!bestanden) {
        MeldFout(this, QMessageBox::Warning,
                 u"De bestanden in de gekozen map kunnen niet worden opgezocht. Er is niets "
                 "geïmporteerd. Kies een andere map."_s,
                 bestanden.error());
        return false;
    }
    map_ = map;
    geheugen_.mappen[bron_.value_or(Ledenbron::Csv)] = map;
    MaakBruikbaar(true);
    const QString pad = QString::fromStdString(administratie_.schijf.Toonpad(map));
    lblExportMap->setText(u"Ledenbestanden in de gekozen map: "_s + Breekbaar(pad));
    ZetWenk(lblExportMap, pad);
    MeldOvergeslagen(this, administratie_.schijf, map);
    const bool volledig = ZoekBestanden(*bestanden);
    if (volledig) // or another file could stand chosen for the one that was pointed at
        KiesInLijst(gekozen);
    return volledig;
}

/// Fills the list with those that are of the source's kind. Of XML files that takes reading them
/// all; stopping lists the ones found by then, and gives false.
bool frmImportNBB::ZoekBestanden(std::vector<Tekst> namen)
{
    const Ledenbron bron = bron_.value_or(Ledenbron::Csv);
    namen = VanSoort(namen, bron);
    bool volledig = true;
    if (bron != Ledenbron::Csv) {
        frmVoortgang voortgang(u"De XML-bestanden in de gekozen map worden bekeken"_s,
                               u"&Stoppen"_s, this);
        namen = BepaalXMLsoort(administratie_.schijf, map_, namen, bron, voortgang.AlsVoortgang());
        volledig = !voortgang.Gestopt();
    }
    VulLijst(std::move(namen));
    QString tekst =
        Lijsttekst(bron) + (namen_.empty() ? u"geen"_s : QString::number(namen_.size()));
    if (!volledig)
        tekst += u" (niet alle bestanden zijn bekeken)"_s;
    ToonLijsttekst(tekst);
    return volledig;
}

/// Chooses the file that was pointed at, or else the first of XML files.
void frmImportNBB::KiesInLijst(Tekstblik gekozen)
{
    const auto plaats = std::find(namen_.begin(), namen_.end(), gekozen);
    const int kies = plaats != namen_.end()    ? static_cast<int>(plaats - namen_.begin())
                     : bron_ != Ledenbron::Csv ? 0
                                               : -1;
    if (kies >= 0 && kies < lstNBBbest->Aantal())
        lstNBBbest->Kies({kies});
    lstNBBbest->ZetHuidige(std::max(kies, 0));
}

std::vector<Tekst> frmImportNBB::GekozenBestanden() const
{
    std::vector<Tekst> gekozen;
    for (const int plaats : lstNBBbest->GekozenPlaatsen())
        gekozen.push_back(namen_[static_cast<std::size_t>(plaats)]);
    return gekozen;
}

Ledenopdracht frmImportNBB::Opdracht() const
{
    return {.bron = bron_.value_or(Ledenbron::Csv),
            .map = map_,
            .programmamap = bron_ == Ledenbron::Csv
                                ? administratie_.programmamap
                                : Tussenmap(administratie_.schijf, administratie_.programmamap,
                                            administratie_.mappen.ADMMAP),
            .LedenDatabase = LedenDatabase_,
            .keuzes = {.naw = chkNAW->isChecked(),
                       .tel = chkTel->isChecked(),
                       .email = chkEmail->isChecked(),
                       .mv = chkMV->isChecked()},
            .grenzen = grenzen_};
}

void frmImportNBB::ControleerNBBnrs()
{
    const auto gekozen = GekozenBestanden();
    if (gekozen.empty()) {
        Meld(this, QMessageBox::Warning, u"U moet nog ledenbestand(en) selecteren!"_s);
        return;
    }
    diaControleNBB(administratie_, Opdracht(), gekozen, this).exec();
}

} // namespace plexoran
