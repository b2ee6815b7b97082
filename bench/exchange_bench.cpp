// Exporting everybody, all columns: a sheet beside the library writing the same cells, a CSV beside
// writing the same bytes, address cards beside the same.
#include <numeric>

#include <xlsxwriter.h>

#include "exchange/uitvoer.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/systeempad.h"
#include "platform/tekst/codepagina.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

struct Proef {
    explicit Proef(int spelers) : suite(MaakRegister(spelers, Verdeling::AlleGroepen))
    {
        Register register_;
        (void)LeesSpelers(schijf, suite.Instellingen(), register_);
        tabel = std::move(register_.tabel);
        uitvoer.rijen.resize(static_cast<std::size_t>(tabel.Rijen()));
        std::iota(uitvoer.rijen.begin(), uitvoer.rijen.end(), 1);
        for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
            uitvoer.kolommen.push_back(static_cast<Kolom>(kolom));
        for (const int rij : uitvoer.rijen) {
            for (const Kolom kolom : uitvoer.kolommen)
                cellen.push_back(NaarUtf8(tabel.Cel(rij, kolom)));
        }
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Spelertabel tabel;
    Groepen groepen;
    Uitvoer uitvoer{.tabel = tabel, .groepen = groepen, .rijen = {}, .kolommen = {}};
    std::vector<std::string> cellen; ///< row by row
    Pad doel = Samen(suite.Instellingen().SPEMAP, "uitvoer");
};

Proefkast<Proef, int>& Proeven()
{
    static Proefkast<Proef, int> proeven;
    return proeven;
}

template <class Maak> void Exporteer(benchmark::State& meting, const Maak& maak)
{
    Proef& proef = Proeven().Geef(Grootte(meting));
    Meet(meting, [&] {
        const Uitvoerbytes bytes = maak(proef.uitvoer);
        Eis(meting, bytes && *bytes && SchrijfHeel(proef.schijf, proef.doel, **bytes).has_value());
    });
}

template <class Maak> void SchrijfBytes(benchmark::State& meting, const Maak& maak)
{
    Proef& proef = Proeven().Geef(Grootte(meting));
    const Tekst bytes = maak(proef.uitvoer).value().value();
    Meet(meting, [&] { Eis(meting, SchrijfHeel(proef.schijf, proef.doel, bytes).has_value()); });
}

Uitvoerbytes Csv(const Uitvoer& uitvoer)
{
    return MaakCsv(uitvoer, Tekenset::Utf8);
}

void CsvExporteren(benchmark::State& meting)
{
    Exporteer(meting, Csv);
}
BENCHMARK(CsvExporteren)->Apply(Groottes);

void CsvExporterenGrens(benchmark::State& meting)
{
    SchrijfBytes(meting, Csv);
}
BENCHMARK(CsvExporterenGrens)->Apply(Groottes);

void XlsxExporteren(benchmark::State& meting)
{
    Exporteer(meting, [](const Uitvoer& uitvoer) { return MaakXlsx(uitvoer); });
}
BENCHMARK(XlsxExporteren)->Apply(Groottes);

/// From texts that are UTF-8 already, without formats, widths or a header.
void XlsxExporterenGrens(benchmark::State& meting)
{
    Proef& proef = Proeven().Geef(Grootte(meting));
    const std::string doel = Systeempad(proef.doel).string();
    Meet(meting, [&] {
        lxw_workbook_options opties{};
        opties.constant_memory = LXW_TRUE;
        lxw_workbook* boek = workbook_new_opt(doel.c_str(), &opties);
        lxw_worksheet* blad = workbook_add_worksheet(boek, nullptr);
        for (std::size_t i = 0; i < proef.cellen.size(); ++i)
            worksheet_write_string(blad, static_cast<lxw_row_t>(i / AantalKolommen),
                                   static_cast<lxw_col_t>(i % AantalKolommen),
                                   proef.cellen[i].c_str(), nullptr);
        Eis(meting, workbook_close(boek) == LXW_NO_ERROR);
    });
}
BENCHMARK(XlsxExporterenGrens)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
