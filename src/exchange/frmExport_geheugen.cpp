#include "exchange/frmExport_geheugen.h"

#include <QSettings>
#include <QStringList>

#include <cstdlib>

#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/systeempad.h"
#include "register/spelertabel.h"

namespace plexoran {
namespace {

const QString Kolomsleutel = u"Export/Kolommen"_s;
const QString Soortsleutel = u"Export/Soort"_s;

QSettings Open(const Pad& bestand)
{
    return {QString::fromStdU16String(Systeempad(bestand).u16string()), QSettings::IniFormat};
}

/// Every column once, whatever the file says; at first all but the number of the row.
QList<int> Aangevuld(const QString& bewaard)
{
    QList<int> uit;
    const auto voeg = [&uit](int kolom) {
        const int nummer = std::abs(kolom);
        if (nummer >= 1 && nummer <= AantalKolommen && !uit.contains(nummer) &&
            !uit.contains(-nummer))
            uit << kolom;
    };
    for (const QString& deel : bewaard.split(u' '))
        voeg(deel.toInt());
    const bool nieuw = uit.isEmpty();
    for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
        voeg(nieuw && kolom != static_cast<int>(Kolom::Nr) ? kolom : -kolom);
    return uit;
}

} // namespace

Exportkeuze LeesExportkeuze(const Pad& bestand)
{
    if (bestand.empty())
        return {.kolommen = Aangevuld({})};
    const QSettings ini = Open(bestand);
    return {.kolommen = Aangevuld(ini.value(Kolomsleutel).toString()),
            .soort = ini.value(Soortsleutel).toString()};
}

void BewaarExportkeuze(const Pad& bestand, const Exportkeuze& keuze)
{
    if (bestand.empty())
        return;
    QSettings ini = Open(bestand);
    QStringList kolommen;
    for (const int kolom : keuze.kolommen)
        kolommen << QString::number(kolom);
    ini.setValue(Kolomsleutel, kolommen.join(u' '));
    ini.setValue(Soortsleutel, keuze.soort);
}

} // namespace plexoran
