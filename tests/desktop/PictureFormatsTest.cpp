// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFormats.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

#include "Doubles.h"
#include "Drawn.h"
#include "PictureGuard.h"
#include "Pictures.h"
#include "QtValues.h"

namespace tracewell {
namespace {

constexpr int unread = -1;
const struct {
  int format;
  const char* suffix;
  const char* identity;  // what the file command says
  int byOthers, byUs;    // how far off a colour may be when read; by others: Qt, and wmf2svg
} formats[] = {
    {Pictures::wmf, "wmf", "Windows metafile", 0, unread},
    {Pictures::bmp, "bmp", "Windows 3.x format, 17 x 13 x 24", 0, 0},
    {Pictures::gif, "gif", "GIF image data, version 89a, 17 x 13", 0, 0},
    {Pictures::ico, "ico", "Windows icon resource - 1 icon, 17x13", 0, unread},
    {Pictures::cur, "cur", "cursor resource - 1 icon, 17x13, hotspot @0x0", 0, unread},
    {Pictures::pcx, "pcx", "PCX ver. 3.0 image data bounding box [0, 0] - [16, 12]", unread, 0},
    {Pictures::tif, "tif", "PhotometricInterpretation=RGB, orientation=upper-left", unread, 0},
    {Pictures::png, "png", "PNG image data, 17 x 13", 0, 0},
    {Pictures::jpg, "jpg", "precision 8, 17x13, components 3", 8, 8},
};

/// No two pixels alike, fewer colours than a palette holds, rows of no round number of bytes.
Image slopes() {
  Image image{17, 13, {}};
  for (int at = 0; at < 17 * 13; ++at)
    image.pixels += {char(at % 17 * 15), char(at / 17 * 20), char(255 - at % 17 * 15)};
  return image;
}

std::string pixelsOf(const QImage& image) {
  const QImage rows = image.convertToFormat(QImage::Format_RGB888);
  std::string pixels;
  for (int y = 0; y < rows.height(); ++y)
    pixels.append(reinterpret_cast<const char*>(rows.scanLine(y)), std::size_t(rows.width()) * 3);
  return pixels;
}

/// How far the worst colour is from what slopes() has there.
int fault(const std::string& pixels) {
  const std::string right = slopes().pixels;
  int worst = pixels.size() == right.size() ? 0 : 256;
  for (std::size_t at = 0; at < std::min(pixels.size(), right.size()); ++at)
    worst = std::max(worst, std::abs(uchar(pixels[at]) - uchar(right[at])));
  return worst;
}

void expectRefused(const QString& path, const std::string& bytes, const std::string& reason) {
  writeWholeFile(toPath(path), bytes);
  const std::string error = errorOf([&] { loadPicture(toPath(path)); });
  EXPECT_TRUE(error.starts_with("5 ")) << error;
  EXPECT_NE(error.find(reason), std::string::npos) << error;
  EXPECT_NE(error.find(fromQt(path)), std::string::npos);
}

std::string run(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(QLatin1String(program), arguments);
  EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program;
  return process.readAllStandardOutput().toStdString();
}

TEST(PictureFormatsTest, WrittenForOthersAndForItselfAndRefusedWhenCut) {
  const QTemporaryDir folder;
  for (const auto& [format, suffix, identity, byOthers, byUs] : formats) {
    SCOPED_TRACE(suffix);
    const std::string bytes = encodePicture(slopes(), format);
    const QString path = folder.filePath(QStringLiteral("a.") + QLatin1String(suffix));
    writeWholeFile(toPath(path), bytes);
    EXPECT_NE(run("file", {path}).find(identity), std::string::npos);
    const bool isMetafile = format == Pictures::wmf;
    if (isMetafile) run("wmf2svg", {QStringLiteral("-o"), path + QStringLiteral(".svg"), path});
    EXPECT_TRUE(!isMetafile || bytes.substr(20, 2) == "\x6D\x57") << "checksum";
    const QImage read(isMetafile ? folder.filePath(QStringLiteral("a-1.png")) : path);
    EXPECT_TRUE(byOthers == unread || fault(pixelsOf(read)) <= byOthers);
    EXPECT_TRUE(byUs == unread || fault(loadPicture(toPath(path)).pixels) <= byUs);
    const std::size_t size = byUs == unread ? bytes.size() : bytes.size() * 3 / 4;
    expectRefused(path, bytes.substr(0, size), byUs == unread ? "Not a bmp" : "Cannot load");
  }
}

TEST(PictureFormatsTest, BadFilesCodesAndImagesAreRefused) {
  const QTemporaryDir folder;
  const std::string wide = encodePicture(slopes(), Pictures::bmp).replace(18, 2, "\x28\x23");
  const std::pair<std::string, const char*> files[] = {
      {"", "Not a bmp"}, {"text", "Not a bmp"}, {"BM, no more", "Cannot"}, {wide, "9000 x 13"}};
  for (const auto& [bytes, reason] : files)
    expectRefused(folder.filePath(QStringLiteral("a.png")), bytes, reason);
  for (const int code : {2, 12}) EXPECT_THROW(encodePicture(slopes(), code), Error) << code;
  const std::string row(120000, 'x');
  for (const Image& image : {Image{}, {4, 4, "short"}, {-1, -1, "abc"}, {40000, 1, row}})
    EXPECT_THROW(encodePicture(image, Pictures::wmf), Error) << image.width;
}

/// Each scan goes over all pixels, and a file can hold thousands of them.
TEST(PictureFormatsTest, JpegIsNotGoneOverWithoutEnd) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "jpeg");
  writer.setProgressiveScanWrite(true);
  QImage largest(4000, 2500, QImage::Format_RGB888);
  largest.fill(Qt::darkBlue);
  ASSERT_TRUE(writer.write(largest));
  const QByteArray image = bytes.chopped(2);
  const QByteArray lastScan = image.mid(image.lastIndexOf("\xFF\xDA"));
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a.jpg"));
  const auto expectScansRefused = [&](qsizetype count, const char* reason) {
    const QByteArray more = lastScan.repeated(count - image.count("\xFF\xDA"));
    const std::string file = (image + more + bytes.right(2)).toStdString();
    expectCheap([&] { expectRefused(path, file, reason); });
  };
  expectScansRefused(64, "Inconsistent progression");
  expectScansRefused(65, "Too many scans");
  expectScansRefused(951, "Too many scans");
  // No scans, but the marks of some in a comment, and behind the end.
  const QByteArray marks = QByteArray("\xFF\xDA").repeated(127);
  const QByteArray comment = QByteArray("\xFF\xFE\x01\0", 4) + marks;
  writeWholeFile(toPath(path), (image + comment + bytes.right(2) + marks).toStdString());
  EXPECT_EQ(loadPicture(toPath(path)).width, 4000);
}

