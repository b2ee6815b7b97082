// Choosing a printer and printing on it. A PDF file counts as a printer: where the print dialog of
// the system does not offer one, the program does.
#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/schijf/fout.h"
#include "platform/schijf/schijf.h"
#include "platform/tekst/tekenvlak.h"

class QPrinter;
class QWidget;

namespace plexoran {

/// Pages to print, all of one orientation. A page is the whole sheet of A4; its margins are the
/// drawer's business.
struct Printwerk {
    QString titel{}; ///< names the job, and the file that is proposed for a PDF
    Papierstand stand = Papierstand::Staand;
    QString bezig{}; ///< what the progress window says
    int bladen = 1;  ///< how many there are to choose from
    /// That can be chosen as such, asked after the choice; empty: there is none.
    std::function<int()> bladInBeeld{};
};

/// Draws page `blad` on the surface.
using Bladtekenaar = std::function<void(Tekenvlak& vlak, int blad)>;

class Printer {
  public:
    /// A printer of the system.
    explicit Printer(std::shared_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
    /// A PDF file, written whole when all pages are drawn.
    Printer(Schijf& schijf, Pad bestand) : schijf_(&schijf), bestand_(std::move(bestand)) {}

    /// Prints these pages, of which there is one at least, and those that were drawn when
    /// `verder`, asked after each, wants no more. `Geweigerd` when the printer does not take them.
    [[nodiscard]] Uitkomst<void> Druk(const Printwerk& werk, const std::vector<int>& bladen,
                                      const Bladtekenaar& teken,
                                      const Voortgang& verder = {}) const;

  private:
    std::shared_ptr<QPrinter> printer_; ///< none for a PDF file
    Schijf* schijf_ = nullptr;
    Pad bestand_;
};

/// The pages to draw, in this order, by what a print dialog left in `printer`: of `totaal` pages,
/// of which `huidig` is in view. Copies are drawn for a PDF file only; a printer makes them itself.
[[nodiscard]] std::vector<int> GekozenBladen(const QPrinter& printer, int totaal, int huidig);

/// What the user wants.
struct Printkeus {
    Printer printer;
    std::vector<int> bladen; ///< in this order
};

/// What the system has to print on.
struct Printeraanbod {
    bool pdfInDialoog = false; ///< its print dialog adds a PDF file to the printers by itself
    QStringList printers{};    ///< by the names that the system gives them
};
[[nodiscard]] Printeraanbod HuidigAanbod();

/// The print dialog of the system, which proposes all pages as a range; nothing when the user
/// cancels it. Where it has neither a PDF file nor a printer that makes one, the user is first
/// asked which of both he wants.
[[nodiscard]] std::optional<Printkeus> KiesPrinter(Schijf& schijf, const Printwerk& werk,
                                                   QWidget* ouder,
                                                   const Printeraanbod& aanbod = HuidigAanbod());

/// Lets the user choose a printer and prints the pages that he wants. While many go out he may
/// stop: then the page that is being drawn is the last, what was drawn comes out, and he is told
/// how much that is. He is also told of a failure.
void PrintBladen(Schijf& schijf, const Printwerk& werk, const Bladtekenaar& teken, QWidget* ouder);

/// The default printer of the system; `Ontbreekt` when there is none.
[[nodiscard]] Uitkomst<Printer> StandaardPrinter();

/// Tells that printing failed.
void MeldPrintfout(QWidget* ouder, const Fout& fout);

} // namespace plexoran
