#include "lornfd/packing.h"

#include "lornfd/errors.h"
#include "lornfd/packedform.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <string>

namespace lornfd {

namespace {

constexpr const PackedForm* forms[] = {&gzipForm, &zstdForm};

/// Null for a plain file.
const PackedForm* formOf(std::string_view stored) noexcept {
    for (const PackedForm* const form : forms)
        if (stored.starts_with(form->signature))
            return form;
    return nullptr;
}

const PackedForm* formOf(std::int32_t number) noexcept {
    for (const PackedForm* const form : forms)
        if (form->form == number)
            return form;
    return nullptr;
}

std::nullopt_t tooBig(std::string_view name, const std::string& reason, std::size_t bytes) {
    fail(LORNFD_E_TOO_BIG, {.file = std::string(name),
                            .place = {},
                            .reason = reason + " " + std::to_string(bytes) + " bytes"});
    return std::nullopt;
}

std::nullopt_t broken(std::string_view name, std::size_t offset, const std::string& reason) {
    fail(LORNFD_E_PACKED, {.file = std::string(name),
                           .place = offsetPlace(static_cast<std::int64_t>(offset)),
                           .reason = reason});
    return std::nullopt;
}

std::optional<Buffer> copy(std::string_view content, std::string_view name) {
    Buffer copied = Buffer::copyOf(content);
    return copied.data() ? std::optional(std::move(copied))
                         : tooBig(name, "there is no memory for", content.size());
}

Buffer shortened(Buffer buffer, std::size_t size) {
    return buffer.resize(size) ? std::move(buffer) : Buffer::copyOf(buffer.view().substr(0, size));
}

/// What data claims is believed only as far as its length makes it possible.
std::size_t mostOf(const PackedForm& form, std::string_view packed, std::size_t limit) {
    return std::min(limit, packed.size() * form.ratio + form.extra);
}

std::optional<Buffer> unpackForm(const PackedForm& form, std::string_view packed,
                                 std::string_view name, std::size_t limit) {
    const std::size_t most = mostOf(form, packed, limit);
    const auto claim = form.claimedSize(packed);
    if (claim && *claim > limit)
        return tooBig(name, "it unpacks to more than", limit);
    std::size_t room = static_cast<std::size_t>(
        std::min<unsigned long long>(claim.value_or(packed.size() * 4), most));
    for (;;) {
        Buffer unpacked(room);
        if (!unpacked.data())
            return tooBig(name, "there is no memory for", room);
        const Decoded decoded = form.decode(packed, unpacked.data(), room);
        if (decoded.state == Decoded::State::Broken)
            return broken(name, 0, decoded.reason);
        if (decoded.state == Decoded::State::Done) {
            if (decoded.consumed != packed.size())
                return broken(name, decoded.consumed, "bytes behind the end of the packed data");
            return shortened(std::move(unpacked), decoded.produced);
        }
        if (room == limit)
            return tooBig(name, "it unpacks to more than", limit);
        if (room == most)
            return broken(name, 0, "more comes out of it than its length can hold");
        room = std::min(most, std::max<std::size_t>(room, 1024) * 4);
    }
}

} // namespace

bool isKnownForm(std::int32_t form) noexcept {
    return form == LORNFD_PLAIN || formOf(form);
}

std::int32_t formByName(std::string_view name) noexcept {
    constexpr std::string_view packedExtension = ".pck";
    const bool packed =
        name.size() >= packedExtension.size() &&
        equalNoCase(name.substr(name.size() - packedExtension.size()), packedExtension);
    return packed ? LORNFD_ZSTD : LORNFD_PLAIN;
}

std::int32_t packedForm(std::string_view stored) noexcept {
    const PackedForm* const form = formOf(stored);
    return form ? form->form : LORNFD_PLAIN;
}

std::optional<std::int64_t> claimedSize(std::string_view stored) noexcept {
    const PackedForm* const form = formOf(stored);
    const auto claim = form ? form->claimedSize(stored) : std::nullopt;
    return claim && *claim <= mostOf(*form, stored, static_cast<std::size_t>(LORNFD_MAX_UNPACKED))
               ? std::optional(static_cast<std::int64_t>(*claim))
               : std::nullopt;
}

bool unpackTo(char* room, std::size_t size, std::string_view stored) noexcept {
    const Decoded decoded = formOf(stored)->decode(stored, room, size);
    return decoded.state == Decoded::State::Done && decoded.produced == size &&
           decoded.consumed == stored.size();
}

std::optional<Buffer> unpack(std::string_view stored, std::string_view nameForMessages,
                             std::int64_t limit) {
    const PackedForm* const form = formOf(stored);
    if (!form)
        return copy(stored, nameForMessages);
    return unpackForm(*form, stored, nameForMessages, static_cast<std::size_t>(limit));
}

std::optional<Buffer> pack(std::string_view content, std::int32_t form,
                           std::string_view nameForMessages) {
    const PackedForm* const row = formOf(form);
    if (!row)
        return copy(content, nameForMessages);
    if (content.size() > static_cast<std::size_t>(LORNFD_MAX_UNPACKED))
        return tooBig(nameForMessages, "packed files hold at most", LORNFD_MAX_UNPACKED);
    Buffer packed(row->encodedBound(content.size()));
    const std::size_t size = packed.data() ? row->encode(content, packed) : 0;
    if (size == 0)
        return tooBig(nameForMessages, "there is no memory to pack", content.size());
    return shortened(std::move(packed), size);
}

} // namespace lornfd
