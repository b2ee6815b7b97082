#include "platform/scherm/regellijst.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTextLayout>

#include <algorithm>
#include <numeric>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"
#include "platform/tekst/tekenvlak.h"

namespace plexoran {
namespace {

constexpr int Marge = 4; // pixels around a line

/// The lines of a list, asked for when they are painted.
class Regelmodel : public QAbstractListModel {
  public:
    Regelmodel(std::function<QVariant(int plaats, int rol)> zegt, QObject* ouder)
        : QAbstractListModel(ouder), zegt_(std::move(zegt))
    {}

    void Herlaad(int aantal)
    {
        beginResetModel();
        aantal_ = aantal;
        endResetModel();
    }
    [[nodiscard]] int rowCount(const QModelIndex& ouder) const override
    {
        return ouder.isValid() ? 0 : aantal_;
    }
    [[nodiscard]] QVariant data(const QModelIndex& plaats, int rol) const override
    {
        return plaats.isValid() ? zegt_(plaats.row(), rol) : QVariant();
    }

  private:
    std::function<QVariant(int, int)> zegt_;
    int aantal_ = 0;
};

/// In a wide window too the key stays out of sight.
QString Zichtbaar(const QString& regel)
{
    constexpr qsizetype verborgenNaSpaties = 60;
    return regel.left(regel.indexOf(QString(verborgenNaSpaties, u' ')));
}

/// One size for all lines, so that none is asked for before it is painted.
class Regeltekenaar : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void ZetBreed(int breed) { breed_ = breed; }
    void ZetMerken(std::function<Regellijst::Merken(int)> merken) { merken_ = std::move(merken); }

    void paint(QPainter* schilder, const QStyleOptionViewItem& gegeven,
               const QModelIndex& plaats) const override
    {
        if (!merken_) {
            QStyledItemDelegate::paint(schilder, gegeven, plaats);
            return;
        }
        QStyleOptionViewItem optie = gegeven;
        initStyleOption(&optie, plaats);
        const QString tekst = std::exchange(optie.text, QString());
        optie.widget->style()->drawControl(QStyle::CE_ItemViewItem, &optie, schilder, optie.widget);
        const bool gekozen = optie.state.testFlag(QStyle::State_Selected);
        schilder->setPen(optie.palette.color(gekozen ? QPalette::HighlightedText : QPalette::Text));
        QTextLayout beeld(tekst, optie.font);
        beeld.setFormats(Opmaak(merken_(plaats.row()), tekst.size()));
        beeld.beginLayout();
        QTextLine regel = beeld.createLine();
        regel.setNumColumns(static_cast<int>(tekst.size())); // all of it
        beeld.endLayout();
        const double boven = (optie.rect.height() - regel.height()) / 2;
        beeld.draw(schilder, optie.rect.topLeft() + QPointF(Marge, boven));
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& optie,
                                 const QModelIndex& /*plaats*/) const override
    {
        return {breed_, optie.fontMetrics.height() + Marge};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* optie, const QModelIndex& plaats) const override
    {
        QStyledItemDelegate::initStyleOption(optie, plaats);
        optie->text =
            Ingekort(optie->fontMetrics, Zichtbaar(optie->text), optie->rect.width() - 2 * Marge);
    }

  private:
    /// Black on yellow and underlined: to be read on any ground, and without seeing colours.
    static QList<QTextLayout::FormatRange> Opmaak(const Regellijst::Merken& merken,
                                                  qsizetype lengte)
    {
        QTextLayout::FormatRange deel;
        deel.format.setBackground(QColor(255, 224, 102));
        deel.format.setForeground(Qt::black);
        deel.format.setFontUnderline(true);
        QList<QTextLayout::FormatRange> delen;
        for (const auto& [begin, lang] : merken) {
            deel.start = static_cast<int>(begin);
            deel.length = static_cast<int>(lang);
            if (deel.start < lengte)
                delen << deel;
        }
        return delen;
    }

    int breed_ = 1;
    std::function<Regellijst::Merken(int)> merken_;
};

} // namespace

Regellijst::Regellijst(SelectionMode hoeveel, const QString& naam, const QString& gesproken,
                       QWidget* ouder)
    : QListView(ouder)
{
    Noem(this, naam, gesproken);
    setModel(new Regelmodel([this](int plaats, int rol) { return Zegt(plaats, rol); }, this));
    setItemDelegate(new Regeltekenaar(this));
    setSelectionMode(hoeveel);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    if (hoeveel != SingleSelection)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Regellijst::keuzeVeranderd);
    LaatKopieren(this, [this] { return Kopieertekst(); });
}

