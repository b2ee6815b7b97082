#include "exchange/lijstimport.h"

#include <chrono>
#include <limits>

#include <gtest/gtest.h>

#include "exchange/uitvoer.h"
#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

/// Two in the target group, one in the import group and one elsewhere.
const Tekst Spelers =
    "HKEY=100042\r\n"
    "1,100001,Gr02-,An,de,Bos,010-1,a@b.nl,Weg 1,0101 AA,Ede,NL,V,d1,d2,overl,A,12345\r\n"
    "2,100002,Gr02-,Eva,,Fuik,,,,0202 BB,,,,,,,B,\r\n"
    "3,100003,Gr05-,Cor,,Dam,,,,,,,,,,,CLUB,00000222\r\n"
    "4,100004,Gr07-,Els,,Gaal,,,,,,,,,,,,333\r\n";

class LijstimportTest : public testing::Test {
  protected:
    /// Of a list with a header, its fields guessed.
    Lijstvoorbeeld& Bekijk(Tekstblik tekst, std::optional<Herkenning> herkenning = {})
    {
        lijst = LeesSpelerslijst(tekst, HerkenVorm(tekst)).value();
        Lijstkeuze keuze = RaadVelden(lijst, true);
        keuze.herkenning = herkenning.value_or(keuze.herkenning);
        voorbeeld.emplace(
            Lijstvoorbeeld::Maak(spelers.tabel, lijst,
                                 {.groep = "Gr02-", .subgroep = " nieuw ", .keuze = keuze})
                .value());
        return *voorbeeld;
    }
    /// Per line its kind, what changes, and what is doubtful.
    static Teksten Regels(const Lijstvoorbeeld& van)
    {
        static const std::array<Tekst, 4> soorten{"nieuw", "gewijzigd", "ongewijzigd", "geweigerd"};
        static const std::array<Tekst, 7> weigeringen{"",        "",      "",       "",
                                                      " cellen", " naam", " nummer"};
        Teksten uit;
        for (std::size_t i = 0; i < van.Regels().size(); ++i) {
            const Voorbeeldregel& regel = van.Regels()[i];
            Tekst tekst = soorten.at(static_cast<std::size_t>(regel.soort));
            if (regel.soort == Voorbeeldsoort::Geweigerd)
                tekst += weigeringen.at(static_cast<std::size_t>(regel.weigering)) + ' ' +
                         std::to_string(van.Bestandsregel(i));
            for (const auto& [kolom, oud, nieuw] : van.Velden(i))
                tekst.append(" ")
                    .append(Kolomnamen[Index(kolom)])
                    .append(":")
                    .append(oud)
                    .append(">")
                    .append(nieuw);
            tekst += regel.naamgenoot > 0 ? " naam" + std::to_string(regel.naamgenoot) : "";
            tekst += regel.andereNaam ? " anders" : "";
            tekst += regel.dubbel ? " dubbel" : "";
            tekst += van.MagUit(i) && !van.IsAan(i) ? " uit" : "";
            uit.push_back(tekst);
        }
        return uit;
    }
    Tekst Rij(int rij) const { return spelers.tabel.Inhoud(rij); }

    Register spelers = Lees(Spelers);
    Spelerslijst lijst;
    std::optional<Lijstvoorbeeld> voorbeeld;
};

} // namespace

TEST_F(LijstimportTest, WatErUitGaatKomtErGelijkWeerIn)
{
    spelers = Lees("HKEY=100042\r\n"
                   "1,100001,Gr02-,=An,-,+Bos,@x, a ,'-x,''=s,'t,NL,V,d;1,d\"2,Zo\xEB,a b,12\r\n"
                   "2,100002,Gr02-,Eva,,'s Graven,,,,,,,,,,,b,00000222\r\n");
    const Groepen groepen;
    Uitvoer uitvoer{.tabel = spelers.tabel, .groepen = groepen, .rijen = {1, 2}, .kolommen = {}};
    for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
        uitvoer.kolommen.push_back(static_cast<Kolom>(kolom));
    for (const Tekenset tekens : {Tekenset::Utf8, Tekenset::Windows1252}) {
        const Tekst bytes = MaakCsv(uitvoer, tekens).value().value();
        EXPECT_EQ((Teksten{"ongewijzigd", "ongewijzigd"}),
                  Regels(Bekijk(Lijsttekstvan(bytes).value().tekst)));
    }
}

