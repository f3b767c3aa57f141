#include "keshobjects/errors.h"

#include "lornfd/lornfd.h"

#include <array>

namespace keshobjects {
namespace {

constexpr std::array texts{
    lornfd::ErrorText{KESH_OK, "No error."},
    lornfd::ErrorText{KESH_E_READ, "Cannot read {file}: {reason}"},
    lornfd::ErrorText{KESH_E_WRITE, "Cannot write {file}: {reason}"},
    lornfd::ErrorText{KESH_E_END, "The text of {file} ends at {place} where a value is expected."},
    lornfd::ErrorText{KESH_E_NOT_WHOLE,
                      "{file}, {place}: \"{reason}\" is not a whole number of 32 bits."},
    lornfd::ErrorText{KESH_E_REMARK, "{file}: the remark that begins at {place} never ends."},
    lornfd::ErrorText{KESH_E_NUL, "{file}, {place}: a NUL character stands in the text."},
    lornfd::ErrorText{KESH_E_TOO_BIG, "{file} is too big: texts of 4 GB or more cannot be loaded."},
    lornfd::ErrorText{KESH_E_ENCODING, "{file}: the encoding \"{reason}\" is not known."},
    lornfd::ErrorText{KESH_E_DECODE, "{file}, {place}: {reason}"},
    lornfd::ErrorText{KESH_E_NOT_FOUND, "{file} is not in the game's files."},
    lornfd::ErrorText{KESH_E_HANDLE, "Not the handle of a loaded text."},
    lornfd::ErrorText{KESH_E_ARGUMENT, "Not allowed here: {reason}"},
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
