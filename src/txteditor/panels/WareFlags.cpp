#include "txteditor/panels/WareFlags.h"

#include "tdata/mdlKeshConst.h"

#include <QtGlobal>

namespace {

// The last five came with the game's later edition.
constexpr WareFlag BulletFlags[MostWareFlags] = {
    {QT_TRANSLATE_NOOP("WareFlags", "PAC"),
     QT_TRANSLATE_NOOP("WareFlags", "Set on Particle Accelerator Cannon")},
    {QT_TRANSLATE_NOOP("WareFlags", "Beam"), QT_TRANSLATE_NOOP("WareFlags", "Beam weapon")},
    {QT_TRANSLATE_NOOP("WareFlags", "Zig zag"),
     QT_TRANSLATE_NOOP("WareFlags", "Set on Ion Disruptor")},
    {QT_TRANSLATE_NOOP("WareFlags", "Areal"),
     QT_TRANSLATE_NOOP("WareFlags", "Set on Alpha Phased Shockwave Generator")},
    {QT_TRANSLATE_NOOP("WareFlags", "Disable"),
     QT_TRANSLATE_NOOP("WareFlags", "Disables spaceflies")},
    {QT_TRANSLATE_NOOP("WareFlags", "Ignore shields")},
    {QT_TRANSLATE_NOOP("WareFlags", "Use ammo"),
     QT_TRANSLATE_NOOP("WareFlags", "Will require ammo")},
    {QT_TRANSLATE_NOOP("WareFlags", "Repair"), QT_TRANSLATE_NOOP("WareFlags", "Repairs hull")},
    {QT_TRANSLATE_NOOP("WareFlags", "Flak")},
    {QT_TRANSLATE_NOOP("WareFlags", "Reduce speed"), QT_TRANSLATE_NOOP("WareFlags", "Ashfall")},
    {QT_TRANSLATE_NOOP("WareFlags", "Drain wpns"), QT_TRANSLATE_NOOP("WareFlags", "Ashfall")},
    {QT_TRANSLATE_NOOP("WareFlags", "Dmg over time"), QT_TRANSLATE_NOOP("WareFlags", "Ashfall")},
    {QT_TRANSLATE_NOOP("WareFlags", "Fragmentation"), QT_TRANSLATE_NOOP("WareFlags", "Ashfall")},
    {QT_TRANSLATE_NOOP("WareFlags", "Fire delay"), QT_TRANSLATE_NOOP("WareFlags", "Ashfall")},
};

constexpr WareFlag MissileFlags[] = {
    {QT_TRANSLATE_NOOP("WareFlags", "Free"),
     QT_TRANSLATE_NOOP("WareFlags", "Can be fired without lock")},
    {QT_TRANSLATE_NOOP("WareFlags", "Dumb"), QT_TRANSLATE_NOOP("WareFlags", "No guidance")},
    {QT_TRANSLATE_NOOP("WareFlags", "Frag"),
     QT_TRANSLATE_NOOP("WareFlags", "Multi fragment warhead")},
    {QT_TRANSLATE_NOOP("WareFlags", "Heatseeker")},
    {QT_TRANSLATE_NOOP("WareFlags", "Multi warhaed"),
     QT_TRANSLATE_NOOP("WareFlags", "Every warhead can track different target")},
    {QT_TRANSLATE_NOOP("WareFlags", "Proximity"),
     QT_TRANSLATE_NOOP("WareFlags", "Detonates in profimity of target")},
    {QT_TRANSLATE_NOOP("WareFlags", "Man. detonation"),
     QT_TRANSLATE_NOOP("WareFlags", "Can be manually detonated")},
    {QT_TRANSLATE_NOOP("WareFlags", "Firestorm")},
    {QT_TRANSLATE_NOOP("WareFlags", "Man. guided")},
};

} // namespace

WareFlagField WareFlagsOf(std::int32_t Type) {
    switch (Type) {
    case otype::Bullets:
        return {12, BulletFlags};
    case otype::Missiles:
        return {23, MissileFlags};
    default:
        return {};
    }
}
