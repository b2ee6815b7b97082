// A disk in memory, for tests. Names do not mind case. It knows which bytes and names a power cut
// would leave. Not in it: links, pipes, owners.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <random>

#include "platform/schijf/schijf.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {

/// Must outlive the writers it hands out.
class GeheugenSchijf : public Schijf {
  public:
    /// Which new names a power cut leaves: only those of a synced folder, or, as a disk may do just
    /// as well, all of them. A durable save must survive both.
    enum class Namen { Gesynct, Alle };

    /// Puts a file there with its folders, as if it had been on the device for long.
    void Zet(const Pad& pad, Tekstblik inhoud);
    void ZetMap(const Pad& map);
    /// The time of a file in its stamp, nanoseconds since 1970.
    void ZetTijd(const Pad& pad, std::int64_t tijd);
    /// Stamps are whole multiples of this many nanoseconds, as on a disk with coarse times, while a
    /// change takes only a hundredth of a second.
    void ZetTijdstap(std::int64_t stap);
    /// A folder in which no name may change, or a file that may not be written.
    void ZetAlleenLezen(const Pad& pad, bool alleenLezen = true);

    [[nodiscard]] std::optional<Tekst> Inhoud(const Pad& pad) const;
    [[nodiscard]] std::vector<Pad> AlleBestanden() const;
    /// The files and their contents after a power cut at this moment. What was written but not
    /// synced is lost; folders are there always.
    [[nodiscard]] std::map<Pad, Tekst> NaStroomuitval(Namen namen) const;
    /// The same, when the disk wrote any part of what was not synced: of every changed name the old
    /// or the new state, of every file any of the 512 bytes that came since, zeros in between.
    [[nodiscard]] std::map<Pad, Tekst> NaStroomuitval(std::mt19937& toeval) const;
    /// Called after every step that changes anything on the disk, when that is done.
    void NaElkeStap(std::function<void()> stap) { naStap_ = std::move(stap); }

    [[nodiscard]] Uitkomst<Padsoort> Soort(const Pad& pad) override;
    [[nodiscard]] Uitkomst<Tekst> LeesBestand(const Pad& pad) override;
    [[nodiscard]] Uitkomst<Stempel> NeemStempel(const Pad& pad) override;
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Bestanden(const Pad& map) override;
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Mappen(const Pad& map) override;

    [[nodiscard]] Uitkomst<void> MaakMap(const Pad& map) override;
    [[nodiscard]] Uitkomst<Pad> Doel(const Pad& pad) override { return pad; }
    [[nodiscard]] Uitkomst<std::unique_ptr<Schrijver>> MaakNieuw(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> NeemRechtenOver(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Verwijder(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> VerwijderMap(const Pad& map) override;
    [[nodiscard]] Uitkomst<void> SyncMapVan(const Pad& pad) override;

    [[nodiscard]] std::string Toonpad(const Pad& pad) const override { return NaarUtf8(pad); }

  private:
    class GeheugenSchrijver;

    /// What a name leads to; it outlives its name while a writer or a synced name holds it.
    struct Knoop {
        Tekst inhoud;
        Tekst gesynct;
        Stempel stempel;
        bool alleenLezen = false;

        [[nodiscard]] Tekst NaStroomuitval(std::mt19937& toeval) const;
    };
    struct Naam {
        Pad pad; ///< in the case in which it was made
        std::shared_ptr<Knoop> knoop;
    };
    struct Map {
        Pad pad;
        bool alleenLezen = false;
    };
    using Namenlijst = std::map<Tekst, Naam>; ///< by the path in capitals

    [[nodiscard]] bool IsMap(const Tekst& sleutel) const;
    /// Of what stands in this folder, as it was written.
    template <class Lijst>
    [[nodiscard]] Uitkomst<std::vector<Tekst>> NamenUit(const Lijst& lijst, const Pad& map) const;
    /// Whether names in the folder of this key may change.
    [[nodiscard]] Uitkomst<void> MagInMapVan(const Tekst& sleutel, const Pad& pad) const;
    [[nodiscard]] Uitkomst<Knoop*> Vind(const Pad& pad) const;
    [[nodiscard]] std::shared_ptr<Knoop> NieuweKnoop();
    [[nodiscard]] std::int64_t Tik() { return ++klok_ * tik_ / tijdstap_ * tijdstap_; }
    void MeldStap() const
    {
        if (naStap_)
            naStap_();
    }

    Namenlijst namen_;
    Namenlijst gesyncteNamen_;
    std::map<Tekst, Map> mappen_; ///< by the path in capitals
    std::int64_t klok_ = 0;       ///< goes on with every change
    std::int64_t tik_ = 1'000'000'000;
    std::int64_t tijdstap_ = 1;
    std::function<void()> naStap_;
    std::uint64_t laatsteNummer_ = 0;
};

} // namespace plexoran
