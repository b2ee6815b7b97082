#include <algorithm>

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "schijven/geheugenSchijf.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace plexoran;

namespace {

class EchteSchijfTest : public testing::Test {
  protected:
    [[nodiscard]] Pad In(Tekstblik naam) const { return Samen(map_.AlsPad(), naam); }

    void ZetLink(const std::filesystem::path& doel, const char* naam) const
    {
        std::filesystem::create_symlink(doel, map_.Weg() / naam);
    }

    TijdelijkeMap map_;
    EchteSchijf schijf_;
};

template <class T> Foutsoort SoortVan(const Uitkomst<T>& uitkomst)
{
    if (uitkomst) {
        ADD_FAILURE() << "gelukt, waar een fout verwacht was";
        return Foutsoort::Beschadigd; // which no disk gives
    }
    EXPECT_FALSE(uitkomst.error().bestand.empty());
    EXPECT_FALSE(uitkomst.error().systeem.empty());
    return uitkomst.error().soort;
}

std::vector<Tekst> Gesorteerd(Uitkomst<std::vector<Tekst>> namen)
{
    EXPECT_TRUE(namen);
    auto uit = namen.value_or(std::vector<Tekst>());
    std::sort(uit.begin(), uit.end());
    return uit;
}

using Namen = std::vector<Tekst>;

// ---- What holds for every disk ---------------------------------------------------------------

class SchijfTest : public testing::TestWithParam<bool> {
  protected:
    SchijfTest() { geheugen_.ZetMap(map_); }

    [[nodiscard]] Pad In(Tekstblik naam) const { return Samen(map_, naam); }

    void Schrijf(const Pad& pad, Tekstblik inhoud)
    {
        auto schrijver = schijf_.MaakNieuw(pad);
        ASSERT_TRUE(schrijver) << schrijver.error().systeem;
        ASSERT_TRUE((*schrijver)->Schrijf(inhoud));
        ASSERT_TRUE((*schrijver)->Sync());
        ASSERT_TRUE((*schrijver)->Sluit());
    }

  private:
    TijdelijkeMap tijdelijk_;
    EchteSchijf echt_;
    GeheugenSchijf geheugen_;

  protected:
    Schijf& schijf_ = GetParam() ? static_cast<Schijf&>(echt_) : geheugen_;
    Pad map_ = GetParam() ? tijdelijk_.AlsPad() : "C:\\club";
};

INSTANTIATE_TEST_SUITE_P(, SchijfTest, testing::Bool(),
                         [](const auto& echt) { return echt.param ? "Echt" : "Geheugen"; });

} // namespace

