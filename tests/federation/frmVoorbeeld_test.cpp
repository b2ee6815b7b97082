// Looking at an import first, from the import window.
#include "federation/frmVoorbeeld.h"

#include <QAction>
#include <QClipboard>
#include <QHeaderView>

#include "federation/importproef.h"
#include "hulp/voortgangstopper.h"
#include "register/geschiedenis.h"

using namespace plexoran;

namespace {

/// Of the sample suite's import group: Agnes as she is, Rob at another address, Ans under the
/// number of Paul, a new one, one without a number and a header. Fourteen others stand in MAANDAG.
const std::string Maandag =
    "KOP=1\r\n"
    "92076715;V;Agnes;;;Appelscha;Wethouder Tapstraat 32;0411 MK;Wielerdam;06-00000296;"
    "a.appelscha@elzennet.example;Nederland\r\n"
    "91892044;M;Rob;;van;Beukering;Graanstraat 23;0437 BC;Oud-Merwolde;;"
    "r.vanbeukering@thuispost.example;Nederland\r\n"
    "91024767;V;Ans;;;Duinkerker;Stationsweg 110;0437 VC;Oud-Merwolde;06-00000332;"
    "paul.ravenzwaay@thuispost.example;Nederland\r\n"
    "771;V;Eva;;;Nieuwland;Pad 1;;Ede;;;\r\n"
    ";M;Gast;;;Heer;;;;;;\r\n";

class frmVoorbeeldTest : public Importproef {
  protected:
    /// What is done in the preview, which must close it.
    void Bekijk(const std::vector<int>& plaatsen, bool blijft)
    {
        Verwacht([plaatsen, blijft](QDialog& dia) {
            KiesOptie(dia, "Option2");
            Lijst(dia)->clearSelection();
            Lijst(dia)->Kies(plaatsen);
            Druk(dia, "cmdBekijk");
            EXPECT_EQ(blijft, dia.isVisible());
            EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
        });
    }
    void InVoorbeeld(const std::function<void(QDialog&, QTreeView&)>& stappen)
    {
        wachter.Bedien([stappen](QDialog& dia) {
            EXPECT_EQ("frmVoorbeeld", dia.objectName());
            stappen(dia, *Vind<QTreeView>(dia, "lstVoorbeeld"));
        });
    }
    void BekijkMaandag(bool blijft = false)
    {
        ZetExport("Maandag.csv", Maandag);
        Bekijk({0}, blijft);
    }
    /// A line or field: [x] or [ ] for its tick, and its columns.
    static std::string Regel(const QModelIndex& plek)
    {
        const QVariant vink = plek.data(Qt::CheckStateRole);
        QStringList cellen;
        for (int kolom = 0; kolom < plek.model()->columnCount(); ++kolom)
            cellen << plek.siblingAtColumn(kolom).data().toString();
        return (vink.isNull()         ? std::string()
                : vink == Qt::Checked ? "[x] "
                                      : "[ ] ") +
               cellen.join(u'|').toStdString();
    }
    using Boomregels = std::vector<std::string>;
    static Boomregels Boom(const QTreeView& lijst, const QModelIndex& onder = {})
    {
        Boomregels uit;
        for (int rij = 0; rij < lijst.model()->rowCount(onder); ++rij)
            uit.push_back(Regel(lijst.model()->index(rij, 0, onder)));
        return uit;
    }
    static Boomregels Namen(const QTreeView& lijst)
    {
        Boomregels uit;
        for (int rij = 0; rij < lijst.model()->rowCount(); ++rij)
            uit.push_back(
                lijst.model()->index(rij, Voorbeeldmodel::Wie).data().toString().toStdString());
        return uit;
    }
    static std::string Totalen(const QDialog& dia)
    {
        return Vind<QLabel>(dia, "lblTotalen")->text().toStdString();
    }
    /// Clicks on the tick of a line or field.
    static void KlikVink(QTreeView& lijst, const QModelIndex& plek)
    {
        lijst.scrollTo(plek);
        QStyleOptionViewItem optie;
        optie.initFrom(&lijst);
        optie.rect = lijst.visualRect(plek);
        optie.features = QStyleOptionViewItem::HasCheckIndicator;
        Klik(lijst.viewport(),
             lijst.style()
                 ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &optie, &lijst)
                 .center());
    }
};

