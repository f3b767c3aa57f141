// The text of one loaded T file with the places of its values; shared by every record read from it.
#pragma once

#include "keshobjects/places.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

class clsLoadedText {
public:
    /// Takes over a text handle of keshobjects and frees it with itself.
    explicit clsLoadedText(std::int32_t handle);
    ~clsLoadedText();
    clsLoadedText(const clsLoadedText&) = delete;
    clsLoadedText& operator=(const clsLoadedText&) = delete;

    [[nodiscard]] std::int32_t Handle() const noexcept { return m_handle; }
    [[nodiscard]] std::string_view Text() const noexcept { return m_text; }
    std::vector<KeshPlace> Places; ///< of all values, record by record

private:
    std::int32_t m_handle;
    std::string_view m_text;
};
