#include "hulp/berichtwachter.h"

#include <gtest/gtest.h>

#include <utility>

#include "hulp/venstergrepen.h"

namespace plexoran {
namespace {

QStringList Opschriften(const QMessageBox& venster)
{
    QStringList opschriften;
    for (const QAbstractButton* knop : venster.buttons())
        opschriften << QString::fromStdString(Opschrift(knop));
    return opschriften;
}

QAbstractButton* Knop(const QMessageBox& venster, const QString& opschrift)
{
    for (QAbstractButton* knop : venster.buttons()) {
        if (Opschrift(knop) == opschrift.toStdString())
            return knop;
    }
    return nullptr;
}

void Faal(const QString& tekst)
{
    ADD_FAILURE() << tekst.toStdString();
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

void Berichtwachter::Verwacht(Bericht bericht)
{
    verwacht_.push_back({std::move(bericht), nullptr});
}

void Berichtwachter::Informatie(const QString& tekst)
{
    Verwacht({.tekst = tekst, .knoppen = {u"OK"_s}});
}

void Berichtwachter::Waarschuwing(const QString& tekst)
{
    Verwacht({.tekst = tekst, .icoon = QMessageBox::Warning, .knoppen = {u"OK"_s}});
}

void Berichtwachter::SleutelsOp(const QString& wat, const std::string& spelerbestand)
{
    Verwacht(
        {.tekst = wat +
                  u": er zijn geen nieuwe sleutels meer. Wat er al was, is niet veranderd. Sluit "
                  "Plexoran, zet op de regel hieronder achter HKEY= de hoogste sleutel die ooit is "
                  "uitgegeven, en start het opnieuw.\n\nBestand: "_s +
                  QString::fromStdString(spelerbestand) + u"\nRegel: 1"_s,
         .icoon = QMessageBox::Critical});
}

void Berichtwachter::Bedien(std::function<void(QDialog&)> stappen)
{
    verwacht_.push_back({std::nullopt, std::move(stappen)});
}

void Berichtwachter::Klaar()
{
    for (const Verwachting& verwachting : std::exchange(verwacht_, {}))
        Faal(verwachting.bericht ? u"verwacht, maar niet gekomen: "_s + verwachting.bericht->tekst
                                 : u"het verwachte venster is niet gekomen"_s);
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
        Faal(u"onverwacht bericht: "_s + venster.text());
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
    const auto gelijk = [](const QString& wat, const QString& is, const QString& moet) {
        if (is != moet)
            Faal(wat + u" is\n  \""_s + is + u"\"\nen niet\n  \""_s + moet + u"\""_s);
    };
    const auto vergelijk = [&](const QString& wat, const QString& is, const QString& moet) {
        gelijk(wat, bericht.alleenBegin ? is.left(moet.size()) : is, moet);
    };
    vergelijk(u"de tekst"_s, venster.text(), bericht.tekst);
    vergelijk(u"de toelichting"_s, venster.informativeText(), bericht.toelichting);
    gelijk(u"de titel"_s, venster.windowTitle(), bericht.titel);
    gelijk(u"de tekstsoort"_s, QString::number(venster.textFormat()),
           QString::number(Qt::PlainText));
    if (venster.icon() != bericht.icoon)
        Faal(u"icoon %1 en niet %2 bij: %3"_s.arg(venster.icon())
                 .arg(bericht.icoon)
                 .arg(venster.text()));
    if (!bericht.knoppen.isEmpty())
        gelijk(u"de rij knoppen"_s, Opschriften(venster).join(u" | "_s),
               bericht.knoppen.join(u" | "_s));
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
        Faal(u"geen knop '%1' bij: %2"_s.arg(antwoord, venster.text()));
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
        Faal(u"onverwacht venster: "_s + dialoog.objectName());
    } else {
        const auto stappen = std::move(verwacht_.front().stappen);
        verwacht_.pop_front();
        // Activating it is done by now; what showing put off runs before the steps.
        if (!QTest::qWaitForWindowActive(&dialoog, geduld_))
            Faal(u"het venster wordt niet actief: "_s + dialoog.objectName());
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
        Faal(u"de stappen lieten het venster open: "_s + dialoog.objectName());
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
    Faal(u"te lang open: %1 '%2'"_s.arg(QString::fromLatin1(nu->metaObject()->className()),
                                        nu->objectName()));
    sinds_.start();
    if (auto* dialoog = qobject_cast<QDialog*>(nu))
        dialoog->done(QDialog::Rejected);
    else
        nu->close();
}

} // namespace plexoran
