#include "tests/windows/languages/fit_check.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastContrast = 4.5;

QString describe(const QWidget& widget, const QString& text, const QSizeF& needed,
                 const QSizeF& given)
{
    return QStringLiteral("%1 \"%2\": needs %3 x %4, has %5 x %6")
        .arg(widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                           : widget.objectName(),
             text)
        .arg(needed.width())
        .arg(needed.height())
        .arg(given.width())
        .arg(given.height());
}

void compare(QStringList& faults, const QWidget& widget, const QString& text, const QSizeF& needed,
             const QSizeF& given)
{
    // Layouts use whole pixels, fonts fractions.
    if (std::floor(needed.width()) > given.width() || std::floor(needed.height()) > given.height())
        faults.append(describe(widget, text, needed, given));
}

QSizeF lineSize(const QWidget& widget, const QString& text)
{
    const QFontMetricsF metrics(widget.font());
    return {metrics.horizontalAdvance(text), metrics.height()};
}

// Lays rich and wrapped texts out at the label's width.
QSizeF textSize(const QLabel& label, qreal width)
{
    if (!label.wordWrap() && !Qt::mightBeRichText(label.text())) {
        QSizeF size;
        for (const QString& line : label.text().split(QLatin1Char('\n'))) {
            const QSizeF one = lineSize(label, line);
            size = {std::max(size.width(), one.width()), size.height() + one.height()};
        }
        return size;
    }
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(label.font());
    if (Qt::mightBeRichText(label.text()))
        document.setHtml(label.text());
    else
        document.setPlainText(label.text());
    if (label.wordWrap())
        document.setTextWidth(width);
    return {document.idealWidth(), document.size().height()};
}

void checkLabel(QStringList& faults, const QLabel& label)
{
    if (label.text().isEmpty())
        return;
    const QSizeF given = label.contentsRect().size();
    compare(faults, label, label.text(), textSize(label, given.width()), given);
    const QSize hint =
        label.wordWrap() ? QSize(0, label.heightForWidth(label.width())) : label.sizeHint();
    compare(faults, label, label.text(), hint, label.size());
}

void checkButton(QStringList& faults, const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const bool checkBox = qobject_cast<const QCheckBox*>(&button) != nullptr;
    const QRect contents = button.style()->subElementRect(
        checkBox ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents, &option, &button);
    compare(faults, button, button.text(), lineSize(button, button.text()), contents.size());
}

void checkList(QStringList& faults, const QListWidget& list)
{
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem* item = list.item(row);
        const QSizeF needed(list.sizeHintForIndex(list.model()->index(row, 0)));
        const QSizeF given(list.viewport()->width(), list.visualItemRect(item).height());
        compare(faults, list, item->text(), needed, given);
    }
}

void checkInside(QStringList& faults, const QWidget& window, const QWidget& widget)
{
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    if (!window.rect().contains(place))
        faults.append(widget.objectName() + QStringLiteral(" extends beyond its window"));
}

double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double contrastOf(QWidget& window, const QRect& place)
{
    const QImage drawn = window.grab(place).toImage();
    double darkest = 1;
    double lightest = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const double light = luminance(drawn.pixel(x, y));
            darkest = std::min(darkest, light);
            lightest = std::max(lightest, light);
        }
    }
    return (lightest + 0.05) / (darkest + 0.05);
}

// Part of the text, without borders, check box and focus rectangle.
QRect textPlace(const QWidget& widget)
{
    const QFontMetrics metrics(widget.font());
    QRect place(QPoint(), QSize(metrics.height() * 2, metrics.height() / 2));
    place.moveCenter(widget.rect().center());
    if (qobject_cast<const QLabel*>(&widget) != nullptr ||
        qobject_cast<const QCheckBox*>(&widget) != nullptr)
        place.moveLeft(metrics.height() * 2);
    return place & widget.rect();
}

} // namespace

QStringList cutTexts(const QWidget& window)
{
    QStringList faults;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            checkLabel(faults, *label);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            checkButton(faults, *button);
        else if (const auto* list = qobject_cast<const QListWidget*>(widget))
            checkList(faults, *list);
        else
            continue;
        checkInside(faults, window, *widget);
    }
    return faults;
}

QStringList faintTexts(QWidget& window)
{
    QStringList faults;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool hasText = (label != nullptr && !label->text().isEmpty()) ||
                             qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (!hasText || !widget->isVisible() || !widget->isEnabled())
            continue;
        const QRect place = textPlace(*widget).translated(widget->mapTo(&window, QPoint()));
        const double contrast = contrastOf(window, place);
        if (contrast < leastContrast)
            faults.append(
                QStringLiteral("%1: contrast %2").arg(widget->objectName()).arg(contrast));
    }
    return faults;
}
