// A group of check boxes, each for one field of a job.
#pragma once

#include "txteditor/panels/JobControls.h"

#include <QtWidgets>

class JobBoxes : public QGroupBox {
    Q_OBJECT

public:
    /// The group is called as the first row.
    JobBoxes(std::initializer_list<const JobBoxRow*> Rows, QWidget* Parent);

    /// What the fields hold; without a job nothing. Tells of no click.
    void Show(const clsTXTObject* Job);
    /// Asks for the captions anew: they may come from other texts.
    void Rename();

Q_SIGNALS:
    void Clicked(qint32 Field, bool On); ///< by the user

private:
    struct Box {
        QCheckBox* Control;
        const JobBoxRow* Row;
        std::int32_t Place;
        [[nodiscard]] std::int32_t Field() const { return Row->Flags.First + Place; }
    };

    void AddBox(const JobBoxRow& Row, std::int32_t Place);

    QList<Box> m_boxes;
};

/// What a tip says of the field behind a control: where it stands, what it holds beyond yes and no,
/// and whether another field stands there in its stead. Plain text.
[[nodiscard]] QString JobFieldTip(const clsTXTObject* Job, std::int32_t Field, bool IsFlag);
/// A text of the data as the caption of a button.
[[nodiscard]] QString ButtonCaption(const QString& Text);