TEST_F(LijstimportTest, DeEigenExportTeruggelezenVerandertNiets)
{
    spelers =
        Lees("HKEY=100042\r\n"
             "1,100001,Gr02-,=An,-,+Bos,@x, a ,'-x,'s,\tEde,NL,x,d;1,d\"2,Zo\xEB\x81,a b,ABC\r\n"
             "2,100002,Gr05-,Eva,,partner van,,,,,,,,,,,b,00000222\r\n");
    const Tekst kop =
        "Nr;Key;Groep;Voornaam;Tusv;Achternaam;Telef;Email;Adres;Postc;Plaats;Land;M/V;"
        "Div1;Div2;Status;NBBgr/Subgr;NBBnr\r\n";
    EXPECT_EQ((Teksten{"ongewijzigd", "ongewijzigd"}),
              Regels(Bekijk(kop + "1;100001;Gr02-;'=An;'-;'+Bos;'@x; a ;'-x;'s;'\tEde;NL;x;\"d;1\";"
                                  "\"d\"\"2\";Zo\xEB\x81;a b;ABC\r\n"
                                  "2;100002;Gr05-;Eva;;partner van;;;;;;;;;;;b;222\r\n")));
    EXPECT_FALSE(voorbeeld->VerandertIets());
}

TEST_F(LijstimportTest, HaaltEenWachtendeApostrofWeg)
{
    for (const char* tekst : {"=1", "+1", "-1", "@1", "\t1", "\r1"})
        EXPECT_EQ(tekst, ZonderWacht("'" + Tekst(tekst)));
    EXPECT_EQ("'=1", ZonderWacht("''=1"));
    EXPECT_EQ("'s-Graveland", ZonderWacht("'s-Graveland"));
    EXPECT_EQ("'", ZonderWacht("'"));
    EXPECT_EQ("", ZonderWacht(""));
}

TEST_F(LijstimportTest, HerkentOpKeyInAlleGroepenEnLeegMaaktNietLeeg)
{
    EXPECT_EQ((Teksten{"gewijzigd Telef:010-1>06-9", "gewijzigd Plaats:>Goes", "ongewijzigd",
                       "nieuw Voornaam:>Wil Achternaam:>Hoek NBBgr:>NIEUW"}),
              Regels(Bekijk("Key;Voornaam;Tusv;Achternaam;Telef;Plaats\n"
                            "100001;An;;Bos;06-9;\n"
                            " 100004 ;Els;;Gaal;;Goes\n"
                            "100003;;;;;\n"
                            "999999;Wil;;Hoek;;\n")));
}

TEST_F(LijstimportTest, HerkentOpNummerInDeDoelgroep)
{
    EXPECT_EQ(
        (Teksten{"gewijzigd Plaats:Ede>Goes", "nieuw Voornaam:>Els Achternaam:>Gaal Plaats:>Lent "
                                              "NBBgr:>NIEUW NBBnr:>333"}),
        Regels(Bekijk("NBBnr;Naam;Plaats\n00012345;An de Bos;Goes\n333;Els Gaal;Lent\n")));
}

TEST_F(LijstimportTest, HerkentOpNaamMetPostcode)
{
    EXPECT_EQ(
        (Teksten{"gewijzigd Telef:>06-7 dubbel",
                 "nieuw Voornaam:>eva Achternaam:>Fuik Telef:>06-8 Postc:>9999 ZZ NBBgr:>NIEUW "
                 "naam2 dubbel",
                 "nieuw Voornaam:>Els Achternaam:>Gaal NBBgr:>NIEUW"}),
        Regels(Bekijk("Voornaam;Achternaam;Postcode;Telefoon\n"
                      "Eva;Fuik;0202bb;06-7\n"
                      "eva;Fuik;9999 ZZ;06-8\n"
                      "Els;Gaal;;\n")));
}

