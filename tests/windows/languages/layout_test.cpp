// Every window in every language: no text is cut or enlarges a window, and each letter has a glyph.
// Each CTest entry runs the test at another screen resolution, which TESSERA_DPI names.

#include "tests/windows/languages/fit_check.h"
#include "tests/windows/languages/letter_check.h"
#include "tests/windows/languages/localised_windows.h"
#include "tests/windows/qt_tests/qt_test.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <windows.h>

namespace {

constexpr int settleMs = 2000;

int expectedDpi()
{
    return qEnvironmentVariable("TESSERA_DPI", "96").toInt();
}

void scaleAsTheProgramDoes()
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowsGrowWithTheResolution();
    void everyTextFits_data() { addLanguageRows(); }
    void everyTextFits();
    void everyLetterHasAGlyph_data() { addLanguageRows(); }
    void everyLetterHasAGlyph();
    void textsStandOutWhateverTheUsersColours_data();
    void textsStandOutWhateverTheUsersColours();
    void focusIsVisible();
    void everyControlHasAnAccessibleName();
    void cutTextIsNoticed();
    void faintTextIsNoticed();
    void missingLetterIsNoticed();

private:
    static void addLanguageRows();
};

void LayoutTest::initTestCase()
{
    const QScreen& screen = *QApplication::primaryScreen();
    QCOMPARE(screen.logicalDotsPerInch(), 96.0);
    QCOMPARE(screen.devicePixelRatio() * 96, double(expectedDpi()));

    // Segoe UI's 52 letters are 28.75 ems wide. With a narrower substitute a text could fit here
    // and be cut on Windows.
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(100);
    const qreal width = QFontMetricsF(font).horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    QVERIFY2(width >= 2875, qPrintable(QString::number(width)));
}

void LayoutTest::addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : allLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

// In physical pixels.
void LayoutTest::windowsGrowWithTheResolution()
{
    const QHash<int, QSize> sizes{{96, {379, 305}},
                                  {120, {474, 381}},
                                  {144, {569, 458}},
                                  {168, {663, 534}},
                                  {192, {758, 610}}};
    RECT inside{};
    QVERIFY(visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
        if (name == QStringLiteral("main"))
            QVERIFY(GetClientRect(reinterpret_cast<HWND>(window.winId()), &inside));
    }));
    QCOMPARE(QSize(inside.right, inside.bottom), sizes.value(expectedDpi()));
}

void LayoutTest::everyTextFits()
{
    QFETCH(QString, language);
    const QHash<QString, QSize> formSizes{{QStringLiteral("main"), {379, 305}},
                                          {QStringLiteral("main_all"), {379, 305}},
                                          {QStringLiteral("survey"), {488, 236}},
                                          {QStringLiteral("offer_video"), {558, 352}},
                                          {QStringLiteral("offer_music"), {558, 352}}};
    QStringList seen;
    QStringList faults;
    QVERIFY(visitWindows(language, [&](const QString& name, QWidget& window) {
        seen.append(name);
        // The window manager may still change the size of a window just shown.
        QStringList cut;
        (void)QTest::qWaitFor([&] { return (cut = cutTexts(window)).isEmpty(); }, settleMs);
        for (const QString& fault : cut)
            faults.append(name + QLatin1Char(' ') + fault);
        if (window.size() != formSizes.value(name, window.size()))
            faults.append(name + QStringLiteral(" has grown"));
    }));
    QCOMPARE(seen.size(), 6);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void LayoutTest::everyLetterHasAGlyph()
{
    QFETCH(QString, language);
    QStringList faults;
    QVERIFY(visitWindows(language, [&](const QString& name, QWidget& window) {
        for (const QString& fault : letterFaults(window))
            faults.append(name + QLatin1Char(' ') + fault);
    }));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void LayoutTest::textsStandOutWhateverTheUsersColours_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("background");
    QTest::newRow("dark on light") << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("light on dark") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("yellow on black") << QColor(Qt::yellow) << QColor(Qt::black);
}

void LayoutTest::textsStandOutWhateverTheUsersColours()
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

void LayoutTest::focusIsVisible()
{
    QStringList faults;
    QVERIFY(visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
        // Qt shows the focus only after the first use of the keyboard.
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled() ||
                !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            widget->setFocus(Qt::TabFocusReason);
            const QImage focused = widget->grab().toImage();
            widget->clearFocus();
            if (widget->grab().toImage() == focused)
                faults.append(name + QLatin1Char(' ') + widget->objectName());
        }
    }));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void LayoutTest::everyControlHasAnAccessibleName()
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

void LayoutTest::cutTextIsNoticed()
{
    QWidget window;
    window.resize(300, 200);
    QLabel label(QStringLiteral("A text that is longer than its label"), &window);
    label.setGeometry(10, 10, 60, 20);
    QPushButton button(QStringLiteral("A text that is longer than its button"), &window);
    button.setGeometry(10, 50, 60, 30);
    QLabel outside(QStringLiteral("x"), &window);
    outside.setGeometry(295, 100, 20, 20);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QStringList faults = cutTexts(window);
    QVERIFY(!faults.filter(QStringLiteral("its label")).isEmpty());
    QVERIFY(!faults.filter(QStringLiteral("its button")).isEmpty());
    QVERIFY(!faults.filter(QStringLiteral("extends beyond")).isEmpty());

    label.setGeometry(10, 10, 280, 20);
    button.setGeometry(10, 50, 280, 30);
    outside.setGeometry(270, 100, 20, 20);
    QCOMPARE(cutTexts(window), QStringList());
}

void LayoutTest::faintTextIsNoticed()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget { background-color: white; }"));
    window.resize(300, 100);
    QLabel label(QStringLiteral("WWWWWWWWWWWWWWWWWWWW"), &window);
    label.setGeometry(0, 10, 280, 30);
    label.setStyleSheet(QStringLiteral("color: #d0d0d0;"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(faintTexts(window).size(), 1);
    label.setStyleSheet(QStringLiteral("color: black;"));
    QCOMPARE(faintTexts(window), QStringList());
}

void LayoutTest::missingLetterIsNoticed()
{
    QWidget window;
    QLabel label(QStringLiteral("abc"), &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(letterFaults(window), QStringList());
    // The last private-use code point, which no font has.
    constexpr uint withoutGlyph = 0x10fffd;
    label.setText(label.text() + QString::fromUcs4(&withoutGlyph, 1));
    QCOMPARE(letterFaults(window).size(), 1);
}

TESSERA_PREPARED_QT_TEST(LayoutTest, &scaleAsTheProgramDoes)
#include "layout_test.moc"
