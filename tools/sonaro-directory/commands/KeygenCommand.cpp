#include <array>
#include <fstream>
#include <ostream>
#include <random>

#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"

namespace sonaro {
namespace {

constexpr std::string_view kSecretKey = "\\secret.key";
constexpr std::string_view kPublicKey = "\\publish.key";

// The seed of the pair of keys: eight words of 32 bits, the highest digit of each first. Only its length and
// its randomness matter; nobody sees it again, since the secret key is what is kept.
//
// It must come from the operating system. On Linux the library may take the processor's generator instead, so
// the device is named.
std::string RandomSeed() {
#ifdef _WIN32
  std::random_device chance;
#else
  std::random_device chance("/dev/urandom");
#endif
  std::string seed;
  for (int word = 0; word < 8; ++word) {
    const std::uint32_t bits = chance();
    for (int shift = 28; shift >= 0; shift -= 4) seed += "0123456789abcdef"[(bits >> shift) & 15];
  }
  return seed;
}

// Readable by its owner alone before the first byte of the secret is in it: narrowing the permissions of a
// file that holds the key already would leave a moment in which anybody could copy it.
bool WriteSecret(const std::filesystem::path& path, const std::string& secret) {
  std::ofstream file(path, std::ios::binary);
  std::error_code error;
  using std::filesystem::perms;
  std::filesystem::permissions(path, perms::owner_read | perms::owner_write, error);
  if (error) return false;
  file << secret << '\n' << std::flush;
  return file.good();
}

// The public key of the secret key in `text`, its second half; nothing when the two do not belong together,
// as after a write that was cut short.
std::optional<std::string> PublicKeyOf(std::string_view text) {
  constexpr std::size_t kDigits = 64;
  const std::string_view secret = TrimBlanks(text.substr(0, text.find_first_of("\r\n")));
  if (secret.size() != 2 * kDigits) return std::nullopt;
  const std::string_view publicKey = secret.substr(kDigits);
  constexpr std::string_view kAnything = "sonaro";
  if (!IsSignedBy(publicKey, kAnything, SignatureOf(secret, kAnything))) return std::nullopt;
  return std::string(publicKey);
}

// A new secret key in `path`. False, with no file left there, when it could not be made or written.
bool MakeSecret(DataFolder& data, const std::string& path) {
  std::optional<SigningKey> key;
  try {
    key = SigningKeyFromSeed(RandomSeed());
  } catch (const std::exception&) {  // the system gives no random numbers
  }
  if (!key || !data.FileSystem().MakeFolder(data.Folder())) return false;
  if (WriteSecret(path, key->secret)) return true;
  // Half a key would be taken for one that must not be overwritten.
  data.Remove(kSecretKey);
  return false;
}

}  // namespace

int RunKeygen(Arguments arguments, Console& console) {
  if (arguments.size() != 1 || arguments[0].empty() || arguments[0].starts_with('-')) {
    console.err << "keygen needs a folder; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(arguments[0]);
  DataFolder& data = folder.Data();
  const std::string path = data.Path(kSecretKey);
  const bool isThere = data.Exists(kSecretKey);
  // Never overwrite a secret key: installations with the old public key would refuse every later update.
  if (isThere && data.Exists(kPublicKey)) {
    console.err << "There is a key already: \"" << path << "\".\n";
    return kFailed;
  }
  // The secret first: the other way round a public key could be handed out that nobody can sign for. A secret
  // key alone is what a failed save of the public one has left, or the user took that away. It is made again,
  // from the secret one.
  const bool made = isThere || MakeSecret(data, path);
  const std::optional<std::string> publicKey = made ? PublicKeyOf(data.Read(kSecretKey).bytes) : std::nullopt;
  if (isThere && !publicKey) {
    console.err << "\"" << path << "\" holds no key.\n";
    return kFailed;
  }
  if (!publicKey || !data.Save(kPublicKey, *publicKey + "\n")) {
    console.err << "The keys could not be written to \"" << arguments[0] << "\".\n";
    return kFailed;
  }
  console.out << "Keep " << path << " to yourself; put publish.key beside the data of the installations.\n";
  return kDone;
}

}  // namespace sonaro
