#include "register/aanwezigheid.h"

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr Tekstblik Voorvoegsel = "Aanwezig ";
constexpr std::int64_t Seconde = 1'000'000'000;
constexpr std::int64_t Weg = 120 * Seconde;
constexpr std::int64_t Oud = 86'400 * Seconde;

} // namespace

Aanwezigheid::Aanwezigheid(Schijf& schijf, const Mappen& mappen, Tekst computer, Tekst gebruiker)
    : schijf_(schijf), map_(mappen.SPEMAP), zelf_{std::move(computer), std::move(gebruiker),
                                                  Tijdtekst("dd-MM-yyyy HH:mm")},
      naam_(Tekst(Voorvoegsel) + AlsBestandsnaam(zelf_.computer) + " " +
            AlsBestandsnaam(zelf_.gebruiker) + ".txt")
{}

Aanwezigheid::~Aanwezigheid()
{
    static_cast<void>(schijf_.Verwijder(Samen(map_, naam_)));
}

void Aanwezigheid::Meld()
{
    static_cast<void>(
        SchrijfHeel(schijf_, Samen(map_, naam_),
                    zelf_.computer + "\r\n" + zelf_.gebruiker + "\r\n" + zelf_.sinds + "\r\n",
                    Houdbaarheid::Vluchtig));
}

std::vector<Aanwezige> Aanwezigheid::Anderen() const
{
    std::vector<Aanwezige> uit;
    const auto eigen = schijf_.NeemStempel(Samen(map_, naam_));
    const std::int64_t nu = eigen ? eigen->tijd : Nu();
    for (const Tekst& naam : schijf_.Bestanden(map_).value_or(std::vector<Tekst>())) {
        if (!naam.starts_with(Voorvoegsel) || !naam.ends_with(".txt") || naam == naam_)
            continue;
        const Pad pad = Samen(map_, naam);
        const auto stempel = schijf_.NeemStempel(pad);
        if (!stempel || nu - stempel->tijd > Weg) {
            if (stempel && nu - stempel->tijd > Oud)
                static_cast<void>(schijf_.Verwijder(pad));
            continue;
        }
        const Tekst inhoud = LeesBegrensd(schijf_, pad).value_or(Tekst());
        const auto regels = Regels(inhoud);
        if (regels.size() == 3)
            uit.push_back({Tekst(regels[0]), Tekst(regels[1]), Tekst(regels[2])});
    }
    return uit;
}

} // namespace plexoran
