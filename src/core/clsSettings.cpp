#include "core/clsSettings.h"

#include "core/TempDirectory.h"
#include "core/TraceLog.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "keshobjects/value.h"
#include "lornfd/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <map>

std::unique_ptr<clsSettings> Settings;

namespace {

struct TextSetting {
    const char* key;
    const char* name;
    const char* fallback;
};
struct NumberSetting {
    const char* key;
    const char* name;
    std::int32_t fallback;
};

constexpr TextSetting DataPath = {"", "DataPath", ""};
constexpr TextSetting EXEPath = {"", "KeshEXEPath", ""};
constexpr TextSetting EditorEXEPath = {"", "EditorEXEPath", ""};
constexpr TextSetting LastOpenXMLFile = {"TRE", "LastOpenXMLFile", ""};
constexpr TextSetting ViewerPath = {"3DViewer", "Path", ""};
constexpr TextSetting ViewerCmdLine = {"3DViewer", "CmdLine", "\"%1\" \"%2\""};
constexpr NumberSetting LoadDesc = {"", "LoadDesc", 1};
constexpr NumberSetting DescLanguage = {"", "DescLanguage", 44};
constexpr NumberSetting DoubleBuffer = {"", "UseDoubleBuffer", 1};
constexpr NumberSetting DirectDraw = {"", "UseDirectDraw", 1};
constexpr NumberSetting ViewerSupportsLornFD = {"3DViewer", "SupportsLornFD", 1};
constexpr NumberSetting ArrangeIcons = {"main", "AutoArrangeIcons", 1};

constexpr const char* TxtEditorList = "mru\\TXTEditor";
constexpr const char* GalaxyEditorList = "mru\\GEditor";
// A recent list's entry has a number of at most this many digits as its name.
constexpr std::size_t LongestEntryName = 4;

std::string programForm(const QString& path) {
    return WithBackslashes(path.toStdString());
}
QString native(const std::string& path) {
    return QString::fromStdString(lornfd::nativePath(path));
}

/// The directory that an environment variable names, else "Kesh Editor AF" in the platform's own.
QString directory(const char* variable, QStandardPaths::StandardLocation location) {
    const QString named = qEnvironmentVariable(variable);
    return named.isEmpty()
               ? QStandardPaths::writableLocation(location) + QStringLiteral("/Kesh Editor AF")
               : QDir(named).absolutePath();
}

QString configDirectory() {
    return directory("KESH_CONFIG_DIR", QStandardPaths::GenericConfigLocation);
}

bool isEntryName(const std::string& name) {
    return !name.empty() && name.size() <= LongestEntryName &&
           name.find_first_not_of("0123456789") == std::string::npos;
}

SettingsStore::Entry textEntry(std::string_view key, std::string_view name,
                               const std::string& value, bool deleteIfEmpty) {
    SettingsStore::Entry entry{std::string(key), std::string(name), {}};
    if (!deleteIfEmpty || !value.empty())
        entry.value = value;
    return entry;
}

SettingsStore::Entry numberEntry(std::string_view key, std::string_view name, std::int32_t value) {
    return {std::string(key), std::string(name), std::to_string(value)};
}

std::vector<std::string> loadList(const SettingsStore& store, const char* key) {
    std::multimap<std::int32_t, std::string> entries;
    for (const auto& [name, value] : store.Values(key))
        if (isEntryName(name))
            entries.emplace(keshobjects::readInteger(name).value_or(0), value);
    std::vector<std::string> list;
    for (const auto& entry : entries)
        list.push_back(entry.second);
    return list;
}

std::vector<SettingsStore::Entry> listEntries(const char* key,
                                              const std::vector<std::string>& list) {
    std::vector<SettingsStore::Entry> entries;
    for (std::size_t i = 0; i < list.size(); ++i)
        entries.push_back({key, std::to_string(i), list[i]});
    return entries;
}

std::string stateDirectory() {
    const QString path = directory("KESH_STATE_DIR", QStandardPaths::GenericDataLocation);
    QDir().mkpath(path);
    return programForm(path);
}

std::string traceFilePath() {
    const QString directory = QCoreApplication::applicationDirPath();
    const QFileInfo log(QDir(directory).filePath(QStringLiteral("log.txt")));
    const bool writable = log.exists() ? log.isWritable() : QFileInfo(directory).isWritable();
    return writable ? programForm(log.filePath()) : JoinPath({stateDirectory(), "log.txt"});
}

} // namespace

