// The document of a TXT Editor window: a T file, where it came from, its opening and saving. No
// windows.
#pragma once

#include "tdata/clsTxtParser.h"
#include "txteditor/JournalFormat.h"

#include <cstdint>
#include <functional>
#include <string>

class clsTFile {
public:
    enum class Outcome {
        Done,
        NotFound,  ///< a "vfs://" name that is nowhere; what was open stays
        NotOpened, ///< the file driver refused; what was open stays
        NotLoaded, ///< no T file; nothing is open now
        NotSaved,  ///< the target is as it was, and so is everything in memory
    };
    struct [[nodiscard]] Result {
        Outcome Kind = Outcome::Done;
        std::string Reason; ///< of the driver or the parser
    };

    /// The records. Parser.FileName is the document's name as it was opened: a plain, catalog or
    /// "vfs://" path, empty without a document.
    clsTxtParser Parser;

    Result Open(const std::string& Name);
    /// Writes to a plain or catalog path in a form of the file driver; that path is the document's
    /// name then. `Announce` is told what will stand there, just before it does.
    Result Save(const std::string& Name, std::int32_t FileType,
                const std::function<void(const JournalBase&)>& Announce = {});
    /// False if what Save writes is not read as the same records.
    [[nodiscard]] bool ReadsBack() const;
    /// What the document was opened from or saved as. Steps cannot go on from a file that is
    /// not read back: its content then is one that no file has.
    [[nodiscard]] JournalBase Base() const;
    /// Where the document is really stored; empty if a "vfs://" name is nowhere now.
    [[nodiscard]] std::string StoredPath() const;
    /// Native path of the file on disk that it was read from or saved to, the catalog of an entry.
    [[nodiscard]] std::string ContainerPath() const;
    /// True if `Target` is what this document was read from, and another program changed it since.
    [[nodiscard]] bool ChangedOnDisk(const std::string& Target) const;
    /// True once for each state that another program gave to what this document was read from.
    [[nodiscard]] bool NoticeChange();

private:
    /// What tells a file from a later state of it.
    struct Stamp {
        std::string Path; ///< folded for comparing
        std::int64_t Size = -1;
        std::int64_t Modified = 0;
        std::size_t Content = 0; ///< hash of the unpacked bytes of a catalog entry
    };
    static Stamp StampOf(const std::string& Path);
    Result Write(std::int32_t File, const std::function<void()>& Announce);
    void SetStamp(Stamp Now);

    Stamp m_stamp;
    Stamp m_noticed;    ///< the state that was noticed last
    JournalBase m_base; ///< without the content of a file that was opened: few are ever changed
    bool m_asLoaded = false; ///< that content is the loaded text
};

/// Size in bytes of the file on disk that holds a path; 0 if it cannot be told.
std::int64_t FileSizeHint(const std::string& Path);
