#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace stats {

// A text with {NAME} placeholders, parsed once and expanded any number of times
// (TemplateParams::expand). NAME is one or more ASCII letters, digits, "-" and "_"; braces around
// anything else are literal text. Immutable; any thread.
class TextTemplate
{
public:
    explicit TextTemplate(std::string_view text);

    std::size_t placeholderCount() const { return placeholders.size(); }
    // The text between the previous placeholder, or the beginning, and this one.
    std::string_view literalBefore(std::size_t placeholder) const
    {
        return view(placeholders[placeholder].literal);
    }
    std::string_view name(std::size_t placeholder) const
    {
        return view(placeholders[placeholder].name);
    }
    // The text after the last placeholder.
    std::string_view rest() const { return view(literalRest); }
    // The length of the whole text, placeholders included.
    std::size_t length() const { return text.size(); }

private:
    struct Span
    {
        std::size_t start;
        std::size_t size;
    };
    struct Placeholder
    {
        Span literal;
        Span name;
    };

    std::string_view view(Span span) const { return {text.data() + span.start, span.size}; }

    std::string text;
    std::vector<Placeholder> placeholders;
    Span literalRest;
};

} // namespace stats
