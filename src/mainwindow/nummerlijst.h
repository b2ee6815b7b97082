// The numbers 1 to n as the content of drop-downs, without an entry in memory for each.
#pragma once

#include <QAbstractListModel>

namespace plexoran {

class Nummerlijst : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void ZetAantal(int aantal)
    {
        beginResetModel();
        aantal_ = aantal;
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& ouder = QModelIndex()) const override
    {
        return ouder.isValid() ? 0 : aantal_;
    }

    [[nodiscard]] QVariant data(const QModelIndex& plaats, int rol) const override
    {
        if (!plaats.isValid() || (rol != Qt::DisplayRole && rol != Qt::EditRole))
            return {};
        return QString::number(plaats.row() + 1);
    }

  private:
    int aantal_ = 0;
};

} // namespace plexoran
