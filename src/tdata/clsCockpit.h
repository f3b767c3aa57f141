// A record of TCockpits: a type of turret.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>

class clsCockpit {
public:
    static constexpr std::int32_t FieldLasers = 8;

    explicit clsCockpit(RecordPtr object) : Object(std::move(object)) {}

    const RecordPtr Object;

    [[nodiscard]] std::string key() const { return Object->key(); }
    [[nodiscard]] std::int32_t size() const { return Object->size(); }
    /// Any value as a single; throws KeshError (errnum::TypeMismatch) for text.
    [[nodiscard]] float Value(std::int32_t index) const;
    void SetValue(std::int32_t index, float value);
    /// A bit for each kind of laser that may be mounted. Read as a single, so bits are lost above
    /// 2^24; throws KeshError for what leaves 32 bits.
    [[nodiscard]] std::int32_t CompatibleLasers() const;
};
