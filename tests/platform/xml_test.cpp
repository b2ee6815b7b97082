#include "platform/xml.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

/// The text of the outermost element and what was counted, or the error.
struct Gelezen {
    Tekst tekst;
    std::size_t vervangen = 0;
    Fout fout;
};

Gelezen Lees(Tekstblik bytes)
{
    const auto document = Xmldocument::Ontleed(bytes, "C:\\x.xml");
    if (!document)
        return {"(fout)", 0, document.error()};
    Gelezen uit;
    uit.vervangen = document->Wortel().LeesTekst(uit.tekst);
    return uit;
}

TEST(Xml, GeeftTekstInDeCodepagina)
{
    EXPECT_EQ(Lees("<a>Zo\xC3\xAB \xE2\x82\xAC</a>").tekst, "Zo\xEB \x80");
    EXPECT_EQ(Lees("<a>Zo&#xEB;&#8364;&lt;&amp;&gt;&quot;&apos;</a>").tekst, "Zo\xEB\x80<&>\"'");
    EXPECT_EQ(Lees("<?xml version='1.0' encoding='windows-1252'?><a>Zo\xEB\x80</a>").tekst,
              "Zo\xEB\x80");
    EXPECT_EQ(Lees("<a>een<![CDATA[ & twee]]><!--niet--> en <b>drie<c/></b><?p niet?>!</a>").tekst,
              "een & twee en drie!");
}

TEST(Xml, EenTekenBuitenDeCodepaginaWordtDeNaasteLetterEnTelt)
{
    const Gelezen gelezen = Lees("<a>\xC5\x91\xC4\x8D \xE4\xB8\xAD\xF0\x9F\x82\xA1x</a>");
    EXPECT_EQ(gelezen.tekst, "oc x");
    EXPECT_EQ(gelezen.vervangen, 4U);
    EXPECT_EQ(Lees("<a>\x65\xCC\x81</a>").tekst, "\xE9") << "los accent";
    EXPECT_EQ(Lees("<a>\x65\xCC\x81</a>").vervangen, 0U);
}

TEST(Xml, HoudtWitRondTekstMaarWitAlleenIsGeenTekst)
{
    EXPECT_EQ(Lees("<a>  b\t</a>").tekst, "  b\t");
    EXPECT_EQ(Lees("<a> \r\n\t </a>").tekst, "");
    EXPECT_EQ(Lees("<a></a>").tekst, "");
    EXPECT_EQ(Lees("<a/>").tekst, "");
    EXPECT_EQ(Lees("<a>&#32;</a>").tekst, " ") << "met opzet geschreven";
    EXPECT_EQ(Lees("<a><![CDATA[ ]]></a>").tekst, " ") << "met opzet geschreven";
    EXPECT_EQ(Lees("<a>b\r\nc\rd\ne&#13;&#10;f</a>").tekst, "b\nc\nd\ne\r\nf");
}

TEST(Xml, KinderenZijnElementenTekstenCommentaarEnInstructies)
{
    const auto document =
        Xmldocument::Ontleed("<a>\n <b/>\n tekst <!--c--><![CDATA[d]]><?e f?><G/></a>", "x");
    ASSERT_TRUE(document.has_value());
    Tekst soorten;
    for (auto kind = document->Wortel().EersteKind(); kind; kind = kind.Volgende())
        soorten += kind.IsElement() ? Tekst(kind.Naam()) + "," : "-,";
    EXPECT_EQ(soorten, "b,-,-,-,-,G,");
    EXPECT_EQ(document->Wortel().EersteElement("G").Naam(), "G");
    EXPECT_EQ(document->Wortel().EersteElement("b").VolgendElement("G").Naam(), "G");
    EXPECT_FALSE(document->Wortel().EersteElement("g"));
    EXPECT_FALSE(document->Wortel().EersteElement("G").VolgendElement("b"));
    EXPECT_FALSE(Xmlknoop().EersteElement("b"));
}

TEST(Xml, EenTekstAanHetBeginIsGeenKindMaarWelTekst)
{
    const auto document = Xmldocument::Ontleed(
        "<a>een<b>twee</b>drie<c><!--x-->vier<?y z?><![CDATA[vijf]]></c><d/><e> \n<f/></e></a>",
        "x");
    ASSERT_TRUE(document.has_value());
    const Xmlknoop a = document->Wortel();
    EXPECT_TRUE(a.BegintMetTekst());
    EXPECT_EQ(a.EersteKind().Naam(), "b");
    EXPECT_TRUE(a.EersteElement("b").BegintMetTekst());
    EXPECT_FALSE(a.EersteElement("b").EersteKind());
    EXPECT_FALSE(a.EersteElement("b").Volgende().BegintMetTekst()) << "zelf een tekst";
    for (const char* zonder : {"c", "d", "e"})
        EXPECT_FALSE(a.EersteElement(zonder).BegintMetTekst()) << zonder;
    Tekst tekst;
    a.LeesTekst(tekst);
    EXPECT_EQ(tekst, "eentweedrieviervijf");
    a.EersteElement("d").LeesTekst(tekst);
    EXPECT_EQ(tekst, "");
}

TEST(Xml, ZegtWaarEenElementStaat)
{
    const auto document = Xmldocument::Ontleed("<a><b/>tekst<c/></a>", "x");
    ASSERT_TRUE(document.has_value());
    EXPECT_EQ(document->Lengte(), 20U);
    EXPECT_EQ(document->Wortel().Plaats(), 1U);
    EXPECT_EQ(document->Wortel().EersteElement("c").Plaats(), 13U);
}

