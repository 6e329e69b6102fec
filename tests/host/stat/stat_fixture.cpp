#include "tests/host/stat/stat_fixture.h"

#include "ui/common/config/common_config.h"
#include "ui/common/stat/guid.h"
#include "ui/uninstall/src/application_config.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

std::optional<std::string> nextGuid;
int guidCount = 0;

void writeFile(const std::filesystem::path& file, const std::string& text)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

} // namespace

void setNextGuid(const std::string& guid)
{
    nextGuid = guid;
}

int createdGuids()
{
    return guidCount;
}

StatTest::StatTest()
{
    setEnvironment("XDG_CONFIG_HOME", folder.narrowPath(""));
    nextGuid.reset();
    guidCount = 0;
    stats::setGuidSource([] {
        ++guidCount;
        return nextGuid.value_or("01234567-89ab-4cde-8f01-23456789abcd");
    });
    common().setFileName(commonFile().wstring());
    setLogLevel(Keelbase::levelDetail);
    scripted::answerInOrder({});
}

StatTest::~StatTest()
{
    for (const std::string& name : environment)
        unsetenv(name.c_str());
    stats::setGuidSource(nullptr);
}

std::vector<std::string> StatTest::log() const
{
    std::vector<std::string> lines;
    for (const Keelbase::LogRecord& record : recordedLog->records())
        lines.push_back(std::to_string(record.level) + " " + record.category + " " +
                        record.sourceFile + ":" + std::to_string(record.sourceLine) + " " +
                        record.text);
    return lines;
}

void StatTest::setLogLevel(int level)
{
    recordedLog.emplace(level);
}

void StatTest::setEnvironment(const std::string& name, const std::string& value)
{
    environment.push_back(name);
    setenv(name.c_str(), value.c_str(), 1);
}

fs::CConfig& StatTest::common()
{
    return fs::commonConfig();
}

std::filesystem::path StatTest::applicationFile(int applicationId) const
{
    return uninstall::applicationConfigPath(applicationId);
}

void StatTest::storeCommon(const std::string& text)
{
    writeFile(commonFile(), text);
    common().reload();
}

void StatTest::storeApplication(int applicationId, const std::string& text)
{
    writeFile(applicationFile(applicationId), text);
}

std::string StatTest::contentOf(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}
