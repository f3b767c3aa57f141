#include "txteditor/panels/TurretPlanLayout.h"

#include <algorithm>

namespace {

using View = TurretPlanLayout::View;

constexpr qreal captionLines = 1.1;
constexpr QSizeF shipSize(2.1, 1.36);  ///< with what stands out of it
constexpr QSizeF markerSize(2.3, 1.4); ///< lines of text, for four signs
constexpr QSizeF dotSize(0.8, 0.8);

const TurretPlanLayout::Spot spots[] = {
    {View::Top, 0, {0.34, 0}},      {View::Top, 1, {0.8, 0}},      {View::Top, 2, {-0.84, 0}},
    {View::Top, 3, {-0.26, -0.47}}, {View::Top, 4, {-0.26, 0.47}}, {View::Top, 5, {-0.16, 0}},
    {View::Side, 0, {0.36, -0.14}}, {View::Side, 1, {0.8, 0.05}},  {View::Side, 2, {-0.84, 0.03}},
    {View::Side, 5, {-0.1, -0.34}}, {View::Side, 6, {-0.1, 0.34}},
};

/// One side of the ship from bow to stern, as seen from the top; the other mirrors it.
constexpr std::array<QPointF, 11> halfFromTop{{{1, 0.06},
                                               {0.72, 0.16},
                                               {0.3, 0.22},
                                               {0.08, 0.26},
                                               {-0.12, 0.58},
                                               {-0.5, 0.64},
                                               {-0.56, 0.3},
                                               {-0.84, 0.26},
                                               {-0.88, 0.18},
                                               {-1, 0.18},
                                               {-1, 0.08}}};

constexpr std::array<QPointF, 13> fromSide{{{1, 0.02},
                                            {0.66, -0.1},
                                            {0.4, -0.26},
                                            {0.2, -0.3},
                                            {-0.5, -0.3},
                                            {-0.7, -0.56},
                                            {-0.84, -0.56},
                                            {-0.88, -0.14},
                                            {-1, -0.14},
                                            {-1, 0.18},
                                            {-0.84, 0.28},
                                            {0.3, 0.28},
                                            {0.98, 0.12}}};

} // namespace

std::span<const TurretPlanLayout::Spot> TurretPlanLayout::Spots() {
    return spots;
}

QPolygonF TurretPlanLayout::Outline(View Of) {
    if (Of == View::Side)
        return QPolygonF(QList<QPointF>(fromSide.begin(), fromSide.end()));
    QPolygonF outline(QList<QPointF>(halfFromTop.begin(), halfFromTop.end()));
    for (auto point = halfFromTop.rbegin(); point != halfFromTop.rend(); ++point)
        outline.append({point->x(), -point->y()});
    return outline;
}

TurretPlanLayout::TurretPlanLayout(const QRectF& Area, qreal Line) : m_line(Line) {
    const bool beside = Area.width() > 1.5 * Area.height(); // where the ship gets larger
    const QSizeF size =
        beside ? QSizeF(Area.width() / 2, Area.height()) : QSizeF(Area.width(), Area.height() / 2);
    const QPointF step = beside ? QPointF(size.width(), 0) : QPointF(0, size.height());
    m_frames = {QRectF(Area.topLeft(), size), QRectF(Area.topLeft() + step, size)};
}

QRectF TurretPlanLayout::CaptionRect(View Of) const {
    QRectF rect = Frame(Of);
    rect.setHeight(captionLines * m_line);
    return rect;
}

QTransform TurretPlanLayout::FromShip(View Of) const {
    const QRectF room = Frame(Of).adjusted(0, captionLines * m_line, 0, 0);
    const qreal scale =
        std::min(room.width() / shipSize.width(), room.height() / shipSize.height());
    return QTransform::fromTranslate(room.center().x(), room.center().y()).scale(scale, scale);
}

QRectF TurretPlanLayout::SpotRect(const Spot& At) const {
    const QSizeF size = (At.Position == FrontCockpit ? dotSize : markerSize) * m_line;
    QRectF rect(QPointF(), size);
    rect.moveCenter(FromShip(At.In).map(At.At));
    return rect;
}

const TurretPlanLayout::Spot* TurretPlanLayout::SpotAt(const QPointF& Point) const {
    const auto* found = std::find_if(std::begin(spots), std::end(spots), [&](const Spot& spot) {
        return SpotRect(spot).contains(Point);
    });
    return found == std::end(spots) ? nullptr : found;
}
