// SPDX-License-Identifier: GPL-3.0-or-later
#include "Played.h"

#include <algorithm>

#include "Files.h"
#include "Numbers.h"
#include "Places.h"
#include "ShownTexts.h"
#include "Waiting.h"

namespace tracewell {
namespace {

/// A record of one value, but for its first.
std::string level(int sample) {
  return makeRecord([sample](int i) { return i == 0 ? 0 : sample; });
}

/// A file of lines; ^ is a line feed that is no line end, since it stands alone.
std::string fileText(const std::filesystem::path& path) {
  if (!std::filesystem::exists(path)) return "none";
  std::string text = contentOf(path);
  replaceAll(text, "\r\n", "\\n");
  replaceAll(text, "\n", "^");
  if (text.empty()) return "empty";
  return text.size() > 600 ? shortened(text) : text;
}

/// One event a line, so that a difference shows where it is.
std::string lines(std::string text) {
  replaceAll(text, "; ", "\n");
  return text;
}

}  // namespace

Lines split(const std::string& text, const std::string& separator) {
  Lines parts;
  for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + separator.size()) {
    end = text.find(separator, start);
    parts.push_back(text.substr(start, end - start));
  }
  return parts;
}

Played::Played() {
  program.start();
  // As after the first exchange of any dialog.
  program.exchange.readTimeOut = ReplyTimeout(main.state);
  for (Window* window : program.otherWindows()) paint(*window);
  paint(main);
  watchGraph();
  for (Window* window : program.otherWindows()) newIn(*window);
  newIn(main);
  port.told = dialogs.told = printer.told = [this](const std::string& event) { note(event); };
  clipboard.told = [this](const std::string& text, const Image& picture) {
    // The head of a table, and how long it is.
    const auto rows = std::ranges::count(text, '\n');
    std::string head = text;
    if (rows > 8) head = text.substr(0, text.find('\n', text.find('\n') + 1)) + "...";
    note("clip " + picture.pixels + "|" + head + std::to_string(rows));
  };
  windows.painted = [this] {
    if (!events_.empty()) events_.back() += '~';
  };
  windows.hidden = [this](Window& window) {
    if (&window == &program.message) note("</frmMsg>");
    hidden(window);
  };
  windows.unloaded = [this](Window& window) {
    note("unload " + window.name());
    unloaded(window);
  };
  windows.opened = [this](Window& window) {
    note("<" + window.name() + newIn(window) + ">");
    // What is behind it is painted, too.
    main.graphDSO.notifyChanged();
    if (&window == &program.message) return;
    opened(window);
    if (window.isVisible()) note("open");
  };
  main.tmDSO.changed = [this] { note(main.tmDSO.enabled() ? "run" : "rest"); };
  program.errLog.txtErrLog.changed = [this] {
    const Lines log = logLines();
    if (!log.empty()) note("log " + log.back());
  };
  watchNotice();
}

void Played::paint(Window& window) {
  for (Control* control : window.controls()) {
    control->changed = [control] {
      control->painted = control->trust ? control->trust() : Trust::holds;
    };
    control->changed();
  }
}

void Played::watchGraph() {
  Graph& graph = main.graphDSO;
  const auto watch = [&graph](std::function<void()>& changed, auto& part) {
    changed = [&graph, &part, shown = changed] {
      if (shown) shown();
      // Named for every part, as only some of them can be pale.
      [[maybe_unused]] auto& painted = part;
      if constexpr (requires { painted.isPaintedPale; }) painted.isPaintedPale = painted.isPale();
      graph.paintedMarks = graph.marks();
    };
  };
  for (Plot& plot : graph.plots()) watch(plot.changed, plot), watch(plot.plotted, plot);
  for (Axis& axis : graph.axes()) watch(axis.changed, axis);
  for (Cursor& cursor : graph.cursors()) watch(cursor.changed, cursor);
  watch(graph.changed, graph);
}

void Played::watchNotice() {
  main.lblTest.changed = [this, shown = main.lblTest.changed, wasVisible = false]() mutable {
    if (shown) shown();
    if (std::exchange(wasVisible, main.lblTest.visible()) != wasVisible)
      note(wasVisible ? "[" : "]");
  };
}

