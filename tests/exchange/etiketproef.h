// Players with addresses, for tests of labels.
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

struct Bewoner {
    Tekst voornaam{};
    Tekst tusv{};
    Tekst achternaam{};
    Tekst adres{};
    Tekst postc{};
    Tekst plaats{};
    Tekst land{};
    Tekst groep = "Gr01-";
};

inline Spelertabel MaakBewoners(const std::vector<Bewoner>& bewoners)
{
    Spelertabel tabel;
    for (const Bewoner& bewoner : bewoners) {
        Rijvelden velden;
        velden[Index(Kolom::Key)] = std::to_string(100'001 + tabel.Rijen());
        velden[Index(Kolom::Groep)] = bewoner.groep;
        velden[Index(Kolom::Voornaam)] = bewoner.voornaam;
        velden[Index(Kolom::Tusv)] = bewoner.tusv;
        velden[Index(Kolom::Achternaam)] = bewoner.achternaam;
        velden[Index(Kolom::Adres)] = bewoner.adres;
        velden[Index(Kolom::Postc)] = bewoner.postc;
        velden[Index(Kolom::Plaats)] = bewoner.plaats;
        velden[Index(Kolom::Land)] = bewoner.land;
        tabel.VoegToe(velden);
    }
    return tabel;
}

inline std::vector<int> AlleRijnummers(const Spelertabel& tabel)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        rijen.push_back(rij);
    return rijen;
}

} // namespace plexoran
