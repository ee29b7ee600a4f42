// One HTTP transfer at a time, without waiting. The request line goes out exactly as built; the outcome
// arrives by events on the GUI thread. Redirects are not followed and no connection is used twice.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/http/HttpResponse.h"

namespace sonaro {

// How far a request has come before its answer.
enum class HttpStep { HostFound, Connected };

// What a talking window hears. HTTPReady is the last event of every request that was not cancelled, also
// after HTTPError; after HTTPObjectError nothing more comes.
class HttpEvents {
 public:
  virtual ~HttpEvents() = default;
  virtual void HTTPStep(HttpStep) {}  // once each, in order, unless the request fails before
  virtual void HTTPDataReceived(std::string_view body) = 0;  // once, the whole body of a successful answer
  virtual void HTTPDataTransferred(std::uint64_t bytes, std::uint64_t expected) = 0;      // 0 = not announced
  virtual void HTTPError(const std::string& statusCode, const std::string& headers) = 0;  // any other status
  virtual void HTTPObjectError(HttpFault fault) = 0;
  virtual void HTTPReady() = 0;
};

class HttpControl {
 public:
  virtual ~HttpControl() = default;
  // "http://host:port", or "" for none. Set before a request; only its being set matters to the control,
  // since the caller already names the proxy as host and an absolute target.
  virtual void SetProxy(const std::string& proxy) = 0;
  // Connects to host and port and sends `requestText` ("GET " + target + query). Returns at once. Starting a
  // request while one runs cancels that one.
  virtual void Request(const std::string& host, std::uint16_t port, const std::string& requestText,
                       HttpEvents& events) = 0;
  // Ends the transfer at once; no further event comes. Safe at any time, inside an event too.
  virtual void Cancel() = 0;
};

class HttpControlFactory {
 public:
  virtual ~HttpControlFactory() = default;
  virtual std::unique_ptr<HttpControl> Make() = 0;
};

}  // namespace sonaro
