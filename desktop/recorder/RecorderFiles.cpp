// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderFiles.h"

#include <QPainter>
#include <QSaveFile>

#include "DesktopWords.h"
#include "Error.h"
#include "Files.h"
#include "QtImages.h"
#include "QtValues.h"
#include "RecorderGraph.h"
#include "RecorderWords.h"
#include "SamplesCsv.h"
#include "SavedRecords.h"
#include "ShownText.h"
#include "WaveformSetWriter.h"

namespace tracewell {
namespace {

/// The graph without what belongs to the window, and notes below it.
Image drawn(const RecorderPicture& picture, const RecorderLook& look, const QSize& size,
            const QStringList& notes) {
  RecorderGraph graph(nullptr);
  graph.resize(size);
  graph.setLook(look);
  graph.showPicture(picture, {}, {});
  const QImage shown = graph.picture().toImage();
  const int line = QFontMetrics(graph.font()).lineSpacing();
  constexpr int margin = 6;
  const int below = static_cast<int>(notes.size()) * line + 2 * margin;
  QImage image(size.width(), size.height() + below, QImage::Format_RGB888);
  image.fill(look.ground);
  QPainter painter(&image);
  painter.drawImage(0, 0, shown);
  painter.setFont(graph.font());
  painter.setPen(RecorderLook::text);
  painter.drawText(QRect(margin, size.height(), size.width() - 2 * margin, below - margin),
                   Qt::AlignLeft | Qt::AlignTop, notes.join(QLatin1Char('\n')));
  painter.end();
  return fromQt(image);
}

}  // namespace

QString exportRecords(Recorder& recorder, const RecorderView& view,
                      const std::filesystem::path& path) {
  QSaveFile file(toQt(path));
  const auto refuse = [&] {
    throw Error(pathAccess, "Tracewell", pathText(path) + ": " + fromQt(file.errorString()));
  };
  if (!file.open(QIODevice::WriteOnly)) refuse();
  const SamplesCsvResult result =
      writeSamples(recorder.store(), view.exported(), [&file](std::string_view text) {
        file.write(text.data(), static_cast<qint64>(text.size()));
      });
  if (result.records == 0) {
    file.cancelWriting();
    return panelText("Nothing to export: the scales of these records are not known");
  }
  if (!file.commit()) refuse();
  QString text = panelText("Saved %1").arg(shownText(pathText(path), roomOfLine));
  if (result.leftOut > 0)
    text += QStringLiteral(". ") +
            panelText("Left out, with scales that are not known: %1")
                .arg(toQt(recordsText(recorder.main().services().words, result.leftOut)));
  return text;
}

QString saveAsSet(Recorder& recorder, const RecorderView& view, const RecorderLook& look,
                  const QSize& size, const std::filesystem::path& path) {
  const RecordsOfSet numbers = view.saved();
  const auto format = pictureFormatOf(pathText(path));
  if (!format) return panelText("The picture's name must end in png, jpg, bmp, gif, pcx or tif");
  for (const auto& number : numbers)
    if (number && recorder.store().record(*number).bytes.size() < WaveformRecord::byteCount)
      return panelText("This record is cut: a set needs a whole one");
  const Services& services = recorder.main().services();
  const WaveformSet set = setOfRecords(recorder.main(), recorder.store(), numbers, services.words);
  QStringList notes;
  for (const auto& number : numbers)
    if (number) notes << shownText(noteOf(recorder.store(), *number, services.words), roomOfLine);
  const Image picture = drawn(view.savedPicture(), look, size, notes);
  writeWaveformSet(path, {BuildCsvText(set), buildInfText(set, pathText(path)),
                          services.pictures.encode(picture, *format)});
  QString text = shownText(setWasSaved(services.words, path), roomOfLine);
  // The window shows both, and the set has one.
  for (const int channel : {1, 2})
    if (view.shownOf(channel) && !numbers.at(static_cast<std::size_t>(channel - 1)))
      text +=
          QStringLiteral(". ") + panelText("Without CH%1, which is of another sweep").arg(channel);
  return text;
}

}  // namespace tracewell
