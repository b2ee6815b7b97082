// Every window has its chapter in the manual, and a key that opens it there.
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
