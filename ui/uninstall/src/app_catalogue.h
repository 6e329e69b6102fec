#pragma once

// The suite's applications: ids, names and codes. Pure lookups; any thread.

#include <string>
#include <string_view>

namespace uninstall {

constexpr int suiteId = 0;
constexpr int unknownId = -1;

// Numeric ids are sparse in this range.
constexpr int firstAppId = 1;
constexpr int lastAppId = 68;

// The two applications with an exit survey, and with a switch for the music offer.
constexpr int clipSaverId = 60;
constexpr int trackSaverId = 61;
constexpr bool hasExitSurvey(int id)
{
    return id == clipSaverId || id == trackSaverId;
}

// The numeric id of an id string, compared byte by byte; unknownId when there is none.
int idFromString(std::string_view text);

// The id string of a row, empty for any other id. Row 53 deliberately gives its spaced name.
std::string idToString(int id);

// The name shown to the user (UTF-8), empty for ids without one (row 53 among them). `variant`
// selects the second name of the two applications with a survey: false for the list and for
// pre-selection, true elsewhere.
std::string displayName(int id, bool variant);

// The code in names of statistics events; never empty ("unkn" at least).
std::string shortCode(int id);

} // namespace uninstall
