#include "register/spelertabel.h"

#include "hulp/tabelmaker.h"
#include "register/registerhulp.h"

using namespace plexoran;

namespace {

Spelertabel Tabel(Tekst inhoud)
{
    return *SpelersUit(std::move(inhoud)).tabel;
}

Spelertabel VijfRijen()
{
    return Tabel(vijfSpelers);
}

Tekst Cellen(const Spelertabel& tabel, int rij)
{
    Tekst tekst;
    tabel.VoegCellenAan(tekst, rij);
    return tekst;
}

/// The column over all rows, joined.
Tekst Kolomtekst(const Spelertabel& tabel, Kolom kolom)
{
    Tekst tekst;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        tekst += Tekst(tabel.Cel(rij, kolom)) + ";";
    return tekst;
}

Rijvelden Genummerd(char letter)
{
    Rijvelden velden;
    for (std::size_t i = 0; i < velden.size(); ++i)
        velden[i] = letter + std::to_string(i + 1);
    return velden;
}

} // namespace

TEST(Kolom, NamenEnNummersInHunVolgorde)
{
    Tekst namen;
    for (const Tekstblik naam : Kolomnamen)
        namen += Tekst(naam) + " ";
    EXPECT_EQ(namen, "Nr Key Groep Voornaam Tusv Achternaam Telef Email Adres Postc Plaats Land "
                     "M/V Div1 Div2 Status NBBgr NBBnr ");
    const std::pair<Kolom, int> nummers[] = {{Kolom::Nr, 1},
                                             {Kolom::Groep, 3},
                                             {Kolom::Achternaam, 6},
                                             {Kolom::NBBgr, 17},
                                             {Kolom::NBBnr, 18}};
    for (const auto& [kolom, nummer] : nummers)
        EXPECT_EQ(static_cast<int>(kolom), nummer);
}

TEST(Spelertabel, ElkeCelVanEenRij)
{
    const Spelertabel tabel = Tabel("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18\r\n"
                                    "a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q,r\r\n");
    ASSERT_EQ(tabel.Rijen(), 2);
    for (int kolom = 1; kolom <= 18; ++kolom) {
        EXPECT_EQ(tabel.Cel(1, static_cast<Kolom>(kolom)), std::to_string(kolom));
        EXPECT_EQ(tabel.Cel(2, static_cast<Kolom>(kolom)),
                  Tekst(1, static_cast<char>('a' + kolom - 1)));
    }
    EXPECT_EQ(Cellen(tabel, 2), "b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q,r");
}

TEST(Spelertabel, KommaEnRegeleindeKunnenNietInEenCel)
{
    Spelertabel tabel = VijfRijen();
    std::vector<Rijvelden> moet = AlleRijen(tabel);
    for (const Kolom kolom : {Kolom::Nr, Kolom::Adres, Kolom::NBBnr}) { // first, middle and last
        tabel.ZetCel(3, kolom, "1,2\r3\n");
        EXPECT_EQ(tabel.Cel(3, kolom), "1_2 3 ");
        tabel.ZetCel(3, kolom, "\n,\r4,5"); // as long as what stands there
        moet[2][Index(kolom)] = " _ 4_5";
        EXPECT_EQ(moet, AlleRijen(tabel));
    }
    Rijvelden velden = Genummerd('x');
    velden[17] = ",\n";
    tabel.ZetRij(2, velden);
    EXPECT_EQ(tabel.Cel(2, Kolom::NBBnr), "_ ");
    tabel.VoegToe(velden);
    EXPECT_EQ(tabel.Cel(6, Kolom::NBBnr), "_ ");
}

/// Shorter, as long and longer than what stands there, in every column.
TEST(Spelertabel, ZetCelInElkeKolomEnElkeLengte)
{
    for (std::size_t kolom = 0; kolom < AantalKolommen; ++kolom) {
        Spelertabel tabel = VijfRijen();
        std::vector<Rijvelden> moet = AlleRijen(tabel);
        for (const char* tekst : {"", "x", "yy", "Gr07-", "100099", "zz", ""}) {
            for (const std::size_t rij : {std::size_t{4}, std::size_t{0}, std::size_t{2}}) {
                moet[rij][kolom] = tekst;
                // Of the group five characters count.
                if (kolom == Index(Kolom::Groep))
                    moet[rij][kolom] = moet[rij][kolom].substr(0, LengteGroepscode);
                tabel.ZetCel(static_cast<int>(rij) + 1, static_cast<Kolom>(kolom + 1), tekst);
                ASSERT_EQ(moet, AlleRijen(tabel)) << kolom << tekst;
            }
        }
    }
}

