// Two lists of weapons, those that a mask allows and the rest. A person moves rows from one to the
// other by button, double click, Enter, Del and Ins, or by dragging them.
#pragma once

#include "tdata/WeaponSlots.h"

#include <QtWidgets>

#include <cstdint>
#include <optional>
#include <vector>

class WeaponModel;

class WeaponLists final : public QWidget {
    Q_OBJECT

public:
    struct Names { ///< of the controls, and what stands above the lists
        const char* Mounted;
        const char* Available;
        const char* Add;
        const char* Remove;
        QString MountedLabel;
        QString AvailableLabel;
        const char* MountedLabelName = "";
        const char* AvailableLabelName = "";
    };
    struct Row {
        std::int32_t Bit = 0; ///< 0 to 31
        QString Key;
        QString Text;
    };

    WeaponLists(const Names& Called, QWidget* Parent);

    [[nodiscard]] static QList<Row> RowsOf(const std::vector<WeaponSlot>& Slots);
    /// Without a mask both lists are empty. What is selected stays so.
    void Show(const QList<Row>& Rows, std::optional<std::uint32_t> Mask);
    void SetReadOnly(bool Value);

Q_SIGNALS:
    /// Rows were moved, all that were selected at once; the lists show it. Bits without a row are
    /// as they were.
    void MaskChanged(quint32 Mask);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct List {
        QListView* View = nullptr;
        WeaponModel* Model = nullptr;
        QPushButton* Button = nullptr; ///< takes its rows to the other list
        int Key = 0;                   ///< does the same
        bool Mounted = false;
    };

    void BuildList(List& Side, const char* Name);
    void BuildButton(List& Side, const char* Name);
    void BuildLayout(const Names& Called);
    void Connect(List& Side, List& Other);
    void Fill(std::uint32_t Selected);
    void FillList(const List& Side, std::uint32_t Selected);
    bool Move(std::uint32_t Bits, bool Mount);
    void MoveSelected(const List& Side);
    void UpdateButtons();

    List m_mounted;
    List m_available;
    QList<Row> m_rows;
    std::optional<std::uint32_t> m_mask;
    bool m_readOnly = false;
};
