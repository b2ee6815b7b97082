// The fields of the entry dialog at work: typing, pasting, leaving, accepting and cancelling.
#include "dialogs/ingaveproef.h"

using namespace plexoran;
using namespace std::string_literals;

namespace {

class diaIngaveVeldenTest : public Ingaveproef {
  protected:
    enum class Weg { Enter, OK, Sluitvak, Annuleren, Escape };
    void Sluit(Weg weg, int veld) const
    {
        if (weg == Weg::Enter)
            Enter(veld);
        else if (weg == Weg::OK)
            KlikOK();
        else if (weg == Weg::Sluitvak)
            venster->close();
        else if (weg == Weg::Annuleren)
            Klik(Deel<QPushButton>("cmdAnnuleren"));
        else
            QTest::keyClick(Vak(veld), Qt::Key_Escape);
        QApplication::processEvents();
    }
};

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
    TypIn(17, u"café"_s);
    Enter(17);
    EXPECT_EQ("CAF\xC9", ingave.IngaveVelden[16]) << "ook zonder verlaten";
}

TEST_F(diaIngaveVeldenTest, HetNummerTyptAlleenCijfersEnHoogstensAcht)
{
    Open();
    TypIn(18, QString());
    Typ(Vak(18), u"1a2b-3 4.5é678,90"_s);
    EXPECT_EQ("12345678", Tekst_(18));
    // Meant: the key is judged by the text as it stands, a selection that it would replace
    // included.
    Vak(18)->selectAll();
    Typ(Vak(18), u"9"_s);
    EXPECT_EQ("12345678", Tekst_(18));
    QTest::keyClick(Vak(18), Qt::Key_End);
    QTest::keyClick(Vak(18), Qt::Key_Backspace);
    QTest::keyClick(Vak(18), Qt::Key_Left);
    QTest::keyClick(Vak(18), Qt::Key_Delete);
    EXPECT_EQ("123456", Tekst_(18));
}

