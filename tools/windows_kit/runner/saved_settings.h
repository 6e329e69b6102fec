#pragma once

namespace kit {

// What the tests change of a user's own: HKCU\Software\Corvane and %APPDATA%\Lumacraft. Both are
// put aside (the key by a copy, the folder by a new name) and later put back.
//
// What is put aside stays in the registry and on disk until it is back, so that a run that was cut
// off (the power failed, the process was ended) is made good by the next call of restoreSettings().

// False, with a line on standard error, when something could not be put aside; then nothing is
// changed. Call restoreSettings() first.
bool putSettingsAside();

// Removes what a test left, so that the next one finds a user without settings.
void clearSettings();

// Puts back what is aside, if anything is. False, with a line on standard error, when that failed;
// what is aside is then kept.
bool restoreSettings();

} // namespace kit
