#include "mainwindow/weergave.h"

#include <algorithm>
#include <cmath>

namespace plexoran {

constexpr double PerMillimeter = 1000.0; // micrometres

Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode)
{
    const auto heeftWoord = [&](Tekstblik woord) {
        return mappen.ODKEYS.find(woord) != Tekst::npos;
    };
    Groepsbeeld beeld;
    beeld.importgroep = groepscode == mappen.DFIMPG;
    if (!beeld.importgroep) {
        beeld.kolomnamen[Index(Kolom::NBBgr)] = Subgroepnaam;
        beeld.kolomnamen[Index(Kolom::NBBnr)] = "";
    }
    if (heeftWoord("ODNBB4SP"))
        beeld.cmdHaalNBBnamen = false;
    else if (heeftWoord("ODNBB28"))
        beeld.verbergGatenlijst = true;
    else
        beeld.cmdHaalNBBnamen = beeld.importgroep;
    return beeld;
}

Kolommaten MeetCellen(const Spelertabel& tabel, std::span<const int> rijen, const Tekstmeter& meter)
{
    Kolommaten maten{};
    for (const int rij : rijen) {
        for (std::size_t i = 0; i < maten.size(); ++i)
            maten[i] = std::max(maten[i], meter.Breedte(tabel.Cel(rij, static_cast<Kolom>(i + 1))));
    }
    return maten;
}

Kolomranden MaakKolommen(const Kolommaten& cellen, const Kolommaten& headers, Breedteregel regel)
{
    const bool volgensHeader = regel == Breedteregel::VolgensHeader;
    const Kolommaten& maten = volgensHeader ? headers : cellen;
    const double marge = (volgensHeader ? 2 : 4) * rooster::Celmarge;
    Kolomranden randen{};
    for (std::size_t i = 0; i < maten.size(); ++i) {
        const double breedte = static_cast<double>(maten[i]) / PerMillimeter + marge;
        randen[i + 1] = randen[i] + std::max(breedte, rooster::SmalsteKolom);
    }
    return randen;
}

Kolomranden MetKeuzes(const Kolomranden& gesteld, const Kolomkeuzes& keuzes)
{
    Kolomranden randen{};
    for (std::size_t i = 0; i < keuzes.size(); ++i) {
        const auto& [gekozen, verborgen] = keuzes[i];
        const double breedte = gekozen > 0 ? gekozen : gesteld[i + 1] - gesteld[i];
        randen[i + 1] = randen[i] + (verborgen ? 0 : breedte);
    }
    return randen;
}

double PassendeBreedte(std::int64_t tekst)
{
    const double naast = 2 * rooster::Celmarge + rooster::Speling;
    // One more: the room for a text is rounded down.
    return std::max(rooster::SmalsteKeuze, static_cast<double>(tekst + 1) / PerMillimeter + naast);
}

namespace {

/// So much more room for a column spares so many texts that much.
struct Stap {
    std::size_t teksten;
    std::size_t kolom;
    double lengte;
};

void VoegStappenToe(std::vector<Stap>& stappen, std::size_t kolom, std::vector<double> breedten)
{
    std::sort(breedten.begin(), breedten.end());
    double vorige = rooster::SmalsteKeuze;
    for (std::size_t i = 0; i < breedten.size(); ++i) {
        if (breedten[i] > vorige)
            stappen.push_back({breedten.size() - i, kolom, breedten[i] - vorige});
        vorige = breedten[i];
    }
}

} // namespace

Kolomkeuzes VerdeelRuimte(double ruimte, const Spelertabel& tabel, std::span<const int> rijen,
                          const Namenrij& namen, const Kolomkeuzes& keuzes, const Tekstmeter& meter)
{
    Kolomkeuzes uit = keuzes;
    std::vector<Stap> stappen;
    int getoond = 0;
    for (std::size_t i = 0; i < uit.size(); ++i) {
        if (uit[i].verborgen)
            continue;
        ++getoond;
        uit[i].breedte = rooster::SmalsteKeuze;
        ruimte -= rooster::SmalsteKeuze;
        if (namen[i].empty())
            continue;
        std::vector<double> breedten{PassendeBreedte(meter.Breedte(namen[i]))};
        for (const int rij : rijen)
            breedten.push_back(
                PassendeBreedte(meter.Breedte(tabel.Cel(rij, static_cast<Kolom>(i + 1)))));
        VoegStappenToe(stappen, i, std::move(breedten));
    }
    std::stable_sort(stappen.begin(), stappen.end(), [](const Stap& een, const Stap& ander) {
        return een.teksten > ander.teksten;
    });
    for (const auto& [teksten, kolom, lengte] : stappen) {
        const double erbij = std::clamp(ruimte, 0.0, lengte);
        uit[kolom].breedte += erbij;
        ruimte -= erbij;
    }
    for (auto& [breedte, verborgen] : uit)
        breedte += verborgen ? 0 : std::max(0.0, ruimte) / getoond;
    return uit;
}

