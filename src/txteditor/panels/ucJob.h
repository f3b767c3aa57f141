// The panel for Jobs: one job on seven tabs. Fields are spoken of by their logical numbers.
#pragma once

#include "tdata/JobIndex.h"
#include "txteditor/panels/RecordPanel.h"

#include <optional>

class JobBoxes;
class JobShipBox;
class LabelPlace;
class PropertyView;
class TextRowsView;
class WareListViewer;

namespace jobtabs {
enum Tab { Info, Ship, Sector, Weapons, Race, Wings, Wares };
}

class ucJob final : public RecordPanel {
    Q_OBJECT

public:
    explicit ucJob(QWidget* Parent = nullptr);

    void SetReadOnly(bool Value) override;
    [[nodiscard]] bool LornQueryInterface(std::int32_t OType) const override;
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] std::string ObjectTypeName(std::int32_t OType) const override;
    [[nodiscard]] std::string PageName(std::int32_t OType) const override;
    [[nodiscard]] std::int32_t LornQueryInfo(std::int32_t OType) const override;
    [[nodiscard]] std::string ObjectName(const RecordPtr& Object) const override;
    [[nodiscard]] std::string SearchText(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetResourceName(const RecordPtr& Object) const override;
    [[nodiscard]] std::string UniqueName(const RecordPtr& Object) const override;
    [[nodiscard]] std::vector<RecordFilter> Filters() const override;
    [[nodiscard]] bool Passes(const RecordPtr& Object, int Filter, int Choice) const override;
    void ShowObject(const RecordPtr& Object, std::int32_t OType) override;
    RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                           const RecordPtr& Before) override;
    bool LornAssignUniqueObjectName(const RecordPtr& Object) override;
    [[nodiscard]] std::int32_t FieldPlace(const RecordPtr& Object,
                                          std::int32_t Index) const override;
    [[nodiscard]] bool LornTranslateValue(const RecordPtr& Object, std::int32_t Index,
                                          std::string& Text, bool Raw) const override;
    [[nodiscard]] bool LornTranslateValueBack(const RecordPtr& Object, std::string& Text,
                                              std::int32_t Index, KeshValue& Value) override;
    [[nodiscard]] bool RemoveObject(const RecordPtr& Object) override;
    void RestoreObject(const RecordPtr& Object) override;
    [[nodiscard]] bool FinishEntry() override;
    void ObjectReset(const RecordPtr& Object) override;

protected:
    [[nodiscard]] bool AllowsSlash() const override { return true; }
    [[nodiscard]] QString RowText(const QString&, const QString& Stored) const override {
        return Stored;
    }
    bool FollowEdit(std::int32_t Field) override;
    void RefreshViews() override;

private:
    struct ShownField { ///< an edit that only shows; a double click or Enter changes it
        std::int32_t Field;
        QLineEdit* Edit;
    };

    // Setting up
    void BuildTabs();
    QWidget* BuildInfo();
    QWidget* BuildShipName(QWidget* Page);
    QWidget* BuildShip();
    QWidget* BuildRoles(QWidget* Page);
    QWidget* BuildSector();
    QWidget* BuildWeapons();
    QWidget* BuildRace();
    QWidget* BuildWings();
    QWidget* BuildWares();
    JobBoxes* AddBoxes(JobBoxes* Boxes);
    QLineEdit* AddEdit(const char* Name, std::int32_t Field, const QString& Tip,
                       const QString& Spoken, QWidget* Page);
    void LoadFiles();
    void UpdateEnabled();

    // The job on view
    void ShowTab();
    void FillTab(int Tab);
    void ShowFields();
    void ShowInfo();
    [[nodiscard]] QList<PropertyRow> TippedRows(std::span<const std::int32_t> Fields) const;
    void ShowShipName();
    void ShowRole();
    void FillWings();
    void ShowWing(const clsTXTObject& Wing);
    [[nodiscard]] RecordPtr JobOf(const KeshValue& Number); ///< in the file; none if none
    void FillWares();
    void WarnOfOldFile();

    /// Writes what a click asks for, unless nothing may be changed, as one change.
    void Change(const std::function<void(clsTXTObject&)>& Write);
    void PickRole(int Role);
    [[nodiscard]] const clsTXTObject* Job() const noexcept { return CurrentObject().get(); }

    std::optional<JobIndex> m_wings;
    bool m_warned = false;
    std::optional<JobIndex> m_jobs; ///< once it was asked for

    QTabWidget* m_tabs = nullptr;
    QList<bool> m_filled; ///< by tab
    QList<JobBoxes*> m_boxes;
    QList<ShownField> m_edits;
    PropertyView* m_fields = nullptr;
    PropertyView* m_equipment = nullptr;
    QLabel* m_summary = nullptr;
    LabelPlace* m_summaryPlace = nullptr;
    QLabel* m_shipName = nullptr;
    QGroupBox* m_roleGroup = nullptr;
    QButtonGroup* m_roles = nullptr;
    JobShipBox* m_ship = nullptr;
    GoToAction* m_goToShip = nullptr;
    TextRowsView* m_wingJobs = nullptr;
    WareListViewer* m_wares = nullptr;
};
