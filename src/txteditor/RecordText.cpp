#include "txteditor/RecordText.h"

#include "keshobjects/keshobjects.h"
#include "tdata/mdlKeshConst.h"

#include <algorithm>

namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string lineOf(const clsTXTObject& record) {
    std::string line = record.GetObjectTData();
    if (record.otype == otype::Jobs && !line.empty())
        line.pop_back(); // its last value is the raw rest of the line
    return line;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.find_first_not_of(" \t") != line.npos)
            lines.push_back(line);
    }
    return lines;
}

} // namespace

std::string TextOfRecords(const std::vector<RecordPtr>& Records) {
    std::string text;
    for (const RecordPtr& record : Records)
        text.append(lineOf(*record)).append(lineEnd);
    return text;
}

ReadRecords RecordsOfText(std::string_view Text, const clsTxtParser& File) {
    const std::vector<std::string_view> lines = linesOf(Text);
    const bool jobs = File.otype() == otype::Jobs;
    std::string file = std::to_string(File.Version()) + ";";
    if (!jobs)
        file += std::to_string(lines.size()) + ";";
    file += lineEnd;
    for (const std::string_view line : lines)
        file.append(line).append(lineEnd);

    Kesh_TXTIgnoreRemarks(jobs ? 1 : 0);
    clsTxtParser parser;
    if (!parser.LoadFromHandle(Kesh_LoadFromMemory(file, "clipboard"), File.otype()))
        return {{}, parser.GetLastError()};
    if (!parser.LeftOut().empty() || parser.ByIndex().size() != lines.size())
        return {{}, parser.LeftOut()};
    return {parser.ByIndex(), {}};
}
