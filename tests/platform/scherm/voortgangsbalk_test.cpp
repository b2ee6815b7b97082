#include "platform/scherm/voortgangsbalk.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"
#include "platform/scherm/bezigheid.h"

using namespace plexoran;

namespace {

constexpr int Even = 60; // milliseconds: long enough to be shown again

/// Shows these figures at the first moment at which they are taken.
void Toon(Voortgangsbalk& balk, std::size_t gedaan, std::size_t geheel)
{
    QTest::qWait(Even);
    ASSERT_TRUE(balk.Zet(gedaan, geheel));
}

} // namespace

TEST(Voortgangsbalk, ToontNietElkeStap)
{
    Voortgangsbalk balk(QStringLiteral("balk"), nullptr);
    balk.Begin();
    EXPECT_EQ(0, balk.maximum());
    int stappen = 0;
    int getoond = 0;
    while (balk.Duur() < 200) {
        if (balk.Zet(static_cast<std::size_t>(++stappen % 700), 700)) {
            ++getoond;
            EXPECT_EQ(700, balk.maximum());
            EXPECT_EQ(stappen % 700, balk.value());
        }
    }
    EXPECT_GE(getoond, 1);
    EXPECT_LE(getoond, balk.Duur() / 40);
    EXPECT_GT(stappen, getoond);
}

TEST(Voortgangsbalk, ZonderBekendGeheelBeweegtHijAlleen)
{
    Voortgangsbalk balk(QStringLiteral("balk"), nullptr);
    ASSERT_NO_FATAL_FAILURE(Toon(balk, 1, 4));
    ASSERT_NO_FATAL_FAILURE(Toon(balk, 5, 0));
    EXPECT_EQ(0, balk.maximum());
    ASSERT_NO_FATAL_FAILURE(Toon(balk, 3, 4));
    EXPECT_EQ(4, balk.maximum());
    EXPECT_EQ(3, balk.value());
    const auto lang = balk.Duur();
    balk.Begin();
    EXPECT_EQ(0, balk.maximum());
    EXPECT_LT(balk.Duur(), lang);
}

TEST(Voortgangsbalk, MeerDanEenBalkKanTellen)
{
    constexpr std::size_t groot = 400'000'000'000;
    Voortgangsbalk balk(QStringLiteral("balk"), nullptr);
    ASSERT_NO_FATAL_FAILURE(Toon(balk, groot / 4, groot));
    EXPECT_GT(balk.maximum(), 1000);
    EXPECT_NEAR(balk.maximum() / 4.0, balk.value(), 1);
    ASSERT_NO_FATAL_FAILURE(Toon(balk, groot, groot));
    EXPECT_EQ(balk.maximum(), balk.value());
}

TEST(Voortgangsbalk, InRustIsHijVol)
{
    Voortgangsbalk balk(QStringLiteral("balk"), nullptr);
    balk.Rust();
    EXPECT_EQ(1, balk.maximum());
    EXPECT_EQ(1, balk.value());
}

TEST(Bezigheid, DeDelenGaanUitEnDeFocusKomtTerug)
{
    QWidget venster;
    auto* lagen = new QVBoxLayout(&venster);
    auto* eerste = new QPushButton(QStringLiteral("eerste"));
    auto* tweede = new QPushButton(QStringLiteral("tweede"));
    auto* stop = new QPushButton(QStringLiteral("stop"));
    for (QPushButton* knop : {eerste, tweede, stop})
        lagen->addWidget(knop);
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    tweede->setFocus();
    {
        const Bezigheid bezigheid(venster, {eerste, tweede});
        EXPECT_FALSE(eerste->isEnabled());
        EXPECT_FALSE(tweede->isEnabled());
        EXPECT_TRUE(stop->isEnabled());
        EXPECT_FALSE(tweede->hasFocus());
    }
    EXPECT_TRUE(eerste->isEnabled());
    EXPECT_TRUE(tweede->isEnabled());
    EXPECT_TRUE(tweede->hasFocus());
}

/// What had the focus may be gone by then.
TEST(Bezigheid, EenVerdwenenDeelKrijgtDeFocusNiet)
{
    QWidget venster;
    auto* lagen = new QVBoxLayout(&venster);
    auto* blijft = new QPushButton(QStringLiteral("blijft"));
    auto weg = std::make_unique<QPushButton>(QStringLiteral("weg"));
    lagen->addWidget(blijft);
    lagen->addWidget(weg.get());
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    weg->setFocus();
    {
        const Bezigheid bezigheid(venster, {blijft});
        weg.reset();
    }
    EXPECT_TRUE(blijft->isEnabled());
}
