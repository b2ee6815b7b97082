// Every window stands wholly on a small screen, also with large letters, and all of it can be
// reached.
#include <QLineEdit>
#include <QScreen>
#include <QTimer>

#include "vensters/rondgang.h"

using namespace plexoran;

namespace {

/// The display must have its screens before the program is there. A relative path, because the
/// setting is divided at colons.
const bool schermen = [] {
    std::filesystem::current_path(GEGEVENS);
    return qputenv("QT_QPA_PLATFORM", "offscreen:configfile=schermen.json");
}();

struct Opstelling {
    const char* scherm;
    double punten;
};

/// Names the tests: their bytes, pointers among them, would differ from build to build.
void PrintTo(const Opstelling& opstelling, std::ostream* uit)
{
    *uit << opstelling.scherm << " met " << opstelling.punten << " punten";
}

class SchermmaatTest : public Rondgangproef, public testing::WithParamInterface<Opstelling> {
  protected:
    [[nodiscard]] static QScreen* Scherm()
    {
        for (QScreen* scherm : QGuiApplication::screens()) {
            if (scherm->name() == QLatin1String(GetParam().scherm))
                return scherm;
        }
        return nullptr;
    }

    static void ZetLetter()
    {
        QFont letter = QApplication::font();
        letter.setPointSizeF(GetParam().punten);
        QApplication::setFont(letter);
    }
};

/// Those that scroll with the grid or with the names of the groups have been there before.
bool WordtGeschoven(const QWidget& deel)
{
    return deel.objectName().startsWith("cmd_"_L1) || deel.parentWidget()->objectName() == "P1"_L1;
}

void VerwachtBereikbaar(QWidget& deel)
{
    for (QWidget* om = deel.parentWidget(); !om->isWindow(); om = om->parentWidget()) {
        if (auto* blad = qobject_cast<QScrollArea*>(om))
            blad->ensureWidgetVisible(&deel);
    }
    QApplication::processEvents();
    // What is wider than the screen scrolls; half a screen of it is enough to know and to press it.
    const QSize gezien = deel.visibleRegion().boundingRect().size();
    EXPECT_EQ(deel.height(), gezien.height()) << deel.objectName().toStdString();
    EXPECT_GE(gezien.width(), std::min(deel.width(), deel.screen()->size().width() / 2))
        << deel.objectName().toStdString();
    const bool plaatje = deel.inherits("QToolButton"); // the cross in a text box
    EXPECT_TRUE(plaatje || deel.height() >= deel.fontMetrics().height())
        << deel.objectName().toStdString();
    const auto* knop = qobject_cast<QPushButton*>(&deel);
    const bool eigenMaat = deel.sizePolicy().horizontalPolicy() != QSizePolicy::Ignored &&
                           deel.objectName() != "cmdH_1"_L1; // stands in its row
    if (knop != nullptr && eigenMaat) {
        const int minst = deel.minimumWidth(); // where the standard one would be too much
        EXPECT_GE(deel.width(), minst > 0 ? minst : deel.minimumSizeHint().width())
            << deel.objectName().toStdString();
    }
}

} // namespace

TEST_P(SchermmaatTest, ElkVensterStaatErHelemaalOp)
{
    ASSERT_NE(nullptr, Scherm());
    ZetLetter();
    Rondgang(Scherm(), [](const QWidget& venster) {
        const QRect kader = venster.frameGeometry();
        EXPECT_TRUE(Scherm()->availableGeometry().contains(kader))
            << kader.x() << ',' << kader.y() << ' ' << kader.width() << 'x' << kader.height();
        const bool hoofd = venster.objectName() == "frmLedenAdmin"_L1;
        if (const auto* blad = venster.findChild<QScrollArea*>(u"schuifblad"_s);
            blad != nullptr && hoofd && GetParam().punten == 9) {
            EXPECT_EQ(0, blad->horizontalScrollBar()->maximum());
        }
        for (QWidget* deel : venster.findChildren<QWidget*>()) {
            const bool bediening = qobject_cast<QAbstractButton*>(deel) != nullptr ||
                                   qobject_cast<QComboBox*>(deel) != nullptr ||
                                   qobject_cast<QLineEdit*>(deel) != nullptr;
            if (bediening && deel->isVisible() && !WordtGeschoven(*deel))
                VerwachtBereikbaar(*deel);
        }
    });
}

TEST_P(SchermmaatTest, EenLangBerichtHeeftZijnKnoppenInBeeld)
{
    ZetLetter();
    const QString regels = u"Een regel van een bericht.\n"_s.repeated(80);
    QMessageBox* bericht = nullptr;
    QTimer::singleShot(0, [&] {
        bericht = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, bericht);
        QApplication::processEvents();
        EXPECT_TRUE(bericht->screen()->availableGeometry().contains(bericht->frameGeometry()));
        ASSERT_EQ(3, bericht->buttons().size());
        for (QAbstractButton* knop : bericht->buttons())
            EXPECT_EQ(knop->rect(), knop->visibleRegion().boundingRect());
        auto* tekst = bericht->findChild<QLabel*>(u"qt_msgbox_label"_s);
        EXPECT_GE(tekst->height(), 80 * tekst->fontMetrics().height()) << "de tekst is afgeknipt";
        EXPECT_GE(tekst->visibleRegion().boundingRect().width(), tekst->sizeHint().width());
        bericht->buttons().constFirst()->click();
    });
    QWidget ouder;
    ouder.move(Scherm()->availableGeometry().topLeft());
    ouder.show();
    EXPECT_EQ(0, Kies(&ouder, QMessageBox::Warning, regels,
                      {u"Opslaan"_s, u"Niet opslaan"_s, u"Annuleren"_s}));
    EXPECT_NE(nullptr, bericht);
}

TEST_P(SchermmaatTest, EenLangeVraagSchuiftAlleenOmlaag)
{
    ZetLetter();
    bool gezien = false;
    QTimer::singleShot(0, [&] {
        auto* vraag = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, vraag);
        QApplication::processEvents();
        EXPECT_TRUE(Scherm()->availableGeometry().contains(vraag->frameGeometry()));
        const auto* blad = vraag->findChild<QScrollArea*>(u"schuifblad"_s);
        ASSERT_NE(nullptr, blad);
        EXPECT_LT(0, blad->verticalScrollBar()->maximum());
        EXPECT_EQ(0, blad->horizontalScrollBar()->maximum());
        gezien = true;
        vraag->reject();
    });
    QWidget ouder;
    ouder.setGeometry(Scherm()->availableGeometry());
    ouder.show();
    EXPECT_FALSE(Vraag(
        &ouder,
        u"Voor competitie-zittingen betekent dat ook dat ze niet meer meedoen.\n\n"_s.repeated(9),
        {}, u"Willem van der Horst\n"_s.repeated(80)));
    EXPECT_TRUE(gezien);
}

INSTANTIATE_TEST_SUITE_P(Opstellingen, SchermmaatTest,
                         testing::Values(Opstelling{"1366 x 768 bij 150 %", 9},
                                         Opstelling{"1366 x 768 bij 150 %", 16},
                                         Opstelling{"1024 x 768", 9}, Opstelling{"1024 x 768", 16},
                                         Opstelling{"1920 x 1080", 16}));
