// An append-only text file with a use count.
#pragma once

#include <QFile>

#include <cstdint>
#include <string_view>

class TraceLog {
public:
    /// Opens for appending if it is not open, and counts the use; 1, or 0 if it could not be
    /// opened.
    std::int32_t Open(const QString& Path);
    /// Takes one use back and closes with the last; gives the count that is left.
    std::int32_t Close();
    void ForceClose();
    /// Closes, makes the file writable and opens it again with the former use count; false if it is
    /// not open then.
    bool Reopen(const QString& Path);
    /// A line "date time - Text"; false if no file is open or the disk refused it.
    bool Write(std::string_view Text);

private:
    QFile m_file;
    std::int32_t m_uses = 0;
};
