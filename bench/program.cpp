#include "bench/program.h"

#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "tdata/clsArchive.h"
#include "tests/support/refusinginterface.h"
#include "textres/clsDescServer.h"

namespace bench {

Program::Program(const Options& options) {
    qputenv("KESH_CONFIG_DIR", QByteArray::fromStdString(options.directory.string()));
    qputenv("KESH_STATE_DIR", QByteArray::fromStdString(options.directory.string()));
    Settings = std::make_unique<clsSettings>();
    DescServer = std::make_unique<clsDescServer>();
    Archive = std::make_unique<clsArchive>();
    m_former = SetUserInterface(std::make_unique<support::RefusingInterface>());
}

Program::~Program() {
    SetUserInterface(std::move(m_former));
    Archive.reset();
    DescServer.reset();
    Settings.reset();
}

} // namespace bench
