#pragma once

// Where the messages of one source file come from: a constant at the file's top.

#include "support/keelbase/keelbase.h"
#include "ui/common/sys/win32_error.h"

#include <utility>

namespace win32 {

// Any thread; nothing here throws. A message for which there is no memory is lost.
class LogSource
{
public:
    // Both texts are kept by pointer: literals.
    constexpr LogSource(const char* logCategory, const char* sourceFile)
        : category(logCategory), file(sourceFile)
    {}

    // A Win32 call failed, see win32::logFailure.
    void failure(int line, const char* api, unsigned long error) const noexcept
    {
        logFailure(category, file, line, api, error);
    }

    // Any other message; see Keelbase::log.
    template <typename Compose>
    void write(int level, int line, Compose&& compose) const noexcept
    {
        try {
            Keelbase::log(level, category, file, line, std::forward<Compose>(compose));
        } catch (...) {
        }
    }

private:
    const char* category;
    const char* file;
};

} // namespace win32
