#include "txteditor/panels/GamePicture.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tessil/tessil.h"

#include <QDateTime>
#include <QFileInfo>

#include <optional>

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

std::optional<std::string> placeOf(const std::string& name) {
    if (name.empty())
        return {};
    const auto place = FindInVFS(JoinPath({"textures", name}));
    return place ? place : FindInVFS(JoinPath({"dds", name}));
}

} // namespace

std::shared_ptr<const QImage> LoadGamePicture(const std::string& Name) {
    /// The last one, which mostly is asked for again.
    struct Kept {
        std::string Place;
        qint64 Size = 0;
        QDateTime Modified;
        std::shared_ptr<const QImage> Picture;
    };
    static Kept kept;
    const auto place = placeOf(Name);
    if (!place)
        return {};
    const QFileInfo file(QString::fromStdString(lornfd::nativePath(CatalogPart(*place))));
    if (kept.Place != *place || kept.Size != file.size() || kept.Modified != file.lastModified())
        kept = {*place, file.size(), file.lastModified(),
                std::make_shared<const QImage>(read(*place, Name))};
    return kept.Picture->isNull() ? nullptr : kept.Picture;
}
