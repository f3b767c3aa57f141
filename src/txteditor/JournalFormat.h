// The bytes of a recovery journal. Format: docs/formats.md, "Recovery journals".
#pragma once

#include "txteditor/RecordStep.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Tells one content of a file from another.
struct ContentMark {
    std::int64_t Size = 0;      ///< unpacked bytes
    std::uint32_t Checksum = 0; ///< their CRC-32

    bool operator==(const ContentMark&) const = default;
};

/// A state of a document from which steps go on.
struct JournalBase {
    std::string Document;   ///< its name as it was opened: a plain, catalog or "vfs://" path
    std::string StoredPath; ///< where it was really stored
    std::optional<ContentMark> Content; ///< what was stored there; none for a new document
    std::int32_t ObjectType = 0;

    bool operator==(const JournalBase&) const = default;
    /// True if it is the same content in the same place, whatever led there.
    [[nodiscard]] bool IsState(const JournalBase& Other) const {
        return StoredPath == Other.StoredPath && Content == Other.Content &&
               ObjectType == Other.ObjectType;
    }
};

/// A base with what was done to it.
struct JournalPart {
    JournalBase Base;
    std::vector<RecordSteps> Commands;
};

struct JournalContent {
    std::vector<JournalPart> Parts; ///< empty if this is no journal
    std::size_t Length = 0;         ///< of the sound bytes; what stands behind was torn off
};

inline constexpr std::string_view JournalSignature = "KESHJNL1";

/// One entry each, to be appended.
[[nodiscard]] std::string JournalEntry(const JournalBase& Base);
[[nodiscard]] std::string JournalEntry(const RecordSteps& Steps);

/// Everything up to the first byte that is not as it was written. Never throws for wrong bytes, and
/// its memory is bounded by their number.
[[nodiscard]] JournalContent ReadJournal(std::string_view Bytes);

/// True if every step names a record that is there at its time, in a file of so many.
[[nodiscard]] bool StepsFit(std::size_t Records, const std::vector<RecordSteps>& Commands);
