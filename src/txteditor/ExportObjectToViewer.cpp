#include "txteditor/ExportObjectToViewer.h"

#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "tdata/mdlKeshConst.h"
#include "ui/ExternalViewer.h"

#include <cmath>

namespace {

constexpr std::size_t bodyDigits = 5;

/// Body file that a field names, below "objects".
std::string bodyPath(const clsTXTObject& record, std::int32_t field, bool cutScene) {
    const auto number = record.ValueNumber(field);
    if (!number)
        return std::string(record.ValueText(field));
    std::string digits = FormatFixed(std::abs(*number), 0);
    if (digits.size() < bodyDigits)
        digits.insert(0, bodyDigits - digits.size(), '0');
    return JoinPath({cutScene ? "cut" : "v", (*number < 0 ? "-" : "") + digits});
}

std::string viewerData(const clsTXTObject& record) {
    switch (record.otype) {
    case otype::Ships:
        return "TShips:" + record.GetObjectTData();
    case otype::Factories:
        return "TFactories:" + record.GetObjectTData();
    default:
        return {};
    }
}

} // namespace

void ExportObjectToViewer(QWidget* Owner, const clsTXTObject& Record, std::int32_t Field,
                          bool CutScene) {
    if (Field < 0 || Field >= Record.size())
        return;
    if (const auto body = FindInVFS("objects\\" + bodyPath(Record, Field, CutScene)))
        ShowIn3DViewer(Owner, *body, viewerData(Record));
}
