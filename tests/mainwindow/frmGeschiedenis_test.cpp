#include "mainwindow/frmGeschiedenis.h"

#include <QMenu>

#include "mainwindow/vensterproef.h"
#include "platform/scherm/regellijst.h"

using namespace plexoran;

namespace {

class GeschiedenisTest : public HoofdvensterTest {
  protected:
    void VerwijderRegel(int regel)
    {
        KiesRegel(regel);
        wachter.Verwacht(
            {.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
        wachter.Informatie(u"De regel is verwijderd."_s);
        Opdracht("cmdVerwijder");
    }
    void Terug() { DrukMetCtrl(Qt::Key_Z); }
    void Vooruit() { DrukMetCtrl(Qt::Key_Y); }
    /// What it would undo, as the menu says it.
    [[nodiscard]] std::string Menutekst(const char* actie) const
    {
        auto* menu = Vind<QMenu>(*venster, "mnuBewerken");
        emit menu->aboutToShow();
        std::string tekst =
            venster->findChild<QAction*>(QString::fromLatin1(actie))->text().toStdString();
        emit menu->aboutToHide();
        return tekst;
    }
    [[nodiscard]] std::string Melding() const { return Label("lblMelding")->text().toStdString(); }
    /// As another program would, and the window has not looked yet.
    void WijzigVanBuiten(const std::string& was, const std::string& wordt)
    {
        std::string tekst = suite.Spelers();
        ASSERT_NE(std::string::npos, tekst.find(was)) << was;
        suite.Zet("Spelers/RVDspelers.txt", tekst.replace(tekst.find(was), was.size(), wordt));
    }
    /// The window of all entries, or of the chosen player.
    void InGeschiedenis(const char* actie, std::function<void(QDialog&)> stappen)
    {
        wachter.Bedien(std::move(stappen));
        venster->findChild<QAction*>(QString::fromLatin1(actie))->trigger();
        wachter.Klaar();
    }
    static std::vector<std::string> Regels(const QTreeWidgetItem& onder)
    {
        std::vector<std::string> uit;
        for (int i = 0; i < onder.childCount(); ++i) {
            const QTreeWidgetItem& kind = *onder.child(i);
            uit.push_back(
                QStringList{kind.text(1), kind.text(2), kind.text(3)}.join(u'|').toStdString());
            for (const std::string& dieper : Regels(kind))
                uit.push_back("  " + dieper);
        }
        return uit;
    }
};

} // namespace

TEST_F(GeschiedenisTest, ErIsEerstNietsOngedaanTeMaken)
{
    EXPECT_EQ("Ongedaan maken", Menutekst("actOngedaan"));
    wachter.Informatie(u"Er is niets om ongedaan te maken."_s);
    Terug();
    wachter.Informatie(u"Er is niets om opnieuw te doen."_s);
    Vooruit();
}

TEST_F(GeschiedenisTest, EenVerwijderdeSpelerKomtTerugOokNaEenHerstart)
{
    const std::string oud = suite.Spelers();
    VerwijderRegel(2);
    const std::string zonder = suite.Spelers();
    EXPECT_EQ("Ongedaan maken: Ineke van der Horst-Blaauw verwijderd", Menutekst("actOngedaan"));
    Terug();
    EXPECT_EQ("Ongedaan gemaakt: Ineke van der Horst-Blaauw verwijderd", Melding());
    EXPECT_TRUE(Label("lblMelding")->isVisible());
    EXPECT_EQ(Melding(), Label("lblMelding")->accessibleName().toStdString()) << "te horen";
    EXPECT_GE(Label("lblMelding")->width(), Label("lblMelding")->sizeHint().width());
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("Aantal regels: 50", Aantal());
    Herstart();
    EXPECT_EQ("Opnieuw doen: Ineke van der Horst-Blaauw verwijderd", Menutekst("actOpnieuw"));
    Vooruit();
    EXPECT_EQ(zonder, suite.Spelers());
    Herstart();
    Terug();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(GeschiedenisTest, ElkeOpdrachtHeeftZijnNaam)
{
    VoegToe(u"Nieuweling"_s);
    EXPECT_EQ("Ongedaan maken: Nieuweling toegevoegd", Menutekst("actOngedaan"));
    KiesRegel(1);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_7", u"06-1"_s);
        Druk(ingave, "cmdOK");
    });
    Opdracht("cmdWijzig");
    EXPECT_EQ("Ongedaan maken: Willem van der Horst gewijzigd", Menutekst("actOngedaan"));
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw & mooi"_s);
        Druk(namen, "cmdOK");
    });
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ("Ongedaan maken: Groepsnamen gewijzigd", Menutekst("actOngedaan"));
    EXPECT_EQ("Gr11-Nieuw & mooi", Keus("cmbGr")->itemText(10).toStdString());
    Terug();
    EXPECT_EQ("Gr11-", Keus("cmbGr")->itemText(10).toStdString());
    Terug();
    Terug();
    EXPECT_EQ("Ongedaan maken", Menutekst("actOngedaan"));
    EXPECT_EQ(std::string::npos, suite.Spelers().find("Nieuweling"));
    EXPECT_EQ("HKEY=100172", RegelsVan(suite.Spelers())[0]) << "een sleutel komt nooit terug";
}

