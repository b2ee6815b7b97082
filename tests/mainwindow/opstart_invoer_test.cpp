// The start-up on files that are damaged, unreadable or of something else.
#include "mainwindow/opstartproef.h"

using namespace plexoran;
using namespace std::string_literals;

namespace {

const std::string ruis = "\x93\xFF\x00\x01PK\x03\x04\r\n\x81,\x8D\x00\x00\n\xE2\x28\xA1"s;

const QString NietVerhogen = u"Niet verhogen"_s;

} // namespace

TEST_F(Opstartproef, MappenIniMetHetMerktekenVanUTF8OfMetNULWordtGemeld)
{
    const QString begin = u"Misschien zijn niet alle regels van 'Mappen.ini' gelezen: "_s;
    const QString eind =
        u". Er is niets aan uw gegevens veranderd. Sla dat bestand in een tekstprogramma op als "
        "ANSI (Windows-1252) en start Plexoran opnieuw.\n\nBestand: C:\\RVD\\Mappen.ini"_s;
    geheugen.Zet("C:\\RVD\\Mappen.ini", "\xEF\xBB\xBF" + ini);
    wachter.Waarschuwing(
        begin +
        u"het is opgeslagen als UTF-8, en het merkteken daarvan staat voor de eerste regel"_s +
        eind);
    Lees();
    EXPECT_EQ("", administratie.mappen.RVDMAP);

    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "\0"s);
    wachter.Waarschuwing(begin + u"er staan NUL-tekens in"_s + eind);
    Lees();
}

TEST_F(Opstartproef, WatNietTeLezenIsWordtGemeldEnPasNaEenKopieVervangen)
{
    const std::string bos = Speler("1", "100001", "Gr01-", "Bos") + "\r\n";
    const std::string dam = Speler("2", "100002", "Gr02-", "Dam") + "\r\n";
    struct Geval {
        std::string oud;
        int rijen, velden, regel; // of the message: rows in the table, fields on which line
        std::string nieuw;        // with a player added
    };
    for (const Geval& geval :
         {Geval{ruis, 0, 1, 1, "HKEY=100001\r\n1,100001"},
          // a line that cannot even be counted leaves no table
          Geval{"HKEY=100007\r\n" + bos + "2,100002,Gr01-,Piet,\r\n" + dam, 0, 5, 3,
                "HKEY=100008\r\n1,100008"},
          Geval{"HKEY=100007\r\n" + bos + dam + "3,100003,Gr01-,Jan,,Elst,06-1234", 2, 7, 4,
                "HKEY=100008\r\n" + bos + dam + "3,100008"},
          Geval{"HKEY=100007\r\n" + bos + "2,100002,Gr01-,Jan,,Elst,06\r\n", 1, 7, 3,
                "HKEY=100008\r\n" + bos + "2,100008"}}) {
        SCOPED_TRACE(geval.oud);
        ASSERT_NO_FATAL_FAILURE(BeginOpnieuw());
        ZetSpelers(geval.oud);
        VerwachtNietTotHetEinde(geval.rijen, geval.velden, geval.regel);
        Lees();
        EXPECT_EQ(geval.rijen, administratie.spelers.tabel.Rijen());
        EXPECT_EQ(geval.oud, Spelers());
        EXPECT_EQ(std::vector<Tekst>{}, Kopieen("RVDspelers"));

        VoegToe("Nieuweling");
        EXPECT_EQ(std::vector<Tekst>{geval.oud}, Kopieen("RVDspelers"));
        EXPECT_EQ(geval.nieuw + ",Gr01-,,,Nieuweling,,,,,,,,,,,,\r\n", Spelers());
        // What was left out stands in the copy; the next save needs none.
        VoegToe("Tweede");
        EXPECT_EQ(1U, Kopieen("RVDspelers").size());
    }
}

TEST_F(Opstartproef, EenOnmogelijkeSleutelregelWordtGemeld)
{
    ZetSpelers("HKEY=99999999999\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n");
    wachter.Waarschuwing(isNogLeeg);
    wachter.Informatie(
        u"Het spelerbestand is niet tot het einde gelezen; er staan nu 0 spelers in de tabel, want "
        "op regel 1 staat achter HKEY= een getal dat niet past"_s +
        sleutelgevolg + blijftZoHetIs + u"\n\n"_s + Spelerbestand + u"\nRegel: 1"_s);
    VerwachtSleutelvraag(100001, 100000, NietVerhogen);
    Lees();
}

