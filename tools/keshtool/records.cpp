#include "commands.h"
#include "json.h"
#include "lornfd/packing.h"
#include "tdata/FieldLookup.h"
#include "tfile.h"

namespace {

/// ,"fields":[...] with the name of each.
std::string fieldsJson(const clsTXTObject& record) {
    std::string text = ",\"fields\":[";
    const auto names = FieldNames(record);
    for (std::int32_t i = 0; i < record.size(); ++i)
        text.append(i > 0 ? "," : "")
            .append("{\"index\":" + std::to_string(i))
            .append(",\"name\":" + jsonText(names[static_cast<std::size_t>(i)]))
            .append(",\"value\":" + jsonValue(record, i) + '}');
    return text + ']';
}

void dumpJson(const clsTxtParser& parser, bool withNames) {
    print("{\"type\":" + std::to_string(parser.otype()) +
          ",\"version\":" + std::to_string(parser.Version()) + ",\"records\":[");
    std::string text;
    for (const RecordPtr& record : parser.ByIndex()) {
        text += record->Index > 0 ? ",{\"index\":" : "{\"index\":";
        text += std::to_string(record->Index) + ",\"id\":" + jsonText(record->ObjectName()) +
                ",\"values\":[";
        for (std::int32_t i = 0; i < record->size(); ++i)
            text.append(i > 0 ? "," : "").append(jsonValue(*record, i));
        text += ']';
        if (withNames)
            text += fieldsJson(*record);
        print(text + '}');
        text.clear();
    }
    print("]}\n");
}

void dumpText(const clsTxtParser& parser) {
    for (const RecordPtr& record : parser.ByIndex())
        print(std::to_string(record->Index) + '\t' + std::string(record->ObjectName()) + '\t' +
              record->GetObjectTData() + '\n');
}

void dumpNames(const clsTxtParser& parser) {
    for (const RecordPtr& record : parser.ByIndex()) {
        const auto names = FieldNames(*record);
        for (std::int32_t i = 0; i < record->size(); ++i)
            print(std::to_string(i) + '\t' + names[static_cast<std::size_t>(i)] + '\t' +
                  std::string(record->ValueText(i)) + '\n');
    }
}

} // namespace

ExitCode dump(GameView& view, const Arguments& arguments) {
    clsTxtParser parser;
    loadTFile(parser, view.realPath(arguments.paths[0]));
    if (arguments.json)
        dumpJson(parser, arguments.names);
    else if (arguments.names)
        dumpNames(parser);
    else
        dumpText(parser);
    return Done;
}

ExitCode convert(GameView& view, const Arguments& arguments) {
    const std::string from = view.realPath(arguments.paths[0]);
    const std::string to = view.realPath(arguments.paths[1]);
    clsTxtParser parser;
    loadTFile(parser, from);
    const std::string leftOut = parser.LeftOut();
    OutputFile out(to, arguments.fileType.value_or(lornfd::formByName(to)));
    if (!parser.Save(out.handle())) {
        if (parser.GetLastError().empty())
            throw tFileFailure(from, "There is no record in it, so nothing was saved.");
        throw tFileFailure(to, parser.GetLastError());
    }
    out.commit();
    if (leftOut.empty())
        return Done;
    complain(leftOut);
    return Findings;
}
