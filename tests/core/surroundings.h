// Directories of its own for everything that the program keeps outside its documents.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

class Surroundings : public testing::Test {
protected:
    Surroundings() {
        for (const char* name : {"config", "state", "tmp", "data"})
            QDir(m_base.path()).mkdir(QString::fromLatin1(name));
        qputenv("KESH_CONFIG_DIR", native("config").toUtf8());
        qputenv("KESH_STATE_DIR", native("state").toUtf8());
        qputenv("TMPDIR", native("tmp").toUtf8());
    }
    ~Surroundings() override {
        qputenv("TMPDIR", m_tmpdir);
        qunsetenv("KESH_CONFIG_DIR");
        qunsetenv("KESH_STATE_DIR");
    }

    /// A path below the test's directory, native and in the program's form.
    [[nodiscard]] QString native(const char* path) const {
        return m_base.filePath(QString::fromLatin1(path));
    }
    [[nodiscard]] std::string program(const char* path) const {
        return native(path).replace(u'/', u'\\').toStdString();
    }

    void write(const char* path, const QByteArray& content) const {
        QDir().mkpath(QFileInfo(native(path)).path());
        QFile file(native(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    [[nodiscard]] std::string read(const char* path) const { return content(native(path)); }
    [[nodiscard]] static std::string content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

private:
    QByteArray m_tmpdir = QDir::tempPath().toUtf8();
    QTemporaryDir m_base;
};
