#include "ui/common/sys/win32_error.h"

#include "ui/common/sys/text_convert.h"

#include <string>

#include <windows.h>

namespace win32 {

namespace {

std::string systemText(DWORD error)
{
    wchar_t buffer[512] = {};
    const DWORD size = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
        nullptr, error, 0, buffer, static_cast<DWORD>(std::size(buffer)), nullptr);
    std::wstring_view text(buffer, size);
    while (!text.empty() && text.back() <= L' ')
        text.remove_suffix(1);
    return text.empty() ? "no text for this number" : sys::toUtf8(text);
}

} // namespace

void logFailure(const Keelbase::LogSource& source, int line, const char* api,
                unsigned long error) noexcept
{
    try {
        KEELBASE_LOG_AT(source, Keelbase::levelDetail, line)
            << api << " failed: " << error << " (" << systemText(error) << ")";
    } catch (...) {
        // No memory for the message.
    }
    SetLastError(error);
}

} // namespace win32
