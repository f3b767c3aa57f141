// Fields of a record as rows of name, value and offset.
#pragma once

#include <QtWidgets>

#include <cstdint>

struct PropertyRow {
    static constexpr std::int32_t IdField = -1;  ///< the record's ID
    static constexpr std::int32_t Computed = -2; ///< stands in no field
    static constexpr std::int32_t Color = -3;    ///< of three fields together

    std::int32_t Field = Computed;
    QString Name;
    QString Value;
    QColor Swatch = {}; ///< shown in front of the value if valid
    QString Tip = {};   ///< of the row; without it the value has its own text for a tip

    friend bool operator==(const PropertyRow&, const PropertyRow&) = default;
};

/// Columns "Name", "Value" and "[offset]". The tag of a row, under Qt::UserRole + 1, is its field's
/// index, "name" for the ID or "color".
class PropertyModel : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int ValueColumn = 1;

    using QAbstractTableModel::QAbstractTableModel;

    /// Rows of the same fields as before change in place.
    void SetRows(QList<PropertyRow> Rows);
    [[nodiscard]] const PropertyRow* Row(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Wherever a row is pressed, its value is what is edited.
    [[nodiscard]] QModelIndex buddy(const QModelIndex& index) const override;

private:
    void TellChange(int row, const PropertyRow& former);

    QList<PropertyRow> m_rows;
};
