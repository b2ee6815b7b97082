#include "federation/ledencsv.h"

#include "hulp/fouten.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

using Lijst = std::vector<Tekst>;

// ---- The import line ---------------------------------------------------------------------------

TEST(SplitsImportregel, GeeftElkVeldZijnPlek)
{
    for (const auto& [regel, velden] : std::vector<std::pair<Tekst, Importvelden>>{
             {"Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06,z@x.example,Nederland,V, 123 ",
              {"Zo\xEB", "van", "Ek", "Brink 1", "0411 JK", "Laar", "06", "z@x.example",
               "Nederland", "V", " 123 "}},
             {"", {}},
             {",,,,,,,,,,", {}},
             {"a,,b", {"a", "", "b"}},
             // A comma in a field moves the rest along.
             {"0,1,2,3,4,5,6,7,8,9,10,11",
              {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}}})
        EXPECT_EQ(SplitsImportregel(regel), velden) << regel;
}

// ---- The intermediate file ---------------------------------------------------------------------

const Pad tussenbestand = "C:\\P\\Club Temp-NBBXMLtoCSV.csv";

Uitkomst<void> Schrijf(Schijf& schijf, const std::vector<Lidrij>& leden)
{
    Tekst regels;
    for (const Lidrij& lid : leden)
        VoegLidToe(regels, lid);
    return SchrijfTussenregels(schijf, tussenbestand, regels);
}

TEST(Geslacht, ZesTekstenZijnBekendInHoofdlettersOfNiet)
{
    for (const char* tekst : {"MAN", "man", "Man", "MALE", "male"})
        EXPECT_EQ(GeslachtUit(tekst), "M") << tekst;
    for (const char* tekst : {"VROUW", "vrouw", "FEMALE", "female", "Female"})
        EXPECT_EQ(GeslachtUit(tekst), "V") << tekst;
    for (const char* tekst : {"NIET BEKEND", "unknown", "", "M", "V", " MAN", "MAN ", "X", "MANN"})
        EXPECT_EQ(GeslachtUit(tekst), "") << tekst;
}

TEST(ZonderVoorloop, NeemtAlleenTekensBoven240VoorafWeg)
{
    for (const auto& [nummer, rest] :
         std::vector<std::pair<Tekst, Tekst>>{{"\xFF\xFE\x31\x32", "12"},
                                              {"\xF1\x39", "9"},
                                              {"\xF1\xF1\x31\xFF", "1\xFF"},
                                              {"\xFF\xFF", ""},
                                              {"\xFF 123", " 123"},
                                              // These stay; the mark of UTF-8 begins with 239.
                                              {"\xF0\x39", "\xF0\x39"},
                                              {"\xEF\xBB\xBF\x31", "\xEF\xBB\xBF\x31"},
                                              {" \xFF\x31", " \xFF\x31"},
                                              {"12\xFF", "12\xFF"},
                                              {" 123 ", " 123 "},
                                              {"   ", "   "},
                                              {"", ""}})
        EXPECT_EQ(ZonderVoorloop(nummer), rest) << nummer;
}

TEST(Tussenbestand, HoudtZestienVeldenPerLidEnEenLegeRegelAanHetEind)
{
    const auto geschreven = [](const std::vector<Lidrij>& leden) {
        GeheugenSchijf schijf;
        schijf.ZetMap("C:\\P");
        EXPECT_TRUE(Schrijf(schijf, leden).has_value());
        return schijf.Inhoud(tussenbestand).value_or("(niets)");
    };
    EXPECT_EQ(geschreven({{"1", "V", "Zo\xEB", "Z.", "van", "Ek", "Brink 1", "0411 JK", "Laar",
                           "06", "z@x.example"},
                          {"2"}}),
              "1;V;Zo\xEB;Z.;van;Ek;Brink 1;0411 JK;Laar;06;z@x.example;;;;;;\r\n"
              "2;;;;;;;;;;;;;;;;\r\n"
              "\r\n");
    EXPECT_EQ(geschreven({}), "\r\n");
    // A line end in a field becomes a blank; those of two fields do not run together.
    EXPECT_EQ(geschreven({{"1", "", "a\r\nb", "c\rd", "e\nf", "\r\n", "\n\n", "g\n\rh", "i;j"}}),
              "1;;a b;c d;e f; ;  ;g  h;i;j;;;;;;;;\r\n\r\n");
    EXPECT_EQ(geschreven({{"1\r", "\nV"}, {"2"}}),
              "1 ; V;;;;;;;;;;;;;;;\r\n2;;;;;;;;;;;;;;;;\r\n\r\n");
}

TEST(Tussenbestand, VervangtEenEerderOfMeldtEenSchijfDieWeigert)
{
    GeheugenSchijf schijf;
    schijf.Zet(tussenbestand, "een veel langere oude inhoud dan de nieuwe\r\nen nog een regel\r\n");
    ASSERT_TRUE(Schrijf(schijf, {}).has_value());
    EXPECT_EQ(schijf.Inhoud(tussenbestand), "\r\n");
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{tussenbestand});
    schijf.ZetAlleenLezen("C:\\P");
    EXPECT_EQ(FoutVan(Schrijf(schijf, {{"1"}})).soort, Foutsoort::Geweigerd);
    EXPECT_EQ(schijf.Inhoud(tussenbestand), "\r\n");
}

// ---- Reading -----------------------------------------------------------------------------------

constexpr Importkeuzes geen{.naw = false, .tel = false, .email = false, .mv = false};

Ledenlezing Lees(Tekstblik tekst, const Importkeuzes& keuzes = {})
{
    auto lezing = LeesLedencsv(tekst, keuzes);
    EXPECT_TRUE(lezing.has_value());
    return lezing.value_or(Ledenlezing());
}

