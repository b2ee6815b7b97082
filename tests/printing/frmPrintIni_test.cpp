#include "printing/frmPrintIni.h"

#include <QStyleOptionComboBox>
#include <QTextDocument>

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/tekstvanger.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

class frmPrintIniTest : public Dialoogproef<frmPrintIni, Geheugenstand> {
  protected:
    frmPrintIniTest()
    {
        administratie.mappen.APPEXE = "Ravendeck.exe";
        administratie.spelers.tabel =
            MaakTabel({{"100001", "Gr01-", "An", "", "Zee", "A-lijn", "1"},
                       {"100002", "Gr05-", "Bea", "de", "Cock", "DINSDAG", "2"},
                       {"100003", "Gr01-", "Cor", "", "Bos", "", "3"},
                       {"100004", "Gr01-", "Dirk", "", "Aap", "B-lijn", "4"}});
        namen[Index(Kolom::NBBgr)] = "Subgr";
        namen[Index(Kolom::NBBnr)] = "";
        Open("Gr01-Clubleden & co");
    }

    void Open(const Tekst& groep, const QLocale& getallen = {QLocale::Dutch, QLocale::Netherlands})
    {
        venster = std::make_unique<frmPrintIni>(administratie, groep, namen, &hoofd, getallen);
        ToonHet();
    }
    [[nodiscard]] Regellijst* Lijst(const char* naam) const { return Deel<Regellijst>(naam); }
    [[nodiscard]] QComboBox* cmbSchaal() const { return Deel<QComboBox>("cmbSchaal"); }
    [[nodiscard]] std::string Schaal() const { return cmbSchaal()->currentText().toStdString(); }

    std::array<Tekstblik, AantalKolommen> namen = Kolomnamen;
};

const std::vector<int> eersteAcht{0, 1, 2, 3, 4, 5, 6, 7};

} // namespace

TEST_F(frmPrintIniTest, DeOpschriften)
{
    VerwachtTeksten("Printen van ledenlijsten per groep",
                    {{"Label1", "Te printen Rubrieken (kolommen)"},
                     {"Label2", "Gekozen Groep:"},
                     {"Label3", "Gr01-Clubleden & co"},
                     {"Label4", "Printuitvoer verkleinen of vergroten:"},
                     {"Label5", "Kies de schaal:"},
                     {"Label6", "Print alleen deze Subgroep(en):"},
                     {"Label7", "Deze groep is leeg"}},
                    {{"cmdSelAll", "Selecteer alles"},
                     {"cmdSelNone", "Selecteer niets"},
                     {"cmdTelefoonlijst", "Telefoonlijst van iedereen"},
                     {"cmdEtiketten", "Etiketten..."},
                     {"cmdOK", "Printen..."},
                     {"cmdAnnuleren", "Terug"}},
                    {{"Frame1", "Welke kolommen te printen"}});
}

TEST_F(frmPrintIniTest, DeTabtoetsVolgtHetOog)
{
    Lijst("lstNBBgr")->setFocus();
    EXPECT_EQ("cmbSchaal cmdPassend cmdEtiketten cmdOK cmdAnnuleren lstKeus cmdSelAll cmdSelNone "
              "cmdTelefoonlijst lstNBBgr ",
              MetTab(10));
}

TEST_F(frmPrintIniTest, EenLangeGroepsnaamMaaktHetVensterNietGroter)
{
    Open("Gr01-");
    const QSize maat = venster->size();
    const QSize lijst = Lijst("lstKeus")->size();
    Tekst woorden = "Gr01-";
    for (int i = 0; i < 200; ++i)
        woorden += "een naam van veel ";
    for (const Tekst& naam : {"Gr01-" + Tekst(3000, 'x'), woorden}) {
        Open(naam);
        EXPECT_EQ(maat, venster->size());
        EXPECT_EQ(lijst, Lijst("lstKeus")->size());
        auto* label = Deel<QLabel>("Label3");
        EXPECT_EQ(naam, label->text().toStdString());
        EXPECT_EQ(naam, label->toolTip().toStdString());
        Tekstvanger vanger(label->size());
        label->render(&vanger, {}, {}, QWidget::RenderFlags());
        ASSERT_EQ(1U, vanger.Teksten().size());
        const Getekend getekend = vanger.Teksten().front();
        EXPECT_TRUE(getekend.tekst.starts_with("Gr01-") && getekend.tekst.ends_with("..."))
            << getekend.tekst;
        EXPECT_LE(getekend.breed, label->width());
    }
}

