#include <random>

#include "register/gewoneLezer.h"
#include "register/registerhulp.h"

using namespace plexoran;
using namespace std::string_literals;

namespace {

/// A line of 18 fields for the player with this surname.
Tekst Regel(const Tekst& achternaam, const Tekst& einde = "\r\n")
{
    return "1,100001,Gr01-,,," + achternaam + ",,,,,,,,,,,," + einde;
}

Tekst Aaneen(std::initializer_list<Tekst> delen)
{
    Tekst tekst;
    for (const Tekst& deel : delen)
        tekst += deel;
    return tekst;
}

/// The surnames of the table, joined.
Tekst Namen(const Spelerlezing& lezing)
{
    Tekst tekst;
    for (int rij = 1; lezing.tabel && rij <= lezing.tabel->Rijen(); ++rij)
        tekst += Tekst(lezing.tabel->Cel(rij, Kolom::Achternaam)) + ";";
    return tekst;
}

/// Reads to the end, without leaving anything out, to these surnames.
void VerwachtHeel(const Tekst& inhoud, Tekstblik namen)
{
    const Spelerlezing lezing = SpelersUit(inhoud);
    ASSERT_TRUE(lezing.tabel) << inhoud;
    EXPECT_EQ(Namen(lezing), namen);
    EXPECT_FALSE(lezing.fout) << inhoud;
    // Players without a key line are read in full, but their file is not what a save makes of it.
    EXPECT_EQ(lezing.zonderSleutelregel, !lezing.HKEY && !namen.empty()) << inhoud;
    EXPECT_EQ(lezing.verliest, lezing.zonderSleutelregel) << inhoud;
    EXPECT_TRUE(lezing.zonderAchternaam.empty());
}

void VerwachtFout(const Spelerlezing& lezing, int regel, int velden)
{
    ASSERT_TRUE(lezing.fout);
    EXPECT_EQ(lezing.fout->regel, regel);
    EXPECT_EQ(lezing.velden, velden);
    EXPECT_TRUE(lezing.verliest);
}

std::optional<std::int32_t> Sleutel(const Tekst& inhoud)
{
    return SpelersUit(inhoud).HKEY;
}

} // namespace

TEST(Spelerlezing, LeegOfMetVijfSpelers)
{
    VerwachtHeel("", "");
    VerwachtHeel("HKEY=100000\r\n", "");
    VerwachtHeel(vijfSpelers, "Bos;Cock;Dam;Eik;Fuik;");
    EXPECT_EQ(Sleutel(vijfSpelers), 100042);
}

TEST(Spelerlezing, SleutelregelStaatWaarHijWil)
{
    for (const Tekst& inhoud :
         {"HKEY=100007\r\n" + Regel("a") + Regel("b"), Regel("a") + "HKEY=100007\r\n" + Regel("b"),
          Regel("a") + Regel("b") + "HKEY=100007\r\n", Regel("a") + Regel("b") + "HKEY=100007"}) {
        VerwachtHeel(inhoud, "a;b;");
        EXPECT_EQ(Sleutel(inhoud), 100007) << inhoud;
    }
}

TEST(Spelerlezing, DeSleutelOpZijnRegel)
{
    const std::pair<Tekst, std::int32_t> gevallen[] = {
        {"  100007  ", 100007}, {" 100007 ,5", 100007}, {"2147483647", 2147483647},
        {"100007.4", 100007},   {"100007.5", 100008},   {"100008.5", 100008},
        {"100008.51", 100009},  {"99", 100000},         {"99999", 100000},
        {"-5", 100000},         {"", 100000},           {"onzin", 100000}};
    for (const auto& [tekst, sleutel] : gevallen)
        EXPECT_EQ(Sleutel("HKEY=" + tekst + "\r\n"), sleutel) << tekst;
    EXPECT_EQ(Sleutel("HKEY=100009\r\nHKEY=100007\r\n"), 100007) << "de laatste regel telt";
    // Meant: the file is taken at its word, also where a row has a higher key.
    EXPECT_EQ(Sleutel("HKEY=100003\r\n1,100900,Gr01-,,,Bos,,,,,,,,,,,,\r\n"), 100003);
    // Only at the very start of a line, and in capitals.
    for (const Tekst geen : {"", " HKEY=100007", "hkey=100007"})
        EXPECT_FALSE(Sleutel(Regel("a") + geen)) << geen;
}

