// The panel for WareLists: the wares of one list. It changes nothing.
#pragma once

#include "txteditor/panels/RecordPanel.h"

class WareListView;

class ucWareList final : public RecordPanel {
    Q_OBJECT

public:
    explicit ucWareList(QWidget* Parent = nullptr);

    [[nodiscard]] bool LornQueryInterface(std::int32_t OType) const override;
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] std::string ObjectTypeName(std::int32_t OType) const override;
    [[nodiscard]] std::string PageName(std::int32_t OType) const override;
    [[nodiscard]] std::int32_t LornQueryInfo(std::int32_t OType) const override;
    void ShowObject(const RecordPtr& Object, std::int32_t OType) override;
    RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                           const RecordPtr& Before) override;
    [[nodiscard]] std::string LornGetPropertyName(const RecordPtr& Object,
                                                  std::int32_t Index) const override;
    void ObjectReset(const RecordPtr& Object) override;

protected:
    void RefreshViews() override;

private:
    WareListView* m_view;
};
