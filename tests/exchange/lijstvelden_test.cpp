#include "exchange/lijstvelden.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

Spelerslijst Lijst(Tekstblik tekst)
{
    return LeesSpelerslijst(tekst, HerkenVorm(tekst)).value();
}

/// The guess, by names; "-" for a column that is left out.
Tekst Raad(Tekstblik tekst)
{
    const Spelerslijst lijst = Lijst(tekst);
    return (HeeftKop(lijst) ? "" : "zonder kop: ") + Keuzetekst(RaadVelden(lijst, HeeftKop(lijst)));
}

Tekst Delen(Tekstblik naam)
{
    const auto [voornaam, tusv, achternaam] = SplitsNaam(naam);
    return voornaam + '/' + tusv + '/' + achternaam;
}

} // namespace

TEST(Lijstvelden, KentDeEigenKolommen)
{
    EXPECT_EQ(
        "key;;Key;;Voornaam;Tusv;Achternaam;Telef;Email;Adres;Postc;Plaats;Land;M/V;Div1;Div2;"
        "Status;NBBgr;NBBnr",
        Raad("Nr;Key;Groep;Voornaam;Tusv;Achternaam;Telef;Email;Adres;Postc;Plaats;Land;M/V;Div1;"
             "Div2;Status;NBBgr/Subgr;NBBnr\r\n1;100001;Gr01-;A;;B;;;;;;;M;;;;;\r\n"));
    EXPECT_EQ("naam;Achternaam;NBBgr", Raad("Achternaam;Subgr\r\nBos;A\r\n"));
}

TEST(Lijstvelden, KentNederlandseEnEngelseKoppen)
{
    EXPECT_EQ("nbbnr;NBBnr;Voornaam;Tusv;Achternaam;Adres;Postc;Plaats;Telef;Email;M/V",
              Raad("NBB-nummer;Roepnaam;Tussenvoegsel;Achternaam;Straat + huisnummer;Postcode;"
                   "Woonplaats;Telefoonnummer;E-mailadres;Geslacht\n"));
    EXPECT_EQ("naam;Voornaam;Achternaam;Email;Telef;Adres;Plaats;Land",
              Raad("First name,Last name,E-mail address,Phone,Street,City,Country\n"));
}

TEST(Lijstvelden, EenVeldKomtUitEenKolom)
{
    EXPECT_EQ("naam;Telef;;Voornaam;;Achternaam",
              Raad("Telefoon;Mobiel;Voornaam;Voorletters;Naam\n01;06;Jan;J.;Bos\n"));
    EXPECT_EQ("naam;Telef;Naam", Raad("Mobiel;Naam\n06;Jan Bos\n"));
    EXPECT_EQ("naam;;Achternaam", Raad("Naam;Achternaam\nJan Bos;Bos\n"));
}

TEST(Lijstvelden, RaadtNaarDeInhoud)
{
    EXPECT_EQ("zonder kop: naam;;Email;Postc;Telef;M/V",
              Raad("Jan Bos;jan@club.example;1234 AB;06-12345678;M\n"
                   "Eva Fuik;eva@club.example;4321ab;+31 (0)20 1234567;V\n"
                   "Els Gaal;;9999 ZZ;;v\n"));
    EXPECT_EQ("naam;Naam;Email;Postc",
              Raad("Naam;Contact;Code\nJan Bos;jan@club.example;1234 AB\n"));
    // Fewer than four of five.
    EXPECT_EQ("zonder kop: naam;;", Raad("x;1234 AB\nx;1234 AB\nx;1234 AB\nx;Ede\n"));
}

TEST(Lijstvelden, EenRijMetGegevensIsGeenKop)
{
    EXPECT_FALSE(HeeftKop(Lijst("Jan Land;jan@club.example\n")));
    EXPECT_FALSE(HeeftKop(Lijst("Plaats;1234 AB\n")));
    EXPECT_FALSE(HeeftKop(Lijst("Land;100001\n")));
    EXPECT_FALSE(HeeftKop(Lijst("Jan;Bos\n")));
    EXPECT_TRUE(HeeftKop(Lijst("wie;woonplaats\n")));
}

TEST(Lijstvelden, SplitstEenNaam)
{
    EXPECT_EQ("Jan/van der/Berg", Delen("Jan van der Berg"));
    EXPECT_EQ("Jan/van der/Berg", Delen("Berg, Jan van der"));
    EXPECT_EQ("Jan/van der/Berg", Delen("van der Berg, Jan"));
    EXPECT_EQ("Jan/van der/Berg", Delen("Berg, van der, Jan"));
    EXPECT_EQ("J./van der/Berg", Delen("J. van der Berg"));
    EXPECT_EQ("J.D./van 't/Hof", Delen("J.D. van 't Hof"));
    EXPECT_EQ("D./de/Vries", Delen("D. de Vries"));
    EXPECT_EQ("J./v.d./Berg", Delen("J. v.d. Berg"));
    EXPECT_EQ("Jan Willem//Smit-Bos", Delen("  Jan  Willem Smit-Bos "));
    EXPECT_EQ("Jan Willem//Smit", Delen("Smit, Jan Willem"));
    EXPECT_EQ("/Van den/Berg", Delen("Van den Berg"));
    EXPECT_EQ("Jan/Van/Damme", Delen("Jan Van Damme"));
    EXPECT_EQ("Al//Jansen", Delen("Al Jansen"));
    EXPECT_EQ("Jan/de/Vries van Dam", Delen("Jan de Vries van Dam"));
    EXPECT_EQ("Zo\xEB/in 't/Veld", Delen("Zo\xEB in 't Veld"));
    EXPECT_EQ("//Berg", Delen("Berg"));
    EXPECT_EQ("//Berg", Delen("Berg,"));
    EXPECT_EQ("Jan//", Delen(", Jan"));
    EXPECT_EQ("//van", Delen("van"));
    EXPECT_EQ("//", Delen(" "));
    EXPECT_EQ("//", Delen(","));
}

TEST(Lijstvelden, OnthoudtPerSoort)
{
    const Spelerslijst lijst = Lijst("Naam;E-mail\nJan;x\n");
    EXPECT_EQ("NAAM-EMAIL", Lijstkoppen(lijst, true));
    EXPECT_EQ("zonder kop-", Lijstkoppen(lijst, false));
    const Lijstkeuze keuze{.velden = {HeleNaam, GeenVeld, Kolom::MV},
                           .herkenning = Herkenning::NBBnr};
    EXPECT_EQ("nbbnr;Naam;;M/V", Keuzetekst(keuze));
    EXPECT_EQ(keuze, KeuzeUit("nbbnr;Naam;;M/V", 3));
    EXPECT_EQ(std::nullopt, KeuzeUit("nbbnr;Naam;;M/V", 2));
    EXPECT_EQ(std::nullopt, KeuzeUit("", 0));
    EXPECT_EQ(std::nullopt, KeuzeUit("iets;Naam", 1));
    EXPECT_EQ((Veldkeuzes{GeenVeld}), KeuzeUit("naam;Onzin", 1)->velden);
}
