#include "lornfd/buffer.h"

#include "lornfd/platform.h"

#include <cstring>

namespace lornfd {

Buffer::Buffer(std::size_t size)
    : m_data(static_cast<char*>(std::malloc(size ? size : 1))), m_size(m_data ? size : 0) {
    platform::expectUse(m_data.get(), m_size);
}

Buffer Buffer::copyOf(std::string_view bytes) {
    Buffer copy(bytes.size());
    if (copy.size() > 0)
        std::memcpy(copy.data(), bytes.data(), bytes.size());
    return copy;
}

bool Buffer::resize(std::size_t size) {
    char* const moved = static_cast<char*>(std::realloc(m_data.get(), size ? size : 1));
    if (!moved)
        return false;
    static_cast<void>(m_data.release());
    m_data.reset(moved);
    m_size = size;
    return true;
}

} // namespace lornfd
