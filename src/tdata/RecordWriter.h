// Writes records to a file handle in large pieces.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>
#include <string_view>

class RecordWriter {
public:
    static constexpr std::string_view LineEnd = "\r\n";

    explicit RecordWriter(std::int32_t File) : m_file(File) { m_text.reserve(BlockSize); }

    RecordWriter& operator<<(std::string_view Text);
    void WriteRecord(const clsTXTObject& Record);
    void WriteJob(const clsTXTObject& Record); ///< its name is the raw rest of its line
    /// Writes what is left; false if anything could not be written.
    [[nodiscard]] bool Flush();

private:
    static constexpr std::size_t BlockSize = std::size_t{1} << 18;

    void WriteValues(const clsTXTObject& Record, std::int32_t Count);
    void CopyLine(std::string_view Record);
    [[nodiscard]] bool Follows(std::string_view Record) const;
    void EndLines();
    void Append(std::string_view Text);
    void WriteNow();
    void Write(std::string_view Text);

    std::int32_t m_file;
    std::string_view m_lines; ///< whole records of a loaded text, without the last line end
    std::string m_text;
    bool m_good = true;
};
