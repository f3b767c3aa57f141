// What the values of a ship mean to a person: names from other files and texts, units, lists.
#pragma once

#include "tdata/FieldConversion.h"
#include "tdata/clsCockpitParser.h"
#include "tdata/clsTxtParser.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Metres a second, in single precision; nothing where a value is no number.
[[nodiscard]] std::optional<float> ShipSpeed(const clsTXTObject& Ship);
/// The same with every engine tunning.
[[nodiscard]] std::optional<float> TunedShipSpeed(const clsTXTObject& Ship);

/// Takes records of any size and content. Nothing throws but RechargeTime.
class ShipFields {
public:
    /// Takes the weapons, shields, cockpits, races and ware sizes from the archive and the texts,
    /// the first time only. What is not there is empty.
    void LoadFiles();
    /// Makes the lists of classes and types for files of that version.
    void SetVersion(std::int32_t Version);
    [[nodiscard]] std::int32_t Version() const noexcept { return m_version; }
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

    /// What a field may be chosen from; empty for one that has no list.
    [[nodiscard]] std::vector<std::string> Values(const clsTXTObject& Ship,
                                                  std::int32_t Index) const;
    /// The text of a value, Raw: without its unit. False, and Text as it was, where the value is
    /// best shown as it is stored.
    bool Translate(const clsTXTObject& Ship, std::int32_t Index, std::string& Text, bool Raw) const;
    /// The value for an entered text. False, and Value as it was, for a text that is none.
    bool TranslateBack(const clsTXTObject& Ship, const std::string& Text, std::int32_t Index,
                       KeshValue& Value) const;
    /// Shield, count and seconds that the reactor needs to fill them; empty if that cannot be told.
    /// Throws KeshError (errnum::DivisionByZero) for shields that need 0.
    [[nodiscard]] std::string RechargeTime(const clsTXTObject& Ship) const;

private:
    using File = std::shared_ptr<const clsTxtParser>;

    [[nodiscard]] StoredField FieldOf(const clsTXTObject& Ship, std::int32_t Index,
                                      const FieldConversion& Row) const;
    [[nodiscard]] const ChoiceList* ListOf(const FieldConversion& Row) const;
    [[nodiscard]] std::string Shown(const clsTXTObject& Ship, std::int32_t Index) const;

    File m_lasers = std::make_shared<clsTxtParser>();
    File m_missiles = m_lasers;
    File m_shields = m_lasers;
    clsCockpitParser m_cockpits;
    std::array<ChoiceList, 5> m_lists;
    std::int32_t m_version = 0;
    bool m_loaded = false;
};
