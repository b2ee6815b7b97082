// A club's folders on a disk in memory, and what stands in them.
#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "register/spelerbestand.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {

inline constexpr const char* spelersmap = "C:\\club\\Spelers";
inline constexpr const char* spelerbestand = "C:\\club\\Spelers\\RVDspelers.txt";
inline constexpr const char* groepenbestand = "C:\\club\\Spelers\\RVDGroepen.txt";
inline constexpr const char* instellingenbestand = "C:\\club\\Beheer\\Plexo.ini";

/// Under another root on another disk.
inline Mappen Proefmappen(const Pad& wortel = "C:\\club")
{
    Mappen mappen;
    mappen.SPEMAP = Samen(wortel, "Spelers");
    mappen.ADMMAP = Samen(wortel, "Beheer");
    return mappen;
}

/// Five players whose rows differ in everything that a test may mix up.
inline const Tekst vijfSpelers = "HKEY=100042\r\n"
                                 "1,100001,Gr01-,An,,Bos,,,,,,,V,,,,,\r\n"
                                 "2,100005,Gr01-,Bea,de,Cock,,,,,,,V,,,,A-lijn,\r\n"
                                 "3,100003,Gr02-,Cor,van der,Dam,,,,,,,M,,,overl,,\r\n"
                                 "4,100004,Gr05-,Dirk,,Eik,,,,,,,M,,,,NBB1,12345678\r\n"
                                 "5,100042,Gr50-,Els,,Fuik,06-1,e@f.example,Pad 1,1234 AB,Ede,NL,V,"
                                 "een,twee,,,\r\n";

/// The contents of the copies that stand beside the player file, in the order of their names;
/// what a broken save left half-way is not one.
inline std::vector<Tekst> Kopieen(Schijf& schijf, const Mappen& mappen = Proefmappen())
{
    const Pad map = Samen(mappen.SPEMAP, "Reservekopie");
    std::vector<Tekst> uit;
    auto namen = schijf.Bestanden(map);
    if (!namen)
        return uit;
    std::sort(namen->begin(), namen->end());
    for (const Tekst& naam : *namen) {
        if (naam.find(".~") == Tekst::npos)
            uit.push_back(schijf.LeesBestand(Samen(map, naam)).value_or("onleesbaar"));
    }
    return uit;
}

/// On the disk of the club.
inline Leesverslag Lees(Schijf& schijf, Register& spelers)
{
    return LeesSpelers(schijf, Proefmappen(), spelers);
}

inline Uitkomst<void> Bewaar(Schijf& schijf, Register& spelers,
                             Overschrijven overschrijven = Overschrijven::AlleenEigen)
{
    return SchrijfSpelers(schijf, Proefmappen(), spelers, overschrijven);
}

/// None where it went well.
template <class T> std::optional<Foutsoort> SoortVan(const Uitkomst<T>& uitkomst)
{
    return uitkomst ? std::nullopt : std::optional(uitkomst.error().soort);
}

/// A register that was read from a disk with this player file.
inline Register Gelezen(GeheugenSchijf& schijf, Tekstblik inhoud)
{
    schijf.Zet(spelerbestand, inhoud);
    Register spelers;
    Lees(schijf, spelers);
    return spelers;
}

} // namespace plexoran
