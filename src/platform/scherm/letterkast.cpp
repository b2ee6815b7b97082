#include "platform/scherm/letterkast.h"

#include <QFont>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr double MmPerPunt = 25.4 / 72.0;

/// The font by its name and, behind it, the one with the same measures.
QStringList Families(Lettertype type)
{
    switch (type) {
    case Lettertype::Arial:
        return {QStringLiteral("Arial"), QStringLiteral("Liberation Sans")};
    case Lettertype::CourierNew:
        return {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono")};
    case Lettertype::TimesNewRoman:
        break;
    }
    return {QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")};
}

QFont::StyleHint Soort(Lettertype type)
{
    switch (type) {
    case Lettertype::Arial:
        return QFont::SansSerif;
    case Lettertype::CourierNew:
        return QFont::Monospace;
    case Lettertype::TimesNewRoman:
        break;
    }
    return QFont::Serif;
}

std::unique_ptr<Lettersnede> Laad(const Letter& letter)
{
    QFont font(Families(letter.type).constFirst());
    font.setFamilies(Families(letter.type));
    font.setStyleHint(Soort(letter.type), QFont::NoFontMerging);
    font.setPixelSize(Lettersnede::Em);
    font.setBold(letter.vet);
    // Hinting would bend the widths towards the dots of one device.
    font.setHintingPreference(QFont::PreferNoHinting);

    auto snede = std::make_unique<Lettersnede>();
    snede->letter = QRawFont::fromFont(font);
    snede->stijging = snede->letter.ascent();
    snede->daling = snede->letter.descent();
    for (std::size_t i = 0; i < snede->beeld.size(); ++i) {
        QChar teken = NaarUtf16(Tekst(1, static_cast<char>(i))).front();
        if (teken.category() == QChar::Other_Control)
            teken = QLatin1Char(' ');
        const auto beelden = snede->letter.glyphIndexesForString(QString(teken));
        if (beelden.isEmpty())
            continue;
        snede->beeld[i] = beelden.constFirst();
        const auto schuif = snede->letter.advancesForGlyphIndexes(beelden.mid(0, 1));
        snede->opschuiving[i] = schuif.isEmpty() ? 0 : qRound(schuif.constFirst().x());
    }
    return snede;
}

} // namespace

double Lettersnede::Mm(double punten)
{
    return punten * MmPerPunt / Em;
}

const Lettersnede& Letterkast::Snede(const Letter& letter) const
{
    auto& snede = sneden_.at(2 * static_cast<std::size_t>(letter.type) + (letter.vet ? 1 : 0));
    if (!snede)
        snede = Laad(letter);
    return *snede;
}

double Letterkast::Breedte(const Letter& letter, Tekstblik tekst) const
{
    const Lettersnede& snede = Snede(letter);
    std::int64_t som = 0;
    for (const char teken : tekst)
        som += snede.opschuiving[static_cast<unsigned char>(teken)];
    return static_cast<double>(som) * Lettersnede::Mm(letter.punten);
}

double Letterkast::Hoogte(const Letter& letter) const
{
    const Lettersnede& snede = Snede(letter);
    return (snede.stijging + snede.daling) * Lettersnede::Mm(letter.punten);
}

} // namespace plexoran
