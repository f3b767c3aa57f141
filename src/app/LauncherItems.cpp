#include "app/LauncherItems.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "ui/Icons.h"
#include "ui/ListHelpers.h"
#include "ui/ProgramIcon.h"
#include "ui/TextCodec.h"

namespace {

struct LauncherEntry {
    const char* Key = "";
    const char* Caption = ""; ///< empty: the program's name
    std::string (clsSettings::*Program)() const = nullptr;
    bool Always = true; ///< also while no program is set
};

constexpr std::array entries = {
    LauncherEntry{"te", QT_TRANSLATE_NOOP("LauncherItems", "TXT Editor")},
    LauncherEntry{"lornof", QT_TRANSLATE_NOOP("LauncherItems", "Kesh Outfitter"),
                  &clsSettings::KeshMMFullPath, false},
    LauncherEntry{"lorn", QT_TRANSLATE_NOOP("LauncherItems", "Kesh"), &clsSettings::KeshEXEPath},
    LauncherEntry{"custom", "", &clsSettings::CustomProgram, false},
    LauncherEntry{"3Dviwer", "", &clsSettings::Ext3DViewerPath, false},
    LauncherEntry{"settings", QT_TRANSLATE_NOOP("LauncherItems", "Settings")},
    LauncherEntry{"help", QT_TRANSLATE_NOOP("LauncherItems", "Help")},
    LauncherEntry{"about", QT_TRANSLATE_NOOP("LauncherItems", "About")},
};

constexpr int ProgramRole = Qt::UserRole + 3; ///< path of the program whose picture it shows
constexpr int unplaced = -1;
constexpr int farthest = 1 << 14; ///< pixels from the list's corner to a place that is believed

const LauncherEntry& entryOf(const QString& key) {
    return *std::find_if(entries.begin(), entries.end(), [&key](const LauncherEntry& entry) {
        return key == QLatin1String(entry.Key);
    });
}

std::string programOf(const LauncherEntry& entry) {
    return entry.Program ? (*Settings.*entry.Program)() : std::string();
}

QString captionOf(const LauncherEntry& entry, const std::string& program) {
    return *entry.Caption ? LauncherItems::tr(entry.Caption)
                          : QString::fromStdString(BaseName(program, true));
}

QIcon iconOf(const LauncherEntry& entry, const std::string& program) {
    const QIcon own = ProgramIcon(program);
    return own.isNull() ? ToolIcon(entry.Key) : own;
}

std::string settingsKeyOf(const QModelIndex& index) {
    return "main\\icons\\" + LauncherItems::KeyOf(index).toStdString();
}

} // namespace

LauncherItems::LauncherItems(QObject* parent) : QStandardItemModel(parent) {
    for (const LauncherEntry& entry : entries)
        Update(QString::fromLatin1(entry.Key));
}

QString LauncherItems::KeyOf(const QModelIndex& index) {
    return index.data(Qt::UserRole).toString();
}

std::string LauncherItems::ProgramOf(const QString& Key) {
    return programOf(entryOf(Key));
}

bool LauncherItems::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role == Qt::EditRole && value.toString().isEmpty())
        return false;
    return QStandardItemModel::setData(index, value, role);
}

QModelIndex LauncherItems::Update(const QString& Key) {
    const LauncherEntry& entry = entryOf(Key);
    const std::string program = programOf(entry);
    QModelIndex found = ListFindItem(*this, Key);
    if (!entry.Always && program.empty()) {
        ListRemoveItem(*this, Key);
        return {};
    }
    const QString path = QString::fromStdString(program);
    if (found.isValid() && found.data(ProgramRole).toString() == path)
        return found;
    if (!found.isValid()) {
        int row = 0;
        while (row < rowCount() && &entryOf(KeyOf(index(row, 0))) < &entry)
            ++row;
        auto* item = new QStandardItem;
        item->setData(Key, Qt::UserRole);
        item->setDropEnabled(false);
        item->setText(captionOf(entry, program));
        insertRow(row, item);
        found = index(row, 0);
    } else if (*entry.Caption == '\0') {
        setData(found, captionOf(entry, program));
    }
    setData(found, path, ProgramRole);
    setData(found, iconOf(entry, program), Qt::DecorationRole);
    return found;
}

void LauncherItems::SaveIcons() const {
    std::vector<SettingsStore::Entry> values;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex item = index(row, 0);
        const std::string key = settingsKeyOf(item);
        values.push_back({key, "caption", item.data().toString().toStdString()});
        if (const QVariant place = item.data(PlaceRole); place.isValid()) {
            values.push_back({key, "left", std::to_string(place.toPoint().x())});
            values.push_back({key, "top", std::to_string(place.toPoint().y())});
        }
    }
    Settings->SaveRegValues(values);
}

void LauncherItems::LoadIcons() {
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex item = index(row, 0);
        const std::string key = settingsKeyOf(item);
        setData(item, ToScreen(Settings->ReadRegValue(key, "caption")));
        const QPoint place(Settings->ReadRegValue(key, "left", unplaced),
                           Settings->ReadRegValue(key, "top", unplaced));
        if (!Settings->AutoArrangeIcons() && QRect(0, 0, farthest, farthest).contains(place))
            setData(item, place, PlaceRole);
    }
}
