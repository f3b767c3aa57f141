#include "tessil/errors.h"

#include "tessil/tessil.h"

namespace tessil {

namespace {

constexpr lornfd::ErrorText texts[] = {
    {TESSIL_E_INIT, "The picture decoder is not started: {reason}."},
    {TESSIL_E_KIND, "\"{file}\" is not a picture that can be decoded: {reason}."},
    {TESSIL_E_BROKEN, "The picture \"{file}\" is broken: {reason}."},
    {TESSIL_E_TOO_BIG, "The picture \"{file}\" is too big: {reason}."},
    {TESSIL_E_MEMORY, "There is not enough memory for the picture \"{file}\"."},
    {TESSIL_E_HANDLE, "{place} is not a bitmap."},
};

} // namespace

lornfd::LastError& lastError() {
    thread_local lornfd::LastError error(texts);
    return error;
}

} // namespace tessil