void Regellijst::ZetMerken(std::function<Merken(int)> merken)
{
    static_cast<Regeltekenaar*>(itemDelegate())->ZetMerken(std::move(merken));
}

QVariant Regellijst::Zegt(int plaats, int rol) const
{
    if (rol != Qt::DisplayRole && rol != Qt::AccessibleTextRole && rol != Qt::ToolTipRole)
        return {};
    const QString regel = NaarQString(regel_(plaats));
    if (rol == Qt::DisplayRole)
        return regel;
    const QString zichtbaar = Zichtbaar(regel);
    if (rol == Qt::AccessibleTextRole)
        return zichtbaar;
    return Past(zichtbaar) ? QVariant() : Wenk(zichtbaar);
}

bool Regellijst::Past(const QString& regel) const
{
    return fontMetrics().horizontalAdvance(regel) + 2 * Marge <= viewport()->width();
}

void Regellijst::Vul(int aantal, std::function<Tekst(int)> regel, Plek plek)
{
    const bool behouden = plek == Plek::Behouden;
    const int huidige = behouden ? currentIndex().row() : 0;
    const int boven = behouden ? verticalScrollBar()->value() : 0;
    regel_ = std::move(regel);
    static_cast<Regelmodel*>(model())->Herlaad(aantal);
    if (selectionMode() == SingleSelection)
        static_cast<Regeltekenaar*>(itemDelegate())->ZetBreed(Breedste());
    doItemsLayout();
    selectionModel()->setCurrentIndex(model()->index(std::min(huidige, aantal - 1), 0),
                                      QItemSelectionModel::NoUpdate);
    verticalScrollBar()->setValue(boven); // a current line scrolls itself into sight
    emit keuzeVeranderd();
}

/// The chosen lines, or the current one, as they read on the screen.
QString Regellijst::Kopieertekst() const
{
    std::vector<int> plaatsen = GekozenPlaatsen();
    if (plaatsen.empty() && currentIndex().isValid())
        plaatsen.push_back(currentIndex().row());
    QStringList regels;
    for (const int plaats : plaatsen)
        regels << Zichtbaar(NaarQString(regel_(plaats)));
    return regels.join(u'\n');
}

/// In pixels, of all lines.
int Regellijst::Breedste() const
{
    constexpr int fijn = 1000; // parts of a pixel in which is counted
    Tekstmeter meter;
    const QFontMetricsF maten(font());
    for (std::size_t teken = 0; teken < meter.opschuiving.size(); ++teken)
        meter.opschuiving[teken] =
            qRound(fijn * maten.horizontalAdvance(NaarQString(Tekst(1, static_cast<char>(teken)))));
    std::int64_t breedste = 0;
    for (int plaats = 0; plaats < Aantal(); ++plaats)
        breedste = std::max(breedste, meter.Breedte(regel_(plaats)));
    return 2 * Marge + static_cast<int>(breedste / fijn) + 1;
}

int Regellijst::Gekozen() const
{
    const QItemSelection stukken = selectionModel()->selection();
    return stukken.isEmpty() ? -1 : stukken.first().top();
}

std::vector<int> Regellijst::GekozenPlaatsen() const
{
    std::vector<int> plaatsen;
    for (const QItemSelectionRange& stuk : selectionModel()->selection()) {
        for (int plaats = stuk.top(); plaats <= stuk.bottom(); ++plaats)
            plaatsen.push_back(plaats);
    }
    std::sort(plaatsen.begin(), plaatsen.end());
    return plaatsen;
}

void Regellijst::Kies(const std::vector<int>& plaatsen)
{
    std::vector<int> alle = GekozenPlaatsen();
    alle.insert(alle.end(), plaatsen.begin(), plaatsen.end());
    std::sort(alle.begin(), alle.end());
    QItemSelection stukken;
    for (std::size_t i = 0; i < alle.size(); ++i) {
        const std::size_t eerste = i;
        while (i + 1 < alle.size() && alle[i + 1] <= alle[i] + 1)
            ++i;
        stukken.select(model()->index(alle[eerste], 0), model()->index(alle[i], 0));
    }
    {
        // From nothing: Qt would compare each range that was chosen with each that will be.
        const QSignalBlocker stil(this);
        clearSelection();
    }
    selectionModel()->select(stukken, QItemSelectionModel::Select);
}

void Regellijst::selectAll()
{
    std::vector<int> alle(static_cast<std::size_t>(Aantal()));
    std::iota(alle.begin(), alle.end(), 0);
    Kies(alle);
}

