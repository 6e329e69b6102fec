// Every window can be read: its letters have glyphs, its texts contrast with what is behind them,
// and a screen reader knows its controls. Unlike the layout, none of this depends on the
// resolution.

#include "tests/windows/languages/fit_check.h"
#include "tests/windows/languages/letter_check.h"
#include "tests/windows/languages/localised_windows.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>

class ReadabilityTest : public QObject
{
    Q_OBJECT

private slots:
    void everyLetterHasAGlyph_data();
    void everyLetterHasAGlyph();
    void textsStandOutWhateverTheUsersColours_data();
    void textsStandOutWhateverTheUsersColours();
    void everyControlHasAnAccessibleName();
    void faintTextIsNoticed();
    void missingLetterIsNoticed();
};

void ReadabilityTest::everyLetterHasAGlyph_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : allLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void ReadabilityTest::everyLetterHasAGlyph()
{
    QFETCH(QString, language);
    QStringList faults;
    QVERIFY(visitWindows(language, [&](const QString& name, QWidget& window) {
        for (const QString& fault : letterFaults(window))
            faults.append(name + QLatin1Char(' ') + fault);
    }));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void ReadabilityTest::textsStandOutWhateverTheUsersColours_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("background");
    QTest::newRow("dark on light") << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("light on dark") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("yellow on black") << QColor(Qt::yellow) << QColor(Qt::black);
}

void ReadabilityTest::textsStandOutWhateverTheUsersColours()
{
    QFETCH(QColor, text);
    QFETCH(QColor, background);
    const QPalette before = QApplication::palette();
    QPalette palette(text, background, background.lighter(), background.darker(), background, text,
                     background);
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::ButtonText, text);
    QApplication::setPalette(palette);
    QStringList faults;
    const bool shown =
        visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
            // The message box follows the system's theme, which a palette does not change.
            if (name == QStringLiteral("warning"))
                return;
            for (const QString& fault : faintTexts(window))
                faults.append(name + QLatin1Char(' ') + fault);
        });
    QApplication::setPalette(before);
    QVERIFY(shown);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void ReadabilityTest::everyControlHasAnAccessibleName()
{
    QStringList faults;
    QVERIFY(visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!(widget->focusPolicy() & Qt::TabFocus))
                continue;
            const QAccessibleInterface* control = QAccessible::queryAccessibleInterface(widget);
            if (control == nullptr || control->text(QAccessible::Name).isEmpty())
                faults.append(name + QLatin1Char(' ') + widget->objectName());
        }
    }));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void ReadabilityTest::faintTextIsNoticed()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget { background-color: white; }"));
    window.resize(300, 100);
    QLabel label(QStringLiteral("WWWWWWWWWWWWWWWWWWWW"), &window);
    label.setGeometry(0, 10, 280, 30);
    label.setStyleSheet(QStringLiteral("color: #d0d0d0;"));
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    QCOMPARE(faintTexts(window).size(), 1);
    label.setStyleSheet(QStringLiteral("color: black;"));
    QCOMPARE(faintTexts(window), QStringList());
}

void ReadabilityTest::missingLetterIsNoticed()
{
    QWidget window;
    QLabel label(QStringLiteral("abc"), &window);
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    QCOMPARE(letterFaults(window), QStringList());
    // The last private-use code point, which no font has.
    constexpr uint withoutGlyph = 0x10fffd;
    label.setText(label.text() + QString::fromUcs4(&withoutGlyph, 1));
    QCOMPARE(letterFaults(window).size(), 1);
}

TESSERA_QT_TEST(ReadabilityTest)
#include "readability_test.moc"
