// Draws every window on the data at hand:
//
//   afbeeldingen MAPPEN_INI MAP
//
// writes a PNG of each, named after it, into the folder MAP, which is made when missing. A picture
// that cannot be written is named on standard error, and the exit status tells of it.
#include <QApplication>
#include <QDir>

#include <cstdio>

#include "afbeeldingen/vensterronde.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/inrichting.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/programma.h"

using namespace plexoran;

namespace {

bool Bewaar(QWidget& venster, const QDir& map)
{
    // A screen that is only drawn may be small; the pictures show the standard size there.
    const QSize maat = venster.property(Standaardmaat).toSize();
    if (maat.isValid() && QGuiApplication::platformName() == "offscreen"_L1)
        venster.resize(maat);
    venster.show();
    QApplication::processEvents();
    QApplication::processEvents(); // a layout that changed tells the one around it
    const QString bestand = map.filePath(venster.objectName() + u".png"_s);
    const bool gelukt = venster.grab().save(bestand);
    if (!gelukt)
        std::fprintf(stderr, "afbeeldingen: %s kon niet worden geschreven\n", qPrintable(bestand));
    return gelukt;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication programma(argc, argv);
    const QStringList woorden = QApplication::arguments();
    if (woorden.size() != 3) {
        std::fputs("Gebruik: afbeeldingen MAPPEN_INI MAP\n", stderr);
        return 2;
    }
    QApplication::setApplicationName(u"plexoran"_s);
    QApplication::setApplicationDisplayName(QString());
    RichtIn(programma);

    EchteSchijf schijf;
    Administratie administratie{.schijf = schijf, .winkel = MaakInstellingenwinkel(schijf)};
    frmLedenAdmin hoofdvenster(administratie);
    if (const auto eindstatus =
            hoofdvenster.Laad(VolledigPad(woorden[1].toStdString()), [] { return true; }))
        return *eindstatus;
    hoofdvenster.show();
    const QDir doel(woorden[2]);
    bool gelukt = doel.mkpath(u"."_s);
    DoorloopVensters(hoofdvenster, administratie,
                     [&](QWidget& venster) { gelukt = Bewaar(venster, doel) && gelukt; });
    return gelukt ? 0 : 1;
}