void Regellijst::ZetHuidige(int plaats)
{
    // Whatever keys are down.
    selectionModel()->setCurrentIndex(model()->index(plaats, 0),
                                      selectionMode() == MultiSelection
                                          ? QItemSelectionModel::NoUpdate
                                          : QItemSelectionModel::ClearAndSelect);
    scrollTo(currentIndex());
}

/// Where any number can be chosen, a line that becomes the current one is not chosen by that; with
/// Shift a click, dragging and the arrow keys choose what lies between.
QItemSelectionModel::SelectionFlags Regellijst::selectionCommand(const QModelIndex& plaats,
                                                                 const QEvent* gebeurtenis) const
{
    const QEvent::Type soort = gebeurtenis == nullptr ? QEvent::None : gebeurtenis->type();
    if (selectionMode() != MultiSelection || soort == QEvent::MouseButtonRelease)
        return QListView::selectionCommand(plaats, gebeurtenis);
    if (soort == QEvent::None)
        return QItemSelectionModel::NoUpdate;
    const auto* invoer = dynamic_cast<const QInputEvent*>(gebeurtenis);
    const auto* toets = dynamic_cast<const QKeyEvent*>(gebeurtenis);
    const bool spatie = toets != nullptr && toets->key() == Qt::Key_Space;
    if (invoer != nullptr && invoer->modifiers().testFlag(Qt::ShiftModifier) && !spatie)
        return QItemSelectionModel::SelectCurrent;
    return QListView::selectionCommand(plaats, gebeurtenis);
}

/// Where clicks choose and let go, the second of two quick ones is a click like the first.
void Regellijst::mouseDoubleClickEvent(QMouseEvent* gebeurtenis)
{
    if (selectionMode() != MultiSelection) {
        QListView::mouseDoubleClickEvent(gebeurtenis);
        return;
    }
    QMouseEvent klik(QEvent::MouseButtonPress, gebeurtenis->position(),
                     gebeurtenis->globalPosition(), gebeurtenis->button(), gebeurtenis->buttons(),
                     gebeurtenis->modifiers());
    mousePressEvent(&klik);
}

/// The first line that fits, from `vanaf` to the end and then from the top; -1 when none does.
int Regellijst::Zoek(Tekstblik getypt, int vanaf) const
{
    const Tekst gezocht = Gewichten(getypt);
    const auto begint = [&](Tekstblik tekst) {
        // One letter can count as two.
        return Gewichten(tekst.substr(0, 2 * getypt.size())).starts_with(gezocht);
    };
    for (int i = 0; i < Aantal(); ++i) {
        const int plaats = (vanaf + i) % Aantal();
        const Tekst regel = regel_(plaats);
        const std::size_t tab = regel.find('\t');
        const std::size_t naam = tab == Tekst::npos ? naamVanaf_ : tab + 1;
        if (begint(regel) ||
            (naam > 0 && begint(Tekstblik(regel).substr(std::min(naam, regel.size())))))
            return plaats;
    }
    return -1;
}

void Regellijst::keyboardSearch(const QString& toets)
{
    const bool vervolg =
        sindsToets_.isValid() && !sindsToets_.hasExpired(QApplication::keyboardInputInterval());
    sindsToets_.start();
    if (!vervolg)
        getypt_.clear();
    getypt_ += NaarTekst(toets);
    if (IsBlanco(getypt_))
        getypt_.clear(); // the space bar chooses the current line
    if (Aantal() == 0 || getypt_.empty())
        return;
    // More letters narrow the search down; one letter, once or repeatedly, goes on to the next
    // line.
    const int huidige = std::max(0, currentIndex().row());
    int plaats = getypt_.size() > 1 ? Zoek(getypt_, huidige) : -1;
    const bool eenLetter = getypt_.find_first_not_of(getypt_.front()) == Tekst::npos;
    const bool ookHuidige = selectionMode() == SingleSelection && !IetsGekozen();
    if (plaats < 0 && eenLetter)
        plaats = Zoek(getypt_.substr(0, 1), ookHuidige ? huidige : huidige + 1);
    if (plaats >= 0)
        ZetHuidige(plaats);
}

QSize Regellijst::sizeHint() const
{
    return {QListView::sizeHint().width(), minimumSizeHint().height()};
}

QSize Regellijst::minimumSizeHint() const
{
    constexpr int regels = 3;
    return {QListView::minimumSizeHint().width(),
            regels * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

} // namespace plexoran
