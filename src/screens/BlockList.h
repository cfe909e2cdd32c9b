#pragma once

#include "screens/RowKind.h"

#include <cstddef>
#include <functional>
#include <vector>

#include <QAbstractListModel>
#include <QVariant>

namespace vantrell {

/// A row of a block: what it shows is worked out when a view asks for it.
struct BlockRow {
    RowKind::Value kind = RowKind::Heading;
    std::function<QVariant()> value;
    bool startsBlock = false;
    bool endsBlock = false;
    bool isDivided = false;  ///< a line separates it from the next row
};

/// A screen of many rows as one list. Blocks are what lies together on a card. Rows are told apart by their
/// kinds alone: new contents tell the views where rows come or go, and that all others have changed.
class BlockList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

  public:
    using QAbstractListModel::QAbstractListModel;

    void show(std::vector<BlockRow> rows);
    /// Has the views ask again for what they show.
    void touch();

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] const std::vector<BlockRow>& rows() const { return rows_; }
    template <typename Row>
    [[nodiscard]] Row at(std::size_t place) const {
        return qvariant_cast<Row>(rows_.at(place).value());
    }

    /// The row to take the focus: the next one after `place` in direction `step` that is no mere text, or
    /// `place` itself if there is none.
    Q_INVOKABLE int next(int place, int step) const;
    /// The row that has the list's focus: `place` if it takes it, else the nearest; -1 if none does.
    Q_INVOKABLE int stopNear(int place) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void countChanged();

  private:
    [[nodiscard]] bool isStop(int place) const;

    std::vector<BlockRow> rows_;
};

/// Puts rows together to blocks.
class BlockBuilder {
  public:
    /// The rows that follow are a new block.
    void beginBlock();
    /// `make` gives the row's value; it may be called as long as the rows are shown.
    template <typename Make>
    void add(RowKind::Value kind, Make make) {
        addRow(kind, [make = std::move(make)] { return QVariant::fromValue(make()); });
    }
    void addText(RowKind::Value kind, const QString& text);
    /// Likewise for each of `values`, which must not move as long as the rows are shown.
    template <typename Value, typename Make>
    void addEach(RowKind::Value kind, const std::vector<Value>& values, Make make) {
        for (const Value& value : values) {
            add(kind, [&value, make] { return make(value); });
        }
    }

    [[nodiscard]] std::vector<BlockRow> take();

  private:
    void addRow(RowKind::Value kind, std::function<QVariant()> value);

    std::vector<BlockRow> rows_;
    bool isNewBlock_ = true;
};

}  // namespace vantrell
