// How the user wants his main window, kept in a file of his own (docs/bestanden.md). What cannot be
// read or written there costs him nothing but that.
#pragma once

#include <QSettings>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

#include "mainwindow/weergave.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

class Venstergeheugen : public QObject {
  public:
    /// The screens as they stand beside each other now, as a name.
    [[nodiscard]] static QString Opstelling();

    /// Without a file nothing is remembered.
    explicit Venstergeheugen(const Pad& bestand, std::function<QString()> opstelling = Opstelling);

    [[nodiscard]] Kolomkeuzes Kolommen() const;
    void Bewaar(const Kolomkeuzes& keuzes);

    /// What can be put on and off is on at first.
    [[nodiscard]] bool IsAan(const QString& naam) const;
    void ZetAan(const QString& naam, bool aan);

    /// By which column the lines are sorted; none for table order.
    [[nodiscard]] std::optional<Kolom> Volgorde() const;
    void Bewaar(std::optional<Kolom> volgorde);

    /// Puts a window where it stood last with the screens as they are now, and does so again when
    /// they become others; Qt sees to it that this is on one of them.
    void Volg(QWidget& venster);
    void BewaarPlaats(const QWidget& venster);
    /// Of that window.
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

  private:
    void Verhuis();
    [[nodiscard]] QVariant Lees(const QString& naam) const;
    void Zet(const QString& naam, const QVariant& waarde, bool gekozen);

    std::optional<QSettings> bestand_;
    std::function<QString()> stand_;
    QString opstelling_; ///< in which the window got its place
    QByteArray plek_;    ///< that place
    QWidget* venster_ = nullptr;
    QTimer rust_; ///< since the window was moved, or a screen came or went
};

} // namespace plexoran
