// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QLabel>
#include <QString>
#include <string>

/// The one way of a text from the line, from a file or from a file system to the screen or to
/// paper. What is shown is never markup, holds nothing that changes how its surroundings are
/// shown, and ends in "…" where it was shortened. What the program keeps stays as it is.
namespace tracewell {

/// How much of a text is shown.
struct Room {
  qsizetype characters;
  qsizetype lines = 1;
  /// Elsewhere each is a blank: nobody can say how wide it is.
  bool hasTabs = false;
};
inline constexpr Room roomOfCaption{60};
inline constexpr Room roomOfLine{200};
inline constexpr Room roomOfEntry{300};
inline constexpr Room roomOfEditor{4000};
inline constexpr Room roomOfParagraph{1000, 20};
/// Above the last part of an error log.
inline constexpr Room roomOfPage{1100000, 30000, true};

/// Bytes that are no UTF-8, control characters, direction marks and the like become U+FFFD; so does
/// a line end where there is room for one line. CR goes.
QString shownText(const std::string& text, Room room);

/// The last lines of a text for which there is room, behind a line of "…" where others were before
/// them: of a log the newest count.
QString shownEnd(const std::string& text, Room room);

/// A caption for a widget that would take "&" for a keyboard mark.
QString shownCaption(const std::string& caption);

/// A title for a window, which would take "[*]" for the place of a mark.
QString shownTitle(const std::string& title);

/// Shows a text in a label: one that breaks its lines as a paragraph, any other on one line of at
/// most `widest` pixels.
void showInLabel(QLabel& label, const std::string& text, int widest);

/// From now on no label of the program guesses that its text is markup, those of the toolkit's own
/// boxes and tips included. A form that wants markup says so.
void keepLabelsPlain(QApplication& application);

}  // namespace tracewell
