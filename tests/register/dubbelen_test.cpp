#include "register/dubbelen.h"

#include <gtest/gtest.h>

#include "register/itemmenging.h"
#include "register/spelerbestand.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

/// A player on a line of the file, in Gr01- unless the test needs another group.
struct Speler {
    Tekst voornaam;
    Tekst tusv;
    Tekst achternaam;
    Tekst telefoon{};
    Tekst mail{};
    Tekst nbbnr{};
    Tekst groep = "Gr01-";
    Tekst geslacht = "M";
    Tekst div2{};
};

/// With the keys 100001 and up.
Spelertabel Tabel(const std::vector<Speler>& spelers)
{
    Tekst tekst = "HKEY=100900\r\n";
    int nummer = 0;
    for (const Speler& wie : spelers) {
        const Tekst nr = std::to_string(++nummer);
        tekst += nr + "," + std::to_string(100000 + nummer) + "," + wie.groep + "," + wie.voornaam +
                 "," + wie.tusv + "," + wie.achternaam + "," + wie.telefoon + "," + wie.mail +
                 ",,,,," + wie.geslacht + ",," + wie.div2 + ",,," + wie.nbbnr + "\r\n";
    }
    return SpelersUit(tekst).tabel.value();
}

/// Each pair, a line, with its reasons: "1-2 naam telefoon".
Tekst Gevonden(const std::vector<Speler>& spelers, const Sleutelparen& geen = {})
{
    constexpr std::array woorden{"nummer",        "mail",        "naam",       "accent",
                                 "tussenvoegsel", "omgewisseld", "voorletter", "letter",
                                 "telefoon",      "andernummer", "kopie"};
    Tekst uit;
    const auto uitslag = ZoekDubbelen(Tabel(spelers), geen);
    EXPECT_FALSE(uitslag.gestopt);
    for (const Dubbelpaar& paar : uitslag.paren) {
        uit += std::to_string(paar.rij) + "-" + std::to_string(paar.latere);
        for (std::size_t i = 0; i < woorden.size(); ++i)
            uit += paar.redenen[i] ? Tekst(" ") + woorden.at(i) : Tekst();
        uit += "\n";
    }
    return uit;
}

} // namespace

// --- what makes a pair ---

TEST(Dubbelen, NiemandLijktOpEenAnder)
{
    EXPECT_EQ("", Gevonden({}));
    EXPECT_EQ("", Gevonden({{"Jan", "", "Bos"}, {"Els", "", "Bos"}, {"Jan", "de", "Wit"}}));
}

TEST(Dubbelen, HetzelfdeNummerHoeHetOokGeschrevenIs)
{
    EXPECT_EQ("1-2 nummer\n", Gevonden({{"Jan", "", "Bos", "", "", "1234567"},
                                        {"Els", "", "Wit", "", "", " 01234567"}}));
    EXPECT_EQ("", Gevonden({{"Jan", "", "Bos", "", "", "0"}, {"Els", "", "Wit", "", "", "00"}}));
    EXPECT_EQ("1-2 nummer\n",
              Gevonden({{"Jan", "", "Bos", "", "", "N12"}, {"Els", "", "Wit", "", "", "N12"}}));
}

TEST(Dubbelen, DezelfdeNaamInDezelfdeGroep)
{
    EXPECT_EQ("1-3 naam\n", Gevonden({{"Jan", "", "Bos"}, {"Els", "", "Tol"}, {"jan", "", "BOS"}}));
    EXPECT_EQ("1-2 naam\n", Gevonden({{"Jan", "van", "Dijk"}, {"Jan", "", "van Dijk"}}));
    EXPECT_EQ("1-2 naam\n", Gevonden({{"", "", "Bos"}, {"", "", "Bos"}}));
}

TEST(Dubbelen, OpAccentenEnTekensNa)
{
    EXPECT_EQ("1-2 accent\n", Gevonden({{"Ren\xE9", "", "M\xFCller"}, {"Rene", "", "Muller"}}));
    EXPECT_EQ("1-2 accent\n", Gevonden({{"Jan-Piet", "", "Bos"}, {"Jan Piet", "", "Bos"}}));
}

TEST(Dubbelen, OpHetTussenvoegselNa)
{
    for (const Speler& ander : {Speler{"Jan", "", "Berg"}, Speler{"Jan", "v.d.", "Berg"},
                                Speler{"Jan", "", "van den Berg"}})
        EXPECT_EQ("1-2 tussenvoegsel\n", Gevonden({{"Jan", "van de", "Berg"}, ander}));
    EXPECT_EQ("", Gevonden({{"Jan", "", "Van"}, {"Jan", "", "De"}})) << "names of their own";
}

