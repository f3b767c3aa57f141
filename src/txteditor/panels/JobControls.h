// The boxes of the job panel, group by group.
#pragma once

#include "tdata/JobFields.h"

#include <QtCore>

#include <span>
#include <string>

/// Boxes for neighbouring fields. Their captions are Texts, or what TextOf says for each place.
struct JobBoxRow {
    const char* Name; ///< objectName of each box with its place behind; of a single one as it is
    JobFlags Flags;
    const char* Title; ///< of the group
    std::span<const char* const> Texts = {};
    std::string (*TextOf)(std::int32_t Place) = nullptr;

    [[nodiscard]] QString GroupTitle() const;
    [[nodiscard]] QString Caption(std::int32_t Place) const; ///< in the user's language
};

extern const JobBoxRow JobNameBoxes;
extern const JobBoxRow JobClassBoxes;
extern const JobBoxRow JobShipRaceBoxes;
extern const JobBoxRow JobVariantBoxes;
extern const JobBoxRow JobRoleBoxes; ///< option boxes
extern const JobBoxRow JobSectorBoxes;
extern const JobBoxRow JobInvertedBox;
extern const JobBoxRow JobCreationBoxes;
extern const JobBoxRow JobVariousBoxes;
extern const JobBoxRow JobDronesBox;
extern const JobBoxRow JobAllowedBoxes;
extern const JobBoxRow JobForbiddenBoxes;
extern const JobBoxRow JobOwnerBoxes;

/// A text, or its beginning and an ellipsis if it has more than `Length` characters.
[[nodiscard]] QString Shortened(const QString& Text, qsizetype Length);
/// The captions of the flags that are set.
[[nodiscard]] QStringList JobCaptionsSet(const clsTXTObject& Job, const JobBoxRow& Row);
/// The caption of the box of a field, or the name of the field.
[[nodiscard]] QString JobFieldCaption(const clsTXTObject& Job, std::int32_t Field);
