#include "txteditor/panels/JobControls.h"

#include "tdata/FieldLookup.h"
#include "ui/TextCodec.h"

#include <algorithm>

namespace {

constexpr const char* context = "JobControls";

// The misspelt names are those that authors of mods know.
constexpr const char* nameTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Race"),
                                     QT_TRANSLATE_NOOP("JobControls", "Corporation"),
                                     QT_TRANSLATE_NOOP("JobControls", "Ship Type"),
                                     QT_TRANSLATE_NOOP("JobControls", "Variant Name")};
constexpr const char* roleTexts[] = {
    QT_TRANSLATE_NOOP("JobControls", "Fighter"), QT_TRANSLATE_NOOP("JobControls", "Civilian"),
    QT_TRANSLATE_NOOP("JobControls", "Trader"), QT_TRANSLATE_NOOP("JobControls", "Military")};
constexpr const char* sectorTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Is owner's sector"),
                                       QT_TRANSLATE_NOOP("JobControls", "Is core sector"),
                                       QT_TRANSLATE_NOOP("JobControls", "Has shipyard"),
                                       QT_TRANSLATE_NOOP("JobControls", "Has owner's stations"),
                                       QT_TRANSLATE_NOOP("JobControls", "Not enemy sector"),
                                       QT_TRANSLATE_NOOP("JobControls", "Is border sector")};
constexpr const char* invertedTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Invert sector flags")};
constexpr const char* creationTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Create in shipyard"),
                                         QT_TRANSLATE_NOOP("JobControls", "Create in gate"),
                                         QT_TRANSLATE_NOOP("JobControls", "Create inside sector"),
                                         QT_TRANSLATE_NOOP("JobControls", "Create outside sector"),
                                         QT_TRANSLATE_NOOP("JobControls", "Create NULL")};
constexpr const char* variousTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Is invincible"),
                                        QT_TRANSLATE_NOOP("JobControls", "Is hidden pirate"),
                                        QT_TRANSLATE_NOOP("JobControls", "Destroy OOS"),
                                        QT_TRANSLATE_NOOP("JobControls", "Rebuild in new sector"),
                                        QT_TRANSLATE_NOOP("JobControls", "Fly average speed")};
constexpr const char* dronesTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Fighter Drones")};
constexpr const char* allowedTexts[] = {QT_TRANSLATE_NOOP("JobControls", "Mass Driver"),
                                        QT_TRANSLATE_NOOP("JobControls", "PSG"),
                                        QT_TRANSLATE_NOOP("JobControls", "Ion Disruptor"),
                                        QT_TRANSLATE_NOOP("JobControls", "Flak"),
                                        QT_TRANSLATE_NOOP("JobControls", "IH"),
                                        QT_TRANSLATE_NOOP("JobControls", "Mining las."),
                                        QT_TRANSLATE_NOOP("JobControls", "Tug"),
                                        QT_TRANSLATE_NOOP("JobControls", "Repair las.")};
constexpr const char* forbiddenTexts[] = {
    QT_TRANSLATE_NOOP("JobControls", "Impulse Ray Emmiter"),
    QT_TRANSLATE_NOOP("JobControls", "Particle Accelerator Cannon"),
    QT_TRANSLATE_NOOP("JobControls", "High Energy Plasma Thrower"),
    QT_TRANSLATE_NOOP("JobControls", "Photon Pulse Cannon"),
    QT_TRANSLATE_NOOP("JobControls", "Kyon Emmiter")};

} // namespace

const JobBoxRow JobNameBoxes{"chkShipNameFlags", jobflags::NameParts,
                             QT_TRANSLATE_NOOP("JobControls", "Ship name"), nameTexts};
const JobBoxRow JobClassBoxes{
    "chkShipClass", jobflags::Classes, QT_TRANSLATE_NOOP("JobControls", "Class"), {}, JobClassName};
const JobBoxRow JobShipRaceBoxes{"chkShipRace",
                                 jobflags::ShipRaces,
                                 QT_TRANSLATE_NOOP("JobControls", "Race of the ship"),
                                 {},
                                 JobShipRaceName};
const JobBoxRow JobVariantBoxes{"chkShipVariant",
                                jobflags::Variants,
                                QT_TRANSLATE_NOOP("JobControls", "Variant"),
                                {},
                                JobVariantName};
const JobBoxRow JobRoleBoxes{"rbShipClassification", jobflags::Roles,
                             QT_TRANSLATE_NOOP("JobControls", "Classification"), roleTexts};
const JobBoxRow JobSectorBoxes{"chkSectorFlags", jobflags::Sectors,
                               QT_TRANSLATE_NOOP("JobControls", "Sector"), sectorTexts};
const JobBoxRow JobInvertedBox{
    "chkSectorFlagsInverted", {jobfield::SectorInverted, 1}, "", invertedTexts};
const JobBoxRow JobCreationBoxes{"chkSectorCreationFlags", jobflags::Creation,
                                 QT_TRANSLATE_NOOP("JobControls", "Creation"), creationTexts};
const JobBoxRow JobVariousBoxes{"chkPlacementVarious", jobflags::Various,
                                QT_TRANSLATE_NOOP("JobControls", "Various"), variousTexts};
const JobBoxRow JobDronesBox{"chkWeaponAllowDrones", {jobfield::AllowDrones, 1}, "", dronesTexts};
const JobBoxRow JobAllowedBoxes{"chkWeaponAllow", jobflags::AllowedWeapons,
                                QT_TRANSLATE_NOOP("JobControls", "Allow"), allowedTexts};
const JobBoxRow JobForbiddenBoxes{"chkWeaponForbid", jobflags::ForbiddenWeapons,
                                  QT_TRANSLATE_NOOP("JobControls", "Forbid"), forbiddenTexts};
const JobBoxRow JobOwnerBoxes{"chkOwnerRace",
                              jobflags::OwnerRaces,
                              QT_TRANSLATE_NOOP("JobControls", "Race of the owner"),
                              {},
                              JobOwnerRaceName};

QString JobBoxRow::GroupTitle() const {
    return QCoreApplication::translate(context, Title);
}

QString JobBoxRow::Caption(std::int32_t Place) const {
    return TextOf ? ToScreen(TextOf(Place))
                  : QCoreApplication::translate(context, Texts[static_cast<std::size_t>(Place)]);
}

QString Shortened(const QString& Text, qsizetype Length) {
    if (Text.size() <= Length)
        return Text;
    const bool halved = Length > 0 && Text[Length - 1].isHighSurrogate();
    return Text.left(halved ? Length - 1 : Length) + QChar(0x2026);
}

QStringList JobCaptionsSet(const clsTXTObject& Job, const JobBoxRow& Row) {
    QStringList captions;
    for (const std::int32_t place : JobFlagsSet(Job, Row.Flags))
        captions.append(Row.Caption(place));
    return captions;
}

QString JobFieldCaption(const clsTXTObject& Job, std::int32_t Field) {
    static const JobBoxRow* const rows[] = {&JobShipRaceBoxes, &JobVariantBoxes, &JobOwnerBoxes};
    for (const JobBoxRow* row : rows)
        if (const std::int32_t place = Field - row->Flags.First;
            place >= 0 && place < row->Flags.Count)
            return row->Caption(place);
    return ToScreen(FieldName(Job, Field));
}
