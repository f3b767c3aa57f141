// DevIL, its global state and its memory.
#pragma once

#include "tessil/picture.h"

#include <string_view>

namespace tessil {

enum class Codec { Dds, Png, Jpeg };

bool startDecoder();
/// Gives back all memory that the decoder holds, what it forgot after broken pictures too.
void stopDecoder();

/// Decodes a file whose sizes have been checked: DevIL's readers end where a file ends only if the
/// file says where. `size` is what it says.
Picture decode(Codec codec, std::string_view file, Size size);

} // namespace tessil
