// Deleting one line and a range, on the sample suite.

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

/// The warning before a deletion, to the letter.
QString LetOp(const QString& vraag)
{
    return u"\t\tLET OP!\r\n\r\nAls u spelers verwijdert die nog voorkomen in bestaande zittingen "
           "dan zal hun naam daarin niet meer verschijnen.\r\nVoor competitie-zittingen betekent "
           "dat ook dat ze niet meer meedoen.\r\n\r\nHet opnieuw invoeren van een speler die per "
           "vergissing is verwijderd heeft alleen zin als men in elke relevante zitting zijn naam "
           "opnieuw ingeeft.\r\n\r\n"_s +
           vraag + u"\r\n\r\n"_s;
}

Bericht Verwijdervraag(const QString& vraag, const QString& antwoord, const QString& spelers)
{
    return {.tekst = LetOp(vraag),
            .antwoord = antwoord,
            .icoon = QMessageBox::Information,
            .titel = u"Verwijderen"_s,
            .knoppen = {u"OK"_s, u"Annuleren"_s},
            .toelichting = spelers};
}

const QString OK = u"OK"_s;
const QString Annuleren = u"Annuleren"_s;
const QString regel3 = u"Weet u zeker dat u regel 3 wilt verwijderen?"_s;
const QString johan = u"1 speler:\nJohan Kuipersma"_s;

class VerwijderTest : public HoofdvensterTest {
  protected:
    /// The lines of the player file without the one of this key, numbered anew.
    static std::string ZonderSleutels(const std::string& bestand,
                                      const std::vector<std::string>& sleutels)
    {
        std::string uit;
        int nr = 0;
        for (const std::string& regel : RegelsVan(bestand)) {
            if (regel.starts_with("HKEY=")) {
                uit += regel + "\r\n";
                continue;
            }
            const auto komma = regel.find(',');
            const std::string sleutel = regel.substr(komma + 1, 6);
            if (std::find(sleutels.begin(), sleutels.end(), sleutel) == sleutels.end())
                uit += std::to_string(++nr) + regel.substr(komma) + "\r\n";
        }
        return uit;
    }
};

} // namespace

TEST_F(VerwijderTest, KnopEnDeleteVerwijderenDeGetoondeRegelNietDeTabelrij)
{
    KiesGroep(2);
    for (const bool metKnop : {true, false}) {
        const std::string oud = suite.Spelers();
        KiesRegel(3);
        const std::string sleutel = GekozenSleutel();
        EXPECT_NE("100003", sleutel);
        wachter.Verwacht(Verwijdervraag(regel3, OK,
                                        metKnop ? u"1 speler:\nGerda Verstegh-Holl"_s
                                                : u"1 speler:\nLies Hoedemakers"_s));
        wachter.Informatie(u"De regel is verwijderd."_s);
        if (metKnop)
            Klik(Knop("cmdVerwijder"));
        else
            Toets(Qt::Key_Delete);
        wachter.Klaar();
        EXPECT_EQ(ZonderSleutels(oud, {sleutel}), suite.Spelers());
        EXPECT_EQ(metKnop ? "Aantal regels: 24" : "Aantal regels: 23", Aantal());
        EXPECT_EQ(0, GekozenRegel());
        EXPECT_EQ(2, GetoondeGroep());
    }
}

TEST_F(VerwijderTest, AnnulerenEscapeEnHetSluitvakVerwijderenNiets)
{
    const std::string oud = suite.Spelers();
    KiesRegel(3);
    for (const QString& antwoord : {Annuleren, Berichtwachter::Escape, Berichtwachter::Sluitvak}) {
        wachter.Verwacht(Verwijdervraag(regel3, antwoord, johan));
        Opdracht("cmdVerwijder");
        EXPECT_EQ(3, GekozenRegel());
    }
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("Aantal regels: 50", Aantal());
}

