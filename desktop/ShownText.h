// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QLabel>
#include <QString>
#include <string>

/// The only way of a text from the line, a file or a file system to the screen or to paper. A shown
/// text is never markup, does not change how its surroundings look, and ends in "…" if it was
/// shortened. What the program keeps is unchanged.
namespace tracewell {

/// How much of a text is shown.
struct Room {
  qsizetype characters;
  qsizetype lines = 1;
  /// Without, each is shown as a blank, since its width is not known.
  bool hasTabs = false;
};
inline constexpr Room roomOfCaption{60};
inline constexpr Room roomOfLine{200};
inline constexpr Room roomOfEntry{300};
/// What has no room on the line stands in its tip.
inline constexpr Room roomOfStatus{1000};
inline constexpr Room roomOfEditor{4000};
inline constexpr Room roomOfParagraph{1000, 20};
/// Above the last part of an error log.
inline constexpr Room roomOfPage{1100000, 30000, true};

/// Bytes that are no UTF-8, control characters, direction marks and the like become U+FFFD; so does
/// a line end if there is room for one line only. CR is removed.
QString shownText(const std::string& text, Room room);

/// The last lines of a text that fit, after a line of "…" if earlier ones were left out. For logs,
/// where the newest lines matter.
QString shownEnd(const std::string& text, Room room);

/// A caption for a widget that would take "&" for a keyboard mark.
QString shownCaption(const std::string& caption);

/// A title for a window that would take "[*]" for the place of a mark.
QString shownTitle(const std::string& title);

/// Shows a text in a label: one that breaks its lines as a paragraph, any other on one line of at
/// most `widest` pixels.
void showInLabel(QLabel& label, const std::string& text, int widest);

/// From now on no label of the program treats its text as markup, including those of the toolkit's
/// own boxes and tips. A form that wants markup says so.
void keepLabelsPlain(QApplication& application);

}  // namespace tracewell
