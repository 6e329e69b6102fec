#pragma once

// What the log needs from the platform.

#include <filesystem>
#include <memory>

namespace Keelbase {

// The path of this program's log file; empty when the platform has no place for one.
std::filesystem::path logFilePath(const std::string& settingsName);

// The path of the log file of `program` below the folder `roaming`. Empty when one of them is: a
// relative path would lead into the current folder.
std::filesystem::path logFileBelow(const std::filesystem::path& roaming,
                                   const std::string& settingsName,
                                   const std::filesystem::path& program);

// Makes a folder and those above it that are missing. Errors are ignored.
void makeFolders(const std::filesystem::path& folder);

// Serialises the processes that write to one log file. The threads of one process are serialised by
// the logger that owns the gate.
class WriteGate
{
public:
    // Processes that pass the same path share the gate.
    explicit WriteGate(const std::filesystem::path& logFile);
    ~WriteGate();
    WriteGate(const WriteGate&) = delete;
    WriteGate& operator=(const WriteGate&) = delete;

    // Waits for other processes, at most half a second: one that was suspended while writing must
    // not stop this one. The caller writes in any case.
    void enter() noexcept;
    void leave() noexcept;

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Keelbase
