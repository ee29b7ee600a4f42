// What a form needs to open in a test: fakes of everything outside, the built-in faceplate, outlines in
// memory.
#pragma once

#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "faceplate/Faceplate.h"
#include "faceplate/Shape.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeStrings.h"
#include "forms/Form.h"
#include "settings/CReg.h"

namespace sonaro {

struct FormContextForTests : FormListener {
  FakeRegistry registry;
  FakeFiles files;
  CReg settings{registry};
  DataFolder folder{files, "/d", '/'};
  Faceplate faceplate{settings, folder};
  Shape shape{folder};
  FakeStrings strings;
  int clicks = 0;
  std::vector<std::string> broughtUp;
  FormContext forms{strings, faceplate, shape, this};

  void ButtonPressed() override { ++clicks; }
  void BringUpAsked(const std::string& caption) override { broughtUp.push_back(caption); }
};

}  // namespace sonaro
