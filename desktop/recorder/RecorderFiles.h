// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <filesystem>

#include "Recorder.h"
#include "RecorderLook.h"
#include "RecorderView.h"

namespace tracewell {

class RecorderGraph;

/// Puts what the graph shows on the clipboard, as a table and as a picture with a line for each
/// record below it.
void copyShown(Recorder& recorder, const RecorderView& view, const RecorderLook& look,
               RecorderGraph& graph);

/// The records that are marked, or the one pointed at, as CSV. Returns what is to be said of it.
/// Raises pathAccess.
QString exportRecords(Recorder& recorder, const RecorderView& view,
                      const std::filesystem::path& path);

/// The record pointed at, with the other channel's of the same sweep, as a waveform set; `path` is
/// that of its picture. The picture has that size and a line for each channel below it. Returns
/// what is to be said of it. Raises pathAccess or diskFull.
QString saveAsSet(Recorder& recorder, const RecorderView& view, const RecorderLook& look,
                  const QSize& size, const std::filesystem::path& path);

}  // namespace tracewell
