// Buttons whose caption stands in the source as it reads on the screen.
#pragma once

#include <QPushButton>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

/// The caption with its mnemonic: the first `letter` in it is underlined and works with Alt. A
/// caption without that letter, or `letter` 0, gets none.
[[nodiscard]] inline QString MetSneltoets(const QString& tekst, char16_t letter)
{
    const auto plaats = letter == 0 ? -1 : tekst.indexOf(QChar(letter));
    if (plaats < 0)
        return ZonderSneltoets(tekst);
    return ZonderSneltoets(tekst.left(plaats)) + QLatin1Char('&') +
           ZonderSneltoets(tekst.mid(plaats));
}

[[nodiscard]] inline QPushButton* MaakKnop(const QString& naam, const QString& tekst,
                                           char16_t letter, QWidget* ouder)
{
    auto* knop = new QPushButton(MetSneltoets(tekst, letter), ouder);
    Noem(knop, naam);
    knop->setAutoDefault(false);
    return knop;
}

} // namespace plexoran