const Tekst lid = "123;V;Zo\xEB;Z.;van;Ek;Brink 1;0411 JK;Laar;06-1;z@x.example;Nederland";

TEST(Ledencsv, ZetDeKolommenInDeVolgordeVanDeImportregel)
{
    EXPECT_EQ(Lees(lid).lstN1,
              Lijst{"Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,z@x.example,Nederland,V,123"});
}

TEST(Ledencsv, EenVakjeDatUitStaatLaatZijnVeldenLeegMaarAanwezig)
{
    const auto met = [](bool naw, bool tel, bool email, bool mv) {
        return Tekst(Lees(lid, {.naw = naw, .tel = tel, .email = email, .mv = mv}).lstN1[0]);
    };
    EXPECT_EQ(met(false, true, true, true), "Zo\xEB,van,Ek,,,,06-1,z@x.example,,V,123");
    EXPECT_EQ(met(true, false, true, true),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,,z@x.example,Nederland,V,123");
    EXPECT_EQ(met(true, true, false, true),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,,Nederland,V,123");
    EXPECT_EQ(met(true, true, true, false),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,z@x.example,Nederland,,123");
    EXPECT_EQ(met(false, false, false, false), "Zo\xEB,van,Ek,,,,,,,,123");
}

TEST(Ledencsv, SlaatLegeRegelsOverEnKoppenMetEenIsTeken)
{
    const Ledenlezing lezing =
        Lees("NBBNR=Geslacht;x\r\n\r\n   \r\n" + lid + "\r\n1;;;;;De Vries;;;;;a=b;\r\n \r\n");
    EXPECT_EQ(lezing.lstN1.size(), 1U);
    EXPECT_EQ(lezing.metIsTeken, (Lijst{"NBBNR=Geslacht;x", "1;;;;;De Vries;;;;;a=b;"}));
    EXPECT_EQ(lezing.teKorteRegel, 0);
    // A tab is no blank.
    EXPECT_EQ(Lees("\t\r\n").teKorteRegel, 1);
}

TEST(Ledencsv, HoudtDeVolgordeEnTrimtNiets)
{
    // A comma stays too, and splits its field.
    EXPECT_EQ(Lees(" 2 ;; Bea ;; de ; B ;;;;;;\r\n1;;Ans;;;A, te;;;;;; nl ;rest;\r\n").lstN1,
              (Lijst{" Bea , de , B ,,,,,,,, 2 ", "Ans,,A, te,,,,,, nl ,,1"}));
}

TEST(Ledencsv, AlleenHetNummerVerliestTekensBoven240Vooraan)
{
    EXPECT_EQ(Lees("\xFF\xFE\x31;;\xFF\x32;;;X", geen).lstN1[0], "\xFF\x32,,X,,,,,,,,1");
}

TEST(Ledencsv, EenTeKorteRegelBeeindigtHetLezenEnHoudtWatErWas)
{
    const Tekst goed = "1;;A;;;B;;;;;;\r\n";
    const Ledenlezing lezing = Lees(goed + "\r\n" + "2;;C;;;D;;;;;\r\n" + goed);
    EXPECT_EQ(lezing.lstN1, Lijst{"A,,B,,,,,,,,1"});
    EXPECT_EQ(lezing.teKorteRegel, 3);
}

TEST(Ledencsv, HoeveelKolommenErMoetenZijnHangtVanDeVakjesAf)
{
    for (const auto& [keuzes, nodig] : std::vector<std::pair<Importkeuzes, std::size_t>>{
             {geen, 6},
             {{.naw = false, .tel = false, .email = false, .mv = true}, 6},
             {{.naw = false, .tel = true, .email = false, .mv = true}, 10},
             {{.naw = false, .tel = true, .email = true, .mv = true}, 11},
             {{.naw = true, .tel = false, .email = false, .mv = false}, 12}}) {
        EXPECT_EQ(Lees(Tekst(nodig - 2, ';') + "x", keuzes).teKorteRegel, 1) << nodig;
        EXPECT_EQ(Lees(Tekst(nodig - 1, ';') + "x", keuzes).teKorteRegel, 0) << nodig;
    }
}

TEST(Ledencsv, LeestElkRegeleindeEnEenRegelZonder)
{
    EXPECT_EQ(Lees("1;;A;;;B\n2;;C;;;D\r3;;E;;;F", geen).lstN1,
              (Lijst{"A,,B,,,,,,,,1", "C,,D,,,,,,,,2", "E,,F,,,,,,,,3"}));
    EXPECT_TRUE(Lees("").lstN1.empty());
    EXPECT_TRUE(Lees("\r\n").lstN1.empty());
}

TEST(Ledencsv, EenNulByteIsGeenTekst)
{
    EXPECT_EQ(FoutVan(LeesLedencsv(Tekstblik("1;;A;;;B\0", 9), geen)).soort, Foutsoort::Beschadigd);
}

TEST(Ledencsv, MeldtHoeVerHetIs)
{
    Tekst tekst;
    for (int i = 0; i < 10'000; ++i)
        tekst += lid + "\r\n";
    std::vector<std::size_t> standen;
    const auto lezing = LeesLedencsv(tekst, {}, [&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_EQ(geheel, tekst.size());
        standen.push_back(gedaan);
        return false; // reading goes on
    });
    EXPECT_EQ(lezing->lstN1.size(), 10'000U);
    ASSERT_GE(standen.size(), 2U);
    EXPECT_LT(standen[0], standen[1]);
}

} // namespace
} // namespace plexoran
