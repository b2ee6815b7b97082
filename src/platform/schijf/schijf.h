// The disk as the house sees it: whole files read at once, and the single steps of which a durable
// save is made. Every step can fail and says so, so that a test can make each of them fail.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/schijf/fout.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

/// A path as the suite writes it: folders and name joined by `\`. Elsewhere than on Windows the
/// disk turns it into the system's own.
using Pad = Tekst;

/// Folder and name, joined by a single `\`.
[[nodiscard]] inline Pad Samen(Tekstblik map, Tekstblik naam)
{
    Pad pad(map);
    pad += '\\';
    pad += naam;
    return pad;
}

/// Whether a name that was read from a file or a folder stays in the folder that it is put behind:
/// no separator and no drive in it, and neither "." nor "..".
[[nodiscard]] bool IsKaleNaam(Tekstblik naam);
/// What is wrong with a name that is not so, as `Beschadigd`; `bestand` is where it was read.
[[nodiscard]] Fout GeenNaam(Tekstblik naam, std::string bestand = {});

/// The characters in it that no file system of the suite takes in a name, each once.
[[nodiscard]] Tekst GeweigerdeTekens(Tekstblik naam);

/// A text as it may stand in the name of a file everywhere: letters without accents, digits and
/// "-";
/// "_" for the rest.
[[nodiscard]] Tekst AlsBestandsnaam(Tekst tekst);

enum class Padsoort { Niets, Bestand, Map };

/// What tells one state of a file from the next: another stamp means that the file was changed or
/// replaced since.
struct Stempel {
    std::uint64_t grootte = 0; ///< bytes
    std::int64_t tijd = 0;     ///< of the last change, nanoseconds since 1970
    std::uint64_t nummer = 0;  ///< the file's identity on its disk
    bool operator==(const Stempel&) const = default;
};

/// A new file that is being written. Destroyed without `Sluit`, it is closed as it is.
class Schrijver {
  public:
    virtual ~Schrijver() = default;
    [[nodiscard]] virtual Uitkomst<void> Schrijf(Tekstblik bytes) = 0;
    /// Returns when the bytes are on the device.
    [[nodiscard]] virtual Uitkomst<void> Sync() = 0;
    [[nodiscard]] virtual Uitkomst<void> Sluit() = 0;
};

/// Hears of every file that `VervangOngewijzigd` or `VerwijderBlijvend` is about to change, when
/// all else has succeeded. What is made for others, such as copies and prints, comes by
/// `SchrijfHeel`.
class Getuige {
  public:
    virtual ~Getuige() = default;
    /// Without `nieuw` the file is about to be removed.
    virtual void VoorVervanging(const Pad& pad, std::optional<Tekstblik> nieuw) = 0;
};

/// A larger file is none of the suite's.
inline constexpr std::uint64_t GrootsteBestand = std::uint64_t{64} << 20U;
[[nodiscard]] Fout TeGroot(std::string bestand);

class Schijf {
  public:
    virtual ~Schijf() = default;

    /// None to begin with.
    void ZetGetuige(Getuige* getuige) { getuige_ = getuige; }
    [[nodiscard]] Getuige* DeGetuige() const { return getuige_; }

    /// What stands at the path. A path that cannot be looked at is an error, not `Niets`.
    [[nodiscard]] virtual Uitkomst<Padsoort> Soort(const Pad& pad) = 0;
    [[nodiscard]] virtual Uitkomst<Tekst> LeesBestand(const Pad& pad) = 0;
    /// The same, but a file that is too large is refused as `Beschadigd` before it fills the
    /// memory.
    [[nodiscard]] virtual Uitkomst<Tekst> LeesBegrensd(const Pad& pad);
    /// Whether the file holds these bytes and no others.
    [[nodiscard]] virtual Uitkomst<bool> Houdt(const Pad& pad, Tekstblik inhoud)
    {
        return LeesBestand(pad).map([&](const Tekst& nu) { return nu == inhoud; });
    }
    [[nodiscard]] virtual Uitkomst<Stempel> NeemStempel(const Pad& pad) = 0;
    /// The names of the files in a folder, without their path, in no order. Only names that can
    /// stand in a path of the suite.
    [[nodiscard]] virtual Uitkomst<std::vector<Tekst>> Bestanden(const Pad& map) = 0;
    /// The names of the folders in a folder, without their path, in no order; never "." or "..".
    [[nodiscard]] virtual Uitkomst<std::vector<Tekst>> Mappen(const Pad& map) = 0;
    /// What was left out of these lists because of its name, UTF-8; each is handed out once.
    [[nodiscard]] virtual std::vector<std::string> NeemOvergeslagen(const Pad& /*map*/)
    {
        return {};
    }

