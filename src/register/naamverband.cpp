#include "register/naamverband.h"

#include <algorithm>
#include <set>

namespace plexoran {
namespace {

Tekstblik NeemWoord(Tekstblik& woorden)
{
    const Tekstblik woord = woorden.substr(0, woorden.find(' '));
    woorden.remove_prefix(std::min(woord.size() + 1, woorden.size()));
    return woord;
}

/// The last word is never a particle.
Tekstblik ZonderTussenvoegsel(Tekstblik woorden)
{
    static const std::set<Tekstblik> tussenvoegsels{
        "AAN", "D", "DE", "DEN", "DER", "DU",  "HET", "IN",  "L",  "LA",  "LE", "OP",
        "S",   "T", "TE", "TEN", "TER", "TOT", "V",   "VAN", "VD", "VON", "ZU", "ZUR"};
    for (Tekstblik rest = woorden; tussenvoegsels.contains(NeemWoord(rest)) && !rest.empty();)
        woorden = rest;
    return woorden;
}

bool IsAfgekort(Tekstblik voornaam, Tekstblik woorden)
{
    bool letters = !woorden.empty();
    for (std::size_t i = 1; i < woorden.size(); i += 2)
        letters = letters && woorden[i] == ' ';
    return letters || voornaam.find('.') != Tekstblik::npos;
}

/// Nothing where there are too few digits to tell anybody apart.
Tekst Cijfers(Tekstblik cel, std::size_t minstens)
{
    Tekst uit;
    std::ranges::copy_if(cel, std::back_inserter(uit), IsCijfer);
    for (const Tekstblik land : {"0031", "31"}) {
        if (uit.starts_with(land) && uit.size() > 10)
            uit.erase(0, land.size() - 1).front() = '0';
    }
    return uit.size() < minstens ? Tekst() : uit;
}

/// Whether the first names can be one: initials stand for what begins so, names that only one of
/// them has do not count.
bool PassenVoornamen(const Wie& een, const Wie& ander)
{
    for (Tekstblik links = een.voor, rechts = ander.voor; !links.empty() && !rechts.empty();) {
        const Tekstblik woord = NeemWoord(links);
        const Tekstblik naast = NeemWoord(rechts);
        if (woord != naast && !(een.afgekort && naast.starts_with(woord)) &&
            !(ander.afgekort && woord.starts_with(naast)))
            return false;
    }
    return true;
}

/// Father and son, or a man and a woman: with the same name in full M or V may be mistyped.
bool ZijnAnderen(const Wie& een, const Wie& ander)
{
    return een.junior != ander.junior ||
           (een.geslacht != ander.geslacht && !een.geslacht.empty() && !ander.geslacht.empty() &&
            (een.afgekort || ander.afgekort || een.voor != ander.voor));
}

bool IsJunior(const Tekst& woorden)
{
    return woorden.find(" JR ") != Tekst::npos || woorden.find(" JUNIOR ") != Tekst::npos;
}

/// Kees is Cees.
char Beginletter(const Wie& wie)
{
    const char letter = wie.voor.empty() ? ' ' : wie.voor.front();
    return letter == 'C' ? 'K' : letter;
}

} // namespace

Wie WieIs(const Spelertabel& tabel, int rij)
{
    constexpr std::size_t kortsteTelefoon = 6;
    const auto cel = [&](Kolom kolom) { return ZonderSpaties(tabel.Cel(rij, kolom)); };
    Wie uit;
    uit.gespeld = VolleNaam(tabel, rij);
    const Tekst vol = KaleWoorden(uit.gespeld) + ' ';
    uit.vol = MerkVan(vol);
    uit.junior = IsJunior(vol);
    for (const Kolom vrij : {Kolom::Div1, Kolom::Div2})
        uit.junior =
            uit.junior || (!cel(vrij).empty() && IsJunior(' ' + KaleWoorden(cel(vrij)) + ' '));
    uit.groep = MerkVan(tabel.Cel(rij, Kolom::Groep));
    uit.geslacht = Hoofdletters(cel(Kolom::MV));
    uit.voor = KaleWoorden(cel(Kolom::Voornaam));
    uit.afgekort = IsAfgekort(cel(Kolom::Voornaam), uit.voor);
    if (!uit.afgekort)
        uit.voor = ZonderTussenvoegsel(uit.voor);
    uit.kern = ZonderTussenvoegsel(KaleWoorden(cel(Kolom::Achternaam)));
    uit.heel = uit.voor + ' ' + uit.kern;
    if (cel(Kolom::Email).find('@') != Tekstblik::npos)
        uit.mail = MerkVan(Hoofdletters(cel(Kolom::Email)));
    uit.telefoon = MerkVan(Cijfers(cel(Kolom::Telef), kortsteTelefoon));
    const Tekst nummer = AlsGetal(cel(Kolom::NBBnr), 1).value_or(Tekst(cel(Kolom::NBBnr)));
    uit.nbbnr = nummer == "0" ? 0 : MerkVan(nummer);
    return uit;
}

bool ScheeltEenLetter(Tekstblik een, Tekstblik ander)
{
    while (!een.empty() && !ander.empty() && een.front() == ander.front()) {
        een.remove_prefix(1);
        ander.remove_prefix(1);
    }
    const auto cijfer = [](Tekstblik rest) { return !rest.empty() && IsCijfer(rest.front()); };
    if (cijfer(een) || cijfer(ander))
        return false;
    if (een.empty() || ander.empty())
        return een.size() + ander.size() == 1;
    const Tekstblik na = een.substr(1);
    const Tekstblik naAnder = ander.substr(1);
    return na == naAnder || na == ander || een == naAnder ||
           (!na.empty() && !naAnder.empty() && een.front() == naAnder.front() &&
            na.front() == ander.front() && na.substr(1) == naAnder.substr(1));
}

bool LijkenVoornamen(const Wie& een, const Wie& ander)
{
    return !ZijnAnderen(een, ander) &&
           (PassenVoornamen(een, ander) ||
            (!een.afgekort && !ander.afgekort && Beginletter(een) == Beginletter(ander) &&
             ScheeltEenLetter(een.voor, ander.voor)));
}

bool LijkenAchternamen(const Wie& een, const Wie& ander)
{
    const auto in = [](const Wie& kort, const Wie& lang) {
        return (' ' + lang.kern + ' ').find(' ' + kort.kern + ' ') != Tekst::npos;
    };
    return in(een, ander) || in(ander, een) || ScheeltEenLetter(een.kern, ander.kern);
}

std::optional<Dubbelreden> Naamverband(const Wie& een, const Wie& ander)
{
    if (ZijnAnderen(een, ander))
        return std::nullopt;
    if (een.vol == ander.vol)
        return een.gespeld == ander.gespeld ||
                       Hoofdletters(een.gespeld) == Hoofdletters(ander.gespeld)
                   ? Dubbelreden::Naam
                   : Dubbelreden::Accent;
    if (een.heel == ander.heel)
        return Dubbelreden::Tussenvoegsel;
    if (een.voor == ander.kern && een.kern == ander.voor)
        return Dubbelreden::Omgewisseld;
    if (een.voor.empty() != ander.voor.empty())
        return std::nullopt;
    const bool afgekort = een.afgekort || ander.afgekort;
    if (afgekort && een.kern == ander.kern && PassenVoornamen(een, ander))
        return Dubbelreden::Voorletter;
    if ((!afgekort || een.voor == ander.voor) && ScheeltEenLetter(een.heel, ander.heel))
        return Dubbelreden::EenLetter;
    return std::nullopt;
}

} // namespace plexoran
