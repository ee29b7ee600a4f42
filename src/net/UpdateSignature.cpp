// The last line of a signed update before the sentinel is "signed::digest::signature::", both in hexadecimal.
// The digest is of all bytes before that line; what is signed is a fixed text and the digest.
#include "net/UpdateSignature.h"

#include "base/DataFolder.h"
#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "net/UpdateFormat.h"

namespace sonaro {

namespace {

// What is signed says what it is, so that a signature of something else never fits.
std::string SignedMessage(std::string_view digest) { return std::string("sonaro update ").append(digest); }

// Where the last line that begins with the mark begins.
std::size_t SignatureLineIn(std::string_view text) {
  for (std::size_t at = text.rfind(update::kSigned); at != std::string_view::npos && at != 0;
       at = text.rfind(update::kSigned, at - 1)) {
    if (text[at - 1] == '\n') return at;
  }
  return std::string_view::npos;
}

}  // namespace

// A publisher's key beside the data makes signatures compulsory. A key file that is there but cannot be read
// must not have the effect of none, or locking it would be enough to get an unsigned update in.
SignatureCheck CheckUpdateSignature(DataFolder& data, std::string_view& text) {
  const ReadResult keyFile = data.Read(kPublisherKeyFile);
  if (keyFile.status == ReadStatus::Missing) return SignatureCheck::NotNeeded;
  if (keyFile.status != ReadStatus::Ok) return SignatureCheck::NoKey;
  std::string_view keyText = keyFile.bytes;
  std::string_view key = NextField(keyText, '\n');
  if (key.ends_with('\r')) key.remove_suffix(1);
  key = TrimBlanks(key);

  const std::size_t at = SignatureLineIn(text);
  if (at == std::string_view::npos) return SignatureCheck::Missing;
  const std::string_view covered = text.substr(0, at);
  std::string_view line = text.substr(at + update::kSigned.size());
  line = line.substr(0, line.find('\n'));
  const std::size_t cut = line.find("::");
  if (cut == std::string_view::npos) return SignatureCheck::Wrong;
  const std::string_view digest = line.substr(0, cut);
  line.remove_prefix(cut + 2);
  const std::string_view signature = line.substr(0, line.find("::"));
  const std::string found = Sha256Hex(covered);
  if (!EqualIgnoringCase(digest, found)) return SignatureCheck::Wrong;
  if (!IsSignedBy(key, SignedMessage(found), signature)) return SignatureCheck::Wrong;
  // Only what was signed is read from here on; nothing can be appended behind the signature.
  text = covered;
  return SignatureCheck::Good;
}

std::string UpdateSignatureLine(std::string_view text, std::string_view secretKey) {
  const std::string digest = Sha256Hex(text);
  const std::string signature = SignatureOf(secretKey, SignedMessage(digest));
  if (signature.empty()) return {};
  return std::string(update::kSigned).append(digest).append("::").append(signature).append("::");
}

}  // namespace sonaro
