// Exporting players: who, which columns, what file.
#include "exchange/frmExport.h"

#include <QFileDialog>
#include <QListWidget>
#include <QSettings>

#include "exchange/uitvoerproef.h"
#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"
#include "platform/schijf/systeempad.h"

using namespace plexoran;

namespace {

using Namen_t = std::vector<std::string>;

class frmExportTest : public Dialoogproef<frmExport, Mapstand> {
  protected:
    frmExportTest()
    {
        administratie.spelers.tabel = MaakSpelers(
            {Speler("100001", "Gr01-", "An", "A-lijn"), Speler("100002", "Gr05-", "Bea", "DI"),
             Speler("100003", "Gr01-", "Cor", ""), Speler("100004", "Gr01-", "Dirk", "a-lijn")});
        administratie.groepen.ZetNaam(1, "Clubleden & co");
        administratie.vensterIni = Samen(map.AlsPad(), "venster.ini");
        OpenCsv();
    }
    static Cellen Speler(const char* key, const char* groep, const char* naam, const char* subgroep)
    {
        return {{Kolom::Key, key},
                {Kolom::Groep, groep},
                {Kolom::Achternaam, naam},
                {Kolom::NBBgr, subgroep}};
    }
    void Open(std::vector<int> gekozen = {})
    {
        venster = std::make_unique<frmExport>(administratie, "Gr01-", &hoofd, std::move(gekozen));
        ToonHet();
    }
    void OpenCsv(std::vector<int> gekozen = {})
    {
        Open(std::move(gekozen));
        KiesUit(Keus("cmbSoort"), 1);
    }
    [[nodiscard]] QComboBox* Keus(const char* naam) const { return Deel<QComboBox>(naam); }
    [[nodiscard]] QListWidget* Kolommen() const { return Deel<QListWidget>("lstKolommen"); }
    /// The ticked ones, as they stand.
    [[nodiscard]] std::string Gekozen() const
    {
        std::string uit;
        for (int i = 0; i < Kolommen()->count(); ++i) {
            if (Kolommen()->item(i)->checkState() == Qt::Checked)
                uit += Kolommen()->item(i)->text().toStdString() + " ";
        }
        return uit;
    }
    void KiesKolommen(const QStringList& namen)
    {
        Opdracht("cmdNiets");
        for (const QString& naam : namen)
            Kolommen()->findItems(naam, Qt::MatchExactly).constFirst()->setCheckState(Qt::Checked);
    }
    /// The next dialog that asks for a file is answered with this one.
    void VerwachtBestand(const char* naam, bool zonderVraag = false)
    {
        wachter.Bedien([pad = map.Weg() / naam, zonderVraag](QDialog& dialoog) {
            qobject_cast<QFileDialog*>(&dialoog)->setOption(QFileDialog::DontConfirmOverwrite,
                                                            zonderVraag);
            Vind<QLineEdit>(dialoog, "fileNameEdit")->setText(QString::fromStdString(pad.string()));
            dialoog.accept();
        });
    }
    /// What came in the file, or stayed there; empty where there is none.
    std::string Exporteer(const char* naam)
    {
        VerwachtBestand(naam, true);
        Opdracht("cmdOK");
        return std::filesystem::exists(map.Weg() / naam) ? map.Inhoud(naam) : "";
    }
};

const std::string AllesBehalveNr = "Key Groep Voornaam Tusv Achternaam Telef Email Adres Postc "
                                   "Plaats Land M/V Div1 Div2 Status NBBgr of Subgr NBBnr ";

} // namespace

TEST_F(frmExportTest, DeOpschriften)
{
    VerwachtTeksten("Spelers exporteren",
                    {{"lblWie", "Wie:"},
                     {"lblSubgroep", "Subgroep:"},
                     {"lblAantal", "3 spelers"},
                     {"lblSoort", "Bestand:"}},
                    {{"cmdOmhoog", "Omhoog"},
                     {"cmdOmlaag", "Omlaag"},
                     {"cmdAlles", "Alles"},
                     {"cmdNiets", "Niets"},
                     {"cmdOK", "Exporteren..."},
                     {"cmdAnnuleren", "Terug"}},
                    {{"Frame1", "Welke kolommen, in welke volgorde"}});
    EXPECT_EQ(51, Keus("cmbWie")->count());
    EXPECT_EQ("Gr01-Clubleden & co", Keus("cmbWie")->currentText().toStdString());
    EXPECT_EQ(AllesBehalveNr, Gekozen());
}

TEST_F(frmExportTest, DeTabtoetsVolgtHetOog)
{
    Keus("cmbWie")->setFocus();
    EXPECT_EQ("cmbSubgroep lstKolommen cmdOmhoog cmdOmlaag cmdAlles cmdNiets cmbSoort cmdOK "
              "cmdAnnuleren cmbWie ",
              MetTab(10));
}

