// Reading the federation's member files into import lines: a CSV beside reading and counting its
// separators, XML beside the parsing library alone on the same file, measured in the same run.
#include <memory>
#include <utility>

#include <pugixml.hpp>

#include "federation/ledenbestand.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/tekst/codepagina.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

void VoegElementToe(Tekst& uit, const char* naam, const std::string& tekst)
{
    uit.append("      <").append(naam);
    if (tekst.empty())
        uit += " />\r\n";
    else
        uit.append(">").append(tekst).append("</").append(naam).append(">\r\n");
}

/// The rows of a register as each program exports them.
class Exporten {
  public:
    explicit Exporten(int leden)
        : tabel_(SpelersUit(MaakRegister(leden, Verdeling::EenGroep)).tabel.value_or(Spelertabel()))
    {}

    Tekst Csv() const
    {
        Tekst uit;
        for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
            for (const Kolom kolom : {Kolom::NBBnr, Kolom::MV, Kolom::Voornaam, Kolom::Div1,
                                      Kolom::Tusv, Kolom::Achternaam, Kolom::Adres, Kolom::Postc,
                                      Kolom::Plaats, Kolom::Telef, Kolom::Email, Kolom::Land})
                uit.append(tabel_.Cel(rij, kolom)).append(";");
            uit.back() = '\r';
            uit += '\n';
        }
        return uit;
    }

    Tekst Xml4() const
    {
        return Xml([&](Tekst& uit, int rij) {
            const auto cel = [&](Kolom kolom) { return NaarUtf8(tabel_.Cel(rij, kolom)); };
            VoegElementToe(uit, "LeagueId", cel(Kolom::NBBnr));
            VoegElementToe(uit, "Geslacht", cel(Kolom::MV) == "M" ? "Male" : "Female");
            VoegElementToe(uit, "Voornaam", cel(Kolom::Voornaam));
            VoegElementToe(uit, "Voorletters", cel(Kolom::Voornaam).substr(0, 1));
            VoegElementToe(uit, "Tussenvoegsel", cel(Kolom::Tusv));
            VoegElementToe(uit, "Achternaam", cel(Kolom::Achternaam));
            VoegElementToe(uit, "Adres", cel(Kolom::Adres));
            VoegElementToe(uit, "Postcode", cel(Kolom::Postc));
            VoegElementToe(uit, "Plaats", cel(Kolom::Plaats));
            VoegElementToe(uit, "Telefoon1", cel(Kolom::Telef));
            VoegElementToe(uit, "Telefoon2", {});
            VoegElementToe(uit, "Email", cel(Kolom::Email));
        });
    }

    Tekst Xml3() const
    {
        return Xml([&](Tekst& uit, int rij) {
            const auto cel = [&](Kolom kolom) { return NaarUtf8(tabel_.Cel(rij, kolom)); };
            VoegElementToe(uit, "Achternaam", cel(Kolom::Achternaam));
            VoegElementToe(uit, "Adres", cel(Kolom::Adres));
            VoegElementToe(uit, "Land", {});
            VoegElementToe(uit, "Bondsnummer", cel(Kolom::NBBnr));
            VoegElementToe(uit, "Email", cel(Kolom::Email));
            VoegElementToe(uit, "Geboren", {});
            VoegElementToe(uit, "Geslacht", cel(Kolom::MV) == "M" ? "Man" : "Vrouw");
            VoegElementToe(uit, "Lidsoort", "Gewoon");
            VoegElementToe(uit, "Plaats", cel(Kolom::Plaats));
            VoegElementToe(uit, "Postcode", cel(Kolom::Postc));
            VoegElementToe(uit, "Telefoon", cel(Kolom::Telef));
            VoegElementToe(uit, "Mobiel", {});
            VoegElementToe(uit, "Tussenvoegsel", cel(Kolom::Tusv));
            VoegElementToe(uit, "Voorletters", cel(Kolom::Voornaam).substr(0, 1));
            VoegElementToe(uit, "Voornaam", cel(Kolom::Voornaam));
        });
    }

  private:
    template <class Vul> Tekst Xml(const Vul& vul) const
    {
        Tekst uit = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<ReportableMembersList>\r\n"
                    "  <Name>Club</Name>\r\n  <Members>\r\n";
        for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
            uit += "    <ReportableMember>\r\n";
            vul(uit, rij);
            uit += "    </ReportableMember>\r\n";
        }
        return uit + "  </Members>\r\n</ReportableMembersList>\r\n";
    }

    Spelertabel tabel_;
};

