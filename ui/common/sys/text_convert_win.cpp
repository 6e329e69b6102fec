#include "ui/common/sys/text_convert.h"
#include "ui/common/sys/win32_error.h"

#include <limits>

#include <windows.h>

namespace sys {

namespace {

constexpr Keelbase::LogSource logSource{"System", "ui/common/sys/text_convert"};

template <typename Text>
bool hasConvertibleSize(const Text& text)
{
    return !text.empty() &&
           text.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max());
}

std::wstring toWide(std::string_view text, unsigned codePage, DWORD flags)
{
    if (!hasConvertibleSize(text))
        return {};
    const int size = static_cast<int>(text.size());
    const int wideSize = MultiByteToWideChar(codePage, flags, text.data(), size, nullptr, 0);
    if (wideSize <= 0) {
        win32::logFailure(logSource, __LINE__, "MultiByteToWideChar", GetLastError());
        return {};
    }
    std::wstring wide(static_cast<std::size_t>(wideSize), L'\0');
    MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), wideSize);
    return wide;
}

std::string fromWide(std::wstring_view text, unsigned codePage)
{
    if (!hasConvertibleSize(text))
        return {};
    const int size = static_cast<int>(text.size());
    const int narrowSize =
        WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    if (narrowSize <= 0)
        return {}; // not logged, since the log's own texts are converted here
    std::string narrow(static_cast<std::size_t>(narrowSize), '\0');
    WideCharToMultiByte(codePage, 0, text.data(), size, narrow.data(), narrowSize, nullptr,
                        nullptr);
    return narrow;
}

} // namespace

std::wstring fromUtf8(std::string_view text)
{
    return toWide(text, CP_UTF8, MB_ERR_INVALID_CHARS);
}

std::wstring fromCodePage(std::string_view text, unsigned codePage)
{
    return toWide(text, codePage, 0);
}

std::string toUtf8(std::wstring_view text)
{
    return fromWide(text, CP_UTF8);
}

std::string toNarrow(std::wstring_view text)
{
    return fromWide(text, CP_ACP);
}

} // namespace sys
