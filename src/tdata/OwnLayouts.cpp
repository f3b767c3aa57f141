// Files that do not have the common layout: jobs, job wings, ware lists, icons.
#include "tdata/TxtLoader.h"
#include "tdata/mdlKeshJobs.h"

#include <algorithm>

namespace tdata {

bool TxtLoader::LoadJobs() {
    m_result.version = ReadWhole();
    const auto size = JobSize(m_result.version);
    if (!size)
        return Fail("Unsupported version: " + std::to_string(m_result.version));
    SkipBlankRestOfLine();
    while (!IsEOF()) {
        BeginRecord();
        ReadPlaces(*size - 1);
        m_text->Places.push_back(ReadRawPlace());
        AddRecord(ValueForm::LastRaw);
    }
    return true;
}

// Behind the version the line goes on as a raw token, which is no record even in a file of none.
void TxtLoader::SkipBlankRestOfLine() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetRawPlace(m_handle, place) == 0)
        return;
    const auto rest = keshobjects::rawAt(m_text->Text(), place);
    if (std::all_of(rest.begin(), rest.end(), keshobjects::isBlank))
        Advance();
}

bool TxtLoader::LoadJobWings() {
    while (!IsEOF())
        ReadWing();
    return true;
}

void TxtLoader::ReadWing() {
    BeginRecord();
    m_written = false; // lists are written with ";" throughout
    m_text->Places.push_back(ReadWholePlace());
    for (bool more = true; more;)
        m_text->Places.push_back(ReadNumber(more));
    AddRecord(ValueForm::List);
}

bool TxtLoader::LoadWareLists() {
    const std::int32_t count = ReadWhole();
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t wares = ReadWhole();
        BeginRecord();
        ReadPlaces(wares);
        AddRecord(ValueForm::AllText);
    }
    return true;
}

// The first record holds the headers of all sections; in the file each stands in front of its
// icons.
bool TxtLoader::LoadIconData() {
    if (IsEOF())
        return Fail("File is empty");
    BeginRecord();
    AddRecord(ValueForm::Sections); // without values until all headers are read
    const RecordPtr table = m_result.records.back();
    std::vector<KeshPlace> headers;
    do {
        const std::int32_t icons = ReadSectionHeader(headers);
        for (std::int32_t i = 0; i < icons; ++i)
            ReadIcon();
    } while (!IsEOF());
    BeginRecord();
    m_written = false; // the icons stand between the headers
    m_text->Places.insert(m_text->Places.end(), headers.begin(), headers.end());
    table->LoadValues(ValuesRead(ValueForm::Sections));
    return true;
}

// Gives the count of icons that follow, which stands last.
std::int32_t TxtLoader::ReadSectionHeader(std::vector<KeshPlace>& headers) {
    for (int texts = 0; texts < 2; ++texts)
        headers.push_back(ReadPlace());
    for (int numbers = 0; numbers < 3; ++numbers)
        headers.push_back(ReadWholePlace());
    return *keshobjects::integerAt(m_text->Text(), headers.back());
}

void TxtLoader::ReadIcon() {
    const KeshPlace name = ReadPlace();
    static_cast<void>(ReadPlace()); // the game's own number of the entry; nothing reads it
    BeginRecord();
    m_written = false; // the name stands in front of its numbers
    for (int i = 0; i < 4; ++i)
        m_text->Places.push_back(ReadWholePlace());
    m_text->Places.push_back(name);
    AddRecord(ValueForm::LastText);
}

} // namespace tdata
