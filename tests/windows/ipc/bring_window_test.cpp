#include "ui/common/sys/bring_window_to_top.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// A visible top-level window.
class TitledWindow
{
public:
    explicit TitledWindow(const std::wstring& title, DWORD extendedStyle = 0)
        : window(CreateWindowExW(extendedStyle, L"STATIC", title.c_str(),
                                 WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 200, 100, nullptr,
                                 nullptr, nullptr, nullptr))
    {}
    ~TitledWindow() { DestroyWindow(window); }
    TitledWindow(const TitledWindow&) = delete;
    TitledWindow& operator=(const TitledWindow&) = delete;

    HWND handle() const { return window; }
    std::int64_t number() const { return reinterpret_cast<std::int64_t>(window); }

private:
    HWND window;
};

void handleWaitingMessages()
{
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

// Handles messages until none has come for `quiet`. The window manager gives every new window the
// focus in turn, with a delay that nothing announces.
void settle()
{
    constexpr DWORD quiet = 200;         // ms
    constexpr ULONGLONG longest = 10000; // ms
    const ULONGLONG end = GetTickCount64() + longest;
    do {
        handleWaitingMessages();
    } while (GetTickCount64() < end &&
             MsgWaitForMultipleObjects(0, nullptr, FALSE, quiet, QS_ALLINPUT) != WAIT_TIMEOUT);
}

// The foreground window after settle().
HWND settledForeground()
{
    settle();
    return GetForegroundWindow();
}

std::vector<HWND> topLevelWindows()
{
    std::vector<HWND> windows;
    sys::enumerateWindows([&windows](HWND window) {
        windows.push_back(window);
        return 1;
    });
    return windows;
}

TEST(EnumerateWindows, VisitsTopLevelWindowsUntilToldToStop)
{
    const TitledWindow one(L"one");
    const TitledWindow two(L"two");
    const std::vector<HWND> all = topLevelWindows();
    EXPECT_EQ(std::count(all.begin(), all.end(), one.handle()), 1);
    EXPECT_EQ(std::count(all.begin(), all.end(), two.handle()), 1);

    int visited = 0;
    sys::enumerateWindows([&visited](HWND) { return ++visited < 2 ? 1 : 0; });
    EXPECT_EQ(visited, 2);
}

TEST(EnumerateWindows, EmptyFunctionThrows)
{
    const TitledWindow window(L"any");
    EXPECT_THROW(sys::enumerateWindows({}), std::bad_function_call);
}

TEST(EnumerateWindows, ExceptionReachesTheCallerAndEndsIt)
{
    const TitledWindow window(L"any");
    int visited = 0;
    EXPECT_THROW(sys::enumerateWindows([&visited](HWND) -> int {
                     ++visited;
                     throw std::runtime_error("enough");
                 }),
                 std::runtime_error);
    EXPECT_EQ(visited, 1);
}

struct TitleCase
{
    const wchar_t* own;
    const wchar_t* other;
    bool broughtForward;
};

class BringWindowToTop : public testing::TestWithParam<TitleCase>
{};

TEST_P(BringWindowToTop, SelectsAWindowWhoseTitleContainsTheOwnTitle)
{
    const TitledWindow other(GetParam().other);
    const TitledWindow own(GetParam().own);
    const TitledWindow front(L"~");
    settle();
    SetForegroundWindow(front.handle());
    ASSERT_EQ(settledForeground(), front.handle());

    sys::bringWindowToTop(own.number());
    EXPECT_EQ(settledForeground(), GetParam().broughtForward ? other.handle() : front.handle());
}

INSTANTIATE_TEST_SUITE_P(Titles, BringWindowToTop,
                         testing::Values(TitleCase{L"Tessera bench", L"Tessera bench", true},
                                         TitleCase{L"Tessera bench", L"a Tessera bench b", true},
                                         TitleCase{L"Tessera bench", L"Tessera benc", false},
                                         TitleCase{L"Tessera bench", L"tessera bench", false},
                                         TitleCase{L"Tessera bench", L"Tessera  bench", false}));

TEST(BringWindowToTopOrder, SelectsTheFirstMatchInTheSystemsOrder)
{
    const TitledWindow own(L"Tessera bench");
    const TitledWindow one(L"Tessera bench 1");
    const TitledWindow two(L"Tessera bench 2");
    settle();
    SetForegroundWindow(own.handle());
    settle();
    const std::vector<HWND> all = topLevelWindows();
    const auto first = std::find_if(all.begin(), all.end(), [&](HWND window) {
        return window == one.handle() || window == two.handle();
    });
    ASSERT_NE(first, all.end());
    sys::bringWindowToTop(own.number());
    EXPECT_EQ(settledForeground(), *first);
}

TEST(BringWindowToTopOrder, EmptyOwnTitleSelectsTheFirstOtherWindow)
{
    const TitledWindow own(L"");
    const TitledWindow front(L"~");
    const TitledWindow topmost(L"any title", WS_EX_TOPMOST);
    settle();
    SetForegroundWindow(front.handle());
    settle();
    ASSERT_EQ(topLevelWindows().front(), topmost.handle());
    sys::bringWindowToTop(own.number());
    EXPECT_EQ(settledForeground(), topmost.handle());
}

} // namespace
