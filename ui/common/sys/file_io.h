#pragma once

// Whole-file services by wide path. Any thread may call them; nothing is locked between
// processes. No function throws.

#include <string>

namespace sys {

// Reads the file's bytes into `content`. Returns 0; the error number of the open call;
// openedWithoutStream; or readOrWriteFailed when the bytes cannot be read. `content` is changed on
// success only.
//
// A file that another process has open for writing or exclusively is tried again for half a second;
// any other failure is returned at once.
int readWholeFile(const std::wstring& path, std::string& content);

// Creates or replaces the file with the bytes of `text` up to its first NUL; other processes may
// read and write it meanwhile. Returns 0 or readOrWriteFailed.
int writeWholeFile(const std::wstring& path, const std::string& text);

// True for any file or folder.
bool fileExists(const std::wstring& path);

} // namespace sys
