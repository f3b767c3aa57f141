// A place for labels of which every record has another text.
#pragma once

#include <QtWidgets>

#include <algorithm>

/// A place for a label whose text changes often: in a layout each new text would lay out and paint
/// the whole window anew.
class LabelPlace : public QWidget {
public:
    /// With room for `lines`; for a text that needs more the place grows, up to `most`, and stays
    /// so until its width changes.
    explicit LabelPlace(QLabel& label, QWidget* parent, int lines = 1, int most = 1)
        : QWidget(parent), m_label(label), m_least(lines), m_most(most), m_lines(lines) {
        label.setParent(this);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    [[nodiscard]] QSize sizeHint() const override {
        const QSize room(0, m_lines * LineHeight());
        return m_label.wordWrap() ? room : m_label.sizeHint().expandedTo(room);
    }
    void Fit() { ///< to the text that the label has now
        if (m_most <= m_least)
            return;
        const int needed = (m_label.heightForWidth(width()) + LineHeight() - 1) / LineHeight();
        const int former = std::exchange(m_lines, std::clamp(needed, m_lines, m_most));
        if (m_lines != former)
            updateGeometry();
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        m_label.setGeometry(rect());
        if (event->oldSize().width() == width() || m_most <= m_least)
            return;
        m_lines = m_least;
        updateGeometry();
        Fit();
    }

private:
    [[nodiscard]] int LineHeight() const { return m_label.fontMetrics().lineSpacing(); }

    QLabel& m_label;
    int m_least; ///< lines
    int m_most;
    int m_lines; ///< that there is room for
};
