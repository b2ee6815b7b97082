#include "register/kopienaam.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Namen = std::vector<Tekst>;

/// What is left of these names on a day, the newest first.
Namen Blijft(const Namen& namen, const Tekst& vandaag)
{
    const Namen weg = Uitgediend(namen, vandaag);
    Namen uit;
    for (const Tekst& naam : namen) {
        if (std::find(weg.begin(), weg.end(), naam) == weg.end())
            uit.push_back(naam);
    }
    std::sort(uit.rbegin(), uit.rend());
    return uit;
}

/// The dates of so many days from one on.
Namen Dagen(Tekst dag, int aantal)
{
    Namen uit;
    for (int i = 0; i < aantal; ++i) {
        uit.push_back(dag);
        const int nummer = Dagnummer(dag).value() + 1;
        int jaar = std::stoi(dag.substr(0, 4));
        int maand = std::stoi(dag.substr(5, 2));
        int vanMaand = std::stoi(dag.substr(8, 2)) + 1;
        const auto als = [&] {
            return MetNullen(jaar, 4) + "-" + MetNullen(maand, 2) + "-" + MetNullen(vanMaand, 2);
        };
        if (!Dagnummer(als())) {
            vanMaand = 1;
            maand = maand % 12 + 1;
            jaar += maand == 1 ? 1 : 0;
        }
        dag = als();
        EXPECT_EQ(Dagnummer(dag), nummer);
    }
    return uit;
}

} // namespace

TEST(Kopienaam, LeestDeEigenNamen)
{
    const auto zip = KopienaamUit("2026-11-22 142233 voor import.zip").value();
    EXPECT_TRUE(zip.IsZip());
    EXPECT_EQ(zip.moment, "2026-11-22 142233");
    EXPECT_EQ(zip.reden, "voor import");
    EXPECT_EQ(zip.volgnummer, 1);
    const auto tweede = KopienaamUit("2026-11-22 142233-12 voor import.zip").value();
    EXPECT_EQ(tweede.volgnummer, 12);
    EXPECT_EQ(tweede.reden, "voor import");
    const auto kopie = KopienaamUit("RVDspelers 2026-11-22 142233-2.txt").value();
    EXPECT_FALSE(kopie.IsZip());
    EXPECT_EQ(kopie.bestand, "RVDspelers");
    EXPECT_EQ(kopie.volgnummer, 2);
    EXPECT_EQ(KopienaamUit("Gr01-A 2 2026-11-22 142233.txt").value().bestand, "Gr01-A 2");
    for (const char* naam : {"RVDGroepen 2026-11-22 142233.txt", "Plexo 2026-11-22 142233.ini"})
        EXPECT_TRUE(KopienaamUit(naam)) << naam;
}

TEST(Kopienaam, KentGeenAndereBestanden)
{
    for (const char* naam :
         {"", "2026-11-22 142233.zip", "2026-11-22 142233 .zip", "2026-11-22 voor import.zip",
          "2026-02-29 142233 voor import.zip", "2026-13-01 142233 voor import.zip",
          "2026-11-22 242233 voor import.zip", "2026-11-22 146033 voor import.zip",
          "2026-11-22 142233-x voor import.zip", "2026-11-22 142233 voor import.txt",
          "x2026-11-22 142233 voor import.zip", "oud 2026-11-22 142233 voor import.zip",
          "2026-11-22 142233 voor import.zip.~plexoran123", "Verslag 2026-11-22 142233.txt",
          "RVDspelers 2026-11-22 142233.zip", "RVDspelers 2026-11-22 142233 oud.txt",
          "RVDspelers.txt", "Plexo 2026-11-22 142233.txt", "Gra1-A 2026-11-22 142233.txt"})
        EXPECT_FALSE(KopienaamUit(naam)) << naam;
    EXPECT_TRUE(KopienaamUit("2028-02-29 142233 voor import.zip")) << "a leap year";
}

TEST(Kopienaam, DeNieuwsteEerst)
{
    const Namen namen{"2026-10-25 023000 een.zip",
                      "RVDspelers 2026-10-25 023000-3.txt",
                      "anders",
                      "2026-10-25 023000-2 een.zip",
                      "2026-10-25 023000-10 een.zip",
                      "2026-10-26 000000 een.zip"};
    Namen gesorteerd;
    for (const Kopienaam& kopie : Kopienamen(namen))
        gesorteerd.push_back(kopie.naam);
    EXPECT_EQ(gesorteerd, (Namen{"2026-10-26 000000 een.zip", "2026-10-25 023000-10 een.zip",
                                 "RVDspelers 2026-10-25 023000-3.txt",
                                 "2026-10-25 023000-2 een.zip", "2026-10-25 023000 een.zip"}));
}

