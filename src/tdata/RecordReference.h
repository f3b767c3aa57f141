// Which fields name a record of another file, and where that record is.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class clsTxtParser;

/// A record of one of the game's files, by its place there or by what names it.
struct RecordAddress {
    std::string File;        ///< key: "TBullets"
    std::int32_t Index = -1; ///< place in the file; -1 if Name tells it
    std::string Name = {};   ///< ID; of a job or job wing its number

    friend bool operator==(const RecordAddress&, const RecordAddress&) = default;
};

/// What a field leads to; nothing if it names no record. `Index` is logical for jobs. Whether there
/// is such a record FindRecord tells.
[[nodiscard]] std::optional<RecordAddress> ReferenceOf(const clsTXTObject& Record,
                                                       std::int32_t Index);
/// The ware of an ID, in the first of the files of wares that has it; nothing if none has.
[[nodiscard]] std::optional<RecordAddress> WareAddress(std::string_view ID);

/// The record of an address in its file; none if there is none.
[[nodiscard]] RecordPtr FindRecord(const clsTxtParser& File, const RecordAddress& Address);
