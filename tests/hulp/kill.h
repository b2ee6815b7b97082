// Killing a program of this test at a random moment, where the system has processes to fork.
#pragma once
#ifndef _WIN32

#include <algorithm>
#include <csignal>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace plexoran {

/// A process that does this until it is killed or ends by itself.
template <class Doe> pid_t Kind(Doe doe)
{
    const pid_t kind = ::fork();
    if (kind == 0)
        doe();
    return kind;
}

/// Kills it after this many microseconds; false when it had ended by itself with a failure.
inline bool KillNa(pid_t kind, useconds_t wachten)
{
    ::usleep(wachten);
    ::kill(kind, SIGKILL);
    int status = 0;
    if (::waitpid(kind, &status, 0) != kind)
        return false;
    return WIFSIGNALED(status) ? WTERMSIG(status) == SIGKILL : WEXITSTATUS(status) == 0;
}

/// Random moments that follow the speed of the machine and the build: about as many kills before
/// the new file is there as after.
class Wachttijd {
  public:
    explicit Wachttijd(unsigned zaad) : toeval_(zaad) {}

    useconds_t Volgende()
    {
        return static_cast<useconds_t>(
            std::uniform_real_distribution<>(0.2 * midden_, 1.8 * midden_)(toeval_));
    }
    void WasTeLaat(bool laat) { midden_ = std::clamp(midden_ * (laat ? 0.9 : 1.1), 1e3, 1e5); }

  private:
    std::mt19937 toeval_;
    double midden_ = 8e3; // microseconds
};

} // namespace plexoran

#endif
