// The kinds of pictures that are read. A reader holds each size that the file claims against the
// data before it allocates or calls the decoder library, and refuses by exception.
#pragma once

#include "tessil/picture.h"

#include <string_view>

namespace tessil {

/// Reads a picture by the kind that its first bytes tell; TGA, which has no signature, comes last.
Picture readPicture(std::string_view file);

/// The first surface: the largest of its mipmaps, a cube's first side.
Picture readDds(std::string_view file);
Picture readPng(std::string_view file);
Picture readJpeg(std::string_view file);
Picture readBmp(std::string_view file);
Picture readTga(std::string_view file);

} // namespace tessil
