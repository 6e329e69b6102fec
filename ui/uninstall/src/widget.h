#pragma once

#include "ui/common/config/config.h"
#include "ui/common/sys/interprocess_communication_app.h"
#include "ui/uninstall/src/list_state.h"
#include "ui/uninstall/src/run_state.h"

#include <memory>
#include <string>
#include <vector>

class QListWidgetItem;

namespace lang {
class CTranslators;
}

namespace Ui {
class Widget;
}

// The uninstaller's only main window: the list of the suite's installed applications, the choice
// of what to remove, and the uninstall run. Constructing it is the program's whole start-up: the
// single-instance hand-over, logging, translation and filling of the list.
//
// Once the run has begun, only the run changes rows, buttons and check box; the slots for the
// user's actions do nothing.
//
// Threads: the GUI thread only. Start-up does not fail: without the registry key the list is empty,
// without a catalogue the texts are English.
class Widget : public CInterprocessCommunicationApp
{
    Q_OBJECT

public:
    // `arguments` are the process's arguments after the program name. If they were handed to
    // another copy, isAnotherInstanceRunning() is true afterwards and the window must not be shown.
    explicit Widget(std::vector<std::string> arguments, QWidget* parent = nullptr);
    ~Widget() override;

signals:
    void firstShow();

public slots:
    // The whole run over the checked rows; asks the application to quit at its end. Does nothing
    // once a run has begun.
    void uninstallButtonClicked();

    // Asks whether the running application may be closed, and ends it or cancels the run.
    // `appName` is the application's id string. `isLMCApp` means that it belongs to the suite; then
    // its folder name is shown instead.
    void showWarningAndKillApp(std::string appName, bool isLMCApp);

    void setSelectButtonMode(bool changeTextToSelectAll);
    void allApplicationsSelButtonClicked();
    void toggleItem(QListWidgetItem* item);
    void on_firstShow();

public:
    void changeItemsState(bool checked);

    // Checks the rows of the application with this id string, for "/app".
    void selectApplication(QString id);

    // Asks the user of application 60 or 61 why it is being removed. The first call in the
    // process starts the statistics.
    void openExitSurvey(int appId);

    // Runs one uninstaller and waits for it for at most two seconds. `remaining` counts the rows
    // not uninstalled yet, this one included; `index` is not used; `commandParts` is the
    // registered command, split at " /log"; `full` means that everything is being removed.
    void DoUninsstall(int remaining, int index, const std::vector<std::string>& commandParts,
                      bool full);

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    class UninstallSteps;

    // Turns what the dialogs report into statistics events, the offer and the store page. Codes
    // other than the dialogs' are ignored.
    void onDialogEvent(int code, const std::string& name);
    void showStoreOffer();
    void openStorePage();

    // Prepares identity, country and counter for the events of this process.
    void startStatistics(int appId);

    void fillList();
    void connectControls();
    void followRowsSoon();
    void keepDeleteSettings(bool checked);
    std::vector<uninstall::ListRow> listRows() const;

    std::unique_ptr<Ui::Widget> ui;
    lang::CTranslators* translators = nullptr;
    fs::CConfig config;
    int currentAppId;
    uninstall::RunState run;
    bool controlsLagBehind = false; // a row has changed and the buttons do not show it yet
};
