// SHA-256 and Ed25519 as texts of hexadecimal digits, over the vendored implementation. Keys and signatures
// that are no such texts are refused, never guessed at.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

std::string Sha256Hex(std::string_view bytes);  // 64 digits, lower case

// `key`: 64 digits; `signature`: 128 digits.
bool IsSignedBy(std::string_view key, std::string_view message, std::string_view signature);

struct SigningKey {
  std::string secret;     // 128 digits: the seed and the public key
  std::string publicKey;  // 64 digits
};

// The key of a seed of 64 digits, which must come from a good source of chance.
std::optional<SigningKey> SigningKeyFromSeed(std::string_view seed);

// "" when `secret` is no key.
std::string SignatureOf(std::string_view secret, std::string_view message);

}  // namespace sonaro
