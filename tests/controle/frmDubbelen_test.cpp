#include "controle/frmDubbelen.h"

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"

using namespace plexoran;

namespace {

class frmDubbelenTest : public Dialoogproef<frmDubbelen, Mapstand> {
  protected:
    frmDubbelenTest()
    {
        administratie.mappen.SPEMAP = map.AlsPad();
        administratie.mappen.ZITMAP = Samen(map.AlsPad(), "Zittingen");
        std::filesystem::create_directories(map.Weg() / "Zittingen" / "Di");
        std::filesystem::create_directories(map.Weg() / "Parenmap");
        map.Zet("Zittingen/Di/Zitdata.txt", "");
        map.Zet("Zittingen/Di/Spelers.txt", "N01 100003 - 100002\r\n");
        map.Zet("Parenmap/Gr01-.txt", "100003-100004#\r\n");
        ZetSpelers("1,100001,Gr01-,Jan,,Bos,06-12345678,,,,,,M,,,,,\r\n"
                   "2,100002,Gr01-,Els,,Tol,,,,,,,V,,,,,\r\n"
                   "3,100003,Gr01-,J.,,Bos,06-12345678,j@bos.example,,,Laar,,M,,,,,1234567\r\n"
                   "4,100004,Gr02-,E.,,Tol,,,,,,,V,,,,,\r\n");
    }
    void ZetSpelers(const std::string& regels)
    {
        map.Zet("RVDspelers.txt", "HKEY=100900\r\n" + regels);
        (void)LeesSpelers(echteSchijf, administratie.mappen, administratie.spelers);
    }
    void Open()
    {
        Toon(administratie, [this] {
            ++opgeslagen;
            const auto geschreven = SchrijfSpelers(
                schijf, administratie.mappen, administratie.spelers, Overschrijven::AlleenEigen);
            EXPECT_TRUE(geschreven);
            return geschreven.has_value();
        });
        QObject::connect(venster.get(), &frmDubbelen::begint, venster.get(), [this] {
            EXPECT_EQ("N01 100003 - 100002\r\n", Zitting()) << "before anything changes";
            ++begonnen;
        });
    }

    [[nodiscard]] std::string Zitting() const { return map.Inhoud("Zittingen/Di/Spelers.txt"); }
    [[nodiscard]] std::string Paren() const { return map.Inhoud("Parenmap/Gr01-.txt"); }
    [[nodiscard]] QTreeWidget* Lijst(const char* naam) const { return Deel<QTreeWidget>(naam); }
    /// The lines of a list; a field that is chosen has a "*" in front.
    [[nodiscard]] std::vector<std::string> Inhoud(const char* naam) const
    {
        std::vector<std::string> uit;
        for (int i = 0; i < Lijst(naam)->topLevelItemCount(); ++i) {
            const auto* regel = Lijst(naam)->topLevelItem(i);
            QStringList delen;
            for (int kolom = 0; kolom < regel->columnCount(); ++kolom)
                delen << (regel->checkState(kolom) == Qt::Checked ? u"*"_s : u""_s) +
                             regel->text(kolom);
            uit.push_back(delen.join(u'|').toStdString());
        }
        return uit;
    }
    /// The place of a file in the list, without the folder of this test.
    [[nodiscard]] std::vector<std::string> Plaatsen() const
    {
        auto uit = Inhoud("lstPlaatsen");
        for (std::string& regel : uit) {
            const auto begin = regel.find(map.Weg().string());
            regel.erase(begin, map.Weg().string().size() + 1);
        }
        return uit;
    }
    /// As the mouse does on the tick box of a cell.
    void Vink(const char* lijst, int regel, int kolom) const
    {
        auto* boom = Lijst(lijst);
        const QModelIndex plek = boom->model()->index(regel, kolom);
        QStyleOptionViewItem stijl;
        stijl.initFrom(boom);
        stijl.rect = boom->visualRect(plek);
        stijl.features |= QStyleOptionViewItem::HasCheckIndicator;
        Klik(boom->viewport(),
             boom->style()
                 ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &stijl, boom)
                 .center());
    }

    int opgeslagen = 0;
    int begonnen = 0;
};

} // namespace

