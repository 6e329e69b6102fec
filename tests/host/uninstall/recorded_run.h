#pragma once

#include "ui/uninstall/src/uninstall_run.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace uninstall {

struct RecordedRow
{
    std::string command;
    bool checked = true;
};

// A fake window that records the run's steps, one line each.
class RecordedRun : public IUninstallSteps
{
public:
    explicit RecordedRun(std::vector<RecordedRow> listRows) : rows(std::move(listRows)) {}

    // Id strings whose instance mutex exists.
    std::set<std::string> running;
    // The user's answer to a warning; returns true for Cancel.
    std::function<bool(const std::string& idString)> cancels = [](const std::string&) {
        return false;
    };
    std::vector<RecordedRow> rows;
    mutable std::vector<std::string> steps;

    std::vector<std::string> run()
    {
        runUninstall(rows.size(), *this);
        return steps;
    }

    // The steps that begin with one of these words.
    std::vector<std::string> only(const std::set<std::string>& words) const
    {
        std::vector<std::string> found;
        for (const std::string& step : steps) {
            if (words.count(step.substr(0, step.find(' '))) != 0)
                found.push_back(step);
        }
        return found;
    }

    bool isChecked(std::size_t row) const override { return rows.at(row).checked; }
    std::string command(std::size_t row) const override { return rows.at(row).command; }
    void setCurrentAppId(int id) override { steps.push_back("id " + std::to_string(id)); }
    void openExitSurvey(int id) override { steps.push_back("survey " + std::to_string(id)); }
    bool isRunning(const std::string& idString) const override
    {
        steps.push_back("probe [" + idString + "]");
        return running.count(idString) != 0;
    }
    void showWarningAndKillApp(const std::string& idString) override
    {
        steps.push_back("warning [" + idString + "]");
        if (cancels(idString))
            isCancelled = true;
    }
    bool cancelled() const override { return isCancelled; }
    void uninstall(int remaining, const std::vector<std::string>& commandParts, bool full) override
    {
        std::string step = "uninstall " + std::to_string(remaining) + " remaining, " +
                           (full ? "full" : "selective");
        for (const std::string& part : commandParts)
            step += " [" + part + "]";
        steps.push_back(step);
    }
    void removeRow(std::size_t row) override { steps.push_back("remove " + std::to_string(row)); }

private:
    bool isCancelled = false;
};

// The command as an installer registers it.
inline std::string commandOf(const std::string& idString)
{
    return "C:\\" + idString + ".exe /log=\"C:\\logs\\" + idString + "_uninstall.log\"";
}

inline std::string uninstallStep(int remaining, bool full, const std::string& idString)
{
    return "uninstall " + std::to_string(remaining) + " remaining, " +
           (full ? "full" : "selective") + " [C:\\" + idString + ".exe] [=\"C:\\logs\\" + idString +
           "_uninstall.log\"]";
}

} // namespace uninstall
