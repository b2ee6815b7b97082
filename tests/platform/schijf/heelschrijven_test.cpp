
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

constexpr const char* bestand = "C:\\club\\spelers.txt";
using Namen = std::vector<Tekst>;

/// Saves with the first, second, ... operation refused, until nothing is left to refuse; returns
/// how many there are. After each refusal the old file must stand there alone; only after the
/// folder sync, the last operation of a durable save, it is the new one.
int FaalBijElkeStap(Schijf& binnen, const Pad& pad, Houdbaarheid houdbaarheid)
{
    FalendeSchijf schijf(binnen);
    for (int stap = 1;; ++stap) {
        EXPECT_TRUE(SchrijfHeel(binnen, pad, "oud"));
        schijf.FaalBij(stap);
        const auto uitkomst = SchrijfHeel(schijf, pad, "de nieuwe inhoud", houdbaarheid);
        const bool nieuw = uitkomst || uitkomst.error().soort == Foutsoort::NietVast;
        EXPECT_EQ(binnen.LeesBestand(pad), nieuw ? "de nieuwe inhoud" : "oud") << "stap " << stap;
        EXPECT_EQ(binnen.Bestanden(pad.substr(0, pad.find_last_of('\\'))), Namen{"spelers.txt"})
            << "stap " << stap;
        if (uitkomst)
            return schijf.Aantal();
        const bool laatste = stap == 9 && houdbaarheid == Houdbaarheid::Blijvend;
        EXPECT_EQ(uitkomst.error().soort, laatste ? Foutsoort::NietVast : Foutsoort::Geweigerd);
        EXPECT_EQ(uitkomst.error().systeem, "schijf vol");
        EXPECT_EQ(uitkomst.error().bestand, binnen.Toonpad(pad)); // and not the temporary one
    }
}

} // namespace

TEST(HeelSchrijven, NieuwEnOverHetOude)
{
    GeheugenSchijf schijf;
    const auto zonderMap = SchrijfHeel(schijf, bestand, "nieuw");
    ASSERT_FALSE(zonderMap);
    EXPECT_EQ(zonderMap.error().soort, Foutsoort::Ontbreekt);
    schijf.ZetMap("C:\\club");
    for (const char* inhoud : {"de langste inhoud", "nieuw"}) {
        ASSERT_TRUE(SchrijfHeel(schijf, bestand, inhoud));
        EXPECT_EQ(schijf.Inhoud(bestand), inhoud);
        EXPECT_EQ(schijf.AlleBestanden(), Namen{bestand});
    }
}

TEST(HeelSchrijven, FaaltBijElkeStap)
{
    // target, kind, make, rights, write, sync, close, rename, folder; without the two syncs
    constexpr int duurzaam = 9;
    GeheugenSchijf geheugen;
    geheugen.ZetMap("C:\\club");
    EXPECT_EQ(FaalBijElkeStap(geheugen, bestand, Houdbaarheid::Blijvend), duurzaam);
    EXPECT_EQ(FaalBijElkeStap(geheugen, bestand, Houdbaarheid::Vluchtig), duurzaam - 2);
    const TijdelijkeMap map;
    EchteSchijf schijf;
    const Pad pad = Samen(map.AlsPad(), "spelers.txt");
    EXPECT_EQ(FaalBijElkeStap(schijf, pad, Houdbaarheid::Blijvend), duurzaam);
}

TEST(HeelSchrijven, EersteFoutWordtGemeld)
{
    GeheugenSchijf binnen;
    binnen.Zet(bestand, "oud");
    FalendeSchijf schijf(binnen);
    schijf.FaalVanaf(5); // the write, and the removal of the temporary file as well
    const auto uitkomst = SchrijfHeel(schijf, bestand, "nieuw");
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().bestand, bestand); // the user's file, not the temporary one
    EXPECT_EQ(binnen.Inhoud(bestand), "oud");
}

TEST(HeelSchrijven, StroomuitvalNaElkeStap)
{
    for (const auto namen : {GeheugenSchijf::Namen::Gesynct, GeheugenSchijf::Namen::Alle}) {
        bool klaar = false;
        bool oudGezien = false;
        for (int stap = 1; !klaar; ++stap) {
            ASSERT_LT(stap, 50) << "het opslaan lukt nooit";
            GeheugenSchijf binnen;
            binnen.Zet(bestand, "oud");
            FalendeSchijf schijf(binnen);
            schijf.FaalVanaf(stap);
            klaar = SchrijfHeel(schijf, bestand, "nieuw").has_value();
            const auto over = binnen.NaStroomuitval(namen);
            ASSERT_TRUE(over.contains(bestand)) << "stap " << stap;
            const Tekst& inhoud = over.at(bestand);
            EXPECT_TRUE(inhoud == "nieuw" || (inhoud == "oud" && !klaar))
                << "stap " << stap << ": " << inhoud;
            oudGezien = oudGezien || inhoud == "oud";
        }
        EXPECT_TRUE(oudGezien);
    }
}