    /// Makes the folder inside one that exists; a folder that is there already is fine. Folders
    /// above it are not made: a drive that is away must not turn into an empty register.
    [[nodiscard]] virtual Uitkomst<void> MaakMap(const Pad& map) = 0;
    /// The file that a write to `pad` must replace: where `pad` is a link, what it leads to.
    [[nodiscard]] virtual Uitkomst<Pad> Doel(const Pad& pad) = 0;
    /// Makes a file that must not exist yet.
    [[nodiscard]] virtual Uitkomst<std::unique_ptr<Schrijver>> MaakNieuw(const Pad& pad) = 0;
    /// Gives `naar` the rights of `van`; refused when `van` may not be written.
    [[nodiscard]] virtual Uitkomst<void> NeemRechtenOver(const Pad& van, const Pad& naar) = 0;
    /// Renames a file; a file that bears the new name is replaced in the same step.
    [[nodiscard]] virtual Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) = 0;
    [[nodiscard]] virtual Uitkomst<void> Verwijder(const Pad& pad) = 0;
    /// Removes a folder that is empty.
    [[nodiscard]] virtual Uitkomst<void> VerwijderMap(const Pad& map) = 0;
    /// Returns when the names in the folder of `pad` are on the device.
    [[nodiscard]] virtual Uitkomst<void> SyncMapVan(const Pad& pad) = 0;

    /// The path as the system writes it, UTF-8, for messages only.
    [[nodiscard]] virtual std::string Toonpad(const Pad& pad) const = 0;

  private:
    Getuige* getuige_ = nullptr;
};

[[nodiscard]] inline Uitkomst<Tekst> LeesBegrensd(Schijf& schijf, const Pad& pad)
{
    return schijf.LeesBegrensd(pad);
}

/// The same, or nothing where there is no file of that name.
[[nodiscard]] Uitkomst<std::optional<Tekst>> LeesAlsErIs(Schijf& schijf, const Pad& pad);

enum class Houdbaarheid {
    Blijvend, ///< survives a loss of power as soon as it is written
    Vluchtig, ///< needed only until the program ends: after a loss of power it may be neither
};

/// Writes a file whole, so that at every moment the disk holds either the old file or the new one.
/// Makes a temporary file in the same folder with the old file's rights, writes and syncs it,
/// renames it over the old file and syncs the folder; without the syncs where it is `Vluchtig`.
/// Where `pad` is a link, the file it leads to is the one that is replaced. On any failure before
/// the rename the temporary file is removed and the old file untouched. A failing folder sync, the
/// last step, is reported as `NietVast`.
[[nodiscard]] Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                                         Houdbaarheid houdbaarheid = Houdbaarheid::Blijvend);

/// The same, durably, for a file that still holds `oud`, which none need hold that is not there. A
/// file that someone else changed or made meanwhile stays as it is: `Gewijzigd`. A short lock keeps
/// other copies of this program away between the last look and the rename.
[[nodiscard]] Uitkomst<void> VervangOngewijzigd(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                                                const std::optional<Tekst>& oud);
/// How long that waits before it asks for the lock again, sixty times at the most; a test waits
/// less.
inline std::chrono::milliseconds Slotpoos{50};

/// The same for a file that is there, with what `maak` makes of its text, if anything; again when
/// another program writes in between, twenty times at the most.
[[nodiscard]] Uitkomst<void>
Herschrijf(Schijf& schijf, const Pad& pad,
           const std::function<std::optional<Tekst>(const Tekst& inhoud)>& maak);

/// Removes a file for good: the witness hears of it first.
[[nodiscard]] Uitkomst<void> VerwijderBlijvend(Schijf& schijf, const Pad& pad);

/// Nanoseconds since 1970, as files are stamped.
[[nodiscard]] std::int64_t Nu();

/// A stamp in local time, in a form of QDateTime such as "yyyy-MM-dd HHmmss".
[[nodiscard]] Tekst Tijdtekst(const char* vorm, std::int64_t tijd = Nu());

/// Removes what killed saves of any file left more than an hour ago in the folder in which a save
/// of `naam` in `map` works; nothing when `map` is empty. Failures do no harm and are passed over.
void RuimTijdelijkeOp(Schijf& schijf, const Pad& map, Tekstblik naam, std::int64_t nu = Nu());

} // namespace plexoran
