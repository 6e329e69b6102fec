// Any template with any values: compares the expansion, the body of an event and the form encoding
// with plain second versions.
//
// Input: the template, then alternating names and values, between separators.

#include "tests/fuzz/fuzz_support.h"
#include "tests/support/event_members.h"
#include "ui/common/stat/event_body.h"
#include "ui/common/stat/template_params.h"
#include "ui/common/stat/url_encode.h"

#include <map>

namespace {

using fuzz::fieldAt;
using fuzz::require;
using stats::TemplateParams;
using Values = std::map<std::string, std::string>;

constexpr std::string_view nameBytes =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

void cutToLastPair(std::string& text)
{
    const std::size_t last = text.rfind('&');
    if (last != std::string::npos)
        text.erase(last);
}

// The name of the placeholder that begins at `position`, else empty.
std::string placeholderAt(const std::string& text, std::size_t position)
{
    if (text[position] != '{')
        return {};
    std::string name;
    for (++position; position < text.size(); ++position) {
        if (text[position] == '}')
            return name;
        if (!fuzz::contains(nameBytes, std::string_view(&text[position], 1)))
            return {};
        name += text[position];
    }
    return {};
}

TemplateParams::Expansion plainlyExpanded(const std::string& text, const Values& values,
                                          bool dropUnknown)
{
    TemplateParams::Expansion result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string name = placeholderAt(text, i);
        if (name.empty()) {
            result.text += text[i];
            continue;
        }
        i += name.size() + 1;
        const auto value = values.find(name);
        if (value != values.end()) {
            result.text += value->second;
        } else if (!dropUnknown) {
            ++result.unresolvedCount;
            cutToLastPair(result.text);
        }
    }
    return result;
}

std::string plainlyEncoded(const std::string& text)
{
    constexpr std::string_view keptMarks = "\"<>\\^_`~";
    std::string encoded;
    for (const char byte : text) {
        const bool isAlphanumeric = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                                    (byte >= 'a' && byte <= 'z');
        const bool isMark = byte >= ' ' && byte <= '~' && !isAlphanumeric;
        if (isMark && !fuzz::contains(keptMarks, std::string_view(&byte, 1))) {
            encoded.append(1, '%').append(1, "01234567"[byte / 16]);
            encoded += "0123456789ABCDEF"[byte % 16];
        } else {
            encoded += byte;
        }
    }
    return encoded;
}

std::string decoded(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            plain += text[i];
            continue;
        }
        require(i + 2 < text.size(), "an encoded byte has two digits");
        constexpr std::string_view digits = "0123456789ABCDEF";
        const std::size_t high = digits.find(text[++i]);
        const std::size_t low = digits.find(text[++i]);
        plain += static_cast<char>(high * 16 + low);
    }
    return plain;
}

void checkEncoding(const std::string& text)
{
    const std::string encoded = stats::urlEncode(text);
    require(encoded == plainlyEncoded(text), "exactly the documented bytes are encoded");
    require(decoded(encoded) == text, "the service gets the text back");
}

void checkExpansion(const std::string& text, const TemplateParams& params, const Values& values)
{
    for (const bool dropUnknown : {false, true}) {
        const auto expansion = params.expand(text, dropUnknown);
        const auto expected = plainlyExpanded(text, values, dropUnknown);
        require(expansion.text == expected.text, "the text is expanded by the rules");
        require(expansion.unresolvedCount == expected.unresolvedCount,
                "unknown names are counted when they cut");
    }
    if (!fuzz::contains(text, "{") || !fuzz::contains(text, "}"))
        require(params.expand(text, false).text == text, "a text without placeholders stays");

    // When each name's value is its own placeholder, the text must not change.
    TemplateParams itself;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string name = placeholderAt(text, i);
        if (!name.empty())
            itself.set(name, "{" + name + "}", true);
    }
    const auto same = itself.expand(text, false);
    require(same.text == text && same.unresolvedCount == 0, "literal text is copied");
}

void checkBody(const TemplateParams& params, const Values& values)
{
    const stats::EventTexts texts{"type", "src", "kind", "a&b"};
    Values all = values;
    all.insert({{"EVENT_TYPE", "type"}, {"SRC", "src"}, {"INFO_TYPE", "kind"}, {"INFO", "a&b"}});

    std::string expected;
    for (const auto& [key, parameter] : testing_support::eventMembers) {
        expected += expected.empty() ? "{\"" : ",\"";
        expected.append(key).append("\":\"");
        if (!parameter.empty()) {
            const auto value = all.find(std::string(parameter));
            if (value != all.end())
                expected += value->second;
            else
                cutToLastPair(expected);
        }
        expected += '"';
    }
    expected += '}';

    const std::string body = stats::buildEventBody(params, texts);
    require(body == expected, "the body has its nineteen members in order");
    checkEncoding(body);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input = fuzz::textOf(data, size);
    const std::vector<std::string> fields = fuzz::fieldsOf(input);

    TemplateParams params;
    Values values;
    for (std::size_t i = 1; i < fields.size(); i += 2) {
        const bool overwrite = fieldAt(fields, i + 1).size() % 2 == 1;
        params.set(fields[i], fieldAt(fields, i + 1), overwrite);
        if (overwrite || values.count(fields[i]) == 0)
            values[fields[i]] = fieldAt(fields, i + 1);
    }
    for (const auto& [name, value] : values)
        require(params.get(name) == value, "a value is replaced only when asked for");

    checkExpansion(fields[0], params, values);
    checkBody(params, values);
    checkEncoding(input);
    return 0;
}
