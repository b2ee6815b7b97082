// The player file read in the plainest way, in two passes over copied lines and fields, to compare
// the real reader with. It shares no code with it on purpose: speed is no aim, likeness is a fault.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace plexoran::gewoon {

using Velden = std::vector<std::string>;

struct Lezing {
    bool tabel = true; ///< false when the first pass ended in an error
    std::vector<Velden> rijen;
    std::optional<std::int32_t> HKEY;
    int foutregel = 0;   ///< from 1; 0 without an error
    int foutvelden = -1; ///< 0 for an impossible key; -1 without an error
    std::vector<int> zonderAchternaam;
    int sleutelregels = 0;
    bool sleutelVerliest = false; ///< a key line holds something that is not written again
};

inline std::vector<std::string> Regels(const std::string& inhoud)
{
    std::vector<std::string> regels;
    for (std::size_t begin = 0; begin < inhoud.size();) {
        const auto eind = std::min(inhoud.find_first_of("\r\n", begin), inhoud.size());
        regels.push_back(inhoud.substr(begin, eind - begin));
        begin = eind + (inhoud.substr(eind, 2) == "\r\n" ? 2 : 1);
    }
    return regels;
}

inline Velden Splits(const std::string& regel)
{
    Velden velden(1);
    for (const char teken : regel) {
        if (teken == ',')
            velden.emplace_back();
        else
            velden.back() += teken;
    }
    return velden;
}

inline bool IsLeeg(const std::string& regel)
{
    return regel.find_first_not_of(' ') == std::string::npos;
}

inline bool IsSleutelregel(const std::string& regel)
{
    return regel.starts_with("HKEY=");
}

inline std::string Cijfers(const std::string& tekst, std::size_t& plaats)
{
    std::string cijfers;
    while (plaats < tekst.size() && tekst[plaats] >= '0' && tekst[plaats] <= '9')
        cijfers += tekst[plaats++];
    return cijfers;
}

/// The number at the start of a text, rounded half to even; nothing when 32 bits cannot hold it.
inline std::optional<std::int32_t> Getal(const std::string& tekst)
{
    std::size_t plaats = 0;
    while (plaats < tekst.size() && tekst[plaats] == ' ')
        ++plaats;
    const bool min = plaats < tekst.size() && tekst[plaats] == '-';
    if (min || (plaats < tekst.size() && tekst[plaats] == '+'))
        ++plaats;
    std::string geheel = "0" + Cijfers(tekst, plaats);
    geheel.erase(0, geheel.find_first_not_of('0'));
    std::string breuk;
    if (plaats < tekst.size() && tekst[plaats] == '.')
        breuk = Cijfers(tekst, ++plaats);
    while (!breuk.empty() && breuk.back() == '0')
        breuk.pop_back();
    if (geheel.size() > 10)
        return std::nullopt;
    long long waarde = geheel.empty() ? 0 : std::stoll(geheel);
    if (breuk > "5" || (breuk == "5" && waarde % 2 == 1))
        ++waarde;
    waarde = min ? -waarde : waarde;
    if (waarde < std::numeric_limits<std::int32_t>::min() ||
        waarde > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(waarde);
}

/// Whether a text is digits and nothing else, outer spaces apart.
inline bool IsKaalGetal(const std::string& tekst)
{
    const auto begin = tekst.find_first_not_of(' ');
    if (begin == std::string::npos)
        return false;
    const auto kern = tekst.substr(begin, tekst.find_last_not_of(' ') - begin + 1);
    return kern.find_first_not_of("0123456789") == std::string::npos;
}

/// Counting; false on an error.
inline bool EersteGang(const std::vector<std::string>& regels, Lezing& uit)
{
    for (std::size_t i = 0; i < regels.size(); ++i) {
        if (IsLeeg(regels[i]))
            continue;
        if (IsSleutelregel(regels[i])) {
            const auto getal = Getal(regels[i].substr(5));
            uit.sleutelVerliest |= ++uit.sleutelregels > 1 || !IsKaalGetal(regels[i].substr(5));
            if (getal)
                uit.HKEY = *getal < 100000 ? 100000 : *getal;
            else
                uit.foutvelden = 0;
        } else if (Splits(regels[i]).size() < 6) {
            uit.foutvelden = static_cast<int>(Splits(regels[i]).size());
        }
        if (uit.foutvelden >= 0) {
            uit.foutregel = static_cast<int>(i + 1);
            return false;
        }
    }
    return true;
}

inline void TweedeGang(const std::vector<std::string>& regels, Lezing& uit)
{
    for (std::size_t i = 0; i < regels.size(); ++i) {
        if (IsLeeg(regels[i]) || IsSleutelregel(regels[i]))
            continue;
        Velden velden = Splits(regels[i]);
        if (velden[5].empty()) {
            uit.zonderAchternaam.push_back(static_cast<int>(i + 1));
            continue;
        }
        if (velden.size() < 18) {
            uit.foutregel = static_cast<int>(i + 1);
            uit.foutvelden = static_cast<int>(velden.size());
            return;
        }
        velden.resize(18);
        velden[2] = velden[2].substr(0, 5);
        uit.rijen.push_back(velden);
    }
}

inline Lezing Lees(const std::string& inhoud)
{
    Lezing uit;
    const auto regels = Regels(inhoud);
    uit.tabel = EersteGang(regels, uit);
    if (uit.tabel)
        TweedeGang(regels, uit);
    return uit;
}

/// What a file holds of players: every line that is not blank and no key line, without its first
/// field, the row number, which every save gives anew.
inline std::vector<std::string> Spelersinhoud(const std::string& inhoud)
{
    std::vector<std::string> uit;
    for (const std::string& regel : Regels(inhoud)) {
        if (!IsLeeg(regel) && !IsSleutelregel(regel))
            uit.push_back(regel.substr(std::min(regel.find(','), regel.size())));
    }
    return uit;
}

/// Whether writing `tekst`, which was made of what was read, loses something of the file.
inline bool Verliest(const Lezing& lezing, const std::string& inhoud, const std::string& tekst)
{
    return lezing.sleutelVerliest || (lezing.sleutelregels == 0 && !lezing.rijen.empty()) ||
           Spelersinhoud(inhoud) != Spelersinhoud(tekst);
}

} // namespace plexoran::gewoon
