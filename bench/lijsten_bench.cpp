// The lists and the changes of many players at once, each beside SQLite doing the same and beside
// one load of the same register, measured in the same run.
#include <numeric>
#include <optional>
#include <utility>

#include "dialogs/groepswerk.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "hulp/sqlite.h"
#include "mainwindow/lijsten.h"
#include "mainwindow/weergave.h"
#include "platform/schijf/echteSchijf.h"
#include "printing/printtabel.h"
#include "register/overzicht.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr Tekstblik Subgroep = "DINSDAG";
constexpr int ElkeDubbele = 20; ///< of so many players one bears the name of an earlier one

/// Letters that tell one row from every other.
Tekst Toevoegsel(int rij)
{
    Tekst uit = "-";
    for (int rest = rij; rest > 0; rest /= 26)
        uit += static_cast<char>('a' + rest % 26);
    return uit;
}

/// The made-up names come from a short list, which gives a large register hundreds of namesakes
/// each. Here a name is borne once, by some a few times, and every second player is of one
/// subgroup.
Tekst Proeftekst(int spelers, Verdeling verdeling)
{
    Register uit;
    uit.HKEY = Sleutelbasis + spelers;
    uit.tabel = SpelersUit(MaakRegister(spelers, verdeling)).tabel.value_or(Spelertabel());
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij) {
        Rijvelden velden = uit.tabel.Velden(rij);
        velden[Index(Kolom::Achternaam)] += Toevoegsel(rij);
        if (rij % ElkeDubbele == 0) {
            for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam})
                velden[Index(kolom)] = uit.tabel.Cel(rij / 2, kolom);
        }
        if (rij % 2 == 0)
            velden[Index(Kolom::NBBgr)] = Subgroep;
        uit.tabel.ZetRij(rij, velden);
    }
    return SpelersTekst(uit);
}

/// A register of one size on the disk, in the page cache, and the table that it gives.
struct Proef {
    Proef(int spelers, Verdeling verdeling) : suite(Proeftekst(spelers, verdeling))
    {
        Lees(gelezen);
        for (int rij = 1; rij <= gelezen.tabel.Rijen(); ++rij)
            keys.emplace_back(gelezen.tabel.Cel(rij, Kolom::Key));
    }

    void Lees(Register& naar) { LeesSpelers(schijf, suite.Instellingen(), naar); }
    Register Opnieuw()
    {
        Register spelers;
        Lees(spelers);
        return spelers;
    }
    Sqlite& Bank()
    {
        if (!bank)
            bank.emplace(gelezen.tabel);
        return *bank;
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Register gelezen;
    std::vector<Tekst> keys;
    std::optional<Sqlite> bank;
};

Proefkast<Proef, int, Verdeling>& Proeven()
{
    static Proefkast<Proef, int, Verdeling> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting, Verdeling verdeling)
{
    return Proeven().Geef(Grootte(meting), verdeling);
}

// ---------------------------------------------------------------- the sorted lists

void Sorteren(benchmark::State& meting, Sorteersoort soort)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::AlleGroepen).gelezen.tabel;
    Meet(
        meting, [] { return tl::expected<Sorteerlijst, GeenGetal>(); },
        [&](auto& lijst) {
            lijst = VulSorteerlijst(tabel, soort, std::nullopt);
            Eis(meting, lijst && lijst->size() == static_cast<std::size_t>(Grootte(meting)));
        });
}

void SorterenKey(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::Key);
}
BENCHMARK(SorterenKey)->Apply(Groottes);

void SorterenNBBnr(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::NBBnr);
}
BENCHMARK(SorterenNBBnr)->Apply(Groottes);

void SorterenNBBgroep(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::NBBgroep);
}
BENCHMARK(SorterenNBBgroep)->Apply(Groottes);

/// A question that SQLite answers with as many rows as `moet` says; what it changes is taken back.
void Sql(benchmark::State& meting, Verdeling verdeling, Tekstblik sql, std::size_t moet)
{
    Sqlite& bank = ProefVan(meting, verdeling).Bank();
    Meet(
        meting, [&] { return bank.VoorEven(); },
        [&](auto&) { Eis(meting, bank.Vraag(sql) >= moet); });
}

