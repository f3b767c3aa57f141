#include "txteditor/panels/TurretPlan.h"

#include "tdata/mdlKeshShips.h"
#include "ui/TextCodec.h"

#include <algorithm>

namespace {

using View = TurretPlanLayout::View;

constexpr std::int64_t mostShown = 999; ///< guns that a marker has room for
constexpr qsizetype tipLines = 20;
constexpr qreal faint = 0.45; ///< of the text's colour
constexpr qreal hullTint = 0.07;

QString positionName(int position) {
    return position == TurretPlanLayout::FrontCockpit
               ? TurretPlan::tr("front cockpit")
               : ToScreen(TableText(TurretPositionNames, position));
}

QColor faded(QColor color, qreal alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

/// By how many turrets a key goes on.
int stepOf(int key) {
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Up:
        return -1;
    default:
        return 0;
    }
}

} // namespace

TurretPlan::TurretPlan(QWidget* Parent) : QFrame(Parent) {
    setObjectName(QStringLiteral("TurretPlan"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAccessibleName(tr("Plan of the turrets"));
    Describe();
}

void TurretPlan::SetTurrets(const QList<PlanTurret>& Turrets) {
    m_turrets = Turrets;
    m_places = {};
    for (qsizetype row = 0; row < Turrets.size(); ++row) {
        const PlanTurret& turret = Turrets[row];
        if (turret.Position < 0 || turret.Position > TurretPlanLayout::LastPosition)
            continue;
        Place& place = m_places[static_cast<std::size_t>(turret.Position)];
        place.Rows.append(row);
        place.Guns += std::max(0, turret.Guns);
    }
    SetSelected(m_selected);
}

void TurretPlan::SetSelected(const QString& Key) {
    m_selected = Key;
    if (SelectedRow() < 0)
        m_selected.clear();
    Describe();
    update();
}

qsizetype TurretPlan::SelectedRow() const {
    const auto found =
        std::find_if(m_turrets.begin(), m_turrets.end(),
                     [this](const PlanTurret& turret) { return turret.Key == m_selected; });
    return found == m_turrets.end() ? -1 : found - m_turrets.begin();
}

const TurretPlan::Place& TurretPlan::PlaceAt(int Position) const {
    return m_places[static_cast<std::size_t>(Position)];
}

void TurretPlan::Describe() {
    QStringList counts;
    for (int position = 0; position <= TurretPlanLayout::LastPosition; ++position)
        if (const Place& place = PlaceAt(position); !place.Rows.isEmpty())
            counts.append(tr("%1 %2").arg(positionName(position)).arg(place.Guns));
    QString text = counts.isEmpty() ? tr("No turrets.") : tr("Guns: %1.").arg(counts.join(u", "));
    if (const qsizetype row = SelectedRow(); row >= 0)
        text += tr(" Selected: %1.").arg(m_turrets[row].Text);
    setAccessibleDescription(text);
}

QSize TurretPlan::InLines(const QSizeF& Lines) const {
    const int frame = 2 * frameWidth();
    return (Lines * fontMetrics().height()).toSize() + QSize(frame, frame);
}

QSize TurretPlan::sizeHint() const {
    return InLines(TurretPlanLayout::Wanted);
}

QSize TurretPlan::minimumSizeHint() const {
    return InLines(TurretPlanLayout::Least);
}

TurretPlanLayout TurretPlan::Plan() const {
    return {contentsRect(), static_cast<qreal>(fontMetrics().height())};
}

QString TurretPlan::TipFor(int Position) const {
    const Place& place = PlaceAt(Position);
    if (place.Rows.isEmpty())
        return tr("%1: no turret").arg(positionName(Position));
    QStringList lines;
    for (const qsizetype row : place.Rows.first(std::min(tipLines, place.Rows.size())))
        lines.append(m_turrets[row].Text);
    if (place.Rows.size() > tipLines)
        lines.append(tr("and %1 more").arg(place.Rows.size() - tipLines));
    return lines.join(u'\n');
}

bool TurretPlan::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QFrame::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const TurretPlanLayout layout = Plan();
    if (const Spot* spot = layout.SpotAt(help->pos()))
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(TipFor(spot->Position)),
                           this, layout.SpotRect(*spot).toAlignedRect());
    else
        QToolTip::hideText();
    return true;
}

void TurretPlan::mousePressEvent(QMouseEvent* event) {
    const Spot* spot =
        event->button() == Qt::LeftButton ? Plan().SpotAt(event->position()) : nullptr;
    if (!spot || PlaceAt(spot->Position).Rows.isEmpty()) {
        QFrame::mousePressEvent(event);
        return;
    }
    const QList<qsizetype>& rows = PlaceAt(spot->Position).Rows;
    Pick(rows[(rows.indexOf(SelectedRow()) + 1) % rows.size()]);
}

void TurretPlan::keyPressEvent(QKeyEvent* event) {
    const int step = stepOf(event->key());
    if (step == 0 || m_turrets.isEmpty()) {
        QFrame::keyPressEvent(event);
        return;
    }
    const qsizetype from = SelectedRow();
    const qsizetype to = std::clamp<qsizetype>(from + step, 0, m_turrets.size() - 1);
    if (to != from)
        Pick(to);
}

void TurretPlan::Pick(qsizetype Row) {
    const QString key = m_turrets[Row].Key; // who hears of it may give other turrets
    SetSelected(key);
    Q_EMIT Picked(key);
}

void TurretPlan::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const TurretPlanLayout layout = Plan();
    for (const View view : TurretPlanLayout::Views)
        PaintShip(painter, layout, view);
    for (const Spot& spot : TurretPlanLayout::Spots())
        PaintSpot(painter, layout, spot);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = contentsRect();
    option.backgroundColor = palette().color(QPalette::Base);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void TurretPlan::PaintShip(QPainter& Painter, const TurretPlanLayout& Plan, View Of) const {
    const QColor text = palette().color(QPalette::Text);
    QPen pen(faded(text, faint));
    pen.setJoinStyle(Qt::RoundJoin);
    Painter.setPen(pen);
    Painter.setBrush(faded(text, hullTint));
    Painter.drawPolygon(Plan.FromShip(Of).map(TurretPlanLayout::Outline(Of)));
    Painter.setPen(text);
    const qreal margin = fontMetrics().averageCharWidth();
    Painter.drawText(Plan.CaptionRect(Of).adjusted(margin, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, Of == View::Top ? tr("Top") : tr("Side"));
}

void TurretPlan::PaintSpot(QPainter& Painter, const TurretPlanLayout& Plan, const Spot& At) const {
    const Place& place = PlaceAt(At.Position);
    const bool selected = isEnabled() && place.Rows.contains(SelectedRow());
    const bool used = !place.Rows.isEmpty();
    const QColor fill = palette().color(selected ? QPalette::Highlight : QPalette::Text);
    QPen pen(used ? fill : faded(fill, faint));
    if (!used)
        pen.setStyle(Qt::DotLine);
    Painter.setPen(pen);
    Painter.setBrush(used ? fill : palette().color(QPalette::Base));
    const QRectF rect = Plan.SpotRect(At);
    Painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    if (!used || At.Position == TurretPlanLayout::FrontCockpit)
        return;
    Painter.setPen(palette().color(selected ? QPalette::HighlightedText : QPalette::Base));
    Painter.drawText(rect, Qt::AlignCenter,
                     place.Guns > mostShown ? tr("%1+").arg(mostShown)
                                            : QString::number(place.Guns));
}
