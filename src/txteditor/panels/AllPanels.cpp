#include "txteditor/panels/AllPanels.h"

#include "txteditor/panels/ucShip.h"
#include "txteditor/panels/ucTurret.h"

frmTXTEditor::Panels AllPanels() {
    const std::pair<ObjectEditor*, const char*> panels[] = {
        {new ucShip, "ShipEdit"},
        {new ucTurret, "TurretEdit"},
    };
    frmTXTEditor::Panels result;
    for (const auto& [panel, name] : panels) {
        panel->setObjectName(QString::fromLatin1(name));
        result.push_back(panel);
    }
    return result;
}
