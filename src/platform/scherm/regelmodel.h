// The lines of a list, asked for when they are painted, so that a list of any length fills at once.
#pragma once

#include <QAbstractListModel>

#include <functional>

namespace plexoran {

class Regelmodel : public QAbstractListModel {
  public:
    /// What a line says in a role of Qt's; invalid for roles that it has nothing for.
    using Zegt = std::function<QVariant(int plaats, int rol)>;

    Regelmodel(Zegt zegt, QObject* ouder) : QAbstractListModel(ouder), zegt_(std::move(zegt)) {}

    /// `vul` changes what stands behind the lines, of which there are `aantal` from then on.
    template <class Vul> void Herlaad(int aantal, const Vul& vul)
    {
        beginResetModel();
        vul();
        aantal_ = aantal;
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& ouder) const override
    {
        return ouder.isValid() ? 0 : aantal_;
    }

    [[nodiscard]] QVariant data(const QModelIndex& plaats, int rol) const override
    {
        return plaats.isValid() ? zegt_(plaats.row(), rol) : QVariant();
    }

  private:
    Zegt zegt_;
    int aantal_ = 0;
};

} // namespace plexoran
