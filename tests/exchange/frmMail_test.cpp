// Mail to players: who has no address, one mail after another, and the clipboard.
#include "exchange/frmMail.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QUrl>

#include "exchange/uitvoerproef.h"
#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"

using namespace plexoran;

namespace {

/// Takes the links that were meant for the mail program of the system.
class Mailvanger : public QObject {
    Q_OBJECT

  public:
    Mailvanger() { QDesktopServices::setUrlHandler(u"mailto"_s, this, "Vang"); }
    ~Mailvanger() override { QDesktopServices::unsetUrlHandler(u"mailto"_s); }

    std::vector<std::string> links;

  public slots:
    void Vang(const QUrl& link) { links.push_back(link.toEncoded().toStdString()); }
};

class frmMailTest : public Dialoogproef<frmMail, Geheugenstand> {
  protected:
    void Open(const std::vector<Tekst>& adressen)
    {
        std::vector<Cellen> spelers;
        std::vector<int> rijen;
        for (const Tekst& adres : adressen) {
            spelers.push_back({{Kolom::Achternaam, "Bos" + std::to_string(spelers.size() + 1)},
                               {Kolom::Email, adres}});
            rijen.push_back(static_cast<int>(spelers.size()));
        }
        administratie.spelers.tabel = MaakSpelers(spelers);
        Toon(administratie, rijen);
    }
    /// So many addresses that differ.
    static std::vector<Tekst> Velen(int aantal)
    {
        std::vector<Tekst> uit;
        for (int i = 1; i <= aantal; ++i)
            uit.push_back("a" + std::to_string(i) + "@x.nl");
        return uit;
    }

    Mailvanger vanger;
};

} // namespace

TEST_F(frmMailTest, DeOpschriften)
{
    Open({"jan@x.nl", "", "JAN@x.nl", "an@x", "bea@x.nl"});
    VerwachtTeksten(
        "E-mail aan deze spelers",
        {{"lblAantal", "2 verschillende adressen van 3 spelers"},
         {"lblZonder", "Zonder bruikbaar adres: 2"},
         {"lblPortie", "Adressen per mail, hoogstens:"},
         {"lblTeken", "Ertussen:"},
         {"lblGedaan", ""}},
        {{"cmdMail", "Open de mail"},
         {"cmdKopieer", "Alle adressen kopiëren"},
         {"cmdEinde", "Terug"}},
        {{"Frame1", "Naar het mailprogramma"}, {"Frame2", "Om in een mail te plakken"}});
    EXPECT_EQ((std::vector<std::string>{"Bos2: (geen)", "Bos4: an@x"}), Regels("lstZonder"));
    EXPECT_EQ((std::vector<std::string>{"10", "25", "50", "100"}),
              Keuzes(Deel<QComboBox>("cmbPortie")));
    EXPECT_EQ("50", Deel<QComboBox>("cmbPortie")->currentText().toStdString());
}

TEST_F(frmMailTest, DeTabtoetsVolgtHetOog)
{
    Open({"jan@x.nl"});
    EXPECT_EQ("cmbTeken cmdKopieer cmdEinde lstZonder cmbPortie cmdMail ", MetTab(6));
}

TEST_F(frmMailTest, EenMailMetAllenInDeBcc)
{
    Open({"jan@x.nl", "an+b@x.nl"});
    Opdracht("cmdMail");
    EXPECT_EQ(std::vector<std::string>{"mailto:?bcc=jan@x.nl,an%2Bb@x.nl"}, vanger.links);
    EXPECT_EQ("Mail 1 van 1 is geopend, met 2 adressen. Verstuur die in het mailprogramma.",
              Label("lblGedaan"));
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(frmMailTest, EenMailNaDeAnder)
{
    Open(Velen(51));
    EXPECT_EQ("Open mail 1 van 2", Opschrift(Knop("cmdMail")));
    Opdracht("cmdMail");
    EXPECT_EQ("Open mail 2 van 2", Opschrift(Knop("cmdMail")));
    Opdracht("cmdMail");
    ASSERT_EQ(2U, vanger.links.size());
    EXPECT_EQ("mailto:?bcc=a51@x.nl", vanger.links[1]);
    EXPECT_EQ("Mail 2 van 2 is geopend, met 1 adres. Verstuur die in het mailprogramma.",
              Label("lblGedaan"));
    EXPECT_EQ("Open mail 1 van 2", Opschrift(Knop("cmdMail"))); // again from the first
}

TEST_F(frmMailTest, EenAnderePortieBegintOpnieuw)
{
    Open(Velen(51));
    Opdracht("cmdMail");
    KiesUit(Deel<QComboBox>("cmbPortie"), 1);
    EXPECT_EQ("Open mail 1 van 3", Opschrift(Knop("cmdMail")));
    EXPECT_EQ("", Label("lblGedaan"));
    KiesUit(Deel<QComboBox>("cmbPortie"), 3);
    EXPECT_EQ("Open de mail", Opschrift(Knop("cmdMail")));
}

TEST_F(frmMailTest, ZonderMailprogrammaBlijftHetKlembord)
{
    Open(Velen(51));
    QDesktopServices::unsetUrlHandler(u"mailto"_s);
    wachter.Waarschuwing(
        u"Het mailprogramma kon niet worden geopend. Er is niets verstuurd. Kopieer de "
        "adressen en plak ze in een nieuwe mail, in het vak BCC."_s);
    Opdracht("cmdMail");
    EXPECT_EQ("Open mail 1 van 2", Opschrift(Knop("cmdMail")));
}

TEST_F(frmMailTest, AlleAdressenOpHetKlembord)
{
    Open({"jan@x.nl", "", "JAN@x.nl", "ren\xE9@x.nl"});
    Opdracht("cmdKopieer");
    EXPECT_EQ("jan@x.nl, ren\xC3\xA9@x.nl", QGuiApplication::clipboard()->text().toStdString());
    EXPECT_EQ("De adressen zijn gekopieerd. Plak ze in het vak BCC.", Label("lblGedaan"));
    KiesUit(Deel<QComboBox>("cmbTeken"), 1);
    Opdracht("cmdKopieer");
    EXPECT_EQ("jan@x.nl; ren\xC3\xA9@x.nl", QGuiApplication::clipboard()->text().toStdString());
}

TEST_F(frmMailTest, ZonderAdressenIsErNietsTeMailen)
{
    Open({"", "x"});
    EXPECT_EQ("0 verschillende adressen van 0 spelers", Label("lblAantal"));
    EXPECT_FALSE(Knop("cmdMail")->isEnabled());
    EXPECT_FALSE(Knop("cmdKopieer")->isEnabled());
    EXPECT_EQ(2U, Regels("lstZonder").size());
}

#include "frmMail_test.moc"