std::map<std::string, std::string> Played::shownBy(Window& window) {
  std::map<std::string, std::string> shown = {{"title", window.caption()}};
  for (Control* control : window.controls()) {
    std::string text = textOf(*control);
    replaceAll(text, inFolder_, "FOLDER/");
    replaceAll(text, pathText(folder.path()), "FOLDER");
    if (control->objectName() == "driveCSV" && text.ends_with(pathText(folder.path().root_path())))
      text = "ROOT";
    const bool isLong = dynamic_cast<TextBox*>(control) || dynamic_cast<PictureBox*>(control);
    if (isLong) text = shortened(text);
    shown[control->objectName()] = text + (control->visible() ? "" : " hidden") +
                                   (control->enabled() ? "" : " disabled") +
                                   (looksUnread(*control) ? " unread" : "") +
                                   (isTruthTold_ && looksStale(*control) ? " stale" : "");
  }
  if (!isTruthTold_)
    for (const char* name : {"lblAge", "cmdNewErrors"}) shown.erase(name);
  if (&window != &main) return shown;
  shown["ChanCount"] = std::to_string(main.state.ChanCount);
  showParts(main.graphDSO, shown);
  if (isTruthTold_) {
    const GraphMarks& marks = main.graphDSO.paintedMarks;
    shown["marks"] = textOf(marks);
    shown["banner"] = (marks.banner.isWarning ? "! " : "") + marks.banner.text;
    for (const GraphMarks::Text& value : main.graphDSO.valuesAt(50, 50))
      shown["pointer"] += value.text + " ";
  }
  if (isTruthTold_ && main.graphDSO.axis("XAxis").isPaintedPale) shown["XAxis"] += " pale";
  for (const int number : {1, 2})
    if (isTruthTold_ && main.graphDSO.plot(number).isPaintedPale)
      shown["old" + std::to_string(number)] = "";
  for (int number = 0; number < main.gridMeasure.fileRows(); ++number)
    for (const std::string& value : row(number))
      shown["row" + std::to_string(number)] += "," + value;
  const LineSettings& line = port.settings;
  for (const int value : {int{line.portNumber}, int{line.baudRate}, int{line.dataBits},
                          int{line.stopBits}, int{line.parity}})
    shown["line"] += "," + std::to_string(value);
  return shown;
}

std::string Played::newIn(Window& window) {
  const auto now = shownBy(window);
  const auto before = std::exchange(seen_[&window], now);
  std::string text;
  for (const auto& [name, shown] : now)
    if (const auto old = before.find(name); old == before.end() || old->second != shown)
      text.append("; ").append(name).append(" ").append(shown).append(
          shown.empty() || shown.ends_with(' ') ? "|" : "");
  return text;
}

std::string Played::play(const std::string& script) {
  events_.clear();
  start_ = clock.milliseconds();
  for (std::string& text : split(script, ", ")) steps_.push_back(std::move(text));
  while (!steps_.empty()) playNext(main);
  if (clock.milliseconds() != start_) note(std::to_string(clock.milliseconds() - start_) + " ms");
  std::string text;
  for (const std::string& event : events_) text += "; " + event;
  text += newIn(main);
  replaceAll(text, "\r\n", "\\n");
  replaceAll(text, "\r", "\\r");
  replaceAll(text, "\n", "\\n");
  replaceAll(text, inFolder_, "FOLDER/");
  return text.substr(std::min<std::size_t>(2, text.size()));
}

void Played::playIn(Window& window) {
  while (!steps_.empty() && window.isVisible()) playNext(window);
}

void Played::playNext(Window& window) {
  const std::string text = steps_.front();
  steps_.pop_front();
  step(window, text);
}

