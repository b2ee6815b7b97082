#include <algorithm>

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/heelschrijven.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace plexoran;

namespace {

// ---- What holds for every disk ---------------------------------------------------------------

template <class Soort> struct Opstelling;

template <> struct Opstelling<EchteSchijf> {
    TijdelijkeMap tijdelijk;
    EchteSchijf schijf;
    Pad map = tijdelijk.AlsPad();
};

template <> struct Opstelling<GeheugenSchijf> {
    Opstelling() { schijf.ZetMap(map); }
    GeheugenSchijf schijf;
    Pad map = "C:\\club";
};

template <class Soort> class SchijfTest : public testing::Test {
  protected:
    [[nodiscard]] Pad In(Tekstblik naam) const { return Samen(opstelling_.map, naam); }

    void Schrijf(const Pad& pad, Tekstblik inhoud)
    {
        auto schrijver = schijf_.MaakNieuw(pad);
        ASSERT_TRUE(schrijver) << schrijver.error().systeem;
        ASSERT_TRUE((*schrijver)->Schrijf(inhoud));
        ASSERT_TRUE((*schrijver)->Sync());
        ASSERT_TRUE((*schrijver)->Sluit());
    }

    Opstelling<Soort> opstelling_;
    Schijf& schijf_ = opstelling_.schijf;
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

} // namespace

using AlleSchijven = testing::Types<EchteSchijf, GeheugenSchijf>;
TYPED_TEST_SUITE(SchijfTest, AlleSchijven);

TYPED_TEST(SchijfTest, GeschrevenKomtTerug)
{
    Tekst inhoud;
    for (int i = 0; i < 300'000; ++i)
        inhoud += static_cast<char>(i * 7 % 256);
    this->Schrijf(this->In("spelers.txt"), inhoud);
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("spelers.txt")), inhoud);
    this->Schrijf(this->In("leeg.txt"), "");
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("leeg.txt")), "");
}

TYPED_TEST(SchijfTest, SchrijvenGaatVerderWaarHetWas)
{
    auto schrijver = this->schijf_.MaakNieuw(this->In("a.txt"));
    ASSERT_TRUE(schrijver);
    ASSERT_TRUE((*schrijver)->Schrijf("een\r\n"));
    ASSERT_TRUE((*schrijver)->Schrijf("twee\n"));
    ASSERT_TRUE((*schrijver)->Sluit());
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("a.txt")), "een\r\ntwee\n");
}

TYPED_TEST(SchijfTest, SoortPerPad)
{
    this->Schrijf(this->In("a.txt"), "x");
    EXPECT_EQ(this->schijf_.Soort(this->In("a.txt")), Padsoort::Bestand);
    EXPECT_EQ(this->schijf_.Soort(this->opstelling_.map), Padsoort::Map);
    EXPECT_EQ(this->schijf_.Soort(this->In("b.txt")), Padsoort::Niets);
    EXPECT_EQ(this->schijf_.Soort(this->In("weg\\b.txt")), Padsoort::Niets);
    EXPECT_EQ(this->schijf_.Soort(this->In("a.txt\\b.txt")), Padsoort::Niets);
}

TYPED_TEST(SchijfTest, WatErNietIsOntbreekt)
{
    const Pad weg = this->In("weg.txt");
    EXPECT_EQ(SoortVan(this->schijf_.LeesBestand(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.NeemStempel(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.Bestanden(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.Verwijder(weg)), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.Hernoem(weg, this->In("b"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.NeemRechtenOver(weg, this->In("b"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.MaakNieuw(this->In("weg\\a"))), Foutsoort::Ontbreekt);
}

TYPED_TEST(SchijfTest, MapInPlaatsVanBestand)
{
    const Pad map = this->In("spelers.txt");
    ASSERT_TRUE(this->schijf_.MaakMap(map));
    this->Schrijf(this->In("a.txt"), "x");
    EXPECT_EQ(SoortVan(this->schijf_.LeesBestand(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.NeemStempel(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.MaakNieuw(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.Verwijder(map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.Hernoem(this->In("a.txt"), map)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.NeemRechtenOver(map, this->In("a.txt"))),
              Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(this->schijf_, map, "x")), Foutsoort::Geweigerd);
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->opstelling_.map)), Namen{"a.txt"});
}

TYPED_TEST(SchijfTest, MaakNieuwVervangtNiets)
{
    this->Schrijf(this->In("a.txt"), "oud");
    EXPECT_EQ(SoortVan(this->schijf_.MaakNieuw(this->In("a.txt"))), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.MaakNieuw(this->In("A.TXT"))), Foutsoort::Geweigerd);
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("a.txt")), "oud");
}

TYPED_TEST(SchijfTest, HernoemVervangt)
{
    this->Schrijf(this->In("a.txt"), "oud");
    this->Schrijf(this->In("b.txt"), "nieuw");
    ASSERT_TRUE(this->schijf_.Hernoem(this->In("b.txt"), this->In("a.txt")));
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("a.txt")), "nieuw");
    EXPECT_EQ(this->schijf_.Soort(this->In("b.txt")), Padsoort::Niets);
}

TYPED_TEST(SchijfTest, HernoemVindtDeNaamInAndereKast)
{
    this->Schrijf(this->In("SPELERS.TXT"), "oud");
    this->Schrijf(this->In("b.txt"), "nieuw");
    ASSERT_TRUE(this->schijf_.Hernoem(this->In("b.txt"), this->In("spelers.txt")));
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->opstelling_.map)).size(), 1U);
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("SPELERS.TXT")), "nieuw");
}

