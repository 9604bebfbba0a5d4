// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFormats.h"

#include <Magick++.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "Error.h"
#include "Files.h"
#include "Pictures.h"

namespace tracewell {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t largestSideLoaded = 8192;
/// Pixels; each takes some fifteen bytes on its way.
constexpr std::size_t largestAreaLoaded = 10'000'000;
/// Of a progressive JPEG; each goes over all pixels, and drawing programs write some ten.
constexpr int mostScansLoaded = 64;
/// Metafiles count in signed 16-bit numbers; no other format here is narrower.
constexpr int largestSideEncoded = std::numeric_limits<std::int16_t>::max();

Error pictureError(const std::string& description) {
  return {invalidProcedureCall, "Tracewell", description};
}

/// The library's reason without its own name, the name of its file and the place in its sources.
std::string reasonOf(const std::exception& exception) {
  const std::string text = exception.what();
  const std::size_t end = std::min(text.find(" `"), text.find(" @ "));
  const std::size_t colon = text.find(": ");
  const std::size_t start = colon < end ? colon + 2 : 0;
  return text.substr(start, end == std::string::npos ? end : end - start);
}

/// The result of `work`, with every failure turned into an Error that begins with `failure`.
template <typename Work>
auto orError(const std::string& failure, Work work) {
  try {
    return work();
  } catch (const Error&) {
    throw;
  } catch (const std::exception& exception) {
    throw pictureError(failure + " (" + reasonOf(exception) + ")");
  }
}

void prepareMagick() {
  [[maybe_unused]] static const bool once = [] {
    Magick::InitializeMagick(nullptr);
    // A screen's worth of pixels costs less than waking threads.
    Magick::ResourceLimits::thread(1);
    return true;
  }();
}

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

std::string written(Magick::Image picture, const std::string& magickName) {
  Magick::Blob blob;
  picture.write(&blob, magickName);
  return {static_cast<const char*>(blob.data()), blob.length()};
}

std::string icon(Magick::Image picture) {
  picture.zoom(Magick::Geometry("256x256>"));
  // Not every reader of icons knows the compressed ones.
  picture.compressType(Magick::NoCompression);
  return written(picture, "ICO");
}

/// A cursor is an icon with another resource type, and with the hot spot where icons keep the
/// number of planes and bits.
std::string cursor(const Magick::Image& picture) {
  std::string bytes = icon(picture);
  bytes.at(2) = 2;
  return bytes.replace(10, 4, 4, '\0');
}

Magick::Image magickImage(const Image& image) {
  Magick::Image picture(static_cast<std::size_t>(image.width),
                        static_cast<std::size_t>(image.height), "RGB", Magick::CharPixel,
                        image.pixels.data());
  // A limited palette may not speckle the even background of a graph.
  picture.quantizeDither(false);
  return picture;
}

std::string encoded(const Image& image, int format) {
  if (format == Pictures::wmf) return metafile(image);
  Magick::Image picture = magickImage(image);
  switch (format) {
    case Pictures::bmp:
      return written(picture, "BMP3");
    case Pictures::gif:
      return written(picture, "GIF");
    case Pictures::ico:
      return icon(picture);
    case Pictures::cur:
      return cursor(picture);
    case Pictures::pcx:
      return written(picture, "PCX");
    case Pictures::tif:
      return written(picture, "TIFF");
    case Pictures::png:
      return written(picture, "PNG");
    case Pictures::jpg:
      // From 90 on colours keep their full resolution, which thin traces need.
      picture.quality(95);
      return written(picture, "JPEG");
    default:
      throw pictureError("No picture format: " + std::to_string(format));
  }
}

void checkImage(const Image& image) {
  if (image.isEmpty()) throw pictureError("Cannot make a picture file of an empty image");
  const auto [shorter, longer] = std::minmax(image.width, image.height);
  const bool isSized = shorter > 0 && longer <= largestSideEncoded;
  if (!isSized || image.pixels.size() != static_cast<std::size_t>(image.width) *
                                             static_cast<std::size_t>(image.height) * 3)
    throw pictureError("Cannot make a picture file of " + std::to_string(image.width) + " x " +
                       std::to_string(image.height) + " pixels");
}

bool isPcx(std::string_view bytes) {
  constexpr std::string_view versions = "\0\2\3\4\5"sv;
  return bytes.size() > 3 && bytes[0] == '\x0A' &&
         versions.find(bytes[1]) != std::string_view::npos && bytes[2] == 1;
}

/// The library's name for what the bytes are, empty for all that is not to be loaded. Left to
/// guess, the library would also run files that are programs to it.
std::string signatureName(std::string_view bytes) {
  struct Signature {
    std::string_view start;
    const char* name;
  };
  static constexpr std::array signatures{
      Signature{"BM"sv, "BMP"},
      Signature{"GIF87a"sv, "GIF"},
      Signature{"GIF89a"sv, "GIF"},
      Signature{"II*\0"sv, "TIFF"},
      Signature{"MM\0*"sv, "TIFF"},
      Signature{"\x89PNG\r\n\x1A\n"sv, "PNG"},
      Signature{"\xFF\xD8\xFF"sv, "JPEG"},
  };
  for (const Signature& signature : signatures)
    if (bytes.starts_with(signature.start)) return signature.name;
  return isPcx(bytes) ? "PCX" : "";
}

/// How often a JPEG goes over its pixels: its markers of the kind "start of scan". Segments are
/// passed by the length that they state; within a scan's data no such marker can stand.
int scansOf(std::string_view jpeg) {
  constexpr auto isAlone = [](unsigned char code) {
    return code <= 0x01 || (code >= 0xD0 && code <= 0xD8) || code == 0xFF;
  };
  constexpr unsigned char endOfImage = 0xD9;
  constexpr unsigned char startOfScan = 0xDA;
  const auto byteAt = [jpeg](std::size_t at) {
    return at < jpeg.size() ? static_cast<unsigned char>(jpeg[at]) : endOfImage;
  };
  int scans = 0;
  for (std::size_t at = jpeg.find('\xFF'); at != jpeg.npos; at = jpeg.find('\xFF', at)) {
    const unsigned char code = byteAt(++at);
    if (code == endOfImage) break;
    if (isAlone(code)) continue;
    if (code == startOfScan) ++scans;
    at += 1 + std::size_t{byteAt(at + 1)} * 256 + byteAt(at + 2);
  }
  return scans;
}

Magick::Image firstOnly(const std::string& name) {
  Magick::Image picture;
  picture.magick(name);
  picture.fileName(name + ":");
  picture.subImage(0);
  picture.subRange(1);
  return picture;
}

void checkSize(const std::string& name, const Magick::Blob& blob, const std::string& path) {
  Magick::Image picture = firstOnly(name);
  try {
    picture.ping(blob);
  } catch (const Magick::WarningCoder&) {
    // The size is there nevertheless.
  }
  if (std::max(picture.columns(), picture.rows()) > largestSideLoaded ||
      picture.columns() * picture.rows() > largestAreaLoaded)
    throw pictureError("Picture too large: " + path + " (" + std::to_string(picture.columns()) +
                       " x " + std::to_string(picture.rows()) + " pixels)");
}

Magick::Image decoded(const std::string& name, const Magick::Blob& blob) {
  Magick::Image picture = firstOnly(name);
  try {
    picture.read(blob);
  } catch (const Magick::WarningCoder&) {
    // Unknown tags and the like: the picture is whole.
  }
  picture.colorSpace(Magick::sRGBColorspace);
  picture.backgroundColor(Magick::Color("white"));
  picture.alphaChannel(Magick::RemoveAlphaChannel);
  return picture;
}

Image imageOf(Magick::Image picture) {
  const std::size_t width = picture.columns();
  const std::size_t height = picture.rows();
  Image image{static_cast<int>(width), static_cast<int>(height),
              std::string(width * height * 3, '\0')};
  picture.write(0, 0, width, height, "RGB", Magick::CharPixel, image.pixels.data());
  return image;
}

Image loaded(const std::filesystem::path& path) {
  const std::string bytes = readWholeFile(path, fileLimit::picture);
  const std::string name = signatureName(bytes);
  if (name.empty()) throw pictureError("Not a bmp, gif, pcx, tif, png or jpg: " + pathText(path));
  if (name == "JPEG" && scansOf(bytes) > mostScansLoaded)
    throw pictureError("Too many scans: " + pathText(path));
  const Magick::Blob blob(bytes.data(), bytes.size());
  checkSize(name, blob, pathText(path));
  return imageOf(decoded(name, blob));
}

}  // namespace

std::string encodePicture(const Image& image, int format) {
  return orError("Cannot make a picture file", [&] {
    checkImage(image);
    prepareMagick();
    return encoded(image, format);
  });
}

Image loadPicture(const std::filesystem::path& path) {
  return orError("Cannot load picture: " + pathText(path), [&] {
    prepareMagick();
    return loaded(path);
  });
}

}  // namespace tracewell
