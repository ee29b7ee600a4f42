// A network of canned answers: a request gets the first answer whose text occurs in it, and nothing is
// delivered before the test says so.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/HttpControl.h"

namespace sonaro {

struct FakeAnswer {
  enum class Kind { Body, Status, ObjectError };
  Kind kind = Kind::ObjectError;
  std::string text;     // the body or the status code
  std::string headers;  // of a Status
  HttpFault fault = HttpFault::None;

  static FakeAnswer Body(std::string body) { return {Kind::Body, std::move(body)}; }
  static FakeAnswer Status(std::string code, std::string headers = "") {
    return {Kind::Status, std::move(code), std::move(headers)};
  }
  static FakeAnswer ObjectError(HttpFault why) { return {Kind::ObjectError, "", "", why}; }
};

class FakeHttp : public HttpControlFactory {
 public:
  struct Exchange {
    std::string proxy;
    std::string host;
    std::uint16_t port = 0;
    std::string requestText;
    HttpEvents* events = nullptr;
    bool over = false;  // answered or cancelled
  };

  // Every request of every control, in order.
  const std::vector<std::shared_ptr<Exchange>>& Requests() const { return requests_; }
  // Later answers go first; a request that fits none is not reached at all.
  void Answer(const std::string& partOfRequest, FakeAnswer answer) {
    answers_.insert(answers_.begin(), {partOfRequest, std::move(answer)});
  }

  // Delivers the whole answer of the oldest request that waits; false when none does.
  bool DeliverNext() {
    for (const std::shared_ptr<Exchange>& exchange : requests_) {
      if (exchange->over) continue;
      Deliver(exchange);
      return true;
    }
    return false;
  }
  void DeliverAll() {
    while (DeliverNext()) {
    }
  }

  std::unique_ptr<HttpControl> Make() override { return std::make_unique<Control>(*this); }

 private:
  class Control : public HttpControl {
   public:
    explicit Control(FakeHttp& network) : network_(network) {}
    ~Control() override { Cancel(); }

    void SetProxy(const std::string& proxy) override { proxy_ = proxy; }
    void Request(const std::string& host, std::uint16_t port, const std::string& requestText,
                 HttpEvents& events) override {
      Cancel();
      current_ = std::make_shared<Exchange>(Exchange{proxy_, host, port, requestText, &events});
      network_.requests_.push_back(current_);
    }
    void Cancel() override {
      if (current_) current_->over = true;
      current_ = nullptr;
    }

   private:
    FakeHttp& network_;
    std::string proxy_;
    std::shared_ptr<Exchange> current_;
  };

  FakeAnswer AnswerTo(const std::string& requestText) const {
    for (const auto& [part, answer] : answers_) {
      if (requestText.find(part) != std::string::npos) return answer;
    }
    return FakeAnswer::ObjectError(HttpFault::Refused);
  }

  // Any event may cancel the exchange or destroy the control; nothing follows then. Taken by value: an event
  // may also start the next request.
  void Deliver(std::shared_ptr<Exchange> exchange) {
    const FakeAnswer answer = AnswerTo(exchange->requestText);
    HttpEvents& events = *exchange->events;
    for (const HttpStep step : {HttpStep::HostFound, HttpStep::Connected}) {
      if (answer.kind != FakeAnswer::Kind::ObjectError && !exchange->over) events.HTTPStep(step);
    }
    if (exchange->over) return;
    switch (answer.kind) {
      case FakeAnswer::Kind::Body:
        events.HTTPDataTransferred(answer.text.size(), answer.text.size());
        if (!exchange->over) events.HTTPDataReceived(answer.text);
        break;
      case FakeAnswer::Kind::Status:
        events.HTTPError(answer.text, answer.headers);
        break;
      case FakeAnswer::Kind::ObjectError:
        exchange->over = true;
        events.HTTPObjectError(answer.fault);
        return;
    }
    if (exchange->over) return;
    exchange->over = true;
    events.HTTPReady();
  }

  std::vector<std::shared_ptr<Exchange>> requests_;
  std::vector<std::pair<std::string, FakeAnswer>> answers_;
};

}  // namespace sonaro
