// The objects that look at the records of one T file, found by record key and kept in the file's
// sorted order.
#pragma once

#include "lornfd/paths.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

template <class View>
class RecordViews {
public:
    using Ptr = std::shared_ptr<View>;

    /// By the record's ID, which is the order of arrival.
    [[nodiscard]] const std::map<std::int32_t, Ptr>& ByID() const noexcept { return m_byId; }
    [[nodiscard]] const std::vector<Ptr>& Sorted() const noexcept { return m_sorted; }

    void Clear() {
        m_byId.clear();
        m_sorted.clear();
    }
    /// A view of the record, in no order yet; one that was there before goes.
    Ptr Add(const RecordPtr& record) {
        auto view = std::make_shared<View>(record);
        m_byId.insert_or_assign(m_byId.end(), record->ID, view);
        return view;
    }
    /// The same, also at the end of the sorted ones.
    Ptr Append(const RecordPtr& record) {
        Remove(m_byId.find(record->ID));
        return m_sorted.emplace_back(Add(record));
    }
    /// Takes the container's order for all views.
    void Sort(const clsTxtParser& parser) {
        m_sorted.clear();
        m_sorted.reserve(m_byId.size());
        for (const clsTXTObject* record : parser.ByName())
            if (auto view = Find(record->ID))
                m_sorted.push_back(std::move(view));
    }
    [[nodiscard]] Ptr Find(std::int32_t id) const {
        const auto found = m_byId.find(id);
        return found == m_byId.end() ? Ptr() : found->second;
    }
    /// False if there is none of that key.
    bool Remove(std::string_view key) {
        const auto id = key.empty() ? std::nullopt : keshobjects::readInteger(key.substr(1));
        const auto found = id ? m_byId.find(*id) : m_byId.end();
        const bool is = found != m_byId.end() && lornfd::equalNoCase(found->second->key(), key);
        return is && Remove(found);
    }

private:
    bool Remove(typename std::map<std::int32_t, Ptr>::const_iterator found) {
        if (found == m_byId.end())
            return false;
        std::erase(m_sorted, found->second);
        m_byId.erase(found);
        return true;
    }

    std::map<std::int32_t, Ptr> m_byId;
    std::vector<Ptr> m_sorted;
};
