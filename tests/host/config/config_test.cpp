#include "tests/host/support/temp_folder.h"
#include "tests/support/vtable_index.h"
#include "ui/common/config/config.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/result_codes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <type_traits>
#include <unistd.h>

namespace fs {

namespace {

// Root may read any file, so tests about permissions run as another user.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        if (previous == 0 && seteuid(nobody) != 0)
            throw std::runtime_error("seteuid");
    }
    ~AsOrdinaryUser()
    {
        if (seteuid(previous) != 0)
            std::abort();
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    uid_t previous = geteuid();
};

class Config : public ::testing::Test
{
protected:
    std::wstring path() const { return folder.path(L"common.cfg"); }
    void write(std::string_view content) const { folder.write("common.cfg", content); }
    std::string read() const { return folder.read("common.cfg"); }
    bool exists() const { return folder.holds("common.cfg"); }

    host::TempFolder folder;
};

} // namespace

TEST_F(Config, StartsEmptyWithoutAPath)
{
    CConfig config;
    EXPECT_FALSE(config.isModified());
    EXPECT_EQ(config.getValue("any", "fallback"), "fallback");
    EXPECT_EQ(config.load(), sys::noSuchFile);
    EXPECT_EQ(config.reload(), sys::noSuchFile);
    EXPECT_EQ(config.save(), sys::noSuchFile);
}

TEST_F(Config, KeepsItsSlotsInOrder)
{
    EXPECT_EQ(testing_support::vtableIndex(&CConfig::setFileName), 0U);
    EXPECT_EQ(testing_support::vtableIndex(&CConfig::save), 1U);
    EXPECT_EQ(testing_support::vtableIndex(&CConfig::load), 2U);
    EXPECT_EQ(testing_support::vtableIndex(&CConfig::reload), 3U);
    EXPECT_FALSE(std::has_virtual_destructor_v<CConfig>);
    EXPECT_TRUE(std::is_final_v<CConfig>);
}

TEST_F(Config, LoadsTheFile)
{
    write("a=1\r\nb=x=y\r\n");
    CConfig config;
    config.setFileName(path());
    EXPECT_EQ(config.getValue("a", "none"), "none");
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_EQ(config.getValue("a", ""), "1");
    EXPECT_EQ(config.getValue("b", ""), "x=y");
    EXPECT_FALSE(config.isModified());
}

TEST_F(Config, HasKeysWithEmptyValues)
{
    write("a=1\nempty=\n");
    CConfig config;
    config.setFileName(path());
    EXPECT_FALSE(config.has("a"));
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_TRUE(config.has("a"));
    EXPECT_TRUE(config.has("empty"));
    EXPECT_FALSE(config.has("b"));
    config.setValue("b", "");
    EXPECT_TRUE(config.has("b"));
}

TEST_F(Config, LoadsAnEmptyFile)
{
    write("");
    CConfig config;
    config.setFileName(path());
    EXPECT_EQ(config.load(), sys::success);
}

TEST_F(Config, LoadsAPathBeyondAscii)
{
    folder.write("Einf\xc3\xbchrung \xe6\x97\xa5.cfg", "k=v\n");
    CConfig config;
    config.setFileName(folder.path(L"Einf\u00fchrung \u65e5.cfg"));
    EXPECT_EQ(config.load(), sys::success);
    config.setValue("l", "w");
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(folder.read("Einf\xc3\xbchrung \xe6\x97\xa5.cfg"), "k=v\nl=w\n");
}

TEST_F(Config, LoadKeepsValuesInMemory)
{
    write("a=file\nb=file\n");
    CConfig config;
    config.setFileName(path());
    config.setValue("a", "memory");
    config.setValue("only", "memory");
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_EQ(config.getValue("a", ""), "memory");
    EXPECT_EQ(config.getValue("b", ""), "file");
    EXPECT_EQ(config.getValue("only", ""), "memory");
    // The keys no longer count as changed: there is nothing to save.
    EXPECT_FALSE(config.isModified());
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "a=file\nb=file\n");
}