/// Of such a file no player is read, but the keys of all were issued.
TEST_F(Opstartproef, SleutelsInEenBestandDatNietTeTellenIsWordenOokAangeboden)
{
    const std::string rijen = Speler("1", "100250", "Gr01-", "Bos") + "\r\n" +
                              Speler("2", "100003", "Gr01-", "Dam") + "\r\n";
    for (const std::string& oud : {"HKEY=99999999999\r\n" + rijen, rijen + "HKEY=99999999999\r\n",
                                   "HKEY=100171\r\n" + rijen + "3,100004\r\n"}) {
        administratie.spelers = {};
        ZetSpelers(oud);
        wachter.Waarschuwing(isNogLeeg);
        wachter.Begin(u"Het spelerbestand is niet tot het einde"_s, QMessageBox::Information);
        VerwachtSleutelvraag(100250, oud.find("171") == std::string::npos ? 100000 : 100171,
                             u"Verhogen"_s);
        Lees();
        EXPECT_EQ(oud, Spelers());
        VoegToe("Nieuweling");
        EXPECT_TRUE(Spelers()->starts_with("HKEY=100251\r\n1,100251,")) << *Spelers();
    }
}

TEST_F(Opstartproef, AndereRegelsGevenGeenBericht)
{
    struct Geval {
        std::string oud;
        int rijen, HKEY;
    };
    const std::string bos = Speler("1", "100000", "Gr01-", "Bos") + "\r\n";
    for (const Geval& geval : {Geval{"HKEY=100123\r\n", 0, 100123},
                               Geval{"HKEY=100007\r\n\r\n   \r\n" + bos + "\r\n\r\n", 1, 100007},
                               Geval{"HKEY=99\r\n" + bos, 1, 100000}}) {
        ZetSpelers(geval.oud);
        Lees();
        EXPECT_EQ(geval.rijen, administratie.spelers.tabel.Rijen());
        EXPECT_EQ(geval.HKEY, administratie.spelers.HKEY);
        EXPECT_EQ(geval.oud, Spelers());
    }
}

TEST_F(Opstartproef, ZonderSleutelregelBegintDeTellingBijDeBasis)
{
    const std::string oud = Speler("1", "100007", "Gr01-", "Bos") + "\r\n";
    ZetSpelers(oud);
    wachter.Informatie(u"In het spelerbestand ontbreekt de regel HKEY= met de hoogste sleutel"_s +
                       sleutelgevolg + blijftZoHetIs);
    VerwachtSleutelvraag(100007, 100000, NietVerhogen);
    Lees();
    EXPECT_EQ(0, administratie.spelers.HKEY);
    VoegToe("Nieuweling");
    EXPECT_EQ("HKEY=100001\r\n" + Speler("1", "100007", "Gr01-", "Bos") +
                  "\r\n2,100001,Gr01-,,,Nieuweling,,,,,,,,,,,,\r\n",
              Spelers());
    EXPECT_EQ(std::vector<Tekst>{oud}, Kopieen("RVDspelers"));
}

TEST_F(Opstartproef, EenSleutelregelZonderGetalWordtGemeldMetZijnRegel)
{
    for (const char* zonder : {"", "onzin"}) {
        ZetSpelers(Speler("1", "100000", "Gr01-", "Bos") + "\r\nHKEY=" + zonder + "\r\n");
        wachter.Informatie(u"Op regel 2 van het spelerbestand staat achter HKEY= geen getal"_s +
                           sleutelgevolg + blijftZoHetIs);
        Lees();
        EXPECT_EQ(100000, administratie.spelers.HKEY);
    }
}

