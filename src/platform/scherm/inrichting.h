// What the whole program looks and speaks like.
#pragma once

#include <QApplication>
#include <QLocale>

namespace plexoran {

/// Qt's own texts in Dutch whatever the system speaks, a proportional font also where the system
/// names none, drop-downs that scroll instead of filling the screen, a line around what has the
/// focus, and the program's icon.
void RichtIn(QApplication& programma);

/// How the user writes numbers: as his system does, and in Dutch where that speaks no language.
[[nodiscard]] QLocale Getalnotatie(const QLocale& systeem = QLocale::system());

} // namespace plexoran
