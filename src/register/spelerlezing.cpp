// Reading the text of a player file in one walk over its bytes.
#include <algorithm>
#include <bit>
#include <cstring>

#include "platform/tekst/tekst.h"
#include "register/groepen.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr int VeldenVoorTelling = 6; // up to and including the surname
constexpr Tekstblik sleutelkop = "HKEY=";

/// Finds commas, CRs and LFs, eight bytes at a time: one by one, loading takes more than four times
/// what reading the file does.
class Scheidingen {
  public:
    explicit Scheidingen(Tekstblik tekst) : tekst_(tekst) { Laad(); }

    /// The place of the next separator, or the length of the text.
    std::size_t Volgende()
    {
        while (treffers_ == 0) {
            begin_ += 8;
            if (begin_ >= tekst_.size())
                return tekst_.size();
            Laad();
        }
        const auto plek = begin_ + EersteByte(treffers_);
        treffers_ &= treffers_ - 1;
        return plek;
    }

  private:
    static constexpr std::uint64_t Elk(std::uint64_t byte) { return byte * 0x0101010101010101U; }

    /// The top bit of every byte of `woord` that equals `byte`, and no other bit.
    static std::uint64_t Gelijk(std::uint64_t woord, char byte)
    {
        const std::uint64_t verschil = woord ^ Elk(static_cast<unsigned char>(byte));
        return ~(((verschil & Elk(0x7F)) + Elk(0x7F)) | verschil | Elk(0x7F));
    }

    static std::size_t EersteByte(std::uint64_t treffers)
    {
        return static_cast<std::size_t>(std::countr_zero(treffers)) / 8;
    }

    void Laad()
    {
        static_assert(std::endian::native == std::endian::little);
        std::uint64_t woord = 0;
        if (tekst_.size() - begin_ >= 8)
            std::memcpy(&woord, tekst_.data() + begin_, 8);
        else
            std::memcpy(&woord, tekst_.data() + begin_, tekst_.size() - begin_);
        treffers_ = Gelijk(woord, ',') | Gelijk(woord, '\n') | Gelijk(woord, '\r');
    }

    Tekstblik tekst_;
    std::size_t begin_ = 0;
    std::uint64_t treffers_ = 0;
};

class Lezer {
  public:
    explicit Lezer(Tekst inhoud) : inhoud_(std::move(inhoud)), scheidingen_(inhoud_) {}

    Spelerlezing Lees()
    {
        constexpr std::size_t gewoneRegel = 100; // a wrong guess costs a little time or memory only
        rijen_.reserve(inhoud_.size() / gewoneRegel);
        while (begin_ < inhoud_.size())
            LeesRegel();
        if (geteld_)
            uit_.zonderSleutelregel = !uit_.HKEY && !rijen_.empty();
        else
            uit_.zonderAchternaam.clear(); // nothing of the file is taken, so nothing is left out
        if (uit_.fout || uit_.zonderSleutelregel)
            uit_.verliest = true;
        if (geteld_)
            uit_.tabel.emplace(std::move(inhoud_), std::move(rijen_));
        return std::move(uit_);
    }

  private:
    void LeesRegel()
    {
        ++regel_;
        SplitsRegel();
        const Tekstblik regel(inhoud_.data() + begin_, eind_ - begin_);
        if (!geteld_) {
            if (velden_ >= VeldenVoorTelling)
                OnthoudSleutel(grenzen_);
        } else if (regel.starts_with(sleutelkop))
            NeemSleutel(regel.substr(sleutelkop.size()));
        else if (velden_ > 1 || !IsBlanco(regel))
            NeemSpeler();
        begin_ = volgende_;
    }

    /// Finds the end of the line and the bounds of its first 18 cells.
    void SplitsRegel()
    {
        velden_ = 0;
        grenzen_[0] = static_cast<std::uint32_t>(begin_);
        do {
            eind_ = scheidingen_.Volgende();
            if (++velden_ <= AantalKolommen)
                grenzen_[static_cast<std::size_t>(velden_)] = static_cast<std::uint32_t>(eind_ + 1);
        } while (eind_ < inhoud_.size() && inhoud_[eind_] == ',');
        volgende_ = eind_ + 1;
        if (Tekstblik(inhoud_).substr(eind_, 2) == "\r\n") {
            scheidingen_.Volgende();
            ++volgende_;
        }
    }

    void NeemSleutel(Tekstblik tekst)
    {
        const Tekstblik getal = ZonderSpaties(tekst);
        const auto waarde = Geheel32(getal);
        if (!waarde) {
            BreekAf(0);
            return;
        }
        uit_.sleutelZonderGetal = BegintMetGetal(getal) ? 0 : regel_;
        // Another key line, or anything behind the number, is not written again.
        if (uit_.HKEY || !AlsGetal(getal, 1))
            uit_.verliest = true;
        uit_.HKEY = std::max(*waarde, Sleutelbasis);
    }

    void NeemSpeler()
    {
        if (velden_ < VeldenVoorTelling) {
            BreekAf(velden_);
            return;
        }
        if (uit_.fout) { // filling in ended at an earlier line; this one was only counted
            OnthoudSleutel(grenzen_);
            return;
        }
        if (Lengte(Kolom::Achternaam) == 0) {
            OnthoudSleutel(grenzen_);
            uit_.zonderAchternaam.push_back(regel_);
            uit_.verliest = true;
            return;
        }
        if (velden_ < AantalKolommen) {
            OnthoudSleutel(grenzen_);
            MeldFout(velden_);
            return;
        }
        if (velden_ > AantalKolommen || Lengte(Kolom::Key) == 0 ||
            Lengte(Kolom::Groep) > LengteGroepscode)
            uit_.verliest = true;
        rijen_.push_back(grenzen_);
    }

    /// Of a line that is left out: its key was issued all the same.
    void OnthoudSleutel(const Spelertabel::Celgrenzen& grenzen)
    {
        const auto begin = grenzen[Index(Kolom::Key)];
        const auto lengte = grenzen[Index(Kolom::Key) + 1] - begin - 1;
        const auto key = Geheel32(Tekstblik(inhoud_).substr(begin, lengte));
        uit_.hoogsteWeggelaten = std::max(uit_.hoogsteWeggelaten, key.value_or(0));
    }

    [[nodiscard]] std::size_t Lengte(Kolom kolom) const
    {
        const auto plek = Index(kolom);
        return grenzen_[plek + 1] - grenzen_[plek] - 1;
    }

    void MeldFout(int velden)
    {
        uit_.fout = Fout{.soort = Foutsoort::Beschadigd, .regel = regel_};
        uit_.velden = velden;
    }

    void BreekAf(int velden)
    {
        MeldFout(velden);
        geteld_ = false;
        for (const auto& rij : rijen_)
            OnthoudSleutel(rij);
    }

    Tekst inhoud_;
    Scheidingen scheidingen_;
    Spelerlezing uit_;
    std::vector<Spelertabel::Celgrenzen> rijen_;
    Spelertabel::Celgrenzen grenzen_{};
    std::size_t begin_ = 0;
    std::size_t eind_ = 0;
    std::size_t volgende_ = 0;
    int velden_ = 0;
    int regel_ = 0;
    bool geteld_ = true;
};

} // namespace

Spelerlezing SpelersUit(Tekst inhoud)
{
    if (inhoud.size() > Spelertabel::GrootsteTekst) {
        Spelerlezing uit;
        uit.fout = Fout{.soort = Foutsoort::Beschadigd};
        uit.verliest = true;
        return uit;
    }
    return Lezer(std::move(inhoud)).Lees();
}

} // namespace plexoran
