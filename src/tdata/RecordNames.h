// The fields of the common frame by which records are named, and the name itself.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>

inline constexpr std::int32_t CommonSubtypeField = 5;
inline constexpr std::int32_t CommonNameField =
    6; ///< id of the name; the next id is the description

/// The name of a record in the user's language; its ID if there is none.
[[nodiscard]] std::string RecordName(const clsTXTObject& Record);
/// What names a record in its file: a job's number, else its ID.
[[nodiscard]] std::string RecordID(const clsTXTObject& Record);