const std::string Gewoon =
    "6 regels gelezen: 1 nieuw, 2 gewijzigd, 1 ongewijzigd, 2 geweigerd. Daarvan 1 twijfelachtig. "
    "Niet meer in het ledenbestand: 14.";

} // namespace

TEST_F(frmVoorbeeldTest, ToontWatErMetElkeRegelGebeurt)
{
    BekijkMaandag(true);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        EXPECT_EQ("Vooraf bekijken: Maandag.csv", dia.windowTitle());
        EXPECT_EQ(Gewoon, Totalen(dia));
        EXPECT_EQ("Importeer deze", Opschrift(Vind<QPushButton>(dia, "cmdImporteerDeze")));
        EXPECT_EQ((std::vector<std::string>{
                      "Alles (20)", "Nieuw (1)", "Gewijzigd (2)", "Ongewijzigd (1)",
                      "Geweigerd (2)", "Niet meer in het ledenbestand (14)", "Twijfelachtig (1)"}),
                  Keuzes(Vind<QComboBox>(dia, "cmbSoort")));
        Boomregels regels = Boom(lijst);
        ASSERT_EQ(20U, regels.size());
        EXPECT_EQ("Niet meer in het ledenbestand|97894401|Hilde Boterkooper|niets: wie geen "
                  "lid meer is, blijft staan",
                  regels[6]);
        regels.resize(6);
        EXPECT_EQ((Boomregels{
                      "[x] Ongewijzigd|92076715|Agnes Appelscha|niets",
                      "[x] Gewijzigd|91892044|Rob van Beukering|Telef, Adres",
                      "[x] Gewijzigd, twijfelachtig|91024767|Ans Duinkerker|Voornaam, Achternaam, "
                      "M/V (let op: deze naam staat er al met NBB-nummer 107; bij dit nummer stond "
                      "een heel andere naam)",
                      "[x] Nieuw|771|Eva Nieuwland|komt erbij",
                      "Geweigerd||Gast Heer|niet verwerkt: het NBB-nummer ontbreekt",
                      "Geweigerd||KOP=1|overgeslagen: er staat een '=' in, zoals in een kopregel"}),
                  regels);
        EXPECT_EQ((Boomregels{}), Boom(lijst, lijst.model()->index(0, 0)));
        EXPECT_EQ(
            (Boomregels{"[x] Telef||010-0000297|", "[x] Adres||Graanstraat 21|Graanstraat 23"}),
            Boom(lijst, lijst.model()->index(1, 0)));
        EXPECT_EQ((Boomregels{"[x] Voornaam|||Eva", "Achternaam|||Nieuwland", "[x] Adres|||Pad 1",
                              "[x] Plaats|||Ede", "[x] M/V|||V", "[x] NBBgr|||MAANDAG"}),
                  Boom(lijst, lijst.model()->index(3, 0)));
        KlikRegel(dia, "lstVoorbeeld", 4);
        EXPECT_EQ("niet verwerkt: het NBB-nummer ontbreekt",
                  Vind<QLabel>(dia, "lblRegel")->text().toStdString());
        Vind<QAction>(dia, "actRegelKopieren")->trigger();
        EXPECT_EQ("Geweigerd\t\tGast Heer\tniet verwerkt: het NBB-nummer ontbreekt",
                  QGuiApplication::clipboard()->text().toStdString());
        QTest::keyClick(&dia, Qt::Key_Escape);
    });
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmVoorbeeldTest, ImporteertWatErStondMetDeVraagEnDeBerichtenVanDeImport)
{
    BekijkMaandag();
    InVoorbeeld([](QDialog& dia, QTreeView&) { QTest::keyClick(&dia, Qt::Key_Return); });
    VerwachtVraag(u"Maandag"_s, 5);
    wachter.Waarschuwing(
        u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\nGast,,Heer,,,,,,,M,\r\n"_s);
    VerwachtAantallen(3, 1);
    wachter.Begin(
        u"Niet alles uit 'Maandag.csv' is zo overgenomen als het er staat; de rest wel."_s,
        QMessageBox::Information);
    Importeer();
    const std::string bekeken = suite.Spelers();
    EXPECT_EQ("Gr05-,Eva,,Nieuwland,,,Pad 1,,Ede,,V,,,,MAANDAG,771", Speler("100172"));
    EXPECT_EQ(1U, suite.Namen("Spelers/Reservekopie").size());
    EXPECT_EQ("4 leden ge\xEFmporteerd uit Maandag",
              administratie.geschiedenis.Laatste(Handelingsoort::Gewoon)->wat);

    // The import itself leaves the same.
    suite.Zet("Spelers/RVDspelers.txt", oud);
    Herstart();
    KiesGroep(5);
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        Lijst(dia)->Kies({0});
        Druk(dia, "cmdImporteer");
    });
    VerwachtVraag(u"Maandag"_s, 5);
    wachter.Begin(u"Niet verwerkte spelers"_s);
    VerwachtAantallen(3, 1);
    wachter.Begin(u"Niet alles uit"_s, QMessageBox::Information);
    Importeer();
    EXPECT_EQ(bekeken, suite.Spelers());
}

