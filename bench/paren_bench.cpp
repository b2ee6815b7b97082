// The pairs of one large group: opening it beside reading its pair file and its players' rows, and
// forming or dissolving a pair in the real window beside filling both choice lists anew.
#include <QApplication>
#include <QPushButton>

#include <memory>

#include "hulp/meten.h"
#include "hulp/register.h"
#include "pairs/frmParenOnderhoud.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/echteSchijf.h"

namespace plexoran {
namespace {

constexpr int Spelers = 5000;
constexpr int AantalParen = 2000;
constexpr Tekstblik Groep = "Gr01-";

/// Everybody alive, in one group without subgroups, and with a name of his own.
Tekst Proeftekst()
{
    Register uit;
    uit.HKEY = Sleutelbasis + Spelers;
    uit.tabel =
        SpelersUit(MaakRegister(Spelers, Verdeling::EenGroep)).tabel.value_or(Spelertabel());
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij) {
        Rijvelden velden = uit.tabel.Velden(rij);
        velden[Index(Kolom::Achternaam)] += static_cast<char>('a' + rij % 26);
        velden[Index(Kolom::Voornaam)] += static_cast<char>('a' + rij / 26 % 26);
        velden[Index(Kolom::NBBgr)].clear();
        velden[Index(Kolom::Status)].clear();
        uit.tabel.ZetRij(rij, velden);
    }
    return SpelersTekst(uit);
}

/// Players far apart, in no order of names.
Tekst Parentekst()
{
    Tekst tekst;
    for (int paar = 1; paar <= AantalParen; ++paar)
        tekst += std::to_string(Sleutelbasis + paar) + "-" +
                 std::to_string(Sleutelbasis + Spelers + 1 - paar) + "#";
    return tekst + "\r\n";
}

struct Proef {
    Proef() : suite(Proeftekst()), administratie{.schijf = schijf, .winkel = {}}
    {
        administratie.mappen = suite.Instellingen();
        LeesSpelers(schijf, administratie.mappen, administratie.spelers);
        std::filesystem::create_directory(suite.Spelerpad("Parenmap"));
        std::ofstream(suite.Spelerpad("Parenmap") / "Gr01-.txt", std::ios::binary) << Parentekst();
        goed = administratie.spelers.tabel.Rijen() == Spelers;
    }

    [[nodiscard]] const Spelertabel& Tabel() const { return administratie.spelers.tabel; }
    [[nodiscard]] Paartekens Lees()
    {
        return PaartekensUit(
            LeesParenbestand(schijf, administratie.mappen, Groep).value().value_or(Tekst()));
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Administratie administratie;
    bool goed = false;
};

std::unique_ptr<Proef>& DeProef()
{
    static std::unique_ptr<Proef> proef;
    return proef;
}

void EenGrootte(benchmark::internal::Benchmark* meting)
{
    constexpr int keer = 3;
    meting->Arg(Spelers)->Iterations(keer);
    meting->UseManualTime()->Unit(benchmark::kMillisecond)->ComputeStatistics("min", Laagste);
}

// ---------------------------------------------------------------- opening

void ParenOpenen(benchmark::State& meting)
{
    Proef& proef = *DeProef();
    Meet(
        meting, [] { return Paren(); },
        [&](Paren& paren) {
            const Tekst losse = paren.LaadSubgroep(proef.Tabel(), Groep, Groep, proef.Lees());
            Eis(meting, proef.goed && losse.empty() && paren.L3().size() == AantalParen &&
                            paren.Lalle().size() == Spelers - 2 * AantalParen);
        });
}
BENCHMARK(ParenOpenen)->Apply(EenGrootte);

/// The pair file and the rows of the group's players, as the register has them on the disk.
void ParenOpenenGrens(benchmark::State& meting)
{
    Proef& proef = *DeProef();
    Meet(
        meting, [] { return Register(); },
        [&](Register& spelers) {
            LeesSpelers(proef.schijf, proef.administratie.mappen, spelers);
            Eis(meting, proef.Lees().size() == AantalParen);
        });
}
BENCHMARK(ParenOpenenGrens)->Apply(EenGrootte);

/// The same from the table in memory: every cell of every row once, and a line for each player.
void ParenOpenenTabelgrens(benchmark::State& meting)
{
    Proef& proef = *DeProef();
    Meet(
        meting, [] { return std::vector<Tekst>(); },
        [&](std::vector<Tekst>& regels) {
            for (int rij = 1; rij <= proef.Tabel().Rijen(); ++rij) {
                if (proef.Tabel().Cel(rij, Kolom::Groep) == Groep &&
                    !IsOverleden(proef.Tabel().Cel(rij, Kolom::Status)))
                    regels.push_back(Spelerregel(proef.Tabel(), rij));
            }
            Eis(meting, proef.Lees().size() == AantalParen && regels.size() == Spelers);
        });
}
BENCHMARK(ParenOpenenTabelgrens)->Apply(EenGrootte);

// ---------------------------------------------------------------- forming and dissolving

/// The real window with the group open and, when asked, its stored pairs away, so that all players
/// are to be paired.
struct Venster {
    explicit Venster(bool metParen)
    {
        const auto bestand = DeProef()->suite.Spelerpad("Parenmap") / "Gr01-.txt";
        const auto weg = DeProef()->suite.Spelerpad("Parenmap") / "weg.txt";
        if (!metParen)
            std::filesystem::rename(bestand, weg);
        venster = std::make_unique<frmParenOnderhoud>(DeProef()->administratie, Groep, nullptr);
        venster->show();
        auto* keus = venster->findChild<QComboBox*>(u"cmbNBBledengr"_s);
        keus->setCurrentIndex(0);
        emit keus->activated(0);
        if (!metParen)
            std::filesystem::rename(weg, bestand);
        QApplication::processEvents();
    }

