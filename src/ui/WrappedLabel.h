#pragma once

#include <QtWidgets>

/// Breaks its text and keeps the height that this takes at its width, also where what is around it
/// (the pages of a tab) does not ask for one.
class WrappedLabel : public QLabel {
public:
    explicit WrappedLabel(const QString& Text, QWidget* Parent = nullptr) : QLabel(Text, Parent) {
        setWordWrap(true);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        setMinimumHeight(heightForWidth(event->size().width()));
    }
};
