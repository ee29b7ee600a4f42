// Message loops that know forms: keys go to the form's key table and its dialog keyboard before they are
// dispatched.
#pragma once

#include <windows.h>

namespace sonaro {

// Runs until WM_QUIT and returns its exit code.
int RunMessageLoop();

// For loops of one's own: true when a form has dealt with the message.
bool TranslateFormMessage(MSG& message);

// Faceplate changed: every open form of this thread takes the new colours and outline.
void RefreshAllForms();

}  // namespace sonaro
