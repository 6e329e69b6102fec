#include "ui/common/sys/module_path.h"
#include "ui/common/sys/replaceable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace {

std::wstring answer;

// A fake of GetModuleFileNameW: it cuts a path that does not fit and returns the buffer's size.
DWORD WINAPI answerPath(HMODULE module, wchar_t* path, DWORD size)
{
    EXPECT_EQ(module, nullptr);
    const std::size_t copied = std::min<std::size_t>(answer.size(), size - 1);
    std::copy_n(answer.begin(), copied, path);
    path[copied] = L'\0';
    return static_cast<DWORD>(answer.size() < size ? answer.size() : size);
}

DWORD WINAPI fail(HMODULE, wchar_t*, DWORD)
{
    SetLastError(ERROR_NOT_SUPPORTED);
    return 0;
}

DWORD WINAPI neverFits(HMODULE, wchar_t*, DWORD size)
{
    return size;
}

} // namespace

TEST(ModulePath, IsThisProgram)
{
    const std::filesystem::path path = sys::modulePath();
    EXPECT_EQ(path.filename().native(), L"windows_sys.exe");
    EXPECT_TRUE(path.is_absolute());
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST(ModulePath, FolderIsThePathBeforeItsLastSeparator)
{
    EXPECT_EQ(sys::moduleFolder() + L"\\windows_sys.exe", sys::modulePath());
}

TEST(ModulePath, IsCompleteAtAnyLength)
{
    for (const std::size_t length : {1U, 258U, 259U, 260U, 261U, 519U, 520U, 32000U, 32767U}) {
        answer = L"C:\\" + std::wstring(length, L'\u8A66');
        EXPECT_EQ(sys::modulePath(&answerPath), answer) << length;
    }
}

TEST(ModulePath, IsEmptyWhenTheSystemFails)
{
    EXPECT_EQ(sys::modulePath(&fail), L"");
    EXPECT_EQ(sys::modulePath(&neverFits), L"");
}