TEST_P(SchijfTest, GeschrevenKomtTerug)
{
    Tekst inhoud;
    for (int i = 0; i < 300'000; ++i)
        inhoud += static_cast<char>(i * 7 % 256);
    Schrijf(In("spelers.txt"), inhoud);
    EXPECT_EQ(schijf_.LeesBestand(In("spelers.txt")), inhoud);
    Schrijf(In("leeg.txt"), "");
    EXPECT_EQ(schijf_.LeesBestand(In("leeg.txt")), "");

    // Writing goes on where it was.
    auto schrijver = schijf_.MaakNieuw(In("a.txt"));
    ASSERT_TRUE(schrijver);
    ASSERT_TRUE((*schrijver)->Schrijf("een\r\n"));
    ASSERT_TRUE((*schrijver)->Schrijf("twee\n"));
    ASSERT_TRUE((*schrijver)->Sluit());
    EXPECT_EQ(schijf_.LeesBestand(In("a.txt")), "een\r\ntwee\n");
}

TEST_P(SchijfTest, HoudtZegtOfErPreciesDatStaat)
{
    EXPECT_EQ(Foutsoort::Ontbreekt, SoortVan(schijf_.Houdt(In("weg"), "")));
    const std::size_t portie = std::size_t{1} << 18U; // that the real disk reads at once
    for (const std::size_t lengte :
         {std::size_t{0}, std::size_t{5}, portie - 1, portie, portie + 1}) {
        const Pad pad = In("lengte" + std::to_string(lengte));
        Tekst inhoud(lengte, 'a');
        Schrijf(pad, inhoud);
        EXPECT_EQ(true, schijf_.Houdt(pad, inhoud)) << lengte;
        EXPECT_EQ(false, schijf_.Houdt(pad, inhoud + "a")) << lengte;
        if (lengte > 0) {
            EXPECT_EQ(false, schijf_.Houdt(pad, Tekstblik(inhoud).substr(1))) << lengte;
            inhoud.back() = 'b';
            EXPECT_EQ(false, schijf_.Houdt(pad, inhoud)) << lengte;
        }
    }
}

TEST_P(SchijfTest, SoortPerPad)
{
    Schrijf(In("a.txt"), "x");
    EXPECT_EQ(schijf_.Soort(In("a.txt")), Padsoort::Bestand);
    EXPECT_EQ(schijf_.Soort(map_), Padsoort::Map);
    EXPECT_EQ(schijf_.Soort(In("b.txt")), Padsoort::Niets);
    EXPECT_EQ(schijf_.Soort(In("weg\\b.txt")), Padsoort::Niets);
    EXPECT_EQ(schijf_.Soort(In("a.txt\\b.txt")), Padsoort::Niets);
}

TEST_P(SchijfTest, WatErNietIsOntbreekt)
{
    const Pad weg = In("weg.txt");
    EXPECT_EQ(SoortVan(schijf_.LeesBestand(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.NeemStempel(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.Bestanden(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.Verwijder(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.Hernoem(weg, In("b"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.NeemRechtenOver(weg, In("b"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(schijf_.MaakNieuw(In("weg\\a"))), Foutsoort::Ontbreekt);
}

TEST_P(SchijfTest, MapInPlaatsVanBestand)
{
    const Pad map = In("spelers.txt");
    ASSERT_TRUE(schijf_.MaakMap(map));
    Schrijf(In("a.txt"), "x");
    EXPECT_EQ(SoortVan(schijf_.LeesBestand(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.NeemStempel(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.MaakNieuw(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.Verwijder(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.Hernoem(In("a.txt"), map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.NeemRechtenOver(map, In("a.txt"))), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, map, "x")), Foutsoort::Geweigerd);
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_)), Namen{"a.txt"});
}

TEST_P(SchijfTest, MaakNieuwVervangtNiets)
{
    Schrijf(In("a.txt"), "oud");
    EXPECT_EQ(SoortVan(schijf_.MaakNieuw(In("a.txt"))), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.MaakNieuw(In("A.TXT"))), Foutsoort::Geweigerd);
    EXPECT_EQ(schijf_.LeesBestand(In("a.txt")), "oud");
}

TEST_P(SchijfTest, HernoemVervangt)
{
    Schrijf(In("a.txt"), "oud");
    Schrijf(In("b.txt"), "nieuw");
    ASSERT_TRUE(schijf_.Hernoem(In("b.txt"), In("a.txt")));
    EXPECT_EQ(schijf_.LeesBestand(In("a.txt")), "nieuw");
    EXPECT_EQ(schijf_.Soort(In("b.txt")), Padsoort::Niets);
    // So it does a name in another case.
    Schrijf(In("b.txt"), "nieuwer");
    ASSERT_TRUE(schijf_.Hernoem(In("b.txt"), In("A.TXT")));
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_)).size(), 1U);
    EXPECT_EQ(schijf_.LeesBestand(In("a.txt")), "nieuwer");
}

TEST_P(SchijfTest, KastMaaktNietUit)
{
    ASSERT_TRUE(schijf_.MaakMap(In("Caf\xE9")));
    Schrijf(In("Caf\xE9\\Spelers.txt"), "x");
    EXPECT_EQ(schijf_.LeesBestand(In("CAF\xC9\\SPELERS.TXT")), "x");
    EXPECT_EQ(schijf_.LeesBestand(In("caf\xE9/spelers.txt")), "x");
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(In("CAF\xC9\\"))), Namen{"Spelers.txt"});
}

TEST_P(SchijfTest, NamenUitEenMap)
{
    Schrijf(In("b.txt"), "");
    Schrijf(In("Ren\xE9 \x80.txt"), "x");
    for (const char* map : {"map", "Ren\xE9 \x80", "map\\dieper", "map\\dieper\\nog"})
        ASSERT_TRUE(schijf_.MaakMap(In(map)));
    Schrijf(In("map\\c.txt"), "");
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_)), (Namen{"Ren\xE9 \x80.txt", "b.txt"}));
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(In("map"))), Namen{"c.txt"});
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(In("map\\dieper"))), Namen{});
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(map_)), (Namen{"Ren\xE9 \x80", "map"}));
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(In("MAP"))), Namen{"dieper"});
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(In("map\\dieper\\nog"))), Namen{});
    for (const char* geen : {"b.txt", "weg"}) {
        EXPECT_EQ(SoortVan(schijf_.Bestanden(In(geen))), Foutsoort::Ontbreekt);
        EXPECT_EQ(SoortVan(schijf_.Mappen(In(geen))), Foutsoort::Ontbreekt);
    }
}

