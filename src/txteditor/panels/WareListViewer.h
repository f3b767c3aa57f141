// The wares of a ware list, with their names.
#pragma once

#include "tdata/RecordReference.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlWareList.h"

#include <QtWidgets>

#include <cstdint>
#include <memory>
#include <optional>

/// The wares of a record of WareLists in columns "Name" and "ID"; without a record one column says
/// which list is not found. What a row reads is worked out when it is asked for, since a list may
/// have a million of them.
class WareListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Gets the wares, the first time only; ShowList does it where it was not done.
    void Init();
    /// The same list again keeps its rows, and tells that they may read otherwise. `ID` is what a
    /// list that is not there is told as.
    void ShowList(const RecordPtr& List, const QString& ID);
    void Clear(); ///< no columns, no rows

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    /// Under Qt::UserRole the ID, under Qt::UserRole + 1 its bytes as they are stored.
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    void Reset(const RecordPtr& List, QStringList Columns);
    [[nodiscard]] QString Text(int row, int column) const;

    std::unique_ptr<WareNames> m_names;
    RecordPtr m_list;
    QStringList m_columns;
    int m_rows = 0;
};

/// A list of such rows. Its columns are as wide as the texts of the first rows need.
class WareListView final : public QTreeView {
    Q_OBJECT

public:
    WareListView(const char* Name, QWidget* Parent);

    void Init() { m_model->Init(); } ///< as that of the model
    /// The row of the same place stays selected.
    void ShowList(const RecordPtr& List, const QString& ID);
    void Clear() { m_model->Clear(); }

private:
    void FitColumns();

    WareListModel* m_model;
};

/// The ware of the current row of such a list.
[[nodiscard]] std::optional<RecordAddress> WareOfRow(const WareListView& View);

/// A part of a panel that shows the ware list of an ID.
class WareListViewer final : public QWidget {
    Q_OBJECT

public:
    explicit WareListViewer(QWidget* Parent, const char* ViewName = "WareListView");

    /// Gets the wares and WareLists, the first time only; ShowWareList does it where it was not
    /// done.
    void Init();
    /// `Spelling` is what the ID is told as where there is no such list.
    void ShowWareList(std::int32_t ID, const QString& Spelling = {});
    void Clear() { m_view->Clear(); }
    [[nodiscard]] WareListView& View() noexcept { return *m_view; }

Q_SIGNALS:
    void Entered(); ///< a double click anywhere in the list, or Enter

private:
    WareListView* m_view;
    std::shared_ptr<clsTxtParser> m_lists;
    bool m_sought = false;
};
