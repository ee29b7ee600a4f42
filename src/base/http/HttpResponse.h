// Reads one HTTP/1.0 or 1.1 answer out of bytes as they arrive, in pieces of any size. Knows no socket, no
// time and no windows, and trusts nothing: every length is checked and limited. Used by the HTTP control, one
// for each request.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

// Why a transfer came to nothing, as the transport tells it; the sentence for the user is made elsewhere.
enum class HttpFault {
  None,
  BadRequest,    // no host, or a request text that cannot be sent
  NoSuchHost,    // the name is not known, or there is no network
  Refused,       // nobody listens, or the host cannot be reached
  Lost,          // the connection broke while it was in use
  Silent,        // no byte came for too long
  NotHttp,       // what answered does not speak HTTP
  HeadTooLarge,  // no end of the headers
  BodyTooLarge,  // announced or sent more than is taken
  BadLength,     // an announced length that is no length
  BadChunk,      // a chunked body that does not follow the rules
  CutShort,      // the connection ended before the answer did
  TooSlow        // bytes came, but fewer than a transfer is waited for
};

class HttpResponse {
 public:
  static constexpr std::size_t kMaxHeadSize = 64 * 1024;
  static constexpr std::uint64_t kMaxBodySize = 256u * 1024 * 1024;

  enum class State {
    Head,      // the status line and the headers are still coming
    Body,      // StatusCode and Headers are known
    Complete,  // the whole body is there; further bytes are ignored
    Failed     // Fault says why; further bytes are ignored
  };

  State Feed(std::string_view bytes);
  // The other side has closed the connection.
  State EndOfStream();

  State Current() const { return state_; }
  HttpFault Fault() const { return fault_; }
  // Three digits, such as "302"; "" before the head is complete.
  const std::string& StatusCode() const { return statusCode_; }
  bool Succeeded() const { return statusCode_.starts_with('2'); }
  // The status line, the header lines and an empty line, each ended by CR LF whatever was received. A line is
  // "Name: value" without blanks around the value; the name of the redirect target is always written
  // "Location", since readers look for it so.
  const std::string& Headers() const { return headers_; }
  // The announced length of the body; 0 when none was announced.
  std::uint64_t ExpectedLength() const { return framing_ == Framing::Length ? length_ : 0; }
  const std::string& Body() const { return body_; }

 private:
  enum class Framing { UntilClosed, Length, Chunked };
  enum class ChunkPart { Size, Data, DataEnd, Trailer };

  bool ReadHead();
  bool TakeStatusLine(std::string_view line);
  bool TakeHeader(std::string_view line);
  bool TakeLength(std::string_view value);
  void HeadIsComplete();
  bool ReadBody();
  bool ReadChunks();
  bool TakeChunkSize(std::string_view line);
  bool TakeLine(std::string_view& line);  // from `pending_`; false when no whole line is there
  bool Append(std::string_view bytes);
  bool Fail(HttpFault fault);

  State state_ = State::Head;
  HttpFault fault_ = HttpFault::None;
  std::string pending_;        // received and not yet used
  std::size_t used_ = 0;       // of `pending_`
  std::size_t headBytes_ = 0;  // of all heads and trailers, interim answers included
  std::string statusCode_;
  std::string headers_;
  std::string body_;
  Framing framing_ = Framing::UntilClosed;
  bool lengthGiven_ = false;
  std::uint64_t length_ = 0;
  ChunkPart chunkPart_ = ChunkPart::Size;
  std::uint64_t chunkLeft_ = 0;
};

}  // namespace sonaro
