// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFormats.h"

#include <Magick++.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "Error.h"
#include "Files.h"
#include "Metafile.h"
#include "PictureGuard.h"
#include "Pictures.h"

namespace tracewell {
namespace {

constexpr int largestSideLoaded = 8192;
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

bool isLoaded(int format) {
  return format != Pictures::wmf && format != Pictures::ico && format != Pictures::cur;
}

/// What could not be loaded again is not made.
void checkLoadable(const Image& image, int format) {
  const auto width = static_cast<std::size_t>(image.width);
  const auto height = static_cast<std::size_t>(image.height);
  // A PCX has an even number of bytes in a line.
  const std::size_t pcxLines = (width + width % 2) * height * 3;
  if (std::max(image.width, image.height) > largestSideLoaded ||
      width * height > largestPictureArea ||
      (format == Pictures::pcx && pcxLines > largestPcxLines))
    throw pictureError("A picture of " + std::to_string(width) + " x " + std::to_string(height) +
                       " pixels could not be loaded again: choose another format, or make the "
                       "window smaller");
}

Magick::Image firstOnly(const std::string& name) {
  Magick::Image picture;
  picture.magick(name);
  picture.fileName(name + ":");
  picture.subImage(0);
  picture.subRange(1);
  return picture;
}

void checkSize(const std::string& name, const Magick::Blob& blob) {
  Magick::Image picture = firstOnly(name);
  try {
    picture.ping(blob);
  } catch (const Magick::WarningCoder&) {
    // The size is there nevertheless.
  }
  if (std::max(picture.columns(), picture.rows()) > std::size_t{largestSideLoaded} ||
      picture.columns() * picture.rows() > largestPictureArea)
    throw std::runtime_error(std::to_string(picture.columns()) + " x " +
                             std::to_string(picture.rows()) + " pixels are too many");
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

struct Readable {
  std::string format;
  Magick::Blob blob;
};

/// Of the file's own bytes nothing is left then.
Readable readable(const std::filesystem::path& path) {
  const GuardedPicture picture = guardedPicture(readWholeFile(path, fileLimit::picture));
  if (picture.format.empty()) throw std::runtime_error("Not a bmp, gif, pcx, tif, png or jpg");
  return {picture.format, {picture.bytes.data(), picture.bytes.size()}};
}

Image loaded(const std::filesystem::path& path) {
  const auto [format, blob] = readable(path);
  checkSize(format, blob);
  return imageOf(decoded(format, blob));
}

}  // namespace

std::string encodePicture(const Image& image, int format) {
  return orError("Cannot make a picture file", [&] {
    checkImage(image);
    if (isLoaded(format)) checkLoadable(image, format);
    prepareMagick();
    std::string bytes = encoded(image, format);
    if (isLoaded(format) && bytes.size() > fileLimit::picture)
      throw std::runtime_error(std::to_string(bytes.size()) + " bytes could not be loaded again");
    return bytes;
  });
}

Image loadPicture(const std::filesystem::path& path) {
  return orError("Cannot load picture: " + pathText(path), [&] {
    prepareMagick();
    return loaded(path);
  });
}

}  // namespace tracewell
