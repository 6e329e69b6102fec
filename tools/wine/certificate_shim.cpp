// Adds to one process what Wine's Schannel lacks: a TLS client that asks for automatic validation
// (SCH_CRED_AUTO_CRED_VALIDATION) gets no connection to a server whose certificate is untrusted,
// expired, or issued for another name.
//
// The functions are replaced in the table of InitSecurityInterfaceW, through which libcurl calls
// them. Loaded by launcher.exe before the program's first instruction.
#include <map>
#include <mutex>
#include <utility>

#include <windows.h>

#define SECURITY_WIN32
#define CERT_CHAIN_PARA_HAS_EXTRA_FIELDS
#include <schannel.h>
#include <security.h>
#include <wincrypt.h>

namespace {

ACQUIRE_CREDENTIALS_HANDLE_FN_W originalAcquire = nullptr;
INITIALIZE_SECURITY_CONTEXT_FN_W originalInitialize = nullptr;

// The flags of each credential. Handles are reused: the latest flags count.
std::mutex mutex;
std::map<std::pair<ULONG_PTR, ULONG_PTR>, DWORD> credentialFlags;

DWORD flagsOf(const CredHandle* credential)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = credentialFlags.find({credential->dwLower, credential->dwUpper});
    return found == credentialFlags.end() ? 0 : found->second;
}

SECURITY_STATUS statusOf(DWORD chainError)
{
    switch (chainError) {
    case 0:
        return SEC_E_OK;
    case static_cast<DWORD>(CERT_E_EXPIRED):
        return SEC_E_CERT_EXPIRED;
    case static_cast<DWORD>(CERT_E_CN_NO_MATCH):
        return SEC_E_WRONG_PRINCIPAL;
    case static_cast<DWORD>(CERT_E_UNTRUSTEDROOT):
    case static_cast<DWORD>(CERT_E_CHAINING):
        return SEC_E_UNTRUSTED_ROOT;
    default:
        return SEC_E_CERT_UNKNOWN;
    }
}

// A best-effort check of revocation is skipped: Wine's policy check does not know its flags.
DWORD revocationCheck(DWORD flags)
{
    constexpr DWORD bestEffort =
        SCH_CRED_IGNORE_NO_REVOCATION_CHECK | SCH_CRED_IGNORE_REVOCATION_OFFLINE;
    const bool wanted = (flags & SCH_CRED_REVOCATION_CHECK_CHAIN) != 0;
    return wanted && (flags & bestEffort) != bestEffort ? CERT_CHAIN_REVOCATION_CHECK_CHAIN : 0;
}

// Windows fetches revocation lists even for a best-effort check, and the handshake waits for them.
void awaitRevocationLists(PCCERT_CONTEXT certificate)
{
    constexpr DWORD windowsPatienceMs = 15000;
    CERT_CHAIN_PARA parameters{};
    parameters.cbSize = sizeof parameters;
    parameters.dwUrlRetrievalTimeout = windowsPatienceMs;
    PCCERT_CHAIN_CONTEXT chain = nullptr;
    if (CertGetCertificateChain(nullptr, certificate, nullptr, certificate->hCertStore, &parameters,
                                CERT_CHAIN_REVOCATION_CHECK_CHAIN, nullptr, &chain)) {
        CertFreeCertificateChain(chain);
    }
}