TYPED_TEST(SchijfTest, KastMaaktNietUit)
{
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("Caf\xE9")));
    this->Schrijf(this->In("Caf\xE9\\Spelers.txt"), "x");
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("CAF\xC9\\SPELERS.TXT")), "x");
    EXPECT_EQ(this->schijf_.LeesBestand(this->In("caf\xE9/spelers.txt")), "x");
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->In("CAF\xC9\\"))), Namen{"Spelers.txt"});
}

TYPED_TEST(SchijfTest, NamenUitEenMap)
{
    this->Schrijf(this->In("b.txt"), "");
    this->Schrijf(this->In("Ren\xE9 \x80.txt"), "x");
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("map")));
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("map\\dieper")));
    this->Schrijf(this->In("map\\c.txt"), "");
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->opstelling_.map)),
              (Namen{"Ren\xE9 \x80.txt", "b.txt"}));
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->In("map"))), Namen{"c.txt"});
    EXPECT_EQ(Gesorteerd(this->schijf_.Bestanden(this->In("map\\dieper"))), Namen{});
    EXPECT_EQ(SoortVan(this->schijf_.Bestanden(this->In("b.txt"))), Foutsoort::Ontbreekt);
}

TYPED_TEST(SchijfTest, MappenInEenMap)
{
    this->Schrijf(this->In("b.txt"), "");
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("map")));
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("Ren\xE9 \x80")));
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("map\\dieper")));
    ASSERT_TRUE(this->schijf_.MaakMap(this->In("map\\dieper\\nog")));
    this->Schrijf(this->In("map\\c.txt"), "");
    EXPECT_EQ(Gesorteerd(this->schijf_.Mappen(this->opstelling_.map)),
              (Namen{"Ren\xE9 \x80", "map"}));
    EXPECT_EQ(Gesorteerd(this->schijf_.Mappen(this->In("MAP"))), Namen{"dieper"});
    EXPECT_EQ(Gesorteerd(this->schijf_.Mappen(this->In("map\\dieper\\nog"))), Namen{});
    EXPECT_EQ(SoortVan(this->schijf_.Mappen(this->In("b.txt"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(SoortVan(this->schijf_.Mappen(this->In("weg"))), Foutsoort::Ontbreekt);
}

TYPED_TEST(SchijfTest, MaakMap)
{
    EXPECT_TRUE(this->schijf_.MaakMap(this->In("een")));
    EXPECT_TRUE(this->schijf_.MaakMap(this->In("een\\twee")));
    EXPECT_EQ(this->schijf_.Soort(this->In("een\\twee")), Padsoort::Map);
    EXPECT_TRUE(this->schijf_.MaakMap(this->In("EEN\\twee"))); // is there already
    EXPECT_EQ(this->schijf_.Soort(this->In("een\\twee")), Padsoort::Map);
    this->Schrijf(this->In("a.txt"), "x");
    EXPECT_EQ(SoortVan(this->schijf_.MaakMap(this->In("a.txt"))), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(this->schijf_.MaakMap(this->In("a.txt\\b"))), Foutsoort::Geweigerd);
}

TYPED_TEST(SchijfTest, MaakMapMaaktDeMappenErbovenNiet)
{
    EXPECT_EQ(SoortVan(this->schijf_.MaakMap(this->In("weg\\twee"))), Foutsoort::Ontbreekt);
    EXPECT_EQ(this->schijf_.Soort(this->In("weg")), Padsoort::Niets);
}

TYPED_TEST(SchijfTest, StempelVerandertMetHetBestand)
{
    const Pad pad = this->In("a.txt");
    this->Schrijf(pad, "12345");
    const auto eerste = this->schijf_.NeemStempel(pad);
    ASSERT_TRUE(eerste);
    EXPECT_EQ(eerste->grootte, 5U);
    EXPECT_EQ(this->schijf_.NeemStempel(pad), *eerste);
    ASSERT_TRUE(SchrijfHeel(this->schijf_, pad, "54321"));
    const auto tweede = this->schijf_.NeemStempel(pad);
    ASSERT_TRUE(tweede);
    EXPECT_NE(*tweede, *eerste);
    EXPECT_GE(tweede->tijd, eerste->tijd);
}

TYPED_TEST(SchijfTest, VerwijderEnSync)
{
    this->Schrijf(this->In("a.txt"), "x");
    EXPECT_TRUE(this->schijf_.SyncMapVan(this->In("a.txt")));
    EXPECT_TRUE(this->schijf_.Verwijder(this->In("A.txt")));
    EXPECT_EQ(this->schijf_.Soort(this->In("a.txt")), Padsoort::Niets);
    EXPECT_TRUE(this->schijf_.SyncMapVan(this->In("a.txt")));
}

TYPED_TEST(SchijfTest, DoelVanEenGewoonBestandIsHetZelf)
{
    this->Schrijf(this->In("a.txt"), "x");
    EXPECT_EQ(this->schijf_.Doel(this->In("a.txt")), this->In("a.txt"));
    EXPECT_EQ(this->schijf_.Doel(this->In("weg.txt")), this->In("weg.txt"));
}

// ---- The real disk ---------------------------------------------------------------------------

TEST(EchteSchijfTest, TeLangeNaamGeweigerd)
{
    const TijdelijkeMap map;
    EchteSchijf schijf;
    const Pad lang = Samen(map.AlsPad(), Tekst(300, 'a'));
#ifdef _WIN32 // which says that there is no such file, and no more
    EXPECT_FALSE(schijf.LeesBestand(lang));
    EXPECT_FALSE(SchrijfHeel(schijf, lang, "x"));
#else
    EXPECT_EQ(SoortVan(schijf.Soort(lang)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.LeesBestand(lang)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf, lang, "x")), Foutsoort::Geweigerd);
#endif
    const Pad kanNet = Samen(map.AlsPad(), Tekst(200, 'a'));
    EXPECT_TRUE(SchrijfHeel(schijf, kanNet, "x"));
    EXPECT_EQ(schijf.LeesBestand(kanNet), "x");
}

TEST(EchteSchijfTest, NulbyteVindtNiets)
{
    const TijdelijkeMap map;
    map.Zet("a", "x");
    EchteSchijf schijf;
    const Pad pad = Samen(map.AlsPad(), Tekst("a\0b", 3));
    EXPECT_FALSE(schijf.LeesBestand(pad));
    EXPECT_FALSE(schijf.MaakNieuw(pad));
    EXPECT_FALSE(schijf.Verwijder(pad));
    EXPECT_EQ(map.Inhoud("a"), "x");
}

TEST(Systeemmelding, DeGewoneFoutenInHetNederlands)
{
    const auto melding = [](std::errc fout) { return Systeemmelding(std::make_error_code(fout)); };
    EXPECT_EQ("het bestand of de map bestaat niet", melding(std::errc::no_such_file_or_directory));
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
}

TEST(Systeemmelding, DeRestInDeWoordenVanHetSysteem)
{
    const auto zeldzaam = std::make_error_code(std::errc::owner_dead);
    EXPECT_EQ(zeldzaam.message(), Systeemmelding(zeldzaam));
}

/// What the system says of its own disk comes out in the same words.
TEST(Systeemmelding, OokVanHetSysteemZelf)
{
    EXPECT_EQ("het bestand of de map bestaat niet",
              Systeemmelding({ENOENT, std::generic_category()}));
    std::error_code fout;
    (void)std::filesystem::file_size("/bestaat/niet", fout);
    EXPECT_EQ("het bestand of de map bestaat niet", Systeemmelding(fout));
}

TEST(EchteSchijfTest, FoutNoemtBestandEnReden)
{
    EchteSchijf schijf;
    const TijdelijkeMap map;
    const auto gelezen = schijf.LeesBestand(Samen(map.AlsPad(), "Ren\xE9"));
    ASSERT_FALSE(gelezen);
    EXPECT_EQ(gelezen.error().bestand, map.Toonpad(u8"René"));
    EXPECT_EQ("het bestand of de map bestaat niet", gelezen.error().systeem);
    EXPECT_EQ(schijf.Toonpad(Samen(map.AlsPad(), "Ren\xE9")), gelezen.error().bestand);
}

#ifndef _WIN32

TEST(EchteSchijfTest, ExacteNaamGaatVoorAndereKast)
{
    const TijdelijkeMap map;
    map.Zet("Spelers.txt", "groot");
    map.Zet("spelers.txt", "klein");
    EchteSchijf schijf;
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "spelers.txt")), "klein");
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "Spelers.txt")), "groot");
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "SPELERS.TXT")), "groot");
}

