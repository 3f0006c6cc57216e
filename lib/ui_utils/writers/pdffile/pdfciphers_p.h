#pragma once

#include <openssl/opensslv.h>
#if OPENSSL_VERSION_MAJOR >= 3
#include <openssl/provider.h>
#endif

namespace uiutils::pdf {

/// Lets PoDoFo use RC4, by which the passwords of most encrypted files are checked, where it has to be asked for.
/// Nothing else that the process does with OpenSSL changes.
inline void allowOldCiphers()
{
#if OPENSSL_VERSION_MAJOR >= 3
    static OSSL_PROVIDER* const provider = OSSL_PROVIDER_try_load(nullptr, "legacy", 1);
    static_cast<void>(provider);
#endif
}

} // namespace uiutils::pdf
