#include "federation/voorbeeld.h"

#include <limits>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

namespace plexoran {
namespace {

using Teksten = std::vector<Tekst>;

Tekst Soortnaam(Voorbeeldsoort soort)
{
    static const std::array<Tekst, AantalVoorbeeldsoorten> namen{
        "nieuw", "gewijzigd", "ongewijzigd", "geweigerd", "verdwenen"};
    return namen.at(static_cast<std::size_t>(soort));
}

/// Two members of Club, one of another file, and a namesake in another group.
const Tekst Spelers =
    "HKEY=100042\r\n"
    "1,100001,Gr05-,An,de,Bos,0,a@b,Weg 1,0101AA,Ede,NL,V,d1,d2,overl,CLUB,12345\r\n"
    "2,100002,Gr01-,Eva,,Fuik,,,,,,,,,,,A-LIJN,67890\r\n"
    "3,100003,Gr05-,Cor,,Dam,,,,,,,,,,,CLUB,222\r\n"
    "4,100004,Gr05-,Els,,Gaal,,,,,,,,,,,CURSUS,333\r\n";

class VoorbeeldTest : public testing::Test {
  protected:
    Voorbeeld Bekijk(Teksten regels, const Tekst& subgroep = "Club")
    {
        auto voorbeeld =
            Voorbeeld::Maak(spelers.tabel, {"Gr05-", subgroep, std::move(regels)}, lezing);
        EXPECT_TRUE(voorbeeld.has_value());
        return std::move(voorbeeld.value());
    }
    /// The kind of every line, and what is doubtful in it.
    static Teksten Soorten(const Voorbeeld& voorbeeld)
    {
        Teksten uit;
        for (const Voorbeeldregel& regel : voorbeeld.Regels())
            uit.push_back(Soortnaam(regel.soort) +
                          (regel.naamgenoot > 0 ? " naam" + std::to_string(regel.naamgenoot) : "") +
                          (regel.andereNaam ? " anders" : "") + (regel.dubbel ? " dubbel" : "") +
                          (regel.zonderAchternaam ? " zonder" : ""));
        return uit;
    }
    static Teksten Velden(const Voorbeeld& voorbeeld, std::size_t regel)
    {
        Teksten uit;
        for (const auto& [kolom, oud, nieuw] : voorbeeld.Velden(regel))
            uit.push_back(Tekst(Kolomnamen.at(Index(kolom))) + ":" + Tekst(oud) + ">" +
                          Tekst(nieuw));
        return uit;
    }
    Samenvoeging Voer(const Voorbeeld& voorbeeld)
    {
        auto uitkomst = VoerSamenvoegingUit(spelers, voorbeeld.Opdracht(), voorbeeld.Gekozen());
        EXPECT_TRUE(uitkomst.has_value());
        return uitkomst.value_or(Samenvoeging());
    }
    static void VerwachtTotaal(const Voorbeeld& voorbeeld)
    {
        std::size_t som = 0;
        for (const auto soort : {Voorbeeldsoort::Nieuw, Voorbeeldsoort::Gewijzigd,
                                 Voorbeeldsoort::Ongewijzigd, Voorbeeldsoort::Geweigerd})
            som += voorbeeld.Aantal(soort);
        EXPECT_EQ(voorbeeld.AantalGelezen(), som);
    }