TEST_F(Opstartproef, SleutelsBovenHKEYVerhogenStaatMeteenInHetBestand)
{
    ZetInstellingen("OPTIND=0\r\nLOSTGR=4\r\n");
    const std::string rijen = Speler("1", "100250", "Gr05-", "Bos") + "\r\n" +
                              Speler("2", "100003", "Gr05-", "Dam") + "\r\n";
    ZetSpelers("HKEY=100171\r\n" + rijen);
    VerwachtSleutelvraag(100250, 100171, u"Verhogen"_s);
    Start();
    EXPECT_EQ("HKEY=100250\r\n" + rijen, Spelers());
    EXPECT_EQ(std::vector<Tekst>{}, Kopieen("RVDspelers"));
    EXPECT_EQ(5, GetoondeGroep());
    EXPECT_EQ("OPTIND=0\r\nLOSTGR=4\r\n", Plexo());
    EXPECT_FALSE(Knop("cmdKoppel")->isVisible());
    Vensterproef::VoegToe(u"Nieuweling"_s);
    EXPECT_NE(std::string::npos, Spelers()->find("3,100251,Gr05-"));
    Start(); // and is not asked again
}

TEST_F(Opstartproef, SleutelsBovenHKEYNietVerhogenLaatAllesZoals)
{
    const std::string oud = "HKEY=100171\r\n" + Speler("1", "100250", "Gr01-", "Bos") + "\r\n";
    for (const QString& antwoord : {NietVerhogen, Berichtwachter::Escape}) {
        ZetSpelers(oud);
        VerwachtSleutelvraag(100250, 100171, antwoord);
        Lees();
        EXPECT_EQ(oud, Spelers());
        EXPECT_EQ(100171, administratie.spelers.HKEY);
    }
}

/// A save would leave them out of the file; the new key waits for the first change.
TEST_F(Opstartproef, VerhogenAlsErSpelersZijnOvergeslagenSlaatNietMeteenOp)
{
    const std::string oud = "HKEY=100171\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n" +
                            Speler("2", "100300", "Gr01-", "") + "\r\n";
    ZetSpelers(oud);
    wachter.Begin(u"1 speler zonder achternaam is niet ingelezen"_s, QMessageBox::Information);
    VerwachtSleutelvraag(100300, 100171, u"Verhogen"_s);
    Lees();
    EXPECT_EQ(oud, Spelers());
    EXPECT_EQ(100300, administratie.spelers.HKEY);
    VoegToe("Nieuweling");
    EXPECT_TRUE(Spelers()->starts_with("HKEY=100301\r\n"));
}

TEST_F(Opstartproef, SpelersZonderAchternaamWordenGenoemdEnBlijvenInEenKopie)
{
    const std::string oud = "HKEY=100007\r\n" + Speler("1", "100001", "Gr01-", "") + "\r\n" +
                            Speler("2", "100002", "Gr01-", "Bos") + "\r\n" +
                            Speler("3", "100003", "Gr01-", "") + "\r\n";
    ZetSpelers(oud);
    wachter.Informatie(
        u"2 spelers zonder achternaam zijn niet ingelezen (regels 2, 4 van het spelerbestand). Vul "
        "die achternamen daar in als u de spelers wilt houden."_s +
        blijftZoHetIs);
    Lees();
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
    VoegToe("Nieuweling");
    EXPECT_EQ(std::vector<Tekst>{oud}, Kopieen("RVDspelers"));
}

TEST_F(Opstartproef, ElkeFoutVanEenLezingKrijgtZijnEigenBericht)
{
    ZetSpelers(Speler("1", "100001", "Gr01-", "Bos") + "\r\n" + Speler("2", "100000", "Gr01-", "") +
               "\r\n");
    wachter.Informatie(
        u"1 speler zonder achternaam is niet ingelezen (regel 2 van het spelerbestand). Vul die "
        "achternaam daar in als u de speler wilt houden."_s +
        blijftZoHetIs);
    wachter.Informatie(u"In het spelerbestand ontbreekt de regel HKEY= met de hoogste sleutel"_s +
                       sleutelgevolg + blijftZoHetIs);
    VerwachtSleutelvraag(100001, 100000, NietVerhogen);
    Lees();
}

