// Printing a list: the print table and its layout beside sorting the names and measuring the texts
// of the same players, and drawing one page of lists of different lengths.
#include <QApplication>
#include <QImage>

#include <algorithm>

#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/scherm/schildervlak.h"
#include "platform/tekst/tekst.h"
#include "printing/printblad.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr int Basis = 100; ///< rows of the list with which drawing is compared
constexpr float Klein = 0.7F;

const Letterkast& Kast()
{
    // Fonts must not outlive the application, nor end in an order that nobody knows.
    static const auto* kast = new Letterkast;
    return *kast;
}

/// As the window gives it when the organiser chooses all subgroups.
Printopdracht Opdracht(const Spelertabel& tabel)
{
    return {.groepscode = "Gr01-",
            .subgroepen = Printsubgroepen(tabel, "Gr01-"),
            .kolommen = {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam, Kolom::Telef,
                         Kolom::Email, Kolom::Adres, Kolom::Postc, Kolom::Plaats}};
}

const Spelertabel& TabelVan(const benchmark::State& meting)
{
    static std::map<int, Spelertabel> tabellen;
    const int spelers = static_cast<int>(meting.range(0));
    auto plaats = tabellen.find(spelers);
    if (plaats == tabellen.end())
        plaats = tabellen
                     .emplace(spelers, SpelersUit(MaakRegister(spelers, Verdeling::EenGroep))
                                           .tabel.value_or(Spelertabel()))
                     .first;
    return plaats->second;
}

Printlijst MaakLijst(const Spelertabel& tabel, const Printopdracht& opdracht)
{
    Printtabel print = MaakPrinttabel(tabel, opdracht);
    Bladindeling indeling = BerekenKolommen(print, Klein, Kast());
    return {.tabel = std::move(print),
            .indeling = std::move(indeling),
            .groeptekst = "Gr01-Clubleden",
            .subgroepkop = Subgroepkop(opdracht.subgroepen),
            .datum = "21-11-2026",
            .programma = "Ravendeck.exe"};
}

void Printlijsten(benchmark::State& meting)
{
    const Spelertabel& tabel = TabelVan(meting);
    const Printopdracht opdracht = Opdracht(tabel);
    Meet(meting, [&] {
        const Printlijst lijst = MaakLijst(tabel, opdracht);
        if (lijst.tabel.Rijen() != static_cast<int>(meting.range(0)))
            meting.SkipWithError("de uitkomst klopt niet");
    });
}
BENCHMARK(Printlijsten)->Apply(Groottes);

/// The lower limit: the sort keys of the names, ready-made, sorted once, and every text measured
/// once.
void PrintlijstenGrens(benchmark::State& meting)
{
    const Spelertabel& tabel = TabelVan(meting);
    std::vector<Tekst> sleutels;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        sleutels.push_back(Sorteersleutel(tabel.Cel(rij, Kolom::Achternaam)));
    const Printopdracht opdracht = Opdracht(tabel);
    const Letter letter{.punten = 7};
    Meet(
        meting, [&] { return sleutels; },
        [&](std::vector<Tekst>& gesorteerd) {
            std::sort(gesorteerd.begin(), gesorteerd.end());
            double som = 0;
            for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
                for (const Kolom kolom : opdracht.kolommen)
                    som += Kast().Breedte(letter, tabel.Cel(rij, kolom));
            }
            benchmark::DoNotOptimize(som);
        });
}
BENCHMARK(PrintlijstenGrens)->Apply(Groottes);

/// The first page of the list, at 96 dots to the inch. All players are on it in the same order.
void BladTekenen(benchmark::State& meting)
{
    const Spelertabel& tabel = TabelVan(meting);
    const Printlijst lijst = MaakLijst(tabel, Opdracht(tabel));
    QImage beeld(1123, 1123, QImage::Format_ARGB32_Premultiplied);
    Meet(meting, [&] {
        beeld.fill(Qt::white);
        QPainter schilder(&beeld);
        Schildervlak vlak(schilder, Kast(), 96 / 25.4, Schildervlak::Doel::Scherm);
        TekenBlad(vlak, lijst, 1);
    });
}
BENCHMARK(BladTekenen)->Arg(Basis)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    const QApplication programma(argc, argv);
    return plexoran::VoerMetingenUit(argc, argv, [] {});
}
