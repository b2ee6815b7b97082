#include "platform/scherm/inrichting.h"

#include <QFontInfo>
#include <QLibraryInfo>
#include <QProxyStyle>
#include <QTranslator>

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

/// Words that the file dialog shows and that the Dutch texts of Qt lack.
class Ontbrekend : public QTranslator {
  public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* waar, const char* bron, const char* /*toelichting*/,
                      int /*aantal*/) const override
    {
        const QLatin1String tekst(bron);
        if (QLatin1String(waar) != QLatin1String("QAbstractFileIconProvider"))
            return {};
        if (tekst == QLatin1String("Folder") || tekst == QLatin1String("File Folder"))
            return QStringLiteral("Map");
        if (tekst == QLatin1String("Drive"))
            return QStringLiteral("Schijf");
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
    // Installed first: it is asked last, so that Qt's own word goes before.
    QApplication::installTranslator(new Ontbrekend(&programma));
    auto* vertaling = new QTranslator(&programma);
    if (vertaling->load(nederlands, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(vertaling);
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
