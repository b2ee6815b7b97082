#include "dialogs/toevoegen.h"

#include <algorithm>

#include "platform/schijf/schijf.h"
#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"
#include "sessions/sessiemappen.h"

namespace plexoran {
namespace {

constexpr Tekstblik Spelersnaam = "Spelers.txt";
constexpr Tekstblik Verslagnaam = "Koppelverslag.txt";
constexpr std::size_t LengteKey = 6;

Pad Zittingmap(const Mappen& mappen, Tekstblik zitting)
{
    return Samen(Zittingenmap(mappen), zitting);
}

Pad Clubnaampad(const Mappen& mappen)
{
    return Samen(mappen.RVDMAP, "Puntenboek\\Rev_Clubnaam.txt");
}

bool IsSleutelwoord(Tekstblik woord)
{
    return woord.size() == LengteKey && std::all_of(woord.begin(), woord.end(), IsCijfer);
}

/// Without the words of six digits at its ends.
Tekstblik ZonderKeys(Tekstblik naam)
{
    naam = ZonderSpaties(naam);
    while (IsSleutelwoord(naam.substr(0, naam.find(' '))))
        naam = ZonderSpaties(naam.substr(LengteKey));
    while (IsSleutelwoord(naam.substr(naam.rfind(' ') + 1)))
        naam = ZonderSpaties(naam.substr(0, naam.size() - LengteKey));
    return naam;
}

/// What stands between the first and the last word is the particle; a single word is a surname.
Sessiespeler Ontleed(Tekstblik naam, Tekstblik paar)
{
    const auto eerste = naam.find(' ');
    if (eerste == Tekstblik::npos)
        return {{}, {}, Tekst(naam), Tekst(paar)};
    const auto laatste = naam.rfind(' ');
    return {Tekst(naam.substr(0, eerste)),
            Tekst(ZonderSpaties(naam.substr(eerste, laatste - eerste))),
            Tekst(naam.substr(laatste + 1)), Tekst(paar)};
}

/// An item without "-" holds one name; the second player is nobody then.
Helften NamenVan(const Lijstpaar& paar, Tekstblik item)
{
    constexpr Tekstblik zitUit = "STIL ZIT";
    if (Hoofdletters(item).find("STILZIT") != Tekst::npos)
        return {zitUit, zitUit};
    return SplitsHelften(paar.spelers).value_or(Helften{paar.spelers, {}});
}

/// Of a link file; lines of another form tell nothing.
std::int32_t HoogsteKeyIn(Tekstblik verslag)
{
    std::int32_t hoogste = 0;
    for (const Tekstblik regel : Regels(verslag)) {
        const auto paar = PaarUit(regel);
        const auto keys = paar ? SplitsHelften(paar->spelers) : std::nullopt;
        for (const Tekstblik key : {keys ? keys->eerste : "", keys ? keys->tweede : ""}) {
            if (std::all_of(key.begin(), key.end(), IsCijfer))
                hoogste = std::max(hoogste, Geheel32(key).value_or(0));
        }
    }
    return hoogste;
}

bool IsAfwezig(Tekstblik naam)
{
    return naam.starts_with("Afw") || naam == "AFW";
}

} // namespace

Pad Zittingenmap(const Mappen& mappen)
{
    return Samen(mappen.RVDMAP, "Zittingen");
}

Uitkomst<std::vector<Tekst>> RevZittingen(Schijf& schijf, const Mappen& mappen)
{
    if (mappen.RVDMAP.empty())
        return std::vector<Tekst>();
    auto namen = schijf.Mappen(Zittingenmap(mappen));
    if (!namen && namen.error().soort == Foutsoort::Ontbreekt)
        return std::vector<Tekst>();
    if (!namen)
        return namen;
    std::erase_if(*namen, [](const Tekst& naam) { return !Hoofdletters(naam).ends_with("_REV"); });
    Sorteer(*namen);
    return namen;
}

Uitkomst<Tekst> LeesClubnaam(Schijf& schijf, const Mappen& mappen)
{
    return LeesAlsErIs(schijf, Clubnaampad(mappen)).map([](const std::optional<Tekst>& inhoud) {
        const auto regels = Regels(inhoud ? Tekstblik(*inhoud) : Tekstblik());
        const auto eerste = regels.begin();
        return eerste == regels.end() ? Tekst() : Tekst(ZonderSpaties(*eerste));
    });
}

Uitkomst<void> HaalSpelerslijst(Schijf& schijf, const Mappen& mappen, Tekstblik zitting)
{
    const auto club = LeesClubnaam(schijf, mappen);
    if (!club)
        return Mislukt(club);
    if (club->empty())
        return {};
    if (!IsKaleNaam(*club))
        return Mislukt(GeenNaam(*club, schijf.Toonpad(Clubnaampad(mappen))));
    // The name of the session is that of its folder without "_Rev", which comes behind it again.
    const Tekst kaal(zitting.substr(0, zitting.size() - Tekstblik("_Rev").size()));
    const auto bron = LeesAlsErIs(
        schijf, Samen(mappen.RVDMAP, "Puntenboek\\" + *club + '_' + kaal + "_Rev\\Spelers.txt"));
    if (!bron)
        return Mislukt(bron);
    if (!*bron)
        return {};
    const Pad doel = Samen(Zittingmap(mappen, zitting), Spelersnaam);
    const auto oud = LeesAlsErIs(schijf, doel);
    if (oud && *oud == *bron)
        return {};
    return VervangOngewijzigd(schijf, doel, **bron, oud.value_or(std::nullopt));
}

Tekst Toevoegregel(const Sessiespeler& speler)
{
    return AlsVeld(speler.voornaam) + ',' + AlsVeld(speler.tusv) + ',' +
           AlsVeld(speler.achternaam) + ',' + AlsVeld(speler.paar);
}

Sessiespelers SessiespelersUit(Tekstblik inhoud)
{
    Sessiespelers uit;
    bool eerste = true;
    for (const Tekstblik regel : Regels(inhoud)) {
        Itemlezer items(regel);
        for (auto item = items.Volgend(); item && !uit.IsTeVeel(); item = items.Volgend()) {
            const auto paar = PaarUit(item->tekst);
            if (!paar)
                continue;
            const Helften namen = NamenVan(*paar, item->tekst);
            for (const Tekstblik naam : {namen.eerste, namen.tweede}) {
                const Tekstblik kaal = ZonderKeys(naam);
                uit.metKeys = uit.metKeys || (eerste && kaal.size() != naam.size());
                uit.spelers.push_back(Ontleed(kaal, paar->code));
            }
            eerste = false;
        }
    }
    return uit;
}

Uitkomst<Sessiespelers> LeesSessieSpelers(Schijf& schijf, const Mappen& mappen, Tekstblik zitting)
{
    const Pad pad = Samen(Zittingmap(mappen, zitting), Spelersnaam);
    const auto inhoud = LeesAlsErIs(schijf, pad);
    if (!inhoud)
        return Mislukt(inhoud);
    Sessiespelers uit = SessiespelersUit(inhoud->value_or(Tekst()));
    if (uit.IsTeVeel())
        return Mislukt({.soort = Foutsoort::Beschadigd,
                        .bestand = schijf.Toonpad(pad),
                        .systeem = TeVeelNamen});
    return uit;
}

bool IsNiemand(const Sessiespeler& speler)
{
    if (speler.voornaam.empty() && (speler.achternaam.empty() || IsAfwezig(speler.achternaam)))
        return true;
    return IsAfwezig(speler.voornaam) || (speler.voornaam == "STIL" && speler.achternaam == "ZIT");
}

std::optional<Tekst> VoegSpelersToe(Register& spelers, const std::vector<Sessiespeler>& namen)
{
    const std::int32_t oud = spelers.HKEY;
    if (spelers.HKEY == 0)
        spelers.HKEY = HoogsteSleutel(spelers.tabel);
    const auto aantal = std::count_if(namen.begin(), namen.end(),
                                      [](const Sessiespeler& naam) { return !IsNiemand(naam); });
    if (!ZijnErSleutels(spelers, static_cast<std::size_t>(aantal))) {
        spelers.HKEY = oud;
        return std::nullopt;
    }
    Tekst verslag;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        Tekst key = "0";
        if (!IsNiemand(namen[i])) {
            key = std::to_string(NieuweSleutel(spelers).value());
            spelers.tabel.VoegToe({std::to_string(spelers.tabel.Rijen() + 1), key,
                                   Tekst(Toevoeggroep), namen[i].voornaam, namen[i].tusv,
                                   namen[i].achternaam});
        }
        if (i % 2 == 0)
            verslag.append(namen[i].paar).append(" ").append(key);
        else
            verslag.append(" - ").append(key).append("\r\n");
    }
    return verslag;
}