TEST_F(frmPrintIniTest, EenGroepsnaamMetTekensVanOpmaakStaatErZoalsHijIs)
{
    const Tekst naam = "Gr01-<b>Vet</b> & co";
    Open(naam);
    const auto* label = Deel<QLabel>("Label3");
    EXPECT_EQ(naam, label->text().toStdString());
    EXPECT_EQ(Qt::PlainText, label->textFormat());
    QTextDocument wenk;
    wenk.setHtml(label->toolTip());
    EXPECT_EQ(naam, wenk.toPlainText().toStdString());
}

TEST_F(frmPrintIniTest, OpentMetDeEersteAchtKolommenGekozen)
{
    EXPECT_EQ((std::vector<std::string>{"Voornaam", "Tusv", "Achternaam", "Telef", "Email", "Adres",
                                        "Postc", "Plaats", "Land", "M/V", "Div1", "Div2", "Status",
                                        "Subgr", "(kolom 18)"}),
              Regels("lstKeus"));
    EXPECT_EQ(eersteAcht, Lijst("lstKeus")->GekozenPlaatsen());
    EXPECT_EQ(0, Lijst("lstKeus")->currentIndex().row());
    EXPECT_EQ((std::vector<std::string>{"A-lijn", "GEEN", "B-lijn"}), Regels("lstNBBgr"));
    EXPECT_FALSE(Lijst("lstNBBgr")->IetsGekozen());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    EXPECT_FALSE(Deel<QLabel>("Label7")->isVisible());
}

TEST_F(frmPrintIniTest, DeTelefoonlijstIsEenKeusWaarnaEnterPrint)
{
    Klik(Knop("cmdTelefoonlijst"));
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), Lijst("lstKeus")->GekozenPlaatsen());
    EXPECT_EQ((std::vector<int>{0, 1, 2}), Lijst("lstNBBgr")->GekozenPlaatsen());
    EXPECT_TRUE(Knop("cmdOK")->hasFocus());
    Open("Gr07-leeg");
    EXPECT_FALSE(Knop("cmdTelefoonlijst")->isEnabled());
}

TEST_F(frmPrintIniTest, InDeImportgroepHeetDeLaatsteKolomNBBnr)
{
    namen = Kolomnamen;
    Open("Gr05-");
    EXPECT_EQ("NBBgr", Regels("lstKeus")[13]);
    EXPECT_EQ("NBBnr", Regels("lstKeus")[14]);
}

TEST_F(frmPrintIniTest, DeSchalenInDeSchrijfwijzeVanDeGebruikerZijnTeLezen)
{
    EXPECT_EQ((std::vector<std::string>{"0,7", "0,8", "0,9", "1", "1,1", "1,2", "1,3"}),
              Keuzes(cmbSchaal()));
    EXPECT_EQ("1", Schaal());
    Open("Gr01-", {QLocale::English, QLocale::UnitedKingdom});
    EXPECT_EQ((std::vector<std::string>{"0.7", "0.8", "0.9", "1", "1.1", "1.2", "1.3"}),
              Keuzes(cmbSchaal()));
    // However long the name of the group is; all of it can be read.
    QStyleOptionComboBox optie;
    optie.initFrom(cmbSchaal());
    const QRect vak = cmbSchaal()->style()->subControlRect(
        QStyle::CC_ComboBox, &optie, QStyle::SC_ComboBoxEditField, cmbSchaal());
    EXPECT_GE(vak.width(), cmbSchaal()->fontMetrics().horizontalAdvance(u"0,7 "_s));
}

TEST(GetalnotatieTest, DieVanHetSysteemOfDeNederlandse)
{
    EXPECT_EQ("0,7", Getalnotatie(QLocale::c()).toString(0.7).toStdString());
    EXPECT_EQ("0.7", Getalnotatie(QLocale(QLocale::English)).toString(0.7).toStdString());
    EXPECT_EQ("0,7", Getalnotatie(QLocale(QLocale::French)).toString(0.7).toStdString());
}

