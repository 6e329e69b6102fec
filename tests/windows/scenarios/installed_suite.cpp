#include "tests/windows/scenarios/installed_suite.h"

#include "tests/support/lines.h"
#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/text_convert.h"

#include <optional>
#include <system_error>

#include <shellapi.h>

namespace scenarios {

namespace {

constexpr const wchar_t* suiteKey = L"Software\\Corvane";
constexpr const wchar_t* listKey = L"Software\\Corvane\\UninstPaths";
// tests/sample_suite/records.nsh describes the files.
const std::filesystem::path recordsFolder = L"C:\\records";

std::filesystem::path recordOf(const Application& application)
{
    return recordsFolder / (application.idString + L".txt");
}

bool install(const Application& application, const std::filesystem::path& root)
{
    const ChildProcess installer(
        windows_tests::nearestAbove(L"sample_suite\\" + application.idString + L"_setup.exe"),
        {L"/S", L"/ROOT=" + root.wstring()});
    return installer.waitForExit() == 0U;
}

// The command line of a record that is complete.
std::optional<std::wstring> recordedCommandLine(const Application& application)
{
    std::error_code missing;
    if (!std::filesystem::exists(recordOf(application), missing))
        return std::nullopt;
    const std::string bytes = windows_tests::readBytes(recordOf(application));
    const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()),
                            bytes.size() / sizeof(wchar_t));
    constexpr std::wstring_view begin = L"line\t";
    const std::size_t lineEnd = text.find(L"\r\n");
    if (text.rfind(begin, 0) != 0 || text.find(L"\nend\t") == std::wstring::npos ||
        text.compare(text.size() - 2, 2, L"\r\n") != 0)
        return std::nullopt;
    return text.substr(begin.size(), lineEnd - begin.size());
}

std::wstring joinedArguments(const std::wstring& commandLine)
{
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(commandLine.c_str(), &count);
    std::wstring joined;
    for (int i = 1; i < count; ++i)
        joined += (i > 1 ? L" " : L"") + std::wstring(words[i]);
    LocalFree(words);
    return joined;
}

} // namespace

const Application tessera{L"Tessera", L"Tessera Kit", L"Tessera"};
const Application beatGrid{L"BeatGrid", L"Beat Grid",
                           L"Beat Grid \u2013 Gro\u00DF & Gr\u00F6\u00DFer \u7BC0\u62CD"};
const Application clipSaver{L"ClipSaver", L"Clip Saver 2026", L"Clip Saver"};
const Application karaokeStage{L"KaraokeStage", L"Karaoke Stage", L"Karaoke Stage"};
const Application photoStory{L"PhotoStoryAndSlideshow", L"Photo Story and Slideshow",
                             L"Photo Story and Slideshow"};
const Application waveTuner{L"WaveTuner", L"Wave Tuner", L"Wave Tuner"};

InstalledSuite::InstalledSuite(std::vector<Application> applications)
    : installed(std::move(applications))
{
    clear();
    isComplete = true;
    for (const Application& application : installed)
        isComplete = install(application, root.path()) && isComplete;
    std::filesystem::create_directories(programFolder());
    std::error_code failed;
    std::filesystem::copy_file(ipctest::programPath(), program(), failed);
    isComplete = isComplete && !failed;
    windows_tests::writeBytes(settingsFolder() / L"common.cfg",
                              "EventStatEnabled=0\nLanguage=en\n");
}

InstalledSuite::~InstalledSuite()
{
    clear();
}

void InstalledSuite::clear() const
{
    RegDeleteTreeW(HKEY_CURRENT_USER, suiteKey);
    std::error_code ignored;
    std::filesystem::remove_all(settingsFolder(), ignored);
    for (const Application& application : installed)
        std::filesystem::remove(recordOf(application), ignored);
    std::filesystem::remove(recordsFolder, ignored);
}

std::filesystem::path InstalledSuite::folder(const Application& application) const
{
    return root / L"Lumacraft" / application.folder;
}

std::wstring InstalledSuite::uninstaller(const Application& application) const
{
    return folder(application) / L"Uninst.exe";
}

std::filesystem::path InstalledSuite::settingsFolder()
{
    std::wstring roaming;
    sys::knownFolderPath(sys::KnownFolder::roamingAppData, roaming);
    return std::filesystem::path(roaming) / L"Lumacraft";
}

bool InstalledSuite::isRegistered(const Application& application)
{
    return RegGetValueW(HKEY_CURRENT_USER, listKey, application.displayName.c_str(), RRF_RT_REG_SZ,
                        nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

bool InstalledSuite::isUntouched(const Application& application) const
{
    return std::filesystem::exists(folder(application) / (application.idString + L".exe")) &&
           std::filesystem::exists(uninstaller(application)) &&
           std::filesystem::exists(settingsFolder() / application.idString) &&
           isRegistered(application) && !std::filesystem::exists(recordOf(application));
}

bool InstalledSuite::isRemoved(const Application& application, bool keepsSettings) const
{
    return !std::filesystem::exists(folder(application)) && !isRegistered(application) &&
           std::filesystem::exists(settingsFolder() / application.idString) == keepsSettings;
}

std::wstring InstalledSuite::removalArguments(const Application& application) const
{
    std::optional<std::wstring> line;
    becomesTrue([&] {
        line = recordedCommandLine(application);
        return line.has_value();
    });
    return line ? joinedArguments(*line) : L"(has not ended)";
}

std::wstring InstalledSuite::logSwitch(const Application& application)
{
    return L"/log=" +
           (settingsFolder() / L"logs" / (application.idString + L"_uninstall.log")).wstring();
}

std::vector<std::wstring> InstalledSuite::startedUninstallers()
{
    constexpr std::string_view start = "| DoUninsstall: ";
    std::vector<std::wstring> started;
    for (const std::string& line : testing_support::linesOf(ipctest::programLogs())) {
        const std::size_t found = line.find(start);
        if (found != std::string::npos)
            started.push_back(sys::fromUtf8(line.substr(found + start.size())));
    }
    return started;
}

} // namespace scenarios
