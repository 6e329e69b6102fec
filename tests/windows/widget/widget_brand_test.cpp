// The main window of a program that runs under the brand "Corvane".

#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/run_test_base.h"
#include "ui/common/config/runtime_brand.h"
#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"

namespace {

const std::wstring globalConfig = L"global.cfg";

bool isGlobalConfig(const std::wstring& path)
{
    return path.size() >= globalConfig.size() &&
           path.compare(path.size() - globalConfig.size(), std::wstring::npos, globalConfig) == 0;
}

int read(const std::wstring& path, std::string& content)
{
    if (!isGlobalConfig(path))
        return sys::systemFiles().read(path, content);
    content = "CompanyBrandMode=1\n";
    return sys::success;
}

int write(const std::wstring& path, const std::string& text)
{
    return sys::systemFiles().write(path, text);
}

bool exists(const std::wstring& path)
{
    return isGlobalConfig(path) || sys::systemFiles().exists(path);
}

// The brand is decided on first use, and kept.
void runAsCorvane()
{
    sys::setFileFunctions({&read, &write, &exists});
}

} // namespace

class WidgetBrandTest : public RunTestBase
{
    Q_OBJECT

private slots:
    void warningNamesTheFolderBelowTheBrands();
};

void WidgetBrandTest::warningNamesTheFolderBelowTheBrands()
{
    QCOMPARE(QString::fromStdString(fs::runtimeBrandName()), QStringLiteral("Corvane"));
    registry->addPath(QStringLiteral("ScreenTaker"),
                      QStringLiteral("C:\\Lumacraft\\Corvane\\Screens\\bin\\x.exe"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY2(boxTexts.first().startsWith(QStringLiteral("Screens is running.\n")),
             qPrintable(boxTexts.first()));
}

TESSERA_PREPARED_QT_TEST(WidgetBrandTest, &runAsCorvane)
#include "widget_brand_test.moc"