TEST(SpelersUit, EenSleutelregelZonderGetalWordtGenoemd)
{
    for (const Tekst zonder : {"", "  ", "onzin", "-", "+.", "x100007"}) {
        const Spelerlezing lezing = SpelersUit(Regel("a") + "HKEY=" + zonder + "\r\n");
        EXPECT_EQ(lezing.sleutelZonderGetal, 2) << zonder;
        EXPECT_EQ(lezing.HKEY, 100000);
        EXPECT_TRUE(lezing.verliest);
    }
    for (const Tekst met : {"0", " 99", "-5", ".5", "+100007", "100007 zie schrift"})
        EXPECT_EQ(SpelersUit("HKEY=" + met + "\r\n").sleutelZonderGetal, 0) << met;
    // The last key line counts.
    EXPECT_EQ(SpelersUit("HKEY=\r\nHKEY=100007\r\n").sleutelZonderGetal, 0);
    EXPECT_EQ(SpelersUit("HKEY=100007\r\nHKEY=\r\n").sleutelZonderGetal, 2);
}

TEST(SpelersUit, DeHoogsteSleutelVanWatIsWeggelaten)
{
    const auto regel = [](const Tekst& sleutel, const Tekst& naam) {
        return "1," + sleutel + ",Gr01-,,," + naam + ",,,,,,,,,,,,\r\n";
    };
    EXPECT_EQ(SpelersUit(regel("100900", "Bos")).hoogsteWeggelaten, 0);
    EXPECT_EQ(SpelersUit(regel("100900", "") + regel("100800", "")).hoogsteWeggelaten, 100900);
    EXPECT_EQ(SpelersUit(regel("1", "Bos") + "2,100700,,,,Kort\r\n").hoogsteWeggelaten, 100700);
    EXPECT_EQ(SpelersUit("2,100700,,,,Kort\r\n" + regel("100901", "Bos")).hoogsteWeggelaten,
              100901);
    EXPECT_EQ(SpelersUit(regel("99999999999", "")).hoogsteWeggelaten, 0);
}

TEST(Spelerlezing, SleutelregelMetMeerDanHetOpslaanTerugschrijft)
{
    for (const Tekst sleutel :
         {"HKEY=100009\r\nHKEY=100007", "HKEY=100007,zie schrift", "HKEY=100007.2", "HKEY=1OOOO7",
          "HKEY=-3", "HKEY=+100007", "HKEY="}) {
        const Spelerlezing lezing = SpelersUit(sleutel + "\r\n" + Regel("a"));
        EXPECT_EQ(Namen(lezing), "a;");
        EXPECT_FALSE(lezing.fout);
        EXPECT_TRUE(lezing.verliest) << sleutel;
    }
    for (const Tekst sleutel : {"HKEY=100007", "HKEY=  99 ", "HKEY=00100007"})
        EXPECT_FALSE(SpelersUit(sleutel + "\r\n" + Regel("a")).verliest) << sleutel;
}

TEST(Spelerlezing, SleutelDieNietPastIsEenFoutInDeEersteGang)
{
    const Spelerlezing lezing = SpelersUit(Regel("a") + "HKEY=2147483648\r\n" + Regel("b"));
    EXPECT_FALSE(lezing.tabel);
    EXPECT_FALSE(lezing.HKEY);
    VerwachtFout(lezing, 2, 0);
    VerwachtFout(SpelersUit("HKEY=100000000000000000000000\r\n"), 1, 0);
}

TEST(Spelerlezing, ElkRegeleinde)
{
    for (const Tekst einde : {"\r\n", "\n", "\r"}) {
        VerwachtHeel("HKEY=100007" + einde + Regel("a", einde) + Regel("b", einde), "a;b;");
        VerwachtHeel(Regel("a", einde) + Regel("b", ""), "a;b;");
    }
    VerwachtHeel(Regel("a", "\n") + Regel("b", "\r") + Regel("c"), "a;b;c;");
}

TEST(Spelerlezing, RegelnummersBijElkRegeleinde)
{
    for (const Tekst einde : {"\r\n", "\n", "\r"})
        VerwachtFout(SpelersUit(Aaneen({Regel("a", einde), einde, Regel("b", einde), "x", einde})),
                     4, 1);
    // LF CR are two line ends, with an empty line between.
    VerwachtFout(SpelersUit(Regel("a", "\n\r") + "x"), 3, 1);
    VerwachtHeel("\r\n   \r\n" + Regel("a") + " \n\n\r\r\n" + Regel("b") + "    ", "a;b;");
    VerwachtFout(SpelersUit(Regel("a") + "\t\r\n"), 2, 1); // a tab is no blank
}

