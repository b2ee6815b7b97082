#include "sessions/sessiemappen.h"

#include <gtest/gtest.h>

#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

class Sessiemappen : public testing::Test {
  protected:
    Sessiemappen()
    {
        mappen.ZITMAP = "C:\\Zit";
        mappen.COMMAP = "C:\\Com";
    }

    static Teksten Namen(const Uitkomst<std::vector<Sessiemap>>& sessies)
    {
        Teksten namen;
        for (const Sessiemap& sessie : sessies.value())
            namen.push_back(sessie.naam);
        return namen;
    }
    [[nodiscard]] Teksten Zittingen(const Tekst& competitie)
    {
        Teksten uit;
        const auto zittingen = ZittingenVan(schijf, mappen, competitie);
        for (const Zitting& plaats : zittingen.value())
            uit.push_back(plaats.Bestand(Lijstsoort::Percentages));
        return uit;
    }

    GeheugenSchijf schijf;
    Mappen mappen;
};

} // namespace

TEST_F(Sessiemappen, EenMapMetZitdataIsEenZitting)
{
    schijf.Zet("C:\\Zit\\b\\Zitdata.txt", "");
    schijf.Zet("C:\\Zit\\A 2\\ZITDATA.TXT", "x");
    schijf.Zet("C:\\Zit\\\xC9\xE9n\\Zitdata.txt", "");
    schijf.Zet("C:\\Zit\\zonder\\Spelers.txt", "");
    schijf.Zet("C:\\Zit\\comp\\Compdata.txt", "");
    schijf.ZetMap("C:\\Zit\\map\\Zitdata.txt");
    schijf.Zet("C:\\Zit\\Zitdata.txt", "");
    schijf.ZetTijd("C:\\Zit\\b\\Zitdata.txt", 42);
    const auto zittingen = LeesZittingen(schijf, mappen);
    EXPECT_EQ((Teksten{"A 2", "b", "\xC9\xE9n"}), Namen(zittingen));
    EXPECT_EQ(42, zittingen->at(1).tijd);
    EXPECT_EQ(Teksten{}, Namen(LeesCompetities(schijf, mappen)));
}

TEST_F(Sessiemappen, EenMapMetCompdataIsEenCompetitie)
{
    schijf.Zet("C:\\Com\\Ladder\\Compdata.txt", "");
    schijf.Zet("C:\\Com\\Herfst\\Compdata.txt", "");
    schijf.Zet("C:\\Com\\zit\\Zitdata.txt", "");
    EXPECT_EQ((Teksten{"Herfst", "Ladder"}), Namen(LeesCompetities(schijf, mappen)));
}

TEST_F(Sessiemappen, ZonderWortelZijnErGeen)
{
    EXPECT_EQ(Teksten{}, Namen(LeesZittingen(schijf, mappen)));
    EXPECT_EQ(Teksten{}, Namen(LeesCompetities(schijf, mappen)));
    mappen = {};
    schijf.Zet("Zitdata.txt", "");
    EXPECT_EQ(Teksten{}, Namen(LeesZittingen(schijf, mappen)));
}

TEST_F(Sessiemappen, EenWeigerendeSchijfIsEenFout)
{
    schijf.Zet("C:\\Zit\\b\\Zitdata.txt", "");
    FalendeSchijf falend(schijf);
    falend.FaalBij(1);
    const auto zittingen = LeesZittingen(falend, mappen);
    ASSERT_FALSE(zittingen);
    EXPECT_EQ(Foutsoort::Geweigerd, zittingen.error().soort);
}

TEST_F(Sessiemappen, DeBestandenVanEenZitting)
{
    const Zitting los = LosseZitting(mappen, "Dinsdag");
    EXPECT_EQ("C:\\Zit\\Dinsdag\\Spelers.txt", los.Bestand(Lijstsoort::Spelers));
    EXPECT_EQ("C:\\Zit\\Dinsdag\\PercZit.txt", los.Bestand(Lijstsoort::Percentages));
    const Zitting van = Competitiezitting(mappen, "Ladder", 2, 13);
    EXPECT_EQ("C:\\Com\\Ladder\\Ronde-2\\Zitting-13\\Spelers.txt",
              van.Bestand(Lijstsoort::Spelers));
    EXPECT_EQ("C:\\Com\\Ladder\\Ronde-2\\Zitting-13\\PercZit-13.txt",
              van.Bestand(Lijstsoort::Percentages));
}

TEST_F(Sessiemappen, RondesEnZittingenInVolgordeVanHunNummers)
{
    for (const char* map :
         {"Ronde-10\\Zitting-1", "Ronde-2\\Zitting-11", "Ronde-2\\Zitting-9", "RONDE-1\\zitting-3",
          "Ronde-2\\Map", "Ronde-02\\Zitting-1", "Ronde-x\\Zitting-1", "Ronde-\\Zitting-1",
          "Ronde-3a\\Zitting-1", "Ronde-4\\Zitting-01", "Ronde--5\\Zitting-1", "Zitting-1",
          "Ronde-99999999999\\Zitting-1", "Ronde-0\\Zitting-0"})
        schijf.ZetMap(Samen("C:\\Com\\Ladder", map));
    schijf.Zet("C:\\Com\\Ladder\\Ronde-6", "een bestand");
    schijf.Zet("C:\\Com\\Ladder\\Ronde-2\\Zitting-7", "een bestand");
    EXPECT_EQ((Teksten{"C:\\Com\\Ladder\\Ronde-0\\Zitting-0\\PercZit-0.txt",
                       "C:\\Com\\Ladder\\Ronde-1\\Zitting-3\\PercZit-3.txt",
                       "C:\\Com\\Ladder\\Ronde-2\\Zitting-9\\PercZit-9.txt",
                       "C:\\Com\\Ladder\\Ronde-2\\Zitting-11\\PercZit-11.txt",
                       "C:\\Com\\Ladder\\Ronde-10\\Zitting-1\\PercZit-1.txt"}),
              Zittingen("Ladder"));
}

TEST_F(Sessiemappen, EenLosseZittingIsDeMapZelf)
{
    schijf.ZetMap("C:\\Zit\\Dinsdag");
    const auto zittingen = ZittingVan(schijf, mappen, "Dinsdag").value();
    ASSERT_EQ(1U, zittingen.size());
    EXPECT_EQ("C:\\Zit\\Dinsdag", zittingen.front().map);
    EXPECT_FALSE(zittingen.front().inCompetitie);
}

TEST_F(Sessiemappen, WatVerdweenIsEenFout)
{
    EXPECT_EQ(Foutsoort::Ontbreekt, ZittingenVan(schijf, mappen, "weg").error().soort);
    EXPECT_EQ(Foutsoort::Ontbreekt, ZittingVan(schijf, mappen, "weg").error().soort);
    schijf.Zet("C:\\Zit\\bestand", "");
    EXPECT_EQ(Foutsoort::Ontbreekt, ZittingVan(schijf, mappen, "bestand").error().soort);
    FalendeSchijf falend(schijf);
    falend.FaalBij(1);
    EXPECT_EQ(Foutsoort::Geweigerd, ZittingVan(falend, mappen, "bestand").error().soort);
}