struct clsSettings::Data {
    QDir config = QDir(configDirectory());
    SettingsStore user = store("user.ini");
    SettingsStore machine = store("machine.ini");
    SettingsStore game = store("game.ini");
    SettingsStore outfitter = store("outfitter.ini");
    QString temp;
    TraceLog log;
    bool lastWritten = true;

    [[nodiscard]] SettingsStore store(const char* file) const {
        return SettingsStore(config.filePath(QString::fromLatin1(file)).toStdString());
    }

    [[nodiscard]] std::string text(const TextSetting& setting) const {
        return user.Read(setting.key, setting.name).value_or(setting.fallback);
    }
    [[nodiscard]] std::string path(const TextSetting& setting) const {
        return WithBackslashes(text(setting));
    }
    [[nodiscard]] std::int32_t number(const NumberSetting& setting) const {
        const auto value = user.Read(setting.key, setting.name);
        return (value ? keshobjects::readInteger(*value) : std::nullopt).value_or(setting.fallback);
    }
    [[nodiscard]] bool flag(const NumberSetting& setting) const {
        return IntToBool(number(setting));
    }
    bool write(const std::vector<SettingsStore::Entry>& entries) {
        const bool written = user.Write(entries);
        if (!written && lastWritten && log.Open(native(traceFilePath())) != 0) {
            log.Write("The settings could not be saved.");
            log.Close();
        }
        lastWritten = written;
        return written;
    }
    void save(const TextSetting& setting, const std::string& value) {
        write({textEntry(setting.key, setting.name, value, true)});
    }
    void save(const NumberSetting& setting, std::int32_t value) {
        write({numberEntry(setting.key, setting.name, value)});
    }
};

clsSettings::clsSettings() : m(std::make_unique<Data>()) {}
clsSettings::~clsSettings() {
    DeleteTemp();
}

std::string clsSettings::DataRoot() const {
    return m->path(DataPath);
}
void clsSettings::SetDataRoot(const std::string& Value) {
    m->save(DataPath, Value);
}

std::string clsSettings::KeshEXEPath() const {
    const std::string path = m->path(EXEPath);
    const std::string root = DataRoot();
    return !path.empty() || root.empty() ? path : JoinPath({root, "kesh.exe"});
}
void clsSettings::SetKeshEXEPath(const std::string& Value) {
    m->save(EXEPath, Value);
}

bool clsSettings::LoadDescriptions() const {
    return m->flag(LoadDesc);
}
void clsSettings::SetLoadDescriptions(bool Value) {
    m->save(LoadDesc, Value);
}
std::int32_t clsSettings::DescLangID() const {
    return m->number(DescLanguage);
}
void clsSettings::SetDescLangID(std::int32_t Value) {
    m->save(DescLanguage, Value);
}
std::string clsSettings::CustomProgram() const {
    return m->path(EditorEXEPath);
}
void clsSettings::SetCustomProgram(const std::string& Value) {
    m->save(EditorEXEPath, Value);
}
bool clsSettings::UseDoubleBuffer() const {
    return m->flag(DoubleBuffer);
}
void clsSettings::SetUseDoubleBuffer(bool Value) {
    m->save(DoubleBuffer, Value);
}
bool clsSettings::UseDirectDraw() const {
    return m->flag(DirectDraw);
}
void clsSettings::SetUseDirectDraw(bool Value) {
    m->save(DirectDraw, Value);
}
std::string clsSettings::LastOpenedXMLFile() const {
    return m->path(LastOpenXMLFile);
}
void clsSettings::SetLastOpenedXMLFile(const std::string& Value) {
    m->save(LastOpenXMLFile, Value);
}
std::string clsSettings::Ext3DViewerPath() const {
    return m->path(ViewerPath);
}
void clsSettings::SetExt3DViewerPath(const std::string& Value) {
    m->save(ViewerPath, Value);
}
std::string clsSettings::Ext3DViewerCmdLine() const {
    return m->text(ViewerCmdLine);
}
void clsSettings::SetExt3DViewerCmdLine(const std::string& Value) {
    m->save(ViewerCmdLine, Value);
}
bool clsSettings::Ext3DViewerSupportsLornFD() const {
    return m->flag(ViewerSupportsLornFD);
}
void clsSettings::SetExt3DViewerSupportsLornFD(bool Value) {
    m->save(ViewerSupportsLornFD, Value);
}
bool clsSettings::AutoArrangeIcons() const {
    return m->flag(ArrangeIcons);
}
void clsSettings::SetAutoArrangeIcons(bool Value) {
    m->save(ArrangeIcons, Value);
}