TEST(Spelerlezing, VeldenBlijvenZoalsZeZijn)
{
    const Tekst regel =
        "HKEY=100001\r\n 7 , 100001 ,Gr01-, An ,\tvan\x81\x8D\x8F\x90\x9D,\xC9\0b "s;
    const Spelerlezing lezing = SpelersUit(regel + ",,,,,,,,,,,, x \r\n");
    ASSERT_TRUE(lezing.tabel);
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Nr), " 7 ");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Key), " 100001 ");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Voornaam), " An ");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Tusv), "\tvan\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Achternaam), "\xC9\0b "s);
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::NBBnr), " x ");
    EXPECT_FALSE(lezing.verliest);
}

TEST(Spelerlezing, ElkeByteInEenVeld)
{
    Tekst alles;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != ',' && byte != '\r' && byte != '\n')
            alles += static_cast<char>(byte);
    }
    // Behind fields of 0 to 7 bytes, so that each byte stands at each place of a word.
    for (std::size_t voor = 0; voor < 8; ++voor) {
        const Spelerlezing lezing = SpelersUit(Regel(Tekst(voor, 'x') + alles));
        ASSERT_TRUE(lezing.tabel && !lezing.fout);
        EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Achternaam), Tekst(voor, 'x') + alles);
    }
}

TEST(Spelerlezing, ElkeByteNaElkeScheiding)
{
    // Where eight bytes are looked at together, a byte must not be taken for its neighbour.
    for (int byte = 0; byte < 256; ++byte) {
        const auto teken = static_cast<char>(byte);
        if (teken == ',' || teken == '\r' || teken == '\n' || teken == ' ')
            continue;
        for (const Tekst scheiding : {"\r\n", "\n", "\r"}) {
            const Tekst los(1, teken);
            const Spelerlezing lezing =
                SpelersUit(Aaneen({Regel("a", scheiding), los, ",1,G,,,", los, ",,,,,,,,,,,,", los,
                                   scheiding, Regel("b", scheiding)}));
            ASSERT_TRUE(lezing.tabel && lezing.tabel->Rijen() == 3) << byte;
            EXPECT_EQ(lezing.tabel->Cel(2, Kolom::Nr), los);
            EXPECT_EQ(lezing.tabel->Cel(2, Kolom::Achternaam), los);
            EXPECT_EQ(lezing.tabel->Cel(2, Kolom::NBBnr), los);
        }
    }
}

TEST(Spelerlezing, ZonderAchternaamWordtOvergeslagen)
{
    const Spelerlezing lezing = SpelersUit("HKEY=100007\r\n" + Regel("a") + Regel("") + Regel("b") +
                                           "5,,,,,,\r\n" + "6,,,,,\r\n");
    EXPECT_EQ(Namen(lezing), "a;b;");
    EXPECT_EQ(lezing.zonderAchternaam, (std::vector<int>{3, 5, 6}));
    EXPECT_FALSE(lezing.fout);
    EXPECT_TRUE(lezing.verliest);
    // Meant: fields are taken as they stand, so a blank is a surname.
    VerwachtHeel(Regel(" "), " ;");
    EXPECT_EQ(SpelersUit(Tekst(65536, ',')).zonderAchternaam, std::vector<int>{1});
}

TEST(Spelerlezing, MinderDanZesVeldenLaatGeenTabel)
{
    for (int velden = 1; velden <= 5; ++velden) {
        const Tekst kort = "x" + Tekst(static_cast<std::size_t>(velden - 1), ',');
        const Spelerlezing lezing = SpelersUit("HKEY=100007\r\n" + Regel("a") + kort + "\r\n");
        EXPECT_FALSE(lezing.tabel);
        EXPECT_EQ(lezing.HKEY, 100007);
        VerwachtFout(lezing, 3, velden);
    }
}

TEST(Spelerlezing, MinderDanZesVeldenOokAlsErEerderEenRegelTeKortIs)
{
    // Counting comes first: the line without 18 fields is not even reached.
    const Spelerlezing lezing = SpelersUit(Regel("a") + "2,100002,Gr01-,,,b\r\n" + Regel("c") +
                                           "HKEY=100007\r\n1,2,3\r\nHKEY=100008\r\n");
    EXPECT_FALSE(lezing.tabel);
    EXPECT_EQ(lezing.HKEY, 100007);
    VerwachtFout(lezing, 5, 3);
}

