#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace windows_tests {

// A new folder in the temporary folder, with blanks and letters of several scripts in its name;
// removed with its contents at the end of the scope.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return root; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return root / name; }

private:
    std::filesystem::path root;
};

// The file's exact bytes. Failures throw.
std::string readBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, std::string_view bytes);

} // namespace windows_tests