std::string clsSettings::ActiveModName() const {
    const std::string name = m->game.Read("", "ModName").value_or("");
    return name.empty() ? name : name + ".cat";
}

std::string clsSettings::ActiveModFullName() const {
    const std::string name = ActiveModName();
    return name.empty() ? name : JoinPath({DataRoot(), "mods", name});
}

std::string clsSettings::KeshMMFullPath() const {
    const std::string path = WithBackslashes(m->outfitter.Read("", "path").value_or(""));
    return path.empty()
               ? path
               : JoinPath({path, m->outfitter.Read("", "exename").value_or("KeshOutfitter.exe")});
}

std::string clsSettings::HelpPath() const {
    return JoinPath({programForm(QCoreApplication::applicationDirPath()), "KeshEditor.chm"});
}

std::string clsSettings::TraceFilePath() const {
    return traceFilePath();
}

std::string clsSettings::TempDirectory() const {
    return programForm(m->temp);
}
std::string clsSettings::ConfigDirectory() const {
    return programForm(m->config.path());
}

std::string clsSettings::StateDirectory() const {
    return stateDirectory();
}

std::string clsSettings::ReadRegValue(std::string_view Key, std::string_view Name,
                                      std::string_view Default) const {
    return m->user.Read(Key, Name).value_or(std::string(Default));
}

std::int32_t clsSettings::ReadRegValue(std::string_view Key, std::string_view Name,
                                       std::int32_t Default) const {
    const auto value = m->user.Read(Key, Name);
    return (value ? keshobjects::readInteger(*value) : std::nullopt).value_or(Default);
}

bool clsSettings::SaveRegValue(std::string_view Key, std::string_view Name,
                               const std::string& Value, bool DeleteIfEmpty) {
    return m->write({textEntry(Key, Name, Value, DeleteIfEmpty)});
}

bool clsSettings::SaveRegValue(std::string_view Key, std::string_view Name, std::int32_t Value) {
    return m->write({numberEntry(Key, Name, Value)});
}

bool clsSettings::SaveRegValues(const std::vector<SettingsStore::Entry>& Values) {
    return m->write(Values);
}

std::vector<std::string> clsSettings::SubKeys(std::string_view Key) const {
    return m->user.SubKeys(Key);
}

bool clsSettings::InitEnviroment() {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    const std::string name = program.completeBaseName().toStdString();
    // The entry is for other programs: its path is in their form, the platform's.
    (void)m->machine.Write({{"", "path", QDir::toNativeSeparators(program.path()).toStdString()},
                            {"", "EXEName", name + ".exe"},
                            {"", "version", ProgramVersion()}});
    m->temp = MakeTempDirectory();
    return true;
}

void clsSettings::DeleteTemp() {
    if (!m->temp.isEmpty())
        RemoveTempDirectory(m->temp);
}

std::string clsSettings::GetBrowser() const {
    QString command = qEnvironmentVariable("BROWSER");
    for (const char* opener : {"xdg-open", "open", "explorer"})
        if (command.isEmpty())
            command = QStandardPaths::findExecutable(QString::fromLatin1(opener));
    return command.toStdString();
}

void clsSettings::SaveRecentTFiles(const std::vector<std::string>& List) {
    m->write(listEntries(TxtEditorList, List));
}
std::vector<std::string> clsSettings::LoadRecentTFiles() const {
    return loadList(m->user, TxtEditorList);
}
void clsSettings::SaveRecentGalaxyMaps(const std::vector<std::string>& List) {
    m->write(listEntries(GalaxyEditorList, List));
}
std::vector<std::string> clsSettings::LoadRecentGalaxyMaps() const {
    return loadList(m->user, GalaxyEditorList);
}

bool clsSettings::Trace(std::string_view Text, bool AutoOpen) {
    if (AutoOpen)
        OpenTraceFile();
    const bool written = m->log.Write(Text);
    if (AutoOpen)
        CloseTraceFile();
    return written;
}

std::int32_t clsSettings::OpenTraceFile() {
    return m->log.Open(native(TraceFilePath()));
}
std::int32_t clsSettings::CloseTraceFile() {
    return m->log.Close();
}

bool clsSettings::ClearTraceFile(std::int64_t MaxSize) {
    const QString path = native(TraceFilePath());
    if (QFileInfo(path).size() <= MaxSize)
        return false;
    m->log.ForceClose();
    return QFile::remove(path);
}

bool clsSettings::ReopenTraceFile() {
    return m->log.Reopen(native(TraceFilePath()));
}
