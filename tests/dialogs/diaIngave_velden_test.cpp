// The fields of the entry dialog at work: typing, pasting, leaving, accepting and cancelling.
#include "dialogs/ingaveproef.h"

using namespace plexoran;
using namespace std::string_literals;

namespace {

class diaIngaveVeldenTest : public Ingaveproef {};

const QString ab = u"a,b"_s;

} // namespace

// ---- Per key ----------------------------------------------------------------------------------

TEST_F(diaIngaveVeldenTest, DeSubgroepTyptHoofdletters)
{
    Open();
    TypIn(17, u"c-lijn 2é"_s);
    EXPECT_EQ("C-LIJN 2é", Tekst_(17)) << "een accent pas bij het verlaten";
    Tab();
    EXPECT_EQ("C-LIJN 2É", Tekst_(17));
}

TEST_F(diaIngaveVeldenTest, HetNummerTyptAlleenCijfersEnHoogstensAcht)
{
    Open();
    TypIn(18, QString());
    Typ(Vak(18), u"1a2b-3 4.5é678,90"_s);
    EXPECT_EQ("12345678", Tekst_(18));
    QTest::keyClick(Vak(18), Qt::Key_Backspace);
    EXPECT_EQ("1234567", Tekst_(18));
    QTest::keyClick(Vak(18), Qt::Key_Left);
    QTest::keyClick(Vak(18), Qt::Key_Delete);
    EXPECT_EQ("123456", Tekst_(18));
}

/// Meant: the key is judged by the text as it stands, a selection that it would replace included.
TEST_F(diaIngaveVeldenTest, BijAchtCijfersWordtOokOverEenSelectieNietsGetypt)
{
    velden[17] = "12345678";
    Open();
    Vak(18)->setFocus();
    Vak(18)->selectAll();
    Typ(Vak(18), u"9"_s);
    EXPECT_EQ("12345678", Tekst_(18));
}

TEST_F(diaIngaveVeldenTest, PlakkenInDeSubgroepGeeftHoofdletters)
{
    Open();
    PlakIn(17, u"nieuwe groep"_s);
    EXPECT_EQ("NIEUWE GROEP", Tekst_(17));
}

TEST_F(diaIngaveVeldenTest, PlakkenInHetNummerHoudtDeCijfersDiePassen)
{
    Open();
    PlakIn(18, u"nr. 12.345-678 9"_s);
    EXPECT_EQ("12345678", Tekst_(18));
    PlakIn(18, u"abc,def"_s);
    EXPECT_EQ("", Tekst_(18));
}

