// The uninstall run of the main window: the registry, processes and boxes behind the steps that
// uninstall_run.h puts in order.

#include "ui/common/config/runtime_brand.h"
#include "ui/uninstall/src/main_form_log.h"
#include "ui/uninstall/src/registry_keys.h"
#include "ui/uninstall/src/registry_names.h"
#include "ui/uninstall/src/responsive_wait.h"
#include "ui/uninstall/src/running_application.h"
#include "ui/uninstall/src/system_program.h"
#include "ui/uninstall/src/uninstall_command.h"
#include "ui/uninstall/src/uninstall_run.h"
#include "ui/uninstall/src/widget.h"
#include "ui_widget.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>

namespace {

constexpr Keelbase::LogSource runLog{"MainForm", "ui/uninstall/src/widget_run"};

// The run goes on when a program cannot be started.
void logUnlessStarted(const QProcess& process, const char* what)
{
    if (process.error() == QProcess::FailedToStart) {
        KEELBASE_LOG(runLog, Keelbase::levelDetail)
            << what << ": not started: " << process.errorString().toStdString();
    }
}

} // namespace

class Widget::UninstallSteps : public uninstall::IUninstallSteps
{
public:
    explicit UninstallSteps(Widget& widget)
        : widget(widget), registered(uninstall::uninstallListKey(), QSettings::NativeFormat)
    {
        for (int row = 0; row < widget.ui->listWidget->count(); ++row)
            items.push_back(widget.ui->listWidget->item(row));
    }

    std::size_t rowCount() const { return items.size(); }

    bool isChecked(std::size_t row) const override
    {
        return items[row]->checkState() == Qt::Checked;
    }

    std::string command(std::size_t row) const override
    {
        return registered.value(items[row]->text()).toString().toStdString();
    }

    void setCurrentAppId(int id) override { widget.currentAppId = id; }
    void openExitSurvey(int id) override { widget.openExitSurvey(id); }

    bool isRunning(const std::string& idString) const override
    {
        return uninstall::applicationIsRunning(idString);
    }

    void showWarningAndKillApp(const std::string& idString) override
    {
        widget.showWarningAndKillApp(idString, true);
    }

    bool cancelled() const override { return widget.run.cancelled(); }

    void uninstall(int remaining, const std::vector<std::string>& commandParts, bool full) override
    {
        constexpr int unusedIndex = -1;
        widget.DoUninsstall(remaining, unusedIndex, commandParts, full);
    }

    // The item leaves the list with its deletion.
    void removeRow(std::size_t row) override { delete items[row]; }

private:
    Widget& widget;
    QSettings registered;
    std::vector<QListWidgetItem*> items;
};

void Widget::uninstallButtonClicked()
{
    if (!run.begin())
        return;
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation) << "--> uninstallButtonClicked";
    UninstallSteps steps(*this);
    uninstall::runUninstall(steps.rowCount(), steps);
    QCoreApplication::quit();
}

void Widget::showWarningAndKillApp(std::string appName, bool isLMCApp)
{
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "--> showWarningAndKillApp: " << appName;

    const QString idString = QString::fromStdString(appName);
    QString shownName = idString;
    if (isLMCApp) {
        const QSettings paths(uninstall::applicationPathsKey(), QSettings::NativeFormat);
        const std::string installPath = paths.value(idString).toString().toStdString();
        shownName =
            QString::fromStdString(uninstall::shownName(installPath, fs::runtimeBrandName()));
    }

    // A deliberate oddity: this box is prepared and never shown.
    QMessageBox branded(this);
    branded.setIconPixmap(QIcon(QStringLiteral(":/uninstall_ico_48x48.png")).pixmap(48, 48));

    const QMessageBox::StandardButton answer = QMessageBox::warning(
        this, tr("Uninstallation"),
        //: %1 is an application's name. Cancel ends the removal, not the application.
        tr("%1 is running.\nPlease click OK to close this application or click Cancel to exit.")
            .arg(shownName),
        QMessageBox::Ok | QMessageBox::Cancel);
    if (answer != QMessageBox::Ok) {
        const uninstall::RunState::OwnChange own(run);
        // A deliberate oddity: the select-button slot runs on the rows just unchecked. In a
        // selective run it checks them all again, in a full run it leaves them unchecked and
        // disables the buttons. The run ends either way.
        changeItemsState(false);
        allApplicationsSelButtonClicked();
        run.cancel();
        return;
    }

    const std::wstring taskkillPath = uninstall::systemProgram(L"taskkill.exe");
    if (taskkillPath.empty())
        return;
    // Deliberately not waited for; ~Widget() lets it go on.
    auto* taskkill = new QProcess(this);
    taskkill->start(
        QString::fromStdWString(taskkillPath),
        {QStringLiteral("/IM"), idString + QStringLiteral(".exe"), QStringLiteral("/F")},
        QIODevice::ReadWrite);
    logUnlessStarted(*taskkill, "showWarningAndKillApp");
}

void Widget::DoUninsstall(int remaining, int, const std::vector<std::string>& commandParts,
                          bool full)
{
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "--> DoUninsstall: " << (full ? "full" : "selective");
    const std::string program = uninstall::programOf(commandParts);
    if (program.empty())
        return;
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation) << "DoUninsstall: " << program;

    auto* uninstaller = new QProcess(this);
    const uninstall::RunOptions options{remaining, full, ui->cbDeleteSettings->isChecked()};
    if (uninstall::writesUninstallMode(options)) {
        QSettings suite(uninstall::suiteKey(), QSettings::NativeFormat);
        suite.setValue(QStringLiteral("UninstallMode"), 1);
    }

    QStringList arguments;
    for (const std::string& argument : uninstall::uninstallArguments(commandParts, options))
        arguments.append(QString::fromStdString(argument));
    uninstaller->start(QString::fromStdString(program), arguments, QIODevice::ReadWrite);
    logUnlessStarted(*uninstaller, "DoUninsstall");
    constexpr int longestWaitMs = 2000;
    uninstall::waitForFinished(*uninstaller, longestWaitMs);
}
