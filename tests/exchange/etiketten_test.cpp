#include "exchange/etiketten.h"

#include <chrono>

#include <gtest/gtest.h>

#include "exchange/etiketproef.h"

using namespace plexoran;

namespace {

Etiketreeks Maak(const std::vector<Bewoner>& bewoners, const Etiketopdracht& opdracht = {})
{
    const Spelertabel tabel = MaakBewoners(bewoners);
    return MaakEtiketten(tabel, AlleRijnummers(tabel), opdracht);
}

/// The first lines.
std::vector<Tekst> Namen(const std::vector<Bewoner>& bewoners, const Etiketopdracht& opdracht = {})
{
    std::vector<Tekst> uit;
    for (const Etiket& etiket : Maak(bewoners, opdracht).etiketten)
        uit.push_back(etiket.front());
    return uit;
}

Bewoner Op(const Tekst& adres, const Tekst& postc, const Tekst& voornaam, const Tekst& tusv,
           const Tekst& achternaam)
{
    return {.voornaam = voornaam,
            .tusv = tusv,
            .achternaam = achternaam,
            .adres = adres,
            .postc = postc,
            .plaats = "Ede"};
}

const std::vector<Bewoner> stel{Op("Lindelaan 3", "0411 AB", "Jan", "", "Bos"),
                                Op("Lindelaan 3", "0411 AB", "Anna", "de", "Vries")};

using Regels = std::vector<Tekst>;

} // namespace

TEST(Etiketten, DeRegelsZoalsDeClubZeSchrijft)
{
    EXPECT_EQ((std::vector<Etiket>{{"Jan Bos", "Lindelaan 3", "0411 AB  Wielerdam"},
                                   {"Eva de Wit", "Rue 4", "B-2000  Antwerpen", "Belgi\xEB"}}),
              Maak({{"Jan", "", "Bos", "Lindelaan 3", "0411 AB", "Wielerdam", ""},
                    {"Eva", "de", "Wit", " Rue 4 ", "B-2000", "Antwerpen ", "Belgi\xEB"}})
                  .etiketten);
}

TEST(Etiketten, EenPostcodeOfEenPlaatsIsGenoeg)
{
    EXPECT_EQ((std::vector<Etiket>{{"An Aap", "Brink 1", "Ede"}, {"Bo Bok", "Brink 2", "0411 AB"}}),
              Maak({{"An", "", "Aap", "Brink 1", "", "Ede"},
                    {"Bo", "", "Bok", "Brink 2", "0411 AB", " "}})
                  .etiketten);
}

TEST(Etiketten, WieGeenAdresHeeftKomtErNietOpEnWordtGenoemd)
{
    const auto reeks = Maak({{"An", "", "Aap", "", "0411 AB", "Ede"},
                             {"Bo", "", "Bok", "Brink 2", "0411 AB", "Ede"},
                             {"Co", "", "Cox", " ", "", ""},
                             {"Di", "", "Dop", "Brink 4", " ", ""}});
    EXPECT_EQ((std::vector<Etiket>{{"Bo Bok", "Brink 2", "0411 AB  Ede"}}), reeks.etiketten);
    EXPECT_EQ((std::vector<int>{1, 3, 4}), reeks.zonderAdres);
}

TEST(Etiketten, WieSamenWonenStaanOpEenEtiket)
{
    EXPECT_EQ(Regels{"Jan Bos en Anna de Vries"}, Namen(stel));
    EXPECT_EQ(Regels{"Jan Bos, Piet Bos en Anna de Vries"},
              Namen({stel[0], Op("Lindelaan 3", "0411 AB", "Piet", "", "Bos"), stel[1]}));
    EXPECT_EQ((Regels{"Jan Bos", "Anna de Vries"}), Namen(stel, {.soort = Etiketsoort::PerSpeler}));
}

TEST(Etiketten, HoofdlettersEnTekensMakenGeenAnderAdres)
{
    EXPECT_EQ(Regels{"Jan Bos en Anna de Vries"},
              Namen({stel[0], Op("lindelaan  3.", "0411ab", "Anna", "de", "Vries")}));
    EXPECT_EQ(2U, Namen({stel[0], Op("Lindelaan 13", "0411 AB", "Anna", "de", "Vries")}).size());
    EXPECT_EQ(2U, Namen({stel[0], Op("Lindelaan 3", "0411 AC", "Anna", "de", "Vries")}).size());
    EXPECT_EQ(2U, Namen({Op("Brink 1-2", "0411 AB", "Jan", "", "Bos"),
                         Op("Brink 12", "0411 AB", "Anna", "de", "Vries")})
                      .size());
}