TEST_F(frmVoorbeeldTest, UitgezetteRegelsEnGegevensBlijvenZoalsZeWaren)
{
    BekijkMaandag();
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        // By keys: Paul stays who he is; Rob is opened and keeps his telephone.
        EXPECT_TRUE(lijst.hasFocus());
        for (const auto toets : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space, Qt::Key_Up,
                                 Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
            QTest::keyClick(&lijst, toets);
        EXPECT_EQ(Gewoon + "\nUitgezet: 1 regel en 1 gegeven.", Totalen(dia));
        // By mouse: the new one gets no address.
        const QModelIndex eva = lijst.model()->index(3, 0);
        lijst.expand(eva);
        KlikVink(lijst, lijst.model()->index(2, 0, eva));
        EXPECT_EQ(Gewoon + "\nUitgezet: 1 regel en 2 gegevens.", Totalen(dia));
        // A surname cannot go, nor a field of a line that is off, nor a line that is refused.
        KlikVink(lijst, lijst.model()->index(1, 0, eva));
        const QModelIndex ans = lijst.model()->index(2, 0);
        lijst.expand(ans);
        KlikVink(lijst, lijst.model()->index(0, 0, ans));
        KlikVink(lijst, lijst.model()->index(4, 0));
        EXPECT_EQ(Gewoon + "\nUitgezet: 1 regel en 2 gegevens.", Totalen(dia));
        EXPECT_EQ("[ ] Voornaam||Paul|Ans", Regel(lijst.model()->index(0, 0, ans)));
        Klik(Vind<QPushButton>(dia, "cmdImporteerDeze"));
    });
    // Thinking better of it shows it again, as it was left.
    VerwachtVraag(u"Maandag"_s, 4, u"Annuleren"_s);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        EXPECT_EQ(Gewoon + "\nUitgezet: 1 regel en 2 gegevens.", Totalen(dia));
        EXPECT_EQ("[ ] Gewijzigd, twijfelachtig", Regel(lijst.model()->index(2, 0)).substr(0, 28));
        Klik(Vind<QPushButton>(dia, "cmdImporteerDeze"));
    });
    VerwachtVraag(u"Maandag"_s, 4);
    wachter.Begin(u"Niet verwerkte spelers"_s);
    VerwachtAantallen(2, 1);
    wachter.Begin(u"Niet alles uit"_s, QMessageBox::Information);
    const std::string paul = Speler("100080");
    Importeer();
    EXPECT_EQ(paul, Speler("100080"));
    EXPECT_EQ("Gr05-,Rob,van,Beukering,010-0000297,r.vanbeukering@thuispost.example,Graanstraat 23,"
              "0437 BC,Oud-Merwolde,Nederland,M,,,,MAANDAG,91892044",
              Speler("100071"));
    EXPECT_EQ("Gr05-,Eva,,Nieuwland,,,,,Ede,,V,,,,MAANDAG,771", Speler("100172"));
}

