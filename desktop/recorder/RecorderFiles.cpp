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
#include "WrittenScales.h"

namespace tracewell {
namespace {

/// A line for each record.
QStringList notesOf(const RecordStore& store, const RecordsOfSet& numbers, const Words& words) {
  QStringList notes;
  for (const auto& number : numbers)
    if (number) notes << shownText(noteOf(store, *number, words), roomOfLine);
  return notes;
}

/// The graph, and the notes below it.
Image drawn(RecorderGraph& graph, const RecorderLook& look, const QStringList& notes) {
  constexpr int margin = 6;
  constexpr int wrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
  const QString text = notes.join(QLatin1Char('\n'));
  const QRect room(margin, graph.height(), graph.width() - 2 * margin, graph.height());
  const QRect below = QFontMetrics(graph.font()).boundingRect(room, wrapped, text);
  QImage image(graph.width(), below.bottom() + 2 * margin, QImage::Format_RGB888);
  image.fill(look.ground);
  QPainter painter(&image);
  painter.drawPixmap(0, 0, graph.picture());
  painter.setFont(graph.font());
  painter.setPen(RecorderLook::text);
  painter.drawText(room, wrapped, text);
  painter.end();
  return fromQt(image);
}

}  // namespace

void copyShown(Recorder& recorder, const RecorderView& view, const RecorderLook& look,
               RecorderGraph& graph) {
  const Services& services = recorder.main().services();
  const QStringList notes =
      notesOf(recorder.store(), {view.shownOf(1), view.shownOf(2)}, services.words);
  services.clipboard.put(tableOf(view.picture()), drawn(graph, look, notes));
}

QString exportRecords(Recorder& recorder, const RecorderView& view,
                      const std::filesystem::path& path) {
  QSaveFile file(toQt(path));
  const auto refuse = [&](int number) {
    throw Error(number, "Tracewell", pathText(path) + ": " + fromQt(file.errorString()));
  };
  if (!file.open(QIODevice::WriteOnly)) refuse(pathAccess);
  bool isWritten = true;
  const SamplesCsvResult result =
      writeSamples(recorder.store(), view.exported(), [&](std::string_view text) {
        const auto size = static_cast<qint64>(text.size());
        isWritten = isWritten && file.write(text.data(), size) == size;
      });
  if (result.records == 0) {
    file.cancelWriting();
    return result.leftOut > 0
               ? panelText("Nothing to export: the scales of these records are not known")
               : panelText("Nothing to export: no record of this channel is there");
  }
  // To commit alone would take what the last buffer has lost for written.
  if (!isWritten || !file.flush()) refuse(diskFull);
  if (!file.commit()) refuse(pathAccess);
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
  if (!format)
    throw Error(pathAccess, "Tracewell",
                fromQt(panelText("The picture's name must end in png, jpg, bmp, gif, pcx or tif")));
  for (const auto& number : numbers)
    if (number && recorder.store().record(*number).bytes.size() < WaveformRecord::byteCount)
      return panelText("This record is cut: a set needs a whole one");
  const Services& services = recorder.main().services();
  const WaveformSet set = setOfRecords(recorder.main(), recorder.store(), numbers, services.words);
  RecorderGraph graph(nullptr);
  graph.resize(size);
  graph.setLook(look);
  graph.showPicture(view.savedPicture(), {}, {});
  const Image picture = drawn(graph, look, notesOf(recorder.store(), numbers, services.words));
  writeWaveformSet(path, {BuildCsvText(set), buildInfText(set, pathText(path)),
                          services.pictures.encode(picture, *format)});
  QString text = shownText(setWasSaved(services.words, path), roomOfLine);
  // The window shows both, and the set has one.
  for (const int channel : {1, 2})
    if (view.shownOf(channel) && !numbers.at(static_cast<std::size_t>(channel - 1)))
      text +=
          QStringLiteral(". ") + panelText("Without CH%1, which is of another sweep").arg(channel);
  // The set carries the panel's positions.
  const frmDSO& main = recorder.main();
  const auto sayNotKnown = [&](const Slide& slide) {
    text += QStringLiteral(". ") + shownText(positionNotKnown(services.words, slide), roomOfLine);
  };
  for (const Channel& channel : main.channels)
    if (numbers.at(channel.index()) && (channel.slide.isUnread() || channel.slide.isStale()))
      sayNotKnown(channel.slide);
  if (isDelayInDoubt(main)) sayNotKnown(main.slideTime);
  return text;
}

}  // namespace tracewell
