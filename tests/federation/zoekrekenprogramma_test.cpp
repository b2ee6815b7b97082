#include "federation/zoekrekenprogramma.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

Instellingenwinkel Tekstwinkel(const Tekst& inhoud)
{
    return [inhoud](auto... waar) { return WaardeUit(inhoud, waar...); };
}

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

TEST(Instellingenwinkel, WaardenUitDeTekst)
{
    const auto dataRoot = [](Tekstblik inhoud, Tekstblik toepassing) {
        return WaardeUit(inhoud, toepassing, "Options", "DataRoot");
    };
    EXPECT_EQ(dataRoot("[bridge-it\\OPTIONS]\n dataROOT = C:\\B = 1 \n", "Bridge-It"), "C:\\B = 1");
    const auto inhoud = "DataRoot=voor\n[Bridge-It\\Anders]\nDataRoot=anders\n"
                        "[NBB-Rekenprogramma\\Options]\nDataRoot=nbbr\n";
    EXPECT_EQ(dataRoot(inhoud, "Bridge-It"), std::nullopt);
    EXPECT_EQ(dataRoot(inhoud, "NBB-Rekenprogramma"), "nbbr");
    EXPECT_EQ(WaardeUit("[A\\B]\nS=1\nS=2\n", "A", "B", "S"), "2"); // the last one holds
    EXPECT_EQ(WaardeUit("[A\\B]\nS=\n", "A", "B", "S"), "");
    EXPECT_EQ(WaardeUit("", "A", "B", "S"), std::nullopt);
}

TEST(ZoekRekenprogramma, HoogstensEenVraagtNiets)
{
    const auto zoek = [](const Tekst& inhoud) {
        const Rekenprogramma gevonden = ZoekRekenprogramma(Tekstwinkel(inhoud), NietGevraagd);
        return Tekst(gevonden.NBBRaanwezig ? "N" : "-") + (gevonden.BRITaanwezig ? "B" : "-") +
               std::to_string(static_cast<int>(gevonden.GekozenProgramma)) + "," +
               gevonden.DataRoot + "," + gevonden.ProgrammaCode + "," + gevonden.ProgrammaNaam;
    };
    EXPECT_EQ(zoek(""), "--0,,,");
    EXPECT_EQ(zoek("[Bridge-It\\Options]\nDataRoot=D:\\Bridge It\n"),
              "-B2,D:\\Bridge It,BRIT,Bridge-It");
    EXPECT_EQ(zoek("[NBB-Rekenprogramma\\Options]\nDataRoot=C:\\NBBR\n"),
              "N-1,C:\\NBBR,NBBR,NBB-R");
    // Empty is a folder too; other settings are none.
    EXPECT_EQ(zoek("[Bridge-It\\Options]\nDataRoot=\n[NBB-Rekenprogramma\\Options]\nX=1\n"),
              "-B2,,BRIT,Bridge-It");
}

TEST(ZoekRekenprogramma, BeideVolgtHetAntwoord)
{
    const auto kies = [](Programma antwoord) {
        return ZoekRekenprogramma(Tekstwinkel(beide), [antwoord] { return antwoord; });
    };
    EXPECT_EQ(kies(Programma::NBBR).DataRoot, "C:\\NBBR");
    EXPECT_EQ(kies(Programma::BridgeIt).DataRoot, "D:\\Bridge It");
    EXPECT_EQ(kies(Programma::Geen).DataRoot, "");
    EXPECT_EQ(kies(Programma::Geen).ProgrammaCode, "");
    EXPECT_TRUE(kies(Programma::Geen).NBBRaanwezig);
}

} // namespace
} // namespace plexoran
