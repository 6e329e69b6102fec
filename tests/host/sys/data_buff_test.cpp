#include "tests/support/vtable_index.h"
#include "ui/common/sys/data_buff.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <limits>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// By default the sanitizers' allocators end the process on a request that is too large; here they
// must return null as the system's allocator does.
extern "C" const char* __asan_default_options();
extern "C" const char* __tsan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}
extern "C" const char* __tsan_default_options()
{
    return "allocator_may_return_null=1";
}
#endif

namespace sys {

namespace {

using namespace std::string_literals;

constexpr std::uint64_t impossibleSize = std::numeric_limits<std::uint64_t>::max() / 2;

// A block for attach().
void* newBlock(const std::string& bytes)
{
    void* const block = std::malloc(bytes.size());
    std::memcpy(block, bytes.data(), bytes.size());
    return block;
}

// What the program holds from malloc; nothing under a sanitizer, which finds leaks by itself.
std::size_t heldBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

TEST(DataBuff, KeepsItsSlotsInOrder)
{
    // Slots 0 and 1 are the destructor.
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::resize), 2U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::clear), 3U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::assignString), 4U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::assign), 5U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::attach), 6U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::attachFrom), 7U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::detach), 8U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::moveTo), 9U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::copyToWideString), 10U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::copyToString), 11U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::toString), 12U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::size), 13U);
    EXPECT_EQ(testing_support::vtableIndex(&IDataBuff::empty), 14U);
}

TEST(DataBuff, StartsEmpty)
{
    const DataBuff buffer;
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_EQ(buffer.size(), 0U);
    EXPECT_TRUE(buffer.empty());
    EXPECT_EQ(buffer.toString(), "");
}

TEST(DataBuff, ResizeToNothingOnAnEmptyBufferSucceeds)
{
    DataBuff buffer;
    EXPECT_TRUE(buffer.resize(0));
    EXPECT_EQ(buffer.data(), nullptr);
}

TEST(DataBuff, ResizeKeepsTheBytesThatFit)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abcdef"));
    ASSERT_TRUE(buffer.resize(3));
    EXPECT_EQ(buffer.toString(), "abc");
    ASSERT_TRUE(buffer.resize(100000));
    EXPECT_EQ(buffer.size(), 100000U);
    EXPECT_EQ(buffer.toString().substr(0, 3), "abc");
    EXPECT_FALSE(buffer.empty());
}

TEST(DataBuff, ResizeToTheSameSizeKeepsTheBlock)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    const void* const block = buffer.data();
    EXPECT_TRUE(buffer.resize(3));
    EXPECT_EQ(buffer.data(), block);
    EXPECT_EQ(buffer.toString(), "abc");

    // The same for a block attached without a size.
    void* const unsized = newBlock("abc");
    buffer.attach(unsized, 0);
    EXPECT_TRUE(buffer.resize(0));
    EXPECT_EQ(buffer.data(), unsized);
}

TEST(DataBuff, ResizeToNothingClears)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    EXPECT_TRUE(buffer.resize(0));
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_TRUE(buffer.empty());
}

TEST(DataBuff, FailedResizeKeepsTheOldBlock)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    const void* const block = buffer.data();
    EXPECT_FALSE(buffer.resize(impossibleSize));
    EXPECT_FALSE(buffer.assign("x", impossibleSize));
    EXPECT_EQ(buffer.data(), block);
    EXPECT_EQ(buffer.toString(), "abc");

    DataBuff fresh;
    EXPECT_FALSE(fresh.resize(impossibleSize));
    EXPECT_EQ(fresh.data(), nullptr);
    EXPECT_TRUE(fresh.empty());
}

TEST(DataBuff, ClearFrees)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    buffer.clear();
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_EQ(buffer.size(), 0U);
    buffer.clear();
    EXPECT_TRUE(buffer.empty());
}

TEST(DataBuff, EveryBlockIsFreedOnce)
{
    constexpr std::size_t size = 1U << 20U;
    const std::size_t before = heldBytes();
    for (int round = 0; round < 10; ++round) {
        DataBuff first;
        DataBuff second;
        ASSERT_TRUE(first.resize(size) && second.resize(size));
        first.attach(std::malloc(size), size);
        first.attachFrom(&second);
        ASSERT_TRUE(second.resize(size));
        second.moveTo(first);
        ASSERT_TRUE(second.resize(size));
        second.clear();
        ASSERT_TRUE(second.resize(size));
    }
    EXPECT_LT(heldBytes(), before + size);
}

