#include "platform/scherm/berichten.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include "platform/scherm/frmBericht.h"

namespace plexoran {
namespace {

QString Titel(const QString& titel)
{
    return titel.isEmpty() ? QString::fromLatin1(Programmatitel) : titel;
}

/// Texts carry names from files: never let one be taken for markup.
void Vul(QMessageBox& venster, const QString& tekst)
{
    venster.setTextFormat(Qt::PlainText);
    venster.setText(tekst);
}

/// A box whose lines are never broken: in a table a broken line would read as one more.
class Verslagbericht : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    bool event(QEvent* gebeurtenis) override
    {
        // A message box answers this by breaking its lines again.
        return gebeurtenis->type() == QEvent::LayoutRequest ? QDialog::event(gebeurtenis)
                                                            : QMessageBox::event(gebeurtenis);
    }

    void showEvent(QShowEvent* gebeurtenis) override
    {
        QMessageBox::showEvent(gebeurtenis);
        for (QLabel* label : findChildren<QLabel*>())
            label->setWordWrap(false);
        layout()->activate();
        setFixedSize(layout()->totalSizeHint());
    }
};

} // namespace

void Meld(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const QString& titel)
{
    QMessageBox venster(icoon, Titel(titel), QString(), QMessageBox::Ok, ouder);
    Vul(venster, tekst);
    venster.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
    venster.exec();
}

void MeldVerslag(QWidget* ouder, const QString& tekst, const QString& titel)
{
    constexpr int regelsInBericht = 25;
    if (tekst.count(QLatin1Char('\n')) > regelsInBericht) {
        frmBericht(tekst, titel, ouder).exec();
        return;
    }
    Verslagbericht venster(QMessageBox::NoIcon, titel, QString(), QMessageBox::Ok, ouder);
    Vul(venster, tekst);
    venster.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    venster.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
    venster.exec();
}

bool Vraag(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const QString& titel)
{
    QMessageBox venster(icoon, Titel(titel), QString(), QMessageBox::Ok | QMessageBox::Cancel,
                        ouder);
    Vul(venster, tekst);
    venster.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
    venster.button(QMessageBox::Cancel)->setText(QStringLiteral("Annuleren"));
    return venster.exec() == QMessageBox::Ok;
}

int Kies(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst,
         const QStringList& antwoorden)
{
    QMessageBox venster(icoon, Titel(QString()), QString(), QMessageBox::NoButton, ouder);
    Vul(venster, tekst);
    QList<QAbstractButton*> knoppen;
    for (const QString& antwoord : antwoorden)
        knoppen << venster.addButton(antwoord, QMessageBox::ActionRole);
    venster.setDefaultButton(qobject_cast<QPushButton*>(knoppen.first()));
    venster.setEscapeButton(knoppen.last());
    venster.exec();
    const auto plaats = knoppen.indexOf(venster.clickedButton());
    return static_cast<int>(plaats < 0 ? knoppen.size() - 1 : plaats);
}

QString Bijzonderheden(const Fout& fout)
{
    QStringList regels;
    if (!fout.bestand.empty())
        regels << QStringLiteral("Bestand: ") + QString::fromStdString(fout.bestand);
    if (fout.regel > 0)
        regels << QStringLiteral("Regel: ") + QString::number(fout.regel);
    if (!fout.systeem.empty())
        regels << QStringLiteral("Melding van het systeem: ") +
                      QString::fromStdString(fout.systeem);
    return regels.join(QLatin1Char('\n'));
}

} // namespace plexoran
