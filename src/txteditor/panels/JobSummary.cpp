#include "txteditor/panels/JobSummary.h"

#include "txteditor/panels/JobControls.h"

#include <QCoreApplication>

namespace {

constexpr qsizetype longestList = 3;
constexpr qsizetype longestName = 100; ///< characters; an ID may be anything

struct Words {
    Q_DECLARE_TR_FUNCTIONS(JobSummary)
};

/// All of a few; else the first of them, and how many more there are.
QString listed(const QStringList& names) {
    if (names.size() <= longestList)
        return names.join(QStringLiteral(", "));
    const auto shown = longestList - 1;
    return Words::tr("%1 and %2 more")
        .arg(names.mid(0, shown).join(QStringLiteral(", ")), QString::number(names.size() - shown));
}

/// The same, or the words for all of a group.
QString listedOf(const QStringList& names, const JobBoxRow& row, const QString& all) {
    return names.size() == row.Flags.Count ? all : listed(names);
}

QString numberOf(const clsTXTObject& job, std::int32_t field) {
    const auto number = GetJobInteger(job, field);
    return number ? QString::number(*number) : QString();
}

/// `text` with the names in it; empty without any.
QString with(const QString& text, const QStringList& names) {
    return names.isEmpty() ? QString() : text.arg(listed(names));
}

QString countPart(const clsTXTObject& job) {
    const QString most = numberOf(job, jobfield::Most);
    const QString inSector = numberOf(job, jobfield::MostInSector);
    QStringList parts;
    if (!most.isEmpty())
        parts.append(Words::tr("up to %1").arg(most));
    if (!inSector.isEmpty())
        parts.append(Words::tr("%1 in a sector").arg(inSector));
    return parts.join(QStringLiteral(", "));
}

QString shipPart(const clsTXTObject& job,
                 const std::function<QString(const std::string&)>& shipName) {
    if (const std::string id(JobShip(job)); !id.empty())
        return Shortened(shipName(id), longestName);
    const QStringList classes = JobCaptionsSet(job, JobClassBoxes);
    const QString ships = classes.isEmpty()
                              ? Words::tr("ships of no class")
                              : listedOf(classes, JobClassBoxes, Words::tr("any class"));
    const QStringList races = JobCaptionsSet(job, JobShipRaceBoxes);
    return races.isEmpty()
               ? ships
               : Words::tr("%1 of %2")
                     .arg(ships, listedOf(races, JobShipRaceBoxes, Words::tr("any race")));
}

QString ownerPart(const clsTXTObject& job) {
    const QStringList owners = JobCaptionsSet(job, JobOwnerBoxes);
    return owners.isEmpty() ? QString()
                            : Words::tr("owned by %1")
                                  .arg(listedOf(owners, JobOwnerBoxes, Words::tr("any race")));
}

QString sectorPart(const clsTXTObject& job) {
    const bool inverted = JobFlagSet(job, jobfield::SectorInverted);
    return with(inverted ? Words::tr("not in sectors: %1") : Words::tr("in sectors: %1"),
                JobCaptionsSet(job, JobSectorBoxes));
}

QString placePart(const clsTXTObject& job) {
    const auto x = GetJobInteger(job, jobfield::SectorX);
    const auto y = GetJobInteger(job, jobfield::SectorY);
    if (!x || !y || (*x == 0 && *y == 0))
        return {};
    return Words::tr("sector %1, %2").arg(*x).arg(*y);
}

QString creationPart(const clsTXTObject& job) {
    const QString places[] = {Words::tr("shipyard"), Words::tr("gate"), Words::tr("inside sector"),
                              Words::tr("outside sector"), QStringLiteral("NULL")};
    QStringList set;
    for (const std::int32_t place : JobFlagsSet(job, jobflags::Creation))
        set.append(places[place]);
    return with(Words::tr("created at: %1"), set);
}

/// A number above 0 in its words.
QString amount(const clsTXTObject& job, std::int32_t field, const QString& text) {
    const auto number = GetJobInteger(job, field);
    return number.value_or(0) > 0 ? text.arg(*number) : QString();
}

} // namespace

QString JobSummary(const clsTXTObject& Job,
                   const std::function<QString(const std::string&)>& ShipName) {
    QStringList parts{countPart(Job),
                      shipPart(Job, ShipName),
                      ownerPart(Job),
                      JobCaptionsSet(Job, JobRoleBoxes).value(0),
                      sectorPart(Job),
                      placePart(Job),
                      creationPart(Job),
                      amount(Job, jobfield::Docked, Words::tr("chance docked %1")),
                      amount(Job, jobfield::Respawn, Words::tr("respawns after %1"))};
    parts.removeAll(QString());
    return parts.join(QStringLiteral("; "));
}
