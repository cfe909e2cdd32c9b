#include "screens/RowList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrell {
namespace {

constexpr int rowRole = Qt::UserRole;

}  // namespace

int RowList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant RowList::data(const QModelIndex& index, int role) const {
    const bool isHeld = index.isValid() && index.row() < count();
    return isHeld && role == rowRole ? rows_[static_cast<std::size_t>(index.row())] : QVariant();
}

QHash<int, QByteArray> RowList::roleNames() const {
    return {{rowRole, "row"}};
}

// What both lists begin and end with stays; between, rows are changed in place as far as both reach, and the
// rest comes or goes.
void RowList::replace(std::vector<QVariant> rows) {
    const auto head = std::mismatch(rows_.begin(), rows_.end(), rows.begin(), rows.end());
    const auto tail =
        std::mismatch(std::make_reverse_iterator(rows_.end()), std::make_reverse_iterator(head.first),
                      std::make_reverse_iterator(rows.end()), std::make_reverse_iterator(head.second));
    const auto first = static_cast<int>(head.first - rows_.begin());
    const auto held = static_cast<int>(tail.first.base() - head.first);
    const auto wanted = static_cast<int>(tail.second.base() - head.second);
    const int common = std::min(held, wanted);
    const int oldCount = count();
    std::copy_n(head.second, common, head.first);
    if (common > 0) {
        Q_EMIT dataChanged(index(first), index(first + common - 1));
    }
    if (wanted > held) {
        beginInsertRows({}, first + held, first + wanted - 1);
        rows_ = std::move(rows);
        endInsertRows();
    } else if (held > wanted) {
        beginRemoveRows({}, first + wanted, first + held - 1);
        rows_ = std::move(rows);
        endRemoveRows();
    }
    if (count() != oldCount) {
        Q_EMIT countChanged();
    }
}

}  // namespace vantrell
