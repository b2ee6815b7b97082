#include "hulp/sqlite.h"

#include <cstdio>
#include <cstdlib>

namespace plexoran {
namespace {

void Eis(bool goed, sqlite3* bank)
{
    if (goed)
        return;
    std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(bank));
    std::exit(1);
}

/// Reads the rows of a statement that stands ready.
std::size_t LeesRijen(sqlite3* bank, sqlite3_stmt* opdracht)
{
    std::size_t rijen = 0;
    std::size_t bytes = 0;
    int stand = SQLITE_OK;
    while ((stand = sqlite3_step(opdracht)) == SQLITE_ROW) {
        ++rijen;
        for (int kolom = 0; kolom < sqlite3_column_count(opdracht); ++kolom) {
            if (sqlite3_column_text(opdracht, kolom) != nullptr)
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(opdracht, kolom));
        }
    }
    Eis(stand == SQLITE_DONE, bank);
    sqlite3_reset(opdracht);
    return bytes == 0 ? 0 : rijen;
}

void Bind(sqlite3_stmt* opdracht, int plaats, Tekstblik tekst)
{
    sqlite3_bind_text(opdracht, plaats, tekst.data(), static_cast<int>(tekst.size()),
                      SQLITE_TRANSIENT);
}

} // namespace

Sqlite::Sqlite(const Spelertabel& tabel)
{
    sqlite3* bank = nullptr;
    const int stand = sqlite3_open(":memory:", &bank);
    bank_.reset(bank);
    Eis(stand == SQLITE_OK, bank);
    Vraag("CREATE TABLE spelers (Nr TEXT, Sleutel TEXT, Groep TEXT, Voornaam TEXT, Tusv TEXT, "
          "Achternaam TEXT, Telef TEXT, Email TEXT, Adres TEXT, Postc TEXT, Plaats TEXT, "
          "Land TEXT, MV TEXT, Div1 TEXT, Div2 TEXT, Status TEXT, NBBgr TEXT, NBBnr TEXT)");
    Vraag("BEGIN");
    const Opdracht voegToe =
        Maak("INSERT INTO spelers VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
            Bind(voegToe.get(), kolom, tabel.Cel(rij, static_cast<Kolom>(kolom)));
        LeesRijen(bank_.get(), voegToe.get());
    }
    Vraag("COMMIT");
}

Sqlite::Opdracht Sqlite::Maak(Tekstblik sql)
{
    sqlite3_stmt* opdracht = nullptr;
    Eis(sqlite3_prepare_v2(bank_.get(), sql.data(), static_cast<int>(sql.size()), &opdracht,
                           nullptr) == SQLITE_OK,
        bank_.get());
    return Opdracht(opdracht);
}

std::unique_ptr<Sqlite, Sqlite::Terugnemer> Sqlite::VoorEven()
{
    Vraag("BEGIN");
    return std::unique_ptr<Sqlite, Terugnemer>(this);
}

std::size_t Sqlite::Vraag(Tekstblik sql)
{
    return LeesRijen(bank_.get(), Maak(sql).get());
}

std::size_t Sqlite::Stap(sqlite3_stmt* opdracht, std::initializer_list<Tekstblik> teksten)
{
    int plaats = 0;
    for (const Tekstblik tekst : teksten)
        Bind(opdracht, ++plaats, tekst);
    return LeesRijen(bank_.get(), opdracht);
}

} // namespace plexoran