TEST_F(Opstartproef, AlsDeKopieNietKanKomtErGeenOpslag)
{
    ZetSpelers(ruis);
    ZetGroepen(KaleGroepen());
    geheugen.Zet("C:\\RVD\\Spelers\\Reservekopie", "een bestand waar de map moet komen");
    VerwachtNietTotHetEinde(0, 1, 1);
    Lees();
    wachter.Verwacht(
        {.tekst =
             u"Er is niets opgeslagen: de kopie van het spelerbestand die eerst in de map "
             "Reservekopie moet komen, is mislukt. Het spelerbestand op de schijf is heel "
             "gebleven, en uw laatste wijziging staat nog in dit programma. Verhelp de oorzaak en "
             "probeer het opnieuw, of ga door: bij de volgende wijziging en bij het afsluiten komt "
             "deze keus terug.\n\nBestand: C:\\RVD\\Spelers\\Reservekopie"_s,
         .antwoord = u"Doorgaan"_s,
         .icoon = QMessageBox::Critical,
         .knoppen = {u"Opnieuw proberen"_s, u"Doorgaan"_s},
         .alleenBegin = true});
    VoegToe("Nieuweling");
    EXPECT_EQ(ruis, Spelers());
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
    EXPECT_EQ(Opslag::Mislukt, afloop);
}

TEST_F(Opstartproef, ZonderMapVoorDeInstellingenWordenErGeenGezocht)
{
    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "ADMMAP=\r\n");
    geheugen.Zet("\\Plexo.ini", "dit is\r\ngeen instelling\r\n");
    Lees();
}

TEST_F(Opstartproef, OnzinInPlexoIniWordtGemeldEnKomtInEenKopie)
{
    ZetInstellingen("dit is\r\ngeen instelling\r\n");
    wachter.Informatie(
        u"Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit programma. "
        "Voordat het wordt vervangen, komt er een kopie van in de map Reservekopie. U hoeft niets "
        "te doen.\n\nBestand: C:\\RVD\\Admin\\Plexo.ini"_s);
    ASSERT_EQ(std::nullopt, Laad());
    EXPECT_EQ(1, GetoondeGroep());
    EXPECT_EQ("OPTIND=0\r\nLOSTGR=0\r\n", Plexo());
    EXPECT_EQ(std::vector<Tekst>{"dit is\r\ngeen instelling\r\n"}, Kopieen("Plexo"));
}

TEST_F(Opstartproef, OnzinInDeGroepsnamenWordtGemeldEnBlijftStaan)
{
    const std::string oud = "dit is geen groep\r\nGr01-Clubleden\r\n" + ruis;
    ZetGroepen(oud);
    wachter.Informatie(
        u"Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn; die zijn "
        "overgeslagen. Voordat het bestand wordt vervangen, komt er een kopie van in de map "
        "Reservekopie. Kijk na of de groepsnamen kloppen.\n\nBestand: "
        "C:\\RVD\\Spelers\\RVDGroepen.txt"_s);
    Lees();
    EXPECT_EQ("Gr01-Clubleden", administratie.groepen.Toontekst(1));
    EXPECT_EQ("Gr02-", administratie.groepen.Toontekst(2));
    EXPECT_EQ(oud, Groepen());
}

TEST_F(Opstartproef, EenOnleesbaarSpelerbestandWordtGemeldEnNietVervangen)
{
    geheugen.ZetMap("C:\\RVD\\Spelers\\RVDspelers.txt"); // a folder of that name
    wachter.Waarschuwing(isNogLeeg);
    wachter.Begin(nietGeopend + Spelerbestand, QMessageBox::Information);
    Lees();
    EXPECT_EQ(Padsoort::Map, geheugen.Soort("C:\\RVD\\Spelers\\RVDspelers.txt").value());
}

TEST_F(Opstartproef, InEenSpelersmapDieNietBeschrevenMagWordenWerktHetKijken)
{
    const std::string oud = "HKEY=100007\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n";
    ZetSpelers(oud);
    ZetGroepen(KaleGroepen());
    geheugen.ZetAlleenLezen("C:\\RVD\\Spelers");
    Lees();
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
    wachter.Begin(u"De spelers konden niet worden opgeslagen."_s, QMessageBox::Critical,
                  u"Doorgaan"_s);
    VoegToe("Nieuweling");
    EXPECT_EQ(oud, Spelers());
    EXPECT_EQ(2, administratie.spelers.tabel.Rijen());
}
