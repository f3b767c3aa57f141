// Collecting the new content of a file or an entry.
#pragma once

#include "lornfd/handle.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace lornfd {

class Writer : public OpenFile {
public:
    /// Null with the last error set. With `mustExist` only for an existing target. `form` is
    /// LORNFD_AS_IS to LORNFD_ZSTD.
    static std::unique_ptr<Writer> open(std::string_view name, bool mustExist, std::int32_t form);

    /// False with the last error set; then the target can no longer be replaced.
    bool write(std::string_view bytes);
    /// Replaces the target, whole or not at all; false with the last error set.
    bool commit();
    std::optional<ContentMark> contentMark() override { return m_mark; }

protected:
    using OpenFile::OpenFile;

private:
    virtual bool take(std::string_view bytes) = 0;
    virtual bool replace() = 0;
    [[nodiscard]] bool failEarlier() const;

    ContentMark m_mark;
    bool m_failed = false;
};

} // namespace lornfd
