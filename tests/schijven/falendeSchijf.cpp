#include "schijven/falendeSchijf.h"

#include <limits>
#include <utility>

namespace plexoran {

class FalendeSchijf::FalendeSchrijver : public Schrijver {
  public:
    FalendeSchrijver(FalendeSchijf& schijf, Pad pad, std::unique_ptr<Schrijver> binnen)
        : schijf_(schijf), pad_(std::move(pad)), binnen_(std::move(binnen))
    {}

    /// A disk that fills up has taken a part already.
    Uitkomst<void> Schrijf(Tekstblik bytes) override
    {
        if (auto mag = schijf_.Schrijvend(pad_); !mag) {
            const auto helft = binnen_->Schrijf(bytes.substr(0, bytes.size() / 2));
            return helft ? mag : helft;
        }
        return binnen_->Schrijf(bytes);
    }

    Uitkomst<void> Sync() override
    {
        return schijf_.Schrijvend(pad_).and_then([this] { return binnen_->Sync(); });
    }

    Uitkomst<void> Sluit() override
    {
        return schijf_.Schrijvend(pad_).and_then([this] { return binnen_->Sluit(); });
    }

  private:
    FalendeSchijf& schijf_;
    Pad pad_;
    std::unique_ptr<Schrijver> binnen_;
};

void FalendeSchijf::FaalBij(int nummer)
{
    aantal_ = 0;
    eerste_ = nummer;
    laatste_ = nummer;
}

void FalendeSchijf::FaalVanaf(int nummer)
{
    aantal_ = 0;
    eerste_ = nummer;
    laatste_ = std::numeric_limits<int>::max();
}

void FalendeSchijf::FaalNiet()
{
    FaalBij(0);
}

Uitkomst<void> FalendeSchijf::Tel(const Pad& pad)
{
    ++aantal_;
    if (eerste_ == 0 || aantal_ < eerste_ || aantal_ > laatste_)
        return {};
    return tl::unexpected(Fout{Foutsoort::Geweigerd, binnen_.Toonpad(pad), 0, "schijf vol"});
}

Uitkomst<void> FalendeSchijf::Mag(const Pad& pad) const
{
    if (!mag_ || mag_(pad))
        return {};
    return tl::unexpected(Fout{Foutsoort::Geweigerd, binnen_.Toonpad(pad), 0, "geen toegang"});
}

Uitkomst<void> FalendeSchijf::Lezend(const Pad& pad)
{
    return Mag(pad).and_then([&] { return telt_ == Telt::Alles ? Tel(pad) : Uitkomst<void>(); });
}

Uitkomst<void> FalendeSchijf::Schrijvend(const Pad& pad)
{
    return Mag(pad).and_then([&] { return Tel(pad); });
}

Uitkomst<Padsoort> FalendeSchijf::Soort(const Pad& pad)
{
    return (telt_ == Telt::Alles ? Tel(pad) : Uitkomst<void>()).and_then([&] {
        return binnen_.Soort(pad);
    });
}

Uitkomst<Tekst> FalendeSchijf::LeesBestand(const Pad& pad)
{
    return Lezend(pad).and_then([&] { return binnen_.LeesBestand(pad); });
}

Uitkomst<Stempel> FalendeSchijf::NeemStempel(const Pad& pad)
{
    return Lezend(pad).and_then([&] { return binnen_.NeemStempel(pad); });
}

Uitkomst<std::vector<Tekst>> FalendeSchijf::Bestanden(const Pad& map)
{
    return Lezend(map).and_then([&] { return binnen_.Bestanden(map); });
}

Uitkomst<std::vector<Tekst>> FalendeSchijf::Mappen(const Pad& map)
{
    return Lezend(map).and_then([&] { return binnen_.Mappen(map); });
}

Uitkomst<void> FalendeSchijf::MaakMap(const Pad& map)
{
    return Schrijvend(map).and_then([&] { return binnen_.MaakMap(map); });
}

Uitkomst<Pad> FalendeSchijf::Doel(const Pad& pad)
{
    return Lezend(pad).and_then([&] { return binnen_.Doel(pad); });
}

Uitkomst<std::unique_ptr<Schrijver>> FalendeSchijf::MaakNieuw(const Pad& pad)
{
    if (const auto mag = Schrijvend(pad); !mag)
        return tl::unexpected(mag.error());
    auto binnen = binnen_.MaakNieuw(pad);
    if (!binnen)
        return binnen;
    return std::make_unique<FalendeSchrijver>(*this, pad, std::move(*binnen));
}

Uitkomst<void> FalendeSchijf::NeemRechtenOver(const Pad& van, const Pad& naar)
{
    return Schrijvend(naar).and_then([&] { return binnen_.NeemRechtenOver(van, naar); });
}

Uitkomst<void> FalendeSchijf::Hernoem(const Pad& van, const Pad& naar)
{
    return Schrijvend(naar).and_then([&] { return binnen_.Hernoem(van, naar); });
}

Uitkomst<void> FalendeSchijf::Verwijder(const Pad& pad)
{
    return Schrijvend(pad).and_then([&] { return binnen_.Verwijder(pad); });
}

Uitkomst<void> FalendeSchijf::SyncMapVan(const Pad& pad)
{
    return Schrijvend(pad).and_then([&] { return binnen_.SyncMapVan(pad); });
}

std::string FalendeSchijf::Toonpad(const Pad& pad) const
{
    return binnen_.Toonpad(pad);
}

} // namespace plexoran
