// The panel for TShips: one ship on nine tabs. A tab is filled when it is shown.
#pragma once

#include "tdata/FieldTable.h"
#include "tdata/ShipFields.h"
#include "tdata/WeaponSlots.h"
#include "tdata/clsShipParser.h"
#include "tdata/mdlKeshShips.h"
#include "txteditor/panels/RecordPanel.h"

#include <array>
#include <memory>

class PropertyView;
class ShipGunTab;
class ShipTurretTab;
class WareListViewer;
class WeaponLists;

namespace shiptabs {
enum Tab { Info, Performance, Model, WeaponFields, Turrets, Guns, Lasers, Missiles, Wares };
}

class ucShip final : public RecordPanel {
    Q_OBJECT

public:
    explicit ucShip(QWidget* Parent = nullptr);

    void SetReadOnly(bool Value) override;
    [[nodiscard]] bool LornQueryInterface(std::int32_t OType) const override;
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] std::string ObjectTypeName(std::int32_t OType) const override;
    [[nodiscard]] std::string PageName(std::int32_t OType) const override;
    [[nodiscard]] std::int32_t LornQueryInfo(std::int32_t OType) const override;
    [[nodiscard]] bool Validate(std::string& Text) override;
    [[nodiscard]] RecordPtr ReportedObject(const QString& Line) const override;

    [[nodiscard]] std::string GetClass(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetRace(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetResourceName(const RecordPtr& Object) const override;

    void ShowObject(const RecordPtr& Object, std::int32_t OType) override;
    RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                           const RecordPtr& Before) override;
    [[nodiscard]] bool InitObject(const RecordPtr& Object) override;
    [[nodiscard]] bool RemoveObject(const RecordPtr& Object) override;

    bool KeshExportData(QWidget* Owner) override;
    void ObjectReset(const RecordPtr& Object) override;
    void RestoreObject(const RecordPtr& Object) override;

protected:
    [[nodiscard]] const FieldConverter* Converter() const override { return &m_fields; }
    [[nodiscard]] bool MayEdit(std::int32_t Field) override;
    bool FollowEdit(std::int32_t Field) override;
    [[nodiscard]] QString RowText(const QString& Translated, const QString& Stored) const override;
    void RefreshViews() override;

private:
    struct Weapons {        ///< a tab of weapons that may be mounted
        std::int32_t Field; ///< of the mask
        const TextTable* Subtypes;
        std::vector<WeaponSlot> Slots = {};
        WeaponLists* Lists = nullptr;
    };

    // Setting up
    void BuildTabs();
    QWidget* BuildInfo();
    QWidget* BuildWares();
    void BuildWeapons();
    void BuildToolbar();
    void ConnectActions();
    void UpdateToolbar();

    // The ship on view
    void ShowTab();
    void FillTab(int Tab);
    void FillInfo();
    void FillPerformance();
    void FillModel();
    void FillWeaponFields();
    void FillWeapons(const Weapons& Kind);
    void FillWares();
    void MoveWeapons(const Weapons& Kind, std::uint32_t Mask);
    void ShowBody(std::int32_t Field);
    void OnShipChanged(bool Structure);
    void EditWareList();

    [[nodiscard]] std::shared_ptr<clsShip> ShipOf(const RecordPtr& Object) const;
    [[nodiscard]] bool KeepsCounts(std::int32_t Field) const; ///< the editor keeps it itself
    bool LetCargoFollow(std::int32_t Changed, std::int32_t Follower);
    [[nodiscard]] std::string Finding(clsShip& Ship) const;

    ShipFields m_fields;
    std::unique_ptr<clsShipParser> m_ships;
    std::shared_ptr<clsShip> m_ship;      ///< none while nothing is shown
    QHash<QString, RecordPtr> m_reported; ///< by the line of the report

    QTabWidget* m_tabs = nullptr;
    QToolBar* m_toolbar = nullptr;
    QList<QAction*> m_actions; ///< of the toolbar, in the order of its table
    QList<bool> m_filled;      ///< by tab
    QPlainTextEdit* m_description = nullptr;
    PropertyView* m_info = nullptr;
    PropertyView* m_performance = nullptr;
    PropertyView* m_model = nullptr;
    PropertyView* m_weaponFields = nullptr;
    ShipTurretTab* m_turrets = nullptr;
    ShipGunTab* m_guns = nullptr;
    std::array<Weapons, 2> m_weapons{
        {{shipfield::Lasers, &LaserSubtypes}, {shipfield::Missiles, &MissileSubtypes}}};
    QLineEdit* m_wareListId = nullptr;
    WareListViewer* m_wares = nullptr;
};
