#include "platform/programma.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <gtest/gtest.h>

#include "platform/echteSchijf.h"
#include "platform/tijdelijkeMap.h"

namespace plexoran {
namespace {

/// The lock lies in the user's runtime folder, on Windows in his temporary one; each test gets one
/// of its own.
class ExemplaarslotTest : public testing::Test {
  protected:
#ifdef _WIN32
    ExemplaarslotTest()
    {
        Zet(map_.Weg().string());
    }
    ~ExemplaarslotTest() override
    {
        Zet(vooraf_);
    }

    static void Zet(const std::string& map)
    {
        _putenv_s("TMP", map.c_str());
    }

    std::string vooraf_ = std::getenv("TMP");
#else
    ExemplaarslotTest()
    {
        Wijs(map_.Weg().string());
    }
    ~ExemplaarslotTest() override
    {
        unsetenv("XDG_RUNTIME_DIR");
    }

    static void Wijs(const std::string& map)
    {
        chmod(map.c_str(), S_IRWXU); // a runtime folder that others can enter is not trusted
        setenv("XDG_RUNTIME_DIR", map.c_str(), 1);
    }
#endif

    TijdelijkeMap map_;
};

#ifndef _WIN32

/// Runs `werk` in another process, which then waits to be killed. Returns when `werk` is done.
pid_t StartProces(void (*werk)())
{
    int pijp[2] = {};
    if (pipe(pijp) != 0)
        throw std::runtime_error("geen pijp");
    const pid_t kind = fork();
    if (kind == 0) {
        werk();
        (void)!write(pijp[1], "x", 1);
        for (;;)
            pause();
    }
    char klaar = 0;
    (void)!read(pijp[0], &klaar, 1);
    close(pijp[0]);
    close(pijp[1]);
    return kind;
}

void HoudSlot()
{
    static Exemplaarslot slot; // lives as long as the process
    if (!slot.Neem())
        std::abort();
}

#endif

/// Whoever holds it may ask again: it never finds itself.
TEST_F(ExemplaarslotTest, WieHetHeeftKrijgtHetWeer)
{
    Exemplaarslot slot;
    EXPECT_TRUE(slot.Neem());
    EXPECT_TRUE(slot.Neem());
    Exemplaarslot ander;
    EXPECT_FALSE(ander.Neem());
    EXPECT_FALSE(ander.Neem());
}

#ifndef _WIN32
TEST_F(ExemplaarslotTest, TweedeExemplaarKrijgtHetNiet)
{
    const pid_t eerste = StartProces(HoudSlot);
    EXPECT_FALSE(Exemplaarslot().Neem());
    kill(eerste, SIGKILL);
    waitpid(eerste, nullptr, 0);
}

TEST_F(ExemplaarslotTest, GedoodExemplaarLaatGeenSlotAchter)
{
    const pid_t eerste = StartProces(HoudSlot);
    kill(eerste, SIGKILL);
    waitpid(eerste, nullptr, 0);
    EXPECT_TRUE(Exemplaarslot().Neem());
}

TEST_F(ExemplaarslotTest, AndereGebruikerHeeftEenEigenSlot)
{
    const pid_t eerste = StartProces(HoudSlot);
    const TijdelijkeMap andere;
    Wijs(andere.Weg().string());
    EXPECT_TRUE(Exemplaarslot().Neem());
    kill(eerste, SIGKILL);
    waitpid(eerste, nullptr, 0);
}
#endif

TEST_F(ExemplaarslotTest, WieStoptGeeftHetTerug)
{
    {
        Exemplaarslot eerste;
        EXPECT_TRUE(eerste.Neem());
    }
    EXPECT_TRUE(Exemplaarslot().Neem());
}

TEST(StartProgramma, OntbrekendProgramma)
{
    EchteSchijf schijf;
    const TijdelijkeMap map;
    const auto uitkomst = StartProgramma(schijf, Samen(map.AlsPad(), "Gatenlijst.exe"));
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Ontbreekt);
    EXPECT_EQ(uitkomst.error().bestand, (map.Weg() / "Gatenlijst.exe").string());
}

TEST(StartProgramma, MapMetDieNaamIsGeenProgramma)
{
    EchteSchijf schijf;
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "Gatenlijst.exe");
    const auto uitkomst = StartProgramma(schijf, Samen(map.AlsPad(), "Gatenlijst.exe"));
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Ontbreekt);
}

TEST(StartProgramma, BestandDatNietKanStarten)
{
    EchteSchijf schijf;
    const TijdelijkeMap map;
    map.Zet("Gatenlijst.exe", "geen programma");
    const auto uitkomst = StartProgramma(schijf, Samen(map.AlsPad(), "Gatenlijst.exe"));
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Geweigerd);
}

#ifndef _WIN32
TEST(StartProgramma, StartInZijnEigenMap)
{
    EchteSchijf schijf;
    const TijdelijkeMap map;
    map.Zet("Gatenlijst.exe", "#!/bin/sh\npwd > plaats.nieuw && mv plaats.nieuw plaats\n");
    chmod((map.Weg() / "Gatenlijst.exe").c_str(), S_IRWXU);
    ASSERT_TRUE(StartProgramma(schijf, Samen(map.AlsPad(), "Gatenlijst.exe")));
    for (int i = 0; i < 500 && !std::filesystem::exists(map.Weg() / "plaats"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(map.Inhoud("plaats"), std::filesystem::canonical(map.Weg()).string() + "\n");
}
#endif

TEST(ZetWerkmap, BestaandeMap)
{
    const auto vooraf = std::filesystem::current_path();
    const TijdelijkeMap map;
    ZetWerkmap(map.AlsPad());
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(map.Weg()));
    ZetWerkmap(Samen(map.AlsPad(), "bestaat niet"));
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(map.Weg()));
    std::filesystem::current_path(vooraf);
}

TEST(VolledigPad, HangtNietVanDeWerkmapAf)
{
    EchteSchijf schijf;
    const auto vooraf = std::filesystem::current_path();
    const TijdelijkeMap map;
    map.Zet("Mappen.ini", "SPEMAP=x");
    std::filesystem::current_path(map.Weg());
    const Pad pad = VolledigPad("Mappen.ini");
    std::filesystem::current_path(vooraf);
    EXPECT_EQ(schijf.LeesBestand(pad), Tekst("SPEMAP=x"));
}

} // namespace
} // namespace plexoran
