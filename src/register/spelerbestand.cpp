#include "register/spelerbestand.h"

#include <algorithm>
#include <limits>

#include "platform/schijf/schijf.h"
#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

constexpr std::size_t eersteIngaveveld = Index(Kolom::Voornaam);

/// The text from its first line that holds anything on. A player whose row number alone is blank
/// gets one: without that field the line would be too short; the number is only its place.
Tekst SpelersZonderBlancoBegin(Tekstblik oud)
{
    for (const Tekstblik regel : Regels(oud)) {
        if (ZonderBlancoBegin(regel).empty())
            continue;
        const Tekstblik vanaf = oud.substr(static_cast<std::size_t>(regel.data() - oud.data()));
        const auto kommas = std::count(regel.begin(), regel.end(), ',');
        return IsBlanco(EersteItem(regel)) && kommas >= AantalKolommen - 1
                   ? Tekst("1").append(vanaf.substr(vanaf.find(',')))
                   : Tekst(ZonderBlancoBegin(vanaf));
    }
    return {};
}

} // namespace

Aanmaak MaakSpelerbestand(Schijf& schijf, const Mappen& mappen, Register& spelers)
{
    if (auto map = schijf.MaakMap(mappen.SPEMAP); !map)
        return {.gemaakt = std::move(map)};
    Register leeg;
    leeg.HKEY = Sleutelbasis;
    Aanmaak uit = MaakBestand(schijf, mappen.SPEMAP, mappen.Spelerbestand(), SpelersTekst(leeg));
    uit.inhoud = SpelersZonderBlancoBegin(uit.inhoud);
    if (!uit.nieuw.empty() && StaatOpSchijf(uit.gemaakt))
        spelers.HKEY = Sleutelbasis;
    return uit;
}

Leesverslag LeesSpelers(Schijf& schijf, const Mappen& mappen, Register& spelers)
{
    const Pad pad = mappen.Spelerbestand();
    Leesverslag verslag;
    auto inhoud = schijf.LeesBestand(pad);
    if (!inhoud) {
        verslag.fout = inhoud.error();
        return verslag;
    }
    if (spelers.gelezen != *inhoud)
        spelers.gelezen = *inhoud;
    Spelerlezing lezing = SpelersUit(std::move(*inhoud));
    static_cast<Leesbevinding&>(verslag) = lezing;
    verslag.tabelVervangen = lezing.tabel.has_value();
    if (lezing.tabel)
        spelers.tabel = std::move(*lezing.tabel);
    spelers.HKEY = lezing.HKEY.value_or(spelers.HKEY);
    spelers.kopieNodig = lezing.verliest;
    if (verslag.fout)
        verslag.fout->bestand = schijf.Toonpad(pad);
    return verslag;
}

Tekst SpelersTekst(const Register& spelers)
{
    const Spelertabel& tabel = spelers.tabel;
    Tekst tekst;
    tekst.reserve(tabel.AantalBytes() + tabel.AantalBytes() / 8);
    tekst += "HKEY=" + std::to_string(spelers.HKEY) + "\r\n";
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Key).empty())
            continue;
        tekst += std::to_string(rij);
        tekst += ',';
        tabel.VoegCellenAan(tekst, rij);
        tekst += "\r\n";
    }
    return tekst;
}

Uitkomst<void> SchrijfSpelers(Schijf& schijf, const Mappen& mappen, Register& spelers,
                              Overschrijven overschrijven)
{
    if (spelers.tabel.Rijen() == 0)
        return {};
    if (spelers.HKEY < Sleutelbasis)
        spelers.HKEY = Sleutelbasis;

    const Pad pad = mappen.Spelerbestand();
    std::optional<Tekst> anders; // what somebody else made of the file
    if (overschrijven == Overschrijven::OokGewijzigd) {
        auto nu = AlsErIs(schijf.LeesBestand(pad));
        if (!nu)
            return Mislukt(nu);
        anders = std::move(*nu);
    }
    const bool isEigen = overschrijven == Overschrijven::AlleenEigen || anders == spelers.gelezen;
    const std::optional<Tekst>& oud = isEigen ? spelers.gelezen : anders; // it may be large
    const bool kopieNodig = spelers.kopieNodig || !isEigen;
    if (oud && kopieNodig && spelers.gekopieerd != oud) { // or else before a save that failed
        const auto kopie = MaakReservekopie(schijf, mappen.SPEMAP, pad, *oud);
        if (!kopie)
            return Mislukt(kopie);
        spelers.gekopieerd = oud;
    }
    Tekst nieuw = SpelersTekst(spelers);
    auto uitkomst = VervangOngewijzigd(schijf, pad, nieuw, oud);
    if (StaatOpSchijf(uitkomst)) {
        spelers.kopieNodig = false;
        spelers.gelezen = std::move(nieuw);
    }
    return uitkomst;
}

std::optional<std::int32_t> NieuweSleutel(Register& spelers)
{
    if (spelers.HKEY == 0)
        spelers.HKEY = Sleutelbasis;
    if (spelers.HKEY == std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return ++spelers.HKEY;
}

Fout RegelVanHKEY(Schijf& schijf, const Mappen& mappen)
{
    const Pad pad = mappen.Spelerbestand();
    Fout plek{.bestand = schijf.Toonpad(pad)};
    const Tekst inhoud = schijf.LeesBestand(pad).value_or(Tekst());
    int nummer = 0;
    for (const Tekstblik regel : Regels(inhoud)) {
        ++nummer;
        if (regel.starts_with("HKEY="))
            plek.regel = nummer;
    }
    return plek;
}

std::int32_t HoogsteSleutel(const Spelertabel& tabel)
{
    std::int32_t hoogste = 0;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        hoogste = std::max(hoogste, Geheel32(tabel.Cel(rij, Kolom::Key)).value_or(0));
    return hoogste < Sleutelbasis ? 0 : hoogste;
}

bool ZijnErSleutels(const Register& spelers, std::size_t aantal)
{
    const std::int64_t over = std::int64_t{std::numeric_limits<std::int32_t>::max()} -
                              (spelers.HKEY == 0 ? Sleutelbasis : spelers.HKEY);
    return over >= static_cast<std::int64_t>(aantal);
}

bool VoegSpelerToe(Register& spelers, Tekstblik groeptekst, const Rijvelden& velden)
{
    const auto sleutel = NieuweSleutel(spelers);
    if (!sleutel)
        return false;
    Rijvelden rij;
    rij[Index(Kolom::Nr)] = std::to_string(spelers.tabel.Rijen() + 1);
    rij[Index(Kolom::Key)] = std::to_string(*sleutel);
    rij[Index(Kolom::Groep)] = CodeUit(groeptekst);
    for (std::size_t i = eersteIngaveveld; i < rij.size(); ++i)
        rij[i] = ZonderSpaties(velden[i]);
    spelers.tabel.VoegToe(rij);
    return true;
}

void WijzigSpeler(Register& spelers, int rij, const Rijvelden& velden)
{
    Rijvelden nieuw = spelers.tabel.Velden(rij);
    nieuw[Index(Kolom::Groep)] = CodeUit(velden[Index(Kolom::Groep)]);
    for (std::size_t i = eersteIngaveveld; i < nieuw.size(); ++i)
        nieuw[i] = velden[i];
    spelers.tabel.ZetRij(rij, nieuw);
}

} // namespace plexoran
