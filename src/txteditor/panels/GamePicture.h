// Pictures of the game's data.
#pragma once

#include <QImage>

#include <memory>
#include <string>

/// The picture of that file name in the view's "textures", else in its "dds"; all who ask for it
/// share it. None if there is none, or it cannot be read.
[[nodiscard]] std::shared_ptr<const QImage> LoadGamePicture(const std::string& Name);