TEST_F(frmVoorbeeldTest, SoortZoekenEnSorteren)
{
    BekijkMaandag(true);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        auto* soort = Vind<QComboBox>(dia, "cmbSoort");
        KiesUit(soort, 2);
        EXPECT_EQ((Boomregels{"Rob van Beukering", "Ans Duinkerker"}), Namen(lijst));
        KiesUit(soort, 6);
        EXPECT_EQ((Boomregels{"Ans Duinkerker"}), Namen(lijst));
        Druk(dia, "cmdGetoonde"); // all that is shown
        EXPECT_EQ(Gewoon + "\nUitgezet: 1 regel en 0 gegevens.", Totalen(dia));
        Druk(dia, "cmdGetoonde");
        EXPECT_EQ(Gewoon, Totalen(dia));
        KiesUit(soort, 0);
        Schrijf(dia, "txtFilter", u"VÁN b"_s);
        EXPECT_EQ((Boomregels{"Rob van Beukering"}), Namen(lijst));
        Schrijf(dia, "txtFilter", u"0247"_s);
        EXPECT_EQ((Boomregels{"Ans Duinkerker"}), Namen(lijst));
        Schrijf(dia, "txtFilter", u"xx"_s);
        EXPECT_EQ((Boomregels{}), Namen(lijst));
        Druk(dia, "cmdGetoonde");
        EXPECT_EQ(Gewoon, Totalen(dia));
        Schrijf(dia, "txtFilter", u""_s);
        const auto klikKop = [&](int kolom) {
            const QHeaderView* kop = lijst.header();
            Klik(kop->viewport(), {kop->sectionViewportPosition(kolom) + 20, kop->height() / 2});
        };
        EXPECT_EQ("Agnes Appelscha", Namen(lijst).front());
        klikKop(Voorbeeldmodel::Wie);
        EXPECT_EQ("Agnes Appelscha", Namen(lijst).front());
        EXPECT_EQ("Zoë Wolthuizen", Namen(lijst).back());
        klikKop(Voorbeeldmodel::Wie);
        EXPECT_EQ("Zoë Wolthuizen", Namen(lijst).front());
        klikKop(Voorbeeldmodel::NBBnr);
        EXPECT_EQ("Gast Heer", Namen(lijst).front());
        EXPECT_EQ("Ferdinand de Drieskens", Namen(lijst).back());
        klikKop(Voorbeeldmodel::Soort);
        EXPECT_EQ("Eva Nieuwland", Namen(lijst).front());
        EXPECT_EQ("Hans Žagarik", Namen(lijst).back());
        klikKop(Voorbeeldmodel::Wat);
        EXPECT_EQ("Eva Nieuwland", Namen(lijst).front());
        EXPECT_EQ("Ans Duinkerker", Namen(lijst).back());
        Druk(dia, "cmdSluiten");
    });
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmVoorbeeldTest, HetzelfdeNogEensZegtDatErNietsVerandert)
{
    KopieerExports();
    const QString niets = u"Er verandert niets: niemand komt erbij, en bij wie er al staat, blijft "
                          "elk gegeven zoals het is."_s;
    Bekijk({1}, false);
    InVoorbeeld([&](QDialog& dia, QTreeView&) {
        EXPECT_EQ(std::string::npos, Totalen(dia).find(niets.toStdString()));
        Druk(dia, "cmdImporteerDeze");
    });
    VerwachtVraag(u"Maandag"_s, 8);
    wachter.Begin(u"Niet verwerkte spelers"_s);
    VerwachtAantallen(5, 2);
    wachter.Begin(u"Niet alles uit"_s, QMessageBox::Information);
    Importeer();
    const std::string na = suite.Spelers();
    schijf.FaalVanaf(1); // nothing is written
    Bekijk({1}, false);
    InVoorbeeld([&](QDialog& dia, QTreeView&) {
        EXPECT_TRUE(QString::fromStdString(Totalen(dia)).endsWith(u'\n' + niets)) << Totalen(dia);
        Druk(dia, "cmdImporteerDeze");
    });
    wachter.Begin(u"Niet verwerkte spelers"_s);
    wachter.Informatie(niets);
    wachter.Begin(u"Niet alles uit"_s, QMessageBox::Information);
    Importeer();
    EXPECT_EQ(na, suite.Spelers());
}

