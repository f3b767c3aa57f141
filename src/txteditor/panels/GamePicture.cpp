#include "txteditor/panels/GamePicture.h"

#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "tessil/tessil.h"

#include <map>

namespace {

/// Owns its pixels.
QImage imageOf(std::int32_t bitmap) {
    TESSILBitmap data{};
    if (TESSIL_GetBitmap(bitmap, data) == 0)
        return {};
    return QImage(data.Pixels, data.Width, data.Height, QImage::Format_RGBA8888).copy();
}

QImage decode(std::string_view bytes, const std::string& name) {
    if (TESSIL_Init() == 0)
        return {};
    QImage image;
    if (const std::int32_t bitmap = TESSIL_ConvertToHBitmap(bytes, name)) {
        image = imageOf(bitmap);
        TESSIL_DeleteBitmap(bitmap);
    }
    TESSIL_Term();
    return image;
}

QImage read(const std::string& place, const std::string& name) {
    const std::int32_t file =
        LornFD_OpenFile(place, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return {};
    QImage image;
    const std::int64_t size = LornFD_FileSize(file);
    if (size > 0 && size <= TESSIL_MAX_FILE)
        image = decode(LornFD_ViewFile(file), name);
    LornFD_CloseFile(file);
    return image;
}

} // namespace

std::shared_ptr<const QImage> LoadGamePicture(const std::string& Name) {
    static std::map<std::string, std::weak_ptr<const QImage>> shared; // by place
    auto place = Name.empty() ? std::nullopt : FindInVFS(JoinPath({"textures", Name}));
    if (!place && !Name.empty())
        place = FindInVFS(JoinPath({"dds", Name}));
    if (!place)
        return {};
    if (auto present = shared[*place].lock())
        return present;
    const QImage image = read(*place, Name);
    if (image.isNull())
        return {};
    auto picture = std::make_shared<const QImage>(image);
    shared[*place] = picture;
    return picture;
}
