#include "exchange/Servers.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace sonaro {
namespace {

sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

int ListenOnFreePort(std::uint16_t& port) {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = Loopback(0);
  socklen_t length = sizeof address;
  bind(listener, reinterpret_cast<sockaddr*>(&address), length);
  listen(listener, 16);
  getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
  port = ntohs(address.sin_port);
  return listener;
}

[[noreturn]] void Become(const std::vector<std::string>& command) {
  const int nothing = open("/dev/null", O_RDWR);
  for (int stream = 0; stream < 3; ++stream) dup2(nothing, stream);
  std::vector<char*> words;
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  // Where servers lie is not in everybody's path.
  setenv("PATH", (std::string(getenv("PATH")) + ":/usr/sbin:/sbin").c_str(), 1);
  execvp(words[0], words.data());
  _exit(127);
}

}  // namespace

std::uint16_t FreePort() {
  std::uint16_t port = 0;
  close(ListenOnFreePort(port));
  return port;
}

int ConnectTo(std::uint16_t port) {
  const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = Loopback(port);
  if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return connection;
  close(connection);
  return -1;
}

bool SendAll(int connection, const std::string& bytes) {
  return send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

ServerProcess::ServerProcess(const std::vector<std::string>& command, std::uint16_t port) {
  process_ = fork();
  if (process_ == 0) Become(command);
  for (int tries = 0; tries < 200 && !answers_; ++tries) {
    if (const int connection = ConnectTo(port); connection >= 0) {
      close(connection);
      answers_ = true;
    } else {
      std::this_thread::sleep_for(std::chrono::milliseconds(25));
    }
  }
}

ServerProcess::~ServerProcess() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

// One process, so that ending it ends all; as root its worker must be allowed to read a private folder.
std::vector<std::string> NginxCommand(const std::string& site) {
  return {"nginx", "-p", site + "/", "-c", "nginx.conf", "-g", "daemon off; master_process off;"};
}

}  // namespace sonaro
