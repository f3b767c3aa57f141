// The launcher's icons.
#pragma once

#include <QtWidgets>

#include <string>

/// Items in table order, with key (Qt::UserRole), picture, a caption that the user may change, but
/// not to nothing, and a place of their own where icons are not arranged.
class LauncherItems final : public QStandardItemModel {
    Q_OBJECT

public:
    static constexpr int PlaceRole = Qt::UserRole + 2; ///< QPoint in pixels; none if never placed

    explicit LauncherItems(QObject* parent = nullptr);

    [[nodiscard]] static QString KeyOf(const QModelIndex& index);
    /// The program that the settings name for an item now; empty for one that starts none.
    [[nodiscard]] static std::string ProgramOf(const QString& Key);

    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Adds or removes the item as its program is set; one whose program changed gets picture and
    /// name anew. The item, invalid if there is none.
    QModelIndex Update(const QString& Key);

    /// Captions and places are kept in the settings by key; keys without an item are passed over.
    void SaveIcons() const;
    void LoadIcons();
};