TEST_F(diaIngaveVeldenTest, PlakkenGaatAlsTypen)
{
    Open();
    PlakIn(17, u"nieuwe groep"_s);
    EXPECT_EQ("NIEUWE GROEP", Tekst_(17));
    PlakIn(18, u"nr. 12.345-678 9"_s);
    EXPECT_EQ("12345678", Tekst_(18));
    PlakIn(18, u"abc,def"_s);
    EXPECT_EQ("", Tekst_(18));
    // In the middle of a number what fits with the rest
    Typ(Vak(18), u"123456"_s);
    Vak(18)->setCursorPosition(3);
    QApplication::clipboard()->setText(u"a987b6"_s);
    QTest::keyClick(Vak(18), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("12398456", Tekst_(18));
    const QString lang(64 * 1024, u'x');
    PlakIn(15, lang);
    KlikOK();
    EXPECT_EQ(lang.toStdString(), ingave.IngaveVelden[14]);
}

// ---- Leaving a field --------------------------------------------------------------------------

TEST_F(diaIngaveVeldenTest, EenKommaWordtBijHetVerlatenEenUnderscoreInElkVeld)
{
    Open();
    for (const int veld : {4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}) {
        SCOPED_TRACE(veld);
        TypIn(veld, ab);
        EXPECT_EQ(veld == 17 ? "A,B" : "a,b", Tekst_(veld));
        VerwachtKomma();
        Tab();
        wachter.Klaar();
        EXPECT_EQ(veld == 17 ? "A_B" : "a_b", Tekst_(veld));
    }
    TypIn(4, ab);
    VerwachtKomma();
    Klik(Vak(9), {10, 8}); // leaves it too
    wachter.Klaar();
    EXPECT_EQ("a_b", Tekst_(4));
    EXPECT_EQ(Vak(9), venster->focusWidget());
}

TEST_F(diaIngaveVeldenTest, ElkeWegNaarOKRuimtDeKommaVanHetVeldWaarMenIs)
{
    for (const Weg weg : {Weg::Enter, Weg::OK, Weg::Sluitvak}) {
        Open();
        PlakIn(9, u"Laan 1, 2,3"_s);
        EXPECT_EQ("Laan 1, 2,3", Tekst_(9));
        VerwachtKomma();
        Sluit(weg, 9);
        wachter.Klaar();
        EXPECT_TRUE(Geaccepteerd());
        EXPECT_EQ("Laan 1_ 2_3", ingave.IngaveVelden[8]);
    }
}

/// Neither of a comma nor of a surname that is missing.
TEST_F(diaIngaveVeldenTest, BijAnnulerenKomtErGeenBericht)
{
    for (const Weg weg : {Weg::Annuleren, Weg::Escape}) {
        Open();
        TypIn(6, QString());
        TypIn(9, ab);
        Sluit(weg, 9);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(QDialog::Rejected, venster->result());
        EXPECT_EQ(velden, ingave.IngaveVelden);
    }
}

TEST_F(diaIngaveVeldenTest, EenLozePartnerKrijgtUnderscores)
{
    Open();
    TypIn(6, u"partner x"_s);
    VerwachtPartner();
    Tab();
    wachter.Klaar();
    EXPECT_EQ("partner_x", Tekst_(6));
    // First the message about the comma
    TypIn(6, u"Partner, Jan"_s);
    VerwachtKomma();
    VerwachtPartner();
    Enter(6);
    wachter.Klaar();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ("Partner__Jan", ingave.IngaveVelden[5]);
}

// ---- Accepting and cancelling -----------------------------------------------------------------

/// Meant: the close box is acceptance, with its check; only the button and Escape cancel.
TEST_F(diaIngaveVeldenTest, ZonderAchternaamWordtGeweigerdEnKanMenNogAnnuleren)
{
    for (const auto& [naam, weg] : {std::pair("", Weg::OK), std::pair("    ", Weg::Sluitvak)}) {
        Open();
        TypIn(6, QString::fromLatin1(naam));
        Vak(9)->setFocus();
        VerwachtGeenAchternaam();
        Sluit(weg, 9);
        wachter.Klaar();
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Vak(6), venster->focusWidget());
        EXPECT_EQ("veld6", ingave.IngaveVelden[5]) << "er is niets teruggegeven";

        TypIn(6, u"  Bos"_s);
        Sluit(weg, 9);
        EXPECT_TRUE(Geaccepteerd());
        EXPECT_EQ("  Bos", ingave.IngaveVelden[5]) << "met zijn spaties";
    }
    Open();
    TypIn(6, QString());
    VerwachtGeenAchternaam();
    KlikOK();
    wachter.Klaar();
    Sluit(Weg::Annuleren, 6);
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
    TypIn(15, u"Zoë Œ€ž"_s);
    KlikOK();
    Rijvelden verwacht = velden;
    verwacht[2] = "Gr05-Bondsleden";
    verwacht[3] = " Jan ";
    verwacht[9] = "  ";
    verwacht[14] = "Zo\xEB \x8C\x80\x9E";
    EXPECT_EQ(verwacht, ingave.IngaveVelden);
}

/// A hidden number too, and one that could not be typed.
TEST_F(diaIngaveVeldenTest, EenNummerDatNietTeTypenIsKomtOnveranderdTerug)
{
    for (const Tekst nummer : {"0012\x81z", "12a-3456789"}) {
        velden[17] = nummer;
        OpenGewoneGroep();
        TypIn(4, u"Anders"_s);
        KlikOK();
        EXPECT_EQ(nummer, ingave.IngaveVelden[17]);
        Open();
        KlikOK();
        EXPECT_EQ(nummer, ingave.IngaveVelden[17]);
    }
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

TEST_F(diaIngaveVeldenTest, TekensDieNietKunnenWordenGemeld)
{
    Open();
    wachter.Waarschuwing(
        u"Deze tekens kunnen niet worden opgeslagen.\n\nIn plaats van 'ő' staat er nu 'o'.\n'漢' "
        "is weggelaten.\n\nKijk na of de tekst zo goed is."_s);
    PlakIn(4, u"Erdő 漢ő"_s);
    wachter.Klaar();
    EXPECT_EQ("Erdo o", Tekst_(4));
}
