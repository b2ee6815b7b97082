// Players as cards for an address book, read back by a reader that knows nothing of the writer.
#include <map>

#include "exchange/uitvoerproef.h"

using namespace plexoran;

namespace {

const std::vector<Kolom> Alle{Kolom::Groep, Kolom::Telef,  Kolom::Email, Kolom::Adres,
                              Kolom::Postc, Kolom::Plaats, Kolom::Land,  Kolom::MV,
                              Kolom::Div1,  Kolom::Div2,   Kolom::NBBgr, Kolom::NBBnr};

Tekst Kaarten(const std::vector<Cellen>& spelers, Kaartversie versie = Kaartversie::Vier,
              const std::vector<Kolom>& kolommen = Alle)
{
    Uitvoerproef proef{MaakSpelers(spelers)};
    proef.groepen.ZetNaam(1, "Club; leden");
    return MaakVcards(proef.Van(kolommen), versie).value().value();
}

/// Whether bytes are UTF-8 by themselves, none cut off.
bool IsHeleUtf8(const std::string& regel)
{
    int nog = 0;
    for (const char teken : regel) {
        const auto byte = static_cast<unsigned char>(teken);
        if ((byte & 0xC0) == 0x80) {
            if (nog-- == 0)
                return false;
        } else if (nog != 0) {
            return false;
        } else {
            nog = byte < 0x80 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
        }
    }
    return nog == 0;
}

/// The parts of a value, with what was escaped put back.
std::vector<std::string> Delen(const std::string& waarde, char scheiding)
{
    std::vector<std::string> uit(1);
    for (std::size_t i = 0; i < waarde.size(); ++i) {
        if (waarde[i] == scheiding) {
            uit.emplace_back();
        } else if (waarde[i] == '\\') {
            ++i;
            uit.back() += waarde.at(i) == 'n' ? '\n' : waarde[i];
        } else {
            EXPECT_TRUE(scheiding == '\0' || (waarde[i] != ';' && waarde[i] != ',')) << waarde;
            uit.back() += waarde[i];
        }
    }
    return uit;
}

/// The properties of each card, by name with parameters; every line must be as the format has it.
using Gelezen = std::map<std::string, std::string>;
std::vector<Gelezen> Lees(const std::string& bestand)
{
    std::vector<std::string> regels;
    for (std::size_t begin = 0; begin < bestand.size();) {
        const auto eind = bestand.find("\r\n", begin);
        if (eind == std::string::npos) {
            ADD_FAILURE() << "de laatste regel heeft geen einde";
            break;
        }
        const std::string regel = bestand.substr(begin, eind - begin);
        EXPECT_LE(regel.size(), 75U);
        EXPECT_TRUE(IsHeleUtf8(regel)) << regel;
        EXPECT_EQ(std::string::npos, regel.find_first_of("\r\n"));
        if (regel.starts_with(' '))
            regels.back() += regel.substr(1);
        else
            regels.push_back(regel);
        begin = eind + 2;
    }
    std::vector<Gelezen> uit;
    bool open = false;
    for (const std::string& regel : regels) {
        bool binnen = false; // quotes, in which ":" does not end the name
        std::size_t plek = 0;
        while (plek < regel.size() && (binnen || regel[plek] != ':'))
            binnen ^= regel[plek++] == '"';
        const std::string naam = regel.substr(0, plek);
        const std::string waarde = regel.substr(plek + 1);
        if (naam == "BEGIN") {
            EXPECT_FALSE(std::exchange(open, true));
            uit.emplace_back();
        } else if (naam == "END") {
            EXPECT_TRUE(std::exchange(open, false));
        } else {
            EXPECT_TRUE(uit.back().emplace(naam, waarde).second) << naam;
        }
    }
    EXPECT_FALSE(open);
    return uit;
}

/// Under which name the number of this telephone stands.
std::string Soort(const Tekst& telefoon)
{
    const auto kaart = Lees(Kaarten({{{Kolom::Telef, telefoon}}})).at(0);
    for (const auto& [naam, waarde] : kaart) {
        if (naam.starts_with("TEL")) {
            EXPECT_EQ(telefoon, waarde);
            return naam;
        }
    }
    return "geen";
}

const Cellen Jan{{Kolom::Key, "100012"},
                 {Kolom::Groep, "Gr01-"},
                 {Kolom::Voornaam, "Jan"},
                 {Kolom::Tusv, "van den"},
                 {Kolom::Achternaam, "Berg"},
                 {Kolom::Telef, "06-12345678"},
                 {Kolom::Email, "jan@berg.nl"},
                 {Kolom::Adres, "Dorpsstraat 1; boven"},
                 {Kolom::Postc, "1234 AB"},
                 {Kolom::Plaats, "Ede"},
                 {Kolom::Land, "NL"},
                 {Kolom::MV, "M"},
                 {Kolom::Div1, "sleutel\\kast"},
                 {Kolom::NBBgr, "A-LIJN"},
                 {Kolom::NBBnr, "01234567"}};

} // namespace

TEST(Vcard, EenKaartVanVersie4)
{
    EXPECT_EQ("BEGIN:VCARD\r\n"
              "VERSION:4.0\r\n"
              "UID;VALUE=text:plexoran-100012\r\n"
              "FN:Jan van den Berg\r\n"
              "N;SORT-AS=\"Berg\":van den Berg;Jan;;;\r\n"
              "TEL;TYPE=cell:06-12345678\r\n"
              "EMAIL:jan@berg.nl\r\n"
              "ADR:;;Dorpsstraat 1\\; boven;Ede;;1234 AB;NL\r\n"
              "CATEGORIES:Club\\; leden,A-LIJN\r\n"
              "NOTE:NBBnr: 01234567\\nDiv1: sleutel\\\\kast\\nM/V: M\r\n"
              "END:VCARD\r\n",
              Kaarten({Jan}));
}