TEST(Spelertabel, ZetCelMetEenBlikOpDeTabelZelf)
{
    Spelertabel tabel = VijfRijen();
    tabel.ZetCel(1, Kolom::Key, tabel.Cel(1, Kolom::Key)); // as long as it is
    EXPECT_EQ(tabel.Cel(1, Kolom::Key), "100001");
    tabel.ZetCel(1, Kolom::Key, tabel.Cel(2, Kolom::Key));
    EXPECT_EQ(tabel.Cel(1, Kolom::Key), "100005");
    tabel.ZetCel(1, Kolom::Key, tabel.Cel(1, Kolom::Key).substr(3));
    EXPECT_EQ(tabel.Cel(1, Kolom::Key), "005");
    tabel.ZetCel(1, Kolom::NBBnr, tabel.Cel(1, Kolom::Key));
    EXPECT_EQ(tabel.Cel(1, Kolom::NBBnr), "005");
    tabel.ZetCel(1, Kolom::Nr, tabel.Cel(1, Kolom::NBBnr).substr(1, 1));
    EXPECT_EQ(tabel.Cel(1, Kolom::Nr), "0");
    for (int keer = 0; keer < 100; ++keer) // long enough for the buffer to move
        tabel.ZetCel(1, Kolom::Email, tabel.Cel(5, Kolom::Email));
    EXPECT_EQ(tabel.Cel(1, Kolom::Email), "e@f.example");
}

TEST(Spelertabel, VoegKopieToeVerandertAlleenDeGegevenCellen)
{
    Spelertabel tabel = VijfRijen();
    tabel.VoegKopieToe(5, std::vector<Celtekst>{{Kolom::Nr, "x"},
                                                {Kolom::Key, "100043"},
                                                {Kolom::Voornaam, ""},
                                                {Kolom::Adres, "a,b\nc"},
                                                {Kolom::NBBnr, "7"}});
    tabel.VoegKopieToe(2, {});
    tabel.VoegKopieToe(6, std::vector<Celtekst>{{Kolom::NBBgr, "B"}});
    ASSERT_EQ(tabel.Rijen(), 8);
    EXPECT_EQ(tabel.Cel(6, Kolom::Nr), "x");
    EXPECT_EQ(Cellen(tabel, 5),
              "100042,Gr50-,Els,,Fuik,06-1,e@f.example,Pad 1,1234 AB,Ede,NL,V,een,twee,,,");
    EXPECT_EQ(Cellen(tabel, 6),
              "100043,Gr50-,,,Fuik,06-1,e@f.example,a_b c,1234 AB,Ede,NL,V,een,twee,,,7");
    EXPECT_EQ(tabel.Velden(7), tabel.Velden(2));
    EXPECT_EQ(Cellen(tabel, 8),
              "100043,Gr50-,,,Fuik,06-1,e@f.example,a_b c,1234 AB,Ede,NL,V,een,twee,,B,7");
    tabel.ZetCel(7, Kolom::Plaats, "Oss");
    EXPECT_EQ(tabel.Cel(2, Kolom::Plaats), "");
}

TEST(Spelertabel, ZetCellenVerandertAlleenDieCellen)
{
    Spelertabel tabel = VijfRijen();
    const Rijvelden vierde = tabel.Velden(4);
    Rijvelden moet = tabel.Velden(5);
    moet[Index(Kolom::Voornaam)] = "a_b c";
    moet[Index(Kolom::NBBgr)] = "CLUB";
    for (int keer = 0; keer < 100; ++keer)
        tabel.ZetCellen(5,
                        std::vector<Celtekst>{{Kolom::Voornaam, "a,b\nc"}, {Kolom::NBBgr, "CLUB"}});
    EXPECT_EQ(tabel.Rijen(), 5);
    EXPECT_EQ(tabel.Velden(5), moet);
    EXPECT_EQ(tabel.Velden(4), vierde);
}

TEST(Spelertabel, VoegKopieToeMetBlikkenOpDeTabelZelf)
{
    Spelertabel tabel = VijfRijen();
    for (int keer = 0; keer < 100; ++keer) { // long enough for the buffer to move
        const int laatste = tabel.Rijen();
        tabel.VoegKopieToe(laatste,
                           std::vector<Celtekst>{{Kolom::Key, tabel.Cel(1, Kolom::Key)},
                                                 {Kolom::Email, tabel.Cel(5, Kolom::Email)},
                                                 {Kolom::NBBnr, tabel.Cel(laatste, Kolom::Nr)}});
        Rijvelden moet = tabel.Velden(laatste);
        moet[Index(Kolom::Key)] = "100001";
        moet[Index(Kolom::Email)] = "e@f.example";
        moet[Index(Kolom::NBBnr)] = "5";
        ASSERT_EQ(moet, tabel.Velden(laatste + 1));
    }
}

