#include "txteditor/RecordDataModel.h"
#include "txteditor/RecordListModel.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace {

RecordPtr makeRecord(std::int32_t id, std::int32_t size, const std::string& name) {
    auto record = std::make_shared<clsTXTObject>();
    record->ID = id;
    record->Construct(size);
    if (size > 0)
        record->SetObjectName(name);
    return record;
}

TEST(RecordListModel, KeepsItsPromisesThroughEveryChange) {
    RecordListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const std::vector<RecordPtr> records = {makeRecord(1, 2, "A"), makeRecord(7, 2, "\xE9")};
    model.SetRecords(records);
    EXPECT_EQ(model.index(1, 0).data(),
              QVariant(QStringLiteral("é"))); // not UTF-8, so Windows-1252
    EXPECT_EQ(model.index(1, 0).data(Qt::UserRole), QVariant(QStringLiteral("k7")));

    model.SetClassColumn([](const RecordPtr& record) { return QString::number(record->ID); });
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal), QVariant(QStringLiteral("Class")));
    EXPECT_EQ(model.index(1, 1).data(), QVariant(QStringLiteral("7")));
    model.SetNameColumn([](const RecordPtr&) { return QStringLiteral("x"); },
                        QStringLiteral("Race"));
    EXPECT_EQ(model.index(0, 0).data(), QVariant(QStringLiteral("x")));
    EXPECT_EQ(model.headerData(0, Qt::Horizontal), QVariant(QStringLiteral("Race")));

    EXPECT_EQ(model.IndexOf(records[1].get()).row(), 1);
    EXPECT_FALSE(model.IndexOf(nullptr).isValid());
    EXPECT_FALSE(model.Record({}));
    model.Refresh(records[0].get());
    model.SetClassColumn({});
    model.SetRecords({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(RecordListModel, AsksForNoTextThatIsNotShown) {
    int asked = 0;
    RecordListModel model;
    model.SetNameColumn(
        [&](const RecordPtr&) {
            ++asked;
            return QStringLiteral("name");
        },
        QStringLiteral("Name"));
    std::vector<RecordPtr> records;
    for (int i = 0; i < 100000; ++i)
        records.push_back(makeRecord(i, 0, {}));
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setModel(&model);
    view.resize(200, 400);
    view.show();
    model.SetRecords(std::move(records));
    EXPECT_FALSE(view.grab().isNull());
    EXPECT_GT(asked, 0);
    EXPECT_LT(asked, 1000);
}

TEST(RecordDataModel, FollowsARecordThatGrowsAndShrinks) {
    RecordDataModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.rowCount(), 0);
    const RecordPtr record = makeRecord(1, 3, "NAME");
    model.ShowRecord(record);
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.index(1, 0).data(), QVariant(QStringLiteral("1")));
    EXPECT_EQ(model.index(2, 1).data(), QVariant(QStringLiteral("NAME")));
    EXPECT_EQ(model.index(2, 0).data(Qt::UserRole + 1), QVariant(QStringLiteral("name")));
    EXPECT_FALSE(model.index(1, 0).data(Qt::UserRole + 1).isValid());

    record->RemoveSpaceFromArray(1, 1);
    EXPECT_EQ(model.index(2, 1).data(), QVariant(QString())); // not told yet
    model.ShowRecord(record);
    EXPECT_EQ(model.rowCount(), 2);
    model.ShowRecord(makeRecord(2, 0, {}));
    EXPECT_EQ(model.rowCount(), 0);
    model.ShowRecord({});
}

struct WatchCase {
    const char* From;
    const char* To;
    QStringList Lines;
};

TEST(WatchModel, ShowsTheFieldsBetweenTwoNumbers) {
    const RecordPtr record = makeRecord(1, 3, "NAME");
    const QStringList all = {QStringLiteral("0. 0"), QStringLiteral("1. 0"),
                             QStringLiteral("2. NAME")};
    const WatchCase cases[] = {
        {"0", "2", all},
        {"1", "1", all.mid(1, 1)},
        {"1", "999999999999", all.mid(1)},
        {"-5", "0", all.mid(0, 1)},
        {"-9", "-3", {}},
        {"2", "1", {}},
        {"7", "9", {}},
        {"", "2", {}},
        {"0", "x", {}},
        {" 1 ", "2", all.mid(1)},
        {"nan", "2", {}},
    };
    for (const WatchCase& c : cases) {
        SCOPED_TRACE(std::string(c.From) + " to " + c.To);
        WatchModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.Watch(record, QString::fromLatin1(c.From), QString::fromLatin1(c.To));
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row)
            lines.append(model.index(row).data().toString());
        EXPECT_EQ(lines, c.Lines);
        model.Watch({}, QStringLiteral("0"), QStringLiteral("5"));
        EXPECT_EQ(model.rowCount(), 0);
    }
}

} // namespace
