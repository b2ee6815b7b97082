#include "federation/frmImportNBB.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QScopeGuard>

#include <algorithm>

#include "federation/diaControleNBB.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/schijf/programma.h"

namespace plexoran {
namespace {

/// How the window speaks of a source.
struct Brontekst {
    QString knop;
    QString lijst;
    QString soort;
};

const Brontekst& TekstVan(Ledenbron bron)
{
    static const std::array<Brontekst, 4> teksten{
        {{{}, u"Ledenbestanden:"_s, {}},
         {u"Kies een map en selecteer een 'CSV'-bestand"_s, u"CSV-Ledenbestanden: "_s,
          u"CSV-ledenbestand"_s},
         {u"Kies een map en selecteer 'n 'XML'-bestand"_s, u"XML-Ledenbestanden uit NBBR-3: "_s,
          u"XML-ledenbestand uit NBBR-3"_s},
         {u"Kies een map en wijs een XML-bestand aan"_s, u"XML-Ledenbestanden uit NBBR-4: "_s,
          u"XML-ledenbestand uit NBBR-4"_s}}};
    return teksten[static_cast<std::size_t>(bron) - 1];
}

} // namespace

frmImportNBB::frmImportNBB(Administratie& administratie, Importgeheugen& geheugen, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), import_(administratie, geheugen)
{
    const auto vorige = geheugen.bron;
    Bouw();
    MaakBruikbaar(false);
    // What was chosen last is chosen again, but for the database, which takes time to read.
    if (!vorige || *vorige == Ledenbron::Database)
        return;
    QRadioButton* optie = opties_[static_cast<int>(*vorige) - 1];
    optie->setChecked(true);
    optie->setFocus();
    KiesBron(*vorige);
}

void frmImportNBB::reject()
{
    if (!bezig_)
        QDialog::reject();
}

void frmImportNBB::MaakBruikbaar(bool bruikbaar)
{
    cmdControleNBBnrs->setEnabled(bruikbaar);
    cmdBekijk->setEnabled(bruikbaar);
    cmdImporteer->setEnabled(bruikbaar);
}

/// The list, and the text above it with the letter that leads to it.
void frmImportNBB::ToonLijst(const QString& aantal)
{
    Label3->setText(MetSneltoets(TekstVan(import_.Bron()).lijst + aantal, u'b'));
    lstNBBbest->Vul(static_cast<int>(import_.Namen().size()), [namen = import_.Namen()](int plek) {
        return namen[static_cast<std::size_t>(plek)];
    });
}

void frmImportNBB::KiesBron(Ledenbron bron)
{
    import_.KiesBron(bron);
    ToonLijst();
    lblExportMap->setToolTip({});
    cmdKiesExportMap->setEnabled(bron != Ledenbron::Database);
    MaakBruikbaar(bron == Ledenbron::Database);
    if (bron == Ledenbron::Database) {
        KiesDatabase();
        return;
    }
    cmdKiesExportMap->setText(MetSneltoets(TekstVan(bron).knop, u'K'));
    lblExportMap->setText(u"Er is nog geen map gekozen."_s);
    if (const Pad map = import_.Beginmap(); !map.empty())
        ToonMap(map, {});
}

void frmImportNBB::KiesDatabase()
{
    const Tekst& code = administratie_.rekenprogramma.ProgrammaCode;
    lblExportMap->setText(code == "BRIT"   ? u"Ledenbestanden direct uit BridgeIt:"_s
                          : code == "NBBR" ? u"Ledenbestanden direct uit NBBR-2.8:"_s
                                           : QString());
    if (!import_.KentDatabase()) {
        Meld(this, QMessageBox::Warning,
             u"Fout bij het lezen van de ledenbestanden!\r\nBij de start van Plexoran was niet "
             "bekend waar de database van het rekenprogramma staat; er is niets geïmporteerd. "
             "Start Plexoran opnieuw en kies dan het rekenprogramma, of kies een geëxporteerd "
             "ledenbestand."_s);
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto herstel = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    const auto gelezen = import_.KiesDatabase(
        // It is over within seconds, and cannot be stopped.
        frmVoortgang(u"De ledenbestanden worden opgehaald ..."_s, {}, this).AlsVoortgang());
    if (!gelezen)
        MeldFout(
            this, QMessageBox::Warning,
            u"Fout bij het lezen van de ledenbestanden!\r\nDe database met de ledenbestanden %1; "
            "er is niets geïmporteerd. Kies zo nodig een geëxporteerd ledenbestand."_s.arg(
                gelezen.error().soort == Foutsoort::Ontbreekt ? u"is niet gevonden"_s
                                                              : u"kan niet worden gelezen"_s),
            gelezen.error());
    else if (import_.Namen().empty())
        Meld(this, QMessageBox::Information,
             u"In de database van het rekenprogramma staat geen enkel ledenbestand. Er is niets "
             "gewijzigd. Maak in het rekenprogramma een ledenbestand, of kies een geëxporteerd "
             "ledenbestand."_s);
    ToonLijst();
}

/// One file is pointed at; the folder it stands in is the chosen one.
void frmImportNBB::KiesExportMap()
{
    QFileDialog CommonDialog1(this, u"Kies 1 bestand uit de gekozen map"_s);
    Noem(&CommonDialog1, u"CommonDialog1"_s);
    CommonDialog1.setFileMode(QFileDialog::ExistingFile);
    CommonDialog1.setNameFilter(import_.Bron() == Ledenbron::Csv ? u"CSV-bestanden (*.csv)"_s
                                                                 : u"XML-bestanden (*.xml)"_s);
    if (!import_.Map().empty())
        CommonDialog1.setDirectory(
            QString::fromStdString(administratie_.schijf.Toonpad(import_.Map())));
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
    const auto einde = bestand.find_last_of("\\/");
    const Tekst naam = bestand.substr(einde + 1);
    if (einde == Pad::npos || !ToonMap(bestand.substr(0, einde), naam))
        return;
    lstNBBbest->setFocus();
    // Without a word another file would stand chosen than the one that was pointed at.
    if (std::ranges::find(import_.Namen(), naam) == import_.Namen().end())
        Meld(this, QMessageBox::Information,
             u"'%1' is geen %2 en staat dus niet in de lijst. Er is niets geïmporteerd. Kies een "
             "ander bestand, of kies eerst links waar dit bestand vandaan komt."_s.arg(
                 NaarQString(naam), TekstVan(import_.Bron()).soort));
}

/// Lists the folder. False when it cannot be listed, which leaves everything as it was, or not
/// every file in it was looked at.
bool frmImportNBB::ToonMap(const Pad& map, Tekstblik aangewezen)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto herstel = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    if (const auto gekozen = import_.KiesMap(map); !gekozen) {
        MeldFout(this, QMessageBox::Warning,
                 u"De bestanden in de gekozen map kunnen niet worden opgezocht. Er is niets "
                 "geïmporteerd. Kies een andere map."_s,
                 gekozen.error());
        return false;
    }
    MaakBruikbaar(true);
    const QString pad = QString::fromStdString(administratie_.schijf.Toonpad(map));
    lblExportMap->setText(u"Ledenbestanden in de gekozen map: "_s +
                          // Lets a long path break behind each folder.
                          QString(pad).replace(u'\\', u"\\\u200B"_s));
    lblExportMap->setToolTip(Wenk(pad));
    MeldOvergeslagen(this, administratie_.schijf, map);
    frmVoortgang voortgang(u"De XML-bestanden in de gekozen map worden bekeken"_s, u"&Stoppen"_s,
                           this);
    import_.HoudVanSoort(voortgang.AlsVoortgang());
    voortgang.hide();
    const std::size_t aantal = import_.Namen().size();
    ToonLijst((aantal == 0 ? u"geen"_s : QString::number(aantal)) +
              (voortgang.Gestopt() ? u" (niet alle bestanden zijn bekeken)"_s : QString()));
    if (voortgang.Gestopt()) // another file could stand chosen for the one that was pointed at
        return false;
    const int keus = import_.EersteKeus(aangewezen);
    if (keus >= 0)
        lstNBBbest->Kies({keus});
    lstNBBbest->ZetHuidige(std::max(keus, 0));
    return true;
}

/// Says so when there are none.
std::vector<Tekst> frmImportNBB::GekozenBestanden()
{
    std::vector<Tekst> gekozen;
    for (const int plek : lstNBBbest->GekozenPlaatsen())
        gekozen.push_back(import_.Namen()[static_cast<std::size_t>(plek)]);
    if (gekozen.empty())
        Meld(this, QMessageBox::Warning, u"U moet nog ledenbestand(en) selecteren!"_s);
    return gekozen;
}

Ledenopdracht frmImportNBB::Opdracht() const
{
    return import_.Opdracht({.naw = chkNAW->isChecked(),
                             .tel = chkTel->isChecked(),
                             .email = chkEmail->isChecked(),
                             .mv = chkMV->isChecked()});
}

void frmImportNBB::ControleerNBBnrs()
{
    if (const auto gekozen = GekozenBestanden(); !gekozen.empty())
        diaControleNBB(administratie_, Opdracht(), gekozen, this).exec();
}

} // namespace plexoran