/// What is written is read back: it decides how many rows go on a page.
TEST_F(frmPrintIniTest, DeGekozenSchaalGaatMee)
{
    administratie.spelers.tabel = MaakPrintspelers(165);
    for (const QLocale& getallen : {QLocale(QLocale::Dutch), QLocale(QLocale::English)}) {
        for (const auto& [plaats, bladen] :
             {std::pair<int, const char*>(0, "(Totaal 3)"), {3, "(Totaal 4)"}, {6, "(Totaal 5)"}}) {
            Open("Gr01-", getallen);
            cmbSchaal()->setCurrentIndex(plaats);
            KlikRegel("lstNBBgr", 0);
            wachter.Bedien([&, totaal = bladen](QDialog& dialoog) {
                EXPECT_EQ(totaal, Vind<QLineEdit>(dialoog, "txtAantPages")->text().toStdString());
                dialoog.reject();
            });
            Opdracht("cmdOK");
        }
    }
}

TEST_F(frmPrintIniTest, ZonderKolomIsDeKnopUit)
{
    Klik(Knop("cmdSelNone"));
    EXPECT_TRUE(Lijst("lstKeus")->GekozenPlaatsen().empty());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    KlikRegel("lstKeus", 4);
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    Klik(Knop("cmdSelAll"));
    EXPECT_EQ(15U, Lijst("lstKeus")->GekozenPlaatsen().size());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
}

/// Nothing of an empty group can be printed, whatever is chosen.
TEST_F(frmPrintIniTest, EenLegeGroepHoudtDeKnopUit)
{
    Open("Gr09-");
    EXPECT_TRUE(Deel<QLabel>("Label7")->isVisible());
    EXPECT_EQ(0, Lijst("lstNBBgr")->Aantal());
    EXPECT_FALSE(Lijst("lstNBBgr")->isEnabled());
    EXPECT_EQ("", Label("lblBreedte"));
    EXPECT_FALSE(Knop("cmdPassend")->isEnabled());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    Klik(Knop("cmdSelAll"));
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
}

TEST_F(frmPrintIniTest, EerstEenSubgroepEnEenRubriekKiezen)
{
    wachter.Waarschuwing(u"U moet nog een subgroep kiezen."_s);
    Klik(Knop("cmdOK"));
    EXPECT_TRUE(venster->isVisible());
    // The button is off then; what it says is there all the same.
    KlikRegel("lstNBBgr", 1);
    Klik(Knop("cmdSelNone"));
    Knop("cmdOK")->setEnabled(true);
    wachter.Waarschuwing(u"U moet minimaal de rubriek 'Achternaam' selecteren."_s);
    Klik(Knop("cmdOK"));
    EXPECT_TRUE(venster->isVisible());
}

/// Any column will do, although the message of the test speaks of the surname.
TEST_F(frmPrintIniTest, AlleenEmailIsGenoeg)
{
    Klik(Knop("cmdSelNone"));
    KlikRegel("lstKeus", 4);
    KlikRegel("lstNBBgr", 1);
    wachter.Bedien([](QDialog& dialoog) {
        EXPECT_EQ("frmAfdrukken", dialoog.objectName().toStdString());
        dialoog.reject();
    });
    Klik(Knop("cmdOK"));
}

/// A surname of so many times "x", which is 1.76 mm wide at scale 1.
class BreedteTest : public frmPrintIniTest {
  protected:
    void OpenMet(int letters)
    {
        administratie.spelers.tabel =
            MaakTabel({{"100001", "Gr01-", "An", "", Tekst(static_cast<std::size_t>(letters), 'x'),
                        "A-lijn", "1"},
                       {"100002", "Gr01-", "Bea", "", "Cock", "B-lijn", "2"}});
        Open("Gr01-");
        Klik(Knop("cmdSelNone"));
        KlikRegel("lstKeus", 2);
    }
};

