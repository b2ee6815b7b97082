#include "platform/schijf/programma.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <thread>

#ifndef _WIN32
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"

namespace plexoran {
namespace {

class ExemplaarslotTest : public testing::Test {
  protected:
    [[nodiscard]] std::filesystem::path Bestand() const { return map_.Weg() / "slot"; }

    TijdelijkeMap map_;
};

/// Whoever holds it may ask again: it never finds itself.
TEST_F(ExemplaarslotTest, WieHetHeeftKrijgtHetWeer)
{
    Exemplaarslot slot(Bestand());
    EXPECT_TRUE(slot.Neem());
    EXPECT_TRUE(slot.Neem());
    Exemplaarslot ander(Bestand());
    EXPECT_FALSE(ander.Neem());
    EXPECT_FALSE(ander.Neem());
}

TEST_F(ExemplaarslotTest, WieStoptGeeftHetTerug)
{
    for (const int keer : {1, 2})
        EXPECT_TRUE(Exemplaarslot(Bestand()).Neem()) << keer;
}

TEST_F(ExemplaarslotTest, WieNietMagRoeptDeEerste)
{
    Exemplaarslot eerste(Bestand());
    ASSERT_TRUE(eerste.Neem());
    EXPECT_FALSE(eerste.IsGeroepen());
    const Exemplaarslot tweede(Bestand());
    tweede.Roep();
    EXPECT_TRUE(eerste.IsGeroepen());
    EXPECT_FALSE(eerste.IsGeroepen()) << "een keer";
    eerste.Roep();
    EXPECT_FALSE(eerste.IsGeroepen()) << "zichzelf niet";
}

TEST_F(ExemplaarslotTest, EenMapOpZijnPlaatsHoudtNiemandTegen)
{
    std::filesystem::create_directory(Bestand());
    map_.Zet("slot/iets", "");
    Exemplaarslot slot(Bestand());
    EXPECT_TRUE(slot.Neem());
#ifndef _WIN32
    EXPECT_FALSE(Exemplaarslot(Bestand()).Neem()) << "een tweede wel";
#endif
    EXPECT_TRUE(Exemplaarslot(map_.Weg() / "weg" / "slot").Neem());
}

#ifndef _WIN32

/// Runs `werk` in another process, which then waits to be killed. Returns when `werk` is done.
template <class Werk> pid_t StartProces(Werk werk)
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

void Dood(pid_t kind)
{
    kill(kind, SIGKILL);
    waitpid(kind, nullptr, 0);
}

TEST_F(ExemplaarslotTest, TweedeExemplaarKrijgtHetPasAlsHetEersteWegIs)
{
    Exemplaarslot eerste(Bestand());
    const pid_t kind = StartProces([&] {
        if (!eerste.Neem())
            std::abort();
    });
    EXPECT_FALSE(Exemplaarslot(Bestand()).Neem());
    Dood(kind);
    EXPECT_TRUE(Exemplaarslot(Bestand()).Neem());
}

/// What it starts, such as the reader of a database, may outlive it without holding its lock.
TEST_F(ExemplaarslotTest, EenGestartProgrammaErftHetNiet)
{
    int pijp[2] = {}; // the started program ends when it is closed
    ASSERT_EQ(0, pipe(pijp));
    Dood(StartProces([&] {
        static Exemplaarslot slot(Bestand());
        if (!slot.Neem())
            std::abort();
        if (fork() == 0) {
            close(pijp[1]);
            dup2(pijp[0], STDIN_FILENO);
            execl("/bin/cat", "cat", nullptr);
        }
    }));
    bool vrij = false;
    for (int i = 0; i < 500 && !vrij; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        vrij = Exemplaarslot(Bestand()).Neem();
    }
    EXPECT_TRUE(vrij);
    close(pijp[0]);
    close(pijp[1]);
}

/// Empty, cut off, noise, and the number of a process of this name that runs.
TEST_F(ExemplaarslotTest, WatErInStaatHoudtNiemandTegen)
{
    std::array<char, 256> computer{};
    gethostname(computer.data(), computer.size() - 1);
    const std::string eigen =
        std::to_string(getpid()) + "\nplatform_tests\n" + computer.data() + "\n";
    for (const std::string& inhoud :
         {std::string(), eigen.substr(0, 1), std::string("\0\xFF\n\x80", 4), eigen}) {
        map_.Zet("slot", inhoud);
        Exemplaarslot slot(Bestand());
        EXPECT_TRUE(slot.Neem()) << inhoud;
        EXPECT_FALSE(Exemplaarslot(Bestand()).Neem()) << inhoud;
    }
}

/// Killed before and after each call to the system that taking it makes.
TEST_F(ExemplaarslotTest, GedoodBijElkeStap)
{
    bool voltooid = false;
    for (int stap = 0; !voltooid; ++stap) {
        ASSERT_LT(stap, 1000);
        const pid_t kind = fork();
        if (kind == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            _exit(Exemplaarslot(Bestand()).Neem() ? 0 : 1);
        }
        int status = 0;
        waitpid(kind, &status, 0);
        for (int i = 0; i < stap && WIFSTOPPED(status); ++i) {
            ASSERT_EQ(0, ptrace(PTRACE_SYSCALL, kind, nullptr, nullptr));
            waitpid(kind, &status, 0);
        }
        voltooid = WIFEXITED(status);
        if (voltooid)
            EXPECT_EQ(0, WEXITSTATUS(status));
        else
            Dood(kind);
        Exemplaarslot slot(Bestand());
        EXPECT_TRUE(slot.Neem()) << stap;
        EXPECT_FALSE(Exemplaarslot(Bestand()).Neem()) << stap;
        if (stap % 2 == 0) // else the next one finds what this one left
            std::filesystem::remove(Bestand());
    }
}

/// Others may make files in the folder where it stands: neither their lock nor a link of theirs
/// keeps the user out, and what the link leads to is not made or touched.
TEST_F(ExemplaarslotTest, WatEenAnderDaarZetHoudtNiemandTegen)
{
    std::filesystem::create_symlink("doel", Bestand());
    EXPECT_TRUE(Exemplaarslot(Bestand()).Neem());
    EXPECT_FALSE(std::filesystem::exists(map_.Weg() / "doel"));
    std::filesystem::remove(Bestand());
    if (geteuid() != 0)
        GTEST_SKIP() << "alleen root kan een bestand weggeven";
    Exemplaarslot vanEenAnder(Bestand());
    ASSERT_TRUE(vanEenAnder.Neem());
    ASSERT_EQ(0, chown(Bestand().c_str(), 12345, 12345));
    EXPECT_TRUE(Exemplaarslot(Bestand()).Neem());
}

TEST(Slotbestand, HangtNietVanDeOmgevingAf)
{
    const auto plaats = Slotbestand();
    EXPECT_TRUE(plaats.is_absolute());
    for (const char* naam : {"XDG_RUNTIME_DIR", "TMPDIR", "HOME", "USER", "XDG_CACHE_HOME"}) {
        const char* vooraf = getenv(naam);
        const std::optional<std::string> oud =
            vooraf ? std::optional<std::string>(vooraf) : std::nullopt;
        const TijdelijkeMap map;
        std::filesystem::permissions(map.Weg(), std::filesystem::perms::owner_all);
        setenv(naam, map.Weg().c_str(), 1);
        EXPECT_EQ(plaats, Slotbestand()) << naam;
        unsetenv(naam);
        EXPECT_EQ(plaats, Slotbestand()) << naam;
        if (oud)
            setenv(naam, oud->c_str(), 1);
    }
}

#endif

class StartProgrammaTest : public testing::Test {
  protected:
    [[nodiscard]] Uitkomst<void> Start()
    {
        EchteSchijf schijf;
        return StartProgramma(schijf, Samen(map_.AlsPad(), "Gatenlijst.exe"));
    }

