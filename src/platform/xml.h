// XML documents read whole. Text comes out in Windows-1252; nothing outside this file knows which
// library does the parsing.
//
// Only the five predefined entities and numeric references are known. A document type is passed
// over and nothing that it names is ever fetched, so a reference to an entity of its own is
// refused: it would otherwise stay in the text as it is written.
#pragma once

#include <memory>
#include <string_view>

#include "platform/fout.h"
#include "platform/tekst.h"

namespace pugi {
struct xml_node_struct;
}

namespace plexoran {

/// A node of a document, valid as long as that lives; false when there is none.
class Xmlknoop {
  public:
    Xmlknoop() = default;
    explicit Xmlknoop(pugi::xml_node_struct* knoop) : knoop_(knoop) {}

    explicit operator bool() const { return knoop_ != nullptr; }
    [[nodiscard]] bool IsElement() const;
    /// UTF-8, with its prefix; empty for what is no element. The view lives as the document does.
    [[nodiscard]] std::string_view Naam() const;

    /// Whether an element begins with a text, which is none of its children below. One of white
    /// space only, or in a CDATA section, does not count.
    [[nodiscard]] bool BegintMetTekst() const;
    /// Where an element begins in the text of the document, to tell how far a walk is.
    [[nodiscard]] std::size_t Plaats() const;

    /// Children: elements, CDATA sections, comments, processing instructions and the texts behind
    /// the first of those, but not a text of white space only.
    [[nodiscard]] Xmlknoop EersteKind() const;
    [[nodiscard]] Xmlknoop Volgende() const;
    /// The next child of the same parent, or the first below this node, that is an element `naam`.
    [[nodiscard]] Xmlknoop VolgendElement(std::string_view naam) const;
    [[nodiscard]] Xmlknoop EersteElement(std::string_view naam) const;

    /// All texts and CDATA sections below an element, in order; line ends are LF. White space is
    /// kept, but a text of white space only is no text. Returns how many characters the code page
    /// lacks: the nearest letters stand for them.
    std::size_t LeesTekst(Tekst& uit) const;

  private:
    pugi::xml_node_struct* knoop_ = nullptr;
};

class Xmldocument {
  public:
    /// `bestand` names the file in an error, which is `Beschadigd` and tells the line and, in
    /// Dutch, what the parser found and where on that line. So is a document whose nodes would take
    /// more than `meesteGeheugen` bytes.
    [[nodiscard]] static Uitkomst<Xmldocument> Ontleed(Tekstblik bytes, const std::string& bestand,
                                                       std::size_t meesteGeheugen = 512U << 20U);

    Xmldocument(const Xmldocument&) = delete;
    Xmldocument& operator=(const Xmldocument&) = delete;
    Xmldocument(Xmldocument&&) noexcept;
    Xmldocument& operator=(Xmldocument&&) noexcept;
    ~Xmldocument();

    /// The outermost element.
    [[nodiscard]] Xmlknoop Wortel() const;
    /// Of its text, in bytes.
    [[nodiscard]] std::size_t Lengte() const;

  private:
    struct Binnenkant;
    explicit Xmldocument(std::unique_ptr<Binnenkant> binnenkant);

    std::unique_ptr<Binnenkant> binnenkant_;
};

} // namespace plexoran
