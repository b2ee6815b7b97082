#include "platform/scherm/letterkast.h"

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr double MmPerPunt = 25.4 / 72.0;

/// The font by its name and, behind it, the one with the same measures.
QStringList Families(Lettertype type)
{
    switch (type) {
    case Lettertype::Arial:
        return {u"Arial"_s, u"Liberation Sans"_s};
    case Lettertype::CourierNew:
        return {u"Courier New"_s, u"Liberation Mono"_s};
    case Lettertype::TimesNewRoman:
        break;
    }
    return {u"Times New Roman"_s, u"Liberation Serif"_s};
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

QFont Schermletter(Lettertype type, bool vet, int pixels)
{
    QFont font(Families(type).constFirst());
    font.setFamilies(Families(type));
    // The font has the whole code page, so no other font need be looked for.
    font.setStyleHint(Soort(type), QFont::NoFontMerging);
    font.setPixelSize(pixels);
    font.setBold(vet);
    font.setKerning(false);
    // Hinting would bend the widths towards the dots of one device.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

std::unique_ptr<Lettersnede> Laad(const Letter& letter)
{
    auto snede = std::make_unique<Lettersnede>();
    snede->letter = QRawFont::fromFont(Schermletter(letter.type, letter.vet, Lettersnede::Em));
    snede->stijging = snede->letter.ascent();
    snede->daling = snede->letter.descent();
    for (std::size_t i = 0; i < snede->beeld.size(); ++i) {
        QChar teken = NaarUtf16(Tekst(1, static_cast<char>(i))).front();
        if (teken.category() == QChar::Other_Control)
            teken = u' ';
        const auto beelden = snede->letter.glyphIndexesForString(QString(teken));
        if (beelden.isEmpty())
            continue;
        snede->beeld[i] = beelden.constFirst();
        const auto schuif = snede->letter.advancesForGlyphIndexes(beelden.mid(0, 1));
        snede->meter.opschuiving[i] = schuif.isEmpty() ? 0 : qRound(schuif.constFirst().x());
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
    return static_cast<double>(Snede(letter).meter.Breedte(tekst)) * Lettersnede::Mm(letter.punten);
}

double Letterkast::Hoogte(const Letter& letter) const
{
    const Lettersnede& snede = Snede(letter);
    return (snede.stijging + snede.daling) * Lettersnede::Mm(letter.punten);
}

QFont Roosterletter(int pixels)
{
    return Schermletter(Lettertype::Arial, false, pixels);
}

Tekstmeter Roostermeter(int pixels, double pixelsPerMm)
{
    constexpr double MicrometerPerMm = 1000.0;
    const double eenheid = MicrometerPerMm * pixels / (Lettersnede::Em * pixelsPerMm);
    Tekstmeter meter = Laad({.type = Lettertype::Arial})->meter;
    for (std::int32_t& opschuiving : meter.opschuiving)
        opschuiving = qRound(opschuiving * eenheid);
    return meter;
}

} // namespace plexoran
