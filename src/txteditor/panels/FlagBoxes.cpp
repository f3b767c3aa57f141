#include "txteditor/panels/FlagBoxes.h"

#include <algorithm>

namespace {

QString translated(const char* text) {
    return *text == '\0' ? QString() : QCoreApplication::translate("WareFlags", text);
}

} // namespace

FlagBoxes::FlagBoxes(QWidget* Parent) : QGroupBox(Parent), m_grid(new QGridLayout(this)) {
    setObjectName(QStringLiteral("FlagsFrame"));
    m_grid->setVerticalSpacing(m_grid->verticalSpacing() / 2);
    for (int bit = 0; bit < MostWareFlags; ++bit) {
        auto* box = new QCheckBox(this);
        box->setObjectName(QStringLiteral("chkFlag%1").arg(bit));
        connect(box, &QCheckBox::clicked, this, [this, bit](bool on) { Q_EMIT Clicked(bit, on); });
        m_boxes.append(box);
    }
}

void FlagBoxes::SetFlags(std::span<const WareFlag> Flags) {
    m_used = static_cast<int>(Flags.size());
    for (int bit = 0; bit < m_boxes.size(); ++bit) {
        QCheckBox* box = m_boxes[bit];
        box->setVisible(bit < m_used);
        if (bit >= m_used)
            continue;
        const WareFlag& flag = Flags[static_cast<std::size_t>(bit)];
        box->setText(translated(flag.Caption));
        box->setToolTip(translated(flag.Tip));
    }
    m_columns = 0;
    PlaceBoxes();
}

void FlagBoxes::ShowWord(std::optional<std::uint32_t> Word) {
    m_hasWord = Word.has_value();
    setEnabled(m_hasWord && !m_readOnly);
    for (int bit = 0; bit < m_boxes.size(); ++bit)
        m_boxes[bit]->setChecked((Word.value_or(0) >> bit & 1) != 0);
}

void FlagBoxes::SetReadOnly(bool Value) {
    m_readOnly = Value;
    setEnabled(m_hasWord && !m_readOnly);
}

void FlagBoxes::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    PlaceBoxes();
}

void FlagBoxes::PlaceBoxes() {
    int widest = 1;
    for (const QCheckBox* box : m_boxes.mid(0, m_used))
        widest = std::max(widest, box->sizeHint().width() + m_grid->horizontalSpacing());
    const int columns = std::clamp(contentsRect().width() / widest, 1, std::max(m_used, 1));
    if (columns == m_columns)
        return;
    m_columns = columns;
    const int rows = (m_used + columns - 1) / columns;
    for (int bit = 0; bit < m_used; ++bit) // downwards, as the bits are counted
        m_grid->addWidget(m_boxes[bit], bit % rows, bit / rows);
    for (int column = 0; column < MostWareFlags; ++column)
        m_grid->setColumnStretch(column, column < columns ? 1 : 0);
}
