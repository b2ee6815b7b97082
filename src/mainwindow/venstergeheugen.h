// How the user wants his main window, kept in a file of his own (docs/bestanden.md). What cannot be
// read or written there costs him nothing but that.
#pragma once

#include <QSettings>
#include <QWidget>

#include <optional>

#include "mainwindow/weergave.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

class Venstergeheugen {
  public:
    /// Without a file nothing is remembered.
    explicit Venstergeheugen(const Pad& bestand);

    [[nodiscard]] Kolomkeuzes Kolommen() const;
    void Bewaar(const Kolomkeuzes& keuzes);

    /// What can be put on and off is on at first.
    [[nodiscard]] bool IsAan(const QString& naam) const;
    void ZetAan(const QString& naam, bool aan);

    /// Puts a window where it stood last with the screens as they are now; Qt sees to it that this
    /// is on one of them.
    void Plaats(QWidget& venster) const;
    void BewaarPlaats(const QWidget& venster);

  private:
    [[nodiscard]] QVariant Lees(const QString& naam) const;
    void Zet(const QString& naam, const QVariant& waarde, bool gekozen);

    std::optional<QSettings> bestand_;
};

} // namespace plexoran
