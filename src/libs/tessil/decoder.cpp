#include "tessil/decoder.h"

#include "tessil/decodermemory.h"

#include <IL/il.h>
#include <algorithm>

namespace tessil {

namespace {

constexpr ILenum types[] = {IL_DDS, IL_PNG, IL_JPG}; // by Codec

/// The image that is being decoded; DevIL works on the one that is bound.
class Image {
public:
    Image() : m_name(ilGenImage()) { ilBindImage(m_name); }
    ~Image() { ilDeleteImages(1, &m_name); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

private:
    ILuint m_name;
};

std::size_t valueOf(ILenum what) {
    return static_cast<std::size_t>(std::max(ilGetInteger(what), 0));
}

// DevIL leaves errors of earlier operations on a stack.
void forgetErrors() {
    while (ilGetError() != IL_NO_ERROR) {
    }
}

void requireDone(bool done) {
    const ILenum error = done ? IL_NO_ERROR : ilGetError();
    forgetErrors();
    if (error == IL_OUT_OF_MEMORY)
        throw Refusal(TESSIL_E_MEMORY, "");
    require(done, "the decoder finds it damaged");
}

// Looking up a colour that a palette lacks reads behind the palette.
void checkIndices() {
    if (ilGetInteger(IL_IMAGE_FORMAT) != IL_COLOUR_INDEX)
        return;
    const ILubyte* data = ilGetData();
    const std::size_t colours = valueOf(IL_PALETTE_NUM_COLS);
    require(ilGetInteger(IL_IMAGE_TYPE) == IL_UNSIGNED_BYTE &&
                std::all_of(data, data + valueOf(IL_IMAGE_SIZE_OF_DATA),
                            [colours](ILubyte index) { return index < colours; }),
            "a pixel has a colour that the palette lacks");
}

Picture copyPixels(Size size) {
    Picture picture{size, std::vector<std::uint8_t>(size.pixels() * 4)};
    require(valueOf(IL_IMAGE_SIZE_OF_DATA) == picture.rgba.size() &&
                ilGetInteger(IL_IMAGE_ORIGIN) == IL_ORIGIN_UPPER_LEFT,
            "the decoder did not keep its size");
    std::copy_n(ilGetData(), picture.rgba.size(), picture.rgba.begin());
    return picture;
}

Picture decodeOnce(ILenum type, std::string_view file, Size size) {
    const Image image;
    forgetErrors();
    requireDone(ilLoadL(type, file.data(), static_cast<ILuint>(file.size())) != IL_FALSE);
    require(valueOf(IL_IMAGE_WIDTH) == size.width && valueOf(IL_IMAGE_HEIGHT) == size.height,
            "the decoder did not keep its size");
    checkIndices();
    requireDone(ilConvertImage(IL_RGBA, IL_UNSIGNED_BYTE) != IL_FALSE);
    return copyPixels(size);
}

} // namespace

bool startDecoder() {
    ilSetMemory(takeMemory, giveMemory);
    ilInit();
    const bool started = ilGetError() == IL_NO_ERROR;
    forgetErrors();
    return started;
}

void stopDecoder() {
    ilShutDown();
    giveAllMemory();
}

Picture decode(Codec codec, std::string_view file, Size size) {
    try {
        return decodeOnce(types[static_cast<std::size_t>(codec)], file, size);
    } catch (const Refusal&) {
        // DevIL forgets memory when it meets a broken picture.
        stopDecoder();
        startDecoder();
        throw;
    }
}

} // namespace tessil
