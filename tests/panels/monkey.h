// Clicks and keys all over a panel, from a seed. What opens is closed, what is asked is refused.
#pragma once

#include "support/refusinginterface.h"

#include <QTest>

#include <array>
#include <random>

class Monkey {
public:
    explicit Monkey(unsigned seed)
        : m_random(seed),
          m_former(SetUserInterface(std::make_unique<support::RefusingInterface>())) {
        QObject::connect(&m_close, &QTimer::timeout, &m_close, [] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        m_close.start(0);
    }
    ~Monkey() { SetUserInterface(std::move(m_former)); }
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    /// Something in the panel is clicked once or twice, then a key is pressed.
    void Step(const QWidget& panel) {
        const QList<QWidget*> targets = panel.findChildren<QWidget*>();
        QWidget* target = targets[Below(static_cast<int>(targets.size()))];
        const QPoint place(Below(40), Below(40));
        const auto modifier = Below(4) == 0 ? Qt::ControlModifier : Qt::NoModifier;
        if (target->isVisible() && target->rect().contains(place)) {
            if (Below(2) == 0)
                QTest::mouseDClick(target, Qt::LeftButton, modifier, place);
            else
                QTest::mouseClick(target, Qt::LeftButton, modifier, place);
        }
        if (QWidget* focus = QApplication::focusWidget())
            QTest::keyClick(focus, keys.at(Below(std::size(keys))));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    }
    [[nodiscard]] int Below(int limit) {
        return static_cast<int>(m_random() % static_cast<unsigned>(limit));
    }

private:
    static constexpr std::array keys = {Qt::Key_F2,   Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,
                                        Qt::Key_Down, Qt::Key_7,      Qt::Key_X,      Qt::Key_Space,
                                        Qt::Key_F12,  Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Home};

    std::mt19937 m_random; // NOLINT(cert-msc51-cpp): the same each time
    std::unique_ptr<UserInterface> m_former;
    QTimer m_close;
};
