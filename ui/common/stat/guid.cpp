#include "ui/common/stat/guid.h"

#include <utility>

namespace stats {
namespace {

std::function<std::string()>& guidSource()
{
    static std::function<std::string()> source;
    return source;
}

} // namespace

std::string createGuid()
{
    return guidSource() ? guidSource()() : systemGuid();
}

void setGuidSource(std::function<std::string()> source)
{
    guidSource() = std::move(source);
}

} // namespace stats
