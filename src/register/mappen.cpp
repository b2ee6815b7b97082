#include "register/mappen.h"

#include <utility>

#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

constexpr std::pair<Tekstblik, Tekst Mappen::*> tekstsleutels[] = {
    {"RVDMAP=", &Mappen::RVDMAP}, {"APPEXE=", &Mappen::APPEXE}, {"ZITMAP=", &Mappen::ZITMAP},
    {"ADMMAP=", &Mappen::ADMMAP}, {"INDMAP=", &Mappen::INDMAP}, {"SPEMAP=", &Mappen::SPEMAP},
    {"COMMAP=", &Mappen::COMMAP}, {"DFIMPG=", &Mappen::DFIMPG}, {"WINMAP=", &Mappen::WINMAP},
    {"ODKEYS=", &Mappen::ODKEYS}};

constexpr std::pair<Tekstblik, std::int16_t Mappen::*> getalsleutels[] = {
    {"NEWPAGR=", &Mappen::NEWPAGR}, {"NBB28UIT=", &Mappen::NBB28UIT}};

bool BegintMet(Tekstblik regel, Tekstblik sleutel)
{
    return Hoofdletters(regel.substr(0, sleutel.size())) == sleutel;
}

std::string Bezwaar(Tekstblik inhoud)
{
    if (inhoud.starts_with("\xEF\xBB\xBF"))
        return "het is opgeslagen als UTF-8, en het merkteken daarvan staat voor de eerste regel";
    if (inhoud.find('\0') != Tekstblik::npos)
        return "er staan NUL-tekens in";
    return {};
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
    for (const Tekstblik regel : Regels(inhoud)) {
        for (const auto& [sleutel, veld] : tekstsleutels) {
            if (BegintMet(regel, sleutel))
                mappen.*veld = regel.substr(sleutel.size());
        }
        for (const auto& [sleutel, veld] : getalsleutels) {
            if (BegintMet(regel, sleutel))
                mappen.*veld = Geheel16(regel.substr(sleutel.size())).value_or(0);
        }
    }
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
        mappen.bestand = pad;
        return mappen;
    });
}

Uitkomst<std::vector<Tekst>> Parenbestanden(Schijf& schijf, const Mappen& mappen)
{
    return AlsErIs(schijf.Bestanden(mappen.Parenmap())).map([](auto gevonden) {
        auto namen = std::move(gevonden).value_or(std::vector<Tekst>());
        std::erase_if(namen,
                      [](const Tekst& naam) { return !Hoofdletters(naam).ends_with(".TXT"); });
        return namen;
    });
}

} // namespace plexoran
