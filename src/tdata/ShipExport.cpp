#include "tdata/ShipExport.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "keshobjects/keshobjects.h"
#include "lornfd/lornfd.h"
#include "tdata/FieldLookup.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlRecordNumbers.h"

namespace {

constexpr std::string_view LineEnd = "\r\n";

struct Row {
    const ShipFields& Fields;
    const clsTXTObject& Ship;
    std::int32_t Index;
};

struct Column {
    std::string_view Name;
    std::string (*Cell)(const Row&);
};

template <std::int32_t Index>
std::string Stored(const Row& row) {
    return SpellingAt(row.Ship, Index);
}

/// The number of a speed, else the value that is none.
std::string SpeedCell(const std::optional<float>& speed, const Row& row, std::int32_t index) {
    return speed ? FixedText(*speed, 2).value_or("") : SpellingAt(row.Ship, index);
}

std::string LeastSpeed(const Row& row) {
    return SpeedCell(ShipSpeed(row.Ship), row, shipfield::Speed);
}

std::string MostSpeed(const Row& row) {
    return SpeedCell(TunedShipSpeed(row.Ship), row,
                     ShipSpeed(row.Ship) ? shipfield::EngineTuning : shipfield::Speed);
}

std::string Acceleration(const Row& row) {
    std::string text;
    return row.Fields.Translate(row.Ship, shipfield::Acceleration, text, true)
               ? text
               : SpellingAt(row.Ship, shipfield::Acceleration);
}

std::string ShieldEnergy(const Row& row) {
    const RecordPtr shield = row.Fields.Shield(row.Ship);
    return shield ? SpellingAt(*shield, 8) : "N/A";
}

constexpr Column Columns[] = {
    {"Index", [](const Row& row) { return std::to_string(row.Index); }},
    {"Name", [](const Row& row) { return row.Fields.DisplayName(row.Ship); }},
    {"Race", [](const Row& row) { return row.Fields.Race(row.Ship); }},
    {"Class", [](const Row& row) { return row.Fields.Class(row.Ship); }},
    {"Speed - Min [m/s]", LeastSpeed},
    {"Speed - Max [m/s]", MostSpeed},
    {"Tunning - Engine", Stored<shipfield::EngineTuning>},
    {"Tunning - Rudder", Stored<shipfield::RudderTuning>},
    {"Acceleration [m/s]", Acceleration},
    {"Reactor", Stored<shipfield::Reactor>},
    {"Weapons - Energy", Stored<shipfield::Energy>},
    {"Weapons - Recharge rate", Stored<shipfield::Recharge>},
    {"Shield - Energy [KJ]", ShieldEnergy},
    {"Shield - Count", Stored<shipfield::ShieldCount>},
    {"Cargo", Stored<shipfield::CargoMax>},
    {"Hull strength", Stored<shipfield::Hull>},
};

/// The text in one line and one cell.
std::string OneCell(std::string text) {
    ReplaceAll(text, LineEnd, " ");
    for (const std::string_view blank : {"\r", "\n", "\t"})
        ReplaceAll(text, blank, " ");
    ReplaceAll(text, ";", ",");
    return text;
}

/// False once a write has failed, as all that follow.
class Output {
public:
    explicit Output(std::int32_t file) : m_file(file) {}

    void Text(std::string_view text) { m_good = m_good && Kesh_TXTWriteFile(m_file, text) != 0; }
    void Cell(std::string text) {
        m_good = m_good && Kesh_TXTWriteValue(m_file, OneCell(std::move(text))) != 0;
    }
    [[nodiscard]] bool Good() const noexcept { return m_good; }

private:
    std::int32_t m_file;
    bool m_good = true;
};

void WriteHeader(Output& out, const std::string& fileName) {
    out.Text("TShips file " + NameOfFile(fileName) + " - generated with " + ProgramTitle() + " " +
             ProgramVersion());
    out.Text(LineEnd);
    for (const Column& column : Columns)
        out.Cell(std::string(column.Name));
    out.Text(LineEnd);
}

void WriteTable(Output& out, const clsTxtParser& ships, const ShipFields& fields) {
    WriteHeader(out, ships.FileName);
    std::int32_t index = 0;
    for (const RecordPtr& ship : ships.ByIndex()) {
        const Row row{fields, *ship, index++};
        for (const Column& column : Columns)
            out.Cell(column.Cell(row));
        out.Text(LineEnd);
        if (!out.Good())
            return;
    }
}

void WriteRecords(Output& out, const clsTxtParser& ships) {
    for (const RecordPtr& ship : ships.ByIndex()) {
        std::string text;
        for (std::int32_t i = 0; i < ship->size(); ++i)
            text.append(FieldName(*ship, i))
                .append(": ")
                .append(ship->ValueText(i))
                .append(LineEnd);
        out.Text(text.append(LineEnd));
        if (!out.Good())
            return;
    }
}

} // namespace

bool ExportShips(std::int32_t FileHandle, const clsTxtParser& Ships, const ShipFields& Fields,
                 ExportForm Form, std::string& Error) {
    Output out(FileHandle);
    if (Form == ExportForm::Table)
        WriteTable(out, Ships, Fields);
    else
        WriteRecords(out, Ships);
    if (out.Good() && LornFD_SetEndOfFile(FileHandle) != 0)
        return true;
    Error = LornFDErrorText();
    return false;
}
