#include "federation/ledenxml.h"

#include <array>
#include <utility>

#include "federation/tussenbestand.h"
#include "platform/xml.h"

namespace plexoran {
namespace {

/// What an element of a member says.
enum class Xmlveld {
    Geen,
    NBBnr,
    Geslacht,
    Voornaam,
    Voorletters,
    Tussenvoegsel,
    Achternaam,
    Adres,
    Postcode,
    Plaats,
    Telefoon1,
    Telefoon2,
    Email,
};

struct Naamveld {
    std::string_view naam;
    Xmlveld veld;
};

constexpr std::array<Naamveld, 12> namenNbb4 = {{{"LeagueId", Xmlveld::NBBnr},
                                                 {"Geslacht", Xmlveld::Geslacht},
                                                 {"Voornaam", Xmlveld::Voornaam},
                                                 {"Voorletters", Xmlveld::Voorletters},
                                                 {"Tussenvoegsel", Xmlveld::Tussenvoegsel},
                                                 {"Achternaam", Xmlveld::Achternaam},
                                                 {"Adres", Xmlveld::Adres},
                                                 {"Postcode", Xmlveld::Postcode},
                                                 {"Plaats", Xmlveld::Plaats},
                                                 {"Telefoon1", Xmlveld::Telefoon1},
                                                 {"Telefoon2", Xmlveld::Telefoon2},
                                                 {"Email", Xmlveld::Email}}};

/// Element 0 is position 1.
constexpr std::array<Xmlveld, 15> plaatsenNbb3 = {
    Xmlveld::Achternaam,    Xmlveld::Adres,       Xmlveld::Geen,      Xmlveld::NBBnr,
    Xmlveld::Email,         Xmlveld::Geen,        Xmlveld::Geslacht,  Xmlveld::Geen,
    Xmlveld::Plaats,        Xmlveld::Postcode,    Xmlveld::Telefoon1, Xmlveld::Telefoon2,
    Xmlveld::Tussenvoegsel, Xmlveld::Voorletters, Xmlveld::Voornaam};

enum class Nbbversie { Drie, Vier };

Xmlveld VeldOpPlaats(const Xmlknoop& kind, std::size_t plaats)
{
    return plaats < plaatsenNbb3.size() && kind.IsElement() ? plaatsenNbb3[plaats] : Xmlveld::Geen;
}

/// Looks from `verwacht` on, which becomes the name behind the one found: members have their
/// elements in one order.
Xmlveld VeldMetNaam(const Xmlknoop& kind, std::size_t& verwacht)
{
    const std::string_view gezocht = kind.Naam();
    for (std::size_t i = 0; i < namenNbb4.size(); ++i) {
        const auto& [naam, veld] = namenNbb4[verwacht];
        verwacht = verwacht + 1 == namenNbb4.size() ? 0 : verwacht + 1;
        if (gezocht == naam)
            return veld;
    }
    return Xmlveld::Geen;
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

/// Turns one member after the other into lines, keeping its buffers.
class Ledenomzetter {
  public:
    Ledenomzetter(Nbbversie versie, std::size_t lengte) : versie_(versie)
    {
        constexpr std::size_t opmaak = 3; // of a document most is not text
        regels_.reserve(lengte / opmaak);
    }

    void VoegToe(const Xmlknoop& member)
    {
        for (Tekst& veld : lid_)
            veld.clear();
        telefoon2_.clear();
        std::size_t plaats = member.BegintMetTekst() ? 1 : 0;
        for (Xmlknoop kind = member.EersteKind(); kind; kind = kind.Volgende(), ++plaats)
            Vul(versie_ == Nbbversie::Drie ? VeldOpPlaats(kind, plaats)
                                           : VeldMetNaam(kind, verwacht_),
                kind);
        if (!telefoon2_.empty())
            Veld(Lidveld::Telefoon) = telefoon2_;
        if (versie_ == Nbbversie::Vier)
            PasAchternaamregelToe(Veld(Lidveld::Achternaam));
        VoegLidToe(regels_, lid_);
    }

    [[nodiscard]] std::size_t Vervangen() const { return vervangen_; }
    Tekst NeemRegels() { return std::move(regels_); }

  private:
    Tekst& Veld(Lidveld veld) { return lid_[static_cast<std::size_t>(veld)]; }

    void Vul(Xmlveld veld, const Xmlknoop& kind)
    {
        constexpr std::array<Lidveld, 10> gewone = {
            Lidveld::NBBnr,         Lidveld::Geslacht,   Lidveld::Voornaam, Lidveld::Voorletters,
            Lidveld::Tussenvoegsel, Lidveld::Achternaam, Lidveld::Adres,    Lidveld::Postcode,
            Lidveld::Plaats,        Lidveld::Telefoon};
        switch (veld) {
        case Xmlveld::Geen:
            return;
        case Xmlveld::Geslacht:
            vervangen_ += kind.LeesTekst(klad_);
            Veld(Lidveld::Geslacht) = GeslachtUit(klad_);
            return;
        case Xmlveld::Telefoon2: // wins, wherever it stands
            vervangen_ += kind.LeesTekst(klad_);
            if (!klad_.empty())
                telefoon2_ = klad_;
            return;
        case Xmlveld::Email:
            vervangen_ += kind.LeesTekst(Veld(Lidveld::Email));
            return;
        default:
            vervangen_ += kind.LeesTekst(Veld(gewone[static_cast<std::size_t>(veld) - 1]));
        }
    }

    Nbbversie versie_;
    Lidrij lid_;
    Tekst telefoon2_;
    Tekst klad_;
    Tekst regels_;
    std::size_t verwacht_ = 0;
    std::size_t vervangen_ = 0;
};

/// Calls `werk` for every member, in the order of the document.
template <class Werk> void VoorElkLid(const Xmldocument& document, const Werk& werk)
{
    const Xmlknoop wortel = document.Wortel();
    if (wortel.Naam() != "ReportableMembersList")
        return;
    for (Xmlknoop leden = wortel.EersteElement("Members"); leden;
         leden = leden.VolgendElement("Members")) {
        for (Xmlknoop lid = leden.EersteElement("ReportableMember"); lid;
             lid = lid.VolgendElement("ReportableMember"))
            werk(lid);
    }
}

Uitkomst<Xmldocument> Laad(Schijf& schijf, const Pad& bestand)
{
    return LeesBegrensd(schijf, bestand).and_then([&](const Tekst& bytes) {
        return Xmldocument::Ontleed(bytes, schijf.Toonpad(bestand));
    });
}

Uitkomst<Xmlomzetting> Converteer(const Xmldocument& document, Nbbversie versie, Schijf& schijf,
                                  const Pad& tussenbestand, const Voortgang& voortgang)
{
    constexpr std::size_t elkeZoveel = 4096;
    Ledenomzetter omzetter(versie, document.Lengte());
    std::size_t gedaan = 0;
    VoorElkLid(document, [&](const Xmlknoop& lid) {
        omzetter.VoegToe(lid);
        if (++gedaan % elkeZoveel == 0 && voortgang)
            voortgang(lid.Plaats(), document.Lengte());
    });
    return SchrijfTussenregels(schijf, tussenbestand, omzetter.NeemRegels()).map([&] {
        return Xmlomzetting{omzetter.Vervangen(), std::nullopt};
    });
}

} // namespace

Uitkomst<Xmlomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                         const Pad& tussenbestand, const Voortgang& voortgang)
{
    return Laad(schijf, bestand).and_then([&](const Xmldocument& document) {
        return Converteer(document, Nbbversie::Drie, schijf, tussenbestand, voortgang);
    });
}

Uitkomst<Xmlomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                         const Pad& tussenbestand, const Voortgang& voortgang)
{
    const auto document = Laad(schijf, bestand);
    if (document)
        return Converteer(*document, Nbbversie::Vier, schijf, tussenbestand, voortgang);
    return SchrijfTussenregels(schijf, tussenbestand, {}).map([&] {
        return Xmlomzetting{0, document.error()};
    });
}

} // namespace plexoran
