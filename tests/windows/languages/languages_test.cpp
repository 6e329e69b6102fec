// The translation catalogues that are compiled into the program.

#include "tests/windows/languages/localised_windows.h"
#include "tests/windows/qt_tests/qt_test.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTranslator>
#include <QtTest>

namespace {

struct Text
{
    const char* context;
    const char* source;
};

const Text texts[] = {
    {"Widget", "Installed applications"},
    {"Widget", "Delete settings and history"},
    {"Widget", "Delete program settings, custom presets and history"},
    {"Widget", "Select all"},
    {"Widget", "Select none"},
    {"Widget", "Uninstall"},
    {"Widget", "Uninstallation"},
    {"Widget",
     "%1 is running.\nPlease click OK to close this application or click Cancel to exit."},
    {"QuestionDlg", "Why are you uninstalling the app?"},
    {"QuestionDlg", "I was looking for a free program"},
    {"QuestionDlg", "The quality is not good enough"},
    {"QuestionDlg", "Missing features"},
    {"QuestionDlg", "Uninstall %1"},
    {"FvdOpenMsDlg", "Download 100% Free "},
    {"FvdOpenMsDlg", "Download 100% Free YouTube MP3 Music Downloader"},
    {"FvdOpenMsDlg", "100% free, no limitations"},
    {"FvdOpenMsDlg", "No ads, no subscriptions"},
    {"FvdOpenMsDlg", "Fast, simple and reliable"},
    {"FvdOpenMsDlg", "High-quality MP3 from YouTube videos"},
    {"FvdOpenMsDlg", "5-star rating on the Microsoft Store"},
    {"FvdOpenMsDlg",
     "<b>100 % free app</b> for saving music from YouTube in MP3, fast and simple."},
    {"FvdOpenMsDlg",
     " \xE2\x80\x94 a 100% free app from our trusted<br/> partners, available on the "
     "Microsoft Store."},
    {"FvdOpenMsDlg", "Open Microsoft Store"},
    {"QPlatformTheme", "OK"},
    {"QPlatformTheme", "Cancel"},
};

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : allLanguages()) {
        if (language != QStringLiteral("en"))
            QTest::newRow(qPrintable(language)) << language;
    }
}

bool load(QTranslator& catalogue, const QString& language)
{
    return catalogue.load(QStringLiteral("uninstall_%1.qm").arg(language),
                          QStringLiteral(":/language"));
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data() { addLanguageRows(); }
    void everyTextIsTranslated();
    void warningSpeaksOfItsOwnButtons_data() { addLanguageRows(); }
    void warningSpeaksOfItsOwnButtons();
    void windowsAreShownInTheLanguageOfTheSettings();
    void unknownLanguagesStayEnglish();
};

void LanguagesTest::everyTextIsTranslated()
{
    QFETCH(QString, language);
    QTranslator catalogue;
    QVERIFY(load(catalogue, language));
    for (const Text& text : texts) {
        const QString translation = catalogue.translate(text.context, text.source);
        QVERIFY2(!translation.isEmpty(), text.source);
        // Only "OK" is the same word in many languages.
        if (qstrcmp(text.source, "OK") != 0)
            QVERIFY2(translation != QString::fromUtf8(text.source), text.source);
    }
}

void LanguagesTest::warningSpeaksOfItsOwnButtons()
{
    QFETCH(QString, language);
    QTranslator catalogue;
    QVERIFY(load(catalogue, language));
    QString question;
    QString ok;
    QString cancel;
    QVERIFY(visitWindows(language, [&](const QString& name, QWidget& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        if (name != QStringLiteral("warning") || box == nullptr)
            return;
        question = box->text();
        ok = box->button(QMessageBox::Ok)->text();
        cancel = box->button(QMessageBox::Cancel)->text();
    }));
    QCOMPARE(ok, catalogue.translate("QPlatformTheme", "OK"));
    QCOMPARE(cancel, catalogue.translate("QPlatformTheme", "Cancel"));
    QVERIFY2(question.contains(ok), qPrintable(question));
    QVERIFY2(question.contains(cancel), qPrintable(question));
    QVERIFY2(question.contains(QStringLiteral("Panorama Stitcher")), qPrintable(question));
}

void LanguagesTest::windowsAreShownInTheLanguageOfTheSettings()
{
    QHash<QString, QStringList> shown;
    QVERIFY(visitWindows(QStringLiteral("de"), [&shown](const QString& name, QWidget& window) {
        shown[name].append(window.windowTitle());
        for (const auto* label : window.findChildren<QLabel*>())
            shown[name].append(label->text());
        for (const auto* button : window.findChildren<QAbstractButton*>())
            shown[name].append(button->text());
    }));
    const auto has = [&shown](const char* window, const char* text) {
        return shown.value(QLatin1String(window)).contains(QString::fromUtf8(text));
    };
    QVERIFY(has("main", "Uninstall"));
    QVERIFY(has("main_all", "Keine ausw\xC3\xA4hlen"));
    QVERIFY(has("main", "Einstellungen und Verlauf l\xC3\xB6schen"));
    QVERIFY(has("survey", "Tessera Clip Saver deinstallieren"));
    QVERIFY(has("survey", "Es fehlen Funktionen"));
    QVERIFY(has("offer_video", "Microsoft Store \xC3\xB6"
                               "ffnen"));
    QVERIFY(has("offer_music", "MP3 in hoher Qualit\xC3\xA4t aus YouTube-Videos"));
    QVERIFY(has("warning", "Deinstallation"));
    QVERIFY(has("warning", "Abbrechen"));
}

void LanguagesTest::unknownLanguagesStayEnglish()
{
    for (const char* language : {"zh", "xx", "de-DE", ""}) {
        QStringList buttons;
        QVERIFY(visitWindows(QLatin1String(language), [&](const QString& name, QWidget& window) {
            if (name != QStringLiteral("survey"))
                return;
            for (const auto* button : window.findChildren<QAbstractButton*>())
                buttons.append(button->text());
        }));
        QVERIFY2(buttons.contains(QStringLiteral("Missing features")), language);
    }
}

TESSERA_QT_TEST(LanguagesTest)
#include "languages_test.moc"
