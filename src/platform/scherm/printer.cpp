#include "platform/scherm/printer.h"

#include <QBuffer>
#include <QLibrary>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <numeric>

#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/schildervlak.h"
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

bool IsPdfbestand(const QPrinter& printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
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

/// A PDF file by the dialog of the system; all pages go into it.
std::optional<Printkeus> VraagPdf(Schijf& schijf, const Printwerk& werk, QWidget* ouder)
{
    const auto pad = VraagOpslagplaats(ouder, u"Opslaan als PDF-bestand"_s,
                                       u"PDF-bestanden (*.pdf)"_s, u"pdf"_s, werk.titel);
    if (!pad)
        return std::nullopt;
    std::vector<int> alle(static_cast<std::size_t>(werk.bladen));
    std::iota(alle.begin(), alle.end(), 1);
    return Printkeus{Printer(schijf, *pad), std::move(alle)};
}

QPageLayout::Orientation Richting(Papierstand stand)
{
    return stand == Papierstand::Staand ? QPageLayout::Portrait : QPageLayout::Landscape;
}

std::optional<Printkeus> VraagSysteem(Schijf& schijf, const Printwerk& werk, QWidget* ouder)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(werk.titel);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(Richting(werk.stand));
    printer->setPrintRange(QPrinter::PageRange);

    QPrintDialog dialoog(printer.get(), ouder);
    dialoog.setObjectName(u"QPrintDialog"_s);
    dialoog.setWindowTitle(u"Printen"_s);
    dialoog.setOptions(QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies);
    dialoog.setOption(QAbstractPrintDialog::PrintToFile, DialoogVanQt);
    dialoog.setOption(QAbstractPrintDialog::PrintCurrentPage, static_cast<bool>(werk.bladInBeeld));
    dialoog.setMinMax(1, werk.bladen);
    dialoog.setFromTo(1, werk.bladen);
    VerbergLosseBladen(dialoog);
    if (dialoog.exec() != QDialog::Accepted)
        return std::nullopt;
    auto bladen = GekozenBladen(*printer, werk.bladen, werk.bladInBeeld ? werk.bladInBeeld() : 1);
    return Printkeus{IsPdfbestand(*printer)
                         ? Printer(schijf, VolledigPad(printer->outputFileName().toStdString()))
                         : Printer(std::move(printer)),
                     std::move(bladen)};
}

QPageLayout HeleVel(Papierstand stand)
{
    QPageLayout vel(QPageSize(QPageSize::A4), Richting(stand), QMarginsF(),
                    QPageLayout::Millimeter);
    vel.setMode(QPageLayout::FullPageMode);
    return vel;
}

/// What the print server said of the job that this thread just handed over, when it refused it. Qt
/// does not tell; the server's own library, which Qt has loaded by then, remembers it.
std::optional<std::string> Serverfout()
{
#ifdef Q_OS_UNIX
    constexpr int eersteFout = 0x0400; // below it are the shades of success
    QLibrary cups(u"cups"_s, 2);
    cups.setLoadHints(QLibrary::PreventUnloadHint);
    const auto laatste = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto tekst = reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    if (laatste != nullptr && tekst != nullptr && laatste() >= eersteFout) {
        const char* woorden = tekst();
        return woorden == nullptr ? std::string() : std::string(woorden);
    }
#endif
    return std::nullopt;
}

/// Whether the device took all that was drawn on it.
bool TekenBladen(QPagedPaintDevice& apparaat, QPainter& schilder, int puntenPerInch,
                 const std::vector<int>& bladen, const Bladtekenaar& teken, const Voortgang& verder)
{
    if (!schilder.begin(&apparaat))
        return false;
    const Letterkast kast;
    Schildervlak vlak(schilder, kast, puntenPerInch / MmPerInch, Schildervlak::Doel::Papier);
    std::size_t gedaan = 0;
    do {
        if (gedaan > 0 && !apparaat.newPage())
            return false;
        teken(vlak, bladen[gedaan]);
        ++gedaan;
    } while ((!verder || verder(gedaan, bladen.size())) && gedaan < bladen.size());
    return schilder.end();
}

} // namespace

std::vector<int> GekozenBladen(const QPrinter& printer, int totaal, int huidig)
{
    const bool alle = printer.printRange() == QPrinter::AllPages;
    const bool reeks = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0 &&
                       printer.toPage() > 0;
    const int eerste = reeks ? printer.fromPage() : alle ? 1 : huidig;
    const int laatste = reeks ? std::min(printer.toPage(), totaal) : alle ? totaal : huidig;
    const int exemplaren = IsPdfbestand(printer) ? std::max(1, printer.copyCount()) : 1;
    // One copy after the other, or all copies of a page together.
    const int ronden = printer.collateCopies() ? exemplaren : 1;
    const bool omgekeerd = printer.pageOrder() == QPrinter::LastPageFirst;
    std::vector<int> bladen;
    for (int ronde = 0; ronde < ronden; ++ronde) {
        for (int i = eerste; i <= laatste; ++i)
            bladen.insert(bladen.end(), static_cast<std::size_t>(exemplaren / ronden),
                          omgekeerd ? eerste + laatste - i : i);
    }
    return bladen;
}

