// A walk over the merged view in slices, so that a window can list it without standing still.
#pragma once

#include "files/ViewFiles.h"

#include <memory>
#include <string>
#include <vector>

class VfsSearch;

/// Every file that a filter lets through, directory by directory. The filter's parts ("\" between
/// them) hold level by level; below its last part, and where a part is empty, all are taken. The
/// walk goes over the view that stood when it came to a directory.
class ViewWalk {
public:
    explicit ViewWalk(std::string_view Filter);
    ~ViewWalk();
    ViewWalk(ViewWalk&&) noexcept;
    ViewWalk& operator=(ViewWalk&&) noexcept;

    /// The next files, at most so many; fewer only at the end or where directories cost the time
    /// of as many.
    [[nodiscard]] std::vector<ViewFile> Next(int Count);
    [[nodiscard]] bool AtEnd() const noexcept { return !m_search && m_pending.empty(); }

private:
    struct Directory {
        std::string Name; ///< with its final "\", or empty
        std::size_t Level = 0;
    };

    void Enter();
    [[nodiscard]] const std::string& MaskOf(std::size_t level) const;

    std::vector<std::string> m_masks;
    std::vector<Directory> m_pending; ///< the next one last
    std::vector<Directory> m_below;   ///< found in the current one, in order
    Directory m_current;
    std::unique_ptr<VfsSearch> m_search; ///< in the current directory, none between two
};
