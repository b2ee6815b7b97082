#include "platform/scherm/inrichting.h"

#include <QFontInfo>
#include <QLibraryInfo>
#include <QProxyStyle>
#include <QTranslator>

#include <array>
#include <string_view>

#include "platform/scherm/pictogram.h"

namespace plexoran {
namespace {

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
        return QProxyStyle::styleHint(gewoonte, optie, widget, uitslag);
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
    if (vertaling->load(nederlands, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(vertaling);
    QApplication::installTranslator(new Aanvulling(&programma)); // the last one is asked first
}

/// A bare system may answer "the standard font" with one for typewriter text.
void ZorgVoorVensterletter()
{
    QFont letter = QApplication::font();
    if (!QFontInfo(letter).fixedPitch())
        return;
    letter.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    QApplication::setFont(letter);
}

} // namespace

void RichtIn(QApplication& programma)
{
    QApplication::setStyle(new Huisstijl);
    SpreekNederlands(programma);
    ZorgVoorVensterletter();
    QApplication::setWindowIcon(Pictogram());
}

QLocale Getalnotatie(const QLocale& systeem)
{
    return systeem.language() == QLocale::C ? Nederlands() : systeem;
}

} // namespace plexoran
