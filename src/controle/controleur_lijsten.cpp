// The pairs and the sessions: who stands in them that the register does not know.
#include <set>

#include "controle/controleur.h"
#include "pairs/paarregel.h"
#include "pairs/paren.h"
#include "pairs/parenbestand.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

void Controleur::LeesParenmap()
{
    auto namen = Parenbestanden(schijf_, mappen_);
    if (namen)
        Sorteer(*namen);
    else
        Onleesbaar(namen.error());
    for (const Tekst& naam : namen.value_or(std::vector<Tekst>()))
        LeesParen(Samen(mappen_.Parenmap(), naam), Hoofdletters(naam.substr(0, naam.rfind('.'))));
    LeesParen(Samen(mappen_.SPEMAP, "RVDparen.txt"), std::nullopt);
}

/// `keuze` is the group-subgroup to which the file belongs, in capitals.
void Controleur::LeesParen(const Pad& pad, const std::optional<Tekst>& keuze)
{
    const auto inhoud = Lees(pad);
    if (!inhoud)
        return;
    ++uit_.telling.parenbestanden;
    ZoekTekens(*inhoud, pad);
    if (!IsParenbestand(*inhoud))
        Onleesbaar({.bestand = Toon(pad), .systeem = "er staat iets anders in dan paren"});
    if (!kentSpelers_)
        return;
    for (const Tekst& paar : PaartekensUit(*inhoud)) {
        for (const Tekstblik key : {Eerste6(paar), Laatste6(paar)})
            BekijkPaarspeler(pad, keuze, paar, key);
    }
}

void Controleur::BekijkPaarspeler(const Pad& pad, const std::optional<Tekst>& keuze,
                                  const Tekst& paar, Tekstblik key)
{
    const auto meld = [&](Vondstsoort soort, Tekst ander) {
        uit_.vondsten.push_back(
            {.soort = soort, .bestand = Toon(pad), .wat = paar, .ander = std::move(ander)});
    };
    const int rij = RijVan(key);
    if (rij == 0)
        meld(Vondstsoort::PaarOnbekend, Tekst(key));
    if (rij <= 0)
        return;
    const Tekst groep(tabel_.Cel(rij, Kolom::Groep));
    if (IsOverleden(tabel_.Cel(rij, Kolom::Status)))
        meld(Vondstsoort::PaarOverleden, Wie(rij));
    else if (keuze && Hoofdletters(groep + Tekst(tabel_.Cel(rij, Kolom::NBBgr))) != *keuze)
        meld(Vondstsoort::PaarElders, Wie(rij));
}

void Controleur::LeesSessies()
{
    std::vector<Fout> onleesbaar;
    const std::vector<Sessie> sessies = AlleSessies(schijf_, mappen_, onleesbaar);
    for (const Fout& fout : onleesbaar)
        Onleesbaar(fout);
    for (std::size_t i = 0; i < sessies.size(); ++i) {
        if (voortgang_ && !voortgang_(i, sessies.size())) {
            uit_.gestopt = true;
            return;
        }
        ++uit_.telling.zittingen;
        LeesSessie(sessies[i]);
    }
}

/// Of both files; what stands in either or both is one finding.
void Controleur::LeesSessie(const Sessie& sessie)
{
    struct Gemeld {
        std::size_t vondst;
        std::set<Tekst> plaatsen; ///< by their keys
    };
    std::unordered_map<Tekst, Gemeld> gemeld; // by key or name
    for (const Lijstsoort soort : {Lijstsoort::Spelers, Lijstsoort::Percentages}) {
        for (const Tafelnaam& wie : LeesLijstVan(sessie.zitting.Bestand(soort), soort)) {
            const auto [plek, nieuw] =
                gemeld.try_emplace(wie.naam, Gemeld{uit_.vondsten.size(), {}});
            auto& [vondst, plaatsen] = plek->second;
            if (!plaatsen.insert(Tafelsleutel(wie.code)).second)
                continue;
            if (nieuw)
                MeldHelft(sessie, wie);
            else
                uit_.vondsten[vondst].plek->plaatsen.append(", ").append(wie.code);
        }
    }
}

/// The halves that are a name or a key of nobody.
std::vector<Tafelnaam> Controleur::LeesLijstVan(const Pad& pad, Lijstsoort soort)
{
    const auto inhoud = Lees(pad);
    if (!inhoud)
        return {};
    ZoekTekens(*inhoud, pad);
    Lijstlezing lezing = LeesLijst(*inhoud, soort, [this](Tekstblik helft) {
        const auto getal = Sleutelgetal(helft);
        return getal ? kentSpelers_ && RijVan(*getal) == 0 : IsZwevend(helft);
    });
    if (lezing.IsTeVeel()) {
        Onleesbaar({.bestand = Toon(pad), .systeem = TeVeelNamen});
        return {};
    }
    if (lezing.overgeslagen > 0)
        Onleesbaar({.bestand = Toon(pad),
                    .systeem = "regels die geen uitslag van zeven velden zijn: " +
                               std::to_string(lezing.overgeslagen)});
    return std::move(lezing.zwevend);
}

void Controleur::MeldHelft(const Sessie& sessie, const Tafelnaam& wie)
{
    const Zitting& zitting = sessie.zitting;
    uit_.vondsten.push_back(
        {.soort = Sleutelgetal(wie.naam) ? Vondstsoort::ZittingOnbekend : Vondstsoort::Zwevend,
         .plek = Zittingplek{sessie.naam, zitting.inCompetitie, zitting.ronde, zitting.zitting,
                             wie.code},
         .wat = wie.naam});
}

} // namespace plexoran
