#include "lot/empreinte.h"

#include "lot/noms.h"

namespace quilvane::lot {

namespace {

const uint8_t* commeOctets(std::string_view v) { return reinterpret_cast<const uint8_t*>(v.data()); }

}  // namespace

void commencer(empreinte& e) { sha256_init(&e.etat); }

void ajouter(empreinte& e, std::string_view octets) {
    sha256_update(&e.etat, octets.size(), commeOctets(octets));
}

std::string terminer(empreinte& e) {
    uint8_t somme[SHA256_DIGEST_SIZE];
    sha256_digest(&e.etat, sizeof somme, somme);
    return hexadecimal({reinterpret_cast<const char*>(somme), sizeof somme});
}

}  // namespace quilvane::lot