TEST_P(SchijfTest, MaakMap)
{
    EXPECT_TRUE(schijf_.MaakMap(In("een")));
    EXPECT_TRUE(schijf_.MaakMap(In("een\\twee")));
    EXPECT_EQ(schijf_.Soort(In("een\\twee")), Padsoort::Map);
    EXPECT_TRUE(schijf_.MaakMap(In("EEN\\twee"))); // is there already
    EXPECT_EQ(schijf_.Soort(In("een\\twee")), Padsoort::Map);
    Schrijf(In("a.txt"), "x");
    EXPECT_EQ(SoortVan(schijf_.MaakMap(In("a.txt"))), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.MaakMap(In("a.txt\\b"))), Foutsoort::Geweigerd);
    // The folders above it are not made.
    EXPECT_EQ(SoortVan(schijf_.MaakMap(In("weg\\twee"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(schijf_.Soort(In("weg")), Padsoort::Niets);
}

TEST_P(SchijfTest, StempelVerandertMetHetBestand)
{
    const Pad pad = In("a.txt");
    Schrijf(pad, "12345");
    const auto eerste = schijf_.NeemStempel(pad);
    ASSERT_TRUE(eerste);
    EXPECT_EQ(eerste->grootte, 5U);
    EXPECT_EQ(schijf_.NeemStempel(pad), *eerste);
    ASSERT_TRUE(SchrijfHeel(schijf_, pad, "54321"));
    const auto tweede = schijf_.NeemStempel(pad);
    ASSERT_TRUE(tweede);
    EXPECT_NE(*tweede, *eerste);
    EXPECT_GE(tweede->tijd, eerste->tijd);
}

TEST_P(SchijfTest, VerwijderEnSync)
{
    Schrijf(In("a.txt"), "x");
    EXPECT_TRUE(schijf_.SyncMapVan(In("a.txt")));
    EXPECT_TRUE(schijf_.Verwijder(In("A.txt")));
    EXPECT_EQ(schijf_.Soort(In("a.txt")), Padsoort::Niets);
    EXPECT_TRUE(schijf_.SyncMapVan(In("a.txt")));
}

TEST_P(SchijfTest, EenMapGaatAlleenWegAlsZeLeegIs)
{
    const Pad map = In("map");
    ASSERT_TRUE(schijf_.MaakMap(map));
    Schrijf(Samen(map, "a.txt"), "x");
    EXPECT_EQ(SoortVan(schijf_.VerwijderMap(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(schijf_.LeesBestand(Samen(map, "a.txt")), "x");
    EXPECT_EQ(SoortVan(schijf_.VerwijderMap(Samen(map, "weg"))), Foutsoort::Ontbreekt);
    ASSERT_TRUE(schijf_.Verwijder(Samen(map, "a.txt")));
    ASSERT_TRUE(schijf_.MaakMap(Samen(map, "onder")));
    EXPECT_EQ(SoortVan(schijf_.VerwijderMap(map)), Foutsoort::Geweigerd);
    EXPECT_TRUE(schijf_.VerwijderMap(Samen(map, "onder")));
    EXPECT_TRUE(schijf_.VerwijderMap(map));
    EXPECT_EQ(schijf_.Soort(map), Padsoort::Niets);
    Schrijf(In("b.txt"), "x");
    EXPECT_FALSE(schijf_.VerwijderMap(In("b.txt")));
    EXPECT_EQ(schijf_.LeesBestand(In("b.txt")), "x");
}

TEST_P(SchijfTest, DoelVanEenGewoonBestandIsHetZelf)
{
    Schrijf(In("a.txt"), "x");
    for (const char* naam : {"a.txt", "weg.txt"})
        EXPECT_EQ(schijf_.Doel(In(naam)), In(naam));
}

// ---- The real disk ---------------------------------------------------------------------------

TEST_F(EchteSchijfTest, TeLangeNaamGeweigerd)
{
    const Pad lang = In(Tekst(300, 'a'));
#ifdef _WIN32 // which says that there is no such file, and no more
    EXPECT_FALSE(schijf_.LeesBestand(lang));
    EXPECT_FALSE(SchrijfHeel(schijf_, lang, "x"));
#else
    EXPECT_EQ(SoortVan(schijf_.Soort(lang)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.LeesBestand(lang)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, lang, "x")), Foutsoort::Geweigerd);
#endif
    const Pad kanNet = In(Tekst(200, 'a'));
    EXPECT_TRUE(SchrijfHeel(schijf_, kanNet, "x"));
    EXPECT_EQ(schijf_.LeesBestand(kanNet), "x");
}

TEST_F(EchteSchijfTest, NulbyteVindtNiets)
{
    map_.Zet("a", "x");
    const Pad pad = In(Tekst("a\0b", 3));
    EXPECT_FALSE(schijf_.LeesBestand(pad));
    EXPECT_FALSE(schijf_.MaakNieuw(pad));
    EXPECT_FALSE(schijf_.Verwijder(pad));
    EXPECT_EQ(map_.Inhoud("a"), "x");
}

TEST(Systeemmelding, DeGewoneFoutenInHetNederlands)
{
    const auto melding = [](std::errc fout) { return Systeemmelding(std::make_error_code(fout)); };
    const char* weg = "het bestand of de map bestaat niet";
    EXPECT_EQ(weg, melding(std::errc::no_such_file_or_directory));
    EXPECT_EQ("u hebt daar geen rechten voor", melding(std::errc::permission_denied));
    EXPECT_EQ("de schijf is vol", melding(std::errc::no_space_on_device));
    EXPECT_EQ("op deze schijf kan alleen worden gelezen",
              melding(std::errc::read_only_file_system));
    for (const std::errc fout :
         {std::errc::not_a_directory, std::errc::is_a_directory, std::errc::file_exists,
          std::errc::directory_not_empty, std::errc::operation_not_permitted,
          std::errc::file_too_large, std::errc::io_error, std::errc::device_or_resource_busy,
          std::errc::text_file_busy, std::errc::filename_too_long, std::errc::invalid_argument,
          std::errc::too_many_symbolic_link_levels, std::errc::cross_device_link,
          std::errc::too_many_files_open, std::errc::too_many_files_open_in_system,
          std::errc::not_enough_memory, std::errc::no_such_device, std::errc::timed_out})
        EXPECT_NE(std::make_error_code(fout).message(), melding(fout));

    // The rest in the words of the system, and what it says of its own disk in the same words.
    const auto zeldzaam = std::make_error_code(std::errc::owner_dead);
    EXPECT_EQ(zeldzaam.message(), Systeemmelding(zeldzaam));
    EXPECT_EQ(weg, Systeemmelding({ENOENT, std::generic_category()}));
    std::error_code fout;
    (void)std::filesystem::file_size("/bestaat/niet", fout);
    EXPECT_EQ(weg, Systeemmelding(fout));
}

TEST_F(EchteSchijfTest, FoutNoemtBestandEnReden)
{
    const auto gelezen = schijf_.LeesBestand(In("Ren\xE9"));
    ASSERT_FALSE(gelezen);
    EXPECT_EQ(gelezen.error().bestand, map_.Toonpad(u8"René"));
    EXPECT_EQ("het bestand of de map bestaat niet", gelezen.error().systeem);
    EXPECT_EQ(schijf_.Toonpad(In("Ren\xE9")), gelezen.error().bestand);
}

#ifndef _WIN32
TEST_F(EchteSchijfTest, EenMapDieGeenSyncenKentIsGoed)
{
    EXPECT_TRUE(schijf_.SyncMapVan("/proc\\a"));
    EXPECT_EQ(SoortVan(schijf_.SyncMapVan(In("weg\\a"))), Foutsoort::Ontbreekt);
}

TEST_F(EchteSchijfTest, ExacteNaamGaatVoorAndereKast)
{
    map_.Zet("Spelers.txt", "groot");
    map_.Zet("spelers.txt", "klein");
    EXPECT_EQ(schijf_.LeesBestand(In("spelers.txt")), "klein");
    EXPECT_EQ(schijf_.LeesBestand(In("Spelers.txt")), "groot");
    EXPECT_EQ(schijf_.LeesBestand(In("SPELERS.TXT")), "groot");
}

TEST_F(EchteSchijfTest, AccentenInMapEnNaam)
{
    std::filesystem::create_directory(map_.Weg() / "Caf\xC3\xA9");
    map_.Zet("Caf\xC3\xA9/Ren\xC3\xA9.txt", "utf8");
    EXPECT_EQ(schijf_.LeesBestand(In("CAF\xC9\\ren\xE9.TXT")), "utf8");
    ASSERT_TRUE(SchrijfHeel(schijf_, In("caf\xE9\\\x9Ckraine"), "nieuw"));
    EXPECT_EQ(map_.Inhoud("Caf\xC3\xA9/\xC5\x93kraine"), "nieuw");
}

TEST_F(EchteSchijfTest, RuweBytesWordenGevonden)
{
    map_.Zet("Ren\xE9.txt", "ruw");
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), Namen{"Ren\xE9.txt"});
    EXPECT_EQ(schijf_.LeesBestand(In("Ren\xE9.txt")), "ruw");
    EXPECT_EQ(schijf_.LeesBestand(In("REN\xC9.txt")), "ruw");
    map_.Zet("REN\xE9.txt", "andere kast"); // no reason to take another than the exact name
    EXPECT_EQ(schijf_.LeesBestand(In("Ren\xE9.txt")), "ruw");
    map_.Zet("Ren\xC3\xA9.txt", "utf8"); // comes first as soon as it is there
    EXPECT_EQ(schijf_.LeesBestand(In("Ren\xE9.txt")), "utf8");
}

TEST_F(EchteSchijfTest, NamenBuitenDeCodepagina)
{
    const Namen namen = {"Dvo\xC5\x99\xC3\xA1k", "\xC5\x81\xC3"};
    for (const Tekst& naam : namen) {
        map_.Zet(naam, naam);
        EXPECT_EQ(schijf_.LeesBestand(In(naam)), naam);
    }
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), namen);
}

TEST_F(EchteSchijfTest, LosGeschrevenAccenten)
{
    map_.Zet("Rene\xCC\x81", "los");
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), Namen{"Ren\xE9"});
    EXPECT_EQ(schijf_.LeesBestand(In("Ren\xE9")), "los");
}

