#pragma once

#include <QSettings>
#include <QString>

// The suite's registry key, emptied at the beginning and end of its scope.
class SuiteRegistry
{
public:
    SuiteRegistry() { clear(); }
    ~SuiteRegistry() { clear(); }
    SuiteRegistry(const SuiteRegistry&) = delete;
    SuiteRegistry& operator=(const SuiteRegistry&) = delete;

    // The tests run outside both brands' folders, so the default brand's list is used.
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