    [[nodiscard]] Regellijst& Lijst(const char* naam) const
    {
        return *venster->findChild<Regellijst*>(QString::fromLatin1(naam));
    }
    void Kies(const char* lijst, int plaats) const
    {
        Lijst(lijst).setCurrentIndex(Lijst(lijst).model()->index(plaats, 0));
    }
    void Druk(const char* knop) const
    {
        venster->findChild<QPushButton*>(QString::fromLatin1(knop))->click();
    }

    std::unique_ptr<frmParenOnderhoud> venster;
};

void MeetVenster(benchmark::State& meting, bool metParen, const char* knop)
{
    const Venster venster(metParen);
    const bool maken = QLatin1String(knop) == "cmdOKE"_L1;
    Meet(
        meting,
        [&] {
            // What was formed is dissolved, and the other way around, so that the size stays.
            if (maken) {
                venster.Kies("L1", venster.Lijst("L1").Aantal() / 2);
                venster.Kies("L2", venster.Lijst("L2").Aantal() / 3);
            } else {
                venster.Kies("L3", venster.Lijst("L3").Aantal() / 2);
            }
            QApplication::processEvents();
            return venster.Lijst("L3").Aantal();
        },
        [&](int vooraf) {
            venster.Druk(knop);
            Eis(meting, venster.Lijst("L3").Aantal() == vooraf + (maken ? 1 : -1));
        });
}

/// All 5,000 players in the lists.
void PaarMaken(benchmark::State& meting)
{
    MeetVenster(meting, false, "cmdOKE");
}
BENCHMARK(PaarMaken)->Apply(EenGrootte);

void PaarOntbinden(benchmark::State& meting)
{
    MeetVenster(meting, true, "cmdOntbindt");
}
BENCHMARK(PaarOntbinden)->Apply(EenGrootte);

/// Among 2,000 pairs.
void PaarMakenBijParen(benchmark::State& meting)
{
    MeetVenster(meting, true, "cmdOKE");
}
BENCHMARK(PaarMakenBijParen)->Apply(EenGrootte);

/// Both choice lists emptied and filled with a line for each of the 5,000 players.
void LijstenVullen(benchmark::State& meting)
{
    Paren paren;
    (void)paren.LaadSubgroep(DeProef()->Tabel(), Groep, Groep, {});
    const Venster venster(false);
    Meet(meting, [&] {
        for (const char* naam : {"L1", "L2"})
            venster.Lijst(naam).Vul(
                static_cast<int>(paren.Lalle().size()),
                [&](int plaats) { return paren.Keuze(plaats); }, Regellijst::Plek::Behouden);
    });
}
BENCHMARK(LijstenVullen)->Apply(EenGrootte);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    const QApplication programma(argc, argv);
    return plexoran::VoerMetingenUit(
        argc, argv, [] { plexoran::DeProef() = std::make_unique<plexoran::Proef>(); },
        [] { plexoran::DeProef().reset(); });
}
