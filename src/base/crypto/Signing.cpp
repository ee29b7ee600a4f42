// Ed25519 and SHA-256 with keys and digests in hexadecimal, as they stand in files. The secret key of the
// library is the seed and the public key behind it, 64 bytes, hence 128 digits.
#include "base/crypto/Signing.h"

#include <crypto_hash_sha256.h>
#include <crypto_sign_ed25519.h>

#include <array>
#include <span>

namespace sonaro {

namespace {

using Byte = unsigned char;

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

template <std::size_t size>
// The length is checked first: the library takes arrays of fixed sizes and would read beyond a short one.
bool FromHex(std::string_view hex, std::array<Byte, size>& bytes) {
  if (hex.size() != 2 * size) return false;
  for (std::size_t i = 0; i < size; ++i) {
    const int high = DigitValue(hex[2 * i]);
    const int low = DigitValue(hex[2 * i + 1]);
    if (high < 0 || low < 0) return false;
    bytes[i] = static_cast<Byte>(high * 16 + low);
  }
  return true;
}

std::string ToHex(std::span<const Byte> bytes) {
  std::string hex;
  for (const Byte byte : bytes) {
    hex += "0123456789abcdef"[byte >> 4];
    hex += "0123456789abcdef"[byte & 15];
  }
  return hex;
}

const Byte* BytesOf(std::string_view text) { return reinterpret_cast<const Byte*>(text.data()); }

using PublicKey = std::array<Byte, crypto_sign_ed25519_PUBLICKEYBYTES>;
using SecretKey = std::array<Byte, crypto_sign_ed25519_SECRETKEYBYTES>;
using Signature = std::array<Byte, crypto_sign_ed25519_BYTES>;

}  // namespace

std::string Sha256Hex(std::string_view bytes) {
  std::array<Byte, crypto_hash_sha256_BYTES> digest{};
  crypto_hash_sha256(digest.data(), BytesOf(bytes), bytes.size());
  return ToHex(digest);
}

bool IsSignedBy(std::string_view key, std::string_view message, std::string_view signature) {
  PublicKey keyBytes{};
  Signature signatureBytes{};
  return FromHex(key, keyBytes) && FromHex(signature, signatureBytes) &&
         crypto_sign_ed25519_verify_detached(signatureBytes.data(), BytesOf(message), message.size(),
                                             keyBytes.data()) == 0;
}

std::optional<SigningKey> SigningKeyFromSeed(std::string_view seed) {
  std::array<Byte, crypto_sign_ed25519_SEEDBYTES> seedBytes{};
  if (!FromHex(seed, seedBytes)) return std::nullopt;
  PublicKey publicKey{};
  SecretKey secret{};
  crypto_sign_ed25519_seed_keypair(publicKey.data(), secret.data(), seedBytes.data());
  return SigningKey{ToHex(secret), ToHex(publicKey)};
}

std::string SignatureOf(std::string_view secret, std::string_view message) {
  SecretKey secretBytes{};
  if (!FromHex(secret, secretBytes)) return {};
  Signature signature{};
  crypto_sign_ed25519_detached(signature.data(), nullptr, BytesOf(message), message.size(),
                               secretBytes.data());
  return ToHex(signature);
}

}  // namespace sonaro
