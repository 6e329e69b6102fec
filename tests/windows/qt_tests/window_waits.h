#pragma once

// Waits for windows on the screen. Qt Test's own five seconds are too short for a busy machine.

#include <QtTest>
#include <QWidget>

namespace windows_tests {

constexpr int patienceMs = 60'000;

inline bool becomesVisible(QWidget& window)
{
    return QTest::qWaitForWindowExposed(&window, patienceMs);
}

// Asks for the focus again when it went to another window meanwhile: to one that was just closing,
// for example.
inline bool becomesActive(QWidget& window)
{
    constexpr int attemptMs = 2'000;
    for (int waited = 0; waited < patienceMs; waited += attemptMs) {
        if (QTest::qWaitForWindowActive(&window, attemptMs))
            return true;
        window.activateWindow();
    }
    return false;
}

} // namespace windows_tests