TEST_F(frmDubbelenTest, WieErLijkenNaastElkaarEnWaarDeSleutelStaat)
{
    Open();
    VerwachtTeksten("Dubbele spelers",
                    {{"lblUitslag", "2 mogelijke dubbelen, de waarschijnlijkste eerst."}},
                    {{"optLinks", "Links blijft: sleutel 100001"},
                     {"optRechts", "Rechts blijft: sleutel 100003"},
                     {"cmdSamenvoegen", "Samenvoegen"},
                     {"cmdGeenDubbelen", "Geen dubbelen"},
                     {"cmdSluiten", "Sluiten"}});
    EXPECT_EQ((std::vector<std::string>{
                  "Jan Bos (100001, Gr01-)|J. Bos (100003, Gr01-)|voorletter in plaats van "
                  "voornaam, zelfde telefoonnummer",
                  "Els Tol (100002, Gr01-)|E. Tol (100004, Gr02-)|voorletter in plaats van "
                  "voornaam"}),
              Inhoud("lstDubbelen"));
    const auto velden = Inhoud("lstVelden");
    ASSERT_EQ(16U, velden.size());
    EXPECT_EQ("Groep|Gr01-|Gr01-", velden[0]);
    EXPECT_EQ("Voornaam|Jan|*J.", velden[1]) << "of the key that is in the most files";
    EXPECT_EQ("Email||*j@bos.example", velden[5]);
    EXPECT_EQ("NBBnr||*1234567", velden[15]);
    EXPECT_TRUE(Lijst("lstVelden")->topLevelItem(1)->font(1).bold());
    EXPECT_FALSE(Lijst("lstVelden")->topLevelItem(0)->font(1).bold());
    EXPECT_TRUE(Deel<QRadioButton>("optRechts")->isChecked());
    EXPECT_EQ(std::vector<std::string>(), Plaatsen());
    Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    EXPECT_EQ("Waar sleutel 100003 nog staat (2)",
              Lijst("lstPlaatsen")->headerItem()->text(0).toStdString());
    EXPECT_EQ((std::vector<std::string>{"*Paar 100003-100004|Parenmap/Gr01-.txt",
                                        "*Zitting Di: N01|Zittingen/Di/Spelers.txt"}),
              Plaatsen());
}

TEST_F(frmDubbelenTest, MetDeMuisSamengevoegd)
{
    Open();
    Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    Vink("lstVelden", 1, 1);
    EXPECT_EQ("Voornaam|*Jan|J.", Inhoud("lstVelden")[1]);
    Vink("lstVelden", 5, 2);
    EXPECT_EQ("Email|*|j@bos.example", Inhoud("lstVelden")[5]) << "one of both, always";
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(1, begonnen);
    EXPECT_EQ(1, opgeslagen);
    EXPECT_EQ("100001-100004#\r\n", Paren());
    EXPECT_EQ("N01 100001 - 100002\r\n", Zitting());
    EXPECT_EQ("HKEY=100900\r\n"
              "1,100001,Gr01-,Jan,,Bos,06-12345678,,,,Laar,,M,,,,,1234567\r\n"
              "2,100002,Gr01-,Els,,Tol,,,,,,,V,,,,,\r\n"
              "3,100004,Gr02-,E.,,Tol,,,,,,,V,,,,,\r\n",
              map.Inhoud("RVDspelers.txt"));
    EXPECT_EQ("1 mogelijke dubbel, de waarschijnlijkste eerst.", Label("lblUitslag"));
    EXPECT_EQ(1U, Inhoud("lstDubbelen").size());
}

TEST_F(frmDubbelenTest, MetHetToetsenbordAlleen)
{
    Open();
    QApplication::processEvents();
    EXPECT_EQ("lstDubbelen", QApplication::focusWidget()->objectName().toStdString());
    EXPECT_EQ("optLinks lstVelden lstPlaatsen cmdSamenvoegen cmdGeenDubbelen cmdSluiten ",
              MetTab(6));
    QTest::keyClick(venster.get(), Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Deel<QRadioButton>("optLinks")->isChecked(); }));
    Lijst("lstVelden")->setFocus();
    QTest::keyClick(Lijst("lstVelden"), Qt::Key_Down);
    QTest::keyClick(Lijst("lstVelden"), Qt::Key_Space);
    EXPECT_EQ("Voornaam|*Jan|J.", Inhoud("lstVelden")[1]);
    QTest::keyClick(Lijst("lstVelden"), Qt::Key_Right);
    QTest::keyClick(Lijst("lstVelden"), Qt::Key_Space);
    EXPECT_EQ("Voornaam|Jan|*J.", Inhoud("lstVelden")[1]);
    Lijst("lstPlaatsen")->setFocus();
    QTest::keyClick(Lijst("lstPlaatsen"), Qt::Key_Home);
    QTest::keyClick(Lijst("lstPlaatsen"), Qt::Key_Space);
    EXPECT_TRUE(Plaatsen()[0].starts_with("Paar")) << "not ticked";
    QTest::keyClick(venster.get(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return opgeslagen == 1; }));
    EXPECT_EQ("100003-100004#\r\n", Paren());
    EXPECT_EQ("N01 100001 - 100002\r\n", Zitting());
    QTest::keyClick(venster.get(), Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Inhoud("lstDubbelen").empty(); }));
    QTest::keyClick(venster.get(), Qt::Key_Escape);
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(frmDubbelenTest, GeenDubbelenWordtOnthoudenEnAllesGedaanGezegd)
{
    Open();
    Opdracht("cmdGeenDubbelen");
    EXPECT_EQ("100001,100003,Jan Bos,J. Bos\r\n", map.Inhoud("GeenDubbelen.txt"));
    EXPECT_EQ("1 mogelijke dubbel, de waarschijnlijkste eerst.", Label("lblUitslag"));
    Opdracht("cmdGeenDubbelen");
    EXPECT_EQ("Klaar: alle mogelijke dubbelen zijn behandeld.", Label("lblUitslag"));
    for (const char* knop : {"cmdSamenvoegen", "cmdGeenDubbelen"})
        EXPECT_FALSE(Knop(knop)->isEnabled());
    EXPECT_EQ(0U, Inhoud("lstVelden").size() + Inhoud("lstPlaatsen").size());
    EXPECT_EQ(0, begonnen + opgeslagen);
    Open();
    EXPECT_EQ("Er zijn geen dubbele spelers gevonden.", Label("lblUitslag"));
}

