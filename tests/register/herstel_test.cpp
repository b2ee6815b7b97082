#include "register/herstel.h"

#include "register/registerhulp.h"

using namespace plexoran;

namespace {

/// A register of these lines without their row numbers, which follow from their order.
struct Toestand {
    Toestand(std::int32_t hoogste, const std::vector<Tekst>& spelers) : HKEY(hoogste)
    {
        Tekst inhoud = "HKEY=" + std::to_string(hoogste) + "\r\n";
        int nr = 0;
        for (const Tekst& speler : spelers)
            inhoud += std::to_string(++nr) + "," + speler + ",,,,,,,,,,,,\r\n";
        tabel = SpelersUit(inhoud).tabel.value();
    }
    [[nodiscard]] Stand AlsStand() const { return {tabel, HKEY}; }

    Spelertabel tabel;
    std::int32_t HKEY;
};

Tekst Regel(const Spelertabel& tabel, int rij)
{
    Tekst uit(tabel.Cel(rij, Kolom::Nr));
    for (const Kolom kolom : {Kolom::Key, Kolom::Groep, Kolom::Voornaam, Kolom::Achternaam})
        uit.append(" ").append(tabel.Cel(rij, kolom));
    return uit;
}

using Teksten = std::vector<Tekst>;
using Keys = std::set<Tekst>;

Teksten Regels(const Spelertabel& tabel)
{
    Teksten uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        uit.push_back(Regel(tabel, rij));
    return uit;
}

/// "key nu toen", by row.
Teksten VerschillenVan(const Toestand& nu, const Toestand& toen)
{
    Teksten uit;
    for (const auto& [key, rijNu, rijToen] : Verschillen(nu.tabel, toen.tabel))
        uit.push_back(key + " " + std::to_string(rijNu) + " " + std::to_string(rijToen));
    return uit;
}

Keys AlleKeys(const Toestand& nu, const Toestand& toen)
{
    Keys uit;
    for (const Rijverschil& verschil : Verschillen(nu.tabel, toen.tabel))
        uit.insert(verschil.key);
    return uit;
}

const Toestand Toen(100004, {"100001,Gr01-,An,,Bos", "100002,Gr01-,Bea,,Cock",
                             "100003,Gr02-,Cor,,Dam", "100004,Gr02-,Dirk,,Eik"});
/// Bea and Dirk went, Cor changed, Els came, and An stands last.
const Toestand NuAnders(100005, {"100003,Gr02-,Cor,,Anders", "100005,Gr01-,Els,,Fuik",
                                 "100001,Gr01-,An,,Bos"});

} // namespace

TEST(Verschillen, WieKwamGingEnVeranderde)
{
    EXPECT_EQ(VerschillenVan(NuAnders, Toen),
              (Teksten{"100003 1 3", "100005 2 0", "100002 0 2", "100004 0 4"}));
    EXPECT_EQ(VerschillenVan(Toen, Toen), Teksten());
}

TEST(Verschillen, RijenDieGeenKeyOnderscheidtZijnEenVerschil)
{
    const Toestand dubbel(100002,
                          {"100001,Gr01-,An,,Bos", "100001,Gr01-,Bea,,Cock", "x,Gr01-,C,,D"});
    const Toestand anders(100002,
                          {"x,Gr01-,C,,D", "100001,Gr01-,Bea,,Cock", "100001,Gr01-,An,,Bos"});
    EXPECT_EQ(VerschillenVan(dubbel, anders), Teksten()) << "only their order differs";
    const Toestand minder(100002, {"100001,Gr01-,An,,Bos", "x,Gr01-,C,,D"});
    EXPECT_EQ(VerschillenVan(minder, dubbel), Teksten{" 0 0"});
}

TEST(Herstel, AllesKomtTerugOpZijnPlaats)
{
    const Menging uit = Herstel(NuAnders.AlsStand(), Toen.AlsStand(), AlleKeys(NuAnders, Toen));
    EXPECT_EQ(Regels(uit.tabel), (Teksten{"1 100003 Gr02- Cor Dam", "2 100001 Gr01- An Bos",
                                          "3 100002 Gr01- Bea Cock", "4 100004 Gr02- Dirk Eik"}));
    EXPECT_EQ(uit.HKEY, 100005) << "never lowered";
    EXPECT_TRUE(Verschillen(uit.tabel, Toen.tabel).empty());
}

