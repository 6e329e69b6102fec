#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/replaceable.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <objbase.h>
#include <shlobj.h>

using sys::KnownFolder;

namespace {

// The arguments of the fake loading calls, and their results.
std::vector<std::wstring> loaded;
std::vector<std::string> looked;
std::wstring missingLibrary;
std::string missingFunction;
FARPROC shellAnswer = nullptr;
FARPROC freeAnswer = nullptr;
bool usedWhileLoaded = false;

// Loaded instead of both system libraries; nothing else in this program uses it.
constexpr const wchar_t* fakeLibrary = L"cabinet.dll";

HMODULE WINAPI loadCounted(const wchar_t* name)
{
    loaded.emplace_back(name);
    if (name == missingLibrary) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    return LoadLibraryW(fakeLibrary);
}

FARPROC WINAPI findCounted(HMODULE, const char* function)
{
    looked.emplace_back(function);
    if (function == missingFunction) {
        SetLastError(ERROR_PROC_NOT_FOUND);
        return nullptr;
    }
    return looked.back() == "CoTaskMemFree" ? freeAnswer : shellAnswer;
}

template <typename Function>
FARPROC asProcedure(Function* function)
{
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

GUID askedFolder = {};
DWORD askedFlags = 99;
HANDLE askedToken = INVALID_HANDLE_VALUE;
wchar_t answeredPath[] = L"D:\\Roaming \u8A66";
void* freed = nullptr;

HRESULT WINAPI answerPath(const GUID& folder, DWORD flags, HANDLE token, wchar_t** path)
{
    askedFolder = folder;
    askedFlags = flags;
    askedToken = token;
    usedWhileLoaded = GetModuleHandleW(fakeLibrary) != nullptr;
    *path = answeredPath;
    return S_OK;
}

HRESULT WINAPI refuse(const GUID&, DWORD, HANDLE, wchar_t** path)
{
    *path = nullptr;
    return E_INVALIDARG;
}

HRESULT WINAPI refuseWithMemory(const GUID&, DWORD, HANDLE, wchar_t** path)
{
    *path = answeredPath;
    return E_INVALIDARG;
}

struct Fault
{};

HRESULT WINAPI raiseOnLookup(const GUID&, DWORD, HANDLE, wchar_t**)
{
    SetLastError(1234);
    throw Fault();
}

void WINAPI rememberFreed(void* memory)
{
    freed = memory;
}

void WINAPI raiseOnFree(void*)
{
    SetLastError(1234);
    throw Fault();
}

class KnownFolders : public testing::Test
{
protected:
    KnownFolders()
        : narrowBuffer(std::cerr.rdbuf(narrow.rdbuf())), wideBuffer(std::wcerr.rdbuf(wide.rdbuf()))
    {
        loaded.clear();
        looked.clear();
        missingLibrary.clear();
        missingFunction.clear();
        shellAnswer = asProcedure(&answerPath);
        freeAnswer = asProcedure(&rememberFreed);
        freed = nullptr;
        usedWhileLoaded = false;
    }
    ~KnownFolders() override
    {
        std::cerr.rdbuf(narrowBuffer);
        std::wcerr.rdbuf(wideBuffer);
    }

    int look(KnownFolder folder = KnownFolder::roamingAppData)
    {
        path = L"before";
        return sys::knownFolderPath(folder, path, {&loadCounted, &findCounted});
    }

    std::wstring path;
    std::ostringstream narrow;
    std::wostringstream wide;

private:
    std::streambuf* const narrowBuffer;
    std::wstreambuf* const wideBuffer;
};

std::wstring variable(const wchar_t* name)
{
    wchar_t value[4096] = {};
    GetEnvironmentVariableW(name, value, static_cast<DWORD>(std::size(value)));
    return value;
}

} // namespace

TEST_F(KnownFolders, AreTheUsersOwn)
{
    EXPECT_EQ(sys::knownFolderPath(KnownFolder::roamingAppData, path), 0);
    EXPECT_EQ(path, variable(L"APPDATA"));
    EXPECT_EQ(sys::knownFolderPath(KnownFolder::localAppData, path), 0);
    EXPECT_EQ(path, variable(L"LOCALAPPDATA"));
    EXPECT_EQ(narrow.str(), "");
    EXPECT_EQ(wide.str(), L"");
}

TEST_F(KnownFolders, AreRequestedWithoutFlagsAndToken)
{
    EXPECT_EQ(look(KnownFolder::roamingAppData), 0);
    EXPECT_EQ(path, L"D:\\Roaming \u8A66");
    EXPECT_EQ(askedFolder.Data1, 0x3EB685DBU);
    EXPECT_EQ(askedFlags, 0U);
    EXPECT_EQ(askedToken, nullptr);
    EXPECT_EQ(look(KnownFolder::localAppData), 0);
    EXPECT_EQ(askedFolder.Data1, 0xF1B32785U);
}

TEST_F(KnownFolders, LibrariesAreLoadedByNameAtEachCall)
{
    look();
    look();
    EXPECT_EQ(loaded, (std::vector<std::wstring>{L"shell32.dll", L"ole32.dll", L"shell32.dll",
                                                 L"ole32.dll"}));
    EXPECT_EQ(looked, (std::vector<std::string>{"SHGetKnownFolderPath", "CoTaskMemFree",
                                                "SHGetKnownFolderPath", "CoTaskMemFree"}));
}

TEST_F(KnownFolders, LibrariesStayLoadedOnlyDuringTheCall)
{
    ASSERT_EQ(GetModuleHandleW(fakeLibrary), nullptr);
    look();
    EXPECT_TRUE(usedWhileLoaded);
    EXPECT_EQ(GetModuleHandleW(fakeLibrary), nullptr);
}

TEST_F(KnownFolders, MemoryOfTheShellIsFreed)
{
    look();
    EXPECT_EQ(freed, answeredPath);
}

TEST_F(KnownFolders, MissingShellLibraryIsReported)
{
    missingLibrary = L"shell32.dll";
    EXPECT_EQ(look(), static_cast<int>(0x80004005));
    EXPECT_EQ(path, L"");
    EXPECT_EQ(wide.str(), L"Couldn't load dllshell32.dll | err = 126\n");
    EXPECT_EQ(narrow.str(), "");
    EXPECT_TRUE(looked.empty());
}

TEST_F(KnownFolders, MissingShellFunctionIsReported)
{
    missingFunction = "SHGetKnownFolderPath";
    EXPECT_EQ(look(), E_FAIL);
    EXPECT_EQ(path, L"");
    EXPECT_EQ(narrow.str(), "GetProcAddress return null | err = 127");
    EXPECT_EQ(wide.str(), L"");
}

TEST_F(KnownFolders, ExceptionIsReported)
{
    shellAnswer = asProcedure(&raiseOnLookup);
    EXPECT_EQ(look(), E_FAIL);
    EXPECT_EQ(path, L"");
    EXPECT_EQ(narrow.str(), "Exception(\"SHGetKnownFolderPath\") | err = 1234");
}

TEST_F(KnownFolders, FailureOfTheShellIsReturned)
{
    shellAnswer = asProcedure(&refuse);
    EXPECT_EQ(look(), E_INVALIDARG);
    EXPECT_EQ(path, L"");
    EXPECT_EQ(freed, nullptr);
    EXPECT_EQ(narrow.str(), "");
}

TEST_F(KnownFolders, MemoryOfAFailedCallIsFreedAndNotUsed)
{
    shellAnswer = asProcedure(&refuseWithMemory);
    EXPECT_EQ(look(), E_INVALIDARG);
    EXPECT_EQ(path, L"");
    EXPECT_EQ(freed, answeredPath);
}

TEST_F(KnownFolders, PathIsReturnedEvenIfItsMemoryCannotBeFreed)
{
    missingLibrary = L"ole32.dll";
    EXPECT_EQ(look(), 0);
    EXPECT_EQ(path, L"D:\\Roaming \u8A66");
    EXPECT_EQ(wide.str(), L"Couldn't load dllole32.dll | err = 126\n");

    missingLibrary.clear();
    missingFunction = "CoTaskMemFree";
    EXPECT_EQ(look(), 0);
    EXPECT_EQ(path, L"D:\\Roaming \u8A66");
    EXPECT_EQ(narrow.str(), "GetProcAddress return null | err = 127");
}

TEST_F(KnownFolders, ExceptionWhileFreeingIsReported)
{
    freeAnswer = asProcedure(&raiseOnFree);
    EXPECT_EQ(look(), 0);
    EXPECT_EQ(path, L"D:\\Roaming \u8A66");
    EXPECT_EQ(narrow.str(), "Exception (\"CoTaskMemFree\") | err = 1234");
}
