#include "tessil/picture.h"

namespace tessil {

Size checkedSize(std::uint64_t width, std::uint64_t height) {
    require(width != 0 && height != 0, "it has no pixels");
    constexpr std::uint64_t side = TESSIL_MAX_SIDE, pixels = TESSIL_MAX_PIXELS;
    if (width > side || height > side || width * height > pixels)
        throw Refusal(TESSIL_E_TOO_BIG, "it has " + std::to_string(width) + " x " +
                                            std::to_string(height) + " pixels");
    return {static_cast<std::size_t>(width), static_cast<std::size_t>(height)};
}

} // namespace tessil
