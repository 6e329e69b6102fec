// Which copy is the first: the mutex between real processes. This process never claims the mutex,
// so that each test starts without one.

#include "tests/windows/ipc/claiming_peer.h"

#include <gtest/gtest.h>

#include <aclapi.h>

using namespace ipctest;

namespace {

const wchar_t* const mutexName = L"Global\\LUMACRAFT_UNINSTALL";

bool mutexExists()
{
    const win32::KernelHandle mutex(OpenMutexW(SYNCHRONIZE, FALSE, mutexName));
    return static_cast<bool>(mutex);
}

TEST(SingleInstance, FirstCopyCreatesTheMutexUntilItsEnd)
{
    ASSERT_FALSE(mutexExists());
    ClaimingPeer copy;
    EXPECT_TRUE(copy.isFirst());
    EXPECT_TRUE(mutexExists());
    EXPECT_TRUE(copy.stop());
    EXPECT_FALSE(mutexExists());
}

TEST(SingleInstance, LaterCopiesFindTheMutex)
{
    ClaimingPeer first;
    ASSERT_TRUE(first.isFirst());
    ClaimingPeer second;
    ClaimingPeer third;
    EXPECT_TRUE(second.isLater());
    EXPECT_TRUE(third.isLater());
    EXPECT_EQ(third.log(), "");
    EXPECT_EQ(first.log(), "");
}

TEST(SingleInstance, ALaterCopyKeepsTheNameTakenWhenTheFirstEnds)
{
    ClaimingPeer first;
    ClaimingPeer second;
    ASSERT_TRUE(second.isLater());
    ASSERT_TRUE(first.stop());
    ClaimingPeer third;
    EXPECT_TRUE(third.isLater());
    EXPECT_TRUE(second.stop());
    EXPECT_TRUE(third.stop());
    ClaimingPeer fourth;
    EXPECT_TRUE(fourth.isFirst());
}

TEST(SingleInstance, ALaterCopyKeepsTheNameTakenUntilItsProcessEnds)
{
    ClaimingPeer first;
    ClaimingPeer second({L"forget"});
    ASSERT_TRUE(second.isLater());
    ASSERT_TRUE(first.stop());
    EXPECT_TRUE(mutexExists());
    EXPECT_TRUE(second.stop());
    EXPECT_FALSE(mutexExists());
}

TEST(SingleInstance, AFirstCopyReleasesTheNameWithItsChannel)
{
    ClaimingPeer first({L"forget"});
    ASSERT_TRUE(first.isFirst());
    EXPECT_FALSE(mutexExists());
}

TEST(SingleInstance, MutexOwnedByAThreadIsNotWaitedFor)
{
    const win32::KernelHandle owned(CreateMutexW(nullptr, TRUE, mutexName));
    ASSERT_TRUE(owned);
    ClaimingPeer copy;
    EXPECT_TRUE(copy.isLater());
    EXPECT_TRUE(copy.stop());
}

TEST(SingleInstance, MutexWithoutAccessMeansALaterCopy)
{
    DWORD everyone[SECURITY_MAX_SID_SIZE / sizeof(DWORD)] = {};
    DWORD size = sizeof(everyone);
    ASSERT_TRUE(CreateWellKnownSid(WinWorldSid, nullptr, everyone, &size));
    DWORD list[64] = {};
    auto* nobody = reinterpret_cast<ACL*>(list);
    ASSERT_TRUE(InitializeAcl(nobody, sizeof(list), ACL_REVISION));
    ASSERT_TRUE(AddAccessDeniedAce(nobody, ACL_REVISION, MUTEX_ALL_ACCESS, everyone));
    SECURITY_DESCRIPTOR descriptor = {};
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&descriptor, TRUE, nobody, FALSE);
    SECURITY_ATTRIBUTES attributes = {sizeof(attributes), &descriptor, FALSE};
    const win32::KernelHandle closed(CreateMutexW(&attributes, FALSE, mutexName));
    ASSERT_TRUE(closed);
    const win32::KernelHandle opened(CreateMutexW(nullptr, FALSE, mutexName));
    ASSERT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    ClaimingPeer copy;
    EXPECT_TRUE(copy.isLater());
    EXPECT_TRUE(copy.stop());
    EXPECT_EQ(copy.log().rfind("OpenMutexW failed: 5 ", 0), 0U);
}

TEST(SingleInstance, AnotherKindOfObjectWithTheNameDoesNotStopTheProgram)
{
    const win32::KernelHandle event(CreateEventW(nullptr, TRUE, FALSE, mutexName));
    ASSERT_TRUE(event);
    ClaimingPeer copy;
    EXPECT_TRUE(copy.isFirst());
    EXPECT_TRUE(copy.stop());
    EXPECT_EQ(copy.log().rfind("CreateMutexW failed: 6 ", 0), 0U);
}

} // namespace
