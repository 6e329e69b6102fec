#pragma once

#include "tests/windows/widget/window_under_test.h"

#include <QStringList>

// Tries everything that can reach a window while a run blocks mouse and keyboard: presses and
// toggles by assistive programs, clicks and changes by code, as from timers, and mouse and keyboard
// events.
class Intruder
{
public:
    explicit Intruder(WindowUnderTest& window);

    // Makes every attempt. Presses by assistive programs take effect later, from a timer.
    void tryEverything();

    // The names of the attempts that changed rows, buttons or the check box immediately.
    QString changes() const { return changed.join(QLatin1String(", ")); }

    // True once the presses by assistive programs have arrived.
    bool pressesHaveArrived() const;

private:
    template <typename Attempt>
    void attempt(const char* name, Attempt&& make);

    WindowUnderTest& under;
    QSignalSpy uninstallClicks;
    QSignalSpy selectClicks;
    QStringList changed;
    bool pressed = false;
};
