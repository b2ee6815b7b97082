#include "platform/bronnen/xml.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <utility>

#include <pugixml.hpp>

#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

constexpr auto nergens = std::string_view::npos;

/// Comments and instructions are kept because they count as children, the document type and texts
/// beside the outermost element so that they can be refused.
constexpr unsigned Ontleedwijze = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol |
                                  pugi::parse_comments | pugi::parse_pi | pugi::parse_doctype |
                                  pugi::parse_fragment;

/// What is wrong with a document, and at which byte of its text.
struct Xmlfout {
    std::size_t plaats = 0;
    std::string wat;
};

tl::unexpected<Fout> Leesfout(std::string_view bron, const std::string& bestand,
                              const Xmlfout& fout)
{
    const std::string_view tot = bron.substr(0, fout.plaats);
    const std::string_view regel = tot.substr(tot.rfind('\n') + 1);
    const auto tekens = std::count_if(regel.begin(), regel.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; // not one that goes on
    });
    return Mislukt(
        {.soort = Foutsoort::Beschadigd,
         .bestand = bestand,
         .regel = static_cast<int>(std::count(tot.begin(), tot.end(), '\n')) + 1,
         .systeem = fout.wat + " (teken " + std::to_string(tekens + 1) + " van die regel)"});
}

// ---- Characters --------------------------------------------------------------------------------

/// The value of `encoding` in the declaration with which the bytes begin, in capitals.
Tekst Gedeclareerd(Tekstblik bytes)
{
    constexpr Tekstblik wit = " \t\r\n";
    constexpr Tekstblik sleutel = "encoding";
    constexpr std::size_t ruim = 1024;
    bytes = bytes.substr(0, ruim);
    if (!bytes.starts_with("<?xml") || bytes.find_first_of(wit) != 5)
        return {};
    bytes = bytes.substr(0, bytes.find("?>"));
    const auto plaats = bytes.find(sleutel);
    const auto quote = plaats == nergens ? nergens : bytes.find_first_of("\"'", plaats);
    if (quote == nergens ||
        bytes.find_first_not_of(Tekst(wit) + "=", plaats + sleutel.size()) != quote)
        return {};
    return Hoofdletters(bytes.substr(quote + 1, bytes.find(bytes[quote], quote + 1) - quote - 1));
}

bool IsEenVan(Tekstblik naam, std::initializer_list<Tekstblik> namen)
{
    return std::find(namen.begin(), namen.end(), naam) != namen.end();
}

/// Where the first character stands that XML does not allow.
std::size_t EersteVerkeerde(std::string_view utf8)
{
    const auto stuurteken = std::find_if(utf8.begin(), utf8.end(), [](char teken) {
        return static_cast<unsigned char>(teken) < ' ' && teken != '\t' && teken != '\n' &&
               teken != '\r';
    });
    const auto plaats = static_cast<std::size_t>(stuurteken - utf8.begin());
    const auto voor = utf8.substr(0, plaats); // and two that are characters of no kind
    const auto geen = std::min(voor.find("\xEF\xBF\xBE"), voor.find("\xEF\xBF\xBF"));
    return geen != nergens ? geen : plaats == utf8.size() ? nergens : plaats;
}

// ---- References --------------------------------------------------------------------------------

bool IsBekendGetal(std::string_view cijfers)
{
    const bool zestientallig = cijfers.starts_with('x');
    cijfers.remove_prefix(zestientallig ? 1 : 0);
    std::uint32_t getal = 0;
    const char* const eind = cijfers.data() + cijfers.size();
    const auto [tot, fout] = std::from_chars(cijfers.data(), eind, getal, zestientallig ? 16 : 10);
    const bool teken = getal >= ' ' ? getal < 0xD800 || (getal > 0xDFFF && getal < 0xFFFE) ||
                                          (getal > 0xFFFF && getal <= 0x10FFFF)
                                    : getal == '\t' || getal == '\n' || getal == '\r';
    return fout == std::errc() && tot == eind && teken;
}

