#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace uninstall {

// What the run needs from the window. Rows are numbered by their position at the start of the run,
// and keep their numbers when rows before them leave the list. The caller's thread only.
class IUninstallSteps
{
public:
    virtual ~IUninstallSteps() = default;

    // The row's check box as it is now: a cancelled warning changes the boxes during the run.
    virtual bool isChecked(std::size_t row) const = 0;
    // The row's uninstall command, empty when none is registered.
    virtual std::string command(std::size_t row) const = 0;
    virtual void setCurrentAppId(int id) = 0;
    virtual void openExitSurvey(int id) = 0;
    virtual bool isRunning(const std::string& idString) const = 0;
    // May make cancelled() return true.
    virtual void showWarningAndKillApp(const std::string& idString) = 0;
    virtual bool cancelled() const = 0;
    // `commandParts` is empty for a suite that has no row.
    virtual void uninstall(int remaining, const std::vector<std::string>& commandParts,
                           bool full) = 0;
    virtual void removeRow(std::size_t row) = 0;
};

// Uninstalls the checked rows in their order, and the suite last when every row was checked.
// Returns when the last step is done.
void runUninstall(std::size_t rowCount, IUninstallSteps& steps);

} // namespace uninstall
