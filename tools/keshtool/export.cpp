#include "commands.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "services.h"
#include "tdata/ShipExport.h"
#include "tdata/mdlKeshConst.h"
#include "tfile.h"

ExitCode exportShips(GameView& view, const Arguments& arguments) {
    const std::string from = view.realPath(arguments.paths[0]);
    const std::string to = view.realPath(arguments.paths[1]);
    if (ObjectTypeFromFile(from) != otype::Ships)
        throw tFileFailure(from, "This is no TShips file.");
    if (SamePlace(from, to))
        throw tFileFailure(to, "The ships would be lost: an export cannot be loaded again.");
    clsTxtParser ships;
    loadTFile(ships, from);
    ships.FileName = from;

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