/// The exports of one size on the disk, in the page cache.
struct Proef {
    explicit Proef(int leden) : suite(MaakRegister(1, Verdeling::EenGroep))
    {
        const Exporten exporten(leden);
        Zet("Csv.csv", exporten.Csv());
        Zet("Nbb3.xml", exporten.Xml3());
        Zet("Nbb4.xml", exporten.Xml4());
    }

    void Zet(const char* naam, const Tekst& inhoud)
    {
        std::ofstream(suite.Spelerpad(naam), std::ios::binary) << inhoud;
    }

    Uitkomst<Ledenlezing> Lees(Ledenbron bron, Tekstblik naam)
    {
        const Pad map = suite.Instellingen().SPEMAP;
        const Ledenopdracht opdracht{
            .bron = bron, .map = map, .programmamap = map, .LedenDatabase = {}, .keuzes = {}};
        return LeesLedenbestand(schijf, opdracht, naam);
    }

    EchteSchijf schijf;
    Proefsuite suite;
};

Proefkast<Proef, int>& Proeven()
{
    static Proefkast<Proef, int> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting)
{
    return Proeven().Geef(Grootte(meting));
}

void Leden(benchmark::State& meting, Ledenbron bron, const char* naam)
{
    Proef& proef = ProefVan(meting);
    const auto aantal = static_cast<std::size_t>(meting.range(0));
    Meet(
        meting, [] { return Uitkomst<Ledenlezing>(); },
        [&](auto& lezing) {
            lezing = proef.Lees(bron, naam);
            Eis(meting, lezing && lezing->lstN1.size() == aantal && lezing->teKorteRegel == 0);
        });
}

void LedenCsv(benchmark::State& meting)
{
    Leden(meting, Ledenbron::Csv, "Csv.csv");
}
BENCHMARK(LedenCsv)->Apply(Groottes);

void LedenXml3(benchmark::State& meting)
{
    Leden(meting, Ledenbron::XmlNbb3, "Nbb3.xml");
}
BENCHMARK(LedenXml3)->Apply(Groottes);

void LedenXml4(benchmark::State& meting)
{
    Leden(meting, Ledenbron::XmlNbb4, "Nbb4.xml");
}
BENCHMARK(LedenXml4)->Apply(Groottes);

// ---------------------------------------------------------------- what they are compared with

void LedenCsvGrens(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting, [] { return std::unique_ptr<char[]>(); },
        [&](auto& buffer) {
            Eis(meting, LeesEnTel(proef.suite.Spelerpad("Csv.csv"), buffer) > meting.range(0));
        });
}
BENCHMARK(LedenCsvGrens)->Apply(Groottes);

void Ontleden(benchmark::State& meting, const char* naam)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting, [] { return std::make_unique<pugi::xml_document>(); },
        [&](auto& document) {
            const auto pad = proef.suite.Spelerpad(naam);
            Eis(meting, document->load_file(pad.c_str(), pugi::parse_default));
        });
}

void LedenXml3Grens(benchmark::State& meting)
{
    Ontleden(meting, "Nbb3.xml");
}
BENCHMARK(LedenXml3Grens)->Apply(Groottes);

void LedenXml4Grens(benchmark::State& meting)
{
    Ontleden(meting, "Nbb4.xml");
}
BENCHMARK(LedenXml4Grens)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