TEST(EchteSchijfTest, AccentenInMapEnNaam)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "Caf\xC3\xA9");
    map.Zet("Caf\xC3\xA9/Ren\xC3\xA9.txt", "utf8");
    EchteSchijf schijf;
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "CAF\xC9\\ren\xE9.TXT")), "utf8");
    ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "caf\xE9\\\x9Ckraine"), "nieuw"));
    EXPECT_EQ(map.Inhoud("Caf\xC3\xA9/\xC5\x93kraine"), "nieuw");
}

TEST(EchteSchijfTest, RuweBytesWordenGevonden)
{
    const TijdelijkeMap map;
    map.Zet("Ren\xE9.txt", "ruw");
    EchteSchijf schijf;
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), Namen{"Ren\xE9.txt"});
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "Ren\xE9.txt")), "ruw");
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "REN\xC9.txt")), "ruw");
    map.Zet("REN\xE9.txt", "andere kast"); // no reason to take another than the exact name
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "Ren\xE9.txt")), "ruw");
    map.Zet("Ren\xC3\xA9.txt", "utf8"); // comes first as soon as it is there
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "Ren\xE9.txt")), "utf8");
}

TEST(EchteSchijfTest, NamenBuitenDeCodepagina)
{
    const TijdelijkeMap map;
    const Namen namen = {"Dvo\xC5\x99\xC3\xA1k", "\xC5\x81\xC3"};
    EchteSchijf schijf;
    for (const Tekst& naam : namen) {
        map.Zet(naam, naam);
        EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), naam)), naam);
    }
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), namen);
}

