#include "platform/bronnen/access.h"

#include "hulp/fouten.h"

#include <cstdlib>

#include "hulp/accessgegevens.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "platform/tekst/codepagina.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace plexoran {
namespace {

namespace fs = std::filesystem;
using Klok = std::chrono::steady_clock;

const std::vector<std::string> ledennamen{"lidid",      "voornaam", "tussenvoegsel", "voorletters",
                                          "achternaam", "bestand",  "telefoon1",     "telefoon2",
                                          "email",      "geslacht", "bondsnummer",   "adres",
                                          "postcode",   "plaats",   "land",          "status"};

std::vector<Accesskolom> Ledenkolommen()
{
    std::vector<Accesskolom> kolommen;
    for (const std::string& naam : ledennamen) {
        const bool getal = naam == "lidid" || naam == "bestand";
        kolommen.push_back({naam, getal ? Accesssoort::Geheel : Accesssoort::Letters});
    }
    return kolommen;
}

auto LeesLeden(const std::string& bestand, const Accessgrenzen& grenzen = {},
               const Voortgang& voortgang = {})
{
    return LeesAccess(bestand, "leden", Ledenkolommen(), voortgang, grenzen);
}

/// The members of these bytes instead of the good ones.
auto LeesBytes(const std::string& bytes, const std::string& naam = "Members.mdb",
               const Voortgang& voortgang = {})
{
    const TijdelijkeMap map;
    map.Zet(naam, bytes);
    return LeesLeden(Samen(map.AlsPad(), naam), {}, voortgang);
}

/// The expected texts, in UTF-8, of those characters that the code page has; a byte order mark at
/// the front is no character.
Tekst ZoveelAlsKan(const std::string& utf8)
{
    static const std::map<std::string, std::string> anders{{"Łukasz", "Lukasz"},
                                                           {"Ł.", "L."},
                                                           {"Kowalski-Żółty", "Kowalski-Zólty"},
                                                           {"\xEF\xBB\xBF"
                                                            "2345680",
                                                            "2345680"},
                                                           {"Şahin", "Sahin"}};
    const auto gevonden = anders.find(utf8);
    return gevonden == anders.end() ? utf8 : gevonden->second;
}

void VergelijkMetTsv(const Uitkomst<std::vector<Accessrij>>& rijen)
{
    ASSERT_TRUE(rijen) << rijen.error().systeem;
    const Verwachtetabel verwacht = LeesTsv("Members.leden.tsv"); // by lidid
    ASSERT_EQ(rijen->size(), verwacht.size());
    std::map<std::string, const Accessrij*> opNummer;
    for (const Accessrij& rij : *rijen)
        opNummer[rij.at(0)->tekst] = &rij;
    for (const auto& lid : verwacht) {
        const std::string nummer = *lid.at("lidid");
        ASSERT_TRUE(opNummer.contains(nummer)) << nummer;
        const Accessrij& rij = *opNummer[nummer];
        for (std::size_t k = 0; k < ledennamen.size(); ++k) {
            const Verwachtecel& cel = lid.at(ledennamen[k]);
            ASSERT_EQ(rij[k].has_value(), cel.has_value()) << nummer << ' ' << ledennamen[k];
            if (cel) {
                EXPECT_EQ(NaarUtf8(rij[k]->tekst), ZoveelAlsKan(*cel))
                    << nummer << ' ' << ledennamen[k];
            }
        }
    }
}

TEST(Access, ElkeCelIsZoalsDeDatabaseHemHeeft)
{
    const auto rijen = LeesLeden(Accessbestand("Members.mdb"));
    VergelijkMetTsv(rijen);
    // Characters that the code page lacks are counted.
    std::map<std::string, std::size_t> vervangen;
    for (const Accessrij& rij : *rijen) {
        for (const auto& cel : rij)
            vervangen[rij[0]->tekst] += cel ? cel->vervangen : 0;
    }
    for (const auto& [nummer, aantal] : vervangen)
        EXPECT_EQ(aantal, nummer == "27" ? 4U : nummer == "28" ? 1U : 0U) << nummer;
}

TEST(Access, NaamVanTabelEnKolomZonderOpHoofdlettersTeLetten)
{
    const auto rijen =
        LeesAccess(Accessbestand("Members.mdb"), "LedenBestanden",
                   {{"BESTANDSNAAM", Accesssoort::Letters}, {"Id", Accesssoort::Geheel}});
    ASSERT_TRUE(rijen) << rijen.error().systeem;
    ASSERT_EQ(rijen->size(), 3U);
    EXPECT_EQ((*rijen)[2][0]->tekst, "Jeugd");
    EXPECT_EQ((*rijen)[2][1]->tekst, "105");
}

/// What is wrong with each file of the folder "bad". Those that are not here give the members.
const std::map<std::string, std::string> redenen{
    {"bestand-is-text.mdb",
     "de kolom \"bestand\" van de tabel \"leden\" bevat geen gehele getallen"},
    {"leden-without-email.mdb", "de kolom \"email\" van de tabel \"leden\" ontbreekt"},
    {"no-table-leden.mdb", "de tabel \"leden\" ontbreekt"},
    {"noise-64k.mdb", "het is geen Access-database"},
    {"pageswap-00.mdb", "de tabel \"leden\" is onleesbaar"},
    {"pageswap-05.mdb", "de lijst van tabellen kan niet worden gelezen"},
    {"pageswap-07.mdb", "de tabel \"leden\" ontbreekt"},
    {"repro-hang-propslist-len0.mdb", "de database is beschadigd: het lezen schoot niet meer op"},
    {"repro-segv-usagemap-leden.mdb", "de database is beschadigd: het lezen brak af"},
    {"trunc-4096.mdb", "de lijst van tabellen kan niet worden gelezen"},
    {"trunc-50pct.mdb", "de tabel \"leden\" is onleesbaar"},
    {"zero-bytes.mdb", "het bestand is leeg"},
};

/// Rows that are whole, but other ones than those of the undamaged file.
const std::map<std::string, std::size_t> andereRijen{
    {"both-tables-empty.mdb", 0}, // no damage
    {"no-table-ledenbestanden.mdb", 42},
    {"flip-00.mdb", 40}, // a letter of a text: nothing in the file can tell
    {"flip-05.mdb", 40},
};

void KeurSlecht(const std::string& naam, const Uitkomst<std::vector<Accessrij>>& rijen)
{
    SCOPED_TRACE(naam);
    if (naam == "repro-memory-prop-reclen0.mdb") { // out of memory or out of time
        ASSERT_FALSE(rijen);
        EXPECT_EQ(rijen.error().soort, Foutsoort::Beschadigd);
    } else if (const auto reden = redenen.find(naam); reden != redenen.end()) {
        ASSERT_FALSE(rijen);
        EXPECT_EQ(rijen.error().soort, Foutsoort::Beschadigd);
        EXPECT_EQ(rijen.error().systeem, reden->second);
        EXPECT_TRUE(rijen.error().bestand.ends_with(naam)) << rijen.error().bestand;
    } else {
        ASSERT_TRUE(rijen) << rijen.error().systeem;
        const auto andere = andereRijen.find(naam);
        if (andere == andereRijen.end())
            VergelijkMetTsv(rijen);
        else
            EXPECT_EQ(rijen->size(), andere->second);
    }
}

TEST(Access, ElkSlechtBestandGeeftEenFoutOfGoedeRijen)
{
    int gelezen = 0;
    for (const auto& bestand : fs::directory_iterator(Accessbestand("bad"))) {
        const auto begin = Klok::now();
        Accessgrenzen grenzen; // waits not so long for a child that hangs
        grenzen.zonderVoortgang = std::chrono::milliseconds(1'500);
        const auto rijen = LeesLeden(bestand.path().string(), grenzen);
        EXPECT_LT(Klok::now() - begin, std::chrono::seconds(15)) << bestand;
        KeurSlecht(bestand.path().filename().string(), rijen);
        ++gelezen;
    }
    EXPECT_EQ(gelezen, 29);
}

TEST(Access, WatGeenBestandIsWordtNietGelezen)
{
    const TijdelijkeMap map;
    EXPECT_EQ(FoutVan(LeesLeden(Samen(map.AlsPad(), "Members.mdb"))).soort, Foutsoort::Ontbreekt);
    const Fout eenMap = FoutVan(LeesLeden(map.AlsPad()));
    EXPECT_EQ(eenMap.soort, Foutsoort::Geweigerd);
    EXPECT_EQ(eenMap.systeem, "het is geen gewoon bestand");
}

TEST(Access, WatHetBestandVanZijnEigenGrootteZegtMoetKloppen)
{
    constexpr std::size_t rijenteller = 27 * AccessBladgrootte + 16;
    const std::string heel = LeesAlsBytes(Accessbestand("Members.mdb"));
    ASSERT_EQ(heel.substr(rijenteller, 4), std::string("\x28\0\0\0", 4));
    const auto metRijen = [&](const char* vier) {
        return std::string(heel).replace(rijenteller, 4, vier, 4);
    };
    for (const auto& [bytes, reden] : std::vector<std::pair<std::string, std::string>>{
             {heel.substr(0, heel.size() - 1),
              "de grootte is geen geheel aantal bladen: het bestand is afgekapt"},
             {metRijen("\x27\0\0\0"),
              "in de tabel \"leden\" staan te veel rijen (verwacht: 39, gelezen: 40)"},
             {metRijen("\x29\0\0\0"),
              "in de tabel \"leden\" ontbreken rijen (verwacht: 41, gelezen: 40)"},
             {metRijen("\xFF\xFF\xFF\x7F"),
              "de tabel \"leden\" zegt onmogelijk veel rijen te hebben"}}) {
        EXPECT_EQ(FoutVan(LeesBytes(bytes)).systeem, reden);
    }
}

TEST(Access, EenTekenpaarWordtGeenVraagteken)
{
    // The one text "Berg", of single bytes, becomes a face of two halves and "g".
    std::string bytes = LeesAlsBytes(Accessbestand("Members.mdb"));
    const auto begin = bytes.find("\xFF\xFE"
                                  "Berg");
    ASSERT_NE(begin, std::string::npos);
    const auto rijen = LeesBytes(bytes.replace(begin, 6, "\x3D\xD8\x00\xDE\x67\x00", 6));
    ASSERT_TRUE(rijen) << rijen.error().systeem;
    EXPECT_EQ(rijen->at(0)[4]->tekst, "g");
    EXPECT_EQ(rijen->at(0)[4]->vervangen, 1U);
}

TEST(Access, TwintigduizendLedenVlot)
{
    const auto bytes = MaakLedendatabase(Accessbestand("Members.mdb"), 500);
    const auto begin = Klok::now();
    std::size_t hoogste = 0;
    const auto rijen = LeesBytes(bytes, "Members.mdb", [&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_LE(gedaan, geheel);
        EXPECT_GE(gedaan, hoogste);
        hoogste = gedaan;
        return true;
    });
    EXPECT_LT(Klok::now() - begin, std::chrono::seconds(10));
    ASSERT_TRUE(rijen) << rijen.error().systeem;
    ASSERT_EQ(rijen->size(), 20'000U);
    EXPECT_GT(hoogste, 0U);
    for (std::size_t i = 40; i < rijen->size(); ++i)
        ASSERT_EQ((*rijen)[i][0]->tekst, (*rijen)[i - 40][0]->tekst) << i;
}

#ifndef _WIN32

TEST(Access, EenNaamDieGeenUtf8IsKomtHeelOver)
{
    VergelijkMetTsv(LeesBytes(LeesAlsBytes(Accessbestand("Members.mdb")), "L\xFF"
                                                                          "eden %41 'x'.mdb"));
}

TEST(Access, LeestWatAlleenLezenIsEnWatEenAnderOpenHeeft)
{
    const TijdelijkeMap map;
    const std::string bytes = LeesAlsBytes(Accessbestand("Members.mdb"));
    map.Zet("Ledén.mdb", bytes);
    const fs::path bestand = map.Weg() / "Ledén.mdb";
    const int ander = ::open(bestand.c_str(), O_RDWR);
    ASSERT_GE(ander, 0);
    struct flock slot = {};
    slot.l_type = F_WRLCK;
    ASSERT_EQ(::fcntl(ander, F_SETLK, &slot), 0);
    fs::permissions(bestand, fs::perms::owner_read);
    fs::permissions(map.Weg(), fs::perms::owner_read | fs::perms::owner_exec);
    const auto rijen = LeesLeden(Samen(map.AlsPad(), "LED\xC9N.MDB"));
    fs::permissions(map.Weg(), fs::perms::owner_all);
    ::close(ander);
    VergelijkMetTsv(rijen);
    EXPECT_EQ(map.Inhoud("Ledén.mdb"), bytes);
}

#ifndef __SANITIZE_ADDRESS__ // under which the limit cannot be set

TEST(Access, TeVeelGeheugenBeeindigtHetKind)
{
    Accessgrenzen grenzen;
    grenzen.zonderVoortgang = std::chrono::minutes(1); // not what ends it here
    EXPECT_EQ(
        FoutVan(LeesLeden(Accessbestand("bad/repro-memory-prop-reclen0.mdb"), grenzen)).systeem,
        "de database is beschadigd: het lezen brak af");
}

#endif

TEST(Access, OpEenPijpWordtNietGewacht)
{
    const TijdelijkeMap map;
    ASSERT_EQ(::mkfifo((map.Weg() / "Members.mdb").c_str(), 0600), 0);
    EXPECT_EQ(FoutVan(LeesLeden(Samen(map.AlsPad(), "Members.mdb"))).soort, Foutsoort::Geweigerd);
}

#endif

} // namespace
} // namespace plexoran
