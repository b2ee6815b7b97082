// Reading a list of players of any making, its form found out, beside reading the member CSV of as
// many; and looking at what it would change when half of them are known.
#include "exchange/lijstimport.h"
#include "federation/ledencsv.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr std::array Kolommen{Kolom::NBBnr,  Kolom::MV,         Kolom::Voornaam, Kolom::Div1,
                              Kolom::Tusv,   Kolom::Achternaam, Kolom::Adres,    Kolom::Postc,
                              Kolom::Plaats, Kolom::Telef,      Kolom::Email,    Kolom::Land};

/// As many players, of whom the list holds all; the register knows every other one.
struct Proef {
    explicit Proef(int leden)
    {
        const Spelertabel alle =
            SpelersUit(MaakRegister(leden, Verdeling::EenGroep)).tabel.value_or(Spelertabel());
        kop = "NBBnr;M/V;Voornaam;Div1;Tusv;Achternaam;Adres;Postc;Plaats;Telef;Email;Land\r\n";
        for (int rij = 1; rij <= alle.Rijen(); ++rij) {
            for (const Kolom kolom : Kolommen)
                leden_
                    .append(kolom == Kolom::NBBnr ? std::to_string(10'000'000 + rij)
                                                  : alle.Cel(rij, kolom))
                    .append(";");
            leden_.back() = '\r';
            leden_ += '\n';
            if (rij % 2 == 0)
                continue;
            tabel.VoegToe(alle.Velden(rij));
            tabel.ZetCel(tabel.Rijen(), Kolom::NBBnr, std::to_string(10'000'000 + rij));
            tabel.ZetCel(tabel.Rijen(), Kolom::Plaats, "Elders");
        }
        lijst = LeesSpelerslijst(kop + leden_, HerkenVorm(kop)).value();
    }

    Tekst kop;
    Tekst leden_;
    Spelertabel tabel;
    Spelerslijst lijst;
};

Proefkast<Proef, int>& Proeven()
{
    static Proefkast<Proef, int> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting)
{
    return Proeven().Geef(Grootte(meting));
}

void LijstLezen(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    const Tekst bytes = proef.kop + proef.leden_;
    Meet(
        meting, [] { return Lijstuitkomst<Spelerslijst>(); },
        [&](auto& lijst) {
            lijst = Lijsttekstvan(bytes).and_then([](const Lijsttekst& tekst) {
                return LeesSpelerslijst(tekst.tekst, HerkenVorm(tekst.tekst));
            });
            Eis(meting, lijst && lijst->Rijen() == proef.lijst.Rijen());
        });
}
BENCHMARK(LijstLezen)->Apply(Groottes);

void LijstLezenGrens(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    Meet(
        meting, [] { return Uitkomst<Ledenlezing>(); },
        [&](auto& lezing) {
            lezing = LeesLedencsv(proef.leden_, {});
            Eis(meting, lezing && lezing->lstN1.size() + 1 == proef.lijst.Rijen());
        });
}
BENCHMARK(LijstLezenGrens)->Apply(Groottes);

void LijstBekijken(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    Meet(
        meting, [] { return std::optional<Lijstvoorbeeld>(); },
        [&](auto& voorbeeld) {
            voorbeeld.emplace(
                Lijstvoorbeeld::Maak(
                    proef.tabel, proef.lijst,
                    {.groep = "Gr01-", .subgroep = {}, .keuze = RaadVelden(proef.lijst, true)})
                    .value());
            const auto bekend = static_cast<std::size_t>(proef.tabel.Rijen());
            Eis(meting,
                voorbeeld->Aantal(Voorbeeldsoort::Gewijzigd) == bekend &&
                    voorbeeld->Aantal(Voorbeeldsoort::Nieuw) == proef.lijst.Rijen() - 1 - bekend);
        });
}
BENCHMARK(LijstBekijken)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
