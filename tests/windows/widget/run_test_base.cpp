#include "tests/windows/widget/run_test_base.h"

#include "ui/uninstall/src/app_catalogue.h"

#include <QDir>
#include <QFile>

const QString RunTestBase::suiteName =
    QString::fromStdString(uninstall::displayName(uninstall::suiteId, false));

void RunTestBase::init()
{
    registry = std::make_unique<SuiteRegistry>();
    folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/run XXXXXX"));
    QVERIFY(folder->isValid());
    boxTexts.clear();
    boxTitles.clear();
}

void RunTestBase::cleanup()
{
    boxWatcher.reset();
    registry.reset();
    folder.reset();
}

QString RunTestBase::logSwitch(const QString& idString)
{
    return QStringLiteral("/log=C:\\users\\logs\\%1_uninstall.log").arg(idString);
}

QString RunTestBase::addApplication(const QString& displayName, const QString& idString,
                                    const QString& program)
{
    const QString home = folder->filePath(QString::fromUtf8("Ünser %1").arg(idString));
    QDir().mkpath(home);
    const QString path = home + QLatin1Char('/') + program;
    QFile::copy(QCoreApplication::applicationDirPath() +
                    QStringLiteral("/recording_uninstaller.exe"),
                path);
    registry->addApplication(displayName, QDir::toNativeSeparators(path) + QLatin1Char(' ') +
                                              logSwitch(idString));
    return path;
}

QStringList RunTestBase::startsOf(const QString& idString, const QString& program)
{
    QFile file(folder->filePath(QString::fromUtf8("Ünser %1/").arg(idString)) + program +
               QStringLiteral(".args"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    return lines;
}

QStringList RunTestBase::awaitedStartsOf(const QString& idString, const QString& program)
{
    QStringList starts;
    const auto started = [&] {
        starts = startsOf(idString, program);
        return !starts.isEmpty();
    };
    return QTest::qWaitFor(started, deadlineMs) ? starts : QStringList();
}

std::unique_ptr<QProcess> RunTestBase::startApplication(const QString& idString)
{
    const QString program = folder->filePath(idString + QStringLiteral(".exe"));
    QFile::copy(QCoreApplication::applicationDirPath() + QStringLiteral("/suite_instance.exe"),
                program);
    auto process = std::make_unique<QProcess>();
    process->start(program, QStringList());
    while (process->state() != QProcess::NotRunning && !process->canReadLine()) {
        if (!process->waitForReadyRead(deadlineMs))
            break;
    }
    return process;
}

bool RunTestBase::press(WindowUnderTest& under)
{
    if (!under.show())
        return false;
    bool timedOut = false;
    QTimer::singleShot(0, &under.window, [&under] {
        under.uninstall->setEnabled(true);
        QTest::mouseClick(under.uninstall, Qt::LeftButton);
    });
    QTimer::singleShot(deadlineMs, &under.window, [&timedOut] {
        timedOut = true;
        QCoreApplication::exit(1);
    });
    return QApplication::exec() == 0 && !timedOut;
}

void RunTestBase::answerBoxes(QList<QMessageBox::StandardButton> answers)
{
    boxWatcher = std::make_unique<QTimer>();
    connect(boxWatcher.get(), &QTimer::timeout, this, [this, answers]() mutable {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || answers.isEmpty())
            return;
        boxTitles.append(box->windowTitle());
        boxTexts.append(box->text());
        const QMessageBox::StandardButton answer = answers.takeFirst();
        if (answer == QMessageBox::NoButton)
            box->close();
        else
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
    });
    boxWatcher->start(10);
}
