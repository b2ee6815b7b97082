// Working a window as its user does. Controls are found by their names.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {

/// Finds a control of a window by its name.
template <class T> T* Vind(const QWidget& in, const char* naam)
{
    auto* deel = in.findChild<T*>(QString::fromLatin1(naam));
    if (deel == nullptr)
        throw std::runtime_error(std::string("niet gevonden: ") + naam);
    return deel;
}

/// Whether a part stands wholly within its window, so that nothing need scroll to reach it.
inline bool StaatHeelIn(const QWidget& venster, const QWidget& deel)
{
    return venster.rect().contains(QRect(deel.mapTo(&venster, QPoint()), deel.size()));
}

/// A caption as it reads on the screen, without the mark of its mnemonic.
inline std::string Opschrift(const QAbstractButton* knop)
{
    return knop->text().replace(u"&&"_s, u"\1"_s).remove(u'&').replace(u'\1', u'&').toStdString();
}

/// Between two acts of a user the program gets the time to do what it put off.
inline void Klik(QWidget* deel, QPoint plek = {})
{
    QTest::mouseClick(deel, Qt::LeftButton, {}, plek);
    QApplication::processEvents();
}

/// Presses a button of a window.
inline void Druk(const QWidget& in, const char* knop)
{
    Klik(Vind<QPushButton>(in, knop));
}

/// Picks an entry of a drop-down from its list, which may be the entry that is shown.
inline void KiesUit(QComboBox* keus, int plaats)
{
    keus->showPopup();
    QApplication::processEvents();
    keus->view()->setCurrentIndex(keus->model()->index(plaats, 0));
    QTest::keyClick(keus->view(), Qt::Key_Return);
    QApplication::processEvents();
}

/// The entries of a drop-down.
inline std::vector<std::string> Keuzes(const QComboBox* keus)
{
    std::vector<std::string> keuzes;
    for (int i = 0; i < keus->count(); ++i)
        keuzes.push_back(keus->itemText(i).toStdString());
    return keuzes;
}

/// Turns the wheel over a part; only as an event of the system it goes on to what is around it.
inline void DraaiWiel(QWidget* boven, QPoint hoek, Qt::KeyboardModifiers bij = {})
{
    const QPointF plek(20, 20);
    QWheelEvent wiel(plek, boven->mapToGlobal(plek), {}, hoek, Qt::NoButton, bij, Qt::NoScrollPhase,
                     false);
    QSpontaneKeyEvent::setSpontaneous(&wiel);
    qApp->notify(boven, &wiel);
}

/// The names of the parts that get the focus by so many presses of the Tab key, one after another.
inline std::string MetTab(int keer)
{
    std::string namen;
    while (keer-- > 0) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        namen += QApplication::focusWidget()->objectName().toStdString() + " ";
    }
    return namen;
}

/// The lines of a list as they read on the screen.
inline std::vector<std::string> Lijstregels(const QWidget& in, const char* naam)
{
    std::vector<std::string> regels;
    const auto* model = Vind<QAbstractItemView>(in, naam)->model();
    for (int rij = 0; rij < model->rowCount(); ++rij)
        regels.push_back(model->index(rij, 0).data().toString().toStdString());
    return regels;
}

/// Clicks on a line of a list.
inline void KlikRegel(const QWidget& in, const char* naam, int regel)
{
    auto* lijst = Vind<QAbstractItemView>(in, naam);
    const QModelIndex plek = lijst->model()->index(regel, 0);
    lijst->scrollTo(plek);
    Klik(lijst->viewport(), lijst->visualRect(plek).center());
}

/// The same for the first line that begins with a text.
inline void KlikRegel(const QWidget& in, const char* naam, const std::string& begin)
{
    const auto regels = Lijstregels(in, naam);
    const auto gevonden = std::find_if(regels.begin(), regels.end(),
                                       [&](const auto& regel) { return regel.starts_with(begin); });
    if (gevonden == regels.end())
        throw std::runtime_error("geen regel die zo begint: " + begin);
    KlikRegel(in, naam, static_cast<int>(gevonden - regels.begin()));
}

/// Types a text, key by key; any character will do.
inline void Typ(QWidget* deel, const QString& tekst)
{
    for (const QChar teken : tekst)
        QTest::sendKeyEvent(QTest::Click, deel, Qt::Key_unknown, QString(teken), {});
}

/// Replaces what stands in a text box, by typing.
inline void Schrijf(QWidget& in, const char* vak, const QString& tekst)
{
    auto* regel = Vind<QLineEdit>(in, vak);
    regel->setFocus();
    regel->selectAll();
    if (tekst.isEmpty())
        QTest::keyClick(regel, Qt::Key_Backspace);
    else
        Typ(regel, tekst);
    QApplication::processEvents();
}

} // namespace plexoran
