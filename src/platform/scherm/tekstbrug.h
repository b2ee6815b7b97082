// Between the register's bytes and the texts of windows.
#pragma once

#include <QString>

#include "platform/tekst/codepagina.h"

namespace plexoran {

using namespace Qt::StringLiterals; // u"..."_s: the texts of windows

[[nodiscard]] inline QString NaarQString(Tekstblik tekst)
{
    return QString::fromStdU16String(NaarUtf16(tekst));
}

/// The bytes of a text that a `Tekstvak` let through or that this program wrote itself; anything
/// else becomes the nearest letters.
[[nodiscard]] inline Tekst NaarTekst(const QString& tekst)
{
    return NaarCodepagina(tekst.toStdU16String()).tekst;
}

/// A moment such as "2026-11-22 16:40:11" or "2026-11-22 164011" for the eye: "22-11-2026 16:40".
[[nodiscard]] inline QString Toonmoment(Tekstblik moment)
{
    const QString dichter = NaarQString(moment).remove(u':');
    return dichter.mid(8, 2) + dichter.mid(4, 4) + dichter.left(4) + dichter.mid(10, 3) + u':' +
           dichter.mid(13, 2);
}

/// A text of the user on a button or label that has a mnemonic: its "&" is shown as it is.
[[nodiscard]] inline QString ZonderSneltoets(const QString& tekst)
{
    return QString(tekst).replace(u'&', u"&&"_s);
}

} // namespace plexoran