TEST(Spelerlezing, MinderDanAchttienVeldenHoudtDeRijenErvoor)
{
    for (int velden = 6; velden <= 17; ++velden) {
        const Tekst kort = "3,100003,,,,x" + Tekst(static_cast<std::size_t>(velden - 6), ',');
        const Spelerlezing lezing = SpelersUit(Regel("a") + Regel("b") + kort + "\r\n" +
                                               Regel("c") + Regel("") + "HKEY=100007\r\n");
        EXPECT_EQ(Namen(lezing), "a;b;");
        EXPECT_EQ(lezing.HKEY, 100007); // the first pass went on to the end
        EXPECT_TRUE(lezing.zonderAchternaam.empty());
        VerwachtFout(lezing, 3, velden);
    }
}

TEST(Spelerlezing, DeEersteTeKorteRegelIsDeFout)
{
    VerwachtFout(SpelersUit(Regel("a") + "2,,,,,b\r\n" + "3,,,,,c,\r\n"), 2, 6);
    // A file that broke off in its last line: before the surname, in it and further on.
    const std::pair<Tekst, int> gevallen[] = {
        {"2,100002,Gr", 3}, {"2,100002,Gr50-,Els,,Fu", 6}, {"2,1,G,E,,Fuik,06-1,e@f.exa", 8}};
    for (const auto& [laatste, velden] : gevallen) {
        const Spelerlezing lezing = SpelersUit(Regel("a") + laatste);
        EXPECT_EQ(lezing.tabel.has_value(), velden >= 6);
        EXPECT_EQ(Namen(lezing), velden >= 6 ? "a;" : "");
        VerwachtFout(lezing, 2, velden);
    }
}

TEST(Spelerlezing, ElkeAfgebrokenLengteIsEenBeginVanDeRijen)
{
    const auto heel = SpelersUit(vijfSpelers);
    for (std::size_t lengte = 0; lengte <= vijfSpelers.size(); ++lengte) {
        const Spelerlezing lezing = SpelersUit(vijfSpelers.substr(0, lengte));
        if (!lezing.tabel)
            continue;
        ASSERT_LE(lezing.tabel->Rijen(), 5);
        // The last row may have lost the end of its last field; all others are whole.
        for (int rij = 1; rij < lezing.tabel->Rijen(); ++rij)
            EXPECT_EQ(lezing.tabel->Velden(rij), heel.tabel->Velden(rij)) << lengte;
    }
}

TEST(Spelerlezing, VeldenNaHetAchttiendeVervallen)
{
    const Spelerlezing lezing =
        SpelersUit("HKEY=100007\r\n" + Regel("a,,,,,,,,,,,,x,19,20") + Regel("b"));
    EXPECT_EQ(Namen(lezing), "a;b;");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::NBBnr), "x");
    EXPECT_FALSE(lezing.fout);
    EXPECT_TRUE(lezing.verliest);
    // An empty nineteenth field is one too.
    EXPECT_TRUE(SpelersUit("HKEY=100007\r\n" + Regel("a,")).verliest);
}

TEST(Spelerlezing, GroepWordtAfgekapt)
{
    const Spelerlezing lezing = SpelersUit("HKEY=100007\r\n1,100001,Gr01-Leden,,,a,,,,,,,,,,,,\r\n"
                                           "2,100002,Gr,,,b,,,,,,,,,,,,\r\n");
    EXPECT_EQ(lezing.tabel->Cel(1, Kolom::Groep), "Gr01-");
    EXPECT_EQ(lezing.tabel->Cel(2, Kolom::Groep), "Gr");
    EXPECT_TRUE(lezing.verliest);
}

TEST(Spelerlezing, LeegNummerIsGewoonEenRijEnLegeSleutelEenDieHetOpslaanVerliest)
{
    VerwachtHeel(",100001,Gr01-,,,a,,,,,,,,,,,,\r\n" + Regel("b"), "a;b;");
    const Spelerlezing lezing =
        SpelersUit("HKEY=100007\r\n1,,Gr01-,,,a,,,,,,,,,,,,\r\n" + Regel("b"));
    EXPECT_EQ(Namen(lezing), "a;b;");
    EXPECT_TRUE(lezing.verliest);
}

