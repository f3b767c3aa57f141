// The loader of one T file, for mdlTxtLoaders and OwnLayouts alone.
#pragma once

#include "tdata/mdlTxtLoaders.h"

#include <memory>
#include <string>
#include <vector>

namespace tdata {

class TxtLoader {
public:
    TxtLoader(std::shared_ptr<clsLoadedText> text, std::int32_t type)
        : m_text(std::move(text)), m_handle(m_text->Handle()), m_type(type) {}

    LoadResult Run();

private:
    // Records come in one block: hundreds of thousands of single allocations would cost more than
    // the parsing.
    using RecordBlock = std::vector<clsTXTObject, keshobjects::BigAllocator<clsTXTObject>>;
    using Routine = bool (TxtLoader::*)();

    bool LoadRecords();
    bool LoadJobs();
    bool LoadJobWings();
    bool LoadWareLists();
    bool LoadIconData();
    bool ReadFixed(std::int32_t size);
    bool ReadShip();
    void ReadWing();
    [[nodiscard]] std::int32_t ReadSectionHeader(std::vector<KeshPlace>& headers);
    void ReadIcon();
    [[nodiscard]] std::int32_t FixedSize(); ///< 0 with the error set if such files are refused
    std::int32_t Refuse(std::string text) { return Fail(std::move(text)) ? 1 : 0; }

    [[nodiscard]] bool IsEOF() const { return Kesh_TXTGetTokenType(m_handle) == KESH_TOKEN_END; }
    [[nodiscard]] std::int32_t ReadWhole() const;
    [[nodiscard]] KeshPlace ReadPlace();
    [[nodiscard]] KeshPlace ReadWholePlace() const;
    [[nodiscard]] KeshPlace ReadRawPlace() const;
    [[nodiscard]] KeshPlace ReadNumber(bool& more) const;
    void SkipBlankRestOfLine() const;
    void Advance() const;
    void ReadPlaces(std::int64_t count);
    [[nodiscard]] std::int32_t CountAt(std::int64_t indexInRecord) const;
    /// The start of a value, for messages.
    [[nodiscard]] std::string Shown(KeshPlace place) const {
        return std::string(keshobjects::valueAt(m_text->Text(), place).substr(0, 40));
    }

    void Reserve(std::int64_t records, std::int64_t valuesEach);
    void BeginRecord();
    void AddRecord(ValueForm form);
    [[nodiscard]] clsValueArray ValuesRead(ValueForm form) const;
    bool Fail(std::string text);
    /// Ends the loading, with that text as its error.
    [[noreturn]] static void Throw(std::uint32_t number, const std::string& text);
    [[nodiscard]] std::string Reason(const std::exception& failure) const;
    void NoteWhatFollows();

    std::shared_ptr<clsLoadedText> m_text;
    std::int32_t m_handle;
    std::int32_t m_type;
    std::int32_t m_nextID = 0;
    std::shared_ptr<RecordBlock> m_block = std::make_shared<RecordBlock>();
    std::size_t m_first = 0; ///< in Places, of the record being read
    bool m_written = true;   ///< it stands in written form so far
    LoadResult m_result;
};

} // namespace tdata