TEST(EchteSchijfTest, LosGeschrevenAccenten)
{
    const TijdelijkeMap map;
    map.Zet("Rene\xCC\x81", "los");
    EchteSchijf schijf;
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), Namen{"Ren\xE9"});
    EXPECT_EQ(schijf.LeesBestand(Samen(map.AlsPad(), "Ren\xE9")), "los");
}

TEST(EchteSchijfTest, MappenOokAchterEenLink)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "a");
    std::filesystem::create_symlink("a", map.Weg() / "b");
    std::filesystem::create_symlink("weg", map.Weg() / "c");
    ASSERT_EQ(::mkfifo((map.Weg() / "pijp").c_str(), 0600), 0);
    EchteSchijf schijf;
    EXPECT_EQ(Gesorteerd(schijf.Mappen(map.AlsPad())), (Namen{"a", "b"}));
}

TEST(EchteSchijfTest, GeenGewoonBestand)
{
    const TijdelijkeMap map;
    ASSERT_EQ(::mkfifo((map.Weg() / "pijp").c_str(), 0600), 0);
    EchteSchijf schijf;
    const Pad pijp = Samen(map.AlsPad(), "pijp");
    EXPECT_EQ(SoortVan(schijf.LeesBestand(pijp)), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.LeesBestand("\\dev\\zero")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf, pijp, "x")), Foutsoort::Geweigerd);
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), Namen{});
    EXPECT_TRUE(std::filesystem::is_fifo(map.Weg() / "pijp"));
}

TEST(EchteSchijfTest, BestandDatZijnGrootteNietZegt)
{
    EchteSchijf schijf;
    const auto gelezen = schijf.LeesBestand("/proc/self/status"); // size 0 by its own account
    ASSERT_TRUE(gelezen) << gelezen.error().systeem;
    EXPECT_GT(gelezen->size(), 100U);
}

