// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFormats.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QProcess>
#include <QTemporaryDir>

#include "Doubles.h"
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
  try {
    loadPicture(toPath(path));
    ADD_FAILURE() << "loaded";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), invalidProcedureCall);
    EXPECT_NE(error.description().find(reason), std::string::npos) << error.description();
    EXPECT_NE(error.description().find(fromQt(path)), std::string::npos);
  }
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

TEST(PictureFormatsTest, IconsAreScaledDownInProportion) {
  const Image large{640, 320, std::string(std::size_t{640} * 320 * 3, '\x55')};
  for (const int format : {Pictures::ico, Pictures::cur})
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(encodePicture(large, format))).size(),
              QSize(256, 128));
}

}  // namespace
}  // namespace tracewell
