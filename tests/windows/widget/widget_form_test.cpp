// The main window before the first click: form, texts, order, log, list.

#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <QLayout>
#include <QMetaMethod>
#include <QSpacerItem>

class WidgetFormTest : public QObject
{
    Q_OBJECT

private slots:
    void windowHasItsFixedSizeTitleFlagsAndIcon();
    void controlsHaveTheirSizesFontsAndStyleSheets();
    void layoutsHaveTheirMarginsSpacingAndOrder();
    void metaObjectListsSignalAndSlotsInOrder();
    void firstShowIsConnectedToItsSlot();
    void constructorLogsEntryAndBrandInOrder();
    void destructorLogsItsEntry();
    void listHoldsEveryRegisteredNameUnchecked();
    void emptyRegistryLeavesAllControlsDisabled();
    void otherBrandsListIsNotRead();
    void namesThatAreNoCatalogueEntriesAreListedToo();
    void valuesThatAreNoTextAreListedToo();
    void hugeNamesAreListedCompletely();
    void namesInAnyScriptAreListed();
    void pluginsAreSearchedOnlyInTheProgramsFolder();
};

void WidgetFormTest::windowHasItsFixedSizeTitleFlagsAndIcon()
{
    const SuiteRegistry registry;
    const WindowUnderTest under;
    const QSize fixed(379, 305);
    QCOMPARE(under.window.objectName(), QStringLiteral("Widget"));
    QCOMPARE(under.window.size(), fixed);
    QCOMPARE(under.window.minimumSize(), fixed);
    QCOMPARE(under.window.maximumSize(), fixed);
    QCOMPARE(under.window.windowTitle(), QStringLiteral("Uninstall"));
#if QT_CONFIG(dockwidget)
    QVERIFY(!under.window.isAnimated());
#endif
    const QImage icon = QIcon(QStringLiteral(":/uninstall_ico_48x48.png")).pixmap(48, 48).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(under.window.windowIcon().pixmap(48, 48).toImage(), icon);
    // Qt adds the system menu to every window with a close button.
    const Qt::WindowFlags hints =
        under.window.windowFlags() & ~(Qt::WindowType_Mask | Qt::WindowSystemMenuHint);
    QCOMPARE(hints, Qt::WindowFlags(Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                                    Qt::WindowCloseButtonHint));
}

