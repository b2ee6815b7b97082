#include "sessions/koppelen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/schijf/heelschrijven.h"
#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

constexpr Tekstblik Tussen = "    ";

void LeesBestandUit(Schijf& schijf, const Zittingplaats& plaats, Lijstsoort soort, Zoekuitslag& uit)
{
    const auto inhoud = LeesAlsErIs(schijf, plaats.Bestand(soort));
    if (!inhoud) {
        uit.fouten.push_back(inhoud.error());
        return;
    }
    if (!*inhoud)
        return;
    Lijstlezing lezing = LeesLijst(**inhoud, soort);
    if (lezing.IsTeVeel()) {
        uit.fouten.push_back({.soort = Foutsoort::Beschadigd,
                              .bestand = schijf.Toonpad(plaats.Bestand(soort)),
                              .regel = 0,
                              .systeem = TeVeelNamen});
        return;
    }
    uit.overgeslagen += lezing.overgeslagen;
    for (Vindplaats& vindplaats : lezing.zwevend)
        uit.zwevenden.push_back({plaats, soort, std::move(vindplaats)});
}

struct Uitgevoerd {
    std::vector<bool> vervangen;
    bool geschreven = false;
    std::optional<Fout> fout;
};

Uitgevoerd PasAan(Schijf& schijf, const Pad& pad, Lijstsoort soort,
                  const Naamvervanging& vervanging)
{
    const auto inhoud = LeesAlsErIs(schijf, pad);
    if (!inhoud)
        return {.vervangen = {}, .geschreven = false, .fout = inhoud.error()};
    if (!*inhoud)
        return {.vervangen = std::vector<bool>(vervanging.codes.size()),
                .geschreven = false,
                .fout = std::nullopt};
    Herschrijving nieuw = HerschrijfLijst(**inhoud, soort, vervanging);
    if (!nieuw.IetsVervangen())
        return {.vervangen = std::move(nieuw.vervangen), .geschreven = false, .fout = std::nullopt};
    const auto geschreven = SchrijfHeel(schijf, pad, nieuw.inhoud);
    const bool staatEr = StaatOpSchijf(geschreven);
    return {.vervangen =
                staatEr ? std::move(nieuw.vervangen) : std::vector<bool>(vervanging.codes.size()),
            .geschreven = staatEr,
            .fout = geschreven ? std::nullopt : std::optional(geschreven.error())};
}

Uitkomst<std::vector<bool>> Als(Uitgevoerd uitgevoerd)
{
    if (uitgevoerd.fout)
        return tl::unexpected(*uitgevoerd.fout);
    return std::move(uitgevoerd.vervangen);
}

/// The lines of one session that stand together in the list.
struct Groep {
    const Zittingplaats* plaats = nullptr;
    Naamvervanging vervanging;
    bool inSpelers = false; ///< the list found the name itself in this file
    bool inPercentages = false;

    [[nodiscard]] bool Gevonden(Lijstsoort soort) const
    {
        return soort == Lijstsoort::Spelers ? inSpelers : inPercentages;
    }
};

std::vector<Groep> PerZitting(const Koppelopdracht& opdracht)
{
    std::vector<Groep> groepen;
    for (const Zwevende& regel : opdracht.regels) {
        if (groepen.empty() || groepen.back().plaats->map != regel.plaats.map)
            groepen.push_back({&regel.plaats, {{}, opdracht.naam, opdracht.key}, false, false});
        Groep& groep = groepen.back();
        groep.vervanging.codes.push_back(regel.vindplaats.code);
        if (regel.vindplaats.naam == opdracht.naam)
            (regel.bron == Lijstsoort::Spelers ? groep.inSpelers : groep.inPercentages) = true;
    }
    return groepen;
}

constexpr std::array Soorten{Lijstsoort::Spelers, Lijstsoort::Percentages};

/// Both files of a session. Which of them failed, if any.
std::optional<Lijstsoort> KoppelZitting(Schijf& schijf, const Groep& groep, Koppeluitslag& uit)
{
    std::array<std::vector<bool>, Soorten.size()> vervangen;
    std::optional<Lijstsoort> mislukt;
    for (const Lijstsoort soort : Soorten) {
        const Pad pad = groep.plaats->Bestand(soort);
        // What a link left here that was killed; the next one comes by to finish its work.
        RuimTijdelijkeOp(schijf, groep.plaats->map, groep.plaats->Bestandsnaam(soort));
        Uitgevoerd uitgevoerd = PasAan(schijf, pad, soort, groep.vervanging);
        if (uitgevoerd.geschreven)
            uit.gewijzigd.push_back(schijf.Toonpad(pad));
        vervangen.at(static_cast<std::size_t>(soort)) = std::move(uitgevoerd.vervangen);
        if (uitgevoerd.fout) {
            uit.fout = std::move(uitgevoerd.fout);
            if (!uitgevoerd.geschreven)
                uit.nietGewijzigd.push_back(schijf.Toonpad(pad));
            mislukt = soort;
            break;
        }
    }
    for (std::size_t i = 0; i < groep.vervanging.codes.size(); ++i) {
        for (const Lijstsoort soort : Soorten) {
            const auto& per = vervangen.at(static_cast<std::size_t>(soort));
            if (i < per.size() && per[i])
                uit.aangepast.push_back({groep.vervanging.codes[i], soort});
        }
    }
    return mislukt;
}

