#include "tests/host/support/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

namespace host {

TempFolder::TempFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tessera-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    root = pattern;
    std::filesystem::permissions(root, std::filesystem::perms::all);
}

TempFolder::~TempFolder()
{
    std::error_code error;
    std::filesystem::remove_all(root, error);
}

std::wstring TempFolder::path(const std::wstring& name) const
{
    return std::wstring(root.begin(), root.end()) + L"/" + name;
}

std::string TempFolder::narrowPath(const std::string& name) const
{
    return root + "/" + name;
}

void TempFolder::write(const std::string& name, std::string_view content) const
{
    std::ofstream file;
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.open(narrowPath(name), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

std::string TempFolder::read(const std::string& name) const
{
    std::ifstream file(narrowPath(name), std::ios::binary);
    if (!file)
        throw std::runtime_error(name + " cannot be read");
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool TempFolder::holds(const std::string& name) const
{
    return std::filesystem::exists(narrowPath(name));
}

void TempFolder::remove(const std::string& name) const
{
    std::filesystem::remove(narrowPath(name));
}

} // namespace host