TEST_F(EchteSchijfTest, MappenOokAchterEenLink)
{
    std::filesystem::create_directory(map_.Weg() / "a");
    ZetLink("a", "b");
    ZetLink("weg", "c");
    ASSERT_EQ(::mkfifo((map_.Weg() / "pijp").c_str(), 0600), 0);
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(map_.AlsPad())), (Namen{"a", "b"}));
}

TEST_F(EchteSchijfTest, GeenGewoonBestand)
{
    ASSERT_EQ(::mkfifo((map_.Weg() / "pijp").c_str(), 0600), 0);
    const Pad pijp = In("pijp");
    EXPECT_EQ(SoortVan(schijf_.LeesBestand(pijp)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf_.LeesBestand("\\dev\\zero")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, pijp, "x")), Foutsoort::Geweigerd);
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), Namen{});
    EXPECT_TRUE(std::filesystem::is_fifo(map_.Weg() / "pijp"));
}

TEST_F(EchteSchijfTest, BestandDatZijnGrootteNietZegt)
{
    const auto gelezen = schijf_.LeesBestand("/proc/self/status"); // size 0 by its own account
    ASSERT_TRUE(gelezen) << gelezen.error().systeem;
    EXPECT_GT(gelezen->size(), 100U);
}

TEST_F(EchteSchijfTest, LinkBlijftEnDoelWordtVervangen)
{
    std::filesystem::create_directory(map_.Weg() / "ver");
    map_.Zet("ver/echt.txt", "oud");
    ZetLink("ver/echt.txt", "tussen.txt");
    ZetLink(map_.Weg() / "tussen.txt", "link.txt");
    ASSERT_TRUE(SchrijfHeel(schijf_, In("LINK.TXT"), "nieuw"));
    EXPECT_TRUE(std::filesystem::is_symlink(map_.Weg() / "link.txt"));
    EXPECT_TRUE(std::filesystem::is_symlink(map_.Weg() / "tussen.txt"));
    EXPECT_FALSE(std::filesystem::is_symlink(map_.Weg() / "ver/echt.txt"));
    EXPECT_EQ(map_.Inhoud("ver/echt.txt"), "nieuw");
}

