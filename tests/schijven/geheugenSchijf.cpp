#include "schijven/geheugenSchijf.h"

#include <algorithm>

namespace plexoran {
namespace {

/// One spelling per path: `\` between the parts, none double, none at the end.
Pad Genormaliseerd(const Pad& pad)
{
    Pad uit;
    const bool vanafWortel = !pad.empty() && (pad.front() == '\\' || pad.front() == '/');
    for (std::size_t begin = 0; begin < pad.size();) {
        const auto eind = std::min(pad.find_first_of("\\/", begin), pad.size());
        const Tekstblik deel = Tekstblik(pad).substr(begin, eind - begin);
        begin = eind + 1;
        if (deel == "..") {
            uit.resize(std::min(uit.rfind('\\'), uit.size()));
        } else if (!deel.empty() && deel != ".") {
            if (vanafWortel || !uit.empty())
                uit += '\\';
            uit += deel;
        }
    }
    return uit;
}

Tekst Sleutel(const Pad& pad)
{
    return Hoofdletters(Genormaliseerd(pad));
}

/// The folder of a path that `Genormaliseerd` made; empty at the top.
Tekst MapVan(const Tekst& pad)
{
    const auto streep = pad.rfind('\\');
    return streep == Tekst::npos ? Tekst() : pad.substr(0, streep);
}

Tekst NaamIn(const Pad& pad)
{
    return pad.substr(pad.rfind('\\') + 1);
}

tl::unexpected<Fout> Mislukt(const Pad& pad, std::errc oorzaak)
{
    const auto soort = oorzaak == std::errc::no_such_file_or_directory ? Foutsoort::Ontbreekt
                                                                       : Foutsoort::Geweigerd;
    return plexoran::Mislukt({.soort = soort,
                              .bestand = NaarUtf8(pad),
                              .systeem = Systeemmelding(std::make_error_code(oorzaak))});
}

} // namespace

class GeheugenSchijf::GeheugenSchrijver : public Schrijver {
  public:
    GeheugenSchrijver(GeheugenSchijf& schijf, std::shared_ptr<Knoop> knoop)
        : schijf_(schijf), knoop_(std::move(knoop))
    {}
    Uitkomst<void> Schrijf(Tekstblik bytes) override
    {
        knoop_->inhoud += bytes;
        knoop_->stempel.grootte = knoop_->inhoud.size();
        knoop_->stempel.tijd = schijf_.Tik();
        schijf_.MeldStap();
        return {};
    }
    Uitkomst<void> Sync() override
    {
        knoop_->gesynct = knoop_->inhoud;
        schijf_.MeldStap();
        return {};
    }
    Uitkomst<void> Sluit() override { return {}; }