/// What comes for the lines that are refused is what the import itself says of them, also where
/// nothing changes.
TEST_F(frmVoorbeeldTest, OokAlsErNietsVerandertKomenDeGeweigerdeRegels)
{
    const QString zonderNummer =
        u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\nGast,,Heer,,,,,,,M,\r\n"_s;
    const QString overgeslagen =
        u"Niet alles uit 'Club.csv' is zo overgenomen als het er staat; de rest wel. "
        "Verander het zo nodig in het rekenprogramma en importeer opnieuw.\r\n\r\n1 lid "
        "overgeslagen, omdat het NBB-nummer al voorkomt: eerder in dit bestand, of anders "
        "geschreven in groep 'Gr05-':\r\nEva,,Een,,,,,,,V,0771\r\n\r\n1 regel overgeslagen, omdat "
        "er een '=' in staat, zoals in een kopregel:\r\nKOP=1\r\n"_s;
    ZetExport("Club.csv", "KOP=1\r\n771;V;Eva;;;Een;;;;;;\r\n;M;Gast;;;Heer;;;;;;\r\n"
                          "0771;V;Eva;;;Een;;;;;;\r\n");
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        Lijst(dia)->Kies({0});
        Druk(dia, "cmdImporteer");
    });
    VerwachtVraag(u"Club"_s, 3);
    wachter.Waarschuwing(zonderNummer);
    VerwachtAantallen(0, 1);
    wachter.Informatie(overgeslagen);
    Importeer();
    const std::string na = suite.Spelers();
    schijf.FaalVanaf(1); // nothing is written
    Bekijk({0}, false);
    InVoorbeeld([](QDialog& dia, QTreeView&) { Druk(dia, "cmdImporteerDeze"); });
    wachter.Waarschuwing(zonderNummer);
    wachter.Informatie(frmVoorbeeld::Nietstekst());
    wachter.Informatie(overgeslagen);
    Importeer();
    EXPECT_EQ(na, suite.Spelers());
}

TEST_F(frmVoorbeeldTest, HetBekijkenIsTeStoppenEnVerandertDanNiets)
{
    std::string regels;
    for (int i = 0; i < 20'000; ++i)
        regels += std::to_string(200'000 + i) + ";V;Eva;;;Naam" + std::to_string(i) + ";;;;;;\r\n";
    ZetExport("Club.csv", regels);
    int stappen = 0;
    {
        const Voortgangstopper teller(0);
        Bekijk({0}, true);
        InVoorbeeld([](QDialog& dia, QTreeView&) { Druk(dia, "cmdSluiten"); });
        Importeer();
        stappen = teller.Stappen();
    }
    EXPECT_GT(stappen, 40) << "zo vaak, ook als de besluiten al genomen zijn";
    const Voortgangstopper stopper(stappen - 4, [](frmVoortgang& voortgang) {
        EXPECT_EQ("'Club.csv' wordt bekeken ...", voortgang.labelText().toStdString());
        EXPECT_GT(voortgang.value(), voortgang.maximum() / 2);
        Druk(voortgang, "cmdStop");
    });
    Bekijk({0}, true);
    wachter.Informatie(
        u"Het importeren is gestopt. Uit 'Club.csv' is niets geïmporteerd; wat eerder is "
        "geïmporteerd, blijft. Importeer 'Club.csv' opnieuw als u die leden nog nodig hebt."_s);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

/// Each file is shown as the ones before it leave the register; closing ends it there.
TEST_F(frmVoorbeeldTest, MeerBestandenNaElkaar)
{
    for (const char* naam : {"A.csv", "B.csv", "C.csv"})
        ZetExport(naam, "771;V;Eva;;;Een;;;;;;\r\n");
    Bekijk({0, 1, 2}, true);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        EXPECT_EQ("[x] Nieuw|771|Eva Een|komt erbij", Regel(lijst.model()->index(0, 0)));
        Druk(dia, "cmdImporteerDeze");
    });
    VerwachtImport(u"A"_s, 1, 0, 1);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        EXPECT_EQ("[x] Gewijzigd|771|Eva Een|NBBgr", Regel(lijst.model()->index(0, 0)));
        EXPECT_EQ((Boomregels{"[x] NBBgr||A|B"}), Boom(lijst, lijst.model()->index(0, 0)));
        Druk(dia, "cmdSluiten");
    });
    Importeer();
    EXPECT_EQ("Gr05-,Eva,,Een,,,,,,,V,,,,A,771", Speler("100172"));
}

