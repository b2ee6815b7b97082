// What a PDF file shows and where, as read back by a program that did not write it.
#pragma once

#include <QImage>

#include <filesystem>
#include <string>
#include <vector>

namespace plexoran {

/// A word on a page; millimetres from the top left corner of the sheet.
struct Pdfwoord {
    std::string tekst; ///< UTF-8
    double links = 0;
    double boven = 0; ///< where the letters of the font can begin
    double rechts = 0;
    double onder = 0;
};

struct Pdfblad {
    double breed = 0;
    double hoog = 0;
    std::vector<Pdfwoord> woorden; ///< line after line, from left to right

    /// The words beside each other on the line with this top, by single blanks.
    [[nodiscard]] std::string Regel(double boven) const;
    /// All words, by single blanks.
    [[nodiscard]] std::string Tekst() const;
    /// The first word that reads so; throws when there is none.
    [[nodiscard]] const Pdfwoord& Woord(const std::string& tekst) const;
};

/// Line after line, each from left to right.
void ZetInLeesvolgorde(Pdfblad& blad);

/// Throws when the file is no PDF.
[[nodiscard]] std::vector<Pdfblad> LeesPdf(const std::filesystem::path& bestand);

/// The first page as it looks, in grey, with this many dots to the millimetre.
[[nodiscard]] QImage Pdfbeeld(const std::filesystem::path& bestand, int puntenPerMm);

} // namespace plexoran
