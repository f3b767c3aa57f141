#include "commands.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "services.h"
#include "tdata/CheckRun.h"

#include <algorithm>

namespace {

std::string placeText(std::int32_t index) {
    return index < 0 ? std::string() : std::to_string(index);
}

void printFinding(const Finding& finding) {
    print(finding.File + '\t' + placeText(finding.Record) + '\t' + oneLine(finding.ID) + '\t' +
          placeText(finding.Field) + '\t' +
          (finding.Level == Severity::Note ? "note: " : "error: ") + oneLine(finding.Text) + '\n');
}

void addPath(CheckRun& run, GameView& view, const std::string& path) {
    const std::string real = view.realPath(path);
    if (LornFD_FileExists(real) == 0)
        throw Failure("File " + path + " not found.");
    if (!run.Add(ShownPath(real), real))
        throw Failure(path + " is neither a T file nor a language file.");
}

} // namespace

ExitCode check(GameView& view, const Arguments& arguments) {
    if (arguments.all != arguments.paths.empty())
        throw Failure("Name either files or --all.", WrongUsage);
    const bool withGame = arguments.all || !view.dataRoot.empty();
    const bool warned = withGame && view.build();
    const Services services;
    ExitCode code = warned ? Findings : Done;
    const auto fail = [&code](const std::string& text) {
        complain(text);
        code = Failed;
    };
    CheckRun run;
    if (arguments.all)
        run.AddView();
    for (const std::string& path : arguments.paths) {
        try {
            addPath(run, view, path);
        } catch (const Failure& failure) {
            fail(failure.what());
        }
    }
    const auto report = [&code](const std::vector<Finding>& findings) {
        std::ranges::for_each(findings, printFinding);
        if (!findings.empty())
            code = std::max(code, Findings);
    };
    run.Run(withGame, arguments.language, report, fail);
    return code;
}
