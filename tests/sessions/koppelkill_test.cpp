// A real program that is killed while it links a player in a competition: every file must be whole
// each time, and linking again must finish the rest.
#ifndef _WIN32

#include <unistd.h>

#include "hulp/kill.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "sessions/koppelen.h"

using namespace plexoran;

namespace {

constexpr int rondes = 12;
constexpr std::size_t bestanden = 2 * rondes;

/// A competition in which the name stands in every file, with players enough to need time.
class Koppelkill : public testing::Test {
  protected:
    Koppelkill()
    {
        mappen.COMMAP = map.AlsPad();
        for (int ronde = 1; ronde <= rondes; ++ronde)
            std::filesystem::create_directories(Zittingmap(ronde));
    }

    [[nodiscard]] std::filesystem::path Zittingmap(int ronde) const
    {
        return map.Weg() / "Ladder" / ("Ronde-" + std::to_string(ronde)) / "Zitting-1";
    }
    static std::string Spelers(const std::string& wie)
    {
        std::string tekst;
        for (int paar = 10; paar < 99; ++paar)
            tekst += "N" + std::to_string(paar) + " 100001 - 100002\r\n";
        return tekst + "O05 " + wie + " - 100003\r\n";
    }
    static std::string Percentages(const std::string& paar)
    {
        return "1,\"A\",\"N1\",\"100001-100002\",50,0,\"\"\r\n2,\"A\",\"O5\",\"" + paar +
               "\",50,0,\"\"\r\n";
    }
    [[nodiscard]] std::vector<Zitting> Zittingen()
    {
        return ZittingenVan(schijf, mappen, "Ladder").value();
    }
    void ZetOud()
    {
        for (const Zitting& plaats : Zittingen()) {
            const auto zet = [](const Pad& pad, const std::string& tekst) {
                std::ofstream(pad, std::ios::binary) << tekst;
            };
            zet(SysteemPad(plaats.Bestand(Lijstsoort::Spelers)), Spelers("Jan Bos"));
            zet(SysteemPad(plaats.Bestand(Lijstsoort::Percentages)), Percentages("Jan Bos-100003"));
        }
    }
    static Pad SysteemPad(Pad pad)
    {
        std::replace(pad.begin(), pad.end(), '\\', '/');
        return pad;
    }
    /// How many of the files are linked; each must be the old text or the new one.
    [[nodiscard]] std::size_t Gekoppeld()
    {
        std::size_t aantal = 0;
        for (const Zitting& plaats : Zittingen()) {
            const Tekst spelers = schijf.LeesBestand(plaats.Bestand(Lijstsoort::Spelers)).value();
            const Tekst percentages =
                schijf.LeesBestand(plaats.Bestand(Lijstsoort::Percentages)).value();
            EXPECT_TRUE(spelers == Spelers("Jan Bos") || spelers == Spelers("100237"));
            EXPECT_TRUE(percentages == Percentages("Jan Bos-100003") ||
                        percentages == Percentages("100237 - 100003"));
            aantal += (spelers == Spelers("100237") ? 1U : 0U) +
                      (percentages == Percentages("100237 - 100003") ? 1U : 0U);
        }
        return aantal;
    }
    [[nodiscard]] std::vector<std::filesystem::path> Resten() const
    {
        std::vector<std::filesystem::path> uit;
        for (const auto& deel : std::filesystem::recursive_directory_iterator(map.Weg())) {
            if (deel.path().filename().string().find(".~") != std::string::npos)
                uit.push_back(deel.path());
        }
        return uit;
    }

    TijdelijkeMap map;
    EchteSchijf schijf;
    Mappen mappen;
};

} // namespace

TEST_F(Koppelkill, ElkBestandIsHeelEnNogEensKoppelenMaaktHetAf)
{
    constexpr int kills = 25;
    ZetOud();
    const auto opdracht =
        MaakKoppelopdracht(ZoekZwevenden(schijf, Zittingen()).zwevenden, 0, "100237");
    ASSERT_EQ(bestanden, opdracht.regels.size());
    Wachttijd wachttijd(20'240'610);
    int halverwege = 0;
    for (int kill = 0; kill < kills; ++kill) {
        ZetOud();
        const pid_t kind = Kind([&] { ::_exit(Koppel(schijf, opdracht).fout ? 1 : 0); });
        ASSERT_NE(kind, -1);
        ASSERT_TRUE(KillNa(kind, wachttijd.Volgende())) << "het koppelen zelf mislukte";
        const std::size_t klaar = Gekoppeld();
        ASSERT_FALSE(HasFailure()) << "kill " << kill;
        halverwege += klaar > 0 && klaar < bestanden ? 1 : 0;
        wachttijd.WasTeLaat(klaar > bestanden / 2);
        const auto rest = Koppel(schijf, opdracht);
        ASSERT_FALSE(rest.fout);
        ASSERT_EQ(bestanden - klaar, rest.gewijzigd.size());
        ASSERT_EQ(bestanden, Gekoppeld());
    }
    EXPECT_GT(halverwege, 3); // or the kills show nothing
    // What the killed ones left is removed by a link once it is old.
    const auto resten = Resten();
    ASSERT_FALSE(resten.empty());
    const auto lang = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
    std::filesystem::last_write_time(resten.front(), lang);
    ASSERT_FALSE(Koppel(schijf, opdracht).fout);
    EXPECT_EQ(resten.size() - 1, Resten().size());
    EXPECT_FALSE(std::filesystem::exists(resten.front()));
}

#endif
