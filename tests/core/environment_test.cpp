// Trace log and temporary directory.
#include "core/clsSettings.h"
#include "core/surroundings.h"
#include "lornfd/paths.h"

#include <QRegularExpression>

class TraceFile : public Surroundings {
protected:
    TraceFile() { QFile::remove(path()); }
    ~TraceFile() override { QFile::remove(path()); }

    [[nodiscard]] QString path() const {
        return QString::fromStdString(lornfd::nativePath(settings.TraceFilePath()));
    }
    [[nodiscard]] std::string text() const { return content(path()); }

    clsSettings settings;
};

TEST_F(TraceFile, IsOpenAsLongAsSomebodyUsesIt) {
    EXPECT_FALSE(settings.Trace("lost", false));
    EXPECT_EQ(settings.CloseTraceFile(), 0);
    EXPECT_NE(settings.OpenTraceFile(), 0);
    EXPECT_NE(settings.OpenTraceFile(), 0);
    EXPECT_EQ(settings.CloseTraceFile(), 1);
    EXPECT_TRUE(settings.Trace("used once", false));
    EXPECT_TRUE(settings.Trace("100 %s", true));
    EXPECT_TRUE(settings.Trace("still used", false)) << "closed by an automatic one";
    EXPECT_EQ(settings.CloseTraceFile(), 0);
    EXPECT_FALSE(settings.Trace("lost", false));
    EXPECT_TRUE(settings.Trace("", true));

    const QString stamp = QStringLiteral("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d - ");
    const QString lines = stamp + QStringLiteral("used once\n") + stamp +
                          QStringLiteral("100 %s\n") + stamp + QStringLiteral("still used\n") +
                          stamp + u'\n';
    const QRegularExpression whole(QRegularExpression::anchoredPattern(lines));
    EXPECT_TRUE(whole.match(QString::fromStdString(text()).remove(u'\r')).hasMatch()) << text();
}

TEST_F(TraceFile, IsReopenedAndClearedWhateverItsUses) {
    EXPECT_FALSE(settings.ReopenTraceFile()) << "was not open";
    settings.OpenTraceFile();
    settings.OpenTraceFile();
    settings.Trace("before", false);
    QFile::setPermissions(path(), QFile::ReadOwner);
    EXPECT_TRUE(settings.ReopenTraceFile());
    EXPECT_TRUE(settings.Trace("behind", false));
    EXPECT_EQ(settings.CloseTraceFile(), 1);
    EXPECT_NE(text().find("before"), std::string::npos);

    const qint64 size = QFileInfo(path()).size();
    EXPECT_FALSE(settings.ClearTraceFile(size));
    EXPECT_TRUE(settings.ClearTraceFile(size - 1));
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_EQ(settings.CloseTraceFile(), 0);
}

class TempDirectory : public Surroundings {
protected:
    TempDirectory() {
        write("victim/precious.txt", "precious");
        write("victim/sub/precious.txt", "precious");
    }
    ~TempDirectory() override {
        EXPECT_EQ(read("victim/precious.txt"), "precious");
        EXPECT_EQ(read("victim/sub/precious.txt"), "precious");
    }
};

TEST_F(TempDirectory, GoesWithTheSettings) {
    {
        clsSettings settings;
        EXPECT_EQ(settings.TempDirectory(), "");
        EXPECT_TRUE(settings.InitEnviroment());
        EXPECT_EQ(settings.TempDirectory(), program("tmp/Lorn Editor"));
        EXPECT_EQ(QFile::permissions(native("tmp/Lorn Editor")) &
                      (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                  QFile::Permissions());
        write("tmp/Lorn Editor/body.bod", "x");
        write("tmp/Lorn Editor/.hidden", "x");
        QFile::link(native("victim"), native("tmp/Lorn Editor/directory"));
        QFile::link(native("victim/precious.txt"), native("tmp/Lorn Editor/file"));
        QFile::link(native("nowhere"), native("tmp/Lorn Editor/dangling"));
    }
    EXPECT_FALSE(QFileInfo::exists(native("tmp/Lorn Editor")));
}

TEST_F(TempDirectory, StaysWithASubdirectory) {
    clsSettings first;
    first.InitEnviroment();
    write("tmp/Lorn Editor/sub/kept.txt", "kept");
    write("tmp/Lorn Editor/body.bod", "x");
    first.DeleteTemp();
    EXPECT_EQ(read("tmp/Lorn Editor/sub/kept.txt"), "kept");
    EXPECT_FALSE(QFileInfo::exists(native("tmp/Lorn Editor/body.bod")));

    clsSettings second;
    second.InitEnviroment();
    EXPECT_EQ(second.TempDirectory(), program("tmp/Lorn Editor")) << "one that exists is taken";
}

TEST_F(TempDirectory, IsNeverALinkOrAFile) {
    const QByteArray id = QByteArray::number(QFileInfo(native("victim")).ownerId());
    const std::string ownName = "tmp/Lorn Editor-" + id.toStdString();
    QFile::link(native("victim"), native("tmp/Lorn Editor"));
    {
        clsSettings settings;
        EXPECT_TRUE(settings.InitEnviroment());
        EXPECT_EQ(settings.TempDirectory(), program(ownName.c_str()));
    }
    write(ownName.c_str(), "a file stands there");
    clsSettings settings;
    EXPECT_TRUE(settings.InitEnviroment());
    EXPECT_EQ(settings.TempDirectory(), "");
    settings.DeleteTemp();
    EXPECT_EQ(read(ownName.c_str()), "a file stands there");
}

TEST_F(TempDirectory, ReplacedByALinkIsLeftAlone) {
    clsSettings settings;
    settings.InitEnviroment();
    ASSERT_TRUE(QDir().rmdir(native("tmp/Lorn Editor")));
    QFile::link(native("victim"), native("tmp/Lorn Editor"));
    settings.DeleteTemp();
    EXPECT_TRUE(QFileInfo(native("tmp/Lorn Editor")).isSymLink());
}
