// What the values of wares, weapons, stations and all other bodies mean to a person.
#pragma once

#include "tdata/GuiIcons.h"
#include "tdata/WareConversions.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/// Takes records of any size and content. Nothing throws.
class WareFields final : public FieldConverter {
public:
    WareFields() : FieldConverter(warelist::Count) {}

    /// Takes bullets, ammo and icons from the archive as far as the type needs them and they are
    /// not there yet. What cannot be had is empty.
    void LoadFiles(std::int32_t Type);
    /// Makes the lists for files of that type and version.
    void SetFile(std::int32_t Type, std::int32_t Version);
    [[nodiscard]] const GuiIcons& Icons() const noexcept { return m_icons; }

    /// The name in the user's language, else the ID; empty for a record without a name field.
    [[nodiscard]] static std::string ResourceName(const clsTXTObject& Record);

protected:
    [[nodiscard]] const FieldConversion* RowOf(const clsTXTObject& Record,
                                               std::int32_t Index) const override {
        return WareConversion(Record, Index);
    }

private:
    GuiIcons m_icons;
};