Koppelverslag::Koppelverslag(Schijf& schijf, const Mappen& mappen, Tekstblik zitting, Tekst tekst)
    : schijf_(schijf), map_(Zittingmap(mappen, zitting)), pad_(Samen(map_, Verslagnaam)),
      tekst_(std::move(tekst))
{}

/// What another program writes meanwhile is what stood there before.
Uitkomst<void> Koppelverslag::Schrijf()
{
    constexpr int pogingen = 20;
    for (int poging = 1;; ++poging) {
        if (!staat_ || poging > 1) {
            auto oud = LeesAlsErIs(schijf_, pad_);
            if (!oud)
                return Mislukt(oud);
            oud_ = std::move(*oud);
            nu_ = oud_;
            staat_ = true;
        }
        RuimTijdelijkeOp(schijf_, map_, Verslagnaam);
        auto geschreven = VervangOngewijzigd(schijf_, pad_, tekst_, nu_);
        bij_ = StaatOpSchijf(geschreven);
        if (bij_)
            nu_ = tekst_;
        if (bij_ || geschreven.error().soort != Foutsoort::Gewijzigd || poging == pogingen)
            return geschreven;
    }
}

void Koppelverslag::Hernummer(const std::deque<Hernummering>& keys)
{
    for (const auto& [was, nu] : keys) { // the new ones are above all old ones
        const auto plek = tekst_.find(" " + was);
        if (plek == Tekst::npos)
            continue;
        tekst_.replace(plek + 1, was.size(), nu);
        bij_ = false;
    }
}