TEST_F(EchteSchijfTest, LinkNaarWatErNogNietIs)
{
    const std::string buitenDeCodepagina = "Dvo\xC5\x99\xC3\xA1k.txt";
    ZetLink("Ren\xC3\xA9.txt", "een.txt");
    ZetLink(buitenDeCodepagina, "twee.txt");
    EXPECT_EQ(schijf_.Doel(In("een.txt")), Vervang(map_.AlsPad(), '/', '\\') + "\\Ren\xE9.txt");
    ASSERT_TRUE(SchrijfHeel(schijf_, In("een.txt"), "1"));
    ASSERT_TRUE(SchrijfHeel(schijf_, In("twee.txt"), "2"));
    EXPECT_EQ(map_.Inhoud("Ren\xC3\xA9.txt"), "1");
    EXPECT_EQ(map_.Inhoud(buitenDeCodepagina), "2");
}

TEST_F(EchteSchijfTest, LinkInEenKring)
{
    ZetLink("b", "a");
    ZetLink("a", "b");
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, In("a"), "x")), Foutsoort::Geweigerd);
}

struct stat ToestandVan(const std::filesystem::path& pad)
{
    struct stat toestand {};
    EXPECT_EQ(::stat(pad.c_str(), &toestand), 0);
    return toestand;
}

