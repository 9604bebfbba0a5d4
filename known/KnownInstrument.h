// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "FetchedSweeps.h"
#include "MadeUnder.h"
#include "Setting.h"
#include "Sureness.h"
#include "WireRules.h"
#include "WireValues.h"

namespace tracewell {

/// What the panel knows of the instrument. It hears every line sent and every reply, and tells for
/// each setting the instrument's value, or why that is not known. Everything that the panel shows
/// without a mark comes from here.
///
/// A setting is known on the line on which it was told. Behind another port, or on a line that has
/// been reopened, there may be another instrument.
class KnownInstrument {
 public:
  using Line = InstrumentLine;
  /// A count of facts. Only the order matters.
  using Moment = std::int64_t;
  /// What is known of a record that has arrived.
  struct Fetched {
    MadeUnder made;
    /// As in FetchedSweeps::Proof.
    bool isBack = false;
    bool mayBeSame = false;
  };

  /// `presentLine` returns the line on which the next command goes out. `sureness` says of the
  /// number of a reply whether it is the one to its query.
  KnownInstrument(std::function<Line()> presentLine, std::function<Sureness(int)> sureness)
      : presentLine_(std::move(presentLine)), sureness_(std::move(sureness)) {}
  KnownInstrument(const KnownInstrument&) = delete;

  // Facts, reported in order.

  /// The panel has sent a command: the instrument now has what it sets.
  void sent(std::string_view command);
  /// The user has typed a line, and it was sent. The instrument may refuse it, so what it sets is
  /// not known until it is read. Math, Run, Stop and the lock are taken as sent.
  void typed(std::string_view line);
  /// Sending was begun on that line and failed, or is not over: the instrument may have it or not.
  /// A line that has failed is not the present one any more.
  void notSent(std::string_view line, const Line& begunOn);
  void answered(std::string_view query, std::string_view reply, int replyNumber);
  void notAnswered(std::string_view query);
  /// The instrument changes its settings by itself, until upsetIsOver: meanwhile none is known.
  /// Each upset ends by one upsetIsOver, with the port of its beginning.
  void upset();
  void upsetIsOver(std::int16_t port);
  /// Scales and positions are about to be read; each is not known until its reply has arrived.
  void reading();
  /// A record is requested. The line decides when the request goes out.
  void requested();
  /// A record of a channel, requested at that moment, has arrived on the present line.
  Fetched fetched(int channel, Moment requested, FetchedSweeps::Bytes bytes);

  /// Called after each of these.
  std::function<void()> changed;

  // What is known.

  Line presentLine() const { return failed_ ? *failed_ : presentLine_(); }
  Moment now() const { return now_; }
  Doubt doubt(Setting setting) const;
  bool isKnown(Setting setting) const { return doubt(setting) == Doubt::none; }
  /// Its scales have been read on this line.
  bool isRead() const { return readOn_ == presentLine(); }
  bool isUpset() const { return here().upsets > 0; }
  /// When the instrument was upset last.
  Moment upsetAt() const { return here().upsetAt; }
  /// Since when the setting has had its value, or its doubt.
  Moment changedAt(Setting setting) const { return entry(setting).changedAt; }

  /// Since when everything that a measurement of the channel depends on is unchanged.
  Moment signalChangedAt(int channel) const;

  /// The value, in the units that Setting.h says.
  std::optional<double> number(Setting setting) const;
  /// It has been told a value, sure or not.
  bool hasNumber(Setting setting) const { return entry(setting).number.has_value(); }
  /// A scale as the instrument writes it, "500.0 mV".
  std::optional<std::string> caption(Setting scale) const;
  std::optional<double> voltsPerDivision(int channel) const;
  std::optional<double> secondsPerDivision() const;
  /// The channel in whose place the instrument shows its math, as known now or last; 0 for none.
  /// Math that was set elsewhere is not known here.
  int mathChannel() const;
  /// It was on and may have been left on, or something that was sent may have set it.
  bool mayMathBeOn() const;
  /// The panel has stopped the instrument.
  bool isStopped() const;

 private:
  struct Entry {
    std::optional<double> number;
    std::string caption;
    Doubt doubt = Doubt::neverRead;
    /// The reply that told it; none where it was sent.
    std::optional<int> reply;
    /// Where that was last told, or asked for in vain.
    Line line;
    Moment changedAt = 0;
  };
  /// The settings of a record, and the replies that told its scales: these may become sure later.
  struct Told {
    MadeUnder made;
    std::set<int> voltsReplies;
    std::set<int> secondsReplies;
  };
  /// What was told behind one port. Whatever happens behind another, it may still be so.
  struct BehindPort {
    std::array<Entry, settingCount> entries;
    int upsets = 0;
    Moment upsetAt = 0;
    /// Something may have switched math on, for an unknown channel.
    bool isMathDoubted = false;
    /// Something may have set the trigger to any mode.
    bool isModeOpen = false;
    /// Of each channel.
    std::array<FetchedSweeps, 2> fetches;
    /// The settings under which a stopped instrument made the records that it sends.
    std::array<Told, 2> atStop;
  };

  /// The present port's.
  BehindPort& here() const;
  const Entry& entry(Setting setting) const {
    return here().entries[static_cast<std::size_t>(setting)];
  }
  Entry& entry(Setting setting) { return here().entries[static_cast<std::size_t>(setting)]; }

  void obey(const WirePart& command, bool isTrusted);
  void take(Setting setting, WireValue value, std::optional<int> reply = std::nullopt);
  void takeSent(Setting setting, const WireValue& value);
  void doubtful(Setting setting, Doubt reason);
  void followed(Setting setting);
  void stop();
  void mayHaveStopped();
  void lockUncertain();
  void leave(Setting setting);
  void leaveUntold(Entry& asked) const;
  void leaveOpen(Setting setting);
  Doubt toldDoubt(Setting setting) const;
  Sureness sureness(const Entry& told) const {
    return told.reply ? sureness_(*told.reply) : Sureness::sure;
  }
  /// A position or delay in divisions of the scale that was told last, if that is known.
  std::optional<WireValue> inDivisions(Setting setting, std::optional<WireValue> value) const;
  /// The trigger is in a mode for which this holds, or may be.
  template <class Condition>
  bool mayBeMode(Condition condition) const;
  bool mayMoveLevel() const;
  bool mayBeStopped() const;
  Told toldAt(int channel, Moment moment) const;
  MadeUnder sureOf(const Told& told) const;
  bool mayHaveWaited(Moment requested) const;
  bool isFreeRunning(Moment requested) const;
  MadeUnder madeUnder(int channel, Moment requested, Moment sweptSince) const;
  Moment sweptAt() const;
  Moment shownSince() const;
  void tell() const {
    if (changed) changed();
  }

  std::function<Line()> presentLine_;
  /// In its place while notSent tells of a line that was lost.
  std::optional<Line> failed_;
  std::function<Sureness(int)> sureness_;
  /// By number; made when the port is first used.
  mutable std::map<std::int16_t, BehindPort> ports_;
  mutable std::int16_t port_ = 0;
  Moment now_ = 1;
  std::optional<Line> readOn_;
};

}  // namespace tracewell
