#pragma once

#include <QStringList>
#include <QWidget>

// Looks at the glyphs with which labels, buttons, list rows and tool tips are drawn. Returns one
// line for each text with a letter that no font has, or with letters of one script from two fonts;
// empty when there is none. Hidden widgets are left out. Window titles are drawn by the system and
// are not looked at. Latin and Greek may mix: the Tahoma of the test machines has only some of the
// Vietnamese and Greek letters that Windows' has.
QStringList letterFaults(const QWidget& window);
