#include "txteditor/panels/JobBoxes.h"

#include "txteditor/panels/ColumnLayout.h"
#include "ui/TextCodec.h"

namespace {

constexpr int longestCaption = 40; ///< characters
constexpr int longestValue = 100;  ///< bytes

/// The beginning of a stored value, not ending inside a character.
QString beginningOf(std::string_view stored) {
    if (stored.size() <= longestValue)
        return ToScreen(stored);
    constexpr int behindFirst = 3; // bytes of the longest character
    std::size_t length = longestValue;
    const auto inside = [&] { return (static_cast<unsigned char>(stored[length]) & 0xC0) == 0x80; };
    while (length > longestValue - behindFirst && inside())
        --length;
    return ToScreen(stored.substr(0, length)) + QChar(0x2026);
}

void setTip(QWidget& control, const QString& text) {
    const QString tip = Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
    if (control.toolTip() != tip)
        control.setToolTip(tip);
}

} // namespace

JobBoxes::JobBoxes(std::initializer_list<const JobBoxRow*> Rows, QWidget* Parent)
    : QGroupBox((*Rows.begin())->GroupTitle(), Parent) {
    auto* columns = new ColumnLayout(this);
    for (const JobBoxRow* row : Rows)
        for (std::int32_t place = 0; place < row->Flags.Count; ++place)
            AddBox(*row, place);
    for (const Box& box : m_boxes)
        columns->addWidget(box.Control);
    Rename();
    Show(nullptr);
}

void JobBoxes::AddBox(const JobBoxRow& Row, std::int32_t Place) {
    auto* control = new QCheckBox(this);
    QString name = QString::fromLatin1(Row.Name);
    if (Row.Flags.Count > 1)
        name += QString::number(Place);
    control->setObjectName(name);
    m_boxes.append({control, &Row, Place});
    const std::int32_t field = m_boxes.constLast().Field();
    connect(control, &QCheckBox::clicked, this,
            [this, field](bool on) { Q_EMIT Clicked(field, on); });
}

void JobBoxes::Rename() {
    for (const Box& box : m_boxes)
        box.Control->setText(ButtonCaption(box.Row->Caption(box.Place)));
}

void JobBoxes::Show(const clsTXTObject* Job) {
    for (const Box& box : m_boxes) {
        box.Control->setChecked(Job && JobFlagSet(*Job, box.Field()));
        setTip(*box.Control, JobFieldTip(Job, box.Field(), true));
    }
}

QString JobFieldTip(const clsTXTObject* Job, std::int32_t Field, bool IsFlag) {
    QString tip = JobBoxes::tr("Field %1").arg(Field);
    if (!Job)
        return tip;
    const std::string_view stored = GetJobText(*Job, Field);
    if (IsFlag && stored != "0" && stored != "1")
        tip += u'\n' + JobBoxes::tr("Stored: \"%1\"").arg(beginningOf(stored));
    if (const auto neighbour = JobNeighbour(*Job, Field))
        tip += u'\n' +
               JobBoxes::tr("This version of the file does not have the field. \"%1\" (field %2) "
                            "stands here in its stead, and is changed.")
                   .arg(JobFieldCaption(*Job, *neighbour), QString::number(*neighbour));
    return tip;
}

QString ButtonCaption(const QString& Text) {
    return Shortened(Text, longestCaption).replace(u'&', QStringLiteral("&&"));
}
