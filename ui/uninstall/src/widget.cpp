#include "ui/uninstall/src/widget.h"

#include "ui/common/config/common_config.h"
#include "ui/common/config/runtime_brand.h"
#include "ui/common/lang/translators.h"
#include "ui/common/sys/environment.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/application_item.h"
#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/main_form_log.h"
#include "ui/uninstall/src/registry_keys.h"
#include "ui_widget.h"

#include <QCloseEvent>
#include <QIcon>
#include <QProcess>
#include <QSettings>
#include <QSignalBlocker>
#include <QTimer>

Widget::Widget(std::vector<std::string> arguments, QWidget* parent)
    : CInterprocessCommunicationApp(std::move(arguments), parent, true, 0),
      ui(std::make_unique<Ui::Widget>()), currentAppId(uninstall::suiteId)
{
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation) << "-->Widget::Widget()";

    ui->setupUi(this);
#if QT_CONFIG(dockwidget)
    // Only docking animates; a Qt built without it has no such function.
    setAnimated(false);
#endif
    setWindowFlags(Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    setWindowIcon(QIcon(QStringLiteral(":/uninstall_ico_48x48.png")));

    translators = new lang::CTranslators(
        this, QStringLiteral(":/language"), QStringLiteral("en"), QStringLiteral("English"),
        QStringLiteral("SupportLanguages"), {QStringLiteral("uninstall_%1.qm")});
    translators->setLanguage(
        QString::fromLatin1(fs::commonConfig().getValue("Language", "en").c_str()));
    ui->retranslateUi(this);

    fillList();
    connectControls();

    selectApplication(QString::fromLocal8Bit(uninstall::appArgument(startArguments()).c_str()));
    QTimer::singleShot(0, this, &Widget::on_firstShow);
}

Widget::~Widget()
{
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation) << "~Widget()";
    ui.reset();
    // Uninstallers and taskkill go on without the window; destroying their objects would kill them.
    const auto programs = findChildren<QProcess*>(QString(), Qt::FindDirectChildrenOnly);
    for (QProcess* program : programs) {
        if (program->state() != QProcess::NotRunning)
            program->setParent(nullptr);
    }
}

void Widget::fillList()
{
    const std::string& brand = fs::runtimeBrandName();
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "Try to fill list widget (runtime brand: " << brand << ")";

    const QSettings registered(uninstall::uninstallListKey(), QSettings::NativeFormat);
    const QStringList names = registered.childKeys();
    for (const QString& name : names)
        ui->listWidget->addItem(new uninstall::ApplicationItem(name, run));

    ui->btnAllApplicationsSel->setEnabled(false);
    setSelectButtonMode(true);
    if (ui->listWidget->count() > 0)
        ui->btnAllApplicationsSel->setEnabled(true);
    ui->btnUninstall->setEnabled(false);
    ui->cbDeleteSettings->setEnabled(false);
}

void Widget::connectControls()
{
    connect(ui->btnAllApplicationsSel, &QPushButton::clicked, this,
            &Widget::allApplicationsSelButtonClicked);
    connect(ui->btnUninstall, &QPushButton::clicked, this, &Widget::uninstallButtonClicked);
    connect(ui->listWidget, &QListWidget::itemClicked, this, &Widget::toggleItem);
    connect(this, &Widget::firstShow, this, &Widget::on_firstShow);
    // Rows are also toggled without a click, by the space bar for example.
    connect(ui->listWidget, &QListWidget::itemChanged, this, &Widget::followRowsSoon);
    connect(ui->cbDeleteSettings, &QCheckBox::toggled, this, &Widget::keepDeleteSettings);
}

void Widget::showEvent(QShowEvent*)
{
    // A deliberate oddity: the switch is read, changes nothing, and nothing is forwarded.
    const bool debugging = sys::environmentSwitch("CV_DEBUG");
    Q_UNUSED(debugging)
}

void Widget::closeEvent(QCloseEvent* event)
{
    // A run ends the program itself; closing in the middle would abandon the remaining rows.
    event->setAccepted(!run.begun());
}

void Widget::followRowsSoon()
{
    controlsLagBehind = true;
    // Queued, since a click is reported right after its change and updates the buttons itself.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (controlsLagBehind)
                toggleItem(nullptr);
        },
        Qt::QueuedConnection);
}

void Widget::keepDeleteSettings(bool checked)
{
    if (run.choiceIsOpen())
        return;
    const QSignalBlocker blocker(ui->cbDeleteSettings);
    ui->cbDeleteSettings->setChecked(!checked);
}

void Widget::on_firstShow()
{
    // Deliberately empty.
}

void Widget::selectApplication(QString id)
{
    if (!run.choiceIsOpen())
        return;
    const QSignalBlocker blocker(ui->listWidget);
    const auto rows = uninstall::rowsOfApplication(listRows(), id.toLocal8Bit().toStdString());
    for (const std::size_t row : rows) {
        ui->listWidget->item(static_cast<int>(row))->setCheckState(Qt::Checked);
        ui->btnUninstall->setEnabled(true);
        ui->cbDeleteSettings->setEnabled(true);
    }
}

void Widget::allApplicationsSelButtonClicked()
{
    if (!run.choiceIsOpen())
        return;
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "allApplicationsSelButtonClicked";
    const bool selectAll = ui->btnAllApplicationsSel->property("state").toBool();
    changeItemsState(selectAll);
    setSelectButtonMode(!selectAll);
    ui->btnUninstall->setEnabled(selectAll);
    ui->cbDeleteSettings->setEnabled(selectAll);
    if (selectAll)
        ui->cbDeleteSettings->setChecked(true);
}

void Widget::changeItemsState(bool checked)
{
    if (!run.choiceIsOpen())
        return;
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "changeItemsState: " << (checked ? 1 : 0);
    const QSignalBlocker blocker(ui->listWidget);
    for (int row = 0; row < ui->listWidget->count(); ++row)
        ui->listWidget->item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void Widget::setSelectButtonMode(bool changeTextToSelectAll)
{
    if (!run.choiceIsOpen())
        return;
    ui->btnAllApplicationsSel->setText(changeTextToSelectAll ? tr("Select all")
                                                             : tr("Select none"));
    ui->btnAllApplicationsSel->setProperty("state", changeTextToSelectAll ? 1 : 0);
}

void Widget::toggleItem(QListWidgetItem*)
{
    if (!run.choiceIsOpen())
        return;
    // Removing the suite removes everything, so its row checks all the others.
    if (uninstall::suiteRowChecked(listRows())) {
        for (int row = 0; row < ui->listWidget->count(); ++row)
            ui->listWidget->item(row)->setCheckState(Qt::Checked);
    }

    const uninstall::ControlState controls = uninstall::controlState(listRows());
    if (controls.anyChecked) {
        ui->btnUninstall->setEnabled(true);
        ui->cbDeleteSettings->setEnabled(true);
    }
    setSelectButtonMode(!controls.allChecked);
    if (!controls.anyChecked) {
        changeItemsState(false);
        ui->btnUninstall->setEnabled(false);
        ui->cbDeleteSettings->setEnabled(false);
    }
    controlsLagBehind = false;
}

std::vector<uninstall::ListRow> Widget::listRows() const
{
    std::vector<uninstall::ListRow> rows;
    rows.reserve(static_cast<std::size_t>(ui->listWidget->count()));
    for (int row = 0; row < ui->listWidget->count(); ++row) {
        const QListWidgetItem* item = ui->listWidget->item(row);
        rows.push_back({item->text().toStdString(), item->checkState() == Qt::Checked});
    }
    return rows;
}
