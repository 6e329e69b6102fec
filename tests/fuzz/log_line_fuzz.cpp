// Any text as a log message, as its category and as its source: the line has no control byte, so
// that no text can forge another line.
//
// Input: the text; or category, source and text between separators. A text of seven or eight bytes
// that begins with "Long" is repeated until it is too long, or exactly as long as allowed.

#include "support/keelbase/log_line.h"
#include "tests/fuzz/fuzz_support.h"

#include <algorithm>

namespace {

using fuzz::require;

constexpr std::size_t longestText = std::size_t{128} * 1024;

std::string plainlyEscaped(const std::string& text)
{
    std::string escaped;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '\n') {
            escaped += "\\n";
        } else if (byte == '\r') {
            escaped += "\\r";
        } else if (byte == '\t') {
            escaped += "\\t";
        } else if (code < 32 || code == 127) {
            escaped.append("\\x").append(1, "01234567"[code / 16]);
            escaped += "0123456789ABCDEF"[code % 16];
        } else {
            escaped += byte;
        }
    }
    return escaped;
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

// Where a long text is cut: not inside a character.
std::size_t cutOf(const std::string& text)
{
    std::size_t cut = longestText;
    while (cut > 0 && continuesCharacter(text[cut]))
        --cut;
    return cut;
}

std::string textFrom(const std::string& field)
{
    // Two sizes only: such inputs are slow.
    if (!fuzz::startsWith(field, "Long") || field.size() < 7 || field.size() > 8)
        return field;
    std::string text;
    while (text.size() < longestText)
        text += field;
    return text;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::string> fields = fuzz::fieldsOf(fuzz::textOf(data, size));
    Keelbase::LogRecord record;
    record.level = static_cast<int>(size) - 3;
    record.sourceLine = -record.level;
    record.text = textFrom(fields.back());
    if (fields.size() > 1)
        record.category = fields[0];
    if (fields.size() > 2)
        record.sourceFile = fields[1];

    const std::string line = Keelbase::composeLine(record);
    require(std::none_of(
                line.begin(), line.end(),
                [](char byte) { return static_cast<unsigned char>(byte) < 32 || byte == 127; }),
            "no control byte reaches the log");

    std::string expected = std::to_string(record.level) + ' ' + plainlyEscaped(record.category) +
                           ' ' + plainlyEscaped(record.sourceFile) + ':' +
                           std::to_string(record.sourceLine) + " | ";
    if (record.text.size() <= longestText) {
        expected += plainlyEscaped(record.text);
    } else {
        const std::size_t cut = cutOf(record.text);
        expected += plainlyEscaped(record.text.substr(0, cut)) + "... (" +
                    std::to_string(record.text.size() - cut) + " bytes more)";
    }
    require(line == expected, "the line holds level, category, source and the escaped text");
    return 0;
}