void SorterenKeySql(benchmark::State& meting)
{
    Sql(meting, Verdeling::AlleGroepen,
        "SELECT printf('%06d', Sleutel) || ',' || Sleutel || ',' || Voornaam || ',' || Tusv || ',' "
        "|| Achternaam || ',' || NBBgr || ',' || NBBnr FROM spelers ORDER BY 1",
        static_cast<std::size_t>(Grootte(meting)));
}
BENCHMARK(SorterenKeySql)->Apply(Groottes);

void SorterenNBBnrSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::AlleGroepen,
        "SELECT printf('%08d', NBBnr) || ',' || Sleutel || ',' || Voornaam || ',' || Tusv || ',' "
        "|| Achternaam || ',' || NBBgr || ',' || NBBnr FROM spelers WHERE trim(NBBnr) <> '' "
        "ORDER BY 1",
        static_cast<std::size_t>(Grootte(meting)));
}
BENCHMARK(SorterenNBBnrSql)->Apply(Groottes);

void SorterenNBBgroepSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::AlleGroepen,
        "SELECT printf('%-12.12s%-30.30s', Groep || NBBgr, Achternaam) || Sleutel || ',' || "
        "Voornaam || ',' || Tusv || ',' || Achternaam || ',' || NBBgr || ',' || NBBnr "
        "FROM spelers ORDER BY 1 COLLATE NOCASE",
        static_cast<std::size_t>(Grootte(meting)));
}
BENCHMARK(SorterenNBBgroepSql)->Apply(Groottes);

// ---------------------------------------------------------------- the grid by a column

std::vector<int> AlleRijen(const Spelertabel& tabel)
{
    std::vector<int> rijen(static_cast<std::size_t>(tabel.Rijen()));
    std::iota(rijen.begin(), rijen.end(), 1);
    return rijen;
}

void KolomSorteren(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::EenGroep).gelezen.tabel;
    Meet(
        meting, [&] { return AlleRijen(tabel); },
        [&](Weergave& rijen) {
            rijen = Gesorteerd(tabel, std::move(rijen), Kolom::Achternaam);
            Eis(meting, rijen.size() == static_cast<std::size_t>(Grootte(meting)));
        });
}
BENCHMARK(KolomSorteren)->Apply(Groottes);

void KolomSorterenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep,
        "SELECT rowid FROM spelers WHERE Groep = 'Gr01-' ORDER BY Achternaam COLLATE NOCASE, rowid",
        static_cast<std::size_t>(Grootte(meting)));
}
BENCHMARK(KolomSorterenSql)->Apply(Groottes);

/// In half the room that all of it would take.
void RuimteVerdelen(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::EenGroep).gelezen.tabel;
    constexpr double ruimte = 250;
    Tekstmeter meter;
    meter.opschuiving.fill(1'700);
    const auto rijen = AlleRijen(tabel);
    Meet(meting, [&] {
        const Kolomkeuzes keuzes = VerdeelRuimte(ruimte, tabel, rijen, Kolomnamen, {}, meter);
        Eis(meting, keuzes[Index(Kolom::Email)].breedte > rooster::SmalsteKeuze);
    });
}
BENCHMARK(RuimteVerdelen)->Apply(Groottes);

// ---------------------------------------------------------------- the club at a glance

void Overzicht(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::AlleGroepen).gelezen.tabel;
    const auto spelers = static_cast<std::size_t>(Grootte(meting));
    Meet(
        meting, [] { return std::vector<Overzichtregel>(); },
        [&](auto& regels) {
            regels = MaakOverzicht(tabel, Groepen());
            Eis(meting, regels.front().rijen.size() == spelers && regels.size() > AantalGroepen);
        });
}
BENCHMARK(Overzicht)->Apply(Groottes);

/// The numbers alone, without who they are.
void OverzichtSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::AlleGroepen,
        "SELECT Groep, trim(NBBgr), count(*) FROM spelers GROUP BY 1, 2;"
        "SELECT MV, count(*) FROM spelers GROUP BY 1;"
        "SELECT count(*), sum(trim(Email) <> ''), sum(trim(Telef) <> ''), sum(trim(NBBnr) <> '') "
        "FROM spelers",
        AantalGroepen);
}
BENCHMARK(OverzichtSql)->Apply(Groottes);

// ---------------------------------------------------------------- many players at once

/// What the operations below are compared with: the same register, everybody in one group.
void Laden(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [] { return Register(); },
        [&](Register& spelers) {
            proef.Lees(spelers);
            Eis(meting, spelers.tabel.Rijen() == Grootte(meting));
        });
}
BENCHMARK(Laden)->Apply(Groottes);

