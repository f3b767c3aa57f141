#include "app/LauncherItems.h"

#include "core/clsSettings.h"
#include "ui/Icons.h"
#include "ui/TextCodec.h"

namespace {

struct LauncherEntry {
    const char* Key;
    const char* Caption;
};

constexpr std::array entries = {
    LauncherEntry{"te", QT_TRANSLATE_NOOP("LauncherItems", "TXT Editor")},
    LauncherEntry{"settings", QT_TRANSLATE_NOOP("LauncherItems", "Settings")},
    LauncherEntry{"help", QT_TRANSLATE_NOOP("LauncherItems", "Help")},
    LauncherEntry{"about", QT_TRANSLATE_NOOP("LauncherItems", "About")},
};

std::string settingsKeyOf(const QModelIndex& index) {
    return "main\\icons\\" + LauncherItems::KeyOf(index).toStdString();
}

} // namespace

LauncherItems::LauncherItems(QObject* parent) : QStandardItemModel(parent) {
    for (const LauncherEntry& entry : entries) {
        auto* item = new QStandardItem(ToolIcon(entry.Key), tr(entry.Caption));
        item->setData(QString::fromLatin1(entry.Key), Qt::UserRole);
        item->setDragEnabled(false);
        item->setDropEnabled(false);
        appendRow(item);
    }
}

QString LauncherItems::KeyOf(const QModelIndex& index) {
    return index.data(Qt::UserRole).toString();
}

bool LauncherItems::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role == Qt::EditRole && value.toString().isEmpty())
        return false;
    return QStandardItemModel::setData(index, value, role);
}

void LauncherItems::SaveIcons() const {
    std::vector<SettingsStore::Entry> captions;
    for (int row = 0; row < rowCount(); ++row)
        captions.push_back({settingsKeyOf(index(row, 0)), "caption",
                            index(row, 0).data().toString().toStdString()});
    Settings->SaveRegValues(captions);
}

void LauncherItems::LoadIcons() {
    for (int row = 0; row < rowCount(); ++row)
        setData(index(row, 0),
                ToScreen(Settings->ReadRegValue(settingsKeyOf(index(row, 0)), "caption")));
}
