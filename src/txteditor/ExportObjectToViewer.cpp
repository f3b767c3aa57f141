#include "txteditor/ExportObjectToViewer.h"

#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "tdata/mdlKeshConst.h"
#include "ui/ExternalViewer.h"

#include <cmath>

namespace {

constexpr std::size_t bodyDigits = 5;

/// Body file of a record, below "objects".
std::string bodyPath(const clsTXTObject& record, bool cutScene) {
    const auto number = record.ValueNumber(0);
    if (!number)
        return std::string(record.ValueText(0));
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

void ExportObjectToViewer(QWidget* Owner, const clsTXTObject& Record, bool CutScene) {
    if (Record.size() == 0)
        return;
    if (const auto body = FindInVFS("objects\\" + bodyPath(Record, CutScene)))
        ShowIn3DViewer(Owner, *body, viewerData(Record));
}
