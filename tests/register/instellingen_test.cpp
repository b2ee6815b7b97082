#include "register/instellingen.h"

#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

void Verwacht(Tekstblik inhoud, int optind, int lostgr)
{
    const Instellingen instellingen = InstellingenUit(inhoud);
    EXPECT_EQ(instellingen.OPTIND, optind) << inhoud;
    EXPECT_EQ(instellingen.LOSTGR, lostgr) << inhoud;
}

void MetMappen(GeheugenSchijf& schijf)
{
    schijf.ZetMap(Proefmappen().SPEMAP);
    schijf.ZetMap(Proefmappen().ADMMAP);
}

} // namespace

TEST(InstellingenUit, ItemsVanDeTekst)
{
    Verwacht("OPTIND=4\r\nLOSTGR=12\r\n", 4, 12);
    Verwacht("", 0, 0);
    Verwacht("lostgr=3\nOptInd=5", 5, 3); // in any case and order
    Verwacht("OPTIND=4,LOSTGR=12\r\n", 4, 12);
    Verwacht("iets,LOSTGR=7,nog iets\rOPTIND=9", 9, 7);
    Verwacht("OPTIND= 6 x\r\nLOSTGR=x6\r\n", 6, 0);
    Verwacht("OPTIND=-6\r\nLOSTGR==6\r\n", -6, 0);
    Verwacht("OPTIND=4\r\nOPTIND=8\r\n", 8, 0); // the last one wins
    Verwacht(" OPTIND=4\r\nXLOSTGR=3\r\nOPTIND\r\nOPTINDX=5\r\n", 0, 0);
    Verwacht(Tekst("\0\x81\xFF,,\r\r\n=OPTIND=\0", 17), 0, 0);
    Verwacht("OPTIND=" + Tekst(65536, '0') + "7,LOSTGR=2", 7, 2);
}

TEST(InstellingenUit, GetalDatNietPastEindigtHetLezen)
{
    Verwacht("OPTIND=4\r\nLOSTGR=32768\r\nOPTIND=5\r\n", 4, 0);
    Verwacht("OPTIND=99999999999999999999\r\nLOSTGR=3\r\n", 0, 0);
    Verwacht("OPTIND=32767\r\nLOSTGR=-32768\r\n", 32767, -32768);
}

TEST(InstellingenTekst, TweeRegelsZonderSpaties)
{
    EXPECT_EQ(InstellingenTekst({.OPTIND = 4, .LOSTGR = 12}), "OPTIND=4\r\nLOSTGR=12\r\n");
    EXPECT_EQ(InstellingenTekst({}), "OPTIND=0\r\nLOSTGR=0\r\n");
    EXPECT_EQ(InstellingenTekst({.OPTIND = -32768, .LOSTGR = 32767}),
              "OPTIND=-32768\r\nLOSTGR=32767\r\n");
}

TEST(LeesInstellingen, OntbrekendOfOnleesbaarIsNul)
{
    GeheugenSchijf binnen;
    EXPECT_EQ(LeesInstellingen(binnen, Proefmappen()).LOSTGR, 0);

    binnen.Zet(instellingenbestand, "OPTIND=4\r\nLOSTGR=12\r\n");
    EXPECT_EQ(LeesInstellingen(binnen, Proefmappen()).LOSTGR, 12);
    FalendeSchijf schijf(binnen);
    schijf.FaalBij(1);
    EXPECT_EQ(LeesInstellingen(schijf, Proefmappen()).LOSTGR, 0);
}

TEST(SchrijfInstellingen, NieuwEnVervangend)
{
    GeheugenSchijf schijf;
    MetMappen(schijf);
    Instellingen instellingen{.OPTIND = 0, .LOSTGR = 10};
    ASSERT_TRUE(SchrijfInstellingen(schijf, Proefmappen(), instellingen));
    EXPECT_EQ(schijf.Inhoud(instellingenbestand), "OPTIND=0\r\nLOSTGR=10\r\n");
    instellingen.OPTIND = 4;
    instellingen.LOSTGR = 1;
    ASSERT_TRUE(SchrijfInstellingen(schijf, Proefmappen(), instellingen));
    EXPECT_EQ(schijf.Inhoud(instellingenbestand), "OPTIND=4\r\nLOSTGR=1\r\n");
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{instellingenbestand});
    const auto voor = schijf.NeemStempel(instellingenbestand);
    ASSERT_TRUE(SchrijfInstellingen(schijf, Proefmappen(), instellingen));
    EXPECT_EQ(schijf.NeemStempel(instellingenbestand), *voor) << "niet nog eens geschreven";
}

