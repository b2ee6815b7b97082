#include "exchange/lijstvelden.h"

#include <algorithm>

namespace plexoran {
namespace {

/// How columns are called, in letters and digits alone; behind the "|" those that count where no
/// other column has the field.
constexpr std::pair<Kolom, Tekstblik> Kopnamen[] = {
    {Kolom::Key, " KEY SLEUTEL RVDKEY "},
    {Kolom::Voornaam, " VOORNAAM ROEPNAAM FIRSTNAME GIVENNAME | VOORNAMEN VOORLETTERS INITIALS "},
    {Kolom::Tusv, " TUSV TUSSENVOEGSEL TUSSENVOEGSELS VOORVOEGSEL VOORVOEGSELS INFIX PREFIX "},
    {Kolom::Achternaam, " ACHTERNAAM FAMILIENAAM LASTNAME SURNAME FAMILYNAME "},
    {HeleNaam, " NAAM NAME VOLLEDIGENAAM FULLNAME SPELER PLAYER LID MEMBER DEELNEMER "},
    {Kolom::Telef, " TELEF TELEFOON TELEFOONNUMMER TEL TELNR PHONE TELEPHONE PHONENUMBER "
                   "| MOBIEL MOBIELNUMMER MOBILE GSM TELEFOON1 "},
    {Kolom::Email, " EMAIL EMAILADRES EMAILADDRESS MAIL MAILADRES "},
    {Kolom::Adres, " ADRES ADDRESS STRAAT STREET STRAATHUISNUMMER STRAATENHUISNUMMER "},
    {Kolom::Postc, " POSTC POSTCODE POSTALCODE PC ZIP ZIPCODE "},
    {Kolom::Plaats, " PLAATS WOONPLAATS CITY TOWN "},
    {Kolom::Land, " LAND COUNTRY "},
    {Kolom::MV, " MV GESLACHT SEX GENDER "},
    {Kolom::Div1, " DIV1 "},
    {Kolom::Div2, " DIV2 "},
    {Kolom::Status, " STATUS "},
    {Kolom::NBBgr, " SUBGR SUBGROEP NBBGR NBBGRSUBGR SUBGROUP "},
    {Kolom::NBBnr, " NBBNR NBBNUMMER BONDSNUMMER BONDSNR LEAGUEID "}};

constexpr std::size_t Proefrijen = 100;

Tekst Kopsleutel(Tekstblik cel)
{
    Tekst uit = KaleWoorden(cel);
    std::erase(uit, ' ');
    return uit;
}

/// With `best` only by its first names.
Kolom VeldBij(Tekstblik cel, bool best)
{
    const Tekst sleutel = Kopsleutel(cel);
    for (const auto& [veld, namen] : Kopnamen) {
        if (IsEenVan(sleutel, namen.substr(0, best ? namen.find('|') : namen.npos)))
            return veld;
    }
    return GeenVeld;
}

std::size_t Cijfers(Tekstblik tekst)
{
    return static_cast<std::size_t>(std::ranges::count_if(tekst, IsCijfer));
}

bool IsEmail(Tekstblik tekst)
{
    const auto bij = tekst.find('@');
    return bij != Tekstblik::npos && bij > 0 && tekst.find('.', bij) != Tekstblik::npos &&
           tekst.find(' ') == Tekstblik::npos;
}

/// Four digits and two letters, with or without a blank between them.
bool IsPostcode(Tekstblik tekst)
{
    constexpr std::size_t cijfers = 4;
    const Tekstblik letters = ZonderSpaties(tekst.substr(std::min(tekst.size(), cijfers)));
    return Cijfers(tekst.substr(0, cijfers)) == cijfers && letters.size() == 2 &&
           std::ranges::none_of(letters, [](char teken) { return Letters(teken).empty(); });
}

bool IsTelefoon(Tekstblik tekst)
{
    constexpr std::size_t minst = 9;
    return Cijfers(tekst) >= minst && (tekst.front() == '0' || tekst.front() == '+') &&
           tekst.find_first_not_of("0123456789+-() ./") == Tekstblik::npos;
}

bool IsGeslacht(Tekstblik tekst)
{
    return IsEenVan(Hoofdletters(tekst), " M V MAN VROUW ");
}

/// What nearly all cells of a column look like.
Kolom VeldVan(const Spelerslijst& lijst, std::size_t kolom, bool kop)
{
    constexpr std::array<std::pair<Kolom, bool (*)(Tekstblik)>, 4> soorten{
        {{Kolom::Email, IsEmail},
         {Kolom::Postc, IsPostcode},
         {Kolom::Telef, IsTelefoon},
         {Kolom::MV, IsGeslacht}}};
    for (const auto& [veld, is] : soorten) {
        std::size_t vol = 0;
        std::size_t goed = 0;
        for (std::size_t rij = kop ? 1 : 0; rij < std::min(lijst.Rijen(), Proefrijen); ++rij) {
            const Tekstblik cel = ZonderSpaties(lijst.Cel(rij, kolom));
            if (cel.empty())
                continue;
            ++vol;
            goed += is(cel) ? 1U : 0U;
        }
        if (vol > 0 && 5 * goed >= 4 * vol)
            return veld;
    }
    return GeenVeld;
}

/// Whether a word of a name is part of a particle. An initial is none: "D." is, "d'" is not.
bool IsTussenvoegsel(Tekstblik woord)
{
    constexpr Tekstblik alle =
        " VAN DE DER DEN DES HET TER TEN TE IN OP AAN BIJ UIT ONDER OVER VOOR TOT THOE VON VOM ZU "
        "ZUM ZUR LA LE LES DU DI DA DEL DELLA DOS EL AL T S D L V VD VANT VANDE VANDER VANDEN ";
    const Tekst kaal = Kopsleutel(woord);
    const bool klein =
        Hoofdletter(woord.front()) != woord.front() || Letters(woord.front()).empty();
    return IsEenVan(kaal, alle) &&
           (klein || (kaal.size() > 1 && woord.find('.') == Tekstblik::npos));
}

/// "Al" and "Di" begin a name as often as a surname, "Van" does not.
bool IsVoornaam(Tekstblik woord)
{
    return !Letters(woord.front()).empty() && Hoofdletter(woord.front()) == woord.front() &&
           !IsEenVan(Kopsleutel(woord), " VAN DE DEN DER TEN TER VON ");
}

using Woorden = std::vector<Tekstblik>;

Woorden WoordenVan(Tekstblik tekst)
{
    Woorden uit;
    for (tekst = ZonderSpaties(tekst); !tekst.empty(); tekst = ZonderSpaties(tekst)) {
        uit.push_back(tekst.substr(0, tekst.find_first_of(" ,\t")));
        tekst.remove_prefix(std::min(tekst.size(), uit.back().size() + 1));
        if (uit.back().empty())
            uit.pop_back();
    }
    return uit;
}

Tekst Samen(Woorden::const_iterator begin, Woorden::const_iterator eind)
{
    Tekst uit;
    for (; begin != eind; ++begin)
        uit.append(uit.empty() ? "" : " ").append(*begin);
    return uit;
}

constexpr std::array<Tekstblik, 3> Herkenningen{"key", "nbbnr", "naam"};

Tekstblik Veldnaam(Kolom veld)
{
    return veld == GeenVeld ? "" : veld == HeleNaam ? "Naam" : Kolomnamen[Index(veld)];
}

} // namespace

bool IsEenVan(Tekstblik woord, Tekstblik woorden)
{
    Tekst tussen(1, ' ');
    tussen.append(woord).append(1, ' ');
    return !woord.empty() && woorden.find(tussen) != Tekstblik::npos;
}

bool HeeftKop(const Spelerslijst& lijst)
{
    bool bekend = false;
    for (std::size_t kolom = 0; kolom < lijst.Kolommen(); ++kolom) {
        const Tekstblik cel = ZonderSpaties(lijst.Cel(0, kolom));
        if (IsEmail(cel) || IsPostcode(cel) || Cijfers(cel) > 2)
            return false;
        bekend = bekend || VeldBij(cel, false) != GeenVeld;
    }
    return bekend;
}

Lijstkeuze RaadVelden(const Spelerslijst& lijst, bool kop)
{
    Veldkeuzes velden(lijst.Kolommen(), GeenVeld);
    const auto plek = [&](Kolom veld) { return std::ranges::find(velden, veld); };
    const auto vul = [&](const auto& raad) {
        for (std::size_t kolom = 0; kolom < velden.size(); ++kolom) {
            if (velden[kolom] != GeenVeld)
                continue;
            if (const Kolom veld = raad(kolom); plek(veld) == velden.end())
                velden[kolom] = veld;
        }
    };
    if (kop) {
        vul([&](std::size_t kolom) { return VeldBij(lijst.Cel(0, kolom), true); });
        vul([&](std::size_t kolom) { return VeldBij(lijst.Cel(0, kolom), false); });
    }
    vul([&](std::size_t kolom) { return VeldVan(lijst, kolom, kop); });
    // "Naam" beside "Voornaam" is the surname.
    if (const auto naam = plek(HeleNaam); naam != velden.end()) {
        if (plek(Kolom::Achternaam) != velden.end())
            *naam = GeenVeld;
        else if (plek(Kolom::Voornaam) != velden.end())
            *naam = Kolom::Achternaam;
    }
    const auto heeft = [&](Kolom veld) { return plek(veld) != velden.end(); };
    const Herkenning herkenning = heeft(Kolom::Key)     ? Herkenning::Key
                                  : heeft(Kolom::NBBnr) ? Herkenning::NBBnr
                                                        : Herkenning::Naam;
    return {std::move(velden), herkenning};
}

std::array<Tekst, 3> SplitsNaam(Tekstblik naam)
{
    const auto komma = naam.find(',');
    if (komma == Tekstblik::npos) {
        const Woorden woorden = WoordenVan(naam);
        if (woorden.empty())
            return {};
        const auto laatste = woorden.end() - 1;
        const int na = laatste > woorden.begin() && IsVoornaam(woorden.front()) ? 1 : 0;
        const auto begin = std::find_if(woorden.begin() + na, laatste, IsTussenvoegsel);
        const auto eind = std::find_if_not(begin, laatste, IsTussenvoegsel);
        return {Samen(woorden.begin(), begin), Samen(begin, eind), Samen(eind, woorden.end())};
    }
    const Woorden achter = WoordenVan(naam.substr(0, komma));
    const Woorden voor = WoordenVan(naam.substr(komma + 1));
    const auto kern = achter.empty()
                          ? achter.end()
                          : std::find_if_not(achter.begin(), achter.end() - 1, IsTussenvoegsel);
    const auto eerste = std::ranges::find_if_not(voor, IsTussenvoegsel);
    const auto staart =
        std::find_if_not(voor.rbegin(), std::reverse_iterator(eerste), IsTussenvoegsel).base();
    Tekst tusv;
    for (const Tekst& deel :
         {Samen(voor.begin(), eerste), Samen(staart, voor.end()), Samen(achter.begin(), kern)})
        tusv.append(tusv.empty() || deel.empty() ? "" : " ").append(deel);
    return {Samen(eerste, staart), tusv, Samen(kern, achter.end())};
}

Tekst Lijstkoppen(const Spelerslijst& lijst, bool kop)
{
    Tekst uit;
    for (std::size_t kolom = 0; kolom < lijst.Kolommen(); ++kolom)
        uit.append(kolom == 0 ? "" : "-").append(kop ? Kopsleutel(lijst.Cel(0, kolom)) : "");
    return kop ? uit : "zonder kop" + uit;
}

Tekst Keuzetekst(const Lijstkeuze& keuze)
{
    Tekst uit(Herkenningen.at(static_cast<std::size_t>(keuze.herkenning)));
    for (const Kolom veld : keuze.velden)
        uit.append(";").append(Veldnaam(veld));
    return uit;
}

std::optional<Lijstkeuze> KeuzeUit(Tekstblik tekst, std::size_t kolommen)
{
    const auto herkenning = std::ranges::find(Herkenningen, tekst.substr(0, tekst.find(';')));
    if (herkenning == Herkenningen.end())
        return std::nullopt;
    Lijstkeuze uit{.herkenning = static_cast<Herkenning>(herkenning - Herkenningen.begin())};
    while (tekst.find(';') != Tekstblik::npos) {
        tekst.remove_prefix(tekst.find(';') + 1);
        const Tekstblik naam = tekst.substr(0, tekst.find(';'));
        int veld = naam.empty() ? 0 : static_cast<int>(HeleNaam);
        while (veld > 0 && Veldnaam(static_cast<Kolom>(veld)) != naam)
            --veld;
        uit.velden.push_back(static_cast<Kolom>(veld));
    }
    return uit.velden.size() == kolommen ? std::optional(uit) : std::nullopt;
}

} // namespace plexoran
