// Shows and edits the types of turrets of a TCockpits file.
#pragma once

#include "txteditor/panels/RecordPanel.h"
#include "txteditor/panels/WeaponLists.h"

#include <memory>

class PropertyView;

class ucTurret final : public RecordPanel {
    Q_OBJECT

public:
    explicit ucTurret(QWidget* Parent = nullptr);

    void SetReadOnly(bool Value) override;
    [[nodiscard]] bool LornQueryInterface(std::int32_t OType) const override;
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] std::string ObjectTypeName(std::int32_t OType) const override;
    [[nodiscard]] std::string PageName(std::int32_t OType) const override;
    [[nodiscard]] std::int32_t LornQueryInfo(std::int32_t OType) const override;
    void ShowObject(const RecordPtr& Object, std::int32_t OType) override;
    RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                           const RecordPtr& Before) override;
    [[nodiscard]] bool LornTranslateValueBack(const RecordPtr& Object, std::string& Text,
                                              std::int32_t Index, KeshValue& Value) override;

protected:
    void RefreshViews() override;

private:
    void ShowLasers();
    void TakeMask(std::uint32_t Mask);

    QTabWidget* m_tab;
    PropertyView* m_fields;
    WeaponLists* m_weapons;
    bool m_lasersSought = false;
    std::shared_ptr<clsTxtParser> m_lasers;
    QList<WeaponLists::Row> m_rows; ///< of the lasers that a mask of this file can allow
};
