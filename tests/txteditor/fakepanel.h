// A panel whose answers a test sets.
#pragma once

#include "tdata/NewObjectName.h"
#include "txteditor/ObjectEditor.h"

#include <set>
#include <stdexcept>

class FakePanel : public ObjectEditor {
public:
    std::int32_t Serves = 6;
    std::int32_t Info = panelinfo::HasNames | panelinfo::HasRaces | panelinfo::HasClasses;
    bool InitResult = true;
    std::string Report;  ///< of Validate; empty if all is well
    bool Fails = false;  ///< the texts of rows throw
    bool Broken = false; ///< most other calls throw
    bool Chatty = false; ///< it changes a field, and tells so, in calls that replace values
    std::int32_t Class = translation::None;
    std::int32_t Type = valuetype::String;
    std::string Translated;        ///< of any value; empty if there is none
    std::optional<KeshValue> Back; ///< of any text; none refuses
    std::vector<std::string> Choices;
    std::vector<RecordFilter> Offered; ///< of the first, every second record passes a choice
    std::string Entered;               ///< the last text that was to be translated back

    clsTxtParser* Parser = nullptr;
    std::set<const clsTXTObject*> Known; ///< the records of which it has views
    const clsTXTObject* Keeps = nullptr; ///< it does not let this record go
    int Creations = 1000000;             ///< before it fails

    RecordPtr Shown;
    RecordPtr Reset;

    std::string GetLastError() const override { return "no laser file"; }
    bool LornQueryInterface(std::int32_t OType) const override { return OType == Serves; }
    bool LornQueryInterfaceEx(std::int32_t& OType) override { return OType == Serves; }
    bool Init(clsTxtParser& File) override {
        Parser = &File;
        Known.clear();
        for (const RecordPtr& record : File.ByIndex())
            Known.insert(record.get());
        return InitResult;
    }
    std::string ObjectTypeName(std::int32_t) const override { return Text("Things v.1"); }
    std::string PageName(std::int32_t) const override { return "Thing info"; }
    std::int32_t LornQueryInfo(std::int32_t) const override {
        Break();
        return Info;
    }
    bool Validate(std::string& Text) override {
        Text = Report;
        return Report.empty();
    }
    std::string ObjectName(const RecordPtr& Object) const override {
        return Text(std::string(Object->ObjectName()));
    }
    std::string GetClass(const RecordPtr& Object) const override {
        return Text("class " + std::string(Object->ValueText(1)));
    }
    std::string GetRace(const RecordPtr&) const override { return Text("race"); }
    std::string GetResourceName(const RecordPtr& Object) const override {
        return Text(Object->Index == 0 ? "First" : "");
    }
    std::vector<RecordFilter> Filters() const override { return Offered; }
    bool Passes(const RecordPtr& Object, int Filter, int Choice) const override {
        Break();
        return Filter > 0 || Object->Index % 2 == Choice;
    }
    void ShowObject(const RecordPtr& Object, std::int32_t) override {
        if (Object && !Known.contains(Object.get()))
            throw std::runtime_error("not one of mine");
        Shown = Object;
    }
    RecordPtr CreateObject(std::int32_t, clsTxtParser& Target, const RecordPtr& Before) override {
        if (Creations == 0)
            return {};
        --Creations;
        const RecordPtr made = Target.CreateObjectBefore(Before);
        made->Construct(17);
        Known.insert(made.get());
        return made;
    }
    bool InitObject(const RecordPtr& Object) override {
        Break();
        Chat(Object);
        return Known.contains(Object.get());
    }
    bool RemoveObject(const RecordPtr& Object) override {
        return Object.get() != Keeps && Known.erase(Object.get()) == 1;
    }
    void RestoreObject(const RecordPtr& Object) override {
        Known.insert(Object.get());
        Break();
    }
    bool LornAssignUniqueObjectName(const RecordPtr& Object) override {
        Object->SetObjectName(NewObjectName(*Parser));
        return true;
    }
    std::string LornGetPropertyName(const RecordPtr&, std::int32_t) const override {
        return "Speed";
    }
    std::int32_t LornGetValueType(const RecordPtr&, std::int32_t) const override { return Type; }
    std::string LornGetValueUnit(const RecordPtr&, std::int32_t) const override { return "m/s"; }
    std::int32_t LornSupportValueTranslate(const RecordPtr&, std::int32_t) const override {
        return Class;
    }
    std::vector<std::string> LornGetPropertyValues(const RecordPtr&, std::int32_t) const override {
        return Choices;
    }
    bool LornTranslateValue(const RecordPtr&, std::int32_t, std::string& Text,
                            bool) const override {
        Text = Translated;
        return !Translated.empty();
    }
    bool LornTranslateValueBack(const RecordPtr&, std::string& Text, std::int32_t,
                                KeshValue& Value) override {
        Entered = Text;
        Break();
        if (Back)
            Value = *Back;
        return Back.has_value();
    }
    bool KeshExportData(QWidget*) override {
        Break();
        return true;
    }
    void ObjectReset(const RecordPtr& Object) override {
        Reset = Object;
        Break();
        Chat(Object);
    }

    /// Changes a field as a panel does, with or without its event.
    void Change(const RecordPtr& Object, std::int32_t Index, const KeshValue& Value, bool Tell) {
        Object->SetValue(Index, Value);
        if (Tell)
            Q_EMIT OnObjectChanged(Object);
    }

private:
    void Break() const {
        if (Broken)
            throw std::runtime_error("broken");
    }
    void Chat(const RecordPtr& Object) {
        if (Chatty)
            Change(Object, 2, Object->Index + 50, true);
    }
    std::string Text(std::string text) const {
        if (Fails)
            throw std::runtime_error("broken");
        return text;
    }
};
