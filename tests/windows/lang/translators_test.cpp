// Changes of the process's language by the catalogues in the program's resources.

#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"
#include "ui/common/config/common_config.h"
#include "ui/common/lang/translators.h"
#include "ui/common/sys/folders.h"

#include <QDir>
#include <QTranslator>
#include <QtTest>

namespace {

QString selectAll()
{
    return QCoreApplication::translate("Widget", "Select all");
}

const QString english = QStringLiteral("Select all");

// Writes the language to common.cfg; an empty one removes the setting.
void writeLanguageSetting(const std::string& code)
{
    fs::CConfig& common = fs::commonConfig();
    common.setValue("Language", code);
    QDir().mkpath(QString::fromStdWString(sys::folderPath(sys::FolderKind::suiteSettings)));
    QCOMPARE(common.save(), 0);
    QCOMPARE(common.reload(), 0);
}

} // namespace

class TranslatorsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sourceLanguageInstallsNoTranslator();
    void codeLoadsItsCatalogue();
    void otherCodesStayEnglish_data();
    void otherCodesStayEnglish();
    void laterCodeReplacesTheCatalogueInPlace();
    void sourceLanguageAfterAnotherRemovesTheTranslators();
    void everyPatternGetsATranslatorAndOneMissingIsFalse();
    void laterPatternsComeFirst();
    void missingCatalogueAfterAGoodOneIsEnglish();
    void countryIsCutOffBehindAnUnderscore();
    void windowTakesItsLanguageFromTheSettings();
    void windowWithoutALanguageSettingIsEnglish();

private:
    lang::CTranslators* make(const QStringList& patterns = {QStringLiteral("uninstall_%1.qm")});

    std::unique_ptr<QObject> owner;
};

void TranslatorsTest::init()
{
    owner = std::make_unique<QObject>();
    QCOMPARE(selectAll(), english);
}

// Destroyed translators are removed from the application.
void TranslatorsTest::cleanup()
{
    owner.reset();
    QCOMPARE(selectAll(), english);
}

lang::CTranslators* TranslatorsTest::make(const QStringList& patterns)
{
    return new lang::CTranslators(owner.get(), QStringLiteral(":/language"), QStringLiteral("en"),
                                  QStringLiteral("English"), QStringLiteral("SupportLanguages"),
                                  patterns);
}

void TranslatorsTest::sourceLanguageInstallsNoTranslator()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("en")));
    QVERIFY(translators->findChildren<QTranslator*>().isEmpty());
}

void TranslatorsTest::codeLoadsItsCatalogue()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("cn")));
    QVERIFY(selectAll() != english);
    const auto children = translators->findChildren<QTranslator*>();
    QCOMPARE(children.size(), 1);
    QVERIFY(children.first()->filePath().endsWith(QStringLiteral("uninstall_cn.qm")));
}

void TranslatorsTest::otherCodesStayEnglish_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("no catalogue") << QStringLiteral("xx");
    QTest::newRow("culture of a known language") << QStringLiteral("de-DE");
    QTest::newRow("standard code of Chinese") << QStringLiteral("zh");
    QTest::newRow("capitals of the source language") << QStringLiteral("EN");
    QTest::newRow("empty") << QString();
}

void TranslatorsTest::otherCodesStayEnglish()
{
    QFETCH(QString, code);
    auto* translators = make();
    QVERIFY(!translators->setLanguage(code));
    QCOMPARE(selectAll(), english);
    QCOMPARE(translators->findChildren<QTranslator*>().size(), 1);
}

void TranslatorsTest::laterCodeReplacesTheCatalogueInPlace()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    const QString german = selectAll();
    const auto first = translators->findChildren<QTranslator*>();
    QVERIFY(translators->setLanguage(QStringLiteral("fr")));
    QVERIFY(selectAll() != german);
    QVERIFY(selectAll() != english);
    QCOMPARE(translators->findChildren<QTranslator*>(), first);
}

