// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "Clipboard.h"
#include "Dialogs.h"
#include "Disk.h"
#include "Files.h"
#include "Pictures.h"
#include "Printer.h"
#include "SerialPort.h"
#include "VirtualClock.h"
#include "Window.h"
#include "WindowHost.h"
#include "Words.h"

namespace tracewell {

using Lines = std::vector<std::string>;

inline std::string contentOf(const std::filesystem::path& path) {
  return readWholeFile(path, fileLimit::picture);
}

/// Number and description; empty where there was none.
std::string errorOf(const std::function<void()>& action);

/// Trials have fewer steps where a sanitizer makes each of them slow; the optimised build goes all
/// of them.
#ifdef TRACEWELL_SANITIZED
inline constexpr int stepsShare = 4;
#else
inline constexpr int stepsShare = 1;
#endif

/// The disk in use, which fails as it is told.
class FailingDisk : public Disk {
 public:
  FailingDisk() { useDisk(this); }
  ~FailingDisk() override { useDisk(nullptr); }
  std::errc fault{};
  std::errc faultOfFolder{};
  int flushes = 0;
  std::vector<std::filesystem::path> owners;

  std::error_code flush(std::FILE&) override { return ++flushes, std::make_error_code(fault); }
  std::error_code flushFolder(const std::filesystem::path&) override {
    return std::make_error_code(faultOfFolder);
  }
  void takeOwner(std::FILE&, const std::filesystem::path& like) override { owners.push_back(like); }
};

/// Processor time, which a busy machine does not stretch, and memory at its peak; a sanitizer is
/// allowed ten times as much.
void expectCheap(const std::function<void()>& action, double seconds = 1, long megabytes = 200);

/// Writes down what the program would have said, and answers as told.
class RecordingDialogs : public Dialogs {
 public:
  using Dialogs::Dialogs;
  Answer answer = Answer::Yes;
  /// Empty means Cancel.
  std::filesystem::path pickedFile;
  Lines messages;
  Lines runTimeErrors;
  std::vector<FileDialog> fileDialogs;

  Colour colour;
  /// What happens while a box or a dialog is open.
  std::function<void()> meanwhile;
  /// All of it, as it happens.
  Event<const std::string&> told;

  void showMessage(const std::string& text) override {
    messages.push_back(text);
    told.raise("! " + text);
  }
  void showRunTimeError(const Error& error) override;

 private:
  Answer answerYesNo(const std::string& prompt, const std::string& title, Answer) override;
  std::filesystem::path fileToOpen(const FileDialog& dialog) override;
  std::filesystem::path fileToSave(const FileDialog& dialog) override {
    return pickedFile.empty() ? fileToOpen(dialog) : dialog.completed(fileToOpen(dialog));
  }
  Colour pickedColour(Colour) override { return colour; }
};

/// Pictures without pixels: each step is written into the pixel bytes.
class RecordingPictures : public Pictures {
 public:
  Image graphImage(const Graph&, const std::string& footnote) override {
    return {2, 1, "graph|" + footnote};
  }
  Image withText(const Image& image, const std::string& text, int x, int y) override;
  std::string encode(const Image& image, int format) override {
    return std::to_string(format) + ":" + image.pixels;
  }
  Image load(const std::filesystem::path& path) override { return {1, 1, contentOf(path)}; }
};

class RecordingClipboard : public Clipboard {
 public:
  Event<const std::string&, const Image&> told;

  void put(const std::string& text, const Image& picture) override { told.raise(text, picture); }
};

/// Says in which language it speaks, unless that is English.
class NumberedWords : public Words {
 public:
  void use(int language) override { language_ = language; }

 protected:
  std::string translated(const char* english) const override {
    return language_ == 1 ? english : "(" + std::to_string(language_) + ") " + english;
  }

 private:
  int language_ = 1;
};

class RecordingPrinter : public Printer {
 public:
  bool isOutOfPaper = false, isDeclined = false;
  /// All of it, as it happens.
  Event<const std::string&> told;

  void setUp() override { told.raise("print set up"); }
  bool printImage(const Image& image) override { return print(image.pixels); }
  bool printText(const std::string& text) override { return print(text); }
  bool printPage(const GraphPage& page) override;
  std::string file() const override { return ""; }

 private:
  bool print(const std::string& text) {
    told.raise("print " + text.substr(0, 40));
    return true;
  }
};

/// A screen on which a script plays the user of each modal window.
class ScriptedWindows : public WindowHost {
 public:
  std::map<std::string, std::function<void()>> user;
  /// What happens when any modal window has opened.
  std::function<void()> meanwhile;
  Event<Window&> opened;
  Event<Window&> hidden;
  Event<Window&> unloaded;
  Event<> painted;
  Lines shown;

  void showModal(Window& window) override;
  void show(Window& window) override {
    shown.push_back(window.name());
    opened.raise(window);
  }
  void hide(Window& window) override { hidden.raise(window); }
  void repaint(Window&) override { painted.raise(); }
  void unload(Window& window) override { unloaded.raise(window); }
};

/// A port that writes down the wire and answers each query from a table. What it has no answer for
/// times out.
class ScriptedPort : public SerialPort, public PortList {
 public:
  using SerialPort::SerialPort;

  /// Reply lines, with their LF, by query. The last one of a list stays.
  std::map<std::string, std::deque<std::string>> replies;
  /// While positive, each transfer fails with it and takes one away.
  int faults = 0;
  /// The next command goes out, and then the line fails: what is opened behind it is another one.
  bool isBreaking = false;
  /// Every line written, without CR LF.
  Lines wire;
  /// The same as it happens, with the time that a reply is given where that is not the usual one.
  Event<const std::string&> told;
  std::vector<LineSettings> prepared;
  int abandoned = 0;
  int timesOpened = 1;
  LineReport lineReport;
  /// Replies, and those of them that are surely to their queries.
  int returned = 0;
  int sure = std::numeric_limits<int>::max();
  /// Abandoning fails.
  bool isStuck = false;
  /// Of the last request.
  LineRecord requested;
  /// Of the requests on their way, by channel.
  std::map<int, std::int64_t> stamps;

  void answer(const std::string& query, std::deque<std::string> lines) {
    replies[query] = std::move(lines);
  }
  /// A connected instrument with both scales, the time base and both positions.
  void answerLikeAnInstrument();
  void deliver(std::int16_t channel, const std::string& record);

  std::int16_t openPort() const override {
    return prepared.empty() ? 0 : prepared.back().portNumber;
  }
  int openings() const override { return timesOpened; }
  LineReport report() const override { return lineReport; }
  int lastReply() const override { return returned; }
  Sureness sureness(int reply) const override {
    if (reply <= sure) return Sureness::sure;
    return lineReport.sureAt ? Sureness::notYet : Sureness::never;
  }
  void command(std::string_view line, Reply) override { write(line, ""); }
  std::string query(std::string_view line, int timeOut) override;
  void request(LineRecord record) override;
  void abandon() override;
  std::vector<Entry> ports() override { return {{0, "simulated instrument"}, {33, "ttyUSB0"}}; }
  State stateOf(std::int16_t number) override { return number == 33 ? stateOf33 : State::ready; }
  State stateOf33 = State::ready;
  std::string deviceOf(std::int16_t number) override {
    for (const Entry& entry : ports())
      if (entry.number == number) return entry.device;
    return "";
  }

 private:
  void prepareLine() override;
  std::string write(std::string_view line, const std::string& toldToo);
};

/// A record whose samples are `sample(i)`, with a header that is not zero.
std::string makeRecord(const std::function<int(int)>& sample);

}  // namespace tracewell
