#include "platform/scherm/tekstbrug.h"

namespace plexoran {

QString NaarQString(Tekstblik tekst)
{
    return QString::fromStdU16String(NaarUtf16(tekst));
}

Tekst NaarTekst(const QString& tekst)
{
    return NaarCodepagina(tekst.toStdU16String()).tekst;
}

QString ZonderSneltoets(const QString& tekst)
{
    return QString(tekst).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace plexoran
