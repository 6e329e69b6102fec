#include "tools/windows_kit/runner/saved_settings.h"

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>

#include <windows.h>

#include <shlobj.h>

namespace kit {

namespace {

constexpr const wchar_t* settingsKey = L"Software\\Corvane";
constexpr const wchar_t* asideKey = L"Software\\Tessera test kit";
constexpr const wchar_t* copyKey = L"Software\\Tessera test kit\\Corvane";
// Set once everything is aside; until then nothing of the original has been removed.
constexpr const wchar_t* completeValue = L"Complete";
constexpr const wchar_t* hadFolderValue = L"HadFolder";

bool succeeded(const char* what, LONG error)
{
    if (error != ERROR_SUCCESS)
        std::fprintf(stderr, "%s: error %ld\n", what, error);
    return error == ERROR_SUCCESS;
}

std::filesystem::path applicationData()
{
    PWSTR path = nullptr;
    std::filesystem::path folder;
    if (SUCCEEDED(SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &path)))
        folder = path;
    CoTaskMemFree(path);
    return folder;
}

std::filesystem::path settingsFolder()
{
    return applicationData() / L"Lumacraft";
}

std::filesystem::path asideFolder()
{
    return applicationData() / L"Lumacraft (put aside by the tests)";
}

bool keyExists(const wchar_t* name)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, name, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

bool copyTree(const wchar_t* from, const wchar_t* to)
{
    HKEY key = nullptr;
    if (!succeeded("RegCreateKeyExW", RegCreateKeyExW(HKEY_CURRENT_USER, to, 0, nullptr, 0,
                                                      KEY_ALL_ACCESS, nullptr, &key, nullptr)))
        return false;
    const bool copied = succeeded("RegCopyTreeW", RegCopyTreeW(HKEY_CURRENT_USER, from, key));
    RegCloseKey(key);
    return copied;
}

bool deleteTree(const wchar_t* name)
{
    if (!keyExists(name))
        return true;
    return succeeded("RegDeleteTreeW", RegDeleteTreeW(HKEY_CURRENT_USER, name));
}

bool setFlag(const wchar_t* name, bool value)
{
    const DWORD number = value ? 1 : 0;
    return succeeded("RegSetKeyValueW", RegSetKeyValueW(HKEY_CURRENT_USER, asideKey, name,
                                                        REG_DWORD, &number, sizeof(number)));
}

bool flag(const wchar_t* name)
{
    DWORD number = 0;
    DWORD size = sizeof(number);
    return RegGetValueW(HKEY_CURRENT_USER, asideKey, name, RRF_RT_REG_DWORD, nullptr, &number,
                        &size) == ERROR_SUCCESS &&
           number != 0;
}

// A virus scanner or the indexer may look into a file at this moment.
constexpr int attempts = 20;
constexpr DWORD pauseMs = 100;

bool removeFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::filesystem::remove_all(folder, error);
        if (!error)
            return true;
        Sleep(pauseMs);
    }
    std::fprintf(stderr, "removing %s: error %d\n", folder.u8string().c_str(), error.value());
    return false;
}

bool moveFolder(const std::filesystem::path& from, const std::filesystem::path& to)
{
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH))
            return true;
        Sleep(pauseMs);
    }
    std::fprintf(stderr, "renaming %s: error %lu\n", from.u8string().c_str(), GetLastError());
    return false;
}

bool isThere(const std::filesystem::path& folder)
{
    return GetFileAttributesW(folder.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool restoreFolder()
{
    if (isThere(asideFolder()))
        return removeFolder(settingsFolder()) && moveFolder(asideFolder(), settingsFolder());
    // There was none. When there was one, it is back already.
    return flag(hadFolderValue) || removeFolder(settingsFolder());
}

bool restoreKey()
{
    return deleteTree(settingsKey) && (!keyExists(copyKey) || copyTree(copyKey, settingsKey));
}

} // namespace

bool putSettingsAside()
{
    const bool hasFolder = isThere(settingsFolder());
    if (!setFlag(hadFolderValue, hasFolder) ||
        (keyExists(settingsKey) && !copyTree(settingsKey, copyKey)) ||
        (hasFolder && !moveFolder(settingsFolder(), asideFolder())) ||
        !setFlag(completeValue, true)) {
        restoreSettings();
        return false;
    }
    clearSettings();
    return true;
}

void clearSettings()
{
    deleteTree(settingsKey);
    removeFolder(settingsFolder());
}

bool restoreSettings()
{
    if (!keyExists(asideKey))
        return true;
    const bool complete = flag(completeValue);
    if (!complete && isThere(asideFolder()) && !moveFolder(asideFolder(), settingsFolder()))
        return false;
    if (complete) {
        const bool keyIsBack = restoreKey();
        if (!restoreFolder() || !keyIsBack)
            return false;
    }
    return deleteTree(asideKey);
}

} // namespace kit
