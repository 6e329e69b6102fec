#include "tests/windows/support/scratch_folder.h"

#include "tests/windows/support/unique_name.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace windows_tests {

ScratchFolder::ScratchFolder()
    : root(std::filesystem::temp_directory_path() /
           uniqueName(L"scratch \u00E9\u00DF \u0442\u0435\u0441\u0442 \u8A66\u9A13"))
{
    std::filesystem::create_directories(root);
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
}

std::string readBytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.u8string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void writeBytes(const std::filesystem::path& file, std::string_view bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush())
        throw std::runtime_error("cannot write " + file.u8string());
}

} // namespace windows_tests
