// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureGuard.h"

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tracewell {
namespace {

using namespace std::string_view_literals;

/// Of a PNG or JPEG; programs write some hundreds.
constexpr int mostParts = 65536;
/// Of a progressive JPEG; each goes over all pixels, and drawing programs write some ten.
constexpr int mostScans = 64;

std::runtime_error refusal(const char* reason) {
  return std::runtime_error(reason);
}

/// Numbers in a file; what lies behind its end is 0.
struct Numbers {
  std::string_view bytes;
  bool isBigEndian = false;

  std::size_t byte(std::size_t at) const {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
  }
  std::size_t word(std::size_t at) const {
    return isBigEndian ? byte(at) << 8 | byte(at + 1) : byte(at + 1) << 8 | byte(at);
  }
  std::size_t doubleWord(std::size_t at) const {
    return isBigEndian ? word(at) << 16 | word(at + 2) : word(at + 2) << 16 | word(at);
  }
};

bool isOneOf(std::string_view what, std::initializer_list<std::string_view> kinds) {
  return std::ranges::find(kinds, what) != kinds.end();
}

/// A part is its length, its kind, its data and a checksum. Texts and profiles are compressed, and
/// inflated by the library to whatever size.
std::string pngParts(std::string_view png) {
  constexpr std::size_t signatureSize = 8;
  constexpr std::size_t frameSize = 12;
  const Numbers number{png, true};
  std::string kept(png.substr(0, signatureSize));
  std::set<std::string_view> seen;
  int dataParts = 0;
  std::size_t next = 0;
  for (std::size_t at = signatureSize; at + frameSize <= png.size(); at = next) {
    const std::size_t size = number.doubleWord(at);
    const std::string_view kind = png.substr(at + 4, 4);
    next = at + frameSize + size;
    const bool isData = kind == "IDAT" && size > 0;
    if (isData && ++dataParts > mostParts) throw refusal("Too many parts");
    if (isData || (isOneOf(kind, {"IHDR", "PLTE", "tRNS", "gAMA", "cHRM", "sRGB", "IEND"}) &&
                   seen.insert(kind).second))
      kept += png.substr(at, frameSize + size);
    if (kind == "IEND") break;
  }
  return kept;
}

/// The blocks from `at` on, each behind its length, up to the empty one.
struct GifBlocks {
  std::string data;
  std::size_t end = 0;
  bool isWhole = false;
};

GifBlocks gifBlocks(const Numbers& number, std::size_t at) {
  GifBlocks blocks;
  while (number.byte(at) > 0) {
    blocks.data += number.bytes.substr(at + 1, number.byte(at));
    at += 1 + number.byte(at);
  }
  blocks.isWhole = at < number.bytes.size();
  blocks.end = at + 1;
  return blocks;
}

/// In blocks of the largest size, however small they were.
std::string inBlocks(const GifBlocks& blocks) {
  constexpr std::size_t most = 255;
  std::string text;
  for (std::size_t at = 0; at < blocks.data.size(); at += most) {
    const std::string_view block = std::string_view(blocks.data).substr(at, most);
    text += static_cast<char>(block.size());
    text += block;
  }
  // Behind it the end of the file.
  return blocks.isWhole ? text + std::string("\0;", 2) : text;
}

std::size_t gifPaletteSize(std::size_t flags) {
  return (flags & 0x80) != 0 ? std::size_t{6} << (flags & 7) : 0;
}

/// The first frame, and what is said of its transparency.
std::string gifParts(std::string_view gif) {
  constexpr std::size_t headerSize = 13;
  constexpr std::size_t descriptorSize = 10;
  constexpr std::size_t frame = ',';
  constexpr std::size_t extension = '!';
  constexpr std::size_t control = 0xF9;
  const Numbers number{gif};
  std::size_t at = headerSize + gifPaletteSize(number.byte(10));
  const std::string_view header = gif.substr(0, at);
  std::string_view frameControl;
  for (; number.byte(at) == extension; at = gifBlocks(number, at + 2).end)
    if (number.byte(at + 1) == control && number.byte(at + 2) == 4)
      frameControl = gif.substr(at, 8);
  std::string kept = std::string(header) + std::string(frameControl);
  if (number.byte(at) != frame) return kept;
  const std::size_t size = descriptorSize + gifPaletteSize(number.byte(at + 9)) + 1;
  kept += gif.substr(at, size);
  return at + size < gif.size() ? kept + inBlocks(gifBlocks(number, at + size)) : kept;
}

/// Without comments and what programs say of themselves. Segments are passed by the length that
/// they state; within a scan's data no such marker can stand.
std::string jpegParts(std::string_view jpeg) {
  constexpr auto isAlone = [](std::size_t code) {
    return code <= 0x01 || (code >= 0xD0 && code <= 0xD8) || code == 0xFF;
  };
  constexpr auto isArithmetic = [](std::size_t code) {
    return code >= 0xC9 && code <= 0xCF && code != 0xCC;
  };
  constexpr auto isNote = [](std::size_t code) {
    return code == 0xFE || (code >= 0xE0 && code <= 0xEF);
  };
  constexpr std::size_t endOfImage = 0xD9;
  constexpr std::size_t startOfScan = 0xDA;
  const Numbers number{jpeg, true};
  std::set<std::size_t> seen;
  std::string kept;
  std::size_t keptTo = 0;
  int parts = 0;
  int scans = 0;
  for (std::size_t at = jpeg.find('\xFF'); at != jpeg.npos; at = jpeg.find('\xFF', at)) {
    const std::size_t start = at;
    const std::size_t code = number.byte(++at);
    if (code == endOfImage) jpeg = jpeg.substr(0, at + 1);
    if (code == endOfImage) break;
    if (isAlone(code)) continue;
    at += 1 + number.word(at + 1);
    if (isArithmetic(code)) throw refusal("Arithmetic coding");
    if (code == startOfScan && ++scans > mostScans) throw refusal("Too many scans");
    // The first of these two says how colours are coded.
    const bool saysColours = (code == 0xE0 || code == 0xEE) && seen.insert(code).second;
    if (isNote(code) && !saysColours) {
      kept += jpeg.substr(keptTo, start - keptTo);
      keptTo = std::min(at, jpeg.size());
    } else if (++parts > mostParts) {
      throw refusal("Too many parts");
    }
  }
  return kept.append(jpeg.substr(keptTo));
}

/// The library unpacks lines of the length that the file states, however many pixels they have, and
/// takes more memory for them than any other format.
std::string pcxParts(std::string bytes) {
  const Numbers number{bytes};
  const std::size_t lines = number.word(10) - number.word(6) + 1;
  const std::size_t lineSize = number.byte(65) * number.word(66);
  if (number.word(10) < number.word(6) || lines * lineSize > largestPcxLines)
    throw refusal("Lines too long");
  return bytes;
}

/// The entries of the first folder that say where the pixels are and what they mean: size, bits,
/// compression, strips, planes, predictor, palette, tiles, and how colours are coded. The folder
/// stays in its place.
std::string tiffParts(std::string bytes) {
  static const std::set<std::size_t> needed{256, 257, 258, 259, 262, 266, 273, 274, 277, 278,
                                            279, 284, 292, 293, 317, 320, 322, 323, 324, 325,
                                            332, 338, 339, 347, 529, 530, 531, 532};
  constexpr std::size_t tileWidth = 322;
  constexpr std::size_t entrySize = 12;
  const bool isBigEndian = bytes.starts_with("MM");
  const auto number = [&] { return Numbers{bytes, isBigEndian}; };
  const std::size_t folder = number().doubleWord(4);
  const std::size_t count = number().word(folder);
  if (folder + 2 + count * entrySize + 4 > bytes.size()) return bytes;
  const auto valueOf = [&](std::size_t entry) {
    constexpr std::size_t shortNumber = 3;
    return number().word(entry + 2) == shortNumber ? number().word(entry + 8)
                                                   : number().doubleWord(entry + 8);
  };
  std::set<std::size_t> seen;
  std::size_t kept = folder + 2;
  std::size_t tileArea = 1;
  for (std::size_t entry = kept, i = 0; i < count; ++i, entry += entrySize) {
    const std::size_t tag = number().word(entry);
    if (!needed.contains(tag) || !seen.insert(tag).second) continue;
    if (tag == tileWidth || tag == tileWidth + 1)
      tileArea *= std::min<std::size_t>(valueOf(entry), UINT32_MAX);
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(entry), entrySize,
                bytes.begin() + static_cast<std::ptrdiff_t>(kept));
    kept += entrySize;
  }
  if (tileArea > largestPictureArea) throw refusal("Tiles too large");
  // No folder follows.
  bytes.replace(kept, 4, 4, '\0');
  bytes[folder + (isBigEndian ? 0 : 1)] = 0;
  bytes[folder + (isBigEndian ? 1 : 0)] = static_cast<char>(seen.size());
  return bytes;
}

bool isPcx(std::string_view bytes) {
  constexpr std::string_view versions = "\0\2\3\4\5"sv;
  return bytes.size() > 3 && bytes[0] == '\x0A' &&
         versions.find(bytes[1]) != std::string_view::npos && bytes[2] == 1;
}

/// The format by the first bytes. The library's own guess would also run files that it takes for
/// programs.
std::string formatOf(std::string_view bytes) {
  static constexpr std::array<std::pair<std::string_view, const char*>, 7> signatures{
      {{"BM"sv, "BMP"},
       {"GIF87a"sv, "GIF"},
       {"GIF89a"sv, "GIF"},
       {"II*\0"sv, "TIFF"},
       {"MM\0*"sv, "TIFF"},
       {"\x89PNG\r\n\x1A\n"sv, "PNG"},
       {"\xFF\xD8\xFF"sv, "JPEG"}}};
  for (const auto& [start, format] : signatures)
    if (bytes.starts_with(start)) return format;
  return isPcx(bytes) ? "PCX" : "";
}

}  // namespace

GuardedPicture guardedPicture(std::string bytes) {
  const std::string format = formatOf(bytes);
  if (format == "PNG") return {format, pngParts(bytes)};
  if (format == "GIF") return {format, gifParts(bytes)};
  if (format == "JPEG") return {format, jpegParts(bytes)};
  if (format == "PCX") return {format, pcxParts(std::move(bytes))};
  if (format == "TIFF") return {format, tiffParts(std::move(bytes))};
  return {format, std::move(bytes)};
}

}  // namespace tracewell
