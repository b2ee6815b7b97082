#include "mainwindow/weergave.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

Mappen MetWoorden(const Tekst& woorden)
{
    Mappen mappen;
    mappen.DFIMPG = "Gr05-";
    mappen.ODKEYS = woorden;
    return mappen;
}

Spelertabel Tabel(std::initializer_list<Tekst> groepen)
{
    Spelertabel tabel;
    for (const Tekst& groep : groepen) {
        Rijvelden velden;
        velden[Index(Kolom::Groep)] = groep;
        tabel.VoegToe(velden);
    }
    return tabel;
}

constexpr auto Ongemoeid = Zichtbaarheid::Ongemoeid;
constexpr auto Tonen = Zichtbaarheid::Tonen;
constexpr auto Verbergen = Zichtbaarheid::Verbergen;

} // namespace

TEST(BouwWeergave, NeemtDeRijenVanDeGroepInTabelvolgorde)
{
    const Spelertabel tabel = Tabel({"Gr02-", "Gr01-", "Gr02-", "Gr20-", "Gr02-"});
    EXPECT_EQ((Weergave{1, 3, 5}), BouwWeergave(tabel, "Gr02-"));
    EXPECT_EQ((Weergave{2}), BouwWeergave(tabel, "Gr01-"));
    EXPECT_EQ(Weergave{}, BouwWeergave(tabel, "Gr03-"));
    EXPECT_EQ(Weergave{}, BouwWeergave(Spelertabel(), "Gr01-"));
}

TEST(BouwWeergave, VergelijktDeCodeLetterVoorLetter)
{
    const Spelertabel tabel = Tabel({"gr02-", "Gr02", " Gr02", ""});
    EXPECT_EQ(Weergave{}, BouwWeergave(tabel, "Gr02-"));
}

TEST(BeeldVan, DeImportgroepHeeftNBBkolommen)
{
    const Groepsbeeld beeld = BeeldVan(MetWoorden(""), "Gr05-");
    EXPECT_TRUE(beeld.importgroep);
    EXPECT_EQ("NBBgr", beeld.kolomnamen[16]);
    EXPECT_EQ("NBBnr", beeld.kolomnamen[17]);
}

TEST(BeeldVan, EenAndereGroepHeeftEenSubgroepEnGeenNummer)
{
    const Groepsbeeld beeld = BeeldVan(MetWoorden(""), "Gr04-");
    EXPECT_FALSE(beeld.importgroep);
    EXPECT_EQ("Subgr", beeld.kolomnamen[16]);
    EXPECT_EQ("", beeld.kolomnamen[17]);
}

TEST(BeeldVan, DeEersteZestienKolommenHetenInElkeGroepHetzelfde)
{
    const std::array<Tekstblik, 16> namen{
        "Nr",    "Key",   "Groep",  "Voornaam", "Tusv", "Achternaam", "Telef", "Email",
        "Adres", "Postc", "Plaats", "Land",     "M/V",  "Div1",       "Div2",  "Status"};
    for (const char* groep : {"Gr05-", "Gr06-"}) {
        const Groepsbeeld beeld = BeeldVan(MetWoorden(""), groep);
        for (std::size_t i = 0; i < namen.size(); ++i)
            EXPECT_EQ(namen[i], beeld.kolomnamen[i]);
    }
}

TEST(BeeldVan, WelkeGroepDeImportgroepIsStaatInDeMappen)
{
    Mappen mappen = MetWoorden("");
    mappen.DFIMPG = "Gr12-";
    EXPECT_TRUE(BeeldVan(mappen, "Gr12-").importgroep);
    EXPECT_FALSE(BeeldVan(mappen, "Gr05-").importgroep);
    mappen.DFIMPG = "";
    EXPECT_FALSE(BeeldVan(mappen, "Gr05-").importgroep);
}

/// Meant: with ODNBB28 the import button stays as the group before left it, and ODNBB4SP counts
/// alone where both stand. A word counts as part of a text too, and not in small letters.
TEST(BeeldVan, DeWoordenTonenOfVerbergenTweeKnoppen)
{
    struct Geval {
        const char* woorden;
        const char* groep;
        Zichtbaarheid importeren;
        Zichtbaarheid gatenlijst;
    };
    for (const Geval& geval :
         {Geval{"", "Gr05-", Tonen, Ongemoeid}, Geval{"ANDERS", "Gr01-", Verbergen, Ongemoeid},
          Geval{"ODNBB4SP", "Gr05-", Verbergen, Ongemoeid},
          Geval{"ODNBB4SP", "Gr01-", Verbergen, Ongemoeid},
          Geval{"ODNBB28", "Gr05-", Ongemoeid, Verbergen},
          Geval{"ODNBB28", "Gr01-", Ongemoeid, Verbergen},
          Geval{"ODNBB28,ODNBB4SP", "Gr05-", Verbergen, Ongemoeid},
          Geval{"xODNBB28y", "Gr01-", Ongemoeid, Verbergen},
          Geval{"odnbb28", "Gr01-", Verbergen, Ongemoeid},
          Geval{"odnbb4sp", "Gr05-", Tonen, Ongemoeid}}) {
        SCOPED_TRACE(std::string(geval.woorden) + " in " + geval.groep);
        const Groepsbeeld beeld = BeeldVan(MetWoorden(geval.woorden), geval.groep);
        EXPECT_EQ(geval.importeren, beeld.cmdHaalNBBnamen);
        EXPECT_EQ(geval.gatenlijst, beeld.cmdToonGatenlijst);
    }
}
