// The privacy page lists the contents of an event; the list must match the template.

#include "ui/common/stat/event_body.h"
#include "ui/common/stat/service_endpoints.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

// (member, parameter); the parameter is empty for a member that is always empty.
using Members = std::vector<std::pair<std::string, std::string>>;

std::string privacyPage()
{
    std::ostringstream text;
    text << std::ifstream(TESSERA_PRIVACY_PAGE).rdbuf();
    return text.str();
}

Members membersOf(const std::string& text, const std::regex& pattern)
{
    Members members;
    for (std::sregex_iterator found(text.begin(), text.end(), pattern), end; found != end; ++found)
        members.emplace_back((*found)[1], (*found)[2]);
    return members;
}

Members membersOfPage()
{
    return membersOf(privacyPage(), std::regex(R"(\n\| `([a-z_]+)` \| `?([A-Z_]*)`? ?\|)"));
}

// With every parameter's name as its value, the body shows which member has which parameter.
Members membersOfBody()
{
    stats::TemplateParams params;
    for (const auto& [member, parameter] : membersOfPage())
        params.set(parameter, parameter, true);
    return membersOf(stats::buildEventBody(params, {}),
                     std::regex(R"re("([a-z_]+)":"([A-Z_]*)"[,}])re"));
}

} // namespace

TEST(PrivacyPage, ListsEveryMemberWithItsParameterInOrder)
{
    const Members members = membersOfPage();
    EXPECT_EQ(members.size(), 19U);
    EXPECT_EQ(members, membersOfBody());
}

TEST(PrivacyPage, NamesBothAddresses)
{
    EXPECT_NE(privacyPage().find(stats::eventEndpoint), std::string::npos);
    EXPECT_NE(privacyPage().find(stats::countryEndpoint), std::string::npos);
}