QByteArray bigEndian(quint32 number) {
  QByteArray bytes;
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

std::string pngChunk(const QByteArray& kindAndData) {
  quint32 sum = ~0u;
  for (const char c : kindAndData) {
    sum ^= static_cast<uchar>(c);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? sum >> 1 ^ 0xEDB88320u : sum >> 1;
  }
  const auto size = static_cast<quint32>(kindAndData.size() - 4);
  return (bigEndian(size) + kindAndData + bigEndian(~sum)).toStdString();
}

std::string repeated(const std::string& part, std::size_t times) {
  std::string parts;
  for (std::size_t i = 0; i < times; ++i) parts += part;
  return parts;
}

/// The picture that the program writes, with something at a place where the format allows it.
TEST(PictureFormatsTest, WhatMakesNoPictureCostsNothing) {
  const std::string text =
      pngChunk("zTXtk" + QByteArray(2, '\0') + qCompress(QByteArray(50'000'000, 'a'), 9).mid(4));
  constexpr std::size_t much = 32'000'000 / stepsShare;
  const auto filled = [](const std::string& part) { return repeated(part, much / part.size()); };
  const std::tuple<int, std::size_t, std::string, const char*> cases[] = {
      {Pictures::png, 33, repeated(text, 15), ""},
      {Pictures::png, 33, filled(pngChunk("IDAT")), ""},
      {Pictures::png, 33, filled(pngChunk("IDATx")), "Too many parts"},
      {Pictures::gif, 13 + 3 * 256, filled({'!', '\xFE', '\0'}), ""},
      {Pictures::gif, 13 + 3 * 256, filled("!\xFE\1x" + std::string(1, '\0')), ""},
      {Pictures::jpg, 2, filled({'\xFF', '\xFE', '\0', '\2'}), ""},
      {Pictures::jpg, 2, filled({'\xFF', '\xE1', '\0', '\2'}), ""},
      {Pictures::jpg, 2, filled({'\xFF', '\xDD', '\0', '\4', '\0', '\0'}), "Too many parts"},
      {Pictures::jpg, 2, {'\xFF', '\xC9', '\0', '\2'}, "Arithmetic coding"}};
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a"));
  for (const auto& [format, place, more, refusal] : cases) {
    SCOPED_TRACE(testing::Message() << format << " with " << more.size());
    const std::string file = encodePicture(slopes(), format).insert(place, more);
    expectCheap([&, refused = refusal] {
      if (*refused != '\0') return expectRefused(path, file, refused);
      writeWholeFile(toPath(path), file);
      EXPECT_LE(fault(loadPicture(toPath(path)).pixels), 8);
    });
  }
}

/// A folder of a TIFF with an entry more: 8BIM resources that are read one by one, or a tile.
TEST(PictureFormatsTest, TagsOfATiffAndLinesOfAPcxHaveMeasure) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a"));
  const auto little = [](std::size_t number, int size) {
    std::string bytes;
    for (; size > 0; --size, number >>= 8) bytes += static_cast<char>(number & 0xFF);
    return bytes;
  };
  const auto withEntries = [&](const std::string& entries, const std::string& data) {
    std::string file = encodePicture(slopes(), Pictures::tif);
    const auto byteAt = [&](std::size_t at) { return std::size_t{uchar(file[at])}; };
    const std::size_t old = byteAt(4) + byteAt(5) * 256;
    const std::size_t count = byteAt(old);
    file.replace(4, 4, little(file.size() + data.size(), 4));
    return file + data + little(count + entries.size() / 12, 2) + file.substr(old + 2, count * 12) +
           entries + little(0, 4);
  };
  const std::string data = repeated("8BIM\4\4" + std::string(6, '\0'), 2'600'000);
  const std::string resources = little(34377, 2) + little(1, 2) + little(data.size(), 4) +
                                little(encodePicture(slopes(), Pictures::tif).size(), 4);
  writeWholeFile(toPath(path), withEntries(resources, data));
  expectCheap([&] { EXPECT_EQ(fault(loadPicture(toPath(path)).pixels), 0); });
  std::string tile;
  for (const std::size_t tag : {322U, 323U})
    tile += little(tag, 2) + little(4, 2) + little(1, 4) + little(16000, 4);
  expectRefused(path, withEntries(tile, ""), "Tiles too large");

  std::string pcx = encodePicture(slopes(), Pictures::pcx).substr(0, 128);
  const auto sized = [&](std::size_t width, std::size_t lines, std::size_t planes) {
    pcx.replace(4, 8, little(0, 4) + little(width - 1, 2) + little(lines - 1, 2));
    pcx.replace(65, 3, little(planes, 1) + little(width, 2));
    return pcx + std::string(std::min<std::size_t>(width * lines * planes, 24'000'000), '\x40');
  };
  writeWholeFile(toPath(path), sized(4000, 2000, 3));
  expectCheap([&] { EXPECT_EQ(loadPicture(toPath(path)).height, 2000); });
  expectRefused(path, sized(4000, 2001, 3), "Lines too long");
  expectRefused(path, sized(65534, 2000, 4), "Lines too long");
}

