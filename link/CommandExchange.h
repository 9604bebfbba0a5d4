// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "ErrorLog.h"
#include "Inquiry.h"
#include "Timer.h"
#include "WireRules.h"
#include "frmDSO.h"

namespace tracewell {

/// Command lines to the instrument and its reply lines.
class CommandExchange {
 public:
  CommandExchange(frmDSO& main, ErrorLog& errorLog);

  /// Sends the command as it stands, with CR LF behind it. For a query (its last character is "?")
  /// the result is the reply without the blanks around it and without its terminator; for any other
  /// command, and after every failure, it is "".
  ///
  /// Never raises. A read time-out makes LinkOK false and is not logged. A query that fails in any
  /// other way is sent again, at most repeatLimit times, and its later replies are not used; a
  /// failed command, and a query that has failed to the last, are logged.
  std::string SendDSOCmd(const std::string& command);

  /// The same for a line that the user has typed: what it sets is not the panel's choice.
  std::string sendTyped(const std::string& line);

  /// Milliseconds that a reply is awaited; SerialPort says what 0 means. Kept through ShortTimeOut.
  int readTimeOut = SerialPort::defaultReadTimeOut;

  /// What an Inquiry begins with.
  Inquiries& inquiries() { return inquiries_; }

  /// Whether the last command went out, and was answered if it was a query.
  bool wasSent() const { return wasSent_; }

  /// Releases the instrument's own panel if a command has locked it. Logs its failure.
  void LoadSetup();

 private:
  static constexpr int repeatLimit = 8;
  std::string transfer(const std::string& command);
  void beginAutoset();
  void endAutosetsInTime();
  void noteFailed(const std::string& line);
  void noteAnswered(const std::string& query, const std::string& reply);
  std::string ask(const std::string& query);
  std::string send(const std::string& command, int repeatsLeft);
  void noteAnswer(const std::string& command, bool isAnswered);
  void prepare();
  std::string exchange(const std::string& command);
  std::string query(const std::string& command);

  frmDSO& main_;
  ErrorLog& errorLog_;
  /// The instrument's own panel is locked because it has been sent a command.
  bool InRemote = false;
  bool wasSent_ = false;
  /// Where some of the last command may have gone out.
  std::optional<KnownInstrument::Line> begunOn_;
  Inquiries inquiries_;
  /// Until when the autosets that were typed are under way, by port, on Clock's scale.
  std::map<std::int16_t, std::int64_t> autosets_;
  /// Ticks meanwhile.
  Timer autoset_{main_, 500};
};

}  // namespace tracewell
