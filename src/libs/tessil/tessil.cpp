#include "tessil/tessil.h"

#include "tessil/decoder.h"
#include "tessil/errors.h"
#include "tessil/readers.h"

#include <limits>
#include <new>
#include <string>
#include <unordered_map>

using namespace tessil;

namespace {

struct State {
    int started = 0;
    std::unordered_map<std::int32_t, Picture> bitmaps;
    std::int32_t lastHandle = 0;
};

State& state() {
    static State theState;
    return theState;
}

std::int32_t fail(TESSILError code, std::string_view name, const std::string& reason = {}) {
    return lastError().set(code, {.file = std::string(name), .place = {}, .reason = reason});
}

std::int32_t failHandle(std::int32_t handle) {
    return lastError().set(TESSIL_E_HANDLE,
                           {.file = {}, .place = std::to_string(handle), .reason = {}});
}

std::int32_t add(Picture picture) {
    State& s = state();
    do
        s.lastHandle = s.lastHandle % std::numeric_limits<std::int32_t>::max() + 1;
    while (s.bitmaps.contains(s.lastHandle));
    s.bitmaps.emplace(s.lastHandle, std::move(picture));
    return s.lastHandle;
}

} // namespace

std::int32_t TESSIL_Init() {
    lastError().clear();
    State& s = state();
    if (s.started == 0 && !startDecoder()) {
        stopDecoder();
        return fail(TESSIL_E_INIT, {}, "it refuses to");
    }
    ++s.started;
    return 1;
}

std::int32_t TESSIL_Term() {
    lastError().clear();
    State& s = state();
    if (s.started == 0)
        return fail(TESSIL_E_INIT, {}, "it cannot be ended");
    if (--s.started == 0)
        stopDecoder();
    return 1;
}

std::int32_t TESSIL_ConvertToHBitmap(std::string_view Bytes, std::string_view Name) {
    lastError().clear();
    if (state().started == 0)
        return fail(TESSIL_E_INIT, {}, std::string(Name).append(" cannot be decoded"));
    try {
        return add(readPicture(Bytes));
    } catch (const Refusal& refusal) {
        return fail(refusal.code(), Name, refusal.what());
    } catch (const std::bad_alloc&) {
        return fail(TESSIL_E_MEMORY, Name);
    }
}

std::int32_t TESSIL_GetBitmap(std::int32_t Bitmap, TESSILBitmap& Data) {
    lastError().clear();
    const auto found = state().bitmaps.find(Bitmap);
    if (found == state().bitmaps.end())
        return failHandle(Bitmap);
    const Picture& picture = found->second;
    Data = {static_cast<std::int32_t>(picture.size.width),
            static_cast<std::int32_t>(picture.size.height), picture.rgba.data()};
    return 1;
}

std::int32_t TESSIL_DeleteBitmap(std::int32_t Bitmap) {
    lastError().clear();
    return state().bitmaps.erase(Bitmap) != 0 ? 1 : failHandle(Bitmap);
}

std::int32_t TESSIL_GetLastError() {
    return lastError().code();
}

std::int32_t TESSIL_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                   std::int32_t* Needed) {
    return lastError().translate(Code, Buffer, Size, Needed);
}
