// Reads an answer as its bytes come in, in pieces of any size. What cannot be used yet waits in pending_;
// used_ counts the bytes of it that were taken, which are erased once per piece rather than once per line.
//
// The body ends in one of three ways: with the last chunk, after as many bytes as the head announced, or when
// the server closes the connection. Only in the last case can a body that was cut off not be told from a
// complete one.
//
// Nothing from the server is believed without a limit: the length of the head, of a line, of a number and of
// the body.
#include "base/http/HttpResponse.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::uint64_t kFirstReserve = 1024 * 1024;  // a length that is only announced is not believed
constexpr std::size_t kMaxNumberLength = 15;          // digits, decimal or hexadecimal: far below 64 bits

std::string_view TrimWhite(std::string_view text) {
  constexpr std::string_view kWhite = " \t";
  const std::size_t first = text.find_first_not_of(kWhite);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool HasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return (code < 0x20 && c != '\t') || code == 0x7F;
  });
}

}  // namespace

HttpResponse::State HttpResponse::Feed(std::string_view bytes) {
  if (state_ == State::Complete || state_ == State::Failed) return state_;
  if (state_ == State::Body && framing_ != Framing::Chunked) {  // no need to copy it twice
    Append(bytes);
    return state_;
  }
  pending_ += bytes;
  if (state_ == State::Head && !ReadHead()) return state_;
  if (state_ == State::Body) ReadBody();
  pending_.erase(0, used_);
  used_ = 0;
  return state_;
}

HttpResponse::State HttpResponse::EndOfStream() {
  if (state_ == State::Body && framing_ == Framing::UntilClosed) {
    state_ = State::Complete;
  } else if (state_ != State::Complete && state_ != State::Failed) {
    Fail(HttpFault::CutShort);
  }
  return state_;
}

// False when the head is not complete or has failed.
bool HttpResponse::ReadHead() {
  std::string_view line;
  while (state_ == State::Head) {
    if (!TakeLine(line)) {
      if (state_ == State::Head) {
        pending_.erase(0, used_);
        used_ = 0;
      }
      return false;
    }
    if (statusCode_.empty()) {
      if (!TakeStatusLine(line)) return false;
    } else if (line.empty()) {
      HeadIsComplete();
    } else if (!TakeHeader(line)) {
      return false;
    }
  }
  return state_ != State::Failed;
}

bool HttpResponse::TakeStatusLine(std::string_view line) {
  constexpr std::string_view kProtocol = "HTTP/1.";
  constexpr std::size_t kCode = 9;  // "HTTP/1.x "
  const bool fits = line.size() >= kCode + 3 && line.starts_with(kProtocol) && IsDigit(line[kCode - 2]) &&
                    line[kCode - 1] == ' ' && line[kCode] >= '1' && line[kCode] <= '5' &&
                    IsDigit(line[kCode + 1]) && IsDigit(line[kCode + 2]) &&
                    (line.size() == kCode + 3 || line[kCode + 3] == ' ') && !HasControlCharacter(line);
  if (!fits) return Fail(HttpFault::NotHttp);
  statusCode_ = line.substr(kCode, 3);
  headers_.append(line).append("\r\n");
  return true;
}

bool HttpResponse::TakeHeader(std::string_view line) {
  if (HasControlCharacter(line)) return Fail(HttpFault::NotHttp);
  if (line.front() == ' ' || line.front() == '\t') return true;  // a folded line: nothing needed stands there
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos || colon == 0) return Fail(HttpFault::NotHttp);
  std::string_view name = line.substr(0, colon);
  const std::string_view value = TrimWhite(line.substr(colon + 1));
  // Names ignore letter case; whoever looks for the redirect does not.
  if (EqualIgnoringCase(name, "Location")) name = "Location";
  headers_.append(name).append(": ").append(value).append("\r\n");
  if (EqualIgnoringCase(name, "Content-Length")) return TakeLength(value);
  if (EqualIgnoringCase(name, "Transfer-Encoding")) {
    // Any other coding was not asked for and cannot be read.
    if (!EqualIgnoringCase(value, "chunked")) return Fail(HttpFault::BadChunk);
    framing_ = Framing::Chunked;
  }
  return true;
}

bool HttpResponse::TakeLength(std::string_view value) {
  std::uint64_t length = 0;
  if (value.empty()) return Fail(HttpFault::BadLength);
  for (const char c : value) {
    if (!IsDigit(c)) return Fail(HttpFault::BadLength);
    length = length * 10 + static_cast<std::uint64_t>(c - '0');
    if (length > kMaxBodySize) return Fail(HttpFault::BodyTooLarge);
  }
  // Two different lengths are a sign of an answer within an answer; which one holds cannot be known.
  if (lengthGiven_ && length != length_) return Fail(HttpFault::BadLength);
  lengthGiven_ = true;
  length_ = length;
  return true;
}