TEST_F(EchteSchijfTest, RechtenBlijven)
{
    for (const mode_t rechten : {0600U, 0640U, 0666U, 0755U}) {
        map_.Zet("a.txt", "oud");
        ASSERT_EQ(::chmod((map_.Weg() / "a.txt").c_str(), rechten), 0);
        ASSERT_TRUE(SchrijfHeel(schijf_, In("a.txt"), "nieuw"));
        EXPECT_EQ(ToestandVan(map_.Weg() / "a.txt").st_mode & 07777, rechten);
        EXPECT_EQ(map_.Inhoud("a.txt"), "nieuw");
    }
}

TEST_F(EchteSchijfTest, EigenaarBlijft)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "alleen root mag een bestand weggeven";
    map_.Zet("a.txt", "oud");
    ASSERT_EQ(::chown((map_.Weg() / "a.txt").c_str(), 12345, 23456), 0);
    ASSERT_TRUE(SchrijfHeel(schijf_, In("a.txt"), "nieuw"));
    const auto toestand = ToestandVan(map_.Weg() / "a.txt");
    EXPECT_EQ(toestand.st_uid, 12345U);
    EXPECT_EQ(toestand.st_gid, 23456U);
}

/// Root may write everything; for as long as this lives we are nobody.
class GewoneGebruiker {
  public:
    GewoneGebruiker() { EXPECT_TRUE(!root_ || ::seteuid(65534) == 0); }
    GewoneGebruiker(const GewoneGebruiker&) = delete;
    GewoneGebruiker& operator=(const GewoneGebruiker&) = delete;
    ~GewoneGebruiker() { EXPECT_TRUE(!root_ || ::seteuid(0) == 0); }