TEST_F(GeschiedenisTest, WieInParenStaatBlijftEnWordtGenoemd)
{
    VoegToe(u"Nieuweling"_s);
    suite.Zet("Spelers/Parenmap/Gr01-Nieuw.txt", "100001-100172#");
    wachter.Verwacht({.tekst = u"Er is niets ongedaan gemaakt. Dit is sindsdien op een andere "
                               "manier gewijzigd en gebleven zoals het is:\n\nNieuweling (100172) "
                               "staat in de paren van Gr01-Nieuw"_s,
                      .icoon = QMessageBox::Warning});
    Terug();
    EXPECT_NE(std::string::npos, suite.Spelers().find("Nieuweling"));
}

TEST_F(GeschiedenisTest, WatEenAnderSindsdienDeedBlijftEnWordtGenoemd)
{
    const std::string eerste = RegelsVan(suite.Spelers()).at(2);
    Keus("cmbVerwTot")->setCurrentIndex(1);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    Opdracht("cmdVerwijderVT");
    WijzigVanBuiten("HKEY=100171\r\n", "HKEY=100171\r\n1,100001,Gr01-,,,Anders,,,,,,,V,,,,,\r\n");
    wachter.Verwacht({.tekst = u"Ongedaan gemaakt, maar niet alles. Dit is sindsdien op een andere "
                               "manier gewijzigd en gebleven zoals het is:\n\nWillem van der Horst "
                               "(100001)"_s,
                      .icoon = QMessageBox::Warning});
    Terug();
    EXPECT_EQ("Ongedaan gemaakt: Regels 1 t/m 2 verwijderd", Melding());
    EXPECT_NE(std::string::npos, suite.Spelers().find(",Anders,"));
    EXPECT_EQ(eerste, RegelsVan(suite.Spelers()).at(2));
}

TEST_F(GeschiedenisTest, WaarNietsTerugKanIsNietsOngedaanGemaakt)
{
    KiesRegel(1);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_7", u"06-1"_s);
        Schrijf(ingave, "txt1_11", u"Elders"_s);
        Druk(ingave, "cmdOK");
    });
    Opdracht("cmdWijzig");
    WijzigVanBuiten(",06-1,", ",06-2,");
    const std::string spelers = suite.Spelers();
    wachter.Verwacht({.tekst = u"Er is niets ongedaan gemaakt. Dit is sindsdien op een andere "
                               "manier gewijzigd en gebleven zoals het is:\n\nWillem van der Horst "
                               "(100001)"_s,
                      .icoon = QMessageBox::Warning});
    Terug();
    EXPECT_EQ(spelers, suite.Spelers());
    EXPECT_EQ("Niet ongedaan gemaakt: Willem van der Horst gewijzigd", Melding());
    EXPECT_EQ("Ongedaan maken", Menutekst("actOngedaan")) << "the next one comes now";
    InGeschiedenis("actGeschiedenis", [](QDialog& geschiedenis) {
        auto* lijst = Vind<QTreeWidget>(geschiedenis, "lstHandelingen");
        ASSERT_EQ(2, lijst->topLevelItemCount());
        EXPECT_EQ("Niet ongedaan gemaakt: Willem van der Horst gewijzigd",
                  lijst->topLevelItem(0)->text(1).toStdString());
        EXPECT_EQ("Willem van der Horst gewijzigd", lijst->topLevelItem(1)->text(1).toStdString());
        Druk(geschiedenis, "cmdSluiten");
    });
}

