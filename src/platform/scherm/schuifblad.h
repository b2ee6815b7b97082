// What of a window does not fit on the screen scrolls inside it.
#pragma once

#include <QScrollArea>

namespace plexoran {

class Schuifblad : public QScrollArea {
  public:
    /// Scrolls `inhoud`, whose own smallest size holds as far as the screen has room for it.
    Schuifblad(QWidget* inhoud, QWidget* ouder);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;
};

/// Puts what the layout of a window holds on a `Schuifblad`, but for the row that ends it, when
/// that is a row of buttons: it stays in sight below. Before the focus and the order of Tab are
/// set.
void ZetOpSchuifblad(QWidget* venster);

} // namespace plexoran
