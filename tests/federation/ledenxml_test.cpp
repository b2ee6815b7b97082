#include "federation/ledenbestand.h"

#include "hulp/fouten.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

const Pad bestand = "C:\\Export\\Club.xml";
const Pad tussenbestand = "C:\\P\\Club Temp-NBBXMLtoCSV.csv";

using Omzetter = Uitkomst<Ledenomzetting> (*)(Schijf&, const Pad&, const Pad&, const Voortgang&);

/// The intermediate file that an export gives, or what was said instead.
Tekst Geeft(Omzetter omzetter, Tekstblik inhoud, std::size_t* vervangen = nullptr)
{
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\P");
    schijf.Zet(bestand, inhoud);
    const auto uit = omzetter(schijf, bestand, tussenbestand, {});
    if (!uit)
        return "fout: " + uit.error().systeem;
    if (vervangen != nullptr)
        *vervangen = uit->vervangenTekens;
    return schijf.Inhoud(tussenbestand).value_or("(niets)");
}

Tekst Lijst(const Tekst& leden)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<ReportableMembersList>\r\n  "
           "<Name>Club</Name>\r\n  <Members>\r\n" +
           leden + "  </Members>\r\n</ReportableMembersList>\r\n";
}

/// The line of one member with these children, without the closing CR LF.
Tekst Lid(Omzetter omzetter, const Tekst& kinderen)
{
    const Tekst uit =
        Geeft(omzetter, Lijst("<ReportableMember>" + kinderen + "</ReportableMember>"));
    return uit.ends_with("\r\n\r\n") ? uit.substr(0, uit.size() - 4) : uit;
}

const auto Lid3 = std::bind_front(Lid, ConverteerNBB3XML);
const auto Lid4 = std::bind_front(Lid, ConverteerNBB4XML);

