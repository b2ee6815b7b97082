#include "federation/ledenbronnen.h"

#include <algorithm>
#include <utility>

#include <pugixml.hpp>

#include "federation/ledencsv.h"
#include "platform/bronnen/xml.h"

namespace plexoran {
namespace {

/// What an element of a member says, beside the fields: what is passed over, and the telephone
/// number that wins.
constexpr std::size_t Geen = Lidveld::Aantal;
constexpr std::size_t Telefoon2 = Lidveld::Aantal + 1;

constexpr std::array<std::pair<std::string_view, std::size_t>, 12> namenNbb4 = {
    {{"LeagueId", Lidveld::NBBnr},
     {"Geslacht", Lidveld::Geslacht},
     {"Voornaam", Lidveld::Voornaam},
     {"Voorletters", Lidveld::Voorletters},
     {"Tussenvoegsel", Lidveld::Tussenvoegsel},
     {"Achternaam", Lidveld::Achternaam},
     {"Adres", Lidveld::Adres},
     {"Postcode", Lidveld::Postcode},
     {"Plaats", Lidveld::Plaats},
     {"Telefoon1", Lidveld::Telefoon},
     {"Telefoon2", Telefoon2},
     {"Email", Lidveld::Email}}};

/// Element 0 is position 1.
constexpr std::array<std::size_t, 15> veldenNbb3 = {Lidveld::Achternaam,
                                                    Lidveld::Adres,
                                                    Geen,
                                                    Lidveld::NBBnr,
                                                    Lidveld::Email,
                                                    Geen,
                                                    Lidveld::Geslacht,
                                                    Geen,
                                                    Lidveld::Plaats,
                                                    Lidveld::Postcode,
                                                    Lidveld::Telefoon,
                                                    Telefoon2,
                                                    Lidveld::Tussenvoegsel,
                                                    Lidveld::Voorletters,
                                                    Lidveld::Voornaam};

enum class Nbbversie { Drie, Vier };

/// A placeholder for someone's partner is one word.
void PasAchternaamregelToe(Tekst& achternaam)
{
    constexpr Tekstblik partner = "PARTNER";
    if (achternaam.empty() || Hoofdletter(achternaam.front()) != partner.front())
        return; // the word takes all seven
    achternaam = ZonderRegeleinden(achternaam);
    const Tekstblik begin = ZonderSpaties(Tekstblik(achternaam).substr(0, partner.size()));
    if (Hoofdletters(begin) == partner)
        achternaam = Vervang(achternaam, ' ', '_');
}

/// Turns one member after the other into lines.
class Ledenomzetter {
  public:
    Ledenomzetter(Nbbversie versie, std::string_view bron) : versie_(versie), bron_(bron) {}

    void VoegToe(const pugi::xml_node& member)
    {
        Lidrij lid;
        Tekst telefoon2;
        std::size_t positie = *member.value() == '\0' ? 0 : 1; // a text at the front
        for (const pugi::xml_node& kind : member.children()) {
            if (IsWit(kind, bron_))
                continue;
            const std::size_t veld = Veld(kind, positie++);
            if (veld == Geen)
                continue;
            Tekst tekst;
            vervangen += LeesTekst(kind, bron_, tekst);
            if (veld == Telefoon2 && !tekst.empty()) // wins, wherever it stands
                telefoon2 = std::move(tekst);
            else if (veld != Telefoon2)
                lid[veld] = veld == Lidveld::Geslacht ? GeslachtUit(tekst) : std::move(tekst);
        }
        if (!telefoon2.empty())
            lid[Lidveld::Telefoon] = std::move(telefoon2);
        if (versie_ == Nbbversie::Vier)
            PasAchternaamregelToe(lid[Lidveld::Achternaam]);
        VoegLidToe(regels, lid);
    }

    Tekst regels;
    std::size_t vervangen = 0;

  private:
    [[nodiscard]] std::size_t Veld(const pugi::xml_node& kind, std::size_t positie) const
    {
        if (kind.type() != pugi::node_element)
            return Geen;
        if (versie_ == Nbbversie::Drie)
            return positie < veldenNbb3.size() ? veldenNbb3[positie] : Geen;
        const auto* const gevonden =
            std::find_if(namenNbb4.begin(), namenNbb4.end(),
                         [&](const auto& een) { return een.first == kind.name(); });
        return gevonden == namenNbb4.end() ? Geen : gevonden->second;
    }

    Nbbversie versie_;
    std::string_view bron_;
};

/// A document and the text in which its nodes have their places.
struct Ledendocument {
    pugi::xml_document document;
    std::string bron;
};

/// Calls `werk` for every member, in the order of the document.
template <class Werk> void VoorElkLid(const pugi::xml_document& document, const Werk& werk)
{
    for (const pugi::xml_node& leden :
         document.child("ReportableMembersList").children("Members")) {
        for (const pugi::xml_node& lid : leden.children("ReportableMember"))
            werk(lid);
    }
}

/// Whether the text of some field stands in pieces, which no export does.
bool HeeftStukken(const pugi::xml_document& document)
{
    bool gevonden = false;
    VoorElkLid(document, [&](const pugi::xml_node& lid) {
        for (const pugi::xml_node& kind : lid.children())
            gevonden = gevonden || kind.first_child();
    });
    return gevonden;
}

Uitkomst<void> Laad(Schijf& schijf, const Pad& bestand, Ledendocument& in)
{
    const std::string pad = schijf.Toonpad(bestand);
    auto bron = LeesBegrensd(schijf, bestand).and_then([&](Tekst bytes) {
        return LeesXml(std::move(bytes), pad);
    });
    if (!bron)
        return Mislukt(bron);
    in.bron = std::move(*bron);
    auto ontleed = OntleedXml(in.bron, pad, in.document, Xmlwit::Weg);
    return ontleed && HeeftStukken(in.document)
               ? OntleedXml(in.bron, pad, in.document, Xmlwit::Blijft)
               : ontleed;
}

Uitkomst<Ledenomzetting> Converteer(const Ledendocument& van, Nbbversie versie, Schijf& schijf,
                                    const Pad& tussenbestand, const Voortgang& voortgang)
{
    constexpr std::size_t elkeZoveel = 4096;
    Ledenomzetter omzetter(versie, van.bron);
    std::size_t gedaan = 0;
    VoorElkLid(van.document, [&](const pugi::xml_node& lid) {
        omzetter.VoegToe(lid);
        if (++gedaan % elkeZoveel == 0 && voortgang)
            voortgang(static_cast<std::size_t>(lid.offset_debug()), van.bron.size());
    });
    return SchrijfTussenregels(schijf, tussenbestand, std::move(omzetter.regels)).map([&] {
        return Ledenomzetting{omzetter.vervangen, std::nullopt};
    });
}

} // namespace

Uitkomst<Ledenomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                           const Pad& tussenbestand, const Voortgang& voortgang)
{
    Ledendocument document;
    return Laad(schijf, bestand, document).and_then([&] {
        return Converteer(document, Nbbversie::Drie, schijf, tussenbestand, voortgang);
    });
}

Uitkomst<Ledenomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                           const Pad& tussenbestand, const Voortgang& voortgang)
{
    Ledendocument document;
    const auto geladen = Laad(schijf, bestand, document);
    if (geladen)
        return Converteer(document, Nbbversie::Vier, schijf, tussenbestand, voortgang);
    return SchrijfTussenregels(schijf, tussenbestand, {}).map([&] {
        return Ledenomzetting{0, geladen.error()};
    });
}

} // namespace plexoran
