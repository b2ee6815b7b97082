#include "platform/xml.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

#include <pugixml.hpp>

#include "platform/codepagina.h"
#include "platform/xmlcodering.h"
#include "platform/xmlverwijzing.h"

namespace plexoran {
namespace {

/// Comments and instructions are kept because they count as children; texts beside the outermost
/// element so that they can be refused. The text that an element begins with stands in the element
/// itself: of the nodes of an export nearly half would be such texts.
constexpr unsigned Ontleedwijze = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol |
                                  pugi::parse_comments | pugi::parse_pi | pugi::parse_fragment |
                                  pugi::parse_embed_pcdata;

/// What the parser may still take in this thread.
constexpr std::size_t Onbeperkt = std::numeric_limits<std::size_t>::max();
thread_local std::size_t geheugenOver = Onbeperkt;

void* NeemGeheugen(std::size_t bytes)
{
    if (bytes > geheugenOver)
        return nullptr;
    if (geheugenOver != Onbeperkt)
        geheugenOver -= bytes;
    return std::malloc(bytes);
}

void GeefGeheugen(void* waar)
{
    std::free(waar);
}

/// Limits what one document may take; the parser's functions are those of the whole program.
class Geheugengrens {
  public:
    explicit Geheugengrens(std::size_t bytes)
    {
        static const bool gezet = [] {
            pugi::set_memory_management_functions(NeemGeheugen, GeefGeheugen);
            return true;
        }();
        geheugenOver = gezet ? bytes : 0;
    }
    Geheugengrens(const Geheugengrens&) = delete;
    Geheugengrens& operator=(const Geheugengrens&) = delete;
    ~Geheugengrens() { geheugenOver = Onbeperkt; }
};

bool IsTekst(const pugi::xml_node& knoop)
{
    const auto soort = knoop.type();
    return soort == pugi::node_pcdata || soort == pugi::node_cdata;
}

/// The next node below `top` in the order of the document. No recursion: a document may be nested
/// as deep as its file is long.
pugi::xml_node Verder(pugi::xml_node knoop, const pugi::xml_node& top)
{
    if (const auto kind = knoop.first_child())
        return kind;
    for (; knoop != top; knoop = knoop.parent()) {
        if (const auto volgende = knoop.next_sibling())
            return volgende;
    }
    return {};
}

/// The next character of a text that is valid UTF-8, in UTF-16.
void VoegUtf16Toe(std::u16string& uit, std::string_view utf8, std::size_t& plaats)
{
    const auto byte = [&] { return static_cast<unsigned char>(utf8[plaats++]); };
    const unsigned eerste = byte();
    const int vervolg = eerste >= 0xF0 ? 3 : eerste >= 0xE0 ? 2 : eerste >= 0xC0 ? 1 : 0;
    unsigned teken = vervolg == 0 ? eerste : eerste & (0x3FU >> static_cast<unsigned>(vervolg));
    for (int i = 0; i < vervolg && plaats < utf8.size(); ++i)
        teken = (teken << 6U) | (byte() & 0x3FU);
    if (teken < 0x10000) {
        uit += static_cast<char16_t>(teken);
        return;
    }
    uit += static_cast<char16_t>(0xD800 + ((teken - 0x10000) >> 10U));
    uit += static_cast<char16_t>(0xDC00 + ((teken - 0x10000) & 0x3FFU));
}

std::size_t NaarTekst(std::string_view utf8, Tekst& uit)
{
    const bool gewoon = std::all_of(utf8.begin(), utf8.end(), [](char teken) {
        return static_cast<unsigned char>(teken) < 0x80;
    });
    if (gewoon) {
        uit = utf8;
        return 0;
    }
    std::u16string utf16;
    for (std::size_t i = 0; i < utf8.size();)
        VoegUtf16Toe(utf16, utf8, i);
    auto omgezet = NaarCodepagina(utf16);
    uit = std::move(omgezet.tekst);
    return omgezet.vervangen.size();
}

const char* Oorzaak(pugi::xml_parse_status status)
{
    switch (status) {
    case pugi::status_out_of_memory:
        return "het document is te groot voor het geheugen";
    case pugi::status_unrecognized_tag:
        return "achter een '<' staat geen geldige tag";
    case pugi::status_bad_pi:
        return "een instructie ('<?') is niet goed afgesloten";
    case pugi::status_bad_comment:
        return "een commentaar ('<!--') is niet goed afgesloten";
    case pugi::status_bad_cdata:
        return "een CDATA-blok is niet goed afgesloten";
    case pugi::status_bad_doctype:
        return "een declaratie ('<!') is niet goed afgesloten";
    case pugi::status_bad_start_element:
        return "een begintag is niet goed afgesloten";
    case pugi::status_bad_attribute:
        return "een kenmerk in een begintag is niet goed geschreven";
    case pugi::status_bad_end_element:
        return "een eindtag is niet goed afgesloten";
    case pugi::status_end_element_mismatch:
        return "een eindtag ontbreekt of hoort niet bij de begintag";
    default:
        return "het bestand is geen XML";
    }
}

Fout Leesfout(std::string_view tot, const std::string& bestand, const std::string& systeem)
{
    const auto regeleinden = std::count(tot.begin(), tot.end(), '\n');
    return {.soort = Foutsoort::Beschadigd,
            .bestand = bestand,
            .regel = static_cast<int>(regeleinden) + 1,
            .systeem = systeem};
}

/// In a file of which not even the characters can be told, only the bytes can be counted.
Fout Coderingsfout(Tekstblik bytes, const std::string& bestand, const Xmlfout& fout)
{
    return Leesfout(bytes.substr(0, fout.plaats), bestand,
                    fout.wat + " (byte " + std::to_string(fout.plaats + 1) + " van het bestand)");
}

Fout Tekstfout(std::string_view utf8, const std::string& bestand, const Xmlfout& fout)
{
    const std::string_view tot = utf8.substr(0, fout.plaats);
    const std::string_view regel = tot.substr(tot.rfind('\n') + 1);
    const auto tekens = std::count_if(regel.begin(), regel.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; // not one that goes on
    });
    return Leesfout(tot, bestand,
                    fout.wat + " (teken " + std::to_string(tekens + 1) + " van die regel)");
}

} // namespace

