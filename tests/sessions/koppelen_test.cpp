#include "sessions/koppelen.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

class Koppelen : public testing::Test {
  protected:
    Koppelen()
    {
        mappen.ZITMAP = "C:\\Zit";
        mappen.COMMAP = "C:\\Com";
    }

    [[nodiscard]] Pad Lijstpad(int ronde, int zitting, Lijstsoort soort) const
    {
        return Competitiezitting(mappen, "Ladder", ronde, zitting).Bestand(soort);
    }
    void ZetZitting(int ronde, int zitting, const Tekst& spelers, const Tekst& percentages = {})
    {
        schijf.Zet(Lijstpad(ronde, zitting, Lijstsoort::Spelers), spelers);
        schijf.Zet(Lijstpad(ronde, zitting, Lijstsoort::Percentages), percentages);
    }
    /// The names of the three sessions, of which the last two hold Jansen in both files.
    void ZetCompetitie()
    {
        ZetZitting(1, 1, "N01 Jansens - 100001\r\n", "1,A,N1,Jansens-100001,50,0,x\r\n");
        ZetZitting(2, 1, "N05 Jansen - 100001\r\nO01 Bos - Jansen\r\n",
                   "1,A,O1,Bos-Jansen,50,0,x\r\n2,A,N5,Jansen-100001,50,0,x\r\n");
        ZetZitting(10, 3, "O07 100001 - Jansen\r\n", "1,A,O7,100001-Jansen,50,0,x\r\n");
    }

    Zoekuitslag ZoekCompetitie(Schijf& op)
    {
        return ZoekZwevenden(op, ZittingenVan(op, mappen, "Ladder").value());
    }
    void ZetDinsdag(const Tekst& spelers, const Tekst& percentages = {})
    {
        schijf.Zet("C:\\Zit\\Di\\Spelers.txt", spelers);
        schijf.Zet("C:\\Zit\\Di\\PercZit.txt", percentages);
    }
    [[nodiscard]] Tekst Spelers() { return schijf.Inhoud("C:\\Zit\\Di\\Spelers.txt").value(); }
    Zoekuitslag ZoekZitting() { return ZoekZwevenden(schijf, {LosseZitting(mappen, "Di")}); }

    static Teksten Regels(const Zoekuitslag& uitslag)
    {
        Teksten uit;
        for (const Zwevende& zwevende : uitslag.zwevenden)
            uit.push_back(Lijstregel(zwevende));
        return uit;
    }
    static Teksten Meldingen(const Koppeluitslag& uitslag)
    {
        Teksten uit;
        for (const Aangepast& aangepast : uitslag.aangepast)
            uit.push_back(aangepast.code +
                          (aangepast.soort == Lijstsoort::Spelers ? " spelers" : " percentages"));
        return uit;
    }
    /// To link the player of this line of the competition.
    Koppelopdracht Opdracht(const Tekst& regel)
    {
        const Zoekuitslag gevonden = ZoekCompetitie(schijf);
        const Teksten regels = Regels(gevonden);
        const auto plek = std::find(regels.begin(), regels.end(), regel) - regels.begin();
        return MaakKoppelopdracht(gevonden.zwevenden, static_cast<std::size_t>(plek), "100237");
    }
    [[nodiscard]] std::map<Pad, Tekst> AlleInhoud() const
    {
        std::map<Pad, Tekst> uit;
        for (const Pad& pad : schijf.AlleBestanden())
            uit[pad] = schijf.Inhoud(pad).value();
        return uit;
    }

    GeheugenSchijf schijf;
    Mappen mappen;
};

} // namespace

TEST_F(Koppelen, InEenZittingEerstDeSpelersDanDePercentages)
{
    ZetDinsdag("N05 Jansen - 100001\r\nO01 Bos - Cos\r\n",
               "1,A,O1,Bos-Cos,50,0,x\r\n2,A,N5,Jansen-100001,50,0,x");
    EXPECT_EQ(Regels(ZoekZitting()),
              (Teksten{"als N05    Jansen", "als O01    Bos", "als O01    Cos", "als O1    Bos",
                       "als O1    Cos", "als N5    Jansen"}));
}

