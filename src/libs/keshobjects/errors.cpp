#include "keshobjects/errors.h"

#include "lornfd/lornfd.h"

namespace keshobjects {
namespace {

// The file driver's reasons are whole sentences that name the file.
constexpr lornfd::ErrorText texts[] = {
    {KESH_E_READ, "Reading failed: {reason}"},
    {KESH_E_WRITE, "Writing failed: {reason}"},
    {KESH_E_END, "\"{file}\" ends in {place} where a value is expected."},
    {KESH_E_NOT_WHOLE, "\"{reason}\" in {place} of \"{file}\" is not a whole number of 32 bits."},
    {KESH_E_REMARK, "The remark that begins in {place} of \"{file}\" never ends."},
    {KESH_E_NUL, "A NUL character stands in {place} of \"{file}\"."},
    {KESH_E_TOO_BIG, "\"{file}\" is too big: a text must be smaller than 4 GB."},
    {KESH_E_ENCODING, "\"{file}\" is in the encoding \"{reason}\", which is not known."},
    {KESH_E_DECODE, "\"{file}\" could not be converted: {reason} in {place}."},
    {KESH_E_NOT_FOUND, "\"{file}\" was not found."},
    {KESH_E_HANDLE, "{reason} is not a handle of the right kind."},
    {KESH_E_ARGUMENT, "Not allowed here: {reason}."},
    {KESH_E_LANGUAGE_FILE, "\"{file}\" is no language file: {reason} in {place}."},
    {KESH_E_ID_TAKEN, "There is a {place} with the number {reason} already."},
    {KESH_E_CHARACTER, "A language file cannot hold the byte {reason} at {place}."},
};

} // namespace

lornfd::LastError& lastError() {
    thread_local lornfd::LastError error(texts);
    return error;
}

std::string driverReason() {
    std::int32_t needed = 0;
    const std::int32_t code = LornFD_GetLastError();
    LornFD_TranslateError(code, nullptr, 0, &needed);
    std::string text(static_cast<std::size_t>(needed), '\0');
    LornFD_TranslateError(code, text.data(), needed, &needed);
    text.pop_back();
    return text;
}

} // namespace keshobjects

std::int32_t Kesh_GetLastError() {
    return keshobjects::lastError().code();
}

std::int32_t Kesh_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                 std::int32_t* Needed) {
    return keshobjects::lastError().translate(Code, Buffer, Size, Needed);
}
