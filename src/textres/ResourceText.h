// Texts of the store for code that may run without one.
#pragma once

#include "textres/clsDescServer.h"

#include <cstdint>
#include <optional>
#include <string>

inline constexpr std::int32_t ObjectNamePage = 17; ///< names and descriptions of objects

/// The text of a page and id, references resolved; none if there is no such string, or no server.
[[nodiscard]] inline std::optional<std::string> ResourceText(std::int32_t Page, std::int32_t Id) {
    if (!DescServer || DescServer->GetString(Page, Id) == 0)
        return {};
    return DescServer->GetStringDirect(Page, Id);
}
