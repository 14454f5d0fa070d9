#include "device/sign/digest.h"

#include <openssl/evp.h>

namespace sonavue::device {

Bytes digest(const DigestKind& kind, const std::uint8_t* data, std::size_t size) {
  Bytes result(kind.size);
  const EVP_MD* method = EVP_get_digestbyname(kind.name);
  if (!method || EVP_Digest(data, size, result.data(), nullptr, method, nullptr) != 1)
    throw FormatError(std::string("the cryptography library computes no ") + kind.name);
  return result;
}

}  // namespace sonavue::device