TEST_F(Koppelen, OntbrekendeBestandenWordenOvergeslagenEnKapotteRecordsGeteld)
{
    schijf.ZetMap("C:\\Zit\\Di");
    EXPECT_EQ(Regels(ZoekZitting()), Teksten{});
    EXPECT_TRUE(ZoekZitting().fouten.empty());
    schijf.ZetMap("C:\\Zit\\Di\\Spelers.txt");
    schijf.Zet("C:\\Zit\\Di\\PercZit.txt", "1,A,N5,Jansen-100001,50,0,x");
    EXPECT_EQ(Regels(ZoekZitting()), Teksten{"als N5    Jansen"});
    EXPECT_TRUE(ZoekZitting().fouten.empty());
    schijf.Zet("C:\\Zit\\Di\\PercZit.txt", "1,A,N5,Jansen-100001,50,0\r\n\r\nx\r\n");
    EXPECT_EQ(2, ZoekZitting().overgeslagen);
}

TEST_F(Koppelen, InEenCompetitieMetRondeEnZittingOpVolgorde)
{
    ZetCompetitie();
    EXPECT_EQ(Regels(ZoekCompetitie(schijf)),
              (Teksten{"In R1 - Z1 als N01    Jansens", "In R1 - Z1 als N1    Jansens",
                       "In R2 - Z1 als N05    Jansen", "In R2 - Z1 als O01    Bos",
                       "In R2 - Z1 als O01    Jansen", "In R2 - Z1 als O1    Bos",
                       "In R2 - Z1 als O1    Jansen", "In R2 - Z1 als N5    Jansen",
                       "In R10 - Z3 als O07    Jansen", "In R10 - Z3 als O7    Jansen"}));
}

TEST_F(Koppelen, EenOnleesbaarBestandHoudtDeAndereNietTegen)
{
    ZetCompetitie();
    FalendeSchijf falend(schijf);
    const auto zittingen = ZittingenVan(schijf, mappen, "Ladder").value();
    falend.FaalBij(1);
    const Zoekuitslag uitslag = ZoekZwevenden(falend, zittingen);
    EXPECT_EQ(1U, uitslag.fouten.size());
    EXPECT_EQ(9U, uitslag.zwevenden.size());
}

TEST_F(Koppelen, ZoekenIsTeStoppen)
{
    ZetCompetitie();
    std::vector<std::size_t> gezien;
    const auto zittingen = ZittingenVan(schijf, mappen, "Ladder").value();
    const Zoekuitslag uitslag =
        ZoekZwevenden(schijf, zittingen, [&](std::size_t gedaan, std::size_t geheel) {
            EXPECT_EQ(3U, geheel);
            gezien.push_back(gedaan);
            return gedaan < 1;
        });
    EXPECT_EQ((std::vector<std::size_t>{0, 1}), gezien);
    EXPECT_TRUE(uitslag.gestopt);
    EXPECT_EQ(2U, uitslag.zwevenden.size());
}

// ---------------------------------------------------------------- one session

TEST_F(Koppelen, InEenZittingAlleenOpDeGekozenPlaats)
{
    ZetDinsdag("N05 Jansen - 100001\r\nO01 Bos - Jansen\r\n",
               "1,A,O1,Bos-Jansen,50,0,x\r\n2,A,N5,Jansen-100001,50,0,x\r\n");
    const auto lijst = ZoekZitting().zwevenden;
    const auto uitslag = Koppel(schijf, MaakKoppelopdracht(lijst, 0, "100237"));
    EXPECT_FALSE(uitslag.fout);
    EXPECT_EQ(Meldingen(uitslag), (Teksten{"N05 spelers", "N05 percentages"}));
    EXPECT_EQ("N05 100237 - 100001\r\nO01 Bos - Jansen\r\n", Spelers());
    EXPECT_EQ("1,A,O1,Bos-Jansen,50,0,x\r\n2,A,N5,100237 - 100001,50,0,x\r\n",
              schijf.Inhoud("C:\\Zit\\Di\\PercZit.txt"));
}

