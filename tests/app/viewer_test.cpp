// The external viewer, and what lists and edits are asked.
#include "apptest.h"
#include "lornfd/lornfd.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/ExportObjectToViewer.h"
#include "ui/ExternalViewer.h"
#include "ui/ListHelpers.h"

namespace {

struct TemplateCase {
    const char* Template;
    QStringList Arguments;
};

TEST(Viewer, SplitsItsCommandBeforeItFillsIt) {
    const auto text = [](const char* s) { return QString::fromLatin1(s); };
    const TemplateCase cases[] = {
        {"\"%1\" \"%2\"", {text("a b\" %2"), text("x;%1 y")}},
        {"-f=%1 -v", {text("-f=a b\" %2"), text("-v")}},
        {"%2%1%2", {text("x;%1 ya b\" %2x;%1 y")}},
        {"", {}},
    };
    for (const TemplateCase& c : cases)
        EXPECT_EQ(ViewerArguments(text(c.Template), text("a b\" %2"), text("x;%1 y")), c.Arguments)
            << c.Template;
}

class ViewerTest : public AppTest {
protected:
    ViewerTest() { Settings->SetExt3DViewerPath(program("viewer")); }

    void put(const char* name, const std::string& content) const {
        const std::int32_t file =
            LornFD_OpenFileConvert(program(name), LORNFD_WRITE, LORNFD_CREATE, LORNFD_GZIP);
        EXPECT_EQ(LornFD_WriteFile(file, content.data(), std::ssize(content)), 1);
        EXPECT_EQ(LornFD_CloseFile(file), 1);
    }
};

TEST_F(ViewerTest, ShowsAFileWhereItLies) {
    Settings->SetExt3DViewerSupportsLornFD(false);
    ShowIn3DViewer(nullptr, program("body.bod"), "TShips:1;");
    EXPECT_EQ(script.Started, QStringList{native("viewer")});
    EXPECT_EQ(script.Arguments, (QStringList{native("body.bod"), QStringLiteral("TShips:1;")}));
    script.Starts = false;
    script.Box(QStringLiteral("Error starting external 3D viewer: ") + native("viewer"));
    ShowIn3DViewer(nullptr, program("body.bod"), {});
    Settings->SetExt3DViewerPath({});
    script.Box(QStringLiteral("You didn't specified path to external 3D viewer.\n"
                              "Go to Settings and set it up."));
    ShowIn3DViewer(nullptr, program("body.bod"), {});
}

TEST_F(ViewerTest, UnpacksForAViewerThatReadsNoCatalogs) {
    Settings->InitEnviroment();
    write("a.cat", "KESHCAT 1 a.dat\n");
    write("a.dat", "");
    put("a.cat::objects\\v\\00012.pbd", "BODY");
    ShowIn3DViewer(nullptr, program("a.cat::objects\\v\\00012.pbd"), {});
    EXPECT_EQ(script.Arguments.value(0),
              native("a.cat") + QStringLiteral("::objects\\v\\00012.pbd"));
    Settings->SetExt3DViewerSupportsLornFD(false);
    ShowIn3DViewer(nullptr, program("a.cat::objects\\v\\00012.pbd"), {});
    EXPECT_TRUE(script.Arguments.value(0).endsWith(QStringLiteral("/00012.pbd.bod")));
    EXPECT_EQ(content(script.Arguments.value(0)), "BODY");
    script.Box(QStringLiteral("Error starting external 3D viewer: "));
    ShowIn3DViewer(nullptr, program("a.cat::missing"), {});
    EXPECT_EQ(script.Started.size(), 2);
}

struct BodyCase {
    std::int32_t Field;
    const char* Body;
    bool CutScene;
    std::int32_t Type;
    const char* Shown; ///< below objects; empty if nothing is
    const char* Data;
};

TEST_F(ViewerTest, ShowsTheBodyThatARecordNames) {
    for (const char* name : {"v/00012.bod", "cut/00012.bod", "ships/a.bod", "v/123456.bod"})
        write((std::string("data/objects/") + name).c_str(), "x");
    LoadKeshData();
    const BodyCase cases[] = {
        {0, "12", false, otype::Ships, "v/00012.bod", "TShips:12;x;"},
        {0, "12", true, otype::Factories, "cut/00012.bod", "TFactories:12;x;"},
        {0, "123456", false, otype::Docks, "v/123456.bod", ""},
        {0, "ships\\a", true, otype::Laser, "ships/a.bod", ""},
        {1, "ships\\a", true, otype::Ships, "ships/a.bod", "TShips:x;ships\\a;"},
        {2, "12", false, otype::Ships, "", ""}, // beyond the record
        {0, "ships\\*", false, otype::Ships, "", ""},
        {0, "13", false, otype::Ships, "", ""},
    };
    for (const BodyCase& c : cases) {
        script.Started.clear();
        clsTXTObject record;
        record.Construct(2);
        record.otype = c.Type;
        for (const std::int32_t field : {0, 1})
            record.SetValue(field, field == c.Field || c.Field > 1 ? keshobjects::readValue(c.Body)
                                                                   : KeshValue("x"));
        ExportObjectToViewer(nullptr, record, c.Field, c.CutScene);
        ASSERT_EQ(script.Started.size(), *c.Shown ? 1 : 0) << c.Body;
        if (*c.Shown) {
            EXPECT_EQ(script.Arguments.value(0),
                      native((std::string("data/objects/") + c.Shown).c_str()));
            EXPECT_EQ(script.Arguments.value(1), QString::fromLatin1(c.Data));
        }
    }
}

TEST(ListHelpers, AnswerForListsWithAndWithoutWhatIsAsked) {
    QStandardItemModel model;
    QListView view;
    view.setModel(&model);
    EXPECT_FALSE(ListSelectedOrFirst(view).isValid());
    for (const char* key : {"k1", "k2"}) {
        auto* item = new QStandardItem;
        item->setData(QString::fromLatin1(key), Qt::UserRole);
        model.appendRow(item);
    }
    EXPECT_EQ(ListFindItem(model, QStringLiteral("K2")).row(), 1);
    EXPECT_EQ(ListSelectedOrFirst(view).row(), 0);
    EXPECT_TRUE(view.selectionModel()->isSelected(model.index(0, 0)));
    EXPECT_TRUE(ListRemoveItem(model, QStringLiteral("k1")));
    EXPECT_FALSE(ListRemoveItem(model, QStringLiteral("k1")));
    EXPECT_NO_THROW(ListIndexCheck(model, 0));
    EXPECT_THROW(ListIndexCheck(model, 1), KeshError);

    QLineEdit edit;
    NumbersOnly(edit);
    QTest::keyClicks(&edit, QStringLiteral("-1.5"));
    EXPECT_EQ(edit.text(), QStringLiteral("15"));
}

} // namespace
