#include "platform/bronnen/xml.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace plexoran {
namespace {

using namespace std::string_literals;

/// The text of the outermost element and what was counted, or the error.
struct Gelezen {
    Tekst tekst;
    std::size_t vervangen = 0;
    Fout fout;
};

Gelezen Lees(Tekstblik bytes, Xmlwit wit = Xmlwit::Blijft)
{
    const auto bron = LeesXml(Tekst(bytes), "C:\\x.xml");
    if (!bron)
        return {"(fout)", 0, bron.error()};
    pugi::xml_document document;
    const auto ontleed = OntleedXml(*bron, "C:\\x.xml", document, wit);
    if (!ontleed)
        return {"(fout)", 0, ontleed.error()};
    Gelezen uit;
    uit.vervangen = LeesTekst(document.document_element(), *bron, uit.tekst);
    return uit;
}

TEST(Xml, GeeftTekstInDeCodepagina)
{
    EXPECT_EQ(Lees("<a>Zo\xC3\xAB \xE2\x82\xAC</a>").tekst, "Zo\xEB \x80");
    EXPECT_EQ(Lees("<a>Zo&#xEB;&#8364;&lt;&amp;&gt;&quot;&apos;</a>").tekst, "Zo\xEB\x80<&>\"'");
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

TEST(Xml, EenTekstUitEenStukIsHetzelfdeZonderKnopenVoorWit)
{
    for (const char* tekst : {"<a>  b\t</a>", "<a> \r\n\t </a>", "<a></a>", "<a/>", "<a>&#32;</a>",
                              "<a><![CDATA[ ]]></a>", "<a>b\r\nc\rd</a>", "<a>Zo\xC3\xAB</a>"})
        EXPECT_EQ(Lees(tekst, Xmlwit::Weg).tekst, Lees(tekst).tekst) << tekst;
}

TEST(Xml, WitNaastCdataCommentaarEnElementenBlijft)
{
    EXPECT_EQ(Lees("<a>Jan <![CDATA[van]]> <b>Dam</b></a>").tekst, "Jan van Dam");
    EXPECT_EQ(Lees("<a>Jan<!--x--> <b>Dam</b></a>").tekst, "Jan Dam");
    EXPECT_EQ(Lees("<a> <![CDATA[x]]> </a>").tekst, " x ");
    EXPECT_EQ(Lees("<a>\n  <b>een</b>\n  <b>twee</b>\n</a>").tekst, "\n  een\n  twee\n");
    EXPECT_EQ(Lees("<a> <!--x--> <b> </b><?p?> </a>").tekst, "") << "alleen wit";
}

TEST(Xml, WitIsWatAlsWitIsGeschreven)
{
    const std::string bron = "<a> \r\n\t<b/>&#32;<c/> x <d/><![CDATA[ ]]></a>";
    pugi::xml_document document;
    ASSERT_TRUE(OntleedXml(bron, "x", document, Xmlwit::Blijft));
    std::string wit;
    for (const pugi::xml_node& kind : document.document_element().children())
        wit += IsWit(kind, bron) ? 'w' : '-';
    EXPECT_EQ(wit, "w------");
}

/// In Dutch, whatever the parser says: the text ends in a box for the user.
TEST(Xml, ElkeFoutHeeftNederlandseWoordenMetDePlaats)
{
    struct Geval {
        std::string inhoud;
        int regel;
        std::string wat;
        int teken;
    };
    const std::vector<Geval> gevallen = {
        {"<a>\r\n<b>\r\n</c>\r\n</a>", 3, "een eindtag ontbreekt of hoort niet bij de begintag", 3},
        {"<a>\n<b></c></a>", 2, "een eindtag ontbreekt of hoort niet bij de begintag", 6},
        {"<a>\n\n<b>", 3, "een eindtag ontbreekt of hoort niet bij de begintag", 3},
        {"<a>\n<1/></a>", 2, "achter een '<' staat geen geldige tag", 2},
        {"<a><?p", 1, "een instructie ('<?') is niet goed afgesloten", 6},
        {"<a><!-- x </a>", 1, "een commentaar ('<!--') is niet goed afgesloten", 8},
        {"<a><![CDATA[x</a>", 1, "een CDATA-blok is niet goed afgesloten", 13},
        {"<!DOCTYPE a [<a/>", 1, "een declaratie ('<!') is niet goed afgesloten", 14},
        {"<a\x7F", 1, "een begintag is niet goed afgesloten", 3},
        {"<a b=c/>", 1, "een kenmerk in een begintag is niet goed geschreven", 6},
        {"<a></a b>", 1, "een eindtag is niet goed afgesloten", 8},
        {"<a>\nZo\xC3\xAB &onbekend;</a>", 2, "de verwijzing is onbekend: &onbekend", 5},
        {"<a/>\n\n<b/>", 3, "er is meer dan één buitenste element", 2},
        {"<a/>iets", 1, "er staat tekst buiten het buitenste element", 5},
        {"", 1, "er staat geen enkel element in", 1},
        {"<a>\n\n\nZo\xFF</a>", 4, "hier staat geen teken dat in XML mag", 3},
        {"<?xml encoding='ibm437'?>", 1, "de codering is onbekend: IBM437", 1},
    };
    for (const auto& [inhoud, regel, wat, teken] : gevallen) {
        const Fout fout = Lees(inhoud).fout;
        EXPECT_EQ(fout.systeem, wat + " (teken " + std::to_string(teken) + " van die regel)")
            << inhoud;
        EXPECT_EQ(fout.regel, regel) << inhoud;
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd) << inhoud;
        EXPECT_EQ(fout.bestand, "C:\\x.xml") << inhoud;
    }
}

TEST(Xml, WatGeenXmlIsWordtGeweigerd)
{
    for (const char* tekst : {"", "   ", "geen xml", "<a>", "<a", "<", "<a></b>", "<a/>nog iets",
                              "iets<a/>", "<a/><b/>", "<!-- alleen -->", "<a><![CDATA[</a>",
                              "Naam;Nummer\r\nX;1\r\n", "{\"a\": 1}", "<?xml version='1.0'?>"})
        EXPECT_EQ(Lees(tekst).tekst, "(fout)") << tekst;
    EXPECT_EQ(Lees("\n<!--x-->\n<a>b</a>\n<!--y-->\n").tekst, "b");
}

TEST(Xml, EenDocumenttypeWordtGeweigerd)
{
    for (const char* type : {"<!DOCTYPE a>", "<!DOCTYPE a [<!ENTITY b \"c\">]>",
                             "<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/hostname\">]>",
                             "<!DOCTYPE a SYSTEM \"http://club.example/a.dtd\">"}) {
        const Fout fout = Lees("\n"s + type + "<a>&b;</a>").fout;
        EXPECT_EQ(fout.systeem.find("een documenttype (DOCTYPE) hoort niet in een ledenbestand"),
                  0U)
            << fout.systeem;
        EXPECT_EQ(fout.regel, 2);
    }
    EXPECT_EQ(Lees("<a><!-- <!DOCTYPE a> --><![CDATA[<!DOCTYPE a>]]></a>").tekst, "<!DOCTYPE a>");
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

// ---- Encodings ---------------------------------------------------------------------------------

std::string Utf16(std::u16string_view tekst, bool groot)
{
    std::string uit;
    for (const char16_t eenheid : tekst) {
        const char laag = static_cast<char>(eenheid & 0xFFU);
        const char hoog = static_cast<char>(static_cast<unsigned>(eenheid) >> 8U);
        uit += groot ? hoog : laag;
        uit += groot ? laag : hoog;
    }
    return uit;
}

TEST(Xmlcodering, ZonderVerklaringIsHetUtf8)
{
    EXPECT_EQ(Lees("<a>Zo\xC3\xAB</a>").tekst, "Zo\xEB");
    EXPECT_EQ(Lees("\xEF\xBB\xBF<a>Zo\xC3\xAB</a>").tekst, "Zo\xEB");
}

TEST(Xmlcodering, Windows1252EnWatDaaronderGelezenWordt)
{
    for (const char* naam : {"windows-1252", "Windows-1252", "cp1252", "ISO-8859-1", "iso-8859-1",
                             "latin1", "us-ascii"})
        EXPECT_EQ(
            Lees("<?xml version=\"1.0\" encoding=\""s + naam + "\"?><a>\x80\x8A\xEB\x81</a>").tekst,
            "\x80\x8A\xEB\x81")
            << naam;
}

TEST(Xmlcodering, DeVerklaringMagAanhalingstekensEnWitNaarKeus)
{
    EXPECT_EQ(
        Lees("<?xml version='1.0'\tencoding = 'windows-1252' standalone='yes' ?><a>\xEB</a>").tekst,
        "\xEB");
    // Outside the declaration the word means nothing.
    for (const char* kop :
         {"<?xml version='1.0'?><!-- encoding='ibm437' -->", "<?xmlstijl encoding='ibm437'?>"})
        EXPECT_EQ(Lees(kop + "<a>\xC3\xAB</a>"s).tekst, "\xEB") << kop;
}

TEST(Xmlcodering, Utf16InBeideVolgordenMetEnZonderMerk)
{
    const std::u16string tekst =
        u"<?xml version=\"1.0\" encoding=\"utf-16\"?><a>Zo\u00EB\u20AC\U0001F0A1</a>";
    for (const bool groot : {false, true}) {
        for (const auto& bytes : {Utf16(u"\uFEFF" + tekst, groot), Utf16(tekst, groot)}) {
            EXPECT_EQ(Lees(bytes).tekst, "Zo\xEB\x80");
            EXPECT_EQ(Lees(bytes).vervangen, 1U);
        }
    }
}

TEST(Xmlcodering, HetMerkGaatVoorDeVerklaring)
{
    EXPECT_EQ(Lees("\xEF\xBB\xBF<?xml encoding='windows-1252'?><a>\xC3\xAB</a>").tekst, "\xEB");
    // What can be read byte by byte is no UTF-16, whatever it says.
    EXPECT_EQ(Lees("<?xml encoding='utf-16'?><a>\xC3\xAB</a>").tekst, "\xEB");
}

TEST(Xmlcodering, EenOnbekendeCoderingWordtGeweigerd)
{
    EXPECT_EQ(Lees("\xFF\xFE\0\0<\0\0\0"s).fout.systeem.find("de codering is onbekend: UTF-32"),
              0U);
}

TEST(Xmlcodering, WatGeenTekenIsWordtGeweigerdMetZijnPlaats)
{
    const std::string nee = "hier staat geen teken dat in XML mag (teken 4 van die regel)";
    for (const std::string& bytes : {"\xEB"s, "\xC0\xBC"s, "\xE0\x80\xBC"s, "\xED\xA0\x80"s,
                                     "\xF4\x90\x80\x80"s, "\xEF\xBF\xBF"s, "\xC3"s, "\x01"s, "\0"s})
        EXPECT_EQ(Lees("<a>" + bytes + "</a>").fout.systeem, nee) << testing::PrintToString(bytes);
    EXPECT_EQ(Lees("<a>\xC3").fout.systeem, nee) << "afgekapt";
    EXPECT_EQ(Lees("<a>\t\r\n</a>").tekst, "");
    EXPECT_EQ(Lees("<?xml encoding='latin1'?>\n<a>\x01</a>").fout.systeem, nee);
    EXPECT_EQ(Lees("<?xml encoding='latin1'?>\n<a>\x01</a>").fout.regel, 2);
}

TEST(Xmlcodering, KapotteUtf16WordtGeweigerd)
{
    const std::string merk = "\xFF\xFE";
    EXPECT_EQ(Lees(merk + Utf16(u"<a/>", false) + "a").tekst, "(fout)") << "een half teken";
    for (const std::string& eenheden :
         {"\x00\xD8"s, "\x00\xDCx\0"s, "\x00\xD8x\0"s, "\0\0"s, "\xFF\xFF"s})
        EXPECT_EQ(Lees(merk + Utf16(u"<a>", false) + eenheden + Utf16(u"</a>", false)).fout.systeem,
                  "hier staat geen teken dat in XML mag (teken 4 van die regel)")
            << testing::PrintToString(eenheden);
}

// ---- References --------------------------------------------------------------------------------

TEST(Xmlverwijzing, KentVijfNamenEnGetallen)
{
    EXPECT_EQ(Lees("<a>&amp;&lt;&gt;&quot;&apos;&#233;&#xE9;&#00000000000000065;</a>").tekst,
              "&<>\"'\xE9\xE9"
              "A");
    EXPECT_EQ(Lees("<a b='&amp;'>&#x1F0A1;</a>").vervangen, 1U);
    for (const char* naam :
         {"&eacute;", "Jansen & Zn", "&AMP;", "&amp", "&#0;", "&#x0;", "&#1;", "&#xD800;",
          "&#x110000;", "&#99999999999;", "&#xFFFE;", "&#;", "&#x;", "&#X41;", "&#-5;", "&#4 1;"})
        EXPECT_EQ(Lees("<a>"s + naam + "</a>").fout.systeem.find("de verwijzing is onbekend: &"),
                  0U)
            << naam;
    EXPECT_NE(Lees("<a b='&x;'/>").fout.systeem, "") << "ook in een kenmerk";
}

TEST(Xmlverwijzing, InCommentaarCdataEnInstructiesIsHetTekst)
{
    EXPECT_EQ(Lees("<a><!-- &x; --><![CDATA[&y;]]><?z &z;?>&amp;<!----></a>").tekst, "&y;&");
    EXPECT_EQ(Lees("<a><!-- &x; -->&q;<![CDATA[&y;]]></a>").fout.systeem,
              "de verwijzing is onbekend: &q (teken 16 van die regel)");
    EXPECT_EQ(Lees("<a><![CDATA[&y;&y;]]><b/>&q;</a>").fout.systeem,
              "de verwijzing is onbekend: &q (teken 26 van die regel)");
    EXPECT_EQ(Lees("<a b='<!-- '>c</a>").tekst, "c") << "in een kenmerk begint geen commentaar";
}

} // namespace
} // namespace plexoran