TEST(EchteSchijfTest, LinkBlijftEnDoelWordtVervangen)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "ver");
    map.Zet("ver/echt.txt", "oud");
    std::filesystem::create_symlink("ver/echt.txt", map.Weg() / "tussen.txt");
    std::filesystem::create_symlink(map.Weg() / "tussen.txt", map.Weg() / "link.txt");
    EchteSchijf schijf;
    ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "LINK.TXT"), "nieuw"));
    EXPECT_TRUE(std::filesystem::is_symlink(map.Weg() / "link.txt"));
    EXPECT_TRUE(std::filesystem::is_symlink(map.Weg() / "tussen.txt"));
    EXPECT_FALSE(std::filesystem::is_symlink(map.Weg() / "ver/echt.txt"));
    EXPECT_EQ(map.Inhoud("ver/echt.txt"), "nieuw");
}

TEST(EchteSchijfTest, LinkNaarWatErNogNietIs)
{
    const TijdelijkeMap map;
    const std::string buitenDeCodepagina = "Dvo\xC5\x99\xC3\xA1k.txt";
    std::filesystem::create_symlink("Ren\xC3\xA9.txt", map.Weg() / "een.txt");
    std::filesystem::create_symlink(buitenDeCodepagina, map.Weg() / "twee.txt");
    EchteSchijf schijf;
    EXPECT_EQ(schijf.Doel(Samen(map.AlsPad(), "een.txt")),
              Vervang(map.AlsPad(), '/', '\\') + "\\Ren\xE9.txt");
    ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "een.txt"), "1"));
    ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "twee.txt"), "2"));
    EXPECT_EQ(map.Inhoud("Ren\xC3\xA9.txt"), "1");
    EXPECT_EQ(map.Inhoud(buitenDeCodepagina), "2");
}

TEST(EchteSchijfTest, LinkInEenKring)
{
    const TijdelijkeMap map;
    std::filesystem::create_symlink("b", map.Weg() / "a");
    std::filesystem::create_symlink("a", map.Weg() / "b");
    EchteSchijf schijf;
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf, Samen(map.AlsPad(), "a"), "x")), Foutsoort::Geweigerd);
}

mode_t RechtenVan(const std::filesystem::path& pad)
{
    struct stat toestand {};
    EXPECT_EQ(::stat(pad.c_str(), &toestand), 0);
    return toestand.st_mode & 07777;
}

TEST(EchteSchijfTest, RechtenBlijven)
{
    const TijdelijkeMap map;
    EchteSchijf schijf;
    for (const mode_t rechten : {0600U, 0640U, 0666U, 0755U}) {
        map.Zet("a.txt", "oud");
        ASSERT_EQ(::chmod((map.Weg() / "a.txt").c_str(), rechten), 0);
        ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "a.txt"), "nieuw"));
        EXPECT_EQ(RechtenVan(map.Weg() / "a.txt"), rechten);
        EXPECT_EQ(map.Inhoud("a.txt"), "nieuw");
    }
}

TEST(EchteSchijfTest, EigenaarBlijft)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "alleen root mag een bestand weggeven";
    const TijdelijkeMap map;
    map.Zet("a.txt", "oud");
    ASSERT_EQ(::chown((map.Weg() / "a.txt").c_str(), 12345, 23456), 0);
    EchteSchijf schijf;
    ASSERT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "a.txt"), "nieuw"));
    struct stat toestand {};
    ASSERT_EQ(::stat((map.Weg() / "a.txt").c_str(), &toestand), 0);
    EXPECT_EQ(toestand.st_uid, 12345U);
    EXPECT_EQ(toestand.st_gid, 23456U);
}

/// Root may write everything; for as long as this lives we are nobody.
class GewoneGebruiker {
  public:
    GewoneGebruiker() : root_(::geteuid() == 0)
    {
        if (root_) {
            EXPECT_EQ(::seteuid(65534), 0);
        }
    }
    GewoneGebruiker(const GewoneGebruiker&) = delete;
    GewoneGebruiker& operator=(const GewoneGebruiker&) = delete;
    ~GewoneGebruiker()
    {
        if (root_) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }

  private:
    bool root_;
};

