// keshtool: the game's files from the command line. Exit codes: 0 done, 1 done with findings, 2
// wrong usage, 3 failed. Data goes to standard output, messages to standard error.

#include "commands.h"
#include "core/mdlCommon.h"
#include "lornfd/lornfd.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <functional>
#include <map>
#include <new>

namespace {

/// Adds one option to a command.
using Add = void (*)(CLI::App& command, Arguments& arguments);

/// An option that takes one of some words.
template <typename Value>
void addChoice(CLI::App& command, const char* name, const std::map<std::string, Value>& words,
               const std::function<void(Value)>& take, const char* help, const char* shown) {
    const auto takeWord = [&words, take](const std::string& word) { take(words.at(word)); };
    command.add_option_function<std::string>(name, takeWord, help)
        ->check(CLI::IsMember(&words))
        ->option_text(shown);
}

void addType(CLI::App& command, Arguments& arguments) {
    static const std::map<std::string, std::int32_t> forms{
        {"plain", LORNFD_PLAIN}, {"gzip", LORNFD_GZIP}, {"zstd", LORNFD_ZSTD}};
    addChoice<std::int32_t>(
        command, "--type", forms, [&](std::int32_t form) { arguments.fileType = form; },
        "The form that is stored: plain, gzip or zstd", "plain|gzip|zstd");
}

void addFormat(CLI::App& command, Arguments& arguments) {
    static const std::map<std::string, ExportForm> forms{{"table", ExportForm::Table},
                                                         {"records", ExportForm::Records}};
    addChoice<ExportForm>(
        command, "--format", forms, [&](ExportForm form) { arguments.form = form; },
        "A line for each ship, or for each of its values: table, if not given, or records",
        "table|records");
}

void addLanguage(CLI::App& command, Arguments& arguments) {
    command
        .add_option("--lang", arguments.language,
                    "Number of the language of texts, 44 if not given")
        ->option_text("N");
}

void addIndex(CLI::App& command, Arguments& arguments) {
    command
        .add_option("--index", arguments.index,
                    "Index of the one ware, weapon, station or other body to write")
        ->option_text("N");
}

void addJson(CLI::App& command, Arguments& arguments) {
    command.add_flag("--json", arguments.json, "As JSON");
}

void addCreate(CLI::App& command, Arguments& arguments) {
    command.add_flag("--create", arguments.create, "Make the catalog if there is none");
}

void addNames(CLI::App& command, Arguments& arguments) {
    command.add_flag("--names", arguments.names, "With the name of each field");
}

void addAll(CLI::App& command, Arguments& arguments) {
    command.add_flag("--all", arguments.all, "All files of the merged view");
}

void addRaw(CLI::App& command, Arguments& arguments) {
    command.add_flag("--raw", arguments.raw, "As it stands in its file");
}

void addPath(CLI::App& command, const char* name, Arguments& arguments, bool required = true) {
    const auto take = [&](const std::string& text) { arguments.paths.push_back(text); };
    command.add_option_function<std::string>(name, take)->required(required);
}

void addMask(CLI::App& command, Arguments& arguments) {
    addPath(command, "MASK", arguments, false);
}

void addAnyPaths(CLI::App& command, Arguments& arguments) {
    command.add_option("PATH", arguments.paths);
}

void addSomePaths(CLI::App& command, Arguments& arguments) {
    command.add_option("PATH", arguments.paths)->required();
}

struct Row {
    const char* name = nullptr;
    Command command = nullptr;
    std::vector<const char*> paths; ///< those that must be given, as the help names them
    std::vector<Add> options;
    const char* help = nullptr;
};

const Row Commands[] = {
    {"dump",
     dump,
     {"PATH"},
     {addJson, addNames},
     "Print the records of a T file: index, ID and values, or a line for each field"},
    {"convert",
     convert,
     {"IN", "OUT"},
     {addType},
     "Load a T file and save it; without --type OUT is zstd if it ends in .pck, else plain"},
    {"export",
     exportRecords,
     {"PATH", "OUT"},
     {addLanguage, addIndex, addFormat},
     "Write all ships of a TShips file as a table for spreadsheets, or value by value; with "
     "--index one object of another T file"},
    {"cat", cat, {"PATH"}, {}, "Print a file's unpacked bytes"},
    {"ls",
     ls,
     {},
     {addMask},
     "List the merged view, or what a mask matches: name, tab, real place"},
    {"pack",
     pack,
     {"DIR", "CATALOG"},
     {addType},
     "Put all files below a directory into a catalog, as they are or in the form of --type"},
    {"unpack",
     unpack,
     {"CATALOG", "DIR"},
     {},
     "Write all entries of a catalog, unpacked, below a directory"},
    {"put",
     put,
     {"FILE", "PATH"},
     {addCreate, addType},
     "Put one file into a catalog or onto the disk"},
    {"rm", rm, {"ENTRY"}, {}, "Take an entry (CATALOG::ENTRY) out of its catalog"},
    {"verify",
     verify,
     {},
     {addSomePaths},
     "Read everything in catalogs or files and print a line for each finding"},
    {"text",
     text,
     {"PAGE", "ID"},
     {addRaw, addLanguage},
     "Print a text of the game, as it is shown"},
    {"texts",
     texts,
     {},
     {addLanguage},
     "List all texts of a language: page, tab, ID, tab, text; a page's title without an ID"},
    {"check",
     check,
     {},
     {addAnyPaths, addAll, addLanguage},
     "Print what is wrong with the data in T files and language files, a line for each finding: "
     "file, index, ID, field, text"},
};

void addCommand(CLI::App& app, const Row& row, Arguments& arguments) {
    CLI::App* command = app.add_subcommand(row.name, row.help)->fallthrough();
    for (const char* path : row.paths)
        addPath(*command, path, arguments);
    for (const Add add : row.options)
        add(*command, arguments);
}

ExitCode execute(const Row& row, GameView& view, const Arguments& arguments) {
    try {
        return row.command(view, arguments);
    } catch (const std::bad_alloc&) {
        std::string text = "Not enough memory for";
        for (const std::string& path : arguments.paths)
            text += ' ' + path;
        throw Failure(text + '.');
    }
}

ExitCode run(int argc, char** argv) {
    CLI::App app(
        "Reads, changes and checks the game's files.\nA PATH is a file, CATALOG::ENTRY, or "
        "vfs://NAME in the merged view.",
        "keshtool");
    GameView view;
    Arguments arguments;
    app.add_option("--data", view.dataRoot, "The game's directory, below which vfs:// looks")
        ->option_text("DIR");
    app.add_option("--mod", view.mods, "A catalog laid over the view; may be given more than once")
        ->allow_extra_args(false)
        ->option_text("CATALOG");
    app.set_version_flag("--version", ProgramID());
    app.require_subcommand(1);
    for (const Row& row : Commands)
        addCommand(app, row, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Done : WrongUsage;
    }
    for (const Row& row : Commands)
        if (app.got_subcommand(row.name))
            return execute(row, view, arguments);
    return WrongUsage;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const ExitCode code = run(argc, argv);
        if (std::fflush(stdout) != 0)
            throw Failure("Standard output could not be written.");
        return code;
    } catch (const Failure& failure) {
        complain(failure.what());
        return failure.code;
    } catch (const std::exception& error) {
        complain(error.what());
        return Failed;
    }
}
