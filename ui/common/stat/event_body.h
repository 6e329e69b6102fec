#pragma once

#include "ui/common/stat/template_params.h"

#include <string>

namespace stats {

// The four texts that differ from event to event.
struct EventTexts
{
    std::string eventType;
    std::string src;
    std::string infoType;
    std::string info;
};

// The JSON document of one event: nineteen members, every value a string. The texts count only
// where `shared` does not hold SRC, EVENT_TYPE, INFO_TYPE or INFO itself. A deliberate oddity:
// values are not escaped, so a quote in one yields invalid JSON.
std::string buildEventBody(const TemplateParams& shared, const EventTexts& texts);

} // namespace stats