void Played::step(Window& window, const std::string& text) {
  const std::size_t equals = text.find('=');
  const std::string name = text.substr(0, equals);
  const std::string value = equals == std::string::npos ? "" : text.substr(equals + 1);
  if (name == "close") return program.message.isVisible() ? program.message.close() : close(window);
  if (name == "look")
    return note("look" + newIn(window) +
                (program.message.isVisible() ? newIn(program.message) : ""));
  for (Control* control : window.controls())
    if (control->objectName() == name) return use(*control, value);
  if (name == "hidden") {
    std::string names;
    for (const Control* control : window.controls())
      if (!control->visible()) names += " " + control->objectName();
    return note(name + names);
  }
  if (!setUp(name, value)) ADD_FAILURE() << "no such step in " << window.name() << ": " << text;
}

/// The steps that are no control's, by name.
std::map<std::string, std::function<void()>> Played::stepsWith(const std::string& value) {
  const auto number = [&value] { return std::stoi(value); };
  const auto path = [this, &value] { return folder.path() / pathOf(value); };
  const auto later = [&value] { return value.substr(value.find(' ') + 1); };
  return {
      {"plug", [this] { port.answerLikeAnInstrument(); }},
      {"connected", [this] { connect(); }},
      {"break", [this] { port.isBreaking = true; }},
      {"faults", [this, number] { port.faults = number(); }},
      {"baud", [this, &value] { main.state.BaudRate = toInt16(value); }},
      {"file", [this, &value, path] { dialogs.pickedFile = value.empty() ? "" : path(); }},
      {"colour",
       [this, number] {
         dialogs.colour = {static_cast<std::uint8_t>(number()), 2, 3};
       }},
      {"write", [this, &value, later] { write(value.substr(0, value.find(' ')), later()); }},
      {"read", [this, &value, path] { note("read " + value + " " + fileText(path())); }},
      {"remove", [path] { std::filesystem::remove(path()); }},
      {"folder", [path] { std::filesystem::create_directory(path()); }},
      {"answer", [this, &value] { dialogs.answer = value == "no" ? Answer::No : Answer::Yes; }},
      {"give up", [this] { standBy.giveUp(); }},
      {"wait", [this, number] { clock.run(number()); }},
      {"here", [this] { std::filesystem::current_path(folder.path()); }},
      {"at", [this, number,
              later] { clock.callAfter(number(), [this, text = later()] { step(main, text); }); }},
      {"cut2", [this, number] { main.Ch2Raw.resize(static_cast<std::size_t>(number())); }},
      {"copy",
       [this, &value, later] {
         writeWholeFile(folder.path() / later(),
                        contentOf(folder.path() / value.substr(0, value.find(' '))));
       }},
      {"paper", [this, &value] { printer.isOutOfPaper = value == "none"; }},
      {"decline", [this] { printer.isDeclined = true; }},
      {"sure",
       [this, number] {
         port.sure = number();
         if (number() < port.returned) port.lineReport.sureAt = clock.milliseconds() + 8000;
         main.tmStatus.timer.raise();
       }},
      {"record1", [this, number] { main.Ch1Raw = level(number()); }},
      {"record2", [this, number] { main.Ch2Raw = level(number()); }},
      {"port33",
       [this, &value] {
         list.stateOf33 =
             value == "used" ? PortList::State::inUseElsewhere : PortList::State::absent;
       }},
      {"opened", [this, number] { port.timesOpened = number(); }},
      {"truth",
       [this] {
         isTruthTold_ = true;
         newIn(main);
       }},
      {"status", [this] {
         main.lblStatus.changed = [this] { note("'" + main.lblStatus.caption() + "'"); };
       }}};
}

void Played::write(const std::string& name, std::string text) {
  replaceAll(text, "\\n", "\r\n");
  writeWholeFile(folder.path() / name, text);
}

