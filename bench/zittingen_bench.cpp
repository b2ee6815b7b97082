// Finding the floating players of a competition, and checking a suite that holds it, beside reading
// the same files; and linking one who is in all of its sessions beside writing and syncing the
// changed files, measured in the same run.
#include <array>
#include <fstream>
#include <memory>
#include <string>

#include "controle/controle.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/systeempad.h"
#include "sessions/koppelen.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;

constexpr int Spelers = 1'000;
constexpr int Paren = 40;
constexpr int ZittingenPerRonde = 20;
constexpr Tekstblik Zwever = "Ellen Ravenzwaay";
constexpr std::array Soorten{Lijstsoort::Spelers, Lijstsoort::Percentages};

/// Of every four pairs one has a floating player; the first is in every session.
struct Lijsten {
    Tekst spelers;
    Tekst percentages;
};

Lijsten MaakLijsten(int nummer)
{
    Lijsten uit;
    for (int paar = 1; paar <= Paren; ++paar) {
        Tekst eerste = std::to_string(100000 + paar);
        if (paar == 1)
            eerste = Zwever;
        else if (paar % 4 == 0)
            eerste = Tekst("Speler").append(std::to_string(nummer)).append(" van der Zwaluw");
        const Tekst tweede = std::to_string(100100 + paar);
        uit.spelers.append("N").append(MetNullen(paar, 2)).append(" ").append(eerste);
        uit.spelers.append(" - ").append(tweede).append("\r\n");
        const Tekst nummertekst = std::to_string(paar);
        uit.percentages.append(nummertekst).append(",\"A\",\"N").append(nummertekst);
        uit.percentages.append("\",\"").append(eerste).append("-").append(tweede);
        uit.percentages.append("\",52.08,0,\"\"\r\n");
    }
    return uit;
}

/// A competition on the disk, in the page cache.
class Competitie {
  public:
    explicit Competitie(int aantal)
        : suite_(MaakRegister(Spelers, Verdeling::AlleGroepen)), mappen_(suite_.Instellingen())
    {
        mappen_.COMMAP = mappen_.SPEMAP;
        for (int i = 0; i < aantal; ++i)
            zittingen_.push_back(Competitiezitting(mappen_, "Ladder", i / ZittingenPerRonde + 1,
                                                   i % ZittingenPerRonde + 1));
        ZetTerug();
        Zet(Samen(Samen(mappen_.COMMAP, "Ladder"), "Compdata.txt"), {});
    }

    /// Every file as it was before anything was linked.
    void ZetTerug()
    {
        int nummer = 0;
        for (const Zitting& plaats : zittingen_) {
            fs::create_directories(Systeempad(plaats.map));
            const Lijsten lijsten = MaakLijsten(++nummer);
            Zet(plaats.Bestand(Lijstsoort::Spelers), lijsten.spelers);
            Zet(plaats.Bestand(Lijstsoort::Percentages), lijsten.percentages);
        }
    }

    [[nodiscard]] Zoekuitslag Zoek()
    {
        return ZoekZwevenden(schijf, ZittingenVan(schijf, mappen_, "Ladder").value());
    }
    [[nodiscard]] Controleuitslag Controleer() { return ControleerSuite(schijf, mappen_); }
    [[nodiscard]] fs::path Map() const { return Systeempad(mappen_.COMMAP); }
    [[nodiscard]] std::vector<fs::path> Bestanden() const
    {
        std::vector<fs::path> uit;
        for (const Zitting& plaats : zittingen_) {
            for (const Lijstsoort soort : Soorten)
                uit.push_back(Systeempad(plaats.Bestand(soort)));
        }
        return uit;
    }

    EchteSchijf schijf;

  private:
    static void Zet(const Pad& pad, const Tekst& inhoud)
    {
        std::ofstream(Systeempad(pad), std::ios::binary) << inhoud;
    }

    Proefsuite suite_;
    Mappen mappen_;
    std::vector<Zitting> zittingen_;
};

Proefkast<Competitie, int>& Competities()
{
    static Proefkast<Competitie, int> competities;
    return competities;
}

Competitie& CompetitieVan(const benchmark::State& meting)
{
    return Competities().Geef(Grootte(meting));
}

