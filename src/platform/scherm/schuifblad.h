// What of a window does not fit on the screen scrolls inside it.
#pragma once

#include <QFrame>
#include <QScrollArea>
#include <QScrollBar>

namespace plexoran {

class Maten;

class Schuifblad : public QScrollArea {
  public:
    /// Scrolls `inhoud`, whose own smallest size holds as far as the screen has room for it.
    Schuifblad(QWidget* inhoud, QWidget* ouder);
    ~Schuifblad() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;
};

/// Puts what the layout of a window holds on a `Schuifblad`, but for the row that ends it, when
/// that is a row of buttons: it stays in sight below. Before the focus and the order of Tab are
/// set.
void ZetOpSchuifblad(QWidget* venster);

/// A frame around a surface that draws itself, with both scroll bars beside it: `VScroll1` and
/// `HScroll1`, 280 twips thick. The wheel scrolls wherever in the frame it turns.
class Schuifkader : public QFrame {
    Q_OBJECT

  public:
    Schuifkader(const QString& naam, const Maten& maten, QWidget* ouder);

    /// The surface is laid beside the bars, with so many pixels free at the left and the right.
    void Bevat(QWidget* vlak, int links = 0, int rechts = 0);

    [[nodiscard]] QScrollBar& Staand() const { return *VScroll1; }
    [[nodiscard]] QScrollBar& Liggend() const { return *HScroll1; }
    /// From now on `zichtbaar` of `geheel` is seen, and a page is so much.
    static void Stel(QScrollBar& balk, int geheel, int zichtbaar, int bladzij, int stap);

  protected:
    void wheelEvent(QWheelEvent* gebeurtenis) override;

  private:
    QScrollBar* HScroll1;
    QScrollBar* VScroll1;
};

} // namespace plexoran
