// A word of flags as check boxes.
#pragma once

#include "txteditor/panels/WareFlags.h"

#include <QtWidgets>

#include <cstdint>
#include <optional>
#include <span>

class ColumnLayout;

/// Boxes "chkFlag0" and on, downwards in as many columns as there is room for.
class FlagBoxes : public QGroupBox {
    Q_OBJECT

public:
    explicit FlagBoxes(QWidget* Parent);

    /// Captions and tips; boxes beyond them are hidden.
    void SetFlags(std::span<const WareFlag> Flags);
    /// Shows the bits of a word, and tells nothing; without one no box can be set.
    void ShowWord(std::optional<std::uint32_t> Word);
    void SetReadOnly(bool Value);

Q_SIGNALS:
    void Clicked(int Bit, bool On); ///< by the user

private:
    ColumnLayout* m_columns;
    QList<QCheckBox*> m_boxes;
    bool m_hasWord = false;
    bool m_readOnly = false;
};
