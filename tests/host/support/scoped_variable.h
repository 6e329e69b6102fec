#pragma once

#include <optional>
#include <stdlib.h>
#include <string>

namespace host {

// An environment variable with another value for a scope, or without one.
class ScopedVariable
{
public:
    ScopedVariable(const char* variable, const char* value) : name(variable)
    {
        if (const char* const found = getenv(variable))
            previous = found;
        set(value);
    }
    ~ScopedVariable() { set(previous ? previous->c_str() : nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    void set(const char* value) const
    {
        if (value != nullptr)
            setenv(name.c_str(), value, 1);
        else
            unsetenv(name.c_str());
    }

    std::string name;
    std::optional<std::string> previous;
};

} // namespace host
