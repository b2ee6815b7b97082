// The listing of the number check: every member of the chosen member files, one line each, in
// columns of a fixed width. Nobody is left out.
#pragma once

#include <array>
#include <vector>

#include "federation/ledencsv.h"
#include "platform/tekst/tekenvlak.h"

namespace plexoran {

/// The headings differ by one blank behind "NBBnr". That is meant.
inline constexpr Tekstblik ControlekopScherm = "NBBnr      M/V    NBBgroep    Naam";
inline constexpr Tekstblik ControlekopPapier = "NBBnr     M/V    NBBgroep    Naam";

/// Number, sex, member group and name.
inline constexpr std::size_t AantalControlekolommen = 4;

struct Controleregel {
    Tekst regel; ///< the columns, two blanks between them
    std::array<std::size_t, AantalControlekolommen> begin{}; ///< of each column in it
    [[nodiscard]] Tekstblik Naam() const { return Tekstblik(regel).substr(begin.back()); }
};

/// The line of one member, with the member group at most ten characters. Texts that are longer than
/// their column stand there whole and push the others along.
[[nodiscard]] Controleregel MaakControleregel(Tekstblik importregel, Tekstblik ledengroep);

/// The lines by name, in the one text order; lines with the same name keep theirs.
[[nodiscard]] std::vector<Controleregel> OpNaam(std::vector<Controleregel> lstN9);

/// The listing in rows of at most so many characters: a longer line goes on in rows below it,
/// under its name.
class Controlerijen {
  public:
    Controlerijen() = default;
    /// Borrows the lines.
    Controlerijen(const std::vector<Controleregel>& regels, std::size_t breedte);

    [[nodiscard]] std::size_t Aantal() const { return delen_.size(); }
    [[nodiscard]] Tekst Rij(std::size_t nummer) const;
    /// What of a column stands in a row, without the blanks around it.
    [[nodiscard]] Tekstblik Cel(std::size_t nummer, std::size_t kolom) const;

  private:
    struct Deel {
        const Controleregel* regel;
        std::size_t begin; ///< in the line
        std::size_t eind;
    };
    [[nodiscard]] std::size_t Inspringing(const Controleregel& regel) const;
    void Splits(const Controleregel& regel);

    std::size_t breedte_ = 1;
    std::vector<Deel> delen_;
};

namespace controle {
inline constexpr Letter Schrift{.type = Lettertype::CourierNew, .punten = 10};
inline constexpr double Regelhoogte = 4.4; ///< millimetres
inline constexpr double Kophoogte = 6.0;   ///< the heading, and the white below it
} // namespace controle

/// How many characters beside each other fit in so many millimetres; at least one.
[[nodiscard]] std::size_t TekensNaastElkaar(const Lettermeter& meter, double breed);

/// Draws the heading with its top left corner there and `aantal` rows below it, from row `eerste`
/// (counted from 0) on, as far as they exist.
void TekenControlelijst(Tekenvlak& vlak, double links, double boven, Tekstblik kop,
                        const Controlerijen& rijen, std::size_t eerste, std::size_t aantal);

/// The same list on A4, upright.
namespace controleblad {
inline constexpr double Breed = 210;
inline constexpr double Hoog = 297;
inline constexpr double Marge = 15; ///< on all sides; the page number stands in the lowest
inline constexpr auto Rijen =
    static_cast<std::size_t>((Hoog - 2 * Marge - controle::Kophoogte) / controle::Regelhoogte);
} // namespace controleblad

/// Pages that so many rows need; an empty listing has one.
[[nodiscard]] int ControlebladenVoor(std::size_t rijen);
/// Draws page `blad`, from 1, of `bladen`: heading, rows and page number.
void TekenControleblad(Tekenvlak& vlak, const Controlerijen& rijen, int blad, int bladen);

} // namespace plexoran
