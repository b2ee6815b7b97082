// The parts of which windows are built. Captions stand in the source as they read on the screen.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QVBoxLayout>

#include <functional>
#include <vector>

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
    return ZonderSneltoets(tekst.left(plaats)) + u'&' + ZonderSneltoets(tekst.mid(plaats));
}

/// Enter presses the button that has the focus, and never another one. Qt does so only for buttons
/// that may become the default by themselves, and those would answer Enter in other controls too.
class Knop : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override
    {
        if (gebeurtenis->key() == Qt::Key_Return || gebeurtenis->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(gebeurtenis);
    }
};

/// The beginning of a text that is wider than `breed` pixels, closed by three dots as in a cell.
[[nodiscard]] inline QString Ingekort(const QFontMetrics& maten, const QString& tekst, int breed,
                                      int vlaggen = 0)
{
    if (maten.size(vlaggen, tekst).width() <= breed)
        return tekst;
    const QString puntjes = u"..."_s;
    const QChar teken(0x2026); // that Qt closes with
    const int meer = maten.horizontalAdvance(puntjes) - maten.horizontalAdvance(teken);
    QString kort = maten.elidedText(tekst, Qt::ElideRight, breed - meer, vlaggen);
    if (kort.endsWith(teken))
        kort.replace(kort.size() - 1, 1, puntjes);
    return kort;
}

/// Shows the beginning of a caption that does not fit.
class Kortknop : public Knop {
  public:
    using Knop::Knop;

  protected:
    void paintEvent(QPaintEvent* /*gebeurtenis*/) override
    {
        QStylePainter schilder(this);
        QStyleOptionButton knop;
        initStyleOption(&knop);
        const QRect ruimte = style()->subElementRect(QStyle::SE_PushButtonContents, &knop, this);
        knop.text = Ingekort(fontMetrics(), knop.text, ruimte.width(), Qt::TextShowMnemonic);
        schilder.drawControl(QStyle::CE_PushButton, knop);
    }
};

/// A tool tip that shows a text of the user as it is; Qt would take its "<" for layout.
[[nodiscard]] inline QString Wenk(const QString& tekst)
{
    return Qt::mightBeRichText(tekst)
               ? u"<span style=\"white-space:pre\">%1</span>"_s.arg(tekst.toHtmlEscaped())
               : tekst;
}

/// Shows the beginning of a text that does not fit on its one line.
class Kortlabel : public QLabel {
  public:
    using QLabel::QLabel;

    /// What does not fit can be read in the tool tip.
    void Toon(const QString& tekst)
    {
        setText(tekst);
        setToolTip(Wenk(tekst));
    }

  protected:
    void paintEvent(QPaintEvent* /*gebeurtenis*/) override
    {
        QStylePainter schilder(this);
        schilder.drawItemText(rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                              Ingekort(fontMetrics(), text(), width()), foregroundRole());
    }
};

[[nodiscard]] inline QPushButton* MaakKnop(const QString& naam, const QString& tekst,
                                           char16_t letter, QWidget* ouder)
{
    auto* knop = new Knop(MetSneltoets(tekst, letter), ouder);
    Noem(knop, naam);
    knop->setAutoDefault(false);
    return knop;
}
/// One that makes its window do something.
template <class Venster, class Opdracht>
[[nodiscard]] QPushButton* MaakKnop(const QString& naam, const QString& tekst, char16_t letter,
                                    Venster* venster, Opdracht opdracht)
{
    auto* knop = MaakKnop(naam, tekst, letter, venster);
    QObject::connect(knop, &QPushButton::clicked, venster, opdracht);
    return knop;
}

[[nodiscard]] inline QRadioButton* MaakOptie(const QString& naam, const QString& tekst,
                                             char16_t letter, QWidget* ouder)
{
    auto* optie = new QRadioButton(MetSneltoets(tekst, letter), ouder);
    Noem(optie, naam);
    return optie;
}

[[nodiscard]] inline QCheckBox* MaakVink(const QString& naam, const QString& tekst, char16_t letter,
                                         QWidget* ouder)
{
    auto* vink = new QCheckBox(MetSneltoets(tekst, letter), ouder);
    Noem(vink, naam);
    return vink;
}

