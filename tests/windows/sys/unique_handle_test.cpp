#include "support/win32/unique_handle.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace {

std::vector<int> closed;

struct CountedKind
{
    using Value = int;
    static Value invalid() noexcept { return -1; }
    static void close(Value value) noexcept { closed.push_back(value); }
};
using CountedHandle = win32::UniqueHandle<CountedKind>;

class UniqueHandle : public testing::Test
{
protected:
    UniqueHandle() { closed.clear(); }
};

bool isOpen(HANDLE handle)
{
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags) != 0;
}

} // namespace

TEST_F(UniqueHandle, ClosesItsHandleOnceAtTheEnd)
{
    {
        const CountedHandle handle(7);
        EXPECT_TRUE(handle);
        EXPECT_EQ(handle.get(), 7);
    }
    EXPECT_EQ(closed, std::vector<int>{7});
}

TEST_F(UniqueHandle, IsEmptyWithTheInvalidValueAndClosesNothing)
{
    {
        const CountedHandle none;
        const CountedHandle invalid(-1);
        const CountedHandle zero(0);
        EXPECT_FALSE(none);
        EXPECT_FALSE(invalid);
        EXPECT_TRUE(zero);
    }
    EXPECT_EQ(closed, std::vector<int>{0});
}

TEST_F(UniqueHandle, ResetClosesTheOldAndTakesTheNew)
{
    CountedHandle handle(1);
    handle.reset(2);
    EXPECT_EQ(handle.get(), 2);
    EXPECT_EQ(closed, std::vector<int>{1});
    handle.reset();
    EXPECT_FALSE(handle);
    EXPECT_EQ(closed, (std::vector<int>{1, 2}));
    handle.reset();
    EXPECT_EQ(closed, (std::vector<int>{1, 2}));
}

TEST_F(UniqueHandle, ReleaseEndsOwnership)
{
    {
        CountedHandle handle(3);
        EXPECT_EQ(handle.release(), 3);
        EXPECT_FALSE(handle);
    }
    EXPECT_TRUE(closed.empty());
}

TEST_F(UniqueHandle, MovesOwnershipAndIsNeverCopied)
{
    static_assert(!std::is_copy_constructible_v<CountedHandle>);
    static_assert(!std::is_copy_assignable_v<CountedHandle>);
    static_assert(std::is_nothrow_move_constructible_v<CountedHandle>);
    CountedHandle first(4);
    CountedHandle second(std::move(first));
    EXPECT_EQ(second.get(), 4);
    CountedHandle third(5);
    third = std::move(second);
    EXPECT_EQ(third.get(), 4);
    EXPECT_EQ(closed, std::vector<int>{5});
}

TEST_F(UniqueHandle, SurvivesAssignmentToItself)
{
    CountedHandle handle(6);
    CountedHandle& same = handle;
    handle = std::move(same);
    EXPECT_EQ(handle.get(), 6);
    EXPECT_TRUE(closed.empty());
}

TEST_F(UniqueHandle, KernelObjectsAreInvalidWhenNullAndFilesWhenMinusOne)
{
    EXPECT_FALSE(win32::KernelHandle(nullptr));
    EXPECT_TRUE(win32::FileHandle().get() == INVALID_HANDLE_VALUE);
    EXPECT_FALSE(win32::FileHandle(INVALID_HANDLE_VALUE));
    EXPECT_FALSE(win32::LibraryHandle(nullptr));
}

TEST_F(UniqueHandle, ClosesRealKernelObjects)
{
    win32::KernelHandle event(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    ASSERT_TRUE(event);
    const HANDLE raw = event.get();
    ASSERT_TRUE(isOpen(raw));
    event.reset();
    EXPECT_FALSE(isOpen(raw));
}

TEST_F(UniqueHandle, ClosesRealFiles)
{
    win32::FileHandle file(
        CreateFileW(L"NUL", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(file);
    const HANDLE raw = file.get();
    ASSERT_TRUE(isOpen(raw));
    file.reset();
    EXPECT_FALSE(isOpen(raw));
}

TEST_F(UniqueHandle, FreesLibraries)
{
    // A library that nothing else in this program uses.
    const wchar_t* const name = L"cabinet.dll";
    ASSERT_EQ(GetModuleHandleW(name), nullptr);
    win32::LibraryHandle library(LoadLibraryW(name));
    ASSERT_TRUE(library);
    ASSERT_NE(GetModuleHandleW(name), nullptr);
    library.reset();
    EXPECT_EQ(GetModuleHandleW(name), nullptr);
}
