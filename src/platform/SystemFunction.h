// Functions of the system's libraries that do not come with every process. The system looks for a program's
// own imports in the program's folder first, unless the library is one of those that it always has loaded; so
// the other libraries are loaded here, from the system's folder alone.
#pragma once

namespace sonaro {

// `library` is a file name without a folder. Null when the system has no such library or function. The
// library stays loaded.
void* SystemFunction(const wchar_t* library, const char* name);

// The first act of a program: what the system's libraries load in turn comes from the system's folder as
// well. Later loads by name find what is loaded already.
void LoadFromSystemOnly();

}  // namespace sonaro