TEST_F(diaIngaveVeldenTest, PlakkenInHetMiddenVanHetNummerPastOpDeRest)
{
    velden[17] = "123456";
    Open();
    Vak(18)->setFocus();
    Vak(18)->setCursorPosition(3);
    QApplication::clipboard()->setText(u"a987b6"_s);
    QTest::keyClick(Vak(18), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("12398456", Tekst_(18));
}

TEST_F(diaIngaveVeldenTest, EenBewaardNummerMetLettersBlijftTotMenHetWijzigt)
{
    velden[17] = "12a-3456789";
    Open();
    EXPECT_EQ("12a-3456789", Tekst_(18));
    KlikOK();
    EXPECT_EQ("12a-3456789", ingave.IngaveVelden[17]);
}

// ---- Leaving a field --------------------------------------------------------------------------

TEST_F(diaIngaveVeldenTest, EenKommaWordtBijHetVerlatenEenUnderscoreInElkVeld)
{
    Open();
    for (const int veld : {4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16}) {
        SCOPED_TRACE(veld);
        TypIn(veld, ab);
        EXPECT_EQ("a,b", Tekst_(veld));
        VerwachtKomma();
        Tab();
        wachter.Klaar();
        EXPECT_EQ("a_b", Tekst_(veld));
    }
    TypIn(17, ab);
    VerwachtKomma();
    Tab();
    EXPECT_EQ("A_B", Tekst_(17));
    TypIn(13, u","_s);
    VerwachtKomma();
    Tab();
    EXPECT_EQ("_", Tekst_(13));
}

TEST_F(diaIngaveVeldenTest, EenKlikOpEenAnderVeldIsOokVerlaten)
{
    Open();
    TypIn(4, ab);
    VerwachtKomma();
    Klik(Vak(9), {10, 8});
    wachter.Klaar();
    EXPECT_EQ("a_b", Tekst_(4));
    EXPECT_EQ(Vak(9), venster->focusWidget());
}

TEST_F(diaIngaveVeldenTest, EenGeplakteKommaGaatDezelfdeWeg)
{
    Open();
    PlakIn(9, u"Laan 1, 2,3"_s);
    EXPECT_EQ("Laan 1, 2,3", Tekst_(9));
    VerwachtKomma();
    Enter(9);
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("Laan 1_ 2_3", ingave.IngaveVelden[8]);
}

TEST_F(diaIngaveVeldenTest, EnterRuimtDeKommaVanHetVeldWaarMenIs)
{
    Open();
    TypIn(9, ab);
    VerwachtKomma();
    Enter(9);
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("a_b", ingave.IngaveVelden[8]);
}

TEST_F(diaIngaveVeldenTest, HetSluitvakRuimtDeKommaOok)
{
    Open();
    TypIn(9, ab);
    VerwachtKomma();
    EXPECT_TRUE(venster->close());
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("a_b", ingave.IngaveVelden[8]);
}

TEST_F(diaIngaveVeldenTest, DeKnopOKRuimtDeKommaOok)
{
    Open();
    TypIn(9, ab);
    VerwachtKomma();
    KlikOK();
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("a_b", ingave.IngaveVelden[8]);
}

TEST_F(diaIngaveVeldenTest, BijAnnulerenKomtErGeenBericht)
{
    for (int weg = 0; weg < 2; ++weg) {
        Open();
        TypIn(9, ab);
        if (weg == 0)
            Klik(Deel<QPushButton>("cmdAnnuleren"));
        else
            QTest::keyClick(Vak(9), Qt::Key_Escape);
        QApplication::processEvents();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(QDialog::Rejected, venster->result());
    }
}

TEST_F(diaIngaveVeldenTest, EenLozePartnerKrijgtUnderscores)
{
    Open();
    for (const auto& [getypt, wordt] :
         {std::pair("Partner Jan", "Partner_Jan"), std::pair("partner x", "partner_x")}) {
        TypIn(6, QString::fromLatin1(getypt));
        VerwachtPartner();
        Tab();
        wachter.Klaar();
        EXPECT_EQ(wordt, Tekst_(6));
    }
    TypIn(6, u"Jan Partner"_s);
    Tab();
    EXPECT_EQ("Jan Partner", Tekst_(6));
    TypIn(4, u"Partner Jan"_s);
    Tab();
    EXPECT_EQ("Partner Jan", Tekst_(4));
}

TEST_F(diaIngaveVeldenTest, EerstHetBerichtVanDeKommaDanDatVanDePartner)
{
    Open();
    TypIn(6, u"Partner, Jan"_s);
    VerwachtKomma();
    VerwachtPartner();
    Enter(6);
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("Partner__Jan", ingave.IngaveVelden[5]);
}

TEST_F(diaIngaveVeldenTest, EenSubgroepMetAccentIsOokZonderVerlatenInHoofdletters)
{
    Open();
    TypIn(17, u"café"_s);
    Enter(17);
    EXPECT_EQ("CAF\xC9", ingave.IngaveVelden[16]);
}

// ---- Accepting and cancelling -----------------------------------------------------------------

TEST_F(diaIngaveVeldenTest, ZonderAchternaamWordtGeweigerd)
{
    for (const char* naam : {"", "    "}) {
        Open();
        TypIn(6, QString::fromLatin1(naam));
        Vak(9)->setFocus();
        VerwachtGeenAchternaam();
        KlikOK();
        wachter.Klaar();
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Vak(6), venster->focusWidget());
        EXPECT_EQ("veld6", ingave.IngaveVelden[5]) << "er is niets teruggegeven";

        TypIn(6, u"  Bos"_s);
        KlikOK();
        EXPECT_TRUE(Geaccepteerd());
        EXPECT_EQ("  Bos", ingave.IngaveVelden[5]) << "met zijn spaties";
    }
}

/// Meant: the close box is acceptance, with its check; only the button and Escape cancel.
TEST_F(diaIngaveVeldenTest, HetSluitvakIsAccepterenMetDeControle)
{
    Open();
    TypIn(4, u"Anders"_s);
    EXPECT_TRUE(venster->close());
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("Anders", ingave.IngaveVelden[3]);

    Open();
    TypIn(6, QString());
    VerwachtGeenAchternaam();
    EXPECT_FALSE(venster->close());
    wachter.Klaar();
    EXPECT_TRUE(IsOpen());
}

TEST_F(diaIngaveVeldenTest, AnnulerenEnEscapeSlaanDeControleOver)
{
    for (int weg = 0; weg < 2; ++weg) {
        Open();
        TypIn(6, QString());
        if (weg == 0)
            Klik(Deel<QPushButton>("cmdAnnuleren"));
        else
            QTest::keyClick(Vak(6), Qt::Key_Escape);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(QDialog::Rejected, venster->result());
        EXPECT_EQ(velden, ingave.IngaveVelden);
    }
}

TEST_F(diaIngaveVeldenTest, NaEenWeigeringKanMenNogAnnuleren)
{
    Open();
    TypIn(6, QString());
    VerwachtGeenAchternaam();
    KlikOK();
    wachter.Klaar();
    Klik(Deel<QPushButton>("cmdAnnuleren"));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(QDialog::Rejected, venster->result());
}

TEST_F(diaIngaveVeldenTest, EnterInElkVeldAccepteert)
{
    for (const int veld : {4, 13, 18}) {
        Open();
        Enter(veld);
        EXPECT_TRUE(Geaccepteerd()) << veld;
    }
}