struct Xmldocument::Binnenkant {
    std::string tekst; ///< the nodes look into it
    pugi::xml_document document;
};

namespace {

/// Exactly one element, and no text beside it.
tl::expected<void, Xmlfout> KeurBuitenste(const pugi::xml_document& document)
{
    std::size_t elementen = 0;
    for (const auto& knoop : document.children()) {
        const auto plaats =
            static_cast<std::size_t>(std::max<std::ptrdiff_t>(knoop.offset_debug(), 0));
        if (IsTekst(knoop))
            return tl::unexpected(Xmlfout{plaats, "er staat tekst buiten het buitenste element"});
        if (knoop.type() == pugi::node_element && ++elementen > 1)
            return tl::unexpected(Xmlfout{plaats, "er is meer dan één buitenste element"});
    }
    if (elementen == 0)
        return tl::unexpected(Xmlfout{0, "er staat geen enkel element in"});
    return {};
}

} // namespace

Uitkomst<Xmldocument> Xmldocument::Ontleed(Tekstblik bytes, const std::string& bestand,
                                           std::size_t meesteGeheugen)
{
    const Geheugengrens grens(meesteGeheugen);
    auto tekst = XmlNaarUtf8(bytes);
    if (!tekst)
        return tl::unexpected(Coderingsfout(bytes, bestand, tekst.error()));
    if (const auto fout = OnbekendeVerwijzing(*tekst))
        return tl::unexpected(Tekstfout(*tekst, bestand, *fout));
    auto binnenkant = std::make_unique<Binnenkant>();
    binnenkant->tekst = std::move(*tekst);
    const auto uitkomst = binnenkant->document.load_buffer_inplace(
        binnenkant->tekst.data(), binnenkant->tekst.size(), Ontleedwijze, pugi::encoding_utf8);
    auto keuring = uitkomst ? KeurBuitenste(binnenkant->document)
                            : tl::unexpected(Xmlfout{static_cast<std::size_t>(uitkomst.offset),
                                                     Oorzaak(uitkomst.status)});
    // Parsing broke up the text, so the line is counted in a fresh one.
    if (!keuring)
        return tl::unexpected(
            Tekstfout(XmlNaarUtf8(bytes).value_or(std::string()), bestand, keuring.error()));
    return Xmldocument(std::move(binnenkant));
}

Xmldocument::Xmldocument(std::unique_ptr<Binnenkant> binnenkant)
    : binnenkant_(std::move(binnenkant))
{}

Xmldocument::Xmldocument(Xmldocument&&) noexcept = default;
Xmldocument& Xmldocument::operator=(Xmldocument&&) noexcept = default;
Xmldocument::~Xmldocument() = default;

Xmlknoop Xmldocument::Wortel() const
{
    return Xmlknoop(binnenkant_->document.document_element().internal_object());
}

std::size_t Xmldocument::Lengte() const
{
    return binnenkant_->tekst.size();
}

bool Xmlknoop::IsElement() const
{
    return pugi::xml_node(knoop_).type() == pugi::node_element;
}

std::string_view Xmlknoop::Naam() const
{
    return IsElement() ? pugi::xml_node(knoop_).name() : std::string_view();
}

bool Xmlknoop::BegintMetTekst() const
{
    return IsElement() && *pugi::xml_node(knoop_).value() != '\0';
}

std::size_t Xmlknoop::Plaats() const
{
    return static_cast<std::size_t>(
        std::max<std::ptrdiff_t>(pugi::xml_node(knoop_).offset_debug(), 0));
}

Xmlknoop Xmlknoop::EersteKind() const
{
    return Xmlknoop(pugi::xml_node(knoop_).first_child().internal_object());
}

Xmlknoop Xmlknoop::Volgende() const
{
    return Xmlknoop(pugi::xml_node(knoop_).next_sibling().internal_object());
}

Xmlknoop Xmlknoop::VolgendElement(std::string_view naam) const
{
    Xmlknoop knoop = Volgende();
    while (knoop && knoop.Naam() != naam)
        knoop = knoop.Volgende();
    return knoop;
}

Xmlknoop Xmlknoop::EersteElement(std::string_view naam) const
{
    const Xmlknoop kind = EersteKind();
    return !kind || kind.Naam() == naam ? kind : kind.VolgendElement(naam);
}

std::size_t Xmlknoop::LeesTekst(Tekst& uit) const
{
    const pugi::xml_node top(knoop_);
    const auto eerste = top.first_child();
    if (!eerste)
        return NaarTekst(top.value(), uit);
    std::string utf8 = top.value();
    for (auto knoop = eerste; knoop; knoop = Verder(knoop, top)) {
        if (IsTekst(knoop) || knoop.type() == pugi::node_element)
            utf8 += knoop.value();
    }
    return NaarTekst(utf8, uit);
}

} // namespace plexoran
