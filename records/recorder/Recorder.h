// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "MeasurementLog.h"
#include "RecordStore.h"
#include "frmDSO.h"

namespace tracewell {

/// Keeps every record that the panel fetches, and logs their measurements while the user wants
/// that. It asks the instrument for nothing.
class Recorder {
 public:
  /// Hears of the main window's records from now on. `main` outlives this.
  explicit Recorder(frmDSO& main);
  ~Recorder();
  Recorder(const Recorder&) = delete;

  RecordStore& store() { return store_; }
  const RecordStore& store() const { return store_; }
  frmDSO& main() { return main_; }

  /// Told the number of a record that has been kept, or that was fetched again.
  std::function<void(RecordStore::Number)> kept;

  struct AtLimit {
    bool pins = false;
    bool rings = false;
  };
  /// Begins a log, in place of another that can be stopped. Raises pathAccess.
  void startLog(const std::filesystem::path& path, MeasurementColumns columns, AtLimit atLimit);
  /// Writes what is held. Where that cannot be, the user is asked, and may keep the log: false.
  bool stopLog();
  const MeasurementLog* log() const { return log_ ? &*log_ : nullptr; }
  /// Once a second while there is a log.
  void tick();
  /// A limit has been passed that is to ring.
  std::function<void()> ring;

  /// What is wrong, and "/home/user/log.csv: 2:05:09, 6250 rows, 410.2 kB"; empty without a log.
  std::string logText(const Words& words) const;
  /// What is wrong alone; empty where nothing is.
  std::string troubleText(const Words& words) const;

 private:
  void keep(int channel);
  void write(RecordStore::Number number);
  void sayTrouble();
  bool isGivenUp() const;

  frmDSO& main_;
  RecordStore store_;
  std::optional<MeasurementLog> log_;
  AtLimit atLimit_;
  /// One that was beyond a limit could not be pinned.
  bool isOutOfPins_ = false;
};

}  // namespace tracewell
