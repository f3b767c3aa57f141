#include "keshvfs/keshvfs.h"

#include "keshvfs/loosefiles.h"
#include "keshvfs/view.h"
#include "lornfd/lasterror.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

using namespace keshvfs;

namespace {

constexpr std::int32_t ViewHandle = std::numeric_limits<std::int32_t>::max();
/// Catalogs of the data root are the layers 1, 2, ...; then come its loose files and appended
/// catalogs.
constexpr std::uint32_t LooseLayer = 1'000'000;

constexpr std::array ErrorTexts{
    lornfd::ErrorText{KESHVFS_OK, "No error."},
    lornfd::ErrorText{KESHVFS_E_NOT_FOUND, "Nothing in the game's files matches {file}."},
    lornfd::ErrorText{KESHVFS_E_CATALOG, "{reason}"},
    lornfd::ErrorText{KESHVFS_E_DIRECTORY, "The game's directory cannot be read. {reason}"},
    lornfd::ErrorText{KESHVFS_E_HANDLE, "{place} is no open handle."},
    lornfd::ErrorText{KESHVFS_E_MEMORY, "There is not enough memory."},
    lornfd::ErrorText{KESHVFS_E_FAILED, "The game's files cannot be searched. {reason}"},
};

/// A search in progress. It keeps its view, so that a reload does not take the entries from under
/// it.
struct Find {
    std::shared_ptr<const View> view;
    std::vector<Id> found;
    std::size_t at = 0;
};

struct State {
    lornfd::LastError error{ErrorTexts};
    Filters filters;
    std::shared_ptr<View> view = std::make_shared<View>();
    std::uint32_t topLayer = LooseLayer;
    std::string warnings;
    std::unordered_map<std::int32_t, Find> finds;
    std::int32_t lastHandle = 0;
};

State& state() {
    static State theState;
    return theState;
}

/// Runs an operation of the C-style face: the error is cleared before, and nothing is thrown.
template <class Operation>
std::int32_t run(Operation operation) {
    state().error.clear();
    try {
        return operation(state());
    } catch (const std::bad_alloc&) {
        return state().error.set(KESHVFS_E_MEMORY);
    } catch (const std::exception& failure) {
        return state().error.set(KESHVFS_E_FAILED, {{}, {}, failure.what()});
    }
}

std::string driverErrorText() {
    const std::int32_t code = LornFD_GetLastError();
    std::int32_t needed = 0;
    LornFD_TranslateError(code, nullptr, 0, &needed);
    std::string text(static_cast<std::size_t>(std::max(needed, 1)), '\0');
    LornFD_TranslateError(code, text.data(), needed, &needed);
    return text.substr(0, text.find('\0'));
}

void warn(State& s, const std::string& line) {
    if (s.warnings.find(line + '\n') == std::string::npos)
        s.warnings += line + '\n';
}

void addCatalog(State& s, View& view, const std::shared_ptr<const lornfd::CatalogIndex>& catalog,
                std::string_view path, std::uint32_t layer, const Filters& filters) {
    const std::size_t tooDeep = view.addCatalog(catalog, lornfd::programPath(path), layer, filters);
    if (tooDeep != 0)
        warn(s, catalog->path() + ": " + std::to_string(tooDeep) + " entries have more than " +
                    std::to_string(View::MaxParts) + " parts in their names and are left out");
}

std::int32_t handleError(State& s, std::int32_t handle) {
    return s.error.set(KESHVFS_E_HANDLE, {{}, std::to_string(handle), {}});
}

// What lies below such a name has real names that would be split in the wrong place.
bool readsAsEntry(std::string_view name) {
    return name.find("::") != name.npos;
}

std::string entryReason(std::string_view name) {
    return lornfd::nativePath(name) + ": a name with \"::\" in it reads as a catalog's entry";
}

std::int32_t rootError(State& s, std::string_view root, const std::string& reason) {
    warn(s, reason);
    return s.error.set(KESHVFS_E_DIRECTORY, {std::string(root), {}, reason});
}

std::int32_t open(State& s, Find find) {
    do
        s.lastHandle = s.lastHandle % (ViewHandle - 1) + 1;
    while (s.finds.contains(s.lastHandle));
    s.finds.emplace(s.lastHandle, std::move(find));
    return s.lastHandle;
}

void copyName(std::string_view name, char (&field)[255]) {
    std::ranges::fill(field, '\0');
    std::ranges::copy(name.substr(0, sizeof field), field);
}

void fill(const Find& find, VFSFindData& data) {
    const Id id = find.found[find.at];
    const Entry& entry = find.view->entry(id);
    data.Attributes = entry.isDirectory() ? VFS_ATTRIBUTE_DIRECTORY : 0;
    copyName(entry.name(), data.VFSName);
    copyName(find.view->realName(id), data.RealName);
    std::ranges::fill(data.Reserved, '\0');
}

std::int32_t startSearch(State& s, std::shared_ptr<const View> view, std::string_view mask,
                         bool listing, VFSFindData& data) {
    Find find{std::move(view), {}};
    find.found = find.view->search(mask, listing);
    if (find.found.empty())
        return s.error.set(KESHVFS_E_NOT_FOUND, {std::string(mask), {}, {}});
    fill(find, data);
    return open(s, std::move(find));
}

/// The find on whose entry a handle stands, or null.
const Find* standing(std::int32_t handle) {
    const auto at = state().finds.find(handle);
    return at != state().finds.end() && at->second.at < at->second.found.size() ? &at->second
                                                                                : nullptr;
}

void addRootCatalogs(State& s, View& view, std::string_view root,
                     const std::map<std::string, std::string>& names) {
    const std::string directory =
        lornfd::programPath(root.substr(0, root.find_last_not_of("\\/") + 1));
    for (std::uint32_t number = 1; number < LooseLayer; ++number) {
        std::string name(number < 10 ? "0" : "");
        name.append(std::to_string(number)).append(".cat");
        const auto at = names.find(name);
        if (at == names.end())
            return;
        const std::string path = directory + '\\' + at->second;
        if (const auto catalog = lornfd::CatalogIndex::open(path))
            addCatalog(s, view, catalog, path, number, s.filters);
        else
            warn(s, driverErrorText());
    }
}

} // namespace

