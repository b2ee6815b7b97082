#include "mainwindow/weergave.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

/// Rows "<Nr>,<Key>,<Groep>" with the keys 100001, 100002, ...
Spelertabel Tabel(std::initializer_list<Tekst> groepen)
{
    Spelertabel tabel;
    for (const Tekst& groep : groepen) {
        const int rij = tabel.Rijen() + 1;
        Rijvelden velden;
        velden[Plaats(Kolom::Nr)] = std::to_string(rij);
        velden[Plaats(Kolom::Key)] = std::to_string(100'000 + rij);
        velden[Plaats(Kolom::Groep)] = groep;
        tabel.VoegToe(velden);
    }
    return tabel;
}

Tekst Inhoud(const Spelertabel& tabel)
{
    Tekst uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        uit.append(tabel.Cel(rij, Kolom::Nr)) +=
            ":" + Tekst(tabel.Cel(rij, Kolom::Key).substr(5)) + " ";
    return uit;
}

} // namespace

TEST(VerwijderRijen, NeemtDeRijVanDeRegelNietDeRijMetDatNummer)
{
    Spelertabel tabel = Tabel({"Gr01-", "Gr02-", "Gr01-", "Gr02-", "Gr02-", "Gr01-"});
    VerwijderRijen(tabel, BouwWeergave(tabel, "Gr02-"), 3, 3); // row 5
    EXPECT_EQ("1:1 2:2 3:3 4:4 5:6 ", Inhoud(tabel));
}

TEST(VerwijderRijen, DeLaatsteSpelerLaatEenLegeTabel)
{
    Spelertabel tabel = Tabel({"Gr02-"});
    VerwijderRijen(tabel, BouwWeergave(tabel, "Gr02-"), 1, 1);
    EXPECT_EQ(0, tabel.Rijen());
}

TEST(VerwijderRijen, NeemtVanTotEnMetEnNummertOpnieuw)
{
    Spelertabel tabel = Tabel({"Gr01-", "Gr02-", "Gr01-", "Gr02-", "Gr02-", "Gr02-"});
    VerwijderRijen(tabel, BouwWeergave(tabel, "Gr02-"), 2, 3); // rows 4 and 5
    EXPECT_EQ("1:1 2:2 3:3 4:6 ", Inhoud(tabel));
}

TEST(VerwijderRijen, EenHeleGroepLaatDeAndereGroepenStaan)
{
    Spelertabel tabel = Tabel({"Gr02-", "Gr01-", "Gr02-", "Gr01-", "Gr02-"});
    VerwijderRijen(tabel, BouwWeergave(tabel, "Gr02-"), 1, 3);
    EXPECT_EQ("1:2 2:4 ", Inhoud(tabel));
}

/// A row that came without a number is not the one that was chosen, so it stays.
TEST(VerwijderRijen, EenRijZonderNummerBlijftStaan)
{
    Spelertabel tabel = Tabel({"Gr02-", "Gr02-", "Gr02-"});
    tabel.ZetCel(2, Kolom::Nr, "");
    VerwijderRijen(tabel, BouwWeergave(tabel, "Gr02-"), 3, 3);
    EXPECT_EQ("1:1 2:2 ", Inhoud(tabel));
}
