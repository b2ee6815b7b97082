// What the program does with a child that misbehaves: scripts stand in for it.
#ifndef _WIN32

#include <gtest/gtest.h>

#include "hulp/fouten.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include "hulp/accessgegevens.h"
#include "platform/bronnen/access.h"
#include "platform/schijf/tijdelijkeMap.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;
using Klok = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr auto afgebroken = "de database is beschadigd: het lezen brak af";
constexpr auto vastgelopen = "de database is beschadigd: het lezen schoot niet meer op";

/// printf's octal: a row, and the end of no rows and of two.
const std::string rij = "printf '\\001\\000\\000\\000\\001A'\n";
const std::string einde0 = "printf '\\000\\000\\000\\000\\000\\377\\377\\377\\377'\n";
const std::string einde2 = "printf '\\000\\000\\000\\000\\002\\377\\377\\377\\377'\n";

class Accesskind : public testing::Test {
  protected:
    Uitkomst<std::vector<Accessrij>> Lees(const std::string& script,
                                          const Voortgang& voortgang = {})
    {
        map_.Zet("kind", "#!/bin/sh\n" + script);
        fs::permissions(map_.Weg() / "kind", fs::perms::owner_all);
        grenzen_.programma = (map_.Weg() / "kind").string();
        const auto begin = Klok::now();
        auto rijen = LeesAccess(Accessbestand("Members.mdb"), "ledenbestanden",
                                {{"bestandsnaam", Accesssoort::Letters}}, voortgang, grenzen_);
        duur_ = Klok::now() - begin;
        return rijen;
    }
    void EisFout(const std::string& script, const std::string& reden)
    {
        const Fout fout = FoutVan(Lees(script));
        EXPECT_EQ(fout.systeem, reden) << script;
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd) << script;
        EXPECT_LT(duur_, std::chrono::seconds(8)) << script;
    }

    TijdelijkeMap map_;
    Accessgrenzen grenzen_;
    Klok::duration duur_{};
};

TEST_F(Accesskind, EenHeelAntwoordWordtGeloofd)
{
    const auto leeg = Lees(einde0);
    ASSERT_TRUE(leeg) << leeg.error().systeem;
    EXPECT_TRUE(leeg->empty());
    const auto twee = Lees(rij + rij + einde2);
    ASSERT_TRUE(twee) << twee.error().systeem;
    ASSERT_EQ(twee->size(), 2U);
    EXPECT_EQ((*twee)[1][0]->tekst, "A");
}

TEST_F(Accesskind, EenAntwoordIsAlleenHeelGeloofwaardig)
{
    const std::string heel = rij + rij + einde2;
    for (const std::string& script :
         {std::string(), rij + rij, rij + rij + "printf '\\000\\000'\n", rij + einde2,
          rij + rij + rij + einde2, rij + rij + einde0,
          // The end of the child counts too.
          heel + "exit 1\n", heel + "kill -9 $$\n", heel + "kill -SEGV $$\n",
          std::string("kill -9 $$\n"),
          // Rubbish
          std::string("echo dit is geen antwoord\n"), heel + "echo\n", einde0 + rij,
          std::string("printf '\\001\\377\\377\\377\\376'\n")})
        EisFout(script, afgebroken);
}

TEST_F(Accesskind, DeRedenVanHetKindKomtDoor)
{
    const std::string mis = "printf '\\000\\000\\000\\000\\000\\000\\000\\000\\003mis'\nexit 1\n";
    EisFout(mis, "mis");
    EisFout(rij + mis, "mis");
}

TEST_F(Accesskind, TeVeelUitvoerWordtAfgebroken)
{
    grenzen_.uitvoer = 100'000;
    EisFout("cat /dev/zero\n", "de database geeft te veel gegevens");
    EisFout("head -c 100001 /dev/zero\n", "de database geeft te veel gegevens");
}

TEST_F(Accesskind, TeVeelRijenWordenNietGenomen)
{
    grenzen_.rijen = 1;
    EisFout(rij + rij + einde2, "de database geeft te veel gegevens");
    grenzen_.rijen = 2;
    EXPECT_TRUE(Lees(rij + rij + einde2));
}

/// The script writes its number; afterwards no such process may be left.
TEST_F(Accesskind, WieStilvaltWordtBeeindigd)
{
    grenzen_.zonderVoortgang = milliseconds(600);
    const std::string meld = "echo $$ > '" + (map_.Weg() / "nummer").string() + "'\n";
    int keren = 0;
    auto vorige = Klok::now();
    Klok::duration langste{};
    const auto rijen = Lees(meld + rij + "exec sleep 60\n", [&](std::size_t, std::size_t) {
        ++keren;
        langste = std::max(langste, Klok::now() - vorige);
        vorige = Klok::now();
        return false; // nobody looks at the answer
    });
    ASSERT_FALSE(rijen);
    EXPECT_EQ(rijen.error().systeem, vastgelopen);
    EXPECT_GE(duur_, milliseconds(600));
    EXPECT_LT(duur_, milliseconds(5'000));
    EXPECT_GE(keren, 6);
    EXPECT_LT(langste, milliseconds(1'000));
    const int nummer = std::atoi(map_.Inhoud("nummer").c_str());
    ASSERT_GT(nummer, 1);
    EXPECT_EQ(::kill(nummer, 0), -1);
}

TEST_F(Accesskind, WieLangzaamOpschietMagVerder)
{
    grenzen_.zonderVoortgang = milliseconds(1'200);
    const std::string wacht = "sleep 0.7\n";
    const auto rijen = Lees(wacht + rij + wacht + rij + wacht + einde2);
    ASSERT_TRUE(rijen) << rijen.error().systeem;
    EXPECT_GT(duur_, grenzen_.zonderVoortgang);
}

TEST_F(Accesskind, OmgevingIsSchoon)
{
    for (const char* naam : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"})
        ASSERT_EQ(::setenv(naam, "UTF-16", 1), 0);
    const auto uit = Lees("env > '" + (map_.Weg() / "omgeving").string() + "'\n");
    grenzen_.programma.clear();
    const auto echt = LeesAccess(Accessbestand("Members.mdb"), "ledenbestanden",
                                 {{"bestandsnaam", Accesssoort::Letters}});
    for (const char* naam : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"})
        ::unsetenv(naam);
    EXPECT_FALSE(uit);
    EXPECT_NE(map_.Inhoud("omgeving").find("PATH="), std::string::npos);
    EXPECT_EQ(map_.Inhoud("omgeving").find("MDB"), std::string::npos);
    ASSERT_TRUE(echt) << echt.error().systeem;
    EXPECT_EQ(echt->at(0)[0]->tekst, "Club");
}

TEST_F(Accesskind, OntbrekendKindIsEenFout)
{
    grenzen_.programma = (map_.Weg() / "is er niet").string();
    const Fout fout = FoutVan(LeesAccess(Accessbestand("Members.mdb"), "ledenbestanden",
                                         {{"bestandsnaam", Accesssoort::Letters}}, {}, grenzen_));
    EXPECT_EQ(fout.soort, Foutsoort::Geweigerd);
    EXPECT_FALSE(fout.systeem.empty());
}

} // namespace
} // namespace plexoran

#endif
