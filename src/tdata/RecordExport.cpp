#include "tdata/RecordExport.h"

#include "core/mdlCommon.h"
#include "keshobjects/keshobjects.h"
#include "lornfd/lornfd.h"
#include "tdata/FieldLookup.h"

std::string ExportRecord(std::int32_t FileHandle, const clsTXTObject& Record) {
    std::string text;
    for (std::int32_t i = 0; i < Record.size(); ++i)
        text.append(std::to_string(i))
            .append(": ")
            .append(FieldName(Record, i))
            .append(": ")
            .append(Record.ValueText(i))
            .append("\r\n");
    if (Kesh_TXTWriteFile(FileHandle, text) != 0 && LornFD_SetEndOfFile(FileHandle) != 0)
        return {};
    return LornFDErrorText();
}