bool Played::setUp(const std::string& name, const std::string& value) {
  const auto steps = stepsWith(value);
  if (const auto found = steps.find(name); found != steps.end()) {
    found->second();
    return true;
  }
  if (name.starts_with("cur")) {
    const Lines place = split(value, ":");
    main.graphDSO.dragCursor(main.graphDSO.cursor(name), std::stod(place[0]), std::stod(place[1]));
  } else if (name.starts_with("trace")) {
    port.requested.stamp = main.known.now();
    port.deliver(static_cast<std::int16_t>(std::stoi(name.substr(5))),
                 makeRecord([first = std::stoi(value)](int i) { return first + i; }));
  } else if (name.starts_with("row")) {
    setRow(std::stoi(name.substr(3)), split(value, " "));
  } else if (name.ends_with('?')) {
    port.replies[name].clear();
    for (const std::string& line : split(value, "|")) port.replies[name].push_back(line + "\n");
  } else {
    for (Control* control : main.controls())
      if (auto* label = dynamic_cast<ValueLabel*>(control);
          label && name == label->objectName() + ":") {
        label->caption = value;
        const std::string number = name.substr(name.size() - 2, 1);
        main.known.answered(number == "e" ? ":TIM:SCAL?" : ":CHAN" + number + ":SCAL?", value, 0);
      }
    return name.ends_with(':');
  }
  return true;
}

void Played::connect() {
  port.answerLikeAnInstrument();
  main.cmdStart.press();
  main.known.answered(":TRIG:SOUR?", "0", 0);
  newIn(main);
  events_.clear();
  start_ = clock.milliseconds();
}

void Played::useGraph(Graph& graph, const std::string& value) {
  using enum Graph::Copied;
  if (value.empty()) return graph.toggleEnlarged();
  if (value.starts_with("-")) return graph.removeReference(std::stoi(value.substr(1)));
  if (value.ends_with(".csv")) return note(graph.drop(folder.path() / value) ? "taken" : "left");
  graph.copy(value == "values" ? values : value == "picture" ? picture : pictureAndValues);
}

void Played::use(Control& control, const std::string& value) {
  if (auto* button = dynamic_cast<Button*>(&control)) return button->press();
  if (auto* button = dynamic_cast<Switch*>(&control)) return button->press();
  if (auto* button = dynamic_cast<ValueButton*>(&control)) return button->press();
  if (auto* entry = dynamic_cast<MenuEntry*>(&control)) return entry->choose();
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->toggle();
  if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->select();
  if (auto* label = dynamic_cast<Label*>(&control)) return label->doubleClick();
  if (auto* frame = dynamic_cast<Frame*>(&control)) return frame->copy();
  if (auto* graph = dynamic_cast<Graph*>(&control)) return useGraph(*graph, value);
  if (auto* knob = dynamic_cast<Knob*>(&control)) return knob->turn(std::stoi(value));
  if (auto* tree = dynamic_cast<Tree*>(&control)) return tree->choose(std::stoi(value));
  if (auto* list = dynamic_cast<ListBox*>(&control)) return list->choose(std::stoi(value));
  if (auto* picture = dynamic_cast<PictureBox*>(&control))
    return picture->clickAt(std::stoi(value), 6);
  if (auto* box = dynamic_cast<ComboBox*>(&control))
    return value.starts_with('#') ? box->choose(std::stoi(value.substr(1))) : box->type(value);
  if (auto* slide = dynamic_cast<Slide*>(&control)) {
    const bool isHeld = value.ends_with('~');
    slide->drag(std::stod(value));
    return isHeld ? void() : slide->release();
  }
  auto& box = dynamic_cast<TextBox&>(control);
  const bool isEntered = value.ends_with('~');
  std::string typed = value.substr(0, value.size() - (isEntered ? 1 : 0));
  replaceAll(typed, "\\n", "\r\n");
  box.type(typed);
  if (isEntered) box.pressKey(TextBox::enterKey);
}

void playFile(const char* name, const std::function<std::string(const std::string& script)>& play) {
  std::istringstream file(contentOf(std::filesystem::path(scriptFolder) / name));
  std::string script;
  std::string expected;
  for (std::string line; std::getline(file, line) || !script.empty();) {
    const auto add = [](std::string& all, const std::string& separator, const std::string& more) {
      all += (all.empty() ? "" : separator) + more;
    };
    if (line.starts_with("> ")) {
      add(script, ", ", line.substr(2));
    } else if (!line.empty() && !line.starts_with('#')) {
      add(expected, "; ", line);
    } else if (line.empty() && !script.empty()) {
      const std::string came = play(script);
      EXPECT_EQ(lines(expected), lines(came)) << script << "\n" << came;
      script.clear();
      expected.clear();
    }
    line.clear();
  }
}

}  // namespace tracewell
