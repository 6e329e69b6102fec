#pragma once

#include <QStringList>
#include <QWidget>

// Finds texts that a window cuts off: measures every visible label, button, check box and list row
// with its font. Returns one line for each fault, with widget, text and sizes. The window must be
// shown.
QStringList cutTexts(const QWidget& window);

// Finds texts with too little contrast to their background: that of the darkest and lightest points
// must be at least 4.5, which accessibility guidelines require. Like those it ignores disabled
// widgets.
QStringList faintTexts(QWidget& window);
