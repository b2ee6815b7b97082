#include "register/mappen.h"

#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"
#include <gtest/gtest.h>

using namespace plexoran;

TEST(MappenIniPad, NaastHetProgrammaOfMetAdminEenMapHoger)
{
    EXPECT_EQ(MappenIniPad("C:\\RVD\\Plexoran"), "C:\\RVD\\Plexoran\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\RVD\\Admin"), "C:\\RVD\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\RVD\\LedenAdmin2"), "C:\\RVD\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("Admin"), "Mappen.ini");
    // Other capitals are no "Admin".
    EXPECT_EQ(MappenIniPad("C:\\RVD\\admin"), "C:\\RVD\\admin\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\RVD\\ADMIN"), "C:\\RVD\\ADMIN\\Mappen.ini");
    // One folder up from the program, not from the folder with the word: that is meant.
    EXPECT_EQ(MappenIniPad("C:\\Administratie\\RVD\\Plexoran"),
              "C:\\Administratie\\RVD\\Mappen.ini");
    // With the separator of other systems.
    EXPECT_EQ(MappenIniPad("/opt/rvd/Admin"), "/opt/rvd/Mappen.ini");
    EXPECT_EQ(MappenIniPad("/opt/rvd/plexoran"), "/opt/rvd/plexoran\\Mappen.ini");
}

TEST(MappenUit, ElkeSleutel)
{
    const Mappen mappen = MappenUit("RVDMAP=C:\\RVD\r\n"
                                    "APPEXE=RVD.exe\r\n"
                                    "ZITMAP=C:\\RVD\\Zit\r\n"
                                    "ADMMAP=C:\\RVD\\Admin\r\n"
                                    "INDMAP=C:\\RVD\\Ind\r\n"
                                    "SPEMAP=C:\\RVD\\Spelers\r\n"
                                    "COMMAP=C:\\RVD\\Com\r\n"
                                    "NEWPAGR=1\r\n"
                                    "DFIMPG=Gr05-\r\n"
                                    "NBB28UIT=2\r\n"
                                    "WINMAP=C:\\RVD\\Win\r\n"
                                    "ODKEYS=ODNBB4SP ODNBB28\r\n");
    EXPECT_EQ(mappen.RVDMAP, "C:\\RVD");
    EXPECT_EQ(mappen.APPEXE, "RVD.exe");
    EXPECT_EQ(mappen.ZITMAP, "C:\\RVD\\Zit");
    EXPECT_EQ(mappen.ADMMAP, "C:\\RVD\\Admin");
    EXPECT_EQ(mappen.INDMAP, "C:\\RVD\\Ind");
    EXPECT_EQ(mappen.SPEMAP, "C:\\RVD\\Spelers");
    EXPECT_EQ(mappen.COMMAP, "C:\\RVD\\Com");
    EXPECT_EQ(mappen.NEWPAGR, 1);
    EXPECT_EQ(mappen.DFIMPG, "Gr05-");
    EXPECT_EQ(mappen.NBB28UIT, 2);
    EXPECT_EQ(mappen.WINMAP, "C:\\RVD\\Win");
    EXPECT_EQ(mappen.ODKEYS, "ODNBB4SP ODNBB28");
}

TEST(MappenUit, AfwezigeSleutelsZijnLeegOfNul)
{
    const Mappen mappen = MappenUit("");
    EXPECT_EQ(mappen.SPEMAP, "");
    EXPECT_EQ(mappen.ODKEYS, "");
    EXPECT_EQ(mappen.NEWPAGR, 0);
    EXPECT_EQ(mappen.NBB28UIT, 0);
}

TEST(MappenUit, DeWaardeIsAllesAchterHetEersteIsTeken)
{
    const Tekst lang(65536, 'x');
    const Tekst bytes("C:\\\x81\x8D\0\xE9", 7);
    for (const Tekst& waarde :
         {Tekst("C:\\a=b="), Tekst("=x"), Tekst("  C:\\x , y \t"), lang, bytes}) {
        EXPECT_EQ(MappenUit("SPEMAP=" + waarde + "\r\nADMMAP=b\r\n").SPEMAP, waarde);
        EXPECT_EQ(MappenUit("spemap=" + waarde).SPEMAP, waarde) << "ook achter kleine letters";
    }
}

TEST(MappenUit, LaatsteRegelWint)
{
    const Mappen mappen = MappenUit("SPEMAP=eerste\r\nDFIMPG=Gr05-\r\nSPEMAP=tweede\r\n"
                                    "NEWPAGR=1\r\nNEWPAGR=3\r\ndfimpg=\r\n");
    EXPECT_EQ(mappen.SPEMAP, "tweede");
    EXPECT_EQ(mappen.NEWPAGR, 3);
    EXPECT_EQ(mappen.DFIMPG, "");
}

