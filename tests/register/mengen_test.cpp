#include "register/mengen.h"

#include <map>
#include <random>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

/// A register of rows of key, first name, surname and telephone number, in that order.
struct Kant {
    std::int32_t HKEY;
    std::vector<std::array<Tekst, 4>> rijen;
};

Spelertabel Tabel(const Kant& kant)
{
    Spelertabel tabel;
    for (const auto& [key, voornaam, achternaam, telef] : kant.rijen) {
        Rijvelden velden{std::to_string(tabel.Rijen() + 1), key, "Gr01-"};
        velden[Index(Kolom::Voornaam)] = voornaam;
        velden[Index(Kolom::Achternaam)] = achternaam;
        velden[Index(Kolom::Telef)] = telef;
        tabel.VoegToe(velden);
    }
    return tabel;
}

Menging MengKanten(const Kant& basis, const Kant& ons, const Kant& ander,
                   const std::set<Tekst>& voorOns = {})
{
    const Spelertabel tabellen[]{Tabel(basis), Tabel(ons), Tabel(ander)};
    return Meng({tabellen[0], basis.HKEY}, {tabellen[1], ons.HKEY}, {tabellen[2], ander.HKEY},
                voorOns);
}

/// "1 100001 An Bos 06-1;" for every row.
Tekst Rijen(const Spelertabel& tabel)
{
    Tekst uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        for (const Kolom kolom :
             {Kolom::Nr, Kolom::Key, Kolom::Voornaam, Kolom::Achternaam, Kolom::Telef}) {
            if (kolom != Kolom::Nr)
                uit += ' ';
            uit += tabel.Cel(rij, kolom);
        }
        uit += ';';
    }
    return uit;
}

Tekst Namen(const std::vector<Tekst>& namen)
{
    Tekst uit;
    for (const Tekst& naam : namen)
        uit += naam + ";";
    return uit;
}

const Kant drie{100003,
                {{"100001", "An", "Bos", "06-1"},
                 {"100002", "Bea", "Cock", "06-2"},
                 {"100003", "Cor", "Dam", "06-3"}}};

/// `drie` with another row in a place, or without the row there.
Kant Met(std::size_t plaats, std::array<Tekst, 4> rij)
{
    Kant kant = drie;
    kant.rijen[plaats] = std::move(rij);
    return kant;
}
Kant Zonder(std::size_t plaats)
{
    Kant kant = drie;
    kant.rijen.erase(kant.rijen.begin() + static_cast<std::ptrdiff_t>(plaats));
    return kant;
}

} // namespace

TEST(Mengen, NeemtWatDeAnderVeranderdeEnHoudtWatWijVeranderden)
{
    const Menging uit = MengKanten(drie, Met(0, {"100001", "Anna", "Bos", "06-1"}),
                                   Met(0, {"100001", "An", "Bos", "06-9"}));
    EXPECT_EQ(Rijen(uit.tabel),
              "1 100001 Anna Bos 06-9;2 100002 Bea Cock 06-2;3 100003 Cor Dam 06-3;");
    EXPECT_EQ(Namen(uit.overgenomen), "An Bos;");
    EXPECT_TRUE(uit.botsingen.empty());
    EXPECT_EQ(uit.HKEY, 100003);
}

TEST(Mengen, DezelfdeWijzigingBotstNietEnIsGeenNieuws)
{
    const Kant zelfde = Met(1, {"100002", "Bea", "Cock", ""});
    const Menging uit = MengKanten(drie, zelfde, zelfde);
    EXPECT_EQ(Rijen(uit.tabel), Rijen(Tabel(zelfde)));
    EXPECT_EQ(Namen(uit.overgenomen), "");
    EXPECT_TRUE(uit.botsingen.empty());
}

TEST(Mengen, WieEenVanBeidenVerwijderdeIsWeg)
{
    const Menging uit = MengKanten(drie, Zonder(0), Zonder(1));
    EXPECT_EQ(Rijen(uit.tabel), "1 100003 Cor Dam 06-3;");
    EXPECT_EQ(Namen(uit.overgenomen), "Bea Cock;") << "who was deleted here is no news";
    EXPECT_EQ(Rijen(MengKanten(drie, Zonder(0), Zonder(0)).tabel),
              "1 100002 Bea Cock 06-2;2 100003 Cor Dam 06-3;");
}

