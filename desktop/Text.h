// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <string>

/// The program's texts are UTF-8 bytes; Qt's are QString.
namespace tracewell {

inline QString toQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

inline QString toQt(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::filesystem::path toPath(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::u8string(bytes.begin(), bytes.end());
}

/// A caption for a widget that would take "&" for a keyboard mark.
inline QString plainCaption(const std::string& caption) {
  return toQt(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace tracewell
