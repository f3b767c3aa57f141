// A game directory for tests: loose files, catalogs, and short words for what the view shows of it.
#pragma once

#include "keshvfs/keshvfs.h"
#include "lornfd/catalog.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

class GameDirectory : public testing::Test {
protected:
    using Names = std::vector<std::string>;

    GameDirectory() : root(m_directory.path().toStdString()) {}
    ~GameDirectory() override {
        KeshVFS_ClearFilters();
        KeshVFS_CreateVFS({});
    }

    void write(const std::string& name, const std::string& content = "x") const {
        const std::filesystem::path path = root + '/' + name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }

    void catalog(const std::string& name, const Names& entries) const {
        std::filesystem::create_directories(std::filesystem::path(root + '/' + name).parent_path());
        const auto update = lornfd::CatalogUpdate::begin(root + '/' + name, true);
        ASSERT_TRUE(update);
        for (const auto& entry : entries)
            ASSERT_TRUE(update->put(entry, "x")) << entry;
        ASSERT_TRUE(update->commit());
    }

    void createView() const { ASSERT_TRUE(KeshVFS_CreateVFS(root)) << errorText(); }

    static std::string errorText() {
        std::string text(4096, '\0');
        KeshVFS_TranslateError(KeshVFS_GetLastError(), text.data(), 4096, nullptr);
        return text.substr(0, text.find('\0'));
    }

    /// The real name without the root, "/" as separator; empty if nothing is found.
    [[nodiscard]] std::string real(const std::string& mask) const {
        VFSFindData data{};
        const std::int32_t find = KeshVFS_FindFirstFile(mask, data);
        std::string name = KeshVFS_GetRealName(find);
        if (find)
            KeshVFS_FindClose(find);
        std::ranges::replace(name, '\\', '/');
        EXPECT_TRUE(name.empty() || name.starts_with(root + '/')) << name;
        return name.empty() ? name : name.substr(root.size() + 1);
    }

    /// Names from a find handle on, directories with a final "\"; closes it.
    static Names rest(std::int32_t find, VFSFindData data) {
        Names names;
        for (std::int32_t more = find; more; more = KeshVFS_FindNextFile(find, data))
            names.push_back(KeshVFS_GetVFSName(find) +
                            (data.Attributes & VFS_ATTRIBUTE_DIRECTORY ? "\\" : ""));
        EXPECT_EQ(KeshVFS_FindClose(find) != 0, find != 0);
        return names;
    }

    static Names found(const std::string& mask) {
        VFSFindData data{};
        return rest(KeshVFS_FindFirstFile(mask, data), data);
    }

    static Names listed(std::int32_t catalog, const std::string& mask) {
        VFSFindData data{};
        const std::int32_t context = KeshVFS_CatFindInit(catalog);
        EXPECT_TRUE(context);
        const Names names = rest(KeshVFS_CatFindFirstFile(context, mask, data), data);
        EXPECT_TRUE(KeshVFS_FindClose(context));
        return names;
    }

private:
    QTemporaryDir m_directory;

protected:
    const std::string root;
};