TEST(Spelerlezing, VierenzestigKilobyteInEenVeld)
{
    const Tekst lang(65536, 'x');
    VerwachtHeel(Regel("a") + Regel(lang) + Regel("b"), "a;" + lang + ";b;");
    VerwachtFout(SpelersUit(Regel("a") + lang + "\r\n"), 2, 1);
    EXPECT_EQ(Sleutel("HKEY=" + Tekst(65536, '0') + "100007\r\n"), 100007);
}

namespace {

const std::vector<Tekst> stukken = {"1,100001,Gr01-,An,van,Bos,,,,,,,,,,,,x",
                                    "2,100002,Gr02-Leden,,,Cock,,,,,,,,,,,A,7",
                                    ",,,,, ,,,,,,,,,,,,",
                                    "1,2,3,,,,,,,,,,,,,,,,",
                                    "3,100003,Gr01-,,,D,,,,,,,,,,,,,,extra",
                                    "4,,,,,E,,,,,,,,,,,,",
                                    "5,100004,,,,F,,,,,,,,,,,",
                                    "6,,,,,",
                                    "HKEY=100009",
                                    "HKEY= 12 ",
                                    "   ",
                                    "\0"s,
                                    "\x81\xFF"};
const std::vector<Tekst> zeldzaam = {",",         ",,,,,", "a,b", "HKEY=99999999999",
                                     "HKEY=-1.5", "HKEY",  "G"};
const std::vector<Tekst> einden = {"\r\n", "\r\n", "\n", "\r", "\n\r", "\r\r\n", ""};

Tekst Willekeurig(std::mt19937& toeval)
{
    const auto kies = [&](const std::vector<Tekst>& uit) { return uit[toeval() % uit.size()]; };
    Tekst tekst;
    for (auto regels = toeval() % 12; regels > 0; --regels) {
        const auto rest = toeval() % 40;
        tekst += kies(rest == 0 ? zeldzaam : stukken);
        // Loose bytes without a comma are lines of one field, which end the counting.
        while (tekst.ends_with('\0') || tekst.ends_with('\xFF'))
            tekst += kies({",,,,,G,,,,,,,,,,,,", "x,,,,,"});
        tekst += kies(einden);
    }
    return tekst;
}

} // namespace

TEST(Spelerlezing, AlsDeGewoneLezer)
{
    constexpr int teksten = 30'000;
    std::mt19937 toeval(1812);
    int heel = 0;
    int afgebroken = 0;
    int zonderTabel = 0;
    for (int keer = 0; keer < teksten; ++keer) {
        const Tekst inhoud = Willekeurig(toeval);
        const gewoon::Lezing gewone = gewoon::Lees(inhoud);
        const Spelerlezing lezing = SpelersUit(inhoud);
        ASSERT_EQ(lezing.tabel.has_value(), gewone.tabel) << inhoud;
        ASSERT_EQ(lezing.HKEY, gewone.HKEY) << inhoud;
        ASSERT_EQ(lezing.fout ? lezing.fout->regel : 0, gewone.foutregel) << inhoud;
        ASSERT_EQ(lezing.fout ? lezing.velden : -1, gewone.foutvelden) << inhoud;
        ++(!gewone.tabel ? zonderTabel : gewone.foutregel > 0 ? afgebroken : heel);
        if (!lezing.tabel)
            continue;
        ASSERT_EQ(lezing.zonderAchternaam, gewone.zonderAchternaam) << inhoud;
        ASSERT_EQ(lezing.tabel->Rijen(), static_cast<int>(gewone.rijen.size())) << inhoud;
        for (int rij = 1; rij <= lezing.tabel->Rijen(); ++rij) {
            const Rijvelden velden = lezing.tabel->Velden(rij);
            ASSERT_EQ(gewoon::Velden(velden.begin(), velden.end()),
                      gewone.rijen[static_cast<std::size_t>(rij - 1)])
                << inhoud;
        }
        // A copy before the next save exactly when that save would lose something.
        Register spelers;
        spelers.tabel = *lezing.tabel;
        ASSERT_EQ(lezing.verliest, gewoon::Verliest(gewone, inhoud, SpelersTekst(spelers)))
            << inhoud;
    }
    // Each outcome must come often, or the comparison shows nothing.
    EXPECT_GT(heel, 1000);
    EXPECT_GT(afgebroken, 1000);
    EXPECT_GT(zonderTabel, 1000);
}
