// A print job: pages drawn one after the other on a printer or into a PDF file.
#pragma once

#include <QString>

#include <memory>

#include "platform/schijf/schijf.h"
#include "platform/tekst/tekenvlak.h"

class QPrinter;

namespace plexoran {

/// The page is the whole sheet of A4; its margins are the drawer's business. A job that is
/// destroyed before its end was broken off.
class Printtaak {
  public:
    virtual ~Printtaak() = default;
    /// Of the current page; the first page is there from the beginning.
    [[nodiscard]] virtual Tekenvlak& Vlak() = 0;
    [[nodiscard]] virtual Uitkomst<void> NieuwBlad() = 0;
    /// Hands the pages over. Until then no file is written; a file that stood there stays whole.
    [[nodiscard]] virtual Uitkomst<void> Eind() = 0;
    /// Nothing more comes out, as far as the system can take it back.
    virtual void BreekAf() = 0;
};

/// Pages of one orientation that become a PDF file, written whole.
[[nodiscard]] std::unique_ptr<Printtaak> MaakPdfTaak(Schijf& schijf, const Pad& bestand,
                                                     Papierstand stand, const QString& titel);

/// Pages for a printer of the system. `Geweigerd` when it does not take the job.
[[nodiscard]] Uitkomst<std::unique_ptr<Printtaak>>
MaakPrintertaak(std::shared_ptr<QPrinter> printer, Papierstand stand, const QString& titel);

} // namespace plexoran
