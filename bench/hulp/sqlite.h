// What the operations over the whole register are compared with: SQLite answering the same question
// about the same rows, in a database in memory that was filled beforehand.
#pragma once

#include <sqlite3.h>

#include <initializer_list>
#include <memory>

#include "register/spelertabel.h"

namespace plexoran {

/// One table, `spelers`, with the columns of the player table, as texts: `Nr`, `Sleutel`, `Groep`,
/// `Voornaam`, ..., `NBBnr`. A statement that fails ends the program: there is nothing to measure.
class Sqlite {
  public:
    explicit Sqlite(const Spelertabel& tabel);

    /// Runs the statements and reads every column of every row. The answer is the number of rows.
    std::size_t Vraag(Tekstblik sql);
    /// The same for one prepared statement and its texts.
    std::size_t Stap(sqlite3_stmt* opdracht, std::initializer_list<Tekstblik> teksten);

    struct Einde {
        void operator()(sqlite3_stmt* opdracht) const { sqlite3_finalize(opdracht); }
        void operator()(sqlite3* bank) const { sqlite3_close(bank); }
    };
    using Opdracht = std::unique_ptr<sqlite3_stmt, Einde>;
    [[nodiscard]] Opdracht Maak(Tekstblik sql);

    struct Terugnemer {
        void operator()(Sqlite* bank) const { bank->Vraag("ROLLBACK"); }
    };
    /// What is changed from now on is taken back when the answer goes.
    [[nodiscard]] std::unique_ptr<Sqlite, Terugnemer> VoorEven();

  private:
    std::unique_ptr<sqlite3, Einde> bank_;
};

} // namespace plexoran
