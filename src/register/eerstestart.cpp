#include "register/eerstestart.h"

#include <algorithm>
#include <deque>
#include <set>

#include "platform/tekst/codepagina.h"
#include "platform/tekst/regels.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

constexpr Tekstblik mappennaam = "Mappen.ini";
constexpr Tekstblik gekozen = "MAPPEN=";
const Pad Clubnaampad = "Puntenboek\\Rev_Clubnaam.txt";

Pad MapVan(const Pad& pad)
{
    const auto streep = pad.find_last_of("\\/");
    return pad.substr(0, streep == Pad::npos ? 0 : streep);
}

/// Makes what is missing, and knows what it made, so that it can go again.
class Aanleg {
  public:
    explicit Aanleg(Schijf& schijf) : schijf_(schijf) {}

    Uitkomst<void> MaakMap(const Pad& map)
    {
        const auto soort = schijf_.Soort(map);
        if (!soort)
            return Mislukt(soort);
        if (*soort == Padsoort::Map)
            return {};
        if (const Pad boven = MapVan(map); !boven.empty()) {
            if (auto gemaakt = MaakMap(boven); !gemaakt)
                return gemaakt;
        }
        return schijf_.MaakMap(map).map([&] { mappen_.push_back(map); });
    }
    Uitkomst<void> Schrijf(const Pad& pad, Tekstblik inhoud)
    {
        const auto soort = schijf_.Soort(pad);
        if (!soort)
            return Mislukt(soort);
        if (*soort != Padsoort::Niets)
            return {};
        if (auto map = MaakMap(MapVan(pad)); !map)
            return map;
        auto geschreven = SchrijfHeel(schijf_, pad, inhoud);
        if (StaatOpSchijf(geschreven))
            bestanden_.push_back(pad);
        return geschreven;
    }
    /// What stayed, as a message shows it.
    std::vector<std::string> NeemTerug()
    {
        std::vector<std::string> gebleven;
        const auto meld = [&](const Pad& pad, const Uitkomst<void>& weg) {
            if (!weg)
                gebleven.push_back(schijf_.Toonpad(pad));
        };
        for (const Pad& pad : bestanden_)
            meld(pad, schijf_.Verwijder(pad));
        for (auto map = mappen_.rbegin(); map != mappen_.rend(); ++map)
            meld(*map, schijf_.VerwijderMap(*map));
        return gebleven;
    }

  private:
    Schijf& schijf_;
    std::vector<Pad> mappen_; ///< in the order in which they were made
    std::vector<Pad> bestanden_;
};

/// Whether the club in a folder was made of these files.
bool IsOefenclub(Schijf& schijf, const Pad& map, const std::vector<Zipdeel>& delen)
{
    const auto naam = std::ranges::find(delen, Clubnaampad, &Zipdeel::naam);
    return naam != delen.end() && schijf.LeesBestand(Samen(map, naam->naam)) == naam->inhoud &&
           LeesMappenIni(schijf, Samen(map, mappennaam)).has_value();
}

} // namespace

Pad StartMappenIni(Schijf& schijf, const Pad& programmamap, const Pad& ini)
{
    const Pad ernaast = MappenIniPad(programmamap);
    if (ini.empty() || schijf.Soort(ernaast) != Padsoort::Niets)
        return ernaast;
    const Tekst inhoud = schijf.LeesBestand(ini).value_or(Tekst());
    for (const Tekstblik regel : Regels(inhoud)) {
        if (regel.starts_with(gekozen) && regel.size() > gekozen.size())
            return Pad(regel.substr(gekozen.size()));
    }
    return ernaast;
}

Uitkomst<void> OnthoudMappenIni(Schijf& schijf, const Pad& ini, const Pad& mappenIni)
{
    return Aanleg(schijf).MaakMap(MapVan(ini)).and_then([&] {
        return SchrijfHeel(schijf, ini, Tekst(gekozen) + mappenIni + "\r\n");
    });
}

std::vector<Pad> ZoekSuites(Schijf& schijf, const std::vector<Zoekplaats>& plaatsen,
                            const std::function<bool()>& verder)
{
    std::vector<Pad> uit;
    std::set<Pad> gezien;
    for (const Zoekplaats& plaats : plaatsen) {
        for (std::deque<Zoekplaats> wachtrij{plaats}; !wachtrij.empty(); wachtrij.pop_front()) {
            if (!verder())
                return uit;
            const auto [map, diep] = wachtrij.front();
            const Pad pad = Samen(map, mappennaam);
            const auto mappen = LeesMappenIni(schijf, pad);
            if (mappen && schijf.Soort(mappen->SPEMAP) == Padsoort::Map &&
                gezien.insert(pad).second)
                uit.push_back(pad);
            if (diep == 0)
                continue;
            auto namen = schijf.Mappen(map).value_or(std::vector<Tekst>());
            Sorteer(namen);
            for (const Tekst& naam : namen) {
                if (!naam.starts_with('.'))
                    wachtrij.push_back({Samen(map, naam), diep - 1});
            }
        }
    }
    return uit;
}