TEST_F(LijstimportTest, DeNaamInEenKolomBlijftZoalsHijGesplitstStaat)
{
    spelers = Lees("HKEY=100042\r\n"
                   "1,100001,Gr02-,Jan,,Willem Smit,,,,,,,,,,,,1\r\n"
                   "2,100002,Gr02-,Jan,de,Boer,,,,,,,,,,,,2\r\n"
                   "3,100003,Gr02-,Wim,van,Dam,,,,,,,,,,,,3\r\n");
    EXPECT_EQ((Teksten{"ongewijzigd", "gewijzigd Tusv:de> Achternaam:Boer>Vries", "ongewijzigd",
                       "gewijzigd Achternaam:Dam>Damme dubbel"}),
              Regels(Bekijk("NBBnr;Naam\n1;Smit, Jan Willem\n2;Jan Vries\n3;\n3;Wim van Damme\n")));
}

TEST_F(LijstimportTest, NoemtWatTwijfelachtigIs)
{
    EXPECT_EQ(
        (Teksten{"gewijzigd Voornaam:An>Piet Tusv:de> Achternaam:Bos>Kok anders",
                 "nieuw Voornaam:>Eva Achternaam:>Fuik NBBgr:>NIEUW NBBnr:>777 naam2 dubbel",
                 "nieuw Voornaam:>Eva Achternaam:>Fuik NBBgr:>NIEUW NBBnr:>777 naam2 dubbel uit",
                 "nieuw Voornaam:>Bo Achternaam:>Dop NBBgr:>NIEUW NBBnr:>778"}),
        Regels(Bekijk("NBBnr;Naam\n12345;Piet Kok\n777;Eva Fuik\n777;Eva Fuik\n778;Bo Dop\n")));
    EXPECT_EQ(3U, voorbeeld->AantalTwijfelachtig());
    EXPECT_EQ(1U, voorbeeld->RegelsUit());
}

TEST_F(LijstimportTest, EenAnderNummerBijDezelfdeNaamIsTwijfelachtig)
{
    EXPECT_EQ((Teksten{"gewijzigd NBBnr:12345>777 naam1", "gewijzigd NBBnr:>778"}),
              Regels(Bekijk("NBBnr;Naam;Postcode\n777;An de Bos;0101AA\n778;Eva Fuik;0202 BB\n",
                            Herkenning::Naam)));
}

TEST_F(LijstimportTest, WieTweeKeerInDeLijstStaatWordtOpVolgordeGewijzigd)
{
    EXPECT_EQ((Teksten{"gewijzigd Plaats:Ede>Goes dubbel", "gewijzigd Plaats:Goes>Ede dubbel",
                       "ongewijzigd dubbel"}),
              Regels(Bekijk("Key;Plaats\n100001;Goes\n100001;Ede\n100001;\n")));
    EXPECT_FALSE(voorbeeld->VerandertIets());
}

TEST_F(LijstimportTest, WeigertMetReden)
{
    EXPECT_EQ(
        (Teksten{"geweigerd cellen 2", "nieuw Achternaam:>Bos NBBgr:>NIEUW", "geweigerd cellen 4",
                 "geweigerd naam 5", "geweigerd nummer 6", "geweigerd nummer 7"}),
        Regels(Bekijk("Achternaam;Plaats;NBBnr\nBos;Ede\nBos;;;;\nBos;Ede;1;te veel\n;Ede;1\n"
                      "Bos;Ede;A12\nBos;Ede;123456789\n")));
    EXPECT_EQ(6U, voorbeeld->AantalGelezen());
    EXPECT_EQ(5U, voorbeeld->Aantal(Voorbeeldsoort::Geweigerd));
    EXPECT_FALSE(voorbeeld->MagUit(0));
}

