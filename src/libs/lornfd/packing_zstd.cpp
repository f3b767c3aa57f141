#include "lornfd/lornfd.h"
#include "lornfd/packedform.h"

#include <memory>
#include <zstd.h>
#include <zstd_errors.h>

namespace lornfd {

namespace {

constexpr int level = 3;

std::optional<unsigned long long> claimedSize(std::string_view packed) {
    const unsigned long long size = ZSTD_getFrameContentSize(packed.data(), packed.size());
    if (size == ZSTD_CONTENTSIZE_UNKNOWN || size == ZSTD_CONTENTSIZE_ERROR)
        return std::nullopt;
    return size;
}

Decoded decode(std::string_view packed, char* room, std::size_t roomSize) {
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

std::size_t encode(std::string_view content, Buffer& room) {
    const std::unique_ptr<ZSTD_CCtx, decltype(&ZSTD_freeCCtx)> context(ZSTD_createCCtx(),
                                                                       &ZSTD_freeCCtx);
    if (!context)
        return 0;
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, level);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
    const std::size_t size =
        ZSTD_compress2(context.get(), room.data(), room.size(), content.data(), content.size());
    return ZSTD_isError(size) ? 0 : size;
}

} // namespace

// A block of at least 3 bytes holds at most ZSTD_BLOCKSIZE_MAX.
constinit const PackedForm zstdForm{.form = LORNFD_ZSTD,
                                    .signature = "\x28\xb5\x2f\xfd",
                                    .ratio = ZSTD_BLOCKSIZE_MAX / 3,
                                    .extra = ZSTD_BLOCKSIZE_MAX,
                                    .claimedSize = claimedSize,
                                    .decode = decode,
                                    .encodedBound = ZSTD_compressBound,
                                    .encode = encode};

} // namespace lornfd
