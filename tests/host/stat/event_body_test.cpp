#include "ui/common/stat/event_body.h"

#include <gtest/gtest.h>

#include <string>

using stats::buildEventBody;
using stats::TemplateParams;

namespace {

TemplateParams everything()
{
    TemplateParams params;
    params.set({{"GUID", "g"},
                {"COUNTRY_ID", "c"},
                {"ADVTYPE", "at"},
                {"CAMPTYPE", "ct"},
                {"APPID", "ap"},
                {"VER", "1.2"},
                {"EVENT_NUMBER", "8"},
                {"INSTTYPE", "it"},
                {"INSTCH", "ic"},
                {"INSTREF", "ir"},
                {"TEST", "0"},
                {"TC_BUILD_NUM", "tc"}},
               true);
    return params;
}

} // namespace

TEST(EventBody, HoldsTheNineteenMembersInOrder)
{
    EXPECT_EQ(buildEventBody(everything(), {"show", "offer", "kind", "more"}),
              R"({"guid":"g","country_id":"c","pid":"","adv_type":"at","camp_type":"ct",)"
              R"("appid":"ap","ver":"1.2","event_type":"show","event_number":"8","src":"offer",)"
              R"("info_type":"kind","info":"more","inst_type":"it","inst_ch":"ic",)"
              R"("inst_ref":"ir","test":"0","tc_build_num":"tc","product_name":"",)"
              R"("id_lmc_keys":""})");
}

TEST(EventBody, OfNoParametersHasOnlyItsTexts)
{
    EXPECT_EQ(buildEventBody({}, {"t", "s", "it", "i"}),
              R"({"guid":"","country_id":"","pid":"","adv_type":"","camp_type":"","appid":"",)"
              R"("ver":"","event_type":"t","event_number":"","src":"s","info_type":"it",)"
              R"("info":"i","inst_type":"","inst_ch":"","inst_ref":"","test":"",)"
              R"("tc_build_num":"","product_name":"","id_lmc_keys":""})");
}

TEST(EventBody, DoesNotEscapeValues)
{
    const std::string body = buildEventBody(everything(), {"", "", "", R"(a "b" \c)"});
    EXPECT_NE(body.find(R"("info":"a "b" \c",)"), std::string::npos);
}

TEST(EventBody, IsCutAtAnAmpersandBeforeAnUnknownMember)
{
    TemplateParams params = everything();
    params.set("INSTREF", "site&more", true);
    const std::string body = buildEventBody(params, {"show", "offer", "", ""});
    // Two members without a value follow: the first cuts the text at the "&", the second finds no
    // other "&".
    EXPECT_NE(body.find(R"("inst_ref":"site","id_lmc_keys":""})"), std::string::npos) << body;
    EXPECT_EQ(body.find("tc_build_num"), std::string::npos);
}

TEST(EventBody, PrefersTextsAmongTheParameters)
{
    TemplateParams params = everything();
    params.set({{"SRC", "shared src"}, {"INFO", "shared info"}}, true);
    const std::string body = buildEventBody(params, {"type", "src", "kind", "info"});
    EXPECT_NE(body.find(R"("event_type":"type")"), std::string::npos);
    EXPECT_NE(body.find(R"("src":"shared src","info_type":"kind","info":"shared info")"),
              std::string::npos);
}

TEST(EventBody, LeavesTheParametersUnchanged)
{
    const TemplateParams params = everything();
    buildEventBody(params, {"type", "src", "kind", "info"});
    EXPECT_EQ(params.get("SRC"), "");
    EXPECT_EQ(params.get("INFO"), "");
}