TEST(DataBuff, AssignCopiesBytes)
{
    DataBuff buffer;
    EXPECT_TRUE(buffer.assignString("a\0b"s));
    EXPECT_EQ(buffer.toString(), "a\0b"s);
    EXPECT_TRUE(buffer.assign("xyz", 2));
    EXPECT_EQ(buffer.toString(), "xy");
    EXPECT_TRUE(buffer.assign("z", 0));
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_TRUE(buffer.assignString(""));
    EXPECT_TRUE(buffer.empty());
}

TEST(DataBuff, OneByteIsCopiedInAndOut)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("x"));
    EXPECT_EQ(buffer.toString(), "x");
}

TEST(DataBuff, AssignFromNullOnlyResizes)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    EXPECT_TRUE(buffer.assign(nullptr, 2));
    EXPECT_EQ(buffer.toString(), "ab");
}

TEST(DataBuff, AttachTakesTheBlockItself)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("old"));
    void* const block = newBlock("new block");
    buffer.attach(block, 9);
    EXPECT_EQ(buffer.data(), block);
    EXPECT_EQ(buffer.toString(), "new block");
    buffer.attach(nullptr, 5);
    EXPECT_EQ(buffer.data(), block);
    EXPECT_EQ(buffer.size(), 9U);
}

TEST(DataBuff, AttachFromAnotherBufferTakesItsBlock)
{
    DataBuff source;
    ASSERT_TRUE(source.assignString("source"));
    const void* const block = source.data();
    DataBuff target;
    ASSERT_TRUE(target.assignString("target"));
    target.attachFrom(&source);
    EXPECT_EQ(target.data(), block);
    EXPECT_EQ(target.toString(), "source");
    EXPECT_EQ(source.data(), nullptr);
    EXPECT_TRUE(source.empty());

    target.attachFrom(nullptr);
    target.attachFrom(&target);
    EXPECT_EQ(target.toString(), "source");
    target.attachFrom(&source);
    EXPECT_TRUE(target.empty());
    EXPECT_EQ(target.data(), nullptr);
}

TEST(DataBuff, DetachReturnsTheBlock)
{
    DataBuff buffer;
    ASSERT_TRUE(buffer.assignString("abc"));
    const void* const block = buffer.data();
    std::uint64_t size = 0;
    void* const detached = buffer.detach(size);
    EXPECT_EQ(detached, block);
    EXPECT_EQ(size, 3U);
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_EQ(buffer.size(), 0U);
    std::free(detached);

    EXPECT_EQ(buffer.detach(size), nullptr);
    EXPECT_EQ(size, 0U);
}

TEST(DataBuff, MoveEmptiesTheSource)
{
    DataBuff source;
    ASSERT_TRUE(source.assignString("source"));
    const void* const block = source.data();
    DataBuff target;
    ASSERT_TRUE(target.assignString("target"));
    source.moveTo(target);
    EXPECT_EQ(target.data(), block);
    EXPECT_EQ(target.size(), 6U);
    EXPECT_EQ(source.data(), nullptr);
    EXPECT_EQ(source.size(), 0U);

    target.moveTo(target);
    EXPECT_EQ(target.toString(), "source");
    source.moveTo(target);
    EXPECT_TRUE(target.empty());
}

TEST(DataBuff, WideStringTakesWholeUnits)
{
    struct Case
    {
        const char* what;
        std::u16string units;
        std::uint64_t bytes;
        std::wstring expected;
    };
    const Case cases[] = {
        {"three bytes are one unit", u"\u00e9x", 3, L"\u00e9"},
        {"one unit", u"\u65e5", 2, L"\u65e5"},
        {"two units", u"a\u65e5", 4, L"a\u65e5"},
        {"a NUL is a unit", u"a\0b"s, 6, L"a\0b"s},
        {"one byte changes nothing", u"a", 1, L"before"},
        {"no byte changes nothing", u"a", 0, L"before"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        DataBuff buffer;
        ASSERT_TRUE(buffer.assign(c.units.data(), c.bytes));
        std::wstring text = L"before";
        buffer.copyToWideString(text);
        EXPECT_EQ(text, c.expected);
    }
}

TEST(DataBuff, ByteStringTakesAllBytesAndEmptyChangesNothing)
{
    DataBuff buffer;
    std::string text = "before";
    buffer.copyToString(text);
    EXPECT_EQ(text, "before");
    buffer.attach(newBlock("x"), 0);
    buffer.copyToString(text);
    EXPECT_EQ(text, "before");
    ASSERT_TRUE(buffer.assignString("a\0b"s));
    buffer.copyToString(text);
    EXPECT_EQ(text, "a\0b"s);
}

} // namespace sys
