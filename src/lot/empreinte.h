/**
 * empreinte.h - SHA-256, from nettle.
 *
 * Of Debian's libraries that have it, libnettle8 is the lightest: 520 kB
 * installed and the C library alone behind it, against 1,784 kB for libgcrypt20
 * with libgpg-error0 and 6,030 kB for libssl3.
 */
#ifndef QUILVANE_LOT_EMPREINTE_H
#define QUILVANE_LOT_EMPREINTE_H

#include <nettle/sha2.h>

#include <string>
#include <string_view>

namespace quilvane::lot {

/** A digest that is being made. */
struct empreinte {
    sha256_ctx etat;
};

void commencer(empreinte& e);
void ajouter(empreinte& e, std::string_view octets);
/** The digest of all that was added, 64 hexadecimal digits. */
std::string terminer(empreinte& e);

}  // namespace quilvane::lot

#endif
