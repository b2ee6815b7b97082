#include "platform/scherm/meerkeuzelijst.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <algorithm>

#include "platform/scherm/regelmodel.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/tekstorde.h"

namespace plexoran {
namespace {

constexpr qsizetype VerborgenNaSpaties = 60;

/// Typing looks for a line that begins with what was typed, or whose name behind the tab does.
class Zoekmodel : public Regelmodel {
  public:
    Zoekmodel(Zegt zegt, Meerkeuzelijst& lijst) : Regelmodel(std::move(zegt), &lijst), lijst_(lijst)
    {}

    [[nodiscard]] QModelIndexList match(const QModelIndex& vanaf, int /*rol*/,
                                        const QVariant& getypt, int /*treffers*/,
                                        Qt::MatchFlags /*vlaggen*/) const override
    {
        const Tekst gezocht = NaarTekst(getypt.toString());
        Tekst gewichten = Sorteersleutel(gezocht);
        gewichten.resize(gewichten.find('\0'));
        const auto lengte = 2 * getypt.toString().size(); // one letter can count as two
        const auto begint = [&](const QString& regel, qsizetype plek) {
            return Sorteersleutel(NaarTekst(regel.mid(plek, lengte))).starts_with(gewichten);
        };
        for (int i = 0; i < lijst_.Aantal(); ++i) {
            const int plaats = (vanaf.row() + i) % lijst_.Aantal();
            const QString regel = lijst_.Regel(plaats);
            const auto tab = regel.indexOf(u'\t');
            if (begint(regel, 0) || (tab >= 0 && begint(regel, tab + 1)))
                return {index(plaats, 0)};
        }
        return {};
    }

  private:
    Meerkeuzelijst& lijst_;
};

/// Paints chosen lines as selected; one height for all, and no width of its own.
class Regeltekenaar : public QStyledItemDelegate {
  public:
    explicit Regeltekenaar(Meerkeuzelijst& lijst) : QStyledItemDelegate(&lijst), lijst_(lijst) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*optie*/,
                                 const QModelIndex& /*plaats*/) const override
    {
        return {1, lijst_.fontMetrics().height() + 4};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* optie, const QModelIndex& plaats) const override
    {
        QStyledItemDelegate::initStyleOption(optie, plaats);
        optie->textElideMode = Qt::ElideRight;
        // In a wide window too the key stays out of sight.
        const auto verborgen = optie->text.indexOf(QString(VerborgenNaSpaties, QLatin1Char(' ')));
        if (verborgen >= 0)
            optie->text.truncate(verborgen);
        optie->state.setFlag(QStyle::State_Selected, lijst_.Gekozen(plaats.row()));
    }

  private:
    Meerkeuzelijst& lijst_;
};

} // namespace

