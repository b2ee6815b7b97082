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

/// The theme in which the windows are made, and the one to which the desktop then goes over.
struct Thema {
    const char* naam;
    QPalette (*eerst)();
    QPalette (*dan)();
    [[nodiscard]] bool IsDonker() const { return dan != Licht; }
};

void PrintTo(const Thema& thema, std::ostream* uit)
{
    *uit << thema.naam;
}

class ContrastTest : public Rondgangproef, public testing::WithParamInterface<Thema> {
  protected:
    ContrastTest() { QApplication::setPalette(GetParam().eerst()); }
    ~ContrastTest() override { QApplication::setPalette(Licht()); }

    void Bekijk(const std::function<void(QWidget&)>& bekijk)
    {
        Rondgang(QGuiApplication::screens().constLast(), [&](QWidget& venster) {
            QApplication::setPalette(GetParam().dan());
            QApplication::processEvents();
            bekijk(venster);
            QApplication::setPalette(GetParam().eerst());
        });
    }
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
    Bekijk([](const QWidget& venster) { VerwachtLeesbaar(venster, GetParam().IsDonker()); });
}

TEST_P(ContrastTest, HetRoosterEnDeLijstenVolgenHetBureaublad)
{
    QStringList gezien;
    Bekijk([&](QWidget& venster) {
        auto* vlak = venster.findChild<QWidget*>(u"P1"_s);
        if (vlak == nullptr || venster.objectName() == "diaGrNamen"_L1)
            return;
        gezien << venster.objectName();
        const QColor papier = QApplication::palette().color(QPalette::Base);
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
    const double zichtbaar = GetParam().IsDonker() ? 3 : 1.5;
    QStringList gezien;
    Bekijk([&](const QWidget& venster) {
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
    Bekijk([](const QWidget& venster) {
        if (venster.objectName() != "diaIngave"_L1)
            return;
        const auto* naam = venster.findChild<QLabel*>(u"lbl1_6"_s);
        EXPECT_EQ(QColor(255, 0, 0), naam->palette().color(QPalette::WindowText));
        EXPECT_EQ(GetParam().IsDonker(), naam->autoFillBackground());
        const auto* groep = venster.findChild<QLineEdit*>(u"txt1_3"_s);
        EXPECT_EQ(QColor(255, 0, 0), groep->palette().color(QPalette::Text));
        EXPECT_EQ(QColor(255, 255, 0), groep->palette().color(QPalette::Base));
    });
}

/// As they are painted: the first line of each list, which is chosen in some, and the fields of the
/// entry window that are never typed.
TEST_P(ContrastTest, DeRegelsStaanInDeKleurenVanNu)
{
    QStringList gezien;
    Bekijk([&](const QWidget& venster) {
        const auto palet = QApplication::palette();
        for (auto* lijst : venster.findChildren<QAbstractItemView*>()) {
            const QModelIndex eerste = lijst->model()->index(0, 0);
            const QRect regel = lijst->visualRect(eerste) & lijst->viewport()->rect();
            if (!lijst->isVisible() || !lijst->isEnabled() || regel.width() < 20 ||
                regel.height() < 10 || eerste.data().toString().trimmed().isEmpty())
                continue;
            // How well a chosen line reads is up to the desktop.
            const bool goed = Contrast(palet.color(QPalette::Highlight),
                                       palet.color(QPalette::HighlightedText)) >= Leesbaar;
            const double moet = goed ? Leesbaar : 3;
            const QImage beeld = lijst->viewport()->grab().toImage();
            const auto [inkt, ondergrond] = InktOpPapier(beeld, regel);
            EXPECT_GE(Contrast(inkt, ondergrond), moet) << lijst->objectName().toStdString();
            gezien << lijst->objectName();
        }
        if (const auto* vak = venster.findChild<QLineEdit*>(u"txt1_1"_s);
            vak != nullptr && venster.objectName() == "diaIngave"_L1) {
            EXPECT_EQ(palet.color(QPalette::Button), vak->palette().color(QPalette::Base));
            EXPECT_EQ(palet.color(QPalette::ButtonText), vak->palette().color(QPalette::Text));
        }
    });
    EXPECT_GT(gezien.size(), 20) << gezien.join(u' ').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Paletten, ContrastTest,
                         testing::Values(Thema{"Licht", Licht, Licht},
                                         Thema{"Donker", Donker, Donker},
                                         Thema{"HoogContrast", HoogContrast, HoogContrast},
                                         Thema{"LichtWordtDonker", Licht, Donker},
                                         Thema{"DonkerWordtLicht", Donker, Licht},
                                         Thema{"LichtWordtHoogContrast", Licht, HoogContrast}),
                         [](const auto& soort) { return soort.param.naam; });
