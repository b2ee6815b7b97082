#include "federation/diaRekProgkeus.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"

namespace plexoran {
namespace {

TEST(DiaRekProgkeus, ToontZijnTekstenZonderKeus)
{
    const diaRekProgkeus venster(nullptr);
    EXPECT_EQ(venster.windowTitle(), "Maak een keus");
    EXPECT_EQ(Vind<QLabel>(venster, "Label1")->text(),
              "Op deze computer zijn 2 Rekenprogramma's aangetroffen.");
    EXPECT_EQ(Vind<QLabel>(venster, "Label2")->text(), "Maak een keus");
    EXPECT_EQ(Opschrift(Vind<QRadioButton>(venster, "Option1")), "NBB-Rekenprogamma");
    EXPECT_EQ(Opschrift(Vind<QRadioButton>(venster, "Option2")), "Bridge-It");
    EXPECT_EQ(Vind<QRadioButton>(venster, "Option1")->parentWidget(),
              Vind<QGroupBox>(venster, "Frame1"));
    EXPECT_FALSE(Vind<QPushButton>(venster, "cmdOK")->isEnabled());
    EXPECT_EQ(venster.Antwoord(), Programma::Geen);
}

/// OK, which a choice makes usable, is one way to close it among others.
TEST(DiaRekProgkeus, EenKeusStaatHoeHetVensterOokSluit)
{
    for (const auto& [optie, programma] :
         {std::pair<const char*, Programma>(nullptr, Programma::Geen),
          {"Option1", Programma::NBBR},
          {"Option2", Programma::BridgeIt}}) {
        for (const char* weg : {"OK", "Escape", "sluitvak"}) {
            SCOPED_TRACE(weg);
            diaRekProgkeus venster(nullptr);
            venster.show();
            if (optie != nullptr)
                Vind<QRadioButton>(venster, optie)->click();
            auto* cmdOK = Vind<QPushButton>(venster, "cmdOK");
            EXPECT_EQ(optie != nullptr, cmdOK->isEnabled());
            if (weg == Tekstblik("OK") && optie != nullptr)
                cmdOK->click();
            else if (weg == Tekstblik("Escape"))
                QTest::keyClick(&venster, Qt::Key_Escape);
            else
                venster.close();
            EXPECT_FALSE(venster.isVisible());
            EXPECT_EQ(venster.Antwoord(), programma);
        }
    }
}

} // namespace
} // namespace plexoran
