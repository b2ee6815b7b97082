#include "platform/scherm/tekstvak.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <array>
#include <limits>

#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

/// Line ends and tabs become a space, the other control characters go.
QString ZonderStuurtekens(const QString& tekst)
{
    QString uit;
    for (const QChar teken : tekst) {
        const bool scheiding = teken == QChar::LineFeed || teken == QChar::CarriageReturn ||
                               teken == QChar::Tabulation || teken == QChar::LineSeparator ||
                               teken == QChar::ParagraphSeparator;
        if (scheiding)
            uit += u' ';
        else if (teken.category() != QChar::Other_Control)
            uit += teken;
    }
    return uit;
}

/// What an edit put into a text, between what both texts begin with and what they end with.
std::array<QString, 3> VindIngevoegd(const QString& oud, const QString& nieuw)
{
    qsizetype voor =
        std::mismatch(oud.begin(), oud.end(), nieuw.begin(), nieuw.end()).first - oud.begin();
    const qsizetype na =
        std::mismatch(oud.rbegin(), oud.rend() - voor, nieuw.rbegin(), nieuw.rend() - voor).first -
        oud.rbegin();
    // An accent that is typed after its letter belongs to that letter.
    if (voor > 0 && voor < nieuw.size() - na && nieuw[voor].isMark())
        --voor;
    return {nieuw.left(voor), nieuw.mid(voor, nieuw.size() - voor - na), nieuw.right(na)};
}

QString Melding(const std::vector<Vervanging>& vervangen)
{
    QStringList regels;
    for (const Vervanging& vervanging : vervangen) {
        const QString teken = QString::fromStdU16String(vervanging.teken);
        const QString regel = vervanging.door.empty()
                                  ? u"'%1' is weggelaten."_s.arg(teken)
                                  : u"In plaats van '%1' staat er nu '%2'."_s.arg(
                                        teken, NaarQString(vervanging.door));
        if (!regels.contains(regel))
            regels << regel;
    }
    const QString begin = regels.size() == 1 ? u"Dit teken kan niet worden opgeslagen."_s
                                             : u"Deze tekens kunnen niet worden opgeslagen."_s;
    return begin + u"\n\n"_s + regels.join(u'\n') + u"\n\nKijk na of de tekst zo goed is."_s;
}

} // namespace

Tekstvak::Tekstvak(QWidget* ouder) : QLineEdit(ouder)
{
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &Tekstvak::Zuiver);
}

void Tekstvak::ZetTekst(Tekstblik tekst)
{
    setText(NaarQString(tekst));
    setCursorPosition(0);
    begintekst_ = text();
    beginbytes_ = tekst;
    vorige_ = begintekst_;
}

Tekst Tekstvak::GeefTekst() const
{
    return text() == begintekst_ ? beginbytes_ : NaarTekst(text());
}

void Tekstvak::Vervang(Tekstblik tekst)
{
    ZetSchoon(NaarQString(tekst));
}

void Tekstvak::ZetSchoon(const QString& tekst)
{
    if (tekst != text()) {
        const auto totEind = text().size() - cursorPosition();
        setText(tekst);
        setCursorPosition(static_cast<int>(std::max<qsizetype>(0, tekst.size() - totEind)));
    }
    vorige_ = tekst;
}

QString Tekstvak::VolgensToetsregel(const QString& ingevoegd, qsizetype lengte) const
{
    if (!toetsregel_)
        return ingevoegd;
    Tekst uit;
    for (const char teken : NaarTekst(ingevoegd)) {
        const auto toegestaan = toetsregel_(teken, static_cast<std::size_t>(lengte) + uit.size());
        if (toegestaan)
            uit += *toegestaan;
    }
    return NaarQString(uit);
}

void Tekstvak::Zuiver()
{
    const auto [voor, ingevoegd, na] = VindIngevoegd(vorige_, text());
    const Omzetting omzetting = NaarCodepagina(ZonderStuurtekens(ingevoegd).toStdU16String());
    const QString schoon = VolgensToetsregel(NaarQString(omzetting.tekst), voor.size() + na.size());
    ZetSchoon(voor + schoon + na);
    // Shown when the key or paste has been dealt with: a box inside it would eat what follows.
    if (!omzetting.vervangen.empty())
        QTimer::singleShot(0, this, [this, tekst = Melding(omzetting.vervangen)] {
            Meld(this, QMessageBox::Warning, tekst);
        });
}

/// A key is judged by the text as it stands, a selection that it would replace included.
void Tekstvak::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const QString getypt = gebeurtenis->text();
    const bool teken = getypt.size() == 1 && getypt.front().isPrint() &&
                       !(gebeurtenis->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    // What the code page lacks is dealt with when it stands in the box, with its message.
    const bool past = ExactNaarCodepagina(getypt.toStdU16String()).has_value();
    if (!toetsregel_ || !teken || !past) {
        QLineEdit::keyPressEvent(gebeurtenis);
        return;
    }
    const QString toegestaan = VolgensToetsregel(getypt, text().size());
    if (toegestaan.isEmpty())
        return;
    QKeyEvent vervangend(gebeurtenis->type(), gebeurtenis->key(), gebeurtenis->modifiers(),
                         toegestaan, gebeurtenis->isAutoRepeat());
    QLineEdit::keyPressEvent(&vervangend);
}

void Tekstvak::focusOutEvent(QFocusEvent* gebeurtenis)
{
    QLineEdit::focusOutEvent(gebeurtenis);
    const auto reden = gebeurtenis->reason();
    if (reden == Qt::PopupFocusReason || reden == Qt::ActiveWindowFocusReason)
        return;
    emit verlaten();
    setCursorPosition(0); // a long text shows its beginning when nobody works in it
}

} // namespace plexoran
