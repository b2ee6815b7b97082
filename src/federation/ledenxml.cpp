#include "federation/ledenbestand.h"

#include <algorithm>
#include <utility>

#include <pugixml.hpp>

#include "platform/bronnen/xml.h"
#include "register/spelertabel.h"

namespace plexoran {
namespace {

using namespace Lidveld;

/// What an element of a member says, beside the fields: what is passed over, and the telephone
/// number that wins.
constexpr std::size_t Geen = Lidveld::Aantal;
constexpr std::size_t Telefoon2 = Geen + 1;

constexpr std::array<std::pair<std::string_view, std::size_t>, 12> namenNbb4 = {
    {{"LeagueId", NBBnr},
     {"Geslacht", Geslacht},
     {"Voornaam", Voornaam},
     {"Voorletters", Voorletters},
     {"Tussenvoegsel", Tussenvoegsel},
     {"Achternaam", Achternaam},
     {"Adres", Adres},
     {"Postcode", Postcode},
     {"Plaats", Plaats},
     {"Telefoon1", Telefoon},
     {"Telefoon2", Telefoon2},
     {"Email", Email}}};

/// Element 0 is position 1.
constexpr std::array<std::size_t, 15> veldenNbb3 = {
    Achternaam, Adres,    Geen,     NBBnr,     Email,         Geen,        Geslacht, Geen,
    Plaats,     Postcode, Telefoon, Telefoon2, Tussenvoegsel, Voorletters, Voornaam};

enum class Nbbversie { Drie, Vier };

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
                lid[veld] = veld == Geslacht ? GeslachtUit(tekst) : std::move(tekst);
        }
        if (!telefoon2.empty())
            lid[Telefoon] = std::move(telefoon2);
        Tekst& achternaam = lid[Achternaam];
        if (versie_ == Nbbversie::Vier && IsPartner(achternaam))
            achternaam = Vervang(ZonderRegeleinden(achternaam), ' ', '_');
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
            std::ranges::find(namenNbb4, std::string_view(kind.name()),
                              &std::pair<std::string_view, std::size_t>::first);
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
