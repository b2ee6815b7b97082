#include "platform/schijf/klok.h"

#include <QDateTime>

namespace plexoran {
namespace {

constexpr std::int64_t perMilliseconde = 1'000'000;

Tekst Opgemaakt(const QDateTime& tijd, QStringView vorm)
{
    return tijd.toString(vorm).toStdString();
}

} // namespace

std::int64_t Nu()
{
    return QDateTime::currentMSecsSinceEpoch() * perMilliseconde;
}

Tekst Datum(std::int64_t tijd)
{
    return Opgemaakt(QDateTime::fromMSecsSinceEpoch(tijd / perMilliseconde), u"yyyy-MM-dd");
}

Tekst Tijdstempel()
{
    return Opgemaakt(QDateTime::currentDateTime(), u"yyyy-MM-dd HHmmss");
}

Tekst Dagtekening()
{
    return Opgemaakt(QDateTime::currentDateTime(), u"dd-MM-yyyy");
}

} // namespace plexoran