TEST(EchteSchijfTest, SchrijfbeveiligdBestandGeweigerd)
{
    const TijdelijkeMap map;
    map.Zet("a.txt", "oud");
    ASSERT_EQ(::chmod(map.Weg().c_str(), 0777), 0); // so that only the file itself can refuse
    ASSERT_EQ(::chmod((map.Weg() / "a.txt").c_str(), 0444), 0);
    EchteSchijf schijf;
    {
        const GewoneGebruiker gebruiker;
        EXPECT_EQ(SoortVan(SchrijfHeel(schijf, Samen(map.AlsPad(), "a.txt"), "nieuw")),
                  Foutsoort::Geweigerd);
        EXPECT_TRUE(SchrijfHeel(schijf, Samen(map.AlsPad(), "b.txt"), "kan wel"));
    }
    EXPECT_EQ(map.Inhoud("a.txt"), "oud");
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), (Namen{"a.txt", "b.txt"}));
}

TEST(EchteSchijfTest, OntoegankelijkeMapIsEenFout)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "dicht");
    map.Zet("dicht/a.txt", "x");
    ASSERT_EQ(::chmod((map.Weg() / "dicht").c_str(), 0), 0);
    EchteSchijf schijf;
    {
        const GewoneGebruiker gebruiker;
        const Pad pad = Samen(map.AlsPad(), "dicht\\a.txt");
        EXPECT_EQ(SoortVan(schijf.Soort(pad)), Foutsoort::Geweigerd); // and not Niets
        EXPECT_EQ(SoortVan(schijf.LeesBestand(pad)), Foutsoort::Geweigerd);
        EXPECT_EQ(SoortVan(schijf.Bestanden(Samen(map.AlsPad(), "dicht"))), Foutsoort::Geweigerd);
        EXPECT_EQ(SoortVan(SchrijfHeel(schijf, pad, "y")), Foutsoort::Geweigerd);
    }
    ASSERT_EQ(::chmod((map.Weg() / "dicht").c_str(), 0700), 0);
    EXPECT_EQ(map.Inhoud("dicht/a.txt"), "x");
}

#endif

// ---- The disks for tests ---------------------------------------------------------------------

