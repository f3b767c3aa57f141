#include "lornfd/errors.h"

#include <utility>

namespace lornfd {

namespace {

constexpr ErrorText texts[] = {
    {LORNFD_E_NOT_FOUND, "\"{file}\" was not found."},
    {LORNFD_E_OPEN, "\"{file}\" could not be opened: {reason}."},
    {LORNFD_E_READ, "\"{file}\" could not be read at {place}: {reason}."},
    {LORNFD_E_WRITE, "\"{file}\" could not be written: {reason}."},
    {LORNFD_E_LOCKED, "\"{file}\" is being written by another program{reason}."},
    {LORNFD_E_NAME, "\"{file}\" is not a name that can be used: {reason}."},
    {LORNFD_E_CATALOG, "The catalog \"{file}\" is broken in {place}: {reason}."},
    {LORNFD_E_PACKED, "The packed data of \"{file}\" is broken at {place}: {reason}."},
    {LORNFD_E_TOO_BIG, "\"{file}\" is too big: {reason}."},
    {LORNFD_E_CHECKSUM,
     "\"{file}\" is damaged: its stored bytes at {place} of the data file do not "
     "have the checksum of the catalog ({reason})."},
    {LORNFD_E_HANDLE, "The handle {place} cannot be used: {reason}."},
    {LORNFD_E_ARGUMENT, "\"{file}\" was not opened: {reason}."},
};

} // namespace

LastError& lastError() {
    thread_local LastError error{texts};
    return error;
}

bool fail(LornFDError code, const ErrorParts& parts) {
    lastError().set(code, parts);
    return false;
}

bool fail(LornFDError code, std::string_view file, const std::error_code& reason) {
    return fail(code, {.file = std::string(file), .place = {}, .reason = reason.message()});
}

std::string offsetPlace(std::int64_t offset) {
    return "offset " + std::to_string(offset);
}

std::string linePlace(std::size_t line) {
    return "line " + std::to_string(line);
}

} // namespace lornfd
