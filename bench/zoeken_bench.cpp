// Finding players by what is typed: the rule beside SQLite answering the same question, and in the
// real main window from a key to the painted answer.
#include <QKeyEvent>
#include <QLineEdit>

#include <array>
#include <optional>

#include "hulp/sqlite.h"
#include "hulp/vensterproef.h"
#include "mainwindow/zoeken.h"
#include "platform/scherm/regellijst.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

/// Everybody spread over all groups.
struct Proef : Vensterproef<Verdeling::AlleGroepen> {
    using Vensterproef::Vensterproef;

    Sqlite& Bank()
    {
        if (!bank)
            bank.emplace(administratie.spelers.tabel);
        return *bank;
    }

    std::optional<Sqlite> bank;
};

using Proeven = Vensterproeven<Proef>;

void Zoek(benchmark::State& meting, Tekstblik getypt)
{
    const Spelertabel& tabel = Proeven::Van(meting).administratie.spelers.tabel;
    Meet(
        meting, [] { return std::vector<int>(); },
        [&](auto& rijen) { rijen = ZoekSpelers(tabel, ZoekwoordenUit(getypt)); });
}

/// The first key: nearly everybody answers.
void ZoekenLetter(benchmark::State& meting)
{
    Zoek(meting, "e");
}
BENCHMARK(ZoekenLetter)->Apply(Groottes);

/// Two words that are looked for in everything.
void ZoekenWoorden(benchmark::State& meting)
{
    Zoek(meting, "zqx 0612");
}
BENCHMARK(ZoekenWoorden)->Apply(Groottes);

/// From the key to the painted list, in the real window; nothing was typed before.
void ZoekenTotBeeld(benchmark::State& meting)
{
    const QWidget& venster = Proeven::Van(meting).venster;
    auto* vak = venster.findChild<QLineEdit*>(u"txtZoek"_s);
    auto* lijst = venster.findChild<Regellijst*>(u"lstZoek"_s);
    Meet(
        meting,
        [&] {
            vak->clear();
            QApplication::processEvents();
            return 0;
        },
        [&](int) {
            QKeyEvent toets(QEvent::KeyPress, Qt::Key_E, {}, u"e"_s);
            QApplication::sendEvent(vak, &toets);
            QApplication::processEvents();
            lijst->viewport()->repaint();
            Eis(meting, 10 * lijst->Aantal() > 9 * Grootte(meting)); // some have no e at all
        });
}
BENCHMARK(ZoekenTotBeeld)->Apply(Groottes);

/// Without the accents and the digits, which SQLite by itself does not know.
void Sql(benchmark::State& meting, std::initializer_list<Tekstblik> woorden)
{
    constexpr std::array kolommen{"Sleutel", "Voornaam", "Tusv",   "Achternaam", "Telef", "Email",
                                  "Adres",   "Postc",    "Plaats", "Status",     "NBBgr", "NBBnr"};
    Tekst sql = "SELECT rowid FROM spelers WHERE 1";
    Tekst op = "0";
    for (const Tekstblik woord : woorden) {
        sql += " AND (0";
        for (const Tekst kolom : kolommen)
            sql += " OR " + kolom + " LIKE '%" + Tekst(woord) + "%'";
        sql += ")";
        for (const Tekst kolom : {"Achternaam", "Voornaam"})
            op += " OR " + kolom + " LIKE '" + Tekst(woord) + "%'";
    }
    Sqlite& bank = Proeven::Van(meting).Bank();
    sql += " ORDER BY NOT (" + op + "), rowid";
    Meet(meting, [&] { benchmark::DoNotOptimize(bank.Vraag(sql)); });
}

void ZoekenLetterSql(benchmark::State& meting)
{
    Sql(meting, {"e"});
}
BENCHMARK(ZoekenLetterSql)->Apply(Groottes);

void ZoekenWoordenSql(benchmark::State& meting)
{
    Sql(meting, {"zqx", "0612"});
}
BENCHMARK(ZoekenWoordenSql)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::Proeven::Voer(argc, argv);
}
