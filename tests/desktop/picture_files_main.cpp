// SPDX-License-Identifier: GPL-3.0-or-later
/// Writes a picture in each format into the folder given: what one system writes, the other is to
/// write, too.
#include <QCoreApplication>
#include <iostream>

#include "Error.h"
#include "Files.h"
#include "PictureFormats.h"
#include "Pictures.h"

namespace {

using namespace tracewell;

constexpr std::pair<int, const char*> formats[] = {
    {Pictures::wmf, "wmf"}, {Pictures::bmp, "bmp"}, {Pictures::gif, "gif"},
    {Pictures::ico, "ico"}, {Pictures::cur, "cur"}, {Pictures::pcx, "pcx"},
    {Pictures::tif, "tif"}, {Pictures::png, "png"}, {Pictures::jpg, "jpg"}};

/// More colours than a palette holds.
Image rainbow() {
  Image image{301, 97, {}};
  for (int y = 0; y < image.height; ++y)
    for (int x = 0; x < image.width; ++x)
      image.pixels += {char(x * 255 / image.width), char(y * 2), char(x * y % 251)};
  return image;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const QCoreApplication application(argumentCount, arguments);
  const std::filesystem::path folder = argumentCount > 1 ? arguments[1] : ".";
  try {
    for (const auto& [format, suffix] : formats)
      writeWholeFile(folder / (std::string("picture.") + suffix), encodePicture(rainbow(), format));
    for (const auto& [format, suffix] : formats) {
      if (format == Pictures::wmf || format == Pictures::ico || format == Pictures::cur) continue;
      const Image image = loadPicture(folder / (std::string("picture.") + suffix));
      if (image.width != 301 || image.height != 97) return EXIT_FAILURE;
    }
  } catch (const Error& error) {
    std::cerr << error.description() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
