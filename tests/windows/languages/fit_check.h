#pragma once

#include <QStringList>
#include <QWidget>

// Looks for texts that a window cuts off: every visible label, button, check box and list row is
// measured with the font that it is drawn with. Returns one line for each fault, naming widget,
// text and sizes; empty when everything fits. The window must be on the screen.
QStringList cutTexts(const QWidget& window);

// Looks for texts that do not stand out from their background: each is drawn, and the contrast of
// its darkest and lightest points must reach 4.5, the value that accessibility guidelines ask of
// texts. Disabled widgets are left out, as by the guidelines.
QStringList faintTexts(QWidget& window);