void TranslatorsTest::sourceLanguageAfterAnotherRemovesTheTranslators()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    const QString german = selectAll();
    QVERIFY(german != english);
    QVERIFY(translators->setLanguage(QStringLiteral("en")));
    QCOMPARE(selectAll(), english);
    // The removed translator stays a child; the next language gets a new one.
    QCOMPARE(translators->findChildren<QTranslator*>().size(), 1);
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    QCOMPARE(selectAll(), german);
    QCOMPARE(translators->findChildren<QTranslator*>().size(), 2);
}

void TranslatorsTest::everyPatternGetsATranslatorAndOneMissingIsFalse()
{
    auto* translators = make({QStringLiteral("missing_%1.qm"), QStringLiteral("uninstall_%1.qm")});
    QVERIFY(!translators->setLanguage(QStringLiteral("de")));
    QVERIFY(selectAll() != english);
    QCOMPARE(translators->findChildren<QTranslator*>().size(), 2);
}

void TranslatorsTest::laterPatternsComeFirst()
{
    const QString chosen = QStringLiteral("uninstall_%1.qm");
    const QString always = QStringLiteral("uninstall_fr.qm");
    QVERIFY(make({chosen})->setLanguage(QStringLiteral("de")));
    const QString german = selectAll();
    owner = std::make_unique<QObject>();
    QVERIFY(make({always})->setLanguage(QStringLiteral("de")));
    const QString french = selectAll();
    QVERIFY(french != german);

    owner = std::make_unique<QObject>();
    auto* translators = make({chosen, always});
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    QCOMPARE(selectAll(), french);
    QVERIFY(translators->setLanguage(QStringLiteral("ja")));
    QCOMPARE(selectAll(), french);
    owner = std::make_unique<QObject>();
    QVERIFY(make({always, chosen})->setLanguage(QStringLiteral("de")));
    QCOMPARE(selectAll(), german);
}

void TranslatorsTest::missingCatalogueAfterAGoodOneIsEnglish()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    const QString german = selectAll();
    QVERIFY(!translators->setLanguage(QStringLiteral("xx")));
    QCOMPARE(selectAll(), english);
    QCOMPARE(translators->findChildren<QTranslator*>().size(), 1);
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    QCOMPARE(selectAll(), german);
}

void TranslatorsTest::countryIsCutOffBehindAnUnderscore()
{
    auto* translators = make();
    QVERIFY(translators->setLanguage(QStringLiteral("de")));
    const QString german = selectAll();
    QVERIFY(translators->setLanguage(QStringLiteral("fr")));
    QVERIFY(translators->setLanguage(QStringLiteral("de_AT")));
    QCOMPARE(selectAll(), german);
}

void TranslatorsTest::windowTakesItsLanguageFromTheSettings()
{
    writeLanguageSetting("de");
    {
        const SuiteRegistry registry;
        const WindowUnderTest under;
        QCOMPARE(under.select->text(), QCoreApplication::translate("Widget", "Select all"));
        QVERIFY(under.select->text() != english);
        QVERIFY(under.deleteSettings->text() != QStringLiteral("Delete settings and history"));
        QCOMPARE(under.uninstall->text(), QStringLiteral("Deinstallieren"));
        QCOMPARE(under.deleteSettings->toolTip(),
                 QCoreApplication::translate(
                     "Widget", "Delete program settings, custom presets and history"));
        QVERIFY(!under.deleteSettings->toolTip().startsWith(QStringLiteral("Delete")));
        // The title is the same in every language.
        QCOMPARE(under.window.windowTitle(), QStringLiteral("Uninstall"));
    }
    writeLanguageSetting("");
}

void TranslatorsTest::windowWithoutALanguageSettingIsEnglish()
{
    writeLanguageSetting("");
    const SuiteRegistry registry;
    const WindowUnderTest under;
    QCOMPARE(under.select->text(), english);
    QVERIFY(under.window.findChildren<QTranslator*>().isEmpty());
}

TESSERA_QT_TEST(TranslatorsTest)
#include "translators_test.moc"
