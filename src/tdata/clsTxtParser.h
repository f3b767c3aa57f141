// One T file: parser, writer, and the container of its records in file order and in name order.
#pragma once

#include "tdata/clsLoadedText.h"
#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

using RecordPtr = std::shared_ptr<clsTXTObject>;

class clsTxtParser {
public:
    std::string FileName; ///< path under which the file was loaded

    [[nodiscard]] std::int32_t otype() const noexcept { return m_otype; }
    [[nodiscard]] std::int32_t Version() const noexcept { return m_version; }
    [[nodiscard]] bool Parsed() const noexcept { return m_parsed; }
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }

    /// Reads an open file of the file driver; false with GetLastError set, or with an empty text for a file
    /// of 0 records.
    bool Load(std::int32_t FileHandle, std::int32_t Type);
    /// As Load, from a text handle, which it takes over.
    bool LoadFromHandle(std::int32_t Text, std::int32_t Type);
    /// Writes all records to an open file handle and fixes its length; the caller closes or abandons. On
    /// success everything is clean.
    bool Save(std::int32_t FileHandle);

    [[nodiscard]] RecordPtr FindKey(std::string_view Key) const; ///< "k12"; none for a missing key
    [[nodiscard]] RecordPtr Find(std::int32_t ID) const;
    [[nodiscard]] RecordPtr FindID(std::string_view Name) const; ///< first with exactly this ObjectName
    [[nodiscard]] RecordPtr FindIndex(std::int32_t Index) const;

    /// False, and nothing changed, unless the record under that key is this very one.
    bool RemoveObject(const RecordPtr& Record);
    [[nodiscard]] bool CheckDirty() const;
    /// A new record without values, behind `After` or at the end.
    RecordPtr CreateObject(const RecordPtr& After);
    /// The same in front of `Before`, or at the end.
    RecordPtr CreateObjectBefore(const RecordPtr& Before);
    void AddObjectP(RecordPtr Record, const RecordPtr& After);
    /// Puts a record back at a place in file order, as undo of its removal; it keeps its ID.
    void RestoreObject(RecordPtr Record, std::int32_t Index);

    [[nodiscard]] const std::vector<RecordPtr>& ByIndex() const noexcept { return m_byIndex; }
    /// Sorted by ObjectName without regard to case, equal names in file order of arrival; does not follow
    /// later renames.
    [[nodiscard]] const std::vector<clsTXTObject*>& ByName() const;

    [[nodiscard]] bool Dirty() const noexcept { return m_dirty; }
    void SetDirty(bool dirty) noexcept { m_dirty = dirty; }

private:
    bool LoadByType(std::int32_t Type);
    bool LoadRecords();
    bool LoadJobs();
    bool LoadJobWings();
    bool LoadWareLists();
    bool LoadIconData();
    bool SaveRecords(std::int32_t FileHandle);
    bool SaveJobs(std::int32_t FileHandle);
    bool SetError(std::string Text);
    void Reset();
    void Renumber();

    std::shared_ptr<clsLoadedText> m_text;
    std::vector<RecordPtr> m_byIndex;
    mutable std::vector<clsTXTObject*> m_byName; ///< sorted when first asked for
    mutable bool m_sorted = true;
    std::vector<clsTXTObject*> m_byId; ///< IDs are dense and never reused
    std::string m_lastError;
    std::int32_t m_version = 0;
    std::int32_t m_otype = 0;
    std::int32_t m_nextID = 0;
    bool m_dirty = false;
    bool m_parsed = false;
};
