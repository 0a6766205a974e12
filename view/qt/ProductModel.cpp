#include "view/qt/ProductModel.h"

#include "view/ListRows.h"

#include <algorithm>

namespace corvellane::view {

void ProductModel::present(const List& list)
{
    list_ = list;
    if (hasSameRows(*list.products)) {
        updateTicks(*list.products);
    } else {
        rebuild(*list.products);
    }
}

bool ProductModel::hasSameRows(const ProductSelection& products) const
{
    return std::equal(entries_.begin(), entries_.end(), products.begin(), products.end(),
        [&](const Entry& entry, const auto& product) {
            return entry.location == product.first && (!list_.onlyTicked || entry.ticked == product.second);
        });
}

void ProductModel::updateTicks(const ProductSelection& products)
{
    auto product = products.begin();
    for (Entry& entry : entries_) {
        if (entry.ticked != product->second) {
            entry.ticked = product->second;
            const QModelIndex changed = index(entry.row);
            Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
        }
        ++product;
    }
}

void ProductModel::rebuild(const ProductSelection& products)
{
    beginResetModel();
    entries_.clear();
    rows_.clear();
    for (const auto& [location, ticked] : products) {
        entries_.push_back({location, ticked, -1});
    }
    for (const std::string& location : locationsOf(list_)) {
        const auto entry = std::lower_bound(entries_.begin(), entries_.end(), location,
            [](const Entry& each, const std::string& wanted) { return each.location < wanted; });
        entry->row = static_cast<int>(rows_.size());
        rows_.push_back(static_cast<std::size_t>(entry - entries_.begin()));
    }
    endResetModel();
}

ListRow ProductModel::rowAt(int row) const
{
    const Entry& entry = entries_[rows_[static_cast<std::size_t>(row)]];
    return list_.row(entry.location, entry.ticked);
}

int ProductModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ProductModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return QString::fromStdString(rowAt(index.row()).name.text);
    }
    if (role == Qt::CheckStateRole && canToggle()) {
        return rowAt(index.row()).ticked.value_or(false) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

/// A request; the row changes when the state has.
bool ProductModel::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || !canToggle()) {
        return false;
    }
    const std::string location = entries_[rows_[static_cast<std::size_t>(index.row())]].location;
    const auto toggle = list_.toggle.run;
    toggle(location);
    return true;
}

Qt::ItemFlags ProductModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return canToggle() ? always | Qt::ItemIsUserCheckable : always;
}

} // namespace corvellane::view