std::int32_t KeshVFS_AddVFSFilter(std::string_view Mask) {
    return run([&](State& s) {
        s.filters.add(Mask);
        return 1;
    });
}

void KeshVFS_ClearFilters() {
    state().filters.clear();
}

std::int32_t KeshVFS_CreateVFS(std::string_view DataRoot) {
    return run([&](State& s) {
        s.warnings.clear();
        s.topLayer = LooseLayer;
        s.view = std::make_shared<View>();
        if (DataRoot.empty())
            return 1;
        if (readsAsEntry(DataRoot))
            return rootError(s, DataRoot, entryReason(DataRoot));
        auto view = std::make_shared<View>();
        LooseFiles loose = addLooseFiles(*view, DataRoot, LooseLayer, s.filters);
        s.warnings = std::move(loose.warnings);
        if (!loose.rootRead)
            return rootError(s, DataRoot, s.warnings.substr(0, s.warnings.find('\n')));
        addRootCatalogs(s, *view, DataRoot, loose.catalogs);
        s.view = std::move(view);
        return 1;
    });
}

std::int32_t KeshVFS_AppendCatalog(std::string_view Catalog) {
    return run([&](State& s) {
        if (readsAsEntry(Catalog))
            return s.error.set(KESHVFS_E_CATALOG, {std::string(Catalog), {}, entryReason(Catalog)});
        const auto catalog = lornfd::CatalogIndex::open(Catalog);
        if (!catalog)
            return s.error.set(KESHVFS_E_CATALOG, {std::string(Catalog), {}, driverErrorText()});
        addCatalog(s, *s.view, catalog, Catalog, ++s.topLayer, s.filters);
        return 1;
    });
}

std::int32_t KeshVFS_GetVFSHandle() {
    return ViewHandle;
}

std::int32_t KeshVFS_FindFirstFile(std::string_view Mask, VFSFindData& Data) {
    return run([&](State& s) { return startSearch(s, s.view, Mask, false, Data); });
}

std::int32_t KeshVFS_FindNextFile(std::int32_t Handle, VFSFindData& Data) {
    return run([&](State& s) {
        const auto at = s.finds.find(Handle);
        if (at == s.finds.end())
            return handleError(s, Handle);
        Find& find = at->second;
        find.at = std::min(find.at + 1, find.found.size());
        if (find.at == find.found.size())
            return 0;
        fill(find, Data);
        return 1;
    });
}

std::int32_t KeshVFS_FindClose(std::int32_t Handle) {
    return run([&](State& s) { return s.finds.erase(Handle) != 0 ? 1 : handleError(s, Handle); });
}

std::int32_t KeshVFS_CatFindInit(std::int32_t Catalog) {
    return run([&](State& s) {
        if (Catalog == ViewHandle)
            return open(s, {s.view, {}});
        const auto index = lornfd::catalogOfHandle(Catalog);
        if (!index)
            return handleError(s, Catalog);
        auto view = std::make_shared<View>();
        addCatalog(s, *view, index, index->path(), 1, {});
        return open(s, {std::move(view), {}});
    });
}

std::int32_t KeshVFS_CatFindFirstFile(std::int32_t Context, std::string_view Mask,
                                      VFSFindData& Data) {
    return run([&](State& s) {
        const auto at = s.finds.find(Context);
        return at == s.finds.end() ? handleError(s, Context)
                                   : startSearch(s, at->second.view, Mask, true, Data);
    });
}

std::string KeshVFS_GetVFSName(std::int32_t Handle) {
    const Find* find = standing(Handle);
    return find ? std::string(find->view->entry(find->found[find->at]).name()) : std::string();
}

std::string KeshVFS_GetRealName(std::int32_t Handle) {
    const Find* find = standing(Handle);
    return find ? find->view->realName(find->found[find->at]) : std::string();
}

std::int32_t KeshVFS_GetLastError() {
    return state().error.code();
}

std::int32_t KeshVFS_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                    std::int32_t* Needed) {
    return state().error.translate(Code, Buffer, Size, Needed);
}

std::string KeshVFS_Warnings() {
    return state().warnings;
}