TEST_F(GeschiedenisTest, WieTerugkomtIsGekozenInZijnEigenGroep)
{
    Balk("VScroll1")->setValue(Balk("VScroll1")->maximum());
    VerwijderRegel(45);
    KiesGroep(2);
    KiesRegel(3);
    Terug();
    EXPECT_EQ(1, GetoondeGroep());
    EXPECT_EQ(45, GekozenRegel());
    EXPECT_GT(Balk("VScroll1")->value(), 0) << "scrolled to him";
    Vooruit();
    EXPECT_EQ(0, GekozenRegel());
}

TEST_F(GeschiedenisTest, NaHetWeghalenVanEenToegevoegdeBlijftDeKeusStaan)
{
    VoegToe(u"Nieuweling"_s);
    KiesRegel(3);
    Terug();
    EXPECT_EQ("Aantal regels: 50", Aantal());
    EXPECT_EQ(3, GekozenRegel());
    Vooruit();
    EXPECT_EQ(51, GekozenRegel());
    Terug();
    EXPECT_EQ(0, GekozenRegel());
}

TEST_F(GeschiedenisTest, EenLegeGeschiedenisZegtHet)
{
    InGeschiedenis("actGeschiedenis", [](QDialog& geschiedenis) {
        EXPECT_EQ("Er is nog niets vastgelegd.",
                  Vind<QLabel>(geschiedenis, "Label1")->text().toStdString());
        Druk(geschiedenis, "cmdSluiten");
    });
    KiesRegel(1);
    InGeschiedenis("actGeschiedenisGekozen", [](QDialog& geschiedenis) {
        EXPECT_EQ("Van deze speler is nog niets vastgelegd.",
                  Vind<QLabel>(geschiedenis, "Label1")->text().toStdString());
        EXPECT_FALSE(Vind<QPushButton>(geschiedenis, "cmdOngedaan")->isEnabled());
        Druk(geschiedenis, "cmdSluiten");
    });
}

TEST_F(GeschiedenisTest, VanWieGeenSleutelHeeftIsErGeenGeschiedenis)
{
    std::string spelers = suite.Spelers();
    HerstartMet(spelers.replace(spelers.find("1,100001,"), 9, "1,,"));
    KiesRegel(1);
    wachter.Informatie(u"Willem van der Horst heeft geen sleutel. Daarom is niet te zeggen wat er "
                       "van deze speler is gewijzigd. Er is niets veranderd. Kijk in de hele "
                       "geschiedenis (Ctrl+H)."_s);
    venster->findChild<QAction*>(u"actGeschiedenisGekozen"_s)->trigger();
    wachter.Klaar();
}

TEST_F(GeschiedenisTest, HetVensterToontOudEnNieuwEnMaaktOokEenEerdereOngedaan)
{
    const std::string oud = suite.Spelers();
    VerwijderRegel(1);
    KiesRegel(1);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_7", u"06-1"_s);
        Druk(ingave, "cmdOK");
    });
    Opdracht("cmdWijzig");
    InGeschiedenis("actGeschiedenis", [&](QDialog& geschiedenis) {
        auto* lijst = Vind<QTreeWidget>(geschiedenis, "lstHandelingen");
        ASSERT_EQ(2, lijst->topLevelItemCount());
        const int breedte = lijst->columnWidth(0);
        lijst->resizeColumnToContents(0);
        EXPECT_GE(breedte, lijst->columnWidth(0));
        lijst->expandItem(lijst->topLevelItem(0));
        EXPECT_EQ((std::vector<std::string>{"Ineke van der Horst-Blaauw (100002)||",
                                            "  Telef|06-00000103|06-1"}),
                  Regels(*lijst->topLevelItem(0)));
        EXPECT_EQ("Willem van der Horst verwijderd", lijst->topLevelItem(1)->text(1).toStdString());
        lijst->setCurrentItem(lijst->topLevelItem(1));
        Druk(geschiedenis, "cmdOngedaan");
        ASSERT_EQ(3, lijst->topLevelItemCount());
        EXPECT_EQ("Ongedaan gemaakt: Willem van der Horst verwijderd",
                  lijst->topLevelItem(0)->text(1).toStdString());
        EXPECT_FALSE(Vind<QPushButton>(geschiedenis, "cmdOngedaan")->isEnabled());
        lijst->setCurrentItem(lijst->topLevelItem(2));
        EXPECT_EQ("Willem van der Horst verwijderd (ongedaan gemaakt)",
                  lijst->topLevelItem(2)->text(1).toStdString());
        EXPECT_EQ("Opnieuw doen", Opschrift(Vind<QPushButton>(geschiedenis, "cmdOngedaan")));
        Druk(geschiedenis, "cmdSluiten");
    });
    std::string verwacht = oud;
    verwacht.replace(verwacht.find("Blaauw,06-00000103"), 18, "Blaauw,06-1");
    EXPECT_EQ(verwacht, suite.Spelers());
}

