// Every window has its chapter in the manual, and a key that opens it there.
#include <QFile>
#include <QMenu>
#include <QTreeWidget>

#include "help/frmHandleiding.h"
#include "hulp/venstergrepen.h"
#include "vensters/rondgang.h"

using namespace plexoran;

using Hulpronde = Rondgangproef;

TEST_F(Hulpronde, ElkVensterHeeftEenHoofdstukEnEenToetsErheen)
{
    Rondgang(QGuiApplication::primaryScreen(), [&](QWidget& venster) {
        if (venster.objectName() == u"frmHandleiding"_s)
            return;
        // These have an explanation of their own at F1.
        const bool eigen = venster.objectName() == u"frmLedenAdmin"_s ||
                           venster.objectName() == u"frmParenOnderhoud"_s;
        for (const auto bij : {Qt::NoModifier, Qt::ShiftModifier}) {
            if (eigen && bij == Qt::NoModifier)
                continue;
            venster.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
            QTest::keyClick(&venster, Qt::Key_F1, bij);
            frmHandleiding* handleiding = nullptr;
            for (QWidget* open : QApplication::topLevelWidgets()) {
                if (auto* deze = qobject_cast<frmHandleiding*>(open); deze && deze->isVisible())
                    handleiding = deze;
            }
            ASSERT_NE(nullptr, handleiding);
            const auto* hoofdstuk =
                Vind<QTreeWidget>(*handleiding, "lstHoofdstukken")->currentItem();
            EXPECT_NE(nullptr, hoofdstuk)
                << "Zet de naam van dit venster in docs/handleiding.md, onder de kop van het "
                   "hoofdstuk dat erover gaat: <!-- naam -->";
            handleiding->close();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    });
}

/// A menu of columns follows the group, and is told of as a whole.
TEST_F(Hulpronde, ElkeOpdrachtVanDeMenusStaatInDeHandleiding)
{
    QFile bestand(u":/docs/handleiding.md"_s);
    ASSERT_TRUE(bestand.open(QIODevice::ReadOnly));
    const QString handleiding = QString::fromUtf8(bestand.readAll());
    std::size_t aantal = 0;
    Rondgang(QGuiApplication::primaryScreen(), [&](const QWidget& venster) {
        if (venster.objectName() != u"frmLedenAdmin"_s)
            return;
        for (const auto* menu : venster.findChildren<QMenu*>()) {
            for (const QAction* actie : menu->actions()) {
                const QString naam = actie->objectName();
                if (actie->isSeparator() || menu->objectName().isEmpty() ||
                    naam.startsWith(u"actKolom_"_s) ||
                    (naam.startsWith(u"actVolgorde_"_s) && naam != u"actVolgorde_0"_s))
                    continue;
                ++aantal;
                const QString rij =
                    u"| **%1** | %2 |"_s.arg(actie->text().remove(u'&').section(u':', 0, 0),
                                             QKeySequence::listToString(actie->shortcuts()));
                EXPECT_TRUE(handleiding.contains(rij))
                    << "Zet in docs/handleiding.md onder 'De menu's' een regel die zo begint:\n"
                    << menu->objectName().toStdString() << ' ' << rij.toStdString();
            }
        }
    });
    EXPECT_GT(aantal, 100U);
}
