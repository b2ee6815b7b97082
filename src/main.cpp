// Picks the folder configuration and opens the main window.
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "afbeeldingen.h"
#include "mainwindow/frmLedenAdmin.h"
#include "opdrachtregel.h"
#include "platform/echteSchijf.h"
#include "platform/programma.h"
#include "platform/scherm/pictogram.h"

using namespace plexoran;

namespace {

/// Qt's own texts, such as those of the context menus, in Dutch whatever the system speaks.
void SpreekNederlands(QTranslator& vertaling)
{
    const QLocale nederlands(QLocale::Dutch, QLocale::Netherlands);
    QLocale::setDefault(nederlands);
    if (vertaling.load(nederlands, QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&vertaling);
}

} // namespace

int main(int argc, char** argv)
{
    const Opdrachten opdrachten = LeesOpdrachtregel(argc, argv);
    if (opdrachten.eindstatus)
        return *opdrachten.eindstatus;

    QApplication programma(argc, argv);
    QApplication::setApplicationName(QStringLiteral("plexoran"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setWindowIcon(Pictogram());
    QTranslator vertaling;
    SpreekNederlands(vertaling);

    EchteSchijf schijf;
    Exemplaarslot slot;
    const auto winkel = MaakInstellingenwinkel(schijf);
    Administratie administratie{.schijf = schijf, .winkel = *winkel};
    frmLedenAdmin venster(administratie);
    const Opstart opstart{.mappenIni = opdrachten.mappenIni.empty()
                                           ? MappenIniPad(Programmamap())
                                           : PadVanOpdrachtregel(opdrachten.mappenIni),
                          .eersteExemplaar = [&slot] { return slot.Neem(); }};
    if (const auto eindstatus = venster.Laad(opstart))
        return *eindstatus;
    venster.show();
    if (!opdrachten.afbeeldingen.empty())
        return MaakAfbeeldingen(venster, administratie, opdrachten.afbeeldingen);
    return QApplication::exec();
}
