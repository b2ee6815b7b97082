#include "federation/leesfoutmelding.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

std::string Melding(Ledenbron bron, const Fout& fout, Leesdoel doel = Leesdoel::Import)
{
    return Leesfouttekst(bron, "Caf\xE9 30.x", fout, doel).toStdString();
}

TEST(Leesfouttekst, BegintNaarDeBron)
{
    const Fout fout{
        .soort = Foutsoort::Ontbreekt, .bestand = "/a/b", .systeem = "No such file or directory"};
    const std::string rest = "\r\nHet bestand is er niet (meer); er is niets uit geïmporteerd. ";
    for (const auto& [bron, soort] : {std::pair{Ledenbron::XmlNbb3, "NBB3-XML"},
                                      {Ledenbron::XmlNbb4, "NBB4-XML"},
                                      {Ledenbron::Csv, "CSV"}})
        EXPECT_EQ(Melding(bron, fout),
                  Tekst("Fout bij het lezen van 'Café 30.x' ") + soort + "-bestand" + rest +
                      "Exporteer het opnieuw of kies een ander ledenbestand.\r\n\r\nBestand: /a/b");
    EXPECT_EQ(Melding(Ledenbron::Database, fout),
              "Fout bij het lezen van het ledenbestand (alle items)!" + rest +
                  "Kies zo nodig een geëxporteerd ledenbestand.\r\n\r\nBestand: /a/b");
}

TEST(Leesfouttekst, NoemtWatErMisIsEnWaar)
{
    EXPECT_EQ(
        Melding(Ledenbron::Database, {.soort = Foutsoort::Beschadigd, .systeem = "'A/B' kan niet"}),
        "Fout bij het lezen van het ledenbestand (alle items)!\r\nHet ledenbestand kan niet "
        "worden gelezen; er is niets uit geïmporteerd. Kies zo nodig een geëxporteerd "
        "ledenbestand.\r\n\r\nOorzaak: 'A/B' kan niet");
    EXPECT_EQ(Melding(Ledenbron::XmlNbb3, {.soort = Foutsoort::Beschadigd,
                                           .bestand = "/a/b.xml",
                                           .regel = 3,
                                           .systeem = "een eindtag ontbreekt (teken 1)"}),
              "Fout bij het lezen van 'Café 30.x' NBB3-XML-bestand\r\nHet ledenbestand kan niet "
              "worden gelezen; er is niets uit geïmporteerd. Exporteer het opnieuw of kies een "
              "ander ledenbestand.\r\n\r\nBestand: /a/b.xml\nRegel: 3\nOorzaak: een eindtag "
              "ontbreekt (teken 1)");
}

/// It may be the intermediate file that the system refused, so the member file is not blamed.
TEST(Leesfouttekst, WatHetSysteemWeigert)
{
    EXPECT_EQ(Melding(Ledenbron::XmlNbb4, {.soort = Foutsoort::Geweigerd,
                                           .bestand = "/p/Club Temp-NBBXMLtoCSV.csv",
                                           .systeem = "No space left on device"}),
              "Fout bij het lezen van 'Café 30.x' NBB4-XML-bestand\r\nHet bestand hieronder kan "
              "niet worden gelezen of geschreven; er is niets uit geïmporteerd. Verhelp de oorzaak "
              "of kies een ander ledenbestand.\r\n\r\nBestand: /p/Club "
              "Temp-NBBXMLtoCSV.csv\nMelding van het systeem: No space left on device");
}

/// The number check imports nothing, so it must not say that it did not.
TEST(Leesfouttekst, EindigtNaarHetDoel)
{
    EXPECT_EQ(Melding(Ledenbron::Csv, {.soort = Foutsoort::Ontbreekt, .bestand = "/a/b"},
                      Leesdoel::Overzicht),
              "Fout bij het lezen van 'Café 30.x' CSV-bestand\r\nHet bestand is er niet (meer); "
              "de leden ervan staan niet in het overzicht. Exporteer het opnieuw of kies een ander "
              "ledenbestand.\r\n\r\nBestand: /a/b");
}

TEST(Leesfoutreden, ZegtHetInEenRegel)
{
    const auto reden = [](const Fout& fout) { return Leesfoutreden(fout).toStdString(); };
    EXPECT_EQ(reden({.soort = Foutsoort::Ontbreekt, .bestand = "/a", .systeem = "No"}),
              "het bestand is er niet (meer)");
    EXPECT_EQ(reden({.soort = Foutsoort::Beschadigd, .bestand = "/a", .regel = 3, .systeem = "x"}),
              "het bestand kon niet als XML worden gelezen; regel 3: x");
    EXPECT_EQ(reden({.soort = Foutsoort::Geweigerd, .bestand = "/a", .systeem = "denied"}),
              "het systeem stond het lezen niet toe: denied");
}

} // namespace
} // namespace plexoran
