#include "platform/scherm/printtaak.h"

#include <QBuffer>
#include <QLibrary>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>

#include <optional>

#include "platform/scherm/schildervlak.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/heelschrijven.h"

namespace plexoran {
namespace {

constexpr double MmPerInch = 25.4;
constexpr int PdfPuntenPerInch = 1200;

QPageLayout HeleVel(Papierstand stand)
{
    QPageLayout vel(QPageSize(QPageSize::A4),
                    stand == Papierstand::Staand ? QPageLayout::Portrait : QPageLayout::Landscape,
                    QMarginsF(), QPageLayout::Millimeter);
    vel.setMode(QPageLayout::FullPageMode);
    return vel;
}

tl::unexpected<Fout> Weigering(const std::string& waar, const std::string& systeem = {})
{
    return tl::unexpected(
        Fout{.soort = Foutsoort::Geweigerd, .bestand = waar, .regel = 0, .systeem = systeem});
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

class PdfTaak : public Printtaak {
  public:
    PdfTaak(Schijf& schijf, Pad bestand, Papierstand stand, const QString& titel)
        : schijf_(schijf), bestand_(std::move(bestand))
    {
        buffer_.open(QIODevice::WriteOnly);
        schrijver_ = std::make_unique<QPdfWriter>(&buffer_);
        schrijver_->setResolution(PdfPuntenPerInch);
        schrijver_->setPageLayout(HeleVel(stand));
        schrijver_->setTitle(titel);
        schrijver_->setCreator(u"Plexoran"_s);
        schilder_.begin(schrijver_.get());
        vlak_ = std::make_unique<Schildervlak>(schilder_, kast_, PdfPuntenPerInch / MmPerInch,
                                               Schildervlak::Doel::Papier);
    }

    ~PdfTaak() override { PdfTaak::BreekAf(); }
    PdfTaak(const PdfTaak&) = delete;
    PdfTaak& operator=(const PdfTaak&) = delete;
    PdfTaak(PdfTaak&&) = delete;
    PdfTaak& operator=(PdfTaak&&) = delete;

    Tekenvlak& Vlak() override { return *vlak_; }

    Uitkomst<void> NieuwBlad() override
    {
        if (!schrijver_->newPage())
            return Weigering(schijf_.Toonpad(bestand_));
        return {};
    }

    Uitkomst<void> Eind() override
    {
        if (!schilder_.end())
            return Weigering(schijf_.Toonpad(bestand_));
        schrijver_.reset(); // writes the last of it
        const auto streep = bestand_.find_last_of("\\/");
        RuimTijdelijkeOp(schijf_, bestand_.substr(0, streep), bestand_.substr(streep + 1));
        return SchrijfHeel(schijf_, bestand_, buffer_.buffer().toStdString());
    }

    void BreekAf() override
    {
        if (schilder_.isActive())
            schilder_.end();
    }

  private:
    Schijf& schijf_;
    Pad bestand_;
    Letterkast kast_;
    QBuffer buffer_;
    std::unique_ptr<QPdfWriter> schrijver_;
    QPainter schilder_;
    std::unique_ptr<Schildervlak> vlak_;
};

class Printertaak : public Printtaak {
  public:
    explicit Printertaak(std::shared_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
    ~Printertaak() override { Printertaak::BreekAf(); }
    Printertaak(const Printertaak&) = delete;
    Printertaak& operator=(const Printertaak&) = delete;
    Printertaak(Printertaak&&) = delete;
    Printertaak& operator=(Printertaak&&) = delete;

    Uitkomst<void> Begin(Papierstand stand, const QString& titel)
    {
        printer_->setFullPage(true);
        printer_->setPageLayout(HeleVel(stand));
        printer_->setDocName(titel);
        printer_->setCreator(u"Plexoran"_s);
        if (!schilder_.begin(printer_.get()))
            return Weigering(Naam());
        vlak_ = std::make_unique<Schildervlak>(schilder_, kast_, printer_->resolution() / MmPerInch,
                                               Schildervlak::Doel::Papier);
        return {};
    }

    Tekenvlak& Vlak() override { return *vlak_; }

    Uitkomst<void> NieuwBlad() override
    {
        if (!printer_->newPage())
            return Weigering(Naam());
        return {};
    }

    Uitkomst<void> Eind() override
    {
        if (!schilder_.end() || printer_->printerState() == QPrinter::Error)
            return Weigering(Naam());
        if (printer_->outputFormat() == QPrinter::NativeFormat) {
            if (const auto fout = Serverfout())
                return Weigering(Naam(), *fout);
        }
        return {};
    }

    void BreekAf() override
    {
        if (!schilder_.isActive())
            return;
        printer_->abort();
        schilder_.end();
    }

  private:
    [[nodiscard]] std::string Naam() const { return printer_->printerName().toStdString(); }

    std::shared_ptr<QPrinter> printer_;
    Letterkast kast_;
    QPainter schilder_;
    std::unique_ptr<Schildervlak> vlak_;
};

} // namespace

std::unique_ptr<Printtaak> MaakPdfTaak(Schijf& schijf, const Pad& bestand, Papierstand stand,
                                       const QString& titel)
{
    return std::make_unique<PdfTaak>(schijf, bestand, stand, titel);
}

Uitkomst<std::unique_ptr<Printtaak>> MaakPrintertaak(std::shared_ptr<QPrinter> printer,
                                                     Papierstand stand, const QString& titel)
{
    auto taak = std::make_unique<Printertaak>(std::move(printer));
    if (const auto begonnen = taak->Begin(stand, titel); !begonnen)
        return tl::unexpected(begonnen.error());
    return taak;
}

} // namespace plexoran