/// The files behind the one that failed in which the list found the name.
void VoegResterendeToe(Schijf& schijf, const std::vector<Groep>& groepen, std::size_t waar,
                       Lijstsoort mislukt, Koppeluitslag& uit)
{
    for (std::size_t i = waar; i < groepen.size(); ++i) {
        for (const Lijstsoort soort : Soorten) {
            const bool erna = i > waar || soort > mislukt;
            if (erna && groepen[i].Gevonden(soort))
                uit.nietGewijzigd.push_back(schijf.Toonpad(groepen[i].plaats->Bestand(soort)));
        }
    }
}

bool IsKey(Tekstblik key)
{
    return key.size() == 6 && key.find_first_not_of("0123456789") == Tekstblik::npos;
}

Tekst Opgevuld(Tekstblik tekst, std::size_t breedte)
{
    Tekst uit(tekst);
    uit.resize(std::max(uit.size(), breedte), ' ');
    return uit;
}

} // namespace

Tekst Lijstregel(const Zwevende& zwevende)
{
    Tekst uit;
    if (zwevende.plaats.inCompetitie)
        uit = "In R" + std::to_string(zwevende.plaats.ronde) + " - Z" +
              std::to_string(zwevende.plaats.zitting) + " ";
    uit += "als ";
    uit += zwevende.vindplaats.code;
    uit += Tussen;
    uit += zwevende.vindplaats.naam;
    return uit;
}

Zoekuitslag ZoekZwevenden(Schijf& schijf, const std::vector<Zittingplaats>& zittingen,
                          const Voortgang& voortgang)
{
    Zoekuitslag uit;
    for (std::size_t i = 0; i < zittingen.size(); ++i) {
        if (voortgang && !voortgang(i, zittingen.size())) {
            uit.gestopt = true;
            break;
        }
        for (const Lijstsoort soort : Soorten)
            LeesBestandUit(schijf, zittingen[i], soort, uit);
    }
    return uit;
}

Koppelopdracht MaakKoppelopdracht(const std::vector<Zwevende>& lijst, std::size_t gekozen,
                                  Tekstblik key)
{
    const Zwevende& regel = lijst.at(gekozen);
    Koppelopdracht uit{.regels = {}, .naam = regel.vindplaats.naam, .key = Tekst(key)};
    if (!regel.plaats.inCompetitie) {
        uit.regels.push_back(regel);
        return uit;
    }
    for (const Zwevende& ander : lijst) {
        if (Lijstregel(ander).find(uit.naam) != Tekst::npos)
            uit.regels.push_back(ander);
    }
    return uit;
}

Koppeluitslag Koppel(Schijf& schijf, const Koppelopdracht& opdracht, const Voortgang& voortgang)
{
    Koppeluitslag uit;
    const std::vector<Groep> groepen = PerZitting(opdracht);
    for (std::size_t i = 0; i < groepen.size(); ++i) {
        if (voortgang)
            static_cast<void>(voortgang(i, groepen.size()));
        if (const auto mislukt = KoppelZitting(schijf, groepen[i], uit)) {
            VoegResterendeToe(schijf, groepen, i, *mislukt, uit);
            break;
        }
    }
    return uit;
}

Uitkomst<std::vector<bool>> PasSpelersbestandAan(Schijf& schijf, const Zittingplaats& plaats,
                                                 const Naamvervanging& vervanging)
{
    return Als(
        PasAan(schijf, plaats.Bestand(Lijstsoort::Spelers), Lijstsoort::Spelers, vervanging));
}

Uitkomst<std::vector<bool>> PasPercentagebestandAan(Schijf& schijf, const Zittingplaats& plaats,
                                                    const Naamvervanging& vervanging)
{
    return Als(PasAan(schijf, plaats.Bestand(Lijstsoort::Percentages), Lijstsoort::Percentages,
                      vervanging));
}

std::vector<Koppelspeler> Koppelspelers(const Spelertabel& tabel, Tekstblik importgroep)
{
    std::vector<std::pair<Tekst, Koppelspeler>> gevonden;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const auto cel = [&](Kolom kolom) { return Tekst(tabel.Cel(rij, kolom)); };
        if (tabel.Cel(rij, Kolom::Groep) != importgroep || !IsKey(tabel.Cel(rij, Kolom::Key)))
            continue;
        Tekst naam;
        for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam}) {
            const Tekstblik deel = ZonderSpaties(tabel.Cel(rij, kolom));
            if (!naam.empty() && !deel.empty())
                naam += ' ';
            naam += deel;
        }
        Tekst sleutel = Sorteersleutel(cel(Kolom::Achternaam) + " " + cel(Kolom::Voornaam) + " " +
                                       cel(Kolom::Tusv) + " " + cel(Kolom::Key));
        gevonden.emplace_back(
            std::move(sleutel),
            Koppelspeler{cel(Kolom::Key), std::move(naam), cel(Kolom::NBBnr), cel(Kolom::NBBgr)});
    }
    std::stable_sort(gevonden.begin(), gevonden.end(),
                     [](const auto& een, const auto& ander) { return een.first < ander.first; });
    std::vector<Koppelspeler> uit;
    uit.reserve(gevonden.size());
    for (auto& [sleutel, speler] : gevonden)
        uit.push_back(std::move(speler));
    return uit;
}

Tekst Spelerregel(const Koppelspeler& speler, std::size_t breedte)
{
    constexpr std::size_t nummerbreedte = 8;
    Tekst uit = speler.key + "  " + Opgevuld(speler.naam, breedte);
    if (!speler.nbbnr.empty() || !speler.nbbgr.empty())
        uit += "  " + Opgevuld(speler.nbbnr, nummerbreedte);
    if (!speler.nbbgr.empty())
        uit += "  " + speler.nbbgr;
    return uit;
}

} // namespace plexoran
