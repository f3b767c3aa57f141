#include "tdata/mdlKeshWare.h"

#include "tdata/FieldTable.h"
#include "textres/ResourceText.h"

namespace {

using valuetype::String;

constexpr Field WareRows[] = {
    {5, "Index"},
    {7, "", String},
};

constexpr std::string_view DefaultWareClassRows[WareClassCount] = {
    "tiny", "small", "medium", "large", "extra large", "stations"};

constexpr std::int32_t WareClassPage = 1999;
constexpr std::int32_t FirstWareClassText = 10;

} // namespace

const FieldTable WareFieldNames{Frame::Full, WareRows};
const TextTable DefaultWareClassNames{0, DefaultWareClassRows};

std::array<std::string, WareClassCount> GetWareClassNames() {
    std::array<std::string, WareClassCount> names;
    for (std::int32_t i = 0; i < WareClassCount; ++i) {
        std::string& name = names[static_cast<std::size_t>(i)];
        name = ResourceText(WareClassPage, FirstWareClassText + i).value_or("");
        if (name.empty())
            name = DefaultWareClassNames.At(i);
    }
    return names;
}
