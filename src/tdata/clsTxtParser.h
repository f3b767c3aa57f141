// One T file: parser, writer, and the container of its records in file order and in name order.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class NewNames;

class clsTxtParser {
public:
    std::string FileName; ///< path under which the file was loaded

    [[nodiscard]] std::int32_t otype() const noexcept { return m_otype; }
    [[nodiscard]] std::int32_t Version() const noexcept { return m_version; }
    [[nodiscard]] bool Parsed() const noexcept { return m_parsed; }
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }

    /// Reads an open file of the file driver; false with GetLastError set, or with an empty text
    /// for a file of 0 records.
    [[nodiscard]] bool Load(std::int32_t FileHandle, std::int32_t Type);
    /// As Load, from a text handle, which it takes over.
    [[nodiscard]] bool LoadFromHandle(std::int32_t Text, std::int32_t Type);
    /// What stands behind the records that the file counts, in a sentence with its place, since
    /// saving drops it; empty if there is nothing, as after a save.
    [[nodiscard]] const std::string& LeftOut() const noexcept { return m_leftOut; }
    /// A sentence on the first ship whose counts do not fit its number of values: saved like that,
    /// the file could not be loaded again. Empty if there is none.
    [[nodiscard]] std::string Misfit() const;
    /// Writes all records to an open file handle and fixes its length; the caller closes or
    /// abandons. On success everything is clean.
    [[nodiscard]] bool Save(std::int32_t FileHandle);

    [[nodiscard]] RecordPtr FindKey(std::string_view Key) const; ///< "k12"; none for a missing key
    [[nodiscard]] RecordPtr Find(std::int32_t ID) const;
    [[nodiscard]] RecordPtr
    FindID(std::string_view Name) const; ///< first with exactly this ObjectName
    [[nodiscard]] RecordPtr FindIndex(std::int32_t Index) const;

    /// False, and nothing changed, unless the record under that key is this very one.
    [[nodiscard]] bool RemoveObject(const RecordPtr& Record);
    /// The same for all of them at once, or none.
    [[nodiscard]] bool RemoveObjects(std::span<const RecordPtr> Records);
    [[nodiscard]] bool CheckDirty() const;
    /// A new record without values, behind `After`, or at the end if that is no record
    /// here.
    RecordPtr CreateObject(const RecordPtr& After);
    /// The same in front of `Before`, or at the end.
    RecordPtr CreateObjectBefore(const RecordPtr& Before);
    /// Adds a record with the ID that it has; throws KeshError if that is negative or taken.
    void AddObjectP(RecordPtr Record, const RecordPtr& After);
    /// Puts a removed record back at its place in file order; it keeps its ID. Throws as
    /// AddObjectP.
    void RestoreObject(RecordPtr Record, std::int32_t Index);
    /// Puts records back at the Index that each has, in ascending order.
    void RestoreObjects(std::span<const RecordPtr> Records);

    /// The text that was loaded; it stays until another is. Empty if there is none.
    [[nodiscard]] std::string_view LoadedText() const noexcept;
    [[nodiscard]] const std::vector<RecordPtr>& ByIndex() const noexcept { return m_byIndex; }
    /// By ObjectName without regard to case, equal names in their order of arrival. Sorted when
    /// first asked for; does not follow renames after that.
    [[nodiscard]] const std::vector<clsTXTObject*>& ByName() const;

    [[nodiscard]] bool Dirty() const noexcept { return m_dirty; } ///< a record was added or removed
    void SetDirty(bool dirty) noexcept { m_dirty = dirty; }

private:
    friend class BulkInsert;
    friend std::string NewObjectName(const clsTxtParser& Parser);
    /// While many records are added at one place.
    struct Bulk {
        std::size_t From = 0;            ///< that place
        std::vector<RecordPtr> Tail;     ///< the records behind it, with the Index that they had
        std::shared_ptr<NewNames> Names; ///< once one was asked for
    };

    void Reset();
    bool SetError(std::string Text);
    RecordPtr AddNew(std::size_t Position);
    void InsertAt(std::size_t Position, RecordPtr Record);
    void Renumber(std::size_t From);
    [[nodiscard]] bool Holds(const RecordPtr& Record) const;
    [[nodiscard]] std::size_t PositionBehind(const RecordPtr& Record) const;
    bool CheckWritable(const clsTXTObject& Record);
    bool SaveAs(std::int32_t FileHandle, std::vector<clsTXTObject*>& Dirty);
    bool WriteRecords(std::int32_t FileHandle, std::vector<clsTXTObject*>& Dirty);

    std::shared_ptr<clsLoadedText> m_text;
    std::vector<RecordPtr> m_byIndex;
    std::unique_ptr<Bulk> m_bulk;
    mutable std::vector<clsTXTObject*> m_byName;                    ///< empty until asked for
    mutable std::unordered_map<std::int32_t, clsTXTObject*> m_byId; ///< the same
    std::string m_lastError;
    std::string m_leftOut;
    std::int32_t m_version = 0;
    std::int32_t m_otype = 0;
    std::int32_t m_nextID = 0;
    bool m_dirty = false;
    bool m_parsed = false;
};

/// While it lives, every record that is created goes to one place, one behind the other, and at a
/// cost that does not depend on how many there are. Until then the records behind that place are
/// not in ByIndex, and only the first new name is looked for among those that are there.
class BulkInsert {
public:
    /// In front of `Before`, or at the end.
    BulkInsert(clsTxtParser& Parser, const RecordPtr& Before);
    BulkInsert(const BulkInsert&) = delete;
    BulkInsert& operator=(const BulkInsert&) = delete;
    ~BulkInsert();

private:
    clsTxtParser& m_parser;
};
