#pragma once

#include "view/View.h"

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace corvellane::view {

/// The rows of a list of products. Follows the products at every `present`; says what has changed row by row where no
/// product came or went.
class ProductModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void present(const List& list);

    /// What the row shows, as of the last `present`.
    ListRow rowAt(int row) const;

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Entry {
        std::string location;
        bool ticked = false;
        /// -1 for an entry without a row.
        int row = -1;
    };

    bool hasSameRows(const ProductSelection& products) const;
    void updateTicks(const ProductSelection& products);
    void rebuild(const ProductSelection& products);
    bool canToggle() const { return list_.toggle.run != nullptr; }

    List list_;
    /// In the order of the products' own map.
    std::vector<Entry> entries_;
    /// The entries' numbers, row by row.
    std::vector<std::size_t> rows_;
};

} // namespace corvellane::view