TEST(SchrijfInstellingen, OnzinWordtEerstGekopieerd)
{
    const auto kopieenVan = [](const Tekst& oud) {
        GeheugenSchijf schijf;
        MetMappen(schijf);
        schijf.Zet(instellingenbestand, oud);
        Instellingen instellingen{.OPTIND = 5, .LOSTGR = 2};
        EXPECT_TRUE(SchrijfInstellingen(schijf, Proefmappen(), instellingen));
        EXPECT_EQ(schijf.Inhoud(instellingenbestand), "OPTIND=5\r\nLOSTGR=2\r\n");
        return Kopieen(schijf);
    };
    for (const Tekst onzin : {"kleur=rood\r\n", "OPTIND=4\r\nLOSTGR=1\r\n; van Kees\r\n",
                              "OPTIND=4,onzin", "\x81", "OPTIND=99999\r\n"})
        EXPECT_EQ(kopieenVan(onzin), std::vector<Tekst>{onzin});
    for (const Tekst leeg : {"", "\r\n", "  \r\n \n", "optind=4,LOSTGR=2"})
        EXPECT_EQ(kopieenVan(leeg), std::vector<Tekst>{}) << leeg;
}

TEST(SchrijfInstellingen, MapOntbreektOfAlleenLezen)
{
    GeheugenSchijf schijf;
    Instellingen nul;
    EXPECT_EQ(SoortVan(SchrijfInstellingen(schijf, Proefmappen(), nul)), Foutsoort::Ontbreekt);

    MetMappen(schijf);
    schijf.Zet(instellingenbestand, "OPTIND=4\r\nLOSTGR=1\r\n");
    schijf.ZetAlleenLezen(Proefmappen().ADMMAP);
    nul.LOSTGR = 2;
    EXPECT_EQ(SoortVan(SchrijfInstellingen(schijf, Proefmappen(), nul)), Foutsoort::Geweigerd);
    EXPECT_EQ(schijf.Inhoud(instellingenbestand), "OPTIND=4\r\nLOSTGR=1\r\n");
}

TEST(SchrijfInstellingen, HetTerugkeerveldVanEenAnderProgrammaBlijft)
{
    GeheugenSchijf schijf;
    MetMappen(schijf);
    schijf.Zet(instellingenbestand, "OPTIND=4\r\nLOSTGR=1\r\n");
    Instellingen instellingen = LeesInstellingen(schijf, Proefmappen());
    const auto bewaar = [&](Tekstblik daar) {
        schijf.Zet(instellingenbestand, daar);
        EXPECT_TRUE(SchrijfInstellingen(schijf, Proefmappen(), instellingen));
        return schijf.Inhoud(instellingenbestand);
    };
    instellingen.LOSTGR = 7;
    EXPECT_EQ(bewaar("OPTIND=2\r\nLOSTGR=3\r\n"), "OPTIND=2\r\nLOSTGR=7\r\n");
    EXPECT_EQ(instellingen.OPTIND, 2);
    EXPECT_EQ(bewaar("optind=3"), "OPTIND=3\r\nLOSTGR=7\r\n");
    // Chosen here since: the last choice counts.
    instellingen.OPTIND = 5;
    EXPECT_EQ(bewaar("OPTIND=1\r\nLOSTGR=7\r\n"), "OPTIND=5\r\nLOSTGR=7\r\n");
    EXPECT_EQ(bewaar("OPTIND=1\r\nLOSTGR=7\r\n"), "OPTIND=1\r\nLOSTGR=7\r\n");
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>());
    // What is broken or gone says nothing.
    for (const Tekst stuk : {"", "\r\n", "OPTIND=99999\r\n", "onzin\r\n"})
        EXPECT_EQ(bewaar(stuk), "OPTIND=1\r\nLOSTGR=7\r\n") << stuk;
}
