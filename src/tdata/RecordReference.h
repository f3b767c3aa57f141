// Which fields name a record of another file, and where that record is.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class clsTxtParser;

/// A record of one of the game's files, by its place there or by what names it.
struct RecordAddress {
    std::string File;        ///< key: "TBullets"; empty: any of the files of wares
    std::int32_t Index = -1; ///< place in the file; -1 if Name tells it
    std::string Name = {};   ///< ID; of a job or job wing its number

    friend bool operator==(const RecordAddress&, const RecordAddress&) = default;
};

/// A field that names a record of another file.
struct FieldReference {
    enum class By : std::uint8_t { Index, ID, Number };

    std::int32_t Type;
    std::int32_t Field; ///< logical for jobs
    std::string_view File;
    By How;
    bool Optional = true; ///< by an index: below 0 it names none

    /// True if the value at a place of a record of that type names none on purpose: an index below
    /// 0 where it is optional, a number up to 0, an ID that is empty or "0".
    [[nodiscard]] bool NamesNone(const clsTXTObject& Record, std::int32_t Place) const;
};
[[nodiscard]] std::span<const FieldReference> FieldReferences();

/// What a field leads to; nothing if it names no record. `Index` is logical for jobs. Whether there
/// is such a record FindRecord tells.
[[nodiscard]] std::optional<RecordAddress> ReferenceOf(const clsTXTObject& Record,
                                                       std::int32_t Index);
/// The ware of an ID, in the first of the files of wares that has it; nothing if none has.
[[nodiscard]] std::optional<RecordAddress> WareAddress(std::string_view ID);

/// The record of an address in its file; none if there is none.
[[nodiscard]] RecordPtr FindRecord(const clsTxtParser& File, const RecordAddress& Address);
