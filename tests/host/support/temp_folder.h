#pragma once

#include <string>
#include <string_view>

namespace host {

// A new folder in the system's temporary folder, removed with its contents at the end of the scope.
// Every user may create files in it.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // The same path for the program (wide) and for this machine (UTF-8).
    std::wstring path(const std::wstring& name) const;
    std::string narrowPath(const std::string& name) const;

    // The file's exact bytes; reading a missing file throws.
    void write(const std::string& name, std::string_view content) const;
    std::string read(const std::string& name) const;
    bool holds(const std::string& name) const;
    void remove(const std::string& name) const;

private:
    std::string root;
};

} // namespace host
