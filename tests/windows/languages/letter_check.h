#pragma once

#include <QStringList>
#include <QWidget>

// Checks the glyphs of visible labels, buttons, list rows and tool tips. Returns one line for each
// text with a letter that no font has, or with letters of one script from two fonts. Window titles,
// which the system draws, are ignored. Latin and Greek may mix: Wine's Tahoma lacks some Vietnamese
// and Greek letters.
QStringList letterFaults(const QWidget& window);
