#pragma once

#include "ui/common/config/config.h"
#include "ui/common/stat/template_params.h"

#include <string>

namespace stats {

// The random id that all applications of the suite share for this user. The first caller ever
// creates it, also when it is for this purpose alone, and saves `common` at once. A GUID that the
// system could not make is stored as an empty value, which is an answer too: it is not tried again
// while the key exists.
std::string getOrCreateClientGuid(fs::CConfig& common);

// Copies what the application's installer wrote (AdvType, CampType, InstType, InstChannel,
// InstRef, TCBuildNum) into the parameters, absent values as empty ones, over existing entries.
// With the environment variable CV_DEBUG at exactly "1", ADVTYPE ends in "_DBG".
void fillInstallParams(TemplateParams& params, const fs::CConfig& appConfig);

} // namespace stats
