// What the tests of one window share: it stands before another one, and its boxes are watched.
#pragma once

#include <QGroupBox>
#include <QLabel>

#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "hulp/berichtwachter.h"
#include "hulp/venstergrepen.h"

namespace plexoran {

/// `Stand` is what the window works on, and outlives it.
template <class Venster, class Stand> class Dialoogproef : public testing::Test, protected Stand {
  protected:
    Dialoogproef() { hoofd.show(); }
    ~Dialoogproef() override { wachter.Klaar(); }

    /// Opens the window with what its constructor takes before the window in front of which it
    /// stands.
    template <class... Delen> void Toon(Delen&&... delen)
    {
        venster.reset();
        venster = std::make_unique<Venster>(std::forward<Delen>(delen)..., &hoofd);
        ToonHet();
    }
    /// The same for a window that reads when it is there: after a box of its own it need not be the
    /// active one.
    template <class... Delen> void ToonEnLees(Delen&&... delen)
    {
        venster.reset();
        venster = std::make_unique<Venster>(std::forward<Delen>(delen)..., &hoofd);
        ToonHet(false);
    }
    /// Shows a window that the test has made.
    void ToonHet(bool actief = true)
    {
        venster->show();
        if (!(actief ? QTest::qWaitForWindowActive(venster.get())
                     : QTest::qWaitForWindowExposed(venster.get())))
            throw std::runtime_error("het venster komt niet");
        QApplication::processEvents();
    }

    template <class T> [[nodiscard]] T* Deel(const std::string& naam) const
    {
        return Vind<T>(*venster, naam.c_str());
    }
    [[nodiscard]] QPushButton* Knop(const char* naam) const { return Deel<QPushButton>(naam); }
    /// Presses a button; all that was expected must have come.
    void Opdracht(const char* knop)
    {
        Klik(Knop(knop));
        wachter.Klaar();
    }
    [[nodiscard]] std::string Label(const char* naam) const
    {
        return Deel<QLabel>(naam)->text().toStdString();
    }
    /// What stands in a text field.
    [[nodiscard]] std::string Vak(const char* naam) const
    {
        return Deel<QLineEdit>(naam)->text().toStdString();
    }
    [[nodiscard]] std::vector<std::string> Regels(const char* lijst) const
    {
        return Lijstregels(*venster, lijst);
    }
    /// The line of this number, or the first one that begins so.
    void KlikRegel(const char* lijst, const auto& regel) const
    {
        plexoran::KlikRegel(*venster, lijst, regel);
    }
    /// The title of the window, and labels, buttons and frames by their names.
    using Opschriften = std::vector<std::pair<const char*, const char*>>;
    void VerwachtTeksten(const char* titel, const Opschriften& labels, const Opschriften& knoppen,
                         const Opschriften& kaders = {}) const
    {
        EXPECT_EQ(titel, venster->windowTitle().toStdString());
        for (const auto& [naam, tekst] : labels)
            EXPECT_EQ(tekst, Label(naam)) << naam;
        for (const auto& [naam, tekst] : knoppen)
            EXPECT_EQ(tekst, Opschrift(Deel<QAbstractButton>(naam))) << naam;
        for (const auto& [naam, tekst] : kaders)
            EXPECT_EQ(tekst, Deel<QGroupBox>(naam)->title().toStdString()) << naam;
    }
    /// Leaves the window without its command: by this button, by Escape and by the close box.
    static constexpr int Sluitwegen = 3;
    void Sluit(int weg, const char* knop)
    {
        if (weg == 0)
            Klik(Knop(knop));
        else if (weg == 1)
            QTest::keyClick(venster.get(), Qt::Key_Escape);
        else
            venster->close();
        EXPECT_FALSE(venster->isVisible());
    }

    Berichtwachter wachter;
    QWidget hoofd;
    std::unique_ptr<Venster> venster;
};

} // namespace plexoran