/// Whether the text behind a "&" is a reference that the parser puts right.
bool IsBekend(std::string_view rest)
{
    constexpr std::size_t langste = 32; // leading zeros and all
    const auto eind = rest.substr(0, langste).find(';');
    if (eind == nergens)
        return false;
    const std::string_view naam = rest.substr(0, eind);
    return naam.starts_with('#') ? IsBekendGetal(naam.substr(1))
                                 : IsEenVan(naam, {"amp", "lt", "gt", "quot", "apos"});
}

/// The first reference, comments, CDATA sections and instructions apart, that the parser would
/// leave in the text as it is written, or that would cut the text.
std::optional<Xmlfout> OnbekendeVerwijzing(std::string_view bron)
{
    using Sectie = std::pair<std::string_view, std::string_view>;
    constexpr std::array<Sectie, 3> secties{{{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};
    std::size_t eerste = bron.find('&');
    while (eerste != nergens && IsBekend(bron.substr(eerste + 1)))
        eerste = bron.find('&', eerste + 1);
    if (eerste == nergens) // as good as always, and quickly seen
        return std::nullopt;
    for (std::size_t plaats = 0; plaats < bron.size(); ++plaats) {
        if (bron[plaats] == '&' && !IsBekend(bron.substr(plaats + 1))) {
            const std::string_view naam = bron.substr(plaats, 32);
            return Xmlfout{plaats,
                           "de verwijzing is onbekend: " +
                               std::string(naam.substr(0, naam.find_first_of("; \t\r\n<", 1)))};
        }
        if (bron[plaats] != '<')
            continue;
        for (const auto& [begin, eind] : secties) {
            if (bron.substr(plaats).starts_with(begin))
                plaats = std::min(bron.find(eind, plaats + begin.size()), bron.size());
        }
    }
    return std::nullopt;
}

// ---- Structure ---------------------------------------------------------------------------------

const char* Oorzaak(pugi::xml_parse_status status)
{
    static const std::map<pugi::xml_parse_status, const char*> oorzaken{
        {pugi::status_out_of_memory, "het document is te groot voor het geheugen"},
        {pugi::status_unrecognized_tag, "achter een '<' staat geen geldige tag"},
        {pugi::status_bad_pi, "een instructie ('<?') is niet goed afgesloten"},
        {pugi::status_bad_comment, "een commentaar ('<!--') is niet goed afgesloten"},
        {pugi::status_bad_cdata, "een CDATA-blok is niet goed afgesloten"},
        {pugi::status_bad_doctype, "een declaratie ('<!') is niet goed afgesloten"},
        {pugi::status_bad_start_element, "een begintag is niet goed afgesloten"},
        {pugi::status_bad_attribute, "een kenmerk in een begintag is niet goed geschreven"},
        {pugi::status_bad_end_element, "een eindtag is niet goed afgesloten"},
        {pugi::status_end_element_mismatch, "een eindtag ontbreekt of hoort niet bij de begintag"},
    };
    const auto gevonden = oorzaken.find(status);
    return gevonden == oorzaken.end() ? "het bestand is geen XML" : gevonden->second;
}

/// Exactly one element, no text beside it, and no document type.
std::optional<Xmlfout> KeurBuitenste(const pugi::xml_document& document, std::string_view bron)
{
    int elementen = 0;
    for (const pugi::xml_node& knoop : document.children()) {
        const auto plaats =
            static_cast<std::size_t>(std::max<std::ptrdiff_t>(knoop.offset_debug(), 0));
        const auto soort = knoop.type();
        if (soort == pugi::node_doctype)
            return Xmlfout{plaats, "een documenttype (DOCTYPE) hoort niet in een ledenbestand"};
        if (soort == pugi::node_cdata || (soort == pugi::node_pcdata && !IsWit(knoop, bron)))
            return Xmlfout{plaats, "er staat tekst buiten het buitenste element"};
        if (soort == pugi::node_element && ++elementen > 1)
            return Xmlfout{plaats, "er is meer dan één buitenste element"};
    }
    return elementen == 1 ? std::nullopt
                          : std::optional(Xmlfout{0, "er staat geen enkel element in"});
}

/// Walks without recursion: a document may be nested as deep as its file is long.
struct Tekstvanger : pugi::xml_tree_walker {
    explicit Tekstvanger(std::string_view tekst) : bron(tekst) {}
    bool for_each(pugi::xml_node& knoop) override
    {
        if (knoop.type() == pugi::node_pcdata || knoop.type() == pugi::node_cdata) {
            utf8 += knoop.value();
            alleenWit = alleenWit && IsWit(knoop, bron);
        }
        return true;
    }

    std::string_view bron;
    std::string utf8;
    bool alleenWit = true;
};

} // namespace

Uitkomst<std::string> LeesXml(Tekst bytes, const std::string& bestand)
{
    const QByteArrayView alles(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const auto herkend = QStringConverter::encodingForData(alles, u'<');
    const auto codering = herkend.value_or(QStringConverter::Utf8);
    const Tekst naam = herkend ? Tekst() : Gedeclareerd(bytes);
    const bool utf32 = codering >= QStringConverter::Utf32;
    std::string tekst;
    std::size_t verkeerd = nergens;
    if (IsEenVan(naam, {"WINDOWS-1252", "CP1252", "CP-1252", "X-CP1252", "US-ASCII", "ASCII",
                        "ISO-8859-1", "ISO8859-1", "LATIN1"})) {
        tekst = NaarUtf8(bytes);
    } else if (utf32 || !IsEenVan(naam, {"", "UTF-8", "UTF8", "UTF-16"})) {
        return Leesfout({}, bestand,
                        {0, "de codering is onbekend: " + (utf32 ? "UTF-32" : NaarUtf8(naam))});
    } else if (codering == QStringConverter::Utf8 && QUtf8StringView(alles).isValidUtf8()) {
        tekst = std::move(bytes);
        tekst.erase(0, herkend ? 3 : 0); // it is recognised by its mark only
    } else {
        QStringDecoder lezer(codering, QStringConverter::Flag::Stateless);
        const QString gelezen = lezer(alles);
        tekst = gelezen.toStdString();
        if (lezer.hasError() || !gelezen.isValidUtf16()) {
            // U+FFFD stands for what could not be read, and now for half a pair too.
            tekst = QString::fromStdU32String(gelezen.toStdU32String()).toStdString();
            verkeerd = tekst.find("\xEF\xBF\xBD");
        }
    }
    verkeerd = std::min(verkeerd, EersteVerkeerde(tekst));
    if (verkeerd == nergens)
        return tekst;
    return Leesfout(tekst, bestand, {verkeerd, "hier staat geen teken dat in XML mag"});
}

Uitkomst<void> OntleedXml(std::string_view bron, const std::string& bestand,
                          pugi::xml_document& document, Xmlwit wit)
{
    const unsigned hoe =
        Ontleedwijze | (wit == Xmlwit::Weg ? pugi::parse_embed_pcdata : pugi::parse_ws_pcdata);
    const auto ontleed = document.load_buffer(bron.data(), bron.size(), hoe, pugi::encoding_utf8);
    std::optional<Xmlfout> fout;
    if (!ontleed)
        fout = {static_cast<std::size_t>(ontleed.offset), Oorzaak(ontleed.status)};
    if (!fout)
        fout = KeurBuitenste(document, bron);
    if (!fout)
        fout = OnbekendeVerwijzing(bron);
    if (fout)
        return Leesfout(bron, bestand, *fout);
    return {};
}

bool IsWit(const pugi::xml_node& knoop, std::string_view bron)
{
    if (knoop.type() != pugi::node_pcdata ||
        std::string_view(knoop.value()).find_first_not_of(" \t\r\n") != nergens)
        return false;
    const auto geschreven = bron.substr(static_cast<std::size_t>(knoop.offset_debug()));
    return geschreven.substr(0, geschreven.find('<')).find('&') == nergens;
}

std::size_t LeesTekst(const pugi::xml_node& element, std::string_view bron, Tekst& uit)
{
    Omzetting omgezet;
    if (element.first_child()) {
        Tekstvanger vanger(bron);
        pugi::xml_node(element).traverse(vanger);
        if (!vanger.alleenWit)
            omgezet = Utf8NaarCodepagina(vanger.utf8);
    } else {
        omgezet = Utf8NaarCodepagina(element.value());
    }
    uit = std::move(omgezet.tekst);
    return omgezet.vervangen.size();
}

} // namespace plexoran
