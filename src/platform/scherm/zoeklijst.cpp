#include "platform/scherm/zoeklijst.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

#include "platform/scherm/meter.h"
#include "platform/scherm/regelmodel.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/tekstorde.h"

namespace plexoran {
namespace {

constexpr double MicrometerPerMm = 1000.0;

/// One size for all lines, so that none is asked for before it is painted.
class Regeltekenaar : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void ZetMaat(QSize maat) { maat_ = maat; }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*optie*/,
                                 const QModelIndex& /*plaats*/) const override
    {
        return maat_;
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* optie, const QModelIndex& plaats) const override
    {
        QStyledItemDelegate::initStyleOption(optie, plaats);
        optie->textElideMode = Qt::ElideNone;
    }

  private:
    QSize maat_;
};

/// What texts are compared by: equal for letters that differ in case or accent only.
Tekst Gewichten(Tekstblik tekst)
{
    Tekst sleutel = Sorteersleutel(tekst);
    sleutel.resize(sleutel.find('\0'));
    return sleutel;
}

} // namespace

Zoeklijst::Zoeklijst(std::size_t naamVanaf, const QFont& letter, QWidget* ouder)
    : QListView(ouder), naamVanaf_(naamVanaf), meter_(MaakMeter(letter, 1))
{
    setFont(letter);
    setModel(new Regelmodel(
        [this](int plaats, int rol) {
            return rol == Qt::DisplayRole ? QVariant(NaarQString(Regel(plaats))) : QVariant();
        },
        this));
    setItemDelegate(new Regeltekenaar(this));
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Zoeklijst::keuzeVeranderd);
}

void Zoeklijst::Vul(int aantal, std::function<Tekst(int)> regel, Plek plek)
{
    const bool behouden = plek == Plek::Behouden;
    const int huidige = behouden ? currentIndex().row() : 0;
    const int boven = behouden ? verticalScrollBar()->value() : 0;
    static_cast<Regelmodel*>(model())->Herlaad(aantal, [&] {
        aantal_ = aantal;
        regel_ = std::move(regel);
    });
    std::int64_t breedste = 0;
    for (int plaats = 0; plaats < aantal_; ++plaats)
        breedste = std::max(breedste, meter_.Breedte(Regel(plaats)));
    constexpr int marge = 4;
    static_cast<Regeltekenaar*>(itemDelegate())
        ->ZetMaat({2 * marge + static_cast<int>(static_cast<double>(breedste) / MicrometerPerMm),
                   fontMetrics().height() + marge});
    doItemsLayout();
    ZetHuidige(std::min(huidige, aantal_ - 1));
    verticalScrollBar()->setValue(boven);
    emit keuzeVeranderd();
}

int Zoeklijst::Gekozen() const
{
    const QModelIndexList gekozen = selectionModel()->selectedIndexes();
    return gekozen.isEmpty() ? -1 : gekozen.first().row();
}

void Zoeklijst::KiesNiets()
{
    selectionModel()->clearSelection();
}

void Zoeklijst::ZetHuidige(int plaats)
{
    if (plaats < 0 || plaats >= aantal_)
        return;
    const int boven = verticalScrollBar()->value();
    selectionModel()->setCurrentIndex(model()->index(plaats, 0), QItemSelectionModel::NoUpdate);
    verticalScrollBar()->setValue(boven); // a current line scrolls itself into sight
}

/// The first line that fits, from `vanaf` to the end and then from the top; -1 when none does.
int Zoeklijst::Zoek(Tekstblik getypt, int vanaf) const
{
    const bool opSleutel = getypt.front() >= '0' && getypt.front() <= '9';
    const Tekst gezocht = Gewichten(getypt);
    for (int i = 0; i < aantal_; ++i) {
        const int plaats = (vanaf + i) % aantal_;
        const Tekst regel = Regel(plaats);
        const Tekstblik naam =
            Tekstblik(regel).substr(opSleutel ? 0 : std::min(naamVanaf_, regel.size()));
        if (Gewichten(naam).starts_with(gezocht))
            return plaats;
    }
    return -1;
}

void Zoeklijst::keyboardSearch(const QString& toets)
{
    const bool vervolg =
        sindsToets_.isValid() && !sindsToets_.hasExpired(QApplication::keyboardInputInterval());
    sindsToets_.start();
    if (!vervolg)
        getypt_.clear();
    getypt_ += NaarTekst(toets);
    if (IsBlanco(getypt_))
        getypt_.clear(); // the space bar chooses the current line
    if (aantal_ == 0 || getypt_.empty())
        return;
    // More letters narrow the search down; one letter, once or repeatedly, goes on to the next
    // line.
    const int huidige = std::max(0, currentIndex().row());
    int plaats = getypt_.size() > 1 ? Zoek(getypt_, huidige) : -1;
    const bool eenLetter = getypt_.find_first_not_of(getypt_.front()) == Tekst::npos;
    if (plaats < 0 && eenLetter)
        plaats = Zoek(getypt_.substr(0, 1), Gekozen() < 0 ? huidige : huidige + 1);
    if (plaats >= 0)
        setCurrentIndex(model()->index(plaats, 0));
}

void Zoeklijst::keyPressEvent(QKeyEvent* gebeurtenis)
{
    switch (gebeurtenis->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit enterGedrukt();
        break;
    case Qt::Key_Delete:
        emit deleteGedrukt();
        break;
    default:
        QListView::keyPressEvent(gebeurtenis);
    }
}

} // namespace plexoran
