#include "base/crypto/Signing.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(Signing, DigestsAsPublished) {
  EXPECT_EQ(Sha256Hex(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256Hex("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

// The second test vector of RFC 8032, 7.1.
TEST(Signing, SignsAsPublished) {
  const auto key = SigningKeyFromSeed("4ccd089b28ff96da9db6c346ec114e0f5b8a319f35aba624da8cf6ed4fb8a6fb");
  ASSERT_TRUE(key);
  EXPECT_EQ(key->publicKey, "3d4017c3e843895a92b70aa74d1b7ebc9c982ccf2ec4968cc0cd55f12af4660c");
  const std::string signature = SignatureOf(key->secret, "r");
  EXPECT_EQ(signature,
            "92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
            "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00");
  EXPECT_TRUE(IsSignedBy(key->publicKey, "r", signature));
  EXPECT_FALSE(IsSignedBy(key->publicKey, "s", signature));
  for (std::size_t at = 0; at < signature.size(); at += 7) {
    std::string changed = signature;
    changed[at] = changed[at] == '0' ? '1' : '0';
    EXPECT_FALSE(IsSignedBy(key->publicKey, "r", changed)) << at;
  }
}

TEST(Signing, RefusesWhatIsNoKey) {
  EXPECT_FALSE(SigningKeyFromSeed("12"));
  EXPECT_FALSE(SigningKeyFromSeed(std::string(64, 'g')));
  EXPECT_EQ(SignatureOf("", "r"), "");
  EXPECT_FALSE(IsSignedBy("", "r", ""));
  EXPECT_FALSE(IsSignedBy(std::string(64, '0'), "r", std::string(128, '0')));
}

}  // namespace
}  // namespace sonaro
