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
    /// Every file of the merged view with a name of the game's, such as "TShips", "TShips_48" or
    /// "0001-L044", shown by its "vfs://" name.
    void AddView();

    /// Loads and checks file after file. With a game in the view references go to its files and to
    /// the texts of a language, without one they are passed over. The archive and the description
    /// server have to be there; the store is left with that language.
    void Run(bool WithGame, std::int32_t Language, const TakeFindings& Findings,
             const TakeFailure& Failed) const;

private:
    struct File {
        std::string Shown;
        std::string RealName;
    };

    void CheckTexts(const TakeFindings& Findings, const TakeFailure& Failed) const;
    void CheckRecords(CheckReferences& References, const TakeFindings& Findings,
                      const TakeFailure& Failed) const;

    bool m_wholeView = false;
    std::map<std::int32_t, std::vector<File>> m_languageFiles;
    std::vector<File> m_tFiles;
};
