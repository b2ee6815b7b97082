// Picks the folder configuration and opens the main window.
#include <QApplication>
#include <QTimer>

#include "mainwindow/frmEersteStart.h"
#include "mainwindow/frmLedenAdmin.h"
#include "opdrachtregel.h"
#include "platform/bronnen/access.h"
#include "platform/scherm/inrichting.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/programma.h"

using namespace plexoran;

int main(int argc, char** argv)
{
    WerkAlsAccesskind(argc, argv);
    const auto opdrachten = LeesOpdrachtregel(argc, argv);
    if (!opdrachten)
        return opdrachten.error();

    QApplication programma(argc, argv);
    QApplication::setApplicationName(u"plexoran"_s);
    QApplication::setApplicationDisplayName(QString());
    RichtIn(programma);

    EchteSchijf schijf;
    Exemplaarslot slot(opdrachten->slot.empty() ? Slotbestand() : opdrachten->slot);
    int status = 0;
    for (bool opnieuw = true; opnieuw;) {
        Administratie administratie{.schijf = schijf, .winkel = MaakInstellingenwinkel(schijf)};
        administratie.tweedeplaatsIni = Gebruikersbestand("reservekopie.ini");
        administratie.vensterIni = Gebruikersbestand("venster.ini");
        administratie.etikettenIni = Gebruikersbestand("etiketten.ini");
        Pad mappenIni = VolledigPad(opdrachten->mappenIni);
        if (opdrachten->mappenIni.empty()) {
            administratie.eersteStart = HuidigeOmgeving();
            mappenIni =
                StartMappenIni(schijf, administratie.programmamap, administratie.eersteStart->ini);
        }
        frmLedenAdmin venster(administratie);
        if (const auto eindstatus = venster.Laad(mappenIni, [&slot] { return slot.Neem(); })) {
            slot.Roep();
            return *eindstatus;
        }
        venster.show();
        QTimer roep;
        QObject::connect(&roep, &QTimer::timeout, &venster, [&] {
            if (slot.IsGeroepen())
                venster.KomNaarVoren();
        });
        roep.start(std::chrono::milliseconds(300));
        status = QApplication::exec();
        opnieuw = venster.MoetOpnieuw();
    }
    return status;
}