  private:
    bool root_ = ::geteuid() == 0;
};

TEST_F(EchteSchijfTest, SchrijfbeveiligdBestandGeweigerd)
{
    map_.Zet("a.txt", "oud");
    ASSERT_EQ(::chmod(map_.Weg().c_str(), 0777), 0); // so that only the file itself can refuse
    ASSERT_EQ(::chmod((map_.Weg() / "a.txt").c_str(), 0444), 0);
    {
        const GewoneGebruiker gebruiker;
        EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, In("a.txt"), "nieuw")), Foutsoort::Geweigerd);
        EXPECT_TRUE(SchrijfHeel(schijf_, In("b.txt"), "kan wel"));
    }
    EXPECT_EQ(map_.Inhoud("a.txt"), "oud");
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), (Namen{"a.txt", "b.txt"}));
}

TEST_F(EchteSchijfTest, OntoegankelijkeMapIsEenFout)
{
    std::filesystem::create_directory(map_.Weg() / "dicht");
    map_.Zet("dicht/a.txt", "x");
    ASSERT_EQ(::chmod((map_.Weg() / "dicht").c_str(), 0), 0);
    {
        const GewoneGebruiker gebruiker;
        const Pad pad = In("dicht\\a.txt");
        EXPECT_EQ(SoortVan(schijf_.Soort(pad)), Foutsoort::Geweigerd); // and not Niets
        EXPECT_EQ(SoortVan(schijf_.LeesBestand(pad)), Foutsoort::Geweigerd);
        EXPECT_EQ(SoortVan(schijf_.Bestanden(In("dicht"))), Foutsoort::Geweigerd);
        EXPECT_EQ(SoortVan(SchrijfHeel(schijf_, pad, "y")), Foutsoort::Geweigerd);
    }
    ASSERT_EQ(::chmod((map_.Weg() / "dicht").c_str(), 0700), 0);
    EXPECT_EQ(map_.Inhoud("dicht/a.txt"), "x");
}

/// Elsewhere than on Windows a name may hold what separates the folders of a path of the suite.
TEST_F(EchteSchijfTest, NamenDieBuitenDeMapWijzenStaanNietInDeLijst)
{
    namespace fs = std::filesystem;
    for (const char* naam : {"goed", "..\\goed", "a\\b", "C:\\x"})
        fs::create_directory(map_.Weg() / naam);
    map_.Zet("lijst.csv", "");
    map_.Zet("..\\lijst.csv", "");
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(map_.AlsPad())), Namen{"goed"});
    EXPECT_EQ(Gesorteerd(schijf_.Mappen(map_.AlsPad())), Namen{"goed"});
    EXPECT_EQ(schijf_.NeemOvergeslagen(In("goed")), std::vector<std::string>{});
    EXPECT_EQ(schijf_.NeemOvergeslagen(map_.AlsPad()),
              (std::vector<std::string>{"..\\goed", "C:\\x", "a\\b"}));
    EXPECT_EQ(Gesorteerd(schijf_.Bestanden(map_.AlsPad())), Namen{"lijst.csv"});
    EXPECT_EQ(schijf_.NeemOvergeslagen(map_.AlsPad()), std::vector<std::string>{"..\\lijst.csv"})
        << "de mappen zijn al genoemd";
}

#endif

// ---- Time --------------------------------------------------------------------------------------