    TijdelijkeMap map_;
};

TEST_F(StartProgrammaTest, OntbrekendOfEenMapMetDieNaam)
{
    for (const bool map : {false, true}) {
        if (map)
            std::filesystem::create_directory(map_.Weg() / "Gatenlijst.exe");
        const auto uitkomst = Start();
        ASSERT_FALSE(uitkomst);
        EXPECT_EQ(uitkomst.error().soort, Foutsoort::Ontbreekt);
        EXPECT_EQ(uitkomst.error().bestand, (map_.Weg() / "Gatenlijst.exe").string());
    }
}

TEST_F(StartProgrammaTest, BestandDatNietKanStarten)
{
    map_.Zet("Gatenlijst.exe", "geen programma");
    const auto uitkomst = Start();
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Geweigerd);
#ifndef _WIN32
    EXPECT_EQ("u hebt daar geen rechten voor", uitkomst.error().systeem);
#endif
}

#ifndef _WIN32
TEST_F(StartProgrammaTest, StartInZijnEigenMap)
{
    map_.Zet("Gatenlijst.exe", "#!/bin/sh\npwd > plaats.nieuw && mv plaats.nieuw plaats\n");
    chmod((map_.Weg() / "Gatenlijst.exe").c_str(), S_IRWXU);
    ASSERT_TRUE(Start());
    for (int i = 0; i < 500 && !std::filesystem::exists(map_.Weg() / "plaats"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(map_.Inhoud("plaats"), std::filesystem::canonical(map_.Weg()).string() + "\n");
}
#endif

/// The working folder is put back afterwards.
class WerkmapTest : public testing::Test {
  protected:
    ~WerkmapTest() override { std::filesystem::current_path(vooraf_); }

    TijdelijkeMap map_;
    std::filesystem::path vooraf_ = std::filesystem::current_path();
};

TEST_F(WerkmapTest, EenMapDieOntbreektVerandertNiets)
{
    for (const Pad& map : {map_.AlsPad(), Samen(map_.AlsPad(), "bestaat niet")}) {
        ZetWerkmap(map);
        EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(map_.Weg()));
    }
}

TEST_F(WerkmapTest, VolledigPadHangtErNietVanAf)
{
    map_.Zet("Mappen.ini", "SPEMAP=x");
    std::filesystem::current_path(map_.Weg());
    const Pad pad = VolledigPad("Mappen.ini");
    std::filesystem::current_path(vooraf_);
    EXPECT_EQ(EchteSchijf().LeesBestand(pad), Tekst("SPEMAP=x"));
}

} // namespace
} // namespace plexoran
