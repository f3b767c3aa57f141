#include "keshobjects/errors.h"
#include "keshobjects/keshobjects.h"
#include "keshobjects/places.h"
#include "keshobjects/textobjects.h"
#include "keshobjects/tokenizer.h"
#include "lornfd/lornfd.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace keshobjects {
namespace {

using Text = std::unique_ptr<Tokenizer>;

// Pieces of this size stay in the cache while they are searched for NUL characters.
constexpr std::size_t loadPiece = std::size_t{256} << 10;
constexpr std::size_t shownLength = 40; ///< of a value in a message

bool ignoreRemarks = false;

constexpr std::uint32_t firstHandle = 2; ///< 1 is the store of language texts

/// Texts by handle less the first; freed ones are null and their handles given again.
std::vector<Text>& texts() {
    static std::vector<Text> table;
    return table;
}

std::int32_t addText(Text text) {
    auto& table = texts();
    auto free = std::find(table.begin(), table.end(), nullptr);
    if (free == table.end())
        free = table.emplace(free);
    *free = std::move(text);
    return static_cast<std::int32_t>(free - table.begin() + firstHandle);
}

/// Null with the last error set for a bad handle.
Tokenizer* findText(std::int32_t handle) {
    auto& table = texts();
    // Smaller and negative handles become large positions.
    const auto position = static_cast<std::uint32_t>(handle) - firstHandle;
    Tokenizer* const text = position < table.size() ? table[position].get() : nullptr;
    if (text == nullptr)
        lastError().set(KESH_E_HANDLE, {{}, {}, std::to_string(handle)});
    return text;
}

/// The same for operations that begin without an error.
Tokenizer* textOf(std::int32_t handle) {
    lastError().clear();
    return findText(handle);
}

std::int32_t fail(KeshObjectsError code, const Tokenizer& text, std::size_t place,
                  std::string reason = {}) {
    return lastError().set(code, {text.name(), text.describe(place), std::move(reason)});
}

std::int32_t fail(const Tokenizer& text) {
    return fail(text.failure().code, text, text.failure().place);
}

/// What stands at the place of a text, which is not passed; nothing with the last error set.
std::optional<std::string_view> tokenOf(std::int32_t handle) {
    Tokenizer* const text = textOf(handle);
    const auto token = text != nullptr ? text->token() : std::nullopt;
    if (text != nullptr && !token)
        fail(*text);
    return token;
}

std::string shorten(std::string_view text) {
    return text.size() <= shownLength ? std::string(text)
                                      : std::string(text.substr(0, shownLength)) + "...";
}

/// Room for a text, or null with the last error set.
Text makeText(std::uint64_t size, const std::string& name) {
    lastError().clear();
    if (size > std::numeric_limits<KeshPlace>::max()) {
        lastError().set(KESH_E_TOO_BIG, {name, {}, {}});
        return nullptr;
    }
    Text text = Tokenizer::create(size, name, !ignoreRemarks);
    if (text == nullptr)
        lastError().set(KESH_E_READ, {{}, {}, "Not enough memory for \"" + name + "\"."});
    return text;
}

/// Fills a text with `read(to, size)`, at most `mostAtOnce` bytes at a time, and gives its handle.
template <typename Read>
std::int32_t load(std::uint64_t size, std::uint64_t mostAtOnce, const std::string& name,
                  Read read) {
    Text text = makeText(size, name);
    if (text == nullptr)
        return 0;
    for (std::size_t done = 0; done < size;) {
        char* const to = text->data() + done;
        const std::size_t piece = std::min<std::size_t>(size - done, mostAtOnce);
        if (!read(to, piece))
            return lastError().set(KESH_E_READ, {{}, {}, driverReason()});
        if (const void* nul = std::memchr(to, 0, piece)) {
            return fail(KESH_E_NUL, *text,
                        static_cast<std::size_t>(static_cast<const char*>(nul) - text->data()));
        }
        done += piece;
    }
    text->start();
    return addText(std::move(text));
}

} // namespace
} // namespace keshobjects

using namespace keshobjects;

void Kesh_TXTIgnoreRemarks(std::int32_t Flag) {
    ignoreRemarks = Flag != 0;
}

std::int32_t Kesh_LoadFromFile(std::int32_t File, std::int32_t Kind) {
    lastError().clear();
    if (Kind == textFileKind)
        return loadTextFile(File);
    if (Kind != 0 && Kind != 1)
        return lastError().set(KESH_E_ARGUMENT, {{}, {}, "kind " + std::to_string(Kind)});
    const std::string name = LornFD_FileName(File);
    const std::int64_t size = LornFD_FileSize(File);
    if (size < 0)
        return lastError().set(KESH_E_READ, {{}, {}, driverReason()});
    // Packed bytes asked for all at once need not be held unpacked in between.
    const auto whole = static_cast<std::uint64_t>(size);
    const bool plain = LornFD_FileType(File) == LORNFD_PLAIN;
    return load(whole, plain ? loadPiece : whole, name, [File](char* to, std::size_t piece) {
        const auto count = static_cast<std::int64_t>(piece);
        return LornFD_ReadFile(File, to, count) == count;
    });
}

