#include "tools/windows_kit/runner/machine.h"

#include "support/win32/unique_handle.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include <windows.h>

#include <bcrypt.h>

namespace kit {

namespace {

std::string utf8(const wchar_t* text)
{
    return std::filesystem::path(text).u8string();
}

std::string versionValue(const wchar_t* name)
{
    wchar_t text[256] = {};
    DWORD size = sizeof(text);
    if (RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", name,
                     RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return {};
    return utf8(text);
}

// Asked of the system itself: GetVersionExW tells a program what its manifest says.
std::string versionNumber()
{
    using RtlGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    const auto get = reinterpret_cast<RtlGetVersion>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    if (get == nullptr || get(&version) != 0)
        return "unknown";
    DWORD revision = 0;
    DWORD size = sizeof(revision);
    RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", L"UBR",
                 RRF_RT_REG_DWORD, nullptr, &revision, &size);
    return std::to_string(version.dwMajorVersion) + '.' + std::to_string(version.dwMinorVersion) +
           '.' + std::to_string(version.dwBuildNumber) + '.' + std::to_string(revision);
}

template <class Information>
Information ofToken(HANDLE token, TOKEN_INFORMATION_CLASS kind)
{
    Information information = {};
    DWORD size = 0;
    GetTokenInformation(token, kind, &information, sizeof(information), &size);
    return information;
}

bool isInAdministrators()
{
    BYTE group[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof(group);
    BOOL member = FALSE;
    return CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, group, &size) &&
           CheckTokenMembership(nullptr, group, &member) && member;
}

std::string accountLines()
{
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened))
        return "Account: unknown\n";
    const win32::KernelHandle token(opened);
    const auto kind = ofToken<TOKEN_ELEVATION_TYPE>(token.get(), TokenElevationType);
    const auto elevation = ofToken<TOKEN_ELEVATION>(token.get(), TokenElevation);
    // Only an administrator's token is one of two.
    const bool administrator = kind != TokenElevationTypeDefault || isInAdministrators();
    return std::string("Account: ") + (administrator ? "administrator" : "standard user") +
           "\nElevated: " + (elevation.TokenIsElevated != 0 ? "yes" : "no") + '\n';
}

struct AlgorithmKind
{
    using Value = BCRYPT_ALG_HANDLE;
    static Value invalid() noexcept { return nullptr; }
    static void close(Value value) noexcept { BCryptCloseAlgorithmProvider(value, 0); }
};

struct HashKind
{
    using Value = BCRYPT_HASH_HANDLE;
    static Value invalid() noexcept { return nullptr; }
    static void close(Value value) noexcept { BCryptDestroyHash(value); }
};

} // namespace

int screenDpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

std::string describeMachine()
{
    return "Windows: " + versionValue(L"ProductName") + ' ' + versionValue(L"DisplayVersion") +
           " (" + versionNumber() + ")\n" + accountLines() +
           "Screen: " + std::to_string(GetSystemMetrics(SM_CXSCREEN)) + " x " +
           std::to_string(GetSystemMetrics(SM_CYSCREEN)) + " at " + std::to_string(screenDpi()) +
           " dpi\n";
}

std::string sha256Of(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> bytes{std::istreambuf_iterator<char>(stream),
                            std::istreambuf_iterator<char>()};
    if (!stream)
        return {};
    BCRYPT_ALG_HANDLE openedAlgorithm = nullptr;
    if (BCryptOpenAlgorithmProvider(&openedAlgorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) != 0)
        return {};
    const win32::UniqueHandle<AlgorithmKind> algorithm(openedAlgorithm);
    BCRYPT_HASH_HANDLE openedHash = nullptr;
    if (BCryptCreateHash(algorithm.get(), &openedHash, nullptr, 0, nullptr, 0, 0) != 0)
        return {};
    const win32::UniqueHandle<HashKind> hash(openedHash);
    UCHAR digest[32] = {};
    if (BCryptHashData(hash.get(), reinterpret_cast<PUCHAR>(bytes.data()),
                       static_cast<ULONG>(bytes.size()), 0) != 0 ||
        BCryptFinishHash(hash.get(), digest, sizeof(digest), 0) != 0)
        return {};
    std::string text;
    for (const UCHAR byte : digest) {
        constexpr const char* digits = "0123456789abcdef";
        text += digits[byte / 16];
        text += digits[byte % 16];
    }
    return text;
}

} // namespace kit
