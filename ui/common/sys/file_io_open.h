#pragma once

// The whole-file read with its open call replaceable. Programs use file_io.h.

#include "ui/common/sys/file_io.h"

#include <cstdio>

namespace sys {

// The shape of _wfopen_s: returns 0 and a stream, or an error number.
using OpenFile = int (*)(std::FILE** stream, const wchar_t* path, const wchar_t* mode);

int readWholeFile(const std::wstring& path, std::string& content, OpenFile open);

} // namespace sys
