#include "ui/common/stat/guid.h"

#include <fstream>

namespace stats {

std::string systemGuid()
{
    std::string guid;
    std::getline(std::ifstream("/proc/sys/kernel/random/uuid"), guid);
    return guid;
}

} // namespace stats