  private:
    GeheugenSchijf& schijf_;
    std::shared_ptr<Knoop> knoop_;
};

std::shared_ptr<GeheugenSchijf::Knoop> GeheugenSchijf::NieuweKnoop()
{
    auto knoop = std::make_shared<Knoop>();
    knoop->stempel.nummer = ++laatsteNummer_;
    knoop->stempel.tijd = Tik();
    return knoop;
}

template <class Lijst>
Uitkomst<std::vector<Tekst>> GeheugenSchijf::NamenUit(const Lijst& lijst, const Pad& map) const
{
    const Tekst gezocht = Sleutel(map);
    if (!IsMap(gezocht))
        return Mislukt(map, std::errc::no_such_file_or_directory);
    std::vector<Tekst> uit;
    for (const auto& [sleutel, wat] : lijst) {
        if (MapVan(sleutel) == gezocht)
            uit.push_back(NaamIn(wat.pad));
    }
    return uit;
}

bool GeheugenSchijf::IsMap(const Tekst& sleutel) const
{
    const bool station = sleutel.empty() || sleutel.ends_with(':');
    return station || mappen_.contains(sleutel);
}

Uitkomst<void> GeheugenSchijf::MagInMapVan(const Tekst& sleutel, const Pad& pad) const
{
    const Tekst map = MapVan(sleutel);
    if (!IsMap(map))
        return Mislukt(pad, std::errc::no_such_file_or_directory);
    const auto plaats = mappen_.find(map);
    if (plaats != mappen_.end() && plaats->second.alleenLezen)
        return Mislukt(pad, std::errc::permission_denied);
    return {};
}

Uitkomst<GeheugenSchijf::Knoop*> GeheugenSchijf::Vind(const Pad& pad) const
{
    const Tekst sleutel = Sleutel(pad);
    if (IsMap(sleutel))
        return Mislukt(pad, std::errc::is_a_directory);
    const auto plaats = namen_.find(sleutel);
    if (plaats == namen_.end())
        return Mislukt(pad, std::errc::no_such_file_or_directory);
    return plaats->second.knoop.get();
}

void GeheugenSchijf::Zet(const Pad& pad, Tekstblik inhoud)
{
    const Pad netjes = Genormaliseerd(pad);
    ZetMap(MapVan(netjes));
    auto knoop = NieuweKnoop();
    knoop->inhoud = inhoud;
    knoop->gesynct = inhoud;
    knoop->stempel.grootte = inhoud.size();
    const Naam naam{netjes, std::move(knoop)};
    namen_.insert_or_assign(Sleutel(pad), naam);
    gesyncteNamen_.insert_or_assign(Sleutel(pad), naam);
}

void GeheugenSchijf::ZetMap(const Pad& map)
{
    for (Pad deel = Genormaliseerd(map); !deel.empty(); deel = MapVan(deel))
        mappen_.try_emplace(Hoofdletters(deel), Map{deel});
}

void GeheugenSchijf::ZetTijd(const Pad& pad, std::int64_t tijd)
{
    namen_.at(Sleutel(pad)).knoop->stempel.tijd = tijd;
}

void GeheugenSchijf::ZetTijdstap(std::int64_t stap)
{
    tik_ = 10'000'000;
    tijdstap_ = stap;
}

void GeheugenSchijf::ZetAlleenLezen(const Pad& pad, bool alleenLezen)
{
    const auto map = mappen_.find(Sleutel(pad));
    if (map != mappen_.end())
        map->second.alleenLezen = alleenLezen;
    else
        namen_.at(Sleutel(pad)).knoop->alleenLezen = alleenLezen;
}

std::optional<Tekst> GeheugenSchijf::Inhoud(const Pad& pad) const
{
    const auto knoop = Vind(pad);
    return knoop ? std::optional((*knoop)->inhoud) : std::nullopt;
}

std::vector<Pad> GeheugenSchijf::AlleBestanden() const
{
    std::vector<Pad> uit;
    for (const auto& [sleutel, naam] : namen_)
        uit.push_back(naam.pad);
    return uit;
}

std::map<Pad, Tekst> GeheugenSchijf::NaStroomuitval(Namen namen) const
{
    std::map<Pad, Tekst> uit;
    for (const auto& [sleutel, naam] : namen == Namen::Alle ? namen_ : gesyncteNamen_)
        uit[naam.pad] = naam.knoop->gesynct;
    return uit;
}

std::map<Pad, Tekst> GeheugenSchijf::NaStroomuitval(std::mt19937& toeval) const
{
    Namenlijst namen = gesyncteNamen_;
    for (const auto& [sleutel, naam] : gesyncteNamen_) {
        if (!namen_.contains(sleutel) && toeval() % 2 == 0)
            namen.erase(sleutel);
    }
    for (const auto& [sleutel, naam] : namen_) {
        const auto oud = gesyncteNamen_.find(sleutel);
        const bool isNieuw = oud == gesyncteNamen_.end() || oud->second.knoop != naam.knoop;
        if (isNieuw && toeval() % 2 == 0)
            namen.insert_or_assign(sleutel, naam);
    }
    std::map<Pad, Tekst> uit;
    for (const auto& [sleutel, naam] : namen)
        uit[naam.pad] = naam.knoop->NaStroomuitval(toeval);
    return uit;
}

Tekst GeheugenSchijf::Knoop::NaStroomuitval(std::mt19937& toeval) const
{
    constexpr std::size_t blok = 512;
    Tekst uit = gesynct;
    for (std::size_t begin = gesynct.size(); begin < inhoud.size();) {
        const std::size_t eind = std::min(inhoud.size(), (begin / blok + 1) * blok);
        if (toeval() % 2 == 0) {
            uit.resize(begin, '\0');
            uit.append(inhoud, begin, eind - begin);
        }
        begin = eind;
    }
    return uit;
}

Uitkomst<Padsoort> GeheugenSchijf::Soort(const Pad& pad)
{
    const Tekst sleutel = Sleutel(pad);
    if (IsMap(sleutel))
        return Padsoort::Map;
    return namen_.contains(sleutel) ? Padsoort::Bestand : Padsoort::Niets;
}

Uitkomst<Tekst> GeheugenSchijf::LeesBestand(const Pad& pad)
{
    return Vind(pad).map([](const Knoop* knoop) { return knoop->inhoud; });
}

Uitkomst<Stempel> GeheugenSchijf::NeemStempel(const Pad& pad)
{
    return Vind(pad).map([](const Knoop* knoop) { return knoop->stempel; });
}

Uitkomst<std::vector<Tekst>> GeheugenSchijf::Bestanden(const Pad& map)
{
    return NamenUit(namen_, map);
}

Uitkomst<std::vector<Tekst>> GeheugenSchijf::Mappen(const Pad& map)
{
    return NamenUit(mappen_, map);
}

Uitkomst<void> GeheugenSchijf::MaakMap(const Pad& map)
{
    const Tekst sleutel = Sleutel(map);
    if (IsMap(sleutel))
        return {};
    const Tekst boven = MapVan(sleutel);
    if (namen_.contains(sleutel) || namen_.contains(boven))
        return Mislukt(map, std::errc::file_exists);
    if (!IsMap(boven))
        return Mislukt(map, std::errc::no_such_file_or_directory);
    if (auto mag = MagInMapVan(sleutel, map); !mag)
        return mag;
    ZetMap(map);
    MeldStap();
    return {};
}

Uitkomst<std::unique_ptr<Schrijver>> GeheugenSchijf::MaakNieuw(const Pad& pad)
{
    const Tekst sleutel = Sleutel(pad);
    if (const auto mag = MagInMapVan(sleutel, pad); !mag)
        return tl::unexpected(mag.error());
    if (IsMap(sleutel) || namen_.contains(sleutel))
        return Mislukt(pad, std::errc::file_exists);
    auto knoop = NieuweKnoop();
    namen_.emplace(sleutel, Naam{Genormaliseerd(pad), knoop});
    MeldStap();
    return std::make_unique<GeheugenSchrijver>(*this, std::move(knoop));
}

Uitkomst<void> GeheugenSchijf::NeemRechtenOver(const Pad& van, const Pad& naar)
{
    const auto oud = Vind(van);
    if (!oud)
        return tl::unexpected(oud.error());
    if ((*oud)->alleenLezen)
        return Mislukt(van, std::errc::permission_denied);
    return Vind(naar).map([](const Knoop*) {});
}

Uitkomst<void> GeheugenSchijf::Hernoem(const Pad& van, const Pad& naar)
{
    const auto oud = Vind(van);
    if (!oud)
        return tl::unexpected(oud.error());
    const Tekst sleutel = Sleutel(naar);
    if (IsMap(sleutel))
        return Mislukt(naar, std::errc::is_a_directory);
    for (const Tekst& plaats : {Sleutel(van), sleutel}) {
        if (auto mag = MagInMapVan(plaats, naar); !mag)
            return mag;
    }
    if (sleutel == Sleutel(van))
        return {};
    const auto knoop = namen_.extract(Sleutel(van)).mapped().knoop;
    // A name that is there already keeps its case.
    namen_.try_emplace(sleutel, Naam{Genormaliseerd(naar), nullptr}).first->second.knoop = knoop;
    MeldStap();
    return {};
}

Uitkomst<void> GeheugenSchijf::Verwijder(const Pad& pad)
{
    if (const auto knoop = Vind(pad); !knoop)
        return tl::unexpected(knoop.error());
    if (auto mag = MagInMapVan(Sleutel(pad), pad); !mag)
        return mag;
    namen_.erase(Sleutel(pad));
    MeldStap();
    return {};
}

Uitkomst<void> GeheugenSchijf::VerwijderMap(const Pad& map)
{
    const Tekst sleutel = Sleutel(map);
    if (!mappen_.contains(sleutel))
        return Mislukt(map, namen_.contains(sleutel) ? std::errc::file_exists
                                                     : std::errc::no_such_file_or_directory);
    const auto inMap = [&](const auto& wat) { return MapVan(wat.first) == sleutel; };
    if (std::ranges::any_of(namen_, inMap) || std::ranges::any_of(mappen_, inMap))
        return Mislukt(map, std::errc::directory_not_empty);
    if (auto mag = MagInMapVan(sleutel, map); !mag)
        return mag;
    mappen_.erase(sleutel);
    MeldStap();
    return {};
}

Uitkomst<void> GeheugenSchijf::SyncMapVan(const Pad& pad)
{
    const Tekst map = MapVan(Sleutel(pad));
    if (!IsMap(map))
        return Mislukt(pad, std::errc::no_such_file_or_directory);
    std::erase_if(gesyncteNamen_, [&](const auto& item) { return MapVan(item.first) == map; });
    for (const auto& [sleutel, naam] : namen_) {
        if (MapVan(sleutel) == map)
            gesyncteNamen_.emplace(sleutel, naam);
    }
    MeldStap();
    return {};
}

} // namespace plexoran