TEST(Xml, EenFoutZegtWaarEnWat)
{
    const Gelezen gelezen = Lees("<a>\r\n<b>\r\n</c>\r\n</a>");
    EXPECT_EQ(gelezen.fout.soort, Foutsoort::Beschadigd);
    EXPECT_EQ(gelezen.fout.bestand, "C:\\x.xml");
    EXPECT_EQ(gelezen.fout.regel, 3);
    EXPECT_EQ(gelezen.fout.systeem,
              "een eindtag ontbreekt of hoort niet bij de begintag (teken 3 van die regel)");
}

/// In Dutch, whatever the parser says: the text ends in a box for the user.
TEST(Xml, ElkeFoutHeeftNederlandseWoordenMetDePlaats)
{
    struct Geval {
        Tekstblik inhoud;
        int regel;
        std::string melding;
    };
    const std::string deel = " (teken ";
    const std::string einde = " van die regel)";
    const auto op = [&](const std::string& wat, int teken) {
        return wat + deel + std::to_string(teken) + einde;
    };
    const std::vector<Geval> gevallen = {
        {"<a>\n<b></c></a>", 2, op("een eindtag ontbreekt of hoort niet bij de begintag", 6)},
        {"<a>\n\n<b>", 3, op("een eindtag ontbreekt of hoort niet bij de begintag", 3)},
        {"<a>\n<1/></a>", 2, op("achter een '<' staat geen geldige tag", 2)},
        {"<a><?p", 1, op("een instructie ('<?') is niet goed afgesloten", 6)},
        {"<a><!-- x </a>", 1, op("een commentaar ('<!--') is niet goed afgesloten", 8)},
        {"<a><![CDATA[x</a>", 1, op("een CDATA-blok is niet goed afgesloten", 13)},
        {"<!DOCTYPE a [<a/>", 1, op("een declaratie ('<!') is niet goed afgesloten", 14)},
        {"<a\x7F", 1, op("een begintag is niet goed afgesloten", 3)},
        {"<a b=c/>", 1, op("een kenmerk in een begintag is niet goed geschreven", 6)},
        {"<a></a b>", 1, op("een eindtag is niet goed afgesloten", 8)},
        {"<a>\nZo\xC3\xAB &onbekend;</a>", 2, op("de verwijzing is onbekend: &onbekend", 5)},
        {"<a/>\n\n<b/>", 3, op("er is meer dan één buitenste element", 2)},
        {"<a/>iets", 1, op("er staat tekst buiten het buitenste element", 5)},
        {"", 1, op("er staat geen enkel element in", 1)},
        {"<a>\n\n\n\xFF</a>", 4,
         "dit is geen UTF-8-teken dat in XML mag staan (byte 7 van het bestand)"},
        {"<?xml encoding='ibm437'?>", 1,
         "de codering is onbekend: IBM437 (byte 1 van het bestand)"},
    };
    for (const auto& [inhoud, regel, melding] : gevallen) {
        const Fout fout = Lees(inhoud).fout;
        EXPECT_EQ(fout.systeem, melding) << inhoud;
        EXPECT_EQ(fout.regel, regel) << inhoud;
    }
}

TEST(Xml, WatGeenXmlIsWordtGeweigerd)
{
    for (const char* tekst : {"", "   ", "geen xml", "<a>", "<a", "<", "<a></b>", "<a/>nog iets",
                              "iets<a/>", "<a/><b/>", "<!-- alleen -->", "<a><![CDATA[</a>",
                              "Naam;Nummer\r\nX;1\r\n", "{\"a\": 1}", "<?xml version='1.0'?>"})
        EXPECT_EQ(Lees(tekst).tekst, "(fout)") << tekst;
}

TEST(Xml, VolgtGeenDocumenttype)
{
    EXPECT_EQ(Lees("<!DOCTYPE a [<!ENTITY b \"c\">]><a>d</a>").tekst, "d");
    EXPECT_EQ(Lees("<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>").tekst, "(fout)");
    EXPECT_EQ(Lees("<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/hostname\">]><a>&b;</a>").tekst,
              "(fout)");
    EXPECT_EQ(Lees("<!DOCTYPE a SYSTEM \"http://club.example/a.dtd\"><a>d</a>").tekst, "d");
    // Each line ten times the one before it.
    EXPECT_EQ(Lees("<!DOCTYPE a [<!ENTITY b \"b\"><!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\">"
                   "<!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">]><a>&d;</a>")
                  .tekst,
              "(fout)");
}

TEST(Xml, DiepeNestingVultDeStapelNiet)
{
    constexpr int diep = 300'000;
    Tekst tekst;
    for (int i = 0; i < diep; ++i)
        tekst += "<a>";
    EXPECT_EQ(Lees(tekst).tekst, "(fout)");
    tekst += "kern";
    for (int i = 0; i < diep; ++i)
        tekst += "</a>";
    EXPECT_EQ(Lees(tekst).tekst, "kern");
}

TEST(Xml, EenDocumentDatHetGeheugenZouVullenWordtGeweigerd)
{
    Tekst tekst = "<a>";
    for (int i = 0; i < 2'000; ++i)
        tekst += "<b/>";
    tekst += "</a>";
    const auto document = Xmldocument::Ontleed(tekst, "x", 100'000);
    ASSERT_FALSE(document.has_value());
    EXPECT_EQ(document.error().soort, Foutsoort::Beschadigd);
    EXPECT_EQ(document.error().systeem.find("het document is te groot voor het geheugen"), 0U)
        << document.error().systeem;
    EXPECT_TRUE(Xmldocument::Ontleed(tekst, "x").has_value());
}

} // namespace
} // namespace plexoran
