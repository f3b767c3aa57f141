#include "commands.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "services.h"
#include "tdata/RecordExport.h"
#include "tdata/ShipExport.h"
#include "tdata/WareRows.h"
#include "tdata/mdlKeshConst.h"
#include "tfile.h"

namespace {

void exportOne(const clsTxtParser& file, std::int32_t index, const std::string& to) {
    if (!HasWareRows(file.otype()))
        throw tFileFailure(file.FileName, "Objects of this type are not exported one by one.");
    const RecordPtr record = file.FindIndex(index);
    if (!record)
        throw tFileFailure(file.FileName,
                           "There is no object with index " + std::to_string(index) + ".");
    OutputFile out(to, LORNFD_PLAIN);
    if (const std::string error = ExportRecord(out.handle(), *record); !error.empty())
        throw tFileFailure(to, error);
    out.commit();
}

ExitCode exportShips(GameView& view, const Arguments& arguments, const clsTxtParser& ships,
                     const std::string& to) {
    if (ships.otype() != otype::Ships)
        throw tFileFailure(ships.FileName, "This is no TShips file, and no --index is given.");
    const Services services;
    const bool withGame = !view.dataRoot.empty() || !view.mods.empty();
    const ExitCode code = withGame ? loadTexts(view, *DescServer, arguments.language) : Done;
    ShipFields fields;
    fields.LoadFiles();
    fields.SetVersion(ships.Version());

    OutputFile out(to, LORNFD_PLAIN);
    std::string error;
    if (!ExportShips(out.handle(), ships, fields, arguments.form, error))
        throw tFileFailure(to, error);
    out.commit();
    return code;
}

} // namespace

ExitCode exportRecords(GameView& view, const Arguments& arguments) {
    const std::string from = view.realPath(arguments.paths[0]);
    const std::string to = view.realPath(arguments.paths[1]);
    if (SamePlace(from, to))
        throw tFileFailure(to, "The file would be lost: an export cannot be loaded again.");
    clsTxtParser file;
    loadTFile(file, from);
    file.FileName = from;
    if (!arguments.index)
        return exportShips(view, arguments, file, to);
    exportOne(file, *arguments.index, to);
    return Done;
}