void HttpResponse::HeadIsComplete() {
  headers_ += "\r\n";
  if (statusCode_.starts_with('1')) {  // an interim answer: the real one follows
    statusCode_.clear();
    headers_.clear();
    lengthGiven_ = false;
    framing_ = Framing::UntilClosed;
    return;
  }
  state_ = State::Body;
  // These have no body whatever their headers say.
  if (statusCode_ == "204" || statusCode_ == "304") {
    framing_ = Framing::Length;
    length_ = 0;
  } else if (framing_ != Framing::Chunked && lengthGiven_) {
    framing_ = Framing::Length;
    body_.reserve(static_cast<std::size_t>(std::min(length_, kFirstReserve)));
  }
  if (framing_ == Framing::Length && length_ == 0) state_ = State::Complete;
}

bool HttpResponse::ReadBody() {
  if (framing_ == Framing::Chunked) return ReadChunks();
  const std::string_view rest = std::string_view(pending_).substr(used_);
  used_ = pending_.size();
  return Append(rest);
}

bool HttpResponse::Append(std::string_view bytes) {
  if (framing_ == Framing::Length) {
    // What comes beyond the announced length is not part of the answer.
    bytes = bytes.substr(0, static_cast<std::size_t>(length_ - body_.size()));
  } else if (bytes.size() > kMaxBodySize - body_.size()) {
    return Fail(HttpFault::BodyTooLarge);
  }
  body_ += bytes;
  if (framing_ == Framing::Length && body_.size() == length_) state_ = State::Complete;
  return true;
}

// A chunk is a line with its size in hexadecimal, so many bytes, and an empty line. The chunk of size 0 is
// the last; behind it come header lines and an empty line.
bool HttpResponse::ReadChunks() {
  std::string_view line;
  while (state_ == State::Body) {
    if (chunkPart_ == ChunkPart::Data) {
      const std::string_view rest = std::string_view(pending_).substr(used_);
      if (rest.empty()) return true;
      const std::string_view piece =
          rest.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(chunkLeft_, rest.size())));
      if (!Append(piece)) return false;
      used_ += piece.size();
      chunkLeft_ -= piece.size();
      if (chunkLeft_ == 0) chunkPart_ = ChunkPart::DataEnd;
      continue;
    }
    if (!TakeLine(line)) return state_ != State::Failed;
    if (chunkPart_ == ChunkPart::Size) {
      if (!TakeChunkSize(line)) return false;
    } else if (chunkPart_ == ChunkPart::DataEnd) {
      if (!line.empty()) return Fail(HttpFault::BadChunk);
      chunkPart_ = ChunkPart::Size;
    } else if (line.empty()) {  // the end of the trailer, whose headers nobody needs
      state_ = State::Complete;
    }
  }
  return true;
}

bool HttpResponse::TakeChunkSize(std::string_view line) {
  // Extensions behind a semicolon are allowed and mean nothing here.
  const std::string_view digits = TrimWhite(line.substr(0, line.find(';')));
  if (digits.empty() || digits.size() > kMaxNumberLength) return Fail(HttpFault::BadChunk);
  chunkLeft_ = 0;
  for (const char c : digits) {
    const int value = HexValue(c);
    if (value < 0) return Fail(HttpFault::BadChunk);
    chunkLeft_ = chunkLeft_ * 16 + static_cast<std::uint64_t>(value);
  }
  if (chunkLeft_ > kMaxBodySize - body_.size()) return Fail(HttpFault::BodyTooLarge);
  chunkPart_ = chunkLeft_ == 0 ? ChunkPart::Trailer : ChunkPart::Data;
  return true;
}

// The limit counts all lines together: an endless trailer or an endless row of interim answers ends too. The
// sizes of a body's chunks do not count, but each must be short.
bool HttpResponse::TakeLine(std::string_view& line) {
  const std::size_t end = pending_.find('\n', used_);
  const std::size_t length = (end == std::string::npos ? pending_.size() : end + 1) - used_;
  const bool ofBody = state_ == State::Body && chunkPart_ != ChunkPart::Trailer;
  if (length + (ofBody ? 0 : headBytes_) > kMaxHeadSize) {
    Fail(ofBody ? HttpFault::BadChunk : HttpFault::HeadTooLarge);
    return false;
  }
  if (end == std::string::npos) return false;
  if (!ofBody) headBytes_ += length;
  line = std::string_view(pending_).substr(used_, length - 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  used_ += length;
  return true;
}

bool HttpResponse::Fail(HttpFault fault) {
  state_ = State::Failed;
  fault_ = fault;
  pending_.clear();
  used_ = 0;
  return false;
}

}  // namespace sonaro