TEST(Nbb4Xml, VultDeVeldenOpNaam)
{
    EXPECT_EQ(Geeft(ConverteerNBB4XML, Lijst(R"(
    <ReportableMember>
      <Achternaam>Ek</Achternaam>
      <LeagueId>123</LeagueId>
      <Geslacht>Female</Geslacht>
      <Voornaam>Zoë</Voornaam>
      <Voorletters>Z.</Voorletters>
      <Tussenvoegsel>van</Tussenvoegsel>
      <Adres>Brink 1</Adres>
      <Postcode>0411 JK</Postcode>
      <Plaats>Laar</Plaats>
      <Telefoon1>010-1</Telefoon1>
      <Telefoon2>06-2</Telefoon2>
      <Email>z@x.example</Email>
      <Land>Nederland</Land>
    </ReportableMember>
    <ReportableMember>
      <LeagueId>124</LeagueId>
      <Achternaam>Bal</Achternaam>
    </ReportableMember>
)")),
              "123;V;Zo\xEB;Z.;van;Ek;Brink 1;0411 JK;Laar;06-2;z@x.example;;;;;;\r\n"
              "124;;;;;Bal;;;;;;;;;;;\r\n"
              "\r\n");
}

TEST(Nbb4Xml, NamenMoetenToOpDeLetterKloppenEnHetLaatsteVanTweeTelt)
{
    EXPECT_EQ(Lid4("<leagueId>1</leagueId><LEAGUEID>2</LEAGUEID><x:LeagueId>3</x:LeagueId>"
                   "<Name>x</Name><AchterNaam>y</AchterNaam>"),
              ";;;;;;;;;;;;;;;;");
    EXPECT_EQ(Lid4("<Email>e</Email><x/><Plaats>p</Plaats><LeagueId>1</LeagueId><Adres>a</Adres>"
                   "<Adres>b</Adres>"),
              "1;;;;;;b;;p;;e;;;;;;");
}

/// Such a member is named in the import, and those around it come in.
TEST(Nbb4Xml, EenLeegNummerIsLeegHoeHetOokGeschrevenIs)
{
    for (const char* nummer :
         {"<LeagueId></LeagueId>", "<LeagueId> </LeagueId>", "<LeagueId/>", ""})
        EXPECT_EQ(Lid4(nummer + Tekst("<Voornaam>Eva</Voornaam>")), ";;Eva;;;;;;;;;;;;;;")
            << nummer;
}

TEST(Nbb4Xml, HetTweedeTelefoonnummerGaatVoorWaarHetOokStaat)
{
    for (const auto& [elementen, nummer] :
         {std::pair{"<Telefoon1>1</Telefoon1><Telefoon2>2</Telefoon2>", "2"},
          {"<Telefoon2>2</Telefoon2><Telefoon1>1</Telefoon1>", "2"},
          {"<Telefoon1>1</Telefoon1><Telefoon2></Telefoon2>", "1"},
          {"<Telefoon1>1</Telefoon1><Telefoon2>\r\n  </Telefoon2>", "1"},
          {"<Telefoon1>1</Telefoon1><Telefoon2/>", "1"},
          {"<Telefoon2>2</Telefoon2>", "2"},
          {"<Telefoon2>2</Telefoon2><Telefoon2/><Telefoon1>1</Telefoon1>", "2"}})
        EXPECT_EQ(Lid4(elementen), Tekst(";;;;;;;;;") + nummer + ";;;;;;;") << elementen;
}

TEST(Nbb4Xml, EenPartnerWordtEenWoord)
{
    for (const auto& [achternaam, woord] :
         {std::pair{"Partner van X", "Partner_van_X"},
          {"PARTNER  van X ", "PARTNER__van_X_"},
          {"partner\r\nvan X", "partner_van_X"},
          {"Partners van X", "Partners_van_X"}, // the first seven count
          {"Partner", "Partner"},
          {"Partner-van-X", "Partner-van-X"},
          {" Partner van X", " Partner van X"}, // cut first, then trimmed
          {"De Partner van X", "De Partner van X"},
          {"Part ner", "Part ner"}})
        EXPECT_EQ(Lid4("<Achternaam>" + Tekst(achternaam) + "</Achternaam>"),
                  ";;;;;" + Tekst(woord) + ";;;;;;;;;;;");
}

TEST(Nbb4Xml, WitBlijftMaarZonderTekstIsLeeg)
{
    EXPECT_EQ(Lid4("<LeagueId> 1 </LeagueId><Voornaam>   </Voornaam><Plaats>\tLaar</Plaats>"),
              " 1 ;;;;;;;;\tLaar;;;;;;;;");
    EXPECT_EQ(Lid4("<Adres>Brink\r\n1\nhoog</Adres><Plaats>a&#13;&#10;b&#13;c</Plaats>"),
              ";;;;;;Brink 1 hoog;;a b c;;;;;;;;");
    EXPECT_EQ(Lid4("<Adres>Brink<!--x--> <![CDATA[1]]></Adres>"), ";;;;;;Brink 1;;;;;;;;;;");
    EXPECT_EQ(Lid4("<Adres>a;b</Adres>"), ";;;;;;a;b;;;;;;;;;;") << "een puntkomma splitst";
}

TEST(Nbb4Xml, TeltTekensDieDeCodepaginaMist)
{
    std::size_t vervangen = 0;
    EXPECT_EQ(Geeft(ConverteerNBB4XML,
                    Lijst("<ReportableMember><Voornaam>Győző</Voornaam><Telefoon2>č</Telefoon2>"
                          "<Geslacht>中</Geslacht><Overig>中</Overig></ReportableMember>"),
                    &vervangen),
              ";;Gyozo;;;;;;;c;;;;;;;\r\n\r\n");
    EXPECT_EQ(vervangen, 4U) << "elementen die niet worden gebruikt tellen niet";
}

TEST(Nbb4Xml, LedenStaanAlleenOpHunPad)
{
    const Tekst lid = "<ReportableMember><LeagueId>1</LeagueId></ReportableMember>";
    const Tekst regel = "1;;;;;;;;;;;;;;;;\r\n";
    const auto geeft = [](const Tekst& tekst) { return Geeft(ConverteerNBB4XML, tekst); };
    EXPECT_EQ(geeft("<ReportableMembersList><Members>" + lid + "</Members><Members>" + lid +
                    "</Members></ReportableMembersList>"),
              regel + regel + "\r\n");
    EXPECT_EQ(geeft("<ReportableMembersList>" + lid + "</ReportableMembersList>"), "\r\n");
    EXPECT_EQ(geeft("<Members>" + lid + "</Members>"), "\r\n");
    EXPECT_EQ(geeft("<Lijst><Members>" + lid + "</Members></Lijst>"), "\r\n");
    EXPECT_EQ(geeft("<ReportableMembersList><Members><x>" + lid +
                    "</x></Members></ReportableMembersList>"),
              "\r\n");
    EXPECT_EQ(geeft("<ReportableMembersList><Members>" + lid.substr(0, lid.size() - 19) + lid +
                    "</ReportableMember></Members></ReportableMembersList>"),
              regel + "\r\n")
        << "een lid in een lid is geen lid";
    EXPECT_EQ(geeft("<ReportableMembersList xmlns:i=\"x\"><Members>" + lid +
                    "</Members></ReportableMembersList>"),
              regel + "\r\n")
        << "een lijst hoeft geen naam te hebben";
}

TEST(Nbb4Xml, EenBestandDatNietTeLadenIsGeeftEenLeegTussenbestandEnDeReden)
{
    for (const Tekst& inhoud : {Tekst("geen xml"), Tekst(), Lijst("<ReportableMember>"),
                                "<?xml encoding='ibm437'?>" + Lijst("")}) {
        GeheugenSchijf schijf;
        schijf.Zet(tussenbestand, "van een ander bestand");
        schijf.Zet(bestand, inhoud);
        const auto uit = ConverteerNBB4XML(schijf, bestand, tussenbestand);
        ASSERT_TRUE(uit.has_value());
        ASSERT_TRUE(uit->nietGeladen.has_value());
        EXPECT_EQ(uit->nietGeladen->soort, Foutsoort::Beschadigd);
        EXPECT_EQ(schijf.Inhoud(tussenbestand), "\r\n");
    }
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\P");
    const auto uit = ConverteerNBB4XML(schijf, bestand, tussenbestand);
    ASSERT_TRUE(uit.has_value());
    EXPECT_EQ(uit->nietGeladen->soort, Foutsoort::Ontbreekt);
    EXPECT_EQ(schijf.Inhoud(tussenbestand), "\r\n");
    schijf.Zet(bestand, Lijst(""));
    EXPECT_FALSE(ConverteerNBB4XML(schijf, bestand, tussenbestand)->nietGeladen.has_value());
}

/// Seventeen children, each with its position as its text, apart from the exceptions.
Tekst Posities(const std::map<int, Tekst>& uitzonderingen = {})
{
    Tekst uit;
    for (int positie = 1; positie <= 17; ++positie) {
        const auto anders = uitzonderingen.find(positie);
        uit += "\r\n      <Veld>" +
               (anders == uitzonderingen.end() ? std::to_string(positie) : anders->second) +
               "</Veld>";
    }
    return uit;
}

TEST(Nbb3Xml, VultDeVeldenOpPlaats)
{
    EXPECT_EQ(Lid3(Posities()), "4;;15;14;13;1;2;10;9;12;5;;;;;;");
    EXPECT_EQ(Lid3(Posities({{7, "vrouw"}, {12, ""}})), "4;V;15;14;13;1;2;10;9;11;5;;;;;;");
    EXPECT_EQ(Lid3(Posities({{7, "MALE"}, {11, ""}})), "4;M;15;14;13;1;2;10;9;12;5;;;;;;");
}

TEST(Nbb3Xml, NamenDoenErNietToeEnEenPartnerBlijftZoalsHijStaat)
{
    EXPECT_EQ(Lid3("<LeagueId>Ek</LeagueId><Voornaam>Brink 1</Voornaam>"),
              ";;;;;Ek;Brink 1;;;;;;;;;;");
    EXPECT_EQ(Lid3("<A>Partner van X</A>"), ";;;;;Partner van X;;;;;;;;;;;");
}

TEST(Nbb3Xml, ElkeKnoopNeemtEenPlaatsMaarAlleenEenElementVult)
{
    for (const char* knoop : {"<!--c-->", "<?p i?>", "tekst", "<![CDATA[x]]>"})
        EXPECT_EQ(Lid3(knoop + Posities()), "3;;14;13;12;;1;9;8;11;4;;;;;;") << knoop;
    EXPECT_EQ(Lid3("tekst<!--c-->" + Posities()), "2;;13;12;11;;;8;7;10;3;;;;;;");
    EXPECT_EQ(Lid3(" \r\n\t " + Posities()), "4;;15;14;13;1;2;10;9;12;5;;;;;;")
        << "wit tussen de elementen telt niet";
}

TEST(Nbb3Xml, WatGeenXmlIsIsEenFoutEnLaatHetTussenbestandStaan)
{
    GeheugenSchijf schijf;
    schijf.Zet(tussenbestand, "oud");
    schijf.Zet(bestand, "<a>\r\n<b>\r\n</a>\r\n");
    const Fout fout = FoutVan(ConverteerNBB3XML(schijf, bestand, tussenbestand));
    EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
    EXPECT_EQ(fout.bestand, bestand);
    EXPECT_EQ(fout.regel, 3);
    EXPECT_NE(fout.systeem, "");
    EXPECT_EQ(schijf.Inhoud(tussenbestand), "oud");
    EXPECT_EQ(FoutVan(ConverteerNBB3XML(schijf, "C:\\Export\\weg.xml", tussenbestand)).soort,
              Foutsoort::Ontbreekt);
}

TEST(Nbb3Xml, ZonderLedenIsDeLijstLeeg)
{
    EXPECT_EQ(Geeft(ConverteerNBB3XML, "<iets/>"), "\r\n");
    EXPECT_EQ(Geeft(ConverteerNBB3XML, Lijst("")), "\r\n");
}

TEST(LedenXml, ElkeSchijffoutWordtGemeldEnLaatGeenHalfBestand)
{
    for (const Omzetter omzetter : {Omzetter(ConverteerNBB3XML), Omzetter(ConverteerNBB4XML)}) {
        const Tekst inhoud = Lijst("<ReportableMember><A>B</A></ReportableMember>");
        int mislukt = 0;
        for (int stap = 1; stap < 40; ++stap) {
            GeheugenSchijf binnen;
            binnen.Zet(tussenbestand, "oud");
            binnen.Zet(bestand, inhoud);
            FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
            schijf.FaalBij(stap);
            const auto uit = omzetter(schijf, bestand, tussenbestand, {});
            if (schijf.Aantal() < stap)
                break;
            ++mislukt;
            EXPECT_FALSE(uit.has_value()) << stap;
            const Tekst nu = binnen.Inhoud(tussenbestand).value_or("(weg)");
            EXPECT_TRUE(nu == "oud" || nu.ends_with(";\r\n\r\n")) << nu;
        }
        EXPECT_GE(mislukt, 5);
    }
}

TEST(LedenXml, LeestElkeCodering)
{
    const Tekst hol = "<ReportableMembersList><Members><ReportableMember><Voornaam>Zo\xEB"
                      "</Voornaam></ReportableMember></Members></ReportableMembersList>";
    const Tekst verwacht = ";;Zo\xEB;;;;;;;;;;;;;;\r\n\r\n";
    Tekst klein = "\xFF\xFE";
    Tekst groot = "\xFE\xFF";
    for (const char teken : hol) {
        klein += teken;
        klein += '\0';
        groot += '\0';
        groot += teken;
    }
    for (const Tekst& inhoud :
         {klein, groot, klein.substr(2), "<?xml version='1.0' encoding='Windows-1252'?>" + hol,
          "<?xml version='1.0' encoding='iso-8859-1'?>" + hol})
        EXPECT_EQ(Geeft(ConverteerNBB4XML, inhoud), verwacht);
}

TEST(LedenXml, MeldtHoeVerHetIsEnGaatDoor)
{
    Tekst leden;
    for (int i = 0; i < 10'000; ++i)
        leden += "<ReportableMember/>";
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\P");
    schijf.Zet(bestand, Lijst(leden));
    const std::size_t lengte = Lijst(leden).size();
    std::size_t vorige = 0;
    int keren = 0;
    ASSERT_TRUE(ConverteerNBB4XML(schijf, bestand, tussenbestand,
                                  [&](std::size_t gedaan, std::size_t geheel) {
                                      EXPECT_EQ(geheel, lengte);
                                      EXPECT_LT(gedaan, geheel);
                                      EXPECT_GT(gedaan, vorige);
                                      vorige = gedaan;
                                      ++keren;
                                      return false;
                                  })
                    .has_value());
    EXPECT_GE(keren, 2);
    EXPECT_EQ(schijf.Inhoud(tussenbestand)->size(), 18 * 10'000U + 2);
}

} // namespace
} // namespace plexoran
