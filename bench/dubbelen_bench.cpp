// Finding probable doubles among all players, beside loading the same register in the same run:
// once with few names, which many bear, and once with names of their own, a hundredth of them
// doubles that differ by a letter.
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "register/dubbelen.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

enum class Namen { Weinig, Eigen };

/// Of five syllables, another one for every number.
Tekst Achternaam(int nummer)
{
    constexpr std::array<Tekstblik, 10> lettergrepen{"ber", "dijk", "hol", "kui", "lan",
                                                     "mes", "noor", "per", "sta", "wil"};
    Tekst uit;
    for (int i = 0; i < 5; ++i, nummer /= 10)
        uit += lettergrepen.at(static_cast<std::size_t>(nummer % 10));
    return uit;
}

struct Proef {
    Proef(int spelers, Namen namen) : suite(Registertekst(spelers, namen))
    {
        LeesSpelers(schijf, suite.Instellingen(), gelezen);
    }

    static Tekst Registertekst(int spelers, Namen namen)
    {
        return MaakRegister(spelers, Verdeling::AlleGroepen, [namen](Spelertabel& tabel, int rij) {
            const bool dubbel = rij % 100 == 0;
            if (namen == Namen::Weinig)
                return;
            tabel.ZetCel(rij, Kolom::Achternaam,
                         Achternaam(dubbel ? rij - 1 : rij) + (dubbel ? "s" : ""));
            tabel.ZetCel(rij, Kolom::Email, std::to_string(rij) + "@club.example");
            if (dubbel)
                tabel.ZetCel(rij, Kolom::Voornaam, Tekst(tabel.Cel(rij - 1, Kolom::Voornaam)));
        });
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Register gelezen;
};

Proefkast<Proef, int, Namen>& Proeven()
{
    static Proefkast<Proef, int, Namen> proeven;
    return proeven;
}

void Laden(benchmark::State& meting)
{
    Proef& proef = Proeven().Geef(Grootte(meting), Namen::Weinig);
    Meet(meting, [&] {
        Register spelers;
        LeesSpelers(proef.schijf, proef.suite.Instellingen(), spelers);
        Eis(meting, spelers.tabel.Rijen() == Grootte(meting));
    });
}
BENCHMARK(Laden)->Apply(Groottes);

void Zoek(benchmark::State& meting, Namen namen)
{
    const Proef& proef = Proeven().Geef(Grootte(meting), namen);
    Meet(meting, [&] {
        const auto uitslag = ZoekDubbelen(proef.gelezen.tabel, {});
        const std::size_t minstens =
            std::min(static_cast<std::size_t>(Grootte(meting)) / 100, MeesteParen);
        Eis(meting, uitslag.paren.size() >= minstens);
    });
}

void DubbelenZoeken(benchmark::State& meting)
{
    Zoek(meting, Namen::Weinig);
}
BENCHMARK(DubbelenZoeken)->Apply(Groottes);

void DubbelenZoekenEigenNamen(benchmark::State& meting)
{
    Zoek(meting, Namen::Eigen);
}
BENCHMARK(DubbelenZoekenEigenNamen)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
