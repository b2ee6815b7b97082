// What the tests of one window share: it stands before another one, and its boxes are watched.
#pragma once

#include <QLabel>
#include <QPushButton>

#include <memory>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

#include "hulp/berichtwachter.h"
#include "hulp/labels.h"
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
        EXPECT_EQ(std::vector<std::string>(), ZonderLabel(*venster));
    }

    template <class T> [[nodiscard]] T* Deel(const std::string& naam) const
    {
        return Vind<T>(*venster, naam.c_str());
    }
    [[nodiscard]] QPushButton* Knop(const char* naam) const { return Deel<QPushButton>(naam); }
    [[nodiscard]] std::string Label(const char* naam) const
    {
        return Deel<QLabel>(naam)->text().toStdString();
    }

    Berichtwachter wachter;
    QWidget hoofd;
    std::unique_ptr<Venster> venster;
};

} // namespace plexoran
