// A word of flags as check boxes.
#pragma once

#include "txteditor/panels/WareFlags.h"

#include <QtWidgets>

#include <cstdint>
#include <optional>
#include <span>

/// Boxes "chkFlag0" and on, in as many columns as there is room for.
class FlagBoxes : public QGroupBox {
    Q_OBJECT

public:
    explicit FlagBoxes(QWidget* Parent);

    void SetFlags(std::span<const WareFlag> Flags);
    /// Shows the bits of a word, and tells nothing; without one no box can be set.
    void ShowWord(std::optional<std::uint32_t> Word);
    void SetReadOnly(bool Value);

Q_SIGNALS:
    void Clicked(int Bit, bool On); ///< by the user

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceBoxes();

    QGridLayout* m_grid;
    QList<QCheckBox*> m_boxes;
    int m_used = 0;
    int m_columns = 0;
    bool m_hasWord = false;
    bool m_readOnly = false;
};
