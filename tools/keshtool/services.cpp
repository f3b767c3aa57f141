#include "services.h"

#include "tdata/clsArchive.h"

Services::Services() {
    Archive = std::make_unique<clsArchive>();
    DescServer = std::make_unique<clsDescServer>();
}

Services::~Services() {
    Archive.reset();
    DescServer.reset();
}

ExitCode loadTexts(GameView& view, clsDescServer& server, std::int32_t language) {
    const bool warned = view.build();
    if (server.LoadResources(language))
        return warned ? Findings : Done;
    complain(server.GetLastError());
    return Findings;
}
