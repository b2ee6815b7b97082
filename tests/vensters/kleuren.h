// The palettes that windows are tried in, and how far colours stand out from each other.
#pragma once

#include <QImage>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <map>

namespace plexoran {

inline constexpr double Leesbaar = 4.5;

inline double Lichtheid(const QColor& kleur)
{
    const auto deel = [](double waarde) {
        return waarde <= 0.04045 ? waarde / 12.92 : std::pow((waarde + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * deel(kleur.redF()) + 0.7152 * deel(kleur.greenF()) +
           0.0722 * deel(kleur.blueF());
}

inline double Contrast(const QColor& een, const QColor& ander)
{
    const auto [minste, meeste] = std::minmax({Lichtheid(een), Lichtheid(ander)});
    return (meeste + 0.05) / (minste + 0.05);
}

/// That of the system.
inline QPalette Licht()
{
    return {};
}

inline QPalette Donker()
{
    const QColor venster(49, 54, 59);
    const QColor papier(27, 30, 32);
    const QColor inkt(239, 240, 241);
    QPalette palet(venster, venster);
    for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(rol, inkt);
    palet.setColor(QPalette::Base, papier);
    palet.setColor(QPalette::AlternateBase, venster);
    palet.setColor(QPalette::Highlight, QColor(20, 80, 150));
    palet.setColor(QPalette::HighlightedText, Qt::white);
    return palet;
}

/// That of people who see little: yellow and white on black.
inline QPalette HoogContrast()
{
    QPalette palet(Qt::black, Qt::black);
    for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(rol, rol == QPalette::WindowText ? Qt::yellow : Qt::white);
    palet.setColor(QPalette::Base, Qt::black);
    palet.setColor(QPalette::AlternateBase, Qt::black);
    palet.setColor(QPalette::Highlight, Qt::yellow);
    palet.setColor(QPalette::HighlightedText, Qt::black);
    return palet;
}

/// The colour that most dots of a part of a picture have, and that which stands out from it most.
inline std::pair<QColor, QColor> InktOpPapier(const QImage& beeld, const QRect& deel)
{
    std::map<QRgb, int> punten;
    for (int y = deel.top(); y <= deel.bottom(); ++y) {
        for (int x = deel.left(); x <= deel.right(); ++x)
            ++punten[beeld.pixel(x, y)];
    }
    const auto minder = [](const auto& een, const auto& ander) {
        return een.second < ander.second;
    };
    const QColor papier(std::max_element(punten.begin(), punten.end(), minder)->first);
    QColor inkt = papier;
    for (const auto& [kleur, aantal] : punten) {
        if (Contrast(kleur, papier) > Contrast(inkt, papier))
            inkt = kleur;
    }
    return {inkt, papier};
}

} // namespace plexoran
