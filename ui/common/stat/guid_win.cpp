#include "ui/common/stat/guid.h"
#include "ui/common/sys/text_convert.h"
#include "ui/common/sys/win32_error.h"

#include <rpc.h>

namespace stats {
namespace {

constexpr Keelbase::LogSource logSource{"AppEventStat", "ui/common/stat/guid_win"};

// Owns a text from the RPC runtime, or null.
struct RpcText
{
    RPC_WSTR text = nullptr;

    RpcText() = default;
    ~RpcText()
    {
        if (text != nullptr)
            RpcStringFreeW(&text);
    }
    RpcText(const RpcText&) = delete;
    RpcText& operator=(const RpcText&) = delete;
};

bool succeeded(RPC_STATUS status, const char* api)
{
    if (status != RPC_S_OK)
        win32::logFailure(logSource, __LINE__, api, static_cast<unsigned long>(status));
    return status == RPC_S_OK;
}

} // namespace

std::string systemGuid()
{
    UUID uuid = {};
    RpcText text;
    if (!succeeded(UuidCreate(&uuid), "UuidCreate") ||
        !succeeded(UuidToStringW(&uuid, &text.text), "UuidToStringW"))
        return {};
    // RPC_WSTR is unsigned short or wchar_t, depending on the compiler.
    return sys::toUtf8(reinterpret_cast<const wchar_t*>(text.text));
}

} // namespace stats
