// Every persistent setting, recent lists, the temporary directory and the trace log.
//
// The store is four INI files in one directory (KESH_CONFIG_DIR, else the platform's own):
// user.ini, machine.ini, game.ini, outfitter.ini. Nothing is cached: each access reads the store.
// What is missing or broken gives its default. What cannot be saved stays as it was; nobody who
// closes a window waits for an answer, so the trace log tells it, once until saving works again.
// Every path that is given here is in the program's form ("\").
#pragma once

#include "core/SettingsStore.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class clsSettings {
public:
    clsSettings();
    ~clsSettings(); ///< DeleteTemp

    // The settings. An empty string deletes the value.
    [[nodiscard]] std::string DataRoot() const; ///< the game's directory
    void SetDataRoot(const std::string& Value);
    [[nodiscard]] std::string KeshEXEPath() const; ///< DataRoot + "\kesh.exe" if unset
    void SetKeshEXEPath(const std::string& Value);
    [[nodiscard]] bool LoadDescriptions() const;
    void SetLoadDescriptions(bool Value);
    [[nodiscard]] std::int32_t DescLangID() const;
    void SetDescLangID(std::int32_t Value);
    [[nodiscard]] std::string CustomProgram() const;
    void SetCustomProgram(const std::string& Value);
    [[nodiscard]] bool UseDoubleBuffer() const;
    void SetUseDoubleBuffer(bool Value);
    [[nodiscard]] bool UseDirectDraw() const;
    void SetUseDirectDraw(bool Value);
    [[nodiscard]] std::string LastOpenedXMLFile() const;
    void SetLastOpenedXMLFile(const std::string& Value);
    [[nodiscard]] std::string Ext3DViewerPath() const;
    void SetExt3DViewerPath(const std::string& Value);
    [[nodiscard]] std::string Ext3DViewerCmdLine() const; ///< "%1" "%2" with their quotes if unset
    void SetExt3DViewerCmdLine(const std::string& Value);
    [[nodiscard]] bool Ext3DViewerSupportsLornFD() const;
    void SetExt3DViewerSupportsLornFD(bool Value);
    [[nodiscard]] bool AutoArrangeIcons() const;
    void SetAutoArrangeIcons(bool Value);

    // Derived
    [[nodiscard]] bool Ashfall() const { return true; } ///< selects the newer packed form
    void SetAshfall(bool) {}
    [[nodiscard]] std::string ActiveModName() const;     ///< with ".cat"; empty if there is none
    [[nodiscard]] std::string ActiveModFullName() const; ///< below DataRoot\mods
    [[nodiscard]] std::string KeshMMFullPath() const;    ///< the mod tool; empty if there is none
    [[nodiscard]] std::string HelpPath() const;
    /// log.txt beside the program, in the state directory if it can't be written there.
    [[nodiscard]] std::string TraceFilePath() const;
    [[nodiscard]] std::string TempDirectory() const; ///< empty before InitEnviroment
    [[nodiscard]] std::string ConfigDirectory() const;
    /// KESH_STATE_DIR, else the platform's own; made if missing.
    [[nodiscard]] std::string StateDirectory() const;

    /// A value of the user root, or the default if it is missing or no number; the key is empty for
    /// the root itself, a group otherwise ("TE", "main\icons").
    [[nodiscard]] std::string ReadRegValue(std::string_view Key, std::string_view Name,
                                           std::string_view Default = {}) const;
    [[nodiscard]] std::int32_t ReadRegValue(std::string_view Key, std::string_view Name,
                                            std::int32_t Default) const;
    /// False if it could not be saved.
    bool SaveRegValue(std::string_view Key, std::string_view Name, const std::string& Value,
                      bool DeleteIfEmpty);
    bool SaveRegValue(std::string_view Key, std::string_view Name, std::int32_t Value);
    /// Several values of the user root in one write of the file: all of them or none.
    bool SaveRegValues(const std::vector<SettingsStore::Entry>& Values);

    /// Names of the groups directly below a key, in byte order.
    [[nodiscard]] std::vector<std::string> SubKeys(std::string_view Key) const;

    /// Writes the program's own entry and makes the temporary directory.
    bool InitEnviroment();
    /// Removes the plain files of the temporary directory and the directory. Failures are ignored.
    void DeleteTemp();
    /// Command of the user's browser; empty if the platform names none.
    [[nodiscard]] std::string GetBrowser() const;

    // Recent lists. A saved list that is shorter than before leaves the former tail in the store.
    void SaveRecentTFiles(const std::vector<std::string>& List);
    [[nodiscard]] std::vector<std::string> LoadRecentTFiles() const;
    void SaveRecentGalaxyMaps(const std::vector<std::string>& List);
    [[nodiscard]] std::vector<std::string> LoadRecentGalaxyMaps() const;

    // Trace log
    /// Writes "date time - Text"; with AutoOpen opens first and closes after. False if no file is
    /// open.
    bool Trace(std::string_view Text, bool AutoOpen);
    /// Opens for appending, counts the use; the file number, 0 on failure.
    std::int32_t OpenTraceFile();
    std::int32_t CloseTraceFile();             ///< gives the use count that is left
    bool ClearTraceFile(std::int64_t MaxSize); ///< deletes a log longer than MaxSize bytes
    bool ReopenTraceFile(); ///< force-closes, clears read-only, reopens with the former use count

private:
    struct Data;
    std::unique_ptr<Data> m;
};

/// Made by Main, lives until the process ends.
extern std::unique_ptr<clsSettings> Settings;
