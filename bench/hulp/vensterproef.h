// A made-up register of one size in the real main window, for the measurements in it.
#pragma once

#include <QApplication>

#include "hulp/meten.h"
#include "hulp/register.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/schijf/echteSchijf.h"

namespace plexoran {

template <Verdeling verdeling> struct Vensterproef {
    explicit Vensterproef(int spelers)
        : suite(MaakRegister(spelers, verdeling)),
          administratie{.schijf = schijf, .winkel = [](auto...) { return std::nullopt; }},
          venster(administratie)
    {
        const auto status = venster.Laad(suite.MappenIni(), [] { return true; });
        goed = !status && administratie.spelers.tabel.Rijen() == spelers;
        venster.show();
        QApplication::processEvents();
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Administratie administratie;
    frmLedenAdmin venster;
    bool goed = false;
};

/// The one of the size of a measurement, made when the first asks for it.
template <class Proef> struct Vensterproeven {
    static inline Proefkast<Proef, int> kast;

    static Proef& Van(benchmark::State& meting)
    {
        Proef& proef = kast.Geef(Grootte(meting));
        Eis(meting, proef.goed);
        return proef;
    }
    static int Voer(int argc, char** argv)
    {
        const QApplication programma(argc, argv);
        return VoerMetingenUit(argc, argv, [] { kast.Leeg(); });
    }
};

} // namespace plexoran
