#include "platform/scherm/printer.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include <algorithm>

#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/programma.h"

namespace plexoran {
namespace {

// Windows has a dialog of its own; elsewhere it is Qt's, with a PDF file among the printers. On
// Windows its tick "to file" would give the printer's own language, which nobody can open.
#ifdef Q_OS_WIN
constexpr bool DialoogVanQt = false;
#else
constexpr bool DialoogVanQt = true;
#endif

Bladkeus KeusVan(const QPrinter& printer)
{
    Bladkeus keus{.omgekeerd = printer.pageOrder() == QPrinter::LastPageFirst};
    switch (printer.printRange()) {
    case QPrinter::AllPages:
        keus.soort = Bladkeus::Soort::Alle;
        break;
    case QPrinter::PageRange:
        keus.soort = Bladkeus::Soort::Reeks;
        keus.van = printer.fromPage();
        keus.tot = printer.toPage();
        break;
    case QPrinter::Selection:
    case QPrinter::CurrentPage:
        break;
    }
    return keus;
}

/// Takes away choices that would go wrong; a range from and to is enough. Qt 6.4 refuses whatever
/// is typed as single pages. Odd and even pages the print server picks by their place in the job:
/// the wrong ones when the program prints the last page first. As the dialog shows its parts again
/// when it opens, they lose their size and the keyboard too.
void VerbergLosseBladen(const QPrintDialog& dialoog)
{
    for (const char* naam : {"pagesRadioButton", "pagesLineEdit", "pageSetLabel", "pageSetCombo"}) {
        if (auto* deel = dialoog.findChild<QWidget*>(QString::fromLatin1(naam))) {
            deel->hide();
            deel->setFixedSize(0, 0);
            deel->setFocusPolicy(Qt::NoFocus);
        }
    }
}

Printeraanbod HuidigAanbod()
{
    if (DialoogVanQt)
        return {.pdfInDialoog = true};
    return {.printers = QPrinterInfo::availablePrinterNames()};
}

/// Printers that make a PDF file say so by their name.
bool MaaktPdf(const QStringList& printers)
{
    return std::any_of(printers.begin(), printers.end(), [](const QString& naam) {
        return naam.contains("PDF"_L1, Qt::CaseInsensitive);
    });
}

/// A PDF file by the dialog of the system; all pages go into it.
std::optional<Printer> VraagPdf(Schijf& schijf, const Printvraag& vraag, QWidget* ouder)
{
    QFileDialog kiezer(ouder, u"Opslaan als PDF-bestand"_s);
    Noem(&kiezer, u"CommonDialog1"_s);
    kiezer.setAcceptMode(QFileDialog::AcceptSave);
    kiezer.setNameFilter(u"PDF-bestanden (*.pdf)"_s);
    kiezer.setDefaultSuffix(u"pdf"_s);
    kiezer.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    kiezer.selectFile(vraag.titel + u".pdf"_s);
    if (kiezer.exec() != QDialog::Accepted)
        return std::nullopt;
    return Printer(schijf, VolledigPad(kiezer.selectedFiles().constFirst().toStdString()),
                   {.soort = Bladkeus::Soort::Alle});
}

std::optional<Printer> VraagSysteem(Schijf& schijf, const Printvraag& vraag, QWidget* ouder)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(vraag.titel);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(vraag.stand == Papierstand::Staand ? QPageLayout::Portrait
                                                                   : QPageLayout::Landscape);
    printer->setPrintRange(QPrinter::PageRange);

    QPrintDialog dialoog(printer.get(), ouder);
    dialoog.setObjectName(u"QPrintDialog"_s);
    dialoog.setWindowTitle(u"Printen"_s);
    dialoog.setOptions(QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies);
    dialoog.setOption(QAbstractPrintDialog::PrintToFile, DialoogVanQt);
    dialoog.setOption(QAbstractPrintDialog::PrintCurrentPage, vraag.bladInBeeld);
    dialoog.setMinMax(1, std::max(1, vraag.bladen));
    dialoog.setFromTo(1, std::max(1, vraag.bladen));
    VerbergLosseBladen(dialoog);
    if (dialoog.exec() != QDialog::Accepted)
        return std::nullopt;
    Bladkeus keus = KeusVan(*printer);
    if (printer->outputFormat() == QPrinter::PdfFormat && !printer->outputFileName().isEmpty()) {
        keus.exemplaren = std::max(1, printer->copyCount());
        keus.perExemplaar = printer->collateCopies();
        return Printer(schijf, VolledigPad(printer->outputFileName().toStdString()), keus);
    }
    return Printer(std::move(printer), keus);
}

/// How many of the pages come out.
Uitkomst<std::size_t> DrukBladen(const Printer& printer, const Printgang& gang,
                                 const Bladtekenaar& teken, QWidget* ouder)
{
    frmVoortgang voortgang(gang.bezig, u"&Stoppen na dit blad"_s, ouder);
    auto taak = printer.Begin(gang.stand, gang.titel);
    if (!taak)
        return tl::unexpected(taak.error());
    std::size_t gedaan = 0;
    do {
        if (gedaan > 0) {
            if (const auto nieuw = (*taak)->NieuwBlad(); !nieuw)
                return tl::unexpected(nieuw.error());
        }
        teken((*taak)->Vlak(), gang.bladen[gedaan]);
        ++gedaan;
    } while (voortgang.Meld(gedaan, gang.bladen.size()) && gedaan < gang.bladen.size());
    if (const auto eind = (*taak)->Eind(); !StaatEr(ouder, eind))
        return tl::unexpected(eind.error());
    return gedaan;
}

} // namespace

