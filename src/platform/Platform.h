// Everything outside the program, as one bundle of references for Application. Classes take the single
// interfaces that they use, never this bundle.
#pragma once

namespace sonaro {

class Clock;
class Files;
class HttpControlFactory;
class MessagePost;
class Registry;
class Shell;
class Sound;
class SystemInfo;

struct Platform {
  Registry& registry;
  Files& files;
  Clock& clock;
  Shell& shell;
  Sound& sound;
  SystemInfo& systemInfo;
  MessagePost& messages;
  HttpControlFactory& http;
};

}  // namespace sonaro