TEST(Mengen, HetzelfdeVeldBotst)
{
    const Kant ons = Met(1, {"100002", "Bea", "Cock", "06-8"});
    const Kant ander = Met(1, {"100002", "Beate", "Cock", "06-9"});
    const Menging uit = MengKanten(drie, ons, ander);
    ASSERT_EQ(uit.botsingen.size(), 1U);
    EXPECT_EQ(uit.botsingen[0].key, "100002");
    EXPECT_EQ(uit.botsingen[0].links, Tabel(ons).Velden(2));
    EXPECT_EQ(uit.botsingen[0].rechts, Tabel(ander).Velden(2));
    EXPECT_EQ(Rijen(uit.tabel), Rijen(Tabel(ander))) << "the other's goes into the file";
    EXPECT_EQ(Namen(uit.overgenomen), "");
    EXPECT_EQ(Rijen(MengKanten(drie, ons, ander, {"100002"}).tabel), Rijen(Tabel(ons)));
    EXPECT_EQ(Rijen(MengKanten(drie, ons, ander, {"100001"}).tabel), Rijen(Tabel(ander)));
}

TEST(Mengen, VerwijderenBotstMetWijzigen)
{
    const Kant anders = Met(1, {"100002", "Bea", "Cock", "06-8"});
    const Menging onsWeg = MengKanten(drie, Zonder(1), anders);
    ASSERT_EQ(onsWeg.botsingen.size(), 1U);
    EXPECT_EQ(onsWeg.botsingen[0].links, std::nullopt);
    EXPECT_EQ(onsWeg.botsingen[0].rechts, Tabel(anders).Velden(2));
    EXPECT_EQ(Rijen(onsWeg.tabel), Rijen(Tabel(anders)));
    EXPECT_EQ(Rijen(MengKanten(drie, Zonder(1), anders, {"100002"}).tabel),
              Rijen(Tabel(Zonder(1))));

    const Menging anderWeg = MengKanten(drie, anders, Zonder(1));
    ASSERT_EQ(anderWeg.botsingen.size(), 1U);
    EXPECT_EQ(anderWeg.botsingen[0].links, Tabel(anders).Velden(2));
    EXPECT_EQ(anderWeg.botsingen[0].rechts, std::nullopt);
    EXPECT_EQ(Rijen(anderWeg.tabel), Rijen(Tabel(Zonder(1))));
    EXPECT_EQ(Rijen(MengKanten(drie, anders, Zonder(1), {"100002"}).tabel), Rijen(Tabel(anders)))
        << "back in its place";
}

TEST(Mengen, NieuweSpelersMetDezelfdeSleutelWordenErTwee)
{
    Kant ons = drie;
    ons.HKEY = 100005;
    ons.rijen.push_back({"100004", "Dirk", "Eik", "06-4"});
    ons.rijen.push_back({"100005", "Els", "Fuik", "06-5"});
    Kant ander = drie;
    ander.HKEY = 100004;
    ander.rijen.push_back({"100004", "Frans", "Gans", "06-6"});
    const Menging uit = MengKanten(drie, ons, ander);
    EXPECT_EQ(Rijen(uit.tabel),
              "1 100001 An Bos 06-1;2 100002 Bea Cock 06-2;3 100003 Cor Dam 06-3;"
              "4 100004 Frans Gans 06-6;5 100006 Dirk Eik 06-4;6 100005 Els Fuik 06-5;");
    EXPECT_EQ(uit.HKEY, 100006);
    ASSERT_EQ(uit.hernummerd.size(), 1U);
    EXPECT_EQ(uit.hernummerd[0].was, "100004");
    EXPECT_EQ(uit.hernummerd[0].nu, "100006");
    EXPECT_EQ(Namen(uit.overgenomen), "Frans Gans;");
    EXPECT_TRUE(uit.botsingen.empty());
}

/// As in a file whose key line is behind.
TEST(Mengen, EenNieuweSleutelIsVanNiemandOokNietBovenDeHoogste)
{
    Kant ons = drie;
    ons.HKEY = 100004;
    ons.rijen.push_back({"100004", "Dirk", "Eik", ""});
    ons.rijen.push_back({"100005", "Els", "Fuik", ""});
    Kant ander = drie;
    ander.HKEY = 100004;
    ander.rijen.push_back({"100004", "Fie", "Gans", ""});
    const Menging uit = MengKanten(drie, ons, ander);
    ASSERT_EQ(uit.hernummerd.size(), 1U);
    EXPECT_EQ(uit.hernummerd[0].was, "100004");
    EXPECT_EQ(uit.hernummerd[0].nu, "100006");
    EXPECT_EQ(uit.HKEY, 100006);
}

