// The launcher's icons.
#pragma once

#include <QtWidgets>

/// Items with key (Qt::UserRole), picture and a caption that the user may change, but not to
/// nothing.
class LauncherItems : public QStandardItemModel {
    Q_OBJECT

public:
    explicit LauncherItems(QObject* parent = nullptr);

    [[nodiscard]] static QString KeyOf(const QModelIndex& index);
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Captions are kept in the settings by key; keys without an item are passed over.
    void SaveIcons() const;
    void LoadIcons();
};
