// The time from the start of a process to its first paint, of two programs by turns.
//
//     start_bench RUNS REPORTER PROGRAM_A PROGRAM_B [arguments for both...]
//
// REPORTER is the file of `verfmelder`. Prints a line for each program: its path, the median, the
// lowest and the highest time in milliseconds, separated by tabs.
#include "start/verfmelder.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using plexoran::Verfmelding;

namespace {

constexpr int Wachttijd = 30'000;   // milliseconds
constexpr int Opwarmen = 3;         // runs that only fill the page cache
constexpr int SmalsteVenster = 900; // anything smaller is a message box, not the main window

[[noreturn]] void BreekAf(const std::string& waarom)
{
    std::fprintf(stderr, "start_bench: %s\n", waarom.c_str());
    std::exit(EXIT_FAILURE);
}

struct Opdracht {
    std::string melder;
    std::vector<char*> argumenten; ///< closed by a null pointer; the program comes in front
};

struct Kandidaat {
    char* programma;
    std::vector<double> tijden; ///< milliseconds
};

std::int64_t Nu()
{
    timespec nu{};
    clock_gettime(CLOCK_MONOTONIC, &nu);
    return std::int64_t{nu.tv_sec} * 1'000'000'000 + nu.tv_nsec;
}

[[noreturn]] void WordProgramma(const Opdracht& opdracht, char* programma, int pijp)
{
    std::vector<char*> argumenten{programma};
    argumenten.insert(argumenten.end(), opdracht.argumenten.begin(), opdracht.argumenten.end());
    setenv("LD_PRELOAD", opdracht.melder.c_str(), 1);
    setenv(plexoran::Pijpvariabele, std::to_string(pijp).c_str(), 1);
    execv(programma, argumenten.data());
    _exit(EXIT_FAILURE);
}

std::optional<Verfmelding> WachtOpMelding(int pijp)
{
    pollfd wacht{.fd = pijp, .events = POLLIN, .revents = 0};
    Verfmelding melding;
    // A program that ends without a report closes the pipe, and there is nothing to read.
    if (poll(&wacht, 1, Wachttijd) == 1 &&
        read(pijp, &melding, sizeof melding) == static_cast<ssize_t>(sizeof melding))
        return melding;
    return std::nullopt;
}

/// Milliseconds from before the start of the process until after its first paint.
double MeetStart(const Opdracht& opdracht, char* programma)
{
    std::array<int, 2> pijp{};
    if (pipe(pijp.data()) != 0)
        BreekAf("er is geen pijp");
    const std::int64_t begin = Nu();
    const pid_t kind = fork();
    if (kind == -1)
        BreekAf("er kan geen proces worden gestart");
    if (kind == 0)
        WordProgramma(opdracht, programma, pijp[1]);
    close(pijp[1]);
    const auto melding = WachtOpMelding(pijp[0]);
    close(pijp[0]);
    if (!melding)
        kill(kind, SIGKILL);
    waitpid(kind, nullptr, 0);
    if (!melding)
        BreekAf(std::string(programma) + " meldde geen beeld");
    if (melding->breedte < SmalsteVenster)
        BreekAf(std::string(programma) + " toonde eerst een ander venster, " +
                std::to_string(melding->breedte) + " breed");
    return static_cast<double>(melding->tijd - begin) / 1e6;
}

void Toon(Kandidaat& kandidaat)
{
    std::vector<double>& tijden = kandidaat.tijden;
    std::sort(tijden.begin(), tijden.end());
    const std::size_t midden = tijden.size() / 2;
    const double mediaan =
        tijden.size() % 2 == 1 ? tijden[midden] : (tijden[midden - 1] + tijden[midden]) / 2;
    std::printf("%s\t%.2f\t%.2f\t%.2f\n", kandidaat.programma, mediaan, tijden.front(),
                tijden.back());
}

} // namespace

int main(int argc, char** argv)
{
    const int keren = argc >= 5 ? std::atoi(argv[1]) : 0;
    if (keren < 1)
        BreekAf("gebruik: start_bench KEREN MELDER PROGRAMMA PROGRAMMA [argumenten...]");
    const Opdracht opdracht{.melder = argv[2], .argumenten = {argv + 5, argv + argc + 1}};
    std::array<Kandidaat, 2> kandidaten{Kandidaat{argv[3], {}}, Kandidaat{argv[4], {}}};

    for (int keer = -Opwarmen; keer < keren; ++keer) {
        // Whoever goes second finds what the first left in the caches, so they take turns in that.
        std::swap(kandidaten[0], kandidaten[1]);
        for (Kandidaat& kandidaat : kandidaten) {
            const double tijd = MeetStart(opdracht, kandidaat.programma);
            if (keer >= 0)
                kandidaat.tijden.push_back(tijd);
        }
    }
    if (kandidaten[0].programma != argv[3])
        std::swap(kandidaten[0], kandidaten[1]);
    for (Kandidaat& kandidaat : kandidaten)
        Toon(kandidaat);
    return EXIT_SUCCESS;
}