TEST(Herstel, AlleenDeGekozenSpelers)
{
    const auto met = [](const Keys& keys) {
        return Regels(Herstel(NuAnders.AlsStand(), Toen.AlsStand(), keys).tabel);
    };
    EXPECT_EQ(met({}), Regels(NuAnders.tabel));
    EXPECT_EQ(met({"100003"}), (Teksten{"1 100003 Gr02- Cor Dam", "2 100005 Gr01- Els Fuik",
                                        "3 100001 Gr01- An Bos"}));
    EXPECT_EQ(met({"100005"}), (Teksten{"1 100003 Gr02- Cor Anders", "2 100001 Gr01- An Bos"}));
    EXPECT_EQ(met({"100002"}), (Teksten{"1 100003 Gr02- Cor Anders", "2 100005 Gr01- Els Fuik",
                                        "3 100001 Gr01- An Bos", "4 100002 Gr01- Bea Cock"}));
    EXPECT_EQ(met({"100004"}), (Teksten{"1 100003 Gr02- Cor Anders", "2 100004 Gr02- Dirk Eik",
                                        "3 100005 Gr01- Els Fuik", "4 100001 Gr01- An Bos"}));
}

TEST(Herstel, EenLeegOfKapotRegisterKomtTerugZoalsHetWas)
{
    const Toestand leeg(100000, {});
    const Menging uit = Herstel(leeg.AlsStand(), Toen.AlsStand(), AlleKeys(leeg, Toen));
    EXPECT_EQ(Regels(uit.tabel), Regels(Toen.tabel));
    EXPECT_EQ(uit.HKEY, 100004) << "the highest key of the two";
}

TEST(Herstel, RijenZonderEigenKeyAlleenSamen)
{
    const Toestand toen(100002, {"100001,Gr01-,An,,Bos", "x,Gr01-,Bea,,Cock", "x,Gr01-,Cor,,Dam"});
    const Toestand nu(100002, {"100001,Gr01-,Anna,,Bos", "x,Gr01-,Bea,,Cock", "y,Gr01-,Dirk,,Eik"});
    const auto met = [&](const Keys& keys) {
        return Regels(Herstel(nu.AlsStand(), toen.AlsStand(), keys).tabel);
    };
    EXPECT_EQ(met({"100001"}),
              (Teksten{"1 100001 Gr01- An Bos", "2 x Gr01- Bea Cock", "3 y Gr01- Dirk Eik"}));
    EXPECT_EQ(met({""}),
              (Teksten{"1 100001 Gr01- Anna Bos", "2 x Gr01- Bea Cock", "3 x Gr01- Cor Dam"}));
}

TEST(Herstel, EenKeyDieToenDubbelWasEnNuNiet)
{
    const Toestand toen(100002, {"100001,Gr01-,An,,Bos", "100001,Gr01-,Bea,,Cock"});
    const Toestand nu(100002, {"100001,Gr01-,Cor,,Dam", "100002,Gr01-,Els,,Fuik"});
    EXPECT_EQ(Regels(Herstel(nu.AlsStand(), toen.AlsStand(), {"100002"}).tabel),
              Teksten{"1 100001 Gr01- Cor Dam"});
    EXPECT_EQ(
        Regels(Herstel(nu.AlsStand(), toen.AlsStand(), {""}).tabel),
        (Teksten{"1 100001 Gr01- An Bos", "2 100001 Gr01- Bea Cock", "3 100002 Gr01- Els Fuik"}));
}

TEST(Herstel, GrootBlijftSnel)
{
    std::vector<Tekst> spelers;
    for (int i = 0; i < 100'000; ++i)
        spelers.push_back(std::to_string(100'001 + i) + ",Gr01-,An,,Bos" + std::to_string(i));
    const Toestand toen(200'000, spelers);
    const Toestand leeg(100'000, {});
    const Menging uit = Herstel(leeg.AlsStand(), toen.AlsStand(), AlleKeys(leeg, toen));
    EXPECT_EQ(uit.tabel.Rijen(), 100'000);
}
