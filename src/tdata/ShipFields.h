// What the values of a ship mean to a person: names from other files and texts, units, lists.
#pragma once

#include "tdata/FieldConversion.h"
#include "tdata/clsCockpitParser.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/// Metres a second, in single precision; nothing where a value is no number.
[[nodiscard]] std::optional<float> ShipSpeed(const clsTXTObject& Ship);
/// The same with every engine tunning.
[[nodiscard]] std::optional<float> TunedShipSpeed(const clsTXTObject& Ship);

/// Takes records of any size and content. Nothing throws but RechargeTime.
class ShipFields final : public FieldConverter {
public:
    ShipFields();

    /// Takes the weapons, shields, cockpits, races and ware sizes from the archive and the texts,
    /// the first time only. What is not there is empty.
    void LoadFiles();
    /// Makes the lists of classes and types for files of that version.
    void SetVersion(std::int32_t Version);
    [[nodiscard]] bool Symbolic() const noexcept; ///< classes and types are keys

    [[nodiscard]] const clsTxtParser& Lasers() const noexcept { return *m_lasers; }
    [[nodiscard]] const clsTxtParser& Missiles() const noexcept { return *m_missiles; }
    [[nodiscard]] const clsTxtParser& Shields() const noexcept { return *m_shields; }
    [[nodiscard]] const clsCockpitParser& Cockpits() const noexcept { return m_cockpits; }
    [[nodiscard]] RecordPtr Shield(const clsTXTObject& Ship) const; ///< that it carries, or none

    /// The name in the user's language or the ID, and the variation behind it.
    [[nodiscard]] std::string DisplayName(const clsTXTObject& Ship) const;
    [[nodiscard]] std::string ResourceName(const clsTXTObject& Ship) const; ///< behind the race
    [[nodiscard]] std::string Race(const clsTXTObject& Ship) const;
    [[nodiscard]] std::string Class(const clsTXTObject& Ship) const;

    /// Shield, count and seconds that the reactor needs to fill them; empty if that cannot be told.
    /// Throws KeshError (errnum::DivisionByZero) for shields that need 0.
    [[nodiscard]] std::string RechargeTime(const clsTXTObject& Ship) const;

private:
    using File = std::shared_ptr<const clsTxtParser>;

    [[nodiscard]] const FieldConversion* RowOf(const clsTXTObject& Ship,
                                               std::int32_t Index) const override;
    [[nodiscard]] std::string Shown(const clsTXTObject& Ship, std::int32_t Index) const;

    File m_lasers = std::make_shared<clsTxtParser>();
    File m_missiles = m_lasers;
    File m_shields = m_lasers;
    clsCockpitParser m_cockpits;
    bool m_loaded = false;
};