std::vector<int> Bladkeus::Bladen(int totaal, int huidig) const
{
    const bool reeks = soort == Soort::Reeks && van > 0 && tot > 0;
    const bool alle = soort == Soort::Alle;
    const int eerste = reeks ? van : alle ? 1 : huidig;
    const int laatste = reeks ? std::min(tot, totaal) : alle ? totaal : huidig;
    std::vector<int> bladen;
    const int ronden = perExemplaar ? exemplaren : 1;
    for (int ronde = 0; ronde < ronden; ++ronde) {
        for (int i = eerste; i <= laatste; ++i)
            bladen.insert(bladen.end(), static_cast<std::size_t>(perExemplaar ? 1 : exemplaren),
                          omgekeerd ? eerste + laatste - i : i);
    }
    return bladen;
}

Printer::Printer(std::shared_ptr<QPrinter> printer, Bladkeus keus)
    : printer_(std::move(printer)), keus_(keus)
{}

Printer::Printer(Schijf& schijf, Pad bestand, Bladkeus keus)
    : schijf_(&schijf), bestand_(std::move(bestand)), keus_(keus)
{}

Uitkomst<std::unique_ptr<Printtaak>> Printer::Begin(Papierstand stand, const QString& titel) const
{
    if (!printer_)
        return MaakPdfTaak(*schijf_, bestand_, stand, titel);
    return MaakPrintertaak(printer_, stand, titel);
}

std::optional<Printer> KiesPrinter(Schijf& schijf, const Printvraag& vraag, QWidget* ouder)
{
    return KiesPrinter(schijf, vraag, HuidigAanbod(), ouder);
}

std::optional<Printer> KiesPrinter(Schijf& schijf, const Printvraag& vraag,
                                   const Printeraanbod& aanbod, QWidget* ouder)
{
    if (aanbod.pdfInDialoog || MaaktPdf(aanbod.printers))
        return VraagSysteem(schijf, vraag, ouder);
    enum { Printen, Pdf, Annuleren };
    const int antwoord = aanbod.printers.isEmpty()
                             ? Pdf
                             : Kies(ouder, QMessageBox::Question,
                                    u"Wilt u de bladen printen of opslaan als PDF-bestand?"_s,
                                    {u"Printen..."_s, u"PDF-bestand..."_s, u"Annuleren"_s});
    if (antwoord == Annuleren)
        return std::nullopt;
    return antwoord == Pdf ? VraagPdf(schijf, vraag, ouder) : VraagSysteem(schijf, vraag, ouder);
}

void PrintBladen(const Printer& printer, const Printgang& gang, const Bladtekenaar& teken,
                 QWidget* ouder)
{
    if (gang.bladen.empty())
        return;
    const auto geprint = DrukBladen(printer, gang, teken, ouder);
    if (!geprint)
        MeldPrintfout(ouder, geprint.error());
    else if (*geprint < gang.bladen.size())
        Meld(ouder, QMessageBox::Information,
             u"Het printen is gestopt na %1 van de %2 bladen. De overige bladen kunt u later "
             "printen."_s.arg(*geprint)
                 .arg(gang.bladen.size()));
}

Uitkomst<Printer> StandaardPrinter()
{
    const QPrinterInfo standaard = QPrinterInfo::defaultPrinter();
    if (standaard.isNull())
        return tl::unexpected(Fout{Foutsoort::Ontbreekt, {}, 0, {}});
    return Printer(std::make_shared<QPrinter>(standaard, QPrinter::HighResolution),
                   {.soort = Bladkeus::Soort::Alle});
}

void MeldPrintfout(QWidget* ouder, const Fout& fout)
{
    const QString tekst =
        fout.soort == Foutsoort::Ontbreekt && fout.bestand.empty()
            ? u"Er is niets geprint: op deze computer is geen printer geïnstalleerd of geen "
              "standaardprinter gekozen. De gegevens van de spelers zijn niet veranderd. Kies een "
              "standaardprinter in de instellingen van uw computer."_s
            : u"Het printen is niet gelukt. De gegevens van de spelers zijn niet veranderd. Kijk "
              "of de printer aan staat of, bij een PDF-bestand, of u op die plaats mag schrijven "
              "en of er nog ruimte is."_s;
    MeldFout(ouder, QMessageBox::Critical, tekst, fout);
}

} // namespace plexoran