TEST_F(Koppelen, DeRegelUitHetPercentagebestandKoppeltOokInBeide)
{
    ZetDinsdag("N05 Jansen - 100001\r\n", "1,A,N5,Jansen-100001,50,0,x\r\n");
    const auto lijst = ZoekZitting().zwevenden;
    ASSERT_EQ("N5", lijst[1].code);
    const auto uitslag = Koppel(schijf, MaakKoppelopdracht(lijst, 1, "100237"));
    EXPECT_EQ(Meldingen(uitslag), (Teksten{"N5 spelers", "N5 percentages"}));
    EXPECT_EQ("N05 100237 - 100001\r\n", Spelers());
}

TEST_F(Koppelen, AlleenWatVeranderdeWordtGeschrevenEnGenoemd)
{
    ZetDinsdag("N05 Jansen - 100001\r\n", "1,A,N5,100002-100001,50,0,x\r\n");
    const auto voor = schijf.NeemStempel("C:\\Zit\\Di\\PercZit.txt").value();
    const auto uitslag = Koppel(schijf, MaakKoppelopdracht(ZoekZitting().zwevenden, 0, "100237"));
    EXPECT_EQ(Meldingen(uitslag), Teksten{"N05 spelers"});
    EXPECT_EQ(uitslag.gewijzigd,
              std::vector<std::string>{schijf.Toonpad("C:\\Zit\\Di\\Spelers.txt")});
    EXPECT_EQ(voor, schijf.NeemStempel("C:\\Zit\\Di\\PercZit.txt").value());
}

TEST_F(Koppelen, WatEenAnderProgrammaIntussenSchreefBlijft)
{
    ZetDinsdag("N05 Jansen - 100001\r\n");
    const auto lijst = ZoekZitting().zwevenden;
    ZetDinsdag("N04 Nieuw - 100009\r\nN05 Jansen - 100008\r\n");
    (void)Koppel(schijf, MaakKoppelopdracht(lijst, 0, "100237"));
    EXPECT_EQ("N04 Nieuw - 100009\r\nN05 100237 - 100008\r\n", Spelers());

    const auto weer = ZoekZitting().zwevenden;
    ZetDinsdag("heel iets anders");
    const auto uitslag = Koppel(schijf, MaakKoppelopdracht(weer, 0, "100237"));
    EXPECT_TRUE(uitslag.aangepast.empty());
    EXPECT_FALSE(uitslag.fout);
    EXPECT_EQ("heel iets anders", Spelers());
}

/// Between the reading and the renaming: what was written there is linked too.
TEST_F(Koppelen, WatErTijdensHetKoppelenBijKomtBlijft)
{
    ZetDinsdag("N05 Jansen - 100001\r\n");
    const auto opdracht = MaakKoppelopdracht(ZoekZitting().zwevenden, 0, "100237");
    FalendeSchijf falend(schijf);
    int keer = 0;
    falend.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0") && keer < 2)
            ZetDinsdag("N04 Nieuw - " + std::to_string(++keer) + "\r\nN05 Jansen - 100001\r\n");
        return true;
    });
    auto uitslag = Koppel(falend, opdracht);
    EXPECT_FALSE(uitslag.fout);
    EXPECT_EQ(Meldingen(uitslag), Teksten{"N05 spelers"});
    EXPECT_EQ("N04 Nieuw - 2\r\nN05 100237 - 100001\r\n", Spelers());

    // One who never stops is told.
    ZetDinsdag("N05 Jansen - 100001\r\n");
    falend.Vooraf([&](const Pad& pad) {
        if (pad.ends_with(".~plexoran0"))
            ZetDinsdag("N05 Jansen - " + std::to_string(++keer) + "\r\n");
        return true;
    });
    uitslag = Koppel(falend, opdracht);
    ASSERT_TRUE(uitslag.fout);
    EXPECT_EQ(Foutsoort::Gewijzigd, uitslag.fout->soort);
    EXPECT_EQ(uitslag.nietGewijzigd,
              std::vector<std::string>{schijf.Toonpad("C:\\Zit\\Di\\Spelers.txt")});
    EXPECT_EQ("N05 Jansen - " + std::to_string(keer) + "\r\n", Spelers());
}

