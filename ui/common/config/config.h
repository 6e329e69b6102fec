#pragma once

#include "ui/common/config/config_text.h"
#include "ui/common/config/owned_mutex.h"

#include <set>
#include <string>

namespace fs {

// One ".cfg" file: its pairs in memory, and the keys that this process changed.
//
// Any thread may call any operation; each is atomic with respect to the others on the same object.
// A call from within a save() on the same thread is a programming error: std::system_error.
// Between processes there is no lock: save() reads the file again and applies only this process's
// changes, so that two processes that change different keys both keep theirs.
//
// save(), load() and reload() may take half a second more while another process has the file open
// (sys::readWholeFile), and save() keeps the object locked meanwhile.
//
// Results are sys:: result codes (ui/common/sys/result_codes.h). Nothing is saved on destruction.
//
// The four virtual functions are the whole virtual table. There is no virtual destructor: nothing
// derives from the class, so no object is deleted through a base pointer.
class CConfig final
{
public:
    CConfig() = default;
    CConfig(const CConfig&) = delete;
    CConfig& operator=(const CConfig&) = delete;

    // Binds the object to a file and empties it. Does not read the file.
    virtual void setFileName(const std::wstring& path);

    // Rewrites the file: its present content with this process's changes applied. A file that is
    // missing or cannot be read counts as empty. Without changes the disk is not touched.
    // Returns success; noSuchFile without a file name; readOrWriteFailed, with the
    // changes kept for the next save().
    virtual int save();

    // Adds the file's pairs; keys in memory keep their values but no longer count as changed.
    // Returns success; noSuchFile; readOrWriteFailed. Memory is touched on success only.
    virtual int load();

    // Like load(), but memory afterwards equals the file.
    virtual int reload();

    // Changes memory only. The empty value deletes the key at the next save().
    void setValue(const std::string& key, const std::string& value);
    // Also true for a key whose value is empty.
    bool has(const std::string& key) const;
    std::string getValue(const std::string& key, const std::string& defaultValue) const;

    // True for the text "1" only; the default is taken when the key is absent.
    bool getBool(const std::string& key, bool defaultValue) const;

    // True from a setValue() until the next load, reload or successful save.
    bool isModified() const;

private:
    enum class Existing { keep, discard };
    int readFile(Existing existing);

    ConfigValues values;
    std::set<std::string> changedKeys;
    mutable OwnedMutex mutex;
    bool modified = false;
    std::wstring filePath;
};

} // namespace fs
