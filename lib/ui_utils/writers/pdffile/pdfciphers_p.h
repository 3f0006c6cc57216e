#pragma once

#include <openssl/opensslv.h>
#if OPENSSL_VERSION_MAJOR >= 3
#include <openssl/provider.h>
#endif

namespace uiutils::pdf {

/// Lets PoDoFo use RC4, which it needs to check the passwords of most encrypted files, if OpenSSL does not offer it by
/// default. Does not change anything else that the process does with OpenSSL.
inline void allowOldCiphers()
{
#if OPENSSL_VERSION_MAJOR >= 3
    static OSSL_PROVIDER* const provider = OSSL_PROVIDER_try_load(nullptr, "legacy", 1);
    static_cast<void>(provider);
#endif
}

} // namespace uiutils::pdf
