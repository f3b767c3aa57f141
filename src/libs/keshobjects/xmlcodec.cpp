#include "keshobjects/encodings.h"
#include "keshobjects/errors.h"
#include "keshobjects/keshobjects.h"
#include "keshobjects/lines.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace keshobjects {
namespace {

constexpr std::string_view viewPrefix = "vfs://";

/// The encoding of a mark, or else the one that the text declares, or else UTF-8; null with the
/// last error set if that is not known.
const Encoding* encodingOf(KeshXmlMark mark, std::string_view text, std::string_view file) {
    const Signature* const signature = signatureOf(mark);
    if (signature == nullptr) {
        lastError().set(KESH_E_ARGUMENT, {{}, {}, "mark " + std::to_string(mark)});
        return nullptr;
    }
    if (signature->encoding != nullptr)
        return signature->encoding;
    const std::string_view declared = declaredEncoding(text);
    const Encoding* const found = declared.empty() ? &utf8() : findEncoding(declared);
    if (found == nullptr)
        lastError().set(KESH_E_ENCODING, {std::string(file), {}, std::string(declared)});
    return found;
}

std::string_view asciiStart(std::string_view bytes) {
    return {bytes.begin(), std::find_if(bytes.begin(), bytes.end(), [](char c) {
                return static_cast<unsigned char>(c) >= 0x80;
            })};
}

void appendReference(char32_t character, std::string& bytes) {
    std::array<char, 16> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(),
                                            static_cast<std::uint32_t>(character), 16);
    std::transform(digits.data(), end, digits.data(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    bytes.append("&#x").append(digits.data(), end) += ';';
}

/// Appends `bytes` of one encoding in another. Gives the offset of bytes that are no character
/// there, or npos.
std::size_t convert(std::string_view bytes, const Encoding& from, const Encoding& to,
                    std::string& converted) {
    std::string_view rest = bytes;
    while (!rest.empty()) {
        if (from.holdsAscii && to.holdsAscii) {
            const std::string_view start = asciiStart(rest);
            converted += start;
            rest.remove_prefix(start.size());
            if (rest.empty())
                break;
        }
        const auto character = from.take(rest);
        if (!character)
            return bytes.size() - rest.size();
        if (!to.append(*character, converted))
            appendReference(*character, converted);
    }
    return bytes.npos;
}

std::int32_t failDecoding(std::string_view file, std::string_view before, std::size_t offset,
                          std::string reason) {
    return lastError().set(KESH_E_DECODE,
                           {std::string(file),
                            describeLine(before) + " (offset " + std::to_string(offset) + ")",
                            std::move(reason)});
}

/// The path behind a "vfs://" name, other names as they are; empty with the last error set.
std::string realName(std::string_view name) {
    if (!lornfd::equalNoCase(name.substr(0, viewPrefix.size()), viewPrefix))
        return std::string(name);
    VFSFindData data{};
    const std::int32_t find = KeshVFS_FindFirstFile(name.substr(viewPrefix.size()), data);
    if (find == 0) {
        lastError().set(KESH_E_NOT_FOUND, {std::string(name), {}, {}});
        return {};
    }
    std::string real = KeshVFS_GetRealName(find);
    KeshVFS_FindClose(find);
    return real;
}

std::int32_t failByDriver(KeshObjectsError code) {
    return lastError().set(code, {{}, {}, driverReason()});
}

std::int32_t decode(std::string_view bytes, std::string_view file, std::string& decoded,
                    KeshXmlMark& markFound) {
    const KeshXmlMark mark = findMark(bytes);
    const std::size_t markSize = signatureOf(mark)->bytes.size();
    const std::string_view content = bytes.substr(markSize);
    const Encoding* const encoding = encodingOf(mark, bytes, file);
    if (encoding == nullptr)
        return 0;
    if (mark == KESH_XML_AS_DECLARED && !encoding->holdsAscii)
        return failDecoding(file, {}, 0, "the byte order mark of UTF-16 is missing");
    std::string text;
    text.reserve(content.size());
    const std::size_t bad = convert(content, *encoding, utf8(), text);
    if (bad != content.npos) {
        return failDecoding(file, text, markSize + bad,
                            "the byte " + hexByte(content[bad]) + " does not fit the encoding");
    }
    if (const std::size_t nul = text.find('\0'); nul != text.npos) {
        return lastError().set(KESH_E_NUL,
                               {std::string(file), describeLine({text.data(), nul}), {}});
    }
    decoded = std::move(text);
    markFound = mark;
    return 1;
}

std::int32_t encode(std::string_view text, KeshXmlMark mark, std::string_view file,
                    std::string& encoded) {
    const Encoding* const encoding = encodingOf(mark, text, file);
    if (encoding == nullptr)
        return 0;
    std::string bytes(signatureOf(mark == KESH_XML_AS_DECLARED ? encoding->mark : mark)->bytes);
    bytes.reserve(bytes.size() + text.size());
    const std::size_t bad = convert(text, utf8(), *encoding, bytes);
    if (bad != text.npos) {
        return failDecoding(file, text.substr(0, bad), bad,
                            "the byte " + hexByte(text[bad]) + " is not UTF-8");
    }
    encoded = std::move(bytes);
    return 1;
}

} // namespace
} // namespace keshobjects

using namespace keshobjects;

std::int32_t Kesh_DecodeXML(std::string_view Bytes, std::string_view Name, std::string& Text,
                            KeshXmlMark& Mark) {
    return withMemory(KESH_E_READ, Name, [&] { return decode(Bytes, Name, Text, Mark); });
}

std::int32_t Kesh_EncodeXML(std::string_view Text, KeshXmlMark Mark, std::string_view Name,
                            std::string& Bytes) {
    return withMemory(KESH_E_WRITE, Name, [&] { return encode(Text, Mark, Name, Bytes); });
}

std::int32_t Kesh_DecodeXMLFile(std::string_view Name, std::string& Text, KeshXmlMark& Mark) {
    lastError().clear();
    const std::string path = realName(Name);
    if (path.empty() && lastError().code() != KESH_OK)
        return 0;
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return failByDriver(KESH_E_READ);
    const std::string_view bytes = LornFD_ViewFile(file);
    const std::int32_t done = bytes.data() == nullptr
                                  ? failByDriver(KESH_E_READ)
                                  : Kesh_DecodeXML(bytes, LornFD_FileName(file), Text, Mark);
    LornFD_CloseFile(file);
    return done;
}

std::int32_t Kesh_EncodeXMLFile(std::string_view Name, std::string_view Text, KeshXmlMark Mark,
                                std::int32_t FileType) {
    std::string bytes;
    if (Kesh_EncodeXML(Text, Mark, Name, bytes) == 0)
        return 0;
    const std::int32_t file = LornFD_OpenFile(Name, LORNFD_WRITE, LORNFD_CREATE, FileType);
    if (file == 0)
        return failByDriver(KESH_E_WRITE);
    if (Kesh_TXTWriteFile(file, bytes) == 0) {
        LornFD_AbandonFile(file);
        return 0;
    }
    return LornFD_CloseFile(file) != 0 ? 1 : failByDriver(KESH_E_WRITE);
}
