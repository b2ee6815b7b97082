#include "register/mappen.h"

#include <array>

#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

struct Tekstsleutel {
    Tekstblik sleutel;
    Tekst Mappen::*veld;
};

struct Getalsleutel {
    Tekstblik sleutel;
    std::int16_t Mappen::*veld;
};

constexpr std::array tekstsleutels{
    Tekstsleutel{"RVDMAP=", &Mappen::RVDMAP}, Tekstsleutel{"APPEXE=", &Mappen::APPEXE},
    Tekstsleutel{"ZITMAP=", &Mappen::ZITMAP}, Tekstsleutel{"ADMMAP=", &Mappen::ADMMAP},
    Tekstsleutel{"INDMAP=", &Mappen::INDMAP}, Tekstsleutel{"SPEMAP=", &Mappen::SPEMAP},
    Tekstsleutel{"COMMAP=", &Mappen::COMMAP}, Tekstsleutel{"DFIMPG=", &Mappen::DFIMPG},
    Tekstsleutel{"WINMAP=", &Mappen::WINMAP}, Tekstsleutel{"ODKEYS=", &Mappen::ODKEYS},
};

constexpr std::array getalsleutels{
    Getalsleutel{"NEWPAGR=", &Mappen::NEWPAGR},
    Getalsleutel{"NBB28UIT=", &Mappen::NBB28UIT},
};

bool BegintMet(Tekstblik regel, Tekstblik sleutel)
{
    return regel.size() >= sleutel.size() &&
           Hoofdletters(regel.substr(0, sleutel.size())) == sleutel;
}

std::string Bezwaar(Tekstblik inhoud)
{
    if (inhoud.starts_with("\xEF\xBB\xBF"))
        return "het is opgeslagen als UTF-8, en het merkteken daarvan staat voor de eerste regel";
    if (inhoud.find('\0') != Tekstblik::npos)
        return "er staan NUL-tekens in";
    return {};
}

void NeemRegel(Mappen& mappen, Tekstblik regel)
{
    for (const auto& [sleutel, veld] : tekstsleutels) {
        if (BegintMet(regel, sleutel))
            mappen.*veld = regel.substr(sleutel.size());
    }
    for (const auto& [sleutel, veld] : getalsleutels) {
        if (BegintMet(regel, sleutel))
            mappen.*veld = Geheel16(regel.substr(sleutel.size())).value_or(0);
    }
}

} // namespace

Pad MappenIniPad(const Pad& programmamap)
{
    constexpr Tekstblik naam = "Mappen.ini";
    if (programmamap.find("Admin") == Pad::npos)
        return Samen(programmamap, naam);
    // Elsewhere than on Windows the program's folder comes with the system's own separator.
    const auto scheiding = programmamap.find_last_of("\\/");
    return programmamap.substr(0, scheiding == Pad::npos ? 0 : scheiding + 1).append(naam);
}

Mappen MappenUit(Tekstblik inhoud)
{
    Mappen mappen;
    for (const Tekstblik regel : Regels(inhoud))
        NeemRegel(mappen, regel);
    mappen.bezwaar = Bezwaar(inhoud);
    return mappen;
}

Uitkomst<Mappen> LeesMappenIni(Schijf& schijf, const Pad& pad)
{
    return schijf.LeesBestand(pad).and_then([&](const Tekst& inhoud) -> Uitkomst<Mappen> {
        Mappen mappen = MappenUit(inhoud);
        if (mappen.SPEMAP.empty())
            return Mislukt({.soort = Foutsoort::Beschadigd,
                            .bestand = schijf.Toonpad(pad),
                            .systeem = mappen.bezwaar});
        return mappen;
    });
}

} // namespace plexoran
