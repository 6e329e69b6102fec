#pragma once

// Every window of the program, opened for real in one language after the other: for the layout
// tests and for the pictures.

#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

// The languages as the settings name them: English and one for each catalogue in the program.
QStringList allLanguages();

// Opens each window and dialog in `language`, calls `visit` while it is on the screen, and closes
// it again. `name` is a short file-name-like word. The main window is the parent of the dialogs,
// as in the program. Needs a QApplication; fills the suite's registry list with a sample and
// empties it again. Returns false when a window did not appear within its deadline.
using WindowVisitor = std::function<void(const QString& name, QWidget& window)>;
bool visitWindows(const QString& language, const WindowVisitor& visit);
