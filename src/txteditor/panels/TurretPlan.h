// A drawn plan of where a ship's turrets sit and how many guns they have.
#pragma once

#include "txteditor/panels/TurretPlanLayout.h"

#include <QtWidgets>

#include <array>
#include <cstdint>

struct PlanTurret {
    QString Key;
    int Position = 0; ///< 1 to 6; 0 for the front cockpit
    int Guns = 0;     ///< below 0 as 0
    QString Text;     ///< what to say of it, on one line
};

class TurretPlan final : public QFrame {
    Q_OBJECT

public:
    explicit TurretPlan(QWidget* Parent = nullptr);

    /// In the order of the keys; one at another position has no marker. The one selected stays so
    /// if it is among them.
    void SetTurrets(const QList<PlanTurret>& Turrets);
    /// An unknown key selects none.
    void SetSelected(const QString& Key);
    [[nodiscard]] QString Selected() const { return m_selected; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user chose a turret, which is selected now.
    void Picked(const QString& Key);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Spot = TurretPlanLayout::Spot;

    /// The turrets of one position.
    struct Place {
        QList<qsizetype> Rows;
        std::int64_t Guns = 0;
    };

    [[nodiscard]] QSize InLines(const QSizeF& Lines) const;
    [[nodiscard]] TurretPlanLayout Plan() const;
    [[nodiscard]] const Place& PlaceAt(int Position) const;
    [[nodiscard]] qsizetype SelectedRow() const; ///< -1 for none
    [[nodiscard]] QString TipFor(int Position) const;
    void Describe();
    void Pick(qsizetype Row);
    void PaintShip(QPainter& Painter, const TurretPlanLayout& Plan,
                   TurretPlanLayout::View Of) const;
    void PaintSpot(QPainter& Painter, const TurretPlanLayout& Plan, const Spot& At) const;

    QList<PlanTurret> m_turrets;
    std::array<Place, TurretPlanLayout::LastPosition + 1> m_places;
    QString m_selected;
};
