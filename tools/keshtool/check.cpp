#include "commands.h"
#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/value.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/DataCheck.h"
#include "tdata/clsArchive.h"
#include "textres/clsDescServer.h"
#include "tfile.h"
#include "viewfiles.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace {

struct CheckedFile {
    std::string shown;
    std::string real;
};

/// The language in a name like "0001-L044.xml"; none for other names.
std::optional<std::int32_t> languageOf(const std::string& path) {
    const std::string extension = lornfd::foldCase(ExtensionOf(path));
    const std::string name = lornfd::foldCase(BaseName(path, true));
    const std::size_t mark = name.rfind("-l");
    if ((extension != "xml" && extension != "pck") || mark == name.npos)
        return {};
    return keshobjects::readInteger(std::string_view(name).substr(mark + 2));
}

std::string place(std::int32_t index) {
    return index < 0 ? std::string() : std::to_string(index);
}

void printFinding(const Finding& finding) {
    print(finding.File + '\t' + place(finding.Record) + '\t' + oneLine(finding.ID) + '\t' +
          place(finding.Field) + '\t' + (finding.Level == Severity::Note ? "note: " : "error: ") +
          oneLine(finding.Text) + '\n');
}

/// What T files refer to and the texts, for the time of the check.
struct Services {
    Services() {
        Archive = std::make_unique<clsArchive>();
        DescServer = std::make_unique<clsDescServer>();
    }
    ~Services() {
        Archive.reset();
        DescServer.reset();
    }
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
};

/// Files of both kinds, each language's with its own texts in the store.
class Check {
public:
    Check(std::int32_t language, ExitCode before) : m_language(language), m_code(before) {}

    /// False for a file of neither kind.
    bool add(const CheckedFile& file) {
        if (const auto language = languageOf(file.real))
            m_languageFiles[*language].push_back(file);
        else if (isTFile(file.real))
            m_tFiles.push_back(file);
        else
            return false;
        return true;
    }
    void addPath(GameView& view, const std::string& path) {
        guarded([&] {
            const std::string real = view.realPath(path);
            if (LornFD_FileExists(real) == 0)
                throw Failure("File " + path + " not found.");
            if (!add({ShownPath(real), real}))
                throw Failure(path + " is neither a T file nor a language file.");
        });
    }
    void addAll() {
        forEachViewFile([this](const ViewFile& file) { add({"vfs://" + file.name, file.real}); });
    }

    ExitCode run() {
        for (const auto& [language, files] : m_languageFiles) {
            DescServer->LoadResources(language);
            for (const CheckedFile& file : files)
                guarded([&] { checkTexts(file); });
        }
        DescServer->LoadResources(m_language);
        std::int32_t pages = 0;
        Kesh_EnumObjects(KESH_STORE, nullptr, 0, pages);
        CheckReferences references(pages > 0);
        for (const CheckedFile& file : m_tFiles)
            guarded([&] { checkRecords(file, references); });
        return m_code;
    }

private:
    template <class Work>
    void guarded(const Work& work) {
        try {
            work();
        } catch (const Failure& failure) {
            complain(failure.what());
            m_code = Failed;
        }
    }

    void checkTexts(const CheckedFile& file) {
        const std::int32_t texts = DescServer->OpenFile(file.real);
        if (texts == 0)
            throw Failure(DescServer->GetLastError());
        report(CheckLanguageFile(texts, file.shown));
        Kesh_DeleteHandle(0, texts);
    }

    void checkRecords(const CheckedFile& file, CheckReferences& references) {
        clsTxtParser parser;
        loadTFile(parser, file.real);
        report(CheckTFile(parser, file.shown, references));
    }

    void report(const std::vector<Finding>& findings) {
        std::ranges::for_each(findings, printFinding);
        if (!findings.empty())
            m_code = std::max(m_code, Findings);
    }

    std::int32_t m_language;
    std::map<std::int32_t, std::vector<CheckedFile>> m_languageFiles;
    std::vector<CheckedFile> m_tFiles;
    ExitCode m_code;
};

} // namespace

ExitCode check(GameView& view, const Arguments& arguments) {
    if (arguments.all != arguments.paths.empty())
        throw Failure("Name either files or --all.", WrongUsage);
    const bool warned = (arguments.all || !view.dataRoot.empty()) && view.build();
    const Services services;
    Check check(arguments.language, warned ? Findings : Done);
    if (arguments.all)
        check.addAll();
    for (const std::string& path : arguments.paths)
        check.addPath(view, path);
    return check.run();
}
