#include <gtest/gtest.h>

#include "fakes/FakeSound.h"
#ifdef _WIN32
#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

#ifdef _WIN32
using Sounds = testing::Types<FakeSound, SoundWin>;
#else
using Sounds = testing::Types<FakeSound>;
#endif

template <typename Type>
class SoundContract : public testing::Test {};
TYPED_TEST_SUITE(SoundContract, Sounds);

TYPED_TEST(SoundContract, WhatCannotBePlayedIsSilence) {
  TypeParam sound;
  Sound& seam = sound;
  for (const char* path : {"", "none.wav", "C:\\none\\none.wav"}) EXPECT_NO_THROW(seam.Play(path)) << path;
}

}  // namespace
}  // namespace sonaro