// ---------------------------------------------------------------- a competition

TEST_F(Koppelen, InEenCompetitieOveralWaarDeNaamStaat)
{
    ZetCompetitie();
    const auto uitslag = Koppel(schijf, Opdracht("In R10 - Z3 als O7    Jansen"));
    EXPECT_EQ(Meldingen(uitslag), (Teksten{"N05 spelers", "N05 percentages", "O01 spelers",
                                           "O01 percentages", "O07 spelers", "O07 percentages"}));
    EXPECT_EQ(4U, uitslag.gewijzigd.size());
    EXPECT_EQ("N05 100237 - 100001\r\nO01 Bos - 100237\r\n",
              schijf.Inhoud(Lijstpad(2, 1, Lijstsoort::Spelers)));
    EXPECT_EQ("1,A,O1,Bos - 100237,50,0,x\r\n2,A,N5,100237 - 100001,50,0,x\r\n",
              schijf.Inhoud(Lijstpad(2, 1, Lijstsoort::Percentages)));
    EXPECT_EQ("O07 100001 - 100237\r\n", schijf.Inhoud(Lijstpad(10, 3, Lijstsoort::Spelers)));
    EXPECT_EQ("N01 Jansens - 100001\r\n", schijf.Inhoud(Lijstpad(1, 1, Lijstsoort::Spelers)));
}

/// Meant: the lines that contain the name are counted, those of a longer name and both files' too.
TEST_F(Koppelen, HetAantalIsDatVanDeRegels)
{
    ZetCompetitie();
    const auto opdracht = Opdracht("In R2 - Z1 als N05    Jansen");
    EXPECT_EQ("Jansen", opdracht.naam);
    EXPECT_EQ(8U, opdracht.regels.size());
}

/// Meant: the search is in the whole line, so a short name may also be found in its beginning.
TEST_F(Koppelen, DeNaamMagInDeHeleRegelStaan)
{
    ZetZitting(1, 1, "N05 als - 100001\r\nO01 Bos - 100002\r\n");
    const auto opdracht = Opdracht("In R1 - Z1 als N05    als");
    EXPECT_EQ(2U, opdracht.regels.size());
    (void)Koppel(schijf, opdracht);
    EXPECT_EQ("N05 100237 - 100001\r\nO01 Bos - 100002\r\n",
              schijf.Inhoud(Lijstpad(1, 1, Lijstsoort::Spelers)));
}

