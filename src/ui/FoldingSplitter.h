#pragma once

#include <QtWidgets>

/// Puts its panes one below the other where it is too narrow for both side by side.
class FoldingSplitter : public QSplitter {
public:
    /// `Narrow` is the least width for panes side by side, in characters.
    FoldingSplitter(const char* Name, int Narrow, QWidget* Parent)
        : QSplitter(Parent), m_narrow(Narrow) {
        setObjectName(QString::fromLatin1(Name));
        setChildrenCollapsible(false);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        const int narrow = m_narrow * fontMetrics().averageCharWidth();
        const auto way = event->size().width() < narrow ? Qt::Vertical : Qt::Horizontal;
        if (orientation() != way)
            setOrientation(way);
        QSplitter::resizeEvent(event);
    }

private:
    int m_narrow;
};
