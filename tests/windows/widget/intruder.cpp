#include "tests/windows/widget/intruder.h"

#include <QAccessible>

namespace {

void act(QAccessibleInterface* target, const QString& action)
{
    QVERIFY(target != nullptr && target->actionInterface() != nullptr);
    target->actionInterface()->doAction(action);
}

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

// The visible state of rows and controls, as one text.
QString stateOf(const WindowUnderTest& under)
{
    QString text;
    for (int row = 0; row < under.list->count(); ++row)
        text += QString::number(under.list->item(row)->checkState());
    return text + QStringLiteral(" %1%2 %3%4%5 %6")
                      .arg(under.deleteSettings->isEnabled())
                      .arg(under.deleteSettings->checkState())
                      .arg(under.select->isEnabled())
                      .arg(under.selectState())
                      .arg(under.select->text())
                      .arg(under.uninstall->isEnabled());
}

} // namespace

Intruder::Intruder(WindowUnderTest& window)
    : under(window), uninstallClicks(window.uninstall, &QPushButton::clicked),
      selectClicks(window.select, &QPushButton::clicked)
{}

bool Intruder::pressesHaveArrived() const
{
    return pressed && uninstallClicks.count() > 0 && selectClicks.count() > 0;
}

template <typename Attempt>
void Intruder::attempt(const char* name, Attempt&& make)
{
    const QString before = stateOf(under);
    make();
    if (stateOf(under) != before)
        changed.append(QLatin1String(name));
}

void Intruder::tryEverything()
{
    QListWidget& list = *under.list;
    const auto everyRow = [&list](auto&& change) {
        for (int row = 0; row < list.count(); ++row)
            change(row);
    };
    const auto opposite = [&list](int row) {
        return list.item(row)->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    };

    attempt("rows set",
            [&] { everyRow([&](int row) { list.item(row)->setCheckState(opposite(row)); }); });
    attempt("rows set in the model", [&] {
        everyRow([&](int row) {
            list.model()->setData(list.model()->index(row, 0), opposite(row), Qt::CheckStateRole);
        });
    });
    attempt("rows toggled by an assistive program", [&] {
        QAccessibleInterface* table = accessible(&list);
        everyRow(
            [&](int row) { act(table->child(row), QAccessibleActionInterface::toggleAction()); });
    });
    attempt("row clicked", [&] { under.clickCheckBox(0); });
    attempt("row toggled by key", [&] {
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Space);
    });

    attempt("check box clicked", [&] { under.deleteSettings->click(); });
    attempt("check box set",
            [&] { under.deleteSettings->setChecked(!under.deleteSettings->isChecked()); });
    attempt("check box toggled by an assistive program", [&] {
        act(accessible(under.deleteSettings), QAccessibleActionInterface::toggleAction());
    });

    attempt("changeItemsState", [&] { under.window.changeItemsState(false); });
    attempt("selectApplication", [&] {
        for (const char* id : {"LoopMaker", "ScreenTaker", "WaveTuner"})
            under.window.selectApplication(QLatin1String(id));
    });
    attempt("setSelectButtonMode",
            [&] { under.window.setSelectButtonMode(under.selectState() == 0); });
    attempt("toggleItem", [&] { under.window.toggleItem(list.item(0)); });

    attempt("select button clicked", [&] { under.select->click(); });
    attempt("select button clicked by mouse",
            [&] { QTest::mouseClick(under.select, Qt::LeftButton); });
    attempt("Uninstall clicked", [&] { under.uninstall->click(); });
    attempt("Uninstall clicked by mouse",
            [&] { QTest::mouseClick(under.uninstall, Qt::LeftButton); });
    attempt("uninstallButtonClicked", [&] { under.window.uninstallButtonClicked(); });

    uninstallClicks.clear();
    selectClicks.clear();
    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             under.select, under.uninstall, under.deleteSettings})
        act(accessible(button), QAccessibleActionInterface::pressAction());
    pressed = true;
}
