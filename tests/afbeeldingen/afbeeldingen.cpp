// Draws every window on the data at hand:
//
//   afbeeldingen MAPPEN_INI MAP
//
// writes a PNG of each, named after it, and of the main window while it finds and in a dark theme,
// into the folder MAP, which is made when missing. A picture that cannot be written is named on
// standard error, and the exit status tells of it.
#include <QApplication>
#include <QDir>
#include <QLineEdit>

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

#include "afbeeldingen/vensterronde.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/inrichting.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/programma.h"
#include "vensters/kleuren.h"

using namespace plexoran;

namespace {

/// In the 256 colours that it has most of, which makes the file small; the rest, of the edges of
/// letters, become the nearest of them.
QImage MetPalet(const QImage& beeld)
{
    std::map<QRgb, int> punten;
    for (int y = 0; y < beeld.height(); ++y) {
        for (int x = 0; x < beeld.width(); ++x)
            ++punten[beeld.pixel(x, y)];
    }
    std::vector<std::pair<int, QRgb>> vaakst;
    for (const auto& [kleur, aantal] : punten)
        vaakst.emplace_back(-aantal, kleur);
    std::ranges::sort(vaakst);
    QList<QRgb> palet;
    for (const auto& [aantal, kleur] : vaakst) {
        if (palet.size() < 256)
            palet << kleur;
    }
    return beeld.convertToFormat(QImage::Format_Indexed8, palet, Qt::ThresholdDither);
}

bool Bewaar(QWidget& venster, const QDir& map, bool donker = false)
{
    // A screen that is only drawn may be small; the pictures show the standard size there.
    const QSize maat = venster.property(Standaardmaat).toSize();
    if (maat.isValid() && QGuiApplication::platformName() == "offscreen"_L1)
        venster.resize(maat);
    venster.show();
    QApplication::processEvents();
    QApplication::processEvents(); // a layout that changed tells the one around it
    const auto* zoek = venster.findChild<QLineEdit*>(u"txtZoek"_s);
    const bool gevonden = zoek != nullptr && !zoek->text().isEmpty();
    const QString soort = donker ? u"_donker"_s : gevonden ? u"_zoeken"_s : QString();
    const QString bestand = map.filePath(venster.objectName() + soort + u".png"_s);
    const bool gelukt = MetPalet(venster.grab().toImage()).save(bestand, nullptr, 0);
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
    QApplication::setPalette(Donker());
    gelukt = Bewaar(hoofdvenster, doel, true) && gelukt;
    return gelukt ? 0 : 1;
}
