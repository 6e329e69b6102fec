#pragma once

// Where the suite's applications keep their settings. Files and folders need not exist. Any thread.

#include <string>

namespace uninstall {

// Stands for no application.
constexpr unsigned noAppIndex = 0xFFFFFFFF;

// The settings folder of the application with this catalogue id; the suite's own for noAppIndex.
std::wstring settingsFolder(unsigned appIndex);

// The application's settings file, <id string>.cfg in its settings folder.
std::wstring applicationConfigPath(int appId);

} // namespace uninstall
