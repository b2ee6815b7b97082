#include <algorithm>
#include <array>

#include "exchange/uitvoer.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

constexpr char Scheiding = ';';
constexpr std::size_t Blok = 64 * 1024; // bytes that are converted at once

/// Apostrophes in front count with it: one more can always be taken off again.
bool LijktFormule(Tekstblik tekst)
{
    while (tekst.starts_with('\''))
        tekst.remove_prefix(1);
    switch (tekst.empty() ? '\0' : tekst.front()) {
    case '=':
    case '+':
    case '-':
    case '@':
    case '\t':
    case '\r':
        return true;
    default:
        return false;
    }
}

/// Which characters need quotes: all cells are looked at, and few hold one.
constexpr auto Bijzonder = [] {
    std::array<bool, 256> uit{};
    for (const char teken : {Scheiding, '"', '\r', '\n'})
        uit[static_cast<unsigned char>(teken)] = true;
    return uit;
}();

void VoegCelToe(Tekst& uit, Tekstblik tekst)
{
    bool aangehaald = false;
    for (const char teken : tekst)
        aangehaald |= Bijzonder[static_cast<unsigned char>(teken)];
    if (aangehaald)
        uit += '"';
    if (LijktFormule(tekst))
        uit += '\'';
    if (!aangehaald) {
        uit += tekst;
        return;
    }
    for (const char teken : tekst)
        uit.append(teken == '"' ? 2 : 1, teken);
    uit += '"';
}

template <class Cel>
void VoegRegelToe(Tekst& uit, const std::vector<Kolom>& kolommen, const Cel& cel)
{
    for (const Kolom kolom : kolommen) {
        // A line without anything would be none to many readers.
        if (kolommen.size() == 1 && cel(kolom).empty())
            uit += "\"\"";
        VoegCelToe(uit, cel(kolom));
        uit += Scheiding;
    }
    uit.back() = '\r';
    uit += '\n';
}

} // namespace

Uitvoerbytes MaakCsv(const Uitvoer& uitvoer, Tekenset tekenset, const Voortgang& voortgang)
{
    const std::vector<int>& rijen = uitvoer.rijen;
    const bool utf8 = tekenset == Tekenset::Utf8;
    Tekst uit(utf8 ? "\xEF\xBB\xBF" : "");
    uit.reserve(uitvoer.tabel.AantalBytes() * 9 / 8);
    Tekst blok;
    const auto leegBlok = [&] {
        uit += utf8 ? NaarUtf8(blok) : blok;
        blok.clear();
    };
    VoegRegelToe(blok, uitvoer.kolommen, [](Kolom kolom) { return Kolomnamen[Index(kolom)]; });
    for (std::size_t i = 0; i < rijen.size(); ++i) {
        if (!MagDoor(voortgang, i, rijen.size()))
            return std::nullopt;
        VoegRegelToe(blok, uitvoer.kolommen,
                     [&, rij = rijen[i]](Kolom kolom) { return uitvoer.tabel.Cel(rij, kolom); });
        if (blok.size() >= Blok)
            leegBlok();
    }
    leegBlok();
    return uit;
}

} // namespace plexoran
