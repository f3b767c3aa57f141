// A thin view of a record for the ware panels.
#pragma once

#include "tdata/clsTXTObject.h"

#include <string>

class clsWare {
public:
    explicit clsWare(RecordPtr object) : m_object(std::move(object)) {}

    [[nodiscard]] std::int32_t size() const { return m_object->size(); }
    [[nodiscard]] KeshValue Value(std::int32_t index) const { return m_object->Value(index); }
    void SetValue(std::int32_t index, const KeshValue& value) { m_object->SetValue(index, value); }
    /// Name of the race of a factory or dock (value 13), "Unknown value" outside the table; else
    /// empty.
    [[nodiscard]] std::string Race() const;

private:
    RecordPtr m_object;
};
