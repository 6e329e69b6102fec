// Every window in every language: no text is cut or enlarges a window. Each CTest entry runs the
// test at another screen resolution, which TESSERA_DPI names; without it any will do.

#include "tests/windows/languages/fit_check.h"
#include "tests/windows/languages/localised_windows.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <windows.h>

namespace {

constexpr int settleMs = 2000;

double screenDpi()
{
    return QApplication::primaryScreen()->devicePixelRatio() * 96;
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
    void everyTextFits_data();
    void everyTextFits();
    void offerHasSharpPictures();
    void offerIsDividedByALine();
    void focusIsVisible();
    void cutTextIsNoticed();
};

void LayoutTest::initTestCase()
{
    QCOMPARE(QApplication::primaryScreen()->logicalDotsPerInch(), 96.0);
    const QString expected = qEnvironmentVariable("TESSERA_DPI");
    if (!expected.isEmpty())
        QCOMPARE(screenDpi(), expected.toDouble());

    // Segoe UI's 52 letters are 28.75 ems wide. With a narrower substitute a text could fit here
    // and be cut on Windows.
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(100);
    const qreal width = QFontMetricsF(font).horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    QVERIFY2(width >= 2875, qPrintable(QString::number(width)));
}

// In physical pixels.
void LayoutTest::windowsGrowWithTheResolution()
{
    RECT inside{};
    QVERIFY(visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
        if (name == QStringLiteral("main"))
            QVERIFY(GetClientRect(reinterpret_cast<HWND>(window.winId()), &inside));
    }));
    const double scale = screenDpi() / 96;
    QCOMPARE(QSize(inside.right, inside.bottom), QSize(qRound(379 * scale), qRound(305 * scale)));
}

void LayoutTest::everyTextFits_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : allLanguages())
        QTest::newRow(qPrintable(language)) << language;
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

void LayoutTest::offerHasSharpPictures()
{
    QVector<QSize> sizes;
    QVERIFY(visitWindows(QStringLiteral("en"), [&sizes](const QString& name, QWidget& window) {
        if (name != QStringLiteral("offer_video"))
            return;
        for (const char* label : {"info1Img", "info2Img", "info3Img", "info4Img"})
            sizes.append(
                window.findChild<QLabel*>(QLatin1String(label))->pixmap(Qt::ReturnByValue).size());
    }));
    QCOMPARE(sizes, QVector<QSize>(4, screenDpi() > 96 ? QSize(46, 44) : QSize(23, 22)));
}

// On the screen: QWidget::grab() draws it at scales at which the window does not.
void LayoutTest::offerIsDividedByALine()
{
    bool drawn = false;
    QVERIFY(visitWindows(QStringLiteral("en"), [&drawn](const QString& name, QWidget& window) {
        if (name != QStringLiteral("offer_video"))
            return;
        const QWidget& line = *window.findChild<QFrame*>(QStringLiteral("line"));
        drawn = QTest::qWaitFor(
            [&] {
                const QImage screen = window.screen()->grabWindow(window.winId()).toImage();
                const int x = screen.width() / 2;
                const int middle =
                    qRound((line.y() + line.height() / 2.0) * screen.height() / window.height());
                for (int y = middle - 3; y <= middle + 3; ++y) {
                    if (qGray(screen.pixel(x, y)) < 200)
                        return true;
                }
                return false;
            },
            windows_tests::patienceMs);
    }));
    QVERIFY(drawn);
}

void LayoutTest::focusIsVisible()
{
    QStringList faults;
    QVERIFY(visitWindows(QStringLiteral("en"), [&](const QString& name, QWidget& window) {
        // No widget of an inactive window has the focus, and Qt shows it only after the first use
        // of the keyboard.
        QVERIFY(windows_tests::becomesActive(window));
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
    QVERIFY(windows_tests::becomesVisible(window));
    const QStringList faults = cutTexts(window);
    QVERIFY(!faults.filter(QStringLiteral("its label")).isEmpty());
    QVERIFY(!faults.filter(QStringLiteral("its button")).isEmpty());
    QVERIFY(!faults.filter(QStringLiteral("extends beyond")).isEmpty());

    label.setGeometry(10, 10, 280, 20);
    button.setGeometry(10, 50, 280, 30);
    outside.setGeometry(270, 100, 20, 20);
    QCOMPARE(cutTexts(window), QStringList());
}

TESSERA_PREPARED_QT_TEST(LayoutTest, &scaleAsTheProgramDoes)
#include "layout_test.moc"
