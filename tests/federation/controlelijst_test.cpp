#include "federation/controlelijst.h"

#include "hulp/groei.h"
#include "hulp/vlakvanger.h"

using namespace plexoran;

namespace {

/// Import lines: first name, particle, surname, address (3), telephone, e-mail, country, sex,
/// number.
Tekst Lid(const Tekst& voornaam, const Tekst& tusv, const Tekst& achternaam, const Tekst& mv,
          const Tekst& nummer)
{
    return voornaam + "," + tusv + "," + achternaam + ",Dorpsstraat 1,1234 AB,Ede,06-1,a@b.nl,NL," +
           mv + "," + nummer;
}

std::vector<Controleregel> Lijst(const std::vector<Tekst>& importregels)
{
    std::vector<Controleregel> lijst;
    for (const Tekst& regel : importregels)
        lijst.push_back(MaakControleregel(regel, "Club"));
    return lijst;
}

std::vector<Tekst> Rijen(const Controlerijen& rijen)
{
    std::vector<Tekst> uit;
    for (std::size_t i = 0; i < rijen.Aantal(); ++i)
        uit.push_back(rijen.Rij(i));
    return uit;
}

/// The four cells of each row.
std::vector<Tekst> Cellen(const Controlerijen& rijen)
{
    std::vector<Tekst> uit;
    for (std::size_t i = 0; i < rijen.Aantal(); ++i) {
        Tekst& rij = uit.emplace_back();
        for (std::size_t kolom = 0; kolom < AantalControlekolommen; ++kolom)
            rij.append(rijen.Cel(i, kolom)).append("|");
    }
    return uit;
}

} // namespace

TEST(Controlerijen, DeCellenVanElkeRij)
{
    const auto lijst = Lijst({Lid("An", "", "Bos", "M", "1"),
                              Lid("Cor", "van der", "Dam", "Vrouwelijk", "1234567890123")});
    EXPECT_EQ((std::vector<Tekst>{"1|M|Club|Bos, An|",
                                  "1234567890123|Vrouwelijk|Club|Dam, Cor van der|"}),
              Cellen({lijst, 100}));
    // What goes on below stands in the same column.
    const auto smal = Lijst({Lid("Cor", "van der", "Dam", "V", "7")});
    EXPECT_EQ((std::vector<Tekst>{"7|V|Club|Dam, Cor|", "|||van der|"}), Cellen({smal, 41}));
}

TEST(Controleregel, VasteKolommenMetTweeSpatiesErtussen)
{
    const auto regel = [](const Tekst& lid, const Tekst& groep = "Club") {
        return MaakControleregel(lid, groep).regel;
    };
    for (const auto& [verwacht, lid] : std::vector<std::pair<Tekst, Tekst>>{
             {"12345678    M      Club        Bos, An             ",
              Lid("An", "", "Bos", "M", "12345678")},
             {"12345678    V      Club        Dam, Cor van der    ",
              Lid("Cor", "van der", "Dam", "V", "12345678")},
             // Without a number or a sex such a member is listed all the same.
             {"                   Club        Bos, An             ", Lid("An", "", "Bos", "", "")},
             // What is longer than its column pushes the rest along.
             {"123456789012  M      Club        Bos, An             ",
              Lid("An", "", "Bos", "M", "123456789012")},
             {"1           M      Club        Aaaaaaaaaaaaaaaa, Bbb",
              Lid("Bbb", "", "Aaaaaaaaaaaaaaaa", "M", "1")},
             {"1           M      Club        Aaaaaaaaaaaaaaaaaaaa, Bbb de",
              Lid("Bbb", "de", "Aaaaaaaaaaaaaaaaaaaa", "M", "1")},
             // The surname was "Bos, de": its second half is taken for the street.
             {"V           NL     Club        Bos, An             ",
              "An,,Bos, de,Dorp 1,1234 AB,Ede,06-1,,NL,V,123"}})
        EXPECT_EQ(verwacht, regel(lid));
    const auto lang = MaakControleregel(Lid("An", "", "Bos", "M", "123456789012"), "Club");
    EXPECT_EQ("Bos, An             ", lang.Naam());
    // Of the member group ten characters at most.
    for (const char* groep : {"Dinsdagavond", "Dinsdagavo"})
        EXPECT_EQ("1           M      Dinsdagavo  Bos, An             ",
                  regel(Lid("An", "", "Bos", "M", "1"), groep));
}

