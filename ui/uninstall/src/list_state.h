#pragma once

// The rules behind the check boxes of the application list. Pure functions; any thread.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace uninstall {

struct ListRow
{
    std::string text; // UTF-8
    bool checked;
};

// True when the suite's own row is checked.
bool suiteRowChecked(const std::vector<ListRow>& rows);

struct ControlState
{
    bool anyChecked; // "Uninstall" and "Delete settings and history" are enabled
    bool allChecked; // the select button reads "Select none"; true for an empty list too
};
ControlState controlState(const std::vector<ListRow>& rows);

// The rows that "/app" with this id string checks at start. An application without a display name
// matches no row, not even one without text.
std::vector<std::size_t> rowsOfApplication(const std::vector<ListRow>& rows,
                                           std::string_view idText);

} // namespace uninstall
