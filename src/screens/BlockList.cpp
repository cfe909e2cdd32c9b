#include "screens/BlockList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrell {
namespace {

enum Role { rowRole = Qt::UserRole, kindRole, startsBlockRole, endsBlockRole, isDividedRole };

bool takesFocus(RowKind::Value kind) {
    switch (kind) {
        case RowKind::Heading:
        case RowKind::Note:
        case RowKind::Absence:
        case RowKind::Tiles:
        case RowKind::Chart:
        case RowKind::WindowTitles:
        case RowKind::YearTitles:
        case RowKind::PayoutTitles:
            return false;
        case RowKind::Period:
        case RowKind::Day:
        case RowKind::Product:
        case RowKind::LineItem:
        case RowKind::Country:
        case RowKind::AppWindows:
        case RowKind::ProductWindows:
        case RowKind::Years:
        case RowKind::Payout:
            return true;
    }
    return false;
}

// The rows of tables stand close to each other.
bool isDivided(RowKind::Value kind) {
    return kind == RowKind::Period || kind == RowKind::Day || kind == RowKind::Product;
}

bool isOneKind(const BlockRow& left, const BlockRow& right) {
    return left.kind == right.kind;
}

}  // namespace

// Of what both begin and end with no row comes or goes. Those rows are new ones from the start, since the old
// ones may refer to what is no more.
void BlockList::show(std::vector<BlockRow> rows) {
    const auto head = std::mismatch(rows_.begin(), rows_.end(), rows.begin(), rows.end(), isOneKind);
    const auto tail = std::mismatch(rows_.rbegin(), std::make_reverse_iterator(head.first), rows.rbegin(),
                                    std::make_reverse_iterator(head.second), isOneKind);
    const auto first = static_cast<int>(head.first - rows_.begin());
    const auto gone = static_cast<int>(tail.first.base() - head.first);
    const auto come = static_cast<int>(tail.second.base() - head.second);
    std::copy(rows.begin(), head.second, rows_.begin());
    std::copy_backward(tail.second.base(), rows.end(), rows_.end());
    if (gone > 0) {
        beginRemoveRows({}, first, first + gone - 1);
        rows_.erase(head.first, tail.first.base());
        endRemoveRows();
    }
    if (come > 0) {
        beginInsertRows({}, first, first + come - 1);
        rows_ = std::move(rows);
        endInsertRows();
    } else {
        rows_ = std::move(rows);
    }
    touch();
    if (gone != come) {
        Q_EMIT countChanged();
    }
}

void BlockList::touch() {
    if (!rows_.empty()) {
        Q_EMIT dataChanged(index(0), index(count() - 1));
    }
}

int BlockList::next(int place, int step) const {
    for (int row = place + step; row >= 0 && row < count(); row += step) {
        if (isStop(row)) {
            return row;
        }
    }
    return place;
}

int BlockList::stopNear(int place) const {
    for (const int row : {place, next(place, 1), next(place, -1)}) {
        if (isStop(row)) {
            return row;
        }
    }
    return -1;
}

bool BlockList::isStop(int place) const {
    return place >= 0 && place < count() && takesFocus(rows_[static_cast<std::size_t>(place)].kind);
}

int BlockList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant BlockList::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= count()) {
        return {};
    }
    const BlockRow& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case rowRole:
            return row.value();
        case kindRole:
            return static_cast<int>(row.kind);
        case startsBlockRole:
            return row.startsBlock;
        case endsBlockRole:
            return row.endsBlock;
        case isDividedRole:
            return row.isDivided;
        default:
            return {};
    }
}

QHash<int, QByteArray> BlockList::roleNames() const {
    return {{rowRole, "row"},
            {kindRole, "kind"},
            {startsBlockRole, "startsBlock"},
            {endsBlockRole, "endsBlock"},
            {isDividedRole, "isDivided"}};
}

void BlockBuilder::beginBlock() {
    isNewBlock_ = true;
}

void BlockBuilder::addText(RowKind::Value kind, const QString& text) {
    add(kind, [text] { return text; });
}

void BlockBuilder::addRow(RowKind::Value kind, std::function<QVariant()> value) {
    const bool startsBlock = std::exchange(isNewBlock_, false);
    if (!rows_.empty()) {
        rows_.back().endsBlock = startsBlock;
        rows_.back().isDivided = !startsBlock && rows_.back().kind == kind && isDivided(kind);
    }
    rows_.push_back({kind, std::move(value), startsBlock, true, false});
}

std::vector<BlockRow> BlockBuilder::take() {
    return std::move(rows_);
}

}  // namespace vantrell