TEST(GeheugenSchijfTest, AlleenLezen)
{
    GeheugenSchijf schijf;
    schijf.Zet("C:\\a\\x.txt", "oud");
    schijf.Zet("C:\\b\\y.txt", "oud");
    schijf.ZetAlleenLezen("C:\\a");
    schijf.ZetAlleenLezen("C:\\b\\y.txt");
    EXPECT_EQ(SoortVan(schijf.MaakNieuw("C:\\a\\z.txt")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.Verwijder("C:\\a\\x.txt")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.MaakMap("C:\\a\\m")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.Hernoem("C:\\a\\x.txt", "C:\\b\\x.txt")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(schijf.Hernoem("C:\\b\\y.txt", "C:\\a\\y.txt")), Foutsoort::Geweigerd);
    EXPECT_EQ(SoortVan(SchrijfHeel(schijf, "C:\\b\\y.txt", "nieuw")), Foutsoort::Geweigerd);
    EXPECT_EQ(schijf.AlleBestanden(), (Namen{"C:\\a\\x.txt", "C:\\b\\y.txt"}));
    schijf.ZetAlleenLezen("C:\\b\\y.txt", false);
    EXPECT_TRUE(SchrijfHeel(schijf, "C:\\b\\y.txt", "nieuw"));
    EXPECT_EQ(schijf.Inhoud("C:\\b\\y.txt"), "nieuw");
    EXPECT_EQ(schijf.Inhoud("C:\\b\\z.txt"), std::nullopt);
}

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

TEST(GeheugenSchijfTest, TijdInDeStempel)
{
    GeheugenSchijf schijf;
    schijf.Zet("a", "x");
    schijf.ZetTijd("A", 42);
    EXPECT_EQ(schijf.NeemStempel("a")->tijd, 42);
}

TEST(FalendeSchijfTest, FaaltOpBestelling)
{
    GeheugenSchijf binnen;
    binnen.Zet("a", "x");
    FalendeSchijf schijf(binnen);
    schijf.FaalBij(2);
    EXPECT_TRUE(schijf.LeesBestand("a"));
    const auto tweede = schijf.LeesBestand("a");
    EXPECT_EQ(SoortVan(tweede), Foutsoort::Geweigerd);
    EXPECT_EQ(tweede.error().systeem, "schijf vol");
    EXPECT_TRUE(schijf.LeesBestand("a"));
    EXPECT_EQ(schijf.Aantal(), 3);
    schijf.FaalVanaf(2);
    EXPECT_TRUE(schijf.Soort("a"));
    EXPECT_FALSE(schijf.Soort("a"));
    EXPECT_FALSE(schijf.Verwijder("a"));
    EXPECT_EQ(binnen.Inhoud("a"), "x");
    schijf.FaalNiet();
    EXPECT_TRUE(schijf.Verwijder("a"));
    EXPECT_EQ(schijf.Aantal(), 1);
}

TEST(FalendeSchijfTest, WeigertOokDeMappen)
{
    GeheugenSchijf binnen;
    binnen.ZetMap("C:\\Club\\Zitting");
    FalendeSchijf schijf(binnen);
    EXPECT_EQ(Gesorteerd(schijf.Mappen("C:\\Club")), Namen{"Zitting"});
    schijf.FaalBij(1);
    EXPECT_EQ(SoortVan(schijf.Mappen("C:\\Club")), Foutsoort::Geweigerd);
}

TEST(FalendeSchijfTest, TeltDeSchrijverMee)
{
    GeheugenSchijf binnen;
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    schijf.FaalBij(2);
    EXPECT_EQ(schijf.Soort("a"), Padsoort::Niets); // not counted
    const auto schrijver = schijf.MaakNieuw("a");
    ASSERT_TRUE(schrijver);
    EXPECT_FALSE((*schrijver)->Schrijf("1234"));
    EXPECT_EQ(binnen.Inhoud("a"), "12"); // the disk was full halfway
    EXPECT_TRUE((*schrijver)->Sync());
    EXPECT_TRUE((*schrijver)->Sluit());
    EXPECT_EQ(schijf.Aantal(), 4);
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

TEST(Schijflezen, EenBestandBovenDe64MBWordtGeweigerdVoorHetInHetGeheugenStaat)
{
    const TijdelijkeMap map;
    EchteSchijf schijf;
    map.Zet("a", "x");
    const Pad pad = Samen(map.AlsPad(), "a");
    EXPECT_EQ(LeesBegrensd(schijf, pad).value(), "x");
    std::filesystem::resize_file(map.Weg() / "a", std::uintmax_t{64} << 20U);
    EXPECT_EQ(LeesBegrensd(schijf, pad)->size(), std::size_t{64} << 20U);
    std::filesystem::resize_file(map.Weg() / "a", (std::uintmax_t{64} << 20U) + 1);
    for (const Fout& fout : {LeesBegrensd(schijf, pad).error(), LeesAlsErIs(schijf, pad).error()}) {
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
        EXPECT_EQ(fout.systeem, "het bestand is te groot: meer dan 64 MB");
        EXPECT_EQ(fout.bestand, map.Toonpad("a"));
    }
    EXPECT_EQ(LeesAlsErIs(schijf, Samen(map.AlsPad(), "b")).value(), std::nullopt);
}

#ifndef _WIN32

/// Elsewhere than on Windows a name may hold what separates the folders of a path of the suite.
TEST(EchteSchijfTest, NamenDieBuitenDeMapWijzenStaanNietInDeLijst)
{
    const TijdelijkeMap map;
    namespace fs = std::filesystem;
    for (const char* naam : {"goed", "..\\goed", "a\\b", "C:\\x"})
        fs::create_directory(map.Weg() / naam);
    map.Zet("lijst.csv", "");
    map.Zet("..\\lijst.csv", "");
    EchteSchijf schijf;
    EXPECT_EQ(Gesorteerd(schijf.Mappen(map.AlsPad())), Namen{"goed"});
    EXPECT_EQ(Gesorteerd(schijf.Mappen(map.AlsPad())), Namen{"goed"});
    EXPECT_EQ(schijf.NeemOvergeslagen(Samen(map.AlsPad(), "goed")), std::vector<std::string>{});
    EXPECT_EQ(schijf.NeemOvergeslagen(map.AlsPad()),
              (std::vector<std::string>{"..\\goed", "C:\\x", "a\\b"}));
    EXPECT_EQ(Gesorteerd(schijf.Bestanden(map.AlsPad())), Namen{"lijst.csv"});
    EXPECT_EQ(schijf.NeemOvergeslagen(map.AlsPad()), std::vector<std::string>{"..\\lijst.csv"})
        << "de mappen zijn al genoemd";
}

#endif