/// After a kill, too, which can tidy up nothing any more: the next link does.
TEST_F(Koppelen, NaElkeMislukkingIsVanElkBestandBekendHoeHetErVoorStaat)
{
    ZetCompetitie();
    const auto oud = AlleInhoud();
    FalendeSchijf telling(schijf);
    const auto opdracht = Opdracht("In R2 - Z1 als N05    Jansen");
    ASSERT_FALSE(Koppel(telling, opdracht).fout);
    const int stappen = telling.Aantal();
    const auto nieuw = AlleInhoud();
    ASSERT_NE(oud, nieuw);
    int mislukt = 0;
    std::size_t resten = 0;
    for (int stap = 1; stap <= 2 * stappen; ++stap) {
        for (const auto& [pad, inhoud] : oud)
            schijf.Zet(pad, inhoud);
        FalendeSchijf falend(schijf);
        if (stap <= stappen)
            falend.FaalBij(stap);
        else
            falend.FaalVanaf(stap - stappen);
        const auto uitslag = Koppel(falend, opdracht);
        if (!uitslag.fout)
            continue; // a step that may fail without harm
        ++mislukt;
        resten += schijf.AlleBestanden().size() - oud.size();
        EXPECT_TRUE(resten == 0 || stap > stappen) << "er bleef iets liggen: " << stap;
        std::size_t veranderd = 0;
        for (const auto& [pad, oudeTekst] : oud) {
            const Tekst inhoud = schijf.Inhoud(pad).value();
            EXPECT_TRUE(inhoud == oudeTekst || inhoud == nieuw.at(pad)) << pad << stap;
            const std::string naam = schijf.Toonpad(pad);
            const auto noemt = [&](const std::vector<std::string>& lijst) {
                return std::find(lijst.begin(), lijst.end(), naam) != lijst.end();
            };
            if (oudeTekst == nieuw.at(pad)) {
                EXPECT_FALSE(noemt(uitslag.gewijzigd)) << pad << stap;
                continue;
            }
            veranderd += inhoud == nieuw.at(pad) ? 1U : 0U;
            EXPECT_EQ(inhoud == nieuw.at(pad), noemt(uitslag.gewijzigd)) << pad << stap;
            EXPECT_EQ(inhoud == oudeTekst, noemt(uitslag.nietGewijzigd)) << pad << stap;
        }
        EXPECT_EQ(veranderd, uitslag.gewijzigd.size());
        // Once more finishes the rest.
        const auto rest = Koppel(schijf, opdracht);
        EXPECT_FALSE(rest.fout);
        EXPECT_EQ(4U - veranderd, rest.gewijzigd.size()) << stap;
        EXPECT_EQ(nieuw, AlleInhoud()) << stap;
    }
    EXPECT_GT(mislukt, 40);
    EXPECT_GT(resten, 0U);
}

TEST_F(Koppelen, DeVoortgangTeltZittingen)
{
    ZetCompetitie();
    std::vector<std::size_t> gezien;
    const auto opdracht = Opdracht("In R2 - Z1 als N05    Jansen");
    (void)Koppel(schijf, opdracht, [&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_EQ(3U, geheel);
        gezien.push_back(gedaan);
        return false; // half-way is no place to stop
    });
    EXPECT_EQ((std::vector<std::size_t>{0, 1, 2}), gezien);
    EXPECT_EQ("O07 100001 - 100237\r\n", schijf.Inhoud(Lijstpad(10, 3, Lijstsoort::Spelers)));
}

TEST_F(Koppelen, EenBestandAlleenOmTeLezenBlijftZoals)
{
    ZetCompetitie();
    const auto opdracht = Opdracht("In R2 - Z1 als N05    Jansen");
    schijf.ZetAlleenLezen(Lijstpad(2, 1, Lijstsoort::Percentages));
    const auto uitslag = Koppel(schijf, opdracht);
    ASSERT_TRUE(uitslag.fout);
    EXPECT_EQ(Meldingen(uitslag), (Teksten{"N05 spelers", "O01 spelers"}));
    EXPECT_EQ(uitslag.gewijzigd,
              std::vector<std::string>{schijf.Toonpad(Lijstpad(2, 1, Lijstsoort::Spelers))});
    EXPECT_EQ(uitslag.nietGewijzigd,
              (std::vector<std::string>{schijf.Toonpad(Lijstpad(2, 1, Lijstsoort::Percentages)),
                                        schijf.Toonpad(Lijstpad(10, 3, Lijstsoort::Spelers)),
                                        schijf.Toonpad(Lijstpad(10, 3, Lijstsoort::Percentages))}));
}

