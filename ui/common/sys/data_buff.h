#pragma once

#include <cstdint>
#include <string>

namespace sys {

// An owned block of bytes. The order of the virtual functions is fixed; no two of them share a
// name, because some compilers reorder overloads in the virtual table.
class IDataBuff
{
public:
    virtual ~IDataBuff() = default;

    // False when there is no memory; the old block then stays. New bytes are undefined.
    virtual bool resize(std::uint64_t newSize) = 0;
    virtual void clear() = 0;

    // Copies bytes in. The source must not lie in this buffer's own block. Result as resize().
    // assign() with a null source only resizes.
    virtual bool assignString(const std::string& text) = 0;
    virtual bool assign(const void* source, std::uint64_t sourceSize) = 0;

    // Takes ownership of a block from malloc, or of another buffer's block. Null does nothing.
    virtual void attach(void* block, std::uint64_t blockSize) = 0;
    virtual void attachFrom(IDataBuff* other) = 0;

    // Hands the block over to the caller, who must free() it. Null when empty.
    virtual void* detach(std::uint64_t& blockSize) = 0;
    virtual void moveTo(IDataBuff& target) = 0;

    // The bytes as UTF-16 units in native byte order; an odd last byte is ignored. A buffer with
    // less than one unit (one byte) leaves the target as it is.
    virtual void copyToWideString(std::wstring& target) const = 0;
    virtual void copyToString(std::string& target) const = 0;
    virtual std::string toString() const = 0;

    virtual std::uint64_t size() const = 0;
    virtual bool empty() const = 0;
};

// The buffer that uses malloc, realloc and free. Not synchronised.
class DataBuff : public IDataBuff
{
public:
    DataBuff() = default;
    ~DataBuff() override;
    DataBuff(const DataBuff&) = delete;
    DataBuff& operator=(const DataBuff&) = delete;

    bool resize(std::uint64_t newSize) override;
    void clear() override;
    bool assignString(const std::string& text) override;
    bool assign(const void* source, std::uint64_t sourceSize) override;
    void attach(void* newBlock, std::uint64_t newSize) override;
    void attachFrom(IDataBuff* other) override;
    void* detach(std::uint64_t& detachedSize) override;
    void moveTo(IDataBuff& target) override;
    void copyToWideString(std::wstring& target) const override;
    void copyToString(std::string& target) const override;
    std::string toString() const override;
    std::uint64_t size() const override;
    bool empty() const override;

    // The block itself, null when empty; valid until the next change of the buffer.
    void* data() { return block; }
    const void* data() const { return block; }

private:
    void* block = nullptr;
    std::uint64_t blockSize = 0;
};

} // namespace sys
