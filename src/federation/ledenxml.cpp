#include "federation/ledenxml.h"

#include <algorithm>
#include <array>
#include <utility>

#include <pugixml.hpp>

#include "federation/tussenbestand.h"
#include "platform/bronnen/xml.h"

namespace plexoran {
namespace {

/// What an element of a member says, beside the fields: what is passed over, and the telephone
/// number that wins.
constexpr auto Geen = static_cast<Lidveld>(AantalLidvelden);
constexpr auto Telefoon2 = static_cast<Lidveld>(AantalLidvelden + 1);

struct Naamveld {
    std::string_view naam;
    Lidveld veld;
};

constexpr std::array<Naamveld, 12> namenNbb4 = {{{"LeagueId", Lidveld::NBBnr},
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
constexpr std::array<Lidveld, 15> plaatsenNbb3 = {Lidveld::Achternaam,
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

Lidveld VeldMetNaam(std::string_view gezocht)
{
    const auto gevonden = std::find_if(namenNbb4.begin(), namenNbb4.end(),
                                       [&](const Naamveld& een) { return een.naam == gezocht; });
    return gevonden == namenNbb4.end() ? Geen : gevonden->veld;
}

/// A placeholder for someone's partner is one word.
void PasAchternaamregelToe(Tekst& achternaam)
{
    constexpr std::size_t lengte = 7;
    if (achternaam.empty() || Hoofdletter(achternaam.front()) != 'P')
        return; // the word takes all seven
    achternaam = ZonderRegeleinden(achternaam);
    const Tekstblik begin = ZonderSpaties(Tekstblik(achternaam).substr(0, lengte));
    if (Hoofdletters(begin) == "PARTNER")
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
        std::size_t plaats = *member.value() == '\0' ? 0 : 1; // a text at the front
        for (const pugi::xml_node& kind : member.children()) {
            if (IsWit(kind, bron_))
                continue;
            const Lidveld veld = Veld(kind, plaats++);
            if (veld == Geen)
                continue;
            Tekst tekst;
            vervangen_ += LeesTekst(kind, bron_, tekst);
            if (veld == Telefoon2 && !tekst.empty()) // wins, wherever it stands
                telefoon2 = std::move(tekst);
            else if (veld != Telefoon2)
                lid[static_cast<std::size_t>(veld)] =
                    veld == Lidveld::Geslacht ? GeslachtUit(tekst) : std::move(tekst);
        }
        if (!telefoon2.empty())
            lid[static_cast<std::size_t>(Lidveld::Telefoon)] = std::move(telefoon2);
        if (versie_ == Nbbversie::Vier)
            PasAchternaamregelToe(lid[static_cast<std::size_t>(Lidveld::Achternaam)]);
        VoegLidToe(regels_, lid);
    }

    [[nodiscard]] std::size_t Vervangen() const { return vervangen_; }
    Tekst NeemRegels() { return std::move(regels_); }

  private:
    [[nodiscard]] Lidveld Veld(const pugi::xml_node& kind, std::size_t plaats) const
    {
        if (kind.type() != pugi::node_element)
            return Geen;
        if (versie_ == Nbbversie::Vier)
            return VeldMetNaam(kind.name());
        return plaats < plaatsenNbb3.size() ? plaatsenNbb3[plaats] : Geen;
    }

    Nbbversie versie_;
    std::string_view bron_;
    Tekst regels_;
    std::size_t vervangen_ = 0;
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
        return tl::unexpected(std::move(bron.error()));
    in.bron = std::move(*bron);
    auto ontleed = OntleedXml(in.bron, pad, in.document, Xmlwit::Weg);
    return ontleed && HeeftStukken(in.document)
               ? OntleedXml(in.bron, pad, in.document, Xmlwit::Blijft)
               : ontleed;
}

Uitkomst<Xmlomzetting> Converteer(const Ledendocument& van, Nbbversie versie, Schijf& schijf,
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
    return SchrijfTussenregels(schijf, tussenbestand, omzetter.NeemRegels()).map([&] {
        return Xmlomzetting{omzetter.Vervangen(), std::nullopt};
    });
}

} // namespace

Uitkomst<Xmlomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                         const Pad& tussenbestand, const Voortgang& voortgang)
{
    Ledendocument document;
    return Laad(schijf, bestand, document).and_then([&] {
        return Converteer(document, Nbbversie::Drie, schijf, tussenbestand, voortgang);
    });
}

Uitkomst<Xmlomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                         const Pad& tussenbestand, const Voortgang& voortgang)
{
    Ledendocument document;
    const auto geladen = Laad(schijf, bestand, document);
    if (geladen)
        return Converteer(document, Nbbversie::Vier, schijf, tussenbestand, voortgang);
    return SchrijfTussenregels(schijf, tussenbestand, {}).map([&] {
        return Xmlomzetting{0, geladen.error()};
    });
}

} // namespace plexoran
