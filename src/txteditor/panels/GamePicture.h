// Pictures of the game's data.
#pragma once

#include <QImage>

#include <string>

/// The picture of that file name in the view's "textures", else in its "dds". Null if there is
/// none, or it cannot be read.
[[nodiscard]] QImage LoadGamePicture(const std::string& Name);
