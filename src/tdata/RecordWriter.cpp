#include "tdata/RecordWriter.h"

#include "keshobjects/keshobjects.h"

#include <utility>

RecordWriter& RecordWriter::operator<<(std::string_view Text) {
    EndLines();
    Append(Text);
    return *this;
}

void RecordWriter::WriteRecord(const clsTXTObject& Record) {
    if (const auto written = Record.Values().Written()) {
        CopyLine(*written);
        return;
    }
    WriteValues(Record, Record.size());
    *this << LineEnd;
}

void RecordWriter::WriteJob(const clsTXTObject& Record) {
    WriteValues(Record, Record.size() - 1);
    *this << Record.ObjectName() << LineEnd;
}

bool RecordWriter::Flush() {
    EndLines();
    WriteNow();
    return m_good;
}

void RecordWriter::WriteValues(const clsTXTObject& Record, std::int32_t Count) {
    for (std::int32_t i = 0; i < Count; ++i)
        *this << Record.ValueText(i) << ";";
}

/// A whole record as a loaded text has it, and a line end. Those that follow each other there are
/// written in one piece.
void RecordWriter::CopyLine(std::string_view Record) {
    if (Follows(Record)) {
        m_lines = {m_lines.data(), m_lines.size() + LineEnd.size() + Record.size()};
        return;
    }
    EndLines();
    m_lines = Record;
}

/// A loaded text has bytes behind its end, so that looking there is allowed.
bool RecordWriter::Follows(std::string_view Record) const {
    const char* const end = m_lines.data() + m_lines.size();
    return !m_lines.empty() && Record.data() == end + LineEnd.size() &&
           std::string_view(end, LineEnd.size()) == LineEnd;
}

void RecordWriter::EndLines() {
    if (m_lines.empty())
        return;
    Append(std::exchange(m_lines, {}));
    Append(LineEnd);
}

void RecordWriter::Append(std::string_view Text) {
    if (m_text.size() + Text.size() >= BlockSize)
        WriteNow();
    if (Text.size() >= BlockSize)
        Write(Text);
    else
        m_text += Text;
}

void RecordWriter::WriteNow() {
    Write(m_text);
    m_text.clear();
}

/// What failed is remembered for the end.
void RecordWriter::Write(std::string_view Text) {
    m_good = m_good && Kesh_TXTWriteFile(m_file, Text) != 0;
}
