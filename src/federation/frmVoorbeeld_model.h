// The lines of a preview as a tree: what is decided on a line and, under it, the fields that this
// changes, each with a tick. Lines are asked for when they are painted, so that a hundred thousand
// open at once.
#pragma once

#include <QAbstractItemModel>

#include "federation/regelvoorbeeld.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

[[nodiscard]] QString Soorttekst(Voorbeeldsoort soort);

class Voorbeeldmodel : public QAbstractItemModel {
    Q_OBJECT

  public:
    enum Kop { Soort, NBBnr, Wie, Wat, AantalKoppen };

    Voorbeeldmodel(Regelvoorbeeld& voorbeeld, QObject* ouder);

    /// Shows those lines only of this kind, or the doubtful ones, or all, in which `zoek` occurs.
    struct Zeef {
        std::optional<Voorbeeldsoort> soort;
        bool twijfelachtig = false;
        Tekst zoek{};
    };
    void Toon(Zeef zeef);
    /// Switches all lines that are shown off, or on when none of them is on.
    void ZetGetoonde();

    void sort(int kolom, Qt::SortOrder volgorde) override;
    [[nodiscard]] QModelIndex index(int rij, int kolom, const QModelIndex& onder) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& plek) const override;
    [[nodiscard]] int rowCount(const QModelIndex& onder) const override;
    [[nodiscard]] int columnCount(const QModelIndex& onder) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& plek) const override;
    [[nodiscard]] QVariant headerData(int kolom, Qt::Orientation richting, int rol) const override;
    [[nodiscard]] QVariant data(const QModelIndex& plek, int rol) const override;
    bool setData(const QModelIndex& plek, const QVariant& waarde, int rol) override;

  private:
    [[nodiscard]] std::size_t Regel(const QModelIndex& plek) const;
    [[nodiscard]] QString Regeltekst(std::size_t regel, int kolom) const;
    [[nodiscard]] QString Wijziging(std::size_t regel) const;
    [[nodiscard]] QString Weigertekst(std::size_t regel) const;
    [[nodiscard]] QString Naamgenoot(int rij) const;
    [[nodiscard]] QString Twijfel(const Voorbeeldregel& regel) const;
    [[nodiscard]] Veldwijziging Veld(const QModelIndex& plek) const;
    [[nodiscard]] QString Veldtekst(const QModelIndex& plek) const;
    void Pas();

    Regelvoorbeeld& voorbeeld_;
    Zeef zeef_;
    std::vector<std::size_t> volgorde_; ///< of all lines
    std::vector<std::size_t> getoond_;
};

} // namespace plexoran
