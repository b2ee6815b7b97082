#include "federation/tussenmap.h"

namespace plexoran {

Pad Tussenmap(Schijf& schijf, const Pad& programmamap, const Pad& anders)
{
    const Pad proef = Samen(programmamap, "Temp-NBBXMLtoCSV.proef");
    (void)schijf.Verwijder(proef); // left by a program that was killed just here
    {
        auto schrijver = schijf.MaakNieuw(proef);
        if (!schrijver)
            return anders.empty() ? programmamap : anders;
        (void)(*schrijver)->Sluit();
    }
    (void)schijf.Verwijder(proef);
    return programmamap;
}

} // namespace plexoran
