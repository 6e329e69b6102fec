#include "support/keelbase/log_line.h"

#include <string_view>

namespace Keelbase {

namespace {

void appendEscaped(std::string& line, std::string_view text)
{
    constexpr char digits[] = "0123456789ABCDEF";
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '\n') {
            line += "\\n";
        } else if (byte == '\r') {
            line += "\\r";
        } else if (byte == '\t') {
            line += "\\t";
        } else if (code < 0x20 || code == 0x7F) {
            line += "\\x";
            line += digits[code >> 4];
            line += digits[code & 0x0F];
        } else {
            line += byte;
        }
    }
}

// The longest part of the text that fits and does not end inside a UTF-8 character.
std::string_view shortened(std::string_view text)
{
    std::size_t size = maximumTextSize;
    while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
        --size;
    return text.substr(0, size);
}

} // namespace

std::string composeLine(const LogRecord& record)
{
    std::string line = std::to_string(record.level) + ' ';
    appendEscaped(line, record.category);
    line += ' ';
    appendEscaped(line, record.sourceFile);
    line += ':' + std::to_string(record.sourceLine) + " | ";
    if (record.text.size() <= maximumTextSize) {
        appendEscaped(line, record.text);
    } else {
        const std::string_view start = shortened(record.text);
        appendEscaped(line, start);
        line += "... (" + std::to_string(record.text.size() - start.size()) + " bytes more)";
    }
    return line;
}

} // namespace Keelbase
