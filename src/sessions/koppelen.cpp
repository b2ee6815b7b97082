#include "sessions/koppelen.h"

#include <algorithm>
#include <array>
#include <map>

#include "platform/schijf/schijf.h"
#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

constexpr std::array Soorten{Lijstsoort::Spelers, Lijstsoort::Percentages};

void ZoekIn(Schijf& schijf, const Zitting& zitting, Lijstsoort soort, Zoekuitslag& uit)
{
    const auto inhoud = LeesAlsErIs(schijf, zitting.Bestand(soort));
    if (!inhoud) {
        uit.fouten.push_back(inhoud.error());
        return;
    }
    Lijstlezing lezing = LeesLijst(inhoud->value_or(Tekst()), soort);
    if (lezing.IsTeVeel()) {
        uit.fouten.push_back(
            {Foutsoort::Beschadigd, schijf.Toonpad(zitting.Bestand(soort)), 0, TeVeelNamen});
        return;
    }
    uit.overgeslagen += lezing.overgeslagen;
    for (Tafelnaam& wie : lezing.zwevend)
        uit.zwevenden.push_back({zitting, soort, std::move(wie.code), std::move(wie.naam)});
}

struct Aanpassing {
    std::set<Tekst> vervangen; ///< of the codes; none when the file still holds its old text
    std::optional<Fout> fout;
};

Aanpassing PasAan(Schijf& schijf, const Pad& pad, Lijstsoort soort,
                  const Naamvervanging& vervanging)
{
    Aanpassing uit;
    const auto geschreven =
        Herschrijf(schijf, pad, [&](const Tekst& inhoud) -> std::optional<Tekst> {
            Herschrijving nieuw = HerschrijfLijst(inhoud, soort, vervanging);
            uit.vervangen = std::move(nieuw.vervangen);
            return uit.vervangen.empty() ? std::nullopt : std::optional(std::move(nieuw.inhoud));
        });
    if (!StaatOpSchijf(geschreven))
        uit.vervangen.clear();
    if (!geschreven)
        uit.fout = geschreven.error();
    return uit;
}

/// The lines of one session that stand together in the list.
struct Groep {
    Zitting zitting;
    Naamvervanging vervanging;
    std::set<Lijstsoort> bronnen; ///< the files in which the list found the name itself
};

std::vector<Groep> PerZitting(const Koppelopdracht& opdracht)
{
    std::vector<Groep> groepen;
    for (const Zwevende& regel : opdracht.regels) {
        if (groepen.empty() || groepen.back().zitting.map != regel.zitting.map)
            groepen.push_back({regel.zitting, {{}, opdracht.naam, opdracht.key}, {}});
        groepen.back().vervanging.codes.push_back(regel.code);
        if (regel.naam == opdracht.naam)
            groepen.back().bronnen.insert(regel.bron);
    }
    return groepen;
}

/// Both files of a session; behind a failure they are only named.
void KoppelZitting(Schijf& schijf, const Groep& groep, Koppeluitslag& uit)
{
    std::array<std::set<Tekst>, Soorten.size()> vervangen;
    for (const Lijstsoort soort : Soorten) {
        const Pad pad = groep.zitting.Bestand(soort);
        if (uit.fout) {
            if (groep.bronnen.contains(soort))
                uit.nietGewijzigd.push_back(schijf.Toonpad(pad));
            continue;
        }
        // What a link left here that was killed; the next one comes by to finish its work.
        RuimTijdelijkeOp(schijf, groep.zitting.map, groep.zitting.Bestandsnaam(soort));
        Aanpassing aanpassing = PasAan(schijf, pad, soort, groep.vervanging);
        if (!aanpassing.vervangen.empty())
            uit.gewijzigd.push_back(schijf.Toonpad(pad));
        else if (aanpassing.fout)
            uit.nietGewijzigd.push_back(schijf.Toonpad(pad));
        uit.fout = std::move(aanpassing.fout);
        vervangen.at(static_cast<std::size_t>(soort)) = std::move(aanpassing.vervangen);
    }
    for (const Tekst& code : groep.vervanging.codes) {
        for (const Lijstsoort soort : Soorten) {
            // A code that occurs twice is told of once.
            if (vervangen.at(static_cast<std::size_t>(soort)).erase(code) > 0)
                uit.aangepast.push_back({code, soort});
        }
    }
}

