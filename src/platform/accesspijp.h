// What goes through the pipes between the program and the child that reads an Access database.
//
// Numbers are 32 bits, the lowest byte first; a text is its length and its bytes. The question:
//
//     <text path> <text table> <number of columns> and for each <byte kind> <text name>
//
// The path is in the system's own bytes, on Windows in UTF-8. The answer is a row of messages, each
// a byte that names it, the length of what follows, and that:
//
//     'T' <number>      how many rows the table says that it has; first
//     'R' <cells>       a row: per column a byte 0 for NULL, or a byte 1 and a text in UTF-8
//     'E' <number>      the end: as many rows were sent, which is what the table said; last
//     'F' <byte> <text> instead of all that is left: what is wrong, 'b' damaged or 'g' refused
//
// An answer without 'E' is worth nothing.
#pragma once

#include "platform/access.h"

namespace plexoran {

struct Accessvraag {
    std::string pad;
    Tekst tabel;
    std::vector<Accesskolom> kolommen;
};

[[nodiscard]] std::string SchrijfVraag(const Accessvraag& vraag);
/// Nothing for anything but one whole question.
[[nodiscard]] std::optional<Accessvraag> LeesVraag(std::string_view bytes);

/// The cells of a row in UTF-8; nothing for NULL.
using Ruwerij = std::vector<std::optional<std::string>>;

[[nodiscard]] std::string Tabelbericht(std::uint32_t rijen);
void VoegRijberichtToe(std::string& uit, const Ruwerij& rij);
[[nodiscard]] std::string Eindbericht(std::uint32_t rijen);
[[nodiscard]] std::string Foutbericht(Foutsoort soort, std::string_view reden);

/// Takes an answer apart, however it is cut into pieces.
class Antwoordlezer {
  public:
    explicit Antwoordlezer(std::size_t kolommen) : kolommen_(kolommen) {}

    /// False as soon as the bytes cannot be an answer; then nothing more may be handed in.
    [[nodiscard]] bool Neem(std::string_view bytes);
    /// The rows that came since the last call.
    [[nodiscard]] std::vector<Ruwerij> NeemRijen();

    /// Whether the end mark came, and nothing after it.
    [[nodiscard]] bool Klaar() const { return klaar_ && rest_.empty(); }
    [[nodiscard]] std::size_t Berichten() const { return berichten_; }
    [[nodiscard]] std::uint32_t Gelezen() const { return gelezen_; }
    [[nodiscard]] std::uint32_t Geheel() const { return geheel_.value_or(0); }
    /// What the child says is wrong, in `soort` and `systeem`.
    [[nodiscard]] const std::optional<Fout>& Melding() const { return melding_; }

  private:
    [[nodiscard]] bool NeemBericht(char soort, std::string_view inhoud);
    [[nodiscard]] bool NeemRij(std::string_view inhoud);

    std::size_t kolommen_;
    std::string rest_;
    std::vector<Ruwerij> rijen_;
    std::size_t berichten_ = 0;
    std::uint32_t gelezen_ = 0;
    std::optional<std::uint32_t> geheel_;
    std::optional<Fout> melding_;
    bool klaar_ = false;
};

} // namespace plexoran
