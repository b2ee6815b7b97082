// Every text can be read in light themes and in dark ones: its ink stands out from its ground at
// least 4.5 to 1.
#include <QLineEdit>
#include <QScreen>
#include <QTreeWidget>

#include "vensters/kleuren.h"
#include "vensters/rondgang.h"

using namespace plexoran;

namespace {

/// What a text without a ground of its own stands on.
QColor Ondergrond(const QWidget* deel)
{
    while (!deel->isWindow() && !deel->autoFillBackground())
        deel = deel->parentWidget();
    return deel->palette().color(deel->backgroundRole());
}

/// Ink and ground as the style takes them from the palette.
std::optional<std::pair<QColor, QColor>> Kleuren(const QWidget* deel)
{
    const QPalette& palet = deel->palette();
    const auto is = [deel](auto... soorten) { return (deel->inherits(soorten) || ...); };
    if (is("QPushButton", "QComboBox"))
        return std::pair{palet.color(QPalette::ButtonText), palet.color(QPalette::Button)};
    if (is("QLabel", "QGroupBox", "QAbstractButton"))
        return std::pair{palet.color(QPalette::WindowText), Ondergrond(deel)};
    if (is("QLineEdit", "QAbstractItemView", "QPlainTextEdit")) {
        const QColor papier = palet.color(QPalette::Base);
        return std::pair{palet.color(QPalette::Text),
                         papier.alpha() == 0 ? Ondergrond(deel) : papier};
    }
    return {};
}

class ContrastTest : public Rondgangproef, public testing::WithParamInterface<bool> {
  protected:
    ContrastTest()
    {
        if (GetParam())
            QApplication::setPalette(Donker());
    }
    ~ContrastTest() override { QApplication::setPalette(QPalette()); }
};

/// In a dark theme the black ground is ours; in a light one both red texts stand as they are
/// stated.
bool IsGesteld(const QWidget* deel, bool donker)
{
    const QString naam = deel->objectName();
    return deel->window()->objectName() == "diaIngave"_L1 &&
           (naam == "txt1_3"_L1 || (!donker && naam == "lbl1_6"_L1));
}

void VerwachtLeesbaar(const QWidget& venster, bool donker)
{
    for (const QWidget* deel : venster.findChildren<QWidget*>()) {
        const auto kleuren = Kleuren(deel);
        if (!kleuren || !deel->isVisible() || IsGesteld(deel, donker))
            continue;
        // What cannot be used is grey; the fields that are never typed hold texts to be read.
        const bool leesveld = deel->objectName().startsWith("txt1_"_L1);
        if (deel->isEnabled() || leesveld) {
            EXPECT_GE(Contrast(kleuren->first, kleuren->second), Leesbaar)
                << deel->objectName().toStdString() << ' ' << kleuren->first.name().toStdString()
                << " op " << kleuren->second.name().toStdString();
        }
    }
}

} // namespace

TEST_P(ContrastTest, ElkeTekstIsLeesbaar)
{
    Rondgang(QGuiApplication::screens().constLast(),
             [](const QWidget& venster) { VerwachtLeesbaar(venster, GetParam()); });
}

TEST_P(ContrastTest, HetRoosterEnDeLijstenVolgenHetBureaublad)
{
    const QColor papier = QApplication::palette().color(QPalette::Base);
    QStringList gezien;
    Rondgang(QGuiApplication::screens().constLast(), [&](QWidget& venster) {
        auto* vlak = venster.findChild<QWidget*>(u"P1"_s);
        if (vlak == nullptr || venster.objectName() == "diaGrNamen"_L1)
            return;
        gezien << venster.objectName();
        const QImage beeld = vlak->grab().toImage();
        // Texts without lines among them: the first name on the first line, or the top of a list.
        QRect teksten(0, 0, beeld.width(), vlak->fontMetrics().height());
        if (venster.objectName() == "frmLedenAdmin"_L1) {
            const QRect kop = venster.findChild<QWidget*>(u"cmd_4"_s)->geometry();
            teksten = QRect(kop.left() + 2, kop.height() + 3, kop.width() - 4, 11);
            const auto [zwart, band] =
                InktOpPapier(beeld, QRect(2, teksten.top(), 20, teksten.height()));
            EXPECT_EQ("#ebebeb", band.name().toStdString());
            EXPECT_GE(Contrast(zwart, band), Leesbaar);
        }
        const auto [inkt, ondergrond] = InktOpPapier(beeld, teksten);
        EXPECT_EQ(papier.name().toStdString(), ondergrond.name().toStdString());
        EXPECT_GE(Contrast(inkt, ondergrond), Leesbaar);
    });
    EXPECT_EQ(4, gezien.size()) << gezien.join(u' ').toStdString(); // the main window twice
}

/// A box without a tick in it is seen all the same; in a light theme it is the system's own.
TEST_P(ContrastTest, EenLeegVakjeIsTeZien)
{
    const double zichtbaar = GetParam() ? 3 : 1.5;
    QStringList gezien;
    Rondgang(QGuiApplication::screens().constLast(), [&](const QWidget& venster) {
        for (auto* lijst : venster.findChildren<QTreeWidget*>()) {
            const QImage beeld = lijst->viewport()->grab().toImage();
            const int breed = lijst->style()->pixelMetric(QStyle::PM_IndicatorWidth) + 6;
            for (int kolom = 0; kolom < lijst->columnCount(); ++kolom) {
                const auto* regel = lijst->topLevelItem(1); // the first one is chosen
                if (regel == nullptr || regel->data(kolom, Qt::CheckStateRole) != Qt::Unchecked)
                    continue;
                QRect vak = lijst->visualRect(lijst->model()->index(1, kolom));
                vak.setWidth(breed);
                const auto [rand, papier] = InktOpPapier(beeld, vak);
                EXPECT_GE(Contrast(rand, papier), zichtbaar) << lijst->objectName().toStdString();
                gezien << lijst->objectName();
            }
        }
        for (auto* vink : venster.findChildren<QCheckBox*>()) {
            if (!vink->isVisible() || !vink->isEnabled() || vink->isChecked())
                continue;
            QStyleOptionButton optie;
            optie.initFrom(vink);
            const QRect vak =
                vink->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &optie, vink);
            const auto [rand, papier] = InktOpPapier(vink->grab().toImage(), vak);
            EXPECT_GE(Contrast(rand, papier), zichtbaar) << vink->objectName().toStdString();
            gezien << vink->objectName();
        }
    });
    EXPECT_GE(gezien.size(), 6) << gezien.join(u' ').toStdString();
}

/// These are stated; the one that a dark theme would make hard to read gets a ground.
TEST_P(ContrastTest, HetRodeOpschriftEnDeGeleGroepHoudenHunKleur)
{
    Rondgang(QGuiApplication::screens().constLast(), [](const QWidget& venster) {
        if (venster.objectName() != "diaIngave"_L1)
            return;
        const auto* naam = venster.findChild<QLabel*>(u"lbl1_6"_s);
        EXPECT_EQ(QColor(255, 0, 0), naam->palette().color(QPalette::WindowText));
        EXPECT_EQ(GetParam(), naam->autoFillBackground());
        const auto* groep = venster.findChild<QLineEdit*>(u"txt1_3"_s);
        EXPECT_EQ(QColor(255, 0, 0), groep->palette().color(QPalette::Text));
        EXPECT_EQ(QColor(255, 255, 0), groep->palette().color(QPalette::Base));
    });
}

INSTANTIATE_TEST_SUITE_P(Paletten, ContrastTest, testing::Bool(),
                         [](const auto& soort) { return soort.param ? "Donker" : "Licht"; });