TEST_F(BreedteTest, DeBreedteVolgtDeKolommenEnDeSubgroepen)
{
    OpenMet(102);
    EXPECT_EQ("Samen 194 mm breed: past op A4-staand (210 mm).", Label("lblBreedte"));
    KlikRegel("lstKeus", 0);
    EXPECT_EQ("Samen 213 mm breed: past op A4-liggend (297 mm).", Label("lblBreedte"));
    KlikRegel("lstNBBgr", 1); // without the long name
    EXPECT_EQ("Samen 54 mm breed: past op A4-staand (210 mm).", Label("lblBreedte"));
    KlikRegel("lstNBBgr", 0);
    EXPECT_EQ("Samen 213 mm breed: past op A4-liggend (297 mm).", Label("lblBreedte"));
    Klik(Knop("cmdSelNone"));
    EXPECT_EQ("", Label("lblBreedte"));
    EXPECT_FALSE(Knop("cmdPassend")->isEnabled());
}

TEST_F(BreedteTest, DeGrootsteSchaalDiePastWordtAangeboden)
{
    OpenMet(180);
    EXPECT_EQ("Samen 332 mm breed: te breed voor A4-liggend (297 mm).", Label("lblBreedte"));
    EXPECT_EQ("Grootste die past: 0,8", Opschrift(Knop("cmdPassend")));
    EXPECT_EQ("1", Schaal());
    Klik(Knop("cmdPassend"));
    EXPECT_EQ("0,8", Schaal());
    EXPECT_EQ("Samen 266 mm breed: past op A4-liggend (297 mm).", Label("lblBreedte"));
    EXPECT_FALSE(Knop("cmdPassend")->isEnabled());

    OpenMet(10);
    EXPECT_EQ("Grootste die past: 1,3", Opschrift(Knop("cmdPassend")));
    OpenMet(300);
    EXPECT_EQ("Geen schaal past", Opschrift(Knop("cmdPassend")));
    EXPECT_FALSE(Knop("cmdPassend")->isEnabled());
}

/// What the set-up says of a list is what the preview does with it.
TEST_F(BreedteTest, HetVoorbeeldIsZoBreedAlsGezegd)
{
    for (const int letters : {102, 180}) {
        OpenMet(letters);
        KlikRegel("lstKeus", 0);
        KlikRegel("lstNBBgr", 0);
        Klik(Knop("cmdPassend"));
        const std::string breed = Label("lblBreedte").substr(0, 12); // "Samen 213 mm"
        wachter.Bedien([&](QDialog& voorbeeld) {                     // and no warning before it
            EXPECT_NE(
                std::string::npos,
                Vind<QLabel>(voorbeeld, "lblReden")->text().toStdString().find(breed.substr(6, 6)))
                << breed;
            voorbeeld.reject();
        });
        Opdracht("cmdOK");
    }
}

TEST_F(frmPrintIniTest, NaHetVoorbeeldBlijftHetVensterMetZijnKeuzes)
{
    KlikRegel("lstNBBgr", 0);
    cmbSchaal()->setCurrentIndex(0);
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Klik(Knop("cmdOK"));
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(eersteAcht, Lijst("lstKeus")->GekozenPlaatsen());
    EXPECT_EQ("0,7", Schaal());
}

/// Whoever listens gets the players of the chosen subgroups, whatever the columns.
TEST_F(frmPrintIniTest, EtikettenVanDeGekozenSubgroepen)
{
    std::vector<std::vector<int>> gevraagd;
    QObject::connect(venster.get(), &frmPrintIni::etikettenGevraagd, venster.get(),
                     [&](const std::vector<int>& rijen) { gevraagd.push_back(rijen); });
    wachter.Waarschuwing(u"U moet nog een subgroep kiezen."_s);
    Opdracht("cmdEtiketten");
    EXPECT_TRUE(gevraagd.empty());
    Klik(Knop("cmdSelNone"));
    KlikRegel("lstNBBgr", 1);
    KlikRegel("lstNBBgr", 2);
    Opdracht("cmdEtiketten");
    EXPECT_EQ((std::vector<std::vector<int>>{{3, 4}}), gevraagd);
    Open("Gr07-leeg");
    EXPECT_FALSE(Knop("cmdEtiketten")->isEnabled());
}

TEST_F(frmPrintIniTest, TerugEnEscapeSluiten)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        venster->show();
        Sluit(weg, "cmdAnnuleren");
    }
}