Meerkeuzelijst::Meerkeuzelijst(QWidget* ouder) : QListView(ouder)
{
    setModel(new Zoekmodel([this](int plaats, int rol) { return Zegt(plaats, rol); }, *this));
    setItemDelegate(new Regeltekenaar(*this));
    setSelectionMode(NoSelection);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    // The key stands far to the right in each line, out of sight.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void Meerkeuzelijst::Vul(int aantal, std::function<QString(int)> regel)
{
    static_cast<Regelmodel*>(model())->Herlaad(aantal, [&] {
        regel_ = std::move(regel);
        gekozen_.assign(static_cast<std::size_t>(aantal), false);
        aantalGekozen_ = 0;
    });
    emit keuzeVeranderd();
}

/// Whether a line is chosen is no selection of Qt's, so a screen reader is told of it.
QVariant Meerkeuzelijst::Zegt(int plaats, int rol) const
{
    if (rol == Qt::DisplayRole)
        return Regel(plaats);
    if (rol != Qt::AccessibleTextRole)
        return {};
    const QString stand =
        Gekozen(plaats) ? QStringLiteral("gekozen") : QStringLiteral("niet gekozen");
    return QStringLiteral("%1, %2").arg(Regel(plaats).simplified(), stand);
}

QString Meerkeuzelijst::Regel(int plaats) const
{
    return regel_(plaats);
}

std::vector<int> Meerkeuzelijst::GekozenPlaatsen() const
{
    std::vector<int> plaatsen;
    plaatsen.reserve(static_cast<std::size_t>(aantalGekozen_));
    for (int plaats = 0; plaats < Aantal(); ++plaats) {
        if (Gekozen(plaats))
            plaatsen.push_back(plaats);
    }
    return plaatsen;
}

void Meerkeuzelijst::Zet(int plaats, bool aan)
{
    const auto i = static_cast<std::size_t>(plaats);
    if (gekozen_[i] == aan)
        return;
    gekozen_[i] = aan;
    aantalGekozen_ += aan ? 1 : -1;
}

void Meerkeuzelijst::Gewijzigd()
{
    viewport()->update();
    emit keuzeVeranderd();
}

void Meerkeuzelijst::Kies(int plaats, bool aan)
{
    Zet(plaats, aan);
    Gewijzigd();
}

void Meerkeuzelijst::KiesAlles(bool aan)
{
    gekozen_.assign(gekozen_.size(), aan);
    aantalGekozen_ = aan ? Aantal() : 0;
    Gewijzigd();
}

void Meerkeuzelijst::KiesOok(const std::function<bool(int)>& hoort)
{
    for (int plaats = 0; plaats < Aantal(); ++plaats) {
        if (hoort(plaats))
            Zet(plaats, true);
    }
    Gewijzigd();
}

void Meerkeuzelijst::ZetHuidige(int plaats)
{
    if (plaats < 0 || plaats >= Aantal())
        return;
    setCurrentIndex(model()->index(plaats, 0));
    scrollTo(currentIndex());
}

/// From the current line up to and including another one.
void Meerkeuzelijst::KiesTot(int plaats, bool aan)
{
    const int huidige = currentIndex().isValid() ? currentIndex().row() : plaats;
    for (int i = std::min(huidige, plaats); i <= std::max(huidige, plaats); ++i)
        Zet(i, aan);
    Gewijzigd();
}

void Meerkeuzelijst::mousePressEvent(QMouseEvent* gebeurtenis)
{
    const QModelIndex onder = indexAt(gebeurtenis->position().toPoint());
    sleept_ = gebeurtenis->button() == Qt::LeftButton && onder.isValid();
    if (!sleept_)
        return;
    if (gebeurtenis->modifiers() & Qt::ShiftModifier) {
        KiesTot(onder.row(), true);
    } else {
        slepenKiest_ = !Gekozen(onder.row());
        Kies(onder.row(), slepenKiest_);
    }
    setCurrentIndex(onder);
}

void Meerkeuzelijst::mouseMoveEvent(QMouseEvent* gebeurtenis)
{
    const QModelIndex onder = indexAt(gebeurtenis->position().toPoint());
    if (!sleept_ || !(gebeurtenis->buttons() & Qt::LeftButton) || !onder.isValid() ||
        onder == currentIndex())
        return;
    KiesTot(onder.row(), slepenKiest_);
    setCurrentIndex(onder);
}

/// The second click of two quick ones is a click like the first.
void Meerkeuzelijst::mouseDoubleClickEvent(QMouseEvent* gebeurtenis)
{
    mousePressEvent(gebeurtenis);
}

void Meerkeuzelijst::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const int vorige = currentIndex().row();
    if (gebeurtenis->matches(QKeySequence::SelectAll)) {
        KiesAlles(true);
    } else if (gebeurtenis->key() == Qt::Key_Space) {
        if (vorige >= 0)
            Kies(vorige, !Gekozen(vorige));
    } else {
        QListView::keyPressEvent(gebeurtenis);
        const int nu = currentIndex().row();
        // A capital letter comes with Shift too, but only looks for a line.
        if ((gebeurtenis->modifiers() & Qt::ShiftModifier) && gebeurtenis->text().isEmpty() &&
            vorige >= 0 && nu != vorige) {
            for (int i = std::min(vorige, nu); i <= std::max(vorige, nu); ++i)
                Zet(i, true);
            Gewijzigd();
        }
    }
}

} // namespace plexoran
