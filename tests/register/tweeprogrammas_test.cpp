// Two real programs of two users at work on one register, both killed now and then: no key is
// issued twice, and no player goes whom nobody deleted.
#ifndef _WIN32

#include <fstream>
#include <random>
#include <set>
#include <sstream>

#include <unistd.h>

#include "hulp/kill.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/geschiedenis.h"
#include "register/registerhulp.h"

using namespace plexoran;

namespace {

constexpr int opdrachten = 500;
constexpr int kills = 16;

/// What a program writes down for itself: in a file that it opens anew for every line, so that it
/// is there when the program is killed.
struct Logboek {
    std::filesystem::path pad;

    void Schrijf(const std::string& regel) const
    {
        std::ofstream(pad, std::ios::app) << regel << std::endl;
    }
    [[nodiscard]] std::vector<std::string> Regels() const
    {
        std::vector<std::string> uit;
        std::ifstream bestand(pad);
        for (std::string regel; std::getline(bestand, regel);)
            uit.push_back(regel);
        return uit;
    }
};

class Programma {
  public:
    Programma(const TijdelijkeMap& map, int nummer)
        : nummer_(std::to_string(nummer)),
          mappen_(Proefmappen(map.AlsPad())), logboek_{map.Weg() / ("logboek" + nummer_)},
          thuis_(map.Weg() / ("thuis" + nummer_)), tabel_(map.Weg() / ("tabel" + nummer_))
    {
        std::filesystem::create_directory(thuis_);
    }

    [[nodiscard]] const Logboek& Log() const { return logboek_; }
    [[nodiscard]] Tekst Computer() const { return "pc" + nummer_; }
    [[nodiscard]] const Mappen& Instellingen() const { return mappen_; }

    /// One start of it, which does what is left of its commands.
    [[noreturn]] void Werk()
    {
        // What a killed one left is waited for, but what a slow one holds must not be taken.
        Slotpoos = std::chrono::milliseconds(20);
        ::setenv("HOME", thuis_.c_str(), 1);
        const auto regels = logboek_.Regels();
        logboek_.Schrijf("start");
        EchteSchijf schijf;
        Geschiedenis geschiedenis(schijf);
        geschiedenis.Open(mappen_, Computer(), "gebruiker" + nummer_);
        toeval_.seed(static_cast<unsigned>(regels.size()) * 2 +
                     static_cast<unsigned>(nummer_ == "1"));
        Register spelers;
        for (std::ptrdiff_t klaar = std::count(regels.begin(), regels.end(), "ok");
             klaar < opdrachten; ++klaar) {
            if (LeesSpelers(schijf, mappen_, spelers).fout)
                ::_exit(1);
            const Noteer noteer(geschiedenis, "Opdracht");
            const Tekst nieuw = DoeIets(spelers, static_cast<int>(klaar));
            Bewaar(schijf, spelers);
            if (!nieuw.empty())
                logboek_.Schrijf("nieuw " + KeyVan(spelers.tabel, nieuw) + " " + nieuw);
            logboek_.Schrijf("ok");
            if (geschiedenis.NeemFout())
                ::_exit(5);
        }
        LeesSpelers(schijf, mappen_, spelers);
        std::ofstream(tabel_) << SpelersTekst(spelers);
        ::_exit(0);
    }

    /// As it read the register last.
    [[nodiscard]] std::string Tabel() const
    {
        std::ifstream bestand(tabel_);
        return {std::istreambuf_iterator<char>(bestand), {}};
    }

  private:
    int Keuze(int aantal) { return static_cast<int>(toeval_() % static_cast<unsigned>(aantal)); }

    /// The surname of whom it added.
    Tekst DoeIets(Register& spelers, int opdracht)
    {
        const int rij = 1 + Keuze(spelers.tabel.Rijen());
        const int keus = Keuze(10);
        if (keus < 4 || spelers.tabel.Rijen() < 10) {
            Rijvelden velden;
            velden[Index(Kolom::Achternaam)] =
                "P" + nummer_ + "O" + std::to_string(opdracht) + "T" + std::to_string(toeval_());
            if (!VoegSpelerToe(spelers, "Gr01-", velden))
                ::_exit(2);
            return velden[Index(Kolom::Achternaam)];
        }
        if (keus < 7)
            spelers.tabel.ZetCel(rij, Kolom::Telef, std::to_string(toeval_()));
        else {
            logboek_.Schrijf("weg " + Tekst(spelers.tabel.Cel(rij, Kolom::Key)));
            spelers.tabel.VerwijderRijen(std::vector{rij});
        }
        return {};
    }

    void Bewaar(Schijf& schijf, Register& spelers) const
    {
        for (;;) {
            const auto gelukt =
                SchrijfSpelers(schijf, mappen_, spelers, Overschrijven::AlleenEigen);
            if (gelukt)
                return;
            if (gelukt.error().soort != Foutsoort::Gewijzigd)
                ::_exit(3);
            const auto ander = AnderRegister::Lees(schijf, mappen_);
            if (!ander || !ander->IsHeel(spelers))
                ::_exit(4);
            ander->NeemOver(spelers, ander->MengMet(spelers));
        }
    }

    static Tekst KeyVan(const Spelertabel& tabel, Tekstblik achternaam)
    {
        for (int rij = tabel.Rijen(); rij > 0; --rij) {
            if (tabel.Cel(rij, Kolom::Achternaam) == achternaam)
                return Tekst(tabel.Cel(rij, Kolom::Key));
        }
        ::_exit(6);
    }

