#include <array>
#include <fstream>
#include <ostream>
#include <random>

#include "base/crypto/Signing.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"

namespace sonaro {
namespace {

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

}  // namespace

int RunKeygen(Arguments arguments, Console& console) {
  if (arguments.size() != 1 || arguments[0].empty() || arguments[0].starts_with('-')) {
    console.err << "keygen needs a folder; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(arguments[0]);
  const std::string path = folder.Data().Path("\\secret.key");
  // Never overwrite a secret key: installations with the old public key would refuse every later update.
  if (folder.Data().Exists("\\secret.key")) {
    console.err << "There is a key already: \"" << path << "\".\n";
    return kFailed;
  }
  std::optional<SigningKey> key;
  try {
    key = SigningKeyFromSeed(RandomSeed());
  } catch (const std::exception&) {  // the system gives no chance
  }
  // The secret first. Should the public key fail to be written the pair is useless but nothing is out in the
  // world; the other way round a public key could be handed out that nobody can sign for.
  if (!key || !folder.Data().FileSystem().MakeFolder(arguments[0]) || !WriteSecret(path, key->secret) ||
      !folder.Data().Save("\\publish.key", key->publicKey + "\n")) {
    console.err << "The keys could not be written to \"" << arguments[0] << "\".\n";
    return kFailed;
  }
  console.out << "Keep " << path << " to yourself; put publish.key beside the data of the installations.\n";
  return kDone;
}

}  // namespace sonaro
