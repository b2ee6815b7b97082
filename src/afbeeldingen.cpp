#include "afbeeldingen.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

#include "dialogs/diaGrNamen.h"
#include "dialogs/diaIngave.h"
#include "federation/diaRekProgkeus.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

bool Bewaar(QWidget& venster, const QDir& map)
{
    venster.show();
    QApplication::processEvents();
    const QString bestand = map.filePath(venster.objectName() + QStringLiteral(".png"));
    const bool gelukt = venster.grab().save(bestand);
    if (!gelukt)
        std::fprintf(stderr, "plexoran: %s kon niet worden geschreven\n", qPrintable(bestand));
    return gelukt;
}

/// A player of the shown group, so that the fields have something to show.
Ingave Voorbeeldingave(const Administratie& administratie)
{
    const int groep = administratie.instellingen.LOSTGR + 1;
    const Tekst code = Groepscode(groep);
    Ingave ingave;
    ingave.groeptekst = administratie.groepen.Toontekst(groep);
    ingave.importgroep = code == administratie.mappen.DFIMPG;
    const Spelertabel& tabel = administratie.spelers.tabel;
    for (int rij = 1; rij <= tabel.Rijen() && ingave.rij == 0; ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == code) {
            ingave.rij = rij;
            ingave.IngaveVelden = tabel.Velden(rij);
        }
    }
    return ingave;
}

} // namespace

int MaakAfbeeldingen(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                     const std::string& map)
{
    const QDir doel(QString::fromStdString(map));
    bool gelukt = doel.mkpath(QStringLiteral("."));
    gelukt = Bewaar(hoofdvenster, doel) && gelukt;

    Ingave ingave = Voorbeeldingave(administratie);
    std::int16_t terugkeerveld = administratie.instellingen.OPTIND;
    diaIngave ingaveVenster(
        ingave, terugkeerveld, [] {}, &hoofdvenster);
    gelukt = Bewaar(ingaveVenster, doel) && gelukt;

    Groepen groepen = administratie.groepen;
    diaGrNamen namenVenster(groepen, &hoofdvenster);
    gelukt = Bewaar(namenVenster, doel) && gelukt;

    diaRekProgkeus programmaVenster(&hoofdvenster);
    gelukt = Bewaar(programmaVenster, doel) && gelukt;
    return gelukt ? 0 : 1;
}

} // namespace plexoran