TEST(Dubbelen, VoornaamEnAchternaamOmgewisseld)
{
    EXPECT_EQ("1-2 omgewisseld\n", Gevonden({{"Jan", "", "Bos"}, {"Bos", "", "Jan"}}));
    EXPECT_EQ("1-2 omgewisseld\n", Gevonden({{"Jan", "van", "Dijk"}, {"van D\xEFjk", "", "Jan"}}));
}

TEST(Dubbelen, VoorlettersTegenVoornamen)
{
    for (const char* voorletters : {"J.", "J", "J.P.", "j p", "Ja."})
        EXPECT_EQ("1-2 voorletter\n", Gevonden({{"Jan", "", "Bos"}, {voorletters, "", "Bos"}}))
            << voorletters;
    EXPECT_EQ("1-2 voorletter\n", Gevonden({{"J.", "", "Bos"}, {"J.P.", "", "Bos"}}));
    EXPECT_EQ("1-2 voorletter\n", Gevonden({{"Jan Piet", "de", "Bos"}, {"J.P.", "", "Bos"}}));
    EXPECT_EQ("1-2 voorletter\n", Gevonden({{"Th.", "", "Bos"}, {"Theo", "", "Bos"}}));
    EXPECT_EQ("2-3 voorletter\n",
              Gevonden({{"Jan", "", "Bos"}, {"D.J.", "", "Bos"}, {"Dirk Jan", "", "Bos"}}));
    for (const char* anders : {"K.", "J.K.", "P.J."})
        EXPECT_EQ("", Gevonden({{"Jan Piet", "", "Bos"}, {anders, "", "Bos"}})) << anders;
    EXPECT_EQ("", Gevonden({{"J.", "", "Bos"}, {"K.", "", "Bos"}}));
    EXPECT_EQ("", Gevonden({{"Jan", "", "Bos"}, {"", "", "Bos"}})) << "no first name";
}

TEST(Dubbelen, EenLetterMeerMinderAndersOfVerwisseld)
{
    for (const char* achternaam : {"Janssen", "Jansn", "Jonsen", "Jnasen", "XJansen"})
        EXPECT_EQ("1-2 letter\n", Gevonden({{"Piet", "", "Jansen"}, {"Piet", "de", achternaam}}))
            << achternaam;
    EXPECT_EQ("1-2 letter\n", Gevonden({{"Pieter", "", "Bos"}, {"Peter", "", "Bos"}}));
    EXPECT_EQ("1-2 letter\n", Gevonden({{"Gerrit Jan", "", "Bos"}, {"Gerritjan", "", "Bos"}}));
    EXPECT_EQ("", Gevonden({{"Gast 1", "", "Club"}, {"Gast 2", "", "Club"}})) << "no letter";
    EXPECT_EQ("", Gevonden({{"Piet", "", "Jansen"}, {"Piet", "", "Janzzen"}}));
    EXPECT_EQ("", Gevonden({{"Piet", "", "Jansen"}, {"Pier", "", "Janzen"}}));
}

TEST(Dubbelen, HetzelfdeMailadres)
{
    EXPECT_EQ("1-2 mail\n", Gevonden({{"Els", "", "Bos", "", "els@bos.example"},
                                      {"E.", "de", "Wit", "", "Els@BOS.example "}}));
    EXPECT_EQ("", Gevonden({{"Els", "", "Bos", "", "geen"}, {"Els", "de", "Wit", "", "geen"}}));
}

TEST(Dubbelen, HetzelfdeTelefoonnummerMetEenNaamDieLijkt)
{
    EXPECT_EQ("1-2 voorletter telefoon\n",
              Gevonden({{"Els", "", "Bos", "06-12345678"}, {"E.", "", "Bos", "+31 6 1234 5678"}}));
    EXPECT_EQ("1-2 telefoon\n", Gevonden({{"Els", "", "Bos", "0612345678"},
                                          {"Els", "", "de Wit-Bos", "06 12345678"}}));
    EXPECT_EQ("", Gevonden({{"Els", "", "Bos", "0612345678"}, {"Els", "", "Tol", "0612345678"}}));
    EXPECT_EQ("", Gevonden({{"Els", "", "Bos", "123"}, {"Els", "", "de Wit-Bos", "123"}}));
}

