#include "ui/uninstall/src/uninstall_run.h"

#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/uninstall_command.h"

#include <optional>

namespace uninstall {

namespace {

bool everyRowChecked(std::size_t rowCount, const IUninstallSteps& steps)
{
    for (std::size_t row = 0; row < rowCount; ++row) {
        if (!steps.isChecked(row))
            return false;
    }
    return true;
}

// After a cancel no further application is probed.
void closeIfRunning(int id, IUninstallSteps& steps)
{
    if (steps.cancelled())
        return;
    const std::string idString = idToString(id);
    if (steps.isRunning(idString))
        steps.showWarningAndKillApp(idString);
}

} // namespace

void runUninstall(std::size_t rowCount, IUninstallSteps& steps)
{
    if (rowCount == 0)
        return;

    const bool allChecked = everyRowChecked(rowCount, steps);
    int remaining = static_cast<int>(rowCount);
    std::optional<std::size_t> suiteRow;
    std::vector<std::string> suiteCommandParts;

    for (std::size_t row = 0; row < rowCount; ++row) {
        if (!steps.isChecked(row))
            continue;
        const std::string command = steps.command(row);
        const int id = idFromString(idStringFromCommand(command));
        steps.setCurrentAppId(id);

        if (id == suiteId) {
            // The suite goes last, after this loop, and every application must be closed for it.
            // Ids without an application are probed too.
            suiteRow = row;
            suiteCommandParts = splitCommand(command);
            for (int appId = firstAppId; appId <= lastAppId; ++appId)
                closeIfRunning(appId, steps);
            continue;
        }

        if (hasExitSurvey(id))
            steps.openExitSurvey(id);
        closeIfRunning(id, steps);
        if (steps.cancelled())
            continue;
        steps.uninstall(remaining, splitCommand(command), allChecked);
        steps.removeRow(row);
        --remaining;
    }

    if (allChecked && !steps.cancelled()) {
        steps.uninstall(remaining, suiteCommandParts, true);
        if (suiteRow)
            steps.removeRow(*suiteRow);
    }
}

} // namespace uninstall
