// Where the plan of a ship's turrets has what: the ship from the top and from the side, the bow to
// the right. What is painted and what is hit go by the same rectangles.
#pragma once

#include <QtGui>

#include <array>
#include <span>

class TurretPlanLayout {
public:
    enum class View { Top, Side };
    static constexpr std::array Views{View::Top, View::Side};
    static constexpr int FrontCockpit = 0; ///< as a position
    static constexpr int LastPosition = 6; ///< of a turret, from 1

    /// One place of a marker; a position that both views show has two.
    struct Spot {
        View In = View::Top;
        int Position = FrontCockpit;
        QPointF At; ///< from the ship's middle, half its length being 1
    };
    [[nodiscard]] static std::span<const Spot> Spots();
    /// The ship's outline in the same measure.
    [[nodiscard]] static QPolygonF Outline(View Of);

    /// All sizes in lines of text, the views side by side where the area is wide enough.
    static constexpr QSizeF Wanted{22, 8};
    static constexpr QSizeF Least{18, 6}; ///< below it markers overlap

    /// `Line` is the height of a line of text.
    TurretPlanLayout(const QRectF& Area, qreal Line);

    [[nodiscard]] QRectF CaptionRect(View Of) const;
    /// From the ship's measure to the area's.
    [[nodiscard]] QTransform FromShip(View Of) const;
    [[nodiscard]] QRectF SpotRect(const Spot& At) const;
    /// The spot there; none if there is none.
    [[nodiscard]] const Spot* SpotAt(const QPointF& Point) const;

private:
    [[nodiscard]] const QRectF& Frame(View Of) const { return m_frames[Of == View::Top ? 0 : 1]; }

    qreal m_line;
    std::array<QRectF, 2> m_frames; ///< of each view
};