SECURITY_STATUS checkChain(PCCERT_CONTEXT certificate, wchar_t* host, DWORD flags)
{
    CERT_CHAIN_PARA parameters{};
    parameters.cbSize = sizeof parameters;
    PCCERT_CHAIN_CONTEXT chain = nullptr;
    if (!CertGetCertificateChain(nullptr, certificate, nullptr, certificate->hCertStore,
                                 &parameters, revocationCheck(flags), nullptr, &chain)) {
        return SEC_E_CERT_UNKNOWN;
    }
    HTTPSPolicyCallbackData server{};
    server.cbStruct = sizeof server;
    server.dwAuthType = AUTHTYPE_SERVER;
    server.pwszServerName = host;
    CERT_CHAIN_POLICY_PARA policy{};
    policy.cbSize = sizeof policy;
    policy.pvExtraPolicyPara = &server;
    CERT_CHAIN_POLICY_STATUS result{};
    result.cbSize = sizeof result;
    const BOOL checked =
        CertVerifyCertificateChainPolicy(CERT_CHAIN_POLICY_SSL, chain, &policy, &result);
    // Wine's policy check accepts a chain that ends before any root.
    const bool isPartial = (chain->TrustStatus.dwErrorStatus & CERT_TRUST_IS_PARTIAL_CHAIN) != 0;
    CertFreeCertificateChain(chain);
    if (!checked) {
        return SEC_E_CERT_UNKNOWN;
    }
    return isPartial && result.dwError == 0 ? SEC_E_UNTRUSTED_ROOT : statusOf(result.dwError);
}

SECURITY_STATUS checkServer(CtxtHandle* context, wchar_t* host, DWORD flags)
{
    PCCERT_CONTEXT certificate = nullptr;
    if (QueryContextAttributesW(context, SECPKG_ATTR_REMOTE_CERT_CONTEXT, &certificate) !=
        SEC_E_OK) {
        return SEC_E_CERT_UNKNOWN;
    }
    if ((flags & SCH_CRED_REVOCATION_CHECK_CHAIN) != 0) {
        awaitRevocationLists(certificate);
    }
    const SECURITY_STATUS status = checkChain(certificate, host, flags);
    CertFreeCertificateContext(certificate);
    return status;
}

SECURITY_STATUS SEC_ENTRY acquire(wchar_t* principal, wchar_t* package, unsigned long use,
                                  void* logon, void* data, SEC_GET_KEY_FN getKey, void* getKeyData,
                                  CredHandle* credential, TimeStamp* expiry)
{
    const SECURITY_STATUS status = originalAcquire(principal, package, use, logon, data, getKey,
                                                   getKeyData, credential, expiry);
    const auto* const settings = static_cast<const SCHANNEL_CRED*>(data);
    // SCH_CREDENTIALS, for TLS 1.3, has the flags elsewhere; the program does not use it.
    if (status == SEC_E_OK && settings != nullptr && settings->dwVersion == SCHANNEL_CRED_VERSION) {
        const std::lock_guard<std::mutex> lock(mutex);
        credentialFlags[{credential->dwLower, credential->dwUpper}] = settings->dwFlags;
    }
    return status;
}

SECURITY_STATUS SEC_ENTRY initialize(CredHandle* credential, CtxtHandle* context, wchar_t* host,
                                     unsigned long request, unsigned long reserved,
                                     unsigned long representation, SecBufferDesc* input,
                                     unsigned long reserved2, CtxtHandle* newContext,
                                     SecBufferDesc* output, unsigned long* attributes,
                                     TimeStamp* expiry)
{
    const SECURITY_STATUS status =
        originalInitialize(credential, context, host, request, reserved, representation, input,
                           reserved2, newContext, output, attributes, expiry);
    if (status != SEC_E_OK || credential == nullptr || context == nullptr) {
        return status;
    }
    const DWORD flags = flagsOf(credential);
    return (flags & SCH_CRED_AUTO_CRED_VALIDATION) != 0 ? checkServer(context, host, flags)
                                                        : status;
}

void replaceFunctions()
{
    SecurityFunctionTableW* const table = InitSecurityInterfaceW();
    DWORD protection = 0;
    if (table == nullptr || !VirtualProtect(table, sizeof *table, PAGE_READWRITE, &protection)) {
        return;
    }
    originalAcquire = table->AcquireCredentialsHandleW;
    originalInitialize = table->InitializeSecurityContextW;
    table->AcquireCredentialsHandleW = &acquire;
    table->InitializeSecurityContextW = &initialize;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        replaceFunctions();
    }
    return TRUE;
}
