#include "mainwindow/bestandswacht.h"

#include <QApplication>
#include <QThread>

namespace plexoran {

Bestandswacht::Bestandswacht(Schijf& schijf, QObject* ouder) : QObject(ouder), schijf_(schijf)
{
    constexpr int seconde = 1000;
    startTimer(seconde);
}

void Bestandswacht::Bewaak(std::vector<Pad> paden)
{
    paden_ = std::move(paden);
    stempels_ = Stempels();
}

void Bestandswacht::Kijk()
{
    auto nu = Stempels();
    if (nu == stempels_)
        return;
    stempels_ = std::move(nu);
    emit veranderd();
}

/// A command that showed a window may hold places in the table until its own loop has ended, which
/// is after the window has gone.
void Bestandswacht::KijkAlsHetMag()
{
    if (QApplication::activeModalWidget() == nullptr && QThread::currentThread()->loopLevel() <= 1)
        Kijk();
}

/// None for a file that is not there, or cannot be looked at now.
std::vector<std::optional<Stempel>> Bestandswacht::Stempels() const
{
    std::vector<std::optional<Stempel>> uit;
    for (const Pad& pad : paden_) {
        const auto stempel = schijf_.NeemStempel(pad);
        uit.push_back(stempel ? std::optional(*stempel) : std::nullopt);
    }
    return uit;
}

} // namespace plexoran
