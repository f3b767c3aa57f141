// What the dialogs of a ship's turrets and guns share: edits for values that stand in a row in the
// record, and an OK that stores all of what was typed or nothing.
#pragma once

#include "tdata/clsShip.h"
#include "ui/TextCodec.h"

#include <QtWidgets>

#include <functional>
#include <optional>

class EntryDialog : public QDialog {
    Q_OBJECT

public:
    /// Asked for the encoding of the record's file when a text goes beyond ASCII.
    std::function<TextEncoding()> FileEncoding;
    /// 1 after OK, 2 after Cancel.
    [[nodiscard]] int ModalResult() const noexcept { return m_modalResult; }

protected:
    enum class Holds { Text, Number };

    /// An edit for one value. Where nothing may be missing Missing says that it is.
    struct Entry {
        QLineEdit* Edit = nullptr;
        std::int32_t Index = 0; ///< of the value, from the first of its row
        Holds What = Holds::Text;
        QString Missing = {};
        QString NotWhole = {}; ///< refuses a number that is none
        QString Negative = {}; ///< refuses a number below 0
        QString Shown = {};    ///< the text that stands for the present value
    };

    EntryDialog(const QString& Name, const QString& Title, QWidget* Owner);

    /// Rows of labels and controls, alone and in a titled frame.
    [[nodiscard]] QFormLayout* AddRows();
    [[nodiscard]] QFormLayout* AddFrame(const QString& Title);
    /// `Spoken` is what a screen reader says where the label alone would not do.
    QLineEdit* AddEdit(QFormLayout& Form, const QString& Name, const QString& Label,
                       const QString& Spoken = {});
    /// An edit that only shows.
    QLineEdit* AddShown(QFormLayout& Form, const QString& Name, const QString& Label);
    /// One whose text may be typed or chosen.
    QComboBox* AddCombo(QFormLayout& Form, const QString& Name, const QString& Label);
    /// The last rows; the entries stand in the order of their checks.
    void Finish(QList<Entry> Entries);

    /// Fills the edits from the values at `Offset` and runs the dialog, which begins at `First`;
    /// without a record the edits are empty and all of them are stored. Says so if the record
    /// cannot be read.
    void Run(const clsTXTObject* Record, std::int32_t Offset, QLineEdit& First);
    /// Stores what was typed into the edits.
    void WriteEntries(clsShip& Ship, std::int32_t Offset) const;
    /// What a person typed as a whole number of 32 bits, if it is one.
    [[nodiscard]] static std::optional<std::int32_t> WholeNumber(const QString& Text);
    [[nodiscard]] static bool IsNumber(const QString& Text);
    /// Says why OK was refused, beside the edits and, unless it is to be quiet, in a box; false.
    bool Refuse(QWidget& At, const QString& Text, bool Quiet = false);
    void SayReason(const QString& Text);

private:
    /// Fills the other controls; may throw.
    virtual void ShowOthers() = 0;
    /// Checks of one dialog behind those of the entries; the reason is said.
    [[nodiscard]] virtual bool CheckOthers() = 0;
    /// Changes the record as a whole or throws.
    virtual void Store() = 0;

    void ShowEntries(const clsTXTObject* Record, std::int32_t Offset);
    void OnOk();
    [[nodiscard]] bool CheckAll(bool (EntryDialog::*Check)(const Entry&));
    [[nodiscard]] bool CheckPresence(const Entry& Checked);
    [[nodiscard]] bool CheckContent(const Entry& Checked);
    [[nodiscard]] bool CheckNumber(const Entry& Checked);
    [[nodiscard]] bool Typed(const Entry& Of) const;
    [[nodiscard]] KeshValue ValueOf(const Entry& Of) const;

    QList<Entry> m_entries;
    bool m_new = false; ///< there is no value yet
    int m_modalResult = 2;
    QVBoxLayout* m_rows = nullptr;
    QLabel* m_reason = nullptr; ///< why OK was refused
};
