// SPDX-License-Identifier: GPL-3.0-or-later
#include <Magick++.h>

#include <QObject>
#include <algorithm>
#include <stdexcept>

#include "PictureCoder.h"
#include "Pictures.h"

namespace tracewell {
namespace {

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
      throw std::runtime_error("No picture format: " + std::to_string(format));
  }
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
  if (std::max(picture.columns(), picture.rows()) > std::size_t{PictureCoder::largestSideLoaded} ||
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

}  // namespace

class PictureModule : public QObject, public PictureCoder {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "tracewell-pictures")
  Q_INTERFACES(tracewell::PictureCoder)

 public:
  std::string encode(const Image& image, int format) override {
    prepareMagick();
    return encoded(image, format);
  }

  Image decode(GuardedPicture picture) override {
    prepareMagick();
    const Magick::Blob blob(picture.bytes.data(), picture.bytes.size());
    picture.bytes = {};
    checkSize(picture.format, blob);
    return imageOf(decoded(picture.format, blob));
  }
};

}  // namespace tracewell

#include "PictureModule.moc"
