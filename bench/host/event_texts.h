#pragma once

#include "ui/common/stat/event_body.h"
#include "ui/common/stat/template_params.h"

#include <string>
#include <utility>
#include <vector>

// One ordinary event for the benchmarks.
namespace bench {

// The parameters that the start-up fills in.
stats::TemplateParams sharedParams();
stats::EventTexts eventTexts();

// Every placeholder of the body and its value, in the body's order.
const std::vector<std::pair<std::string, std::string>>& bodyValues();

// The body with `open` and `close` around each placeholder's name.
std::string bodyTemplate(const std::string& open, const std::string& close);

} // namespace bench
