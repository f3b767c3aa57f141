#include "sample/faults.h"

#include "keshobjects/keshobjects.h"
#include "lornfd/lornfd.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace sample {

namespace {

constexpr std::string_view View = "vfs://";
constexpr std::string_view Folder = "faulty\\";
constexpr int Whole = 1000; ///< in place of a field: the record as a whole

struct Fault {
    std::string_view file;
    int record;
    int field; ///< from the record's end if negative
    std::string_view value;
    int foundAt = Whole + 1; ///< the field that is at fault if it is another, or Whole
    bool note = false;
};

// One for each thing that can be wrong with a record, spread over records that have no other fault.
constexpr Fault faults[] = {
    {"TShips", 0, 5, "SG_SH_M9"},
    {"TShips", 1, 52, "OBJ_SHIP_KITE"},
    {"TShips", 2, 45, "20"},
    {"TShips", 3, 44, "6"},
    {"TShips", 4, -6, "7"},
    {"TShips", 5, 22, "77"},
    {"TShips", 6, 30, "4000"},
    {"TShips", 7, 19, "99", Whole},
    {"TShips", 8, 6, "99001"},
    {"TShips", 9, 6, "10005", 6, true},
    {"TShips", 11, -1, "SHIP_Yarrow"},
    {"TShips", 13, 31, "60"},
    {"TShips_48", 0, 5, "16"},
    {"TShips_48", 1, 52, "2020x"},
    {"TLaser", 0, 5, "SG_LASER_LAMP"},
    {"TLaser", 1, 9, "900"},
    {"TLaser_49", 2, 5, "32"},
    {"TMissiles", 3, 5, "sg_missile_light"},
    {"TFactories", 4, 5, "SG_DOCK_TRADE"},
    {"TFactories", 5, 13, "0"},
    {"TDocks_47", 0, 5, "-1"},
    {"TDocks_47", 1, 13, "none"},
    {"Wrecks", 1, 5, "SG_SH_M9"},
    {"TWareE", 1, -6, "-1"},
    {"Jobs", 0, 18, "SHIP_NOWHERE"},
    {"Jobs", 1, 13, "5000"},
    {"Jobs", 2, 14, "5000"},
    {"Jobs", 3, 6, "99003"},
    {"Jobs", 5, 0, "104"}, // as the one before
};

constexpr std::string_view wareLists =
    "2;\r\n2;WARE_LAMP_OIL;WARE_SUNBEAM;\r\n1;ware_lamp_oil;\r\n";
constexpr std::string_view jobWings = "1;100,9000;\r\n2;101;\r\n1;102;\r\n";
constexpr std::string_view suns = "48;1;\r\n0;0;0;0;0;0;0;SUN;0;1;0;0;0;0;0;0;0;0;SUN_LAST;\r\n0;0;"
                                  "0;0;0;0;0;SUN;0;1;0;0;0;0;0;0;0;0;SUN_LOST;\r\n";
constexpr std::string_view texts = R"(<?xml version="1.0" encoding="UTF-8"?>
<texts language="44">
 <page id="3100">
  <string id="90">Twice</string>
  <string id="90">Twice</string>
  <string id="91">Lost {3100:9999}</string>
  <string id="92">Round {:93}</string>
  <string id="93">and round {:92}</string>
  <string id="x">Nameless</string>
  <string id="94">Leads into the game's own texts {17:10001}</string>
 </page>
 <page id="3100"/>
 <page/>
</texts>
)";

struct OwnFile {
    std::string_view name;
    std::string_view content;
    std::vector<std::string_view> faults; ///< behind the file's name, as the list has them
};

const std::vector<OwnFile>& ownFiles() {
    static const std::vector<OwnFile> files = {
        {"WareLists.txt", wareLists, {"0\t\t1\terror", "1\t\t0\terror"}},
        {"JobWings.txt", jobWings, {"0\t1\t2\terror", "2\t1\t0\terror"}},
        {"TSuns.txt", suns, {"\t\t\tnote"}},
        {"0009-L044.xml",
         texts,
         {"\t3100:90\t\terror", "\t3100:91\t\terror", "\t3100:92\t\terror", "\t3100:93\t\terror",
          "\t3100:-1\t\terror", "\t3100\t\terror", "\t-1\t\terror"}},
    };
    return files;
}

/// A good file that faults are set into.
class Copy {
public:
    explicit Copy(const TFileText& good) : m_name(std::string(Folder) + good.name + ".txt") {
        const std::int32_t type = ObjectTypeFromFile(good.name);
        Kesh_TXTIgnoreRemarks(type == otype::Jobs ? 1 : 0);
        if (!m_parser.LoadFromHandle(Kesh_LoadFromMemory(good.content, good.name), type))
            throw std::logic_error(good.name + ": " + m_parser.GetLastError());
    }

    /// Gives the fault's line of the list.
    std::string set(const Fault& fault) {
        const RecordPtr record = m_parser.FindIndex(fault.record);
        const std::int32_t field = fault.field < 0 ? record->size() + fault.field : fault.field;
        record->SetValue(field, keshobjects::readValue(fault.value));
        const bool job = m_parser.otype() == otype::Jobs;
        std::string line = std::string(View) + m_name + '\t' + std::to_string(fault.record) + '\t' +
                           std::string(record->ValueText(job ? 0 : record->size() - 1)) + '\t';
        if (fault.foundAt != Whole)
            line += std::to_string(field);
        return line + (fault.note ? "\tnote\n" : "\terror\n");
    }

    [[nodiscard]] GameFile file() const {
        std::string content = std::to_string(m_parser.Version()) + ';';
        const bool jobs = m_parser.otype() == otype::Jobs;
        content += jobs ? "\r\n" : std::to_string(m_parser.ByIndex().size()) + ";\r\n";
        for (const RecordPtr& record : m_parser.ByIndex()) {
            content += record->GetObjectTData();
            if (jobs)
                content.pop_back(); // the name's, which ends with the line
            content += "\r\n";
        }
        return {m_name, content, LORNFD_PLAIN};
    }

private:
    std::string m_name;
    clsTxtParser m_parser;
};

} // namespace

FaultyFiles faultyFiles(const std::vector<TFileText>& good) {
    FaultyFiles made;
    for (const TFileText& text : good) {
        if (std::ranges::find(faults, text.name, &Fault::file) == std::end(faults))
            continue;
        Copy copy(text);
        for (const Fault& fault : faults)
            if (fault.file == text.name)
                made.list += copy.set(fault);
        made.files.push_back(copy.file());
    }
    for (const OwnFile& own : ownFiles()) {
        const std::string name = std::string(Folder).append(own.name);
        made.files.push_back({name, std::string(own.content), LORNFD_PLAIN});
        for (const std::string_view fault : own.faults)
            made.list.append(View).append(name).append("\t").append(fault).append("\n");
    }
    return made;
}

} // namespace sample
