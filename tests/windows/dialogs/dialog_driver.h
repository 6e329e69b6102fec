#pragma once

// Operates modal dialogs while the program waits inside their exec().

#include "tests/windows/qt_tests/window_waits.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QtTest>

#include <deque>
#include <functional>

class DialogDriver : public QObject
{
public:
    using Step = std::function<void(QDialog& dialog)>;

    DialogDriver() { arm(); }

    // The next modal dialog must be of this class; `step` is called once it is active.
    void expect(const char* className, Step step) { steps.push_back({className, std::move(step)}); }

    // Empty when exactly the expected dialogs appeared, in order.
    QString problem() const
    {
        if (!failure.isEmpty() || steps.empty())
            return failure;
        return QStringLiteral("never seen: ") + QLatin1String(steps.front().className);
    }

private:
    struct Expected
    {
        const char* className;
        Step step;
    };

    static constexpr int intervalMs = 10;

    // Each look has a new timer: a timer does not fire inside its own handler, where a dialog may
    // be open.
    void arm()
    {
        QTimer::singleShot(intervalMs, this, [this] { look(); });
    }

    void look()
    {
        arm();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        // A dialog whose step was called may still be open: below the next one, or about to close.
        if (seen.contains(dialog)) {
            if (sinceStep.hasExpired(windows_tests::patienceMs))
                giveUp(*dialog, QStringLiteral("does not close"));
            return;
        }
        seen.append(dialog);
        sinceStep.start();
        if (steps.empty() || !dialog->inherits(steps.front().className)) {
            giveUp(*dialog, QStringLiteral("not expected"));
            return;
        }
        const Step step = std::move(steps.front().step);
        steps.pop_front();
        if (!windows_tests::becomesActive(*dialog)) {
            giveUp(*dialog, QStringLiteral("never active"));
            return;
        }
        step(*dialog);
    }

    void giveUp(QDialog& dialog, const QString& why)
    {
        if (failure.isEmpty())
            failure = QLatin1String(dialog.metaObject()->className()) + QLatin1Char(' ') + why;
        dialog.reject();
        dialog.hide();
    }

    std::deque<Expected> steps;
    QList<QPointer<QDialog>> seen; // a later dialog may live at the same address
    QElapsedTimer sinceStep;
    QString failure;
};

// Gestures for the steps.
inline DialogDriver::Step clickButton(const char* objectName)
{
    return [objectName](QDialog& dialog) {
        auto* button = dialog.findChild<QWidget*>(QLatin1String(objectName));
        QVERIFY(button != nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
    };
}

inline DialogDriver::Step pressKey(Qt::Key key)
{
    return [key](QDialog& dialog) { QTest::keyClick(dialog.windowHandle(), key); };
}

// By QWidget::close().
inline DialogDriver::Step closeByTitleBar()
{
    return [](QDialog& dialog) { dialog.close(); };
}

// By the message that Windows sends for Alt+F4 and for the title bar's button.
DialogDriver::Step sendSystemClose();

// Through the system's keyboard, to the window that has it.
DialogDriver::Step pressAltF4();