TEST(HeelSchrijven, RechtenVoorDeInhoud)
{
    // The temporary file of a secret file is never readable to all with its contents in it.
    GeheugenSchijf binnen;
    binnen.Zet(bestand, "oud");
    binnen.ZetAlleenLezen(bestand);
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    EXPECT_FALSE(SchrijfHeel(schijf, bestand, "nieuw"));
    EXPECT_EQ(schijf.Aantal(), 3); // make, rights, remove
    EXPECT_EQ(binnen.AlleBestanden(), Namen{bestand});
}

namespace {

constexpr std::int64_t seconde = 1'000'000'000;
constexpr std::int64_t uur = 3600 * seconde;
constexpr std::int64_t nu = 500'000 * uur;

/// A file in the folder of the club, of this time.
void Zet(GeheugenSchijf& schijf, Tekstblik naam, std::int64_t tijd)
{
    schijf.Zet(Samen("C:\\club", naam), "x");
    schijf.ZetTijd(Samen("C:\\club", naam), tijd);
}

} // namespace

TEST(RuimTijdelijkeOp, AlleenOudeVanDitProgrammaInDezeMap)
{
    GeheugenSchijf schijf;
    const Namen blijven = {"spelers.txt",
                           "spelers.txt.~",
                           "spelers.txt.~123",
                           "spelers.txt.~plexoran",
                           "spelers.txt.~plexoran12a",
                           "spelers.txt.~plexoran9.txt",
                           "spelers.txt~plexoran9",
                           "map\\spelers.txt.~plexoran1"};
    for (const Tekst& naam : blijven)
        Zet(schijf, naam, nu - 1000 * uur);
    for (const char* naam : {"spelers.txt.~plexoran1230001", "Club lijst.pdf.~plexoran7"})
        Zet(schijf, naam, nu - uur - 1);
    RuimTijdelijkeOp(schijf, "C:\\club", "spelers.txt", nu);
    EXPECT_EQ(schijf.AlleBestanden().size(), blijven.size());
    for (const Tekst& naam : blijven)
        EXPECT_TRUE(schijf.Inhoud(Samen("C:\\club", naam))) << naam;

    // A folder that is not named is left in peace.
    schijf.Zet("\\spelers.txt.~plexoran1", "x");
    RuimTijdelijkeOp(schijf, "", "spelers.txt", nu);
    EXPECT_TRUE(schijf.Inhoud("\\spelers.txt.~plexoran1"));
}

TEST(RuimTijdelijkeOp, JongeBlijven)
{
    GeheugenSchijf schijf;
    for (const std::int64_t tijd : {nu - uur, nu - seconde, nu + 5 * uur}) {
        Zet(schijf, "spelers.txt.~plexoran1", tijd);
        RuimTijdelijkeOp(schijf, "C:\\club", "spelers.txt", nu);
        EXPECT_TRUE(schijf.Inhoud("C:\\club\\spelers.txt.~plexoran1")) << tijd;
    }
}

TEST(RuimTijdelijkeOp, MislukkenIsGeenRamp)
{
    GeheugenSchijf binnen;
    binnen.Zet("C:\\club\\spelers.txt.~plexoran1", "x");
    binnen.Zet("C:\\club\\spelers.txt.~plexoran2", "x");
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    schijf.FaalBij(1);
    RuimTijdelijkeOp(schijf, "C:\\club", "spelers.txt", nu);
    EXPECT_EQ(binnen.AlleBestanden(), Namen{"C:\\club\\spelers.txt.~plexoran1"});
    RuimTijdelijkeOp(schijf, "C:\\weg", "spelers.txt", nu);
}

TEST(RuimTijdelijkeOp, WatEenSaveAchterliet)
{
    GeheugenSchijf binnen;
    binnen.Zet(bestand, "oud");
    FalendeSchijf schijf(binnen);
    schijf.FaalVanaf(6); // killed before the sync
    EXPECT_FALSE(SchrijfHeel(schijf, bestand, "nieuw"));
    ASSERT_EQ(binnen.AlleBestanden().size(), 2U);
    RuimTijdelijkeOp(binnen, "C:\\club", "spelers.txt", nu);
    EXPECT_EQ(binnen.AlleBestanden(), Namen{bestand});
}

#ifndef _WIN32

TEST(RuimTijdelijkeOp, InDeMapVanHetDoelVanEenLink)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "ver");
    map.Zet("ver/echt.txt", "oud");
    map.Zet("ver/echt.txt.~plexoran55", "rest");
    std::filesystem::create_symlink("ver/echt.txt", map.Weg() / "link.txt");
    EchteSchijf schijf;
    RuimTijdelijkeOp(schijf, map.AlsPad(), "link.txt", std::numeric_limits<std::int64_t>::max());
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "ver/echt.txt.~plexoran55"));
    EXPECT_EQ(map.Inhoud("ver/echt.txt"), "oud");
}

#endif
