#pragma once

#include "tests/windows/qt_tests/window_waits.h"
#include "ui/uninstall/src/widget.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

// The real main window, its controls, and mouse gestures on it.
class WindowUnderTest
{
public:
    explicit WindowUnderTest(std::vector<std::string> arguments = {})
        : window(std::move(arguments)), list(window.findChild<QListWidget*>("listWidget")),
          deleteSettings(window.findChild<QCheckBox*>("cbDeleteSettings")),
          select(window.findChild<QPushButton*>("btnAllApplicationsSel")),
          uninstall(window.findChild<QPushButton*>("btnUninstall"))
    {}

    bool show()
    {
        window.show();
        return windows_tests::becomesVisible(window);
    }

    // Clicks the middle of the row's check box.
    void clickCheckBox(int row)
    {
        QStyleOptionViewItem option;
        option.initFrom(list);
        option.features =
            QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.rect = list->visualItemRect(list->item(row));
        const QRect box =
            list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    }

    bool isChecked(int row) const { return list->item(row)->checkState() == Qt::Checked; }

    int checkedRows() const
    {
        int count = 0;
        for (int row = 0; row < list->count(); ++row)
            count += isChecked(row) ? 1 : 0;
        return count;
    }

    int selectState() const { return select->property("state").toInt(); }

    int rowOf(const QString& text) const
    {
        const auto items = list->findItems(text, Qt::MatchExactly);
        return items.isEmpty() ? -1 : list->row(items.first());
    }

    Widget window;
    QListWidget* const list;
    QCheckBox* const deleteSettings;
    QPushButton* const select;
    QPushButton* const uninstall;
};
