// The program loads no library and runs no program from its own folder or the current folder: a
// download folder may hold anything.

#include "tests/windows/scenarios/installed_suite.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <iterator>

using namespace scenarios;
using ipctest::modalBoxOf;
using ipctest::RunningProgram;
using windows_tests::ScratchFolder;
using windows_tests::siblingProgram;

namespace {

const std::filesystem::path plantedProgram = siblingProgram(L"planted_program");
const std::filesystem::path plantedLibrary = plantedProgram.parent_path() / L"planted_library.dll";

// Imports of the program beyond the libraries that Windows always takes from its own folder, and
// libraries that are loaded at run time.
constexpr const wchar_t* libraries[] = {
    L"bcrypt",  L"crypt32", L"dwmapi",   L"netapi32", L"userenv", L"uxtheme",
    L"version", L"winmm",   L"wtsapi32", L"combase",  L"d3d9",    L"d3d11",
    L"dwrite",  L"dxgi",    L"opengl32", L"secur32",  L"shcore",  L"uiautomationcore",
    L"wintab32"};

// Wine takes its own library where the search found another of the same name; in this scope it
// takes what it found, as Windows does. But Wine's own user32 would then use a planted version.dll.
class FoundLibraries
{
public:
    FoundLibraries()
    {
        for (const wchar_t* name : libraries) {
            if (name != std::wstring(L"version"))
                setOrder(name, L"native,builtin");
        }
    }
    ~FoundLibraries()
    {
        for (const wchar_t* name : libraries)
            setOrder(name, nullptr);
    }
    FoundLibraries(const FoundLibraries&) = delete;
    FoundLibraries& operator=(const FoundLibraries&) = delete;

private:
    static void setOrder(const std::wstring& library, const wchar_t* order)
    {
        const std::wstring name = L"*" + library;
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", 0, KEY_SET_VALUE,
                          &key) != ERROR_SUCCESS)
            return; // Windows
        if (order == nullptr)
            RegDeleteValueW(key, name.c_str());
        else
            RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(order),
                           static_cast<DWORD>((std::wcslen(order) + 1) * sizeof(wchar_t)));
        RegCloseKey(key);
    }
};

void plant(const std::filesystem::path& folder)
{
    for (const wchar_t* name : libraries)
        copy_file(plantedLibrary, folder / (std::wstring(name) + L".dll"));
    copy_file(plantedProgram, folder / L"taskkill.exe");
}

std::vector<std::wstring> touched(const std::filesystem::path& folder)
{
    std::vector<std::wstring> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == L".touched")
            found.push_back(entry.path());
    }
    return found;
}

bool isRunning(const Application& application)
{
    const std::wstring name = L"Global\\Lumacraft_" + application.idString;
    const win32::KernelHandle mutex(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str()));
    return static_cast<bool>(mutex);
}

// Answers the modal box that the program shows next, once it is there.
void answerNextBox(const RunningProgram& program, WORD key)
{
    HWND box = nullptr;
    ASSERT_TRUE(becomesTrue([&] { return (box = modalBoxOf(program.pid())) != nullptr; }));
    ipctest::pressKey(box, key);
    ASSERT_TRUE(becomesTrue([&] { return !IsWindow(box) || !IsWindowVisible(box); }));
}

TEST(PlantedFiles, LeaveMarksWhenUsed)
{
    const FoundLibraries underWine;
    const ScratchFolder scratch;
    plant(scratch.path());
    for (const wchar_t* name : libraries) {
        const HMODULE library = LoadLibraryW((scratch / (std::wstring(name) + L".dll")).c_str());
        ASSERT_NE(library, nullptr);
        FreeLibrary(library);
    }
    EXPECT_EQ(ChildProcess(scratch / L"taskkill.exe", {}).waitForExit(), 0U);
    // Not always version.dll.
    EXPECT_GE(touched(scratch.path()).size(), std::size(libraries));
}

TEST(PlantedFiles, AreNeitherLoadedNorRun)
{
    const InstalledSuite suite({clipSaver, karaokeStage});
    ASSERT_TRUE(suite.complete());
    // Statistics and the country lookup run up to a proxy that does not answer.
    windows_tests::writeBytes(InstalledSuite::settingsFolder() / L"common.cfg",
                              "EventStatEnabled=1\nLanguage=en\nProxyType=1\n"
                              "ProxyAddress=127.0.0.1\nProxyPort=9\n");
    const ScratchFolder currentFolder;
    plant(suite.programFolder());
    plant(currentFolder.path());
    const ChildProcess application(suite.folder(karaokeStage) / L"KaraokeStage.exe", {});
    ASSERT_TRUE(becomesTrue([] { return isRunning(karaokeStage); }));

    windows_tests::ChildOptions options;
    options.folder = currentFolder.path();
    const FoundLibraries underWine;
    const RunningProgram program({}, suite.program(), options);
    ASSERT_TRUE(program.ready());
    program.clickSelectAll();
    program.clickUninstall();
    answerNextBox(program, VK_ESCAPE); // the survey
    answerNextBox(program, VK_RETURN); // the warning
    EXPECT_EQ(program.waitForExit(), 0U);

    EXPECT_TRUE(application.waitForExit().has_value()) << "Windows' own taskkill has ended it";
    for (const Application& removed : {clipSaver, karaokeStage}) {
        suite.removalArguments(removed);
        EXPECT_TRUE(suite.isRemoved(removed, false));
    }
    EXPECT_EQ(touched(suite.programFolder()), std::vector<std::wstring>());
    EXPECT_EQ(touched(currentFolder.path()), std::vector<std::wstring>());
}

} // namespace
