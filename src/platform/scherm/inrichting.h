// What the whole program looks and speaks like.
#pragma once

#include <QApplication>

namespace plexoran {

/// Qt's own texts in Dutch whatever the system speaks, a proportional font also where the system
/// names none, drop-downs that scroll instead of filling the screen, and the program's icon.
void RichtIn(QApplication& programma);

} // namespace plexoran
