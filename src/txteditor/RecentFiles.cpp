#include "txteditor/RecentFiles.h"

#include "core/clsSettings.h"
#include "lornfd/paths.h"

#include <algorithm>

namespace {

auto sameAs(const std::string& name) {
    return [&name](const std::string& other) { return lornfd::equalNoCase(name, other); };
}

} // namespace

void RecentFiles::Load() {
    m_names.clear();
    for (const std::string& name : Settings->LoadRecentTFiles()) // the tail of a longer list stays
        if (std::none_of(m_names.begin(), m_names.end(), sameAs(name)))
            m_names.push_back(name);
}

void RecentFiles::Add(const std::string& Name) {
    Forget(Name);
    m_names.insert(m_names.begin(), Name);
    Settings->SaveRecentTFiles(m_names);
}

void RecentFiles::Remove(const std::string& Name) {
    Forget(Name);
    Settings->SaveRecentTFiles(m_names);
}

void RecentFiles::Forget(const std::string& Name) {
    Load(); // other windows add to the same list
    std::erase_if(m_names, sameAs(Name));
}
