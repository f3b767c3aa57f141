// The wares of a ware list, with their names.
#pragma once

#include "tdata/RecordReference.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlWareList.h"
#include "txteditor/panels/TextRows.h"

#include <QtWidgets>

#include <cstdint>
#include <memory>
#include <optional>

/// Shows the wares of a record of WareLists in columns "Name" and "ID", which are as wide as the
/// texts of the first rows need. Without the record or the names one column says that the
/// list of that ID is not found.
void FillWareList(TextRowsView& View, const WareNames* Names, const clsTXTObject* Record,
                  const QString& ID);

/// The ware of the current row of such a view.
[[nodiscard]] std::optional<RecordAddress> WareOfRow(const TextRowsView& View);

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
    void Clear();
    [[nodiscard]] TextRowsView& View() noexcept { return *m_view; }

Q_SIGNALS:
    void Entered(); ///< a double click anywhere in the list, or Enter

private:
    TextRowsView* m_view;
    std::unique_ptr<WareNames> m_names;
    std::shared_ptr<clsTxtParser> m_lists;
};
