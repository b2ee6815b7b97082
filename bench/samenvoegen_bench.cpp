// Importing as many members as the register has players, half of them known: reading the CSV and
// merging, beside the preview of that and beside SQLite doing the same without the reading,
// measured in the same run. Once with usual numbers, once with numbers that can be found across two
// others.
#include <utility>

#include "federation/ledenbestand.h"
#include "federation/voorbeeld.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "hulp/sqlite.h"
#include "platform/schijf/echteSchijf.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr Tekstblik Importgroep = "Gr01-"; // where the made-up players are

enum class Nummers { Gewoon, Vreemd };

/// Of eight digits, or with a "-" in it, which can be found across two numbers.
Tekst Nummer(int lid, Nummers nummers)
{
    const Tekst cijfers = std::to_string(10'000'000 + lid);
    return nummers == Nummers::Gewoon ? cijfers : cijfers.substr(0, 3) + "-" + cijfers.substr(3);
}

/// A register and the export of as many members, of whom the first half are its last players.
struct Proef {
    Proef(int spelers, Nummers nummers) : suite(Registertekst(spelers, nummers))
    {
        LeesSpelers(schijf, suite.Instellingen(), gelezen);
        Tekst csv;
        for (int lid = spelers / 2 + 1; lid <= spelers / 2 + spelers; ++lid) {
            const int rij = (lid - 1) % spelers + 1;
            csv += Nummer(lid, nummers);
            for (const Kolom kolom : {Kolom::MV, Kolom::Voornaam, Kolom::Div1, Kolom::Tusv,
                                      Kolom::Achternaam, Kolom::Adres, Kolom::Postc, Kolom::Plaats,
                                      Kolom::Telef, Kolom::Email, Kolom::Land})
                csv.append(";").append(gelezen.tabel.Cel(rij, kolom));
            csv += "\r\n";
        }
        std::ofstream(suite.Spelerpad("Club.csv"), std::ios::binary) << csv;
    }

    static Tekst Registertekst(int spelers, Nummers nummers)
    {
        return MaakRegister(spelers, Verdeling::EenGroep, [nummers](Spelertabel& tabel, int rij) {
            tabel.ZetCel(rij, Kolom::NBBnr, Nummer(rij, nummers));
        });
    }

    Register Laad()
    {
        Register spelers;
        LeesSpelers(schijf, suite.Instellingen(), spelers);
        return spelers;
    }
    Uitkomst<Ledenlezing> LeesCsv()
    {
        const Pad map = suite.Instellingen().SPEMAP;
        return LeesLedenbestand(schijf,
                                {.bron = Ledenbron::Csv,
                                 .map = map,
                                 .programmamap = map,
                                 .LedenDatabase = {},
                                 .keuzes = {}},
                                "Club.csv");
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Register gelezen;
};

Proefkast<Proef, int, Nummers>& Proeven()
{
    static Proefkast<Proef, int, Nummers> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting, Nummers nummers)
{
    return Proeven().Geef(Grootte(meting), nummers);
}

void Importeer(benchmark::State& meting, Nummers nummers)
{
    Proef& proef = ProefVan(meting, nummers);
    const auto helft = static_cast<std::size_t>(meting.range(0) / 2);
    Meet(
        meting, [&] { return proef.Laad(); },
        [&](Register& spelers) {
            auto lezing = proef.LeesCsv();
            const auto uitkomst =
                VoegLedenSamen(spelers, {.importgroep = Tekst(Importgroep),
                                         .subgroep = "Club",
                                         .lstN1 = std::move(lezing.value().lstN1)});
            Eis(meting,
                uitkomst && uitkomst->AantalVerververst == helft && uitkomst->AantalNieuw == helft);
        });
}

void Importeren(benchmark::State& meting)
{
    Importeer(meting, Nummers::Gewoon);
}
BENCHMARK(Importeren)->Apply(Groottes);

void ImporterenVreemd(benchmark::State& meting)
{
    Importeer(meting, Nummers::Vreemd);
}
BENCHMARK(ImporterenVreemd)->Apply(Groottes);

/// The same up to where the import begins to change things, and what the preview tells more.
void ImportBekijken(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Nummers::Gewoon);
    const auto helft = static_cast<std::size_t>(meting.range(0) / 2);
    Meet(
        meting, [&] { return proef.Laad(); },
        [&](const Register& spelers) {
            Ledenlezing lezing = std::move(proef.LeesCsv().value());
            const auto voorbeeld = Voorbeeld::Maak(spelers.tabel,
                                                   {.importgroep = Tekst(Importgroep),
                                                    .subgroep = "Club",
                                                    .lstN1 = std::move(lezing.lstN1)},
                                                   lezing);
            Eis(meting, voorbeeld && voorbeeld->Aantal(Voorbeeldsoort::Nieuw) == helft &&
                            voorbeeld->Aantal(Voorbeeldsoort::Gewijzigd) == helft);
        });
}
BENCHMARK(ImportBekijken)->Apply(Groottes);

/// SQLite looks up, updates or inserts the same members, with an index on the number; the file is
/// read and split beforehand.
void ImporterenSql(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Nummers::Gewoon);
    const Ledenlezing lezing = proef.LeesCsv().value();
    std::vector<Importvelden> leden;
    for (const Tekstblik regel : lezing.lstN1)
        leden.push_back(SplitsImportregel(regel));
    Sqlite bank(proef.gelezen.tabel);
    bank.Vraag("CREATE INDEX opNummer ON spelers (NBBnr)");
    const auto zoek = bank.Maak("SELECT rowid FROM spelers WHERE NBBnr = ?11");
    const auto ververs =
        bank.Maak("UPDATE spelers SET Voornaam = ?1, Tusv = ?2, Achternaam = ?3, Adres = ?4, "
                  "Postc = ?5, Plaats = ?6, Telef = ?7, Email = ?8, Land = ?9, MV = ?10, "
                  "NBBgr = 'CLUB' WHERE NBBnr = ?11");
    const auto voegToe = bank.Maak(
        "INSERT INTO spelers (Nr, Sleutel, Groep, Voornaam, Tusv, Achternaam, Adres, Postc, "
        "Plaats, Telef, Email, Land, MV, NBBgr, NBBnr) VALUES ('100001', '200001', 'Gr01-', ?1, "
        "?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, 'CLUB', ?11)");
    const auto stap = [&](const Sqlite::Opdracht& opdracht, const Importvelden& lid) {
        return bank.Stap(opdracht.get(), {lid[0], lid[1], lid[2], lid[3], lid[4], lid[5], lid[6],
                                          lid[7], lid[8], lid[9], lid[10]});
    };
    Meet(
        meting, [&] { return bank.VoorEven(); },
        [&](auto&) {
            std::size_t bekend = 0;
            for (const Importvelden& lid : leden) {
                const bool is = stap(zoek, lid) != 0;
                stap(is ? ververs : voegToe, lid);
                bekend += is ? 1 : 0;
            }
            Eis(meting, bekend == leden.size() / 2);
        });
}
BENCHMARK(ImporterenSql)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