TEST(Controleregel, EenPartnerKrijgtStreepjes)
{
    const auto naam = [](const Tekst& achternaam) {
        const Controleregel regel = MaakControleregel(Lid("An", "", achternaam, "", ""), "Club");
        return Tekst(ZonderSpaties(regel.Naam()));
    };
    EXPECT_EQ("Partner_van_Bos, An", naam("Partner van Bos"));
    EXPECT_EQ("PARTNERS_van, An", naam("PARTNERS van"));
    EXPECT_EQ("Partner, An", naam("Partner"));
    EXPECT_EQ("Part ner x, An", naam("Part ner x"));
    // The first seven characters, then trimmed: here they are " Partne".
    EXPECT_EQ("Partner van Bos, An", naam(" Partner van Bos"));
}

TEST(ControlelijstTest, DeTweeKoppenVerschillenEenSpatie)
{
    EXPECT_EQ("NBBnr      M/V    NBBgroep    Naam", ControlekopScherm);
    EXPECT_EQ("NBBnr     M/V    NBBgroep    Naam", ControlekopPapier);
}

TEST(ControlelijstTest, OpNaamInDeTekstordeEnGelijkeNamenZoalsZeStonden)
{
    const auto lijst = Lijst({Lid("An", "", "Zee", "", "1"), Lid("Bea", "", "bos", "", "2"),
                              Lid("An", "", "B\xF6s", "", "3"), Lid("An", "", "Zee", "", "4"),
                              Lid("An", "", "Bos", "", "5"), Lid("An", "de", "Bos", "", "6")});
    std::string nummers;
    for (const Controleregel& regel : OpNaam(lijst))
        nummers += regel.regel.front();
    EXPECT_EQ("536214", nummers);
}

TEST(ControlelijstTest, EenTeLangeRegelGaatOnderDeNaamVerderMaarAlleenSpatiesNiet)
{
    const auto lijst =
        Lijst({Lid("An", "", "Bos", "V", "1"), Lid("Bea", "van der", Tekst(60, 'x'), "V", "2")});
    const Tekst inspringing(31, ' ');
    EXPECT_EQ(
        (std::vector<Tekst>{lijst[0].regel, "2           V      Club        " + Tekst(39, 'x'),
                            inspringing + Tekst(21, 'x') + ", Bea van der"}),
        Rijen(Controlerijen(lijst, 70)));
    // Between words where that can be.
    EXPECT_EQ((std::vector<Tekst>{lijst[0].regel,
                                  "2           V      Club        " + Tekst(60, 'x') + ", Bea",
                                  inspringing + "van der"}),
              Rijen(Controlerijen(lijst, 99)));
    // Where there is hardly room, the rows begin at the left.
    const auto smal = Rijen(Controlerijen(lijst, 20));
    EXPECT_EQ("1           V      C", smal.front());
    EXPECT_EQ("lub        Bos, An", smal[1]);
    // The blanks that fill up the last column need no row of their own.
    const auto kort = Lijst({Lid("An", "", "Bos", "V", "1")});
    EXPECT_EQ(1U, Controlerijen(kort, 38).Aantal());
    EXPECT_EQ(2U, Controlerijen(kort, 37).Aantal());
}

TEST(ControlelijstTest, GeenTekenGaatVerlorenHoeSmalOok)
{
    const auto zonderSpaties = [](Tekst tekst) {
        std::erase(tekst, ' ');
        return tekst;
    };
    const auto lijst = Lijst({Lid("Bea", "van der", "Abcdefghijklmnopqrstuvwxyz", "V", "2")});
    for (std::size_t breedte = 0; breedte < 80; ++breedte) {
        Tekst alles;
        for (const Tekst& rij : Rijen(Controlerijen(lijst, breedte))) {
            EXPECT_LE(rij.find_last_not_of(' ') + 1, std::max<std::size_t>(1, breedte));
            alles += zonderSpaties(rij);
        }
        EXPECT_EQ(zonderSpaties(lijst[0].regel), alles) << breedte;
    }
}

