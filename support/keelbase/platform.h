#pragma once

// What the log needs from the platform.

#include <filesystem>
#include <memory>

namespace Keelbase {

// Where this program's log file lies; empty when the platform has no place for one.
std::filesystem::path logFilePath(const std::string& settingsName);

// The log file of the program `program` below the folder `roaming`; empty when either is, since a
// relative path would put the log into whatever folder is the current one.
std::filesystem::path logFileBelow(const std::filesystem::path& roaming,
                                   const std::string& settingsName,
                                   const std::filesystem::path& program);

// Lets one process after the other write to a log file. Not for threads of one process: the
// logger that owns the gate serialises those.
class WriteGate
{
public:
    // `logFile` names the gate: every process that passes the same path shares it.
    explicit WriteGate(const std::filesystem::path& logFile);
    ~WriteGate();
    WriteGate(const WriteGate&) = delete;
    WriteGate& operator=(const WriteGate&) = delete;

    // Waits for the other processes, but not for long: a process that was stopped while writing
    // must not stop this one. The write goes ahead in any case.
    void enter() noexcept;
    void leave() noexcept;

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Keelbase
