#include "ui/common/sys/text_convert.h"

#include <iconv.h>

namespace sys {

namespace {

class Converter
{
public:
    Converter(const std::string& from, const std::string& to)
        : descriptor(iconv_open(to.c_str(), from.c_str()))
    {}
    ~Converter()
    {
        if (isOpen())
            iconv_close(descriptor);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // The bytes of the converted text; empty when any part of `bytes` cannot be converted.
    std::string convert(std::string_view bytes) const
    {
        if (!isOpen())
            return {};
        std::string converted(4 * bytes.size(), '\0'); // no byte becomes more than a wide character
        std::string input(bytes);
        char* from = input.data();
        std::size_t fromSize = input.size();
        char* to = converted.data();
        std::size_t toSize = converted.size();
        if (iconv(descriptor, &from, &fromSize, &to, &toSize) == static_cast<std::size_t>(-1))
            return {};
        converted.resize(converted.size() - toSize);
        return converted;
    }

private:
    // NOLINTNEXTLINE(performance-no-int-to-ptr): iconv_open fails with this value
    bool isOpen() const { return descriptor != reinterpret_cast<iconv_t>(-1); }

    iconv_t descriptor;
};

std::wstring toWide(std::string_view text, const std::string& encoding)
{
    const std::string bytes = Converter(encoding, "WCHAR_T").convert(text);
    std::wstring wide(bytes.size() / sizeof(wchar_t), L'\0');
    bytes.copy(reinterpret_cast<char*>(wide.data()), bytes.size());
    return wide;
}

} // namespace

std::wstring fromUtf8(std::string_view text)
{
    return toWide(text, "UTF-8");
}

std::wstring fromCodePage(std::string_view text, unsigned codePage)
{
    return toWide(text, "CP" + std::to_string(codePage));
}

std::string toUtf8(std::wstring_view text)
{
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()),
                                 text.size() * sizeof(wchar_t));
    return Converter("WCHAR_T", "UTF-8").convert(bytes);
}

// Paths are UTF-8 here whatever the locale.
std::string toNarrow(std::wstring_view text)
{
    return toUtf8(text);
}

} // namespace sys