TEST_F(GeschiedenisTest, VanParenStaatErAlleenHetPaarDatAndersWerd)
{
    KiesGroep(5);
    Opdracht("cmdParenOnderhoud", [](QDialog& paren) {
        auto* cmb = Vind<QComboBox>(paren, "cmbNBBledengr");
        cmb->setCurrentIndex(cmb->findText(u"Gr05-DINSDAG"_s));
        emit cmb->activated(cmb->currentIndex());
        KlikRegel(paren, "L1", "100090");
        KlikRegel(paren, "L2", "100094");
        Druk(paren, "cmdOKE");
        Druk(paren, "cmdEinde");
    });
    InGeschiedenis("actGeschiedenis", [](QDialog& geschiedenis) {
        auto* lijst = Vind<QTreeWidget>(geschiedenis, "lstHandelingen");
        lijst->expandItem(lijst->topLevelItem(0));
        EXPECT_EQ((std::vector<std::string>{"Parenmap\\Gr05-DINSDAG.txt||", "||100090-100094"}),
                  Regels(*lijst->topLevelItem(0)));
        Druk(geschiedenis, "cmdSluiten");
    });
}

TEST_F(GeschiedenisTest, VanEenSpelerStaatErAlleenWatHemzelfBetreft)
{
    VerwijderRegel(3);
    KiesRegel(2);
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_7", u"06-1"_s);
        Druk(ingave, "cmdOK");
    });
    Opdracht("cmdWijzig");
    KiesRegel(2);
    InGeschiedenis("actGeschiedenisGekozen", [&](QDialog& geschiedenis) {
        auto* lijst = Vind<QTreeWidget>(geschiedenis, "lstHandelingen");
        EXPECT_EQ("Geschiedenis van Ineke van der Horst-Blaauw",
                  geschiedenis.windowTitle().toStdString());
        EXPECT_EQ(1, lijst->topLevelItemCount());
        EXPECT_EQ("Ineke van der Horst-Blaauw gewijzigd",
                  lijst->topLevelItem(0)->text(1).toStdString());
        Druk(geschiedenis, "cmdSluiten");
    });
    KiesGroep(2);
    const auto* actie = venster->findChild<QAction*>(u"actGeschiedenisGekozen"_s);
    EXPECT_FALSE(actie->isEnabled());
    EXPECT_EQ("Kies eerst een regel", actie->statusTip().toStdString());
}

TEST_F(GeschiedenisTest, WatNietBijgehoudenKanWordenWordtEenKeerGemeld)
{
    schijf.Vooraf([](const Pad& pad) { return pad.find("Geschiedenis") == Pad::npos; });
    VerwachtIngave(u"Een"_s);
    wachter.Begin(u"De geschiedenis kan niet worden bijgehouden. Uw wijzigingen zelf zijn niet in "
                  "gevaar, maar wat u nu doet, kunt u later niet ongedaan maken."_s);
    Opdracht("cmdAanm");
    VoegToe(u"Twee"_s);
    EXPECT_NE(std::string::npos, suite.Spelers().find("Twee"));
}

TEST_F(GeschiedenisTest, WatNogNietIsOpgeslagenGaatAlsEersteTerug)
{
    VerwijderRegel(1);
    const std::string oud = suite.Spelers();
    schijf.FaalVanaf(1);
    VerwachtIngave(u"Nieuweling"_s);
    wachter.Begin(u"De spelers konden niet worden opgeslagen."_s, QMessageBox::Critical,
                  u"Doorgaan"_s);
    Opdracht("cmdAanm");
    schijf.FaalNiet();
    Terug();
    EXPECT_EQ("Aantal regels: 49", Aantal());
    EXPECT_EQ(oud.substr(oud.find('\n')), suite.Spelers().substr(oud.find('\n')));
}

