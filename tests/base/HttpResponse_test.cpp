#include "base/http/HttpResponse.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/http/HttpRequest.h"

namespace sonaro {
namespace {

using State = HttpResponse::State;
using enum HttpFault;

struct ResponseCase {
  const char* what;
  std::string bytes;
  HttpFault fault;
  std::string status = "";
  std::string body = "";
};

const std::vector<ResponseCase>& Cases() {
  static const std::vector<ResponseCase> kCases = {
      {"length", "HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\nhello", None, "200", "hello"},
      {"more than announced", "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhello", None, "200", "he"},
      {"until closed", "HTTP/1.0 200 OK\r\n\r\nhello\r\n\r\nx", None, "200", "hello\r\n\r\nx"},
      {"bare LF", "HTTP/1.0 200 OK\ncontent-length:3\n\nabc", None, "200", "abc"},
      {"no reason", "HTTP/1.1 404\r\nContent-Length: 0\r\n\r\n", None, "404", ""},
      {"chunked",
       "HTTP/1.1 200 OK\r\nTransfer-Encoding: Chunked\r\n\r\n3\r\nabc\r\nA ;x=1\r\n0123456789\r\n0\r\nT: "
       "v\r\n\r\n",
       None, "200", "abc0123456789"},
      {"chunked and length",
       "HTTP/1.1 200 OK\r\nContent-Length: 1\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nab\r\n0\r\n\r\n", None,
       "200", "ab"},
      {"interim", "HTTP/1.1 100 Continue\r\nContent-Length: 9\r\n\r\nHTTP/1.1 200 OK\r\n\r\nx", None, "200",
       "x"},
      {"no content", "HTTP/1.1 204 No\r\n\r\n", None, "204", ""},
      {"cut short", "HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\nhell", CutShort},
      {"cut in the head", "HTTP/1.0 200 OK\r\nContent-Le", CutShort},
      {"cut in a chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nabc", CutShort},
      {"no last chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n", CutShort},
      {"nothing", "", CutShort},
      {"garbage", "\x01\x02 hello\n\n", NotHttp},
      {"another protocol", "ICY 200 OK\r\n\r\n", NotHttp},
      {"status of two digits", "HTTP/1.0 20 OK\r\n\r\n", NotHttp},
      {"status of four digits", "HTTP/1.0 2000\r\n\r\n", NotHttp},
      {"header without a colon", "HTTP/1.0 200 OK\r\nhello\r\n\r\n", NotHttp},
      {"zero in a header", std::string("HTTP/1.0 200 OK\r\nA: \0\r\n\r\n", 26), NotHttp},
      {"negative length", "HTTP/1.0 200 OK\r\nContent-Length: -5\r\n\r\n", BadLength},
      {"no length", "HTTP/1.0 200 OK\r\nContent-Length:\r\n\r\n", BadLength},
      {"two lengths", "HTTP/1.0 200 OK\r\nContent-Length: 1\r\nContent-Length: 2\r\n\r\nab", BadLength},
      {"huge length", "HTTP/1.0 200 OK\r\nContent-Length: 268435457\r\n\r\n", BodyTooLarge},
      {"length beyond 64 bits", "HTTP/1.0 200 OK\r\nContent-Length: 99999999999999999999999\r\n\r\n",
       BodyTooLarge},
      {"huge chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n7FFFFFFFFFFF\r\n", BodyTooLarge},
      {"chunk beyond 64 bits", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n10000000000000001\r\n",
       BadChunk},
      {"chunk of no number", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n-3\r\nabc\r\n", BadChunk},
      {"chunk longer than said", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nabc\r\n0\r\n\r\n",
       BadChunk},
      {"unknown coding", "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip\r\n\r\n", BadChunk},
  };
  return kCases;
}

void Check(const ResponseCase& expected, const HttpResponse& got) {
  EXPECT_EQ(got.Fault(), expected.fault);
  EXPECT_EQ(got.Current(), expected.fault == HttpFault::None ? State::Complete : State::Failed);
  if (expected.fault != HttpFault::None) return;
  EXPECT_EQ(got.StatusCode(), expected.status);
  EXPECT_EQ(got.Body(), expected.body);
}

TEST(HttpResponse, ReadsTheSameWhereverTheBytesAreSplit) {
  for (const ResponseCase& each : Cases()) {
    for (std::size_t at = 0; at <= each.bytes.size(); ++at) {
      SCOPED_TRACE(std::string(each.what) + " split at " + std::to_string(at));
      HttpResponse response;
      response.Feed(std::string_view(each.bytes).substr(0, at));
      response.Feed(std::string_view(each.bytes).substr(at));
      response.EndOfStream();
      Check(each, response);
    }
    SCOPED_TRACE(std::string(each.what) + " byte by byte");
    HttpResponse response;
    for (const char c : each.bytes) response.Feed(std::string_view(&c, 1));
    response.EndOfStream();
    Check(each, response);
  }
}

TEST(HttpResponse, HandsOutTheHeadersInOneForm) {
  HttpResponse response;
  response.Feed("HTTP/1.1 302 Found\nServer:x\nLOCATION:   http://a/b  \n\n");
  EXPECT_EQ(response.Current(), State::Body);
  EXPECT_EQ(response.Headers(), "HTTP/1.1 302 Found\r\nServer: x\r\nLocation: http://a/b\r\n\r\n");
}

TEST(HttpResponse, EndsWhatIsEndless) {
  struct Endless {
    const char* start;
    std::string again;
    HttpFault fault;
  };
  const Endless kEndless[] = {
      {"", "x", HttpFault::HeadTooLarge},
      {"HTTP/1.0 200 OK\r\n", "A: b\r\n", HttpFault::HeadTooLarge},
      {"", "HTTP/1.1 100 Continue\r\n\r\n", HttpFault::HeadTooLarge},
      {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", "1", HttpFault::BadChunk},
      {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n", "A: b\r\n", HttpFault::HeadTooLarge},
  };
  for (const Endless& each : kEndless) {
    HttpResponse response;
    response.Feed(each.start);
    for (std::size_t sent = 0; sent <= HttpResponse::kMaxHeadSize; sent += each.again.size()) {
      response.Feed(each.again);
    }
    EXPECT_EQ(response.Fault(), each.fault) << each.start << each.again;
  }
  HttpResponse body;
  body.Feed("HTTP/1.0 200 OK\r\n\r\n");
  const std::string block(64 * 1024 * 1024, 'x');
  for (int i = 0; i < 4; ++i) EXPECT_EQ(body.Feed(block), State::Body);
  EXPECT_EQ(body.Feed("x"), State::Failed);
  EXPECT_EQ(body.Fault(), HttpFault::BodyTooLarge);
}

TEST(HttpRequestText, SendsTheRequestAsBuilt) {
  EXPECT_EQ(
      HttpRequestBytes("www.x.org", 80, "GET /a%5?b=%E9 c", "Sonaro/1"),
      "GET /a%5?b=%E9 c HTTP/1.0\r\nHost: www.x.org\r\nUser-Agent: Sonaro/1\r\nConnection: close\r\n\r\n");
  EXPECT_EQ(HttpRequestBytes("h", 8080, "GET /", "S"),
            "GET / HTTP/1.0\r\nHost: h:8080\r\nUser-Agent: S\r\nConnection: close\r\n\r\n");
  EXPECT_EQ(HttpRequestBytes("proxy", 3128, "GET http://www.x.org:81/a?u=http://y/", "S"),
            "GET http://www.x.org:81/a?u=http://y/ HTTP/1.0\r\nHost: www.x.org:81\r\nUser-Agent: S\r\n"
            "Connection: close\r\n\r\n");
}

TEST(HttpRequestText, RefusesWhatCouldSmuggle) {
  EXPECT_FALSE(HttpRequestBytes("", 80, "GET /", "S"));
  EXPECT_FALSE(HttpRequestBytes("h\r\nX: y", 80, "GET /", "S"));
  EXPECT_FALSE(HttpRequestBytes("h", 80, "GET /\r\nX: y", "S"));
  EXPECT_FALSE(HttpRequestBytes("h", 80, "GET /\n", "S"));
  EXPECT_FALSE(HttpRequestBytes("h", 80, "", "S"));
}

}  // namespace
}  // namespace sonaro