TEST_F(Config, ReloadMakesMemoryEqualTheFile)
{
    write("a=file\n");
    CConfig config;
    config.setFileName(path());
    config.setValue("a", "memory");
    config.setValue("only", "memory");
    EXPECT_EQ(config.reload(), sys::success);
    EXPECT_EQ(config.getValue("a", ""), "file");
    EXPECT_EQ(config.getValue("only", "gone"), "gone");
    EXPECT_FALSE(config.isModified());
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "a=file\n");
}

TEST_F(Config, MissingFileLeavesMemoryAlone)
{
    CConfig config;
    config.setFileName(path());
    config.setValue("a", "1");
    for (int (CConfig::*operation)() : {&CConfig::load, &CConfig::reload}) {
        EXPECT_EQ((config.*operation)(), sys::noSuchFile);
        EXPECT_EQ(config.getValue("a", ""), "1");
        EXPECT_TRUE(config.isModified());
    }
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "a=1\n");
}

TEST_F(Config, FolderInPlaceOfTheFileLeavesMemoryAlone)
{
    std::filesystem::create_directory(folder.narrowPath("common.cfg"));
    CConfig config;
    config.setFileName(path());
    config.setValue("a", "1");
    for (int (CConfig::*operation)() : {&CConfig::load, &CConfig::reload, &CConfig::save}) {
        EXPECT_EQ((config.*operation)(), sys::readOrWriteFailed);
        EXPECT_EQ(config.getValue("a", ""), "1");
        EXPECT_TRUE(config.isModified());
    }
}

TEST_F(Config, UnreadableFileLeavesMemoryAloneAndCountsAsEmptyOnSave)
{
    write("other=1\n");
    using std::filesystem::perms;
    std::filesystem::permissions(folder.narrowPath("common.cfg"),
                                 perms::owner_write | perms::group_write | perms::others_write);
    {
        const AsOrdinaryUser user;
        std::string content;
        ASSERT_EQ(sys::readWholeFile(path(), content), EACCES);

        CConfig config;
        config.setFileName(path());
        config.setValue("a", "1");
        for (int (CConfig::*operation)() : {&CConfig::load, &CConfig::reload}) {
            EXPECT_EQ((config.*operation)(), sys::readOrWriteFailed);
            EXPECT_EQ(config.getValue("a", ""), "1");
            EXPECT_TRUE(config.isModified());
        }
        EXPECT_EQ(config.save(), sys::success);
    }
    std::filesystem::permissions(folder.narrowPath("common.cfg"), perms::all);
    EXPECT_EQ(read(), "a=1\n");
}

TEST_F(Config, SaveWithoutChangesWritesNothing)
{
    CConfig config;
    config.setFileName(path());
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_FALSE(exists());

    write("b=2\r\n\r\na=1\n");
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "b=2\r\n\r\na=1\n");
}

TEST_F(Config, SaveMergesTheChangesIntoTheFile)
{
    write("z=1\r\nk=1\r\nk=2\r\n# comment\r\na=1\r\n");
    CConfig config;
    config.setFileName(path());
    ASSERT_EQ(config.load(), sys::success);
    config.setValue("a", "changed");
    config.setValue("new", "=v=");
    EXPECT_TRUE(config.isModified());
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "a=changed\nk=1\nnew==v=\nz=1\n");
    EXPECT_FALSE(config.isModified());
}

TEST_F(Config, EmptyValueDeletesTheKey)
{
    write("a=1\nb=2\n");
    CConfig config;
    config.setFileName(path());
    ASSERT_EQ(config.load(), sys::success);
    config.setValue("a", "");
    EXPECT_EQ(config.getValue("a", "fallback"), "");
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "b=2\n");
    EXPECT_EQ(config.reload(), sys::success);
    EXPECT_EQ(config.getValue("a", "fallback"), "fallback");
}

