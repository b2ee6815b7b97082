// Copying a line of a list, by Ctrl+C and by the menu that a right click or the menu key gives.
#pragma once

#include <QAbstractItemView>

#include <functional>

namespace plexoran {

class Tabelvlak;

/// The line is what `tekst` gives.
void LaatKopieren(QWidget* lijst, const std::function<QString()>& tekst);
/// The line is the current one, its columns joined by tabs.
void LaatKopieren(QAbstractItemView* lijst);
void LaatKopieren(Tabelvlak* lijst);

} // namespace plexoran
