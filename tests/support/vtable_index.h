#pragma once

#include <cstddef>
#include <cstring>

namespace testing_support {

// The index of a virtual function in its class's virtual table. The C++ ABI of GCC and Clang
// (Itanium) stores it in the member pointer as 1 + the byte offset. A virtual destructor occupies
// two slots in this ABI, and one with other compilers.
template <typename MemberFunction>
std::size_t vtableIndex(MemberFunction function)
{
    std::size_t offset = 0;
    static_assert(sizeof(function) >= sizeof(offset));
    std::memcpy(&offset, &function, sizeof(offset));
    return (offset - 1) / sizeof(void*);
}

} // namespace testing_support
