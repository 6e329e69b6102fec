#include "ui/common/config/config.h"

#include "ui/common/sys/file_io.h"
#include "ui/common/sys/result_codes.h"

#include <mutex>
#include <utility>

namespace fs {

void CConfig::setFileName(const std::wstring& path)
{
    const std::lock_guard lock(mutex);
    values.clear();
    changedKeys.clear();
    if (&path != &filePath)
        filePath = path;
}

int CConfig::save()
{
    const std::lock_guard lock(mutex);
    if (filePath.empty())
        return sys::noSuchFile;
    if (changedKeys.empty()) {
        modified = false;
        return sys::success;
    }

    const ConfigChanges changes = collectChanges(values, changedKeys);
    values.clear();
    std::string content;
    if (sys::fileExists(filePath) && sys::readWholeFile(filePath, content) == sys::success)
        parseConfigText(content, values);
    applyChanges(changes, values);

    if (sys::writeWholeFile(filePath, serialiseConfig(values)) != sys::success)
        return sys::readOrWriteFailed;
    modified = false;
    changedKeys.clear();
    return sys::success;
}

int CConfig::load()
{
    return readFile(Existing::keep);
}

int CConfig::reload()
{
    return readFile(Existing::discard);
}

int CConfig::readFile(Existing existing)
{
    // A slow disk must not hold up getValue() in other threads, so the lock is not held while
    // the file is read and parsed.
    std::wstring path;
    {
        const std::lock_guard lock(mutex);
        path = filePath;
    }
    if (!sys::fileExists(path))
        return sys::noSuchFile;
    std::string content;
    if (sys::readWholeFile(path, content) != sys::success)
        return sys::readOrWriteFailed;
    ConfigValues fileValues;
    parseConfigText(content, fileValues);

    const std::lock_guard lock(mutex);
    if (filePath != path)
        return sys::success; // as if setFileName() had been called right after this load
    if (existing == Existing::keep) {
        for (auto& [key, value] : values)
            fileValues.insert_or_assign(key, std::move(value));
    }
    values.swap(fileValues);
    changedKeys.clear();
    modified = false;
    return sys::success;
}

void CConfig::setValue(const std::string& key, const std::string& value)
{
    const std::lock_guard lock(mutex);
    values.insert_or_assign(key, value);
    changedKeys.insert(key);
    modified = true;
}

bool CConfig::has(const std::string& key) const
{
    const std::lock_guard lock(mutex);
    return values.count(key) != 0;
}

std::string CConfig::getValue(const std::string& key, const std::string& defaultValue) const
{
    const std::lock_guard lock(mutex);
    const auto found = values.find(key);
    return found != values.end() ? found->second : defaultValue;
}

bool CConfig::getBool(const std::string& key, bool defaultValue) const
{
    return getValue(key, defaultValue ? "1" : "0") == "1";
}

bool CConfig::isModified() const
{
    const std::lock_guard lock(mutex);
    return modified;
}

} // namespace fs