TEST_F(frmExportTest, EenGroepEenSubgroepOfAlleGroepen)
{
    KiesKolommen({u"Key"_s});
    EXPECT_EQ((Namen_t{"Alle subgroepen", "A-lijn", "GEEN", "a-lijn"}),
              Keuzes(Keus("cmbSubgroep")));
    KiesUit(Keus("cmbSubgroep"), 1);
    EXPECT_EQ("2 spelers", Label("lblAantal")); // capitals do not count
    KiesUit(Keus("cmbSubgroep"), 2);
    EXPECT_EQ("1 speler", Label("lblAantal"));
    EXPECT_EQ("\xEF\xBB\xBFKey\r\n100003\r\n", Exporteer("uit.csv"));
    OpenCsv();
    KiesUit(Keus("cmbWie"), 0);
    EXPECT_EQ("Alle groepen", Keus("cmbWie")->currentText().toStdString());
    EXPECT_EQ((Namen_t{"Alle subgroepen", "A-lijn", "DI", "GEEN", "a-lijn"}),
              Keuzes(Keus("cmbSubgroep")));
    EXPECT_EQ("\xEF\xBB\xBFKey\r\n100001\r\n100002\r\n100003\r\n100004\r\n", Exporteer("uit.csv"));
}

TEST_F(frmExportTest, DeGekozenSpelersZoalsZeGekozenZijn)
{
    OpenCsv({4, 2});
    EXPECT_EQ("2 gekozen spelers", Keus("cmbWie")->currentText().toStdString());
    EXPECT_EQ("2 spelers", Label("lblAantal"));
    KiesKolommen({u"Key"_s});
    EXPECT_EQ("\xEF\xBB\xBFKey\r\n100004\r\n100002\r\n", Exporteer("uit.csv"));
    EXPECT_EQ("2 spelers geëxporteerd naar " + (map.Weg() / "uit.csv").string(),
              venster->Gedaan().toStdString());
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(frmExportTest, DeVolgordeIsTeKiezenEnWordtOnthouden)
{
    KiesKolommen({u"Key"_s, u"Groep"_s, u"Achternaam"_s});
    Kolommen()->setCurrentRow(5);
    ASSERT_EQ("Achternaam", Kolommen()->currentItem()->text().toStdString());
    for (int keer = 0; keer < 9; ++keer) // further than it goes
        Opdracht("cmdOmhoog");
    EXPECT_EQ(0, Kolommen()->currentRow());
    Kolommen()->setCurrentRow(2);
    Opdracht("cmdOmlaag");
    EXPECT_EQ("Achternaam Groep Key ", Gekozen());
    KiesUit(Keus("cmbSoort"), Keus("cmbSoort")->findData(u"csv1252"_s));
    EXPECT_EQ("Achternaam;Groep;Key\r\nAn;Gr01-;100001\r\nCor;Gr01-;100003\r\n"
              "Dirk;Gr01-;100004\r\n",
              Exporteer("uit.csv"));
    EXPECT_EQ("6 -1 3 2 -4 -5 -7 -8 -9 -10 -11 -12 -13 -14 -15 -16 -17 -18",
              QSettings(QString::fromStdU16String(Systeempad(administratie.vensterIni).u16string()),
                        QSettings::IniFormat)
                  .value(u"Export/Kolommen"_s)
                  .toString()
                  .toStdString());
    Open();
    EXPECT_EQ("Achternaam Groep Key ", Gekozen());
    EXPECT_EQ("CSV-bestand (Windows-1252)", Keus("cmbSoort")->currentText().toStdString());
}

TEST_F(frmExportTest, ElkeSoortHeeftZijnUitlegEnZijnBestand)
{
    Open();
    EXPECT_EQ((Namen_t{"Rekenblad (XLSX)", "CSV-bestand (UTF-8)", "CSV-bestand (Windows-1252)",
                       "Adreskaarten (vCard 4.0)", "Adreskaarten (vCard 3.0)"}),
              Keuzes(Keus("cmbSoort")));
    EXPECT_EQ("Alles staat er als tekst in, dus telefoonnummers en nullen vooraan blijven zoals ze "
              "zijn.",
              Label("lblUitleg"));
    EXPECT_EQ("PK", Exporteer("uit.xlsx").substr(0, 2));
    OpenCsv();
    EXPECT_EQ("Een tekst die een rekenblad voor een formule zou houden, zoals +31 6..., krijgt een "
              "apostrof ervoor.",
              Label("lblUitleg"));
    for (const int soort : {3, 4}) {
        Open();
        KiesUit(Keus("cmbSoort"), soort);
        EXPECT_EQ("Voor het adresboek van een telefoon of mailprogramma. De naam staat er altijd "
                  "op; de volgorde van de kolommen telt niet.",
                  Label("lblUitleg"));
        EXPECT_EQ(soort == 3 ? "BEGIN:VCARD\r\nVERSION:4.0" : "BEGIN:VCARD\r\nVERSION:3.0",
                  Exporteer("uit.vcf").substr(0, 24));
    }
}

TEST_F(frmExportTest, EenTeLangeTekstWordtGezegdMetDeNaam)
{
    administratie.spelers.tabel.ZetCel(3, Kolom::Adres, Tekst(40'000, 'x'));
    Open();
    wachter.Bedien([pad = map.Weg() / "uit.xlsx"](QDialog& dialoog) {
        Vind<QLineEdit>(dialoog, "fileNameEdit")->setText(QString::fromStdString(pad.string()));
        dialoog.accept();
    });
    wachter.Waarschuwing(u"Er is geen rekenblad gemaakt: Cor heeft een tekst van meer dan 32.767 "
                         "tekens, en die past er niet in. Kies een CSV-bestand."_s);
    Opdracht("cmdOK");
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "uit.xlsx"));
}

TEST_F(frmExportTest, EenRegelIsTeVerslepen)
{
    EXPECT_EQ(QAbstractItemView::InternalMove, Kolommen()->dragDropMode());
    for (int i = 0; i < Kolommen()->count(); ++i) // a column dropped on one would take its place
        EXPECT_FALSE(Kolommen()->item(i)->flags().testFlag(Qt::ItemIsDropEnabled));
}

TEST_F(frmExportTest, EenBedorvenGeheugenGeeftElkeKolomEenKeer)
{
    map.Zet("venster.ini", "[Export]\nKolommen=6 6 -6 99 x 0 2\nSoort=weg\n");
    Open();
    EXPECT_EQ("Achternaam Key ", Gekozen());
    EXPECT_EQ(18, Kolommen()->count());
    EXPECT_EQ(0, Keus("cmbSoort")->currentIndex());
    administratie.vensterIni.clear();
    Open();
    EXPECT_EQ(AllesBehalveNr, Gekozen());
}

TEST_F(frmExportTest, ZonderSpelersOfKolommenIsErNietsTeExporteren)
{
    Opdracht("cmdNiets");
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    Opdracht("cmdAlles");
    EXPECT_EQ("Nr " + AllesBehalveNr, Gekozen());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    KiesUit(Keus("cmbWie"), 2);
    EXPECT_EQ("0 spelers", Label("lblAantal"));
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
}

TEST_F(frmExportTest, WieAfzietHoudtZijnBestand)
{
    map.Zet("uit.csv", "oud");
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Opdracht("cmdOK");
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ("oud", map.Inhoud("uit.csv"));
}

/// The system asks before it gives the name of a file that is there.
TEST_F(frmExportTest, EenBestandDatErIsWordtPasNaDeVraagVervangen)
{
    map.Zet("uit.csv", "oud");
    KiesKolommen({u"Key"_s});
    int gevraagd = 0;
    for (const auto antwoord : {QMessageBox::No, QMessageBox::Yes}) {
        wachter.LaatBeslissen([&](const QMessageBox& vraag) {
            ++gevraagd;
            return vraag.button(antwoord)->text().remove(u'&');
        });
        wachter.Bedien([this](QDialog& dialoog) {
            Vind<QLineEdit>(dialoog, "fileNameEdit")
                ->setText(QString::fromStdString((map.Weg() / "uit.csv").string()));
            dialoog.accept();
            if (dialoog.isVisible())
                dialoog.reject();
        });
        Opdracht("cmdOK");
        if (antwoord == QMessageBox::No) {
            EXPECT_EQ("oud", map.Inhoud("uit.csv"));
        }
    }
    EXPECT_EQ(2, gevraagd);
    EXPECT_EQ("\xEF\xBB\xBFKey\r\n100001\r\n100003\r\n100004\r\n", map.Inhoud("uit.csv"));
}

TEST_F(frmExportTest, MisluktHetSchrijvenDanBlijftHetOudeHeel)
{
    map.Zet("uit.csv", "oud");
    schijf.FaalVanaf(1);
    VerwachtBestand("uit.csv", true);
    wachter.Begin(
        u"Er is niets geëxporteerd. Een bestand dat er al stond, is nog heel. Kies een map "
        "waarin u mag schrijven en waar nog ruimte is."_s);
    Opdracht("cmdOK");
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ("oud", map.Inhoud("uit.csv"));
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "venster.ini")) << "er is niets te onthouden";
}

TEST_F(frmExportTest, WieStoptHeeftGeenBestand)
{
    std::vector<Cellen> velen(100'000, Speler("100001", "Gr01-", "An", ""));
    administratie.spelers.tabel = MaakSpelers(velen);
    OpenCsv();
    const Voortgangstopper stopper(2);
    EXPECT_EQ("", Exporteer("uit.csv"));
    EXPECT_GE(stopper.Stappen(), 2);
    EXPECT_TRUE(venster->isVisible());
}
