#pragma once

#include "tests/windows/widget/window_under_test.h"

#include <QStringList>

// Does to a window everything that can reach it while a run holds mouse and keyboard off: presses
// and toggles by assistive programs, clicks and changes made by code, as timers make them, and the
// gestures themselves, in case one slips through.
class Intruder
{
public:
    explicit Intruder(WindowUnderTest& window);

    // Makes every attempt. Presses by assistive programs take effect a moment later, from a timer.
    void tryEverything();

    // The attempts that changed rows, buttons or check box at once, by name.
    QString changes() const { return changed.join(QLatin1String(", ")); }

    // True when the presses by assistive programs have arrived too.
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
