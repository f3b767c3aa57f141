// The turret types of one TCockpits file.
#pragma once

#include "tdata/RecordViews.h"
#include "tdata/clsCockpit.h"

#include <string>

class clsCockpitParser {
public:
    /// Always true: one view a record.
    bool Load(const clsTxtParser& parser);

    [[nodiscard]] const std::string& Name() const noexcept { return m_name; } ///< of the file
    /// By the record's ID.
    [[nodiscard]] const auto& Cockpits() const noexcept { return m_views.ByID(); }
    /// In the file's sorted order, in which turrets count them.
    [[nodiscard]] const auto& SortedCockpits() const noexcept { return m_views.Sorted(); }
    /// The cockpit of a record, by the record's ID; none if there is none.
    [[nodiscard]] std::shared_ptr<clsCockpit> Find(std::int32_t id) const {
        return m_views.Find(id);
    }
    /// By position in the sorted order, from 0; none outside.
    [[nodiscard]] std::shared_ptr<clsCockpit> FindIndex(std::int32_t index) const;
    std::shared_ptr<clsCockpit> CreateCockpit(const RecordPtr& object) {
        return m_views.Append(object);
    }

private:
    RecordViews<clsCockpit> m_views;
    std::string m_name;
};
