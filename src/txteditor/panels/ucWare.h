// The panel for wares, weapons, stations and all other bodies: the fields of a record, its flags,
// its icon and its description.
#pragma once

#include "tdata/WareFields.h"
#include "tdata/WareRows.h"
#include "txteditor/panels/RecordPanel.h"

#include <memory>

class FlagBoxes;
class PropertyView;

class ucWare final : public RecordPanel {
    Q_OBJECT

public:
    explicit ucWare(QWidget* Parent = nullptr);

    void SetReadOnly(bool Value) override;
    [[nodiscard]] bool LornQueryInterface(std::int32_t OType) const override;
    [[nodiscard]] bool LornQueryInterfaceEx(std::int32_t& OType) override;
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] std::string ObjectTypeName(std::int32_t OType) const override;
    [[nodiscard]] std::string PageName(std::int32_t OType) const override;
    [[nodiscard]] std::int32_t LornQueryInfo(std::int32_t OType) const override;
    [[nodiscard]] bool Validate(std::string& Text) override;
    [[nodiscard]] std::string GetRace(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetResourceName(const RecordPtr& Object) const override;

    void ShowObject(const RecordPtr& Object, std::int32_t OType) override;
    RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                           const RecordPtr& Before) override;

    bool KeshExportData(QWidget* Owner) override;
    void ObjectReset(const RecordPtr& Object) override;

protected:
    [[nodiscard]] const FieldConverter* Converter() const override { return &m_fields; }
    bool EditFields(std::int32_t Row) override;
    void RefreshViews() override;

private:
    void BuildControls();
    void BuildToolbar(std::int32_t OType);
    QAction* AddViewAction(const char* Icon, const QString& Key, const QString& Text,
                           const QString& Tip, std::int32_t Field, bool Scene);
    void Prepare(std::int32_t OType);

    [[nodiscard]] PropertyRow RowFor(const WareRow& Row) const;
    [[nodiscard]] PropertyRow ComputedRowFor(WareRow::Kind What) const;
    void ShowDescription();
    void ShowFlags();
    void ShowIcon();
    void SetFlag(int Bit, bool On);

    WareFields m_fields;
    std::shared_ptr<const QImage> m_picture; ///< of all icons; none if it cannot be had

    QToolBar* m_bar = nullptr;
    std::int32_t m_barType = -1;
    QList<QAction*> m_scenes; ///< the toolbar's buttons that depend on the type
    PropertyView* m_view = nullptr;
    QLabel* m_icon = nullptr;
    FlagBoxes* m_flags = nullptr;
    QPlainTextEdit* m_description = nullptr;
};
