#pragma once

#include <cstddef>
#include <vector>

#include <QAbstractListModel>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// A list of ready-to-show values, each the role "row". New contents tell the views only what differs from
/// the old, so that rows change in place and nothing jumps.
class RowList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

  public:
    using QAbstractListModel::QAbstractListModel;

    /// `Row` is a gadget with equality.
    template <typename Row>
    void show(const std::vector<Row>& rows) {
        std::vector<QVariant> values;
        values.reserve(rows.size());
        for (const Row& row : rows) {
            values.push_back(QVariant::fromValue(row));
        }
        replace(std::move(values));
    }

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    template <typename Row>
    [[nodiscard]] Row at(std::size_t place) const {
        return rows_.at(place).value<Row>();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void countChanged();

  private:
    void replace(std::vector<QVariant> rows);

    std::vector<QVariant> rows_;
};

}  // namespace vantrell
