#include "ui/uninstall/src/list_state.h"

#include "ui/uninstall/src/app_catalogue.h"

#include <algorithm>

namespace uninstall {

namespace {

bool isChecked(const ListRow& row)
{
    return row.checked;
}

} // namespace

bool suiteRowChecked(const std::vector<ListRow>& rows)
{
    const std::string suiteName = displayName(suiteId, false);
    return std::any_of(rows.begin(), rows.end(), [&suiteName](const ListRow& row) {
        return row.checked && row.text == suiteName;
    });
}

ControlState controlState(const std::vector<ListRow>& rows)
{
    return {std::any_of(rows.begin(), rows.end(), isChecked),
            std::all_of(rows.begin(), rows.end(), isChecked)};
}

std::vector<std::size_t> rowsOfApplication(const std::vector<ListRow>& rows,
                                           std::string_view idText)
{
    std::vector<std::size_t> matches;
    const std::string name = displayName(idFromString(idText), false);
    if (name.empty())
        return matches;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].text == name)
            matches.push_back(row);
    }
    return matches;
}

} // namespace uninstall