TEST_F(frmVoorbeeldTest, WatVoorafGemeldWordtKomtVoorHetVoorbeeld)
{
    ZetExport("Club.csv", "771;V;Eva;;;Een;;;;;;\r\n772;V;Eva;;;Kort\r\n773;V;Eva;;;Na;;;;;;\r\n");
    Bekijk({0}, false);
    wachter.Begin(u"Regel 2 van 'Club.csv' heeft minder kolommen"_s);
    InVoorbeeld([](QDialog& dia, QTreeView& lijst) {
        EXPECT_EQ("2 regels gelezen: 1 nieuw, 0 gewijzigd, 0 ongewijzigd, 1 geweigerd. Daarvan 0 "
                  "twijfelachtig. Wie niet meer in het ledenbestand staat, is niet te zeggen: het "
                  "is niet heel gelezen.",
                  Totalen(dia));
        EXPECT_EQ("Geweigerd||regel 2|heeft te weinig kolommen: deze regel en wat erachter staat, "
                  "is niet gelezen",
                  Regel(lijst.model()->index(1, 0)));
        Druk(dia, "cmdImporteerDeze");
    });
    VerwachtImport(u"Club"_s, 1, 0, 1);
    Importeer();
}

TEST_F(frmVoorbeeldTest, ZonderSleutelsGebeurtErNiets)
{
    administratie.spelers.HKEY = 2147483647;
    ZetExport("Club.csv", "771;V;Eva;;;Een;;;;;;\r\n");
    Bekijk({0}, true);
    InVoorbeeld([](QDialog& dia, QTreeView&) { Druk(dia, "cmdImporteerDeze"); });
    VerwachtVraag(u"Club"_s, 1);
    wachter.SleutelsOp(u"Uit 'Club.csv' is niets geïmporteerd"_s,
                       suite.Toonpad("Spelers/RVDspelers.txt"));
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

/// A hundred thousand lines are there at once, are filtered and switched off.
TEST_F(frmVoorbeeldTest, HonderdduizendRegels)
{
    constexpr int aantal = 100'000;
    Ledenlezing lezing;
    std::vector<Tekst> regels;
    for (int i = 0; i < aantal; ++i)
        regels.push_back("Jo,,Naam" + std::to_string(i) + ",,,,,,,," + std::to_string(20'000 + i));
    auto voorbeeld =
        Voorbeeld::Maak(administratie.spelers.tabel, {"Gr05-", "Club", regels}, lezing).value();
    QElapsedTimer klok;
    klok.start();
    frmVoorbeeld dia(voorbeeld, u"Club.csv"_s, venster.get());
    dia.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dia));
    EXPECT_LT(klok.restart(), 3000);
    KiesUit(Vind<QComboBox>(dia, "cmbSoort"), 1);
    Schrijf(dia, "txtFilter", u"naam9999"_s);
    const auto* lijst = Vind<QTreeView>(dia, "lstVoorbeeld");
    EXPECT_EQ(11, lijst->model()->rowCount());
    Druk(dia, "cmdGetoonde");
    EXPECT_EQ(11U, voorbeeld.RegelsUit());
    EXPECT_LT(klok.elapsed(), 20'000);
}
