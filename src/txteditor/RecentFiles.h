// The files that were opened or saved last, the newest first. All windows share the list, which
// the settings keep.
#pragma once

#include <string>
#include <vector>

class RecentFiles {
public:
    RecentFiles() { Load(); }

    [[nodiscard]] const std::vector<std::string>& Names() const noexcept { return m_names; }
    /// Puts a name first; it stands once, whatever its case.
    void Add(const std::string& Name);
    void Remove(const std::string& Name);

private:
    void Load();
    void Forget(const std::string& Name);

    std::vector<std::string> m_names;
};
