#include <algorithm>
#include <utility>

#include "exchange/uitvoer.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

constexpr char Scheiding = ';';
constexpr unsigned Hoog = 0x80; // that no byte of ASCII has

/// The least characters, so that compilers make vector code of what looks for them.
constexpr bool MoetAangehaald(char teken)
{
    return teken == Scheiding || teken == '"' || teken == '\r' || teken == '\n';
}

constexpr bool IsFormuleteken(char teken)
{
    return teken == '=' || teken == '+' || teken == '-' || teken == '@' || teken == '\t' ||
           teken == '\r';
}

void VoegCelToe(Tekst& uit, Tekstblik tekst)
{
    const bool aangehaald = std::ranges::any_of(tekst, MoetAangehaald);
    if (aangehaald)
        uit += '"';
    if (LijktFormule(tekst))
        uit += '\'';
    for (const char teken : tekst)
        uit.append(aangehaald && teken == '"' ? 2 : 1, teken);
    if (aangehaald)
        uit += '"';
}

template <class Cel> Tekst Regel(const std::vector<Kolom>& kolommen, const Cel& cel)
{
    Tekst uit;
    for (const Kolom kolom : kolommen) {
        // A line without anything would be none to many readers.
        if (kolommen.size() == 1 && cel(kolom).empty())
            uit += "\"\"";
        VoegCelToe(uit, cel(kolom));
        uit += Scheiding;
    }
    uit.back() = '\r';
    return uit + '\n';
}

/// Columns that stand beside each other in the table too, the first and the last of them.
using Reeksen = std::vector<std::pair<Kolom, Kolom>>;

Reeksen ReeksenVan(const std::vector<Kolom>& kolommen)
{
    Reeksen uit;
    for (const Kolom kolom : kolommen) {
        const bool vervolg = !uit.empty() && Index(uit.back().second) + 1 == Index(kolom);
        if (vervolg && kolom != Kolom::Groep && uit.back().second != Kolom::Groep)
            uit.back().second = kolom;
        else
            uit.emplace_back(kolom, kolom); // of a group the code alone
    }
    return uit;
}

/// A line copied as it stands in the table, behind the end of another: that is nearly all of them,
/// and keeps pace with a disk. False, and nothing is added, where a character needs more.
bool VoegGewoneToe(Tekst& uit, const Uitvoer& uitvoer, int rij, const Reeksen& reeksen, bool utf8)
{
    const auto begin = uit.size();
    for (const auto& [van, tot] : reeksen) {
        uit += van == tot ? uitvoer.tabel.Cel(rij, van) : uitvoer.tabel.Celreeks(rij, van, tot);
        uit += ',';
    }
    uit.pop_back();
    unsigned anders = 0;
    for (std::size_t i = begin; i < uit.size(); ++i) {
        const char teken = uit[i];
        const unsigned eerste = uit[i - 1] == ',' || uit[i - 1] == '\n' ? 1 : 0;
        const unsigned bijzonder = IsFormuleteken(teken) || teken == '\'' ? eerste : 0;
        anders |=
            (MoetAangehaald(teken) ? 1U : bijzonder) | (static_cast<unsigned char>(teken) & Hoog);
    }
    if ((anders & 1U) != 0 || uitvoer.kolommen.size() == 1) {
        uit.resize(begin);
        return false;
    }
    std::replace(uit.begin() + static_cast<std::ptrdiff_t>(begin), uit.end(), ',', Scheiding);
    if (utf8 && anders != 0)
        uit.replace(begin, Tekst::npos, NaarUtf8(Tekstblik(uit).substr(begin)));
    uit += "\r\n";
    return true;
}

} // namespace

bool LijktFormule(Tekstblik tekst)
{
    const auto plek = tekst.find_first_not_of('\'');
    return plek != Tekstblik::npos && IsFormuleteken(tekst[plek]);
}

Uitvoerbytes MaakCsv(const Uitvoer& uitvoer, Tekenset tekenset, const Voortgang& voortgang)
{
    const bool utf8 = tekenset == Tekenset::Utf8;
    const Reeksen reeksen = ReeksenVan(uitvoer.kolommen);
    Tekst uit(utf8 ? "\xEF\xBB\xBF" : "");
    uit.reserve(uitvoer.tabel.AantalBytes() * 9 / 8);
    uit += Regel(uitvoer.kolommen, [](Kolom kolom) { return Kolomnamen[Index(kolom)]; });
    for (std::size_t i = 0; i < uitvoer.rijen.size(); ++i) {
        if (!MagDoor(voortgang, i, uitvoer.rijen.size()))
            return std::nullopt;
        const int rij = uitvoer.rijen[i];
        if (VoegGewoneToe(uit, uitvoer, rij, reeksen, utf8))
            continue;
        const Tekst regel =
            Regel(uitvoer.kolommen, [&](Kolom kolom) { return uitvoer.tabel.Cel(rij, kolom); });
        uit += utf8 ? NaarUtf8(regel) : regel;
    }
    return uit;
}

} // namespace plexoran