/// A TIFF of many tags with the value 1.
std::string tiffOf(int first, int last, bool isBigEndian) {
  const auto number = [&](int of, int size) {
    const std::string bytes = bigEndian(static_cast<quint32>(of)).right(size).toStdString();
    return isBigEndian ? bytes : std::string(bytes.rbegin(), bytes.rend());
  };
  std::string file = (isBigEndian ? "MM" : "II") + number(42, 2) + number(8, 4);
  file += number(last - first + 1, 2);
  for (int tag = first; tag <= last; ++tag)
    file += number(tag, 2) + number(3, 2) + number(1, 4) + number(1, 2) + number(0, 2);
  return file + number(99, 4);
}

TEST(PictureFormatsTest, OfAFileTheLibraryGetsWhatMakesThePicture) {
  QWidget none;
  expectDrawn(none, "pictures", [](const QString& asked) {
    const bool isTiff = asked.endsWith(QLatin1String("tags"));
    const std::string file = isTiff ? tiffOf(250, 540, asked.startsWith('M'))
                                    : QByteArray::fromHex(asked.toLatin1()).toStdString();
    try {
      const GuardedPicture picture = guardedPicture(file);
      const std::string& kept = picture.bytes;
      QStringList said{picture.format.empty() ? QStringLiteral("unknown") : toQt(picture.format)};
      if (isTiff) {
        const auto word = [&](std::size_t at) {
          const int one = uchar(kept[at]), two = uchar(kept[at + 1]);
          return asked.startsWith('M') ? one * 256 + two : two * 256 + one;
        };
        for (int i = 0; i < word(8); ++i)
          said << QString::number(word(10 + 12 * static_cast<std::size_t>(i)));
        said << QString::number(word(10 + 12 * static_cast<std::size_t>(word(8))));
      } else {
        said << (kept == file ? "all" : QString(QByteArray::fromStdString(kept).toHex().toUpper()));
      }
      return said.join(' ');
    } catch (const std::runtime_error& refusal) {
      return QString(refusal.what());
    }
  });
}

/// What could not be read again.
TEST(PictureFormatsTest, TooLargeIsRefusedAlreadyWhenWritten) {
  const auto image = [](int width, int height) {
    return Image{width, height, std::string(std::size_t(width) * std::size_t(height) * 3, 'x')};
  };
  EXPECT_THROW(encodePicture(image(8193, 1), Pictures::png), Error);
  EXPECT_THROW(encodePicture(image(4000, 2501), Pictures::bmp), Error);
  EXPECT_THROW(encodePicture(image(4000, 2001), Pictures::pcx), Error);
  EXPECT_NO_THROW(encodePicture(image(8193, 1), Pictures::wmf));
}

TEST(PictureFormatsTest, IconsAreScaledDownInProportion) {
  const Image large{640, 320, std::string(std::size_t{640} * 320 * 3, '\x55')};
  for (const int format : {Pictures::ico, Pictures::cur})
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(encodePicture(large, format))).size(),
              QSize(256, 128));
}

}  // namespace
}  // namespace tracewell
