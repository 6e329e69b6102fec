#pragma once

// Where the suite's applications keep their settings. Any thread; neither files nor folders need
// exist.

#include <string>

namespace uninstall {

// The index that stands for no application.
constexpr unsigned noAppIndex = 0xFFFFFFFF;

// The settings folder of the application with this numeric id in the catalogue, or the suite's.
std::wstring settingsFolder(unsigned appIndex);

// The application's settings file, <id string>.cfg in its settings folder.
std::wstring applicationConfigPath(int appId);

} // namespace uninstall
