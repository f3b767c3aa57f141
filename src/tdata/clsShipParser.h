// The ships of one TShips file.
#pragma once

#include "tdata/RecordViews.h"
#include "tdata/clsShip.h"

class clsShipParser {
public:
    /// A ship for each record, with its objects. False with GetLastError set at the first whose
    /// objects cannot be loaded; the ships up to there stay.
    [[nodiscard]] bool Load(const clsTxtParser& parser);
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }

    /// By the record's ID.
    [[nodiscard]] const auto& Ships() const noexcept { return m_views.ByID(); }
    /// In the file's sorted order.
    [[nodiscard]] const auto& SortedShips() const noexcept { return m_views.Sorted(); }
    /// The ship of a record, by the record's ID; none if there is none.
    [[nodiscard]] std::shared_ptr<clsShip> Find(std::int32_t id) const { return m_views.Find(id); }

    /// Takes up a record that was just created or came back; Construct or LoadObjects has to
    /// follow.
    std::shared_ptr<clsShip> CreateShip(const RecordPtr& object) { return m_views.Append(object); }
    /// Forgets a ship; false if there is none of that key.
    bool RemoveShip(std::string_view key) { return m_views.Remove(key); }

private:
    RecordViews<clsShip> m_views;
    std::string m_lastError;
};
