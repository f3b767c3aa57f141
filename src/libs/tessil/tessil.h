// Pictures: a picture file in memory becomes a bitmap.
//
// C-style face like lornfd's: 0 is failure, nothing is thrown, TESSIL_GetLastError tells why. Which
// files are read: docs/formats.md, "Pictures". To be used by one thread.
#pragma once

#include <cstdint>
#include <string_view>

/// Largest picture that is decoded, by side and as a whole. A file that claims more is refused
/// before it costs memory.
inline constexpr std::int32_t TESSIL_MAX_SIDE = 16'384;
inline constexpr std::int64_t TESSIL_MAX_PIXELS = std::int64_t{4096} * 4096;
/// Largest file in bytes: as much as the largest picture of 16 bits a channel has uncompressed.
inline constexpr std::int64_t TESSIL_MAX_FILE = std::int64_t{8} * TESSIL_MAX_PIXELS;

/// A decoded picture: Width * Height pixels, top row first, without gaps between rows. A pixel is 4
/// bytes, red, green, blue, alpha, the colours not premultiplied: what QImage calls
/// Format_RGBA8888.
struct TESSILBitmap {
    std::int32_t Width;
    std::int32_t Height;
    const std::uint8_t* Pixels; ///< valid until the bitmap is deleted
};

enum TESSILError : std::int32_t {
    TESSIL_OK = 0,
    TESSIL_E_INIT = 1, ///< TESSIL_Init was not called, or failed
    TESSIL_E_KIND,     ///< no picture, or one of a kind that is not read
    TESSIL_E_BROKEN,   ///< cut or damaged
    TESSIL_E_TOO_BIG,  ///< beyond the limits above
    TESSIL_E_MEMORY,
    TESSIL_E_HANDLE, ///< not a bitmap
};

/// Prepares the decoder. May be called again; each call that gave 1 wants one of TESSIL_Term.
std::int32_t TESSIL_Init();
/// The last one gives back what the decoder holds; bitmaps stay.
std::int32_t TESSIL_Term();

/// Decodes a whole picture file, of several pictures the first and largest. The content alone tells
/// its kind; `Name` stands in messages. Gives a bitmap, to be deleted.
std::int32_t TESSIL_ConvertToHBitmap(std::string_view Bytes, std::string_view Name);
std::int32_t TESSIL_GetBitmap(std::int32_t Bitmap, TESSILBitmap& Data);
std::int32_t TESSIL_DeleteBitmap(std::int32_t Bitmap);

/// Code of the last operation, 0 if it succeeded.
std::int32_t TESSIL_GetLastError();
/// The text of a code: see lornfd::LastError::translate.
std::int32_t TESSIL_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                   std::int32_t* Needed);