TEST(Dubbelen, EenHuishoudenMetAndereVoornamenIsGeenDubbel)
{
    const Tekst telefoon = "0612345678";
    const Tekst mail = "bos@thuis.example";
    EXPECT_EQ("", Gevonden({{"Jan", "", "Bos", telefoon, mail},
                            {"Els", "", "Bos", telefoon, mail},
                            {"P.", "", "Bos", telefoon, mail}}));
    EXPECT_EQ("", Gevonden({{"J.", "", "Bos", telefoon, mail}, {"E.", "", "Bos", telefoon, mail}}));
    EXPECT_EQ("",
              Gevonden({{"Ria", "", "Bos", telefoon, mail}, {"Mia", "", "Bos", telefoon, mail}}))
        << "one letter, and another initial";
    EXPECT_EQ("1-2 letter\n", Gevonden({{"Ria", "", "Bos"}, {"Mia", "", "Bos"}})) << "no household";
    EXPECT_EQ("1-2 mail letter telefoon\n",
              Gevonden({{"Kees", "", "Bos", telefoon, mail}, {"Cees", "", "Bos", telefoon, mail}}));
}

TEST(Dubbelen, VaderEnZoonZijnGeenDubbel)
{
    const Tekst mail = "bos@thuis.example";
    for (const Speler& zoon :
         {Speler{"Jan jr.", "", "Bos", "", mail}, Speler{"Jan", "", "Bos jr", "", mail},
          Speler{"J.", "", "Bos Junior", "", mail}})
        EXPECT_EQ("", Gevonden({{"Jan", "", "Bos", "", mail}, zoon})) << zoon.voornaam;
    EXPECT_EQ("", Gevonden({{"Jan", "", "Bos", "", mail, "", "Gr01-", "M", "senior"},
                            {"Jan", "", "Bos", "", mail, "", "Gr01-", "M", "is de junior."}}));
    EXPECT_EQ("1-2 nummer\n", Gevonden({{"Jan", "", "Bos", "", "", "1234567"},
                                        {"Jan jr.", "", "Bos", "", "", "1234567"}}));
    EXPECT_EQ("1-2 mail voorletter\n",
              Gevonden({{"Jan", "", "Bos jr", "", mail}, {"J.", "", "Bos jr", "", mail}}));
}

TEST(Dubbelen, EenManEnEenVrouwZijnGeenDubbel)
{
    const Tekst telefoon = "0612345678";
    const Tekst mail = "bos@thuis.example";
    const auto paar = [&](const char* man, const char* vrouw) {
        return Gevonden({{man, "", "Bos", telefoon, mail, "", "Gr01-", "M"},
                         {vrouw, "", "Bos", telefoon, mail, "", "Gr01-", "v"}});
    };
    for (const auto& [man, vrouw] : {std::pair{"Paul", "Paula"}, std::pair{"Wim", "Wil"},
                                     std::pair{"J.", "Joke"}, std::pair{"J.", "J."}})
        EXPECT_EQ("", paar(man, vrouw)) << man << vrouw;
    EXPECT_EQ("1-2 mail naam telefoon\n", paar("Anne", "Anne")) << "a mistyped letter";
    EXPECT_EQ("", Gevonden({{"Paul", "", "Bos"}, {"Paula", "", "Bos", "", "", "", "Gr01-", "V"}}));
}

TEST(Dubbelen, ZonderVoornaamMoetOokDeAchternaamLijken)
{
    const Tekst mail = "bos@thuis.example";
    EXPECT_EQ("", Gevonden({{"", "", "Bos", "", mail}, {"Els", "", "Tol", "", mail}}));
    EXPECT_EQ("1-2 mail\n", Gevonden({{"", "", "Bos", "", mail}, {"Els", "", "Bos", "", mail}}));
}

// --- which comes first ---

TEST(Dubbelen, DeBesteEerst)
{
    EXPECT_EQ("1-5 nummer naam\n"
              "3-4 naam telefoon\n"
              "2-6 voorletter\n"
              "1-7 naam andernummer\n"
              "5-7 naam andernummer\n",
              Gevonden({{"Jan", "", "Bos", "", "", "1234567"},
                        {"Truus", "", "Eik"},
                        {"Wim", "", "Tol", "0612345678"},
                        {"Wim", "", "Tol", "0612345678"},
                        {"Jan", "", "Bos", "", "", "1234567"},
                        {"T.", "", "Eik"},
                        {"Jan", "", "Bos", "", "", "7654321"}}));
}

/// The federation knows them as two, who share a name and a house.
TEST(Dubbelen, TweeNummersGaanVoorAlleGelijkenis)
{
    const Tekst mail = "bos@thuis.example";
    EXPECT_EQ("3-4 voorletter\n1-2 mail naam telefoon andernummer\n",
              Gevonden({{"Jan", "", "Bos", "0612345678", mail, "1234567"},
                        {"Jan", "", "Bos", "0612345678", mail, "7654321"},
                        {"Truus", "", "Eik"},
                        {"T.", "", "Eik"}}));
}

