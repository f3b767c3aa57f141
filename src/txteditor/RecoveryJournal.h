// Keeps on the disk what a window did to its document since it was opened or saved, so that it
// outlives a crash.
//
// A journal is one file in a directory of its own, made with the first command and held by a lock
// while its window lives. A window that is closed in the normal way discards it; so what is left
// without a living holder is from a program that was killed.
#pragma once

#include "txteditor/JournalFormat.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLockFile;

/// Of the unpacked content behind an open handle of the file driver: all that is read, or what was
/// written so far. None on failure.
[[nodiscard]] std::optional<ContentMark> MarkOf(std::int32_t File);
[[nodiscard]] ContentMark MarkOf(std::string_view Content);
/// Whether the place of a base still has its content; a new document's, that there is nothing.
[[nodiscard]] bool FitsDisk(const JournalBase& Base);

/// A journal's file with the lock that keeps others from it. The file outlives the object.
class JournalFile {
public:
    JournalFile() = default;
    JournalFile(JournalFile&&) noexcept;
    JournalFile& operator=(JournalFile&&) noexcept;
    ~JournalFile();

    /// Nothing if another holds it, or if it cannot be locked.
    [[nodiscard]] static std::optional<JournalFile> Hold(const std::string& NativePath);
    [[nodiscard]] const std::string& Path() const noexcept { return m_path; } ///< native
    void Remove(); ///< lets go of the lock too

private:
    std::string m_path;
    std::unique_ptr<QLockFile> m_lock;
};

/// What a killed program left, held while it is offered.
struct LeftJournal {
    JournalFile File;
    JournalBase Base;                  ///< the last that the disk has; else the first
    std::vector<RecordSteps> Commands; ///< what was done to it, at least one command
    bool Fits = false;                 ///< the disk still has the base, so they may be replayed
    std::int64_t Changed = 0;          ///< time of the last change, milliseconds since 1970, UTC
    std::size_t Length = 0;            ///< of the file's sound part
};

/// All journals that no living program holds, oldest first. One that is damaged from its first
/// entry on is passed over and stays; one whose commands are all in its saved file is removed.
[[nodiscard]] std::vector<LeftJournal> FindLeftJournals(const std::string& Directory);

class RecoveryJournal {
public:
    /// `Directory` in the program's form; it is made with the first journal.
    explicit RecoveryJournal(std::string Directory);
    ~RecoveryJournal(); ///< keeps what was flushed

    /// Commands go on from here: a document was opened or saved. What was noted before is dropped.
    /// `Base` is asked when there is something to note.
    void Begin(std::function<JournalBase()> Base);
    /// Goes on with a left journal, whose commands were just replayed.
    void TakeOver(LeftJournal&& Left);
    /// Notes a command, in memory. An empty one is none.
    void Append(const RecordSteps& Steps);
    /// Notes that a save is about to put this in place, and flushes: killed in the middle of the
    /// save, either the former base or this one fits the disk. Begin follows if it succeeded.
    [[nodiscard]] std::string AnnounceSave(const JournalBase& Base);
    /// Brings what was noted to the disk and waits for it: one write, one flush. Gives a sentence
    /// to tell the user if that failed for the first time since it last succeeded, else nothing;
    /// what could not be written is tried again by the next call.
    [[nodiscard]] std::string Flush();
    [[nodiscard]] bool HasPending() const noexcept { return !m_pending.empty(); }
    /// The document was closed in the normal way: the file goes.
    void Discard();

private:
    [[nodiscard]] std::string WritePending(); ///< gives the reason of a failure

    std::string m_directory;
    std::function<JournalBase()> m_base;
    JournalFile m_file;
    std::int64_t m_length = 0; ///< of what is surely on the disk
    std::string m_pending;
    bool m_told = false;
};