[[nodiscard]] inline QLabel* MaakLabel(const QString& naam, const QString& tekst, QWidget* ouder)
{
    auto* label = new QLabel(tekst, ouder);
    Noem(label, naam);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// One whose lines are as wide as its window.
[[nodiscard]] inline QLabel* MaakUitleg(const QString& naam, const QString& tekst, QWidget* ouder)
{
    auto* label = MaakLabel(naam, tekst, ouder);
    label->setWordWrap(true);
    return label;
}

[[nodiscard]] inline QGroupBox* MaakKader(const QString& naam, const QString& tekst, QWidget* ouder,
                                          const QString& gesproken = QString())
{
    auto* kader = new QGroupBox(tekst, ouder);
    Noem(kader, naam, gesproken);
    return kader;
}

inline void MaakVet(QLabel* label)
{
    QFont vet = label->font();
    vet.setBold(true);
    label->setFont(vet);
}

/// A text to read: it scrolls, and can be selected and copied by mouse and keyboard.
[[nodiscard]] inline QPlainTextEdit* MaakLeesvak(const QString& naam, const QString& gesproken,
                                                 const QString& tekst, QWidget* ouder)
{
    auto* vak = new QPlainTextEdit(tekst, ouder);
    Noem(vak, naam, gesproken);
    vak->setReadOnly(true);
    vak->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    vak->setTabChangesFocus(true);
    return vak;
}

/// Shows the beginning of a line that does not fit; Qt would cut through a letter.
class Kortkeus : public QComboBox {
  public:
    using QComboBox::QComboBox;

  protected:
    void paintEvent(QPaintEvent* /*gebeurtenis*/) override
    {
        QStylePainter schilder(this);
        schilder.setPen(palette().color(QPalette::Text));
        QStyleOptionComboBox keus;
        initStyleOption(&keus);
        schilder.drawComplexControl(QStyle::CC_ComboBox, keus);
        const QRect ruimte =
            style()->subControlRect(QStyle::CC_ComboBox, &keus, QStyle::SC_ComboBoxEditField, this);
        constexpr int rand = 2; // that styles leave beside the text
        keus.currentText = Ingekort(fontMetrics(), keus.currentText, ruimte.width() - rand);
        schilder.drawControl(QStyle::CE_ComboBoxLabel, keus);
    }
};

/// A drop-down that belongs to a label. It keeps its width whatever its lines hold; its tool tip is
/// that of the line it shows.
[[nodiscard]] inline QComboBox* MaakKeus(const QString& naam, QLabel* label, QWidget* ouder)
{
    auto* keus = new Kortkeus(ouder);
    Noem(keus, naam);
    keus->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    label->setBuddy(keus);
    QObject::connect(keus, &QComboBox::currentIndexChanged, keus,
                     [keus] { keus->setToolTip(keus->currentData(Qt::ToolTipRole).toString()); });
    return keus;
}

/// The Tab key goes through these controls in this order.
inline void ZetTabvolgorde(const QList<QWidget*>& volgorde)
{
    for (qsizetype i = 1; i < volgorde.size(); ++i)
        QWidget::setTabOrder(volgorde[i - 1], volgorde[i]);
}

/// White between the parts of a row or a column.
struct Wit {
    int pixels;
};

/// A part of a row or a column: a control or a layout with its share of the room that is left over,
/// white, or, for a number, that share for nothing.
struct Deel {
    Deel(QWidget* wat, int rek = 0) : leg([=](QBoxLayout& rij) { rij.addWidget(wat, rek); }) {}
    Deel(QLayout* wat, int rek = 0) : leg([=](QBoxLayout& rij) { rij.addLayout(wat, rek); }) {}
    Deel(Wit wit) : leg([=](QBoxLayout& rij) { rij.addSpacing(wit.pixels); }) {}
    Deel(int rek) : leg([=](QBoxLayout& rij) { rij.addStretch(rek); }) {}

    std::function<void(QBoxLayout&)> leg;
};

/// A layout that has yet to be placed, or that of `ouder`.
inline QHBoxLayout* Naastelkaar(std::initializer_list<Deel> delen, QWidget* ouder = nullptr)
{
    auto* rij = new QHBoxLayout(ouder);
    for (const Deel& deel : delen)
        deel.leg(*rij);
    return rij;
}
inline QVBoxLayout* Onderelkaar(std::initializer_list<Deel> delen, QWidget* ouder = nullptr)
{
    auto* kolom = new QVBoxLayout(ouder);
    for (const Deel& deel : delen)
        deel.leg(*kolom);
    return kolom;
}

/// Buttons beside each other, at the right.
[[nodiscard]] inline QHBoxLayout* Knoppenrij(std::initializer_list<QPushButton*> knoppen)
{
    auto* rij = new QHBoxLayout;
    rij->addStretch();
    for (QPushButton* knop : knoppen)
        rij->addWidget(knop);
    return rij;
}

/// Scrolls when the key is one that scrolls, and says so. Not by handing the key on: a scroll bar
/// that is disabled would hand it back for ever.
inline bool Verschuif(QScrollBar& balk, int toets)
{
    static const QHash<int, QScrollBar::SliderAction> acties{
        {Qt::Key_Up, QScrollBar::SliderSingleStepSub},
        {Qt::Key_Down, QScrollBar::SliderSingleStepAdd},
        {Qt::Key_PageUp, QScrollBar::SliderPageStepSub},
        {Qt::Key_PageDown, QScrollBar::SliderPageStepAdd},
        {Qt::Key_Home, QScrollBar::SliderToMinimum},
        {Qt::Key_End, QScrollBar::SliderToMaximum}};
    if (!acties.contains(toets))
        return false;
    balk.triggerAction(acties.value(toets));
    return true;
}

/// The same for the keys that scroll sideways.
inline bool VerschuifOpzij(QScrollBar& balk, int toets)
{
    if (toets != Qt::Key_Left && toets != Qt::Key_Right)
        return false;
    balk.triggerAction(toets == Qt::Key_Left ? QScrollBar::SliderSingleStepSub
                                             : QScrollBar::SliderSingleStepAdd);
    return true;
}

/// Fills a drop-down anew, silently, and selects its first entry. Lines that come out shortened can
/// be read in their tool tips.
inline void VulKeus(QComboBox& keus, const std::vector<Tekst>& teksten)
{
    const QSignalBlocker stil(&keus);
    keus.clear();
    for (const Tekst& tekst : teksten) {
        keus.addItem(NaarQString(tekst));
        keus.setItemData(keus.count() - 1, Wenk(NaarQString(tekst)), Qt::ToolTipRole);
    }
    keus.setToolTip(keus.currentData(Qt::ToolTipRole).toString());
}

} // namespace plexoran
