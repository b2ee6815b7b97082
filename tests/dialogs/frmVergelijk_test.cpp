#include "dialogs/frmVergelijk.h"

#include "hulp/dialoogproef.h"

using namespace plexoran;

namespace {

Rijvelden Speler(const Tekst& key, const Tekst& voornaam, const Tekst& telef)
{
    Rijvelden velden{"7", key, "Gr01-"};
    velden[Index(Kolom::Voornaam)] = voornaam;
    velden[Index(Kolom::Tusv)] = "de";
    velden[Index(Kolom::Achternaam)] = "Boer";
    velden[Index(Kolom::Telef)] = telef;
    return velden;
}

struct TweeSpelers {
    std::vector<Verschil> verschillen{
        {"100001", Speler("100001", "An", "06-1"), Speler("100001", "Anna", "06-1")},
        {"100002", std::nullopt, Speler("100002", "Bea", "")}};
    Tekst importgroep = "Gr05-";
};

class frmVergelijkTest : public Dialoogproef<frmVergelijk, TweeSpelers> {
  protected:
    frmVergelijkTest()
    {
        Toon(Vergelijking{u"Vergelijk"_s, u"Kies per speler."_s, u"Hier"_s, u"Elders"_s},
             verschillen, importgroep);
    }
    QTreeWidget* Lijst() { return Deel<QTreeWidget>("lstVerschillen"); }
    /// The three columns of every line, a player's fields indented; [x] for what is chosen.
    std::string Regels()
    {
        QStringList regels;
        for (QTreeWidgetItemIterator plek(Lijst()); *plek != nullptr; ++plek) {
            QStringList cellen;
            for (int kolom = 0; kolom < 3; ++kolom) {
                const bool gekozen = (*plek)->data(kolom, Qt::CheckStateRole) == Qt::Checked;
                cellen << (gekozen ? u"[x] "_s : QString()) + (*plek)->text(kolom);
            }
            regels << ((*plek)->parent() != nullptr ? u"  "_s : QString()) + cellen.join(u'|');
        }
        return regels.join(u'\n').toStdString();
    }
    /// The space bar in a column of a player.
    void Spatie(int speler, int kolom)
    {
        Lijst()->setCurrentItem(Lijst()->topLevelItem(speler), kolom);
        QTest::keyClick(Lijst(), Qt::Key_Space);
    }
};

using Keys = std::set<Tekst>;

} // namespace

TEST_F(frmVergelijkTest, ToontPerSpelerWatVerschilt)
{
    VerwachtTeksten("Vergelijk", {{"Label1", "Kies per speler."}},
                    {{"cmdLinks", "Alles: Hier"}, {"cmdRechts", "Alles: Elders"}, {"cmdOK", "OK"}});
    EXPECT_EQ(Regels(), "An de Boer (100001)|Deze|Deze\n"
                        "  Voornaam|An|Anna\n"
                        "Bea de Boer (100002)|Verwijderd|Deze\n"
                        "  Groep||Gr01-\n"
                        "  Voornaam||Bea\n"
                        "  Tusv||de\n"
                        "  Achternaam||Boer");
    EXPECT_EQ(venster->Links(), Keys());
    EXPECT_EQ(venster->Rechts(), Keys());
}

TEST_F(frmVergelijkTest, DeKolommenHetenZoalsInHetRooster)
{
    for (Verschil& verschil : verschillen)
        (*verschil.rechts)[Index(Kolom::NBBgr)] = "A-LIJN";
    verschillen[1].rechts->at(Index(Kolom::Groep)) = "Gr05-DINSDAG";
    Toon(Vergelijking{u"Vergelijk"_s, u"Kies per speler."_s, u"Hier"_s, u"Elders"_s}, verschillen,
         importgroep);
    EXPECT_EQ(Regels(), "An de Boer (100001)|Deze|Deze\n"
                        "  Voornaam|An|Anna\n"
                        "  Subgr||A-LIJN\n"
                        "Bea de Boer (100002)|Verwijderd|Deze\n"
                        "  Groep||Gr05-DINSDAG\n"
                        "  Voornaam||Bea\n"
                        "  Tusv||de\n"
                        "  Achternaam||Boer\n"
                        "  NBBgr||A-LIJN");
}

TEST_F(frmVergelijkTest, VanElkeSpelerHoogstensEenKant)
{
    Spatie(0, 1);
    EXPECT_EQ(venster->Links(), Keys{"100001"});
    Spatie(0, 2);
    EXPECT_EQ(venster->Links(), Keys());
    EXPECT_EQ(venster->Rechts(), Keys{"100001"});
    Spatie(0, 2);
    EXPECT_EQ(venster->Rechts(), Keys()) << "and neither again";
}

TEST_F(frmVergelijkTest, AllesInEens)
{
    Klik(Knop("cmdLinks"));
    EXPECT_EQ(venster->Links(), (Keys{"100001", "100002"}));
    Spatie(1, 2);
    EXPECT_EQ(venster->Links(), Keys{"100001"});
    Klik(Knop("cmdRechts"));
    EXPECT_EQ(venster->Links(), Keys());
    EXPECT_EQ(venster->Rechts(), (Keys{"100001", "100002"}));
    Klik(Knop("cmdOK"));
    EXPECT_EQ(venster->result(), QDialog::Accepted);
}
