#include "platform/xmlcodering.h"

#include <gtest/gtest.h>

#include "platform/xmlverwijzing.h"

namespace plexoran {
namespace {

using namespace std::string_literals;

/// The UTF-8 of the bytes, or "plaats: wat".
std::string Utf8(Tekstblik bytes)
{
    const auto uit = XmlNaarUtf8(bytes);
    return uit ? *uit : std::to_string(uit.error().plaats) + ": " + uit.error().wat;
}

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
    EXPECT_EQ(Utf8("<a>Zo\xC3\xAB</a>"), "<a>Zo\xC3\xAB</a>");
    EXPECT_EQ(Utf8("\xEF\xBB\xBF<a/>"), "<a/>");
    EXPECT_EQ(Utf8(""), "");
    EXPECT_EQ(Utf8("<a>\xF0\x9F\x82\xA1</a>"), "<a>\xF0\x9F\x82\xA1</a>");
}

TEST(Xmlcodering, Windows1252EnWatDaaronderGelezenWordt)
{
    for (const char* naam : {"windows-1252", "Windows-1252", "cp1252", "ISO-8859-1", "iso-8859-1",
                             "latin1", "us-ascii"}) {
        const std::string kop = "<?xml version=\"1.0\" encoding=\""s + naam + "\"?>";
        EXPECT_EQ(Utf8(kop + "<a>\x80\x8A\xEB\x81</a>"),
                  kop + "<a>\xE2\x82\xAC\xC5\xA0\xC3\xAB\xC2\x81</a>")
            << naam;
    }
}

TEST(Xmlcodering, DeVerklaringMagAanhalingstekensEnWitNaarKeus)
{
    EXPECT_EQ(Utf8("<?xml version='1.0'\tencoding = 'windows-1252' standalone='yes' ?>\xEB"),
              "<?xml version='1.0'\tencoding = 'windows-1252' standalone='yes' ?>\xC3\xAB");
    // Outside the declaration the word means nothing.
    EXPECT_EQ(Utf8("<?xml version='1.0'?><a encoding='ibm437'>\xC3\xAB</a>"),
              "<?xml version='1.0'?><a encoding='ibm437'>\xC3\xAB</a>");
    EXPECT_EQ(Utf8("<?xmlstijl encoding='ibm437'?><a/>"), "<?xmlstijl encoding='ibm437'?><a/>");
}

TEST(Xmlcodering, Utf16InBeideVolgordenMetEnZonderMerk)
{
    const std::u16string tekst =
        u"<?xml version=\"1.0\" encoding=\"utf-16\"?><a>Zo\u00EB\u20AC\U0001F0A1</a>";
    const std::string verwacht =
        "<?xml version=\"1.0\" encoding=\"utf-16\"?><a>Zo\xC3\xAB\xE2\x82\xAC\xF0\x9F\x82\xA1</a>";
    EXPECT_EQ(Utf8("\xFF\xFE" + Utf16(tekst, false)), verwacht);
    EXPECT_EQ(Utf8("\xFE\xFF" + Utf16(tekst, true)), verwacht);
    EXPECT_EQ(Utf8(Utf16(tekst, false)), verwacht);
    EXPECT_EQ(Utf8(Utf16(tekst, true)), verwacht);
}

TEST(Xmlcodering, HetMerkGaatVoorDeVerklaring)
{
    EXPECT_EQ(Utf8("\xEF\xBB\xBF<?xml encoding='windows-1252'?>\xC3\xAB"),
              "<?xml encoding='windows-1252'?>\xC3\xAB");
    // What can be read byte by byte is no UTF-16, whatever it says.
    EXPECT_EQ(Utf8("<?xml encoding='utf-16'?>\xC3\xAB"), "<?xml encoding='utf-16'?>\xC3\xAB");
}

TEST(Xmlcodering, HerkentUtf8VanBuitenXml)
{
    EXPECT_TRUE(IsUtf8("Zo\xC3\xAB"));
    EXPECT_TRUE(IsUtf8("\xEF\xBB\xBF"
                       "1;M"));
    EXPECT_TRUE(IsUtf8("\xE2\x82\xAC\x1A"));
    EXPECT_FALSE(IsUtf8(""));
    EXPECT_FALSE(IsUtf8("Zoe"));
    EXPECT_FALSE(IsUtf8("Zo\xEB"));
    EXPECT_FALSE(IsUtf8("Zo\xC3\xAB en Zo\xEB")) << "een enkel ander teken";
    EXPECT_FALSE(IsUtf8("Zo\xC3")) << "afgekapt";
    EXPECT_FALSE(IsUtf8("\xFF\xFE"
                        "1"));
}

TEST(Xmlcodering, EenOnbekendeCoderingWordtGeweigerd)
{
    EXPECT_EQ(Utf8("<?xml encoding='ibm437'?><a/>"), "0: de codering is onbekend: IBM437");
    EXPECT_EQ(Utf8("\xFF\xFE\0\0<\0\0\0"s), "0: de codering is onbekend: UTF-32");
}

TEST(Xmlcodering, WatGeenTekenIsWordtGeweigerdMetZijnPlaats)
{
    const std::string nee = ": dit is geen UTF-8-teken dat in XML mag staan";
    EXPECT_EQ(Utf8("<a>\xEB</a>"), "3" + nee);
    EXPECT_EQ(Utf8("<a>\xC0\xBC"), "3" + nee) << "langer dan nodig";
    EXPECT_EQ(Utf8("<a>\xE0\x80\xBC"), "3" + nee) << "langer dan nodig";
    EXPECT_EQ(Utf8("<a>\xED\xA0\x80"), "3" + nee) << "half paar";
    EXPECT_EQ(Utf8("<a>\xF4\x90\x80\x80"), "3" + nee) << "te hoog";
    EXPECT_EQ(Utf8("<a>\xEF\xBF\xBF"), "3" + nee);
    EXPECT_EQ(Utf8("<a>\xC3"), "3" + nee) << "afgekapt";
    EXPECT_EQ(Utf8("<a>\x01"), "3" + nee);
    EXPECT_EQ(Utf8("<a>b\0c"s), "4" + nee);
    EXPECT_EQ(Utf8("<a>\t\r\n"), "<a>\t\r\n");
    // Anywhere in a long text, whatever the blocks it is looked at in.
    for (std::size_t plaats = 0; plaats < 200; ++plaats) {
        std::string tekst(200, 'x');
        tekst[0] = '<';
        tekst[1] = 'a';
        tekst[150] = '\n';
        tekst[std::max<std::size_t>(plaats, 2)] = '\x1F';
        EXPECT_EQ(Utf8(tekst), std::to_string(std::max<std::size_t>(plaats, 2)) + nee);
    }
    EXPECT_EQ(Utf8("<?xml encoding='latin1'?>\x01"), "25: dit teken mag niet in XML staan");
}

TEST(Xmlcodering, KapotteUtf16WordtGeweigerdMetZijnPlaats)
{
    const std::string nee = ": dit is geen UTF-16-teken dat in XML mag staan";
    EXPECT_EQ(Utf8("\xFF\xFE<\0a"s), "4: het bestand eindigt midden in een UTF-16-teken");
    EXPECT_EQ(Utf8("\xFF\xFE" + Utf16(u"<a>", false) + "\x00\xD8"s), "8" + nee);
    EXPECT_EQ(Utf8("\xFF\xFE" + Utf16(u"<a>", false) + "\x00\xDCx\0"s), "8" + nee);
    EXPECT_EQ(Utf8("\xFF\xFE" + Utf16(u"<a>", false) + "\x00\xD8x\0"s), "8" + nee);
    EXPECT_EQ(Utf8("\xFF\xFE" + Utf16(u"<a>", false) + "\0\0"s), "8" + nee);
}

TEST(XmlDoorzoekbaar, VindtAsciiOokInUtf16EnInEenKapotBestand)
{
    std::string ruimte;
    EXPECT_EQ(XmlDoorzoekbaar("<Lid>\xEB\x01", ruimte), "<Lid>\xEB\x01");
    EXPECT_EQ(XmlDoorzoekbaar("\xFF\xFE" + Utf16(u"<Lid>\u20AC", false) + "x", ruimte),
              "<Lid>\x80");
    EXPECT_EQ(XmlDoorzoekbaar(Utf16(u"<Lid>", true), ruimte), "<Lid>");
}

std::string Verwijzing(std::string_view tekst)
{
    const auto fout = OnbekendeVerwijzing(tekst);
    return fout ? std::to_string(fout->plaats) + ": " + fout->wat : "goed";
}

TEST(Xmlverwijzing, KentVijfNamenEnGetallen)
{
    EXPECT_EQ(
        Verwijzing("<a>&amp;&lt;&gt;&quot;&apos;&#233;&#xE9;&#x1F0A1;&#00000000000000065;</a>"),
        "goed");
    EXPECT_EQ(Verwijzing("<a>&eacute;</a>"), "3: de verwijzing is onbekend: &eacute");
    EXPECT_EQ(Verwijzing("<a>Jansen & Zn</a>"), "10: de verwijzing is onbekend: &");
    EXPECT_EQ(Verwijzing("<a>&AMP;</a>"), "3: de verwijzing is onbekend: &AMP");
    EXPECT_EQ(Verwijzing("<a>&amp</a>"), "3: de verwijzing is onbekend: &amp");
    EXPECT_EQ(Verwijzing("&"), "0: de verwijzing is onbekend: &");
}

TEST(Xmlverwijzing, EenGetalMoetEenTekenZijn)
{
    for (const char* naam : {"&#0;", "&#x0;", "&#1;", "&#xD800;", "&#x110000;", "&#99999999999;",
                             "&#xFFFE;", "&#;", "&#x;", "&#X41;", "&#-5;", "&#4 1;"})
        EXPECT_EQ(Verwijzing(naam).substr(0, 2), "0:") << naam;
}

TEST(Xmlverwijzing, InCommentaarCdataEnInstructiesIsHetTekst)
{
    EXPECT_EQ(Verwijzing("<!-- &x; --><![CDATA[&y;]]><?z &z;?>&amp;<!---->"), "goed");
    EXPECT_EQ(Verwijzing("<!-- &x; -->&q;<![CDATA[&y;]]>"), "12: de verwijzing is onbekend: &q");
    EXPECT_EQ(Verwijzing("<![CDATA[&y;&y;]]><b/>&q;"), "22: de verwijzing is onbekend: &q");
    EXPECT_EQ(Verwijzing("<!-- &x; "), "goed") << "de ontleder klaagt wel";
}

} // namespace
} // namespace plexoran