TEST(Etiketten, ZonderPostcodeTeltDePlaats)
{
    std::vector<Bewoner> bewoners{Op("Brink 1", "", "Jan", "", "Bos"),
                                  Op("Brink 1", "", "Anna", "de", "Vries")};
    EXPECT_EQ(1U, Namen(bewoners).size());
    bewoners[1].plaats = "Epe";
    EXPECT_EQ(2U, Namen(bewoners).size());
    bewoners[1] = Op("Brink 1", "EDE", "Anna", "de", "Vries"); // a post code that reads as a town
    EXPECT_EQ(2U, Namen(bewoners).size());
}

TEST(Etiketten, WieErTweeKeerStaatWordtEenKeerGenoemd)
{
    EXPECT_EQ(Regels{"Jan Bos en Anna de Vries"},
              Namen({stel[0], stel[1], Op("Lindelaan 3", "0411 AB", "JAN", "", "Bos")}));
    EXPECT_EQ(Regels{"Jan Bos"}, Namen({stel[0], stel[0]}, {.alsFamilie = true}));
}

TEST(Etiketten, AlsFamilie)
{
    const auto familie = [](const std::vector<Tekst>& achternamen) {
        std::vector<Bewoner> bewoners;
        for (const Tekst& naam : achternamen)
            bewoners.push_back(
                Op("Brink 1", "0411 AB", "v" + std::to_string(bewoners.size()), "", naam));
        return Namen(bewoners, {.alsFamilie = true}).at(0);
    };
    EXPECT_EQ(Regels{"Fam. Bos-de Vries"}, Namen(stel, {.alsFamilie = true}));
    EXPECT_EQ("Fam. Bos", familie({"Bos", "Bos", "BOS"}));
    EXPECT_EQ("Fam. Bos-de Vries", familie({"Bos", "Bos-de Vries"}));
    EXPECT_EQ("Fam. Bos-de Vries", familie({"Bos - de Vries", "Bos"}));
    EXPECT_EQ("Fam. Bos", familie({"Bos", "Partner Bos"})) << "een partner heeft geen eigen naam";
    EXPECT_EQ("v0 Partner 1 en v1 Partner 2", familie({"Partner 1", "Partner 2"}));
    EXPECT_EQ("v0 Bos", familie({"Bos"})) << "wie alleen woont, staat er met zijn eigen naam";
}

TEST(Etiketten, OpPostcodeOfOpNaam)
{
    const std::vector<Bewoner> bewoners{
        Op("Brink 1", "0413 AA", "Bo", "", "Aap"), Op("Brink 2", "0411aa", "Co", "van", "Dop"),
        Op("Brink 1", "0411 AB", "An", "", "Zee"), Op("Brink 1", "0411 AA", "Di", "", "Cox"),
        Op("Brink 3", "0413 AA", "Al", "", "Aap")};
    EXPECT_EQ((Regels{"Di Cox", "Co van Dop", "An Zee", "Bo Aap", "Al Aap"}), Namen(bewoners));
    EXPECT_EQ((Regels{"Al Aap", "Bo Aap", "Di Cox", "Co van Dop", "An Zee"}),
              Namen(bewoners, {.opPostcode = false}));
}

TEST(Etiketten, EenNaamkaartjeHeeftGeenAdresNodig)
{
    const auto reeks = Maak(
        {{"Jan", "van der", "Horst"}, stel[0], stel[1], {"", "", "Aap"}},
        {.soort = Etiketsoort::Naamkaart, .opPostcode = false, .onderschrift = "De Rietkraag"});
    EXPECT_EQ((std::vector<Etiket>{{"", "Aap", "De Rietkraag"},
                                   {"Jan", "Bos", "De Rietkraag"},
                                   {"Jan", "van der Horst", "De Rietkraag"},
                                   {"Anna", "de Vries", "De Rietkraag"}}),
              reeks.etiketten);
    EXPECT_TRUE(reeks.zonderAdres.empty());
}

TEST(Etiketten, AlleenDezeRijen)
{
    const Spelertabel tabel = MaakBewoners({stel[0], stel[1], stel[0]});
    const auto reeks = MaakEtiketten(tabel, {2}, {});
    EXPECT_EQ((std::vector<Etiket>{{"Anna de Vries", "Lindelaan 3", "0411 AB  Ede"}}),
              reeks.etiketten);
    EXPECT_TRUE(MaakEtiketten(tabel, {}, {}).etiketten.empty());
}

/// As many at one address as a club can have players takes no longer than each at his own.
TEST(Etiketten, IedereenOpEenAdresDuurtNietLang)
{
    std::vector<Bewoner> bewoners;
    for (int i = 0; i < 50'000; ++i)
        bewoners.push_back(
            Op("Brink 1", "0411 AA", "v" + std::to_string(i), "", "Bos" + std::to_string(i)));
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(1U, Namen(bewoners).size());
    EXPECT_EQ(1U, Namen(bewoners, {.alsFamilie = true}).size());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}
