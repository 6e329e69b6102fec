#include "ui/common/sys/data_buff.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace sys {

DataBuff::~DataBuff()
{
    std::free(block);
}

bool DataBuff::resize(std::uint64_t newSize)
{
    if (newSize == blockSize)
        return true;
    if (newSize == 0) {
        clear();
        return true;
    }
    if (newSize > std::numeric_limits<std::size_t>::max())
        return false;
    void* const resized = std::realloc(block, static_cast<std::size_t>(newSize));
    if (resized == nullptr)
        return false;
    block = resized;
    blockSize = newSize;
    return true;
}

void DataBuff::clear()
{
    std::free(block);
    block = nullptr;
    blockSize = 0;
}

bool DataBuff::assignString(const std::string& text)
{
    return assign(text.data(), text.size());
}

bool DataBuff::assign(const void* source, std::uint64_t sourceSize)
{
    if (!resize(sourceSize))
        return false;
    if (source != nullptr && sourceSize != 0)
        std::memcpy(block, source, static_cast<std::size_t>(sourceSize));
    return true;
}

void DataBuff::attach(void* newBlock, std::uint64_t newSize)
{
    if (newBlock == nullptr)
        return;
    clear();
    block = newBlock;
    blockSize = newSize;
}

void DataBuff::attachFrom(IDataBuff* other)
{
    if (other == nullptr || other == this)
        return;
    clear();
    block = other->detach(blockSize);
}

void* DataBuff::detach(std::uint64_t& detachedSize)
{
    void* const detached = block;
    detachedSize = blockSize;
    block = nullptr;
    blockSize = 0;
    return detached;
}

void DataBuff::moveTo(IDataBuff& target)
{
    if (&target == this)
        return;
    target.clear();
    std::uint64_t movedSize = 0;
    void* const moved = detach(movedSize);
    target.attach(moved, movedSize);
}

void DataBuff::copyToWideString(std::wstring& target) const
{
    if (block == nullptr || blockSize < sizeof(char16_t))
        return;
    // Unit by unit: a wide character is not two bytes on every platform.
    target.resize(static_cast<std::size_t>(blockSize / sizeof(char16_t)));
    const auto* source = static_cast<const unsigned char*>(block);
    for (wchar_t& character : target) {
        char16_t unit = 0;
        std::memcpy(&unit, source, sizeof(unit));
        character = static_cast<wchar_t>(unit);
        source += sizeof(unit);
    }
}

void DataBuff::copyToString(std::string& target) const
{
    if (block != nullptr && blockSize != 0)
        target.assign(static_cast<const char*>(block), static_cast<std::size_t>(blockSize));
}

std::string DataBuff::toString() const
{
    std::string copy;
    copyToString(copy);
    return copy;
}

std::uint64_t DataBuff::size() const
{
    return blockSize;
}

bool DataBuff::empty() const
{
    return blockSize == 0;
}

} // namespace sys
