#include "hulp/register.h"

#include <array>

#include "register/groepen.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

// Accented letters are those of Windows-1252, in octal: a hexadecimal escape would swallow a letter
// that follows it.
constexpr std::array<Tekstblik, 24> voornamen{
    "Willem", "Ineke",    "Ren\351e", "Zo\353",         "Fran\347ois", "Gerrit Jan",
    "Trudy",  "J\374rg",  "Ad",       "Maria Theresia", "Bo",          "Corrie",
    "Hennie", "Andr\351", "Loes",     "Pieter Bas",     "Ria",         "Th\351r\350se",
    "Kees",   "Annelies", "Jo\353l",  "Frederik",       "Mieke",       "Dani\353lle"};
constexpr std::array<Tekstblik, 8> tussenvoegsels{"", "", "", "van", "de", "van der", "", "ten"};
constexpr std::array<Tekstblik, 24> achternamen{
    "Kuipersma",    "Horst-Blaauw", "Wolthuizen",  "M\374ller", "Delacourtine", "Eikelenboom",
    "Bru\377n",     "Broekhoven",   "Ek",          "Co\353lho", "Zandbergen",   "Overdiep-Smit",
    "Gr\366nveld",  "Tichelaar",    "Nieuwenhuis", "Lageveen",  "Pruijs",       "Hoekzema",
    "Oudekerk-Bal", "Rietdijk",     "Santegoeds",  "Vermeulen", "IJpelaar",     "Den Boer"};
constexpr std::array<Tekstblik, 12> straten{"Singelpad",        "Zuidereind",     "Tramkade",
                                            "De Dissel",        "Graanstraat",    "Dorpsstraat",
                                            "Hof \222t Laer",   "Oude Trekvaart", "Caf\351hoek",
                                            "Meester Bolplein", "Koekoekslaan",   "Brink"};
constexpr std::array<Tekstblik, 8> plaatsen{"Elzenmade",  "Wielerdam",  "Kraaienhage",
                                            "Oosterdorp", "Zuilenkamp", "Sint Bo\353lle",
                                            "Den Horn",   "Laar"};
constexpr std::array<Tekstblik, 5> postbussen{"brievenbus.example", "wielerpost.example",
                                              "thuispost.example", "elzennet.example",
                                              "club.example"};
constexpr std::array<Tekstblik, 10> functies{"", "", "", "",       "Penningmeester",
                                             "", "", "", "Barcie", ""};
constexpr std::array<Tekstblik, 10> opmerkingen{"", "", "", "", "", "contributie \200 85",
                                                "", "", "", ""};
constexpr std::array<Tekstblik, 2> geslachten{"M", "V"};
constexpr std::array<Tekstblik, 3> lijnen{"A-LIJN", "B-LIJN", "C-LIJN"};

/// The same numbers everywhere, which the standard library's distributions do not promise.
class Dobbelsteen {
  public:
    /// From 0 up to `zijden`, exclusive.
    std::size_t Gooi(std::size_t zijden)
    {
        stand_ = stand_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::size_t>(stand_ >> 33U) % zijden;
    }

    template <std::size_t N> Tekstblik Kies(const std::array<Tekstblik, N>& uit)
    {
        return uit[Gooi(N)];
    }

  private:
    std::uint64_t stand_ = 20;
};

Tekst Kleingeschreven(Tekstblik naam)
{
    Tekst uit;
    for (const char teken : naam) {
        if (teken >= 'A' && teken <= 'Z')
            uit += static_cast<char>(teken - 'A' + 'a');
        else if (teken >= 'a' && teken <= 'z')
            uit += teken;
    }
    return uit;
}

Tekst Postadres(const Rijvelden& velden, Tekstblik bus)
{
    Tekst uit = Kleingeschreven(velden[Index(Kolom::Voornaam)]);
    uit += '.';
    uit += Kleingeschreven(velden[Index(Kolom::Achternaam)]);
    uit += '@';
    uit += bus;
    return uit;
}

Rijvelden MaakSpeler(Dobbelsteen& dobbelsteen, int nummer, Verdeling verdeling)
{
    const auto getal = [&](std::size_t vanaf, std::size_t zijden) {
        return std::to_string(vanaf + dobbelsteen.Gooi(zijden));
    };
    Rijvelden velden;
    const auto veld = [&](Kolom kolom) -> Tekst& { return velden[Index(kolom)]; };
    const int groep = 1 + static_cast<int>(dobbelsteen.Gooi(AantalGroepen));
    veld(Kolom::Nr) = std::to_string(nummer);
    veld(Kolom::Key) = std::to_string(Sleutelbasis + nummer);
    veld(Kolom::Groep) = Groepscode(verdeling == Verdeling::EenGroep ? 1 : groep);
    veld(Kolom::Voornaam) = dobbelsteen.Kies(voornamen);
    veld(Kolom::Tusv) = dobbelsteen.Kies(tussenvoegsels);
    veld(Kolom::Achternaam) = dobbelsteen.Kies(achternamen);
    veld(Kolom::Telef) = "06-";
    veld(Kolom::Telef) += getal(10'000'000, 90'000'000);
    if (dobbelsteen.Gooi(10) > 0)
        veld(Kolom::Email) = Postadres(velden, dobbelsteen.Kies(postbussen));
    veld(Kolom::Adres) = dobbelsteen.Kies(straten);
    veld(Kolom::Adres).append(" ").append(getal(1, 250));
    veld(Kolom::Postc) = getal(1000, 9000);
    veld(Kolom::Postc).append(" ").append(2, static_cast<char>('A' + dobbelsteen.Gooi(26)));
    veld(Kolom::Plaats) = dobbelsteen.Kies(plaatsen);
    veld(Kolom::MV) = dobbelsteen.Kies(geslachten);
    veld(Kolom::Div1) = dobbelsteen.Kies(functies);
    veld(Kolom::Div2) = dobbelsteen.Kies(opmerkingen);
    if (dobbelsteen.Gooi(40) == 0)
        veld(Kolom::Status) = "overleden";
    veld(Kolom::NBBgr) = dobbelsteen.Kies(lijnen);
    veld(Kolom::NBBnr) = getal(1'000'000, 9'000'000);
    return velden;
}

} // namespace

Tekst MaakRegister(int spelers, Verdeling verdeling)
{
    constexpr std::size_t ruimeRegel = 150;
    Tekst tekst;
    tekst.reserve(ruimeRegel * static_cast<std::size_t>(spelers + 1));
    tekst += "HKEY=" + std::to_string(Sleutelbasis + spelers) + "\r\n";
    Dobbelsteen dobbelsteen;
    for (int nummer = 1; nummer <= spelers; ++nummer) {
        for (const Tekst& veld : MaakSpeler(dobbelsteen, nummer, verdeling)) {
            tekst += veld;
            tekst += ',';
        }
        tekst.back() = '\r';
        tekst += '\n';
    }
    return tekst;
}

Tekst MaakRegister(int spelers, Verdeling verdeling,
                   const std::function<void(Spelertabel& tabel, int rij)>& zet)
{
    Register uit;
    uit.HKEY = Sleutelbasis + spelers;
    uit.tabel = SpelersUit(MaakRegister(spelers, verdeling)).tabel.value_or(Spelertabel());
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij)
        zet(uit.tabel, rij);
    return SpelersTekst(uit);
}

} // namespace plexoran
