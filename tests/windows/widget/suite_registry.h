#pragma once

#include <QSettings>
#include <QString>

// The suite's part of the registry, emptied when the test begins and when it ends. The test's
// own Wine prefix, or the tester's account on Windows, is the only one it touches.
class SuiteRegistry
{
public:
    SuiteRegistry() { clear(); }
    ~SuiteRegistry() { clear(); }
    SuiteRegistry(const SuiteRegistry&) = delete;
    SuiteRegistry& operator=(const SuiteRegistry&) = delete;

    // The tests run outside any folder of either brand, hence the list of the default one.
    void addApplication(const QString& displayName, const QString& command)
    {
        root.setValue(QStringLiteral("UninstPaths/") + displayName, command);
        root.sync();
    }

    void addPath(const QString& idString, const QString& installPath)
    {
        root.setValue(QStringLiteral("AppPaths/") + idString, installPath);
        root.sync();
    }

    QVariant value(const QString& key)
    {
        root.sync();
        return root.value(key);
    }

    void clear()
    {
        root.clear();
        root.sync();
    }

private:
    QSettings root{QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvane\\"),
                   QSettings::NativeFormat};
};
