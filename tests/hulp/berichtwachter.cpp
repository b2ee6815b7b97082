#include "hulp/berichtwachter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <utility>

namespace plexoran {
namespace {

/// As it reads on the screen, without the mark of its mnemonic.
QString Opschrift(const QAbstractButton& knop)
{
    return knop.text().remove(QLatin1Char('&'));
}

QStringList Opschriften(const QMessageBox& venster)
{
    QStringList opschriften;
    for (const QAbstractButton* knop : venster.buttons())
        opschriften << Opschrift(*knop);
    return opschriften;
}

QAbstractButton* Knop(const QMessageBox& venster, const QString& opschrift)
{
    for (QAbstractButton* knop : venster.buttons()) {
        if (Opschrift(*knop) == opschrift)
            return knop;
    }
    return nullptr;
}

} // namespace

Berichtwachter::Berichtwachter()
{
    qApp->installEventFilter(this);
    connect(&wekker_, &QTimer::timeout, this, &Berichtwachter::Waak);
    wekker_.start(50);
}

Berichtwachter::~Berichtwachter()
{
    Klaar();
}

void Berichtwachter::Faal(const QString& tekst) const
{
    if (fouten_ != nullptr)
        *fouten_ << tekst;
    else
        ADD_FAILURE() << tekst.toStdString();
}

void Berichtwachter::Verwacht(Bericht bericht)
{
    verwacht_.push_back({std::move(bericht), nullptr});
}

void Berichtwachter::Informatie(const QString& tekst)
{
    Verwacht({.tekst = tekst, .knoppen = {QStringLiteral("OK")}});
}

void Berichtwachter::Waarschuwing(const QString& tekst)
{
    Verwacht({.tekst = tekst, .icoon = QMessageBox::Warning, .knoppen = {QStringLiteral("OK")}});
}

void Berichtwachter::SleutelsOp(const QString& wat, const std::string& spelerbestand)
{
    Verwacht({.tekst = wat +
                       QStringLiteral(": er zijn geen nieuwe sleutels meer. De gegevens zijn niet "
                                      "veranderd. Zet op de regel hieronder achter HKEY= de "
                                      "hoogste sleutel die ooit is uitgegeven, en start Plexoran "
                                      "opnieuw.\n\nBestand: ") +
                       QString::fromStdString(spelerbestand) + QStringLiteral("\nRegel: 1"),
              .icoon = QMessageBox::Critical});
}

void Berichtwachter::Bedien(std::function<void(QDialog&)> stappen)
{
    verwacht_.push_back({std::nullopt, std::move(stappen)});
}

void Berichtwachter::Klaar()
{
    for (const Verwachting& verwachting : std::exchange(verwacht_, {}))
        Faal(verwachting.bericht
                 ? QStringLiteral("verwacht, maar niet gekomen: ") + verwachting.bericht->tekst
                 : QStringLiteral("het verwachte venster is niet gekomen"));
}

/// A window shows just before its own event loop begins; it is dealt with inside that loop.
bool Berichtwachter::eventFilter(QObject* object, QEvent* gebeurtenis)
{
    if (gebeurtenis->type() == QEvent::Show) {
        auto* dialoog = qobject_cast<QDialog*>(object);
        // A progress window asks nothing.
        if (dialoog != nullptr && dialoog->isModal() && !object->inherits("QProgressDialog"))
            QTimer::singleShot(0, dialoog, [this, dialoog] { Verschenen(*dialoog); });
    }
    return QObject::eventFilter(object, gebeurtenis);
}

void Berichtwachter::Verschenen(QDialog& dialoog)
{
    if (!dialoog.isVisible())
        return;
    if (auto* bericht = qobject_cast<QMessageBox*>(&dialoog))
        Behandel(*bericht);
    else
        BehandelDialoog(dialoog);
}

void Berichtwachter::Behandel(QMessageBox& venster)
{
    if (beslis_) {
        Beantwoord(venster, beslis_(venster));
        return;
    }
    if (verwacht_.empty() || !verwacht_.front().bericht) {
        Faal(QStringLiteral("onverwacht bericht: ") + venster.text());
        SluitOnschuldig(venster);
        return;
    }
    const Bericht bericht = *verwacht_.front().bericht;
    verwacht_.pop_front();
    Vergelijk(venster, bericht);
    Beantwoord(venster, bericht.antwoord);
}

void Berichtwachter::Vergelijk(const QMessageBox& venster, const Bericht& bericht)
{
    const auto gelijk = [this](const QString& wat, const QString& is, const QString& moet) {
        if (is != moet)
            Faal(wat + QStringLiteral(" is\n  \"") + is + QStringLiteral("\"\nen niet\n  \"") +
                 moet + QStringLiteral("\""));
    };
    const auto vergelijk = [&](const QString& wat, const QString& is, const QString& moet) {
        gelijk(wat, bericht.alleenBegin ? is.left(moet.size()) : is, moet);
    };
    vergelijk(QStringLiteral("de tekst"), venster.text(), bericht.tekst);
    vergelijk(QStringLiteral("de toelichting"), venster.informativeText(), bericht.toelichting);
    gelijk(QStringLiteral("de titel"), venster.windowTitle(), bericht.titel);
    gelijk(QStringLiteral("de tekstsoort"), QString::number(venster.textFormat()),
           QString::number(Qt::PlainText));
    if (venster.icon() != bericht.icoon)
        Faal(QStringLiteral("icoon %1 en niet %2 bij: %3")
                 .arg(venster.icon())
                 .arg(bericht.icoon)
                 .arg(venster.text()));
    if (!bericht.knoppen.isEmpty())
        gelijk(QStringLiteral("de rij knoppen"), Opschriften(venster).join(QStringLiteral(" | ")),
               bericht.knoppen.join(QStringLiteral(" | ")));
}

void Berichtwachter::Beantwoord(QMessageBox& venster, const QString& antwoord)
{
    if (antwoord == Escape) {
        QTest::keyClick(&venster, Qt::Key_Escape);
    } else if (antwoord == Sluitvak) {
        venster.close();
    } else if (QAbstractButton* knop = Knop(venster, antwoord)) {
        knop->click();
    } else {
        Faal(QStringLiteral("geen knop '%1' bij: %2").arg(antwoord, venster.text()));
        SluitOnschuldig(venster);
    }
}

void Berichtwachter::SluitOnschuldig(QMessageBox& venster)
{
    QAbstractButton* knop = venster.escapeButton();
    if (knop == nullptr)
        knop = venster.button(QMessageBox::Cancel);
    if (knop == nullptr && !venster.buttons().isEmpty())
        knop = venster.buttons().constLast();
    if (knop != nullptr)
        knop->click();
    else
        venster.done(QDialog::Rejected);
}

void Berichtwachter::BehandelDialoog(QDialog& dialoog)
{
    const QPointer<QDialog> nog(&dialoog);
    if (verwacht_.empty() || verwacht_.front().bericht) {
        Faal(QStringLiteral("onverwacht venster: ") + dialoog.objectName());
    } else {
        const auto stappen = std::move(verwacht_.front().stappen);
        verwacht_.pop_front();
        // Activating it is done by now; what showing put off runs before the steps.
        if (!QTest::qWaitForWindowActive(&dialoog, geduld_))
            Faal(QStringLiteral("het venster wordt niet actief: ") + dialoog.objectName());
        QApplication::processEvents();
        try { // an exception would not survive the event loop
            stappen(dialoog);
        } catch (const std::exception& fout) {
            Faal(QString::fromUtf8(fout.what()));
            dialoog.done(QDialog::Rejected);
            return;
        }
        if (!nog || !nog->isVisible())
            return;
        Faal(QStringLiteral("de stappen lieten het venster open: ") + dialoog.objectName());
    }
    dialoog.done(QDialog::Rejected);
}

/// Whatever stays open too long is closed, menus and lists of drop-downs included.
void Berichtwachter::Waak()
{
    QWidget* nu = QApplication::activePopupWidget();
    if (nu == nullptr)
        nu = QApplication::activeModalWidget();
    if (nu == nullptr || nu != bewaakt_) {
        bewaakt_ = nu;
        sinds_.start();
        return;
    }
    if (sinds_.elapsed() < geduld_)
        return;
    Faal(QStringLiteral("te lang open: %1 '%2'")
             .arg(QString::fromLatin1(nu->metaObject()->className()), nu->objectName()));
    sinds_.start();
    if (auto* dialoog = qobject_cast<QDialog*>(nu))
        dialoog->done(QDialog::Rejected);
    else
        nu->close();
}

} // namespace plexoran