TEST(Tijdtekst, EenStempelInDezeVorm)
{
    // Noon, so that the date is the same in every time zone but the outermost.
    EXPECT_EQ("2024-02-29", Tijdtekst("yyyy-MM-dd", 1'709'208'000'000'000'000));
    EXPECT_EQ("31-12-1999", Tijdtekst("dd-MM-yyyy", 946'641'600'999'999'999));
    const auto nu = std::chrono::system_clock::now().time_since_epoch();
    EXPECT_NEAR(static_cast<double>(std::chrono::nanoseconds(nu).count()),
                static_cast<double>(Nu()), 1e9);
}

// ---- The disk in memory -------------------------------------------------------------------------

TEST(GeheugenSchijfTest, StroomuitvalVerliestWatNietGesynctIs)
{
    using Bestanden = std::map<Pad, Tekst>;
    using enum GeheugenSchijf::Namen;
    GeheugenSchijf schijf;
    schijf.Zet("m\\a", "oud");
    const auto schrijver = schijf.MaakNieuw("m\\b");
    ASSERT_TRUE(schrijver && (*schrijver)->Schrijf("nieuw"));
    EXPECT_EQ(schijf.NaStroomuitval(Gesynct), (Bestanden{{"m\\a", "oud"}}));
    EXPECT_EQ(schijf.NaStroomuitval(Alle), (Bestanden{{"m\\a", "oud"}, {"m\\b", ""}}));
    ASSERT_TRUE((*schrijver)->Sync());
    ASSERT_TRUE((*schrijver)->Schrijf("er"));
    EXPECT_EQ(schijf.NaStroomuitval(Alle), (Bestanden{{"m\\a", "oud"}, {"m\\b", "nieuw"}}));
    ASSERT_TRUE(schijf.Hernoem("m\\b", "m\\a"));
    EXPECT_EQ(schijf.NaStroomuitval(Gesynct), (Bestanden{{"m\\a", "oud"}}));
    EXPECT_EQ(schijf.NaStroomuitval(Alle), (Bestanden{{"m\\a", "nieuw"}}));
    ASSERT_TRUE(schijf.SyncMapVan("m\\a"));
    EXPECT_EQ(schijf.NaStroomuitval(Gesynct), (Bestanden{{"m\\a", "nieuw"}}));
    EXPECT_EQ(schijf.Inhoud("m\\a"), "nieuwer");
}

// ---- Names and sizes ---------------------------------------------------------------------------

TEST(Schijfnamen, EenKaleNaamBlijftInZijnMap)
{
    for (const char* naam : {"Club", "A..B", "..", ".", "...", "2024: slot", "C", "", ".verborgen"})
        EXPECT_EQ(IsKaleNaam(naam), Tekst(naam) != ".." && Tekst(naam) != ".") << naam;
    for (const char* naam : {"A/B", "..\\Elders", "/", "\\", "C:", "C:x", "c:\\x", "../x"}) {
        EXPECT_FALSE(IsKaleNaam(naam)) << naam;
        EXPECT_NE(GeenNaam(naam).systeem.find(naam), std::string::npos) << naam;
    }
}

TEST_F(EchteSchijfTest, EenBestandBovenDe64MBWordtGeweigerdVoorHetInHetGeheugenStaat)
{
    map_.Zet("a", "x");
    const auto maak = [&](std::uintmax_t grootte) {
        std::filesystem::resize_file(map_.Weg() / "a", grootte);
    };
    EXPECT_EQ(LeesBegrensd(schijf_, In("a")).value(), "x");
    maak(std::uintmax_t{64} << 20U);
    EXPECT_EQ(LeesBegrensd(schijf_, In("a"))->size(), std::size_t{64} << 20U);
    maak((std::uintmax_t{64} << 20U) + 1);
    for (const Fout& fout :
         {LeesBegrensd(schijf_, In("a")).error(), LeesAlsErIs(schijf_, In("a")).error()}) {
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
        EXPECT_EQ(fout.systeem, "het bestand is te groot: meer dan 64 MB");
        EXPECT_EQ(fout.bestand, map_.Toonpad("a"));
    }
    EXPECT_EQ(LeesAlsErIs(schijf_, In("b")).value(), std::nullopt);
}