/// Initials may be anybody's there; and people share a telephone and an address.
TEST(Dubbelen, EenHuisadresMaaktVanGelijkendeVoornamenNietDeBeste)
{
    const Tekst mail = "bos@thuis.example";
    EXPECT_EQ("4-5 naam\n1-2 mail voorletter telefoon\n1-3 mail voorletter telefoon\n"
              "6-7 mail letter telefoon\n",
              Gevonden({{"J.", "", "Bos", "0612345678", mail},
                        {"Jan", "", "Bos", "0612345678", mail},
                        {"Joke", "", "Bos", "0612345678", mail, "", "Gr01-", ""},
                        {"Wim", "", "Tol"},
                        {"Wim", "", "Tol"},
                        {"Kees", "", "Eik", "0687654321", "eik@thuis.example"},
                        {"Cees", "", "Eik", "0687654321", "eik@thuis.example"}}));
}

TEST(Dubbelen, EenKopieInEenAndereGroepStaatAchteraan)
{
    EXPECT_EQ("3-4 voorletter\n"
              "1-5 letter\n"
              "2-5 letter\n"
              "1-2 kopie\n",
              Gevonden({{"Jan", "", "Bos", "0612345678", "", "1234567", "Gr05-"},
                        {"Jan", "", "Bos", "0612345678", "", "", "Gr01-"},
                        {"Truus", "", "Eik"},
                        {"T.", "", "Eik"},
                        {"Jan", "", "Vos", "", "", "", "Gr02-"}}));
    EXPECT_EQ("1-2 naam telefoon\n",
              Gevonden({{"Jan", "", "Bos", "0612345678"}, {"Jan", "", "Bos", "0612345678"}}))
        << "in one group they are doubles";
    EXPECT_EQ("1-2 naam\n", Gevonden({{"Jan", "", "Bos", "0612345678", "", "", "Gr05-"},
                                      {"Jan", "", "Bos", "0687654321", "", "", "Gr01-"}}))
        << "no copy any more";
    EXPECT_EQ("1-2 naam andernummer\n", Gevonden({{"Jan", "", "Bos", "", "", "1234567", "Gr05-"},
                                                  {"Jan", "", "Bos", "", "", "7654321", "Gr01-"}}));
}

TEST(Dubbelen, WatGeenDubbelIsKomtNietTerug)
{
    const std::vector<Speler> drie(3, {"Jan", "", "Bos"});
    EXPECT_EQ("1-2 naam\n2-3 naam\n", Gevonden(drie, {{"100001", "100003"}}));
}

// --- many ---

TEST(Dubbelen, WatVeelSpelersGemeenHebbenTeltNiet)
{
    std::vector<Speler> spelers(MeesteGelijken, {"Jan", "", "Bos"});
    auto uitslag = ZoekDubbelen(Tabel(spelers), {});
    EXPECT_EQ(MeesteGelijken * (MeesteGelijken - 1) / 2, uitslag.paren.size());
    EXPECT_FALSE(uitslag.teVaak);
    spelers.push_back({"Jan", "", "Bos", "0612345678"});
    spelers[7].telefoon = "0612345678";
    uitslag = ZoekDubbelen(Tabel(spelers), {});
    EXPECT_TRUE(uitslag.teVaak);
    ASSERT_EQ(1U, uitslag.paren.size());
    EXPECT_EQ(8, uitslag.paren[0].rij);
}

TEST(Dubbelen, VanTeVeelBlijvenDeBeste)
{
    std::vector<Speler> spelers;
    for (const char* achternaam : {"Bos", "Eik", "Tol", "Wit", "Dam"})
        spelers.insert(spelers.end(), MeesteGelijken, {"Jan", "", achternaam});
    spelers.front().mail = spelers.back().mail = "jan@bos.example";
    const auto uitslag = ZoekDubbelen(Tabel(spelers), {});
    ASSERT_EQ(MeesteParen, uitslag.paren.size());
    EXPECT_EQ(5 * 1225 + 1 - MeesteParen, uitslag.meer);
    EXPECT_TRUE(uitslag.paren.front().Heeft(Dubbelreden::Naam));
}

