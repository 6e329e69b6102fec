// What the channel asks the system for.

#include "tests/support/import_slot.h"
#include "tests/windows/ipc/channel_client.h"

#include <gtest/gtest.h>

#include <string>

using namespace ipctest;

namespace {

struct PipeRequest
{
    std::wstring path;
    DWORD openMode;
    DWORD pipeMode;
    DWORD instances;
    DWORD outBuffer;
    DWORD inBuffer;
    DWORD wait;
} pipeRequest;

HANDLE WINAPI refusePipe(const wchar_t* path, DWORD openMode, DWORD pipeMode, DWORD instances,
                         DWORD outBuffer, DWORD inBuffer, DWORD wait, SECURITY_ATTRIBUTES*)
{
    pipeRequest = {path, openMode, pipeMode, instances, outBuffer, inBuffer, wait};
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return INVALID_HANDLE_VALUE;
}

TEST(ChannelRequests, ServersPipe)
{
    CInterprocessCommunicationWin channel;
    channel.claimMutex();
    const ReplacedImport refused("CreateNamedPipeW", &refusePipe);
    EXPECT_EQ(channel.createServer(), ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_EQ(pipeRequest.path, pipePath);
    EXPECT_EQ(pipeRequest.openMode, 0x40000003U);
    EXPECT_EQ(pipeRequest.pipeMode, 6U);
    EXPECT_EQ(pipeRequest.instances, 255U);
    EXPECT_EQ(pipeRequest.outBuffer, 65535U);
    EXPECT_EQ(pipeRequest.inBuffer, 65535U);
    EXPECT_EQ(pipeRequest.wait, 15000U);
}

struct FileRequest
{
    std::wstring path;
    DWORD access;
    DWORD share;
    DWORD disposition;
    DWORD attributes;
} fileRequest;

HANDLE WINAPI refuseFile(const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES*,
                         DWORD disposition, DWORD attributes, HANDLE)
{
    fileRequest = {path, access, share, disposition, attributes};
    SetLastError(ERROR_PIPE_BUSY);
    return INVALID_HANDLE_VALUE;
}

TEST(ChannelRequests, ClientsFile)
{
    wchar_t computer[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    ASSERT_TRUE(GetComputerNameW(computer, &size));
    Client client;
    const ReplacedImport refused("CreateFileW", &refuseFile);
    EXPECT_EQ(client.channel.connectToServer(), ERROR_PIPE_BUSY);
    const std::wstring name = std::wstring(pipePath).substr(std::wstring(L"\\\\.").size());
    EXPECT_EQ(fileRequest.path, std::wstring(L"\\\\") + computer + name);
    EXPECT_EQ(fileRequest.access, GENERIC_READ | GENERIC_WRITE);
    EXPECT_EQ(fileRequest.share, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE});
    EXPECT_EQ(fileRequest.disposition, DWORD{OPEN_EXISTING});
    EXPECT_EQ(fileRequest.attributes, DWORD{FILE_ATTRIBUTE_NORMAL});
}

struct MutexRequest
{
    DWORD access;
    BOOL isInheritable;
    std::wstring name;
} mutexRequest;

HANDLE WINAPI refuseMutex(DWORD access, BOOL isInheritable, const wchar_t* name)
{
    mutexRequest = {access, isInheritable, name};
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

TEST(ChannelRequests, MutexOfTheFirstCopy)
{
    CInterprocessCommunicationWin first;
    first.claimMutex();
    CInterprocessCommunicationWin second;
    const ReplacedImport refused("OpenMutexW", &refuseMutex);
    second.claimMutex();
    EXPECT_FALSE(second.firstInstance);
    EXPECT_EQ(mutexRequest.access, 0x1F0001U);
    EXPECT_TRUE(mutexRequest.isInheritable);
    EXPECT_EQ(mutexRequest.name, L"Global\\LUMACRAFT_UNINSTALL");
}

} // namespace
