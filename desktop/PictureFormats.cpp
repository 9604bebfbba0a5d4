// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFormats.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

#include "Error.h"
#include "Files.h"
#include "Metafile.h"
#include "Modules.h"
#include "PictureCoder.h"
#include "PictureGuard.h"
#include "Pictures.h"

namespace tracewell {
namespace {

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

/// Refuses a picture that could not be loaded again.
void checkLoadable(const Image& image, int format) {
  const auto width = static_cast<std::size_t>(image.width);
  const auto height = static_cast<std::size_t>(image.height);
  // A PCX has an even number of bytes in a line.
  const std::size_t pcxLines = (width + width % 2) * height * 3;
  if (std::max(image.width, image.height) > PictureCoder::largestSideLoaded ||
      width * height > largestPictureArea ||
      (format == Pictures::pcx && pcxLines > largestPcxLines))
    throw pictureError("A picture of " + std::to_string(width) + " x " + std::to_string(height) +
                       " pixels could not be loaded again: choose another format, or make the "
                       "window smaller");
}

/// Loading it would make the start longer, and most never save a picture.
PictureCoder& coder() {
  return moduleOf<PictureCoder>(QStringLiteral("tracewell-pictures"), invalidProcedureCall);
}

/// Lets go of the file's own bytes before the picture is decoded.
GuardedPicture readable(const std::filesystem::path& path) {
  GuardedPicture picture = guardedPicture(readWholeFile(path, fileLimit::picture));
  if (picture.format.empty()) throw std::runtime_error("Not a bmp, gif, pcx, tif, png or jpg");
  return picture;
}

}  // namespace

std::string encodePicture(const Image& image, int format) {
  return orError("Cannot make a picture file", [&] {
    checkImage(image);
    if (isLoaded(format)) checkLoadable(image, format);
    std::string bytes = format == Pictures::wmf ? metafile(image) : coder().encode(image, format);
    if (isLoaded(format) && bytes.size() > fileLimit::picture)
      throw std::runtime_error(std::to_string(bytes.size()) + " bytes could not be loaded again");
    return bytes;
  });
}

Image loadPicture(const std::filesystem::path& path) {
  return orError("Cannot load picture: " + pathText(path), [&] {
    GuardedPicture picture = readable(path);
    return coder().decode(std::move(picture));
  });
}

}  // namespace tracewell
