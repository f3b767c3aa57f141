#include "commands.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/value.h"
#include "services.h"

namespace {

std::int32_t numberOf(const std::string& text) {
    const auto number = keshobjects::readInteger(text);
    if (!number)
        throw Failure('"' + text + "\" is no number of a page or string.", WrongUsage);
    return *number;
}

std::string rawText(std::int32_t string) {
    std::string text;
    Kesh_TREGetRawString(string, text);
    return text;
}

std::string translatedText(std::int32_t string) {
    std::string text;
    Kesh_TRETranslateString(string, rawText(string), text);
    return text;
}

/// The text in one line without tabs.
std::string escapedLine(std::string_view text) {
    std::string line;
    for (const char c : text)
        if (c == '\n')
            line += "\\n";
        else if (c == '\t')
            line += "\\t";
        else if (c == '\r')
            line += "\\r";
        else
            line += c;
    return line;
}

void printLine(const std::string& page, const std::string& id, std::string_view text) {
    print(page + '\t' + id + '\t' + escapedLine(text) + '\n');
}

void printPage(std::int32_t page) {
    std::int32_t pageId = 0;
    std::int32_t unused = 0;
    std::string title;
    std::string description;
    Kesh_TREGetPageInfo(page, pageId, title, description, unused);
    const std::string number = std::to_string(pageId);
    printLine(number, "", title);
    for (const std::int32_t string : EnumChildren(page)) {
        std::int32_t id = 0;
        std::string text;
        Kesh_TREGetStringInfo(string, id, unused, text);
        printLine(number, std::to_string(id), rawText(string));
    }
}

} // namespace

ExitCode text(GameView& view, const Arguments& arguments) {
    const std::int32_t page = numberOf(arguments.paths[0]);
    const std::int32_t id = numberOf(arguments.paths[1]);
    clsDescServer server;
    const ExitCode code = loadTexts(view, server, arguments.language);
    if (const std::int32_t string = server.GetString(page, id))
        print((arguments.raw ? rawText(string) : translatedText(string)) + '\n');
    else
        print(server.GetStringDirect(page, id) + '\n');
    return code;
}

ExitCode texts(GameView& view, const Arguments& arguments) {
    clsDescServer server;
    const ExitCode code = loadTexts(view, server, arguments.language);
    for (const std::int32_t page : EnumChildren(KESH_STORE))
        printPage(page);
    return code;
}