/// The last cell of the file has no separator behind it, the group's name stands behind its code.
TEST(Spelertabel, VoegToeAchterEenLaatsteRegelZonderEinde)
{
    Spelertabel tabel = Tabel("1,100001,Gr01-Leden,An,,Bos,,,,,,,,,,,,12");
    tabel.VoegKopieToe(1, {});
    tabel.VoegKopieToe(1, std::vector<Celtekst>{{Kolom::Groep, "Gr02-"}, {Kolom::NBBgr, "x"}});
    EXPECT_EQ(tabel.Velden(2), tabel.Velden(1));
    EXPECT_EQ(Cellen(tabel, 2), "100001,Gr01-,An,,Bos,,,,,,,,,,,,12");
    EXPECT_EQ(Cellen(tabel, 3), "100001,Gr02-,An,,Bos,,,,,,,,,,,x,12");
    tabel.VoegToe(Genummerd('x'));
    EXPECT_EQ(tabel.Velden(4), Genummerd('x'));
    EXPECT_EQ(tabel.Cel(1, Kolom::NBBnr), "12");
}

TEST(Spelertabel, VanDeGroepTellenVijfTekens)
{
    Spelertabel tabel = Tabel("1,100001,Gr01-Leden,An,,Bos,,,,,,,,,,,,x\r\n");
    EXPECT_EQ(tabel.Cel(1, Kolom::Groep), "Gr01-");
    EXPECT_EQ(Cellen(tabel, 1), "100001,Gr01-,An,,Bos,,,,,,,,,,,,x");
    tabel.ZetCel(1, Kolom::Groep, "Gr02-Jeugd");
    EXPECT_EQ(Cellen(tabel, 1), "100001,Gr02-,An,,Bos,,,,,,,,,,,,x");
    tabel.ZetCel(1, Kolom::Groep, "Gr");
    EXPECT_EQ(Cellen(tabel, 1), "100001,Gr,An,,Bos,,,,,,,,,,,,x");
}

/// The empty cell begins where the file ends.
TEST(Spelertabel, EenLegeLaatsteCelZonderRegeleinde)
{
    Spelertabel tabel = Tabel("1,100001,Gr01-,An,,Bos,,,,,,,,,,,A,");
    tabel.VoegToe(Genummerd('x'));
    tabel.VoegKopieToe(1, std::vector<Celtekst>{{Kolom::NBBgr, "BB"}});
    EXPECT_EQ(tabel.Cel(1, Kolom::NBBnr), "");
    EXPECT_EQ(Cellen(tabel, 1), "100001,Gr01-,An,,Bos,,,,,,,,,,,A,");
    EXPECT_EQ(Cellen(tabel, 3), "100001,Gr01-,An,,Bos,,,,,,,,,,,BB,");
    tabel.ZetCel(1, Kolom::NBBnr, "");
    EXPECT_EQ(tabel.Velden(2), Genummerd('x'));
    tabel.ZetCel(1, Kolom::NBBnr, "x");
    EXPECT_EQ(Cellen(tabel, 1), "100001,Gr01-,An,,Bos,,,,,,,,,,,A,x");
    tabel.VerwijderRijen(std::vector<int>{2});
    EXPECT_EQ(Cellen(tabel, 2), "100001,Gr01-,An,,Bos,,,,,,,,,,,BB,");
}

TEST(Spelertabel, VerwijderInElkeVolgordeEnDubbel)
{
    const std::pair<std::vector<int>, Tekst> gevallen[] = {{{2, 3}, "100001;100004;100042;"},
                                                           {{5, 1, 5, 3}, "100005;100004;"}};
    for (const auto& [weg, keys] : gevallen) {
        Spelertabel tabel = VijfRijen();
        tabel.ZetCel(4, Kolom::Voornaam, "Dirkje"); // also what was changed before
        tabel.VerwijderRijen(weg);
        EXPECT_EQ(Kolomtekst(tabel, Kolom::Nr), tabel.Rijen() == 3 ? "1;2;3;" : "1;2;");
        EXPECT_EQ(Kolomtekst(tabel, Kolom::Key), keys);
        EXPECT_EQ(tabel.Cel(2, Kolom::Voornaam), "Dirkje");
    }
}

TEST(Spelertabel, VerwijderNietsOfAlles)
{
    Spelertabel tabel = VijfRijen();
    tabel.VerwijderRijen(std::vector<int>{});
    EXPECT_EQ(Kolomtekst(tabel, Kolom::Nr), "1;2;3;4;5;");
    tabel.VerwijderRijen(std::vector<int>{1, 2, 3, 4, 5});
    EXPECT_EQ(tabel.Rijen(), 0);
    tabel.VoegToe(Genummerd('x'));
    EXPECT_EQ(tabel.Velden(1), Genummerd('x'));
}

