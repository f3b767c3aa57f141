// What the tests of pictures share: the pictures that the fuzzer starts from, and their decoding.
#pragma once

#include "tessil/tessil.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace pictureuser {

/// Starts the decoder for a test.
class Decoder {
public:
    Decoder() { TESSIL_Init(); }
    ~Decoder() { TESSIL_Term(); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
};

inline std::string errorText() {
    std::string text(1000, '\0');
    TESSIL_TranslateError(TESSIL_GetLastError(), text.data(), 1000, nullptr);
    return text.substr(0, text.find('\0'));
}

/// A small picture file; KESH_PICTURES is the directory of the fuzzer's seeds.
inline std::string load(const std::string& name) {
    std::ifstream file(std::filesystem::path(KESH_PICTURES) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::vector<std::string> names() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(KESH_PICTURES))
        names.push_back(entry.path().filename().string());
    return names;
}

/// Width, height and each pixel in hexadecimal digits, "2x1 ff0000ff 00ff00ff"; empty on failure.
inline std::string shown(std::int32_t bitmap) {
    TESSILBitmap data{};
    if (TESSIL_GetBitmap(bitmap, data) == 0)
        return {};
    constexpr char digits[] = "0123456789abcdef";
    std::string text = std::to_string(data.Width).append("x").append(std::to_string(data.Height));
    for (std::int32_t i = 0; i < data.Width * data.Height * 4; ++i) {
        text.append(i % 4 == 0 ? " " : "");
        text += digits[data.Pixels[i] / 16];
        text += digits[data.Pixels[i] % 16];
    }
    return text;
}

inline std::string decoded(std::string_view file, std::string_view name) {
    const std::int32_t bitmap = TESSIL_ConvertToHBitmap(file, name);
    const std::string text = shown(bitmap);
    if (bitmap != 0)
        TESSIL_DeleteBitmap(bitmap);
    return text;
}

/// A file with some bytes of it replaced.
inline std::string patched(std::string file, std::size_t at, std::string_view bytes) {
    return file.replace(at, bytes.size(), bytes);
}

} // namespace pictureuser