TEST(Mengen, EenSleutelDieElderWeerVerwijderdIsWordtNietNogEensUitgegeven)
{
    Kant ons = drie;
    ons.HKEY = 100004;
    ons.rijen.push_back({"100004", "Dirk", "Eik", "06-4"});
    Kant ander = drie;
    ander.HKEY = 100004; // given out and deleted there
    const Menging uit = MengKanten(drie, ons, ander);
    EXPECT_EQ(uit.tabel.Cel(4, Kolom::Key), "100005");
    EXPECT_EQ(uit.HKEY, 100005);
}

TEST(Mengen, DezelfdeNieuweSpelerAanBeideKantenIsErEen)
{
    Kant beide = drie;
    beide.HKEY = 100004;
    beide.rijen.push_back({"100004", "Dirk", "Eik", "06-4"});
    const Menging uit = MengKanten(drie, beide, beide);
    EXPECT_EQ(Rijen(uit.tabel), Rijen(Tabel(beide)));
    EXPECT_EQ(uit.HKEY, 100004);
    EXPECT_TRUE(uit.hernummerd.empty());
}

TEST(Mengen, EenLidDatBeideImporteerdenIsErEen)
{
    const auto met = [](Spelertabel tabel, const std::vector<std::array<Tekst, 4>>& leden) {
        for (const auto& [key, groep, achternaam, nummer] : leden) {
            Rijvelden velden{std::to_string(tabel.Rijen() + 1), key, groep};
            velden[Index(Kolom::Achternaam)] = achternaam;
            velden[Index(Kolom::NBBnr)] = nummer;
            tabel.VoegToe(velden);
        }
        return tabel;
    };
    const Spelertabel basis = Tabel(Zonder(2));
    const Spelertabel ons = met(basis, {{"100004", "Gr05-", "Eik", "123"},
                                        {"100005", "Gr05-", "Fuik", "124 "},
                                        {"100006", "Gr01-", "Gans", "125"},
                                        {"100007", "Gr05-", "Hond", ""}});
    const Spelertabel ander = met(basis, {{"100004", "Gr05-", "Fuik", "00000124"},
                                          {"100005", "Gr05-", "Gans", "125"},
                                          {"100006", "Gr05-", "Iep", ""}});
    const Menging uit =
        Meng({basis, 100003}, {ons, 100007}, {ander, 100006}, {}, Tekstblik("Gr05-"));
    EXPECT_EQ(Rijen(uit.tabel), "1 100001 An Bos 06-1;2 100002 Bea Cock 06-2;3 100004  Fuik ;"
                                "4 100005  Gans ;5 100006  Iep ;6 100008  Eik ;7 100009  Gans ;"
                                "8 100007  Hond ;");
    EXPECT_EQ(Namen(uit.overgenomen), "Fuik;Gans;Iep;");
    EXPECT_EQ(Meng({basis, 100003}, {ons, 100007}, {ander, 100006}).tabel.Rijen(), 9);
}

TEST(Mengen, EenTeruggezetteSpelerHoudtZijnSleutel)
{
    Kant basis = Zonder(1);
    basis.HKEY = 100003;
    const Menging uit = MengKanten(basis, drie, basis);
    EXPECT_EQ(Rijen(uit.tabel), Rijen(Tabel(drie))) << "behind the one that it follows";
    EXPECT_TRUE(uit.hernummerd.empty());
}

TEST(Mengen, OnzeNieuweKomenAchterDieVanDeAnder)
{
    Kant ons = drie;
    ons.HKEY = 100005;
    ons.rijen.push_back({"100005", "Dirk", "Eik", "06-4"});
    Kant ander = Zonder(2);
    ander.HKEY = 100004;
    ander.rijen.insert(ander.rijen.begin(), {"100004", "Frans", "Gans", "06-6"});
    EXPECT_EQ(Rijen(MengKanten(drie, ons, ander).tabel),
              "1 100004 Frans Gans 06-6;2 100001 An Bos 06-1;3 100002 Bea Cock 06-2;"
              "4 100005 Dirk Eik 06-4;");
}

