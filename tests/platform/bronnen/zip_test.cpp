#include "platform/bronnen/zip.h"

#include <gtest/gtest.h>

#include "hulp/fouten.h"

using namespace plexoran;

namespace {

using Delen = std::vector<Zipdeel>;

/// With an empty file, a name in a folder with an accent, and every byte.
Delen Voorbeeld()
{
    Tekst alles;
    for (int i = 0; i < 256; ++i)
        alles += static_cast<char>(i);
    return {{"RVDspelers.txt", "HKEY=100001\r\n"},
            {"leeg.txt", ""},
            {"Parenmap\\Gr05-D\xEDnsdag.txt", alles}};
}

/// A zip of one file, with another name of the same length put in afterwards.
Tekst MetNaam(const Tekst& naam)
{
    const Tekst eerst(naam.size(), 'q');
    Tekst zip = ZipVan({{eerst, "inhoud"}}, "").value();
    for (auto plek = zip.find(eerst); plek != Tekst::npos; plek = zip.find(eerst))
        zip.replace(plek, naam.size(), naam);
    return zip;
}

} // namespace

TEST(Zip, KomtTerugZoalsHetWas)
{
    const Tekst zip = ZipVan(Voorbeeld(), "spelers=1").value();
    EXPECT_EQ(zip.substr(0, 4), "PK\x03\x04");
    EXPECT_NE(zip.find("Parenmap/Gr05-D\xC3\xADnsdag.txt"), Tekst::npos) << "as others name it";
    EXPECT_EQ(Uitgepakt(zip).value(), Voorbeeld());
    EXPECT_EQ(Toelichting(zip).value(), "spelers=1");
}

TEST(Zip, GrootEnKlein)
{
    const Tekst groot(5'000'000, 'x');
    const Tekst zip = ZipVan({{"a", groot}}, "").value();
    EXPECT_LT(zip.size(), groot.size() / 50);
    EXPECT_EQ(Uitgepakt(zip).value(), (Delen{{"a", groot}}));
}

TEST(Zip, AfgebrokenOpElkeLengteWordtGeweigerd)
{
    const Tekst zip = ZipVan(Voorbeeld(), "spelers=1").value();
    for (std::size_t lengte = 0; lengte < zip.size(); ++lengte) {
        const Tekstblik deel = Tekstblik(zip).substr(0, lengte);
        const Fout fout = FoutVan(Uitgepakt(deel));
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd) << lengte;
        EXPECT_EQ(fout.systeem.substr(0, 35), "het is geen zipbestand dat heel is ") << lengte;
    }
}

TEST(Zip, EenAndereByteGeeftNooitAndereInhoud)
{
    const Tekst zip = ZipVan(Voorbeeld(), "").value();
    int geweigerd = 0;
    for (std::size_t plek = 0; plek < zip.size(); ++plek) {
        for (const int bit : {0x01, 0x10, 0x80}) {
            Tekst anders = zip;
            anders[plek] = static_cast<char>(anders[plek] ^ bit);
            const auto delen = Uitgepakt(anders);
            geweigerd += delen ? 0 : 1;
            if (!delen)
                continue;
            for (std::size_t i = 0; i < delen->size(); ++i) // a name has no sum
                EXPECT_EQ((*delen)[i].inhoud, Voorbeeld().at(i).inhoud) << plek << ' ' << bit;
        }
    }
    EXPECT_GT(geweigerd, static_cast<int>(zip.size()));
}

TEST(Zip, NamenBlijvenInDeMap)
{
    EXPECT_EQ(Uitgepakt(MetNaam("map/bestand")).value().front().naam, "map\\bestand");
    for (const char* naam : {"../qqq", "map/../qqq", "/qqq", "C:qqq", "map/", "map//q", "..\\qqq",
                             "./qqq", "q\xE2\x82\xBFq"})
        EXPECT_EQ(FoutVan(Uitgepakt(MetNaam(naam))).soort, Foutsoort::Beschadigd) << naam;
}

TEST(Zip, TeVeelWordtNietUitgepakt)
{
    Delen veel;
    for (int i = 0; i <= 10'000; ++i)
        veel.push_back({"b" + std::to_string(i), ""});
    EXPECT_EQ(FoutVan(Uitgepakt(ZipVan(veel, "").value())).soort, Foutsoort::Beschadigd);
    veel.pop_back();
    EXPECT_EQ(Uitgepakt(ZipVan(veel, "").value()).value().size(), 10'000U);
    const Tekst zip =
        ZipVan({{"een", Tekst(600'000, 'x')}, {"twee", Tekst(600'000, 'x')}}, "").value();
    EXPECT_LT(zip.size(), 20'000U);
    EXPECT_TRUE(Uitgepakt(zip, 1'200'000));
    EXPECT_EQ(FoutVan(Uitgepakt(zip, 1'199'999)).soort, Foutsoort::Beschadigd);
}
