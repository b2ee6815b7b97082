#include "register/kopienaam.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <tuple>

namespace plexoran {
namespace {

/// A 9 stands for any digit.
bool HeeftVorm(Tekstblik tekst, Tekstblik vorm)
{
    return std::equal(tekst.begin(), tekst.end(), vorm.begin(), vorm.end(),
                      [](char is, char moet) { return moet == '9' ? IsCijfer(is) : is == moet; });
}

unsigned Getal(Tekstblik cijfers)
{
    unsigned uit = 0;
    for (const char cijfer : cijfers)
        uit = uit * 10 + static_cast<unsigned>(cijfer - '0');
    return uit;
}

constexpr Tekstblik momentvorm = "9999-99-99 999999";
constexpr std::size_t datumlengte = 10;

bool IsMoment(Tekstblik tekst)
{
    return HeeftVorm(tekst, momentvorm) && Dagnummer(tekst.substr(0, datumlengte)) &&
           tekst.substr(11, 2) < "24" && tekst[13] < '6' && tekst[15] < '6';
}

/// Of which file there can be a copy: the register's, the settings and the pairs of a group.
bool IsBestand(Tekstblik naam)
{
    constexpr Tekstblik groepsvorm = "Gr99-";
    return naam == "RVDspelers" || naam == "RVDGroepen" || naam == "Plexo" ||
           HeeftVorm(naam.substr(0, groepsvorm.size()), groepsvorm);
}

/// Takes the "-2" off that tells names of the same second apart.
int NeemVolgnummer(Tekstblik& rest)
{
    constexpr std::size_t meesteCijfers = 6;
    if (!rest.starts_with('-'))
        return 1;
    const auto eind = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
    if (eind == 1 || eind > meesteCijfers)
        return 1;
    const auto nummer = Getal(rest.substr(1, eind - 1));
    rest.remove_prefix(eind);
    return static_cast<int>(nummer);
}

// In which span a backup was made, by number.

int Dag(const Kopienaam& kopie)
{
    return Dagnummer(Tekstblik(kopie.moment).substr(0, datumlengte)).value_or(0);
}

int Week(const Kopienaam& kopie)
{
    constexpr int vanMaandag = 3; // 1 January 1970 was a Thursday
    return (Dag(kopie) + vanMaandag) / 7;
}

int Maand(const Kopienaam& kopie)
{
    constexpr unsigned maanden = 12;
    const Tekstblik moment = kopie.moment;
    return static_cast<int>(Getal(moment.substr(0, 4)) * maanden + Getal(moment.substr(5, 2)));
}

/// Takes the backups that stay out of `zips`, the newest first: what is left may go.
std::vector<Kopienaam> NaUitdunnen(const std::vector<Kopienaam>& zips)
{
    constexpr std::array regels{std::pair(&Dag, 12), std::pair(&Week, 10), std::pair(&Maand, 9)};
    constexpr std::size_t laatste = 20;
    std::vector<Kopienaam> weg;
    auto plek = std::min(laatste, zips.size());
    for (const auto& [tijdvak, aantal] : regels) {
        for (int blijft = 0; plek < zips.size() && blijft < aantal; ++plek) {
            // The newer one beside it is of the same span: that one stands for it.
            if (tijdvak(zips[plek]) == tijdvak(zips[plek - 1]))
                weg.push_back(zips[plek]);
            else
                ++blijft;
        }
    }
    weg.insert(weg.end(), zips.begin() + static_cast<std::ptrdiff_t>(plek), zips.end());
    return weg;
}

} // namespace

std::optional<int> Dagnummer(Tekstblik datum)
{
    namespace tijd = std::chrono;
    if (!HeeftVorm(datum, "9999-99-99"))
        return std::nullopt;
    const tijd::year_month_day dag(tijd::year(static_cast<int>(Getal(datum.substr(0, 4)))),
                                   tijd::month(Getal(datum.substr(5, 2))),
                                   tijd::day(Getal(datum.substr(8, 2))));
    if (!dag.ok())
        return std::nullopt;
    return static_cast<int>(tijd::sys_days(dag).time_since_epoch().count());
}

std::optional<Kopienaam> KopienaamUit(Tekstblik naam)
{
    auto plek = Tekstblik::npos;
    for (std::size_t i = 0; i < naam.size() && plek == Tekstblik::npos; ++i) {
        if ((i == 0 || naam[i - 1] == ' ') && IsMoment(naam.substr(i, momentvorm.size())))
            plek = i;
    }
    if (plek == Tekstblik::npos)
        return std::nullopt;
    Kopienaam uit{.naam = Tekst(naam), .moment = Tekst(naam.substr(plek, momentvorm.size()))};
    Tekstblik rest = naam.substr(plek + momentvorm.size());
    uit.volgnummer = NeemVolgnummer(rest);
    if (plek == 0) {
        constexpr Tekstblik soort = ".zip";
        if (rest.size() < soort.size() + 2 || !rest.starts_with(' ') || !rest.ends_with(soort))
            return std::nullopt;
        uit.reden = rest.substr(1, rest.size() - soort.size() - 1);
        return uit;
    }
    uit.bestand = naam.substr(0, plek - 1);
    if (!IsBestand(uit.bestand) || rest != (uit.bestand == "Plexo" ? ".ini" : ".txt"))
        return std::nullopt;
    return uit;
}

std::vector<Kopienaam> Kopienamen(std::span<const Tekst> namen)
{
    std::vector<Kopienaam> uit;
    for (const Tekst& naam : namen) {
        if (auto kopie = KopienaamUit(naam))
            uit.push_back(std::move(*kopie));
    }
    std::sort(uit.begin(), uit.end(), [](const Kopienaam& een, const Kopienaam& ander) {
        return std::tie(een.moment, een.volgnummer, een.naam) >
               std::tie(ander.moment, ander.volgnummer, ander.naam);
    });
    return uit;
}

std::vector<Tekst> Uitgediend(std::span<const Tekst> namen, Tekstblik vandaag)
{
    constexpr int blijftDagen = 400;
    std::vector<Kopienaam> zips;
    std::vector<Tekst> uit;
    for (Kopienaam& kopie : Kopienamen(namen)) {
        if (kopie.IsZip())
            zips.push_back(std::move(kopie));
        else if (Dag(kopie) + blijftDagen < Dagnummer(vandaag).value_or(0))
            uit.push_back(std::move(kopie.naam));
    }
    for (Kopienaam& kopie : NaUitdunnen(zips))
        uit.push_back(std::move(kopie.naam));
    return uit;
}

} // namespace plexoran