std::int32_t Kesh_LoadFromMemory(std::string_view Text, std::string_view Name) {
    const char* from = Text.data();
    return load(Text.size(), loadPiece, std::string(Name), [&from](char* to, std::size_t piece) {
        std::memcpy(to, from, piece);
        from += piece;
        return true;
    });
}

std::int32_t Kesh_GetObjectType(std::int32_t Object) {
    if (const std::int32_t kind = textObjectKind(Object))
        return kind;
    const Tokenizer* const text = textOf(Object);
    if (text == nullptr)
        return 0;
    return text->looksLikeXml() ? KESH_TYPE_XML_TEXT : KESH_TYPE_T_TEXT;
}

std::int32_t Kesh_DeleteHandle(std::int32_t Parent, std::int32_t Object) {
    if (textObjectKind(Object) != 0)
        return deleteTextObject(Parent, Object);
    if (textOf(Object) == nullptr)
        return 0;
    texts()[static_cast<std::uint32_t>(Object) - firstHandle].reset();
    return 1;
}

std::int32_t Kesh_TXTLoadValue(std::int32_t Text, std::int32_t Kind, KeshValue& Value) {
    Tokenizer* const text = textOf(Text);
    if (text == nullptr)
        return 0;
    const auto place = text->value();
    if (!place)
        return fail(*text);
    const std::string_view spelling = valueAt(text->text(), *place);
    if (Kind == KESH_VALUE_STRING) {
        Value = std::string(spelling);
        return 1;
    }
    if (Kind == KESH_VALUE_AS_SHOWN) {
        Value = readValue(spelling);
        return 1;
    }
    const auto whole = readInteger(spelling);
    if (!whole) {
        text->stepBack(*place);
        return fail(KESH_E_NOT_WHOLE, *text, *place, shorten(spelling));
    }
    Value = *whole;
    return 1;
}

std::int32_t Kesh_TXTGetTokenType(std::int32_t Text) {
    Tokenizer* const text = textOf(Text);
    if (text == nullptr)
        return 0;
    const auto type = text->tokenType();
    return type ? *type : fail(*text);
}

std::int32_t Kesh_TXTGetTokenValue(std::int32_t Text, KeshValue& Value) {
    const auto token = tokenOf(Text);
    if (!token)
        return 0;
    Value = std::string(*token);
    return 1;
}

std::int32_t Kesh_TXTAdvance(std::int32_t Text, std::int32_t Count) {
    Tokenizer* const text = textOf(Text);
    if (text == nullptr)
        return 0;
    if (Count < 0)
        return lastError().set(KESH_E_ARGUMENT, {{}, {}, "count " + std::to_string(Count)});
    for (std::int32_t i = 0; i < Count; ++i)
        if (!text->advance())
            return fail(*text);
    return 1;
}

std::int64_t Kesh_TXTLoadPlaces(std::int32_t Text, std::int64_t Count, KeshPlace* Places,
                                bool& Written) {
    Tokenizer* const text = textOf(Text);
    if (text == nullptr)
        return 0;
    const std::int64_t read = text->values(Count, Places, Written);
    if (read < Count)
        fail(*text);
    return read;
}

std::int32_t Kesh_TXTGetTokenPlace(std::int32_t Text, KeshPlace& Place) {
    const auto token = tokenOf(Text);
    if (!token)
        return 0;
    Place = static_cast<KeshPlace>(token->data() - Kesh_TXTGetText(Text).data());
    return 1;
}

std::int32_t Kesh_TXTGetRawPlace(std::int32_t Text, KeshPlace& Place) {
    Tokenizer* const text = textOf(Text);
    if (text == nullptr)
        return 0;
    const auto place = text->raw();
    if (!place)
        return fail(*text);
    Place = *place;
    return 1;
}

std::string_view Kesh_TXTGetText(std::int32_t Text) {
    const Tokenizer* const text = findText(Text);
    return text == nullptr ? std::string_view() : text->text();
}

std::string Kesh_TXTGetName(std::int32_t Text) {
    const Tokenizer* const text = findText(Text);
    return text == nullptr ? std::string() : text->name();
}

std::string Kesh_TXTDescribePlace(std::int32_t Text, KeshPlace Place) {
    const Tokenizer* const text = findText(Text);
    return text == nullptr ? std::string() : text->describe(Place) + " of " + text->name();
}

std::int32_t Kesh_TXTWriteFile(std::int32_t File, std::string_view Text) {
    lastError().clear();
    if (LornFD_WriteFile(File, Text.data(), static_cast<std::int64_t>(Text.size())) == 0)
        return lastError().set(KESH_E_WRITE, {{}, {}, driverReason()});
    return 1;
}

std::int32_t Kesh_TXTWriteValue(std::int32_t File, const KeshValue& Value) {
    return Kesh_TXTWriteFile(File, spellValue(Value) + ';');
}