TEST(ControlelijstTest, EenReusachtigeNaamIsInEenOogwenkVerdeeld)
{
    EXPECT_TRUE(GroeitMee(4 << 20, [](int aantal) {
        const auto lengte = static_cast<std::size_t>(aantal);
        const auto lijst = Lijst({Lid("An", "", Tekst(lengte, 'x'), "V", "1")});
        EXPECT_EQ(lengte / 31 + 1, Controlerijen(lijst, 62).Aantal());
    }));
}

TEST(ControlelijstTest, TekentKopEnRijenVanafEenRij)
{
    const auto lijst = Lijst(
        {Lid("An", "", "A", "", "1"), Lid("An", "", "B", "", "2"), Lid("An", "", "C", "", "3")});
    const Controlerijen rijen(lijst, 85);
    const auto getekend = [&](std::size_t eerste, std::size_t aantal) {
        Vlakvanger vlak;
        TekenControlelijst(vlak, 15, 20, ControlekopScherm, rijen, eerste, aantal);
        return vlak;
    };
    const Vlakvanger vlak = getekend(1, 1);
    ASSERT_EQ((std::vector<Tekst>{Tekst(ControlekopScherm), lijst[1].regel}), vlak.Teksten());
    for (const auto& tekst : vlak.teksten) {
        EXPECT_EQ(15, tekst.x);
        EXPECT_EQ(Lettertype::CourierNew, tekst.letter.type);
    }
    EXPECT_EQ(20, vlak.teksten[0].y);
    EXPECT_EQ(26, vlak.teksten[1].y);
    EXPECT_EQ((std::vector<Tekst>{Tekst(ControlekopScherm), lijst[2].regel}),
              getekend(2, 10).Teksten());
    EXPECT_EQ(1U, getekend(9, 10).teksten.size());
}

TEST(Controlebladen, ZoveelBladenAlsErNodigZijn)
{
    EXPECT_EQ(59U, controleblad::Rijen); // (297 - 30 - 6) / 4.4
    for (const auto& [rijen, bladen] : {std::pair{0, 1}, {1, 1}, {59, 1}, {60, 2}, {100'000, 1695}})
        EXPECT_EQ(bladen, ControlebladenVoor(static_cast<std::size_t>(rijen))) << rijen;
}

TEST(Controlebladen, ElkBladHeeftDeKopEnZijnNummer)
{
    std::vector<Tekst> leden;
    for (int i = 0; i < 60; ++i)
        leden.push_back(Lid("An", "", "Bos", "", std::to_string(i)));
    const auto lijst = Lijst(leden);
    const Controlerijen rijen(lijst, 85);
    Vlakvanger eerste;
    TekenControleblad(eerste, rijen, 1, 2);
    ASSERT_EQ(61U, eerste.teksten.size());
    EXPECT_EQ(ControlekopPapier, eerste.teksten.front().tekst);
    EXPECT_EQ(lijst[0].regel, eerste.teksten[1].tekst);
    EXPECT_EQ(lijst[58].regel, eerste.teksten[59].tekst);
    EXPECT_EQ("Blad 1 van 2", eerste.teksten.back().tekst);
    Vlakvanger tweede;
    TekenControleblad(tweede, rijen, 2, 2);
    EXPECT_EQ((std::vector<Tekst>{Tekst(ControlekopPapier), lijst[59].regel, "Blad 2 van 2"}),
              tweede.Teksten());
    for (const auto& deel : eerste.teksten) {
        EXPECT_GE(deel.x, 15);
        EXPECT_GE(deel.y, 15);
        EXPECT_LE(deel.y + 4, 297 - 5); // what most printers can reach
    }
    EXPECT_LE(eerste.teksten[59].y + 4, 282);
}

TEST(Controlebladen, TekensNaastElkaar)
{
    const Vastemeter meter; // a millimetre a character
    EXPECT_EQ(180U, TekensNaastElkaar(meter, 180));
    EXPECT_EQ(179U, TekensNaastElkaar(meter, 179.9));
    EXPECT_EQ(1U, TekensNaastElkaar(meter, 0.5));
    EXPECT_EQ(1U, TekensNaastElkaar(meter, -3));
}
