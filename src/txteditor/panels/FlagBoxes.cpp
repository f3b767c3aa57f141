#include "txteditor/panels/FlagBoxes.h"

#include "txteditor/panels/ColumnLayout.h"

namespace {

QString translated(const char* text) {
    return *text == '\0' ? QString() : QCoreApplication::translate("WareFlags", text);
}

} // namespace

FlagBoxes::FlagBoxes(QWidget* Parent) : QGroupBox(Parent), m_columns(new ColumnLayout(this)) {
    setObjectName(QStringLiteral("FlagsFrame"));
    for (int bit = 0; bit < MostWareFlags; ++bit) {
        auto* box = new QCheckBox(QString::number(bit), this);
        box->setObjectName(QStringLiteral("chkFlag%1").arg(bit));
        connect(box, &QCheckBox::clicked, this, [this, bit](bool on) { Q_EMIT Clicked(bit, on); });
        m_boxes.append(box);
    }
}

void FlagBoxes::SetFlags(std::span<const WareFlag> Flags) {
    while (m_columns->count() > 0)
        delete m_columns->takeAt(0);
    for (qsizetype bit = 0; bit < m_boxes.size(); ++bit) {
        QCheckBox* box = m_boxes[bit];
        box->setVisible(bit < std::ssize(Flags));
        if (bit >= std::ssize(Flags))
            continue;
        const WareFlag& flag = Flags[static_cast<std::size_t>(bit)];
        box->setText(translated(flag.Caption));
        box->setToolTip(translated(flag.Tip));
        m_columns->addWidget(box);
    }
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
