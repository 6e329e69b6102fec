#include "ui/common/sys/module_path.h"

#include <filesystem>

namespace sys {

namespace {

std::filesystem::path runningProgram()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

} // namespace

std::wstring modulePath()
{
    return runningProgram().wstring();
}

std::wstring moduleFolder()
{
    return runningProgram().parent_path().wstring();
}

} // namespace sys
