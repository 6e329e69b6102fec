#include "support/keelbase/platform.h"

namespace Keelbase {

// Away from Windows the library serves tests and tools, which collect messages themselves.
std::filesystem::path logFilePath(const std::string&)
{
    return {};
}

void makeFolders(const std::filesystem::path& folder)
{
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
}

struct WriteGate::State
{};

WriteGate::WriteGate(const std::filesystem::path&) {}
WriteGate::~WriteGate() = default;
void WriteGate::enter() noexcept {}
void WriteGate::leave() noexcept {}

} // namespace Keelbase
