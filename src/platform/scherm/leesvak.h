// A text to read: it scrolls, and can be selected and copied by mouse and keyboard.
#pragma once

#include <QPlainTextEdit>

namespace plexoran {

[[nodiscard]] QPlainTextEdit* MaakLeesvak(const QString& naam, const QString& gesproken,
                                          const QString& tekst, QWidget* ouder);

} // namespace plexoran
