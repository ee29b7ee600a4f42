// Writes the program mark as an icon file of the sizes that the system asks for. The large picture is stored
// as PNG, the others as plain bitmaps, which every version reads.
//
// Usage: program-icon FILE
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <string>

#include "faceplate/FaceplateColors.h"
#include "forms/paint/Icons.h"

namespace sonaro {
namespace {

constexpr std::array<int, 6> kSizes = {16, 20, 24, 32, 48, 256};
constexpr int kPngFrom = 256;

// Icon files and bitmaps are little endian, PNG is big endian.
void AddLittle(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i));
}

void AddBig(std::string& bytes, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
}

// A channel of a premultiplied pixel as files store it.
char Plain(std::uint32_t pixel, int shift) {
  const std::uint32_t alpha = pixel >> 24;
  const std::uint32_t value = pixel >> shift & 255;
  return static_cast<char>(alpha == 0 ? 0 : std::min(255U, (value * 255 + alpha / 2) / alpha));
}

void AddPixel(std::string& bytes, std::uint32_t pixel, std::array<int, 3> channels) {
  for (const int shift : channels) bytes += Plain(pixel, shift);
  bytes += static_cast<char>(pixel >> 24);
}

// A bitmap of an icon: header of 40 bytes, rows from the bottom up in blue, green, red and alpha, then a mask
// of one bit a pixel whose rows end at four bytes.
std::string BitmapOf(const Pixels& pixels, int size) {
  std::string bytes;
  AddLittle(bytes, 40, 4);
  AddLittle(bytes, static_cast<std::uint32_t>(size), 4);
  AddLittle(bytes, static_cast<std::uint32_t>(2 * size), 4);  // picture and mask
  AddLittle(bytes, 1, 2);
  AddLittle(bytes, 32, 2);
  bytes.append(24, '\0');
  for (int y = size - 1; y >= 0; --y)
    for (int x = 0; x < size; ++x)
      AddPixel(bytes, pixels[static_cast<std::size_t>(y * size + x)], {0, 8, 16});
  bytes.append(static_cast<std::size_t>((size + 31) / 32 * 4 * size), '\0');  // alpha does the mask's work
  return bytes;
}

// Length of the content, name, content, and a checksum over name and content.
void AddChunk(std::string& png, std::string name, const std::string& content) {
  AddBig(png, static_cast<std::uint32_t>(content.size()));
  name += content;
  png += name;
  AddBig(png, static_cast<std::uint32_t>(
                  crc32(0, reinterpret_cast<const Bytef*>(name.data()), static_cast<uInt>(name.size()))));
}

// Rows from the top down in red, green, blue and alpha; each begins with the number of its filter.
std::string PngOf(const Pixels& pixels, int size) {
  std::string rows;
  for (int y = 0; y < size; ++y) {
    rows += '\0';  // no filter
    for (int x = 0; x < size; ++x) AddPixel(rows, pixels[static_cast<std::size_t>(y * size + x)], {16, 8, 0});
  }
  uLongf length = compressBound(rows.size());
  std::string packed(length, '\0');
  compress2(reinterpret_cast<Bytef*>(packed.data()), &length, reinterpret_cast<const Bytef*>(rows.data()),
            rows.size(), Z_BEST_COMPRESSION);
  packed.resize(length);
  std::string header;
  AddBig(header, static_cast<std::uint32_t>(size));
  AddBig(header, static_cast<std::uint32_t>(size));
  header += std::string("\x08\x06\0\0\0", 5);  // 8 bits a channel, with alpha
  std::string png = "\x89PNG\r\n\x1a\n";
  AddChunk(png, "IHDR", header);
  AddChunk(png, "IDAT", packed);
  AddChunk(png, "IEND", "");
  return png;
}

// A head, an entry of 16 bytes for each picture with its place in the file, then the pictures.
std::string IconFile() {
  const FaceplateColors colors = DeriveColors(BuiltInColors(BuiltInFaceplate::Graphite));
  std::string directory;
  AddLittle(directory, 0, 2);
  AddLittle(directory, 1, 2);
  AddLittle(directory, kSizes.size(), 2);
  std::string pictures;
  for (const int size : kSizes) {
    const Pixels pixels = RenderProgramMark(size, {colors.text, colors.accent}, &colors.plate);
    const std::string picture = size >= kPngFrom ? PngOf(pixels, size) : BitmapOf(pixels, size);
    AddLittle(directory, static_cast<std::uint32_t>(size & 255), 1);  // 0 stands for 256
    AddLittle(directory, static_cast<std::uint32_t>(size & 255), 1);
    AddLittle(directory, 0, 2);
    AddLittle(directory, 1, 2);
    AddLittle(directory, 32, 2);
    AddLittle(directory, static_cast<std::uint32_t>(picture.size()), 4);
    AddLittle(directory, static_cast<std::uint32_t>(6 + 16 * kSizes.size() + pictures.size()), 4);
    pictures += picture;
  }
  return directory + pictures;
}

}  // namespace
}  // namespace sonaro

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: program-icon FILE\n", stderr);
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << sonaro::IconFile();
  file.close();
  return file ? 0 : 1;
}