TEST_F(frmDubbelenTest, WatEenAnderProgrammaSchreefWordtEerstGetoond)
{
    Open();
    Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    map.Zet("Zittingen/Di/Spelers.txt", "N01 100003 - 100002\r\nN02 100001 - 100009\r\n");
    wachter.Informatie(
        u"Een ander programma heeft intussen paren of zittingen gewijzigd. Er is nog niets "
        "samengevoegd. Kijk na waar de sleutel nu staat, en kies dan weer Samenvoegen."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, opgeslagen);
    EXPECT_EQ("Zitting Di: N01 (blijft zo: beide sleutels staan er)|Zittingen/Di/Spelers.txt",
              Plaatsen()[1]);
    QObject::disconnect(venster.get(), &frmDubbelen::begint, nullptr, nullptr);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(1, opgeslagen);
    EXPECT_EQ("N01 100003 - 100002\r\nN02 100001 - 100009\r\n", Zitting());
    EXPECT_EQ("100001-100004#\r\n", Paren());
}

/// Until the register is saved both keys are somebody's.
TEST_F(frmDubbelenTest, EenBestandDatNietGewijzigdKanWordenLaatBeideStaan)
{
    Open();
    Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    schijf.Vooraf([](const Pad& pad) { return pad.find("Spelers.txt.~") == Pad::npos; });
    wachter.Begin(u"De spelers zijn niet samengevoegd: een bestand kon niet worden gewijzigd."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, opgeslagen);
    EXPECT_EQ(4, administratie.spelers.tabel.Rijen());
    EXPECT_EQ("100001-100004#\r\n", Paren());
    EXPECT_EQ("N01 100003 - 100002\r\n", Zitting());
    schijf.Vooraf({});
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(1, opgeslagen);
    EXPECT_EQ("N01 100001 - 100002\r\n", Zitting());
}

TEST_F(frmDubbelenTest, GeenDubbelenDieNietBewaardKanWorden)
{
    Open();
    schijf.FaalBij(1);
    wachter.Begin(
        u"Dat dit geen dubbelen zijn, kon niet worden opgeslagen. Er is niets veranderd."_s);
    Opdracht("cmdGeenDubbelen");
    EXPECT_EQ(2U, Inhoud("lstDubbelen").size());
}

TEST_F(frmDubbelenTest, EenSleutelDieGeenZesCijfersIsKanNergensKomen)
{
    ZetSpelers("1,12,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n2,100003,Gr01-,J.,,Bos,,,,,,,M,,,,,\r\n");
    Open();
    EXPECT_TRUE(Deel<QRadioButton>("optRechts")->isChecked());
    Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    wachter.Begin(u"De sleutel die blijft, is geen zes cijfers"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(2, administratie.spelers.tabel.Rijen());
}

TEST_F(frmDubbelenTest, WatNietTeLezenIsStaatErbij)
{
    schijf.Vooraf([](const Pad& pad) { return pad.find("Gr01-.txt") == Pad::npos; });
    Open();
    ASSERT_EQ(1U, Plaatsen().size());
    EXPECT_TRUE(Plaatsen()[0].starts_with("Niet te lezen: ")) << Plaatsen()[0];
    EXPECT_TRUE(Plaatsen()[0].ends_with("|Parenmap/Gr01-.txt")) << Plaatsen()[0];
}

TEST_F(frmDubbelenTest, HetZoekenKanWordenGestopt)
{
    const Voortgangstopper stopper(1);
    Open();
    EXPECT_EQ("Er zijn geen dubbele spelers gevonden. Het zoeken is gestopt: de lijst is niet "
              "volledig.",
              Label("lblUitslag"));
}

TEST_F(frmDubbelenTest, SluitenOpDrieManieren)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        Sluit(weg, "cmdSluiten");
    }
    EXPECT_EQ(0, opgeslagen);
}