TEST(Mengen, RijenZonderBruikbareSleutelGaanOpWatErStaat)
{
    const Kant basis{100001,
                     {{"100001", "An", "Bos", ""},
                      {"100001", "Piet", "Bos", ""},
                      {"x", "Cor", "Dam", ""},
                      {"x", "Cor", "Dam", ""}}};
    Kant ons = basis;
    ons.rijen[1][3] = "06-1";
    Kant ander = basis;
    ander.rijen.pop_back();
    ander.rijen.push_back({"y", "Dirk", "Eik", ""});
    const Menging uit = MengKanten(basis, ons, ander);
    EXPECT_EQ(Rijen(uit.tabel), "1 100001 An Bos ;2 100001 Piet Bos 06-1;3 x Cor Dam ;"
                                "4 y Dirk Eik ;");
    EXPECT_EQ(Namen(uit.overgenomen), "Dirk Eik;Cor Dam;");
    EXPECT_TRUE(uit.botsingen.empty());
}

namespace {

using Kaart = std::map<Tekst, std::array<Tekst, 4>>;

Kaart OpKey(const Kant& kant)
{
    Kaart uit;
    for (const auto& rij : kant.rijen)
        uit[rij[0]] = rij;
    return uit;
}

/// What one program may do between two reads.
Kant Bewerkt(const Kant& basis, std::mt19937& toeval, const char* wie)
{
    Kant uit{basis.HKEY, {}};
    const auto waarde = [&] { return Tekst(1, static_cast<char>('a' + toeval() % 3)); };
    for (auto rij : basis.rijen) {
        const auto wat = toeval() % 6;
        if (wat == 0)
            continue;
        if (wat <= 2)
            rij[wat == 1 ? 1 : 3] = waarde();
        uit.rijen.push_back(rij);
    }
    for (auto nieuw = toeval() % 3; nieuw > 0; --nieuw)
        uit.rijen.push_back({std::to_string(++uit.HKEY), waarde(), wie, waarde()});
    return uit;
}

} // namespace

/// Player by player, without an index or an order.
TEST(Mengen, DoetWatEenEenvoudigModelDoet)
{
    constexpr int rondes = 100'000;
    std::mt19937 toeval(14); // NOLINT(cert-msc51-cpp): the same in every run
    for (int ronde = 0; ronde < rondes; ++ronde) {
        const Kant basis = Bewerkt(drie, toeval, "Basis");
        const Kant ons = Bewerkt(basis, toeval, "Ons");
        const Kant ander = Bewerkt(basis, toeval, "Ander");
        const Kaart b = OpKey(basis);
        const Kaart o = OpKey(ons);
        const Kaart a = OpKey(ander);
        Kaart verwacht;
        std::set<Tekst> botsend;
        std::int32_t HKEY = std::max(ons.HKEY, ander.HKEY);
        for (const auto& [key, rij] : a) {
            if (!b.contains(key)) {
                verwacht[key] = rij;
            } else if (!o.contains(key)) {
                if (rij == b.at(key))
                    continue;
                botsend.insert(key);
                verwacht[key] = rij;
            } else {
                auto samen = rij;
                for (std::size_t i = 1; i < rij.size(); ++i) {
                    const Tekst& was = b.at(key)[i];
                    const Tekst& onze = o.at(key)[i];
                    if (onze != was && rij[i] != was && onze != rij[i])
                        botsend.insert(key);
                    if (onze != was)
                        samen[i] = onze;
                }
                verwacht[key] = botsend.contains(key) ? rij : samen;
            }
        }
        for (const auto& rij : ons.rijen) {
            const Tekst& key = rij[0];
            if (b.contains(key)) {
                if (!a.contains(key) && rij != b.at(key))
                    botsend.insert(key);
            } else if (std::stoi(key) > ander.HKEY) {
                verwacht[key] = rij;
            } else {
                auto anders = rij;
                anders[0] = std::to_string(++HKEY);
                verwacht[anders[0]] = anders;
            }
        }
        const Menging uit = MengKanten(basis, ons, ander);
        Kaart gekregen;
        for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij) {
            const Rijvelden velden = uit.tabel.Velden(rij);
            EXPECT_EQ(velden[0], std::to_string(rij));
            gekregen[velden[1]] = {velden[1], velden[Index(Kolom::Voornaam)],
                                   velden[Index(Kolom::Achternaam)], velden[Index(Kolom::Telef)]};
        }
        std::set<Tekst> gebotst;
        for (const Verschil& botsing : uit.botsingen)
            gebotst.insert(botsing.key);
        ASSERT_EQ(gekregen, verwacht) << ronde;
        ASSERT_EQ(gekregen.size(), static_cast<std::size_t>(uit.tabel.Rijen())) << ronde;
        ASSERT_EQ(gebotst, botsend) << ronde;
        ASSERT_EQ(uit.HKEY, HKEY) << ronde;
    }
}