Weergave Gesorteerd(const Spelertabel& tabel, Weergave rijen, Kolom kolom)
{
    constexpr std::size_t meesteCijfers = 32;
    const bool getallen = kolom == Kolom::Nr || kolom == Kolom::Key || kolom == Kolom::NBBnr;
    std::vector<std::pair<Tekst, int>> sleutels;
    for (const int rij : rijen) {
        const Tekstblik cel = tabel.Cel(rij, kolom);
        const auto getal = getallen ? AlsGetal(cel, meesteCijfers) : std::nullopt;
        sleutels.emplace_back(Sorteersleutel(getal.value_or(Tekst(cel))), rij);
    }
    std::stable_sort(sleutels.begin(), sleutels.end(),
                     [](const auto& een, const auto& ander) { return een.first < ander.first; });
    std::transform(sleutels.begin(), sleutels.end(), rijen.begin(),
                   [](const auto& sleutel) { return sleutel.second; });
    return rijen;
}

Tekst Kopieertekst(const Spelertabel& tabel, std::span<const int> rijen, const Namenrij& namen,
                   const Kolomkeuzes& keuzes)
{
    Tekst uit;
    for (const int rij : rijen) {
        Tekstblik tussen = uit.empty() ? "" : "\n";
        for (std::size_t i = 0; i < namen.size(); ++i) {
            if (namen[i].empty() || keuzes[i].verborgen)
                continue;
            uit += tussen;
            uit += Vervang(tabel.Cel(rij, static_cast<Kolom>(i + 1)), '\t', ' ');
            tussen = "\t";
        }
    }
    return uit;
}

Tekst SpelerVoluit(const Spelertabel& tabel, int rij)
{
    const auto cel = [&](Kolom kolom) { return ZonderSpaties(tabel.Cel(rij, kolom)); };
    Tekst plaats(cel(Kolom::Postc));
    plaats += plaats.empty() || cel(Kolom::Plaats).empty() ? "" : "  ";
    plaats += cel(Kolom::Plaats);
    Tekst uit = VolleNaam(tabel, rij);
    for (const Tekstblik deel : {cel(Kolom::Telef), cel(Kolom::Email), cel(Kolom::Adres),
                                 Tekstblik(plaats), cel(Kolom::Land)}) {
        if (!deel.empty())
            uit.append(", ").append(deel);
    }
    return uit;
}

Tekst WaaromNiet(const Eisen& eisen, const Opdrachtstand& stand)
{
    if (eisen.nooit)
        return "Deze knop doet niets in Plexoran";
    if (eisen.wijzigt && stand.alleenKijken)
        return "U kijkt alleen";
    if (stand.knopVerborgen)
        return eisen.importgroep && !eisen.gaatErheen && !stand.importgroep
                   ? "Alleen in de importgroep " + Tekst(stand.importcode)
                   : "Uitgezet in 'Mappen.ini'";
    if (eisen.regels && stand.regels == 0)
        return "Deze groep heeft geen spelers";
    if (eisen.keuzelijsten && !stand.keuzelijsten)
        return "De regels kiest u bij de knoppen: F9, of Escape bij het zoeken";
    return eisen.regel && stand.gekozen == 0 ? "Kies eerst een regel" : "";
}

Tekst PasTekst(Tekstblik tekst, double kolombreedte, const Tekstmeter& meter)
{
    const double ruimte = kolombreedte - 2 * rooster::Celmarge - rooster::Speling;
    const auto beschikbaar = static_cast<std::int64_t>(std::floor(ruimte * PerMillimeter));
    return Ingekort(tekst, beschikbaar, [&](Tekstblik deel) { return meter.Breedte(deel); });
}

} // namespace plexoran