/// Meant: field 3 hands back the whole text of the group list.
TEST_F(diaIngaveVeldenTest, AlleVeldenKomenTerugOngetrimd)
{
    Open();
    TypIn(4, u" Jan "_s);
    TypIn(10, u"  "_s);
    KlikOK();
    Rijvelden verwacht = velden;
    verwacht[2] = "Gr05-Bondsleden";
    verwacht[3] = " Jan ";
    verwacht[9] = "  ";
    EXPECT_EQ(verwacht, ingave.IngaveVelden);
}

TEST_F(diaIngaveVeldenTest, HetVerborgenNummerKomtOnveranderdTerug)
{
    velden[17] = "0012\x81z";
    OpenGewoneGroep();
    TypIn(4, u"Anders"_s);
    KlikOK();
    EXPECT_EQ("0012\x81z", ingave.IngaveVelden[17]);
}

TEST_F(diaIngaveVeldenTest, EenNieuweSpelerOpentLeegOpHetGeslachtNa)
{
    velden = {};
    Open("Gr02-Avond", false, "Aanmaken");
    for (int veld = 4; veld <= 18; ++veld)
        EXPECT_EQ(veld == 13 ? "M" : "", Tekst_(veld)) << veld;
    TypIn(6, u"Bos"_s);
    KlikOK();
    Rijvelden verwacht;
    verwacht[2] = "Gr02-Avond";
    verwacht[5] = "Bos";
    verwacht[12] = "M";
    EXPECT_EQ(verwacht, ingave.IngaveVelden);
}

// ---- Bytes ------------------------------------------------------------------------------------

TEST_F(diaIngaveVeldenTest, WatMenNietAanraaktKomtTotOpDeByteTerug)
{
    Tekst alles;
    for (int code = 0; code < 256; ++code)
        if (code != ',' && code != '\r' && code != '\n')
            alles += static_cast<char>(code);
    velden = {};
    for (const int veld : {4, 5, 7, 8, 9, 10, 11, 12, 14, 15, 16})
        velden[static_cast<std::size_t>(veld - 1)] = alles;
    velden[5] = "\x81\x8D\x8F\x90\x9D\t\x00\x7F \xA0"s;
    velden[12] = "\x8F";
    velden[13] = Tekst(64 * 1024, '\x90');
    velden[14] = Tekst(64 * 1024, 'x') + "\t\x01";
    velden[16] = "A\x81\x01";
    velden[17] = "\x9D\x02z";
    for (const bool importgroep : {true, false}) {
        Open("Gr05-X", importgroep);
        TypIn(4, u"Jan"_s);
        Tab();
        KlikOK();
        Rijvelden verwacht = velden;
        verwacht[2] = "Gr05-X";
        verwacht[3] = "Jan";
        EXPECT_TRUE(Geaccepteerd());
        EXPECT_EQ(verwacht, ingave.IngaveVelden);
    }
}

TEST_F(diaIngaveVeldenTest, EenGeplakteTekstVan64KBBlijftHeel)
{
    Open();
    const QString lang(64 * 1024, u'x');
    PlakIn(15, lang);
    KlikOK();
    EXPECT_EQ(lang.toStdString(), ingave.IngaveVelden[14]);
}

TEST_F(diaIngaveVeldenTest, AccentenEnHetEuroteken)
{
    Open();
    TypIn(4, u"Zoë Œ€ž"_s);
    KlikOK();
    EXPECT_EQ("Zo\xEB \x8C\x80\x9E", ingave.IngaveVelden[3]);
}

TEST_F(diaIngaveVeldenTest, EenGetyptTekenDatNietKanWordtVervangenEnGemeld)
{
    Open();
    wachter.Waarschuwing(
        u"Dit teken kan niet worden opgeslagen.\n\nIn plaats van 'ő' staat er nu 'o'.\n\nKijk na "
        "of de tekst zo goed is."_s);
    TypIn(4, u"Erdő"_s);
    wachter.Klaar();
    EXPECT_EQ("Erdo", Tekst_(4));
}

TEST_F(diaIngaveVeldenTest, EenGetyptTekenZonderLetterDieErOpLijktWordtGeweigerdEnGemeld)
{
    Open();
    for (const int veld : {4, 17}) {
        TypIn(veld, QString());
        wachter.Waarschuwing(
            u"Dit teken kan niet worden opgeslagen.\n\n'漢' is weggelaten.\n\nKijk na of de tekst "
            "zo goed is."_s);
        Typ(Vak(veld), u"漢"_s);
        QApplication::processEvents();
        wachter.Klaar();
        EXPECT_EQ("", Tekst_(veld));
    }
}

TEST_F(diaIngaveVeldenTest, GeplakteTekensDieNietKunnenWordenGemeld)
{
    Open();
    wachter.Waarschuwing(
        u"Deze tekens kunnen niet worden opgeslagen.\n\nIn plaats van 'ő' staat er nu 'o'.\n'漢' "
        "is weggelaten.\n\nKijk na of de tekst zo goed is."_s);
    PlakIn(4, u"Erdő 漢ő"_s);
    wachter.Klaar();
    EXPECT_EQ("Erdo o", Tekst_(4));
}