    std::string nummer_;
    Mappen mappen_;
    Logboek logboek_;
    std::filesystem::path thuis_;
    std::filesystem::path tabel_;
    std::mt19937 toeval_;
};

/// Lets both work until they are done; meanwhile each is killed now and then, and started again.
void LaatWerken(std::array<Programma, 2>& programmas)
{
    std::array<pid_t, 2> kinderen{};
    const auto start = [&](std::size_t welk) {
        kinderen.at(welk) = Kind([&] { programmas.at(welk).Werk(); });
        ASSERT_NE(kinderen.at(welk), -1);
    };
    start(0);
    start(1);
    std::mt19937 toeval(20'261'122);
    for (int kill = 0; kill < kills; ++kill) {
        const std::size_t welk = toeval() % 2;
        ASSERT_TRUE(KillNa(kinderen.at(welk), static_cast<useconds_t>(toeval() % 400'000)));
        start(welk);
    }
    for (const bool nogEens : {true, false}) { // once more, to read what the last one left
        for (std::size_t welk = 0; welk < kinderen.size(); ++welk) {
            int status = 0;
            ASSERT_EQ(::waitpid(kinderen.at(welk), &status, 0), kinderen.at(welk));
            ASSERT_TRUE(WIFEXITED(status));
            ASSERT_EQ(WEXITSTATUS(status), 0);
        }
        for (std::size_t welk = 0; nogEens && welk < kinderen.size(); ++welk)
            start(welk);
    }
}

/// What both acknowledged.
struct Verslag {
    std::map<Tekst, Tekst> nieuw;    ///< surname by key
    std::set<Tekst> weg;             ///< keys, of the last command before a kill too
    std::map<Tekst, Tekst> computer; ///< by key of a new player
    int dubbel = 0;                  ///< keys that were acknowledged twice
};

Verslag Lees(const std::array<Programma, 2>& programmas)
{
    Verslag uit;
    for (const Programma& programma : programmas) {
        for (const std::string& regel : programma.Log().Regels()) {
            std::istringstream woorden(regel);
            Tekst soort;
            Tekst key;
            Tekst naam;
            woorden >> soort >> key >> naam;
            if (soort == "weg")
                uit.weg.insert(key);
            else if (soort == "nieuw") {
                uit.dubbel += uit.nieuw.emplace(key, naam).second ? 0 : 1;
                uit.computer.emplace(key, programma.Computer());
            }
        }
    }
    return uit;
}

/// The history of each program names the players whom it added.
std::set<std::pair<Tekst, Tekst>> InGeschiedenis(Schijf& schijf, const Mappen& mappen)
{
    std::set<std::pair<Tekst, Tekst>> uit;
    LoopTerug(schijf, mappen, [&](Handeling& handeling) {
        for (const Wijziging& wijziging : handeling.wijzigingen) {
            for (const Verschil& verschil : SpelersIn(wijziging)) {
                if (!verschil.links)
                    uit.emplace(handeling.computer, verschil.key);
            }
        }
        return true;
    });
    return uit;
}

} // namespace

TEST(TweeProgrammas, GevenElkeSleutelEenKeerUitEnVerliezenNiemand)
{
    const TijdelijkeMap map;
    std::filesystem::create_directory(map.Weg() / "Spelers");
    map.Zet("Spelers/RVDspelers.txt", vijfSpelers);
    std::array<Programma, 2> programmas{Programma(map, 1), Programma(map, 2)};
    ASSERT_NO_FATAL_FAILURE(LaatWerken(programmas));

    EchteSchijf schijf;
    const Mappen& mappen = programmas[0].Instellingen();
    Register spelers;
    ASSERT_TRUE(LeesSpelers(schijf, mappen, spelers).AllesGelezen());
    for (const Programma& programma : programmas)
        EXPECT_EQ(programma.Tabel(), SpelersTekst(spelers));
    const Verslag verslag = Lees(programmas);
    EXPECT_EQ(verslag.dubbel, 0);
    EXPECT_GT(verslag.nieuw.size(), 2U * opdrachten / 4);
    EXPECT_GE(spelers.HKEY, HoogsteSleutel(spelers.tabel));
    EXPECT_GE(std::to_string(spelers.HKEY), verslag.nieuw.rbegin()->first);

    std::map<Tekst, Tekst> staat;
    for (int rij = 1; rij <= spelers.tabel.Rijen(); ++rij) {
        const Tekst key(spelers.tabel.Cel(rij, Kolom::Key));
        const Tekst naam(spelers.tabel.Cel(rij, Kolom::Achternaam));
        EXPECT_TRUE(staat.emplace(key, naam).second) << key << " staat er twee keer";
        const auto gemeld = verslag.nieuw.find(key);
        EXPECT_TRUE(gemeld == verslag.nieuw.end() || gemeld->second == naam) << key;
    }
    const auto genoteerd = InGeschiedenis(schijf, mappen);
    for (const auto& [key, naam] : verslag.nieuw) {
        EXPECT_TRUE(staat.contains(key) || verslag.weg.contains(key)) << key << " is weg";
        EXPECT_TRUE(genoteerd.contains({verslag.computer.at(key), key})) << key;
    }
    EXPECT_FALSE(schijf.Bestanden(Samen(mappen.SPEMAP, "Reservekopie")));
}

#endif
