#include "readers/Readers.h"

#include <zlib.h>

#include <algorithm>
#include <limits>

namespace sonaro {
namespace {

// Output grows by this much at a time. The size that a gzip trailer claims is never used: it is modulo 2^32
// and under the control of whoever made the file.
constexpr std::size_t kChunk = 1 << 20;

// Owns zlib's state for one pass.
class Inflater {
 public:
  Inflater() { ready_ = inflateInit2(&stream_, 15 + 16) == Z_OK; }  // + 16: a gzip header, no raw data
  ~Inflater() {
    if (ready_) inflateEnd(&stream_);
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  GunzipStatus Run(std::string_view bytes, std::size_t limit, std::string& unpacked);

 private:
  z_stream stream_{};
  bool ready_ = false;
};

// A gzip file is a series of members, each a complete stream; "cat a.gz b.gz" makes one of two, and log
// rotation tools do. The texts of all members are joined. The limit is tested after every chunk, so that a
// file that unpacks to a thousand times its size is given up after a megabyte too much.
GunzipStatus Inflater::Run(std::string_view bytes, std::size_t limit, std::string& unpacked) {
  if (!ready_) return GunzipStatus::Damaged;
  std::size_t taken = 0;
  while (taken < bytes.size()) {
    const std::size_t start = unpacked.size();
    const std::size_t give = std::min<std::size_t>(bytes.size() - taken, std::numeric_limits<uInt>::max());
    unpacked.resize(start + kChunk);
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data() + taken));
    stream_.avail_in = static_cast<uInt>(give);
    stream_.next_out = reinterpret_cast<Bytef*>(unpacked.data() + start);
    stream_.avail_out = kChunk;
    const int status = inflate(&stream_, Z_NO_FLUSH);
    taken += give - stream_.avail_in;
    unpacked.resize(start + kChunk - stream_.avail_out);
    if (unpacked.size() > limit) return GunzipStatus::TooLarge;
    if (status == Z_STREAM_END) {
      if (!IsGzip(bytes.substr(taken))) return GunzipStatus::Ok;  // padding after the last member is allowed
      inflateReset(&stream_);
    } else if (status != Z_OK) {
      return GunzipStatus::Damaged;
    }
  }
  return GunzipStatus::Damaged;  // the data ended inside a member
}

}  // namespace

bool IsGzip(std::string_view bytes) { return bytes.starts_with("\x1F\x8B"); }

GunzipStatus Gunzip(std::string_view bytes, std::size_t limit, std::string& unpacked) {
  unpacked.clear();
  return Inflater().Run(bytes, limit, unpacked);
}

}  // namespace sonaro