Uitkomst<Bestaand> ZoekBestaand(Schijf& schijf, const Pad& map)
{
    Bestaand uit;
    for (const Pad& waar : {map, Samen(map, "Spelers")}) {
        const auto soort = schijf.Soort(Samen(waar, "RVDspelers.txt"));
        if (!soort)
            return Mislukt(soort);
        if (*soort != Padsoort::Niets)
            uit.spelersmap = waar;
    }
    const Pad mappenIni = Samen(map, mappennaam);
    return schijf.Soort(mappenIni).map([&](Padsoort soort) {
        uit.mappenIni = soort == Padsoort::Niets ? Pad() : mappenIni;
        return uit;
    });
}

std::string Naambezwaar(Tekstblik club, const Pad& map)
{
    // Windows takes 259 characters for a path; the names of sessions and backups come behind it.
    constexpr std::size_t langste = 150;
    if (club.empty())
        return "Vul de naam van uw club in.";
    if (const Tekst tekens = GeweigerdeTekens(club); !tekens.empty())
        return "In de naam van uw club kan dit niet staan, want die krijgt ook de map: " +
               NaarUtf8(tekens) + "\n\nKies een andere naam.";
    if (club.ends_with('.'))
        return "De naam van een map kan niet eindigen op een punt. Kies een andere naam.";
    if (map.size() > langste)
        return "De naam van de map is te lang: met alle mappen erboven heeft hij " +
               std::to_string(map.size()) + " tekens, en er kunnen er " + std::to_string(langste) +
               " zijn. Kies een kortere naam of een andere map.";
    return {};
}

std::vector<Zipdeel> NieuweDelen(Tekstblik club)
{
    return {{Clubnaampad, Tekst(club) + "\r\n"},
            {"Spelers\\RVDGroepen.txt", GroepenTekst(Groepen())}};
}

Tekst NieuweMappenIni(const Pad& map, const Pad& spelersmap)
{
    const auto regel = [](Tekstblik sleutel, const Pad& waarde) {
        return Tekst(sleutel) + waarde + "\r\n";
    };
    return regel("RVDMAP=", map) + regel("APPEXE=", "Ravendeck.exe") +
           regel("ZITMAP=", Samen(map, "Zittingen")) + regel("ADMMAP=", Samen(map, "Admin")) +
           regel("INDMAP=", Samen(map, "Indelingen")) + regel("SPEMAP=", spelersmap) +
           regel("COMMAP=", Samen(map, "Competities")) + regel("NEWPAGR=", "1") +
           regel("DFIMPG=", "Gr05-") + regel("NBB28UIT=", "0") +
           regel("WINMAP=", Samen(map, "Bestanden")) + regel("ODKEYS=", {});
}

tl::expected<Pad, Aanlegfout> MaakAdministratie(Schijf& schijf, const Pad& map,
                                                const std::vector<Zipdeel>& delen,
                                                const Pad& spelersmap)
{
    Aanleg aanleg(schijf);
    auto gemaakt = aanleg.MaakMap(spelersmap);
    for (const char* naam : {"Zittingen", "Admin", "Indelingen", "Competities", "Bestanden"}) {
        if (gemaakt)
            gemaakt = aanleg.MaakMap(Samen(map, naam));
    }
    for (const Zipdeel& deel : delen) {
        if (gemaakt)
            gemaakt = aanleg.Schrijf(Samen(map, deel.naam), deel.inhoud);
    }
    const Pad mappenIni = Samen(map, mappennaam);
    if (gemaakt)
        gemaakt = aanleg.Schrijf(mappenIni, NieuweMappenIni(map, spelersmap));
    if (!gemaakt)
        return tl::unexpected(Aanlegfout{gemaakt.error(), aanleg.NeemTerug()});
    return mappenIni;
}

Uitkomst<Oefenplaats> ZoekOefenplaats(Schijf& schijf, const Pad& documenten,
                                      const std::vector<Zipdeel>& delen)
{
    Oefenplaats uit;
    for (int nummer = 1;; ++nummer) {
        uit.vrij = Samen(documenten, "Plexoran oefenclub");
        if (nummer > 1)
            uit.vrij += ' ' + std::to_string(nummer);
        const auto soort = schijf.Soort(uit.vrij);
        if (!soort)
            return Mislukt(soort);
        if (*soort == Padsoort::Niets)
            return uit;
        if (uit.bestaand.empty() && IsOefenclub(schijf, uit.vrij, delen))
            uit.bestaand = uit.vrij;
    }
}

} // namespace plexoran
