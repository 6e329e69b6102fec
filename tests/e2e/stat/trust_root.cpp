// trust_root FILE: adds the certificate authority in the DER file to those that the user trusts.
// For test prefixes: a real Windows asks the user first.

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

#include <windows.h>

#include <wincrypt.h>

namespace {

struct StoreEnd
{
    void operator()(void* store) const { CertCloseStore(store, 0); }
};

int fail(const char* api)
{
    std::cerr << api << " failed: " << GetLastError() << '\n';
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::ifstream file(argv[1], std::ios::binary);
    const std::string der{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::unique_ptr<void, StoreEnd> store(CertOpenSystemStoreW(0, L"ROOT"));
    if (!store)
        return fail("CertOpenSystemStoreW");
    if (!CertAddEncodedCertificateToStore(
            store.get(), X509_ASN_ENCODING, reinterpret_cast<const BYTE*>(der.data()),
            static_cast<DWORD>(der.size()), CERT_STORE_ADD_REPLACE_EXISTING, nullptr))
        return fail("CertAddEncodedCertificateToStore");
    return 0;
}
