#pragma once

#include "ui/common/config/config.h"
#include "ui/common/stat/template_params.h"

#include <string>

namespace stats {

// The random id that all applications of the suite share for this user. The first caller creates it
// and saves `common` at once. If the system cannot make a GUID, `common` holds an empty value for
// it, and no other attempt is made while it does.
std::string getOrCreateClientGuid(fs::CConfig& common);

// Copies what the application's installer wrote (AdvType, CampType, InstType, InstChannel,
// InstRef, TCBuildNum) into the parameters, absent values as empty ones, over existing entries.
// With the environment variable CV_DEBUG at exactly "1", ADVTYPE ends in "_DBG".
void fillInstallParams(TemplateParams& params, const fs::CConfig& appConfig);

} // namespace stats
