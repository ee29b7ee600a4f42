// A demo form on show, with nothing in its log.
#pragma once

#include <gtest/gtest.h>

#include "windows/DemoForm.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"

namespace sonaro {

class DemoFormTest : public testing::Test {
 protected:
  DemoFormTest() {
    form.Show();
    Pump();
    form.log.clear();
  }
  FormContextForTests context;
  DemoForm form{context.forms};
};

}  // namespace sonaro
