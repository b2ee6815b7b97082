#include "platform/schijf/echteSchijf.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

#include "platform/schijf/systeem.h"
#include "platform/schijf/systeempad.h"

namespace plexoran {

namespace fs = std::filesystem;

namespace {

tl::unexpected<Fout> Mislukt(const fs::path& waar, const std::error_code& code)
{
    const bool ontbreekt =
        code == std::errc::no_such_file_or_directory || code == std::errc::not_a_directory;
    return plexoran::Mislukt({.soort = ontbreekt ? Foutsoort::Ontbreekt : Foutsoort::Geweigerd,
                              .bestand = Leesbaar(waar),
                              .systeem = Systeemmelding(code)});
}

Uitkomst<void> Uitslag(const fs::path& waar, const std::error_code& code)
{
    if (code)
        return Mislukt(waar, code);
    return {};
}

/// The names in a folder of what is of this kind, or a link to it; what no path of the suite can
/// say is put with the others.
Uitkomst<std::vector<Tekst>> Namen(const Pad& map, fs::file_type soort,
                                   std::set<fs::path>& overgeslagen)
{
    const fs::path waar = Systeempad(map);
    std::vector<Tekst> namen;
    std::error_code fout;
    for (fs::directory_iterator plek(waar, fout); !fout && plek != fs::directory_iterator();
         plek.increment(fout)) {
        // What the folder itself tells, and only for a link another look; it may lead nowhere.
        std::error_code nietTeZien;
        if (soort == fs::file_type::directory ? !plek->is_directory(nietTeZien)
                                              : !plek->is_regular_file(nietTeZien))
            continue;
        auto naam = NaamVan(plek->path().filename());
        if (naam && IsKaleNaam(*naam))
            namen.push_back(std::move(*naam));
        else
            overgeslagen.insert(plek->path());
    }
    if (fout)
        return Mislukt(waar, fout);
    return namen;
}

/// A file of more than `grootste` bytes is refused before it fills the memory.
Uitkomst<Tekst> LeesAlles(const fs::path& waar, std::uint64_t grootste)
try {
    // Asked first: the opening of a pipe would hold us until someone writes to it.
    Stempel stempel;
    if (const auto fout = systeem::NeemStempel(waar, stempel))
        return Mislukt(waar, fout);
    if (stempel.grootte > grootste)
        return plexoran::Mislukt(TeGroot(Leesbaar(waar)));
    const systeem::Greep greep(systeem::Open(waar, false));
    // Without a buffer: what is read goes straight into ours.
    if (!greep || std::setvbuf(greep.get(), nullptr, _IONBF, 0) != 0)
        return Mislukt(waar, systeem::Laatste());
    // One byte more, so that the end shows without growing; the size is a guess, for the file may
    // change and some systems do not tell it.
    Tekst naar(stempel.grootte + 1, '\0');
    std::size_t gelezen = 0;
    for (;;) {
        gelezen += std::fread(naar.data() + gelezen, 1, naar.size() - gelezen, greep.get());
        if (gelezen < naar.size())
            break;
        naar.resize(2 * naar.size());
    }
    if (const auto fout = systeem::Uitslag(std::ferror(greep.get())))
        return Mislukt(waar, fout);
    naar.resize(gelezen);
    return naar;
} catch (const std::bad_alloc&) {
    return Mislukt(waar, std::make_error_code(std::errc::not_enough_memory));
} catch (const std::length_error&) {
    return Mislukt(waar, std::make_error_code(std::errc::file_too_large));
}

class EchteSchrijver : public Schrijver {
  public:
    EchteSchrijver(fs::path pad, systeem::Greep greep)
        : pad_(std::move(pad)), greep_(std::move(greep))
    {}
    Uitkomst<void> Schrijf(Tekstblik bytes) override
    {
        const bool heel = std::fwrite(bytes.data(), 1, bytes.size(), greep_.get()) == bytes.size();
        return Uitslag(pad_, systeem::Uitslag(heel ? 0 : -1));
    }
    Uitkomst<void> Sync() override { return Uitslag(pad_, systeem::Sync(greep_)); }
    Uitkomst<void> Sluit() override
    {
        return Uitslag(pad_, systeem::Uitslag(std::fclose(greep_.release())));
    }

