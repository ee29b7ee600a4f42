// Message loops that know forms: keys go to the form's key table and its dialog keyboard before they are
// dispatched.
#pragma once

#include <windows.h>

namespace sonaro {

// Runs until WM_QUIT and returns its exit code.
int RunMessageLoop();

// Handles the messages that wait now; a WM_QUIT stays for the loop that comes.
void RunWaitingMessages();

// For loops of one's own: a form takes the message, or else its window.
void DeliverMessage(MSG& message);
// The first half of it: true when a form has dealt with the message.
bool TranslateFormMessage(MSG& message);

// The modal form of this thread that waits for the user; nullptr when none does.
HWND ModalForm();

// Faceplate changed: every open form of this thread takes the new colours and outline.
void RefreshAllForms();

}  // namespace sonaro