TEST(Vcard, EenKaartVanVersie3)
{
    const Tekst kaart = Kaarten({Jan}, Kaartversie::Drie);
    EXPECT_EQ("BEGIN:VCARD\r\n"
              "VERSION:3.0\r\n"
              "UID:plexoran-100012\r\n"
              "FN:Jan van den Berg\r\n"
              "N:van den Berg;Jan;;;\r\n"
              "SORT-STRING:Berg\r\n"
              "TEL;TYPE=cell:06-12345678\r\n",
              kaart.substr(0, kaart.find("EMAIL")));
    EXPECT_EQ(kaart.substr(kaart.find("EMAIL")),
              Kaarten({Jan}).substr(Kaarten({Jan}).find("EMAIL")));
}

TEST(Vcard, ZonderTussenvoegselWordtGewoonOpNaamGesorteerd)
{
    const auto kaart = Lees(Kaarten({{{Kolom::Voornaam, "An"}, {Kolom::Achternaam, "Bos"}}})).at(0);
    EXPECT_EQ("Bos;An;;;", kaart.at("N"));
    EXPECT_EQ(4U, kaart.size()) << "wat leeg is, staat er niet";
    EXPECT_EQ("An Bos", kaart.at("FN"));
}

TEST(Vcard, WieGeenNaamHeeftHeetNaarZijnSleutel)
{
    EXPECT_EQ("100013", Lees(Kaarten({{{Kolom::Key, "100013"}}})).at(0).at("FN"));
}

TEST(Vcard, EenMobielNummerIsTeZienAanZijnCijfers)
{
    for (const char* nummer : {"06-12345678", "0612345678", "+31612345678", "+31 6 1234 5678",
                               "+31 (0)6-12345678", "0031612345678", "(06) 12345678", "(+31)6 1"})
        EXPECT_EQ("TEL;TYPE=cell", Soort(nummer)) << nummer;
    for (const char* nummer : {"010-6123456", "0316-123456", "+31 10 6123456", "+32 6 12345678",
                               "31612345678", "geheim", "6", "0800-06"})
        EXPECT_EQ("TEL;TYPE=home", Soort(nummer)) << nummer;
    EXPECT_EQ("geen", Soort(""));
}

TEST(Vcard, WatNietGekozenIsStaatErNietOp)
{
    const auto kaart = Lees(Kaarten({Jan}, Kaartversie::Vier, {Kolom::Postc})).at(0);
    EXPECT_EQ(5U, kaart.size());
    EXPECT_EQ(";;;;;1234 AB;", kaart.at("ADR"));
    EXPECT_EQ("Jan van den Berg", kaart.at("FN"));
}

TEST(Vcard, EenGroepZonderNaamHeetNaarZijnCode)
{
    const auto kaarten = Lees(Kaarten({{{Kolom::Groep, "Gr02-"}},
                                       {{Kolom::Groep, "Gr99-"}, {Kolom::NBBgr, "B"}},
                                       {{Kolom::NBBgr, "C"}}}));
    EXPECT_EQ("Gr02-", kaarten.at(0).at("CATEGORIES"));
    EXPECT_EQ("Gr99-,B", kaarten.at(1).at("CATEGORIES"));
    EXPECT_EQ("C", kaarten.at(2).at("CATEGORIES"));
}

TEST(Vcard, LangeRegelsWordenTussenTekensGevouwen)
{
    for (std::size_t lengte = 60; lengte < 160; ++lengte) {
        const Tekst euros(lengte, '\x80'); // three bytes each
        std::string verwacht;
        for (std::size_t i = 0; i < lengte; ++i)
            verwacht += "\xE2\x82\xAC";
        EXPECT_EQ(verwacht, Lees(Kaarten({{{Kolom::Email, euros}}})).at(0).at("EMAIL"));
        EXPECT_EQ(std::string(lengte, 'x'),
                  Lees(Kaarten({{{Kolom::Email, Tekst(lengte, 'x')}}})).at(0).at("EMAIL"));
    }
    const Tekst precies = Kaarten({{{Kolom::Email, Tekst(69, 'x')}}}); // with "EMAIL:" 75
    EXPECT_EQ(std::string::npos, precies.find("\r\n "));
}

TEST(Vcard, ElkeTekstKomtTerug)
{
    const Tekst lastig = "a;b\\c:d\"e\\n";
    const auto kaart = Lees(Kaarten({{{Kolom::Voornaam, lastig},
                                      {Kolom::Tusv, "'t"},
                                      {Kolom::Achternaam, lastig},
                                      {Kolom::Adres, lastig},
                                      {Kolom::NBBgr, lastig},
                                      {Kolom::Telef, "a\tb\x01"}}}))
                           .at(0);
    const std::string naam = "N;SORT-AS=\"a;b\\c:d'e\\n\"";
    EXPECT_EQ((std::vector<std::string>{"'t " + lastig, lastig, "", "", ""}),
              Delen(kaart.at(naam), ';'));
    EXPECT_EQ(lastig, Delen(kaart.at("ADR"), ';').at(2));
    EXPECT_EQ(std::vector<std::string>{lastig}, Delen(kaart.at("CATEGORIES"), ','));
    EXPECT_EQ("a b ", kaart.at("TEL;TYPE=home"));
}

TEST(Vcard, HetIsTeStoppen)
{
    const Uitvoerproef proef{MaakSpelers(std::vector<Cellen>(1500))};
    EXPECT_EQ(std::nullopt,
              MaakVcards(proef.Van({Kolom::Key}), Kaartversie::Vier, StoptMeteen()).value());
}
