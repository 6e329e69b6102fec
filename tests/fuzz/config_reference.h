#pragma once

// A second, plain implementation of the reading rules of ".cfg" files.

#include <map>
#include <string>

namespace fuzz {

using Pairs = std::map<std::string, std::string>;

inline Pairs plainlyParsed(std::string text)
{
    while (!text.empty() && text.back() == '\0')
        text.pop_back();

    Pairs pairs;
    std::string key;
    std::string value;
    bool inValue = false;
    text += '\n';
    for (const char byte : text) {
        if (byte == '\n') {
            if (inValue && pairs.count(key) == 0)
                pairs[key] = value;
            key.clear();
            value.clear();
            inValue = false;
        } else if (byte == '\r') {
            continue;
        } else if (inValue) {
            value += byte;
        } else if (byte == '=') {
            inValue = true;
        } else {
            key += byte;
        }
    }
    return pairs;
}

inline Pairs withoutEmpty(const Pairs& pairs)
{
    Pairs kept;
    for (const auto& pair : pairs) {
        if (!pair.second.empty())
            kept.insert(pair);
    }
    return kept;
}

} // namespace fuzz
