#include "federation/zoekrekenprogramma.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

class Tekstwinkel : public Instellingenwinkel {
  public:
    explicit Tekstwinkel(Tekst inhoud) : inhoud_(std::move(inhoud)) {}

    std::optional<Tekst> Waarde(Tekstblik toepassing, Tekstblik sectie, Tekstblik sleutel) override
    {
        return WaardeUit(inhoud_, toepassing, sectie, sleutel);
    }

  private:
    Tekst inhoud_;
};

Programma NietGevraagd()
{
    ADD_FAILURE() << "er is maar een programma, dus er valt niets te kiezen";
    return Programma::Geen;
}

constexpr auto beide = "[NBB-Rekenprogramma\\Options]\r\n"
                       "DataRoot=C:\\NBBR\r\n"
                       "InstallationDirectory=C:\\Programma's\\NBBR\r\n"
                       "[Bridge-IT\\Options]\r\n"
                       "Dataroot=D:\\Bridge It\r\n";

TEST(Instellingenwinkel, VindtZonderOpHoofdlettersTeLetten)
{
    EXPECT_EQ(WaardeUit("[bridge-it\\OPTIONS]\n dataROOT = C:\\B = 1 \n", "Bridge-It", "Options",
                        "DataRoot"),
              "C:\\B = 1");
}

TEST(Instellingenwinkel, KijktAlleenInDeSectie)
{
    const auto inhoud = "DataRoot=voor\n[Bridge-It\\Anders]\nDataRoot=anders\n"
                        "[NBB-Rekenprogramma\\Options]\nDataRoot=nbbr\n";
    EXPECT_EQ(WaardeUit(inhoud, "Bridge-It", "Options", "DataRoot"), std::nullopt);
    EXPECT_EQ(WaardeUit(inhoud, "NBB-Rekenprogramma", "Options", "DataRoot"), "nbbr");
}

TEST(Instellingenwinkel, LaatsteWaardeGeldtEnLeegIsOokEenWaarde)
{
    EXPECT_EQ(WaardeUit("[A\\B]\nS=1\nS=2\n", "A", "B", "S"), "2");
    EXPECT_EQ(WaardeUit("[A\\B]\nS=\n", "A", "B", "S"), "");
    EXPECT_EQ(WaardeUit("", "A", "B", "S"), std::nullopt);
}

TEST(ZoekRekenprogramma, GeenVanBeide)
{
    Tekstwinkel winkel("");
    const Rekenprogramma gevonden = ZoekRekenprogramma(winkel, NietGevraagd);
    EXPECT_FALSE(gevonden.NBBRaanwezig);
    EXPECT_FALSE(gevonden.BRITaanwezig);
    EXPECT_EQ(gevonden.GekozenProgramma, Programma::Geen);
    EXPECT_EQ(gevonden.DataRoot, "");
    EXPECT_EQ(gevonden.ProgrammaNaam, "");
}

TEST(ZoekRekenprogramma, AlleenBridgeItVraagtNiets)
{
    Tekstwinkel winkel("[Bridge-It\\Options]\nDataRoot=D:\\Bridge It\n");
    const Rekenprogramma gevonden = ZoekRekenprogramma(winkel, NietGevraagd);
    EXPECT_FALSE(gevonden.NBBRaanwezig);
    EXPECT_TRUE(gevonden.BRITaanwezig);
    EXPECT_EQ(gevonden.GekozenProgramma, Programma::BridgeIt);
    EXPECT_EQ(gevonden.DataRoot, "D:\\Bridge It");
    EXPECT_EQ(gevonden.ProgrammaCode, "BRIT");
    EXPECT_EQ(gevonden.ProgrammaNaam, "Bridge-It");
}

TEST(ZoekRekenprogramma, AlleenNbbrVraagtNiets)
{
    Tekstwinkel winkel("[NBB-Rekenprogramma\\Options]\nDataRoot=C:\\NBBR\n");
    const Rekenprogramma gevonden = ZoekRekenprogramma(winkel, NietGevraagd);
    EXPECT_EQ(gevonden.GekozenProgramma, Programma::NBBR);
    EXPECT_EQ(gevonden.DataRoot, "C:\\NBBR");
    EXPECT_EQ(gevonden.ProgrammaCode, "NBBR");
    EXPECT_EQ(gevonden.ProgrammaNaam, "NBB-R");
}

TEST(ZoekRekenprogramma, EenLegeDataRootTeltAlsGevonden)
{
    Tekstwinkel winkel("[Bridge-It\\Options]\nDataRoot=\n[NBB-Rekenprogramma\\Options]\nX=1\n");
    EXPECT_TRUE(RegistersleutelBestaat(winkel, "Bridge-It"));
    EXPECT_FALSE(RegistersleutelBestaat(winkel, "NBB-Rekenprogramma"));
    const Rekenprogramma gevonden = ZoekRekenprogramma(winkel, NietGevraagd);
    EXPECT_EQ(gevonden.GekozenProgramma, Programma::BridgeIt);
    EXPECT_EQ(gevonden.DataRoot, "");
}

TEST(ZoekRekenprogramma, BeideVolgtHetAntwoord)
{
    Tekstwinkel winkel(beide);
    const auto kies = [&](Programma antwoord) {
        return ZoekRekenprogramma(winkel, [antwoord] { return antwoord; });
    };
    EXPECT_EQ(kies(Programma::NBBR).DataRoot, "C:\\NBBR");
    EXPECT_EQ(kies(Programma::BridgeIt).DataRoot, "D:\\Bridge It");
    EXPECT_EQ(kies(Programma::Geen).DataRoot, "");
    EXPECT_EQ(kies(Programma::Geen).ProgrammaCode, "");
    EXPECT_TRUE(kies(Programma::Geen).NBBRaanwezig);
}

} // namespace
} // namespace plexoran
