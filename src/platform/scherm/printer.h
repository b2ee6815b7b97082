// Choosing a printer and printing on it. A PDF file counts as a printer: where the print dialog of
// the system does not offer one, the program does.
#pragma once

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

#include "platform/scherm/printtaak.h"

class QWidget;

namespace plexoran {

/// Which pages the user wants.
struct Bladkeus {
    enum class Soort { Alle, Reeks, Huidig };
    Soort soort = Soort::Huidig;
    int van = 0; ///< of a range
    int tot = 0;
    bool omgekeerd = false;   ///< the last page first
    int exemplaren = 1;       ///< more only for a PDF file; a printer makes them itself
    bool perExemplaar = true; ///< one copy after the other; else all copies of a page together

    /// The pages to draw, in this order, of `totaal` pages of which `huidig` is in view.
    [[nodiscard]] std::vector<int> Bladen(int totaal, int huidig) const;
};

/// A printer that was chosen.
class Printer {
  public:
    /// A printer of the system.
    Printer(std::shared_ptr<QPrinter> printer, Bladkeus keus);
    /// A PDF file.
    Printer(Schijf& schijf, Pad bestand, Bladkeus keus = {});

    [[nodiscard]] const Bladkeus& Keus() const { return keus_; }
    [[nodiscard]] Uitkomst<std::unique_ptr<Printtaak>> Begin(Papierstand stand,
                                                             const QString& titel) const;

  private:
    std::shared_ptr<QPrinter> printer_; ///< none for a PDF file
    Schijf* schijf_ = nullptr;
    Pad bestand_;
    Bladkeus keus_;
};

struct Printvraag {
    QString titel;            ///< names the job, and the file that is proposed for a PDF
    Papierstand stand;        ///< of the pages
    int bladen = 1;           ///< how many there are to choose from
    bool bladInBeeld = false; ///< the page in view is one to choose
};

/// What the system has to print on.
struct Printeraanbod {
    bool pdfInDialoog = false; ///< its print dialog adds a PDF file to the printers by itself
    QStringList printers{};    ///< by the names that the system gives them
};

/// The print dialog of the system, which proposes all pages as a range; nothing when the user
/// cancels it. Where it has neither a PDF file nor a printer that makes one, the user is first
/// asked which of both he wants. `aanbod` is what there is now.
[[nodiscard]] std::optional<Printer> KiesPrinter(Schijf& schijf, const Printvraag& vraag,
                                                 const Printeraanbod& aanbod, QWidget* ouder);
[[nodiscard]] std::optional<Printer> KiesPrinter(Schijf& schijf, const Printvraag& vraag,
                                                 QWidget* ouder);

/// What is printed, once a printer was chosen.
struct Printgang {
    QString titel; ///< names the job
    Papierstand stand;
    QString bezig; ///< what the progress window says
    std::vector<int> bladen{};
};

/// Draws page `blad` on the surface.
using Bladtekenaar = std::function<void(Tekenvlak& vlak, int blad)>;

/// Prints these pages; with none it does nothing. While many go out the user may stop: then the
/// page that is being drawn is the last, what was drawn comes out, and he is told how much that is.
/// He is also told of a failure.
void PrintBladen(const Printer& printer, const Printgang& gang, const Bladtekenaar& teken,
                 QWidget* ouder);

/// The default printer of the system; `Ontbreekt` when there is none.
[[nodiscard]] Uitkomst<Printer> StandaardPrinter();

/// Tells that printing failed.
void MeldPrintfout(QWidget* ouder, const Fout& fout);

} // namespace plexoran
