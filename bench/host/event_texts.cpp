#include "bench/host/event_texts.h"

#include "tests/support/event_members.h"

namespace bench {

const std::vector<std::pair<std::string, std::string>>& bodyValues()
{
    static const std::vector<std::pair<std::string, std::string>> values = {
        {"GUID", "4b3f0a52-7c1e-4d7a-9b60-2f1d8e5a9c33"},
        {"COUNTRY_ID", "DE"},
        {"ADVTYPE", "search_campaign"},
        {"CAMPTYPE", "spring"},
        {"APPID", "clsv"},
        {"VER", "4.2.0.17"},
        {"EVENT_TYPE", "click"},
        {"EVENT_NUMBER", "128"},
        {"SRC", "uninstall_quiz_features"},
        {"INFO_TYPE", ""},
        {"INFO", ""},
        {"INSTTYPE", "full"},
        {"INSTCH", "web"},
        {"INSTREF", "landing_page_7"},
        {"TEST", "0"},
        {"TC_BUILD_NUM", "20261120"},
    };
    return values;
}

stats::TemplateParams sharedParams()
{
    stats::TemplateParams params;
    for (const auto& [name, value] : bodyValues()) {
        if (name != "SRC" && name != "EVENT_TYPE" && name != "INFO_TYPE" && name != "INFO")
            params.set(name, value, true);
    }
    return params;
}

stats::EventTexts eventTexts()
{
    return {"click", "uninstall_quiz_features", "", ""};
}

std::string bodyTemplate(const std::string& open, const std::string& close)
{
    std::string text = "{";
    for (const auto& [key, parameter] : testing_support::eventMembers) {
        text.append(text.size() > 1 ? ",\"" : "\"").append(key).append("\":\"");
        if (!parameter.empty())
            text.append(open).append(parameter).append(close);
        text += '"';
    }
    return text + "}";
}

} // namespace bench
