// The watcher itself: whatever a program does wrong must become a failure, and nothing may hang.
#include "hulp/berichtwachter.h"

#include <QApplication>
#include <QMenu>

#include <gtest/gtest.h>

#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

using namespace plexoran;

namespace {

class BerichtwachterTest : public testing::Test {
  protected:
    BerichtwachterTest() { wachter.VangFouten(&fouten); }

    void VerwachtFout(const char* begin)
    {
        ASSERT_EQ(1, fouten.size()) << fouten.join(u'\n').toStdString();
        EXPECT_TRUE(fouten.constFirst().startsWith(QString::fromUtf8(begin)))
            << fouten.constFirst().toStdString();
        fouten.clear();
    }

    QStringList fouten;
    Berichtwachter wachter;
};

const QString Hallo = u"Hallo"_s;

} // namespace

TEST_F(BerichtwachterTest, HetVerwachteBerichtIsGeenFout)
{
    wachter.Informatie(Hallo);
    Meld(nullptr, QMessageBox::Information, Hallo);
    wachter.Verwacht({.tekst = Hallo, .antwoord = u"Annuleren"_s});
    EXPECT_FALSE(Vraag(nullptr, QMessageBox::Information, Hallo));
    wachter.Verwacht({.tekst = Hallo});
    EXPECT_TRUE(Vraag(nullptr, QMessageBox::Information, Hallo));
    wachter.Klaar();
    EXPECT_EQ(QStringList(), fouten);
}

TEST_F(BerichtwachterTest, EenOnverwachtBerichtGaatOnschuldigDichtEnIsEenFout)
{
    EXPECT_FALSE(Vraag(nullptr, QMessageBox::Information, Hallo));
    VerwachtFout("onverwacht bericht: Hallo");
    EXPECT_EQ(1, Kies(nullptr, QMessageBox::Warning, Hallo, {u"Doe het"_s, u"Laat maar"_s}));
    VerwachtFout("onverwacht bericht: Hallo");
}

TEST_F(BerichtwachterTest, WatNietKomtIsEenFout)
{
    wachter.Informatie(Hallo);
    wachter.Klaar();
    VerwachtFout("verwacht, maar niet gekomen: Hallo");
    wachter.Bedien([](QDialog&) {});
    wachter.Klaar();
    VerwachtFout("het verwachte venster is niet gekomen");
    wachter.Klaar();
    EXPECT_EQ(QStringList(), fouten);
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
        Meld(nullptr, geval.icoon, geval.tekst, geval.titel);
        VerwachtFout(geval.fout);
    }
    wachter.Informatie(Hallo);
    EXPECT_TRUE(Vraag(nullptr, QMessageBox::Information, Hallo));
    VerwachtFout("de rij knoppen is");
    wachter.Verwacht({.tekst = Hallo, .antwoord = u"Misschien"_s});
    EXPECT_FALSE(Vraag(nullptr, QMessageBox::Information, Hallo));
    VerwachtFout("geen knop 'Misschien'");
}

TEST_F(BerichtwachterTest, AlleenHetBeginTeltAlsDatGevraagdIs)
{
    wachter.Verwacht({.tekst = u"Hal"_s, .alleenBegin = true});
    Meld(nullptr, QMessageBox::Information, Hallo);
    EXPECT_EQ(QStringList(), fouten);
    wachter.Verwacht({.tekst = u"Hul"_s, .alleenBegin = true});
    Meld(nullptr, QMessageBox::Information, Hallo);
    VerwachtFout("de tekst is");
}

TEST_F(BerichtwachterTest, DeVolgordeTelt)
{
    wachter.Bedien([](QDialog& dialoog) { dialoog.accept(); });
    Meld(nullptr, QMessageBox::Information, Hallo);
    VerwachtFout("onverwacht bericht: Hallo");
    QDialog dialoog;
    EXPECT_EQ(QDialog::Accepted, dialoog.exec());
    EXPECT_EQ(QStringList(), fouten);
}

TEST_F(BerichtwachterTest, EenBerichtTijdensDeStappenVanEenVenster)
{
    wachter.Bedien([](QDialog& dialoog) {
        Meld(&dialoog, QMessageBox::Information, Hallo);
        dialoog.accept();
    });
    wachter.Informatie(Hallo);
    QDialog dialoog;
    EXPECT_EQ(QDialog::Accepted, dialoog.exec());
    wachter.Klaar();
    EXPECT_EQ(QStringList(), fouten);
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
        EXPECT_EQ(QDialog::Rejected, dialoog.exec());
        VerwachtFout(fout);
    }
}

TEST_F(BerichtwachterTest, WatTeLangOpenBlijftGaatDicht)
{
    wachter.ZetGeduld(100);
    QMenu menu;
    menu.addAction(Hallo);
    EXPECT_EQ(nullptr, menu.exec());
    VerwachtFout("te lang open: QMenu");
}