TEST_F(GeschiedenisTest, WatNietIsOpgeslagenHeetNietOngedaanGemaakt)
{
    VoegToe(u"Nieuweling"_s);
    schijf.Vooraf([](const Pad& pad) { return pad.find("RVDspelers") == Pad::npos; });
    wachter.Begin(u"De spelers konden niet worden opgeslagen."_s, QMessageBox::Critical,
                  u"Doorgaan"_s);
    Terug();
    EXPECT_EQ("Nieuweling toegevoegd", Melding());
    EXPECT_EQ("Ongedaan maken: Nieuweling toegevoegd", Menutekst("actOngedaan"));
}

TEST_F(GeschiedenisTest, SpelersVanEenAnderStaanErNaHetTerugdraaienVanAndereBestanden)
{
    KiesGroep(5);
    Opdracht("cmdParenOnderhoud", [](QDialog& paren) {
        auto* keus = Vind<QComboBox>(paren, "cmbNBBledengr");
        keus->setCurrentIndex(0);
        emit keus->activated(0);
        Vind<Regellijst>(paren, "L1")->ZetHuidige(0);
        Vind<Regellijst>(paren, "L2")->ZetHuidige(1);
        Druk(paren, "cmdOKE");
        Druk(paren, "cmdEinde");
    });
    Herstart();
    KiesGroep(1);
    const auto reserves = suite.Namen("Spelers/Reservekopie").size();
    WijzigVanBuiten("1,100001", "0,100300,Gr01-,,,Ander,,,,,,,V,,,,,\r\n1,100001");
    Terug();
    EXPECT_TRUE(Melding().starts_with("Ongedaan gemaakt: Paren van ")) << Melding();
    EXPECT_EQ("Aantal regels: 51", Aantal());
    EXPECT_EQ(reserves + 1, suite.Namen("Spelers/Reservekopie").size());
}

TEST_F(GeschiedenisTest, HetLaatsteStaatBovenaanWelkeComputerHetOokDeed)
{
    const auto zet = [&](const std::string& computer, const std::string& wat,
                         const std::string& dag, const std::string& tijd) {
        suite.Zet("Spelers/Geschiedenis/" + dag + " 120000 " + computer + ".txt",
                  "handeling 1\r\ntijd " + dag + " " + tijd + "\r\ncomputer " + computer +
                      "\r\ngebruiker wil\r\nwat " + wat +
                      "\r\nbestand SPEMAP\\RVDspelers.txt\r\n"
                      "-9,100009,Gr05-,Jan,,Bos,,,,,,,M,,,,A-LIJN,\r\n"
                      "+9,100009,Gr05-,Jan,,Bos,,,,,,,M,,,,,\r\n"
                      "-8,100008,Gr01-,Bea,,Bos,,,,,,,V,,,,A-LIJN,\r\n"
                      "+8,100008,Gr01-,Bea,,Bos,,,,,,,V,,,,,\r\neinde\r\n");
    };
    std::filesystem::create_directory(suite.Weg() / "Spelers/Geschiedenis");
    zet("ZAAL", "Eerste", "2026-10-30", "19:04:59");
    zet("BAR", "Tweede", "2026-11-02", "08:30:00");
    InGeschiedenis("actGeschiedenis", [](QDialog& geschiedenis) {
        auto* lijst = Vind<QTreeWidget>(geschiedenis, "lstHandelingen");
        ASSERT_EQ(2, lijst->topLevelItemCount());
        EXPECT_EQ("02-11-2026 08:30", lijst->topLevelItem(0)->text(0).toStdString());
        EXPECT_EQ("30-10-2026 19:04", lijst->topLevelItem(1)->text(0).toStdString());
        lijst->expandItem(lijst->topLevelItem(0));
        EXPECT_EQ((std::vector<std::string>{"Bea Bos (100008)||", "  Subgr|A-LIJN|",
                                            "Jan Bos (100009)||", "  NBBgr|A-LIJN|"}),
                  Regels(*lijst->topLevelItem(0)));
        EXPECT_EQ("A-LIJN", lijst->topLevelItem(0)->child(0)->child(0)->toolTip(2).toStdString());
        Druk(geschiedenis, "cmdSluiten");
    });
}
