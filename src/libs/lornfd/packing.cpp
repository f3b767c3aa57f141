#include "lornfd/packing.h"

#include "lornfd/errors.h"

#include <algorithm>
#include <libdeflate.h>
#include <memory>
#include <string>
#include <zstd.h>
#include <zstd_errors.h>

namespace lornfd {

namespace {

struct Decoded {
    enum class State { Done, NoRoom, Broken } state;
    std::size_t consumed = 0; ///< packed bytes, when done
    std::size_t produced = 0; ///< unpacked bytes, when done
    std::string reason = {};  ///< when broken
};

/// A packed form. Adding one is adding a row to the table below.
struct PackedForm {
    std::int32_t form;
    std::string_view signature;
    /// Unpacked bytes that one packed byte can stand for at most, and what may come on top.
    std::size_t ratio;
    std::size_t extra;
    /// The size that the data claims, or nothing.
    std::optional<unsigned long long> (*claimedSize)(std::string_view packed);
    Decoded (*decode)(std::string_view packed, char* room, std::size_t roomSize);
    std::size_t (*encodedBound)(std::size_t size);
    /// The packed size, 0 if there is no memory.
    std::size_t (*encode)(std::string_view content, Buffer& room);
};

// ---- gzip

constexpr int gzipLevel = 6;

std::optional<unsigned long long> gzipClaim(std::string_view packed) {
    constexpr std::size_t footer = 4; // the size modulo 2^32, lowest byte first
    if (packed.size() < footer)
        return std::nullopt;
    unsigned long long size = 0;
    for (std::size_t i = 0; i < footer; ++i)
        size |= std::uint64_t{static_cast<unsigned char>(packed[packed.size() - footer + i])}
                << (8 * i);
    return size;
}

Decoded decodeGzip(std::string_view packed, char* room, std::size_t roomSize) {
    thread_local const std::unique_ptr<libdeflate_decompressor,
                                       decltype(&libdeflate_free_decompressor)>
        decompressor(libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    Decoded decoded = {Decoded::State::Done};
    switch (libdeflate_gzip_decompress_ex(decompressor.get(), packed.data(), packed.size(), room,
                                          roomSize, &decoded.consumed, &decoded.produced)) {
    case LIBDEFLATE_SUCCESS:
        return decoded;
    case LIBDEFLATE_INSUFFICIENT_SPACE:
        return {Decoded::State::NoRoom};
    default:
        return {.state = Decoded::State::Broken, .reason = "gzip data that is cut or damaged"};
    }
}

std::size_t gzipBound(std::size_t size) {
    return libdeflate_gzip_compress_bound(nullptr, size);
}

std::size_t encodeGzip(std::string_view content, Buffer& room) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(gzipLevel), &libdeflate_free_compressor);
    return compressor ? libdeflate_gzip_compress(compressor.get(), content.data(), content.size(),
                                                 room.data(), room.size())
                      : 0;
}

// ---- Zstandard

constexpr int zstdLevel = 3;

std::optional<unsigned long long> zstdClaim(std::string_view packed) {
    const unsigned long long size = ZSTD_getFrameContentSize(packed.data(), packed.size());
    if (size == ZSTD_CONTENTSIZE_UNKNOWN || size == ZSTD_CONTENTSIZE_ERROR)
        return std::nullopt;
    return size;
}

Decoded decodeZstd(std::string_view packed, char* room, std::size_t roomSize) {
    thread_local const std::unique_ptr<ZSTD_DCtx, decltype(&ZSTD_freeDCtx)> context(
        ZSTD_createDCtx(), &ZSTD_freeDCtx);
    const std::size_t frame = ZSTD_findFrameCompressedSize(packed.data(), packed.size());
    const std::size_t produced =
        ZSTD_isError(frame)
            ? frame
            : ZSTD_decompressDCtx(context.get(), room, roomSize, packed.data(), frame);
    if (!ZSTD_isError(produced))
        return {.state = Decoded::State::Done, .consumed = frame, .produced = produced};
    if (ZSTD_getErrorCode(produced) == ZSTD_error_dstSize_tooSmall)
        return {Decoded::State::NoRoom};
    return {.state = Decoded::State::Broken,
            .reason = std::string("Zstandard data that is cut or damaged (") +
                      ZSTD_getErrorName(produced) + ")"};
}

std::size_t encodeZstd(std::string_view content, Buffer& room) {
    const std::unique_ptr<ZSTD_CCtx, decltype(&ZSTD_freeCCtx)> context(ZSTD_createCCtx(),
                                                                       &ZSTD_freeCCtx);
    if (!context)
        return 0;
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, zstdLevel);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
    const std::size_t size =
        ZSTD_compress2(context.get(), room.data(), room.size(), content.data(), content.size());
    return ZSTD_isError(size) ? 0 : size;
}

constexpr PackedForm forms[] = {
    {LORNFD_GZIP, "\x1f\x8b\x08", 1032, 0, gzipClaim, decodeGzip, gzipBound, encodeGzip},
    // A block of at least 3 bytes holds at most ZSTD_BLOCKSIZE_MAX.
    {LORNFD_ZSTD, "\x28\xb5\x2f\xfd", ZSTD_BLOCKSIZE_MAX / 3, ZSTD_BLOCKSIZE_MAX, zstdClaim,
     decodeZstd, ZSTD_compressBound, encodeZstd},
};

/// Null for a plain file.
const PackedForm* formOf(std::string_view stored) noexcept {
    const auto fits = [&](const PackedForm& form) { return stored.starts_with(form.signature); };
    const PackedForm* const form = std::ranges::find_if(forms, fits);
    return form != std::end(forms) ? form : nullptr;
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
    const auto row = std::ranges::find(forms, form, &PackedForm::form);
    if (row == std::end(forms))
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
