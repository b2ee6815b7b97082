// The watcher itself: whatever a program does wrong must become a failure, and nothing may hang.
#include "hulp/berichtwachter.h"

#include <QMenu>

#include <gtest/gtest-spi.h>

#include "platform/scherm/berichten.h"

using namespace plexoran;

namespace {

class BerichtwachterTest : public testing::Test {
  protected:
    Berichtwachter wachter;
};

const QString Hallo = u"Hallo"_s;

bool VraagHallo()
{
    return Vraag(nullptr, Hallo);
}

void MeldHallo()
{
    Meld(nullptr, QMessageBox::Information, Hallo);
}

} // namespace

TEST_F(BerichtwachterTest, HetVerwachteBerichtIsGeenFout)
{
    wachter.Informatie(Hallo);
    MeldHallo();
    wachter.Verwacht({.tekst = Hallo, .antwoord = u"Annuleren"_s});
    EXPECT_FALSE(VraagHallo());
    wachter.Verwacht({.tekst = Hallo});
    EXPECT_TRUE(VraagHallo());
}

TEST_F(BerichtwachterTest, EenOnverwachtBerichtGaatOnschuldigDichtEnIsEenFout)
{
    bool antwoord = true;
    EXPECT_NONFATAL_FAILURE(antwoord = VraagHallo(), "onverwacht bericht: Hallo");
    EXPECT_FALSE(antwoord);
    int keus = 0;
    EXPECT_NONFATAL_FAILURE(keus = Kies(nullptr, QMessageBox::Warning, Hallo,
                                        QStringList(u"Doe het"_s) << u"Laat maar"_s),
                            "onverwacht bericht: Hallo");
    EXPECT_EQ(1, keus);
}

TEST_F(BerichtwachterTest, WatNietKomtIsEenFout)
{
    wachter.Informatie(Hallo);
    EXPECT_NONFATAL_FAILURE(wachter.Klaar(), "verwacht, maar niet gekomen: Hallo");
    wachter.Bedien([](QDialog&) {});
    EXPECT_NONFATAL_FAILURE(wachter.Klaar(), "het verwachte venster is niet gekomen");
    wachter.Klaar();
}

TEST_F(BerichtwachterTest, ElkVerschilIsEenFout)
{
    struct Geval {
        QString verwacht;
        QString tekst = Hallo;
        QMessageBox::Icon icoon = QMessageBox::Information;
        QString titel = Programmatitel;
        const char* fout = "de tekst is";
    };
    for (const Geval& geval : {Geval{.verwacht = u"Hallo daar"_s},
                               {.verwacht = Hallo, .tekst = u"Hallo daar"_s},
                               {.verwacht = Hallo, .icoon = QMessageBox::Warning, .fout = "icoon"},
                               {.verwacht = Hallo, .titel = u"Titel"_s, .fout = "de titel is"}}) {
        wachter.Informatie(geval.verwacht);
        EXPECT_NONFATAL_FAILURE(Meld(nullptr, geval.icoon, geval.tekst, geval.titel), geval.fout);
    }
    bool antwoord = false;
    wachter.Informatie(Hallo);
    EXPECT_NONFATAL_FAILURE(antwoord = VraagHallo(), "de rij knoppen is");
    EXPECT_TRUE(antwoord);
    wachter.Verwacht({.tekst = Hallo, .antwoord = u"Misschien"_s});
    EXPECT_NONFATAL_FAILURE(antwoord = VraagHallo(), "geen knop 'Misschien'");
    EXPECT_FALSE(antwoord);
}

TEST_F(BerichtwachterTest, AlleenHetBeginTeltAlsDatGevraagdIs)
{
    wachter.Begin(u"Hal"_s, QMessageBox::Information);
    MeldHallo();
    wachter.Begin(u"Hul"_s, QMessageBox::Information);
    EXPECT_NONFATAL_FAILURE(MeldHallo(), "de tekst is");
}

TEST_F(BerichtwachterTest, DeVolgordeTelt)
{
    wachter.Bedien([](QDialog& dialoog) { dialoog.accept(); });
    EXPECT_NONFATAL_FAILURE(MeldHallo(), "onverwacht bericht: Hallo");
    EXPECT_EQ(QDialog::Accepted, QDialog().exec());
}

TEST_F(BerichtwachterTest, EenBerichtTijdensDeStappenVanEenVenster)
{
    wachter.Bedien([](QDialog& dialoog) {
        Meld(&dialoog, QMessageBox::Information, Hallo);
        dialoog.accept();
    });
    wachter.Informatie(Hallo);
    EXPECT_EQ(QDialog::Accepted, QDialog().exec());
}

/// One that nobody expected, one that its steps leave open, and one in which they strand.
TEST_F(BerichtwachterTest, EenVensterDatOpenBlijftGaatDicht)
{
    using Stappen = std::function<void(QDialog&)>;
    for (const auto& [stappen, fout] :
         {std::pair<Stappen, const char*>({}, "onverwacht venster: diaVreemd"),
          {[](QDialog&) {}, "de stappen lieten het venster open"},
          {[](QDialog&) { throw std::runtime_error("niet gevonden: txt1_99"); },
           "niet gevonden: txt1_99"}}) {
        if (stappen)
            wachter.Bedien(stappen);
        QDialog dialoog;
        dialoog.setObjectName(u"diaVreemd"_s);
        EXPECT_NONFATAL_FAILURE(dialoog.exec(), fout);
        EXPECT_EQ(QDialog::Rejected, dialoog.result());
    }
}

TEST_F(BerichtwachterTest, WatTeLangOpenBlijftGaatDicht)
{
    wachter.ZetGeduld(100);
    QMenu menu;
    menu.addAction(Hallo);
    const QAction* keus = nullptr;
    EXPECT_NONFATAL_FAILURE(keus = menu.exec(), "te lang open: QMenu");
    EXPECT_EQ(nullptr, keus);
}
