#include "tdata/RecordNames.h"

#include "tdata/JobFields.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlRecordNumbers.h"
#include "textres/ResourceText.h"

std::string RecordName(const clsTXTObject& Record) {
    const auto id = IntegerAt(Record, CommonNameField);
    std::string name = id ? ResourceText(ObjectNamePage, *id).value_or("") : "";
    return name.empty() ? std::string(Record.ObjectName()) : name;
}

std::string RecordID(const clsTXTObject& Record) {
    return Record.otype == otype::Jobs ? SpellingAt(Record, jobfield::Number)
                                       : std::string(Record.ObjectName());
}