void DubbeleNamen(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::EenGroep).gelezen.tabel;
    const auto minstens = static_cast<std::size_t>(Grootte(meting) / ElkeDubbele);
    Meet(
        meting, [] { return Dubbelen(); },
        [&](Dubbelen& dubbelen) {
            dubbelen = ZoekDubbeleNamen(tabel, "Gr01-");
            Eis(meting, !dubbelen.meer && dubbelen.paren.size() >= minstens &&
                            dubbelen.paren.size() <= 2 * minstens);
        });
}
BENCHMARK(DubbeleNamen)->Apply(Groottes);

void AllesVerplaatsen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            VerplaatsSpelers(spelers.tabel, proef.keys, "Gr02-");
            Eis(meting, spelers.tabel.Cel(Grootte(meting), Kolom::Groep) == "Gr02-");
        });
}
BENCHMARK(AllesVerplaatsen)->Apply(Groottes);

void AllesKopieren(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    const Kopieeropdracht opdracht{.keys = proef.keys, .naarGroep = "Gr02-"};
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            Eis(meting,
                KopieerSpelers(spelers, opdracht) && spelers.tabel.Rijen() == 2 * Grootte(meting));
        });
}
BENCHMARK(AllesKopieren)->Apply(Groottes);

void SubgroepVerwijderen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            spelers.tabel.VerwijderRijen(RijenVanSubgroep(spelers.tabel, "Gr01-", Subgroep));
            Eis(meting, spelers.tabel.Rijen() == Grootte(meting) / 2);
        });
}
BENCHMARK(SubgroepVerwijderen)->Apply(Groottes);

/// Without the layout, which is the windows' business.
void Printtabellen(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::EenGroep).gelezen.tabel;
    const Printopdracht opdracht{.groepscode = "Gr01-",
                                 .subgroepen = Printsubgroepen(tabel, "Gr01-"),
                                 .kolommen = {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam,
                                              Kolom::Telef, Kolom::Email, Kolom::Adres,
                                              Kolom::Postc, Kolom::Plaats}};
    Meet(meting, [&] {
        const Printtabel print = MaakPrinttabel(tabel, opdracht);
        Eis(meting, print.Rijen() == Grootte(meting));
    });
}
BENCHMARK(Printtabellen)->Apply(Groottes);

void DubbeleNamenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep,
        "WITH n AS MATERIALIZED (SELECT rowid AS rij, Groep AS groep, Voornaam || Tusv || "
        "Achternaam AS naam FROM spelers) SELECT een.rij, ander.rij FROM n AS een JOIN n AS ander "
        "ON ander.naam = een.naam AND ander.rij > een.rij WHERE een.groep = 'Gr01-' "
        "ORDER BY 1, 2",
        static_cast<std::size_t>(Grootte(meting) / ElkeDubbele));
}
BENCHMARK(DubbeleNamenSql)->Apply(Groottes);

void AllesVerplaatsenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep, "UPDATE spelers SET Groep = 'Gr02-'", 0);
}
BENCHMARK(AllesVerplaatsenSql)->Apply(Groottes);

void AllesKopierenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep,
        "INSERT INTO spelers SELECT Nr, CAST(Sleutel + 100000 AS TEXT), 'Gr02-', Voornaam, Tusv, "
        "Achternaam, Telef, Email, Adres, Postc, Plaats, Land, MV, Div1, Div2, Status, '', '' "
        "FROM spelers",
        0);
}
BENCHMARK(AllesKopierenSql)->Apply(Groottes);

void SubgroepVerwijderenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep,
        "DELETE FROM spelers WHERE Groep = 'Gr01-' AND NBBgr = 'DINSDAG'", 0);
}
BENCHMARK(SubgroepVerwijderenSql)->Apply(Groottes);

void PrinttabellenSql(benchmark::State& meting)
{
    Sql(meting, Verdeling::EenGroep,
        "SELECT Nr, Voornaam, Tusv, Achternaam, Telef, Email, Adres, Postc, Plaats FROM spelers "
        "WHERE Groep = 'Gr01-' ORDER BY Achternaam COLLATE NOCASE, rowid",
        static_cast<std::size_t>(Grootte(meting)));
}
BENCHMARK(PrinttabellenSql)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
