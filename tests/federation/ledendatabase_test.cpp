#include "federation/ledenbestand.h"

#include <algorithm>
#include <cstdlib>

#include "hulp/accessgegevens.h"
#include "hulp/fouten.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "platform/tekst/regels.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

const std::string database = Accessbestand("Members.mdb");
constexpr auto doel = "P\\Club Temp-NBBXMLtoCSV.csv";

Ledenopdracht Opdracht(const Pad& bestand)
{
    return {.bron = Ledenbron::Database, .programmamap = "P", .LedenDatabase = bestand};
}

class HaalLedenProef : public testing::Test {
  protected:
    HaalLedenProef() { schijf_.ZetMap("P"); }

    Tekst Haal(int id)
    {
        const auto gehaald = HaalLeden(schijf_, database, id, doel);
        EXPECT_TRUE(gehaald) << gehaald.error().systeem;
        vervangen_ = gehaald->vervangenTekens;
        return schijf_.Inhoud(doel).value_or("");
    }

    GeheugenSchijf schijf_;
    std::size_t vervangen_ = 0;
};

constexpr auto jeugd =
    " 2345695 ;; Kees ; K. ; van ; Spatie ; Kerkweg 5 ; 4444SA ; Rijndorp ; 010 0000001 ; "
    "kees@post.example ;;;;;;\r\n"
    "2345703;V;Oda;O.;ter;Beek;Havenkade 12;7777 SD;Wierdum;06-00000010;oda@club.example;;;;;;\r\n"
    "2345679;V;Fran\xE7oise;F.;van;Beu\xEFng;Lindelaan 100;5678 SD;Sint "
    "Pieterswolde;040-0222222;fr.beuing@post.example;;;;;;\r\n"
    "1;M;Ab;A.;;Bo;W1;1;P;2;a@b;;;;;;\r\n"
    "2345696;V;Maria-Louise;M.L.;van der;Heijden-van den Broek;Laan van Oud 123;5555 "
    "SD;Winkelmeer;026-0999999;mlvdheijden@voorbeeld.example;;;;;;\r\n"
    "\xF0"
    "2345702;V;Nynke;N.;;Hoekstra;Havenkade 10;7777 "
    "SD;Wierdum;058-0123123;nynke@club.example;;;;;;\r\n"
    "2345680;M;Bj\xF6rn;B.;;M\xFCller;Havenkade 2;6789 "
    "SA;Tolhuis;06-00000002;bjorn@leden.example;;;;;;\r\n"
    ";;;;;Smit;;;;;;;;;;;\r\n"
    "\r\n";

constexpr auto club =
    "2345686;M;Sjoerd;S.;;Bakker, Jr.;Groene Zoom 1, hoek Kerkweg;9012 "
    "SD;Boskerk;072-0666667;sjoerd.bakker@post.example;;;;;;\r\n"
    "1234567;V;Anneke;A.M.;van der;Berg;Dorpsstraat 12;1234 "
    "SD;Nieuwkoop;06-00123456;anneke.berg@voorbeeld.example;;;;;;\r\n"
    "2345692;M;Lo\xEF"
    "c;L.;;Cr\xE9ton;'t Hofje 3;2222 SA;\xC9\xE9n;0599-012346;loic@leden.example;;;;;;\r\n"
    "2345691;V;D\xE9sir\xE9"
    "e;D.\xC9.;van;Cura\xE7"
    "ao-Nolt\xEB;Burgemeester Vosstraat 200 bis;2222 "
    "SA;\xC9\xE9n;0599-012345;desiree@leden.example;;;;;;\r\n"
    " 2345678;V;Zo\xEB;Z.;'t;Ho\xEBn;Cr\xE9"
    "aplein 1;4567 SA;'s-Gravenbos;06-00000001;zoe@club.example;;;;;;\r\n"
    "1234568;M;Pieter;P.;;Jansen;Kerkweg 3;2345 "
    "SA;Oosterdam;020-0765432;p.jansen@post.example;;;;;;\r\n"
    "1234569;V;Partner;P.;van;Jansen;Kerkweg 3;2345 SA;Oosterdam;020-0765432;;;;;;;\r\n"
    ";;Partner van Jansen;;;Jansen;;;;;;;;;;;\r\n"
    "2345698;M;Aart;A.;;Jansen;Laan van Oud 127;5555 "
    "SD;Winkelmeer;06-00000008;a.jansen@voorbeeld.example;;;;;;\r\n"
    "2345699;M;Aart;A.;;Jansen;Laan van Oud 129;5555 "
    "SD;Winkelmeer;06-00000009;a.jansen2@voorbeeld.example;;;;;;\r\n"
    "2345693;M;Lukasz;L.;;Kowalski-Z\xF3lty;Molenpad 1;3333 "
    "SD;Wierdum;0599-012347;lukasz@leden.example;;;;;;\r\n"
    "2345687;;Jolanda;J.;van;Leeuwen;Laan van Oud 8 \"De Hoeve\";1123 "
    "SD;Hoogveld;06-00000004;j.vanleeuwen@post.example;;;;;;\r\n"
    "2345682;V;Trijntje;T.;de;Wit;Zuiderdiep 55;7890 "
    "SD;Maasbrug;06-00000003;t.dewit@voorbeeld.example;;;;;;\r\n"
    "\r\n";

