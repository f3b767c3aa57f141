// A check over many files: T files and language files, each language with its own texts.
#pragma once

#include "tdata/DataCheck.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class CheckRun {
public:
    using TakeFindings = std::function<void(const std::vector<Finding>&)>;
    using TakeFailure = std::function<void(const std::string&)>; ///< why a file cannot be checked

    /// Takes a file by its real place; `Shown` is its name in findings. False for a file of neither
    /// kind, which is told by the name.
    bool Add(const std::string& Shown, const std::string& RealName);
    /// Every such file of the merged view, shown by its "vfs://" name.
    void AddView();

    /// Loads and checks file after file. References go to the archive and to the texts of a
    /// language; both services have to be there, and the store is left with that language.
    void Run(std::int32_t Language, const TakeFindings& Findings, const TakeFailure& Failed) const;

private:
    struct File {
        std::string Shown;
        std::string RealName;
    };

    std::map<std::int32_t, std::vector<File>> m_languageFiles;
    std::vector<File> m_tFiles;
};
