#include "platform/scherm/inrichting.h"

#include <QFocusFrame>
#include <QFontInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTranslator>

#include <array>
#include <cstdlib>
#include <string_view>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

/// Some themes choose a highlight that does not stand out from their ground.
QColor Focuskleur(const QPalette& palet)
{
    const QColor kleur = palet.color(QPalette::Highlight);
    const int verschil = qGray(kleur.rgb()) - qGray(palet.color(QPalette::Window).rgb());
    return std::abs(verschil) < 90 ? palet.color(QPalette::WindowText) : kleur;
}

/// The system's own style but for a few habits.
class Huisstijl : public QProxyStyle {
  public:
    int styleHint(StyleHint gewoonte, const QStyleOption* optie, const QWidget* widget,
                  QStyleHintReturn* uitslag) const override
    {
        // A list of fifty groups would stand over the whole screen as a menu; pictures on the
        // buttons of message boxes would be the only ones in the program.
        if (gewoonte == SH_ComboBox_Popup || gewoonte == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        // Who points at an entry that is off is told why.
        // The line around what has the focus stands above it, and leaves the middle free.
        if (gewoonte == SH_Menu_AllowActiveAndDisabled || gewoonte == SH_FocusFrame_AboveWidget)
            return 1;
        if (auto* vorm = qstyleoption_cast<QStyleHintReturnMask*>(uitslag);
            gewoonte == SH_FocusFrame_Mask && vorm != nullptr) {
            constexpr int dik = 2;
            vorm->region = QRegion(optie->rect) - optie->rect.adjusted(dik, dik, -dik, -dik);
            return 1;
        }
        return QProxyStyle::styleHint(gewoonte, optie, widget, uitslag);
    }
    int pixelMetric(PixelMetric maat, const QStyleOption* optie,
                    const QWidget* widget) const override
    {
        return maat == PM_FocusFrameHMargin || maat == PM_FocusFrameVMargin
                   ? 0
                   : QProxyStyle::pixelMetric(maat, optie, widget);
    }
    /// An entry that is off and pointed at would look as all others.
    void drawControl(ControlElement wat, const QStyleOption* optie, QPainter* schilder,
                     const QWidget* widget) const override
    {
        if (wat == CE_FocusFrame) {
            schilder->fillRect(optie->rect, Focuskleur(optie->palette));
            return;
        }
#ifdef Q_OS_WIN
        // There a chosen line is pale with dark text, whatever palette what stands in it goes by.
        if (wat == CE_ItemViewItem) {
            QCommonStyle::drawControl(wat, optie, schilder, widget);
            return;
        }
#endif
        QProxyStyle::drawControl(wat, optie, schilder, widget);
        if (wat != CE_MenuItem || !optie->state.testFlag(State_Selected) ||
            optie->state.testFlag(State_Enabled))
            return;
        schilder->setPen(optie->palette.color(QPalette::Highlight));
        schilder->drawRect(optie->rect.adjusted(0, 0, -1, -1));
    }
    /// The edge of an empty box is darker than its ground, which a dark theme hides.
    void drawPrimitive(PrimitiveElement wat, const QStyleOption* optie, QPainter* schilder,
                       const QWidget* widget) const override
    {
#ifdef Q_OS_WIN
        if (wat == PE_PanelItemViewItem && optie->state.testFlag(State_Selected)) {
            schilder->fillRect(optie->rect, optie->palette.brush(QPalette::Highlight));
            return;
        }
#endif
        QProxyStyle::drawPrimitive(wat, optie, schilder, widget);
        const QColor papier = optie->palette.color(QPalette::Base);
        constexpr int middengrijs = 128;
        if (wat != PE_IndicatorCheckBox || papier.lightness() >= middengrijs)
            return;
        QColor inkt = optie->palette.color(QPalette::Text);
        inkt.setAlphaF(0.6F);
        schilder->save();
        schilder->setPen(inkt);
        schilder->setBrush(Qt::NoBrush);
        schilder->drawRect(QRectF(optie->rect).adjusted(0.5, 0.5, -1.5, -1.5));
        schilder->restore();
    }
};

struct Woord {
    std::string_view waar; ///< what of Qt asks for it
    std::string_view bron;
    const char* nederlands;
};

/// Words on the screen that the Dutch texts of Qt 6.4 lack or have half in English.
constexpr std::array Woorden{
    Woord{"QAbstractFileIconProvider", "Folder", "Map"},
    Woord{"QAbstractFileIconProvider", "File Folder", "Map"},
    Woord{"QAbstractFileIconProvider", "Drive", "Schijf"},
    Woord{"QPrintSettingsOutput", "Double Sided Printing", "Dubbelzijdig afdrukken"},
    Woord{"QPrintSettingsOutput", "Off", "Uit"},
    Woord{"QPrintSettingsOutput", "Long side binding", "Lange zijde"},
    Woord{"QPrintSettingsOutput", "Short side binding", "Korte zijde"},
    Woord{"QPageSetupWidget", "Page size:", "Paginagrootte:"},
    Woord{"QPageSize", "Envelope US 9", "Envelop US 9"},
    Woord{"QPageSize", "Letter Small", "Letter klein"},
    Woord{"QPageSize", "PRC 32K Big", "PRC 32K groot"},
};

class Aanvulling : public QTranslator {
  public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* waar, const char* bron, const char* /*toelichting*/,
                      int /*aantal*/) const override
    {
        for (const Woord& woord : Woorden) {
            if (woord.waar == waar && woord.bron == bron)
                return QString::fromLatin1(woord.nederlands);
        }
        return {};
    }
};