Uitkomst<void> Printer::Druk(const Printwerk& werk, const std::vector<int>& bladen,
                             const Bladtekenaar& teken, const Voortgang& verder) const
{
    const auto richtIn = [&](auto& apparaat) {
        apparaat.setPageLayout(HeleVel(werk.stand));
        apparaat.setCreator(u"Plexoran"_s);
    };
    if (!printer_) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter schrijver(&buffer); // which writes the last of it when it goes
            QPainter schilder;
            schrijver.setResolution(1200);
            schrijver.setTitle(werk.titel);
            richtIn(schrijver);
            if (!TekenBladen(schrijver, schilder, schrijver.resolution(), bladen, teken, verder))
                return Mislukt({.bestand = schijf_->Toonpad(bestand_)});
        }
        const auto streep = bestand_.find_last_of("\\/");
        RuimTijdelijkeOp(*schijf_, bestand_.substr(0, streep), bestand_.substr(streep + 1));
        return SchrijfHeel(*schijf_, bestand_, buffer.buffer().toStdString());
    }
    const std::string naam = printer_->printerName().toStdString();
    printer_->setFullPage(true);
    printer_->setDocName(werk.titel);
    richtIn(*printer_);
    QPainter schilder;
    const bool getekend =
        TekenBladen(*printer_, schilder, printer_->resolution(), bladen, teken, verder);
    if (!getekend && schilder.isActive())
        printer_->abort();
    if (!getekend || printer_->printerState() == QPrinter::Error)
        return Mislukt({.bestand = naam});
    if (printer_->outputFormat() == QPrinter::NativeFormat) {
        if (const auto fout = Serverfout())
            return Mislukt({.bestand = naam, .systeem = *fout});
    }
    return {};
}

Printeraanbod HuidigAanbod()
{
    if (DialoogVanQt)
        return {.pdfInDialoog = true};
    return {.printers = QPrinterInfo::availablePrinterNames()};
}

std::optional<Printkeus> KiesPrinter(Schijf& schijf, const Printwerk& werk, QWidget* ouder,
                                     const Printeraanbod& aanbod)
{
    // Printers that make a PDF file say so by their name.
    if (aanbod.pdfInDialoog || !aanbod.printers.filter(u"PDF"_s, Qt::CaseInsensitive).isEmpty())
        return VraagSysteem(schijf, werk, ouder);
    enum { Printen, Pdf, Annuleren };
    const int antwoord = aanbod.printers.isEmpty()
                             ? Pdf
                             : Kies(ouder, QMessageBox::Question,
                                    u"Wilt u de bladen printen of opslaan als PDF-bestand?"_s,
                                    {u"Printen..."_s, u"PDF-bestand..."_s, u"Annuleren"_s});
    if (antwoord == Annuleren)
        return std::nullopt;
    return antwoord == Pdf ? VraagPdf(schijf, werk, ouder) : VraagSysteem(schijf, werk, ouder);
}

void PrintBladen(Schijf& schijf, const Printwerk& werk, const Bladtekenaar& teken, QWidget* ouder)
{
    const auto keus = KiesPrinter(schijf, werk, ouder);
    if (!keus || keus->bladen.empty())
        return;
    std::size_t gedaan = 0;
    Uitkomst<void> geprint;
    {
        frmVoortgang voortgang(werk.bezig, u"&Stoppen na dit blad"_s, ouder);
        geprint =
            keus->printer.Druk(werk, keus->bladen, teken, [&](std::size_t nu, std::size_t geheel) {
                gedaan = nu;
                return voortgang.Meld(nu, geheel);
            });
    }
    if (!StaatEr(ouder, geprint))
        MeldPrintfout(ouder, geprint.error());
    else if (gedaan < keus->bladen.size())
        Meld(ouder, QMessageBox::Information,
             u"Het printen is gestopt na %1 van de %2 bladen. De gegevens van de spelers zijn niet "
             "veranderd. De overige bladen kunt u later printen."_s.arg(gedaan)
                 .arg(keus->bladen.size()));
}

Uitkomst<Printer> StandaardPrinter()
{
    const QPrinterInfo standaard = QPrinterInfo::defaultPrinter();
    if (standaard.isNull())
        return Mislukt({.soort = Foutsoort::Ontbreekt});
    return Printer(std::make_shared<QPrinter>(standaard, QPrinter::HighResolution));
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