  private:
    fs::path pad_;
    systeem::Greep greep_;
};

} // namespace

Uitkomst<Padsoort> EchteSchijf::Soort(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    std::error_code fout;
    const fs::file_type soort = fs::status(waar, fout).type();
    if (soort == fs::file_type::not_found)
        return Padsoort::Niets;
    if (soort == fs::file_type::none || fout)
        return Mislukt(waar, fout);
    return soort == fs::file_type::directory ? Padsoort::Map : Padsoort::Bestand;
}

Uitkomst<Tekst> EchteSchijf::LeesBestand(const Pad& pad)
{
    return LeesAlles(Systeempad(pad), std::numeric_limits<std::uint64_t>::max());
}

Uitkomst<Tekst> EchteSchijf::LeesBegrensd(const Pad& pad)
{
    return LeesAlles(Systeempad(pad), GrootsteBestand);
}

Uitkomst<bool> EchteSchijf::Houdt(const Pad& pad, Tekstblik inhoud)
{
    const fs::path waar = Systeempad(pad);
    Stempel stempel;
    if (const auto fout = systeem::NeemStempel(waar, stempel))
        return Mislukt(waar, fout);
    const systeem::Greep greep(systeem::Open(waar, false));
    if (!greep || std::setvbuf(greep.get(), nullptr, _IONBF, 0) != 0)
        return Mislukt(waar, systeem::Laatste());
    constexpr std::size_t portie = std::size_t{1} << 18U;
    Tekst deel(portie, '\0');
    for (;;) {
        const auto gelezen = std::fread(deel.data(), 1, deel.size(), greep.get());
        if (std::ferror(greep.get()) != 0)
            return Mislukt(waar, systeem::Laatste());
        if (inhoud.substr(0, gelezen) != Tekstblik(deel).substr(0, gelezen))
            return false;
        inhoud.remove_prefix(gelezen);
        if (gelezen < deel.size())
            return inhoud.empty();
    }
}

Uitkomst<Stempel> EchteSchijf::NeemStempel(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    Stempel stempel;
    if (const auto fout = systeem::NeemStempel(waar, stempel))
        return Mislukt(waar, fout);
    return stempel;
}

Uitkomst<std::vector<Tekst>> EchteSchijf::Bestanden(const Pad& map)
{
    return Namen(map, fs::file_type::regular, overgeslagen_);
}

Uitkomst<std::vector<Tekst>> EchteSchijf::Mappen(const Pad& map)
{
    return Namen(map, fs::file_type::directory, overgeslagen_);
}

std::vector<std::string> EchteSchijf::NeemOvergeslagen(const Pad& map)
{
    const fs::path waar = Systeempad(map);
    std::vector<std::string> namen;
    for (const fs::path& pad : overgeslagen_) {
        if (pad.parent_path() == waar && gemeld_.insert(pad).second)
            namen.push_back(Leesbaar(pad.filename()));
    }
    return namen;
}

Uitkomst<void> EchteSchijf::MaakMap(const Pad& map)
{
    const fs::path waar = Systeempad(map);
    std::error_code fout;
    const bool gemaakt = fs::create_directory(waar, fout);
    if (!gemaakt && !fout && !fs::is_directory(waar, fout))
        fout = std::make_error_code(std::errc::file_exists);
    // Nothing is missing: a file stands in the way. Windows has no word of its own for it.
    std::error_code nietTeZien;
    const bool achterBestand = fout == std::errc::no_such_file_or_directory &&
                               fs::is_regular_file(waar.parent_path(), nietTeZien);
    if (fout == std::errc::not_a_directory || achterBestand)
        fout = std::make_error_code(std::errc::file_exists);
    return Uitslag(waar, fout);
}

Uitkomst<Pad> EchteSchijf::Doel(const Pad& pad)
{
    fs::path waar = Systeempad(pad);
    constexpr int hoogstens = 40; // as many as the systems follow themselves
    for (int gevolgd = 0; gevolgd <= hoogstens; ++gevolgd) {
        std::error_code fout;
        const fs::file_type soort = fs::symlink_status(waar, fout).type();
        if (soort == fs::file_type::none)
            return Mislukt(waar, fout);
        if (soort != fs::file_type::symlink)
            return gevolgd == 0 ? pad : PadVan(waar);
        const fs::path heen = fs::read_symlink(waar, fout);
        if (fout)
            return Mislukt(waar, fout);
        waar = waar.parent_path() / heen;
    }
    return Mislukt(waar, std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

Uitkomst<std::unique_ptr<Schrijver>> EchteSchijf::MaakNieuw(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    systeem::Greep greep(systeem::Open(waar, true));
    // Without a buffer: what is written goes to the system at once.
    if (!greep || std::setvbuf(greep.get(), nullptr, _IONBF, 0) != 0)
        return Mislukt(waar, systeem::Laatste());
    return std::make_unique<EchteSchrijver>(waar, std::move(greep));
}

Uitkomst<void> EchteSchijf::NeemRechtenOver(const Pad& van, const Pad& naar)
{
    const fs::path waar = Systeempad(van);
    return Uitslag(waar, systeem::NeemRechtenOver(waar, Systeempad(naar)));
}

Uitkomst<void> EchteSchijf::Hernoem(const Pad& van, const Pad& naar)
{
    const fs::path waar = Systeempad(naar);
    return Uitslag(waar, systeem::Hernoem(Systeempad(van), waar));
}

Uitkomst<void> EchteSchijf::Verwijder(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    std::error_code fout;
    if (fs::is_directory(fs::symlink_status(waar, fout))) // which would go, when it is empty
        fout = std::make_error_code(std::errc::is_a_directory);
    else if (!fout)
        fs::remove(waar, fout);
    return Uitslag(waar, fout);
}

Uitkomst<void> EchteSchijf::VerwijderMap(const Pad& map)
{
    const fs::path waar = Systeempad(map);
    std::error_code fout;
    if (!fs::is_directory(fs::symlink_status(waar, fout)) && !fout)
        fout = std::make_error_code(std::errc::not_a_directory);
    else if (!fout)
        fs::remove(waar, fout);
    return Uitslag(waar, fout);
}

Uitkomst<void> EchteSchijf::SyncMapVan(const Pad& pad)
{
    fs::path map = Systeempad(pad).parent_path();
    if (map.empty())
        map = ".";
    return Uitslag(map, systeem::SyncMap(map));
}

std::string EchteSchijf::Toonpad(const Pad& pad) const
{
    return Leesbaar(Systeempad(pad));
}

} // namespace plexoran
