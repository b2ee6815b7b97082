// Every window by keys alone: no letter stands for two things, and lists copy their line.
#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QMenuBar>

#include "vensters/rondgang.h"

using namespace plexoran;

namespace {

/// The Alt letters of what can be pressed in a window, its menus among them, with who has them.
std::multimap<QString, QString> Altletters(const QWidget& venster)
{
    std::multimap<QString, QString> uit;
    const auto neem = [&](const QString& tekst, const QString& wie) {
        if (const QKeySequence toets = QKeySequence::mnemonic(tekst); !toets.isEmpty())
            uit.emplace(toets.toString(), wie);
    };
    for (const auto* knop : venster.findChildren<QAbstractButton*>())
        neem(knop->text(), knop->objectName());
    for (const auto* label : venster.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr)
            neem(label->text(), label->objectName());
    }
    for (const auto* balk : venster.findChildren<QMenuBar*>()) {
        for (const QAction* menu : balk->actions())
            neem(menu->text(), menu->text());
    }
    return uit;
}

} // namespace

using Sneltoetsen = Rondgangproef;

TEST_F(Sneltoetsen, ElkeLetterStaatInEenVensterVoorEenDing)
{
    std::size_t gezien = 0;
    Rondgang(QGuiApplication::primaryScreen(), [&](const QWidget& venster) {
        const auto letters = Altletters(venster);
        gezien += letters.size();
        for (const auto& [letter, wie] : letters)
            EXPECT_EQ(1U, letters.count(letter))
                << letter.toStdString() << " van " << wie.toStdString();
    });
    EXPECT_GT(gezien, 80U);
}

TEST_F(Sneltoetsen, InEenMenuStaatElkeLetterVoorEenRegel)
{
    Rondgang(QGuiApplication::primaryScreen(), [](const QWidget& venster) {
        for (const auto* menu : venster.findChildren<QMenu*>()) {
            std::set<QString> letters;
            for (const QAction* actie : menu->actions()) {
                const QKeySequence toets = QKeySequence::mnemonic(actie->text());
                EXPECT_TRUE(toets.isEmpty() || letters.insert(toets.toString()).second)
                    << menu->objectName().toStdString() << ": " << actie->text().toStdString();
            }
        }
    });
}

TEST_F(Sneltoetsen, ElkeLijstKopieertHaarRegel)
{
    QStringList gezien;
    Rondgang(QGuiApplication::primaryScreen(), [&](const QWidget& venster) {
        for (auto* actie : venster.findChildren<QAction*>(u"actRegelKopieren"_s)) {
            auto* lijst = qobject_cast<QWidget*>(actie->parent());
            gezien << lijst->objectName();
            // Who was found has a menu of all that can be done with them.
            EXPECT_EQ(lijst->objectName() == u"lstZoek"_s ? Qt::CustomContextMenu
                                                          : Qt::ActionsContextMenu,
                      lijst->contextMenuPolicy());
            auto* regels = qobject_cast<QAbstractItemView*>(lijst);
            if (!lijst->isVisible() || regels == nullptr || regels->model()->rowCount() == 0)
                continue;
            regels->setCurrentIndex(regels->model()->index(0, 0));
            QGuiApplication::clipboard()->clear();
            actie->trigger();
            const QString tekst = QGuiApplication::clipboard()->text();
            EXPECT_FALSE(tekst.isEmpty()) << lijst->objectName().toStdString();
            EXPECT_FALSE(tekst.contains(QString(60, u' '))) << "de sleutel blijft uit het zicht";
        }
    });
    EXPECT_GT(gezien.size(), 12) << gezien.join(u' ').toStdString();
    for (const QString& naam : {u"lstSuites"_s, u"lstN2"_s, u"lstVoorbeeld"_s, u"lstDubbelen"_s})
        EXPECT_TRUE(gezien.contains(naam)) << naam.toStdString();
}
