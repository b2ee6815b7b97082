// Showing a group that is the whole register, and painting a screenful of it, in the real main
// window.
#include <QImage>
#include <QScrollBar>

#include "hulp/vensterproef.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int Basis = 100; ///< players of the register with which painting is compared

/// Everybody in the shown group.
struct Proef : Vensterproef<Verdeling::EenGroep> {
    using Vensterproef::Vensterproef;

    QWidget& P1() const { return *venster.findChild<QWidget*>(u"P1"_s); }
    QScrollBar& VScroll1() const { return *venster.findChild<QScrollBar*>(u"VScroll1"_s); }
};

using Proeven = Vensterproeven<Proef>;

// ---------------------------------------------------------------- showing

/// Loading in this program, so that showing is compared within one run.
void Laden(benchmark::State& meting)
{
    Proef& proef = Proeven::Van(meting);
    Meet(
        meting, [] { return Register(); },
        [&](Register& spelers) { LeesSpelers(proef.schijf, proef.suite.Instellingen(), spelers); });
}
BENCHMARK(Laden)->Apply(Groottes);

void Tonen(benchmark::State& meting)
{
    Proef& proef = Proeven::Van(meting);
    Meet(
        meting,
        [] {
            QApplication::processEvents();
            return 0;
        },
        [&](int) { proef.venster.ToonGroep(); });
}
BENCHMARK(Tonen)->Apply(Groottes);

/// Until the user sees it: the layout and the paint that follow are part of it.
void TonenTotBeeld(benchmark::State& meting)
{
    Proef& proef = Proeven::Van(meting);
    Meet(meting, [&] {
        proef.venster.ToonGroep();
        QApplication::processEvents();
    });
}
BENCHMARK(TonenTotBeeld)->Apply(Groottes);

/// The lower limit: every byte of the shown rows looked at once, in memory.
void TonenGrens(benchmark::State& meting)
{
    const Tekst tekst = MaakRegister(static_cast<int>(meting.range(0)), Verdeling::EenGroep);
    Meet(meting, [&] { benchmark::DoNotOptimize(TelScheidingen(tekst)); });
}
BENCHMARK(TonenGrens)->Apply(Groottes);

// ---------------------------------------------------------------- painting

void MeetTekenen(benchmark::State& meting)
{
    QWidget& vlak = Proeven::Van(meting).P1();
    QImage beeld(vlak.size(), QImage::Format_ARGB32_Premultiplied);
    Meet(meting, [&] { vlak.render(&beeld); });
}

/// The first rows are the same players whatever the size.
void Tekenen(benchmark::State& meting)
{
    Proeven::Van(meting).VScroll1().setValue(0);
    MeetTekenen(meting);
}
BENCHMARK(Tekenen)->Arg(Basis)->Apply(Groottes);

/// Scrolled to the last rows.
void TekenenOnderaan(benchmark::State& meting)
{
    QScrollBar& balk = Proeven::Van(meting).VScroll1();
    balk.setValue(balk.maximum());
    MeetTekenen(meting);
}
BENCHMARK(TekenenOnderaan)->Arg(Basis)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::Proeven::Voer(argc, argv);
}