TEST_F(VerwijderTest, VerwijdertVanTotEnMet)
{
    const std::string oud = suite.Spelers();
    KiesGroep(3);
    std::vector<std::string> sleutels;
    for (const int regel : {4, 5, 6}) {
        KiesRegel(regel);
        sleutels.push_back(GekozenSleutel());
    }
    Keus("cmbVerwVan")->setCurrentIndex(3);
    Keus("cmbVerwTot")->setCurrentIndex(5);
    wachter.Verwacht(
        Verwijdervraag(u"Weet u zeker dat u regel 4 t/m regel 6 wilt verwijderen?"_s, OK,
                       u"3 spelers:\nChloë Blokzijlder\nJesse Nijboersma\nIlse ten Broekhoven"_s));
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ(ZonderSleutels(oud, sleutels), suite.Spelers());
    EXPECT_EQ("Aantal regels: 6", Aantal());
    EXPECT_EQ(3, GetoondeGroep());
    EXPECT_EQ(6, Keus("cmbVerwTot")->count());

    // The rest of the group, which stays shown
    Keus("cmbVerwTot")->setCurrentIndex(5);
    wachter.Verwacht(Verwijdervraag(
        u"Weet u zeker dat u regel 1 t/m regel 6 wilt verwijderen?"_s, OK,
        u"6 spelers:\nSem Kloosterziel\nNoor van Dorremolen\nDaan Leliveldt\nMees de Drieskens\n"
        "Aïcha el Amranouï\nThijs O"_s));
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ("Aantal regels: 0", Aantal());
    EXPECT_EQ(3, GetoondeGroep());
    EXPECT_EQ(139U + 1, RegelsVan(suite.Spelers()).size());
}

TEST_F(VerwijderTest, VanNaTotWordtGeweigerd)
{
    const std::string oud = suite.Spelers();
    KiesGroep(3);
    Keus("cmbVerwVan")->setCurrentIndex(4);
    Keus("cmbVerwTot")->setCurrentIndex(2);
    wachter.Waarschuwing(
        u"Er is niets verwijderd: regel 5 komt na regel 3. Kies bij 'Van regel' de eerste en bij "
        "'T/m regel' de laatste regel."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(VerwijderTest, DeEersteTienSpelersStaanErMetNaamEnHetAantal)
{
    const std::string oud = suite.Spelers();
    Keus("cmbVerwVan")->setCurrentIndex(1);
    Keus("cmbVerwTot")->setCurrentIndex(11);
    QString namen =
        u"11 spelers:\nIneke van der Horst-Blaauw\nJohan Kuipersma\nTrudy Kuipersma-Hol\nGerrit "
        "Jan ten Broekhoven\nZoë Wolthuizen\nCorrie de Bruÿn\nPiet de Bruÿn\nFrançois "
        "Delacourtine\nHennie Müller\nRia van den Eikelenboom\nen nog 1 speler"_s;
    const auto vraagTot = [&](int tot) {
        wachter.Verwacht(
            Verwijdervraag(u"Weet u zeker dat u regel 2 t/m regel %1 wilt verwijderen?"_s.arg(tot),
                           Annuleren, namen));
        Opdracht("cmdVerwijderVT");
    };
    vraagTot(12);
    Keus("cmbVerwTot")->setCurrentIndex(12);
    namen.replace(u"11 s"_s, u"12 s"_s);
    namen.replace(u"1 speler"_s, u"2 spelers"_s);
    vraagTot(13);
    EXPECT_EQ(oud, suite.Spelers());
}

/// The names come from the file: neither markup nor a length that no screen can show.
TEST_F(VerwijderTest, EenNaamIsNooitOpmaakEnMaaktHetVensterNietBreed)
{
    HerstartMet("HKEY=100001\r\n1,100001,Gr01-,<b>Jan</b>,," + std::string(500, 'x') +
                ",,,,,,,M,,,,,\r\n");
    KiesRegel(1);
    wachter.LaatBeslissen([](const QMessageBox& vraag) {
        const auto* label = Vind<QLabel>(vraag, "qt_msgbox_informativelabel");
        EXPECT_EQ(Qt::PlainText, label->textFormat());
        EXPECT_TRUE(label->text().startsWith(u"1 speler:\n<b>Jan</b> xxx"_s));
        EXPECT_LT(vraag.width(), 800);
        return Annuleren;
    });
    Opdracht("cmdVerwijder");
}

/// Meant: a register without players is never written, so the last players come back.
TEST_F(VerwijderTest, DeLaatsteSpelersVanHetRegisterBlijvenInHetBestand)
{
    const std::string oud = "HKEY=100009\r\n1,100001,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n"
                            "2,100002,Gr01-,Piet,,Dam,,,,,,,M,,,,,\r\n";
    HerstartMet(oud);
    Keus("cmbVerwTot")->setCurrentIndex(1);
    wachter.Verwacht(Verwijdervraag(u"Weet u zeker dat u regel 1 t/m regel 2 wilt verwijderen?"_s,
                                    OK, u"2 spelers:\nJan Bos\nPiet Dam"_s));
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    wachter.Informatie(
        u"Een spelerbestand zonder spelers wordt niet opgeslagen. Het houdt zijn laatste inhoud, "
        "en die ziet u nu weer. Voeg eerst een andere speler toe."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("Aantal regels: 2", Aantal());
}
