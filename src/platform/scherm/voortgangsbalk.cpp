#include "platform/scherm/voortgangsbalk.h"

#include <limits>

#include "platform/scherm/maten.h"

namespace plexoran {
namespace {

constexpr qint64 Tussenpoos = 40; // milliseconds

} // namespace

Voortgangsbalk::Voortgangsbalk(const QString& naam, QWidget* ouder) : QProgressBar(ouder)
{
    Noem(this, naam, QStringLiteral("Voortgang"));
    Begin();
}

void Voortgangsbalk::Begin()
{
    sinds_.start();
    getoond_ = 0;
    setRange(0, 0);
}

bool Voortgangsbalk::Zet(std::size_t gedaan, std::size_t geheel, bool meteen)
{
    const qint64 nu = Duur();
    if (!meteen && nu - getoond_ < Tussenpoos)
        return false;
    getoond_ = nu;
    // Counts may exceed what a bar can hold.
    const std::size_t deler = geheel / std::numeric_limits<int>::max() + 1;
    setRange(0, static_cast<int>(geheel / deler));
    if (geheel > 0)
        setValue(static_cast<int>(gedaan / deler));
    return true;
}

void Voortgangsbalk::Rust()
{
    setRange(0, 1);
    setValue(1);
}

} // namespace plexoran