TEST_F(Koppelen, WatGekoppeldIsGaatUitDeLijst)
{
    ZetDinsdag("N05 Jansen - 100001\r\nO01 Bos - Jansen\r\nN05 Bos - 1\r\n",
               "2,A,N5,Jansen-100001,50,0,x\r\n");
    Zoekuitslag los = ZoekZitting();
    HaalGekoppeldenUit(los.zwevenden, MaakKoppelopdracht(los.zwevenden, 0, "100237"));
    EXPECT_EQ(Regels(los), (Teksten{"als O01    Bos", "als O01    Jansen", "als N05    Bos"}));
    ZetCompetitie();
    Zoekuitslag competitie = ZoekCompetitie(schijf);
    HaalGekoppeldenUit(competitie.zwevenden, Opdracht("In R2 - Z1 als N05    Jansen"));
    EXPECT_EQ(Regels(competitie),
              (Teksten{"In R1 - Z1 als N01    Jansens", "In R1 - Z1 als N1    Jansens",
                       "In R2 - Z1 als O01    Bos", "In R2 - Z1 als O1    Bos"}));
}

// ---------------------------------------------------------------- the register's side

TEST(Koppelspeler, AlleenDeImportgroepMetEenKeyVanZesCijfersOpAchternaam)
{
    const auto spelers =
        Koppelspelers(MaakTabel({{"100002", "Gr05-", "Bea", "de", "Cock", "DI", "2"},
                                 {"100001", "Gr01-", "An", "", "Aal", "", ""},
                                 {"100004", "Gr05-", "", "", "Bos", "", ""},
                                 {"12", "Gr05-", "Kort", "", "Aas", "", ""},
                                 {"1000x3", "Gr05-", "Raar", "", "Aas", "", ""},
                                 {"100003", "Gr05-", "An", "", "Cock", "", "7"}}),
                      "Gr05-");
    ASSERT_EQ(3U, spelers.size());
    EXPECT_EQ("100004  Bos", Koppelregel(spelers[0], 3));
    EXPECT_EQ("100003  An Cock      7       ", Koppelregel(spelers[1], 11));
    EXPECT_EQ("100002  Bea de Cock  2         DI", Koppelregel(spelers[2], 11));
    EXPECT_EQ("100002  Bea de Cock  2         DI", Koppelregel(spelers[2], 2));
    EXPECT_EQ(11U, Naambreedte(spelers));
    EXPECT_EQ(2, Naamgenoot(spelers, "BEA de cock"));
    EXPECT_EQ(-1, Naamgenoot(spelers, "Bea Cock"));
}

TEST(Koppelspeler, DeNamenKrijgenEenBreedteTussenGrenzen)
{
    EXPECT_EQ(4U, Naambreedte({}));
    EXPECT_EQ(4U, Naambreedte({{"100001", "Bos", "", ""}}));
    EXPECT_EQ(40U, Naambreedte({{"100001", Tekst(41, 'x'), "", ""}}));
}

// ---- Size --------------------------------------------------------------------------------------

TEST_F(Koppelen, EenLijstDieTeGrootIsWordtGeweigerdBijZoekenEnBijKoppelen)
{
    ZetCompetitie();
    const auto opdracht = Opdracht("In R2 - Z1 als N05    Jansen");
    const Pad groot = Lijstpad(2, 1, Lijstsoort::Percentages);
    schijf.Zet(groot, Tekst((std::size_t{64} << 20U) + 1, ','));
    const auto zoeken = ZoekCompetitie(schijf);
    ASSERT_EQ(1U, zoeken.fouten.size());
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB", zoeken.fouten.front().systeem);
    const auto uitslag = Koppel(schijf, opdracht);
    ASSERT_TRUE(uitslag.fout);
    EXPECT_EQ("het bestand is te groot: meer dan 64 MB", uitslag.fout->systeem);
    EXPECT_EQ(groot, uitslag.nietGewijzigd.front());
    schijf.Zet(groot, "");

    Tekst namen;
    for (std::size_t i = 0; i <= MeesteNamen / 2; ++i)
        namen += "N01 a-b,";
    schijf.Zet(Lijstpad(2, 1, Lijstsoort::Spelers), namen);
    const auto teVeel = ZoekCompetitie(schijf);
    ASSERT_EQ(1U, teVeel.fouten.size());
    EXPECT_EQ(TeVeelNamen, teVeel.fouten.front().systeem);
    EXPECT_EQ(4U, teVeel.zwevenden.size()) << "die van de andere zittingen";
}
