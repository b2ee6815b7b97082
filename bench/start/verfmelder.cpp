// Loaded before the libraries of a Qt program: it stands in for the routine that brings a painted
// window to the screen, reports its first call and ends the process. So the program that is
// measured is the one that users get, to the byte.
#include "start/verfmelder.h"

#include <QBackingStore>
#include <QWindow>

#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <unistd.h>

namespace {

/// A routine of an object is, to the system's calling convention, one with the object in front.
using Flush = void (*)(QBackingStore*, const QRegion&, QWindow*, const QPoint&);

constexpr auto naam = "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint";

[[noreturn]] void Meld(const QWindow* venster)
{
    timespec nu{};
    clock_gettime(CLOCK_MONOTONIC, &nu);
    plexoran::Verfmelding melding;
    melding.tijd = std::int64_t{nu.tv_sec} * 1'000'000'000 + nu.tv_nsec;
    melding.breedte = venster->width();
    melding.hoogte = venster->height();
    const char* pijp = std::getenv(plexoran::Pijpvariabele);
    const bool gelukt = pijp != nullptr && write(std::atoi(pijp), &melding, sizeof melding) ==
                                               static_cast<ssize_t>(sizeof melding);
    _exit(gelukt ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

void QBackingStore::flush(const QRegion& gebied, QWindow* venster, const QPoint& verschoven)
{
    void* echte = dlsym(RTLD_NEXT, naam);
    if (echte == nullptr)
        _exit(EXIT_FAILURE);
    reinterpret_cast<Flush>(echte)(this, gebied, venster, verschoven);
    Meld(venster != nullptr ? venster : window());
}
