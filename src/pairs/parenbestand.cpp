#include "pairs/parenbestand.h"

#include <algorithm>
#include <unordered_set>

#include "pairs/paarregel.h"
#include "platform/tekst/regels.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

constexpr std::size_t Tekenlengte = 13;
constexpr std::size_t Streep = 6; // where it stands in a token

/// Calls `stuk` with every piece between the "#" of the last line.
template <class Stuk> void LoopDoorStukken(Tekstblik inhoud, const Stuk& stuk)
{
    Tekstblik laatste;
    for (const Tekstblik regel : Regels(inhoud))
        laatste = regel;
    for (;;) {
        const auto hekje = laatste.find('#');
        stuk(laatste.substr(0, hekje));
        if (hekje == Tekstblik::npos)
            return;
        laatste.remove_prefix(hekje + 1);
    }
}

Tekst Paarteken(Tekstblik key1, Tekstblik key2)
{
    return Tekst(key1).append("-").append(key2);
}

} // namespace

Pad Parenmap(const Mappen& mappen)
{
    return Samen(mappen.SPEMAP, "Parenmap");
}

Tekst GeweigerdeTekens(Tekstblik keuze)
{
    constexpr Tekstblik verboden = "\\/:*?\"<>|";
    Tekst tekens;
    for (const char teken : keuze) {
        const bool stuurteken = static_cast<unsigned char>(teken) < 0x20;
        if ((stuurteken || verboden.find(teken) != Tekstblik::npos) &&
            tekens.find(teken) == Tekst::npos)
            tekens += teken;
    }
    return tekens;
}

std::optional<Pad> Parenbestand(const Mappen& mappen, Tekstblik keuze)
{
    if (!GeweigerdeTekens(keuze).empty())
        return std::nullopt;
    return Samen(Parenmap(mappen), keuze) + ".txt";
}

Paartekens PaartekensUit(Tekstblik inhoud)
{
    Paartekens paren;
    LoopDoorStukken(inhoud, [&](Tekstblik stuk) {
        if (stuk.size() == Tekenlengte)
            paren.emplace_back(stuk);
    });
    return paren;
}

bool IsParenbestand(Tekstblik inhoud)
{
    const auto regels = Regels(inhoud);
    auto tweede = regels.begin();
    bool alleenParen = tweede == regels.end() || ++tweede == regels.end();
    LoopDoorStukken(inhoud, [&](Tekstblik stuk) {
        const bool paar = stuk.size() == Tekenlengte && stuk[Streep] == '-';
        alleenParen = alleenParen && (stuk.empty() || paar);
    });
    return alleenParen;
}

Uitkomst<Parenlezing> LeesParenbestand(Schijf& schijf, const Mappen& mappen, Tekstblik keuze)
{
    const auto pad = Parenbestand(mappen, keuze);
    if (!pad)
        return Parenlezing();
    return LeesAlsErIs(schijf, *pad).map([](std::optional<Tekst> inhoud) {
        Paartekens paren = inhoud ? PaartekensUit(*inhoud) : Paartekens();
        return Parenlezing{std::move(paren), std::move(inhoud)};
    });
}

std::optional<Tekst> ParenTekst(std::span<const Tekst> regels)
{
    Tekst tekst;
    for (const Tekst& regel : regels) {
        if (Plusplek(regel) == Tekst::npos)
            return std::nullopt;
        tekst += Paarteken(LinkerSpeler(regel).key, RechterSpeler(regel).key) + "#";
    }
    return tekst + "\r\n";
}

Uitkomst<void> BewaarParen(Schijf& schijf, const Mappen& mappen, Tekstblik keuze,
                           std::span<const Tekst> regels, const std::optional<Tekst>& gelezen)
{
    if (regels.empty())
        return {};
    const auto tekst = ParenTekst(regels);
    const auto pad = Parenbestand(mappen, keuze);
    if (!tekst || !pad)
        return Mislukt({.soort = tekst ? Foutsoort::Geweigerd : Foutsoort::Beschadigd});
    const auto magWeg = [&](Tekstblik oud) { return gelezen == oud && IsParenbestand(oud); };
    return VervangMetKopie(schijf, mappen.SPEMAP, *pad, *tekst, magWeg);
}

Uitkomst<Paartekens> ImporteerRVDparen(Schijf& schijf, const Mappen& mappen, Tekstblik groepscode,
                                       Tekstblik subgroep, const Spelertabel& tabel)
{
    const auto inhoud = LeesAlsErIs(schijf, Samen(mappen.SPEMAP, "RVDparen.txt"));
    if (!inhoud)
        return Mislukt(inhoud);
    const Tekst gezocht = Hoofdletters(subgroep);
    std::unordered_set<Tekstblik> aanwezig;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == CodeUit(groepscode) &&
            Hoofdletters(tabel.Cel(rij, Kolom::NBBgr)) == gezocht)
            aanwezig.insert(tabel.Cel(rij, Kolom::Key));
    }
    Paartekens paren;
    for (const Tekst& paar : PaartekensUit(inhoud->value_or(Tekst()))) {
        if (aanwezig.contains(Eerste6(paar)) && aanwezig.contains(Laatste6(paar)))
            paren.push_back(Paarteken(Eerste6(paar), Laatste6(paar)));
    }
    return paren;
}

} // namespace plexoran