/// A number that does not fit where the old one stands.
TEST(Spelertabel, VerwijderMaaktOokPlaatsVoorEenLangerNummer)
{
    Spelertabel tabel;
    for (int rij = 0; rij < 120; ++rij) {
        Rijvelden velden = Genummerd('x');
        velden[0] = rij % 3 == 0 ? "" : rij % 3 == 1 ? "7" : "000000123";
        velden[1] = std::to_string(rij);
        tabel.VoegToe(velden);
    }
    tabel.VerwijderRijen(std::vector<int>{1, 60, 120});
    ASSERT_EQ(tabel.Rijen(), 117);
    for (int rij = 1; rij <= 117; ++rij) {
        Rijvelden moet = Genummerd('x');
        moet[0] = std::to_string(rij);
        moet[1] = std::to_string(rij < 59 ? rij : rij + 1);
        ASSERT_EQ(tabel.Velden(rij), moet);
    }
}

TEST(Spelertabel, DoetAlsEenGewoneLijst)
{
    constexpr int stappen = 20'000;
    std::mt19937 toeval(1952);
    const auto tot = [&](std::size_t n) { return static_cast<int>(toeval() % n); };
    Spelertabel tabel = VijfRijen();
    std::vector<Rijvelden> lijst = AlleRijen(tabel);

    for (int stap = 0; stap < stappen; ++stap) {
        const int soort = lijst.empty() ? 0 : tot(11);
        const auto plaats = static_cast<std::size_t>(tot(std::max<std::size_t>(lijst.size(), 1)));
        const int rij = static_cast<int>(plaats) + 1;
        if (soort < 3 && lijst.size() < 200) {
            Rijvelden velden;
            for (Tekst& veld : velden)
                veld = Tekst(static_cast<std::size_t>(tot(9)), static_cast<char>('a' + tot(26)));
            velden[2] = velden[2].substr(0, 5);
            tabel.VoegToe(velden);
            lijst.push_back(velden);
        } else if (soort == 3 && lijst.size() < 200) {
            tabel.VoegKopieToe(
                rij, std::vector<Celtekst>{{Kolom::Key, lijst[0][1]}, {Kolom::NBBnr, "12"}});
            lijst.push_back(lijst[plaats]);
            lijst.back()[1] = lijst[0][1];
            lijst.back()[17] = "12";
        } else if (soort < 10) {
            const auto kolom = static_cast<std::size_t>(tot(18));
            const Tekst tekst(static_cast<std::size_t>(tot(6)), static_cast<char>('A' + tot(26)));
            tabel.ZetCel(rij, static_cast<Kolom>(kolom + 1), tekst);
            lijst[plaats][kolom] = tekst;
        } else {
            tabel.VerwijderRijen(std::vector<int>{rij});
            lijst.erase(lijst.begin() + rij - 1);
            for (std::size_t i = 0; i < lijst.size(); ++i)
                lijst[i][0] = std::to_string(i + 1);
        }
        ASSERT_EQ(tabel.Rijen(), static_cast<int>(lijst.size())) << "stap " << stap;
        if (!lijst.empty()) {
            const auto kijk = static_cast<std::size_t>(tot(lijst.size()));
            ASSERT_EQ(tabel.Velden(static_cast<int>(kijk) + 1), lijst[kijk]) << "stap " << stap;
        }
    }
    EXPECT_EQ(AlleRijen(tabel), lijst);
}

TEST(Sleutelwijzer, DeEersteRijMetDeSleutel)
{
    const Spelertabel tabel = MaakTabel({{"100001"}, {"100002"}, {"100001"}, {""}, {"0100001"}});
    const Sleutelwijzer wijzer(tabel);
    EXPECT_EQ(1, wijzer.Rij("100001"));
    EXPECT_EQ(2, wijzer.Rij("100002"));
    EXPECT_EQ(4, wijzer.Rij(""));
    EXPECT_EQ(5, wijzer.Rij("0100001"));
    EXPECT_EQ(0, wijzer.Rij("100003"));
    EXPECT_EQ(0, wijzer.Rij("10000"));
    EXPECT_EQ(0, wijzer.Rij("1000011"));
    const Spelertabel leeg;
    EXPECT_EQ(0, Sleutelwijzer(leeg).Rij(""));
}

/// Rows may be added, which are not found, and other cells changed while the index is used.
TEST(Sleutelwijzer, TijdensHetWijzigen)
{
    Spelertabel tabel = MaakTabel({{"100001234"}, {"100002"}, {"100002"}});
    const Sleutelwijzer wijzer(tabel);
    const Celtekst key{Kolom::Key, "100003"};
    for (int keer = 0; keer < 50; ++keer) {
        tabel.VoegKopieToe(1, {&key, 1});
        tabel.ZetCel(1, Kolom::Achternaam, Tekst(static_cast<std::size_t>(keer), 'x'));
        ASSERT_EQ(1, wijzer.Rij("100001234"));
        ASSERT_EQ(2, wijzer.Rij("100002"));
        ASSERT_EQ(0, wijzer.Rij("100003"));
    }
}