TEST_F(Config, SaveAfterTheFileWasDeletedWritesOnlyTheChanges)
{
    write("a=1\nb=2\n");
    CConfig config;
    config.setFileName(path());
    ASSERT_EQ(config.load(), sys::success);
    folder.remove("common.cfg");
    config.setValue("b", "3");
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(read(), "b=3\n");
    EXPECT_EQ(config.getValue("a", "gone"), "gone");
}

TEST_F(Config, TwoObjectsWithDifferentKeysKeepBoth)
{
    write("shared=0\n");
    CConfig first;
    CConfig second;
    for (CConfig* config : {&first, &second}) {
        config->setFileName(path());
        ASSERT_EQ(config->load(), sys::success);
    }
    first.setValue("first", "1");
    first.setValue("both", "first");
    second.setValue("second", "2");
    second.setValue("both", "second");
    second.setValue("shared", "");
    EXPECT_EQ(first.save(), sys::success);
    EXPECT_EQ(second.save(), sys::success);
    EXPECT_EQ(read(), "both=second\nfirst=1\nsecond=2\n");
    // The merge brought the other object's key into memory.
    EXPECT_EQ(second.getValue("first", ""), "1");
    // A saved key no longer counts as changed, so that it does not overwrite a later change.
    first.setValue("third", "3");
    EXPECT_EQ(first.save(), sys::success);
    EXPECT_EQ(read(), "both=second\nfirst=1\nsecond=2\nthird=3\n");
}

TEST_F(Config, FailedWriteKeepsTheChangesForTheNextSave)
{
    CConfig config;
    config.setFileName(folder.path(L"missing/common.cfg"));
    config.setValue("a", "1");
    EXPECT_EQ(config.save(), sys::readOrWriteFailed);
    EXPECT_TRUE(config.isModified());
    EXPECT_EQ(config.getValue("a", ""), "1");

    std::filesystem::create_directory(folder.narrowPath("missing"));
    folder.write("missing/common.cfg", "b=2\n");
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(folder.read("missing/common.cfg"), "a=1\nb=2\n");
    EXPECT_FALSE(config.isModified());
}

TEST_F(Config, FailedWriteLeavesTheMergedValuesInMemory)
{
    write("other=1\n");
    using std::filesystem::perms;
    std::filesystem::permissions(folder.narrowPath("common.cfg"),
                                 perms::owner_read | perms::group_read | perms::others_read);
    const AsOrdinaryUser user;
    CConfig config;
    config.setFileName(path());
    config.setValue("a", "1");
    EXPECT_EQ(config.save(), sys::readOrWriteFailed);
    EXPECT_EQ(config.getValue("other", ""), "1");
    EXPECT_EQ(config.getValue("a", ""), "1");
    EXPECT_EQ(read(), "other=1\n");
}

TEST_F(Config, SetFileNameEmptiesTheObject)
{
    write("a=1\n");
    folder.write("other.cfg", "b=2\r\n");
    CConfig config;
    config.setFileName(path());
    ASSERT_EQ(config.load(), sys::success);
    config.setValue("changed", "1");
    config.setFileName(folder.path(L"other.cfg"));
    EXPECT_EQ(config.getValue("a", "gone"), "gone");
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(folder.read("other.cfg"), "b=2\r\n");

    config.setFileName(L"");
    EXPECT_EQ(config.load(), sys::noSuchFile);
    config.setValue("a", "1");
    EXPECT_EQ(config.save(), sys::noSuchFile);
}

TEST_F(Config, GetBoolIsTrueForTheTextOneOnly)
{
    CConfig config;
    EXPECT_TRUE(config.getBool("missing", true));
    EXPECT_FALSE(config.getBool("missing", false));
    for (const char* text : {"true", "yes", "2", " 1", "1 ", "01", "0", "", "11"}) {
        SCOPED_TRACE(text);
        config.setValue("k", text);
        EXPECT_FALSE(config.getBool("k", true));
    }
    config.setValue("k", "1");
    EXPECT_TRUE(config.getBool("k", false));
}

} // namespace fs
