#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace stats {

// Named values that fill the {NAME} placeholders of web addresses and event bodies. NAME is one or
// more ASCII letters, digits, "-" and "_"; braces around anything else are literal text. Names and
// values are UTF-8, names are compared byte by byte. Not synchronised.
class TemplateParams
{
public:
    struct Expansion
    {
        std::string text;
        int unresolvedCount = 0;
    };

    // Adds the value; a value that the name already has is replaced only when `overwrite` is true.
    void set(const std::string& name, const std::string& value, bool overwrite);
    // The same for each (name, value) pair in order.
    void set(const std::vector<std::pair<std::string, std::string>>& pairs, bool overwrite);

    // The value of the name, empty when there is none.
    std::string get(const std::string& name) const;

    // Replaces every placeholder by its value. A name without a value vanishes when `dropUnknown`
    // is true. Otherwise it counts as unresolved and the output is cut before its last "&", so that
    // an address loses the whole "&key={NAME}"; output without "&" stays. Values are inserted
    // unchanged, and an "&" in one counts like any other.
    Expansion expand(std::string_view templateText, bool dropUnknown) const;

private:
    std::map<std::string, std::string, std::less<>> values;
};

} // namespace stats