TEST(MappenUit, AlleenHetBeginVanDeRegelTelt)
{
    const Mappen mappen = MappenUit(" SPEMAP=a\r\n;SPEMAP=b\r\nSPEMAP =c\r\nSPEMAPX=d\r\n"
                                    "SPEMAP\r\nSPE\r\n\r\n[SPEMAP=]\r\nXSPEMAP=e\r\n");
    EXPECT_EQ(mappen.SPEMAP, "");
}

TEST(MappenUit, GetalMetTekstErachterEnNulAlsHetNietPast)
{
    // 65537 would be 1 in 16 bits.
    const std::pair<Tekst, int> gevallen[] = {{"1 ja", 1},
                                              {"  12", 12},
                                              {"-3", -3},
                                              {"ja1", 0},
                                              {"", 0},
                                              {"32767", 32767},
                                              {"32768", 0},
                                              {"-32768", -32768},
                                              {"-32769", 0},
                                              {"65537", 0},
                                              {"99999999999999999999999999", 0}};
    for (const auto& [tekst, getal] : gevallen) {
        EXPECT_EQ(MappenUit("NEWPAGR=" + tekst + "\r\n").NEWPAGR, getal) << tekst;
        EXPECT_EQ(MappenUit("nbb28uit=" + tekst + "\r\n").NBB28UIT, getal) << tekst;
    }
    // The last line wins, also when it does not fit; the lines after it are read.
    const Mappen mappen = MappenUit("NEWPAGR=1\r\nNEWPAGR=40000\r\nSPEMAP=x\r\n");
    EXPECT_EQ(mappen.NEWPAGR, 0);
    EXPECT_EQ(mappen.SPEMAP, "x");
}

TEST(MappenUit, ElkRegeleinde)
{
    const Mappen mappen = MappenUit("SPEMAP=a\nADMMAP=b\rWINMAP=c\r\nCOMMAP=d");
    EXPECT_EQ(mappen.SPEMAP, "a");
    EXPECT_EQ(mappen.ADMMAP, "b");
    EXPECT_EQ(mappen.WINMAP, "c");
    EXPECT_EQ(mappen.COMMAP, "d");
}

TEST(Mappen, AfgeleidePaden)
{
    const Mappen mappen = MappenUit("SPEMAP=C:\\S\r\nADMMAP=C:\\A\r\nWINMAP=C:\\W\r\n");
    EXPECT_EQ(mappen.Spelerbestand(), "C:\\S\\RVDspelers.txt");
    EXPECT_EQ(mappen.Groepenbestand(), "C:\\S\\RVDGroepen.txt");
    EXPECT_EQ(mappen.Instellingenbestand(), "C:\\A\\Plexo.ini");
    EXPECT_EQ(mappen.Ledenmap(), "C:\\W\\NBB4-Leden");
}

TEST(LeesMappenIni, VanDeSchijfOntbrekendEnOnleesbaar)
{
    const Pad pad = "C:\\RVD\\Mappen.ini";
    GeheugenSchijf binnen;
    FalendeSchijf schijf(binnen);
    const auto weg = LeesMappenIni(schijf, pad);
    ASSERT_FALSE(weg);
    EXPECT_EQ(weg.error().soort, Foutsoort::Ontbreekt);

    binnen.Zet(pad, "SPEMAP=C:\\S\r\n");
    EXPECT_EQ(LeesMappenIni(schijf, pad).value().SPEMAP, "C:\\S");
    schijf.FaalBij(1);
    const auto geweigerd = LeesMappenIni(schijf, pad);
    ASSERT_FALSE(geweigerd);
    EXPECT_EQ(geweigerd.error().soort, Foutsoort::Geweigerd);
    EXPECT_EQ(geweigerd.error().bestand, pad);
}

TEST(LeesMappenIni, EenBezwaarTegenDeTekstWordtBewaard)
{
    EXPECT_EQ(MappenUit("SPEMAP=C:\\a\r\n").bezwaar, "");
    // To the letter: the mark stands before the key, so that is no key.
    const Mappen utf8 = MappenUit("\xEF\xBB\xBFRVDMAP=C:\\a\r\nSPEMAP=C:\\b\r\n");
    EXPECT_EQ(utf8.RVDMAP, "");
    EXPECT_EQ(utf8.SPEMAP, "C:\\b");
    EXPECT_EQ(utf8.bezwaar,
              "het is opgeslagen als UTF-8, en het merkteken daarvan staat voor de eerste regel");
    EXPECT_EQ(MappenUit(Tekst("SPEMAP=C:\\b") + '\0').bezwaar, "er staan NUL-tekens in");

    GeheugenSchijf schijf;
    schijf.Zet("C:\\Mappen.ini", "\xEF\xBB\xBFSPEMAP=C:\\b\r\n");
    const auto mappen = LeesMappenIni(schijf, "C:\\Mappen.ini");
    ASSERT_FALSE(mappen);
    EXPECT_EQ(mappen.error().systeem, utf8.bezwaar);
}
