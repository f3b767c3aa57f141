#include "app/ViewWalk.h"

#include "core/mdlCommon.h"
#include "files/mdlPaths.h"

#include <algorithm>

namespace {

/// Empty parts count as "*" only at the end: a doubled or leading separator is none.
std::vector<std::string> partsOf(std::string_view filter) {
    const std::string text = FromPlatform(filter);
    const std::string path = IsVFSPath(text) ? StripVFS(text) : text;
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t at = 0; (at = path.find('\\', from)) != std::string::npos; from = at + 1)
        if (at > from)
            parts.push_back(path.substr(from, at - from));
    parts.push_back(from < path.size() ? path.substr(from) : "*");
    return parts;
}

} // namespace

ViewWalk::ViewWalk(std::string_view Filter) : m_masks(partsOf(Filter)), m_pending{{"", 0}} {}
ViewWalk::~ViewWalk() = default;
ViewWalk::ViewWalk(ViewWalk&&) noexcept = default;
ViewWalk& ViewWalk::operator=(ViewWalk&&) noexcept = default;

const std::string& ViewWalk::MaskOf(std::size_t level) const {
    static const std::string all = "*";
    return level < m_masks.size() ? m_masks[level] : all;
}

void ViewWalk::Enter() {
    m_current = std::move(m_pending.back());
    m_pending.pop_back();
    m_search = std::make_unique<VfsSearch>(m_current.Name + MaskOf(m_current.Level));
}

std::vector<ViewFile> ViewWalk::Next(int Count) {
    std::vector<ViewFile> files;
    for (; Count > 0 && !AtEnd(); --Count) {
        if (!m_search)
            Enter();
        if (!m_search->Found()) {
            m_search.reset();
            std::move(m_below.rbegin(), m_below.rend(), std::back_inserter(m_pending));
            m_below.clear();
            continue;
        }
        std::string name = m_current.Name + m_search->Name();
        if (m_search->IsDirectory())
            m_below.push_back({name + '\\', m_current.Level + 1});
        else if (m_current.Level + 1 >= m_masks.size())
            files.push_back({std::move(name), m_search->RealName(), false});
        m_search->Next();
    }
    return files;
}