/// It replaces the one before it.
TEST_F(HaalLedenProef, HetTussenbestandVanDeJeugdEnDaarnaVanDeClub)
{
    EXPECT_EQ(Haal(105), jeugd);
    EXPECT_EQ(vervangen_, 0U);
    EXPECT_EQ(Haal(7), club);
    EXPECT_EQ(vervangen_, 4U); // of one member: three times the Polish l, and a z
}

/// Line ends become a blank, tabs stay; a ";" splits its field, which is what it always did.
TEST_F(HaalLedenProef, HetTussenbestandVanDeCursus)
{
    const Tekst inhoud = Haal(12);
    Tekst zonderDeLange;
    for (const Tekstblik regel : Regels(inhoud)) {
        if (!regel.starts_with("11111111111111111111;"))
            zonderDeLange.append(regel).append("\r\n");
    }
    EXPECT_EQ(
        zonderDeLange,
        "2345700;M;O'Brien; \\ <tag> & %s;O.;;D'Artagnan;Regel een Regel twee;6666 "
        "SA;Zandhoven;027-0111111;o@post.example;;;;;;\r\n"
        ";;;;;Partner van Jansen;;;;;;;;;;;\r\n"
        "2345694;M;\xD6mer;\xD6.;;Sahin;Molenpad 2;3333 "
        "SD;Wierdum;0599-012348;omer@leden.example;;;;;;\r\n"
        "2345701;;Tab;T.;;Tab\tTeken;A\tB;6666 SA;Zandhoven;027-0111112;t@post.example;;;;;;\r\n"
        "0012345;M;Ren\xE9;R.J.;de;Vries;Molenpad 7a;3456 "
        "SD;Co\xEBvorden;030-0111111;rene@club.example;;;;;;\r\n"
        "\r\n");
    EXPECT_EQ(vervangen_, 1U);
}

/// Per member file as many as the database engine would give; who they are, the tests above say.
TEST_F(HaalLedenProef, FiltertZoalsDeDatabase)
{
    std::map<int, std::ptrdiff_t> verwacht;
    for (const auto& oordeel : LeesTsv("Members.filter.tsv")) {
        if (oordeel.at("jet") == "1" && oordeel.at("bestand"))
            ++verwacht[std::atoi(oordeel.at("bestand")->c_str())];
    }
    EXPECT_EQ(verwacht, (std::map<int, std::ptrdiff_t>{{7, 13}, {12, 6}, {105, 8}, {999, 1}}));
    for (const auto& [bestand, aantal] : verwacht) {
        const Tekst inhoud = Haal(bestand);
        EXPECT_EQ(std::count(inhoud.begin(), inhoud.end(), '\n'), aantal + 1) << bestand;
    }
    EXPECT_EQ(Haal(1), "\r\n"); // nobody
}

/// The number of the file is the end of its entry, the name of the intermediate file its beginning.
TEST_F(HaalLedenProef, WordenImportregelsLangsHetTussenbestand)
{
    const auto lezing = LeesLedenbestand(schijf_, Opdracht(database), "Jeugd 105");
    ASSERT_TRUE(lezing) << lezing.error().systeem;
    EXPECT_EQ(schijf_.Inhoud("P\\Jeugd Temp-NBBXMLtoCSV.csv"), jeugd);
    ASSERT_EQ(lezing->lstN1.size(), 8U);
    EXPECT_EQ(lezing->lstN1[0],
              " Kees , van , Spatie , Kerkweg 5 , 4444SA , Rijndorp , 010 0000001 "
              ", kees@post.example ,,, 2345695 ");
    EXPECT_TRUE(lezing->lstN1[5].ends_with(",,V,\xF0"
                                           "2345702"));
    EXPECT_EQ(lezing->lstN1[7], ",,Smit,,,,,,,,");
    EXPECT_EQ(lezing->teKorteRegel, 0);
    EXPECT_TRUE(lezing->metIsTeken.empty());
}

