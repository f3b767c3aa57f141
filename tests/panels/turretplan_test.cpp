// The plan of a ship's turrets: what a click and a key pick, what is said of a place.
#include "txteditor/panels/TurretPlan.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

using Layout = TurretPlanLayout;

class Plan : public testing::Test {
protected:
    Plan() {
        plan.resize(plan.sizeHint());
        plan.show();
        QApplication::setActiveWindow(&plan);
        QObject::connect(&plan, &TurretPlan::Picked, [this](const QString& key) { picked += key; });
    }

    /// A turret of key and text "k<row>" at each position.
    void Fill(const QList<int>& positions) {
        QList<PlanTurret> turrets;
        for (const int position : positions) {
            const QString key = QStringLiteral("k%1").arg(turrets.size());
            turrets.append({key, position, 2, key});
        }
        plan.SetTurrets(turrets);
    }
    [[nodiscard]] Layout Places() const {
        return {plan.contentsRect(), static_cast<qreal>(plan.fontMetrics().height())};
    }
    [[nodiscard]] QPoint Center(const Layout::Spot& spot) const {
        return Places().SpotRect(spot).center().toPoint();
    }
    /// Clicks the first marker of a position and gives what that picked.
    QString Click(int position, Qt::MouseButton button = Qt::LeftButton) {
        for (const Layout::Spot& spot : Layout::Spots())
            if (spot.Position == position)
                return Click(Center(spot), button);
        return {};
    }
    QString Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        picked.clear();
        QTest::mouseClick(&plan, button, {}, at);
        return picked;
    }
    QString Tip(int position) {
        for (const Layout::Spot& spot : Layout::Spots())
            if (spot.Position == position) {
                QHelpEvent help(QEvent::ToolTip, Center(spot), plan.mapToGlobal(Center(spot)));
                QApplication::sendEvent(&plan, &help);
                break;
            }
        return QToolTip::text();
    }

    TurretPlan plan;
    QString picked;
};

TEST_F(Plan, AClickOnAMarkerPicksItsTurret) {
    Fill({0, 1, 2, 3, 4, 5, 6});
    for (const Layout::Spot& spot : Layout::Spots()) {
        const QString key = QStringLiteral("k%1").arg(spot.Position);
        EXPECT_EQ(Click(Center(spot)), key);
        EXPECT_EQ(plan.Selected(), key);
    }
    EXPECT_EQ(Click(QPoint(2, plan.height() - 2)), QString());
    EXPECT_EQ(Click(1, Qt::RightButton), QString());
    EXPECT_EQ(plan.Selected(), QStringLiteral("k6"));
}

TEST_F(Plan, ClicksGoThroughTheTurretsOfAPlace) {
    Fill({5, 1, 5, 9, 5, -1});
    for (const char* key : {"k0", "k2", "k4", "k0"})
        EXPECT_EQ(Click(5), QString::fromLatin1(key));
    EXPECT_EQ(Click(1), QStringLiteral("k1"));
    plan.SetSelected(QStringLiteral("k2"));
    EXPECT_EQ(Click(5), QStringLiteral("k4"));
    EXPECT_EQ(Click(6), QString());
}

TEST_F(Plan, KeysWalkThroughAllTurrets) {
    QTest::keyClick(&plan, Qt::Key_Right); // there are none yet
    Fill({0, 9, 1});
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right,
                              Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_A})
        QTest::keyClick(&plan, key);
    EXPECT_EQ(picked, QStringLiteral("k0k1k2k1k0"));
}

TEST_F(Plan, SurvivesThatItsTurretsAreReplacedOnAPick) {
    Fill({1, 2});
    QObject::connect(&plan, &TurretPlan::Picked, [this] { Fill({3}); });
    EXPECT_EQ(Click(2), QStringLiteral("k1"));
    EXPECT_EQ(plan.Selected(), QString()); // it is gone
    EXPECT_EQ(Click(2), QString());
}

TEST_F(Plan, SaysWhatIsAtAPlace) {
    plan.SetTurrets({{QStringLiteral("a"), 3, 2, QStringLiteral("one <b>")},
                     {QStringLiteral("b"), 3, 4, QStringLiteral("two")},
                     {QStringLiteral("c"), 0, -5, QStringLiteral("front")},
                     {QStringLiteral("d"), 7, 8, QStringLiteral("lost")}});
    QTextDocument shown;
    shown.setHtml(Tip(3));
    EXPECT_EQ(shown.toPlainText(), QStringLiteral("one <b>\ntwo"));
    shown.setHtml(Tip(6));
    EXPECT_EQ(shown.toPlainText(), QStringLiteral("bottom: no turret"));
    EXPECT_EQ(plan.accessibleDescription(), QStringLiteral("Guns: front cockpit 0, left 6."));
    plan.SetSelected(QStringLiteral("d"));
    EXPECT_EQ(plan.accessibleDescription(),
              QStringLiteral("Guns: front cockpit 0, left 6. Selected: lost."));
}

TEST_F(Plan, MarkersStayApartAndInsideInTheSmallestPlan) {
    plan.setMinimumSize(0, 0);
    for (const QSize size :
         {plan.minimumSizeHint(), plan.sizeHint(),
          plan.minimumSizeHint().transposed().expandedTo(plan.minimumSizeHint())}) {
        plan.resize(size);
        const Layout places = Places();
        const auto spots = Layout::Spots();
        for (std::size_t i = 0; i < spots.size(); ++i) {
            const QRectF rect = places.SpotRect(spots[i]);
            EXPECT_TRUE(QRectF(plan.contentsRect()).contains(rect)) << i;
            for (std::size_t other = 0; other < i; ++other)
                EXPECT_FALSE(rect.intersects(places.SpotRect(spots[other]))) << i << ' ' << other;
        }
    }
}

TEST_F(Plan, PaintsTheSelectedMarkerInTheHighlight) {
    Fill({3, 4});
    plan.SetSelected(QStringLiteral("k1"));
    const QImage image = plan.grab().toImage();
    const auto colorAt = [&](int position) {
        for (const Layout::Spot& spot : Layout::Spots())
            if (spot.Position == position) {
                const QRectF rect = Places().SpotRect(spot);
                return image.pixelColor(QPointF(rect.center().x(), rect.top() + 2).toPoint());
            }
        return QColor();
    };
    EXPECT_EQ(colorAt(4), plan.palette().color(QPalette::Highlight));
    EXPECT_EQ(colorAt(3), plan.palette().color(QPalette::Text));
    EXPECT_EQ(colorAt(5), plan.palette().color(QPalette::Base)); // no turret there
}

} // namespace
