#include <array>

#include "exchange/uitvoer.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

/// A value as it may stand in a line; blanks for control characters, which have no place there.
Tekst Waarde(Tekstblik tekst)
{
    constexpr unsigned char eersteTeken = 0x20;
    Tekst uit;
    for (const char teken : ZonderSpaties(tekst)) {
        if (teken == '\\' || teken == ',' || teken == ';')
            uit += '\\';
        if (teken == '\n')
            uit += "\\n";
        else
            uit += static_cast<unsigned char>(teken) < eersteTeken || teken == '\x7F' ? ' ' : teken;
    }
    return uit;
}

/// Folded between characters: a line has at most 75 bytes, and goes on behind a blank.
void VoegRegelToe(std::string& uit, Tekstblik regel)
{
    constexpr std::size_t langste = 75;
    const std::string utf8 = NaarUtf8(regel);
    std::string_view rest = utf8;
    for (std::size_t ruimte = langste; rest.size() > ruimte; ruimte = langste - 1) {
        std::size_t eind = ruimte;
        while ((static_cast<unsigned char>(rest[eind]) & 0xC0U) == 0x80U)
            --eind;
        uit.append(rest.substr(0, eind)).append("\r\n ");
        rest.remove_prefix(eind);
    }
    uit.append(rest).append("\r\n");
}

/// By its first digits: 06, or 6 behind the number of the Netherlands.
bool IsMobiel(Tekstblik nummer)
{
    const auto begin = nummer.find_first_of("+0123456789");
    Tekst cijfers(begin != Tekstblik::npos && nummer[begin] == '+' ? "00" : "");
    for (const char teken : nummer) {
        if (IsCijfer(teken))
            cijfers += teken;
    }
    return cijfers.starts_with("06") || cijfers.starts_with("00316") ||
           cijfers.starts_with("003106"); // as in +31 (0)6
}

class Kaart {
  public:
    Kaart(const Uitvoer& uitvoer, Kaartversie versie, int rij)
        : uitvoer_(uitvoer), versie4_(versie == Kaartversie::Vier), rij_(rij)
    {
        for (const Kolom kolom : uitvoer.kolommen)
            gekozen_[Index(kolom)] = true;
    }

    void VoegToe(std::string& uit) const
    {
        const auto voeg = [&](Tekstblik eigenschap, const Tekst& waarde) {
            if (!waarde.empty())
                VoegRegelToe(uit, Tekst(eigenschap).append(":").append(waarde));
        };
        voeg("BEGIN", "VCARD");
        voeg("VERSION", versie4_ ? "4.0" : "3.0");
        voeg(versie4_ ? "UID;VALUE=text" : "UID", "plexoran-" + Waarde(Cel(Kolom::Key)));
        VoegNaam(voeg);
        const Tekstblik telefoon = Gekozen(Kolom::Telef);
        voeg(IsMobiel(telefoon) ? "TEL;TYPE=cell" : "TEL;TYPE=home", Waarde(telefoon));
        voeg("EMAIL", Waarde(Gekozen(Kolom::Email)));
        voeg("ADR", Adres());
        voeg("CATEGORIES", Groepen());
        voeg("NOTE", Waarde(Opmerking()));
        voeg("END", "VCARD");
    }

  private:
    [[nodiscard]] Tekstblik Cel(Kolom kolom) const { return uitvoer_.tabel.Cel(rij_, kolom); }
    [[nodiscard]] Tekstblik Gekozen(Kolom kolom) const
    {
        return gekozen_[Index(kolom)] ? Cel(kolom) : Tekstblik();
    }
    /// The particle belongs to the surname, and does not count where cards are sorted.
    template <class Voeg> void VoegNaam(const Voeg& voeg) const
    {
        const Tekst naam = Waarde(VolleNaam(uitvoer_.tabel, rij_));
        voeg("FN", naam.empty() ? Waarde(Cel(Kolom::Key)) : naam);
        const Tekst achter = Waarde(Cel(Kolom::Achternaam));
        const Tekst tussen = Waarde(Cel(Kolom::Tusv));
        const Tekst heel = tussen.empty() ? achter : tussen + ' ' + achter;
        const bool anders = !tussen.empty() && !achter.empty();
        voeg(versie4_ && anders ? "N;SORT-AS=\"" + Vervang(Cel(Kolom::Achternaam), '"', '\'') + '"'
                                : "N",
             heel + ';' + Waarde(Cel(Kolom::Voornaam)) + ";;;");
        if (!versie4_ && anders)
            voeg("SORT-STRING", achter);
    }
    [[nodiscard]] Tekst Adres() const
    {
        const Tekst uit = ";;" + Waarde(Gekozen(Kolom::Adres)) + ';' +
                          Waarde(Gekozen(Kolom::Plaats)) + ";;" + Waarde(Gekozen(Kolom::Postc)) +
                          ';' + Waarde(Gekozen(Kolom::Land));
        return uit == ";;;;;;" ? Tekst() : uit;
    }
    /// By the name of the group where it has one.
    [[nodiscard]] Tekst Groepen() const
    {
        const Tekstblik code = Gekozen(Kolom::Groep);
        const int nummer = Groepnummer(code);
        const Tekst naam = nummer == 0 ? Tekst() : uitvoer_.groepen.Naam(nummer);
        Tekst uit = Waarde(IsBlanco(naam) ? Tekst(code) : naam);
        if (const Tekst subgroep = Waarde(Gekozen(Kolom::NBBgr)); !subgroep.empty())
            uit += (uit.empty() ? "" : ",") + subgroep;
        return uit;
    }
    /// What a card has no place of its own for.
    [[nodiscard]] Tekst Opmerking() const
    {
        Tekst uit;
        for (const Kolom kolom :
             {Kolom::NBBnr, Kolom::Div1, Kolom::Div2, Kolom::Status, Kolom::MV}) {
            if (const Tekstblik tekst = Gekozen(kolom); !IsBlanco(tekst))
                uit.append(uit.empty() ? "" : "\n")
                    .append(Kolomnamen[Index(kolom)])
                    .append(": ")
                    .append(ZonderSpaties(tekst));
        }
        return uit;
    }

    const Uitvoer& uitvoer_;
    bool versie4_;
    int rij_;
    std::array<bool, AantalKolommen> gekozen_{};
};

} // namespace

Uitvoerbytes MaakVcards(const Uitvoer& uitvoer, Kaartversie versie, const Voortgang& voortgang)
{
    std::string uit;
    for (std::size_t i = 0; i < uitvoer.rijen.size(); ++i) {
        if (!MagDoor(voortgang, i, uitvoer.rijen.size()))
            return std::nullopt;
        Kaart(uitvoer, versie, uitvoer.rijen[i]).VoegToe(uit);
    }
    return uit;
}

} // namespace plexoran