TEST_F(HaalLedenProef, BijEenFoutBlijftHetVorigeStaan)
{
    schijf_.Zet(doel, "oud");
    for (const char* naam : {"no-table-leden.mdb", "leden-without-email.mdb", "zero-bytes.mdb",
                             "repro-segv-usagemap-leden.mdb", "bestand-is-text.mdb"}) {
        const Fout fout =
            FoutVan(HaalLeden(schijf_, Accessbestand(std::string("bad/") + naam), 7, doel));
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd) << naam;
        EXPECT_TRUE(fout.bestand.ends_with(naam)) << fout.bestand;
        EXPECT_EQ(schijf_.Inhoud(doel), "oud") << naam;
    }
    EXPECT_EQ(FoutVan(HaalLeden(schijf_, Accessbestand("is er niet.mdb"), 7, doel)).soort,
              Foutsoort::Ontbreekt);
}

TEST_F(HaalLedenProef, WatDeSchijfWeigertIsEenFout)
{
    schijf_.ZetAlleenLezen("P");
    EXPECT_EQ(FoutVan(HaalLeden(schijf_, database, 7, doel)).soort, Foutsoort::Geweigerd);
    EXPECT_FALSE(schijf_.Inhoud(doel));
}

TEST_F(HaalLedenProef, TwintigduizendLeden)
{
    const TijdelijkeMap map;
    map.Zet("Members.mdb", MaakLedendatabase(database, 500));
    const auto vervangen = HaalLeden(schijf_, Samen(map.AlsPad(), "Members.mdb"), 105, doel);
    ASSERT_TRUE(vervangen) << vervangen.error().systeem;
    // By surname, and within a surname as read: each line of the small file 500 times.
    Tekst verwacht;
    for (const Tekstblik regel : Regels(jeugd)) {
        for (int keer = 0; keer < 500 && !regel.empty(); ++keer)
            verwacht.append(regel).append("\r\n");
    }
    EXPECT_TRUE(schijf_.Inhoud(doel) == verwacht + "\r\n");
}

TEST(HaalLedenbestanden, NaamEnDrieCijfers)
{
    const auto lijst = HaalLedenbestanden(database);
    ASSERT_TRUE(lijst) << lijst.error().systeem;
    EXPECT_EQ(*lijst, (std::vector<Tekst>{"Club 007", "Cursus 012", "Jeugd 105"}));
}

TEST(HaalLedenbestanden, FoutenEnEenLegeTabel)
{
    EXPECT_EQ(FoutVan(HaalLedenbestanden(Accessbestand("bad/no-table-ledenbestanden.mdb"))).systeem,
              "de tabel \"ledenbestanden\" ontbreekt");
    const auto leeg = HaalLedenbestanden(Accessbestand("bad/both-tables-empty.mdb"));
    ASSERT_TRUE(leeg) << leeg.error().systeem;
    EXPECT_TRUE(leeg->empty());
}

/// Meant: the entry shows the whole number, of which the last three characters are read back. So
/// the members of another file come, and the reading says whose.
TEST(HaalLedenbestanden, VanEenNummerVanVierCijfersTellenDeLaatsteDrie)
{
    const TijdelijkeMap map;
    map.Zet("Members.mdb", DatabaseMetJeugdnummer(1007));
    const Pad vierCijfers = Samen(map.AlsPad(), "Members.mdb");
    const auto lijst = HaalLedenbestanden(vierCijfers);
    ASSERT_TRUE(lijst) << lijst.error().systeem;
    EXPECT_EQ(*lijst, (std::vector<Tekst>{"Club 007", "Cursus 012", "Jeugd 1007"}));
    GeheugenSchijf schijf;
    schijf.ZetMap("P");
    const Ledenopdracht opdracht = Opdracht(vierCijfers);
    const auto jeugdig = LeesLedenbestand(schijf, opdracht, "Jeugd 1007");
    ASSERT_TRUE(jeugdig) << jeugdig.error().systeem;
    EXPECT_EQ(schijf.Inhoud("P\\Jeugd Temp-NBBXMLtoCSV.csv"), club);
    EXPECT_EQ(jeugdig->anderNummer, 7);
    EXPECT_EQ(LeesLedenbestand(schijf, opdracht, "Club 007")->anderNummer, std::nullopt);
    // An entry without a number, or with one below zero, reads as little as it shows.
    EXPECT_EQ(LeesLedenbestand(schijf, opdracht, "Club ")->anderNummer, 0);
    EXPECT_EQ(LeesLedenbestand(schijf, opdracht, "Club -007")->anderNummer, 7);
}

/// The one damaged file on which libmdb prints what it finds: nothing of it reaches anyone.
TEST(HaalLedenbestanden, WatLibmdbAfdruktKomtNergens)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto lijst = HaalLedenbestanden(Accessbestand("bad/repro-stdout-dump.mdb"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    ASSERT_TRUE(lijst) << lijst.error().systeem;
    EXPECT_EQ(lijst->size(), 3U);
}

} // namespace
} // namespace plexoran