    Register spelers = Lees(Spelers);
    Ledenlezing lezing;
};

const Tekst An = "An,de,Bos,Weg 1,0101AA,Ede,0,a@b,NL,V,12345";
const Tekst Cor = "Cor,,Dam,,,,,,,,222";

TEST_F(VoorbeeldTest, NieuwGewijzigdEnOngewijzigd)
{
    const Voorbeeld voorbeeld =
        Bekijk({An, "Cor,,Dam,Laan 2,,,,,,, 222 ", " Eva ,,Fuik,Pad 3,,,,,,V,77"});
    EXPECT_EQ((Teksten{"ongewijzigd", "gewijzigd", "nieuw"}), Soorten(voorbeeld));
    EXPECT_EQ((Teksten{}), Velden(voorbeeld, 0));
    EXPECT_EQ((Teksten{"Adres:>Laan 2"}), Velden(voorbeeld, 1));
    EXPECT_EQ(
        (Teksten{"Voornaam:>Eva", "Achternaam:>Fuik", "Adres:>Pad 3", "M/V:>V", "NBBgr:>CLUB"}),
        Velden(voorbeeld, 2));
    EXPECT_EQ("An de Bos", voorbeeld.Naam(0));
    EXPECT_EQ("222", voorbeeld.Nummer(1));
    EXPECT_EQ(3U, voorbeeld.AantalGelezen());
    EXPECT_TRUE(voorbeeld.VerandertIets());
    VerwachtTotaal(voorbeeld);
}

/// Meant: a field that was not asked for is emptied, and the subgroup is that of the file.
TEST_F(VoorbeeldTest, LeegmakenEnEenAndereSubgroepZijnWijzigingen)
{
    const Voorbeeld voorbeeld = Bekijk({"An,de,Bos,,,,,,,,12345", Cor}, "Caf\xE9,x");
    EXPECT_EQ((Teksten{"Telef:0>", "Email:a@b>", "Adres:Weg 1>", "Postc:0101AA>", "Plaats:Ede>",
                       "Land:NL>", "M/V:V>", "NBBgr:CLUB>CAF\xC9_X"}),
              Velden(voorbeeld, 0));
    EXPECT_EQ((Teksten{"NBBgr:CLUB>CAF\xC9_X"}), Velden(voorbeeld, 1));
    (void)Voer(voorbeeld);
    EXPECT_FALSE(Bekijk({"An,de,Bos,,,,,,,,12345", Cor}, "Caf\xE9,x").VerandertIets());
}

TEST_F(VoorbeeldTest, GeweigerdMetDezelfdeRedenenAlsDeImport)
{
    lezing.metIsTeken = {"LEDENBESTAND=Club;VERSIE=2"};
    lezing.teKorteRegel = 9;
    const Voorbeeld voorbeeld = Bekijk({"Gast,,Heer,,,,,,,, ", "An,,Ander,,,,,,,,012345",
                                        "Bo,,Ek,,,,,,,,71", "Jo,,Lam,,,,,,,,071"});
    EXPECT_EQ((Teksten{"geweigerd", "geweigerd", "nieuw", "geweigerd", "geweigerd", "geweigerd"}),
              Soorten(voorbeeld));
    std::vector<Weigering> redenen;
    for (const Voorbeeldregel& regel : voorbeeld.Regels()) {
        if (regel.soort == Voorbeeldsoort::Geweigerd)
            redenen.push_back(regel.weigering);
    }
    EXPECT_EQ((std::vector{Weigering::ZonderNBBnr, Weigering::KomtVoor, Weigering::KomtVoor,
                           Weigering::MetIsTeken, Weigering::TeKort}),
              redenen);
    EXPECT_EQ("LEDENBESTAND=Club;VERSIE=2", voorbeeld.Naam(4));
    EXPECT_EQ("regel 9", voorbeeld.Naam(5));
    EXPECT_EQ("", voorbeeld.Nummer(5));
    EXPECT_EQ(6U, voorbeeld.AantalGelezen());
    VerwachtTotaal(voorbeeld);
    EXPECT_FALSE(voorbeeld.MagUit(0));
    const Samenvoeging uitkomst = Voer(voorbeeld);
    EXPECT_EQ("Gast,,Heer,,,,,,,, \r\n", uitkomst.ZonderNBBnr);
    EXPECT_EQ(2U, uitkomst.overgeslagen.size());
    EXPECT_EQ(1U, uitkomst.AantalNieuw);
}

TEST_F(VoorbeeldTest, DezelfdeNaamOnderEenAnderNummer)
{
    // Not in another group; whatever the case and accents; also of who is there.
    EXPECT_EQ(
        (Teksten{"nieuw", "nieuw naam3 dubbel", "gewijzigd naam3 anders dubbel", "verdwenen"}),
        Soorten(
            Bekijk({"Eva,,Fuik,,,,,,,,67890", "C\xD3R,,dam,,,,,,,,71", "Cor,,Dam,,,,,,,,12345"})));
    const Voorbeeld voorbeeld = Bekijk({"Cor,,Dam,,,,,,,,333"});
    EXPECT_EQ(3, voorbeeld.Regels()[0].naamgenoot);
    // Himself under his own number, however that is written, is none.
    spelers.tabel.ZetCel(3, Kolom::NBBnr, "0222");
    EXPECT_EQ((Teksten{"geweigerd"}), Soorten(Bekijk({Cor}, "X")));
    // Nor is one without a number left out.
    spelers.tabel.ZetCel(3, Kolom::NBBnr, "");
    EXPECT_EQ((Teksten{"nieuw naam3"}), Soorten(Bekijk({Cor}, "X")));
    // Behind himself there may be another one.
    spelers = Lees("HKEY=100003\r\n1,100001,Gr05-,Jo,,Smit,,,,,,,,,,,X,1\r\n"
                   "2,100002,Gr05-,Jo,,Smit,,,,,,,,,,,X,01\r\n"
                   "3,100003,Gr05-,Jo,,Smit,,,,,,,,,,,X,2\r\n");
    EXPECT_EQ((Teksten{"ongewijzigd naam3 dubbel", "ongewijzigd naam1 dubbel"}),
              Soorten(Bekijk({"Jo,,Smit,,,,,,,,1", "Jo,,Smit,,,,,,,,2"}, "X")));
}

TEST_F(VoorbeeldTest, EenNummerMetEenHeelAndereNaam)
{
    for (const auto& [naam, anders] :
         std::vector<std::pair<Tekst, bool>>{{"An,van,Bos", false},    // another particle
                                             {"An,,Jansen", false},    // married
                                             {"\xC4n,,Jansen", false}, // and with an accent
                                             {"Jan,de,Bos", false},
                                             {"Jan,,Smit", true},
                                             {",,Smit", true},
                                             {",,bos", false}}) {
        EXPECT_EQ(anders, Bekijk({naam + ",,,,,,,,12345"}).Regels()[0].andereNaam) << naam;
    }
    // Two without a first name have nothing in common either.
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "");
    EXPECT_TRUE(Bekijk({",,Smit,,,,,,,,12345"}).Regels()[0].andereNaam);
}

TEST_F(VoorbeeldTest, EenNaamTweemaalInHetBestand)
{
    EXPECT_EQ(
        (Teksten{"nieuw dubbel", "nieuw", "geweigerd", "nieuw dubbel", "nieuw zonder",
                 "nieuw zonder"}),
        Soorten(Bekijk({"Jo,van der,Smit,,,,,,,,71", "Bo,,Ek,,,,,,,,72", "JO,vander,Smit,,,,,,,,",
                        "Jo,Van Der,Smit,,,,,,,,73", ",,,,,,,,,,74", ",,,,,,,,,,75"},
                       "X")));
}

TEST_F(VoorbeeldTest, WieNietMeerInHetLedenbestandStaat)
{
    // Of the file's own subgroup in the import group only.
    const Voorbeeld voorbeeld = Bekijk({An, "Eva,,Fuik,,,,,,,,77"});
    EXPECT_EQ((Teksten{"ongewijzigd", "nieuw", "verdwenen"}), Soorten(voorbeeld));
    EXPECT_EQ(2U, voorbeeld.AantalGelezen());
    EXPECT_EQ("Cor Dam", voorbeeld.Naam(2));
    EXPECT_EQ("222", voorbeeld.Nummer(2));
    EXPECT_FALSE(voorbeeld.MagUit(2));
    EXPECT_EQ((Teksten{"nieuw", "verdwenen"}), Soorten(Bekijk({"Eva,,Fuik,,,,,,,,77"}, "Cursus")));
    // Whose number stands in the file in any way is in it, refused or not.
    lezing.metIsTeken = {"\xFE\xFF 0222;V;Cor;;=;Dam"};
    EXPECT_EQ((Teksten{"ongewijzigd", "geweigerd"}), Soorten(Bekijk({An})));
    lezing.metIsTeken.clear();
    EXPECT_EQ((Teksten{"ongewijzigd", "geweigerd"}), Soorten(Bekijk({An, "C,,D,,,,,,,,0222"})));
    // Without a number he is looked for by his name.
    spelers.tabel.ZetCel(3, Kolom::NBBnr, " ");
    EXPECT_EQ((Teksten{"ongewijzigd", "geweigerd"}), Soorten(Bekijk({An, "cor,,dam,,,,,,,,"})));
    EXPECT_EQ((Teksten{"ongewijzigd", "geweigerd", "verdwenen"}),
              Soorten(Bekijk({An, "Co,,Dam,,,,,,,,"})));
}

TEST_F(VoorbeeldTest, VanEenHalfGelezenBestandIsNiemandVerdwenen)
{
    for (int keer = 0; keer < 3; ++keer) {
        lezing = {};
        if (keer == 0)
            lezing.teKorteRegel = 2;
        else if (keer == 1)
            lezing.nietGeladen = Fout{};
        else
            lezing.anderNummer = 7;
        const Voorbeeld voorbeeld = Bekijk({An});
        EXPECT_FALSE(voorbeeld.IsHeel());
        EXPECT_EQ(0U, voorbeeld.Aantal(Voorbeeldsoort::Verdwenen));
    }
}

TEST_F(VoorbeeldTest, UitgezetteRegelsEnGegevensGaanNietMee)
{
    Voorbeeld voorbeeld =
        Bekijk({"Anna,,Bosch,,,,,,,,12345", "Cor,,Dam,Laan 2,,Ede,,,,,222", "Eva,,Fuik,,,,,,,,77",
                "Bo,van,Ek,Weg 4,,,,,,V,78", "Eva,,Twee,,,,,,,,77"});
    voorbeeld.Zet(0, false);
    voorbeeld.Zet(1, Kolom::Adres, false);
    voorbeeld.Zet(2, false);
    for (const Kolom kolom : {Kolom::Tusv, Kolom::Adres, Kolom::NBBgr, Kolom::Achternaam})
        voorbeeld.Zet(3, kolom, false);
    EXPECT_FALSE(voorbeeld.IsAan(0));
    EXPECT_FALSE(voorbeeld.IsAan(1, Kolom::Adres));
    EXPECT_TRUE(voorbeeld.IsAan(1, Kolom::Plaats));
    EXPECT_TRUE(voorbeeld.IsAan(3, Kolom::Achternaam)) << "zonder achternaam is er geen speler";
    EXPECT_EQ(2U, voorbeeld.RegelsUit());
    EXPECT_EQ(4U, voorbeeld.VeldenUit());
    const Samenvoeging uitkomst = Voer(voorbeeld);
    EXPECT_EQ(1U, uitkomst.AantalVerververst);
    EXPECT_EQ(1U, uitkomst.AantalNieuw);
    // Shown as left out, because of a line that is off now: left out.
    EXPECT_EQ((Teksten{"Eva,,Twee,,,,,,,,77"}), uitkomst.overgeslagen);
    Register verwacht = Lees(Spelers);
    verwacht.tabel.ZetCel(3, Kolom::Plaats, "Ede");
    verwacht.tabel.VoegToe(Rijvelden{"5", "100043", "Gr05-", "Bo", "", "Ek", "", "", "", "", "", "",
                                     "V", "", "", "", "", "78"});
    verwacht.HKEY = 100043;
    EXPECT_EQ(SpelersTekst(verwacht), SpelersTekst(spelers));
}

TEST_F(VoorbeeldTest, UitEnWeerAanIsZoalsHetWas)
{
    Voorbeeld voorbeeld = Bekijk({"Anna,,Bosch,,,,,,,,12345", " Eva ,,Fuik,,,,,,,,77"});
    for (const bool aan : {false, true}) {
        for (const std::size_t regel : {0U, 1U}) {
            voorbeeld.Zet(regel, aan);
            voorbeeld.Zet(regel, Kolom::Voornaam, aan);
        }
        EXPECT_EQ(aan, voorbeeld.VerandertIets());
    }
    EXPECT_EQ(0U, voorbeeld.RegelsUit() + voorbeeld.VeldenUit());
    Register gewoon = spelers;
    ASSERT_TRUE(VoegLedenSamen(gewoon, voorbeeld.Opdracht()));
    (void)Voer(voorbeeld);
    EXPECT_EQ(SpelersTekst(gewoon), SpelersTekst(spelers));
}

/// Without its fields a change is none.
TEST_F(VoorbeeldTest, AlleGegevensUitVerandertNiets)
{
    Voorbeeld voorbeeld = Bekijk({"Cor,,Dam,Laan 2,,,,,,,222", An});
    EXPECT_TRUE(voorbeeld.VerandertIets());
    voorbeeld.Zet(0, Kolom::Adres, false);
    EXPECT_FALSE(voorbeeld.VerandertIets());
    EXPECT_EQ(2U, Voer(voorbeeld).AantalVerververst);
    EXPECT_EQ(SpelersTekst(Lees(Spelers)), SpelersTekst(spelers));
}

/// Meant: two lines with one known number both refresh it, the last one stays.
TEST_F(VoorbeeldTest, TweeRegelsVoorEenSpeler)
{
    Voorbeeld voorbeeld =
        Bekijk({"Cor,,Een,,,,,,,,222", "Cor,,Twee,,,Ede,,,,,222", "Cor,,Twee,,,,,,,,222"});
    EXPECT_EQ((Teksten{"Achternaam:Dam>Een"}), Velden(voorbeeld, 0));
    EXPECT_EQ((Teksten{"Achternaam:Een>Twee", "Plaats:>Ede"}), Velden(voorbeeld, 1));
    EXPECT_EQ((Teksten{"Plaats:Ede>"}), Velden(voorbeeld, 2));
    // What is off is not there for the next one.
    voorbeeld.Zet(0, false);
    EXPECT_EQ((Teksten{"Achternaam:Dam>Twee", "Plaats:>Ede"}), Velden(voorbeeld, 1));
    voorbeeld.Zet(1, Kolom::Plaats, false);
    EXPECT_EQ((Teksten{"Plaats:>"}), Velden(voorbeeld, 2));
    voorbeeld.Zet(1, false);
    EXPECT_FALSE(voorbeeld.VerandertIets());
    // The last line was shown to change the town only.
    (void)Voer(voorbeeld);
    EXPECT_EQ(SpelersTekst(Lees(Spelers)), SpelersTekst(spelers));
}

TEST_F(VoorbeeldTest, HetzelfdeBestandNogEensVerandertNiets)
{
    const Teksten regels{"Anna,,Bosch,Weg 2,,,,,,,12345", "Eva,,Fuik,,,,,,,,77",
                         "Gast,,Heer,,,,,,,,", "Eva,,Fuik,,,,,,,,78", "Eva,,Fuik,,,,,,,,078"};
    (void)Voer(Bekijk(regels));
    const Tekst na = SpelersTekst(spelers);
    const Voorbeeld weer = Bekijk(regels);
    EXPECT_FALSE(weer.VerandertIets());
    EXPECT_EQ(3U, weer.Aantal(Voorbeeldsoort::Ongewijzigd));
    EXPECT_EQ(2U, weer.Aantal(Voorbeeldsoort::Geweigerd));
    EXPECT_EQ(3U, Voer(weer).AantalVerververst);
    EXPECT_EQ(na, SpelersTekst(spelers));
}

/// Of two lines for one player the first is undone by the second, the second time.
TEST_F(VoorbeeldTest, OokMetTweeRegelsVoorEenSpelerVerandertErNiets)
{
    const Teksten regels{"Cor,,Een,Weg 1,,,,,,,222", "Cor,,Twee,,,,,,,,222"};
    EXPECT_TRUE(Bekijk(regels).VerandertIets());
    (void)Voer(Bekijk(regels));
    Voorbeeld weer = Bekijk(regels);
    EXPECT_EQ(2U, weer.Aantal(Voorbeeldsoort::Gewijzigd));
    EXPECT_FALSE(weer.VerandertIets());
    weer.Zet(1, Kolom::Adres, false);
    EXPECT_TRUE(weer.VerandertIets());
}

/// Each file is looked at as the ones before it leave the register.
TEST_F(VoorbeeldTest, HetVolgendeBestandNaHetEerste)
{
    (void)Voer(Bekijk({"Eva,,Fuik,,,,,,,,77"}, "Een"));
    const Voorbeeld tweede = Bekijk({"Eva,,Fuik,,,,,,,,77"}, "Twee");
    EXPECT_EQ((Teksten{"gewijzigd"}), Soorten(tweede));
    EXPECT_EQ((Teksten{"NBBgr:EEN>TWEE"}), Velden(tweede, 0));
}

TEST_F(VoorbeeldTest, WaaropDeImportAfbreektIsErGeenVoorbeeld)
{
    Teksten regels;
    for (int i = 0; i < 3000; ++i)
        regels.push_back("V,,A,,,,,,,," + std::to_string(i));
    const auto gestopt = Voorbeeld::Maak(spelers.tabel, {"Gr05-", "Club", regels}, lezing,
                                         [](std::size_t, std::size_t) { return false; });
    ASSERT_FALSE(gestopt);
    EXPECT_EQ(Samenvoegfout::Gestopt, gestopt.error());
    for (int na = 1;; ++na) { // also in what comes after the decisions
        int stap = 0;
        std::size_t laatste = 0;
        const auto half = Voorbeeld::Maak(spelers.tabel, {"Gr05-", "Club", regels}, lezing,
                                          [&](std::size_t gedaan, std::size_t geheel) {
                                              EXPECT_EQ(15'008U, geheel);
                                              EXPECT_GT(gedaan, laatste);
                                              laatste = gedaan;
                                              return ++stap != na;
                                          });
        if (half) {
            EXPECT_EQ(8, na);
            EXPECT_LE(laatste, 15'008U);
            break;
        }
        EXPECT_EQ(Samenvoegfout::Gestopt, half.error());
    }
    const auto groot = Voorbeeld::Maak(
        spelers.tabel, {"Gr05-", "Club", {"A,,B,,,,,,,," + Tekst(70'000, 'x')}}, lezing);
    ASSERT_FALSE(groot);
    EXPECT_EQ(Samenvoegfout::TeGroot, groot.error());
    // Keys are short when it is done; then nothing is.
    spelers.HKEY = std::numeric_limits<std::int32_t>::max() - 1;
    const Tekst oud = SpelersTekst(spelers);
    Voorbeeld voorbeeld =
        Bekijk({"Anna,,Bos,,,,,,,,12345", "A,,Een,,,,,,,,71", "A,,Twee,,,,,,,,72"});
    const auto op = VoerSamenvoegingUit(spelers, voorbeeld.Opdracht(), voorbeeld.Gekozen());
    ASSERT_FALSE(op);
    EXPECT_EQ(Samenvoegfout::GeenSleutels, op.error());
    EXPECT_EQ(oud, SpelersTekst(spelers));
    voorbeeld.Zet(1, false);
    EXPECT_EQ(1U, Voer(voorbeeld).AantalNieuw);
}

/// On anything: what was shown adds up, and with nothing off it is what the import does.
TEST_F(VoorbeeldTest, DoetZoalsDeImport)
{
    std::mt19937 toeval(7);
    const Teksten nummers{"1",    "01", " 2 ", "2",   "3", "12345678", "123456789",
                          "gast", "-",  "",    "1-2", "4", "5"};
    const Teksten namen{"An",
                        "an",
                        "Jo",
                        " Jo ",
                        "",
                        "\xC9"
                        "n",
                        "Bo",
                        "van der"};
    const Teksten groepen{"Gr05-", "Gr05-", "Gr01-"};
    std::size_t soorten[AantalVoorbeeldsoorten]{};
    for (int keer = 0; keer < 800; ++keer) {
        std::vector<Proefspeler> rijen(Gooi(toeval, 12));
        for (Proefspeler& speler : rijen)
            speler = {.key = std::to_string(100'001 + &speler - rijen.data()),
                      .groep = Trek(toeval, groepen),
                      .voornaam = Trek(toeval, {"An", "Jo"}),
                      .achternaam = Trek(toeval, namen),
                      .nbbgr = Trek(toeval, {"CLUB", "ANDER"}),
                      .nbbnr = Trek(toeval, nummers)};
        spelers.tabel = MaakTabel(rijen);
        spelers.HKEY = 100'100;
        for (int rij = 1; rij <= spelers.tabel.Rijen(); ++rij)
            spelers.tabel.ZetCel(rij, Kolom::Plaats, Trek(toeval, {"", "Ede"}));
        Teksten regels(Gooi(toeval, 12));
        for (Tekst& regel : regels)
            regel = Trek(toeval, {"An", "Jo"}) + ",," + Trek(toeval, namen) + ",,," +
                    Trek(toeval, {"", "Ede"}) + ",,,,," + Trek(toeval, nummers);
        lezing = {};
        lezing.metIsTeken.assign(Gooi(toeval, 2), "a=b");
        lezing.teKorteRegel = static_cast<int>(Gooi(toeval, 2));
        const Samenvoegopdracht opdracht{"Gr05-", "club", regels};
        Register gewoon = spelers;
        const Samenvoeging import = VoegLedenSamen(gewoon, opdracht).value();
        const Voorbeeld voorbeeld = Bekijk(regels, "club");
        VerwachtTotaal(voorbeeld);
        EXPECT_EQ(regels.size() + lezing.metIsTeken.size() + (lezing.teKorteRegel > 0 ? 1U : 0U),
                  voorbeeld.AantalGelezen());
        EXPECT_EQ(import.AantalNieuw, voorbeeld.Aantal(Voorbeeldsoort::Nieuw));
        EXPECT_EQ(import.AantalVerververst, voorbeeld.Aantal(Voorbeeldsoort::Gewijzigd) +
                                                voorbeeld.Aantal(Voorbeeldsoort::Ongewijzigd));
        EXPECT_EQ(SpelersTekst(spelers) != SpelersTekst(gewoon), voorbeeld.VerandertIets());
        const Samenvoeging gedaan = Voer(voorbeeld);
        EXPECT_EQ(import.AantalNieuw, gedaan.AantalNieuw);
        EXPECT_EQ(import.AantalVerververst, gedaan.AantalVerververst);
        EXPECT_EQ(import.ZonderNBBnr, gedaan.ZonderNBBnr);
        EXPECT_EQ(import.overgeslagen, gedaan.overgeslagen);
        ASSERT_EQ(SpelersTekst(gewoon), SpelersTekst(spelers));
        for (const Voorbeeldregel& regel : voorbeeld.Regels())
            ++soorten[static_cast<std::size_t>(regel.soort)];
    }
    for (const std::size_t aantal : soorten)
        EXPECT_GT(aantal, 15U);
}

} // namespace
} // namespace plexoran
