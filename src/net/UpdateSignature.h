// The publisher's signature on an update file. The transport is plain, so an installation that has the
// publisher's key takes nothing that this key did not sign.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class DataFolder;

// The publisher's public key: 64 hexadecimal digits on one line.
inline constexpr const char* kPublisherKeyFile = "\\publish.key";

enum class SignatureCheck {
  NotNeeded,  // there is no key
  Good,
  Missing,
  NoKey,  // there is one, and it cannot be read
  Wrong   // also when the key file holds no key
};

// When the signature is needed and good, `text` is cut to the part that it covers: nothing else of the file
// counts.
SignatureCheck CheckUpdateSignature(DataFolder& data, std::string_view& text);

// The line that signs everything in `text`, without a line end; "" when `secretKey` is no key. The secret key
// is 64 bytes in hexadecimal, of which the last 32 are the public key.
std::string UpdateSignatureLine(std::string_view text, std::string_view secretKey);

}  // namespace sonaro