TEST(Uitgediend, DeLaatsteTwintigBlijvenAltijd)
{
    Namen namen;
    for (int i = 10; i < 30; ++i)
        namen.push_back("2020-01-01 1200" + std::to_string(i) + " dagelijks.zip");
    EXPECT_EQ(Uitgediend(namen, "2026-11-22"), Namen());
    namen.emplace_back("2020-01-01 115959 dagelijks.zip");
    EXPECT_EQ(Uitgediend(namen, "2026-11-22"), Namen{"2020-01-01 115959 dagelijks.zip"})
        << "of a day that the last twenty already stand for";
}

TEST(Uitgediend, DanEenPerDagPerWeekEnPerMaand)
{
    // Three a day through two years, with a leap day and both changes of the clock in it.
    Namen namen;
    for (const Tekst& dag : Dagen("2027-01-01", 731)) {
        for (const char* tijd : {"090000", "130000", "200000"})
            namen.push_back(dag + " " + tijd + " dagelijks.zip");
    }
    // The last backup is that of Sunday 31 December 2028, in the evening.
    Namen moet;
    for (const char* dag :
         {"2028-12-31", "2028-12-30", "2028-12-29", "2028-12-28", "2028-12-27", "2028-12-26"}) {
        for (const char* tijd : {"200000", "130000", "090000"})
            moet.push_back(Tekst(dag) + " " + tijd + " dagelijks.zip");
    }
    moet.emplace_back("2028-12-25 200000 dagelijks.zip");
    moet.emplace_back("2028-12-25 130000 dagelijks.zip");
    for (const char* dag :
         {"2028-12-24", "2028-12-23", "2028-12-22", "2028-12-21", "2028-12-20", "2028-12-19",
          "2028-12-18", "2028-12-17", "2028-12-16", "2028-12-15", "2028-12-14", "2028-12-13",
          // Sundays
          "2028-12-10", "2028-12-03", "2028-11-26", "2028-11-19", "2028-11-12", "2028-11-05",
          "2028-10-29", "2028-10-22", "2028-10-15", "2028-10-08",
          // the last days of months
          "2028-09-30", "2028-08-31", "2028-07-31", "2028-06-30", "2028-05-31", "2028-04-30",
          "2028-03-31", "2028-02-29", "2028-01-31"})
        moet.push_back(Tekst(dag) + " 200000 dagelijks.zip");
    EXPECT_EQ(Blijft(namen, "2028-12-31"), moet);
}

TEST(Uitgediend, ElkeDagUitdunnenGeeftHetzelfdeAlsInEens)
{
    Namen allemaal;
    Namen staat;
    for (const Tekst& dag : Dagen("2027-01-01", 731)) {
        for (const char* tijd : {"090000", "130000", "200000"}) {
            allemaal.push_back(dag + " " + tijd + " dagelijks.zip");
            staat.push_back(allemaal.back());
            staat = Blijft(staat, dag);
            ASSERT_LE(staat.size(), 51U);
        }
    }
    const Namen inEens = Blijft(allemaal, "2028-12-31");
    // Days and weeks are the same; a month is stood for by its last week that was left.
    EXPECT_TRUE(std::equal(staat.begin(), staat.begin() + 42, inEens.begin()));
    EXPECT_EQ(staat.size(), 51U);
    EXPECT_EQ(staat.back().substr(0, 7), "2028-01");
}

TEST(Uitgediend, EenClubDieZeldenWerktHoudtWatErIs)
{
    Namen namen;
    for (int jaar = 2000; jaar < 2040; ++jaar)
        namen.push_back(std::to_string(jaar) + "-09-01 200000 voor eerste wijziging.zip");
    EXPECT_EQ(Uitgediend(namen, "2040-01-01"), Namen());
}

TEST(Uitgediend, KopieenBlijvenVierhonderdDagen)
{
    const Namen namen{"RVDspelers 2026-01-01 120000.txt", "Plexo 2026-01-01 000000.ini",
                      "Gr01-A 2026-01-02 235959.txt", "Notities 2020-01-01 120000.txt",
                      "RVDspelers.txt"};
    EXPECT_EQ(Uitgediend(namen, "2027-02-05"), Namen()) << "400 days later";
    EXPECT_EQ(Uitgediend(namen, "2027-02-06"),
              (Namen{"RVDspelers 2026-01-01 120000.txt", "Plexo 2026-01-01 000000.ini"}));
    EXPECT_EQ(Uitgediend(namen, "onzin"), Namen());
}
