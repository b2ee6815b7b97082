#include "controle/frmDubbelen.h"

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"

using namespace plexoran;

namespace {

class frmDubbelenTest : public Dialoogproef<frmDubbelen, Clubstand> {
  protected:
    frmDubbelenTest()
    {
        std::filesystem::create_directories(map.Weg() / "Parenmap");
        ZetZitting("Di", "N01 100003 - 100002\r\n");
        map.Zet("Parenmap/Gr01-.txt", "100003-100004#\r\n");
        ZetSpelers("HKEY=100900\r\n1,100001,Gr01-,Jan,,Bos,06-12345678,,,,,,M,,,,,\r\n"
                   "2,100002,Gr01-,Els,,Tol,,,,,,,V,,,,,\r\n"
                   "3,100003,Gr01-,J.,,Bos,06-12345678,j@bos.example,,,Laar,,M,,,,,1234567\r\n"
                   "4,100004,Gr02-,E.,,Tol,,,,,,,V,,,,,\r\n");
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
            std::ranges::replace(regel, '\\', '/'); // as Windows writes it
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

    /// The question before it; `verder` stands between the files and the promise.
    void VerwachtVraag(const QString& bestanden = {}, const QString& antwoord = u"OK"_s,
                       const QString& verder = {},
                       const QString& wie = u"Jan Bos (100001) blijft en J. Bos (100003)"_s)
    {
        wachter.Verwacht(
            {.tekst = wie + u" vervalt."_s +
                      (bestanden.isEmpty() ? QString()
                                           : u" In %1 komt de ene sleutel voor de andere in de "
                                             "plaats."_s.arg(bestanden)) +
                      verder + u"\n\nMet Ongedaan maken is alles in één keer terug te draaien."_s,
             .antwoord = antwoord,
             .titel = u"Samenvoegen?"_s,
             .knoppen = {u"OK"_s, u"Annuleren"_s}});
    }
    void KiesLinks() const
    {
        Klik(Deel<QRadioButton>("optLinks"), {8, Deel<QRadioButton>("optLinks")->height() / 2});
    }

    int opgeslagen = 0;
    int begonnen = 0;
    const std::string gedaan = "Jan Bos (100001) samengevoegd met J. Bos (100003). ";
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
    KiesLinks();
    EXPECT_EQ("Waar sleutel 100003 nog staat (2)",
              Lijst("lstPlaatsen")->headerItem()->text(0).toStdString());
    EXPECT_EQ((std::vector<std::string>{"*Paar 100003-100004|Parenmap/Gr01-.txt",
                                        "*Zitting Di: N01|Zittingen/Di/Spelers.txt"}),
              Plaatsen());
}

TEST_F(frmDubbelenTest, MetDeMuisSamengevoegd)
{
    Open();
    KiesLinks();
    Vink("lstVelden", 1, 1);
    EXPECT_EQ("Voornaam|*Jan|J.", Inhoud("lstVelden")[1]);
    Vink("lstVelden", 5, 2);
    EXPECT_EQ("Email|*|j@bos.example", Inhoud("lstVelden")[5]) << "one of both, always";
    VerwachtVraag(u"2 bestanden"_s, u"Annuleren"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, begonnen + opgeslagen);
    EXPECT_EQ("100003-100004#\r\n", Paren());
    VerwachtVraag(u"2 bestanden"_s);
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
    EXPECT_EQ(gedaan + "1 mogelijke dubbel, de waarschijnlijkste eerst.", Label("lblUitslag"));
    EXPECT_EQ(Label("lblUitslag"), Lijst("lstDubbelen")->accessibleDescription().toStdString());
    EXPECT_EQ("lstDubbelen", venster->focusWidget()->objectName().toStdString());
    EXPECT_EQ((std::vector<std::string>{"Els Tol (100002, Gr01-)|E. Tol (100004, Gr02-)|voorletter "
                                        "in plaats van voornaam"}),
              Inhoud("lstDubbelen"));
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
    VerwachtVraag(u"1 bestand"_s);
    QTest::keyClick(venster.get(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return opgeslagen == 1; }));
    EXPECT_EQ("100003-100004#\r\n", Paren());
    EXPECT_EQ("N01 100001 - 100002\r\n", Zitting());
    venster->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(venster.get()));
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
    EXPECT_EQ("Geen dubbelen: Jan Bos (100001) en J. Bos (100003). 1 mogelijke dubbel, de "
              "waarschijnlijkste eerst.",
              Label("lblUitslag"));
    Opdracht("cmdGeenDubbelen");
    EXPECT_EQ("Geen dubbelen: Els Tol (100002) en E. Tol (100004). Klaar: alle mogelijke dubbelen "
              "zijn behandeld.",
              Label("lblUitslag"));
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
    KiesLinks();
    map.Zet("Zittingen/Di/Spelers.txt", "N01 100003 - 100002\r\nN02 100001 - 100009\r\n");
    wachter.Informatie(
        u"Een ander programma heeft intussen paren of zittingen gewijzigd. Er is nog niets "
        "samengevoegd. Kijk na waar de sleutel nu staat, en kies dan weer Samenvoegen."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, opgeslagen);
    EXPECT_EQ("Zitting Di: N01 (blijft zo: beide sleutels staan er)|Zittingen/Di/Spelers.txt",
              Plaatsen()[1]);
    QObject::disconnect(venster.get(), &frmDubbelen::begint, nullptr, nullptr);
    VerwachtVraag(u"1 bestand"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(1, opgeslagen);
    EXPECT_EQ("N01 100003 - 100002\r\nN02 100001 - 100009\r\n", Zitting());
    EXPECT_EQ("100001-100004#\r\n", Paren());
}

/// In a file where it was not, and in one that was not there.
TEST_F(frmDubbelenTest, OokEenNieuwePlaatsVanDeSleutelWordtEerstGetoond)
{
    map.Zet("Parenmap/Gr02-.txt", "100007-100008#\r\n");
    Open();
    KiesLinks();
    map.Zet("Parenmap/Gr02-.txt", "100003-100008#\r\n");
    ZetZitting("Wo", "N01 100003 - 100002\r\n");
    wachter.Informatie(
        u"Een ander programma heeft intussen paren of zittingen gewijzigd. Er is nog niets "
        "samengevoegd. Kijk na waar de sleutel nu staat, en kies dan weer Samenvoegen."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, opgeslagen);
    EXPECT_EQ((std::vector<std::string>{"*Paar 100003-100004|Parenmap/Gr01-.txt",
                                        "*Paar 100003-100008|Parenmap/Gr02-.txt",
                                        "*Zitting Di: N01|Zittingen/Di/Spelers.txt",
                                        "*Zitting Wo: N01|Zittingen/Wo/Spelers.txt"}),
              Plaatsen());
    VerwachtVraag(u"4 bestanden"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ("100001-100008#\r\n", map.Inhoud("Parenmap/Gr02-.txt"));
    EXPECT_EQ("N01 100001 - 100002\r\n", map.Inhoud("Zittingen/Wo/Spelers.txt"));
}

/// Nobody plays in two pairs of one file; who ticks that by hand is told so.
TEST_F(frmDubbelenTest, EenAnderPaarWordtNietVanzelfGewijzigdEnMetEenVinkNaEenWaarschuwing)
{
    map.Zet("Parenmap/Gr01-.txt", "100003-100004#100001-100002#\r\n");
    Open();
    KiesLinks();
    const std::string paar =
        "Paar 100003-100004 (de sleutel die blijft, staat daar al in een ander paar)|"
        "Parenmap/Gr01-.txt";
    EXPECT_EQ(paar, Plaatsen()[0]);
    VerwachtVraag(u"1 bestand"_s, u"Annuleren"_s);
    Opdracht("cmdSamenvoegen");
    Vink("lstPlaatsen", 0, 0);
    EXPECT_EQ("*" + paar, Plaatsen()[0]);
    VerwachtVraag(u"2 bestanden"_s, u"OK"_s,
                  u"\n\nLet op: wie blijft, staat dan in één bestand in twee paren. Ontbind er "
                  "daarna een met Paren-onderhoud."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ("100001-100004#100001-100002#\r\n", Paren());
}

/// Until the register is saved both keys are somebody's.
TEST_F(frmDubbelenTest, EenBestandDatNietGewijzigdKanWordenLaatBeideStaan)
{
    Open();
    KiesLinks();
    schijf.Vooraf([](const Pad& pad) { return pad.find("Spelers.txt.~") == Pad::npos; });
    VerwachtVraag(u"2 bestanden"_s);
    wachter.Begin(u"De spelers zijn niet samengevoegd: een bestand kon niet worden gewijzigd."_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(0, opgeslagen);
    EXPECT_EQ(4, administratie.spelers.tabel.Rijen());
    EXPECT_EQ("100001-100004#\r\n", Paren());
    EXPECT_EQ("N01 100003 - 100002\r\n", Zitting());
    schijf.Vooraf({});
    VerwachtVraag(u"1 bestand"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ(1, opgeslagen);
    EXPECT_EQ("N01 100001 - 100002\r\n", Zitting());
}

/// Who were like the one who went are not looked for, nor are other files read again.
TEST_F(frmDubbelenTest, NaHetSamenvoegenAlleenDeBestandenDieGewijzigdZijn)
{
    ZetZitting("Wo", "N01 100002 - 100009\r\n");
    map.Zet("Parenmap/Gr02-.txt", "100004-100009#\r\n");
    Open();
    KiesLinks();
    std::string gelezen;
    schijf.Vooraf([&gelezen](const Pad& pad) {
        gelezen += pad + "\n";
        return true;
    });
    QObject::connect(venster.get(), &frmDubbelen::begint, venster.get(),
                     [&gelezen] { gelezen.clear(); }); // before that all are
    VerwachtVraag(u"2 bestanden"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_NE(std::string::npos, gelezen.find("Gr01-.txt"));
    EXPECT_EQ(std::string::npos, gelezen.find("Gr02-.txt")) << gelezen;
    EXPECT_EQ(std::string::npos, gelezen.find("Wo\\Spelers.txt")) << gelezen;
    EXPECT_EQ((std::vector<std::string>{"*Paar 100001-100004|Parenmap/Gr01-.txt",
                                        "*Paar 100004-100009|Parenmap/Gr02-.txt"}),
              Plaatsen())
        << "what was written is known";
}

TEST_F(frmDubbelenTest, WatEenAnderProgrammaBijHetOpslaanToevoegdeWordtOokGezocht)
{
    Toon(administratie, [this] {
        administratie.spelers.tabel.VoegKopieToe(2, {});
        return true;
    });
    VerwachtVraag({}, u"OK"_s, {}, u"J. Bos (100003) blijft en Jan Bos (100001)"_s);
    Opdracht("cmdSamenvoegen");
    ASSERT_EQ(2U, Inhoud("lstDubbelen").size());
    EXPECT_TRUE(Inhoud("lstDubbelen")[0].starts_with("J. Bos (100003, Gr01-)|J. Bos (100003"));
}

TEST_F(frmDubbelenTest, EenPaarDatErAlStaatVervalt)
{
    map.Zet("Parenmap/Gr01-.txt", "100003-100004#100001-100004#\r\n");
    Open();
    KiesLinks();
    EXPECT_EQ("*Paar 100003-100004 (vervalt: dat paar staat er al met de sleutel die "
              "blijft)|Parenmap/Gr01-.txt",
              Plaatsen()[0]);
    VerwachtVraag(u"2 bestanden"_s);
    Opdracht("cmdSamenvoegen");
    EXPECT_EQ("100001-100004#\r\n", Paren());
}

/// The import looks for a member in his group, by his number.
TEST_F(frmDubbelenTest, WatDeVolgendeImportWeerToevoegtWordtGezegd)
{
    administratie.mappen.DFIMPG = "Gr05-";
    const std::string bosje = "2,100003,Gr05-,J.,,Bos,,,,,,,M,,,,LAAR,1234567\r\n";
    const QString letOp = u"\n\nLet op: NBB-nummer 1234567 staat dan niet meer in groep Gr05-. Is "
                          "het nog lid, dan voegt de volgende import het als nieuwe speler toe."_s;
    const QString groep = u"\n\nLet op: wie blijft, staat dan niet meer in groep %1."_s;
    for (const int veld : {-1, 0, 15}) {
        ZetSpelers("HKEY=100900\r\n1,100001,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n" + bosje);
        Open();
        KiesLinks();
        EXPECT_EQ("Groep|Gr01-|*Gr05-", Inhoud("lstVelden")[0]);
        if (veld >= 0)
            Vink("lstVelden", veld, 1);
        VerwachtVraag(u"2 bestanden"_s, u"Annuleren"_s,
                      groep.arg(veld == 0 ? u"Gr05-"_s : u"Gr01-"_s) +
                          (veld < 0 ? QString() : letOp));
        Opdracht("cmdSamenvoegen");
    }
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
    ZetSpelers("HKEY=100900\r\n1,12,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n2,100003,Gr01-,J.,,Bos,,,,,,,M,,"
               ",,,\r\n");
    Open();
    EXPECT_TRUE(Deel<QRadioButton>("optRechts")->isChecked());
    KiesLinks();
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
