#include "sample/output.h"

#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"
#include "lornfd/packing.h"

#include <algorithm>
#include <fstream>

namespace sample {

std::string driverError() {
    const std::int32_t code = LornFD_GetLastError();
    std::int32_t needed = 0;
    LornFD_TranslateError(code, nullptr, 0, &needed);
    std::string text(static_cast<std::size_t>(std::max(needed, 1)), '\0');
    LornFD_TranslateError(code, text.data(), static_cast<std::int32_t>(text.size()), &needed);
    text.pop_back();
    return text;
}

bool writeLooseFile(const std::filesystem::path& root, const GameFile& file, std::string& error) {
    std::string native = file.name;
    std::ranges::replace(native, '\\', '/');
    const std::filesystem::path path = root / native;
    const auto stored = lornfd::pack(file.content, file.form, path.string());
    if (!stored) {
        error = driverError();
        return false;
    }
    std::error_code code;
    std::filesystem::create_directories(path.parent_path(), code);
    std::ofstream out(path, std::ios::binary);
    out.write(stored->data(), static_cast<std::streamsize>(stored->size()));
    out.close();
    if (!out)
        error = "Cannot write " + path.string() + ".";
    return !out.fail();
}

bool writeCatalog(const std::filesystem::path& catalog, const std::vector<GameFile>& files,
                  std::string& error) {
    std::error_code code;
    std::filesystem::create_directories(catalog.parent_path(), code);
    const auto update = lornfd::CatalogUpdate::begin(catalog.string(), true);
    const auto store = [&](const GameFile& file) {
        const auto stored = lornfd::pack(file.content, file.form, file.name);
        return stored && update->put(file.name, *stored);
    };
    if (update && std::ranges::all_of(files, store) && update->commit())
        return true;
    error = driverError();
    return false;
}

} // namespace sample
