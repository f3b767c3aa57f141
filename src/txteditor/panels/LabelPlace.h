// A place for labels of which every record has another text.
#pragma once

#include <QtWidgets>

/// A place for a label whose text changes often: in a layout each new text would lay out and paint
/// the whole window anew.
class LabelPlace : public QWidget {
public:
    explicit LabelPlace(QLabel& label, QWidget* parent, int lines = 1)
        : QWidget(parent), m_label(label), m_lines(lines) {
        label.setParent(this);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    [[nodiscard]] QSize sizeHint() const override {
        return m_label.sizeHint().expandedTo({0, m_lines * m_label.fontMetrics().lineSpacing()});
    }

protected:
    void resizeEvent(QResizeEvent*) override { m_label.setGeometry(rect()); }

private:
    QLabel& m_label;
    int m_lines; ///< that there is room for
};