QLocale Nederlands()
{
    return {QLocale::Dutch, QLocale::Netherlands};
}

void SpreekNederlands(QApplication& programma)
{
    const QLocale nederlands = Nederlands();
    QLocale::setDefault(nederlands);
    auto* vertaling = new QTranslator(&programma);
    if (vertaling->load(nederlands, u"qtbase"_s, u"_"_s,
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        vertaling->load(u":/qtbase_nl.qm"_s)) // in a program of one file
        QApplication::installTranslator(vertaling);
    QApplication::installTranslator(new Aanvulling(&programma)); // the last one is asked first
}

/// A line around what has the focus, alike in every window. What the style draws itself can be hard
/// to see, or comes only once Tab was used. It comes when what gets the focus has been scrolled
/// into sight.
void LaatFocusZien(QApplication& programma)
{
    const auto toon = [lijn = QPointer<QFocusFrame>()]() mutable {
        QWidget* nu = QApplication::focusWidget();
        if (nu != nullptr && (nu->isWindow() || nu->window()->windowType() == Qt::Popup))
            nu = nullptr;
        if (lijn == nullptr && nu != nullptr)
            lijn = new QFocusFrame(nu->window()); // goes with the window
        if (lijn != nullptr)
            lijn->setWidget(nu);
    };
    QObject::connect(&programma, &QApplication::focusChanged, &programma, toon,
                     Qt::QueuedConnection);
}

/// A bare system may answer "the standard font" with one for typewriter text.
void ZorgVoorVensterletter()
{
    QFont letter = QApplication::font();
    if (!QFontInfo(letter).fixedPitch())
        return;
    letter.setFamilies({u"Arial"_s, u"Liberation Sans"_s});
    QApplication::setFont(letter);
}

QIcon Pictogram()
{
    QIcon pictogram;
    for (const int maat : {16, 32, 64, 128, 256})
        pictogram.addFile(u":/pictogrammen/%1.png"_s.arg(maat));
    return pictogram;
}

} // namespace

void RichtIn(QApplication& programma)
{
    QApplication::setStyle(new Huisstijl);
    SpreekNederlands(programma);
    ZorgVoorVensterletter();
    LaatFocusZien(programma);
    QApplication::setWindowIcon(Pictogram());
}

QLocale Getalnotatie(const QLocale& systeem)
{
    return systeem.language() == QLocale::C ? Nederlands() : systeem;
}

} // namespace plexoran