Uitkomst<void> Koppelverslag::ZetTerug()
{
    if (!staat_)
        return {};
    const auto verwijder = [this]() -> Uitkomst<void> {
        const auto nu = LeesAlsErIs(schijf_, pad_);
        if (!nu)
            return Mislukt(nu);
        if (*nu && *nu != nu_)
            return Mislukt({.soort = Foutsoort::Gewijzigd, .bestand = schijf_.Toonpad(pad_)});
        return VerwijderBlijvend(schijf_, pad_);
    };
    auto terug = oud_ ? VervangOngewijzigd(schijf_, pad_, *oud_, nu_) : verwijder();
    if (!terug && !oud_ && terug.error().soort == Foutsoort::Ontbreekt)
        terug = {};
    staat_ = !StaatOpSchijf(terug);
    return terug;
}

std::vector<Pad> VerslagenMetLosseSleutels(Schijf& schijf, const Mappen& mappen, std::int32_t HKEY)
{
    std::vector<Pad> uit;
    for (const Tekst& zitting : RevZittingen(schijf, mappen).value_or(std::vector<Tekst>())) {
        const Pad pad = Samen(Zittingmap(mappen, zitting), Verslagnaam);
        const auto verslag = LeesBegrensd(schijf, pad);
        if (verslag && HoogsteKeyIn(*verslag) > HKEY)
            uit.push_back(pad);
    }
    return uit;
}

} // namespace plexoran