TEST_F(LijstimportTest, DoetMetTekstWatHetInvoervensterDoet)
{
    EXPECT_EQ((Teksten{"nieuw Voornaam:>Jo Achternaam:>partner_van_Bos Adres:>Weg 1_ links M/V:>V "
                       "Div1:>a b NBBgr:>LIJN"}),
              Regels(Bekijk("Voornaam;Achternaam;Adres;M/V;Div1;Subgr\n"
                            " Jo\x81\x7F ;partner van Bos;Weg 1, links;Mevr.;\"a\tb\";lijn\n")));
}

TEST_F(LijstimportTest, DoetWatErAanStaat)
{
    Bekijk("NBBnr;Naam;Plaats;Telefoon\n12345;An de Bos;Goes;06-1\n501;Wil Hoek;Lent;06-2\n"
           "502;Bo Dop;;\n503;Ko Kip;;\n");
    voorbeeld->Zet(0, Kolom::Telef, false);
    voorbeeld->Zet(1, Kolom::Plaats, false);
    voorbeeld->Zet(2, false);
    EXPECT_TRUE(voorbeeld->VerandertIets());
    const auto telling = voorbeeld->VoerUit(spelers);
    ASSERT_TRUE(telling.has_value());
    EXPECT_EQ(2U, telling->nieuw);
    EXPECT_EQ(1U, telling->gewijzigd);
    ASSERT_EQ(6, spelers.tabel.Rijen());
    EXPECT_EQ("100001,Gr02-,An,de,Bos,010-1,a@b.nl,Weg 1,0101 AA,Goes,NL,V,d1,d2,overl,A,12345",
              Rij(1));
    EXPECT_EQ("100043,Gr02-,Wil,,Hoek,06-2,,,,,,,,,,NIEUW,501", Rij(5));
    EXPECT_EQ("100044,Gr02-,Ko,,Kip,,,,,,,,,,,NIEUW,503", Rij(6));
    EXPECT_EQ(100044, spelers.HKEY);
}

TEST_F(LijstimportTest, ZonderSleutelsVerandertErNiets)
{
    spelers.HKEY = std::numeric_limits<std::int32_t>::max();
    Bekijk("NBBnr;Naam;Plaats\n12345;An de Bos;Goes\n501;Wil Hoek;Lent\n");
    const Tekst oud = Rij(1);
    EXPECT_FALSE(voorbeeld->VoerUit(spelers).has_value());
    EXPECT_EQ(oud, Rij(1));
    EXPECT_EQ(4, spelers.tabel.Rijen());
}

TEST_F(LijstimportTest, KanTussentijdsStoppen)
{
    Tekst tekst = "Naam\n";
    for (int i = 0; i < 5000; ++i)
        tekst += "Jan Bos\n";
    lijst = LeesSpelerslijst(tekst, {}).value();
    int keren = 0;
    EXPECT_FALSE(Lijstvoorbeeld::Maak(spelers.tabel, lijst,
                                      {.groep = "Gr02-", .keuze = RaadVelden(lijst, true)},
                                      [&](std::size_t, std::size_t) { return ++keren < 2; })
                     .has_value());
    EXPECT_EQ(2, keren);
}

/// A chain of lines for one player is followed by its last link only.
TEST_F(LijstimportTest, HonderdduizendRegelsVoorEenSpelerDurenNietLang)
{
    Tekst tekst = "Key;Plaats\n";
    for (int i = 0; i < 100'000; ++i)
        tekst += i % 2 == 0 ? "100001;Goes\n" : "100001;\n";
    const auto begin = std::chrono::steady_clock::now();
    Bekijk(tekst);
    EXPECT_TRUE(voorbeeld->VerandertIets());
    EXPECT_EQ(1U, voorbeeld->VoerUit(spelers)->gewijzigd);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}
