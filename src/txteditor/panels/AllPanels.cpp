#include "txteditor/panels/AllPanels.h"

#include "txteditor/panels/ucJob.h"
#include "txteditor/panels/ucShip.h"
#include "txteditor/panels/ucTurret.h"
#include "txteditor/panels/ucWare.h"
#include "txteditor/panels/ucWareList.h"

frmTXTEditor::Panels AllPanels() {
    const std::pair<ObjectEditor*, const char*> panels[] = {
        {new ucShip, "ShipEdit"}, {new ucTurret, "TurretEdit"},     {new ucWare, "WareEdit"},
        {new ucJob, "JobEdit"},   {new ucWareList, "WareListEdit"},
    };
    frmTXTEditor::Panels result;
    for (const auto& [panel, name] : panels) {
        panel->setObjectName(QString::fromLatin1(name));
        result.push_back(panel);
    }
    return result;
}
