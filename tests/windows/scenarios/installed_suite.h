#pragma once

#include "tests/windows/ipc/running_program.h"
#include "tests/windows/support/scratch_folder.h"

#include <string>
#include <vector>

namespace scenarios {

using ipctest::becomesTrue;
using windows_tests::ChildProcess;

// An application of the sample suite (tests/sample_suite/applications.py).
struct Application
{
    std::wstring idString;
    std::wstring displayName;
    std::wstring folder;
};

extern const Application tessera;
extern const Application beatGrid; // in a folder with letters of several scripts
extern const Application clipSaver;
extern const Application karaokeStage;
extern const Application photoStory;
extern const Application waveTuner;

// The sample suite on this computer, below a scratch folder. The user's settings of the suite are
// emptied at the beginning and end of the scope.
class InstalledSuite
{
public:
    explicit InstalledSuite(std::vector<Application> applications);
    ~InstalledSuite();
    InstalledSuite(const InstalledSuite&) = delete;
    InstalledSuite& operator=(const InstalledSuite&) = delete;

    // Whether all installers succeeded and the program is in the suite's folder.
    bool complete() const { return isComplete; }

    std::filesystem::path programFolder() const { return folder(tessera); }
    std::wstring program() const { return programFolder() / L"Uninstall.exe"; }
    std::filesystem::path folder(const Application& application) const;
    std::wstring uninstaller(const Application& application) const;
    static std::filesystem::path settingsFolder();
    static bool isRegistered(const Application& application);
    // Its program and settings are there, it is registered, and its uninstaller has not begun.
    bool isUntouched(const Application& application) const;
    // Its program folder and registration are gone; its settings stay when `keepsSettings`. To be
    // asked after removalArguments.
    bool isRemoved(const Application& application, bool keepsSettings) const;

    // Waits until its uninstaller, which outlives the process that the program starts, has ended;
    // returns the uninstaller's arguments, joined by blanks.
    std::wstring removalArguments(const Application& application) const;
    static std::wstring logSwitch(const Application& application);

    // The uninstallers that the program's log says it started, in order.
    static std::vector<std::wstring> startedUninstallers();

private:
    void clear() const;

    std::vector<Application> installed;
    windows_tests::ScratchFolder root;
    bool isComplete = false;
};

} // namespace scenarios
