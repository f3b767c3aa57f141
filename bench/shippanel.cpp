// The ship panel over 5,000 ships, with the sample game's weapons and a text for every name.
#include "bench/groups.h"
#include "bench/panelgame.h"
#include "bench/shipfile.h"
#include "bench/tfile.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/panels/ucShip.h"

#include <QtWidgets>

#include <array>

namespace bench {

namespace {

void initialise(ucShip& panel, clsTxtParser& parser) {
    if (!panel.Init(parser))
        fail(panel.GetLastError());
}

Row initRow(const Options& options, const std::string& path) {
    const auto parser = loadFile(path, otype::Ships);
    clsTxtParser empty;
    std::vector<std::unique_ptr<ucShip>> panels;
    for (int round = 0; round < options.rounds; ++round) {
        panels.push_back(std::make_unique<ucShip>());
        initialise(*panels.back(), empty); // the weapons are read once
    }
    auto init = [&, next = panels.begin()]() mutable {
        initialise(**next, *parser);
        return std::move(*next++);
    };
    const auto load = [&] { return loadFile(path, otype::Ships); };
    return withinRow("5,000 ships of 7 turrets: Init of the ship panel",
                     "loading their file to records", bestOf(options.rounds, init, load), 6);
}

using ShipTexts = std::array<QString, 2>;

/// The reference: the texts are there already.
class VectorModel : public QAbstractTableModel {
public:
    explicit VectorModel(const std::vector<ShipTexts>& texts) : m_texts(texts) {}
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_texts.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : 2;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole)
            return {};
        return m_texts[static_cast<std::size_t>(index.row())].at(
            static_cast<std::size_t>(index.column()));
    }

private:
    const std::vector<ShipTexts>& m_texts;
};

/// Asks the model for every text and paints the first rows.
qsizetype fillList(QAbstractItemModel& model) {
    qsizetype length = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < model.columnCount(); ++column)
            length += model.index(row, column).data().toString().size();
    QTreeView view;
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.resize(500, 700);
    view.setModel(&model);
    keep(view.grab());
    return length;
}

Row listRow(const Options& options, const std::string& path) {
    const auto parser = loadFile(path, otype::Ships);
    ucShip panel;
    initialise(panel, *parser);
    const auto nameOf = [&](const RecordPtr& ship) {
        return QString::fromStdString(panel.GetRace(ship) + ' ' + panel.GetResourceName(ship));
    };
    const auto classOf = [&](const RecordPtr& ship) {
        return QString::fromStdString(panel.GetClass(ship));
    };
    std::vector<ShipTexts> texts;
    for (const RecordPtr& ship : parser->ByIndex())
        texts.push_back({nameOf(ship), classOf(ship)});
    const auto ours = [&] {
        RecordListModel model;
        model.SetNameColumn(nameOf, QStringLiteral("Name"));
        model.SetClassColumn(classOf);
        model.SetRecords(parser->ByIndex());
        return fillList(model);
    };
    const auto theirs = [&] {
        VectorModel model(texts);
        return fillList(model);
    };
    if (ours() != theirs())
        fail("The list shows other texts than the vector holds.");
    return withinRow("list of 5,000 ships: every race, name and class, first rows painted",
                     "the same from a model over a vector of the texts",
                     bestOf(options.rounds, ours, theirs), 3);
}

} // namespace

std::vector<Row> shipPanelRows(const Options& options) {
    const PanelGame game(options);
    const std::string path = (options.directory / "TShips.txt").string();
    writeShips(path);
    std::vector<Row> rows{initRow(options, path), listRow(options, path)};
    PanelWindow window;
    window.Open(path);
    addSelectionRows(window, "a ship", rows);
    return rows;
}

} // namespace bench
