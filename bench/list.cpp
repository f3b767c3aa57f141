#include "bench/groups.h"
#include "bench/tfile.h"
#include "sample/samplegame.h"
#include "txteditor/RecordListModel.h"

#include <QtWidgets>

namespace bench {

namespace {

/// As many rows as the list has, all with the same texts.
class ConstantModel : public QAbstractTableModel {
public:
    explicit ConstantModel(int rows) : m_rows(rows) {}
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : m_rows;
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : 2;
    }
    [[nodiscard]] QVariant data(const QModelIndex&, int role) const override {
        return role == Qt::DisplayRole ? QVariant(m_text) : QVariant();
    }

private:
    int m_rows;
    QString m_text = QStringLiteral("WARE_12345");
};

/// The view as the editor sets it up: nothing is measured row by row.
std::unique_ptr<QTreeView> viewOf(QAbstractItemModel* model) {
    auto view = std::make_unique<QTreeView>();
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->resize(500, 700);
    view->setModel(model);
    return view;
}

/// Gives the view its rows and paints it once; the picture stands for the screen.
QPixmap firstPaint(QTreeView& view) {
    return view.grab();
}

} // namespace

std::vector<Row> listRows(const Options& options) {
    const auto parser = loadMemory(sample::largeWareText(std::int64_t{130} * options.files));
    std::vector<RecordPtr> records = parser->ByIndex();
    records.resize(std::min(records.size(), static_cast<std::size_t>(options.files)));
    const auto textOf = [](const RecordPtr& record) {
        const std::string_view name = record->ObjectName();
        return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    };
    const Times times = bestOf(
        options.rounds,
        [&] {
            auto model = std::make_unique<RecordListModel>();
            model->SetNameColumn(textOf, QStringLiteral("ID"));
            model->SetRecords(records);
            auto view = viewOf(model.get());
            keep(firstPaint(*view));
            return std::pair(std::move(model), std::move(view));
        },
        [&] {
            auto model = std::make_unique<ConstantModel>(static_cast<int>(records.size()));
            auto view = viewOf(model.get());
            keep(firstPaint(*view));
            return std::pair(std::move(model), std::move(view));
        });
    return {withinRow("record list to the first paint",
                      "QTreeView over a model of one constant text", times, 1.5)};
}

} // namespace bench