Tekst Opgevuld(Tekst tekst, std::size_t breedte)
{
    tekst.resize(std::max(tekst.size(), breedte), ' ');
    return tekst;
}

} // namespace

Tekst Lijstregel(const Zwevende& zwevende)
{
    Tekst uit;
    if (zwevende.zitting.inCompetitie)
        uit = "In R" + std::to_string(zwevende.zitting.ronde) + " - Z" +
              std::to_string(zwevende.zitting.zitting) + " ";
    return uit + "als " + zwevende.code + "    " + zwevende.naam;
}

Zoekuitslag ZoekZwevenden(Schijf& schijf, const std::vector<Zitting>& zittingen,
                          const Voortgang& voortgang)
{
    Zoekuitslag uit;
    for (std::size_t i = 0; i < zittingen.size(); ++i) {
        if (voortgang && !voortgang(i, zittingen.size())) {
            uit.gestopt = true;
            break;
        }
        for (const Lijstsoort soort : Soorten)
            ZoekIn(schijf, zittingen[i], soort, uit);
    }
    return uit;
}

Koppelopdracht MaakKoppelopdracht(const std::vector<Zwevende>& lijst, std::size_t gekozen,
                                  Tekstblik key)
{
    const Zwevende& regel = lijst.at(gekozen);
    Koppelopdracht uit{.regels = {}, .naam = regel.naam, .key = Tekst(key)};
    if (!regel.zitting.inCompetitie) {
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
        if (voortgang && !uit.fout)
            static_cast<void>(voortgang(i, groepen.size()));
        KoppelZitting(schijf, groepen[i], uit);
    }
    return uit;
}

void HaalGekoppeldenUit(std::vector<Zwevende>& lijst, const Koppelopdracht& opdracht)
{
    const Zwevende& gekozen = opdracht.regels.front();
    std::erase_if(lijst, [&, tafel = Tafelsleutel(gekozen.code)](const Zwevende& zwevende) {
        return zwevende.naam == opdracht.naam &&
               (gekozen.zitting.inCompetitie || Tafelsleutel(zwevende.code) == tafel);
    });
}

std::vector<Koppelspeler> Koppelspelers(const Spelertabel& tabel, Tekstblik importgroep)
{
    constexpr std::size_t lengteKey = 6;
    std::multimap<Tekst, Koppelspeler> gevonden; // by what they are ordered by
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const auto cel = [&](Kolom kolom) { return Tekst(tabel.Cel(rij, kolom)); };
        const Tekst key = cel(Kolom::Key);
        if (tabel.Cel(rij, Kolom::Groep) != importgroep || key.size() != lengteKey ||
            AlsGetal(key, lengteKey) != key)
            continue;
        Tekst naam;
        for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam}) {
            const Tekstblik deel = ZonderSpaties(tabel.Cel(rij, kolom));
            if (!naam.empty() && !deel.empty())
                naam += ' ';
            naam += deel;
        }
        gevonden.emplace(Sorteersleutel(cel(Kolom::Achternaam) + " " + cel(Kolom::Voornaam) + " " +
                                        cel(Kolom::Tusv) + " " + key),
                         Koppelspeler{key, naam, cel(Kolom::NBBnr), cel(Kolom::NBBgr)});
    }
    std::vector<Koppelspeler> uit;
    for (auto& [sleutel, speler] : gevonden)
        uit.push_back(std::move(speler));
    return uit;
}

int Naamgenoot(const std::vector<Koppelspeler>& spelers, Tekstblik naam)
{
    const auto gevonden = std::ranges::find(spelers, Hoofdletters(naam),
                                            [](const auto& wie) { return Hoofdletters(wie.naam); });
    return gevonden == spelers.end() ? -1 : static_cast<int>(gevonden - spelers.begin());
}

std::size_t Naambreedte(const std::vector<Koppelspeler>& spelers)
{
    constexpr std::size_t breedste = 40;
    std::size_t breedte = 4;
    for (const Koppelspeler& speler : spelers)
        breedte = std::max(breedte, std::min(speler.naam.size(), breedste));
    return breedte;
}

Tekst Koppelregel(const Koppelspeler& speler, std::size_t breedte)
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
