// The records of a file as rows, all or those that a filter lets through. Texts are asked for when
// a row is painted or searched, and kept.
//
// A row's key is under Qt::UserRole.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <functional>
#include <vector>

class RecordListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using TextOf = std::function<QString(const RecordPtr&)>;
    using Test = std::function<bool(const RecordPtr&)>;

    explicit RecordListModel(QObject* parent = nullptr);

    /// Replaces all rows; a filter that is set goes through them again.
    void SetRecords(std::vector<RecordPtr> Records);
    /// Adds rows in front of a row, or at the end for the number of rows. Only without a filter.
    void Insert(int At, const std::vector<RecordPtr>& Records);
    void Remove(const std::vector<RecordPtr>& Records);
    /// Lets those rows through whose text or ID contains this, in any case, and that pass the test;
    /// all if there is neither. Works in slices of a few milliseconds; Filtered tells when it is
    /// done.
    void SetFilter(const QString& Text, Test Passes = {});
    [[nodiscard]] bool Filtering() const { return m_slice.isActive(); } ///< Filtered comes later
    [[nodiscard]] bool HasFilter() const { return !m_filter.isEmpty() || m_passes; }
    [[nodiscard]] int RecordCount() const { return static_cast<int>(m_rows.size()); } ///< of all

    /// What the first column shows, its header, and what else than the record's ID a filter finds.
    /// All rows count as changed.
    void SetNameColumn(TextOf Text, const QString& Header, TextOf AlsoFound = {});
    /// Adds the "Class" column, or takes it away if Text is empty.
    void SetClassColumn(TextOf Text);
    /// The record's row shows other texts now; nothing if it has no row.
    void Refresh(const clsTXTObject* Record);

    [[nodiscard]] RecordPtr Record(const QModelIndex& Index) const; ///< none for no row
    /// Index of the record's row, invalid if it has none.
    [[nodiscard]] QModelIndex IndexOf(const clsTXTObject* Record) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// Other rows are shown than before; the model was reset.
    void Filtered();

private:
    struct Row {
        RecordPtr Record;
        QString Text;       ///< null until it is asked for
        QString SearchText; ///< the same, folded, with the ID
    };

    const QString& TextOfRow(Row& row) const;
    const QString& SearchTextOf(Row& row) const;
    [[nodiscard]] bool PassesFilter(Row& row) const;
    void ForgetTexts();
    void ShowAll();
    void StartFilter();
    void FilterSlice();
    void RemoveShown(const std::vector<int>& rows);

    mutable std::vector<Row> m_rows;
    std::vector<int> m_shown; ///< positions in m_rows
    std::vector<int> m_found; ///< of the filter's pass so far
    std::size_t m_next = 0;   ///< where the pass goes on
    QString m_filter;         ///< folded
    Test m_passes;
    QTimer m_slice;
    TextOf m_name;
    TextOf m_alsoFound;
    TextOf m_class;
    QString m_header;
};