TEST(Dubbelen, ZoekenKanWordenGestopt)
{
    const Spelertabel tabel = Tabel(std::vector<Speler>(3000, {"Jan", "", "Bos"}));
    std::size_t keren = 0;
    while (true) {
        std::size_t nog = ++keren;
        std::size_t vorige = 0;
        const auto uitslag = ZoekDubbelen(tabel, {}, [&](std::size_t gedaan, std::size_t geheel) {
            EXPECT_LE(vorige, gedaan);
            EXPECT_LE(gedaan, geheel);
            vorige = gedaan;
            return --nog > 0;
        });
        if (!uitslag.gestopt)
            break;
    }
    EXPECT_GT(keren, 4U);
}

// --- one row of two ---

TEST(Dubbelen, DeGekozenVeldenOpDeRijDieBlijft)
{
    Spelertabel tabel = Tabel({{"Els", "", "Wit"}, {"J.", "", "Bos", "06-1"}, {"Jan", "", "Bos"}});
    Rijvelden velden = tabel.Velden(3);
    velden[Index(Kolom::Telef)] = "06-1";
    VoegDubbelSamen(tabel, 2, 3, velden);
    ASSERT_EQ(2, tabel.Rijen());
    EXPECT_EQ("100002", tabel.Cel(2, Kolom::Key));
    EXPECT_EQ("Jan", tabel.Cel(2, Kolom::Voornaam));
    EXPECT_EQ("06-1", tabel.Cel(2, Kolom::Telef));
    tabel = Tabel({{"Els", "", "Wit"}, {"J.", "", "Bos", "06-1"}, {"Jan", "", "Bos"}});
    VoegDubbelSamen(tabel, 3, 2, tabel.Velden(3));
    EXPECT_EQ("100003", tabel.Cel(2, Kolom::Key));
    EXPECT_EQ("2", tabel.Cel(2, Kolom::Nr));
}

TEST(Dubbelen, WieSamengevoegdIsGaatUitDeParen)
{
    std::vector<Dubbelpaar> paren{{1, 3}, {2, 5}, {2, 4}, {1, 2}, {4, 5}};
    NeemUitParen(paren, 3);
    Tekst uit;
    for (const Dubbelpaar& paar : paren)
        uit += std::to_string(paar.rij) + "-" + std::to_string(paar.latere) + " ";
    EXPECT_EQ("2-4 2-3 1-2 3-4 ", uit);
}

// --- what is remembered ---

namespace {

class GeenDubbelenTest : public testing::Test {
  protected:
    GeenDubbelenTest()
    {
        schijf.ZetMap("S:");
        mappen.SPEMAP = "S:";
    }
    void Bewaar(int rij, int latere)
    {
        EXPECT_TRUE(BewaarGeenDubbel(schijf, mappen, tabel, rij, latere).gelukt);
    }

    GeheugenSchijf schijf;
    Mappen mappen;
    const Pad pad = "S:\\GeenDubbelen.txt";
    const Spelertabel tabel = Tabel({{"Jan", "", "Bos"}, {"J.", "van", "Bos"}, {"Els", "", "Tol"}});
};

} // namespace

TEST_F(GeenDubbelenTest, EenRegelPerPaarEnWeerGelezen)
{
    EXPECT_EQ(Sleutelparen(), LeesGeenDubbelen(schijf, mappen).value());
    Bewaar(2, 1);
    EXPECT_EQ("100001,100002,J. van Bos,Jan Bos\r\n", schijf.Inhoud(pad));
    Bewaar(2, 3);
    EXPECT_EQ((Sleutelparen{{"100001", "100002"}, {"100002", "100003"}}),
              LeesGeenDubbelen(schijf, mappen).value());
}

TEST_F(GeenDubbelenTest, WatErStaatBlijft)
{
    schijf.Zet(pad, "eigen regel\r\n\r\n100003,100001");
    Bewaar(1, 2);
    EXPECT_EQ("eigen regel\r\n\r\n100003,100001\r\n100001,100002,Jan Bos,J. van Bos\r\n",
              schijf.Inhoud(pad));
    EXPECT_EQ((Sleutelparen{{"100001", "100002"}, {"100001", "100003"}}),
              LeesGeenDubbelen(schijf, mappen).value());
}

/// Both answered at the same time.
TEST_F(GeenDubbelenTest, DeAntwoordenVanTweeComputersKomenSamen)
{
    const Tekst een = "100001,100002,Jan Bos,J. van Bos\r\n";
    const Tekst twee = "100002,100003,J. van Bos,Els Tol\r\n";
    const auto uit = MengTekst(pad, "", een, twee);
    ASSERT_TRUE(uit);
    EXPECT_EQ(twee + een, uit->inhoud);
    EXPECT_EQ(twee, MengTekst(pad, een, "", een + twee)->inhoud) << "undone here";
}