void Zittingaantallen(benchmark::internal::Benchmark* meting)
{
    meting->Arg(10)->Arg(100)->Arg(1'000);
    meting->UseManualTime()->Unit(benchmark::kMillisecond)->ComputeStatistics("min", Laagste);
}

/// Some ten seconds a time on a common disk: a few times will do.
void Schrijfaantallen(benchmark::internal::Benchmark* meting)
{
    constexpr int keren = 3;
    Zittingaantallen(meting);
    meting->Iterations(1)->Repetitions(keren);
}

// ---------------------------------------------------------------- finding

void Zoeken(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    competitie.ZetTerug();
    const auto verwacht = static_cast<std::size_t>(Grootte(meting)) * 2 * (1 + Paren / 4);
    Meet(
        meting, [] { return Zoekuitslag(); },
        [&](Zoekuitslag& uitslag) {
            uitslag = competitie.Zoek();
            Eis(meting, uitslag.zwevenden.size() == verwacht);
        });
}
BENCHMARK(Zoeken)->Apply(Zittingaantallen);

void ZoekenGrens(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    const auto bestanden = competitie.Bestanden();
    std::unique_ptr<char[]> buffer;
    Meet(meting, [&] {
        for (const fs::path& pad : bestanden)
            Eis(meting, LeesEnTel(pad, buffer) > 0);
    });
}
BENCHMARK(ZoekenGrens)->Apply(Zittingaantallen);

// ---------------------------------------------------------------- checking

/// Of two players a session has the name only, the same in both files.
void Controleren(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    competitie.ZetTerug();
    const auto verwacht = static_cast<std::size_t>(Grootte(meting)) * 2;
    Meet(
        meting, [] { return Controleuitslag(); },
        [&](Controleuitslag& uitslag) {
            uitslag = competitie.Controleer();
            Eis(meting, uitslag.vondsten.size() == verwacht);
        });
}
BENCHMARK(Controleren)->Apply(Zittingaantallen);

/// As nobody gave it the names of the files, it looks into the folders for them.
void ControlerenGrens(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    std::unique_ptr<char[]> buffer;
    Meet(meting, [&] {
        std::int64_t geteld = 0;
        for (const auto& plek : fs::recursive_directory_iterator(competitie.Map())) {
            if (plek.is_regular_file())
                geteld += LeesEnTel(plek.path(), buffer);
        }
        Eis(meting, geteld > 0);
    });
}
BENCHMARK(ControlerenGrens)->Apply(Zittingaantallen);

// ---------------------------------------------------------------- linking

void KoppelenOveral(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    competitie.ZetTerug();
    const auto lijst = competitie.Zoek().zwevenden;
    const auto opdracht = MaakKoppelopdracht(lijst, 0, "100237");
    const auto verwacht = static_cast<std::size_t>(Grootte(meting)) * Soorten.size();
    Meet(
        meting,
        [&] {
            competitie.ZetTerug();
            return Koppeluitslag();
        },
        [&](Koppeluitslag& uitslag) {
            uitslag = Koppel(competitie.schijf, opdracht);
            Eis(meting, !uitslag.fout && uitslag.gewijzigd.size() == verwacht);
        });
}
BENCHMARK(KoppelenOveral)->Apply(Schrijfaantallen);

/// The same files, each made anew beside the old one, and on the device before the next begins.
void KoppelenOveralGrens(benchmark::State& meting)
{
    Competitie& competitie = CompetitieVan(meting);
    competitie.ZetTerug();
    const auto bestanden = competitie.Bestanden();
    std::vector<Tekst> inhouden;
    for (const fs::path& pad : bestanden)
        inhouden.push_back(competitie.schijf.LeesBestand(PadVan(pad)).value());
    const auto nieuw = [](fs::path pad) { return pad += ".grens"; };
    const auto ruimOp = [&] {
        for (const fs::path& pad : bestanden)
            fs::remove(nieuw(pad));
        return 0;
    };
    Meet(meting, ruimOp, [&](int) {
        for (std::size_t i = 0; i < bestanden.size(); ++i) {
            const auto schrijver = competitie.schijf.MaakNieuw(PadVan(nieuw(bestanden[i])));
            Eis(meting, schrijver && (*schrijver)->Schrijf(inhouden[i]) && (*schrijver)->Sync() &&
                            (*schrijver)->Sluit());
        }
    });
    ruimOp();
}
BENCHMARK(KoppelenOveralGrens)->Apply(Schrijfaantallen);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Competities().Leeg(); });
}
