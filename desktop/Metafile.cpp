// SPDX-License-Identifier: GPL-3.0-or-later
#include "Metafile.h"

#include <vector>

namespace tracewell {
namespace {

std::string words(const std::vector<int>& values) {
  std::string bytes;
  for (const int value : values) {
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>(value >> 8 & 0xFF);
  }
  return bytes;
}

std::string doubleWord(std::size_t value) {
  return words({static_cast<int>(value & 0xFFFF), static_cast<int>(value >> 16 & 0xFFFF)});
}

std::string placeableHeader(const Image& image) {
  constexpr int pixelsPerInch = 96;
  const std::vector<int> fields{0xCDD7,       0x9AC6,        0, 0, 0, image.width,
                                image.height, pixelsPerInch, 0, 0};
  int checksum = 0;
  for (const int field : fields) checksum ^= field;
  return words(fields) + words({checksum});
}

std::string metafileRecord(int function, const std::string& parameters) {
  return doubleWord(3 + parameters.size() / 2) + words({function}) + parameters;
}

/// Rows from the bottom, blue first, each filled up to four bytes.
std::string bitmapRows(const Image& image) {
  const std::size_t width = static_cast<std::size_t>(image.width);
  std::string rows;
  for (std::size_t row = static_cast<std::size_t>(image.height); row-- > 0;) {
    for (std::size_t pixel = row * width; pixel < (row + 1) * width; ++pixel)
      for (const std::size_t colour : {2u, 1u, 0u}) rows += image.pixels[pixel * 3 + colour];
    rows.append(width % 4, '\0');
  }
  return rows;
}

std::string stretchBitmapRecord(const Image& image) {
  constexpr std::size_t copySource = 0x00CC0020;
  const std::string rows = bitmapRows(image);
  const std::string bitmapHeader =
      doubleWord(40) + doubleWord(static_cast<std::size_t>(image.width)) +
      doubleWord(static_cast<std::size_t>(image.height)) + words({1, 24}) + doubleWord(0) +
      doubleWord(rows.size()) + std::string(16, '\0');
  const std::string rectangle = words({image.height, image.width, 0, 0});
  return metafileRecord(
      0x0F43, doubleWord(copySource) + words({0}) + rectangle + rectangle + bitmapHeader + rows);
}

}  // namespace

std::string metafile(const Image& image) {
  constexpr std::size_t headerSize = 18;
  constexpr int anisotropic = 8;
  const std::string bitmap = stretchBitmapRecord(image);
  const std::string records =
      metafileRecord(0x0103, words({anisotropic})) + metafileRecord(0x020B, words({0, 0})) +
      metafileRecord(0x020C, words({image.height, image.width})) + bitmap + metafileRecord(0, "");
  const std::string header = words({1, headerSize / 2, 0x0300}) +
                             doubleWord((headerSize + records.size()) / 2) + words({0}) +
                             doubleWord(bitmap.size() / 2) + words({0});
  return placeableHeader(image) + header + records;
}

}  // namespace tracewell