void WidgetFormTest::controlsHaveTheirSizesFontsAndStyleSheets()
{
    const SuiteRegistry registry;
    const WindowUnderTest under;

    QCOMPARE(under.list->font().family(), QStringLiteral("Tahoma"));
    QCOMPARE(under.list->font().pointSize(), 10);
    QVERIFY(under.list->font().kerning());
    QCOMPARE(under.list->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(under.list->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);

    QCOMPARE(under.deleteSettings->minimumHeight(), 31);
    QCOMPARE(under.deleteSettings->font().pointSize(), 10);
    QCOMPARE(under.deleteSettings->text(), QStringLiteral("Delete settings and history"));
    QCOMPARE(under.deleteSettings->toolTip(),
             QStringLiteral("Delete program settings, custom presets and history"));

    const QString padding = QStringLiteral("padding-left:20px;\npadding-right:20px;");
    for (const QPushButton* button : {under.select, under.uninstall}) {
        QCOMPARE(button->minimumSize(), QSize(100, 31));
        QCOMPARE(button->maximumHeight(), 27);
        QCOMPARE(button->font().family(), QStringLiteral("Tahoma"));
        QCOMPARE(button->font().pointSize(), 10);
        QCOMPARE(button->styleSheet(), padding);
    }
    QCOMPARE(under.select->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(under.select->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    QCOMPARE(under.uninstall->text(), QStringLiteral("Uninstall"));

    QCOMPARE(under.window.findChild<QWidget*>("widgetLine")->styleSheet(),
             QStringLiteral("QWidget#widgetLine {\n    background-color: #a0a0a0;\n"
                            "    max-height: 1px;\n}"));
    const auto* buttonRow = under.window.findChild<QWidget*>("widget");
    QCOMPARE(buttonRow->minimumHeight(), 55);
    QCOMPARE(buttonRow->styleSheet(),
             QStringLiteral("QWidget {\nbackground-color: white;\n}\n\nQPushButton {\n"
                            "background-color: #efefef;\nborder: 1px solid #adadad;\n"
                            "border-radius: 6px;\n}\n"));
    QCOMPARE(under.window.findChild<QWidget*>("widget_2")->minimumHeight(), 50);
}

void WidgetFormTest::layoutsHaveTheirMarginsSpacingAndOrder()
{
    const SuiteRegistry registry;
    const WindowUnderTest under;

    const auto* outer = under.window.findChild<QLayout*>("verticalLayout");
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(outer->itemAt(0)->widget()->objectName(), QStringLiteral("widget_2"));
    QCOMPARE(outer->itemAt(1)->widget()->objectName(), QStringLiteral("widgetLine"));
    QCOMPARE(outer->itemAt(2)->widget()->objectName(), QStringLiteral("widget"));

    const auto* top = under.window.findChild<QLayout*>("verticalLayout_2");
    QCOMPARE(top->spacing(), 5);
    QCOMPARE(top->contentsMargins(), QMargins(12, 12, 12, 5));
    QCOMPARE(top->itemAt(0)->widget(), under.list);
    QCOMPARE(top->itemAt(1)->widget(), under.deleteSettings);

    const auto* buttons = under.window.findChild<QLayout*>("horizontalLayout");
    QCOMPARE(buttons->spacing(), 8);
    QCOMPARE(buttons->contentsMargins(), QMargins(12, 6, 12, 10));
    QVERIFY(buttons->itemAt(0)->spacerItem() != nullptr);
    QVERIFY(buttons->itemAt(0)->expandingDirections() & Qt::Horizontal);
    QCOMPARE(buttons->itemAt(1)->widget(), under.select);
    QCOMPARE(buttons->itemAt(2)->widget(), under.uninstall);
}

void WidgetFormTest::metaObjectListsSignalAndSlotsInOrder()
{
    const QMetaObject& meta = Widget::staticMetaObject;
    QStringList own;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        own.append(QString::fromLatin1(meta.method(i).methodSignature()));
    const QStringList expected{QStringLiteral("firstShow()"),
                               QStringLiteral("uninstallButtonClicked()"),
                               QStringLiteral("showWarningAndKillApp(std::string,bool)"),
                               QStringLiteral("setSelectButtonMode(bool)"),
                               QStringLiteral("allApplicationsSelButtonClicked()"),
                               QStringLiteral("toggleItem(QListWidgetItem*)"),
                               QStringLiteral("on_firstShow()")};
    QCOMPARE(own, expected);
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void WidgetFormTest::firstShowIsConnectedToItsSlot()
{
    const SuiteRegistry registry;
    WindowUnderTest under;
    // A connection can be taken away only when there is one.
    QVERIFY(QObject::disconnect(&under.window, &Widget::firstShow, &under.window,
                                &Widget::on_firstShow));
}

void WidgetFormTest::constructorLogsEntryAndBrandInOrder()
{
    const SuiteRegistry registry;
    const CapturedLog log;
    const WindowUnderTest under;
    const std::vector<std::string> expected{"-->Widget::Widget()",
                                            "Try to fill list widget (runtime brand: Lumacraft)"};
    QCOMPARE(log.mainFormTexts(), expected);
    for (const Keelbase::LogRecord& record : log.records()) {
        QCOMPARE(record.level, 6);
        QCOMPARE(record.sourceFile, std::string("ui/uninstall/src/widget"));
        QVERIFY(record.sourceLine > 0);
    }
}

void WidgetFormTest::destructorLogsItsEntry()
{
    const SuiteRegistry registry;
    const CapturedLog log;
    {
        const WindowUnderTest under;
    }
    QCOMPARE(log.mainFormTexts().back(), std::string("~Widget()"));
}

void WidgetFormTest::listHoldsEveryRegisteredNameUnchecked()
{
    SuiteRegistry registry;
    registry.addApplication(QStringLiteral("Screen Taker"), QStringLiteral("c:\\a.exe /log=1"));
    registry.addApplication(QStringLiteral("Tessera Kit"), QStringLiteral("c:\\b.exe /log=1"));
    registry.addApplication(QString::fromUtf8("Größe 図形"), QStringLiteral("c:\\c.exe /log=1"));
    const WindowUnderTest under;

    const QStringList order =
        QSettings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvane\\UninstPaths"),
                  QSettings::NativeFormat)
            .childKeys();
    QCOMPARE(order.size(), 3);
    QCOMPARE(under.list->count(), 3);
    for (int row = 0; row < 3; ++row) {
        const QListWidgetItem* item = under.list->item(row);
        QCOMPARE(item->text(), order.at(row));
        // Without a stored state the row has no check box at all.
        QCOMPARE(item->data(Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
        QCOMPARE(item->flags(),
                 Qt::ItemFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled));
    }
    QVERIFY(under.select->isEnabled());
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
    QCOMPARE(under.selectState(), 1);
    QCOMPARE(under.select->property("state").type(), QVariant::Int);
}

void WidgetFormTest::emptyRegistryLeavesAllControlsDisabled()
{
    const SuiteRegistry registry;
    WindowUnderTest under;
    QVERIFY(under.show());
    QCOMPARE(under.list->count(), 0);
    QVERIFY(!under.select->isEnabled());
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
    QVERIFY(under.window.close());
}

void WidgetFormTest::otherBrandsListIsNotRead()
{
    const SuiteRegistry registry;
    QSettings other(QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvane\\UninstallPaths"),
                    QSettings::NativeFormat);
    other.setValue(QStringLiteral("Screen Taker"), QStringLiteral("c:\\a.exe /log=1"));
    other.sync();
    const WindowUnderTest under;
    QCOMPARE(under.list->count(), 0);
}

void WidgetFormTest::namesThatAreNoCatalogueEntriesAreListedToo()
{
    SuiteRegistry registry;
    registry.addApplication(QStringLiteral("Somebody Else's Tool"), QString());
    const WindowUnderTest under;
    QCOMPARE(under.list->count(), 1);
    QCOMPARE(under.list->item(0)->text(), QStringLiteral("Somebody Else's Tool"));
    QVERIFY(under.select->isEnabled());
}

void WidgetFormTest::valuesThatAreNoTextAreListedToo()
{
    const SuiteRegistry registry;
    QSettings list(QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvane\\UninstPaths"),
                   QSettings::NativeFormat);
    list.setValue(QStringLiteral("A number"), 5);
    list.setValue(QStringLiteral("Some bytes"), QByteArray("\x01\x00\x02", 3));
    list.setValue(QStringLiteral("Some texts"), QStringList{"one", "two"});
    list.sync();
    const WindowUnderTest under;
    QCOMPARE(under.list->count(), 3);
}

void WidgetFormTest::hugeNamesAreListedCompletely()
{
    SuiteRegistry registry;
    // The registry itself allows 16,383 characters in a value name.
    const QString huge(16000, QLatin1Char('N'));
    registry.addApplication(huge, QStringLiteral("c:\\a.exe /log=1"));
    WindowUnderTest under;
    QVERIFY(under.show());
    QCOMPARE(under.list->count(), 1);
    QCOMPARE(under.list->item(0)->text(), huge);
}

void WidgetFormTest::namesInAnyScriptAreListed()
{
    SuiteRegistry registry;
    // In the list's order: with a combining accent; precomposed; long; right-to-left; with a
    // right-to-left override; beyond the basic plane.
    const QStringList names{QString::fromUtf8("Cafe\u0301 Player"),
                            QString::fromUtf8("Caf\u00e9 Player"),
                            QString(255, QLatin1Char('N')),
                            QString::fromUtf8("\u05de\u05e1\u05d9\u05e8 Media 2026"),
                            QString::fromUtf8("\u202ereyalP oediV"),
                            QString::fromUtf8("\U0001f3b5 Music")};
    for (const QString& name : names)
        registry.addApplication(name, QStringLiteral("c:\\a.exe /log=1"));
    WindowUnderTest under;
    QVERIFY(under.show());
    QStringList listed;
    for (int row = 0; row < under.list->count(); ++row)
        listed.append(under.list->item(row)->text());
    QCOMPARE(listed, names);
}

// On a user's computer anyone may have created the folder that Qt was built into.
void WidgetFormTest::pluginsAreSearchedOnlyInTheProgramsFolder()
{
    const QString home = QCoreApplication::applicationDirPath();
    const QStringList paths = QCoreApplication::libraryPaths();
    for (const QString& path : paths)
        QVERIFY2(path.startsWith(home), qPrintable(path));
}

TESSERA_QT_TEST(WidgetFormTest)
#include "widget_form_test.moc"
