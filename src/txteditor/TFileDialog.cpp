#include "txteditor/TFileDialog.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"
#include "ui/FileFilter.h"
#include "ui/UserInterface.h"

#include <set>
#include <vector>

namespace {

constexpr int catalogFilter = 3;

QString tr(const char* text) {
    return QCoreApplication::translate("TFileDialog", text);
}

QString openFilter() {
    return tr("Kesh T files (*.txt; *.pck; *.cat)|*.txt;*.pck;*.cat|Lorn Catalogs (*.cat)|*.cat|"
              "All files (*.*)|*.*");
}

QString saveFilter() {
    return tr("Kesh T files - plain (*.txt)|*.txt|Kesh T files - compressed (*.pck)|*.pck|"
              "Kesh Catalogs (*.cat)|*.cat");
}

QString shown(const std::string& path) {
    return QString::fromStdString(ShownPath(path));
}

bool isCatalogName(const std::string& path) {
    return !IsCatalogPath(path) && lornfd::equalNoCase(ExtensionOf(path), "cat");
}

/// Entries below a find context, directory by directory; those that hold T files.
std::vector<std::string> listTFiles(std::int32_t context) {
    std::vector<std::string> files;
    std::vector<std::string> directories{""};
    std::set<std::string> seen{""};
    while (!directories.empty()) {
        const std::string directory = directories.back();
        directories.pop_back();
        VFSFindData data{};
        const std::int32_t find =
            KeshVFS_CatFindFirstFile(context, JoinPath({directory, "*"}), data);
        for (bool more = find != 0; more; more = KeshVFS_FindNextFile(find, data) != 0) {
            const std::string path = JoinPath({directory, KeshVFS_GetVFSName(find)});
            if ((data.Attributes & VFS_ATTRIBUTE_DIRECTORY) != 0) {
                if (seen.insert(lornfd::foldCase(path)).second)
                    directories.push_back(path);
            } else if (ObjectTypeFromFile(path) != otype::None) {
                files.push_back(path);
            }
        }
        if (find != 0)
            KeshVFS_FindClose(find);
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::optional<std::string> chooseEntry(QWidget* owner, const QString& title, std::int32_t catalog) {
    const std::int32_t context = KeshVFS_CatFindInit(catalog);
    const std::vector<std::string> files = listTFiles(context);
    if (context != 0)
        KeshVFS_FindClose(context);
    QStringList items;
    for (const std::string& file : files)
        items.append(QString::fromStdString(file));
    const auto choice = Ui().PickItem(owner, title, items);
    return choice ? std::optional(choice->toStdString()) : std::nullopt;
}

std::optional<std::string> chooseInCatalog(QWidget* owner, const std::string& name) {
    const std::int32_t catalog = LornFD_OpenCatalog(name, LORNFD_OPEN_EXISTING);
    if (catalog == 0) {
        ShowBox(owner, tr("TXT Editor"),
                tr("Error opening file ") + shown(name) + QStringLiteral(":\n\n") +
                    QString::fromStdString(LornFDErrorText()),
                BoxIcon::Critical);
        return {};
    }
    const QString title = tr("Open - Catalog ") + QString::fromStdString(BaseName(name, false));
    const auto entry = chooseEntry(owner, title, catalog);
    LornFD_CloseCatalog(catalog);
    return entry ? std::optional(name + "::" + *entry) : std::nullopt;
}

/// A catalog alone is no target: asks for the entry, offering the present one.
std::optional<std::string> askEntry(QWidget* owner, const std::string& catalog,
                                    const std::string& present) {
    const std::string entry = IsCatalogPath(present)
                                  ? EntryPart(present)
                                  : JoinPath({"types", BaseName(present, true) + ".pck"});
    const auto answer =
        Ui().AskText(owner, tr("Save"), tr("Entry in the catalog"), QString::fromStdString(entry));
    if (!answer || answer->isEmpty())
        return {};
    return catalog + "::" + FromPlatform(answer->toStdString());
}

} // namespace

std::optional<std::string> ChooseTFileToOpen(QWidget* Owner) {
    const auto choice =
        Ui().ShowOpen(Owner, {tr("Open"), openFilter(), 1, shown(Settings->DataRoot()), {}});
    if (!choice)
        return {};
    const std::string name = FromPlatform(choice->FileName.toStdString());
    return isCatalogName(name) ? chooseInCatalog(Owner, name) : std::optional(name);
}

std::optional<std::string> ChooseTFileInView(QWidget* Owner) {
    const auto entry = chooseEntry(Owner, tr("Select file"), KeshVFS_GetVFSHandle());
    return entry ? std::optional("vfs://" + *entry) : std::nullopt;
}

std::optional<SaveChoice> ChooseTFileToSave(QWidget* Owner, const std::string& Present) {
    const QString filter = saveFilter();
    const int start =
        IsCatalogPath(Present)
            ? catalogFilter
            : FilterForExtension(filter, QString::fromStdString(ExtensionOf(Present)), 1);
    const auto choice = Ui().ShowSave(
        Owner, {tr("Save"), filter, start, shown(ParentDir(CatalogPart(Present))), shown(Present)});
    if (!choice)
        return {};
    const QString typed = choice->FileName;
    std::string name = FromPlatform((typed.contains(QStringLiteral("::"))
                                         ? typed
                                         : WithExtension(typed, filter, choice->FilterIndex))
                                        .toStdString());
    if (!isCatalogName(name))
        return SaveChoice{std::move(name), choice->FilterIndex};
    auto entry = askEntry(Owner, name, Present);
    return entry ? std::optional(SaveChoice{std::move(*entry), catalogFilter}) : std::nullopt;
}
